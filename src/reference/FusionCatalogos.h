#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "model/NodoConservado.h"

namespace novex {

/// Lo que ha hecho una puesta al día.
struct CuentaFusion {
  int nuevas = 0;      ///< entradas que trae la nueva versión y no estaban
  int corregidas = 0;  ///< de la versión anterior, sin tocar por el usuario, que cambian
  int retiradas = 0;   ///< de la versión anterior, sin tocar por el usuario, que ya no están
  int conservadas =
      0;  ///< cambiadas o borradas por el usuario donde la nueva versión dice otra cosa
};

/// Pone al día un catálogo con los de una nueva versión del programa sin perder lo del usuario: una
/// entrada que él ha añadido o cambiado queda como está, una que ha borrado no vuelve, y el resto
/// sigue a la versión nueva.
/// \param anterior el catálogo como vino en la versión anterior; vacío si no se sabe, y entonces
/// toda entrada presente es del usuario
CuentaFusion FundirCatalogo(const NodoConservado& anterior, NodoConservado& usuario,
                            const NodoConservado& nuevo);

/// Catálogos que el usuario amplía: fichero y elemento raíz.
struct CatalogoAmpliable {
  std::string fichero, raiz;
};
const std::vector<CatalogoAmpliable>& CatalogosAmpliables();

/// Pone al día los catálogos ampliables de una carpeta de datos con los de otra, que trae la nueva
/// versión. La copia de lo que vino queda en `fabrica/`, para la próxima vez.
/// \returns la cuenta de cada catálogo, en su orden
/// \throws ErrorFichero si uno no se puede leer o escribir
std::vector<CuentaFusion> ActualizarCatalogos(const std::filesystem::path& deLaVersion,
                                              const std::filesystem::path& datos);

}  // namespace novex
