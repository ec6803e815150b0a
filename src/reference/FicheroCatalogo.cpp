#include "reference/FicheroCatalogo.h"

#include <algorithm>
#include <system_error>

#include "base/NumeroTexto.h"
#include "files/NodoConservadoXml.h"
#include "files/xmlParser.h"

namespace novex {
namespace {

constexpr std::string_view kDeclaracion = "xml version=\"1.0\" encoding=\"utf-8\"";

}  // namespace

FicheroCatalogo::FicheroCatalogo(std::filesystem::path ruta, std::string_view raiz)
    : ruta_(std::move(ruta)), sello_(SelloDe(ruta_)) {
  raiz_ = Conservar(XMLNode::loadFile(ruta_, raiz));
}

FicheroCatalogo::Sello FicheroCatalogo::SelloDe(const std::filesystem::path& ruta) {
  std::error_code error;
  Sello sello;
  sello.fecha = std::filesystem::last_write_time(ruta, error);
  if (error) return {};
  sello.tamano = std::filesystem::file_size(ruta, error);
  return error ? Sello{} : sello;
}

bool FicheroCatalogo::Cambiar(const std::function<bool(NodoConservado&)>& cambio,
                              Mensajes& mensajes) {
  NodoConservado copia = raiz_;
  if (!cambio(copia)) return false;
  const std::string nombre = ruta_.filename().string();
  if (SelloDe(ruta_) != sello_ &&
      !mensajes.Preguntar("AVISO", "Otro programa ha cambiado \"" + nombre +
                                       "\" desde que se abrió y al guardar se perderían sus "
                                       "cambios. ¿Quiere guardar de todos modos?"))
    return false;
  if (EscribirCatalogo(copia, ruta_) != 0) {
    mensajes.Avisar("AVISO", "No se ha podido guardar \"" + nombre + "\". Nada ha cambiado");
    return false;
  }
  raiz_ = std::move(copia);
  sello_ = SelloDe(ruta_);
  return true;
}

int EscribirCatalogo(const NodoConservado& raiz, const std::filesystem::path& ruta) {
  XMLNode documento = XMLNode::createTop(kDeclaracion);
  Devolver(documento, raiz);
  return documento.saveToFile(ruta);
}

const NodoConservado* HijoDe(const NodoConservado& nodo, std::string_view nombre) {
  const auto it = std::find_if(nodo.hijos.begin(), nodo.hijos.end(),
                               [&](const NodoConservado& h) { return h.nombre == nombre; });
  return it == nodo.hijos.end() ? nullptr : &*it;
}

NodoConservado* HijoDe(NodoConservado& nodo, std::string_view nombre) {
  return const_cast<NodoConservado*>(HijoDe(std::as_const(nodo), nombre));
}

float NumeroDeCatalogo(std::string_view texto) {
  std::string conPunto(texto);
  std::replace(conPunto.begin(), conPunto.end(), ',', '.');
  return static_cast<float>(RealInicial(conPunto));
}

bool MoverHijo(NodoConservado& padre, std::size_t indice, Sentido sentido) {
  const std::size_t cuantos = padre.hijos.size();
  if (indice >= cuantos) return false;
  if (sentido == Sentido::Arriba ? indice == 0 : indice + 1 == cuantos) return false;
  const std::size_t vecino = sentido == Sentido::Arriba ? indice - 1 : indice + 1;
  std::swap(padre.hijos[indice], padre.hijos[vecino]);
  return true;
}

}  // namespace novex
