#pragma once

#include <array>
#include <vector>

#include "demand/AjustesUso.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Un elemento opaco listo para el año. Su calor a la zona es
/// (peso1[mes]·serie1[h] + peso2[mes]·serie2[h] + fijo[mes]) · (f(T) si lo lleva), W.
struct ElementoOpaco {
  Valores* valores = nullptr;
  const SerieHoraria* serie1 = nullptr;
  const SerieHoraria* serie2 = nullptr;
  std::array<float, 13> peso1{}, peso2{}, fijo{};
  std::array<float, 13> sombra{};  ///< área en sombra de cada mes, m2
  bool conFactorT = false;
};

/// Los elementos opacos de la zona.
class ElementosOpacos {
 public:
  /// Crea en `calculo.valores` un elemento por cada área mayor que 0, con sus coeficientes. Usa la
  /// U efectiva, la altura libre, la altura del edificio y el clima que ya están en `caso`.
  ElementosOpacos(const Edificio& edificio, const AjustesUso& ajustes, calculo& caso);
  ElementosOpacos(const ElementosOpacos&) = delete;
  ElementosOpacos& operator=(const ElementosOpacos&) = delete;

  /// Pone el área en sombra del mes en los elementos.
  void RefrescarMes(int mes);
  /// Calor de los elementos en la hora, W, que también se guarda en cada uno.
  /// \param Tanterior temperatura de la zona en la hora anterior, °C
  float Ganancias(int h, int mes, float Tanterior);

 private:
  std::vector<ElementoOpaco> elementos_;
  SerieHoraria sumaMuros_;  ///< suma de la respuesta de los muros norte, sur, este y oeste
};

}  // namespace novex
