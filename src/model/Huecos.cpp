#include "model/Huecos.h"

#include <algorithm>

namespace novex {

std::size_t ColumnaHuecos::NumeroEnRecinto(std::size_t recinto) const {
  return static_cast<std::size_t>(std::count(recintos.begin(), recintos.end(), recinto));
}

std::size_t Huecos::NumeroTotal() const {
  std::size_t total = 0;
  for (const auto& columna : columnas) total += columna.recintos.size();
  return total;
}

}  // namespace novex
