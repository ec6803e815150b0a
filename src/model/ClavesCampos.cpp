#include "model/ClavesCampos.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/Catastro.h"

namespace novex {
namespace {

using Par = std::pair<std::string_view, std::string_view>;

// Etiquetas enteras.
constexpr std::array kEtiquetas = std::to_array<Par>({
    // Sitio y uso
    {"asnm", "Cota"},
    {"latitud", "Latitud"},
    {"Sensibleocupantes", "RatioQS"},
    {"Latenteocupantes", "RatioQL"},
    {"Ventilacion", "RatioVent"},
    {"Iluminacion", "PotIlu"},
    {"Equipos", "RatioQEqu"},
    {"VEII", "EVEIIIlu"},
    {"VEIIMax", "EVEIIMax"},
    {"Lux", "Lux"},
    {"Nm2_p", "Area"},
    {"NVBloqueF", "NViviendas"},
    {"Valorn50", "Renov"},
    {"ConsumoAgua_litros_dia", "Consumo_agua_litros_dias"},
    {"Aporte_solar_tanto_por_cien", "Porcentaje_solar"},
    {"Aporte_fotovoltaico_kwh_ano", "kWh_ano_Fotovoltaico"},
    // Aire
    {"nrenovventilacion", "Renov"},
    {"N_viviendas", "NViviendas"},
    {"N_dormitorios_dobles", "DormitoriosDobles"},
    {"N_salas_estar_comedor", "EstarComedor"},
    {"N_cuartos_de_banyo", "CuartoBano"},
    {"Eficiencia_recuperador", "EfiRecuperador"},
    {"Eficiencia_recuperador_Ental", "EfiRecuperadorEntal"},
    {"ERelaMasa", "ERelaMasa"},
    {"WRecuperador", "DWVent"},
    {"WRecuperadorr", "DWVent"},
    {"Teminrec", "Teminrec"},
    {"Temaxrec", "Temaxrec"},
    {"TminImp", "TminImp"},
    {"HRmin", "HRmin"},
    {"NEquiposVent", "NEquiposVent"},
    {"TminFreeCooling", "TminFreeCooling"},
    {"CaudalUTA", "CaudalV"},
    {"RendVentToma", "RendVent"},
    {"PerdPresionToma", "DPVent"},
    // Envolvente
    {"Volumen_total_m3", "Volumen"},
    {"Espesor_forjado", "Forjado"},
    {"Anchura_pilar", "AnchuraPilar"},
    {"Ra_Resitencia_aislante_m2K_W", "Resist"},
    {"Ancho_m", "Long"},
    {"Alto_m", "Long"},
    {"Retranqueo_m", "Long"},
    {"U_cristal_W_m2K", "CoefUH"},
    {"U_marco_W_m2K", "CoefUH"},
    {"FS_cristal_tanto_por_uno", "FSCristal"},
    {"Fraccion_marco_tanto_por_cien", "FMarco"},
    {"Permeabilidad_Ventanas", "Permeabilidad"},
    {"U_Caja_de_persiana_W_m2K", "CoefUCaja"},
    {"Vinf_Caja_de_persiana_m3_h", "CoefVinfCaja"},
    {"Altura_Caja_de_persiana_m", "Long"},
    // Instalaciones
    {"EControlTe", "TextCamb"},
    {"NEmisores", "NEmisores"},
    {"NEquipos", "NEquipos"},
    {"Long_tuberias", "Long"},
    {"Pot_perdida_m_tub", "PerCalor_m"},
    {"Distanciaext_int", "Long"},
    {"Perdida_m_tub_ext_int", "Perextint_m"},
    {"AintermbD", "Area"},
    {"AintermbD2", "Area"},
    {"Volumen", "VolumenAcu"},
    {"UA_deposito", "UA"},
    {"LD_deposito", "LD"},
    {"TaltaD", "Talta"},
    {"TbajaD", "Tbaja"},
    {"EfiIntercamb", "EfiRecuperador"},
    {"TimpCalor", "TCalef"},
    {"TimpACS", "TACS"},
    {"TimpFrio", "TRefri"},
    {"saltoGenerador", "Salto"},
    {"saltoZona", "Salto"},
    {"CaudalVent", "CaudalV"},
    {"SaltoPVent", "DPVent2"},
    {"rendVent", "RendVent"},
    {"QcalorCaldera1", "PotCale"},
    {"QcalorCaldera2", "PotCale"},
    {"RendCalor1", "RendCale"},
    {"RendCalor2", "RendCale"},
    {"RadiadorElectrico", "PotElecCale"},
    {"QcalorBC1", "PotBCCale"},
    {"QcalorBC2", "PotBCCale"},
    {"WeCalor1", "ConBCCale"},
    {"WeCalor2", "ConBCCale"},
    {"RendCalorEst", "RendGeneral"},
    {"RendFrioEst", "RendGeneral"},
    {"RendACSEst", "RendGeneral"},
    {"SCOP", "Rend8"},
    {"QFrioTot1", "QTRef"},
    {"QFrioTot2", "QTRef"},
    {"QFrioSen1", "QSRef"},
    {"QFrioSen2", "QSRef"},
    {"WeFrio1", "CSRef"},
    {"WeFrio2", "CSRef"},
    {"Sup_ACS", "Area"},
    {"Sup_Calefaccion", "Area"},
    {"Sup_Refrigeracion", "Area"},
    // Solar térmica
    {"N_colec_term", "NEquipos"},
    {"Sup_colec_term", "Area"},
    {"Area_Serp_ST", "Area"},
    {"Volumen_Dep_ST", "VolumenAcu"},
    {"UA_Dep_ST", "UA"},
    {"LD_Dep_ST", "LD"},
    {"Efi_Inter_ST", "EfiRecuperador"},
    {"Long_Tub_ST", "Long"},
    {"PerdCalor_Tub_ST", "PerCalor_m"},
    {"Control_Tmin_ST", "DT"},
    // Materiales
    {"Espesor", "Espesor"},
    {"Conductividad", "K"},
    {"Densidad", "Den"},
    {"CalorEspecifico", "CP"},
    {"Resistencia_termica", "Resistcapa"},
    {"Resisvidad_relativa_vapor", "ResisvT"},
});

// Familias de etiquetas por su comienzo; la primera que casa decide.
constexpr std::array kComienzos = std::to_array<Par>({
    {"U_L_Puentes_", "Puente"},
    {"fi_Puentes_", "Cualquiera"},
    {"U_Cubierta_", "CoefU"},
    {"U_Muro_", "CoefU"},
    {"U_Suelo_", "CoefU"},
    {"Long_pilares_", "Long"},
    {"Perimetro_", "Long"},
    {"Longitud_esquinas_", "Long"},
    {"Profundidad_", "Long"},
    {"D_Longitud_", "Long"},
    {"Distancia_alero", "Long"},
    {"Longitud_alero", "Long"},
    {"Numero_ventanas_", "NVentanas"},
    {"Numero_lucernarios_", "NVentanas"},
    {"Separacion_ventanas_", "Long"},
    {"Ventana_", "Long"},
    {"Valor_multiplicativo_", "Valor"},
    {"PotPico_FV", "Valor"},
    {"Super_FV", "Area"},
});

// Comienzos de obstáculos y de bombas, que llevan detrás una dirección o un circuito.
constexpr std::array kFinales = std::to_array<Par>({
    {"_m2", "Area"},
    {"_Altura", "Long"},
    {"_Distancia", "Long"},
});

constexpr std::array<std::string_view, 6> kCircuitos = {"SBZ", "GEN1", "GEN2", "DEP", "INT", "RET"};
constexpr std::array kBombas =
    std::to_array<Par>({{"Caudal", "Cualquiera"}, {"DT", "DT"}, {"P", "DP"}, {"Rend", "RendB"}});

using Textos = std::span<const std::string_view>;

constexpr auto kObjetivos =
    std::to_array<std::string_view>({"CertificacionSolo", "Certificacion", "Simulacion"});
constexpr auto kCertificados = std::to_array<std::string_view>(
    {"Existente", "ProyectoNuevaConstruccion", "ProyectoAmpliacion", "ProyectoReforma",
     "ObraNuevaConstruccion", "ObraAmpliacion", "ObraReforma"});
constexpr auto kReformas = std::to_array<std::string_view>(
    {"Reforma >25% envolvente + Clima + ACS", "Reforma <25% envolvente + Clima + ACS",
     "Reforma >25% envolvente + Clima", "Reforma <25% envolvente + Clima",
     "Reforma >25% envolvente + ACS", "Reforma <25% envolvente + ACS", "Reforma >25% envolvente",
     "Reforma <25% envolvente", "Ampliación", "Cambio de uso"});
constexpr auto kUsosEdificio = std::to_array<std::string_view>(
    {"ResidencialPrivado", "ResidencialPublico", "Administrativo", "Sanitario", "Comercial",
     "Docente", "Cultural", "Deportivo", "Restauración", "Transporte", "ActividadesRecreativas",
     "Religioso", "Otro"});
constexpr auto kNormasEdificacion = std::to_array<std::string_view>(
    {"ANTE_NBE_CT_79", "NBE_CT_79", "CTE_DB_HE_2006", "CTE_DB_HE_2013", "CTE_DB_HE_2019"});
constexpr auto kNormasInstalaciones =
    std::to_array<std::string_view>({"ANTE_RD_1490_1975", "RD_1490_1975", "RICCACS_RD_1618_1980",
                                     "RITE_1998", "RITE_2007", "RITE_2013", "RITE_2021"});
constexpr auto kAnos =
    std::to_array<std::string_view>({"ANTE-1900", "1900-1939", "1940-1959", "1960-1978",
                                     "1979-2005", "2006-2012", "2013-2018", "POST-2018"});
constexpr auto kProtecciones =
    std::to_array<std::string_view>({"Ninguna", "Integral", "Estructural", "Ambiental"});
constexpr auto kSiNo = std::to_array<std::string_view>({"SI", "NO"});
constexpr auto kSiNoMinusculas = std::to_array<std::string_view>({"Si", "No"});
constexpr auto kVisiones = std::to_array<std::string_view>({"Simplificado", "Completo"});
constexpr auto kAlcances = std::to_array<std::string_view>({"Completo", "Parte"});
constexpr auto kN50 = std::to_array<std::string_view>({"Teorico", "Medido"});
constexpr auto kVentilaciones = std::to_array<std::string_view>({"Mecanica", "Hibrida"});
constexpr auto kVentanas = std::to_array<std::string_view>({"Abiertas", "Cerradas"});
constexpr auto kManejos = std::to_array<std::string_view>(
    {"TomaUT", "UTAprimario_a_unid_terminales", "UTAprimario_Ventilacion_indep.", "UTA"});
constexpr auto kCO2 = std::to_array<std::string_view>(
    {"Coef. operacionales", "Coef. operacionales + freecooling",
     "Proporcional al nº personas (sonda CO2)", "SondaCO2 con freecooling"});
constexpr auto kControles =
    std::to_array<std::string_view>({"Variador de frecuencia", "Control por compuertas"});
constexpr auto kFreeCooling =
    std::to_array<std::string_view>({"FreeCoolingTermico", "FreeCoolingEntalpico"});
constexpr auto kRecuperadores = std::to_array<std::string_view>(
    {"No", "SensibleSinBypass", "SensibleConBypass", "EntalpicoSinBypass", "EntalpicoConBypass"});
constexpr auto kAislamientos =
    std::to_array<std::string_view>({"SinAislamiento", "Continuo", "Periferico"});
constexpr auto kModosLongitud = std::to_array<std::string_view>({"Estimados", "Facilitados"});

struct TextosEtiqueta {
  std::string_view etiqueta;
  Textos textos;
};
constexpr std::array kTextos = std::to_array<TextosEtiqueta>({
    {"Tiposimulacion", kObjetivos},
    {"TipoCertificado", kCertificados},
    {"Reforma", kReformas},
    {"Uso", kUsosEdificio},
    {"NormativaEdificacion", kNormasEdificacion},
    {"NormativaInstalaciones", kNormasInstalaciones},
    {"AnoConstruccion", kAnos},
    {"GradoProteccion", kProtecciones},
    {"Equipos_Defecto", kSiNo},
    {"Cambio_zona_temperatura", kSiNo},
    {"Calcular_Renov_h_segun_HS3", kSiNoMinusculas},
    {"Existe_fotovoltaica", kSiNoMinusculas},
    {"RehabIntegralHE5", kSiNoMinusculas},
    {"Modo_Vision", kVisiones},
    {"Alcance", kAlcances},
    {"Tipon50", kN50},
    {"TipoVentilacion2", kVentilaciones},
    {"ManejoVentanas2", kVentanas},
    {"ManejoVentilacion", kManejos},
    {"TipoCO2", kCO2},
    {"ControlVent", kControles},
    {"UTAFreeCooling", kFreeCooling},
    {"Recuperador", kRecuperadores},
    {"Tipo_aislamiento_suelo", kAislamientos},
    {"Longitud_puentes_termicos_modo", kModosLongitud},
    {"Registro", kRegistrosCatastro},
});

std::string_view ClaveDeBomba(std::string_view etiqueta) {
  for (const std::string_view circuito : kCircuitos)
    if (etiqueta.ends_with(circuito)) {
      const std::string_view comienzo = etiqueta.substr(0, etiqueta.size() - circuito.size());
      for (const auto& [nombre, clave] : kBombas)
        if (nombre == comienzo) return clave;
    }
  return {};
}

}  // namespace

std::string_view ClaveDeCampo(std::string_view etiqueta) {
  for (const auto& [nombre, clave] : kEtiquetas)
    if (nombre == etiqueta) return clave;
  for (const auto& [comienzo, clave] : kComienzos)
    if (etiqueta.starts_with(comienzo)) return clave;
  for (const auto& [final, clave] : kFinales)
    if (etiqueta.ends_with(final)) return clave;
  return ClaveDeBomba(etiqueta);
}

std::span<const std::string_view> TextosDeCampo(std::string_view etiqueta) {
  const auto it = std::find_if(kTextos.begin(), kTextos.end(),
                               [&](const TextosEtiqueta& t) { return t.etiqueta == etiqueta; });
  return it == kTextos.end() ? Textos{} : it->textos;
}

}  // namespace novex
