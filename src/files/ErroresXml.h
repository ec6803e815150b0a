#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/ErrorFichero.h"

namespace novex {

/// Códigos de resultado de la capa XML.
namespace codigoXml {
inline constexpr int kSinError = 0;
inline constexpr int kSinCerrar = 1;
inline constexpr int kSinEtiquetas = 2;
inline constexpr int kVacio = 3;
inline constexpr int kFaltaNombreInicial = 4;
inline constexpr int kFaltaNombreFinal = 5;
inline constexpr int kCierreDesparejado = 6;
inline constexpr int kBloqueSinCerrar = 7;
inline constexpr int kInesperado = 8;
inline constexpr int kSinElementos = 9;
inline constexpr int kNoEncontrado = 10;
inline constexpr int kRaizDistinta = 11;
inline constexpr int kEntidadDesconocida = 12;
inline constexpr int kMayorDe255 = 13;
inline constexpr int kNoConvertible = 14;
inline constexpr int kNoSeAbre = 15;
inline constexpr int kNoSeEscribe = 16;
inline constexpr int kBase64NoMultiplo = 17;
inline constexpr int kBase64Truncado = 19;
inline constexpr int kDesconocido = 21;
}  // namespace codigoXml

/// Texto de un código de resultado; "Unknown" para los que no están en la tabla.
std::string_view TextoErrorXml(int codigo);

/// Lugar de un fichero, desde 1; 0 si no se conoce.
struct PosicionTexto {
  int linea = 0;
  int columna = 0;
};

/// Línea y columna (en bytes) del byte `desplazamiento` de un texto.
PosicionTexto PosicionDe(std::string_view texto, std::size_t desplazamiento);

/// El error de lectura que se lanza por un fichero mal formado.
/// \param ruta fichero que se leía
/// \param raiz etiqueta que se esperaba, que solo se nombra con el código 11
/// \param detalle texto que sustituye al del código, si no está vacío
ErrorFichero ErrorLecturaXml(const std::string& ruta, int codigo, PosicionTexto donde,
                             std::string_view raiz = {}, std::string_view detalle = {});

/// ¿Es de un XML que no se entiende o que falta, y no de abrirlo, escribirlo o de su versión?
bool EsDeLecturaXml(const ErrorFichero& error);

}  // namespace novex
