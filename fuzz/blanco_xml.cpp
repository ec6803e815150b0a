// La capa XML: lo que se lee de la memoria, recorrido entero, y lo guardado se lee igual.
#include <string>
#include <vector>

#include "Comun.h"
#include "base/ErrorFichero.h"
#include "base/Texto.h"
#include "files/CodificacionXml.h"
#include "files/xmlParser.h"

namespace {

using novex::XMLNode;
using novex::fuzz::Exigir;

// Los textos de un elemento que no son solo blancos, sin los de sus extremos: esos no se guardan.
std::vector<std::string_view> Textos(const XMLNode& nodo) {
  std::vector<std::string_view> textos;
  for (std::size_t i = 0; i < nodo.textCount(); ++i)
    if (const auto texto = novex::SinBlancos(*nodo.textAt(i)); !texto.empty())
      textos.push_back(texto);
  return textos;
}

void ExigirIguales(const XMLNode& a, const XMLNode& b) {
  Exigir(a.nameOf() == b.nameOf(), "mismo nombre");
  Exigir(a.attributeCount() == b.attributeCount(), "mismos atributos");
  for (std::size_t i = 0; i < a.attributeCount(); ++i) {
    Exigir(a.attributeAt(i)->name == b.attributeAt(i)->name, "mismo nombre de atributo");
    Exigir(a.attributeAt(i)->value == b.attributeAt(i)->value, "mismo valor de atributo");
  }
  Exigir(Textos(a) == Textos(b), "mismos textos");
  Exigir(a.clearCount() == b.clearCount(), "mismos bloques");
  for (std::size_t i = 0; i < a.clearCount(); ++i)
    Exigir(a.clearAt(i) == b.clearAt(i), "mismo bloque");
  Exigir(a.childCount() == b.childCount(), "mismos hijos");
  for (std::size_t i = 0; i < a.childCount(); ++i) ExigirIguales(a.childAt(i), b.childAt(i));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  const std::string texto(novex::fuzz::Texto(datos, bytes));
  novex::ModoCodificacion modo;
  modo.Deducir(texto);
  XMLNode leido;
  try {
    leido = XMLNode::parseString(texto, "", "entrada.xml");
  } catch (const novex::ErrorFichero&) {
    return 0;
  }
  for (const bool enLineas : {true, false})
    ExigirIguales(leido, XMLNode::parseString(leido.toString(enLineas), "", "guardado.xml"));
  return 0;
}
