#include "outputs/TablaMejoras.h"

#include <algorithm>
#include <limits>
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

Celda Porcentaje(float base, float valor) {
  const double ahorro = Ahorro(static_cast<double>(base), static_cast<double>(valor)).value_or(0);
  Celda celda = Celda::Numero(ahorro, 1);
  celda.texto += " %";
  return celda;
}

// Una cifra tecleada, como se tecleó; sin ella, en blanco.
Celda Tecleada(const std::string& texto) {
  double valor = 0;
  if (!LeerReal(texto, valor) || valor == 0.0) return {};
  Celda celda(texto);
  celda.numero = valor;
  return celda;
}

const MedidaEstudio* Anotada(const EstudioModificaciones& estudio, int codigo) {
  const auto it = std::find_if(estudio.medidas.begin(), estudio.medidas.end(),
                               [=](const MedidaEstudio& m) { return m.codigo == codigo; });
  return it == estudio.medidas.end() || !it->marca ? nullptr : &*it;
}

// Lo que ordena una medida: lo menor va delante.
double Peso(const ResultadoMedida& m, CriterioMejoras criterio,
            const EstudioModificaciones& estudio) {
  switch (criterio) {
    case CriterioMejoras::PrimariaNoRenovable:
      return static_cast<double>(m[C::EnergiaPrimariaTotal]);
    case CriterioMejoras::Demanda:
      return static_cast<double>(Demanda(m));
    case CriterioMejoras::EnergiaFinal:
      return static_cast<double>(m[C::EnergiaFinalTotal]);
    case CriterioMejoras::Emisiones:
      return static_cast<double>(m[C::EmisionesTotal]);
    case CriterioMejoras::Coste: {
      const MedidaEstudio* anotada = Anotada(estudio, m.codigo);
      const Celda coste = anotada == nullptr ? Celda() : Tecleada(anotada->precio);
      return coste.numero.value_or(std::numeric_limits<double>::infinity());
    }
    case CriterioMejoras::Codigo:
      break;
  }
  return m.codigo;
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

std::vector<ResultadoMedida> OrdenarMejoras(std::vector<ResultadoMedida> medidas,
                                            CriterioMejoras criterio,
                                            const EstudioModificaciones& estudio) {
  std::stable_sort(medidas.begin(), medidas.end(), [&](const auto& a, const auto& b) {
    const double x = Peso(a, criterio, estudio), y = Peso(b, criterio, estudio);
    return x != y ? x < y : a.codigo < b.codigo;
  });
  return medidas;
}

Tabla TablaMejoras(const ResultadoMedida& base, const std::vector<ResultadoMedida>& medidas,
                   const EstudioModificaciones& estudio) {
  Tabla tabla;
  tabla.titulo = "Mejoras, por m² y año: ahorro frente al caso como está";
  tabla.cabeceras = {"",         "Código",           "Demanda", "Ahorro",    "E.final",
                     "Ahorro",   "E.prim.no renov.", "Ahorro",  "Emisiones", "Ahorro",
                     "Letra EP", "Letra CO2",        "Coste €", "Años",      "Medida"};
  const auto fila = [&](const ResultadoMedida& m, bool esBase) {
    const MedidaEstudio* anotada = esBase ? nullptr : Anotada(estudio, m.codigo);
    auto& celdas = tabla.filas.emplace_back();
    celdas = {anotada != nullptr ? "*" : "", Celda::Numero(m.codigo, 0)};
    const auto cifra = [&](float suya, float deBase) {
      celdas.push_back(Celda::Numero(static_cast<double>(suya), 2));
      celdas.push_back(esBase ? Celda() : Porcentaje(deBase, suya));
    };
    cifra(Demanda(m), Demanda(base));
    for (const C total : {C::EnergiaFinalTotal, C::EnergiaPrimariaTotal, C::EmisionesTotal})
      cifra(m[total], base[total]);
    for (const Indicador letra : {Indicador::EPriNoRTotales, Indicador::EmisionesTotales})
      celdas.emplace_back(Cambio(LetraDe(base, letra), LetraDe(m, letra)));
    celdas.push_back(anotada != nullptr ? Tecleada(anotada->precio) : Celda());
    celdas.push_back(anotada != nullptr ? Tecleada(anotada->amortizacion) : Celda());
    celdas.emplace_back(TextoDe(m.codigo));
  };
  fila(base, true);
  for (const ResultadoMedida& m : medidas) fila(m, false);
  tabla.notas = {"* señalada en el estudio"};
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
