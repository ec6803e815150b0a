#pragma once

#include <array>
#include <cstddef>

#include "model/Edificio.h"

namespace novex {

/// Altura del sol cuando está en una dirección en un mes.
struct AlturaEnDireccion {
  bool dentro = true;   ///< falso si el sol nunca llega a estar en esa dirección en el mes
  bool hayRaiz = true;  ///< falso si la ecuación no tiene solución: no da sombra
  float tangente = 0;   ///< tangente de la altura
};

/// Declinación de cada mes (1 a 12), grados.
inline constexpr std::array<float, 13> kDeclinacionMes = {
    0, -20.23F, -11.48F, 0, 11.48F, 20.23F, 23.45F, 20.23F, 11.48F, 0, -11.48F, -20.23F, -23.45F};

/// Altura del sol en la dirección de un sector. \param latitud grados \param mes 1 a 12
AlturaEnDireccion AlturaSolEnDireccion(Sector direccion, float latitud, int mes);

/// Parte de la fachada de un sector que los obstáculos lejanos tapan en un mes: media de las
/// direcciones a las que llega el sol. El norte no tiene obstáculos: 0. \param alturaEdificio m
float FraccionObstaculos(Sector fachada, const ObstaculosRemotos& obstaculos, float latitud,
                         int mes, float alturaEdificio);

/// El obstáculo lejano de un rumbo; nada al norte.
ObstaculoCercano ObstaculoRemoto(Sector rumbo, const ObstaculosRemotos& obstaculos);

/// Área en sombra de un muro, m2, o negativa si el elemento se deja como está.
/// \param area,fueraDePlano del muro, m2
/// \param fraccion la de `FraccionObstaculos`
float SombraMuro(float area, float fueraDePlano, float fraccion, int perfilUso, bool verano);

/// Parte de los huecos de una columna que queda sin tapar por los obstáculos cercanos en un mes.
float FraccionSinObstaculos(const ColumnaHuecos& columna, Sector orientacion, float latitud,
                            int mes, int perfilUso, bool verano);

/// Geometría de la sombra que el alero y el retranqueo echan sobre un hueco, m.
struct SombraPropia {
  float ancho, alto, distanciaAlero, longitudAlero, retranqueo;
  explicit SombraPropia(const Huecos& g)
      : ancho(g.Ancho_m),
        alto(g.Alto_m),
        distanciaAlero(g.Distancia_alero_m),
        longitudAlero(g.Longitud_alero_m),
        retranqueo(g.Retranqueo_m) {}
  /// ¿Hay alero o retranqueo?
  bool Hay() const { return longitudAlero != 0.0F || retranqueo != 0.0F; }
  /// Parte del hueco al sol. \param t tangente de la altura entre coseno del azimut relativo
  /// \param s valor absoluto de la tangente del azimut relativo
  float FraccionSoleada(float t, float s) const;
};

/// Ángulos del sol vistos desde una fachada.
struct SolEnFachada {
  bool delante = false;  ///< el sol está sobre el horizonte y delante
  float t = 0;           ///< tangente de la altura entre coseno del azimut relativo
  float s = 0;           ///< valor absoluto de la tangente del azimut relativo
};

/// \param azimut,cenit del sol, grados \param azimutFachada grados
SolEnFachada MirarSol(float azimut, float cenit, float azimutFachada);

/// Parte del hueco al sol en el día representativo del mes, pesada con el sol de cielo claro en la
/// fachada. 1 sin alero ni retranqueo; 0 si ninguna hora cuenta.
float FraccionSolCercana(const SombraPropia& sombra, Sector orientacion, float latitud, int mes);

}  // namespace novex
