#include "demand/AjustesUso.h"

#include <string_view>
#include <utility>

namespace novex {
namespace {

template <typename Enum, std::size_t N>
Enum Resolver(std::string_view texto, const std::pair<std::string_view, Enum> (&tabla)[N],
              Enum siNo) {
  for (const auto& [nombre, valor] : tabla)
    if (nombre == texto) return valor;
  return siNo;
}

constexpr std::pair<std::string_view, AccionMes> kAcciones[] = {
    {"Sólo Cale", AccionMes::SoloCale},
    {"Sólo Refri", AccionMes::SoloRefri},
    {"Cale+Refri", AccionMes::CaleRefri},
    {"Nada", AccionMes::Nada}};

constexpr std::pair<std::string_view, SistemaAire> kAire[] = {
    {"UTAprimario_a_unid_terminales", SistemaAire::Primario},
    {"UTAprimario_Ventilacion_indep.", SistemaAire::Primario},
    {"UTA", SistemaAire::UTA}};

constexpr std::pair<std::string_view, ModulacionAire> kModulacion[] = {
    {"Coef. operacionales", ModulacionAire::Coeficientes},
    {"Coef. operacionales + freecooling", ModulacionAire::CoeficientesEnfriamiento},
    {"Proporcional al nº personas (sonda CO2)", ModulacionAire::Sonda},
    {"SondaCO2 con freecooling", ModulacionAire::SondaEnfriamiento}};

constexpr std::pair<std::string_view, ControlVentilador> kControl[] = {
    {"Variador de frecuencia", ControlVentilador::Variador},
    {"Control por compuertas", ControlVentilador::Compuertas}};

constexpr std::pair<std::string_view, TipoRecuperador> kRecuperador[] = {
    {"No", TipoRecuperador::No},
    {"SensibleSinBypass", TipoRecuperador::SensibleSin},
    {"SensibleConBypass", TipoRecuperador::SensibleCon},
    {"EntalpicoSinBypass", TipoRecuperador::EntalpicoSin},
    {"EntalpicoConBypass", TipoRecuperador::EntalpicoCon}};

constexpr std::pair<std::string_view, PruebaEnfriamiento> kPrueba[] = {
    {"FreeCoolingTermico", PruebaEnfriamiento::Termica},
    {"FreeCoolingEntalpico", PruebaEnfriamiento::Entalpica}};

constexpr std::pair<std::string_view, VentilacionVivienda> kVivienda[] = {
    {"Mecanica", VentilacionVivienda::Mecanica}, {"Hibrida", VentilacionVivienda::Hibrida}};

}  // namespace

AjustesUso ResolverAjustes(const Edificio& edificio) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  const Localizacion& l = edificio.GetLocalizacion();
  AjustesUso a;
  a.perfil = g.PerfilUso;
  a.residencial = g.EsResidencial();
  a.simulacionLibre = g.Tiposimulacion == "Simulacion";
  a.equiposDefecto = g.Equipos_Defecto == "SI";
  a.equiposReales = g.Equipos_Defecto == "NO";
  a.ventanasAbiertas = g.ManejoVentanas2 == "Abiertas";
  a.hayHumectador = g.UTAHumectacion != "HumectadorNo";
  a.n50Teorico = g.Tipon50 == "Teorico";
  a.sinRefrigeracion =
      l.ZonaClimatica == "C1" || l.ZonaClimatica == "D1" || l.ZonaClimatica == "E1";
  a.aire = Resolver(g.ManejoVentilacion, kAire, SistemaAire::Toma);
  a.modulacion = Resolver(g.TipoCO2, kModulacion, ModulacionAire::Otra);
  a.control = Resolver(g.ControlVent, kControl, ControlVentilador::Otro);
  a.recuperador = Resolver(g.Recuperador, kRecuperador, TipoRecuperador::Otro);
  a.enfriamiento = Resolver(g.UTAFreeCooling, kPrueba, PruebaEnfriamiento::Ninguna);
  a.vivienda = Resolver(g.TipoVentilacion2, kVivienda, VentilacionVivienda::Otra);
  for (int m = 1; m <= 12; ++m) {
    const auto i = static_cast<std::size_t>(m);
    a.accion[i] = Resolver(g.perfiles.AccionMes[i], kAcciones, AccionMes::Desconocida);
    a.verano[i] = l.EsVerano(m);
  }
  return a;
}

}  // namespace novex
