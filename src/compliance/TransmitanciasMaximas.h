#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/Tabla.h"
#include "compliance/DocumentosHE.h"
#include "compliance/Veredicto.h"
#include "demand/ResultadosCaso.h"
#include "model/Edificio.h"

namespace novex {

/// Una fila de las transmitancias máximas.
struct FilaMaximo {
  std::string rotulo;
  float valor = 0;  ///< el mayor de sus elementos, W/m2K (la última, m3/h m2); 0 si no hay
  float limite = 0;
  bool contados = false;  ///< ¿hay algún elemento que se compruebe?
  bool cumple = true;
  std::string TextoValor() const;  ///< "---" si es 0
  std::string TextoCumple() const { return cumple ? "Cumple" : "No cumple"; }
};

/// Transmitancias y permeabilidad máximas de los elementos (CTE DB-HE1, tabla 3.1.1.a).
struct TransmitanciasMaximas {
  std::array<FilaMaximo, kFilasMaximo> filas;
  bool cumple = true;
  std::string veredicto;  ///< el de todas las filas
  Tabla SGValorMaximo;
  std::vector<Veredicto> veredictos;
};

/// Compara con su límite el mayor valor de cada fila. En un edificio al que se exige entero cuentan
/// todos los elementos; en una reforma, los que intervienen. Los huecos de un grupo sin unidades no
/// cuentan.
/// \param resultados del caso calculado: U efectiva, equivalente al terreno y b·U
TransmitanciasMaximas ComprobarTransmitancias(const Edificio& edificio,
                                              const ResultadosCaso& resultados,
                                              const DocumentosHE& documentos);

}  // namespace novex
