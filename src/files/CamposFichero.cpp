#include "files/CamposFichero.h"

#include <algorithm>
#include <cmath>

#include "base/Texto.h"
#include "files/LimitesProyecto.h"
#include "model/CatalogoCampos.h"

namespace novex {

std::string TextoDeHijo(const XMLNode& nodo, std::string_view etiqueta) {
  return std::string(ValorDeHijo(nodo, etiqueta).value_or(""));
}

XMLNode AnadirValor(XMLNode& nodo, std::string_view etiqueta, std::string_view valor) {
  XMLNode hijo = nodo.appendChild(etiqueta);
  hijo.setAttribute(kAtributoValor, valor);
  return hijo;
}

XMLNode AnadirTexto(XMLNode& nodo, std::string_view etiqueta, std::string_view texto) {
  XMLNode hijo = nodo.appendChild(etiqueta);
  if (!texto.empty()) hijo.appendText(texto);
  return hijo;
}

namespace camposFichero {
namespace {

constexpr std::string_view kSi = "Si";
constexpr std::string_view kNo = "No";

}  // namespace

float LeerReal(std::string_view texto, std::string_view etiqueta, Mensajes& mensajes) {
  const float valor = ValorSinComprobar(texto, mensajes);
  if (std::isfinite(valor)) return valor;
  mensajes.Avisar("Valor incorrecto", std::string(etiqueta) + ": \"" + std::string(texto) +
                                          "\" no cabe en un número, se toma un valor de: 0");
  return 0;
}

int LeerEntero(std::string_view texto, std::string_view etiqueta, int minimo, int maximo,
               Mensajes& mensajes) {
  const double valor = std::trunc(static_cast<double>(LeerReal(texto, etiqueta, mensajes)));
  if (valor >= minimo && valor <= maximo) return static_cast<int>(valor);
  mensajes.Avisar("Valor incorrecto", std::string(etiqueta) + ": " + std::string(texto) +
                                          " no está entre " + std::to_string(minimo) + " y " +
                                          std::to_string(maximo) + ", se toma un valor de: 0");
  return 0;
}

std::optional<int> LeerPosicion(std::string_view texto, ListaTextos lista) {
  if (texto.empty()) return std::nullopt;
  const auto it = std::find(lista.begin(), lista.end(), texto);
  if (it == lista.end()) return std::nullopt;
  return static_cast<int>(it - lista.begin());
}

std::string_view TextoDePosicion(int posicion, ListaTextos lista) {
  const auto i = static_cast<std::size_t>(posicion);
  return posicion >= 0 && i < lista.size() ? lista[i] : std::string_view{};
}

std::string_view LeerTexto(std::string_view texto, std::string_view etiqueta, Mensajes& mensajes) {
  const std::string_view tomado = PrincipioUtf8(texto, limiteProyecto::kLetras);
  if (tomado.size() < texto.size())
    mensajes.Avisar("Valor incorrecto", std::string(etiqueta) + ": el texto pasa de " +
                                            std::to_string(limiteProyecto::kLetras) +
                                            " letras y se corta");
  return tomado;
}

std::string_view TextoLogico(bool valor) {
  return valor ? kSi : kNo;
}

bool LeerLogico(std::string_view texto) {
  return texto == kSi;
}

std::string Etiqueta(std::string_view patron, Indice donde) {
  std::string etiqueta;
  etiqueta.reserve(patron.size() + 8);
  for (const char c : patron) {
    if (c == '#')
      etiqueta += std::to_string(donde.tipo + 1);
    else if (c == '*')
      etiqueta += kNombreSector.at(donde.sector);
    else
      etiqueta += c;
  }
  return etiqueta;
}

std::optional<std::string_view> Buscador::Valor(std::string_view etiqueta) {
  if (lugar_ == Lugar::Atributos) {
    const auto esperado = nodo_.attributeAt(siguiente_);
    if (esperado && IgualesSinMayusculas(esperado->name, etiqueta)) {
      ++siguiente_;
      return esperado->value;
    }
    siguiente_ = 0;
    return nodo_.attributeValue(etiqueta, &siguiente_);
  }
  const XMLNode esperado = nodo_.childAt(siguiente_);
  if (esperado && IgualesSinMayusculas(*esperado.nameOf(), etiqueta)) {
    ++siguiente_;
    return esperado.attributeValue(kAtributoValor);
  }
  std::size_t i = 0;
  const XMLNode encontrado = nodo_.childNamed(etiqueta, &i);
  if (encontrado) siguiente_ = i;
  return encontrado.attributeValue(kAtributoValor);
}

}  // namespace camposFichero
}  // namespace novex
