#include "reference/Cerramiento.h"

#include <algorithm>
#include <array>

#include "base/NumeroTexto.h"
#include "model/CatalogoCampos.h"

namespace novex {
namespace {

constexpr std::string_view kAtencion = "Atención";

// CTE DA DB-HE/1, tabla 2: límites de espesor en m y resistencias en m2K/W.
constexpr float kCamaraEstrecha = 0.01F;
constexpr float kCamaraMedia = 0.02F;
struct FilaCamara {
  std::string_view nombre;
  std::array<float, 3> vertical;
  std::array<float, 3> horizontal;
};
constexpr std::array<FilaCamara, 3> kCamaras = {
    {{"Cámara de aire sin ventilar", {0.15F, 0.17F, 0.18F}, {0.15F, 0.16F, 0.16F}},
     {"Cámara de aire ligeramente ventilada", {0.075F, 0.085F, 0.09F}, {0.075F, 0.08F, 0.08F}},
     {"Cámara de aire muy ventilada", {0.05F, 0.05F, 0.05F}, {0.05F, 0.05F, 0.05F}}}};

constexpr std::array<std::string_view, 3> kBloques = {
    "Fábricas de bloque cerámico de arcilla aligerada",
    "Fábricas de bloque de hormigón convencional", "Fábricas de bloque de hormigón aligerado"};

constexpr float kVaporMaximo = 99999.99F;

double Doble(float valor) {
  return static_cast<double>(valor);
}

bool MuestraConductividad(const Capa& capa) {
  return capa.grupo != kGrupoSinInercia && !CamaraDe(capa);
}

std::string TextoVapor(float resistencia) {
  return resistencia > kVaporMaximo ? " > 99999.99" : Fijo(Doble(resistencia), 1);
}

}  // namespace

bool EsGrupoDeBloques(std::string_view grupo) {
  return std::find(kBloques.begin(), kBloques.end(), grupo) != kBloques.end();
}

std::optional<CamaraAire> CamaraDe(std::string_view nombre) {
  for (std::size_t i = 0; i < kCamaras.size(); ++i)
    if (kCamaras[i].nombre == nombre) return static_cast<CamaraAire>(i);
  return std::nullopt;
}

std::optional<CamaraAire> CamaraDe(const Capa& capa) {
  const auto porNombre = CamaraDe(capa.especificacion);
  return porNombre ? porNombre : CamaraDe(capa.grupo);
}

float ResistenciaCamara(CamaraAire camara, bool vertical, float espesor) {
  const FilaCamara& fila = kCamaras.at(static_cast<std::size_t>(camara));
  const auto& resistencias = vertical ? fila.vertical : fila.horizontal;
  if (espesor <= kCamaraEstrecha) return resistencias[0];
  return espesor <= kCamaraMedia ? resistencias[1] : resistencias[2];
}

Capa ConEspesor(const Capa& capa, float espesor, bool vertical) {
  Capa nueva = capa;
  nueva.espesor = espesor;
  if (const auto camara = CamaraDe(capa)) {
    nueva.rterm = ResistenciaCamara(*camara, vertical, espesor);
    nueva.k = RedondearDecimales(espesor / nueva.rterm, 3);
  } else {
    nueva.rterm = capa.k > 0.0F ? espesor / capa.k : 0.0F;
  }
  return nueva;
}

float UCerramiento(std::span<const Capa> capas, Peliculas peliculas) {
  const auto inverso = [](float h) { return h > 0.0F ? 1.0F / h : 0.0F; };
  float resistencia = inverso(peliculas.hi) + inverso(peliculas.he);
  for (const Capa& capa : capas) resistencia += capa.rterm;
  return inverso(resistencia);
}

float UCerramiento(std::span<const Capa> capas, FamiliaCerramiento familia) {
  return UCerramiento(capas, PeliculasDe(familia));
}

ResumenCerramiento ResumirCerramiento(std::span<const Capa> capas) {
  ResumenCerramiento r;
  r.capas.cabeceras = {"Capa",      "Espesor (m)", "k (W/mK)",
                       "R (m2K/W)", "Resis.Vapor", "Peso (kg/m2)"};
  for (const Capa& capa : capas) {
    const float peso = capa.den * capa.espesor;
    const float vapor = capa.rvapor * capa.espesor;
    r.espesor += capa.espesor;
    r.peso += peso;
    r.resistenciaVapor += vapor;
    r.capas.filas.push_back(
        {Celda(capa.especificacion + " (" + Fijo(Doble(capa.espesor), 3) + " m)"),
         Celda::Numero(Doble(capa.espesor), 3),
         MuestraConductividad(capa) ? Celda::Numero(Doble(capa.k), 3) : Celda(),
         Celda::Numero(Doble(capa.rterm), 3), Celda::Numero(Doble(vapor), 2),
         Celda::Numero(Doble(peso), 0)});
  }
  r.textoEspesor = Fijo(Doble(r.espesor), 3);
  r.textoPeso = Fijo(Doble(r.peso), 0);
  r.textoVapor = TextoVapor(r.resistenciaVapor);
  r.capas.notas = {"Espesor (cm) " + r.textoEspesor, "Peso (kg/m2) " + r.textoPeso,
                   "Resis.Vapor (adim.) " + r.textoVapor};
  return r;
}

bool EspesorEditable(const Capa& capa) {
  if (EsGrupoDeBloques(capa.especificacion) || EsGrupoDeBloques(capa.grupo)) return false;
  const auto camara = CamaraDe(capa);
  return !camara || *camara == CamaraAire::MuyVentilada;
}

bool EditarEspesor(Capa& capa, std::string_view texto, bool vertical, Mensajes& mensajes) {
  if (!EspesorEditable(capa)) return false;
  capa = ConEspesor(capa, ComprobarValor(texto, "EspesorNuevo", mensajes), vertical);
  return true;
}

bool ComprobarCerramiento(std::span<const Capa> capas, Mensajes& mensajes) {
  const auto avisar = [&](const char* texto) { mensajes.Avisar(std::string(kAtencion), texto); };
  if (capas.empty()) {
    avisar("El cerramiento debe contener almenos una capa");
    return false;
  }
  bool vale = true;
  if (CamaraDe(capas.front())) {
    avisar("El cerramiento no puede empezar por una cpaa de aire");
    vale = false;
  }
  if (CamaraDe(capas.back())) {
    avisar("El cerramiento no puede terminar con una capa de aire");
    vale = false;
  }
  return vale;
}

}  // namespace novex
