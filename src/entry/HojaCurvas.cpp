#include "entry/HojaCurvas.h"

#include <array>

#include "base/NumeroTexto.h"
#include "base/Psicrometria.h"
#include "systems/ClasesSistema.h"
#include "systems/Curvas.h"

namespace novex {
namespace {

using C = CurvasEquipo;
using Coeficientes = std::span<float>;

constexpr std::string_view kGeneradores = "Generadores", kAireAire = "EquiposAA",
                           kAireAgua = "EquiposAW";
constexpr std::string_view kHumedoExterior = "Bulbo húmedo exterior, ºC";
constexpr std::string_view kSecoExterior = "Temperatura exterior, ºC";
constexpr std::string_view kCarga = "Carga parcial";

// Condiciones nominales.
constexpr float kTi = 27, kThi = 19, kPresion = 101325;
constexpr const char* kNominalesAire =
    "Calefacción: 7 ºC secos y 6 ºC húmedos fuera, 20 ºC dentro. Refrigeración: 27 ºC secos y "
    "19 ºC húmedos dentro, 35 ºC fuera.";
constexpr const char* kNominalesAgua =
    " Agua fría: entra a 12 ºC y sale a 7 ºC. Agua caliente: entra a 40 ºC y sale a 45 ºC.";

// Los valores de la variable de un gráfico y los parámetros de sus líneas.
struct Eje {
  float desde, hasta, paso;
};
constexpr Eje kEjeHumedo = {-15, 20, 1}, kEjeSeco = {20, 45, 1}, kEjeCarga = {0, 1, 0.05F},
              kEjeAgua = {20, 90, 5};
constexpr std::array<float, 4> kAguaCaliente = {35, 45, 55, 65}, kAguaFria = {5, 7, 10, 15},
                               kInterior = {18, 20, 22, 24}, kHumedoInterior = {15, 17, 19, 21},
                               kSecoInterior = {23, 25, 27, 29};

template <class Curva>
LineaCurva Linea(std::string rotulo, const Eje& eje, Curva curva) {
  LineaCurva linea{std::move(rotulo), {}};
  const int pasos = static_cast<int>((eje.hasta - eje.desde) / eje.paso + 0.5F);
  for (int i = 0; i <= pasos; ++i) {
    const float x = eje.desde + eje.paso * static_cast<float>(i);
    linea.puntos.emplace_back(x, curva(x));
  }
  return linea;
}

// Una línea por valor del parámetro. \param curva de (parámetro, variable)
template <class Curva>
std::vector<LineaCurva> Haz(const char* nombre, std::span<const float> valores, const Eje& eje,
                            Curva curva) {
  std::vector<LineaCurva> lineas;
  for (const float v : valores)
    lineas.push_back(Linea(nombre + General(v) + "ºC", eje, [&](float x) { return curva(v, x); }));
  return lineas;
}

void GruposCalor(std::vector<GrupoCurvas>& grupos) {
  grupos.push_back({"CapCal_T",
                    "Potencia de calefacción entre la nominal",
                    kHumedoExterior,
                    {{"Qaa", [](C& c) -> Coeficientes { return c.aaQ; }},
                     {"Qab", [](C& c) -> Coeficientes { return c.abQ; }}},
                    true});
  grupos.push_back({"ConCal_T",
                    "Consumo de calefacción entre el nominal",
                    kHumedoExterior,
                    {{"Qba", [](C& c) -> Coeficientes { return c.baQ; }},
                     {"Qbb", [](C& c) -> Coeficientes { return c.bbQ; }}}});
  grupos.push_back({"ConCal_F",
                    "Consumo de calefacción con la carga",
                    kCarga,
                    {{"Qc", [](C& c) -> Coeficientes { return c.cQ; }}}});
}

void GruposFrio(bool aire, std::vector<GrupoCurvas>& grupos) {
  grupos.push_back({"CapTotRef_T",
                    "Potencia total de refrigeración entre la nominal",
                    kSecoExterior,
                    {{"Ra", [](C& c) -> Coeficientes { return c.aR; }}}});
  if (aire)
    grupos.push_back({"CapSenRef_T",
                      "Potencia sensible de refrigeración entre la nominal",
                      kSecoExterior,
                      {{"Re", [](C& c) -> Coeficientes { return c.eR; }}}});
  grupos.push_back({"ConRef_T",
                    "Consumo de refrigeración entre el nominal",
                    kSecoExterior,
                    {{"Rb", [](C& c) -> Coeficientes { return c.bR; }}}});
  grupos.push_back({"ConRef_F",
                    "Consumo de refrigeración con la carga",
                    kCarga,
                    {{"Rc", [](C& c) -> Coeficientes { return c.cR; }}}});
}

PaginaCurvas PaginaCalderas() {
  PaginaCurvas pagina{kGeneradores, "A carga total y con la temperatura nominal, 1.", {}};
  pagina.grupos.push_back({"ren_F",
                           "Rendimiento generador(fcp)",
                           "Factor de carga parcial",
                           {{"Cc", [](C& c) -> Coeficientes { return c.cC; }}}});
  pagina.grupos.push_back({"ren_T",
                           "Rendimiento generador(Timp)",
                           "Temperatura de impulsión, ºC",
                           {{"Cg", [](C& c) -> Coeficientes { return c.gC; }}}});
  return pagina;
}

}  // namespace

std::vector<PaginaCurvas> PaginasDeCurvas(std::string_view tipoSistema,
                                          std::string_view seleccion) {
  const TipoSistema tipo = TipoSistemaDe(tipoSistema);
  const std::string_view familia = TipoDeCatalogo(seleccion).familia;
  std::vector<PaginaCurvas> paginas;
  if (familia.empty() || tipo == TipoSistema::Ninguno) return paginas;
  if (familia != "Generadores") {
    const bool aire = familia == "EquipoAA";
    PaginaCurvas pagina{aire ? kAireAire : kAireAgua,
                        std::string(kNominalesAire) + (aire ? "" : kNominalesAgua),
                        {}};
    if (DaCalefaccion(tipo) || DaACS(tipo)) GruposCalor(pagina.grupos);
    if (DaRefrigeracion(tipo)) GruposFrio(aire, pagina.grupos);
    paginas.push_back(std::move(pagina));
  }
  // La caldera que va detrás de una bomba de calor lee también las suyas.
  if (familia == "Generadores" || ClaseGeneradorDe(seleccion) == ClaseGenerador::BombaCalorCaldera)
    paginas.push_back(PaginaCalderas());
  return paginas;
}

std::vector<LineaCurva> LineasDeGrupo(std::string_view grupo, std::string_view familia,
                                      const CurvasEquipo& c) {
  const bool agua = familia == kAireAgua;
  const auto calor = [&](auto curva) {
    return Haz(agua ? "Tws=" : "Ti=", agua ? kAguaCaliente : kInterior, kEjeHumedo, curva);
  };
  const auto frio = [&](const std::array<float, 6>& coeficientes) {
    return Haz(agua ? "Tws=" : "Thi=", agua ? kAguaFria : kHumedoInterior, kEjeSeco,
               [&](float x, float y) { return curvas::Bicuadratica(coeficientes, x, y); });
  };
  const auto una = [](const Eje& eje, auto curva) {
    return std::vector<LineaCurva>{Linea({}, eje, curva)};
  };
  if (grupo == "CapCal_T")
    return calor([&](float x, float y) { return curvas::CapacidadCalor(c, x, y); });
  if (grupo == "ConCal_T")
    return calor([&](float x, float y) { return curvas::ConsumoCalor(c, x, y); });
  if (grupo == "ConCal_F")
    return una(kEjeCarga, [&](float p) { return curvas::CargaParcial(c.cQ, p); });
  if (grupo == "CapTotRef_T") return frio(c.aR);
  if (grupo == "ConRef_T") return frio(c.bR);
  if (grupo == "CapSenRef_T")
    return Haz("Ti=", kSecoInterior, kEjeSeco,
               [&](float y, float z) { return curvas::SieteTerminos(c.eR, kThi, y, z); });
  if (grupo == "ConRef_F")
    return una(kEjeCarga, [&](float p) { return curvas::CargaParcial(c.cR, p); });
  if (grupo == "ren_F") return una(kEjeCarga, [&](float p) { return curvas::Cubica(c.cC, p); });
  if (grupo == "ren_T") return una(kEjeAgua, [&](float t) { return curvas::Cubica(c.gC, t); });
  return {};
}

PotenciaReal PotenciaEnCondiciones(float total, float sensible, const CurvasEquipo& c, float ti,
                                   float thi, float te) {
  PotenciaReal r;
  if (total <= 0.0F || sensible <= 0.0F) return r;
  r.razonNominal = sensible / total;
  r.cocienteTotal = curvas::Bicuadratica(c.aR, thi, te);
  r.total = total * r.cocienteTotal;
  const float w = psicrometria::HumedadDeBulboHumedo(kTi, kThi, kPresion);
  r.tadp = psicrometria::RocioAparato(r.razonNominal, kTi, w, kPresion);
  r.sensible = sensible * psicrometria::MetodoBateria(total, sensible, {kTi, kThi}, {ti, thi},
                                                      r.total, kPresion);
  r.razon = r.total > 0.0F ? r.sensible / r.total : 0.0F;
  return r;
}

}  // namespace novex
