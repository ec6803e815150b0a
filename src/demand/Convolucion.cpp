#include "demand/Convolucion.h"

#include <algorithm>
#include <array>
#include <stdexcept>

#include "base/NumeroTexto.h"

namespace novex {

void ConvolucionPeriodica(const SerieHoraria& entrada, std::span<const float> pesos,
                          SerieHoraria& salida) {
  constexpr std::size_t kMaximo = 64;
  if (pesos.size() > kMaximo) throw std::logic_error("Demasiados términos en la convolución");
  // Delante del año van sus últimas horas, para no volver la página en el bucle.
  std::vector<float> extendida(kMaximo + kHorasAno);
  std::copy(entrada.end() - kMaximo, entrada.end(), extendida.begin());
  std::copy(entrada.begin() + 1, entrada.end(), extendida.begin() + kMaximo);
  std::fill(salida.begin(), salida.end(), 0.0F);
  float* destino = salida.data() + 1;
  for (std::size_t k = 0; k < pesos.size(); ++k) {
    const float peso = pesos[k];
    const float* origen = extendida.data() + kMaximo - k;
    for (int h = 0; h < kHorasAno; ++h) destino[h] += peso * origen[h];
  }
}

void RedondearSerie(SerieHoraria& serie, int decimales) {
  for (float& valor : serie) valor = RedondearDecimales(valor, decimales);
}

}  // namespace novex
