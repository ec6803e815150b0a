#include "shell/gui/RotulosSistema.h"

#include <QObject>
#include <algorithm>
#include <array>

#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

struct Rotulo {
  const char *etiqueta, *rotulo, *unidad, *ayuda;
};
constexpr std::array kRotulos = std::to_array<Rotulo>({
    {"Nombre_sistema", "Nombre", "", "Con el que sale en los resultados y en el certificado"},
    {"TipoInstalacionesG", "Tipología instalación", "",
     "De todo el edificio o una en cada vivienda o local"},
    {"Seleccion", "Generador", "", "Al cambiarlo se toman las curvas genéricas de su clase"},
    {"TipoGenerador1", "Tipo de caldera", "", "Decide la curva de rendimiento genérica"},
    {"QcalorCaldera1", "Potencia nominal", "", "Potencia útil de cada caldera"},
    {"RendCalor1", "Rendimiento nominal", "",
     "Sobre el poder calorífico inferior, a carga total (Reglamento UE 813/2013)"},
    {"CombCalor1", "Combustible", "", ""},
    {"CombCalorBio1", "Combustible", "", ""},
    {"TipoGenerador2", "Tipo de caldera de apoyo", "", ""},
    {"QcalorCaldera2", "Potencia de la caldera", "", "Potencia útil de la caldera de apoyo"},
    {"RendCalor2", "Rendimiento de la caldera", "", "Sobre el poder calorífico inferior"},
    {"CombCalor2", "Combustible de la caldera", "", ""},
    {"CombCalorBio2", "Combustible de la caldera", "", ""},
    {"QcalorBC1", "Potencia en calor", "",
     "Nominal, a 7 °C secos y 6 °C húmedos en el exterior (UNE-EN 14511)"},
    {"WeCalor1", "Consumo en calor", "", "Eléctrico, en las mismas condiciones"},
    {"QFrioTot1", "Potencia total en frío", "",
     "Nominal, a 35 °C en el exterior y 27 °C secos y 19 °C húmedos dentro (UNE-EN 14511)"},
    {"QFrioSen1", "Potencia sensible en frío", "", "La parte que baja la temperatura del aire"},
    {"WeFrio1", "Consumo en frío", "", "Eléctrico, en las mismas condiciones"},
    {"SCOP", "Rendimiento estacional", "", "SCOP de agua caliente (UNE-EN 16147)"},
    {"RadiadorElectrico", "Potencia eléctrica", "", "De cada grupo de radiadores"},
    {"QApoyoEquipo", "Resistencia eléctrica", "kW", "La que calienta el depósito; al menos 1 kW"},
    {"QApoyoTermo", "Resistencia de apoyo", "kW",
     "Lo que suma al depósito la resistencia de la bomba de calor; al menos 1 kW"},
    {"RendCalorEst", "Rendimiento en calefacción", "", "Estacional, sobre la energía que consume"},
    {"RendFrioEst", "Rendimiento en refrigeración", "", "Estacional, sobre el calor total"},
    {"RendACSEst", "Rendimiento en ACS", "", "Estacional"},
    {"CombEst", "Energía que consume", "", ""},
    {"TipoBC1", "Construcción", "", "En una partida cuenta la línea entre sus dos unidades"},
    {"Distanciaext_int", "Distancia exterior-interior", "", "Largo de la línea frigorífica"},
    {"Perdida_m_tub_ext_int", "Pérdida de la línea", "%/m", "Potencia que se pierde por metro"},
    {"NEquipos", "Número de equipos", "", "Iguales, en paralelo"},
    {"Nradiadores", "Tipo de vivienda que sirve", "",
     "Ha de haber tantos equipos como viviendas de ese tipo"},
    {"Distribucion", "Distribución", "", "Lo que hay entre el generador y el uso"},
    {"Distribucion2", "Distribución", "", "Lo que hay entre el calentador y el grifo"},
    {"Alimentacion", "Alimentación", "", "De dónde viene el agua fría"},
    {"Alimentacion2", "Alimentación", "", "Cómo llega el calor de los captadores"},
    {"Alimentacion3", "Alimentación", "", "Cómo llega el calor de los captadores"},
    {"Alimentacion4", "Alimentación", "", "De dónde viene el agua fría"},
    {"Volumen", "Volumen del depósito", "", "De cada equipo"},
    {"UA_deposito", "Pérdidas del depósito", "", "Coeficiente global de su envolvente"},
    {"LD_deposito", "Altura entre diámetro", "", "Los altos estratifican mejor"},
    {"AintermbD", "Serpentín del generador", "m²", "Superficie de intercambio"},
    {"AintermbD2", "Serpentín solar", "m²", "Superficie de intercambio en el depósito"},
    {"EfiIntercamb", "Eficiencia del intercambiador", "", "De placas, exterior al depósito"},
    {"Emisor", "Emisor", "", "Con \"Sist.Vent.\" comparte la zona con el aire de ventilación"},
    {"ConsumoEmisor", "Ventilador interior", "", "¿Está en el consumo del equipo?"},
    {"NEmisores", "Unidades por equipo", "", "Unidades terminales de cada equipo"},
    {"CaudalVent", "Caudal del ventilador", "", "De una unidad terminal"},
    {"SaltoPVent", "Presión del ventilador", "", "Que ha de vencer"},
    {"rendVent", "Rendimiento del ventilador", "", "De 0,3 a 1"},
    {"Retorno", "Retorno de ACS", "",
     "Obligado cuando el punto más lejano está a más de 15 m (CTE DB-HS 4)"},
    {"Long_tuberias", "Longitud de tubería", "", "Ida y vuelta del retorno"},
    {"Pot_perdida_m_tub", "Pérdida de la tubería", "W/m°C", "Por metro y grado"},
    {"NHretorno", "Horario de la bomba", "", "Todo el día o solo con consumo"},
    {"EControlTe", "Cambio a caldera por debajo de", "",
     "Temperatura exterior: por encima va la bomba de calor"},
    {"TimpCalor", "Impulsión en calefacción", "", "Temperatura del agua"},
    {"TimpFrio", "Impulsión en refrigeración", "", "Temperatura del agua"},
    {"TimpACS", "Impulsión de ACS", "", "Temperatura del agua de consumo (RD 487/2022)"},
    {"TaltaD", "Consigna alta del depósito", "", "A la que para el generador"},
    {"TbajaD", "Consigna baja del depósito", "", "A la que arranca el generador"},
    {"saltoGenerador", "Salto del generador", "", "Da el caudal de su bomba al rellenar"},
    {"saltoZona", "Salto de la zona", "", "Da el caudal de su bomba al rellenar"},
    {"Sup_ACS", "ACS", "m²", "Superficie servida"},
    {"Sup_Calefaccion", "Calefacción", "m²", "Superficie servida"},
    {"Sup_Refrigeracion", "Refrigeración", "m²", "Superficie servida"},
});

