#pragma once

#include <array>
#include <string_view>

#include "base/Mensajes.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"

namespace novex {

/// Épocas de construcción de la tabla de valores por defecto, en su orden.
inline constexpr std::array<std::string_view, 4> kPeriodosConstruccion = {
    "Antes_1979", "1979-2013", "2013-2019", "Despues_2019"};

/// Transmitancias de una época y una zona de invierno, W/m2K. Las de suelo al exterior y hueco se
/// leen y no van a ninguna posición.
struct ValoresDefectoU {
  float murosext = 0, murosl_ln = 0, murosln_ext = 0;
  float cubext = 0, cubl_ln = 0, cubln_ext = 0;
  float suelot = 0, sueloext = 0, suelovs = 0, suelol_ln = 0, sueloln_ext = 0;
  float hueco = 0;
};

/// Letra de invierno de una zona climática: "alfa" o de la "A" a la "E"; vacía si no empieza por
/// ninguna. Ni la cifra de verano ni la "c" final cuentan.
std::string_view LetraZona(std::string_view zona);

/// Lee las doce transmitancias de una época y una letra, comprobadas con "CoefU" y la última con
/// "CoefUH". Un dato, una época o una letra que faltan dan los valores de sustitución, con su
/// aviso. \param raiz elemento `ValoresDefectoU`
ValoresDefectoU LeerValoresDefectoU(const XMLNode& raiz, std::string_view periodo,
                                    std::string_view letra, Mensajes& mensajes);

/// Pone las transmitancias en las posiciones del edificio que les corresponden, sin capas ni
/// nombre.
void PonerValoresDefectoU(const ValoresDefectoU& valores, Edificio& edificio);

}  // namespace novex
