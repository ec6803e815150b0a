#include "files/NodoConservadoXml.h"

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

void Devolver(XMLNode& padre, const NodoConservado& nodo) {
  XMLNode hijo = padre.appendChild(nodo.nombre);
  for (const auto& [nombre, valor] : nodo.atributos) hijo.setAttribute(nombre, valor);
  if (!nodo.texto.empty()) hijo.appendText(nodo.texto);
  for (const NodoConservado& n : nodo.hijos) Devolver(hijo, n);
}

}  // namespace novex
