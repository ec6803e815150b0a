#include "outputs/TablaObjetoReferencia.h"

#include <string>

#include "outputs/ReglasResultados.h"

namespace novex {
namespace {

// Una fila, por m2 y año.
struct FilaReferencia {
  const char* nombre;
  const char* unidad;  // "kWh" o "kgCO2"
  double objeto, referencia;
  std::optional<Indicador> indicador;
  std::optional<Servicio> consumo;  // servicio que la fila da, si hacen falta equipos para darlo
};

constexpr const char* kVentilacionSinArea = "Energía ventilación";

double Real(float valor) {
  return static_cast<double>(valor);
}

double PorArea(const TablaMensual& tabla, float area) {
  double suma = 0;
  for (std::size_t m = 1; m < tabla.size(); ++m) suma += Real(tabla[m]);
  return area > 0.0F ? suma / Real(area) : 0.0;
}

std::vector<FilaReferencia> FilasDemanda(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const TablasMensuales& meses = caso.resultado->meses;
  const float area = caso.edificio->GetRecinto(0).Suelo_habitable_m2;
  const auto referencia = [&](Indicador i) {
    return Real(r.escala.referencia[static_cast<std::size_t>(i)]);
  };
  return {
      {"Demanda calefacción", "kWh", Real(r.demandaCalefaccion),
       referencia(Indicador::DemandaCalefaccion), Indicador::DemandaCalefaccion, std::nullopt},
      {"Demanda refrigeración", "kWh", Real(r.demandaRefrigeracion),
       referencia(Indicador::DemandaRefrigeracion), Indicador::DemandaRefrigeracion, std::nullopt},
      // La de referencia descuenta la contribución solar mínima.
      {"Demanda ACS", "kWh", Real(r.demandaACS), Real(r.escala.DemandaACS_solar_minima),
       std::nullopt, std::nullopt},
      {"Energía iluminación", "kWh", PorArea(meses.iluminacion, area),
       Real(r.escala.iluminacionReferencia), std::nullopt, std::nullopt},
      {kVentilacionSinArea, "kWh", PorArea(meses.ventilacion, area), 0, std::nullopt,
       std::nullopt}};
}

struct NombresUnidad {
  UnidadEnergia unidad;
  const char* texto;
  std::array<const char*, kServicios + 1> filas;  // por `Servicio`, y el total
};
constexpr std::array<NombresUnidad, 2> kNombres = {
    {{kEmisiones,
      "kgCO2",
      {"Emisiones ACS", "Emisiones Calefacción", "Emisiones Refrigeración", "Emisiones Ventilación",
       "Emisiones Iluminación", "Emisiones Totales"}},
     {kPrimariaNoRenovable,
      "kWh",
      {"Energia primaria no renovable ACS", "Energia primaria no renovable Calefacción",
       "Energia primaria no renovable Refrigeración", "Energia primaria no renovable Ventilación",
       "Energia primaria no renovable Iluminación", "* Energia primaria no renovable Totales"}}}};
constexpr std::array<Servicio, kServicios> kOrden = {kCalefaccion, kRefrigeracion, kACS,
                                                     kIluminacion, kVentilacion};

void AnadirFilasUnidad(const CasoCalculado& caso, const NombresUnidad& nombres,
                       std::vector<FilaReferencia>& filas) {
  const ResultadosCaso& r = caso.resultado->resultados;
  for (const Servicio s : kOrden) {
    const auto indicador = IndicadorDe(s, nombres.unidad, false);
    // La referencia no tiene ventilación.
    const double referencia =
        indicador ? Real(r.escala.referencia[static_cast<std::size_t>(*indicador)]) : 0.0;
    filas.push_back({nombres.filas[s], nombres.texto,
                     Real(r.servicio[s].porUnidad[nombres.unidad][0]), referencia, indicador, s});
  }
  // El total de referencia solo tiene los servicios con equipos.
  filas.push_back({nombres.filas[kServicios], nombres.texto, Real(r.total[nombres.unidad]),
                   Real(nombres.unidad == kEmisiones ? r.escala.totalReferenciaEmisiones
                                                     : r.escala.totalReferenciaPrimaria),
                   IndicadorDe(std::nullopt, nombres.unidad, false), std::nullopt});
}

std::string AvisoSinEquipo(std::optional<Servicio> consumo,
                           const std::array<bool, kServiciosDemanda>& conEquipo) {
  if (!consumo || *consumo >= kServiciosDemanda || conEquipo[*consumo]) return {};
  if (*consumo == kACS) return "No existe equipo ACS";
  return *consumo == kRefrigeracion ? "No existe equipo Refri." : "No existe equipo Calef.";
}

std::string NombreFila(const FilaReferencia& fila, bool porM2) {
  const std::string nombre = fila.nombre;
  // Esa fila se rotula igual en las dos formas.
  const bool conArea = porM2 && nombre != kVentilacionSinArea;
  return nombre + " (" + fila.unidad + (conArea ? "/m2)" : ")");
}

}  // namespace

std::optional<Tabla> TablaObjetoReferencia(const CasoCalculado& caso, UnidadesReferencia unidades) {
  if (caso.edificio->GetDatosGenerales().EsResidencial() || !SeCalifica(*caso.edificio))
    return std::nullopt;
  std::vector<FilaReferencia> filas = FilasDemanda(caso);
  for (const NombresUnidad& nombres : kNombres) AnadirFilasUnidad(caso, nombres, filas);
  const auto conEquipo = ServiciosConEquipo(*caso.edificio);
  const bool porM2 = unidades == UnidadesReferencia::PorM2;
  const double factor = porM2 ? 1.0 : Real(caso.edificio->GetRecinto(0).Suelo_habitable_m2);
  Tabla tabla;
  tabla.titulo = kTituloObjetoReferencia;
  tabla.cabeceras = {"Indicador Energético", "Edif. Objeto", "Edif. Referencia", "Indice",
                     "Calificación"};
  for (const FilaReferencia& fila : filas) {
    std::string letra = AvisoSinEquipo(fila.consumo, conEquipo);
    if (letra.empty() && fila.indicador) letra = LetraMostrada(*fila.indicador, caso);
    tabla.filas.push_back(
        {NombreFila(fila, porM2), CeldaResultado(fila.objeto * factor),
         CeldaResultado(fila.referencia * factor),
         fila.referencia == 0.0 ? Celda() : CeldaResultado(fila.objeto / fila.referencia), letra});
  }
  tabla.notas = {
      "* Para obtener la calificación energética sólo se contabilizan los servicios para los que "
      "se han definido equipos"};
  if (std::string horas = TextoHorasFuera(caso).texto; !horas.empty())
    tabla.notas.push_back(std::move(horas));
  return tabla;
}

}  // namespace novex
