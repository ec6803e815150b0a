#include "files/texto/VersionTexto.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

struct VersionConocida {
  std::string_view nombre;
  GeneracionTexto generacion = GeneracionTexto::Tercera;
  bool conMejoras = false;  // en su fichero "_M.txt"
};

using enum GeneracionTexto;
constexpr std::array kVersiones = {VersionConocida{kVersionSinDecir, Primera, true},
                                   VersionConocida{"NOVEX v_2.1", Primera, true},
                                   VersionConocida{"NOVEX v_2.2", Primera, true},
                                   VersionConocida{"NOVEX v2.0", Segunda, true},
                                   VersionConocida{"NOVEX v2.1", Segunda, true},
                                   VersionConocida{"NOVEX v2.2", Segunda, true},
                                   VersionConocida{"NOVEX v2.3", Segunda, true},
                                   VersionConocida{"NOVEX v2.4", Tercera, true},
                                   VersionConocida{"NOVEX v2.5", Tercera, true},
                                   VersionConocida{"NOVEX v2.6", Tercera, true},
                                   VersionConocida{"NOVEX v2.7", Tercera, true},
                                   VersionConocida{"NOVEX v4.0", Tercera, true},
                                   VersionConocida{"NOVEX v4.1", Tercera, true},
                                   VersionConocida{"NOVEX v4.2", Tercera, true},
                                   VersionConocida{"NOVEX v5.0"},
                                   VersionConocida{"NOVEX v5.01"},
                                   VersionConocida{"NOVEX v5.02"},
                                   VersionConocida{"NOVEX v5.03"},
                                   VersionConocida{"NOVEX v5.04"},
                                   VersionConocida{"NOVEX v5.05"},
                                   VersionConocida{"NOVEX v5.06"},
                                   VersionConocida{"NOVEX v5.07"},
                                   VersionConocida{"NOVEX v5.08"},
                                   VersionConocida{"NOVEX v5.09"},
                                   VersionConocida{"NOVEX v5.10"},
                                   VersionConocida{"NOVEX v5.11"},
                                   VersionConocida{"NOVEX v6.01"},
                                   VersionConocida{"NOVEX v6.1"}};

constexpr std::array<std::string_view, 4> kPorIndices = {"NOVEX v2.7", "NOVEX v4.0", "NOVEX v4.1",
                                                         "NOVEX v4.2"};

const VersionConocida* Buscar(std::string_view version) {
  const auto* it =
      std::find_if(kVersiones.begin(), kVersiones.end(),
                   [version](const VersionConocida& v) { return v.nombre == version; });
  return it == kVersiones.end() ? nullptr : it;
}

}  // namespace

std::optional<GeneracionTexto> GeneracionDe(std::string_view version) {
  const VersionConocida* conocida = Buscar(version);
  if (conocida == nullptr) return std::nullopt;
  return conocida->generacion;
}

GeneracionTexto GeneracionSupuesta(std::string_view version) {
  if (const auto conocida = GeneracionDe(version)) return *conocida;
  // Las del principio escribían la versión con un guion bajo.
  return version.find('_') != std::string_view::npos ? Primera : Tercera;
}

bool LugarPorIndices(std::string_view version) {
  return std::find(kPorIndices.begin(), kPorIndices.end(), version) != kPorIndices.end();
}

bool ConFicheroDeMejoras(std::string_view version) {
  const VersionConocida* conocida = Buscar(version);
  return conocida != nullptr && conocida->conMejoras;
}

}  // namespace novex
