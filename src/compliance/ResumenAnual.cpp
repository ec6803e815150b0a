#include "compliance/ResumenAnual.h"

#include "base/NumeroTexto.h"
#include "compliance/Meses.h"
#include "rating/Escala.h"

namespace novex {
namespace {

struct ServicioMostrado {
  Servicio servicio;
  const char* nombre;  // en los textos
  const char* serie;   // en los gráficos
};
constexpr std::array<ServicioMostrado, kServicios> kMostrados = {
    {{kCalefaccion, "Calefaccion ", "Calefacción"},
     {kRefrigeracion, "Refrigeracion ", "Refrigeración"},
     {kACS, "ACS ", "ACS"},
     {kVentilacion, "Ventilacion ", "Ventilación"},
     {kIluminacion, "Iluminacion ", "Iluminación"}}};

// Textos de cada unidad en las líneas del año.
struct TextosUnidad {
  const char* porServicio;
  const char* total;
  const char* porArea;
  const char* deEdificio;
};
constexpr std::array<TextosUnidad, kUnidadesEnergia> kTextos = {
    {{"Energia Final por servicio (kWh/m2 año):  ", "Energia Final Total: ", " (kWh/m2 año)",
      " (kWh/año)"},
     {"Energia Primaria por servicio (kWh/m2 año):  ", "Energia Primaria Total: ", " (kWh/m2 año)",
      " (kWh/año)"},
     {"Energia Primaria No Renovable por servicio (kWh/m2 año):  ",
      "Energia Primaria No Renovable Total: ", " (kWh/m2 año)", " (kWh/año)"},
     {"Energia Primaria Renovable por servicio (kWh/m2 año):  ",
      "Energia Primaria Renovable Total: ", " (kWh/m2 año)", " (kWh/año)"},
     {"Emisiones CO2 por servicio (kg CO2/m2 año):  ", "Emisiones CO2 Total: ", " (kg CO2/m2 año)",
      " (kg CO2/año)"}}};

std::string Cifra(float valor) {
  return Fijo(static_cast<double>(valor), 2);
}

float Cociente(float dividendo, float divisor) {
  return divisor == 0.0F ? 0.0F : dividendo / divisor;
}

bool SeMuestra(Servicio servicio, const Edificio& edificio) {
  return servicio != kIluminacion || !edificio.GetDatosGenerales().EsResidencial();
}

// ¿Está la refrigeración en los totales?
bool CuentaRefrigeracion(const Edificio& edificio) {
  return !SinRefrigeracionCalificada(edificio) ||
         edificio.GetDatosGenerales().Tiposimulacion == "Simulacion";
}

bool EstaEnTotales(Servicio servicio, const Edificio& edificio) {
  return SeMuestra(servicio, edificio) &&
         (servicio != kRefrigeracion || CuentaRefrigeracion(edificio));
}

// Demanda positiva de un mes, o del año con 0, kWh/m2.
float Demanda(const calculo& caso, Servicio servicio, std::size_t m) {
  const float valor = caso.meses.demanda[servicio][m];
  return servicio == kCalefaccion ? 0.0F - valor : valor;
}

std::string LineaDemanda(const ResumenAnual& r, const char* unidad, float factor) {
  return std::string("Demanda sensible por servicio (") + unidad + "):   Calef. " +
         Cifra(r.demanda[kCalefaccion] * factor) + "    Refrig. " +
         Cifra(r.demanda[kRefrigeracion] * factor) + "    ACS(neta) " +
         Cifra(r.demanda[kACS] * factor);
}

void LineasUnidad(const Edificio& edificio, std::size_t unidad, ResumenAnual& r) {
  const TextosUnidad& t = kTextos[unidad];
  std::string linea = t.porServicio;
  for (const auto& [servicio, nombre, serie] : kMostrados) {
    if (!SeMuestra(servicio, edificio)) continue;
    if (servicio != kMostrados.front().servicio) linea += "    ";
    linea += nombre + Cifra(r.porServicio[unidad][servicio]);
  }
  r.lineas.push_back(std::move(linea));
  r.lineas.push_back(t.total + Cifra(r.total[unidad]) + t.porArea + " que supone un total de " +
                     Cifra(r.total[unidad] * r.superficie) + t.deEdificio);
}

void Lineas(const Edificio& edificio, ResumenAnual& r) {
  r.lineas = {LineaDemanda(r, "kWh/año", r.superficie), LineaDemanda(r, "kWh/m2 año", 1)};
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u) LineasUnidad(edificio, u, r);
  r.lineas.push_back("Eficiencia ACS = " + Cifra(r.eficiencia[kACS]) +
                     " (%)      Eficiencia Calefacción = " + Cifra(r.eficiencia[kCalefaccion]) +
                     " (%)     Eficiencia Refrigeración = " + Cifra(r.eficiencia[kRefrigeracion]) +
                     " (%)");
  r.lineas.push_back("Eficiencia total = Demanda total / Energia final total = " +
                     Cifra(r.eficienciaFinal));
  r.lineas.push_back("Eficiencia total = Demanda total / Energia primaria total = " +
                     Cifra(r.eficienciaPrimaria));
  if (!CuentaRefrigeracion(edificio))
    r.lineas.push_back("No se contabiliza refrigeración por estar en zona " +
                       edificio.GetLocalizacion().ZonaClimatica);
}

Grafico GraficoPorMeses(std::string titulo, std::string unidad) {
  Grafico g;
  g.titulo = std::move(titulo);
  g.posiciones.assign(kMesesCortos.begin(), kMesesCortos.end());
  g.ejeX = "Mes";
  g.ejeY = std::move(unidad);
  return g;
}

// Serie de doce meses. \param valor da el del mes m, de 1 a 12
template <class Valor>
SerieGrafico Serie(const char* nombre, Valor valor) {
  SerieGrafico serie{nombre, {}};
  for (std::size_t m = 1; m <= kMesesCortos.size(); ++m)
    serie.valores.push_back(static_cast<double>(valor(m)));
  return serie;
}

// La unidad de la energía de un resultado que no es la demanda.
std::size_t UnidadDe(TipoResultado tipo) {
  return static_cast<std::size_t>(tipo) - static_cast<std::size_t>(TipoResultado::EnergiaFinal);
}

std::string Texto(TipoResultado tipo) {
  return std::string(kTextoTipoResultado[static_cast<std::size_t>(tipo)]);
}

}  // namespace

