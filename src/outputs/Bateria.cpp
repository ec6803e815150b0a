#include "outputs/Bateria.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>
#include <nlohmann/json.hpp>
#include <sstream>
#include <thread>

#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "calculation/EjecutarCalculo.h"
#include "entry/CompletarProyecto.h"
#include "files/ProyectoFichero.h"

namespace novex {
namespace {

constexpr const char* kRaya = "------------------------------------";
constexpr float kTemperaturaExceso = 26;  // °C

// Las cifras de un bloque, con sus rótulos y en su orden.
struct LineaBateria {
  const char* rotulo;
  const char* clave;  // en CSV y JSON
  float (*valor)(const CasoBateria&);
};
template <Servicio S, UnidadEnergia U>
float Anual(const CasoBateria& c) {
  return c.resultados.servicio[S].porUnidad[U][0];
}
constexpr std::array<LineaBateria, 11> kLineas = {
    {{"Demanda Calef=", "demanda_calefaccion",
      [](const CasoBateria& c) { return c.resultados.demandaCalefaccion; }},
     {"Demanda Refri=", "demanda_refrigeracion",
      [](const CasoBateria& c) { return c.resultados.demandaRefrigeracion; }},
     {"Demanda ACS=", "demanda_acs", [](const CasoBateria& c) { return c.resultados.demandaACS; }},
     {"Demanda Iluminacion=", "iluminacion", [](const CasoBateria& c) { return c.iluminacion; }},
     {"Demanda Ventilacion=", "ventilacion", [](const CasoBateria& c) { return c.ventilacion; }},
     {"Emisiones CO2 Cal=", "emisiones_calefaccion", Anual<kCalefaccion, kEmisiones>},
     {"Emisiones C02 Refri=", "emisiones_refrigeracion", Anual<kRefrigeracion, kEmisiones>},
     {"Emisiones CO2 ACS=", "emisiones_acs", Anual<kACS, kEmisiones>},
     {"Emisiones Iluminacion=", "emisiones_iluminacion", Anual<kIluminacion, kEmisiones>},
     {"Emisiones Ventilacion=", "emisiones_ventilacion", Anual<kVentilacion, kEmisiones>},
     {"Emisiones totales=", "emisiones_totales",
      [](const CasoBateria& c) { return c.resultados.total[kEmisiones]; }}}};

// Un número como lo escribe un flujo de salida recién abierto.
std::string DeFlujo(float valor) {
  std::ostringstream flujo;
  flujo.imbue(std::locale::classic());
  flujo << valor;
  return flujo.str();
}

int HorasExceso(const calculo& caso) {
  int horas = 0;
  for (int h = 1; h <= kHorasAno; ++h)
    if (caso.zona.TSL[h] > kTemperaturaExceso) ++horas;
  return horas;
}

// Calcula un caso de un proyecto abierto. Un fallo queda anotado en él.
CasoBateria CalcularUno(GestorEdifActivo& gestor, const std::string& nombre,
                        const std::string& proyecto, Entorno& entorno) {
  CasoBateria caso;
  caso.proyecto = proyecto;
  caso.caso = nombre;
  try {
    if (!CalcularCaso(gestor, nombre, entorno)) {
      caso.fallo = "falta el fichero de clima";
      return caso;
    }
    const calculo& hecho = *gestor.Caso(nombre)->GetCalculo();
    if (hecho.resultados.depositoNulo) caso.fallo = "un depósito no tiene volumen";
    caso.resultados = hecho.resultados;
    caso.horasExceso = HorasExceso(hecho);
    if (const float area = hecho.resultados.superficieTotal; area > 0.0F) {
      caso.iluminacion = hecho.meses.iluminacion[0] / area;
      caso.ventilacion = hecho.meses.ventilacion[0] / area;
    }
  } catch (const std::exception& error) {
    caso.fallo = error.what();
  }
  return caso;
}

// Los casos de un proyecto de la lista.
std::vector<CasoBateria> CalcularProyecto(const std::string& ruta, FicherosPrograma& ficheros,
                                          bool todos) {
  RegistroMensajes mensajes;
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  GestorEdifActivo gestor;
  CasoBateria sinAbrir;
  sinAbrir.proyecto = ruta;
  try {
    ProyectoAbierto abierto = AbrirProyecto(gestor, ruta, ModoApertura::Nuevo, mensajes);
    if (!abierto.abierto) {
      sinAbrir.fallo = mensajes.recibidos.empty() ? "no es un fichero de proyecto"
                                                  : mensajes.recibidos.back().texto;
      return {sinAbrir};
    }
    CompletarProyecto(gestor, abierto, ficheros, mensajes);
  } catch (const std::exception& error) {
    sinAbrir.fallo = error.what();
    return {sinAbrir};
  }
  std::vector<CasoBateria> casos;
  const std::size_t cuantos = todos ? gestor.NumeroCasos() : 1;
  for (std::size_t i = 0; i < cuantos; ++i)
    casos.push_back(
        CalcularUno(gestor, std::string(GestorEdifActivo::NombreCasoUsuario(i)), ruta, entorno));
  return casos;
}

}  // namespace

ListaBateria LeerListaBateria(const std::string& texto) {
  ListaBateria lista;
  std::istringstream flujo(texto);
  std::string linea;
  bool primera = true;
  while (std::getline(flujo, linea)) {
    const std::string limpia(SinBlancos(linea));
    if (primera) {
      lista.carpeta = limpia;
      if (!limpia.empty() && !limpia.ends_with('/') && !limpia.ends_with('\\'))
        lista.carpeta += '/';
      primera = false;
    } else if (!limpia.empty()) {
      lista.ficheros.push_back(limpia);
    }
  }
  return lista;
}

std::vector<CasoBateria> EjecutarBateria(
    const ListaBateria& lista, const EspacioTrabajo& espacio, const OpcionesBateria& opciones,
    const std::function<void(std::size_t, std::size_t)>& hecho) {
  std::vector<std::vector<CasoBateria>> porProyecto(lista.ficheros.size());
  std::atomic<std::size_t> siguiente{0};
  std::size_t hechos = 0;
  std::mutex cerrojo;
  // Cada hilo lee los ficheros del programa por su cuenta.
  const auto trabajar = [&] {
    FicherosPrograma ficheros(espacio);
    for (std::size_t i = siguiente++; i < lista.ficheros.size(); i = siguiente++) {
      porProyecto[i] =
          CalcularProyecto(lista.carpeta + lista.ficheros[i], ficheros, opciones.todosLosCasos);
      const std::lock_guard<std::mutex> guardia(cerrojo);
      ++hechos;
      if (hecho) hecho(i + 1, lista.ficheros.size() - hechos);
    }
  };
  {
    std::vector<std::jthread> equipo;
    const auto cuantos = std::min<std::size_t>(std::max(1U, opciones.hilos), lista.ficheros.size());
    for (std::size_t i = 1; i < cuantos; ++i) equipo.emplace_back(trabajar);
    trabajar();
  }
  std::vector<CasoBateria> casos;
  for (auto& suyos : porProyecto)
    for (CasoBateria& caso : suyos) casos.push_back(std::move(caso));
  return casos;
}

std::string TextoBateria(const std::vector<CasoBateria>& casos) {
  std::string texto;
  for (std::size_t i = 0; i < casos.size(); ++i) {
    const CasoBateria& caso = casos[i];
    if (caso.fallo.empty()) {
      texto += "# Caso = " + std::to_string(i + 1) + "  de  " + std::to_string(casos.size()) +
               " :\n" + caso.proyecto + " :\n";
      for (const LineaBateria& linea : kLineas)
        texto += linea.rotulo + DeFlujo(linea.valor(caso)) + "\n";
      texto +=
          "Horas exceso calor (mas de 26 C) en todo el año=" + std::to_string(caso.horasExceso) +
          "\n";
    }
    texto += std::string(kRaya) + "\n";
  }
  return texto;
}

std::string CsvBateria(const std::vector<CasoBateria>& casos) {
  // Un texto con punto y coma o comillas va entre comillas.
  const auto celda = [](const std::string& texto) {
    if (texto.find_first_of(";\"\n\r") == std::string::npos) return texto;
    std::string doble;
    for (const char c : texto) doble += c == '"' ? "\"\"" : std::string(1, c);
    return "\"" + doble + "\"";
  };
  std::string csv = "proyecto;caso";
  for (const LineaBateria& linea : kLineas) csv += std::string(";") + linea.clave;
  csv += ";horas_exceso_calor;fallo\n";
  for (const CasoBateria& caso : casos) {
    csv += celda(caso.proyecto) + ";" + celda(caso.caso);
    const bool hecho = caso.fallo.empty();
    for (const LineaBateria& linea : kLineas)
      csv += ";" + (hecho ? General(linea.valor(caso)) : std::string());
    csv += ";" + (hecho ? std::to_string(caso.horasExceso) : std::string()) + ";" +
           celda(caso.fallo) + "\n";
  }
  return csv;
}

std::string JsonBateria(const std::vector<CasoBateria>& casos) {
  using Json = nlohmann::ordered_json;
  Json lista = Json::array();
  for (const CasoBateria& caso : casos) {
    Json uno{{"proyecto", caso.proyecto}, {"caso", caso.caso}};
    if (caso.fallo.empty()) {
      for (const LineaBateria& linea : kLineas) uno[linea.clave] = linea.valor(caso);
      uno["horas_exceso_calor"] = caso.horasExceso;
    } else {
      uno["fallo"] = caso.fallo;
    }
    lista.push_back(std::move(uno));
  }
  return lista.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace novex
