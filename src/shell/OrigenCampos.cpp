#include "shell/OrigenCampos.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

// Lo que se sigue de otros datos: la zona de radiación, del municipio; la clave del perfil y la
// potencia de iluminación que admite, del uso; el servicio de un sistema, de su creación.
constexpr std::array<std::string_view, 4> kCalculados = {"zona_radiante", "Tipo", "EPotIluMax",
                                                         "Tipo_sistema"};

// Lo que un fichero trae y ningún cálculo lee: se devuelve como vino. La bomba de calor segunda de
// un sistema y las cargas de ocupación del modo simple son de programas anteriores.
constexpr std::array<std::string_view, 11> kConservados = {
    "Pt",        "QOCUPSSimple", "QOCUPLSimple", "TipoBC12",     "QcalorBC2", "WeCalor2",
    "QFrioSen2", "QFrioTot2",    "WeFrio2",      "Tipo_Inst_ST", "saltoZona"};

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
