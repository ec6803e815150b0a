#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "model/DatosPantalla.h"

namespace novex {

/// Registros que dan la referencia catastral; el primero es el de un proyecto nuevo.
inline constexpr std::array<std::string_view, 5> kRegistrosCatastro = {"DGC", "AFA", "BFA", "GFA",
                                                                       "RRTN"};

/// Las tres partes de una referencia, en el orden de la cuadrícula.
inline constexpr std::array<std::string_view, 3> kPartesCatastro = {"Parcela", "Inmueble", "Parte"};

/// Los dos resultados de comprobar una parte.
inline constexpr std::string_view kCorrecto = "correcto";
inline constexpr std::string_view kIncorrecto = "incorrecto";

/// Comprueba la forma de una parte de una referencia; no consulta ningún registro.
/// \param registro uno de `kRegistrosCatastro`; con otro solo puede ser correcta la "Parte"
/// \param parte una de `kPartesCatastro`; otra es siempre incorrecta
/// \returns `kCorrecto` o `kIncorrecto`
std::string_view ComprobarParteCatastro(std::string_view texto, std::string_view registro,
                                        std::string_view parte);

/// ¿Están bien las tres partes de todas las referencias? Sin ninguna referencia faltan datos, y es
/// falso.
bool ComprobarReferencias(const std::vector<ReferenciaCatastral>& referencias,
                          std::string_view registro);

/// Las referencias como se escriben en los documentos: parcela e inmueble seguidos, tras un blanco
/// la parte si la hay, y separadas por ", ".
std::string TextoReferencias(const std::vector<ReferenciaCatastral>& referencias);

/// Rótulos de las tres partes según el registro; con uno desconocido, sus nombres.
std::array<std::string_view, 3> RotulosCatastro(std::string_view registro);

/// Aviso de que el certificado no se exporta por las referencias.
inline const Mensaje kAvisoCatastro = {
    "AVISO", "No se genera el fichero. Faltan datos catastro o no tienen la estructura correcta"};

}  // namespace novex
