#include "reference/CatalogoVidrios.h"

#include <algorithm>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

float Numero(const XMLNode& nodo, std::string_view atributo) {
  return static_cast<float>(RealInicial(nodo.attributeValue(atributo).value_or("")));
}

std::string Nombre(const XMLNode& nodo) {
  return std::string(nodo.attributeValue("name").value_or(""));
}

// Recorre las filas de los grupos de un nombre: su tipo, si es menor que `tipos`, y la fila.
template <class Visita>
void RecorrerGrupos(const XMLNode& raiz, std::string_view grupo, std::string_view fila,
                    std::size_t tipos, Visita visita) {
  std::size_t i = 0;
  while (const XMLNode nodo = raiz.childNamed(grupo, &i)) {
    const long tipo = EnteroInicial(nodo.attributeValue("indice").value_or("-1"));
    if (tipo < 0 || static_cast<std::size_t>(tipo) >= tipos) continue;
    std::size_t j = 0;
    while (const XMLNode hijo = nodo.childNamed(fila, &j))
      visita(static_cast<std::size_t>(tipo), hijo);
  }
}

template <class Tabla>
auto Buscar(const Tabla& tabla, int tipo, int posicion) -> decltype(&tabla[0][0]) {
  if (tipo < 0 || static_cast<std::size_t>(tipo) >= tabla.size()) return nullptr;
  const auto& filas = tabla[static_cast<std::size_t>(tipo)];
  if (posicion < 0 || static_cast<std::size_t>(posicion) >= filas.size()) return nullptr;
  return &filas[static_cast<std::size_t>(posicion)];
}

}  // namespace

const VidrioCatalogo* CatalogoVidrios::Vidrio(int tipo, int posicion) const {
  return Buscar(vidrios, tipo, posicion);
}

const MarcoCatalogo* CatalogoVidrios::Marco(int tipo, int posicion) const {
  return Buscar(marcos, tipo, posicion);
}

std::optional<ClasePermeabilidad> CatalogoVidrios::ClaseDe(float C100) const {
  const auto it = std::find_if(permeabilidades.begin(), permeabilidades.end(),
                               [C100](const ClasePermeabilidad& c) { return c.C100 == C100; });
  if (it == permeabilidades.end()) return std::nullopt;
  return *it;
}

CatalogoVidrios LeerCatalogoVidrios(const XMLNode& raiz) {
  CatalogoVidrios catalogo;
  RecorrerGrupos(raiz, "Vidrios", "Vidrio", catalogo.vidrios.size(),
                 [&](std::size_t tipo, const XMLNode& n) {
                   catalogo.vidrios[tipo].push_back(
                       {Nombre(n), Numero(n, "U"), Numero(n, "UH"), Numero(n, "g")});
                 });
  RecorrerGrupos(raiz, "Marcos", "Marco", catalogo.marcos.size(),
                 [&](std::size_t tipo, const XMLNode& n) {
                   catalogo.marcos[tipo].push_back({Nombre(n), Numero(n, "U"), Numero(n, "UH")});
                 });
  const XMLNode clases = raiz.childNamed("Permeabilidades");
  std::size_t i = 0;
  while (const XMLNode n = clases.childNamed("Permeabilidad", &i))
    catalogo.permeabilidades.push_back(
        {static_cast<int>(Numero(n, "clase")), Nombre(n), Numero(n, "C100")});
  return catalogo;
}

}  // namespace novex
