#include "casos/CasoPrueba.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "files/ProyectoFichero.h"

namespace novex::pruebas {
namespace {

// Tolerancia de los valores anuales y mensuales.
constexpr double kRelativa = 0.002;
// En febrero y marzo el cálculo independiente cuenta el mediodía, con el sol en el plano de la
// fachada oeste, en la sombra de sus aleros; la regla lo deja fuera. El año queda dentro de la
// suya.
constexpr double kRelativaAleroOeste = 0.003;
constexpr bool EsMesDeAleroOeste(std::size_t m) {
  return m == 2 || m == 3;
}
constexpr double kMinimaEnergia = 0.02;     // kWh/m2
constexpr double kMinimaEmisiones = 0.005;  // kg/m2

constexpr std::array<Servicio, kServicios> kTodosLosServicios = {kACS, kCalefaccion, kRefrigeracion,
                                                                 kVentilacion, kIluminacion};

constexpr std::array<std::pair<const char*, UnidadEnergia>, kUnidadesEnergia> kBloques = {
    {{"energia_final", kFinal},
     {"energia_primaria_total", kPrimariaTotal},
     {"energia_primaria_no_renovable", kPrimariaNoRenovable},
     {"energia_primaria_renovable", kPrimariaRenovable},
     {"emisiones", kEmisiones}}};

std::string Clave(Servicio s) {
  return std::string(kNombreServicio[s]);
}

class Comparador {
 public:
  void Anadir(const std::string& grupo, const std::string& detalle, double esperado, float obtenido,
              double minima = kMinimaEnergia, double relativa = kRelativa) {
    ConTolerancia(grupo, detalle, esperado, obtenido,
                  std::max(relativa * std::fabs(esperado), minima));
  }
  void ConTolerancia(const std::string& grupo, const std::string& detalle, double esperado,
                     float obtenido, double tolerancia) {
    salida.push_back({grupo, detalle, esperado, static_cast<double>(obtenido), tolerancia});
  }
  void Meses(const std::string& grupo, const std::string& detalle, const nlohmann::json& esperado,
             const TablaMensual& tabla, float factor) {
    for (std::size_t m = 1; m <= kMeses; ++m)
      Anadir(grupo, detalle + ", mes " + std::to_string(m),
             esperado.is_null() ? 0.0 : esperado.at(m - 1).get<double>(), factor * tabla[m],
             kMinimaEnergia,
             EsMesDeAleroOeste(m) && detalle.starts_with("calefaccion") ? kRelativaAleroOeste
                                                                        : kRelativa);
  }
  std::vector<Comparacion> salida;
};

// Energía final de los meses: los vectores que no se usan no están entre los esperados.
void CompararVectores(const nlohmann::json& esperado, const CasoPrueba& caso, Comparador& c) {
  const float area = caso.Viejo().GetRecinto(0).Suelo_habitable_m2;
  for (const Servicio s : kTodosLosServicios)
    for (std::size_t v = 0; v < kVectores; ++v) {
      const nlohmann::json& servicio = esperado.at(Clave(s));
      const auto it = servicio.find(kNombreVector[v]);
      c.Meses("final mensual", Clave(s) + " " + std::string(kNombreVector[v]),
              it == servicio.end() ? nlohmann::json() : *it,
              caso.Resultado().resultados.servicio[s].finalPorVector[v], 1.0F / area);
    }
}

// Una columna del fichero de series, la serie del programa y su tolerancia.
struct Columna {
  const SerieHoraria* serie;
  double absoluta;  // en la unidad de la serie
  double relativa;  // al mayor valor del año
  double propia;    // al valor de la hora
};

std::map<std::string, Columna> Columnas(const calculo& c) {
  return {{"TSE", {&c.clima.TSE, 0.02, 0, 0}},
          {"TSL", {&c.zona.TSL, 0.02, 0, 0}},
          {"DCAL", {&c.zona.DCAL, 0, 0.02, 0}},
          {"DREF", {&c.zona.DREF, 0, 0.02, 0}},
          {"DVENT", {&c.zona.DVENT, 0, 0.02, 0}},
          // Medio milésimo es lo que quita escribir las series con tres decimales.
          {"QV", {&c.zona.QV, 0.0005, 0, 0.001}},
          {"QOCUPSh", {&c.carga.QOCUPSh, 0.011, 0, 0}},
          {"MLIGEROS", {&c.clima.MLIGERO[sur], 0.011, 0, 0}},
          {"CLIGEROH", {&c.clima.CLIGEROH, 0.011, 0, 0}},
          {"IRADS", {&c.clima.IRAD[sur], 0.0005, 0, 0.001}}};
}

// Las series esperadas, por su nombre y su hora.
struct TablaSeries {
  std::vector<std::string> cabecera;
  std::vector<std::vector<double>> filas;

