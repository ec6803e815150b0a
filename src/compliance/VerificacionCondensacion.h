#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"
#include "compliance/Condensacion.h"
#include "compliance/CondensacionPuentes.h"
#include "compliance/Veredicto.h"

namespace novex {

/// Columnas de la tabla de cerramientos, que son también los atributos de `Condensacion.xml`.
inline constexpr std::array<std::string_view, 16> kColumnasCondensacion = {
    "Tipo",  "Nombre", "F1",    "F2",    "CAPA0", "CAPA1", "CAPA2",  "CAPA3",
    "CAPA4", "CAPA5",  "CAPA6", "CAPA7", "CAPA8", "CAPA9", "CAPA10", "Cumplimiento"};
/// Columnas de la tabla de puentes, que son también los atributos de `PuentesTermicos.xml`.
inline constexpr std::array<std::string_view, 5> kColumnasPuentes = {"TIPO", "Nombre", "FRSI",
                                                                     "FRSIMIN", "Cumplimiento"};
inline constexpr std::string_view kNotaCondensacion =
    "Sólo se comprueban los cerramientos definidos por el usuario";

/// Todo lo que se enseña de la comprobación de condensaciones de un caso.
struct VerificacionCondensacion {
  CondicionesCondensacion condiciones;
  std::vector<CondensacionElemento> elementos;
  std::vector<CondensacionPuente> puentes;
  bool cumpleCerramientos = true;
  bool cumplePuentes = true;
  std::string textoCerramientos;  ///< rótulo del resultado de los cerramientos
  std::string textoPuentes;       ///< rótulo del resultado de los puentes
  /// Dos por cerramiento, la superficie y la peor interfaz, y uno por puente.
  std::vector<Veredicto> veredictos;
  Tabla tablaCerramientos;        ///< `SGCondensacion`: dos filas por cerramiento
  Tabla tablaPuentes;             ///< `SGPuentes`: una fila por puente
  std::vector<Grafico> graficos;  ///< uno por cerramiento, en su orden: presiones en su espesor
};

/// Comprueba las condensaciones de los cerramientos y los puentes térmicos de un caso (CTE DA
/// DB-HE/2). El caso ha de estar calculado: de ahí sale el estado exterior de proyecto.
VerificacionCondensacion VerificarCondensaciones(const Edificio& edificio);

}  // namespace novex
