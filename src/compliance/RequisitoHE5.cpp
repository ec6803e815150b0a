#include "compliance/RequisitoHE5.h"

#include <algorithm>

#include "base/NumeroTexto.h"
#include "base/Texto.h"
#include "model/CatalogoCampos.h"

namespace novex {
namespace {

constexpr const char* kFueraDeSeccion = "No es de aplicación en este caso.  Cumple";
constexpr const char* kNoObligatoria =
    "No es obligatoria la instalación fotovoltáica por ser la superficie menor de 1000 m2";
constexpr const char* kObligatoria =
    "Es obligatoria la instalación fotovoltáica por ser la superficie mayor o igual a 1000 m2";
constexpr const char* kNoAplicable = "No es de aplicación";
constexpr const char* kFraseNoAplicable =
    "No es de aplicacion por ser la superficie util construida + aparcamientos menor de 1000 m2. "
    "Cumple";

constexpr float kSuperficieMinima = 1000;       // m2
constexpr double kPotenciaResidencial = 0.005;  // kW/m2
constexpr double kPotenciaTerciario = 0.01;     // kW/m2
constexpr double kPotenciaCubierta = 0.1;       // kW/m2
constexpr double kParteCubierta = 0.5;
// Las potencias se guardan en simple precisión: a esta distancia relativa se llega a la exigida.
constexpr double kIgual = 1e-6;

bool EnSeccion(const DatosGenerales& g) {
  return g.Modo_trabajo == "Nuevo" ||
         (g.Modo_trabajo == "Existente" && SinBlancosFinales(g.Reforma) == "Cambio de uso") ||
         g.RehabIntegralHE5 == "Si";
}

bool Llega(double instalada, double exigida) {
  return instalada >= exigida * (1 - kIgual);
}

void Potencias(const DatosGenerales& g, RequisitoHE5& r) {
  const auto S = static_cast<double>(g.SuperficieTotalHE5);
  const auto Sc = static_cast<double>(g.SuperficieCubiertaHE5);
  const auto Soc = static_cast<double>(g.SuperficieCaptadorestermHE5);
  r.P1 = (g.EsResidencial() ? kPotenciaResidencial : kPotenciaTerciario) * S;
  r.P2 = std::max(0.0, kPotenciaCubierta * (kParteCubierta * Sc - Soc));
  r.requerida = std::min(r.P1, r.P2);
  for (const float potencia : g.PotPico_FV) r.instalada += static_cast<double>(potencia);
}

std::vector<std::string> Lineas(const RequisitoHE5& r) {
  if (!r.aplica) return {kFueraDeSeccion};
  if (!r.obligatoria) return {kNoObligatoria, kNoAplicable};
  return {kObligatoria,
          "La potencia en función de la superficie total sería " + Fijo(r.P1, 2) + " kW",
          "La potencia en función de la superficie cubierta y la ocupada por captadoress térmicos "
          "sería " +
              Fijo(r.P2, 2) + " kW",
          "La potencia fotovoltaica instalada son " + Fijo(r.instalada, 2) + " kW",
          r.pasa ? "Cumple" : "No Cumple"};
}

std::string Frase(const RequisitoHE5& r, float superficie, bool llega) {
  if (!r.aplica) return kFueraDeSeccion;
  if (!(superficie > kSuperficieMinima)) return kFraseNoAplicable;
  // Los números de los documentos llevan cinco cifras significativas a lo más.
  return "Pot.fotovoltaica requerida = " + FijoCifras(r.requerida, 5, 2) +
         " kW  Pot.fotovoltaica instalada = " + FijoCifras(r.instalada, 5, 2) +
         (llega ? " kW. Cumple" : " kW. No Cumple");
}

Veredicto Juzgar(const RequisitoHE5& r) {
  const bool exigida = r.aplica && r.obligatoria;
  Veredicto v;
  v.seccion = kSeccionHE5;
  v.requisito = "Potencia fotovoltaica";
  v.valor = r.instalada;
  if (exigida) v.limite = r.requerida;
  v.unidad = "kW";
  v.veredicto = r.lineas.back();
  if (r.aplica) v.nota = r.lineas.front();
  v.aplica = exigida;
  v.pasa = r.pasa;
  return v;
}

// Cambia los datos generales y comprueba la sección con ellos.
template <class Cambio>
RequisitoHE5 Cambiar(Edificio& edificio, Cambio cambio) {
  DatosGenerales generales = edificio.GetDatosGenerales();
  cambio(generales);
  edificio.SetDatosGenerales(std::move(generales));
  return ComprobarHE5(edificio.GetDatosGenerales());
}

RequisitoHE5 PonerSuperficie(Edificio& edificio, float DatosGenerales::*campo,
                             std::string_view texto, Mensajes& mensajes) {
  return Cambiar(edificio,
                 [&](DatosGenerales& g) { g.*campo = ComprobarValor(texto, "Area", mensajes); });
}

}  // namespace

RequisitoHE5 ComprobarHE5(const DatosGenerales& generales) {
  RequisitoHE5 r;
  r.aplica = EnSeccion(generales);
  r.obligatoria = !(generales.SuperficieTotalHE5 < kSuperficieMinima);
  Potencias(generales, r);
  const bool llega = Llega(r.instalada, r.P1) || Llega(r.instalada, r.P2);
  r.pasa = !r.aplica || !r.obligatoria || llega;
  r.lineas = Lineas(r);
  r.H5FRASE = Frase(r, generales.SuperficieTotalHE5, llega);
  r.veredicto = Juzgar(r);
  return r;
}

RequisitoHE5 PonerSuperficieTotalHE5(Edificio& edificio, std::string_view texto,
                                     Mensajes& mensajes) {
  return PonerSuperficie(edificio, &DatosGenerales::SuperficieTotalHE5, texto, mensajes);
}

RequisitoHE5 PonerSuperficieCubiertaHE5(Edificio& edificio, std::string_view texto,
                                        Mensajes& mensajes) {
  return PonerSuperficie(edificio, &DatosGenerales::SuperficieCubiertaHE5, texto, mensajes);
}

RequisitoHE5 PonerSuperficieCaptadorestermHE5(Edificio& edificio, std::string_view texto,
                                              Mensajes& mensajes) {
  return PonerSuperficie(edificio, &DatosGenerales::SuperficieCaptadorestermHE5, texto, mensajes);
}

RequisitoHE5 PonerRehabIntegralHE5(Edificio& edificio, bool marcada) {
  return Cambiar(edificio, [&](DatosGenerales& g) { g.RehabIntegralHE5 = marcada ? "Si" : "No"; });
}

}  // namespace novex
