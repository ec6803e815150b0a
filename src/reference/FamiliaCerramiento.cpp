#include "reference/FamiliaCerramiento.h"

#include <array>
#include <stdexcept>

#include "base/NumeroTexto.h"
#include "model/TablaEnvolvente.h"

namespace novex {
namespace {

struct DatosFamilia {
  std::string_view nombre;
  Peliculas peliculas;  // he, hi
};

constexpr std::array<DatosFamilia, kFamiliasCatalogo + 1> kDatosFamilia = {
    {{"Muros_exterior-interior", {25, 7.69F}},
     {"Muros_interior-interior", {7.69F, 7.69F}},
     {"Muros_terreno-interior", {kTerreno, 7.69F}},
     {"Forjados_exterior-interior", {25, 10}},
     {"Forjados_interior-interior", {10, 10}},
     {"Forjados_interior-exterior", {5.88F, 25}},
     {"Forjados_interior-terreno", {5.88F, kTerreno}},
     {"Muebles", {7.69F, 7.69F}}}};

const DatosFamilia& Datos(FamiliaCerramiento familia) {
  return kDatosFamilia.at(static_cast<std::size_t>(familia));
}

// Las claves de una familia comparten comienzo; el primero que casa decide.
struct PrefijoRanura {
  std::string_view prefijo;
  FamiliaCerramiento familia;
};
constexpr std::array<PrefijoRanura, 14> kPrefijos = {
    {{"MuroExt", FamiliaCerramiento::MurosExterior},
     {"MuroOtro", FamiliaCerramiento::MurosInterior},
     {"MuroTerr", FamiliaCerramiento::MurosTerreno},
     {"TechoExt", FamiliaCerramiento::ForjadosExteriorInterior},
     {"TechoInc", FamiliaCerramiento::ForjadosExteriorInterior},
     {"TechoTerr", FamiliaCerramiento::ForjadosExteriorInterior},
     {"TechoVent2", FamiliaCerramiento::ForjadosExteriorInterior},
     {"TechoVent4", FamiliaCerramiento::ForjadosExteriorInterior},
     {"TechoVent", FamiliaCerramiento::ForjadosInteriorInterior},
     {"TechoOtro", FamiliaCerramiento::ForjadosInteriorInterior},
     {"TechoInt", FamiliaCerramiento::ForjadosInteriorInterior},
     {"SueloTerr", FamiliaCerramiento::ForjadosInteriorTerreno},
     {"SueloExt", FamiliaCerramiento::ForjadosInteriorExterior},
     {"Suelo", FamiliaCerramiento::ForjadosInteriorInterior}}};

}  // namespace

std::string_view NombreFamilia(FamiliaCerramiento familia) {
  return Datos(familia).nombre;
}

std::optional<FamiliaCerramiento> FamiliaDe(std::string_view nombre) {
  for (std::size_t i = 0; i < kDatosFamilia.size(); ++i)
    if (kDatosFamilia[i].nombre == nombre) return static_cast<FamiliaCerramiento>(i);
  return std::nullopt;
}

FamiliaCerramiento FamiliaDeRanura(std::size_t ranura) {
  const std::string_view clave = TablaEnvolvente::Clave(ranura);
  for (const PrefijoRanura& p : kPrefijos)
    if (clave.starts_with(p.prefijo)) return p.familia;
  throw std::logic_error("posición de la envolvente sin familia");
}

Peliculas PeliculasDe(FamiliaCerramiento familia) {
  return Datos(familia).peliculas;
}

std::string TextoPelicula(float coeficiente) {
  return coeficiente == kTerreno ? "Terreno" : General(coeficiente);
}

bool EsVertical(FamiliaCerramiento familia) {
  return familia == FamiliaCerramiento::MurosExterior ||
         familia == FamiliaCerramiento::MurosInterior ||
         familia == FamiliaCerramiento::MurosTerreno;
}

Caras CarasDeRanura(std::size_t ranura) {
  constexpr std::string_view kExterior = "Exterior", kInterior = "Interior", kSuelo = "Terreno",
                             kEspacio = "Otro espacio";
  const std::string_view clave = TablaEnvolvente::Clave(ranura);
  switch (FamiliaDeRanura(ranura)) {
    case FamiliaCerramiento::MurosTerreno:
      return {kSuelo, kInterior};
    case FamiliaCerramiento::ForjadosInteriorExterior:
      return {kInterior, kExterior};
    case FamiliaCerramiento::ForjadosInteriorTerreno:
      return {kInterior, kSuelo};
    case FamiliaCerramiento::ForjadosInteriorInterior:
      // Bajo un suelo el otro espacio queda debajo, y sobre un techo, encima.
      if (clave.starts_with("Suelo")) return {kInterior, kEspacio};
      return {kEspacio, kInterior};
    case FamiliaCerramiento::MurosInterior:
      return {kEspacio, kInterior};
    default:
      return {clave.starts_with("TechoTerr") ? kSuelo : kExterior, kInterior};
  }
}

std::string_view AplicacionDe(FamiliaCerramiento familia) {
  return EsVertical(familia) ? "M" : "F";
}

}  // namespace novex
