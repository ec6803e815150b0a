#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabla.h"
#include "improvements/EstudioMejoras.h"

namespace novex {

/// Por qué se ordenan las medidas de un estudio.
enum class CriterioMejoras : std::size_t {
  PrimariaNoRenovable,
  Demanda,
  EnergiaFinal,
  Emisiones,
  Coste,
  Codigo
};
inline constexpr std::array<std::string_view, 6> kTextoCriterioMejoras = {
    "Ahorro de energía primaria no renovable",
    "Ahorro de demanda",
    "Ahorro de energía final",
    "Ahorro de emisiones",
    "Coste",
    "Código"};

/// Las medidas de un estudio por orden de un criterio: de más a menos ahorro; por coste, las que lo
/// tienen, de menos a más, y detrás las demás. A igualdad, por código. \param estudio da los costes
std::vector<ResultadoMedida> OrdenarMejoras(std::vector<ResultadoMedida> medidas,
                                            CriterioMejoras criterio,
                                            const EstudioModificaciones& estudio);

/// Columnas de la tabla que se pueden editar o pulsar, y la del código.
inline constexpr std::size_t kColumnaMarcaMejora = 0, kColumnaCodigoMejora = 1,
                             kColumnaCosteMejora = 12, kColumnaAnosMejora = 13;

/// Las medidas con su demanda, energía y emisiones frente a la base, las letras que cambian y, de
/// las marcadas en el estudio ("*"), el coste y los años que ha dado el usuario. La base va
/// delante.
Tabla TablaMejoras(const ResultadoMedida& base, const std::vector<ResultadoMedida>& medidas,
                   const EstudioModificaciones& estudio);

/// El estudio en JSON: la base y las medidas, cada una con su código, su texto, las veintiuna
/// cifras y las letras.
std::string JsonMejoras(const std::string& proyecto, const std::string& nombreCaso,
                        const ResultadoMedida& base, const std::vector<ResultadoMedida>& medidas);

}  // namespace novex
