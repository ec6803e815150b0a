#include <algorithm>

#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using K = Construccion;
using V = Ventilacion;
using T = TipologiaVivienda;
constexpr auto k = &R::construccion;
constexpr auto v = &R::ventilacion;

constexpr std::string_view kSeccion = "Datos_Globales";
constexpr std::string_view kTipologiasGrupo = "Tipologias";
constexpr std::string_view kTipologia = "Tipologia";
constexpr int kDecimales = 2;

constexpr std::array kGlobales = {
    Real<&R::recinto, &Recinto::Suelo_habitable_m2>("Suelo_habitable_m2", 1),
    Real<&R::recinto, &Recinto::Volumen_total_m3>("Volumen_total_m3", 1),
    Entero<k, &K::NPlantasSobreRasante>("NPlantasSobreRasante"),
    Entero<k, &K::NPlantasBajoRasante>("NPlantasBajoRasante"),
    Real<v, &V::nrenovventilacion>("nrenovventilacion", 2),
    Texto<v, &V::Calcular_Renov_h_segun_HS3>("Calcular_Renov_h_segun_HS3")};

constexpr int kMaximoViviendas = 1'000'000;
constexpr std::array kCamposTipologia = {
    Entero<&T::N_viviendas>("N_viviendas").Entre(0, kMaximoViviendas),
    Entero<&T::N_dormitorios_dobles>("N_dormitorios_dobles").Entre(0, kMaximoViviendas),
    Entero<&T::N_salas_estar_comedor>("N_salas_estar_comedor").Entre(0, kMaximoViviendas),
    Entero<&T::N_cuartos_de_banyo>("N_cuartos_de_banyo").Entre(0, kMaximoViviendas)};

// Los dormitorios simples ya no se cuentan aparte.
void SumarDormitoriosSimples(const XMLNode& nodo, T& tipologia, InformeLectura& informe,
                             Mensajes& mensajes) {
  constexpr std::string_view kSimples = "N_dormitorios_simples";
  const int simples = camposFichero::LeerEntero(TextoDeHijo(nodo, kSimples), kSimples, 0,
                                                kMaximoViviendas, mensajes);
  if (simples == 0) return;
  tipologia.N_dormitorios_dobles =
      std::min(tipologia.N_dormitorios_dobles + simples, kMaximoViviendas);
  informe.Anotar(informe.cambiados, "Los dormitorios simples (" + std::to_string(simples) +
                                        ") se cuentan con los dobles: " +
                                        std::to_string(tipologia.N_dormitorios_dobles));
}

// CTE DB-HE 2019, anejo: permeabilidad de los opacos a 100 Pa, m3/h m2.
constexpr float kPermeabilidadNuevo = 16;
constexpr float kPermeabilidadExistente = 29;

constexpr std::array<std::string_view, 16> kPerfiles = {
    "residencial-24h-baja",   "residencial-24h-baja",    "residencial-24h-baja",
    "noresidencial-8h-baja",  "noresidencial-8h-media",  "noresidencial-8h-alta",
    "noresidencial-12h-baja", "noresidencial-12h-media", "noresidencial-12h-alta",
    "noresidencial-16h-baja", "noresidencial-16h-media", "noresidencial-16h-alta",
    "noresidencial-24h-baja", "noresidencial-24h-media", "noresidencial-24h-alta",
    "perfildeusuario0"};

constexpr std::array<std::string_view, 4> kConCalefaccion = {
    "ACS+Calefaccion", "Calefaccion", "Calefaccion+Refrigeracion", "ACS+Calefaccion+Refrigeracion"};
constexpr std::array<std::string_view, 3> kConRefrigeracion = {
    "Refrigeracion", "Calefaccion+Refrigeracion", "ACS+Calefaccion+Refrigeracion"};

bool AlgunSistemaDe(const Edificio& edificio, std::span<const std::string_view> tipos) {
  for (std::size_t i = 0; i < edificio.NumeroSistemas(); ++i)
    for (const std::string_view tipo : tipos)
      if (edificio.GetSistema(i).Tipo_sistema == tipo) return true;
  return false;
}

