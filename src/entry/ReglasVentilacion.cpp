#include "entry/ReglasVentilacion.h"

#include <algorithm>

#include "base/NumeroTexto.h"
#include "entry/CambiarGenerales.h"
#include "model/CatalogoCampos.h"
#include "model/ClavesCampos.h"

namespace novex {
namespace {

constexpr int kDecimales = 2;
constexpr float kM3hPorLs = 3.6F;
constexpr const char* kSi = "Si";
constexpr const char* kNo = "No";

// Caudales mínimos de una vivienda por su número de dormitorios, l/s.
struct FilaHS3 {
  float dormitorios;    // admisión de los dos primeros
  float dormitorioMas;  // admisión de cada uno de los siguientes
  float sala;           // admisión
  float minimoHumedos;  // extracción total
  float localHumedo;    // extracción de cada uno
};
constexpr FilaHS3 kHastaUno = {8, 0, 6, 12, 6};
constexpr FilaHS3 kDos = {12, 0, 8, 24, 7};
constexpr FilaHS3 kTresOMas = {12, 4, 10, 33, 8};

const FilaHS3& FilaDe(int dormitorios) {
  if (dormitorios <= 1) return kHastaUno;
  return dormitorios == 2 ? kDos : kTresOMas;
}

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

std::string TextoCifra(float valor) {
  return Fijo(static_cast<double>(valor), kDecimales);
}

bool ConSonda(std::string_view modulacion) {
  return modulacion == "Proporcional al nº personas (sonda CO2)" ||
         modulacion == "SondaCO2 con freecooling";
}

// El valor pasa por la misma comprobación que si se tecleara.
void GuardarRenovaciones(Edificio& edificio, std::string_view texto, const char* segunHS3,
                         Mensajes& mensajes) {
  Ventilacion ventilacion = edificio.GetVentilacion();
  ventilacion.nrenovventilacion = ComprobarValor(texto, "Renov", mensajes);
  if (segunHS3 != nullptr) ventilacion.Calcular_Renov_h_segun_HS3 = segunHS3;
  edificio.SetVentilacion(std::move(ventilacion));
}

}  // namespace

std::string TextoCaudalVentilacion(const Edificio& edificio) {
  const float caudal =
      edificio.GetVentilacion().nrenovventilacion * edificio.GetRecinto(0).Volumen_total_m3;
  return "Lo que supone " + TextoCifra(caudal) + " m3/h";
}

void PonerRenovaciones(Edificio& edificio, std::string_view texto, Mensajes& mensajes) {
  GuardarRenovaciones(edificio, texto, nullptr, mensajes);
}

std::string_view NotaRenovaciones(const DatosGenerales& generales) {
  if (generales.Modo_trabajo == "Existente") return "(sino se conocen utilizar 0,63 renov./h)";
  return generales.EsResidencial() ? "(debe cumplir como mínimo CTE-HS3)" : std::string_view{};
}

float CaudalTipologiaHS3(const TipologiaVivienda& tipologia) {
  const int n = tipologia.N_dormitorios_dobles;
  const FilaHS3& fila = FilaDe(n);
  const auto siguientes = static_cast<float>(std::max(n - 2, 0));
  const float admision = fila.dormitorios + fila.dormitorioMas * siguientes +
                         fila.sala * static_cast<float>(tipologia.N_salas_estar_comedor);
  const float extraccion = std::max(
      fila.localHumedo * static_cast<float>(tipologia.N_cuartos_de_banyo), fila.minimoHumedos);
  return std::max(admision, extraccion) * static_cast<float>(tipologia.N_viviendas);
}

float CaudalViviendasHS3(const Ventilacion& ventilacion) {
  float total = 0;
  for (const TipologiaVivienda& t : ventilacion.tipologias) total += CaudalTipologiaHS3(t);
  return total * kM3hPorLs;
}

bool ActualizarRenovacionesHS3(Edificio& edificio, Mensajes& mensajes) {
  const Ventilacion& ventilacion = edificio.GetVentilacion();
  // En un uso terciario la marca es de la clase de aire, que no sale de las viviendas.
  if (!edificio.GetDatosGenerales().EsResidencial() ||
      ventilacion.Calcular_Renov_h_segun_HS3 != kSi)
    return false;
  const float renovaciones =
      Cociente(CaudalViviendasHS3(ventilacion), edificio.GetRecinto(0).Volumen_total_m3);
  GuardarRenovaciones(edificio, General(renovaciones), nullptr, mensajes);
  return true;
}

void PonerSegunHS3(Edificio& edificio, bool segunHS3, Mensajes& mensajes) {
  Ventilacion ventilacion = edificio.GetVentilacion();
  ventilacion.Calcular_Renov_h_segun_HS3 = segunHS3 ? kSi : kNo;
  edificio.SetVentilacion(std::move(ventilacion));
  ActualizarRenovacionesHS3(edificio, mensajes);
}

bool PonerModulacionAire(Edificio& edificio, std::string_view texto, Mensajes& mensajes) {
  const auto textos = TextosDeCampo("TipoCO2");
  if (std::find(textos.begin(), textos.end(), texto) == textos.end()) return false;
  if (ConSonda(texto) && edificio.GetDatosGenerales().Sensibleocupantes <= 0.0F) {
    mensajes.Avisar("AVISO",
                    "La sonda de CO2 necesita la ocupación: defina antes el calor sensible de los "
                    "ocupantes");
    return false;
  }
  CambiarGenerales(edificio, [&](DatosGenerales& g) { g.TipoCO2 = texto; });
  return true;
}

bool PonerOcupacionSensible(Edificio& edificio, std::string_view texto, Mensajes& mensajes) {
  const float sensible = ComprobarValor(texto, "RatioQS", mensajes);
  if (sensible <= 0.0F && ConSonda(edificio.GetDatosGenerales().TipoCO2)) {
    mensajes.Avisar("AVISO",
                    "El aire sigue a una sonda de CO2: la ocupación tiene que ser mayor que cero");
    return false;
  }
  CambiarGenerales(edificio, [&](DatosGenerales& g) { g.Sensibleocupantes = sensible; });
  return true;
}

AireClase CalcularClaseAire(const Edificio& edificio, ClaseAire clase) {
  const Recinto& recinto = edificio.GetRecinto(0);
  AireClase aire;
  aire.caudal =
      Cociente(kCaudalPersona.at(static_cast<std::size_t>(clase)) * recinto.Suelo_habitable_m2,
               edificio.GetDatosGenerales().Nm2_p);
  aire.renovaciones = Cociente(aire.caudal, recinto.Volumen_total_m3);
  return aire;
}

std::string TextoClaseAire(const Edificio& edificio, ClaseAire clase) {
  const AireClase aire = CalcularClaseAire(edificio, clase);
  return "IDA" + std::to_string(static_cast<std::size_t>(clase) + 1) +
         "      Caudal = " + TextoCifra(aire.caudal) +
         " m3/h      renovaciones/h = " + TextoCifra(aire.renovaciones);
}

std::string AceptarClaseAire(Edificio& edificio, ClaseAire clase, Mensajes& mensajes) {
  GuardarRenovaciones(edificio, General(CalcularClaseAire(edificio, clase).renovaciones), kSi,
                      mensajes);
  return TextoCaudalVentilacion(edificio);
}

}  // namespace novex