  double operator()(const std::string& nombre, int h) const {
    const auto i = std::find(cabecera.begin(), cabecera.end(), nombre) - cabecera.begin();
    return filas.at(static_cast<std::size_t>(h - 1)).at(static_cast<std::size_t>(i));
  }
  double Mayor(const std::string& nombre) const {
    double mayor = 0;
    for (int h = 1; h <= kHorasAno; ++h) mayor = std::max(mayor, std::fabs((*this)(nombre, h)));
    return mayor;
  }
};

std::vector<std::string> Partir(const std::string& linea) {
  std::vector<std::string> campos;
  std::istringstream flujo(linea);
  for (std::string campo; std::getline(flujo, campo, ';');) campos.push_back(campo);
  return campos;
}

TablaSeries LeerSeries(const std::filesystem::path& ruta) {
  std::istringstream flujo(LeerFichero(ruta));
  std::string linea;
  std::getline(flujo, linea);
  TablaSeries tabla{Partir(linea), {}};
  while (std::getline(flujo, linea)) {
    std::vector<double> fila;
    for (const std::string& campo : Partir(linea)) fila.push_back(RealInicial(campo));
    tabla.filas.push_back(std::move(fila));
  }
  return tabla;
}

}  // namespace

std::filesystem::path CarpetaCasos() {
  return std::filesystem::path(NOVEX_RAIZ_PRUEBAS) / "casos";
}

std::vector<std::string> NombresCasos(char clase) {
  std::vector<std::string> nombres;
  for (const auto& entrada : std::filesystem::directory_iterator(CarpetaCasos() / "proyectos"))
    if (entrada.path().filename().string().front() == clase)
      nombres.push_back(entrada.path().stem().string());
  std::sort(nombres.begin(), nombres.end());
  return nombres;
}

CasoPrueba::CasoPrueba(const std::string& nombre, const std::filesystem::path& programa) {
  AbrirProyecto(gestor, CarpetaCasos() / "proyectos" / (nombre + ".xml"), ModoApertura::Nuevo,
                mensajes);
  FicherosPrograma ficheros{EspacioTrabajo{programa}};
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  calculado = CalcularCaso(gestor, caso::kViejo, entorno);
}

double Comparacion::Diferencia() const {
  return std::fabs(obtenido - esperado);
}

nlohmann::json LeerEsperado(const std::string& nombre) {
  return nlohmann::json::parse(LeerFichero(CarpetaCasos() / "esperado" / (nombre + ".json")))
      .at("casos")
      .at(0);
}

std::vector<Comparacion> CompararResultados(const nlohmann::json& esperado,
                                            const CasoPrueba& caso) {
  const ResultadosCaso& r = caso.Resultado().resultados;
  Comparador c;
  const nlohmann::json& demanda = esperado.at("demanda");
  c.Anadir("demanda", "calefaccion", demanda.at("calefaccion"), r.demandaCalefaccion);
  c.Anadir("demanda", "refrigeracion", demanda.at("refrigeracion"), r.demandaRefrigeracion);
  c.Anadir("demanda", "acs", demanda.at("acs"), r.demandaACS);
  const nlohmann::json& mensual = esperado.at("mensual");
  for (const Servicio s : {kCalefaccion, kRefrigeracion, kACS})
    c.Meses("demanda mensual", Clave(s), mensual.at("demanda").at(Clave(s)),
            caso.Resultado().meses.demanda[s], s == kCalefaccion ? -1.0F : 1.0F);
  for (const auto& [bloque, unidad] : kBloques) {
    const double minima = unidad == kEmisiones ? kMinimaEmisiones : kMinimaEnergia;
    for (const Servicio s : kTodosLosServicios)
      c.Anadir(bloque, Clave(s), esperado.at(bloque).at(Clave(s)),
               r.servicio[s].porUnidad[unidad][0], minima);
    c.Anadir(bloque, "total", esperado.at(bloque).at("total"), r.total[unidad], minima);
  }
  CompararVectores(mensual.at("energia_final"), caso, c);
  const double ocupacion = esperado.at("horas_ocupacion");
  const nlohmann::json& fuera = esperado.at("horas_fuera_consigna");
  c.ConTolerancia("horas fuera", "calefaccion", fuera.at("calefaccion"), r.horasFueraCalefaccion,
                  0.01 * ocupacion);
  c.ConTolerancia("horas fuera", "refrigeracion", fuera.at("refrigeracion"),
                  r.horasFueraRefrigeracion, 0.01 * ocupacion);
  return c.salida;
}

std::vector<Comparacion> CompararSeries(const std::string& nombre, const CasoPrueba& caso) {
  const TablaSeries tabla = LeerSeries(CarpetaCasos() / "esperado" / (nombre + ".csv"));
  const auto columnas = Columnas(caso.Resultado());
  std::vector<Comparacion> salida;
  const double deCarga = 0.02 * tabla.Mayor("DCAL");
  for (const auto& [serie, columna] : columnas) {
    const double fija = columna.absoluta + columna.relativa * tabla.Mayor(serie);
    for (int h = 1; h <= kHorasAno; ++h) {
      const double esperado = tabla(serie, h);
      const bool aleroOeste = EsMesDeAleroOeste(static_cast<std::size_t>(HoraDelMes(h)));
      double tolerancia = fija + columna.propia * std::fabs(esperado);
      // Cuando la carga no llega a la del aire de ventilación, `DVENT` es la carga.
      if (serie == "DVENT" && esperado != 0.0 && esperado == -tabla("DCAL", h) - tabla("DREF", h))
        tolerancia = deCarga;
      if (serie == "TSL" && aleroOeste) tolerancia = 0.03;
      salida.push_back({"serie " + serie, "hora " + std::to_string(h), esperado,
                        static_cast<double>((*columna.serie)[h]), tolerancia});
    }
  }
  return salida;
}

std::vector<Comparacion> Peores(const std::vector<Comparacion>& todas) {
  std::vector<Comparacion> peores;
  for (const Comparacion& c : todas) {
    const auto it = std::find_if(peores.begin(), peores.end(),
                                 [&](const Comparacion& p) { return p.grupo == c.grupo; });
    if (it == peores.end())
      peores.push_back(c);
    else if (c.Razon() > it->Razon())
      *it = c;
  }
  return peores;
}

}  // namespace novex::pruebas
