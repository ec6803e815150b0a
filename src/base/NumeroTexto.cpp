#include "base/NumeroTexto.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace novex {
namespace {

constexpr bool EsBlanco(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

std::string_view SinBlancosIniciales(std::string_view texto) {
  while (!texto.empty() && EsBlanco(texto.front())) texto.remove_prefix(1);
  return texto;
}

// from_chars no admite el signo más; strtod y las personas sí.
std::string_view SinSignoMas(std::string_view texto) {
  if (texto.size() > 1 && texto[0] == '+' && texto[1] != '-' && texto[1] != '+')
    texto.remove_prefix(1);
  return texto;
}

bool EmpiezaComoNumero(std::string_view texto) {
  std::size_t i = (!texto.empty() && texto[0] == '-') ? 1 : 0;
  if (i < texto.size() && texto[i] == '.') ++i;
  return i < texto.size() && texto[i] >= '0' && texto[i] <= '9';
}

// Un texto como "-0.00" no lleva ninguna cifra distinta de cero.
bool EsCeroNegativo(std::string_view texto) {
  return !texto.empty() && texto[0] == '-' &&
         std::all_of(texto.begin() + 1, texto.end(), [](char c) { return c == '0' || c == '.'; });
}

// Exponente de diez de la primera cifra distinta de cero de un número escrito.
long ExponenteDecimal(std::string_view texto) {
  const auto e = std::min(texto.find_first_of("eE"), texto.size());
  const auto punto = std::min(texto.find('.'), e);
  const auto cifra = std::min(texto.find_first_of("123456789"), e);
  const auto posicion = static_cast<long>(punto) - static_cast<long>(cifra);
  // El tope evita el desborde de la suma y queda más allá del largo de cualquier texto.
  constexpr long kTope = std::numeric_limits<long>::max() / 2;
  const long escrito = e < texto.size() ? EnteroInicial(texto.substr(e + 1)) : 0;
  return posicion + std::clamp(escrito, -kTope, kTope);
}

}  // namespace

std::string Fijo(double valor, int decimales) {
  decimales = std::clamp(decimales, 0, 20);
  if (!std::isfinite(valor)) valor = 0.0;
  std::array<char, 352> texto{};
  const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), valor,
                                 std::chars_format::fixed, decimales);
  std::string_view vista(texto.data(), static_cast<std::size_t>(fin.ptr - texto.data()));
  if (EsCeroNegativo(vista)) vista.remove_prefix(1);
  return std::string(vista);
}

std::string FijoCifras(double valor, int cifras, int decimales) {
  if (!std::isfinite(valor)) return Fijo(0.0, decimales);
  std::array<char, 64> texto{};
  const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), valor,
                                 std::chars_format::scientific, std::clamp(cifras, 1, 17) - 1);
  double redondeado = 0.0;
  std::from_chars(texto.data(), fin.ptr, redondeado);
  return Fijo(redondeado, decimales);
}

std::string General(float valor) {
  if (std::isnan(valor)) return "NAN";
  if (std::isinf(valor)) return valor < 0 ? "-INF" : "INF";
  if (valor == 0.0F) return "0";
  std::array<char, 64> texto{};
  const float absoluto = std::fabs(valor);
  const bool cientifica = absoluto < 1e-4F || absoluto >= 1e15F;
  const auto fin =
      std::to_chars(texto.data(), texto.data() + texto.size(), valor,
                    cientifica ? std::chars_format::scientific : std::chars_format::fixed);
  std::string salida(texto.data(), fin.ptr);
  if (!cientifica) return salida;
  // "1e-05" se escribe "1E-5".
  const auto e = salida.find('e');
  std::string exponente = salida.substr(e + 1);
  const bool negativo = exponente[0] == '-';
  exponente.erase(0, 1);
  exponente.erase(0, std::min(exponente.find_first_not_of('0'), exponente.size() - 1));
  return salida.substr(0, e) + "E" + (negativo ? "-" : "") + exponente;
}

float RedondearDecimales(float valor, int decimales) {
  // Un float por una potencia de diez hasta 10^6 cabe exacto en un double, y el cociente de dos
  // enteros menores de 2^24 redondeado a double y luego a float es el float más cercano al decimal.
  static constexpr std::array<double, 7> kPotencia = {1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
  const double escala = kPotencia[static_cast<std::size_t>(std::clamp(decimales, 0, 6))];
  const double entero = std::nearbyint(static_cast<double>(valor) * escala);
  return static_cast<float>(entero / escala) + 0.0F;
}

double RealInicial(std::string_view texto) {
  texto = SinSignoMas(SinBlancosIniciales(texto));
  if (!EmpiezaComoNumero(texto)) return 0.0;
  double valor = 0.0;
  const auto r = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
  if (r.ec != std::errc::result_out_of_range) return valor;
  // Fuera de rango from_chars no da valor: la magnitud dice si es enorme o diminuto.
  const auto leido = texto.substr(0, static_cast<std::size_t>(r.ptr - texto.data()));
  if (ExponenteDecimal(leido) < 0) return 0.0;
  return texto[0] == '-' ? -HUGE_VAL : HUGE_VAL;
}

long EnteroInicial(std::string_view texto) {
  texto = SinSignoMas(SinBlancosIniciales(texto));
  long valor = 0;
  const auto r = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
  if (r.ec == std::errc::result_out_of_range)
    return texto[0] == '-' ? std::numeric_limits<long>::min() : std::numeric_limits<long>::max();
  return valor;
}

bool LeerReal(std::string_view texto, double& valor) {
  texto = SinBlancosIniciales(texto);
  while (!texto.empty() && EsBlanco(texto.back())) texto.remove_suffix(1);
  std::string copia(SinSignoMas(texto));
  std::replace(copia.begin(), copia.end(), ',', '.');
  if (!EmpiezaComoNumero(copia)) return false;
  double leido = 0.0;
  const auto r = std::from_chars(copia.data(), copia.data() + copia.size(), leido);
  if (r.ec != std::errc() || r.ptr != copia.data() + copia.size()) return false;
  valor = leido;
  return true;
}

}  // namespace novex
