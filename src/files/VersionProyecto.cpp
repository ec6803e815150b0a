#include "files/VersionProyecto.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

using enum DisposicionProyecto;

constexpr std::array kReglas = std::to_array<ReglasVersion>({
    // versión, disposición, uso y alcance, sistemas, consumo del recuperador, dormitorios simples
    {kVersionActual, Actual, true, true, false, false},
    {"NOVEXPLUS v6.2", Actual, true, true, false, false},
    {"NOVEXPLUS v6.1", SitioAparte, true, true, true, false},
    {"NOVEXPLUS v5.11", SitioAparte, false, true, true, false},
    {"NOVEXPLUS v5.10", SitioAparte, false, true, true, false},
    {"NOVEXPLUS v5.09", SitioAparte, false, true, true, false},
    {"NOVEXPLUS v5.08", SitioAparte, false, true, false, false},
    {"NOVEXPLUS v5.07", SitioAparte, false, true, false, false},
    {"NOVEXPLUS v5.06", SitioAparte, false, true, false, false},
    {"NOVEXPLUS v5.05", SitioAparte, false, true, false, false},
    {"NOVEXPLUS v5.04", SitioAparte, false, true, false, false},
    {"NOVEXPLUS v5.03", SitioAparte, false, true, false, false},
    {"NOVEXPLUS v5.02", SitioAparte, false, true, false, false},
    {"NOVEXPLUS v5.0", SitioAparte, false, true, false, false},
    {"NOVEXPLUS v4.2", SitioAparte, false, false, false, true},
    {"NOVEXPLUS v4.1", SitioAparte, false, false, false, true},
});
constexpr ReglasVersion kLasDemas = {};

}  // namespace

const ReglasVersion& ReglasDe(std::string_view version) {
  const auto reglas = std::find_if(kReglas.begin(), kReglas.end(),
                                   [version](const auto& r) { return r.version == version; });
  return reglas != kReglas.end() ? *reglas : kLasDemas;
}

}  // namespace novex
