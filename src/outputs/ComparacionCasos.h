#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Grafico.h"
#include "outputs/CasoCalculado.h"
#include "outputs/TablasMensualesResultados.h"

namespace novex {

/// Qué valor se compara, en el orden de su selector. El resultado es uno de `kTextoResultado`.
enum class TipoValor : std::size_t { Absoluto, Ahorro };
inline constexpr std::array<std::string_view, 2> kTextoTipoValor = {"Valor absoluto",
                                                                    "Porcentaje ahorro"};

/// Gráfico de un servicio, o del total, con una barra por caso.
struct GraficoComparacion {
  Grafico grafico;
  /// "Actual: B", "Mejora_1: A"..., una por caso; vacía en lo que no se califica.
  std::vector<std::string> letras;

  /// Las letras en una línea.
  std::string LineaLetras() const;
};

/// Compara los casos de un proyecto: un gráfico por servicio y el del total. La iluminación, solo
/// en terciario. \param casos el de nombre "Viejo" es la base; sin casos no hay gráficos
/// \param unidad el resultado, por m2 y año
/// \param tipo su valor, o el ahorro en % sobre la base, que es 0 donde la base no es mayor que 0
std::vector<GraficoComparacion> CompararCasos(const std::vector<CasoCalculado>& casos,
                                              UnidadEnergia unidad, TipoValor tipo);

}  // namespace novex
