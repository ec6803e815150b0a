#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"
#include "compliance/VerificacionHE.h"

namespace novex {

/// Las hojas en que se enseña la verificación, en su orden.
enum class HojaHE {
  Resumen,
  HE0,
  Global,  ///< K, control solar y n50
  Maximas,
  Condensaciones,
  HE3,
  HE4,
  HE5,
  Coeficientes
};
/// Título de su pestaña.
std::string_view TituloHojaHE(HojaHE hoja);

/// Cómo se marca una hoja o una comprobación.
enum class MarcaHE { Cumple, NoCumple, NoAplica };
std::string_view TextoMarca(MarcaHE marca);
/// Marca de una hoja: no cumple si falla algo que se exige, y no se aplica si no se exige nada. La
/// de los coeficientes está vacía.
std::optional<MarcaHE> MarcaHoja(HojaHE hoja, const VerificacionHE& verificacion);
/// Marca del HE1 entero: K, control solar, n50, transmitancias y condensaciones.
MarcaHE MarcaHE1(const VerificacionHE& verificacion);

/// Una comprobación tal como se enseña.
struct BloqueHE {
  std::string titulo;
  std::vector<std::string> textos;
  std::string veredicto;         ///< vacío, sin él
  std::optional<MarcaHE> marca;  ///< la del veredicto
  std::vector<Tabla> tablas;
  std::vector<Grafico> graficos;  ///< si son varios, se elige uno por su título
};

/// Las comprobaciones de una hoja, con todo lo que la verificación dice de ellas.
/// \param caso da los coeficientes de paso
std::vector<BloqueHE> BloquesHojaHE(HojaHE hoja, const VerificacionHE& verificacion,
                                    const calculo& caso);

/// Lo que se dice antes de la verificación: qué pide el objetivo del proyecto y qué se exige a este
/// edificio por su clase y su intervención.
std::vector<std::string> AlcanceVerificacion(const DatosGenerales& generales);

}  // namespace novex
