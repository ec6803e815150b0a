#include "demand/TransmitanciaTerreno.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

namespace novex {
namespace {

// Transmitancias de elementos en contacto con el terreno, W/m2K: DA DB-HE/1 (2020), tablas 3, 4, 5
// y 9. Una celda que el documento deja vacía lleva el valor de su izquierda.
constexpr std::array<float, 21> kRmMuro = {0,    0.1F, 0.2F, 0.3F, 0.4F, 0.5F, 0.6F,
                                           0.7F, 0.8F, 0.9F, 1,    1.1F, 1.2F, 1.3F,
                                           1.4F, 1.5F, 1.6F, 1.7F, 1.8F, 1.9F, 2};
constexpr std::array<float, 6> kZMuro = {0.5F, 1, 2, 3, 4, 6};
constexpr std::array<std::array<float, 6>, 21> kMuro = {{
    {{3.05F, 2.2F, 1.48F, 1.15F, 0.95F, 0.71F}},  {{2.29F, 1.74F, 1.22F, 0.97F, 0.81F, 0.62F}},
    {{1.84F, 1.45F, 1.06F, 0.85F, 0.72F, 0.56F}}, {{1.55F, 1.25F, 0.93F, 0.76F, 0.65F, 0.51F}},
    {{1.33F, 1.1F, 0.84F, 0.69F, 0.6F, 0.47F}},   {{1.17F, 0.99F, 0.77F, 0.64F, 0.55F, 0.44F}},
    {{1.05F, 0.9F, 0.71F, 0.59F, 0.52F, 0.42F}},  {{0.95F, 0.82F, 0.66F, 0.56F, 0.49F, 0.39F}},
    {{0.87F, 0.76F, 0.61F, 0.52F, 0.46F, 0.38F}}, {{0.8F, 0.7F, 0.58F, 0.49F, 0.44F, 0.36F}},
    {{0.74F, 0.65F, 0.54F, 0.47F, 0.42F, 0.34F}}, {{0.69F, 0.61F, 0.51F, 0.45F, 0.4F, 0.33F}},
    {{0.64F, 0.58F, 0.49F, 0.42F, 0.38F, 0.32F}}, {{0.6F, 0.55F, 0.46F, 0.41F, 0.36F, 0.3F}},
    {{0.57F, 0.52F, 0.44F, 0.39F, 0.35F, 0.29F}}, {{0.54F, 0.49F, 0.42F, 0.37F, 0.34F, 0.28F}},
    {{0.51F, 0.47F, 0.4F, 0.36F, 0.32F, 0.28F}},  {{0.49F, 0.45F, 0.39F, 0.35F, 0.31F, 0.27F}},
    {{0.46F, 0.43F, 0.37F, 0.33F, 0.3F, 0.26F}},  {{0.44F, 0.41F, 0.36F, 0.32F, 0.29F, 0.25F}},
    {{0.42F, 0.39F, 0.35F, 0.31F, 0.28F, 0.24F}},
}};
constexpr std::array<float, 23> kBCamara = {1,  2,  3,  4,  5,  6,  7,  8,  9,  10, 12, 14,
                                            16, 18, 20, 22, 24, 26, 28, 30, 32, 34, 36};
constexpr std::array<float, 7> kRfCamara = {0, 0.5F, 1, 1.5F, 2, 2.5F, 3};
constexpr std::array<std::array<float, 7>, 23> kCamara = {{
    {{9.38F, 1.65F, 0.9F, 0.62F, 0.47F, 0.38F, 0.29F}},
    {{5.35F, 1.46F, 0.84F, 0.59F, 0.46F, 0.37F, 0.28F}},
    {{3.88F, 1.32F, 0.8F, 0.57F, 0.44F, 0.36F, 0.28F}},
    {{3.11F, 1.22F, 0.76F, 0.55F, 0.43F, 0.35F, 0.27F}},
    {{2.63F, 1.14F, 0.72F, 0.53F, 0.42F, 0.35F, 0.27F}},
    {{2.3F, 1.07F, 0.7F, 0.52F, 0.41F, 0.34F, 0.27F}},
    {{2.06F, 1.01F, 0.67F, 0.5F, 0.4F, 0.33F, 0.26F}},
    {{1.87F, 0.97F, 0.65F, 0.49F, 0.39F, 0.33F, 0.26F}},
    {{1.73F, 0.93F, 0.63F, 0.48F, 0.39F, 0.32F, 0.26F}},
    {{1.61F, 0.89F, 0.62F, 0.47F, 0.38F, 0.32F, 0.26F}},
    {{1.43F, 0.83F, 0.59F, 0.45F, 0.37F, 0.31F, 0.25F}},
    {{1.3F, 0.79F, 0.57F, 0.44F, 0.36F, 0.31F, 0.25F}},
    {{1.2F, 0.75F, 0.55F, 0.43F, 0.35F, 0.3F, 0.25F}},
    {{1.12F, 0.72F, 0.53F, 0.42F, 0.35F, 0.29F, 0.25F}},
    {{1.06F, 0.69F, 0.51F, 0.41F, 0.34F, 0.29F, 0.25F}},
    {{1, 0.67F, 0.5F, 0.4F, 0.33F, 0.29F, 0.25F}},
    {{0.96F, 0.65F, 0.49F, 0.39F, 0.33F, 0.28F, 0.24F}},
    {{0.92F, 0.63F, 0.48F, 0.39F, 0.32F, 0.28F, 0.24F}},
    {{0.89F, 0.61F, 0.47F, 0.38F, 0.32F, 0.28F, 0.24F}},
    {{0.86F, 0.6F, 0.46F, 0.38F, 0.32F, 0.27F, 0.24F}},
    {{0.83F, 0.59F, 0.45F, 0.37F, 0.31F, 0.27F, 0.23F}},
    {{0.81F, 0.58F, 0.45F, 0.37F, 0.31F, 0.27F, 0.23F}},
    {{0.79F, 0.57F, 0.44F, 0.36F, 0.31F, 0.27F, 0.23F}},
}};
constexpr std::array<float, 15> kBSolera = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 14, 16, 18, 20};
constexpr std::array<std::array<float, 16>, 15> kSolera = {{
    {{2.35F, 1.57F, 1.3F, 1.16F, 1.07F, 1.01F, 1.39F, 1.01F, 0.8F, 0.66F, 0.57F, 0.57F, 0.57F,
      0.57F, 0.57F, 0.57F}},
    {{1.56F, 1.17F, 1.04F, 0.97F, 0.92F, 0.89F, 1.08F, 0.89F, 0.79F, 0.72F, 0.67F, 1.04F, 0.83F,
      0.7F, 0.61F, 0.55F}},
    {{1.2F, 0.94F, 0.85F, 0.8F, 0.78F, 0.76F, 0.88F, 0.76F, 0.69F, 0.64F, 0.61F, 0.85F, 0.71F,
      0.63F, 0.57F, 0.53F}},
    {{0.99F, 0.79F, 0.73F, 0.69F, 0.67F, 0.65F, 0.75F, 0.65F, 0.6F, 0.57F, 0.54F, 0.73F, 0.62F,
      0.56F, 0.51F, 0.48F}},
    {{0.85F, 0.69F, 0.64F, 0.61F, 0.59F, 0.58F, 0.65F, 0.58F, 0.54F, 0.51F, 0.49F, 0.64F, 0.55F,
      0.5F, 0.47F, 0.44F}},
    {{0.74F, 0.61F, 0.57F, 0.54F, 0.53F, 0.52F, 0.58F, 0.52F, 0.48F, 0.46F, 0.44F, 0.57F, 0.5F,
      0.45F, 0.43F, 0.41F}},
    {{0.66F, 0.55F, 0.51F, 0.49F, 0.48F, 0.47F, 0.53F, 0.47F, 0.44F, 0.42F, 0.41F, 0.51F, 0.45F,
      0.42F, 0.39F, 0.37F}},
    {{0.6F, 0.5F, 0.47F, 0.45F, 0.44F, 0.43F, 0.48F, 0.43F, 0.41F, 0.39F, 0.38F, 0.47F, 0.42F,
      0.38F, 0.36F, 0.35F}},
    {{0.55F, 0.46F, 0.43F, 0.42F, 0.41F, 0.4F, 0.44F, 0.4F, 0.38F, 0.36F, 0.35F, 0.43F, 0.39F,
      0.36F, 0.34F, 0.33F}},
    {{0.51F, 0.43F, 0.4F, 0.39F, 0.38F, 0.37F, 0.41F, 0.37F, 0.35F, 0.34F, 0.33F, 0.4F, 0.36F,
      0.34F, 0.32F, 0.31F}},
    {{0.44F, 0.38F, 0.36F, 0.34F, 0.34F, 0.33F, 0.36F, 0.33F, 0.31F, 0.3F, 0.29F, 0.36F, 0.32F,
      0.3F, 0.28F, 0.27F}},
    {{0.39F, 0.34F, 0.32F, 0.31F, 0.3F, 0.3F, 0.32F, 0.3F, 0.28F, 0.27F, 0.27F, 0.32F, 0.29F, 0.27F,
      0.26F, 0.25F}},
    {{0.35F, 0.31F, 0.29F, 0.28F, 0.27F, 0.27F, 0.29F, 0.27F, 0.26F, 0.25F, 0.24F, 0.29F, 0.26F,
      0.25F, 0.24F, 0.23F}},
    {{0.32F, 0.28F, 0.27F, 0.26F, 0.25F, 0.25F, 0.27F, 0.25F, 0.24F, 0.23F, 0.22F, 0.27F, 0.24F,
      0.23F, 0.22F, 0.21F}},
    {{0.3F, 0.26F, 0.25F, 0.24F, 0.23F, 0.23F, 0.25F, 0.23F, 0.22F, 0.21F, 0.21F, 0.25F, 0.22F,
      0.21F, 0.2F, 0.2F}},
}};
constexpr std::array<float, 15> kBSoleraHonda = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12, 14, 16, 18, 20};
constexpr std::array<float, 4> kRfSoleraHonda = {0, 0.5F, 1, 1.5F};
constexpr std::array<std::array<float, 16>, 15> kSoleraHonda = {{
    {{1.51F, 1.07F, 0.84F, 0.69F, 1.14F, 0.88F, 0.72F, 0.61F, 0.78F, 0.65F, 0.56F, 0.49F, 0.59F,
      0.51F, 0.46F, 0.41F}},
    {{1.09F, 0.82F, 0.67F, 0.57F, 0.87F, 0.7F, 0.59F, 0.51F, 0.63F, 0.54F, 0.47F, 0.42F, 0.5F,
      0.44F, 0.4F, 0.36F}},
    {{0.87F, 0.68F, 0.57F, 0.49F, 0.71F, 0.59F, 0.5F, 0.44F, 0.53F, 0.47F, 0.41F, 0.37F, 0.43F,
      0.39F, 0.35F, 0.32F}},
    {{0.74F, 0.59F, 0.49F, 0.43F, 0.61F, 0.51F, 0.44F, 0.39F, 0.47F, 0.41F, 0.37F, 0.34F, 0.39F,
      0.35F, 0.32F, 0.29F}},
    {{0.64F, 0.52F, 0.44F, 0.39F, 0.54F, 0.45F, 0.4F, 0.36F, 0.42F, 0.37F, 0.34F, 0.31F, 0.35F,
      0.32F, 0.29F, 0.27F}},
    {{0.57F, 0.46F, 0.4F, 0.35F, 0.48F, 0.41F, 0.36F, 0.33F, 0.38F, 0.34F, 0.31F, 0.28F, 0.32F,
      0.29F, 0.27F, 0.25F}},
    {{0.52F, 0.42F, 0.37F, 0.33F, 0.44F, 0.38F, 0.33F, 0.3F, 0.35F, 0.31F, 0.29F, 0.26F, 0.3F,
      0.27F, 0.25F, 0.24F}},
    {{0.47F, 0.39F, 0.34F, 0.3F, 0.4F, 0.35F, 0.31F, 0.28F, 0.33F, 0.29F, 0.27F, 0.25F, 0.28F,
      0.26F, 0.24F, 0.22F}},
    {{0.43F, 0.36F, 0.32F, 0.28F, 0.37F, 0.32F, 0.29F, 0.26F, 0.3F, 0.27F, 0.25F, 0.23F, 0.26F,
      0.24F, 0.22F, 0.21F}},
    {{0.4F, 0.34F, 0.3F, 0.27F, 0.35F, 0.3F, 0.27F, 0.25F, 0.29F, 0.26F, 0.24F, 0.22F, 0.25F, 0.23F,
      0.21F, 0.2F}},
    {{0.36F, 0.3F, 0.27F, 0.24F, 0.31F, 0.27F, 0.24F, 0.22F, 0.26F, 0.23F, 0.21F, 0.2F, 0.22F,
      0.21F, 0.19F, 0.18F}},
    {{0.32F, 0.27F, 0.24F, 0.22F, 0.28F, 0.25F, 0.22F, 0.2F, 0.23F, 0.21F, 0.2F, 0.18F, 0.2F, 0.19F,
      0.18F, 0.17F}},
    {{0.29F, 0.25F, 0.22F, 0.2F, 0.25F, 0.23F, 0.2F, 0.19F, 0.21F, 0.2F, 0.18F, 0.17F, 0.19F, 0.17F,
      0.16F, 0.16F}},
    {{0.26F, 0.23F, 0.2F, 0.19F, 0.23F, 0.21F, 0.19F, 0.18F, 0.2F, 0.18F, 0.17F, 0.16F, 0.17F,
      0.16F, 0.15F, 0.15F}},
    {{0.24F, 0.21F, 0.19F, 0.17F, 0.22F, 0.19F, 0.18F, 0.16F, 0.18F, 0.17F, 0.16F, 0.15F, 0.16F,
      0.15F, 0.14F, 0.14F}},
}};

