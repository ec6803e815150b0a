#include "files/CodificacionXml.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/Texto.h"

namespace novex {
namespace {

constexpr std::size_t kBytesMirados = 200;
constexpr std::size_t kBytesMinimos = 25;
constexpr std::size_t kMayorSecuencia = 4;

bool EmpiezaSinMayusculas(std::string_view texto, std::string_view prefijo) {
  return texto.size() >= prefijo.size() &&
         IgualesSinMayusculas(texto.substr(0, prefijo.size()), prefijo);
}

// Texto de 16 bits: lleva su marca o bytes nulos, que no caben en uno de 8.
bool PareceDe16Bits(std::string_view bytes) {
  return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
         bytes.find('\0') != std::string_view::npos;
}

// El trozo mirado puede cortar la última letra.
bool EsUtf8ConCorte(std::string_view bytes, bool cortado) {
  for (std::size_t quitados = 0; quitados < kMayorSecuencia && quitados <= bytes.size();
       ++quitados) {
    if (EsUtf8(bytes.substr(0, bytes.size() - quitados))) return true;
    if (!cortado) return false;
  }
  return false;
}

// Lo que sigue a encoding=" o encoding='.
std::optional<std::string_view> ValorDeEncoding(std::string_view bytes) {
  constexpr std::string_view kPalabra = "encoding";
  const auto donde = bytes.find(kPalabra);
  if (donde == std::string_view::npos) return std::nullopt;
  std::string_view resto = SinBlancos(bytes.substr(donde + kPalabra.size()));
  if (!resto.starts_with('=')) return std::nullopt;
  resto = SinBlancos(resto.substr(1));
  if (!resto.starts_with('"') && !resto.starts_with('\'')) return std::nullopt;
  return resto.substr(1);
}

struct Prefijo {
  std::string_view texto;
  CodificacionXml modo;
};
constexpr std::array<Prefijo, 6> kPrefijos = {{{"shiftjis", CodificacionXml::ShiftJIS},
                                               {"shift-jis", CodificacionXml::ShiftJIS},
                                               {"sjis", CodificacionXml::ShiftJIS},
                                               {"GB2312", CodificacionXml::GB2312},
                                               {"Big5", CodificacionXml::Big5},
                                               {"GBK", CodificacionXml::GBK}}};

}  // namespace

void ModoCodificacion::Deducir(std::string_view bytes) {
  const bool cortado = bytes.size() > kBytesMirados;
  bytes = bytes.substr(0, kBytesMirados);
  if (bytes.size() < kBytesMinimos || PareceDe16Bits(bytes)) return;
  if (bytes.starts_with(kBomUtf8)) {
    valor = CodificacionXml::Utf8;
    return;
  }
  const bool valido = EsUtf8ConCorte(bytes, cortado);
  const auto nombre = ValorDeEncoding(bytes);
  if (!nombre) {
    valor = valido ? CodificacionXml::Utf8 : CodificacionXml::Legado;
    return;
  }
  if (EmpiezaSinMayusculas(*nombre, "utf-8") || EmpiezaSinMayusculas(*nombre, "utf8")) {
    if (valido) valor = CodificacionXml::Utf8;
    return;
  }
  const auto conocido = std::find_if(kPrefijos.begin(), kPrefijos.end(), [&](const Prefijo& p) {
    return EmpiezaSinMayusculas(*nombre, p.texto);
  });
  valor = conocido == kPrefijos.end() ? CodificacionXml::Legado : conocido->modo;
}

std::string_view ModoCodificacion::NombreCabecera() const {
  if (valor == CodificacionXml::Utf8) return "utf-8";
  return valor == CodificacionXml::ShiftJIS ? "SHIFT-JIS" : "ISO-8859-1";
}

}  // namespace novex
