#include "files/texto/EstadoTexto.h"

namespace novex {
namespace {

constexpr std::size_t kLargoMaximoNota = 200;

// Un valor como se enseña en el informe; el de un fichero estropeado puede ser enorme.
std::string Citado(std::string_view texto) {
  std::string nota = "\"" + std::string(texto.substr(0, kLargoMaximoNota));
  // Sin la parte de un carácter que haya podido quedar al cortar.
  if (texto.size() > kLargoMaximoNota) {
    while ((static_cast<unsigned char>(texto[nota.size() - 1]) & 0xC0U) == 0x80U) nota.pop_back();
    nota += "...";
  }
  return nota + "\"";
}

std::string Dicho(const ValorTexto& valor) {
  return "Línea " + std::to_string(valor.linea) + ": " + std::string(valor.etiqueta) + " " +
         Citado(valor.texto);
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

int EstadoTexto::LeerEntero(const ValorTexto& valor, int minimo, int maximo) {
  return camposFichero::LeerEntero(valor.texto, valor.etiqueta, minimo, maximo, mensajes);
}

}  // namespace novex