void AnadirNumero(XMLNode& nodo, std::string_view etiqueta, float valor) {
  AnadirTexto(nodo, etiqueta, Fijo(static_cast<double>(valor), kDecimales));
}

void EscribirModelo(XMLNode& globales, const R& r, const Edificio& edificio) {
  const DatosGenerales& d = r.generales;
  const bool nuevo = d.Modo_trabajo == "Nuevo";
  XMLNode modelo = globales.appendChild("Modelo");
  XMLNode global = modelo.appendChild("Global");
  AnadirNumero(global, "DemandaDiariaAcs", d.ConsumoAgua_litros_dia);
  AnadirNumero(global, "VentilacionDiseno", d.Ventilacion);
  AnadirNumero(global, "N50Ensayo", d.Tipon50 == "Medido" ? d.Valorn50 : 0.0F);
  AnadirNumero(global, "IntercambioAire", r.ventilacion.nrenovventilacion);
  AnadirNumero(global, "PermeabilidadOpacos",
               nuevo ? kPermeabilidadNuevo : kPermeabilidadExistente);
  AnadirNumero(global, "CargaInternaMedia", r.derivados.CargaInternaMedia);

  XMLNode espacio = modelo.appendChild("Espacios").appendChild("Espacio");
  AnadirTexto(espacio, "PerfilUso", camposFichero::TextoDePosicion(d.PerfilUso, kPerfiles));
  AnadirNumero(espacio, "IluminacionPotenciaInstalada", d.Iluminacion);
  AnadirNumero(espacio, "IluminanciaMedia", d.Lux);
  AnadirTexto(espacio, "TieneCal",
              camposFichero::TextoLogico(AlgunSistemaDe(edificio, kConCalefaccion)));
  AnadirTexto(espacio, "TieneRef",
              camposFichero::TextoLogico(AlgunSistemaDe(edificio, kConRefrigeracion)));
  AnadirNumero(espacio, "Veei", d.VEII);
}

}  // namespace

void LeerGlobales(const XMLNode& novex, const ReglasVersion& reglas, RegistrosCaso& r,
                  Mensajes& mensajes) {
  const XMLNode globales = novex.childNamed(kSeccion);
  LeerCampos<R>(globales, kGlobales, r, mensajes);
  const XMLNode grupo = globales.childNamed(kTipologiasGrupo);
  const auto leer = [&](const XMLNode& nodo, T& tipologia) {
    LeerCampos<T>(nodo, kCamposTipologia, tipologia, mensajes, r.siFalta);
    if (reglas.dormitoriosSimples) SumarDormitoriosSimples(nodo, tipologia, r.informe, mensajes);
  };
  // Con un solo tipo de vivienda, los ficheros más antiguos no lo agrupan.
  if (!grupo && r.siFalta == SiFalta::Conservar) leer(globales, r.ventilacion.tipologias.front());
  std::size_t i = 0;
  for (T& tipologia : r.ventilacion.tipologias) {
    const XMLNode nodo = grupo.childNamed(kTipologia, &i);
    if (!nodo) break;
    leer(nodo, tipologia);
  }
}

void EscribirGlobales(XMLNode& novex, RegistrosCaso& r, const Edificio& edificio) {
  XMLNode globales = novex.appendChild(kSeccion);
  EscribirCampos<R>(globales, kGlobales, r);
  XMLNode grupo = globales.appendChild(kTipologiasGrupo);
  for (std::size_t i = 0; i < kTipologias; ++i) {
    if (i > 0 && r.ventilacion.tipologias[i].N_viviendas <= 0) continue;
    XMLNode nodo = grupo.appendChild(kTipologia);
    EscribirCampos<T>(nodo, kCamposTipologia, r.ventilacion.tipologias[i]);
  }
  EscribirModelo(globales, r, edificio);
}

void AnadirTablasGlobales(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"", kGlobales, 1});
}

std::span<const Campo<TipologiaVivienda>> CamposDeTipologia() {
  return kCamposTipologia;
}

}  // namespace novex
