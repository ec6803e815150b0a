#include "demand/CoeficientesRespuesta.h"

#include <string>

#include "model/CatalogoCampos.h"

namespace novex {
namespace {

std::array<float, kTerminosRespuesta> LeerJuego(const XMLNode& nodo, Mensajes& mensajes) {
  std::array<float, kTerminosRespuesta> juego{};
  float suma = 0;
  for (std::size_t k = 0; k < kTerminosRespuesta; ++k) {
    const auto texto = nodo.attributeValue("A" + std::to_string(k));
    juego[k] = ValorSinComprobar(texto.value_or(""), mensajes);
    suma += juego[k];
  }
  for (float& peso : juego) peso = suma != 0.0F ? peso / suma : 0.0F;
  return juego;
}

}  // namespace

CoeficientesRespuesta LeerCoeficientesRespuesta(const XMLNode& raiz, Mensajes& mensajes) {
  CoeficientesRespuesta salida;
  for (std::size_t i = 0; i < raiz.childCount(); ++i) {
    const XMLNode nodo = raiz.childAt(i);
    const auto tipo = nodo.attributeValue("Tipo");
    if (tipo == "MuroLigero") salida.muro = LeerJuego(nodo, mensajes);
    if (tipo == "TechoMedio") salida.techo = LeerJuego(nodo, mensajes);
  }
  return salida;
}

}  // namespace novex
