#include "entry/ReglasIluminacion.h"

#include <algorithm>

#include "base/NumeroTexto.h"
#include "entry/CambiarGenerales.h"
#include "model/CatalogoCampos.h"

namespace novex {
namespace {

constexpr float kLuxPotenciaBaja = 600;
constexpr float kPotenciaBaja = 10;  // W/m2
constexpr float kPotenciaAlta = 25;  // W/m2
constexpr int kDecimales = 2;

struct NivelCarga {
  float desde;  // W/m2
  std::string_view texto;
};
constexpr std::array<NivelCarga, 3> kNiveles = {
    {{12, "Nivel muy alta >=12"}, {9, "Nivel alta 9<=CFI<12"}, {6, "Nivel media 6<=CFI<9"}}};
// Las cargas son de simple precisión: a esta distancia relativa la media está en el límite.
constexpr float kIgual = 1e-6F;

}  // namespace

bool ElegirVEIIMax(Edificio& edificio, std::string_view entrada) {
  const auto it = std::find_if(kEntradasVEII.begin(), kEntradasVEII.end(),
                               [=](const EntradaVEII& e) { return e.texto == entrada; });
  if (it == kEntradasVEII.end()) return false;
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    const bool dado = entrada == kVEIIMaxDefinir && g.TipoVEIIMax == entrada && g.VEIIMax != 0.0F;
    g.TipoVEIIMax = entrada;
    if (!dado) g.VEIIMax = it->VEIIMax;
  });
  return true;
}

bool DefinirVEIIMax(Edificio& edificio, std::string_view texto, Mensajes& mensajes) {
  if (edificio.GetDatosGenerales().TipoVEIIMax != kVEIIMaxDefinir) return false;
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    g.VEIIMax = ComprobarValor(texto, "EVEIIMax", mensajes);
  });
  return true;
}

float PotenciaMaximaIluminacion(float lux) {
  return lux <= kLuxPotenciaBaja ? kPotenciaBaja : kPotenciaAlta;
}

std::string TextoPotenciaMaximaIluminacion(float lux) {
  return "Carga máxima " + General(PotenciaMaximaIluminacion(lux)) + " W/m2";
}

void PonerLux(Edificio& edificio, std::string_view texto, Mensajes& mensajes) {
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    g.Lux = ComprobarValor(texto, "Lux", mensajes);
    g.EPotIluMax = PotenciaMaximaIluminacion(g.Lux);
  });
}

void PonerIluminacion(Edificio& edificio, std::string_view texto, Mensajes& mensajes) {
  CambiarGenerales(edificio, [&](DatosGenerales& g) {
    g.Iluminacion = ComprobarValor(texto, "PotIlu", mensajes);
  });
}

std::string TextoCargaInterna(float cfi) {
  return "CFI = " + Fijo(static_cast<double>(cfi), kDecimales) + " W/m2";
}

std::string_view NivelCargaInterna(float cfi) {
  for (const NivelCarga& nivel : kNiveles)
    if (cfi >= nivel.desde * (1 - kIgual)) return nivel.texto;
  return "Nivel baja <6";
}

}  // namespace novex
