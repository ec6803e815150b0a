#include "outputs/JsonResultados.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "outputs/JsonTabla.h"
#include "outputs/ReglasResultados.h"
#include "rating/Escala.h"

namespace novex {
namespace {

using Json = nlohmann::ordered_json;

/// Servicios en el orden en que se escriben.
constexpr std::array<Servicio, kServicios> kOrden = {kCalefaccion, kRefrigeracion, kACS,
                                                     kVentilacion, kIluminacion};

constexpr std::array<std::pair<std::string_view, UnidadEnergia>, kUnidadesEnergia> kBloques = {
    {{"energia_final", kFinal},
     {"energia_primaria_total", kPrimariaTotal},
     {"energia_primaria_no_renovable", kPrimariaNoRenovable},
     {"energia_primaria_renovable", kPrimariaRenovable},
     {"emisiones", kEmisiones}}};

Json Meses(const TablaMensual& tabla, float signo = 1.0F) {
  Json valores = Json::array();
  for (std::size_t m = 1; m <= kMeses; ++m) valores.push_back(CincoCifras(signo * tabla[m]));
  return valores;
}

std::string Clave(Servicio servicio) {
  return std::string(kNombreServicio[servicio]);
}

Json Anuales(const ResultadosCaso& resultados, UnidadEnergia unidad) {
  Json bloque;
  for (const Servicio s : kOrden)
    bloque[Clave(s)] = CincoCifras(resultados.servicio[s].porUnidad[unidad][0]);
  bloque["total"] = CincoCifras(resultados.total[unidad]);
  return bloque;
}

// Las letras de lo que el caso califica: en una simulación libre, ninguna.
Json Letras(const CasoCalculado& caso) {
  Json letras = Json::object();
  const bool residencial = caso.edificio->GetDatosGenerales().EsResidencial();
  for (std::size_t i = 0; i < kIndicadores; ++i) {
    const auto indicador = static_cast<Indicador>(i);
    if (residencial && EsDeIluminacion(indicador)) continue;
    if (std::string letra = LetraMostrada(indicador, caso); !letra.empty())
      letras[std::string(ClaveIndicador(indicador))] = std::move(letra);
  }
  return letras;
}

Json Vectores(const IndicadoresServicio& indicadores) {
  Json vectores = Json::object();
  for (std::size_t v = 0; v < kVectores; ++v) {
    const TablaMensual& tabla = indicadores.finalPorVector[v];
    const bool hay =
        std::any_of(tabla.begin() + 1, tabla.end(), [](float valor) { return valor != 0.0F; });
    if (hay) vectores[std::string(kNombreVector[v])] = Meses(tabla);
  }
  return vectores;
}

Json Mensual(const calculo& caso) {
  Json demanda, final;
  for (const Servicio s : {kCalefaccion, kRefrigeracion, kACS})
    demanda[Clave(s)] = Meses(caso.meses.demanda[s], s == kCalefaccion ? -1.0F : 1.0F);
  for (const Servicio s : kOrden) final[Clave(s)] = Vectores(caso.resultados.servicio[s]);
  return Json{{"demanda", demanda}, {"energia_final", final}};
}

Json DeMensajes(const std::vector<Mensaje>& mensajes) {
  Json lista = Json::array();
  for (const Mensaje& m : mensajes) lista.push_back(Json{{"titulo", m.titulo}, {"texto", m.texto}});
  return lista;
}

Json DeCaso(const CasoCalculado& calculado) {
  const Edificio& edificio = *calculado.edificio;
  const ResultadosCaso& r = calculado.resultado->resultados;
  Json caso;
  caso["caso"] = calculado.nombre;
  caso["zona"] = edificio.GetLocalizacion().ZonaClimatica;
  caso["perfil_uso"] = edificio.GetDatosGenerales().PerfilUso;
  caso["superficie_m2"] = CincoCifras(edificio.GetRecinto(0).Suelo_habitable_m2);
  caso["volumen_m3"] = CincoCifras(edificio.GetRecinto(0).Volumen_total_m3);
  caso["demanda"] = Json{{"calefaccion", CincoCifras(r.demandaCalefaccion)},
                         {"refrigeracion", CincoCifras(r.demandaRefrigeracion)},
                         {"acs", CincoCifras(r.demandaACS)}};
  for (const auto& [nombre, unidad] : kBloques) caso[std::string(nombre)] = Anuales(r, unidad);
  caso["letras"] = Letras(calculado);
  caso["horas_fuera_consigna"] = Json{{"calefaccion", std::lround(r.horasFueraCalefaccion)},
                                      {"refrigeracion", std::lround(r.horasFueraRefrigeracion)}};
  caso["horas_ocupacion"] = std::lround(r.horasOcupacion);
  caso["mensual"] = Mensual(*calculado.resultado);
  caso["mensajes"] = DeMensajes(calculado.mensajes);
  return caso;
}

}  // namespace

std::string JsonResultados(const std::string& proyecto, const std::vector<CasoCalculado>& casos) {
  Json documento;
  documento["proyecto"] = proyecto;
  documento["casos"] = Json::array();
  for (const CasoCalculado& caso : casos) documento["casos"].push_back(DeCaso(caso));
  // Un texto que no fuera UTF-8 no impide dar los números.
  return documento.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace novex
