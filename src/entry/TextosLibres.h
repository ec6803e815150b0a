#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "model/DatosGenerales.h"
#include "model/EstudioModificaciones.h"

namespace novex {

/// Líneas que caben en la nota de una medida del estudio.
inline constexpr std::size_t kLineasNota = 10;

/// Un texto en sus líneas, sin el salto final. Las que pasan de `limite` (`kLineasMemo` en los
/// textos libres del edificio y de sus mejoras) se cortan, con su aviso.
std::vector<std::string> LineasDeTexto(std::string_view texto, std::size_t limite,
                                       Mensajes& mensajes);

/// Guarda la nota de una medida marcada, de diez líneas como mucho; vacía, la quita.
/// \returns false si el código no está marcado en el estudio
bool GuardarNotaMedida(EstudioModificaciones& estudio, int codigo, std::string_view texto,
                       Mensajes& mensajes);

/// La nota guardada de una medida; vacía si no tiene.
std::vector<std::string> NotaMedida(const EstudioModificaciones& estudio, int codigo);

}  // namespace novex
