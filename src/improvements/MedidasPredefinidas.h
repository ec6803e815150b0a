#pragma once

#include <span>
#include <string>

#include "demand/ResultadosCaso.h"

namespace novex {

/// Página del estudio en que está una medida.
enum class PaginaMedida { Demanda, CombinacionesDemanda, Equipos };

/// Una medida predefinida del estudio de mejoras.
struct MedidaPredefinida {
  int codigo = 0;
  PaginaMedida pagina = PaginaMedida::Demanda;
  std::string texto;
  Forzados forzados;  ///< lo que impone al cálculo
};

/// Las setenta medidas, por orden de código.
std::span<const MedidaPredefinida> MedidasPredefinidas();

/// La medida de un código, o nula si no lo tiene ninguna.
const MedidaPredefinida* MedidaDeCodigo(int codigo);

/// Parte solar que ponen en el lugar del combustible las medidas de captadores; 0 en las demás.
float ParteSolarForzada(const ServicioForzado& servicio);

/// Los cambios de un cálculo corriente: ninguno, con los combustibles de partida.
Forzados SinForzar();

}  // namespace novex
