#include "files/Base64.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "files/ErroresXml.h"

namespace novex {
namespace {

constexpr std::string_view kAlfabeto =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr std::array<signed char, 256> kValor = [] {
  std::array<signed char, 256> valor{};
  valor.fill(-1);
  for (std::size_t i = 0; i < kAlfabeto.size(); ++i)
    valor[static_cast<unsigned char>(kAlfabeto[i])] = static_cast<signed char>(i);
  return valor;
}();

constexpr char Octeto(std::uint32_t grupo, unsigned desplazamiento) {
  return static_cast<char>(static_cast<unsigned char>((grupo >> desplazamiento) & 0xFFU));
}

}  // namespace

std::string CodificarBase64(std::string_view bytes) {
  std::string salida;
  salida.reserve((bytes.size() + 2) / 3 * 4);
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t n = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t grupo = 0;
    for (std::size_t k = 0; k < 3; ++k)
      grupo = (grupo << 8U) | (k < n ? static_cast<unsigned char>(bytes[i + k]) : 0U);
    for (std::size_t k = 0; k < 4; ++k)
      salida += k <= n ? kAlfabeto[(grupo >> (18U - 6U * k)) & 0x3FU] : '=';
  }
  return salida;
}

int DecodificarBase64(std::string_view texto, std::string& bytes) {
  bytes.clear();
  bytes.reserve(texto.size() / 4 * 3);
  std::uint32_t grupo = 0;
  int cifras = 0;
  for (const char c : texto) {
    if (c == '=') break;
    const int valor = kValor[static_cast<unsigned char>(c)];
    if (valor < 0) continue;
    grupo = (grupo << 6U) | static_cast<std::uint32_t>(valor);
    if (++cifras < 4) continue;
    for (const unsigned d : {16U, 8U, 0U}) bytes += Octeto(grupo, d);
    grupo = 0;
    cifras = 0;
  }
  if (cifras >= 2) bytes += Octeto(grupo << (6U * static_cast<unsigned>(4 - cifras)), 16);
  if (cifras == 3) bytes += Octeto(grupo << 6U, 8);
  const auto utiles = std::count_if(texto.begin(), texto.end(), [](char c) {
    return c == '=' || kValor[static_cast<unsigned char>(c)] >= 0;
  });
  if (cifras == 1) return codigoXml::kBase64Truncado;
  return utiles % 4 == 0 ? codigoXml::kSinError : codigoXml::kBase64NoMultiplo;
}

}  // namespace novex
