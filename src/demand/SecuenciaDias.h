#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/Calendario.h"

namespace novex {

inline constexpr std::size_t kDiasAno = 365;

/// Un valor por día del año; el 1 de enero está en la posición 0.
using SerieDiaria = std::array<double, kDiasAno>;

/// Primer día (desde 0) del mes `m` (desde 0).
constexpr std::size_t PrimerDia(std::size_t m) {
  return static_cast<std::size_t>(kUltimaHoraMes[m] / 24);
}
/// Días del mes `m` (desde 0).
constexpr std::size_t DiasDe(std::size_t m) {
  return static_cast<std::size_t>(kDiasMes[m + 1]);
}

/// Números pseudoaleatorios propios (splitmix64): la misma sucesión en toda máquina.
class Azar {
 public:
  explicit Azar(std::uint64_t semilla) : estado_(semilla) {}
  /// Uniforme en [0, 1).
  double Uniforme();
  /// Normal de media 0 y desviación 1, como suma de doce uniformes: sin funciones de biblioteca que
  /// cambien de una máquina a otra.
  double Normal();

 private:
  std::uint64_t Entero();

  std::uint64_t estado_;
};

/// Media, desviación típica muestral, autocorrelación a un paso y correlación de dos muestras.
double Media(const double* valores, std::size_t cuantos);
double Desviacion(const double* valores, std::size_t cuantos);
double Autocorrelacion(const double* valores, std::size_t cuantos);
double Correlacion(const double* a, const double* b, std::size_t cuantos);

/// Valor en una hora de una magnitud que se une de día a día con rectas de mediodía a mediodía. El
/// año se toma periódico. \param dia desde 0 \param hora desde 0
double EntreDias(const SerieDiaria& nodos, std::size_t dia, std::size_t hora);

/// Curva anual continua, un valor por día, cuya media en cada mes es la dada.
SerieDiaria CurvaEstacional(const std::array<double, kMeses>& medias);

/// Secuencia de normales tipificadas de la claridad de los días: la misma para todas las zonas, de
/// modo que dos zonas o dos conjuntos se comparan con el mismo tiempo.
SerieDiaria SecuenciaClaridad();

/// Lo que ha de cumplir en un mes la secuencia de medias diarias de temperatura.
struct ObjetivoMes {
  double media = 0;       ///< °C
  double desviacion = 0;  ///< K
  double autocorrelacion = 0;
  double minima = 0;  ///< hora más fría del mes, °C
  double maxima = 0;  ///< hora más cálida del mes, °C
  double noche = 0;   ///< lo que la noche media baja de la media del día (negativo), K
  double tarde = 0;   ///< lo que la tarde media sube sobre la media del día, K
};

/// Medias diarias de temperatura de un año: curva estacional más una secuencia autorregresiva de
/// primer orden por mes, con la media, la desviación y la autocorrelación de cada mes (estas
/// últimas incluyen la deriva de la estación). De muchas secuencias al azar se toma la que mejor
/// las cumple, con las rachas propias de esa autocorrelación, sin correlación con la claridad,
/// cerca de los extremos del mes y que enlaza con el mes anterior. \param claridad la de
/// `SecuenciaClaridad` \param amplitud de la onda diaria de cada día, con media 1 en el mes
SerieDiaria SecuenciaTemperatura(const std::array<ObjetivoMes, kMeses>& objetivos,
                                 const SerieDiaria& claridad, const SerieDiaria& amplitud);

}  // namespace novex
