#include <algorithm>

#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using D = DatosGenerales;
using X = DatosDerivados::Caso;
constexpr auto g = &R::generales;
constexpr auto x = &R::derivados;

constexpr std::string_view kSeccion = "Instalaciones";

constexpr std::array kCampos = {
    Real<g, &D::Aporte_fotovoltaico_kwh_ano>("Aporte_fotovoltaico_kwh_ano", 2),
    Texto<g, &D::Existe_fotovoltaica>("Existe_fotovoltaica"),
    Texto<g, &D::Uso_fotovoltaico>("Uso_fotovoltaico"),
    RealEn<0, g, &D::PotPico_FV>("PotPico_FV", 2),
    RealEn<1, g, &D::PotPico_FV>("PotPico_FV2", 2),
    RealEn<2, g, &D::PotPico_FV>("PotPico_FV3", 2),
    RealEn<0, g, &D::Super_FV>("Super_FV", 2),
    RealEn<1, g, &D::Super_FV>("Super_FV2", 2),
    RealEn<2, g, &D::Super_FV>("Super_FV3", 2),
    RealEn<0, g, &D::Az_FV>("Az_FV", 0),
    RealEn<1, g, &D::Az_FV>("Az_FV2", 0),
    RealEn<2, g, &D::Az_FV>("Az_FV3", 0),
    RealEn<0, g, &D::Incli_FV>("Incli_FV", 0),
    RealEn<1, g, &D::Incli_FV>("Incli_FV2", 0),
    RealEn<2, g, &D::Incli_FV>("Incli_FV3", 0),
    Real<g, &D::PSuciedad_FV>("PSuciedad_FV", 0),
    Real<g, &D::PTcelula_FV>("PTcelula_FV", 0),
    Real<g, &D::PConversor_FV>("PConversor_FV", 0),
    Real<g, &D::Aporte_solar_tanto_por_cien>("Aporte_solar_tanto_por_cien", 2),
    Entero<g, &D::N_colec_term>("N_colec_term"),
    Real<g, &D::Sup_colec_term>("Sup_colec_term", 2),
    Real<g, &D::Incli_colec_term>("Incli_colec_term", 0),
    Real<g, &D::Azimut_colec_term>("Azimut_colec_term", 0),
    Real<g, &D::AA_colec_term>("AA_colec_term", 4),
    Real<g, &D::BB_colec_term>("BB_colec_term", 4),
    Real<g, &D::CC_colec_term>("CC_colec_term", 4),
    Entero<g, &D::Tipo_Inst_ST>("Tipo_Inst_ST"),
    Real<g, &D::Volumen_Dep_ST>("Volumen_Dep_ST", 0),
    Real<g, &D::LD_Dep_ST>("LD_Dep_ST", 0),
    Real<g, &D::UA_Dep_ST>("UA_Dep_ST", 0),
    Real<g, &D::Caudal_Col_ST>("Caudal_Col_ST", 0),
    Real<g, &D::PerdP_Col_ST>("PerdP_Col_ST", 2),
    Real<g, &D::Caudal_Dep_ST>("Caudal_Dep_ST", 0),
    Real<g, &D::PerdP_Dep_ST>("PerdP_Dep_ST", 2),
    Real<g, &D::Caudal_Rec_ST>("Caudal_Rec_ST", 0),
    Real<g, &D::PerdP_Rec_ST>("PerdP_Rec_ST", 2),
    Real<g, &D::Efi_Inter_ST>("Efi_Inter_ST", 0),
    Real<g, &D::Long_Tub_ST>("Long_Tub_ST", 0),
    Real<g, &D::PerdCalor_Tub_ST>("PerdCalor_Tub_ST", 2),
    Real<g, &D::Control_Tmin_ST>("Control_Tmin_ST", 0),
    Real<g, &D::Area_Serp_ST>("Area_Serp_ST", 2),
    Real<x, &X::WBombCAPST>("WBombCAPST", 2).SoloEscritura(),
    Real<x, &X::WBombDEPST>("WBombDEPST", 2).SoloEscritura(),
    Real<x, &X::WBombRECST>("WBombRECST", 2).SoloEscritura(),
    Real<x, &X::WEnergiaFinalVent>("WEnergiaFinalVent", 2).SoloEscritura(),
    Real<x, &X::WEnergiaFinalVentUTC>("WEnergiaFinalVentUTC", 2).SoloEscritura(),
    Real<x, &X::WEnergiaFinalVentUTR>("WEnergiaFinalVentUTR", 2).SoloEscritura(),
    Texto<g, &D::Tipon50>("Tipon50"),
    Real<g, &D::Valorn50>("Valorn50", 2),
    Texto<g, &D::TipoVentilacion2>("TipoVentilacion2"),
    Texto<g, &D::ManejoVentanas2>("ManejoVentanas2"),
    Texto<g, &D::Recuperador>("Recuperador"),
    Real<g, &D::ERelaMasa>("ERelaMasa", 2),
    Real<g, &D::NVBloqueF>("NVBloqueF", 0),
    Real<g, &D::WRecuperador>("WRecuperador", 2),
    campoComun::kWRecuperadorr.ConDecimales(2).Guardado(),
    campoComun::kTeminrec.Guardado(),
    campoComun::kTemaxrec.Guardado(),
    campoComun::kTminImp.Guardado(),
    campoComun::kHRmin.Guardado(),
    Real<g, &D::Eficiencia_recuperador>("Eficiencia_recuperador", 0),
    Real<g, &D::Eficiencia_recuperador_Ental>("Eficiencia_recuperador_Ental", 0),
    Real<g, &D::ConsumoAgua_litros_dia>("ConsumoAgua_litros_dia", 2)};

