#include "outputs/AnalisisTecnico.h"

#include "model/GestorEdifActivo.h"
#include "outputs/ReglasResultados.h"

namespace novex {
namespace {

struct Columna {
  std::optional<Servicio> servicio;  // vacío: el total
  const char* nombre;
};
constexpr std::array<Columna, kServicios + 1> kColumnas = {{{kCalefaccion, "Calefacción"},
                                                            {kRefrigeracion, "Refrigeración"},
                                                            {kACS, "ACS"},
                                                            {kIluminacion, "Iluminación"},
                                                            {kVentilacion, "Ventilación"},
                                                            {std::nullopt, "Total"}}};

struct Rejilla {
  const char* titulo;
  std::optional<UnidadEnergia> unidad;  // vacía: la demanda
};
constexpr std::array<Rejilla, 4> kRejillas = {{{"Energía Final", kFinal},
                                               {"Emisiones", kEmisiones},
                                               {"E.prim.no renov.", kPrimariaNoRenovable},
                                               {"Demanda", std::nullopt}}};

double Real(float valor) {
  return static_cast<double>(valor);
}

double EnergiaDe(const CasoCalculado& caso, const TablaMensual& tabla) {
  const double area = Real(caso.edificio->GetRecinto(0).Suelo_habitable_m2);
  double suma = 0;
  for (std::size_t m = 1; m < tabla.size(); ++m) suma += Real(tabla[m]);
  return area > 0.0 ? suma / area : 0.0;
}

double DemandaDe(const CasoCalculado& caso, Servicio servicio) {
  const ResultadosCaso& r = caso.resultado->resultados;
  switch (servicio) {
    case kACS:
      return Real(r.demandaACS);
    case kCalefaccion:
      return Real(r.demandaCalefaccion);
    case kRefrigeracion:
      return Real(r.demandaRefrigeracion);
    case kVentilacion:
      return EnergiaDe(caso, caso.resultado->meses.ventilacion);
    case kIluminacion:
      break;
  }
  return EnergiaDe(caso, caso.resultado->meses.iluminacion);
}

bool NoSeCuenta(const CasoCalculado& caso, std::optional<Servicio> servicio) {
  return servicio == kRefrigeracion && RefrigeracionFuera(*caso.edificio);
}

double Valor(const CasoCalculado& caso, const Rejilla& rejilla, std::optional<Servicio> servicio) {
  const ResultadosCaso& r = caso.resultado->resultados;
  if (rejilla.unidad)
    return Real(servicio ? r.servicio[*servicio].porUnidad[*rejilla.unidad][0]
                         : r.total[*rejilla.unidad]);
  if (servicio) return DemandaDe(caso, *servicio);
  double total = 0;
  for (const Columna& c : kColumnas)
    if (c.servicio && !NoSeCuenta(caso, c.servicio)) total += DemandaDe(caso, *c.servicio);
  return total;
}

std::string LetraDe(const CasoCalculado& caso, const Rejilla& rejilla,
                    std::optional<Servicio> servicio) {
  std::optional<Indicador> indicador;
  if (rejilla.unidad)
    indicador =
        IndicadorDe(servicio, *rejilla.unidad, caso.edificio->GetDatosGenerales().EsResidencial());
  else if (servicio == kCalefaccion)
    indicador = Indicador::DemandaCalefaccion;
  else if (servicio == kRefrigeracion)
    indicador = Indicador::DemandaRefrigeracion;
  return indicador ? LetraMostrada(*indicador, caso) : std::string();
}

// La letra y el ahorro: "B,12.50". Sin letra, la cifra sola.
Celda CeldaAhorro(const std::string& letra, std::optional<double> ahorro) {
  if (letra.empty()) return ahorro ? CeldaResultado(*ahorro) : Celda();
  return ahorro ? Celda(letra + "," + Fijo(*ahorro, kDecimalesResultado)) : Celda(letra);
}

std::vector<Celda> Fila(const CasoCalculado& caso, const CasoCalculado* base,
                        const Rejilla& rejilla) {
  std::vector<Celda> fila = {caso.nombre == novex::caso::kViejo ? std::string("base")
                                                                : caso.nombre};
  for (const Columna& c : kColumnas) {
    if (NoSeCuenta(caso, c.servicio)) {
      fila.insert(fila.end(), 2, Celda(std::string(kSinLetra)));
      continue;
    }
    const double valor = Valor(caso, rejilla, c.servicio);
    fila.push_back(CeldaResultado(valor));
    const double valorBase = base != nullptr ? Valor(*base, rejilla, c.servicio) : 0.0;
    fila.push_back(CeldaAhorro(LetraDe(caso, rejilla, c.servicio), Ahorro(valorBase, valor)));
  }
  return fila;
}

Tabla TablaDe(const Rejilla& rejilla, const std::vector<CasoCalculado>& casos) {
  Tabla tabla;
  tabla.titulo = rejilla.titulo;
  tabla.cabeceras = {rejilla.unidad == kEmisiones ? "  (kgCO2/m2 año)" : "  (kWh/m2 año)"};
  const char* ahorro = rejilla.unidad == kFinal ? " %" : " Cali,%";
  for (const Columna& c : kColumnas) {
    tabla.cabeceras.push_back(std::string(c.nombre) + " Valor");
    tabla.cabeceras.push_back(std::string(c.nombre) + ahorro);
  }
  for (const CasoCalculado& caso : casos)
    tabla.filas.push_back(Fila(caso, CasoBase(casos), rejilla));
  return tabla;
}

}  // namespace

std::array<Tabla, 4> TablasAnalisisTecnico(const std::vector<CasoCalculado>& casos) {
  std::array<Tabla, 4> tablas;
  for (std::size_t i = 0; i < tablas.size(); ++i) tablas[i] = TablaDe(kRejillas[i], casos);
  return tablas;
}

}  // namespace novex
