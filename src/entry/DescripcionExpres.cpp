#include "entry/DescripcionExpres.h"

#include <utility>
#include <vector>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

// Con coma y sin ceros al final.
std::string Cifra(float valor, int decimales) {
  std::string texto = Fijo(static_cast<double>(valor), decimales);
  if (texto.find('.') != std::string::npos) {
    while (texto.back() == '0') texto.pop_back();
    if (texto.back() == '.') texto.pop_back();
  }
  const std::size_t punto = texto.find('.');
  if (punto != std::string::npos) texto[punto] = ',';
  return texto;
}

std::string MetrosCuadrados(float area) {
  return Cifra(area, 1) + " m²";
}

class Frase {
 public:
  explicit Frase(const Edificio& edificio) : edificio_(edificio) {}

  void Anadir(std::string parte) { partes_.push_back(std::move(parte)); }
  /// Un cerramiento con su área y su transmitancia, si lo hay.
  void Cerramiento(const std::string& nombre, float area, ranura::Ranura ranura) {
    if (area <= 0.0F) return;
    Anadir(nombre + " " + MetrosCuadrados(area) + " (U " +
           Cifra(edificio_.GetComposicion(ranura).U, 2) + ")");
  }
  std::string Unida() const {
    std::string frase;
    for (const std::string& parte : partes_) frase += (frase.empty() ? "" : ", ") + parte;
    return frase + ".";
  }

 private:
  const Edificio& edificio_;
  std::vector<std::string> partes_;
};

float AreaHuecosVerticales(const Edificio& edificio) {
  float area = 0;
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& grupo = edificio.GetHuecos(i);
    for (std::size_t s = 0; s < kSectores; ++s)
      area += static_cast<float>(grupo.columnas[s].recintos.size()) * grupo.Ancho_m * grupo.Alto_m;
  }
  return area;
}

void AnadirFachada(const Edificio& edificio, Frase& frase) {
  const float huecos = AreaHuecosVerticales(edificio);
  float total = huecos;
  for (const float opaco : edificio.GetRecinto(0).Muro_ext_m2[0]) total += opaco;
  if (total <= 0.0F) return frase.Anadir("sin fachada");
  const std::string parte =
      huecos > 0.0F ? " con " + Cifra(100 * huecos / total, 0) + " % de huecos" : " sin huecos";
  frase.Anadir("fachada " + MetrosCuadrados(total) + parte + " (U " +
               Cifra(edificio.GetComposicion(ranura::MuroExt1).U, 2) + ")");
}

void AnadirCerramientos(const Recinto& r, Frase& frase) {
  using namespace ranura;
  frase.Cerramiento("medianeras", r.Muro_adiabatico_m2[0], MuroOtro1);
  frase.Cerramiento("muro a local no acondicionado", r.Muro_otro_local_m2[0], MuroOtro3);
  frase.Cerramiento("cubierta al exterior", r.Cubierta_horiz_sol_m2[0], TechoExt1);
  frase.Cerramiento("cubierta a buhardilla", r.Cubierta_techo_ventilado_m2[0], TechoVent1);
  frase.Cerramiento("cubierta a local acondicionado", r.Cubierta_adiabatico_m2[0], TechoOtro1);
  frase.Cerramiento("suelo al terreno", r.Suelo_al_terreno_m2[0], SueloTerr1);
  frase.Cerramiento("suelo sobre vacío sanitario", r.Suelo_vacio_sanitario_m2[0], SueloOtro1);
  frase.Cerramiento("suelo sobre local no acondicionado", r.Suelo_otro_local_m2[0], SueloVent1);
  frase.Cerramiento("suelo sobre local acondicionado", r.Suelo_adiabatico_m2[0], SueloOtro2);
}

std::string AguaCaliente(const Edificio& edificio) {
  if (edificio.NumeroSistemas() == 0) return "sin instalación de agua caliente";
  const SistemaResidencial& sistema = edificio.GetSistema(edificio.NumeroSistemas() - 1);
  const std::string equipo =
      sistema.instalaciones.empty() ? std::string() : sistema.instalaciones[0].Seleccion;
  return "agua caliente con " + equipo + " para " +
         Cifra(edificio.GetDatosGenerales().ConsumoAgua_litros_dia, 0) + " l/día";
}

}  // namespace

std::string DescribirExpres(const Edificio& edificio) {
  const Recinto& r = edificio.GetRecinto(0);
  Frase frase(edificio);
  frase.Anadir("Edificio de " + MetrosCuadrados(r.Suelo_habitable_m2) + " y " +
               Cifra(r.Volumen_total_m3, 1) + " m³ en " + edificio.GetLocalizacion().ZonaClimatica);
  AnadirFachada(edificio, frase);
  AnadirCerramientos(r, frase);
  frase.Anadir("ventilación de " + Cifra(edificio.GetVentilacion().nrenovventilacion, 2) +
               " renovaciones por hora");
  frase.Anadir(AguaCaliente(edificio));
  const DatosGenerales& d = edificio.GetDatosGenerales();
  if (d.PotPico_FV[0] > 0.0F) frase.Anadir("fotovoltaica de " + Cifra(d.PotPico_FV[0], 2) + " kW");
  return frase.Unida();
}

}  // namespace novex
