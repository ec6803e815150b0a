#include "outputs/TablaProyecto.h"

#include "model/ListasHuecos.h"

#include <array>
#include <numeric>
#include <span>
#include <string_view>

#include "outputs/TablaResultados.h"

namespace novex {
namespace {

constexpr int kDecimales = 2;

Celda Cifra(float valor) {
  return Celda::Numero(static_cast<double>(valor), kDecimales);
}

float Suma(const PorSector& areas) {
  return std::accumulate(areas.begin(), areas.end(), 0.0F);
}
float Suma(float area) {
  return area;
}

// Una fila por tipo de una familia que tenga área. `ranuras` son las composiciones de sus tipos.
class FilasEnvolvente {
 public:
  FilasEnvolvente(const Edificio& edificio, Tabla& tabla) : edificio_(edificio), tabla_(tabla) {}

  template <class Areas>
  void Anadir(const char* familia, const Areas& areas,
              const std::array<ranura::Ranura, std::tuple_size_v<Areas>>& ranuras) {
    for (std::size_t i = 0; i < areas.size(); ++i) {
      const float area = Suma(areas[i]);
      if (area == 0.0F) continue;
      total_ += area;
      const composicion& capas = edificio_.GetComposicion(ranuras[i]);
      tabla_.filas.push_back(
          {std::string(familia) + " " + std::to_string(i + 1), Cifra(area),
           Celda::Numero(static_cast<double>(capas.U), 3),
           capas.nombre == composicion::kNoDefinido ? std::string() : capas.nombre});
    }
  }
  float Total() const { return total_; }

 private:
  const Edificio& edificio_;
  Tabla& tabla_;
  float total_ = 0;
};

/// Columnas de un grupo de huecos y cómo se llaman.
constexpr std::array<std::pair<std::size_t, const char*>, 7> kOrientaciones = {
    {{norte, "N"},
     {oeste, "O"},
     {sur_oeste, "SO"},
     {sur, "S"},
     {sur_este, "SE"},
     {este, "E"},
     {kColumnaHorizontal, "Hz"}}};

std::string NombreTipoHueco(int tipo) {
  const auto i = static_cast<std::size_t>(tipo);
  return tipo >= 0 && i < listaHuecos::kTipos.size() ? std::string(listaHuecos::kTipos[i])
                                                     : std::to_string(tipo);
}

Celda Cuenta(std::size_t n) {
  return n == 0 ? Celda() : Celda::Numero(static_cast<double>(n), 0);
}

}  // namespace

Tabla TablaEnvolventeCaso(const Edificio& edificio) {
  using namespace ranura;
  Tabla tabla;
  tabla.titulo = "Envolvente";
  tabla.cabeceras = {"Elemento", "m²", "U (W/m²K)", "Composición"};
  FilasEnvolvente filas(edificio, tabla);
  for (std::size_t i = 0; i < edificio.NumeroRecintos(); ++i) {
    const Recinto& r = edificio.GetRecinto(i);
    filas.Anadir("Muro exterior", r.Muro_ext_m2,
                 {MuroExt1, MuroExt2, MuroExt3, MuroExt4, MuroExt5});
    filas.Anadir("Muro al terreno", r.Muro_al_terreno_m2, {MuroTerr1, MuroTerr2});
    filas.Anadir("Muro a local no acondicionado", r.Muro_otro_local_m2, {MuroOtro3, MuroOtro7});
    filas.Anadir("Muro adiabático", r.Muro_adiabatico_m2, {MuroOtro1, MuroOtro5});
    filas.Anadir("Cubierta horizontal", r.Cubierta_horiz_sol_m2, {TechoExt1, TechoExt2, TechoExt3});
    filas.Anadir("Cubierta inclinada", r.Cubierta_incl_m2, {TechoInc1, TechoInc2, TechoInc3});
    filas.Anadir("Cubierta bajo buhardilla", r.Cubierta_techo_ventilado_m2,
                 {TechoVent1, TechoVent3});
    filas.Anadir("Cubierta al terreno", r.Cubierta_terreno_m2, {TechoTerr1, TechoTerr2});
    filas.Anadir("Cubierta adiabática", r.Cubierta_adiabatico_m2, {TechoOtro1, TechoOtro2});
    filas.Anadir("Suelo al terreno", r.Suelo_al_terreno_m2, {SueloTerr1, SueloTerr2, SueloTerr3});
    filas.Anadir("Suelo al exterior", r.Suelo_ext_m2, {SueloExt1, SueloExt2});
    filas.Anadir("Suelo sobre local no acondicionado", r.Suelo_otro_local_m2,
                 {SueloVent1, SueloVent3});
    filas.Anadir("Suelo sobre vacío sanitario", r.Suelo_vacio_sanitario_m2,
                 {SueloOtro1, SueloOtro3});
    filas.Anadir("Suelo adiabático", r.Suelo_adiabatico_m2, {SueloOtro2, SueloOtro4});
  }
  tabla.filas.push_back({"Total", Cifra(filas.Total())});
  return tabla;
}

Tabla TablaHuecosCaso(const Edificio& edificio) {
  Tabla tabla;
  tabla.titulo = "Huecos";
  tabla.cabeceras = {"Grupo", "Tipo", "Ancho (m)", "Alto (m)", "U vidrio", "U marco"};
  for (const auto& [columna, nombre] : kOrientaciones) tabla.cabeceras.push_back(nombre);
  tabla.cabeceras.push_back("m²");
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& grupo = edificio.GetHuecos(i);
    if (grupo.NumeroTotal() == 0) continue;
    std::vector<Celda> fila = {grupo.Nombre_hueco,           NombreTipoHueco(grupo.Tipo_de_hueco),
                               Cifra(grupo.Ancho_m),         Cifra(grupo.Alto_m),
                               Cifra(grupo.U_cristal_W_m2K), Cifra(grupo.U_marco_W_m2K)};
    for (const auto& [columna, nombre] : kOrientaciones)
      fila.push_back(Cuenta(grupo.columnas[columna].recintos.size()));
    fila.push_back(Cifra(grupo.Ancho_m * grupo.Alto_m * static_cast<float>(grupo.NumeroTotal())));
    tabla.filas.push_back(std::move(fila));
  }
  return tabla;
}

Tabla TablaSistemasCaso(const Edificio& edificio) {
  Tabla tabla;
  tabla.titulo = "Sistemas";
  tabla.cabeceras = {"Nombre", "Servicios", "Generador"};
  for (std::size_t i = 0; i < edificio.NumeroSistemas(); ++i) {
    const SistemaResidencial& sistema = edificio.GetSistema(i);
    const std::string generador =
        sistema.instalaciones.empty() ? std::string() : sistema.instalaciones[0].Seleccion;
    tabla.filas.push_back({sistema.Nombre_sistema, sistema.Tipo_sistema, generador});
  }
  return tabla;
}

std::vector<Tabla> TablasProyecto(const std::string& nombreCaso, const Edificio& edificio) {
  std::vector<Tabla> tablas = {TablaEdificio(nombreCaso, edificio)};
  for (Tabla& tabla : std::array{TablaEnvolventeCaso(edificio), TablaHuecosCaso(edificio),
                                 TablaSistemasCaso(edificio)})
    tablas.push_back(std::move(tabla));
  return tablas;
}

}  // namespace novex
