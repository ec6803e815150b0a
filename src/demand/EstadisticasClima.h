#pragma once

#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "base/Calendario.h"

namespace novex {

/// Curso medio del día: la hora 1 está en la posición 0.
using CursoDiario = std::array<double, 24>;

/// Estadísticas del clima de una zona en un mes.
struct EstadisticasMes {
  double temperaturaMedia = 0;    ///< °C
  double incremento = 0;          ///< de la temperatura sobre la de referencia, K
  double desviacionDiaria = 0;    ///< desviación típica (muestral) de las medias diarias, K
  double autocorrelacion = 0;     ///< de las medias diarias, de un día al siguiente
  double temperaturaMinima = 0;   ///< la hora más fría, °C
  double temperaturaMaxima = 0;   ///< la hora más cálida, °C
  double humedadRelativa = 0;     ///< media, %
  double directa = 0;             ///< irradiación directa horizontal del mes, kWh/m2
  double difusa = 0;              ///< irradiación difusa horizontal del mes, kWh/m2
  double desviacionGlobal = 0;    ///< desviación típica de la irradiación global diaria, kWh/m2
  double desviacionViento = 0;    ///< desviación típica horaria, m/s
  CursoDiario temperatura{};      ///< °C
  CursoDiario depresionCielo{};   ///< temperatura seca menos la del cielo, K
  CursoDiario directaHora{};      ///< W/m2 en el plano horizontal
  CursoDiario difusaHora{};       ///< W/m2 en el plano horizontal
  CursoDiario humedadAbsoluta{};  ///< kg/kg
  CursoDiario viento{};           ///< m/s
};

/// Estadísticas del clima de una zona y su lugar de referencia.
struct EstadisticasZona {
  std::string zona;
  double latitud = 0;    ///< grados
  double longitud = 0;   ///< grados
  double altitud = 0;    ///< m
  double meridiano = 0;  ///< grados
  std::array<EstadisticasMes, kMeses> meses;
};

/// Cuánto se aparta un conjunto de clima del clima de referencia.
struct TendenciaClima {
  std::string conjunto;                     ///< "1992", "2002", "2012" o "2022"
  std::array<double, kMeses> incremento{};  ///< de la temperatura media de cada mes, K
};

/// Estadísticas de todas las zonas y tendencias de todos los conjuntos.
struct EstadisticasClima {
  std::vector<EstadisticasZona> zonas;
  std::vector<TendenciaClima> tendencias;

  /// La zona de ese nombre, o nullptr.
  const EstadisticasZona* Zona(std::string_view nombre) const;
  /// La tendencia de ese conjunto, o nullptr.
  const TendenciaClima* Tendencia(std::string_view conjunto) const;
};

/// Lee y comprueba `mensual.csv`, `perfil_diario.csv` y `tendencia.csv`.
/// \param carpeta la que los contiene
/// \throws ErrorFichero con fichero y línea si falta uno, si su cabecera no es la esperada, si un
/// campo no es un número o sale de margen, o si falta o se repite un mes de una zona.
EstadisticasClima LeerEstadisticasClima(const std::filesystem::path& carpeta);

/// Estadísticas de la zona con las temperaturas de un conjunto. El tiempo de cada día es el mismo
/// que el de referencia, así que la diferencia entre conjuntos es la de la tendencia y nada más. La
/// humedad relativa, la radiación y la depresión del cielo se conservan; con el aire más caliente
/// sube la humedad absoluta.
EstadisticasZona AplicarTendencia(const EstadisticasZona& zona, const TendenciaClima& tendencia);

}  // namespace novex
