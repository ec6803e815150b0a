#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Tabla.h"
#include "compliance/Veredicto.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Demanda anual de agua caliente a 60 °C con el volumen de referencia (CTE DB-HE, anejo F).
/// \param volumen l/día \param aguaRed temperatura de la red por meses, °C (la posición 0 no se
/// mira) \returns kWh
double DemandaAnualACS(float volumen, const TablaMensual& aguaRed);

/// Porcentaje mínimo de la demanda de agua caliente que ha de ser renovable (CTE DB-HE4, 3.1).
/// \param volumenReferencia l/día
int AporteRenovableMinimo(float volumenReferencia);

/// Rótulo de la contribución, que no es un campo.
inline constexpr std::string_view kRotuloRenovableHE4 = "Porcentaje renovable sobre demanda en ACS";
/// Lo que se dice junto a las pérdidas.
inline constexpr std::string_view kTextoPerdidasHE4 =
    "(en CTE-HE4 2019 no influye en los cálculos)";

/// Un campo de la pantalla.
struct CampoHE4 {
  std::string nombre;  ///< el del campo
  std::string rotulo;
  Celda valor;
};

/// Lo que se enseña de la contribución renovable al agua caliente (CTE DB-HE4).
struct RequisitoHE4 {
  bool aplica = false;
  bool pasa = true;
  std::vector<CampoHE4> campos;
  int minimo = 0;      ///< %
  Tabla SGHE4Demanda;  ///< demanda y pérdidas, kWh
  Tabla SGRenovACS;    ///< aportes renovables, kWh de energía primaria
  double f = 0;        ///< contribución, %, hasta 100
  int fEntera = 0;     ///< la misma sin decimales, la de la pantalla
  std::string LabelCUMPEHE4;
  std::string RERACSNRB, RERACSNRBMIN, RERACSCUMPLE;  ///< textos de los documentos
  Veredicto veredicto;
};

/// Comprueba la contribución renovable mínima al agua caliente de un caso (CTE DB-HE4).
/// Las pérdidas de depósito y recirculación se muestran y no cuentan. \param exenta ¿la deja fuera
/// la clase de intervención ("NO" a "HE4")? \param caso ya plegado, con sus factores
RequisitoHE4 ComprobarHE4(const Edificio& edificio, const calculo& caso, bool exenta);

}  // namespace novex
