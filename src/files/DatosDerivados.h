#pragma once

#include <array>
#include <string>
#include <utility>
#include <vector>

#include "model/NodoConservado.h"
#include "model/TablaEnvolvente.h"

namespace novex {

/// Lo que el fichero de proyecto lleva de los resultados, para los programas que lo leen. Nada de
/// ello se vuelve a leer. Sin cálculo todo es 0 o falta.
struct DatosDerivados {
  struct Caso {
    std::array<float, kRanuras> UCTE{};  ///< U de los resultados por posición, W/m2K
    float WBombCAPST = 0, WBombDEPST = 0, WBombRECST = 0;  ///< bombas solares, kWh al año
    float WEnergiaFinalVent = 0, WEnergiaFinalVentUTC = 0, WEnergiaFinalVentUTR = 0;  ///< kWh/año
    float ConsumoVentilacionAExt = 0;                                                 ///< kWh/año
    float Caudal2Vent = 0;                                                            ///< m3/h
    float PotenciaEspecificaVent = 0;  ///< W por m3/h
    float CargaInternaMedia = 0;       ///< W/m2

    /// Resultados de un generador: etiqueta y valor ya escrito, en el orden del fichero.
    using ResultadosSistema = std::vector<std::pair<std::string, std::string>>;
    /// Uno por bloque de generador, contados por sistemas y dentro de cada uno por bloques.
    std::vector<ResultadosSistema> resultadosSistemas;
    /// Bloques de resultados que siguen a las instalaciones del primer caso.
    std::vector<NodoConservado> bloques;
  };

  /// Por caso de usuario: la base, la primera mejora... Los que faltan valen como sin cálculo.
  std::vector<Caso> casos;
};

}  // namespace novex
