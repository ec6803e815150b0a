#include "model/Catastro.h"

#include <algorithm>

namespace novex {
namespace {

// Límites del nombre libre de una parte.
constexpr std::size_t kMinimoParte = 3;
constexpr std::size_t kMaximoParte = 36;

bool EsCifra(char c) {
  return c >= '0' && c <= '9';
}
bool EsMayuscula(char c) {
  return c >= 'A' && c <= 'Z';
}
bool EsMinuscula(char c) {
  return c >= 'a' && c <= 'z';
}
bool EsLetraOCifra(char c) {
  return EsCifra(c) || EsMayuscula(c) || EsMinuscula(c);
}

std::size_t Contar(std::string_view texto, bool (*cuenta)(char)) {
  return static_cast<std::size_t>(std::count_if(texto.begin(), texto.end(), cuenta));
}

struct ReglasRegistro {
  std::string_view registro;
  std::size_t cuentaParcela;       // cuántas cifras, o cifras y mayúsculas, tiene la parcela
  bool mayusculasEnParcela;        // ¿cuentan las mayúsculas?
  std::string_view formaInmueble;  // por carácter: 9 cifra, A mayúscula, X cualquiera de las dos
  std::array<std::string_view, 3> rotulos;
};

constexpr std::string_view kParteO = "Parte (3 a 36 nº ó letras incluidos -_)";
constexpr std::string_view kParteY = "Parte (3 a 36 nº y letras incluidos -_)";

constexpr std::array<ReglasRegistro, kRegistrosCatastro.size()> kReglas = {{
    {"DGC",
     14,
     true,
     "9999AA",
     {"Parcela (14 nº ó mayusculas)", "Inmueble (4 nº y 2 mayusculas)", kParteO}},
    {"AFA",
     8,
     false,
     "XX99999999AA",
     {"Parcela (8 nº)", "Inmueble (2 nº ó mayusculas + 8 nº + 2 mayusculas)", kParteO}},
    {"BFA", 12, false, "9999", {"Parcela (12 nº)", "Inmueble (4 nº)", kParteY}},
    // Ocho caracteres: siete cifras y una mayúscula.
    {"GFA", 9, false, "9999999A", {"Parcela (9 nº)", "Inmueble (7 nº + 1 mayuscula)", kParteY}},
    {"RRTN",
     9,
     false,
     "999999999999999999AA",
     {"Parcela (9 nº)", "Inmueble (18 nº + 2 mayusculas)", kParteY}},
}};

const ReglasRegistro* ReglasDe(std::string_view registro) {
  const auto it = std::find_if(kReglas.begin(), kReglas.end(),
                               [=](const ReglasRegistro& r) { return r.registro == registro; });
  return it == kReglas.end() ? nullptr : &*it;
}

// La parcela no fija posiciones ni largo: solo cuenta caracteres.
bool ParcelaCorrecta(std::string_view texto, const ReglasRegistro& reglas) {
  const std::size_t mayusculas = reglas.mayusculasEnParcela ? Contar(texto, EsMayuscula) : 0;
  return Contar(texto, EsLetraOCifra) == texto.size() &&
         Contar(texto, EsCifra) + mayusculas == reglas.cuentaParcela;
}

bool Encaja(char c, char forma) {
  if (forma == 'X') return EsCifra(c) || EsMayuscula(c);
  return forma == '9' ? EsCifra(c) : EsMayuscula(c);
}

bool InmuebleCorrecto(std::string_view texto, const ReglasRegistro& reglas) {
  return texto.size() == reglas.formaInmueble.size() &&
         std::equal(texto.begin(), texto.end(), reglas.formaInmueble.begin(), Encaja);
}

// Letras y cifras, con un guion y un subrayado como mucho.
bool ParteCorrecta(std::string_view texto) {
  const bool guion = texto.find('-') != std::string_view::npos;
  const bool subrayado = texto.find('_') != std::string_view::npos;
  const std::size_t validos =
      Contar(texto, EsLetraOCifra) + (guion ? 1U : 0U) + (subrayado ? 1U : 0U);
  return validos == texto.size() && validos >= kMinimoParte && validos <= kMaximoParte;
}

bool EsCorrecta(std::string_view texto, std::string_view registro, std::string_view parte) {
  if (parte == kPartesCatastro[2]) return ParteCorrecta(texto);
  const ReglasRegistro* reglas = ReglasDe(registro);
  if (reglas == nullptr) return false;
  if (parte == kPartesCatastro[0]) return ParcelaCorrecta(texto, *reglas);
  return parte == kPartesCatastro[1] && InmuebleCorrecto(texto, *reglas);
}

}  // namespace

std::string_view ComprobarParteCatastro(std::string_view texto, std::string_view registro,
                                        std::string_view parte) {
  return EsCorrecta(texto, registro, parte) ? kCorrecto : kIncorrecto;
}

bool ComprobarReferencias(const std::vector<ReferenciaCatastral>& referencias,
                          std::string_view registro) {
  return !referencias.empty() &&
         std::all_of(referencias.begin(), referencias.end(), [=](const ReferenciaCatastral& r) {
           return EsCorrecta(r.Parcela, registro, kPartesCatastro[0]) &&
                  EsCorrecta(r.Inmueble, registro, kPartesCatastro[1]) &&
                  EsCorrecta(r.Parte, registro, kPartesCatastro[2]);
         });
}

std::array<std::string_view, 3> RotulosCatastro(std::string_view registro) {
  const ReglasRegistro* reglas = ReglasDe(registro);
  return reglas != nullptr ? reglas->rotulos : kPartesCatastro;
}

std::string TextoReferencias(const std::vector<ReferenciaCatastral>& referencias) {
  std::string texto;
  for (const ReferenciaCatastral& r : referencias) {
    if (!texto.empty()) texto += ", ";
    texto += r.Parcela + r.Inmueble;
    if (!r.Parte.empty()) texto += " " + r.Parte;
  }
  return texto;
}

}  // namespace novex
