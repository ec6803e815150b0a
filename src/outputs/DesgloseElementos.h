#pragma once

#include <array>
#include <string>
#include <vector>

#include "demand/calculo.h"

namespace novex {

/// Una barra de un desglose.
struct BarraDesglose {
  std::string rotulo;
  double valor = 0;  ///< kWh/m2 y año; positivo lo que hace demanda
  bool operator==(const BarraDesglose&) const = default;
};

/// La demanda de un servicio repartida por elementos. Las cuatro primeras familias suman la
/// demanda, los cerramientos la barra de opacos, y los grupos y las orientaciones la de huecos.
struct DesgloseServicio {
  std::vector<BarraDesglose> familias;  ///< "Opacos", "Semitransp.", "Renov. aire", "Puentes T.",
                                        ///< y aparte "CargaInterna"
  std::vector<BarraDesglose> opacos;    ///< por cerramiento
  std::vector<BarraDesglose> gruposHuecos;       ///< "H-1"...
  std::vector<BarraDesglose> orientacionHuecos;  ///< "H-NORTE"..., las siete
};

/// Reparte la demanda del año de calefacción o de refrigeración entre lo que los elementos dan o
/// quitan en las horas en que la hay. De cada uno solo cuentan las horas en que su calor hace
/// demanda; una razón común lleva después la suma a la demanda.
/// \param caso ya calculado \param servicio `kCalefaccion` o `kRefrigeracion`
/// \param superficie útil, m2; con 0 todas las barras son 0
DesgloseServicio DesglosarServicio(const calculo& caso, Servicio servicio, float superficie);

/// Código de un cerramiento opaco: "M.(1). N", "C.incl.30ºS1", "C.Hz.Sol1"...
std::string CodigoElemento(const Valores& elemento);

}  // namespace novex
