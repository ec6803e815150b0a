#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "compliance/Veredicto.h"
#include "model/Edificio.h"

namespace novex {

/// Rótulos de lo que se pide en la pantalla.
inline constexpr std::string_view kRotuloSuperficieTotalHE5 =
    "S: Superficie construida del edificio (m2). Incluye sup. dedicada a aparcamientos";
inline constexpr std::string_view kRotuloSuperficieCubiertaHE5 =
    "Sc: Superficie cubierta no transitable (m2)";
inline constexpr std::string_view kRotuloSuperficieCaptadorestermHE5 =
    "Soc: Superficie cubierta no transitable (m2) ocupada por captadores solares térmicos";
inline constexpr std::string_view kRotuloRehabIntegralHE5 = "Rehabilitación Integral";

/// Lo que se enseña de la generación fotovoltaica (CTE DB-HE5).
struct RequisitoHE5 {
  bool aplica = false;       ///< ¿está el edificio entre los de la sección?
  bool obligatoria = false;  ///< ¿llega además a la superficie que obliga?
  bool pasa = true;
  double P1 = 0;                    ///< por la superficie construida, kW
  double P2 = 0;                    ///< por la cubierta libre de captadores, kW
  double requerida = 0;             ///< la menor de las dos, kW
  double instalada = 0;             ///< kW
  std::vector<std::string> lineas;  ///< textos de la pantalla, en su orden
  std::string H5FRASE;              ///< la frase del documento
  Veredicto veredicto;
};

/// Comprueba la potencia fotovoltaica de un edificio (CTE DB-HE5). La pantalla la exige desde 1000
/// m2; el documento, por encima de 1000 m2. \param generales da `Modo_trabajo`, `Reforma`,
/// `PerfilUso`, las superficies (m2), la rehabilitación integral y las potencias (kW)
RequisitoHE5 ComprobarHE5(const DatosGenerales& generales);

/// Guardan la superficie tecleada, m2, comprobada con la clave "Area", y vuelven a comprobar la
/// sección. \param mensajes recibe el aviso si el texto no vale; se guarda entonces el valor que lo
/// sustituye
RequisitoHE5 PonerSuperficieTotalHE5(Edificio& edificio, std::string_view texto,
                                     Mensajes& mensajes);
RequisitoHE5 PonerSuperficieCubiertaHE5(Edificio& edificio, std::string_view texto,
                                        Mensajes& mensajes);
RequisitoHE5 PonerSuperficieCaptadorestermHE5(Edificio& edificio, std::string_view texto,
                                              Mensajes& mensajes);

/// Guarda si la rehabilitación es integral, como "Si" o "No", y vuelve a comprobar la sección.
RequisitoHE5 PonerRehabIntegralHE5(Edificio& edificio, bool marcada);

}  // namespace novex
