#pragma once

#include "files/xmlParser.h"
#include "model/NodoConservado.h"

namespace novex {

/// Copia un elemento con sus atributos, su texto y sus hijos.
NodoConservado Conservar(const XMLNode& nodo);

/// Añade a `padre` un elemento conservado.
void Devolver(XMLNode& padre, const NodoConservado& nodo);

}  // namespace novex
