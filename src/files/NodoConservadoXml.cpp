#include "files/NodoConservadoXml.h"

#include "base/Texto.h"

namespace novex {

NodoConservado Conservar(const XMLNode& nodo) {
  NodoConservado copia;
  copia.nombre = nodo.nameOf().value_or("");
  for (std::size_t i = 0; i < nodo.attributeCount(); ++i) {
    const auto a = nodo.attributeAt(i);
    copia.atributos.emplace_back(a->name, a->value);
  }
  for (std::size_t i = 0; i < nodo.textCount(); ++i) copia.texto += *nodo.textAt(i);
  for (std::size_t i = 0; i < nodo.clearCount(); ++i) copia.texto += *nodo.clearAt(i);
  for (std::size_t i = 0; i < nodo.childCount(); ++i)
    copia.hijos.push_back(Conservar(nodo.childAt(i)));
  return copia;
}

namespace {

// Los blancos de los extremos de un texto solo se leen de un bloque; el cierre de un bloque dentro
// del texto se reparte entre dos.
void DevolverTexto(XMLNode& nodo, std::string_view texto) {
  if (SinBlancos(texto).size() == texto.size()) {
    nodo.appendText(texto);
    return;
  }
  constexpr std::string_view kCierre = "]]>";
  for (std::size_t fin = texto.find(kCierre); fin != std::string_view::npos;
       fin = texto.find(kCierre)) {
    nodo.appendClear(texto.substr(0, fin + 2));
    texto.remove_prefix(fin + 2);
  }
  nodo.appendClear(texto);
}

}  // namespace

void Devolver(XMLNode& padre, const NodoConservado& nodo) {
  XMLNode hijo = padre.appendChild(nodo.nombre);
  for (const auto& [nombre, valor] : nodo.atributos) hijo.setAttribute(nombre, valor);
  if (!nodo.texto.empty()) DevolverTexto(hijo, nodo.texto);
  for (const NodoConservado& n : nodo.hijos) Devolver(hijo, n);
}

}  // namespace novex
