#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "demand/AjustesUso.h"
#include "outputs/ArbolVariables.h"

namespace novex {

/// Lo que hace falta para leer una variable de un caso.
struct ContextoVariables {
  ContextoVariables(const Edificio& e, const calculo& c)
      : edificio(e), caso(c), ajustes(ResolverAjustes(e)) {}
  const Edificio& edificio;
  const calculo& caso;
  AjustesUso ajustes;
  float Superficie() const { return edificio.GetRecinto(0).Suelo_habitable_m2; }
  const DatosGenerales& Generales() const { return edificio.GetDatosGenerales(); }
  /// Magnitud de los sistemas con un nombre; nulo si el caso no la tiene.
  const SerieHoraria* Atributo(std::string_view nombre) const;
};

/// Las 8760 horas de una variable, en la unidad de su texto.
using LectorVariable = std::vector<float> (*)(const ContextoVariables&);
/// ¿Tiene el caso la variable?
using CondicionVariable = bool (*)(const ContextoVariables&);

/// Una variable que no es de una instalación.
struct VariableFija {
  const char* grupo;
  const char* nombre;
  const char* codigo;
  const char* unidad;
  ClaseSerie clase;
  ViaSerie via;
  const char* etiqueta;      ///< en su fichero
  LectorVariable leer;       ///< nulo: la magnitud de los sistemas con esa etiqueta
  CondicionVariable existe;  ///< nulo: siempre
};

/// Las variables fijas en el orden del árbol. Las instalaciones van delante de `kGrupoSolar`.
std::span<const VariableFija> VariablesFijas();
inline constexpr const char* kGrupoSolar = "Inst.Solar térmica";

}  // namespace novex
