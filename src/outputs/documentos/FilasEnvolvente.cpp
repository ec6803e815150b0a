#include "outputs/documentos/FilasEnvolvente.h"

#include <algorithm>
#include <numeric>
#include <span>

#include "base/NumeroTexto.h"
#include "model/ListasHuecos.h"
#include "outputs/documentos/VariablesCalificacion.h"

namespace novex {
namespace {

using namespace ranura;

constexpr const char* kPorComposicion = "En función de su composición";
constexpr const char* kPorUsuario = "Definido por el usuario";
constexpr std::string_view kDefectoExistentes = "Defecto existentes. ";
constexpr std::array<std::string_view, 5> kClasesDefecto = {
    "Hoja simple ligera", "Hoja simple pesada", "Doble hoja", "No ventilada", "Ventilada"};
// Composición que no es ninguna.
constexpr std::string_view kNulo = "Nulo";

constexpr std::array<const char*, kSectores> kOrientacion = {"N", "O", "SO", "S", "SE", "E"};
constexpr float kJulioKilojulio = 0.001F;

std::string AreaU(float valor) {
  return FijoCifras(static_cast<double>(valor), 5, 1);
}

bool SinNombre(const composicion& c) {
  return c.nombre.empty() || c.nombre == composicion::kNoDefinido || c.nombre == kNulo;
}

MC_CAPA FilaCapa(const material& m) {
  return {TextoHtml(m.Material),
          CifraDocumento(m.Conductividad),
          CifraDocumento(m.Densidad),
          CifraDocumento(m.CalorEspecifico * kJulioKilojulio),
          CifraDocumento(m.Resisvidad_relativa_vapor),
          CifraDocumento(m.Resistencia_termica),
          CifraDocumento(m.Espesor)};
}

class Cerramientos {
 public:
  Cerramientos(const CasoCalculado& caso, NOVEX_TO_MODELOCERTIFICADO& modelo)
      : caso_(caso), modelo_(modelo) {}

  void Anadir(const std::string& tipo, float area, std::size_t ranura) {
    if (area == 0.0F) return;
    const composicion& c = caso_.edificio->GetComposicion(ranura);
    modelo_.cerramientos.push_back({TextoHtml(tipo),
                                    AreaU(area),
                                    AreaU(caso_.resultado->resultados.Uefectiva[ranura]),
                                    ModoDefinicion(c),
                                    SinNombre(c) ? std::string() : TextoHtml(c.nombre),
                                    {}});
    AnadirComposicion(c);
  }

  /// Una familia sin orientación: un área por tipo.
  void Familia(const char* tipo, std::span<const float> areas,
               std::initializer_list<Ranura> ranuras) {
    for (std::size_t i = 0; i < areas.size(); ++i) Anadir(tipo, areas[i], ranuras.begin()[i]);
  }

  /// Una familia con orientación. \param prefijo lo que va delante de la orientación
  void PorOrientacion(const char* tipo, const char* prefijo, std::span<const PorSector> areas,
                      std::initializer_list<Ranura> ranuras) {
    for (std::size_t i = 0; i < areas.size(); ++i)
      for (std::size_t s = 0; s < kSectores; ++s)
        Anadir(std::string(tipo) + " " + prefijo + kOrientacion[s], areas[i][s],
               ranuras.begin()[i]);
  }

 private:
  void AnadirComposicion(const composicion& c) {
    if (SinNombre(c) && c.capas.empty()) return;
    const std::string nombre = TextoHtml(c.nombre);
    auto& lista = modelo_.composiciones;
    MC_CERRAMIENTO fila;
    fila.composicion = nombre;
    for (const material* capa : c.capas) fila.capas.push_back(FilaCapa(*capa));
    // Dos cerramientos pueden llevar el mismo nombre con capas distintas.
    const auto esLaMisma = [&](const MC_CERRAMIENTO& otra) {
      return otra.composicion == nombre && otra.capas == fila.capas;
    };
    if (std::none_of(lista.begin(), lista.end(), esLaMisma)) lista.push_back(std::move(fila));
  }