// Las columnas de kSolera: sin aislamiento y, por cada anchura de banda, cinco resistencias.
constexpr std::array<float, 4> kAnchuraSolera = {0, 0.5F, 1, 1.5F};
constexpr std::array<float, 6> kRaSolera = {0, 0.5F, 1, 1.5F, 2, 2.5F};

// Intervalo de una lista creciente en que cae x, y la fracción dentro de él; fuera, el extremo.
struct Tramo {
  std::size_t i;
  float fraccion;
};

Tramo Situar(std::span<const float> lista, float x) {
  if (!(x > lista.front())) return {0, 0.0F};
  if (x >= lista.back()) return {lista.size() - 2, 1.0F};
  const auto it = std::upper_bound(lista.begin(), lista.end(), x);
  const auto i = static_cast<std::size_t>(it - lista.begin()) - 1;
  return {i, (x - lista[i]) / (lista[i + 1] - lista[i])};
}

float Entre(float a, float b, float fraccion) {
  return a + (b - a) * fraccion;
}

template <std::size_t N, std::size_t M>
float Bilineal(const std::array<std::array<float, M>, N>& tabla, Tramo fila, Tramo columna,
               std::size_t desplazamiento = 0) {
  const std::size_t j = columna.i + desplazamiento;
  return Entre(Entre(tabla[fila.i][j], tabla[fila.i][j + 1], columna.fraccion),
               Entre(tabla[fila.i + 1][j], tabla[fila.i + 1][j + 1], columna.fraccion),
               fila.fraccion);
}

