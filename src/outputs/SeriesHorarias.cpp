#include "outputs/SeriesHorarias.h"

#include <algorithm>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

using enum ClaseSerie;
using Fila = DescripcionSerie;

constexpr int kDecimales = 3;
/// Las humedades absolutas son centésimas de kg/kg.
constexpr int kDecimalesHumedad = 6;

// Acceso a una serie de un bloque, y a la de un sector de un bloque.
template <auto Bloque, auto Campo>
const SerieHoraria& De(const calculo& caso) {
  return caso.*Bloque.*Campo;
}
template <auto Campo, Sector S>
const SerieHoraria& DeSector(const calculo& caso) {
  return (caso.clima.*Campo)[S];
}
template <auto Campo>
constexpr auto kClima = De<&calculo::clima, Campo>;
template <auto Campo>
constexpr auto kCarga = De<&calculo::carga, Campo>;
template <auto Campo>
constexpr auto kZona = De<&calculo::zona, Campo>;

constexpr auto kIrad = &SeriesClima::IRAD;
constexpr auto kMuro = &SeriesClima::MLIGERO;
constexpr auto kCubierta = &SeriesClima::CLIGERO;

constexpr Fila kSeries[] = {
    {"TSE", "ºC", Temperatura, kDecimales, kClima<&SeriesClima::TSE>},
    {"TCIE", "ºC", Temperatura, kDecimales, kClima<&SeriesClima::TCIE>},
    {"WE", "kg/kg", Humedad, kDecimalesHumedad, kClima<&SeriesClima::WE>},
    {"THE", "ºC", Temperatura, kDecimales, kClima<&SeriesClima::THE>},
    {"FIE", "%", Humedad, kDecimales, kClima<&SeriesClima::FIE>},
    {"IDIRECTA", "W/m2", Radiacion, kDecimales, kClima<&SeriesClima::IDIRECTA>},
    {"IDIFUSA", "W/m2", Radiacion, kDecimales, kClima<&SeriesClima::IDIFUSA>},
    {"RADH", "W/m2", Radiacion, kDecimales, kClima<&SeriesClima::RADH>},
    {"CENITS", "º", Otra, kDecimales, kClima<&SeriesClima::CENITS>},
    {"AZIMUTS", "º", Otra, kDecimales, kClima<&SeriesClima::AZIMUTS>},
    {"IRADN", "W/m2", Radiacion, kDecimales, DeSector<kIrad, norte>},
    {"IRADO", "W/m2", Radiacion, kDecimales, DeSector<kIrad, oeste>},
    {"IRADSO", "W/m2", Radiacion, kDecimales, DeSector<kIrad, sur_oeste>},
    {"IRADS", "W/m2", Radiacion, kDecimales, DeSector<kIrad, sur>},
    {"IRADSE", "W/m2", Radiacion, kDecimales, DeSector<kIrad, sur_este>},
    {"IRADE", "W/m2", Radiacion, kDecimales, DeSector<kIrad, este>},
    {"IRADH", "W/m2", Radiacion, kDecimales, kClima<&SeriesClima::IRADH>},
    {"MLIGERON", "K", Temperatura, kDecimales, DeSector<kMuro, norte>},
    {"MLIGEROO", "K", Temperatura, kDecimales, DeSector<kMuro, oeste>},
    {"MLIGEROSO", "K", Temperatura, kDecimales, DeSector<kMuro, sur_oeste>},
    {"MLIGEROS", "K", Temperatura, kDecimales, DeSector<kMuro, sur>},
    {"MLIGEROSE", "K", Temperatura, kDecimales, DeSector<kMuro, sur_este>},
    {"MLIGEROE", "K", Temperatura, kDecimales, DeSector<kMuro, este>},
    {"CLIGEROH", "K", Temperatura, kDecimales, kClima<&SeriesClima::CLIGEROH>},
    {"CLIGERON", "K", Temperatura, kDecimales, DeSector<kCubierta, norte>},
    {"CLIGEROO", "K", Temperatura, kDecimales, DeSector<kCubierta, oeste>},
    {"CLIGEROSO", "K", Temperatura, kDecimales, DeSector<kCubierta, sur_oeste>},
    {"CLIGEROS", "K", Temperatura, kDecimales, DeSector<kCubierta, sur>},
    {"CLIGEROSE", "K", Temperatura, kDecimales, DeSector<kCubierta, sur_este>},
    {"CLIGEROE", "K", Temperatura, kDecimales, DeSector<kCubierta, este>},
    // Copia de la del sur, que se conserva por los ficheros que la llevan.
    {"CLIGEROSS", "K", Temperatura, kDecimales, DeSector<kCubierta, sur>},
    {"SUELOEXT", "K", Temperatura, kDecimales, kClima<&SeriesClima::SUELOEXT>},
    {"COND", "K", Temperatura, kDecimales, kClima<&SeriesClima::COND>},
    {"QOCUPSh", "W/m2", Energia, kDecimales, kCarga<&SeriesCarga::QOCUPSh>},
    {"QILUh", "W/m2", Energia, kDecimales, kCarga<&SeriesCarga::QILUh>},
    {"QEQh", "W/m2", Energia, kDecimales, kCarga<&SeriesCarga::QEQh>},
    {"QOCUPShT", "W/m2", Energia, kDecimales, kCarga<&SeriesCarga::QOCUPShT>},
    {"QILUhT", "W/m2", Energia, kDecimales, kCarga<&SeriesCarga::QILUhT>},
    {"QEQhT", "W/m2", Energia, kDecimales, kCarga<&SeriesCarga::QEQhT>},
    {"QOCUPLh", "W/m2", Energia, kDecimales, kCarga<&SeriesCarga::latente>},
    {"NRR", "%", Otra, kDecimales, kCarga<&SeriesCarga::NRR>},
    {"TCR", "ºC", Consigna, kDecimales, kCarga<&SeriesCarga::TCR>},
    {"TRR", "ºC", Consigna, kDecimales, kCarga<&SeriesCarga::TRR>},
    {"CCAC", "%", Otra, kDecimales, kCarga<&SeriesCarga::CCAC>},
    {"TSL", "ºC", Temperatura, kDecimales, kZona<&SeriesZona::TSL>},
    {"WL", "kg/kg", Humedad, kDecimalesHumedad, kZona<&SeriesZona::WL>},
    {"QCAL", "kW", Energia, kDecimales, kZona<&SeriesZona::cargaCalefaccion>},
    {"QREF", "kW", Energia, kDecimales, kZona<&SeriesZona::cargaRefrigeracion>},
    {"DCAL", "kWh", Energia, kDecimales, kZona<&SeriesZona::DCAL>},
    {"DREF", "kWh", Energia, kDecimales, kZona<&SeriesZona::DREF>},
    {"DVENT", "kWh", Energia, kDecimales, kZona<&SeriesZona::DVENT>},
    {"DIFT", "ºC", Temperatura, kDecimales, kZona<&SeriesZona::DIFT>},
    {"DACS", "kWh", Energia, kDecimales, kZona<&SeriesZona::DACS>},
    {"QV", "m3/h", Otra, kDecimales, kZona<&SeriesZona::QV>},
    {"CUTA", "m3/h", Otra, kDecimales, kZona<&SeriesZona::CUTA>},
    {"CV", "Wh", Energia, kDecimales, kZona<&SeriesZona::CV>},
    {"QIR", "W", Energia, kDecimales, kZona<&SeriesZona::QIR>},
    {"TSR", "ºC", Temperatura, kDecimales, kZona<&SeriesZona::TSR>},
    {"HFC", "", Horas, kDecimales, kZona<&SeriesZona::HFC>},
    {"HBP", "", Horas, kDecimales, kZona<&SeriesZona::HBP>},
};

}  // namespace

std::span<const DescripcionSerie> SeriesHorarias() {
  return kSeries;
}

std::string CsvSeries(const calculo& caso) {
  struct Columna {
    const SerieHoraria* serie;
    int decimales;
  };
  std::string texto = "hora";
  std::vector<Columna> columnas;
  for (const Fila& fila : kSeries) {
    texto.append(";").append(fila.codigo);
    columnas.push_back({&fila.tomar(caso), fila.decimales});
  }
  // Detrás, las magnitudes de cada sistema con el número del sistema.
  for (const AtributoSistema& a : caso.atributos) {
    texto.append(";").append(a.nombre);
    columnas.push_back({&a.serie, kDecimales});
  }
  texto += '\n';
  for (int h = 1; h <= kHorasAno; ++h) {
    texto += std::to_string(h);
    for (const Columna& c : columnas)
      texto.append(";").append(Fijo(static_cast<double>((*c.serie)[h]), c.decimales));
    texto += '\n';
  }
  return texto;
}

}  // namespace novex