constexpr auto kConsumoAExt = Real<x, &X::ConsumoVentilacionAExt>("ConsumoVentilacionAExt", 2);
constexpr std::array kConsumo = {kConsumoAExt};
constexpr std::array kVentilacionMecanica = {
    Real<x, &X::Caudal2Vent>("Caudal2Vent", 2),
    Real<x, &X::PotenciaEspecificaVent>("PotenciaEspecificaVent", 2), kConsumoAExt};

// Nombres que tuvieron los recuperadores.
struct NombreCambiado {
  std::string_view antes;
  std::string_view ahora;
};
constexpr std::array<NombreCambiado, 2> kRecuperadores = {
    {{"SinFreecooling", "SensibleSinBypass"}, {"ConFreecooling", "SensibleConBypass"}}};

void CambiarRecuperador(const ReglasVersion& reglas, D& datos, InformeLectura& informe,
                        Mensajes& mensajes) {
  const auto cambiado =
      std::find_if(kRecuperadores.begin(), kRecuperadores.end(),
                   [&datos](const NombreCambiado& n) { return n.antes == datos.Recuperador; });
  if (cambiado == kRecuperadores.end()) return;
  datos.Recuperador = cambiado->ahora;
  informe.Anotar(informe.cambiados, "Recuperador \"" + std::string(cambiado->antes) +
                                        "\" pasa a \"" + datos.Recuperador + "\"");
  if (!reglas.consumoRecuperador)
    mensajes.Avisar("AVISO",
                    "Revisar datos consumo recuperador. Se cambia definición a partir de la "
                    "versión 5.09");
}

// Los ficheros que no tienen los ajustes de la ventilación toman unos fijos.
void PonerVentilacionFija(D& d, InformeLectura& informe) {
  d.ManejoVentanas2 = "Abiertas";
  d.ERelaMasa = 1;
  d.WRecuperador = 25;
  d.WRecuperadorr = 25;
  d.Teminrec = 15;
  d.Temaxrec = 30;
  d.TminImp = 14;
  d.HRmin = 30;
  d.NEquiposVent = 1;
  d.ManejoVentilacion = "TomaUT";
  d.TipoCO2 = "Coef. operacionales";
  d.ControlVent = "Control por compuertas";
  informe.Anotar(informe.porDefecto,
                 "Los ajustes de la ventilación mecánica y del recuperador toman valores fijos");
}

// Lo que un fichero antiguo no dice y el caso toma de los valores de partida.
void AnotarFaltas(const XMLNode& instalaciones, R& r) {
  std::size_t nulos = 0;
  for (const Campo<R>& campo : kCampos) {
    if (campo.soloEscritura || ValorDeHijo(instalaciones, campo.etiqueta)) continue;
    const std::string valor = camposFichero::TextoDeCampo(campo, r, Indice{});
    if (valor.find_first_not_of("0.") == std::string::npos)
      ++nulos;
    else
      r.informe.Anotar(r.informe.porDefecto, std::string(campo.etiqueta) + ": \"" + valor + "\"");
  }
  if (nulos > 0)
    r.informe.Anotar(r.informe.porDefecto,
                     "A 0 o sin texto, otros datos de las instalaciones: " + std::to_string(nulos));
}

}  // namespace

void LeerInstalaciones(const XMLNode& novex, const ReglasVersion& reglas, RegistrosCaso& r,
                       Edificio& edificio, Mensajes& mensajes) {
  const XMLNode instalaciones = novex.childNamed(kSeccion);
  LeerCampos<R>(instalaciones, kCampos, r, mensajes, r.siFalta);
  if (r.siFalta == SiFalta::Conservar) AnotarFaltas(instalaciones, r);
  if (reglas.dormitoriosSimples) PonerVentilacionFija(r.generales, r.informe);
  CambiarRecuperador(reglas, r.generales, r.informe, mensajes);
  if (reglas.sistemas) {
    LeerSistemas(instalaciones, edificio, mensajes);
    return;
  }
  mensajes.Avisar("AVISO Versión antigua",
                  "No se leen las instalaciones, por cambiar completamente su definición");
  r.informe.Anotar(r.informe.saltados,
                   "Los sistemas de las instalaciones, que se definían de otro modo");
}

void EscribirInstalaciones(XMLNode& novex, RegistrosCaso& r, const Edificio& edificio) {
  XMLNode instalaciones = novex.appendChild(kSeccion);
  EscribirCampos<R>(instalaciones, kCampos, r);
  EscribirCampos<R>(instalaciones, kConsumo, r);
  if (r.generales.EsResidencial() && r.generales.TipoVentilacion2 == "Mecanica")
    EscribirCampos<R>(instalaciones, kVentilacionMecanica, r);
  EscribirSistemas(instalaciones, r.derivados, edificio);
}

void AnadirTablasInstalaciones(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"", kCampos, 1});
}

}  // namespace novex
