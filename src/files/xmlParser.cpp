#include "files/xmlParser.h"

#include "base/Texto.h"
#include "files/ArbolXml.h"

namespace novex {
namespace {

// Lista de nombres que se recorre desde la posición `*i`, que pasa a la siguiente del acierto.
template <typename Lista, typename Nombre>
auto Buscar(const Lista& lista, std::string_view buscado, std::size_t* i, Nombre nombre) {
  for (std::size_t k = i != nullptr ? *i : 0; k < lista.size(); ++k) {
    if (!IgualesSinMayusculas(nombre(lista[k]), buscado)) continue;
    if (i != nullptr) *i = k + 1;
    return lista.begin() + static_cast<std::ptrdiff_t>(k);
  }
  return lista.end();
}

std::optional<std::string_view> En(const std::vector<std::string_view>& lista, std::size_t k) {
  if (k >= lista.size()) return std::nullopt;
  return lista[k];
}

}  // namespace

XMLNode XMLNode::createTop(std::string_view declaration) {
  auto arbol = std::make_shared<arbolXml::Arbol>();
  arbolXml::Nodo& nodo = arbol->Nuevo(arbol->Guardar(declaration));
  nodo.esDeclaracion = true;
  return {std::move(arbol), &nodo};
}

XMLNode XMLNode::childNamed(std::string_view name, std::size_t* i) const {
  if (nodo_ == nullptr) return {};
  const auto it = Buscar(nodo_->hijos, name, i, [](const arbolXml::Nodo* n) { return n->nombre; });
  return it == nodo_->hijos.end() ? XMLNode() : XMLNode(arbol_, *it);
}

XMLNode XMLNode::childAt(std::size_t k) const {
  return k < childCount() ? XMLNode(arbol_, nodo_->hijos[k]) : XMLNode();
}

std::size_t XMLNode::childCount() const {
  return nodo_ == nullptr ? 0 : nodo_->hijos.size();
}

std::optional<std::string_view> XMLNode::attributeValue(std::string_view name,
                                                        std::size_t* i) const {
  if (nodo_ == nullptr) return std::nullopt;
  const auto it = Buscar(nodo_->atributos, name, i, [](const auto& a) { return a.nombre; });
  if (it == nodo_->atributos.end()) return std::nullopt;
  return it->valor;
}

std::size_t XMLNode::attributeCount() const {
  return nodo_ == nullptr ? 0 : nodo_->atributos.size();
}

std::optional<XMLNode::Attribute> XMLNode::attributeAt(std::size_t k) const {
  if (k >= attributeCount()) return std::nullopt;
  return Attribute{nodo_->atributos[k].nombre, nodo_->atributos[k].valor};
}

std::size_t XMLNode::textCount() const {
  return nodo_ == nullptr ? 0 : nodo_->textos.size();
}

std::optional<std::string_view> XMLNode::textAt(std::size_t k) const {
  if (nodo_ == nullptr) return std::nullopt;
  return En(nodo_->textos, k);
}

std::size_t XMLNode::clearCount() const {
  return nodo_ == nullptr ? 0 : nodo_->claros.size();
}

std::optional<std::string_view> XMLNode::clearAt(std::size_t k) const {
  if (nodo_ == nullptr) return std::nullopt;
  return En(nodo_->claros, k);
}

std::optional<std::string_view> XMLNode::nameOf() const {
  if (nodo_ == nullptr) return std::nullopt;
  return nodo_->nombre;
}

XMLNode XMLNode::appendChild(std::string_view name) {
  if (nodo_ == nullptr) return {};
  arbolXml::Nodo& hijo = arbol_->Nuevo(arbol_->Guardar(name));
  nodo_->AnadirHijo(&hijo);
  return {arbol_, &hijo};
}

void XMLNode::setAttribute(std::string_view name, std::string_view value) {
  if (nodo_ != nullptr) nodo_->atributos.push_back({arbol_->Guardar(name), arbol_->Guardar(value)});
}

void XMLNode::appendText(std::string_view text) {
  if (nodo_ != nullptr) nodo_->AnadirTexto(arbol_->Guardar(text));
}

void XMLNode::appendClear(std::string_view text) {
  if (nodo_ != nullptr) nodo_->AnadirClaro(arbol_->Guardar(text));
}

void XMLNode::updateClear(std::string_view text) {
  if (clearCount() == 0)
    appendClear(text);
  else
    nodo_->claros.front() = arbol_->Guardar(text);
}

}  // namespace novex
