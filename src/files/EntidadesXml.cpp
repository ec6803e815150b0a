#include "files/EntidadesXml.h"

#include <algorithm>
#include <array>

#include "base/Texto.h"
#include "files/ErroresXml.h"

namespace novex {
namespace {

// Dos grafías, decimal y hexadecimal de cinco cifras: deciden los bytes del fichero de proyecto.
constexpr std::array<EntidadXml, 37> kEntidades = {{
    {"&amp;", 38},      {"&lt;", 60},       {"&gt;", 62},       {"&quot;", 34},
    {"&apos;", 39},     {"&#225;", 225},    {"&#x000E0;", 224}, {"&#233;", 233},
    {"&#x000E8;", 232}, {"&#237;", 237},    {"&#x000EC;", 236}, {"&#243;", 243},
    {"&#x000F2;", 242}, {"&#250;", 250},    {"&#x000F9;", 249}, {"&#241;", 241},
    {"&#209;", 209},    {"&#252;", 252},    {"&#x000E7;", 231}, {"&#x000C1;", 193},
    {"&#x000C0;", 192}, {"&#x000C8;", 200}, {"&#x000C9;", 201}, {"&#x000CD;", 205},
    {"&#x000CC;", 204}, {"&#x000D3;", 211}, {"&#x000D2;", 210}, {"&#x000DA;", 218},
    {"&#x000D9;", 217}, {"&#x000EF;", 239}, {"&#170;", 170},    {"&#186;", 186},
    {"&#176;", 176},    {"&#199;", 199},    {"&#33;", 33},      {"&#35;", 35},
    {"&#37;", 37},
}};

// Las que se leen por su nombre; las demás, por la regla numérica.
constexpr std::size_t kConNombre = 5;

// Posición en la tabla de cada carácter hasta 255, o -1.
constexpr std::array<signed char, 256> kPosicion = [] {
  std::array<signed char, 256> posicion{};
  posicion.fill(-1);
  for (std::size_t i = 0; i < kEntidades.size(); ++i)
    posicion[kEntidades[i].codigo] = static_cast<signed char>(i);
  return posicion;
}();

constexpr char32_t kMayorCodigo = 255;

struct Referencia {
  int codigo = codigoXml::kSinError;
  char32_t caracter = 0;
  std::size_t bytes = 0;
};

// "&#225;" o "&#xE1;"; `texto` empieza en '&' y sigue '#'.
Referencia LeerNumerica(std::string_view texto) {
  constexpr Referencia kMala{codigoXml::kEntidadDesconocida, 0, 0};
  std::size_t i = 2;
  const bool hexadecimal = i < texto.size() && (texto[i] == 'x' || texto[i] == 'X');
  const char32_t base = hexadecimal ? 16 : 10;
  if (hexadecimal) ++i;
  char32_t valor = 0;
  const std::size_t primera = i;
  for (; i < texto.size() && texto[i] != ';'; ++i) {
    const char c = texto[i];
    char32_t cifra = base;
    if (c >= '0' && c <= '9') cifra = static_cast<char32_t>(c - '0');
    if (c >= 'a' && c <= 'f') cifra = static_cast<char32_t>(c - 'a' + 10);
    if (c >= 'A' && c <= 'F') cifra = static_cast<char32_t>(c - 'A' + 10);
    if (cifra >= base) return kMala;
    valor = std::min<char32_t>(valor * base + cifra, kMayorCodigo + 1);
  }
  if (i == texto.size() || i == primera || valor == 0) return kMala;
  if (valor > kMayorCodigo) return {codigoXml::kMayorDe255, 0, 0};
  return {codigoXml::kSinError, valor, i + 1};
}

Referencia LeerReferencia(std::string_view texto) {
  if (texto.size() > 1 && texto[1] == '#') return LeerNumerica(texto);
  for (std::size_t i = 0; i < kConNombre; ++i)
    if (texto.starts_with(kEntidades[i].texto))
      return {codigoXml::kSinError, kEntidades[i].codigo, kEntidades[i].texto.size()};
  return {codigoXml::kEntidadDesconocida, 0, 0};
}

// Los códigos 128 a 159 son los del juego de caracteres de un byte de Windows.
void AnadirCaracter(std::string& destino, char32_t codigo) {
  if (codigo >= 0x80 && codigo <= 0x9F) {
    const char byte = static_cast<char>(static_cast<unsigned char>(codigo));
    destino += Windows1252AUtf8(std::string_view(&byte, 1));
  } else {
    AnadirUtf8(destino, codigo);
  }
}

}  // namespace

std::span<const EntidadXml> TablaEntidades() {
  return kEntidades;
}

std::string ToXMLStringTool::toXML(std::string_view texto) {
  std::string salida;
  salida.reserve(texto.size() + texto.size() / 4);
  Anadir(salida, texto);
  return salida;
}

void ToXMLStringTool::Anadir(std::string& destino, std::string_view texto) {
  while (!texto.empty()) {
    const CaracterUtf8 c = PrimerCaracter(texto);
    const int fila = c.codigo <= kMayorCodigo ? kPosicion[c.codigo] : -1;
    if (fila >= 0)
      destino.append(kEntidades[static_cast<std::size_t>(fila)].texto);
    else if (c.codigo != 0)
      destino.append(texto.substr(0, c.bytes));
    texto.remove_prefix(c.bytes);
  }
}

bool EsTextoLlano(std::string_view bytes) {
  return std::none_of(bytes.begin(), bytes.end(),
                      [](char c) { return c == '&' || static_cast<unsigned char>(c) >= 0x80; });
}

ResultadoEntidades DecodificarTextoXml(std::string_view bytes, std::string& destino) {
  const bool esUtf8 = EsUtf8(bytes);
  std::size_t i = 0;
  while (i < bytes.size()) {
    const std::size_t siguiente = std::min(bytes.find('&', i), bytes.size());
    const std::string_view llano = bytes.substr(i, siguiente - i);
    destino += esUtf8 ? std::string(llano) : Windows1252AUtf8(llano);
    i = siguiente;
    if (i == bytes.size()) break;
    const Referencia leida = LeerReferencia(bytes.substr(i));
    if (leida.codigo != codigoXml::kSinError) return {leida.codigo, i};
    AnadirCaracter(destino, leida.caracter);
    i += leida.bytes;
  }
  return {};
}

}  // namespace novex
