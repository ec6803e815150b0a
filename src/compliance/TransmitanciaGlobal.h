#pragma once

#include <string>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"
#include "compliance/DocumentosHE.h"
#include "compliance/Veredicto.h"
#include "demand/ResultadosCaso.h"
#include "model/Edificio.h"

namespace novex {

/// Áreas de la envolvente que cuentan en K y en n50, m2, y sus productos.
struct EnvolventeHE1 {
  double Aext = 0, KAext = 0;        ///< opacos al exterior; KA en W/K
  double Aterr = 0, KAterr = 0;      ///< en contacto con el terreno
  double Ahuecos = 0, KAhuecos = 0;  ///< con los lucernarios
  double CAh = 0;                    ///< permeabilidad por área de los huecos, m3/h a 100 Pa
  double KLpuentes = 0;              ///< W/K
  double volumen = 0;                ///< m3
  double Total() const { return Aext + Aterr + Ahuecos; }
  /// Volumen entre superficie, m; 0 sin superficie.
  double Compacidad() const { return Total() > 0 ? volumen / Total() : 0.0; }
};
/// Suma la envolvente del primer recinto. \param resultados del caso calculado
EnvolventeHE1 SumarEnvolvente(const Edificio& edificio, const ResultadosCaso& resultados);

/// Interpola entre dos compacidades; fuera de ellas vale el extremo.
double PorCompacidad(double VA, double VA1, double valor1, double VA2, double valor2);

/// Transmitancia global de la envolvente (CTE DB-HE1, 3.1.1).
struct TransmitanciaGlobal {
  EnvolventeHE1 envolvente;
  double K = 0, Klimite = 0;  ///< W/m2K
  bool cumple = true;         ///< lo que no se exige cumple
  std::string notaDemanda;    ///< si las dos demandas son pequeñas
  std::string comparacion, veredicto;
  std::vector<std::string> textos;  ///< compacidad, K y Klimite
  Tabla SGKlimite;
  Grafico grafico;  ///< K·A de cada grupo
  Veredicto registro;
};
TransmitanciaGlobal ComprobarK(const Edificio& edificio, const ResultadosCaso& resultados,
                               const DocumentosHE& documentos);

/// Relación del cambio de aire a 50 Pa (CTE DB-HE1, 3.1.3).
struct RelacionAire {
  double n50 = 0, limite = 0;  ///< 1/h
  bool cumple = true;
  std::vector<std::string> textos;
  std::string veredicto;
  Tabla SGNV50limite;  ///< sin filas si el valor es medido o no se exige
  Veredicto registro;
};
RelacionAire ComprobarN50(const Edificio& edificio, const ResultadosCaso& resultados,
                          const DocumentosHE& documentos);

}  // namespace novex
