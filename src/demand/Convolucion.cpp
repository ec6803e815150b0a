#include "demand/Convolucion.h"

#include <algorithm>
#include <stdexcept>
#include <vector>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

template <typename Numero>
void Sumar(const SerieHoraria& entrada, std::span<const Numero> pesos, SerieHoraria& salida) {
  constexpr std::size_t kMaximo = 64;
  if (pesos.size() > kMaximo) throw std::logic_error("Demasiados términos en la convolución");
  // Delante del año van sus últimas horas, para no volver la página en el bucle.
  std::vector<Numero> extendida(kMaximo + kHorasAno);
  std::copy(entrada.end() - kMaximo, entrada.end(), extendida.begin());
  std::copy(entrada.begin() + 1, entrada.end(), extendida.begin() + kMaximo);
  std::vector<Numero> suma(kHorasAno);
  for (std::size_t k = 0; k < pesos.size(); ++k) {
    const Numero peso = pesos[k];
    const Numero* __restrict origen = extendida.data() + kMaximo - k;
    Numero* __restrict destino = suma.data();
    for (int h = 0; h < kHorasAno; ++h) destino[h] += peso * origen[h];
  }
  salida[0] = 0.0F;
  for (int h = 1; h <= kHorasAno; ++h)
    salida[h] = static_cast<float>(suma[static_cast<std::size_t>(h - 1)]);
}

}  // namespace

void ConvolucionPeriodica(const SerieHoraria& entrada, std::span<const float> pesos,
                          SerieHoraria& salida) {
  Sumar(entrada, pesos, salida);
}

void ConvolucionExacta(const SerieHoraria& entrada, std::span<const double> pesos,
                       SerieHoraria& salida) {
  Sumar(entrada, pesos, salida);
}

void RedondearSerie(SerieHoraria& serie, int decimales) {
  for (float& valor : serie) valor = RedondearDecimales(valor, decimales);
}

}  // namespace novex
