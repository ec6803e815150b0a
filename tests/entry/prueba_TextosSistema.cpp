#include "entry/TextosSistema.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "entry/EdificioSistemas.h"
#include "entry/Glicol.h"

namespace novex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const char* const kC = "Centralizada/Bloque";
const char* const kI = "Individual/Vivienda";

TEST(EtiquetaInstalacion, PorUsoYTipologia) {
  struct Caso {
    int perfilUso;
    const char *tipologia, *texto;
  };
  const Caso casos[] = {
      {0, kI, "Individual: Datos de la instalación de la vivienda"},
      {1, kI, "Individual: Datos de la instalaciones que existen en todo el bloque"},
      {2, kI, "Individual: Datos de la instalación de la vivienda"},
      {3, kI, "Individual: Datos de las instalaciones que existen en todo el edificio terciario"},
      {1, kC, "Centralizada: Datos de la instalación de todo el bloque"},
      {2, kC,
       "Centralizada: Datos de la instalación de todo el bloque (le corresponde en consumo 1/12)"},
      {7, kC, "Centralizada: Datos de la instalación de todo el edificio terciario"}};
  DatosGenerales g;
  g.NVBloqueF = 12;
  for (const Caso& caso : casos) {
    g.PerfilUso = caso.perfilUso;
    EXPECT_EQ(EtiquetaInstalacion(g, caso.tipologia), caso.texto);
  }
}

TEST(EtiquetaSistema, ServicioClaseYEmisor) {
  SistemaResidencial s = pruebas::Sistema("ACS+Calefaccion", "1 BC aire-agua", kI);
  s.instalaciones[0].Emisor = "Conductos + Sist.Vent.";
  EXPECT_EQ(EtiquetaSistema(s), "ACS + Calefacción: 1 BC aire-agua (Conductos+Sist.Vent.)");
  s.Tipo_sistema = "ACS";
  EXPECT_EQ(EtiquetaClase(s), "1 BC aire-agua");
  s.instalaciones.clear();
  s.Nombre_sistema = "Vacío";
  EXPECT_EQ(EtiquetaClase(s), "Vacío");
}

// 12 y 36 kW de calefacción, y agua caliente para 50 de los 100 m2.
TEST(Reparto, LoQueLeTocaACadaSistemaYLoQueNoSirveNinguno) {
  auto edificio = pruebas::EdificioD3(3, 100, 112);
  SistemaResidencial s = pruebas::Sistema("ACS+Calefaccion", "1 Caldera", kI);
  s.instalaciones[0].QcalorCaldera1 = 12;
  s.instalaciones[0].NEquipos = 1;
  s.Sup_ACS = 50;
  edificio->AnadirSistema(s);
  s.Tipo_sistema = "Calefaccion";
  s.instalaciones[0].NEquipos = 3;
  edificio->AnadirSistema(s);
  EXPECT_EQ(TextoReparto(*edificio, 0), "Reparto: calefacción 25 % · ACS 50 %");
  EXPECT_EQ(TextoReparto(*edificio, 1), "Reparto: calefacción 75 %");
  EXPECT_EQ(TextoSinSistema(*edificio), "Sin sistema: refrigeración 100 % · ACS 50 %");
  SistemaResidencial aire = pruebas::Sistema("Calefaccion+Refrigeracion", "Rooftop", kI);
  aire.instalaciones[0].QFrioTot1 = aire.instalaciones[0].QcalorBC1 = 5;
  aire.instalaciones[0].NEquipos = 1;
  edificio->AnadirSistema(aire);
  EXPECT_EQ(TextoReparto(*edificio, 2),
            "Reparto del aire de ventilación: calefacción 100 % · refrigeración 100 %");
  edificio->GetSistema(0).Sup_ACS = 100;
  EXPECT_EQ(TextoSinSistema(*edificio), "");
}

TEST(NotasSistema, LasQueTocan) {
  auto edificio = pruebas::EdificioD3(0, 100, 112);
  SistemaResidencial s = pruebas::Sistema("Calefaccion", "1 Caldera", kI);
  EXPECT_THAT(NotasSistema(*edificio, s), IsEmpty());
  s.instalaciones[0].Emisor = "Suelo radiante + Sist.Vent.";
  DatosGenerales g = edificio->GetDatosGenerales();
  g.Recuperador = "SensibleConBypass";
  edificio->SetDatosGenerales(g);
  EXPECT_THAT(NotasSistema(*edificio, s),
              ElementsAre(HasSubstr("suelo radiante"), HasSubstr("1253/2014"),
                          HasSubstr("1100+(EFIt-0,73)*3000-300*q/2"), HasSubstr("coherente")));
}

// Con 10 %: cp −12,12 − 32,532 + 4177,1; densidad −0,2 + 6 + 983,9; congelación −0,93 − 1,414 −
// 0,2857. Con 40 %: −193,92 − 130,128 + 4177,1; −3,2 + 24 + 983,9; −14,88 − 5,656 − 0,2857.
TEST(FluidoDePosicion, AguaYGlicol) {
  const FluidoSolar agua = FluidoDePosicion(0).value();
  EXPECT_EQ(agua.textoCp, "4184");
  EXPECT_EQ(agua.textoDensidad, "984");
  EXPECT_EQ(agua.texto, "Si");
  EXPECT_FALSE(agua.congelacion);
  const FluidoSolar diez = FluidoDePosicion(1).value();
  EXPECT_NEAR(diez.cp, 4132.448, 1e-9);
  EXPECT_NEAR(diez.densidad, 989.7, 1e-9);
  EXPECT_NEAR(diez.congelacion.value(), -2.6297, 1e-9);
  for (const int posicion : {4, 5}) {
    const FluidoSolar cuarenta = FluidoDePosicion(posicion).value();
    EXPECT_EQ(cuarenta.glicol, 40);
    EXPECT_NEAR(cuarenta.cp, 3853.052, 1e-9);
    EXPECT_NEAR(cuarenta.densidad, 1004.7, 1e-9);
    EXPECT_NEAR(cuarenta.congelacion.value(), -20.8217, 1e-9);
  }
  EXPECT_EQ(FluidoDePosicion(3).value().glicol, 30);
  EXPECT_FALSE(FluidoDePosicion(-1) || FluidoDePosicion(kPosicionesGlicol));
}

}  // namespace
}  // namespace novex
