#pragma once

#include <string>
#include <vector>

#include "demand/EstadisticasClima.h"
#include "demand/FicheroMet.h"
#include "demand/SecuenciaDias.h"

namespace novex {

/// Una hora de un año generado: la del fichero y las columnas que el cálculo no usa.
struct HoraClima {
  RegistroMet registro;
  double velocidadViento = 0;  ///< m/s
  double direccionViento = 0;  ///< grados
};

/// Genera el año horario de una zona a partir de sus estadísticas mensuales: temperatura por una
/// secuencia autorregresiva de medias diarias sobre la deriva de la estación y el curso medio del
/// día, más ancho los días claros; sol por la claridad diaria; humedad por la media del mes y sin
/// pasar de la saturación; cielo por su depresión media, mayor los días claros. Las mismas
/// estadísticas dan siempre el mismo año. \returns 8760 horas; la hora 1 del año está en la
/// posición 0
std::vector<HoraClima> GenerarClima(const EstadisticasZona& zona);

/// Texto del fichero `.met` de un año generado, con fin de línea CR LF.
/// \param titulo primera línea
/// \param horas las 8760 de `GenerarClima`
std::string TextoMet(const EstadisticasZona& zona, const std::string& titulo,
                     const std::vector<HoraClima>& horas);

/// Fichero `.met` de una zona en un conjunto de clima: "Oficial" (el de referencia) o uno de los
/// que tienen tendencia. \throws std::out_of_range si la zona o el conjunto no están en las
/// estadísticas
std::string GenerarMet(const EstadisticasClima& clima, const std::string& zona,
                       const std::string& conjunto);

}  // namespace novex
