#include "outputs/administracion/EscrituraInforme.h"

#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "files/ComunidadAutonoma.h"

namespace novex {
namespace {

constexpr std::string_view kLetras = "ABCDEFG";

// Nombres por `VectorEnergetico`; vacíos los que no se compran. La electricidad va aparte.
constexpr std::array<std::string_view, kVectores> kVectoresInforme = {
    "", "GasNatural", "GasoleoC", "GLP", "Carbon", "BiomasaPellet", "BiomasaOtros", "Biocarburante",
    "", "",           ""};

std::string_view Electricidad(std::string_view provincia) {
  const std::string_view comunidad = ComunidadAutonomaDe(provincia);
  if (comunidad == "Illes Balears") return "ElectricidadBaleares";
  if (comunidad == "Canarias") return "ElectricidadCanarias";
  if (comunidad == "Ceuta" || comunidad == "Melilla") return "ElectricidadCeutayMelilla";
  return "ElectricidadPeninsular";
}

// Caracteres que admite XML 1.0.
bool EsDeXml(char32_t c) {
  if (c < 0x20) return c == '\t' || c == '\n' || c == '\r';
  return c != 0xFFFE && c != 0xFFFF;
}

}  // namespace

XMLNode AnadirDato(XMLNode& nodo, std::string_view etiqueta, std::string_view texto) {
  XMLNode hijo = nodo.appendChild(etiqueta);
  if (!texto.empty()) hijo.appendText(texto);
  return hijo;
}

void AnadirCifra(XMLNode& nodo, std::string_view etiqueta, double valor, int decimales) {
  AnadirDato(nodo, etiqueta, Fijo(valor, decimales));
}

void AnadirCifra(XMLNode& nodo, std::string_view etiqueta, float valor, int decimales) {
  AnadirCifra(nodo, etiqueta, static_cast<double>(valor), decimales);
}

void AnadirEntero(XMLNode& nodo, std::string_view etiqueta, double valor) {
  AnadirDato(nodo, etiqueta, Fijo(valor, 0));
}

bool EsLetraDeEscala(std::string_view letra) {
  return letra.size() == 1 && kLetras.find(letra.front()) != std::string_view::npos;
}

void AnadirLetra(XMLNode& nodo, std::string_view etiqueta, std::string_view letra) {
  if (EsLetraDeEscala(letra)) AnadirDato(nodo, etiqueta, letra);
}

std::string_view VectorInforme(VectorEnergetico vector, std::string_view provincia) {
  return vector == VectorEnergetico::Electricidad ? Electricidad(provincia)
                                                  : kVectoresInforme[Indice(vector)];
}

std::string UnirLineas(const std::vector<std::string>& lineas, std::string_view separador) {
  std::string texto;
  for (const std::string& linea : lineas) {
    if (!texto.empty()) texto += separador;
    texto += linea;
  }
  return texto;
}

std::string SoloCaracteresXml(std::string_view texto) {
  std::string limpio;
  limpio.reserve(texto.size());
  while (!texto.empty()) {
    const CaracterUtf8 c = PrimerCaracter(texto);
    if (c.bytes == 1 && c.codigo >= 0x80)
      limpio += Windows1252AUtf8(texto.substr(0, 1));
    else if (EsDeXml(c.codigo))
      limpio += texto.substr(0, c.bytes);
    texto.remove_prefix(c.bytes);
  }
  return limpio;
}

}  // namespace novex
