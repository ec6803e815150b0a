#pragma once

#include <string_view>

namespace novex {

inline constexpr std::string_view kNombrePrograma = "NOVEX";
inline constexpr std::string_view kVersionPrograma = "2026.09.30";
/// Versión que llevan los ficheros que se escriben.
inline constexpr std::string_view kVersionActual = "NOVEX 2026.09.30";
inline constexpr std::string_view kEtiquetaVersion = "Version";

/// Disposición de los datos generales y del sitio de un caso.
enum class DisposicionProyecto {
  Actual,      ///< el sitio, dentro de los datos generales
  SitioAparte  ///< la de antes, con el sitio en su propia sección
};

/// Lo que cambia de una versión a otra en los ficheros XML.
struct ReglasVersion {
  std::string_view version;
  DisposicionProyecto disposicion = DisposicionProyecto::SitioAparte;
  bool usoYAlcance = false;         ///< tiene el tipo de certificado, el uso y el alcance
  bool sistemas = false;            ///< define los sistemas como hoy
  bool consumoRecuperador = false;  ///< define el consumo del recuperador como hoy
  /// Cuenta aparte los dormitorios simples y no tiene los ajustes de la ventilación.
  bool dormitoriosSimples = false;
};

/// Las reglas de una versión, comparada exactamente. Una desconocida se lee como las más antiguas.
const ReglasVersion& ReglasDe(std::string_view version);

}  // namespace novex
