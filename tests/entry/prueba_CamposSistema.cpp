#include "entry/CamposSistema.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "entry/CreacionSistema.h"
#include "entry/EdificioSistemas.h"
#include "files/AccesoCampos.h"

namespace novex {
namespace {

using pruebas::EdificioD3;

const char* const kC = "Centralizada/Bloque";
const char* const kI = "Individual/Vivienda";

SistemaResidencial Nuevo(const Edificio& e, const char* tipo, const char* clase,
                         const char* tipologia) {
  return NuevoSistema(e, {tipo, clase, tipologia, "", "", "", "", "", {}}, nullptr);
}

std::set<std::string> Etiquetas(const Edificio& e, const SistemaResidencial& s) {
  std::set<std::string> etiquetas;
  for (const CampoMostrado& c : CamposMostrados(e, s, s.instalaciones[0]))
    EXPECT_TRUE(etiquetas.insert(std::string(c.etiqueta)).second) << c.etiqueta;
  return etiquetas;
}

std::set<std::string> Palabras(const std::string& texto) {
  std::istringstream flujo(texto);
  return {std::istream_iterator<std::string>(flujo), {}};
}

// Los que llevan todos los sistemas.
const std::string kComunes = "Nombre_sistema TipoInstalacionesG Seleccion ";
std::string Bomba(const std::string& x) {
  return "Caudal" + x + " DT" + x + " P" + x + " Rend" + x + " control" + x + " ";
}

struct Caso {
  const char *tipo, *clase, *tipologia;
  std::string campos;
};

class PorClase : public testing::TestWithParam<Caso> {};

TEST_P(PorClase, LosSuyosYNingunoMas) {
  const auto edificio = EdificioD3(0, 100, 112);
  const auto& [tipo, clase, tipologia, campos] = GetParam();
  EXPECT_EQ(Etiquetas(*edificio, Nuevo(*edificio, tipo, clase, tipologia)),
            Palabras(kComunes + campos));
}

INSTANTIATE_TEST_SUITE_P(
    CamposMostrados, PorClase,
    testing::Values(
        Caso{"Calefaccion", "1 Caldera", kI,
             "TipoGenerador1 QcalorCaldera1 RendCalor1 CombCalor1 NEquipos Distribucion Emisor "
             "NEmisores CaudalVent SaltoPVent rendVent TimpCalor saltoGenerador saltoZona "
             "Sup_Calefaccion " +
                 Bomba("SBZ") + Bomba("GEN1")},
        Caso{"Calefaccion", "Radiadores eléctricos", kI,
             "RadiadorElectrico NEquipos Emisor Sup_Calefaccion"},
        Caso{"Calefaccion", "Rend. estacional", kI, "RendCalorEst CombEst Emisor Sup_Calefaccion"},
        Caso{"Refrigeracion", "Equipo de Ventana", kI,
             "QFrioTot1 QFrioSen1 WeFrio1 NEquipos Emisor Sup_Refrigeracion"},
        Caso{"Calefaccion+Refrigeracion", "Equipo Split", kI,
             "QcalorBC1 WeCalor1 QFrioTot1 QFrioSen1 WeFrio1 Distanciaext_int "
             "Perdida_m_tub_ext_int NEquipos Emisor Sup_Calefaccion Sup_Refrigeracion"},
        // Sin parte sensible propia, y con el consumo de sus unidades interiores.
        Caso{"Refrigeracion", "Caudal refrigerante variable", kI,
             "QFrioTot1 WeFrio1 Distanciaext_int Perdida_m_tub_ext_int NEquipos Emisor "
             "ConsumoEmisor Sup_Refrigeracion"},
        Caso{"Refrigeracion", "Enfriadora agua cond.aire", kC,
             "TipoBC1 QFrioTot1 WeFrio1 NEquipos Distribucion Emisor NEmisores CaudalVent "
             "SaltoPVent rendVent TimpFrio saltoGenerador saltoZona Sup_Refrigeracion " +
                 Bomba("SBZ") + Bomba("GEN1")},
        Caso{"ACS", "1 Calentador", kI,
             "TipoGenerador1 QcalorCaldera1 RendCalor1 CombCalor1 NEquipos Distribucion2 "
             "Alimentacion Retorno TimpACS Sup_ACS"},
        Caso{"ACS", "1 BC aire-agua dedicada", kI,
             "SCOP NEquipos Alimentacion Retorno TimpACS Sup_ACS"},
        Caso{"ACS", "1 Termo electrico", kI,
             "QApoyoEquipo NEquipos Alimentacion4 Volumen UA_deposito LD_deposito Retorno TimpACS "
             "TaltaD TbajaD Sup_ACS"},
        Caso{"ACS", "1 BC aire-agua", kC,
             "TipoBC1 QcalorBC1 WeCalor1 QApoyoTermo NEquipos Distribucion Alimentacion4 Volumen "
             "UA_deposito LD_deposito EfiIntercamb Retorno TimpACS TaltaD TbajaD saltoGenerador "
             "Sup_ACS " +
                 Bomba("GEN1") + Bomba("DEP")},
        // El depósito de este conjunto no lleva resistencia.
        Caso{"ACS", "1 BC aire-agua + 1 Caldera", kC,
             "TipoBC1 QcalorBC1 WeCalor1 TipoGenerador2 QcalorCaldera2 RendCalor2 CombCalor2 "
             "EControlTe NEquipos Distribucion Alimentacion4 Volumen UA_deposito LD_deposito "
             "EfiIntercamb Retorno TimpACS TaltaD TbajaD saltoGenerador Sup_ACS " +
                 Bomba("GEN1") + Bomba("GEN2") + Bomba("DEP")},
        Caso{"ACS+Calefaccion", "1 Caldera Mixta", kI,
             "TipoGenerador1 QcalorCaldera1 RendCalor1 CombCalor1 NEquipos Alimentacion Emisor "
             "NEmisores CaudalVent SaltoPVent rendVent Retorno TimpCalor TimpACS saltoGenerador "
             "saltoZona Sup_ACS Sup_Calefaccion " +
                 Bomba("SBZ") + Bomba("GEN1")},
        Caso{"ACS+Calefaccion", "1 Caldera", kI,
             "TipoGenerador1 QcalorCaldera1 RendCalor1 CombCalor1 NEquipos Distribucion "
             "Alimentacion Volumen UA_deposito LD_deposito EfiIntercamb Emisor NEmisores "
             "CaudalVent SaltoPVent rendVent Retorno TimpCalor TimpACS TaltaD TbajaD "
             "saltoGenerador saltoZona Sup_ACS Sup_Calefaccion " +
                 Bomba("SBZ") + Bomba("GEN1") + Bomba("DEP") + Bomba("INT")}));

// Una elección añade y quita campos.
TEST(CamposMostrados, LosCambianLasElecciones) {
  const auto e = EdificioD3(1, 100, 112);
  SistemaResidencial s = Nuevo(*e, "ACS", "1 Caldera", kI);
  Instalaciones& b = s.instalaciones[0];
  // El agua caliente individual de un bloque es de un tipo de vivienda, también sin depósito: se
  // cuenta si hay tantos equipos como viviendas de cada uno.
  EXPECT_TRUE(Etiquetas(*e, s).contains("Nradiadores"));
  EXPECT_TRUE(Etiquetas(*e, Nuevo(*e, "ACS", "1 Calentador", kI)).contains("Nradiadores"));
  EXPECT_FALSE(Etiquetas(*e, Nuevo(*e, "ACS", "1 Caldera", kC)).contains("Nradiadores"));
  EXPECT_FALSE(Etiquetas(*e, Nuevo(*e, "Calefaccion", "1 Caldera", kI)).contains("Nradiadores"));
  b.TipoGenerador1 = "Biomasa";
  EXPECT_TRUE(Etiquetas(*e, s).contains("CombCalorBio1"));
  EXPECT_FALSE(Etiquetas(*e, s).contains("CombCalor1"));
  b.Retorno = "Con retorno";
  for (const char* campo : {"Long_tuberias", "Pot_perdida_m_tub", "NHretorno", "CaudalRET"})
    EXPECT_TRUE(Etiquetas(*e, s).contains(campo)) << campo;
  b.Distribucion = "Interacumu+lado_solar";
  b.Alimentacion2 = "Recirculado solar";
  EXPECT_TRUE(Etiquetas(*e, s).contains("AintermbD2"));
  EXPECT_FALSE(Etiquetas(*e, s).contains("AintermbD"));
  EXPECT_FALSE(Etiquetas(*e, s).contains("CaudalDEP"));
  b.Alimentacion2 = "Recirculado solar interacumuladorS";
  EXPECT_TRUE(Etiquetas(*e, s).contains("AintermbD"));
  // Sin depósito no hay retorno, ni consignas.
  b.Distribucion = "Directo";
  for (const char* campo : {"Volumen", "TaltaD", "Retorno", "Long_tuberias", "CaudalRET"})
    EXPECT_FALSE(Etiquetas(*e, s).contains(campo)) << campo;

  SistemaResidencial frio = Nuevo(*e, "Refrigeracion", "1 BC aire-agua", kI);
  EXPECT_FALSE(Etiquetas(*e, frio).contains("Distanciaext_int"));
  frio.instalaciones[0].TipoBC1 = "Partida";
  frio.instalaciones[0].Distribucion = "Directo";
  frio.instalaciones[0].Emisor = "Suelo radiante";
  EXPECT_TRUE(Etiquetas(*e, frio).contains("Distanciaext_int"));
  EXPECT_FALSE(Etiquetas(*e, frio).contains("CaudalSBZ"));
  EXPECT_FALSE(Etiquetas(*e, frio).contains("CaudalVent"));
  SistemaResidencial multi = Nuevo(*e, "Refrigeracion", "Equipo MultiSplit", kI);
  EXPECT_FALSE(Etiquetas(*e, multi).contains("CaudalVent"));
  multi.instalaciones[0].ConsumoEmisor = "Añadir consumo ventilador interior";
  EXPECT_TRUE(Etiquetas(*e, multi).contains("CaudalVent"));
}

TEST(CamposMostrados, TodosSonCamposDelFichero) {
  const auto e = EdificioD3(1, 100, 112);
  for (const ServicioSistema& servicio : kServiciosSistema)
    for (const std::string tipologia : {kC, kI})
      for (const std::string_view clase : ClasesOfrecidas(servicio.tipoSistema, tipologia)) {
        const SistemaResidencial s = Nuevo(*e, std::string(servicio.tipoSistema).c_str(),
                                           std::string(clase).c_str(), tipologia.c_str());
        for (const CampoMostrado& c : CamposMostrados(*e, s, s.instalaciones[0])) {
          EXPECT_TRUE(BuscarDatosCampo("Tipo_sistema[1]/" + std::string(c.etiqueta))) << c.etiqueta;
          EXPECT_TRUE(c.rotulos.empty() || c.rotulos.size() == c.valores.size());
        }
        EXPECT_FALSE(ArregloSinDefinir(s, s.instalaciones[0]) &&
                     clase != "1 Interacumulador electrico")
            << servicio.tipoSistema << " " << clase;
      }
}

TEST(ArregloSolar, DependeDeLaAlimentacion) {
  const auto e = EdificioD3(0, 100, 112);
  EXPECT_FALSE(HayArregloSolar(*e));
  e->AnadirSistema(Nuevo(*e, "ACS", "1 Termo electrico", kI));
  EXPECT_FALSE(HayArregloSolar(*e));
  Instalaciones& b = e->GetSistema(0).instalaciones[0];
  b.Alimentacion4 = "Recirculado solar interacumulador";
  EXPECT_TRUE(HayArregloSolar(*e));
  b.Alimentacion4 = "Recirculado solar";
  EXPECT_TRUE(ArregloSinDefinir(e->GetSistema(0), b));
  EXPECT_FALSE(HayArregloSolar(*e));
}

}  // namespace
}  // namespace novex
