#include "files/VersionProyecto.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

constexpr std::array<std::string_view, 2> kActuales = {kVersionActual, "NOVEXPLUS v6.2"};

}  // namespace

DisposicionProyecto DisposicionDe(std::string_view version) {
  return std::find(kActuales.begin(), kActuales.end(), version) != kActuales.end()
             ? DisposicionProyecto::Actual
             : DisposicionProyecto::Antigua;
}

}  // namespace novex