struct RotuloBomba {
  const char *comienzo, *rotulo, *ayuda;
};
constexpr RotuloBomba kBombas[] = {
    {"Caudal", "Caudal", "Caudal de la bomba"},
    {"DT", "Salto", "Salto de temperatura del circuito"},
    {"Rend", "Rendimiento", "Hidráulico y eléctrico de la bomba, de 0,3 a 1"},
    {"control", "Control", "Cómo baja la bomba con la carga"},
    {"P", "Altura", "Presión que ha de vencer. Se teclea en metros enteros"}};

constexpr std::pair<std::string_view, const char*> kCircuitos[] = {
    {"SBZ", "Zona"},     {"GEN1", "Generador 1"},   {"GEN2", "Generador 2"},
    {"DEP", "Depósito"}, {"INT", "Intercambiador"}, {"RET", "Retorno de ACS"}};

}  // namespace

OpcionesCampo OpcionesDeSistema(std::string_view etiqueta) {
  OpcionesCampo opciones;
  for (const Rotulo& r : kRotulos)
    if (r.etiqueta == etiqueta) {
      opciones.rotulo = QObject::tr(r.rotulo);
      opciones.unidad = Q(r.unidad);
      opciones.ayuda = QObject::tr(r.ayuda);
      return opciones;
    }
  for (const RotuloBomba& b : kBombas)
    for (const auto& [circuito, nombre] : kCircuitos)
      if (etiqueta == b.comienzo + std::string(circuito)) {
        opciones.rotulo = QObject::tr("%1 · %2").arg(Q(b.rotulo), QObject::tr(nombre));
        opciones.ayuda = QObject::tr(b.ayuda);
        return opciones;
      }
  opciones.rotulo = Q(etiqueta);
  return opciones;
}

QString TituloDeGrupo(GrupoCampos grupo) {
  switch (grupo) {
    case GrupoCampos::Servicio:
      return QObject::tr("Sistema");
    case GrupoCampos::Generador:
      return QObject::tr("Generador");
    case GrupoCampos::Unidades:
      return QObject::tr("Unidades");
    case GrupoCampos::Deposito:
      return QObject::tr("Distribución y depósito");
    case GrupoCampos::Bombas:
      return QObject::tr("Bombas");
    case GrupoCampos::Emisores:
      return QObject::tr("Emisores");
    case GrupoCampos::Retorno:
      return QObject::tr("Retorno");
    case GrupoCampos::Control:
      return QObject::tr("Temperaturas y control");
    case GrupoCampos::Superficies:
      return QObject::tr("Superficie servida");
  }
  return {};
}

QString NombreDeCircuito(std::string_view circuito) {
  for (const auto& [clave, nombre] : kCircuitos)
    if (clave == circuito) return QObject::tr(nombre);
  return Q(circuito);
}

}  // namespace novex::gui
