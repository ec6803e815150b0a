#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/EspacioTrabajo.h"
#include "demand/ResultadosCaso.h"

namespace novex {

/// La lista de proyectos de una batería de cálculos.
struct ListaBateria {
  std::string carpeta;                ///< con su separador final
  std::vector<std::string> ficheros;  ///< dentro de ella, en su orden
};
/// Lee una lista: la primera línea es la carpeta y cada una de las demás un proyecto. Una línea en
/// blanco al final no cuenta, y las de en medio se saltan. Los finales de línea pueden ser LF o
/// CRLF; a la carpeta se le pone el separador si le falta.
ListaBateria LeerListaBateria(const std::string& texto);

/// Lo que da un caso de la batería.
struct CasoBateria {
  std::string proyecto;  ///< camino entero
  std::string caso;
  std::string fallo;  ///< por qué no se ha calculado; vacío si se ha hecho
  ResultadosCaso resultados;
  /// Lo que gastan, kWh/m2, lo dé la red o la fotovoltaica.
  float iluminacion = 0, ventilacion = 0;
  int horasExceso = 0;  ///< con más de 26 °C en la zona
};

struct OpcionesBateria {
  unsigned hilos = 1;
  bool todosLosCasos = false;  ///< también las mejoras, y no solo el caso base
};

/// Calcula los proyectos de una lista. Uno que falla no detiene a los demás.
/// \param hecho se llama al acabar cada proyecto con cuál es, desde 1, y cuántos quedan, de uno en
/// uno; puede ser nula
/// \returns uno por proyecto en su orden, o uno por caso con todos los casos
std::vector<CasoBateria> EjecutarBateria(
    const ListaBateria& lista, const EspacioTrabajo& espacio, const OpcionesBateria& opciones,
    const std::function<void(std::size_t, std::size_t)>& hecho = {});

/// El texto de `bateria.out`. De un proyecto que no se abre o no se puede calcular va solo la raya
/// final de su bloque: unos ceros se tomarían por un resultado.
std::string TextoBateria(const std::vector<CasoBateria>& casos);
/// Los mismos casos en CSV (punto y coma, con cabecera) y en JSON.
std::string CsvBateria(const std::vector<CasoBateria>& casos);
std::string JsonBateria(const std::vector<CasoBateria>& casos);

}  // namespace novex
