#pragma once

#include <optional>

#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Añade el único espacio del edificio: superficie, volumen, perfil, consignas, ventilación e
/// iluminación.
void VariablesEspacio(const CasoCalculado& caso, std::vector<VBLE>& variables);

/// Añade los consumos de bombas y ventiladores, kWh al año, y en terciario la unidad de tratamiento
/// de aire y las torres de refrigeración.
void VariablesAuxiliares(const CasoCalculado& caso, std::vector<VBLE>& variables);

/// Perfil de uso con su nombre del registro de certificados: "residencial-24h-baja"...
std::string PerfilUsoCertificado(int perfilUso);

/// La unidad de tratamiento de aire de un terciario, como la enseñan el certificado, el fichero de
/// proyecto y el informe de la administración.
struct UnidadTratamientoAire {
  std::string nombre;                 ///< "UTAprimario", o "UTA" si es un sistema todo aire
  bool todoAire = false;              ///< climatiza además de ventilar
  bool recuperacion = false;          ///< tiene recuperador
  bool enfriamientoGratuito = false;  ///< y se prueba en el cálculo
  std::string control;                ///< del aire exterior: "Ventilacion con sonda CO2"...
};
/// \returns vacía en residencial y si el aire se toma en cada unidad terminal
std::optional<UnidadTratamientoAire> UnidadDeAireDe(const Edificio& edificio);

}  // namespace novex
