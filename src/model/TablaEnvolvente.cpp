#include "model/TablaEnvolvente.h"

#include <algorithm>
#include <stdexcept>

namespace novex {
namespace {

constexpr std::array<std::string_view, kRanuras> kClaves = {
    "MuroExt1",   "MuroExt2",   "MuroExt3",   "MuroExt4",   "MuroExt5",   "MuroTerr1",
    "MuroTerr2",  "MuroOtro1",  "MuroOtro5",  "MuroOtro2",  "MuroOtro6",  "MuroOtro3",
    "MuroExt6",   "MuroOtro7",  "MuroExt7",   "TechoExt1",  "TechoExt2",  "TechoExt3",
    "TechoInc1",  "TechoInc2",  "TechoInc3",  "TechoTerr1", "TechoTerr2", "TechoOtro1",
    "TechoOtro2", "TechoInt1",  "TechoInt2",  "TechoVent1", "TechoVent2", "TechoVent3",
    "TechoVent4", "SueloTerr1", "SueloTerr2", "SueloTerr3", "SueloExt1",  "SueloExt2",
    "SueloVent1", "MuroExt8",   "SueloVent3", "MuroExt9",   "SueloOtro1", "SueloOtro3",
    "SueloOtro2", "SueloOtro4", "SueloInt1",  "SueloInt2",  "MuroOtro8",  "MuroOtro9",
    "TechoInt3",  "TechoInt4",  "SueloInt3",  "SueloInt4"};

}  // namespace

std::string_view TablaEnvolvente::Clave(std::size_t indice) {
  return kClaves.at(indice);
}

std::optional<std::size_t> TablaEnvolvente::Indice(std::string_view clave) {
  const auto it = std::find(kClaves.begin(), kClaves.end(), clave);
  if (it == kClaves.end()) return std::nullopt;
  return static_cast<std::size_t>(it - kClaves.begin());
}

}  // namespace novex
