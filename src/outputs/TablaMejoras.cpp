#include "outputs/TablaMejoras.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "outputs/JsonTabla.h"
#include "outputs/ReglasResultados.h"
#include "rating/Escala.h"

namespace novex {
namespace {

using Json = nlohmann::ordered_json;
using C = CifraMedida;

float Demanda(const ResultadoMedida& m) {
  return m[C::DemandaCale] + m[C::DemandaRef];
}

const std::string& LetraDe(const ResultadoMedida& m, Indicador indicador) {
  return m.letras[static_cast<std::size_t>(indicador)];
}

// "C", o "C → B" si cambia.
std::string Cambio(const std::string& base, const std::string& letra) {
  return base == letra ? letra : base + " → " + letra;
}

std::string Porcentaje(float base, float valor) {
  const auto ahorro = Ahorro(static_cast<double>(base), static_cast<double>(valor));
  return Fijo(ahorro.value_or(0), 1) + " %";
}

std::string TextoDe(int codigo) {
  const MedidaPredefinida* medida = MedidaDeCodigo(codigo);
  return medida != nullptr ? medida->texto : "El caso como está";
}

Json DeMedida(const ResultadoMedida& m) {
  Json cifras, letras = Json::object();
  for (std::size_t i = 0; i < kCifrasMedida; ++i)
    cifras[std::string(ClaveCifra(static_cast<C>(i)))] = CincoCifras(m.cifras[i]);
  for (std::size_t i = 0; i < kIndicadores; ++i)
    if (!m.letras[i].empty())
      letras[std::string(ClaveIndicador(static_cast<Indicador>(i)))] = m.letras[i];
  return Json{{"codigo", m.codigo},
              {"texto", TextoDe(m.codigo)},
              {"cifras", std::move(cifras)},
              {"letras", std::move(letras)}};
}

}  // namespace

std::vector<ResultadoMedida> PorAhorro(std::vector<ResultadoMedida> medidas) {
  std::stable_sort(medidas.begin(), medidas.end(), [](const auto& a, const auto& b) {
    const float x = a[C::EnergiaPrimariaTotal], y = b[C::EnergiaPrimariaTotal];
    return x != y ? x < y : a.codigo < b.codigo;
  });
  return medidas;
}

Tabla TablaMejoras(const ResultadoMedida& base, const std::vector<ResultadoMedida>& medidas) {
  Tabla tabla;
  tabla.titulo = "Mejoras, por m² y año: ahorro frente al caso como está";
  tabla.cabeceras = {"",       "Código",    "Demanda", "Ahorro",   "E.prim.no renov.",
                     "Ahorro", "Emisiones", "Ahorro",  "Letra EP", "Letra CO2",
                     "Medida"};
  const auto cifra = [](float x) { return Celda::Numero(static_cast<double>(x), 2); };
  const auto fila = [&](const ResultadoMedida& m, bool esBase) {
    const std::string ep =
        Cambio(LetraDe(base, Indicador::EPriNoRTotales), LetraDe(m, Indicador::EPriNoRTotales));
    const std::string co2 =
        Cambio(LetraDe(base, Indicador::EmisionesTotales), LetraDe(m, Indicador::EmisionesTotales));
    const bool cambia = ep.find(' ') != std::string::npos || co2.find(' ') != std::string::npos;
    tabla.filas.push_back(
        {cambia && !esBase ? "*" : "", Celda::Numero(m.codigo, 0), cifra(Demanda(m)),
         esBase ? "" : Porcentaje(Demanda(base), Demanda(m)), cifra(m[C::EnergiaPrimariaTotal]),
         esBase ? "" : Porcentaje(base[C::EnergiaPrimariaTotal], m[C::EnergiaPrimariaTotal]),
         cifra(m[C::EmisionesTotal]),
         esBase ? "" : Porcentaje(base[C::EmisionesTotal], m[C::EmisionesTotal]), ep, co2,
         TextoDe(m.codigo)});
  };
  fila(base, true);
  for (const ResultadoMedida& m : medidas) fila(m, false);
  tabla.notas = {"* cambia alguna letra"};
  return tabla;
}

std::string JsonMejoras(const std::string& proyecto, const std::string& nombreCaso,
                        const ResultadoMedida& base, const std::vector<ResultadoMedida>& medidas) {
  Json documento;
  documento["proyecto"] = proyecto;
  documento["caso"] = nombreCaso;
  documento["base"] = DeMedida(base);
  documento["medidas"] = Json::array();
  for (const ResultadoMedida& m : medidas) documento["medidas"].push_back(DeMedida(m));
  return documento.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace novex
