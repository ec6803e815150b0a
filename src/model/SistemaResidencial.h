#pragma once

#include <string>
#include <utility>
#include <vector>

namespace novex {

/// Un elemento de un fichero tal como se leyó, para devolverlo sin pérdida al guardar.
struct NodoConservado {
  std::string nombre;
  std::vector<std::pair<std::string, std::string>> atributos;
  std::string texto;
  std::vector<NodoConservado> hijos;
  bool operator==(const NodoConservado&) const = default;
};

/// Un bloque de generador de un sistema.
struct Instalaciones {
  std::string Seleccion;           ///< clase de generador
  std::string TipoInstalacionesG;  ///< "Individual/Vivienda" o "Centralizada/Bloque"
  /// Los campos del bloque como están en el fichero, en su orden.
  std::vector<NodoConservado> campos;
  bool operator==(const Instalaciones&) const = default;
};

/// Un sistema como lo ve el usuario.
struct SistemaResidencial {
  std::string Tipo_sistema;  ///< servicios que da
  std::string Nombre_sistema;
  float Sup_ACS = 0, Sup_Calefaccion = 0, Sup_Refrigeracion = 0;  ///< m2 servidos
  std::vector<Instalaciones> instalaciones;
  bool operator==(const SistemaResidencial&) const = default;
};

}  // namespace novex
