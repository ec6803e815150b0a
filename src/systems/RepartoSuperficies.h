#pragma once

#include <vector>

#include "demand/AjustesUso.h"
#include "systems/RespuestaHora.h"

namespace novex {

/// ¿Da un sistema su calor y su frío por el aire de ventilación? Lo dice su primer bloque.
bool EsSistemaDeAire(const SistemaResidencial& sistema);

/// Superficie que cada sistema del caso sirve de cada servicio, m2, en su orden. La de calefacción
/// y la de refrigeración se reparten en proporción a la potencia entre los sistemas de zona y, por
/// su lado, entre los de aire; un rendimiento estacional las sirve enteras. La de agua caliente es
/// la que el sistema tiene. Un sistema sin bloques no sirve nada.
std::vector<CargasHora> SuperficiesServidas(const Edificio& edificio);

/// La carga de cada servicio que le toca a cada sistema, de 0 a 1, antes de lo que un sistema no
/// alcance y pase al siguiente.
struct RepartoServicios {
  std::vector<CargasHora> partes;  ///< por sistema, en su orden
  CargasHora sinSistema{};         ///< lo que no sirve ninguno
};
/// El reparto de un caso. Sin superficie útil no se reparte nada.
RepartoServicios RepartirServicios(const Edificio& edificio, SistemaAire aire);

}  // namespace novex
