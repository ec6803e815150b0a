#pragma once

namespace novex {

/// Irradiancia de cielo claro sobre un plano vertical (modelo de Bird), W/m2; 0 con el sol bajo el
/// horizonte. Atmósfera fija: ozono 0,3 cm, agua 1,3 cm, aerosol 0,04; albedo del suelo 0,2.
/// \param cenit grados \param cosenoIncidencia sobre el plano
float IrradianciaCieloClaro(float cenit, float cosenoIncidencia);

}  // namespace novex
