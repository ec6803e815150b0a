#include "base/Texto.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

constexpr char32_t kSustituto = 0xFFFD;

// Windows-1252 entre 0x80 y 0x9F; los huecos de la tabla quedan como el control de Latin-1.
constexpr std::array<char32_t, 32> kAlta1252 = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

constexpr unsigned Byte(char c) {
  return static_cast<unsigned char>(c);
}

// Bytes de la secuencia que empieza con `primero`; 0 si ninguna empieza así.
constexpr std::size_t LargoSecuencia(unsigned primero) {
  if (primero < 0x80) return 1;
  if (primero >= 0xC2 && primero <= 0xDF) return 2;
  if (primero >= 0xE0 && primero <= 0xEF) return 3;
  if (primero >= 0xF0 && primero <= 0xF4) return 4;
  return 0;
}

// Código de la secuencia válida con que empieza el texto, o kSustituto y 0 bytes si no lo es.
CaracterUtf8 Decodificar(std::string_view texto) {
  const std::size_t n = LargoSecuencia(Byte(texto[0]));
  if (n == 0 || n > texto.size()) return {kSustituto, 0};
  if (n == 1) return {Byte(texto[0]), 1};
  char32_t codigo = Byte(texto[0]) & (0x7FU >> n);
  for (std::size_t i = 1; i < n; ++i) {
    if ((Byte(texto[i]) & 0xC0U) != 0x80U) return {kSustituto, 0};
    codigo = (codigo << 6U) | (Byte(texto[i]) & 0x3FU);
  }
  constexpr std::array<char32_t, 5> kMinimo = {0, 0, 0x80, 0x800, 0x10000};
  const bool subrogado = codigo >= 0xD800 && codigo <= 0xDFFF;
  if (codigo < kMinimo[n] || codigo > 0x10FFFF || subrogado) return {kSustituto, 0};
  return {codigo, n};
}

constexpr char Minuscula(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
}

constexpr bool EsBlancoXml(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

}  // namespace

bool EsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const auto caracter = Decodificar(bytes);
    if (caracter.bytes == 0) return false;
    bytes.remove_prefix(caracter.bytes);
  }
  return true;
}

void AnadirUtf8(std::string& destino, char32_t codigo) {
  if (codigo > 0x10FFFF || (codigo >= 0xD800 && codigo <= 0xDFFF)) codigo = kSustituto;
  const auto anadir = [&destino](char32_t byte) { destino.push_back(static_cast<char>(byte)); };
  if (codigo < 0x80) {
    anadir(codigo);
  } else if (codigo < 0x800) {
    anadir(0xC0U | (codigo >> 6U));
    anadir(0x80U | (codigo & 0x3FU));
  } else if (codigo < 0x10000) {
    anadir(0xE0U | (codigo >> 12U));
    anadir(0x80U | ((codigo >> 6U) & 0x3FU));
    anadir(0x80U | (codigo & 0x3FU));
  } else {
    anadir(0xF0U | (codigo >> 18U));
    anadir(0x80U | ((codigo >> 12U) & 0x3FU));
    anadir(0x80U | ((codigo >> 6U) & 0x3FU));
    anadir(0x80U | (codigo & 0x3FU));
  }
}

std::string Windows1252AUtf8(std::string_view bytes) {
  std::string salida;
  salida.reserve(bytes.size() + bytes.size() / 8);
  for (const char c : bytes) {
    const unsigned b = Byte(c);
    AnadirUtf8(salida, b >= 0x80 && b <= 0x9F ? kAlta1252[b - 0x80] : char32_t{b});
  }
  return salida;
}

std::string AUtf8(std::string_view bytes) {
  return EsUtf8(bytes) ? std::string(bytes) : Windows1252AUtf8(bytes);
}

CaracterUtf8 PrimerCaracter(std::string_view texto) {
  const auto caracter = Decodificar(texto);
  if (caracter.bytes == 0) return {Byte(texto[0]), 1};
  return caracter;
}

std::string_view PrincipioUtf8(std::string_view texto, std::size_t bytes) {
  if (texto.size() <= bytes) return texto;
  while (bytes > 0 && (Byte(texto[bytes]) & 0xC0U) == 0x80U) --bytes;
  return texto.substr(0, bytes);
}

bool IgualesSinMayusculas(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (Minuscula(a[i]) != Minuscula(b[i])) return false;
  return true;
}

std::string_view SinBlancosFinales(std::string_view texto) {
  while (!texto.empty() && EsBlancoXml(texto.back())) texto.remove_suffix(1);
  return texto;
}

std::string ClaveBusqueda(std::string_view texto) {
  constexpr std::array<std::pair<std::u32string_view, char>, 7> kLetras = {{{U"áàâäÁÀÂÄ", 'a'},
                                                                            {U"éèêëÉÈÊË", 'e'},
                                                                            {U"íìîïÍÌÎÏ", 'i'},
                                                                            {U"óòôöÓÒÔÖ", 'o'},
                                                                            {U"úùûüÚÙÛÜ", 'u'},
                                                                            {U"ñÑ", 'n'},
                                                                            {U"çÇ", 'c'}}};
  std::string clave;
  clave.reserve(texto.size());
  while (!texto.empty()) {
    const CaracterUtf8 c = PrimerCaracter(texto);
    texto.remove_prefix(c.bytes);
    if (c.codigo < 0x80) {
      const auto letra = static_cast<char>(c.codigo);
      clave += letra >= 'A' && letra <= 'Z' ? static_cast<char>(letra - 'A' + 'a') : letra;
      continue;
    }
    const auto* base = std::find_if(kLetras.begin(), kLetras.end(), [&](const auto& letras) {
      return letras.first.find(c.codigo) != std::u32string_view::npos;
    });
    if (base != kLetras.end())
      clave += base->second;
    else
      AnadirUtf8(clave, c.codigo);
  }
  return clave;
}

std::string_view SinBlancos(std::string_view texto) {
  while (!texto.empty() && EsBlancoXml(texto.front())) texto.remove_prefix(1);
  return SinBlancosFinales(texto);
}

}  // namespace novex