// Celda de la tabla de soleras: banda `anchura` (0 a 3) con la resistencia `ra` (0 a 5).
float CeldaSolera(std::size_t fila, std::size_t anchura, std::size_t ra) {
  if (anchura == 0 || ra == 0) return kSolera[fila][0];
  return kSolera[fila][1 + (anchura - 1) * 5 + (ra - 1)];
}

float FilaSolera(std::size_t fila, Tramo anchura, Tramo ra) {
  const auto porAnchura = [&](std::size_t r) {
    return Entre(CeldaSolera(fila, anchura.i, r), CeldaSolera(fila, anchura.i + 1, r),
                 anchura.fraccion);
  };
  return Entre(porAnchura(ra.i), porAnchura(ra.i + 1), ra.fraccion);
}

}  // namespace

float UMuroTerreno(float resistencia, float profundidad) {
  const float z = profundidad == 0.0F ? 1.0F : profundidad;
  return Bilineal(kMuro, Situar(kRmMuro, resistencia), Situar(kZMuro, z));
}

float UCamaraSanitaria(float B, float resistencia) {
  return Bilineal(kCamara, Situar(kBCamara, B), Situar(kRfCamara, resistencia));
}

float USoleraSuperficial(float B, float anchura, float resistenciaBanda) {
  const Tramo fila = Situar(kBSolera, B);
  const Tramo a = Situar(kAnchuraSolera, anchura);
  const Tramo r = Situar(kRaSolera, resistenciaBanda);
  return Entre(FilaSolera(fila.i, a, r), FilaSolera(fila.i + 1, a, r), fila.fraccion);
}

float USoleraProfunda(float B, float resistencia, float profundidad) {
  // Las profundidades son intervalos: hasta 1, 2 y 3 m, y más.
  std::size_t intervalo = 0;
  while (intervalo < 3 && profundidad > static_cast<float>(intervalo + 1)) ++intervalo;
  return Bilineal(kSoleraHonda, Situar(kBSoleraHonda, B), Situar(kRfSoleraHonda, resistencia),
                  intervalo * 4);
}

float DimensionCaracteristica(float area, float perimetro) {
  constexpr float kSinPerimetro = 20.0F;
  return perimetro <= 0.0F ? kSinPerimetro : 2.0F * area / perimetro;
}

}  // namespace novex
