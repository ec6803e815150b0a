#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace novex {

/// Un programa externo y lo que se le pasa. Ningún intérprete de órdenes lee los argumentos: llegan
/// tal como están, con sus blancos y sus comillas.
struct OrdenProceso {
  std::filesystem::path programa;       ///< camino del ejecutable; no se busca en el PATH
  std::vector<std::string> argumentos;  ///< sin el nombre del programa
  std::filesystem::path carpeta;        ///< carpeta de trabajo; vacía, la de quien lo arranca
};

/// Hasta dónde se espera a un programa y cuánto se guarda de lo que escribe.
struct LimitesProceso {
  std::chrono::milliseconds plazo{std::chrono::minutes(5)};
  /// Bytes de cada salida que se guardan: los últimos, que es donde un programa dice por qué falla.
  std::size_t bytes = 64 * 1024;
};

/// Cómo ha acabado un programa al que se ha esperado.
struct ResultadoProceso {
  std::string motivo;           ///< por qué no ha arrancado; vacío si ha arrancado
  int codigo = -1;              ///< código de salida; -1 si no ha acabado por sí mismo
  int senal = 0;                ///< señal que lo ha acabado, o 0
  bool plazoVencido = false;    ///< se ha acabado con él, y con los que hubiera arrancado
  std::string salida, errores;  ///< el final de lo que ha escrito en cada salida

  bool Arrancado() const { return motivo.empty(); }
  bool Bien() const { return Arrancado() && codigo == 0; }
};

/// Arranca un programa y espera a que acabe. No hereda nada de lo que este tiene abierto: su
/// entrada está vacía y sus salidas se guardan. Corre en un grupo propio, que se mata entero si
/// pasa el plazo; lo que deje andando al acabar no se espera.
ResultadoProceso EjecutarProceso(const OrdenProceso& orden, const LimitesProceso& limites = {});

/// Arranca un programa y no lo espera: sigue aunque acabe este, y no escribe en sus salidas.
/// \returns por qué no ha arrancado; vacío si lo ha hecho
std::string LanzarProceso(const OrdenProceso& orden);

/// Camino de un programa en las carpetas absolutas del PATH; vacío si no está o si `nombre` no es
/// solo un nombre.
std::filesystem::path BuscarPrograma(std::string_view nombre);

}  // namespace novex
