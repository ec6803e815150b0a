#include "systems/DemandaACS.h"

#include <array>
#include <string_view>
#include <utility>

#include "systems/ClasesSistema.h"

namespace novex {
namespace {

// Litros por persona y día a 60 °C de cada actividad.
constexpr std::pair<std::string_view, float> kLitros[] = {{"Hospitales y clínicas", 55},
                                                          {"Ambulatorio y centro de salud", 41},
                                                          {"Hotel *****", 69},
                                                          {"Hotel ****", 55},
                                                          {"Hotel ***", 41},
                                                          {"Hotel/hostal **", 34},
                                                          {"Camping", 21},
                                                          {"Hostal/pensión *", 28},
                                                          {"Residencia", 41},
                                                          {"Centro penitenciario", 28},
                                                          {"Albergue", 24},
                                                          {"Vestuarios/Duchas colectivas", 21},
                                                          {"Escuela sin ducha", 4},
                                                          {"Escuela con ducha", 21},
                                                          {"Cuarteles", 28},
                                                          {"Fábricas y talleres", 21},
                                                          {"Oficinas", 2},
                                                          {"Gimnasios", 21},
                                                          {"Restaurantes", 8},
                                                          {"Cafeterías", 1},
                                                          {"Otros", 0}};
constexpr float kLitrosSiNo = 55;
constexpr float kLitrosVivienda = 28;

}  // namespace

float PersonasVivienda(int dormitorios) {
  constexpr std::array<float, 8> kPersonas = {0, 1.5F, 3, 4, 5, 6, 6, 7};
  if (dormitorios <= 0) return 0;
  return dormitorios >= 7 ? kPersonas.back() : kPersonas[static_cast<std::size_t>(dormitorios)];
}

float PersonasTotales(const Ventilacion& ventilacion) {
  float total = 0;
  for (const TipologiaVivienda& t : ventilacion.tipologias)
    total += static_cast<float>(t.N_viviendas) * PersonasVivienda(t.N_dormitorios_dobles);
  return total;
}

float FactorCentralizacion(int viviendas) {
  constexpr std::pair<int, float> kTramos[] = {{3, 1.0F},   {10, 0.95F}, {20, 0.9F},
                                               {50, 0.85F}, {75, 0.8F},  {100, 0.75F}};
  for (const auto& [hasta, factor] : kTramos)
    if (viviendas <= hasta) return factor;
  return 0.7F;
}

std::vector<std::string_view> ActividadesACS() {
  std::vector<std::string_view> actividades;
  for (const auto& [actividad, litros] : kLitros) actividades.push_back(actividad);
  return actividades;
}

float VolumenReferencia(const Edificio& edificio) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  if (g.EsResidencial())
    return kLitrosVivienda * PersonasTotales(edificio.GetVentilacion()) *
           FactorCentralizacion(edificio.GetVentilacion().NumeroViviendas());
  float litros = kLitrosSiNo;
  for (const auto& [actividad, valor] : kLitros)
    if (actividad == g.Actividad) litros = valor;
  return g.Nm2_p > 0.0F ? edificio.GetRecinto(0).Suelo_habitable_m2 / g.Nm2_p * litros : 0.0F;
}

FactoresVivienda FactoresDeVivienda(const Edificio& edificio, const Instalaciones& bloque) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  const Ventilacion& v = edificio.GetVentilacion();
  FactoresVivienda f;
  if (bloque.TipoInstalacionesG != "Individual/Vivienda" || g.PerfilUso == 0) return f;
  if (g.PerfilUso == 1) {
    const auto tipo = static_cast<std::size_t>(bloque.Nradiadores);
    const float total = PersonasTotales(v);
    if (bloque.Nradiadores >= 0 && tipo < kTipologias && total > 0.0F)
      f.f1 = static_cast<double>(PersonasVivienda(v.tipologias[tipo].N_dormitorios_dobles)) /
             static_cast<double>(total);
    f.f2 = std::max(1, v.NumeroViviendas());
  } else if (g.PerfilUso == 2) {
    f.f2 = g.NVBloqueF > 0.0F ? static_cast<double>(g.NVBloqueF) : 1.0;
  } else {
    int equipos = 0;
    for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s)
      if (DaACS(TipoSistemaDe(edificio.GetSistema(s).Tipo_sistema)))
        for (const Instalaciones& i : edificio.GetSistema(s).instalaciones) equipos += i.NEquipos;
    if (equipos > 0) f.f1 = 1.0 / equipos;
  }
  return f;
}

}  // namespace novex
