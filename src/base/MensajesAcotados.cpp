#include "base/MensajesAcotados.h"

#include "base/Texto.h"

namespace novex {
namespace {

std::string Recortado(const std::string& texto) {
  const std::string_view corto = PrincipioUtf8(texto, MensajesAcotados::kMaximoTexto);
  return corto.size() == texto.size() ? texto : std::string(corto) + "...";
}

}  // namespace

void MensajesAcotados::Avisar(const std::string& titulo, const std::string& texto) {
  if (++avisos_ <= kMaximoAvisos) destino_.Avisar(titulo, Recortado(texto));
}

bool MensajesAcotados::Preguntar(const std::string& titulo, const std::string& texto) {
  return destino_.Preguntar(titulo, Recortado(texto));
}

void MensajesAcotados::Terminar() {
  if (avisos_ > kMaximoAvisos)
    destino_.Avisar("AVISO", "Hay " + std::to_string(avisos_ - kMaximoAvisos) +
                                 " avisos más del fichero que no se enseñan");
  avisos_ = 0;
}

}  // namespace novex
