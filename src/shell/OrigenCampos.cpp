#include "shell/OrigenCampos.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

// La latitud sale del municipio y, al calcular, del fichero de clima.
constexpr std::array<std::string_view, 1> kCalculados = {"latitud"};

// La instalación solar se calcula con sus datos y no con estos totales.
constexpr std::array<std::string_view, 8> kConservados = {"Aporte_fotovoltaico_kwh_ano",
                                                          "Aporte_solar_tanto_por_cien",
                                                          "Super_FV",
                                                          "Super_FV2",
                                                          "Super_FV3",
                                                          "PTcelula_FV",
                                                          "Tipo_Inst_ST",
                                                          "saltoZona"};

template <std::size_t N>
bool Esta(const std::array<std::string_view, N>& lista, std::string_view etiqueta) {
  return std::find(lista.begin(), lista.end(), etiqueta) != lista.end();
}

}  // namespace

OrigenCampo OrigenDeCampo(std::string_view direccion) {
  const std::size_t barra = direccion.find("]/");
  const std::string_view etiqueta =
      barra == std::string_view::npos ? direccion : direccion.substr(barra + 2);
  if (Esta(kCalculados, etiqueta)) return OrigenCampo::Calculado;
  if (Esta(kConservados, etiqueta)) return OrigenCampo::Conservado;
  return OrigenCampo::Editado;
}

}  // namespace novex
