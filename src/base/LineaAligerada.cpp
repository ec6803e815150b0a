#include "base/LineaAligerada.h"

#include <algorithm>

namespace novex {

std::vector<std::pair<double, double>> AligerarLinea(std::span<const double> x,
                                                     std::span<const double> y, double desde,
                                                     double hasta, int columnas) {
  const auto cuantos = static_cast<std::ptrdiff_t>(std::min(x.size(), y.size()));
  const auto fin = x.begin() + cuantos;
  auto primero = std::lower_bound(x.begin(), fin, desde) - x.begin();
  auto ultimo = std::upper_bound(x.begin(), fin, hasta) - x.begin();  // el siguiente al último
  primero = std::max<std::ptrdiff_t>(primero - 1, 0);
  ultimo = std::min(ultimo + 1, cuantos);
  std::vector<std::pair<double, double>> puntos;
  const auto poner = [&](std::ptrdiff_t i) {
    puntos.emplace_back(x[static_cast<std::size_t>(i)], y[static_cast<std::size_t>(i)]);
  };
  const std::ptrdiff_t grupos = std::max(columnas, 1);
  const std::ptrdiff_t visibles = ultimo - primero;
  if (visibles <= 2 * grupos) {
    for (auto i = primero; i < ultimo; ++i) poner(i);
    return puntos;
  }
  for (std::ptrdiff_t g = 0; g < grupos; ++g) {
    const auto a = y.begin() + primero + visibles * g / grupos;
    const auto b = y.begin() + primero + visibles * (g + 1) / grupos;
    const auto [menor, mayor] = std::minmax_element(a, b);
    const auto i = menor - y.begin();
    const auto j = mayor - y.begin();
    poner(std::min(i, j));
    if (i != j) poner(std::max(i, j));
  }
  return puntos;
}

std::vector<std::pair<double, double>> AligerarNube(std::span<const double> x,
                                                    std::span<const double> y, double desde,
                                                    double hasta, int columnas, int filas) {
  const std::size_t cuantos = std::min(x.size(), y.size());
  std::vector<std::pair<double, double>> puntos;
  if (cuantos == 0) return puntos;
  const auto [menor, mayor] =
      std::minmax_element(y.begin(), y.begin() + static_cast<std::ptrdiff_t>(cuantos));
  const auto casilla = [](double v, double a, double b, int partes) {
    const double parte = b > a ? (v - a) / (b - a) * partes : 0.0;
    return static_cast<std::size_t>(std::clamp(parte, 0.0, partes - 1.0));
  };
  columnas = std::max(columnas, 1);
  filas = std::max(filas, 1);
  std::vector<bool> ocupada(static_cast<std::size_t>(columnas) * static_cast<std::size_t>(filas));
  for (std::size_t i = 0; i < cuantos; ++i) {
    if (x[i] < desde || x[i] > hasta) continue;
    const std::size_t donde =
        casilla(y[i], *menor, *mayor, filas) * static_cast<std::size_t>(columnas) +
        casilla(x[i], desde, hasta, columnas);
    if (ocupada[donde]) continue;
    ocupada[donde] = true;
    puntos.emplace_back(x[i], y[i]);
  }
  return puntos;
}

}  // namespace novex