  const CasoCalculado& caso_;
  NOVEX_TO_MODELOCERTIFICADO& modelo_;
};

// Clases de vidrio con factor solar propio.
constexpr std::array<float, 5> kFactorSolarClase = {0.85F, 0.75F, 0.7F, 0.7F, 0.7F};
constexpr std::array<const char*, 4> kClaseHueco = {"Ventanas", "Puertas", "Lucernario",
                                                    "Escaparate"};

template <class Lista>
std::string TextoDe(const Lista& lista, int posicion) {
  const auto i = static_cast<std::size_t>(posicion);
  return posicion >= 0 && i < lista.size() ? std::string(lista[i]) : std::string();
}

std::string DefinicionVidrio(const Huecos& grupo) {
  const auto clase = static_cast<std::size_t>(grupo.Indice_tipo_cristal);
  const bool conocida = grupo.Indice_tipo_cristal >= 0 && clase < kFactorSolarClase.size();
  return conocida && grupo.FS_cristal_tanto_por_uno == kFactorSolarClase[clase]
             ? "Función de su composición"
             : "Definido por usuario";
}

// Un lucernario en una columna de fachada está en un faldón.
std::string OrientacionHueco(const Huecos& grupo, std::size_t columna) {
  if (columna == kColumnaHorizontal) return "Hz";
  return (grupo.Tipo_de_hueco == kLucernario ? "30º" : "") + std::string(kOrientacion[columna]);
}

}  // namespace

std::string ModoDefinicion(const composicion& cerramiento) {
  std::string_view clase = cerramiento.nombre;
  if (clase.starts_with(kDefectoExistentes)) clase.remove_prefix(kDefectoExistentes.size());
  if (std::find(kClasesDefecto.begin(), kClasesDefecto.end(), clase) != kClasesDefecto.end())
    return std::string(kDefectoExistentes) + std::string(clase);
  if (!cerramiento.capas.empty()) return kPorComposicion;
  return cerramiento.U > 0.0F ? kPorUsuario : composicion::kNoDefinido;
}

void FilasCerramientos(const CasoCalculado& caso, NOVEX_TO_MODELOCERTIFICADO& modelo) {
  const Recinto& r = caso.edificio->GetRecinto(0);
  Cerramientos filas(caso, modelo);
  filas.Familia("Cubierta Hz Exterior", r.Cubierta_horiz_sol_m2, {TechoExt1, TechoExt2, TechoExt3});
  filas.PorOrientacion("Cubierta Incl. Exterior", "30º", r.Cubierta_incl_m2,
                       {TechoInc1, TechoInc2, TechoInc3});
  filas.Familia("Cubierta a buhardilla", r.Cubierta_techo_ventilado_m2, {TechoVent1, TechoVent3});
  filas.Familia("Cubierta a terreno", r.Cubierta_terreno_m2, {TechoTerr1, TechoTerr2});
  filas.Familia("Cubierta adiabática", r.Cubierta_adiabatico_m2, {TechoOtro1, TechoOtro2});
  filas.PorOrientacion("Muro Exterior", "", r.Muro_ext_m2,
                       {MuroExt1, MuroExt2, MuroExt3, MuroExt4, MuroExt5});
  filas.Familia("Muro a local no acond.", r.Muro_otro_local_m2, {MuroOtro3, MuroOtro7});
  filas.Familia("Muro a terreno", r.Muro_al_terreno_m2, {MuroTerr1, MuroTerr2});
  filas.Familia("Muro adiabático", r.Muro_adiabatico_m2, {MuroOtro1, MuroOtro5});
  filas.Familia("Suelo al terreno", r.Suelo_al_terreno_m2, {SueloTerr1, SueloTerr2, SueloTerr3});
  filas.Familia("Suelo al exterior", r.Suelo_ext_m2, {SueloExt1, SueloExt2});
  filas.Familia("Suelo a local no acond.", r.Suelo_otro_local_m2, {SueloVent1, SueloVent3});
  filas.Familia("Suelo a vacio sanitario", r.Suelo_vacio_sanitario_m2, {SueloOtro1, SueloOtro3});
  filas.Familia("Suelo adiabático", r.Suelo_adiabatico_m2, {SueloOtro2, SueloOtro4});
}

void FilasHuecos(const Edificio& edificio, NOVEX_TO_MODELOCERTIFICADO& modelo) {
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& grupo = edificio.GetHuecos(i);
    for (const std::size_t columna :
         {std::size_t{norte}, std::size_t{oeste}, std::size_t{sur_oeste}, std::size_t{sur},
          std::size_t{sur_este}, std::size_t{este}, kColumnaHorizontal}) {
      const std::size_t unidades = grupo.columnas[columna].recintos.size();
      if (unidades == 0) continue;
      const float area = grupo.Ancho_m * grupo.Alto_m * static_cast<float>(unidades);
      modelo.huecos.push_back(
          {"Grupo " + std::to_string(i + 1), TextoDe(kClaseHueco, grupo.Tipo_de_hueco),
           TextoHtml(TextoDe(listaHuecos::kCristales, grupo.Indice_tipo_cristal)),
           CifraDocumento(grupo.U_marco_W_m2K), CifraDocumento(grupo.U_cristal_W_m2K),
           CifraDocumento(grupo.FS_cristal_tanto_por_uno), DefinicionVidrio(grupo),
           OrientacionHueco(grupo, columna) + " " + CifraDocumento(area)});
    }
  }
}

void FilasPuentes(const Construccion& construccion, NOVEX_TO_MODELOCERTIFICADO& modelo) {
  const auto fila = [&](const char* clase, Puente puente, float longitud) {
    modelo.puentes.push_back({"", TextoHtml(clase),
                              CifraDocumento(construccion.U_L_Puentes[puente]),
                              CifraDocumento(longitud), "SDINT"});
  };
  const Construccion& c = construccion;
  const float pilares = std::accumulate(c.Long_pilares.begin(), c.Long_pilares.end(), 0.0F);
  fila("FRENTE_FORJADO", puente_forjados, c.Perimetro_forjados);
  fila("UNION_CUBIERTA", puente_cubiertas, c.Perimetro_cubiertas);
  fila("ESQUINA_CONVEXA_FORJADO", puente_suelo_exterior, c.Perimetro_suelo_ext);
  fila("ESQUINA_CONCAVA_CERRAMIENTO", puente_esquina_saliente, c.Longitud_esquinas_sal_menos_ent);
  fila("ESQUINA_CONVEXA_CERRAMIENTO", puente_esquina_saliente, c.Longitud_esquinas_sal_menos_ent);
  fila("PILAR", puente_pilares, pilares);
  fila("UNION_SOLERA_PAREDEXT", puente_suelo_terreno, c.Perimetro_suelo_terreno);
  fila("HUECO_VENTANA", puente_ventanas, c.Perimetro_huecos);
}

}  // namespace novex