ResumenAnual ResumirAno(const Edificio& edificio, const calculo& caso) {
  const ResultadosCaso& resultados = caso.resultados;
  ResumenAnual r;
  r.superficie = edificio.GetRecinto(0).Suelo_habitable_m2;
  r.demanda[kACS] = resultados.demandaACS;
  r.demanda[kCalefaccion] = resultados.demandaCalefaccion;
  r.demanda[kRefrigeracion] = resultados.demandaRefrigeracion;
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    for (std::size_t s = 0; s < kServicios; ++s)
      r.porServicio[u][s] = resultados.servicio[s].porUnidad[u][0];
  r.total = resultados.total;
  float demandaTotal = 0;
  for (const Servicio s : {kACS, kCalefaccion, kRefrigeracion}) {
    r.eficiencia[s] = 100.0F * Cociente(r.demanda[s], r.porServicio[kFinal][s]);
    if (EstaEnTotales(s, edificio)) demandaTotal += r.demanda[s];
  }
  r.eficienciaFinal = Cociente(demandaTotal, r.total[kFinal]);
  r.eficienciaPrimaria = Cociente(demandaTotal, r.total[kPrimariaTotal]);
  Lineas(edificio, r);
  return r;
}

Grafico GraficoMensual(const Edificio& edificio, const calculo& caso, TipoResultado tipo) {
  const bool demanda = tipo == TipoResultado::Demanda;
  Grafico g = GraficoPorMeses(std::string(kTituloGraficoMensual) + ": " + Texto(tipo),
                              tipo == TipoResultado::Emisiones ? "kg CO2/m2" : "kWh/m2");
  for (const auto& [servicio, nombre, serie] : kMostrados) {
    if (!SeMuestra(servicio, edificio) || (demanda && servicio >= kServiciosDemanda)) continue;
    g.series.push_back(Serie(serie, [&, s = servicio](std::size_t m) {
      return demanda ? Demanda(caso, s, m)
                     : caso.resultados.servicio[s].porUnidad[UnidadDe(tipo)][m];
    }));
  }
  return g;
}

Grafico GraficoEficiencia(const Edificio& edificio, const calculo& caso, TipoResultado tipo) {
  Grafico g =
      GraficoPorMeses(std::string(kTituloGraficoEficiencia) + ": demanda / " + Texto(tipo), "%");
  if (tipo == TipoResultado::Demanda || tipo == TipoResultado::Emisiones) return g;
  const auto energia = [&](Servicio s, std::size_t m) {
    return caso.resultados.servicio[s].porUnidad[UnidadDe(tipo)][m];
  };
  for (const auto& [servicio, nombre, serie] : kMostrados)
    if (servicio < kServiciosDemanda)
      g.series.push_back(Serie(serie, [&, s = servicio](std::size_t m) {
        return 100.0F * Cociente(Demanda(caso, s, m), energia(s, m));
      }));
  g.series.push_back(Serie("Total", [&](std::size_t m) {
    float demanda = 0, total = 0;
    for (const auto& [servicio, nombre, serie] : kMostrados) {
      if (!EstaEnTotales(servicio, edificio)) continue;
      if (servicio < kServiciosDemanda) demanda += Demanda(caso, servicio, m);
      total += energia(servicio, m);
    }
    return 100.0F * Cociente(demanda, total);
  }));
  return g;
}

}  // namespace novex
