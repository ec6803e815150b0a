#pragma once

#include <array>
#include <span>
#include <string>

#include "base/Mensajes.h"
#include "model/Edificio.h"

namespace novex {

/// Las tres maneras de dar los puentes térmicos de la página, en el orden de sus botones.
enum class OrigenPuentes {
  Tipicos,     ///< por soluciones constructivas
  Especiales,  ///< valores dados
  Lider        ///< valores por defecto de la zona
};

/// Lo que muestran los controles de la página de puentes térmicos.
struct PaginaPuentes {
  OrigenPuentes origen = OrigenPuentes::Lider;
  int forjados = 0;           ///< `RGForjados`: 0 no aislado, 1 aislado, 2 continuo
  int pilares = 0;            ///< `RGPuentesPilar`, 0 a 3
  int ventanas = 0;           ///< `RGPuentesVentanas`, 0 a 2
  int existenciaPilares = 0;  ///< `RGPuentesExistenciaPilares`: 0 con pilares, 1 sin ellos
  /// Los siete pares tecleados, por `Puente`: transmitancia lineal (W/mK) y factor de temperatura.
  struct Par {
    std::string U, fi;
  };
  std::array<Par, kPuentes> valores;
};

/// Lleva la página al registro de construcción: el modo, los pilares y las ventanas que siguen de
/// sus controles, los valores dados (comprobados con "Puente" y "Cualquiera") o los de las tablas,
/// y las longitudes si se estiman. Una posición fuera de su lista no cambia lo suyo.
void AceptarPaginaPuentes(Edificio& edificio, const PaginaPuentes& pagina, Mensajes& mensajes);

/// La página que corresponde a un registro.
PaginaPuentes PaginaDePuentes(const Construccion& construccion);

/// Al salir de la página con las longitudes facilitadas: las doce, comprobadas con "Long", en el
/// orden norte a este de los pilares, forjados, cubiertas, esquinas, suelo exterior, huecos y suelo
/// al terreno. En modo "Estimados" las estima y no mira los textos.
void AceptarLongitudes(Edificio& edificio, std::span<const std::string, 12> textos,
                       Mensajes& mensajes);

}  // namespace novex
