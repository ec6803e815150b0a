#include "outputs/ComparacionCasos.h"

#include "model/GestorEdifActivo.h"
#include "outputs/ReglasResultados.h"

namespace novex {
namespace {

struct ServicioComparado {
  std::optional<Servicio> servicio;  // vacío: el total
  const char* largo;
  const char* corto;
};
constexpr std::array<ServicioComparado, kServicios + 1> kComparados = {
    {{kCalefaccion, "Calefacción", "Calef."},
     {kRefrigeracion, "Refrigeración", "Refrig."},
     {kACS, "ACS", "ACS"},
     {kVentilacion, "Ventilación", "Vent."},
     {kIluminacion, "Iluminación", "Ilum."},
     {std::nullopt, "Totales", "Totales"}}};

std::string Titulo(const ServicioComparado& s, UnidadEnergia unidad) {
  switch (unidad) {
    case kFinal:
      return std::string("Energía final ") + s.largo;
    case kPrimariaTotal:
      return std::string("E.primaria total ") + s.corto;
    case kPrimariaNoRenovable:
      return std::string("E.primaria no renov.") + s.corto;
    case kPrimariaRenovable:
      return std::string("E.primaria renov. ") + s.corto;
    case kEmisiones:
      break;
  }
  return std::string("Emisiones ") + s.largo;
}

std::string Eje(UnidadEnergia unidad, TipoValor tipo) {
  if (tipo == TipoValor::Ahorro) return "Porcentaje ahorro";
  return unidad == kEmisiones ? "kgCO2/m2año" : "kWh/m2año";
}

double Valor(const CasoCalculado& caso, std::optional<Servicio> servicio, UnidadEnergia unidad) {
  const ResultadosCaso& r = caso.resultado->resultados;
  return static_cast<double>(servicio ? r.servicio[*servicio].porUnidad[unidad][0]
                                      : r.total[unidad]);
}

std::string NombreBarra(const CasoCalculado& caso) {
  return caso.nombre == novex::caso::kViejo ? "Actual" : caso.nombre;
}

GraficoComparacion Comparar(const std::vector<CasoCalculado>& casos, const ServicioComparado& s,
                            UnidadEnergia unidad, TipoValor tipo) {
  const CasoCalculado* base = CasoBase(casos);
  const auto indicador =
      IndicadorDe(s.servicio, unidad, casos.front().edificio->GetDatosGenerales().EsResidencial());
  GraficoComparacion comparacion;
  Grafico& g = comparacion.grafico;
  g.titulo = Titulo(s, unidad);
  g.ejeY = Eje(unidad, tipo);
  g.series = {{g.titulo, {}}};
  for (const CasoCalculado& caso : casos) {
    const double valor = Valor(caso, s.servicio, unidad);
    g.posiciones.push_back(NombreBarra(caso));
    const double valorBase = base != nullptr ? Valor(*base, s.servicio, unidad) : 0.0;
    g.series.front().valores.push_back(
        tipo == TipoValor::Ahorro ? Ahorro(valorBase, valor).value_or(0) : valor);
    const std::string letra = indicador ? LetraMostrada(*indicador, caso) : std::string();
    if (!letra.empty()) comparacion.letras.push_back(g.posiciones.back() + ": " + letra);
  }
  return comparacion;
}

}  // namespace

std::string GraficoComparacion::LineaLetras() const {
  std::string linea;
  for (const std::string& letra : letras) linea += (linea.empty() ? "" : "   ") + letra;
  return linea;
}

std::vector<GraficoComparacion> CompararCasos(const std::vector<CasoCalculado>& casos,
                                              UnidadEnergia unidad, TipoValor tipo) {
  std::vector<GraficoComparacion> graficos;
  if (casos.empty()) return graficos;
  const bool residencial = casos.front().edificio->GetDatosGenerales().EsResidencial();
  for (const ServicioComparado& s : kComparados)
    if (s.servicio != kIluminacion || !residencial)
      graficos.push_back(Comparar(casos, s, unidad, tipo));
  return graficos;
}

}  // namespace novex
