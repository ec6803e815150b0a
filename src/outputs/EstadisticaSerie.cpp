#include "outputs/EstadisticaSerie.h"

#include "base/NumeroTexto.h"

namespace novex {
namespace {

constexpr int kDecimales = 2;
// Una hora de radiación o de energía es a menudo menor que una centésima.
constexpr int kDecimalesHora = 3;

// "Maximo=20.00 ºC  (15 h 3 Enero)   Minimo=5.00 ºC  (1 h 1 Enero", sin cerrar el paréntesis.
std::string Extremos(const EstadisticaSerie& e, const std::string& unidad, int decimales,
                     double factor = 1.0) {
  return "Maximo=" + Fijo(e.maximo * factor, decimales) + unidad + "  (" + TextoHora(e.horaMaximo) +
         ")   Minimo=" + Fijo(e.minimo * factor, decimales) + unidad + "  (" +
         TextoHora(e.horaMinimo);
}

std::string Media(const EstadisticaSerie& e, const std::string& unidad) {
  return ")  Medio=" + Fijo(e.media, kDecimales) + unidad;
}

const char* PorPeriodo(TipoPeriodo tipo) {
  switch (tipo) {
    case TipoPeriodo::Anual:
      return "año";
    case TipoPeriodo::Mensual:
      return "mes";
    case TipoPeriodo::Semanal:
      return "semana";
    case TipoPeriodo::Diario:
      break;
  }
  return "dia";
}

std::string LineaConsigna(const Serie& serie, const EstadisticaSerie& e) {
  const std::string linea = Extremos(e, " ºC", kDecimales) + ")";
  if (serie.codigo != "DIFT") return linea;
  return linea + "   NhFueraConsigna_Calor= " + std::to_string(e.horasBajoMenosUno) +
         " h      NHFueraConsigna_Frio= " + std::to_string(e.horasSobreUno) + " h";
}

std::string LineaHoras(const Serie& serie, const EstadisticaSerie& e) {
  const char* nombre = serie.codigo == "HBP" ? "   Nh ByPass= " : "   Nh FreeCooling= ";
  return nombre + std::to_string(e.horasMarcadas) + " h";
}

std::string LineaRadiacion(const EstadisticaSerie& e, TipoPeriodo tipo) {
  return Extremos(e, " kWh/m2", kDecimalesHora) + ")  Suma= " + Fijo(e.suma, kDecimales) +
         " kWh/m2 " + PorPeriodo(tipo);
}

std::string LineaEnergia(const Serie& serie, const EstadisticaSerie& e, TipoPeriodo tipo,
                         double superficie) {
  const double factor = serie.unidad == "Wh" ? 0.001 : 1.0;
  const double suma = e.suma * factor;
  std::string linea = Extremos(e, " kWh", kDecimalesHora, factor) +
                      ")  Suma= " + Fijo(suma, kDecimales) + " kWh/" + PorPeriodo(tipo);
  if (superficie > 0.0)
    linea += "   " + Fijo(suma / superficie, kDecimales) + " kWh/m2 " + PorPeriodo(tipo);
  return linea;
}

// Caudales y rendimientos. De un rendimiento, que es 0 en las horas paradas, la media no dice nada.
std::string LineaOtra(const Serie& serie, const EstadisticaSerie& e) {
  if (serie.unidad.empty()) return Extremos(e, "", kDecimales) + ")";
  const std::string unidad = " " + serie.unidad;
  return Extremos(e, unidad, kDecimales) + Media(e, unidad);
}

}  // namespace

EstadisticaSerie ResumirSerie(const Serie& serie, RangoHoras horas) {
  EstadisticaSerie e;
  for (int h = horas.primera; h <= horas.ultima; ++h) {
    const auto v = static_cast<double>(serie.valores.at(static_cast<std::size_t>(h - 1)));
    if (h == horas.primera || v > e.maximo) {
      e.maximo = v;
      e.horaMaximo = h;
    }
    if (h == horas.primera || v < e.minimo) {
      e.minimo = v;
      e.horaMinimo = h;
    }
    e.suma += v;
    e.horasSobreUno += v > 1.0;
    e.horasBajoMenosUno += v < -1.0;
    e.horasMarcadas += v > 0.0;
  }
  e.media = e.suma / horas.Cuantas();
  return e;
}

std::string LineaEstadistica(const Serie& serie, const PeriodoSerie& periodo, double superficie) {
  const auto horas = HorasDelPeriodo(periodo);
  if (!horas.valor) return horas.aviso.texto;
  const EstadisticaSerie e = ResumirSerie(serie, *horas.valor);
  switch (serie.clase) {
    case ClaseSerie::Temperatura:
      return Extremos(e, " ºC", kDecimales) + Media(e, " ºC");
    case ClaseSerie::Consigna:
      return LineaConsigna(serie, e);
    case ClaseSerie::Radiacion:
      return LineaRadiacion(e, periodo.tipo);
    case ClaseSerie::Humedad:
      return Extremos(e, " " + serie.unidad, kDecimales) + Media(e, " " + serie.unidad);
    case ClaseSerie::Horas:
      return LineaHoras(serie, e);
    case ClaseSerie::Energia:
      return LineaEnergia(serie, e, periodo.tipo, superficie);
    case ClaseSerie::Otra:
      break;
  }
  return LineaOtra(serie, e);
}

}  // namespace novex
