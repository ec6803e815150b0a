#include "outputs/ArbolVariables.h"

#include <sstream>

#include "base/Texto.h"
#include "outputs/VariablesFijas.h"
#include "outputs/VariablesSistema.h"

namespace novex {
namespace {

NodoVariable Nodo(const VariableFija& v) {
  return {v.grupo,  std::string(v.nombre) + " " + v.codigo + "(" + v.unidad + ")",
          v.codigo, v.etiqueta,
          v.via,    v.clase,
          v.unidad};
}

void AnadirInstalaciones(const Edificio& edificio, const calculo& caso,
                         std::vector<NodoVariable>& nodos) {
  for (std::size_t n = 1; n <= edificio.NumeroSistemas(); ++n)
    for (NodoVariable& nodo : VariablesDeSistema(edificio, caso, n))
      nodos.push_back(std::move(nodo));
}

}  // namespace

std::vector<NodoVariable> ArbolVariables(const Edificio& edificio, const calculo& caso) {
  const ContextoVariables contexto(edificio, caso);
  std::vector<NodoVariable> nodos;
  bool instalaciones = false;
  for (const VariableFija& v : VariablesFijas()) {
    if (!instalaciones && std::string_view(v.grupo) == kGrupoSolar) {
      AnadirInstalaciones(edificio, caso, nodos);
      instalaciones = true;
    }
    if (v.existe == nullptr || v.existe(contexto)) nodos.push_back(Nodo(v));
  }
  return nodos;
}

bool SaleAlBuscar(const NodoVariable& nodo, std::string_view buscado) {
  const std::string donde = ClaveBusqueda(nodo.grupo + " " + nodo.texto);
  std::istringstream palabras(ClaveBusqueda(buscado));
  for (std::string palabra; palabras >> palabra;)
    if (donde.find(palabra) == std::string::npos) return false;
  return true;
}

}  // namespace novex
