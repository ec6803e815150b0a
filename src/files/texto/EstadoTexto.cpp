#include "files/texto/EstadoTexto.h"

#include "base/Texto.h"

namespace novex {
namespace {

constexpr std::size_t kLargoMaximoNota = 200;

// Un texto como se enseña en el informe; el de un fichero estropeado puede ser enorme.
std::string Recortado(std::string_view texto) {
  const std::string corto(PrincipioUtf8(texto, kLargoMaximoNota));
  return corto.size() == texto.size() ? corto : corto + "...";
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

int EstadoTexto::LeerEntero(const ValorTexto& valor, int minimo, int maximo) {
  return camposFichero::LeerEntero(valor.texto, valor.etiqueta, minimo, maximo, mensajes);
}

}  // namespace novex
