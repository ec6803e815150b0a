#pragma once

#include <filesystem>
#include <string_view>

#include "compliance/VerificacionCondensacion.h"

namespace novex {

inline constexpr std::string_view kFicheroCondensacion = "Condensacion.xml";
inline constexpr std::string_view kFicheroPuentesTermicos = "PuentesTermicos.xml";

/// Escribe los dos documentos de trabajo de la comprobación, cada uno entero o nada.
/// `Condensacion.xml` se hace de nuevo. `PuentesTermicos.xml` conserva la fila de títulos y los
/// textos `TIPO` y `Nombre` del que haya; donde falten, o si no se puede leer, lleva los de la
/// verificación.
/// \param carpetaDatos la de los ficheros de datos del programa
/// \returns 0, o el código de `XMLNode::saveToFile` del primero que no se pudo escribir; el otro se
/// escribe igualmente
int EscribirDocumentosCondensacion(const std::filesystem::path& carpetaDatos,
                                   const VerificacionCondensacion& verificacion);

}  // namespace novex
