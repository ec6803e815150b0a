#include "files/texto/EstadoTexto.h"

namespace novex {
namespace {

constexpr std::size_t kLargoMaximoNota = 200;

// Un texto como se enseña en el informe; el de un fichero estropeado puede ser enorme.
std::string Recortado(std::string_view texto) {
  if (texto.size() <= kLargoMaximoNota) return std::string(texto);
  // Sin la parte de un carácter que quedaría al cortar.
  std::size_t n = kLargoMaximoNota;
  while (n > 0 && (static_cast<unsigned char>(texto[n]) & 0xC0U) == 0x80U) --n;
  return std::string(texto.substr(0, n)) + "...";
}

std::string Dicho(const ValorTexto& valor) {
  return "Línea " + std::to_string(valor.linea) + ": " + Recortado(valor.etiqueta) + " \"" +
         Recortado(valor.texto) + "\"";
}

}  // namespace

bool CursorTexto::Poner(int numero, std::size_t cuantos) {
  if (!primero_) primero_ = numero == 0 ? 0 : 1;
  const bool vale = numero >= *primero_ && static_cast<std::size_t>(numero - *primero_) < cuantos;
  donde_.reset();
  if (vale) donde_ = static_cast<std::size_t>(numero - *primero_);
  return vale;
}

std::optional<bool> EstadoTexto::EnPrimerRecinto() {
  const auto donde = Cursor(FamiliaTexto::Recinto).Donde();
  if (!donde) return std::nullopt;
  return *donde == 0;
}

void EstadoTexto::Saltar(const ValorTexto& valor, std::string_view razon) {
  InformeLectura::Anotar(informe.saltados, Dicho(valor) + ": " + std::string(razon));
}

void EstadoTexto::Cambiar(const ValorTexto& valor, std::string_view nuevo) {
  InformeLectura::Anotar(informe.cambiados, Dicho(valor) + " -> " + std::string(nuevo));
}

void MensajesDeTexto::Avisar(const std::string& titulo, const std::string& texto) {
  if (++dados_ <= kMaximoAvisos) return destino_.Avisar(titulo, texto);
  if (dados_ == kMaximoAvisos + 1)
    destino_.Avisar("AVISO", "El fichero tiene más números que no se entienden; no se dicen todos");
}

int EstadoTexto::LeerEntero(const ValorTexto& valor, int minimo, int maximo) {
  return camposFichero::LeerEntero(valor.texto, valor.etiqueta, minimo, maximo, mensajes);
}

}  // namespace novex
