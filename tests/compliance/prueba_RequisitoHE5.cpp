#include "compliance/RequisitoHE5.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace novex {
namespace {

using testing::ElementsAre;

constexpr const char* kFuera = "No es de aplicación en este caso.  Cumple";
constexpr const char* kFraseMenor =
    "No es de aplicacion por ser la superficie util construida + aparcamientos menor de 1000 m2. "
    "Cumple";

DatosGenerales Edificacion(float S, float Sc, float Soc, float kW) {
  DatosGenerales g;
  g.PerfilUso = 1;
  g.Modo_trabajo = "Nuevo";
  g.SuperficieTotalHE5 = S;
  g.SuperficieCubiertaHE5 = Sc;
  g.SuperficieCaptadorestermHE5 = Soc;
  g.PotPico_FV = {kW, 0, 0};
  return g;
}

TEST(HE5, SeAplicaSegunLaIntervencion) {
  DatosGenerales g = Edificacion(2000, 1000, 0, 0);
  EXPECT_FALSE(ComprobarHE5(g).pasa);
  g.Modo_trabajo = "Existente";
  g.Reforma = "Ampliación";
  const RequisitoHE5 r = ComprobarHE5(g);
  EXPECT_TRUE(r.pasa);
  EXPECT_THAT(r.lineas, ElementsAre(kFuera));
  EXPECT_EQ(r.H5FRASE, kFuera);
  g.Reforma = "Cambio de uso ";
  EXPECT_TRUE(ComprobarHE5(g).aplica);
  g.Reforma = "Ampliación";
  g.RehabIntegralHE5 = "Si";
  EXPECT_TRUE(ComprobarHE5(g).aplica);
}

TEST(HE5, LaPantallaObligaDesde1000YElDocumentoPorEncima) {
  const RequisitoHE5 menor = ComprobarHE5(Edificacion(999.99F, 1000, 0, 0));
  EXPECT_TRUE(menor.pasa);
  EXPECT_THAT(menor.lineas, ElementsAre("No es obligatoria la instalación fotovoltáica por ser la "
                                        "superficie menor de 1000 m2",
                                        "No es de aplicación"));
  EXPECT_EQ(menor.H5FRASE, kFraseMenor);
  EXPECT_FALSE(menor.veredicto.aplica);
  const RequisitoHE5 justa = ComprobarHE5(Edificacion(1000, 1000, 0, 0));
  EXPECT_FALSE(justa.pasa);
  EXPECT_EQ(justa.H5FRASE, kFraseMenor);
  EXPECT_TRUE(justa.veredicto.aplica);
  EXPECT_EQ(ComprobarHE5(Edificacion(1000.1F, 1000, 0, 0)).H5FRASE,
            "Pot.fotovoltaica requerida = 5.00 kW  Pot.fotovoltaica instalada = 0.00 kW. No "
            "Cumple");
}

TEST(HE5, ConLaPotenciaJustaCumple) {
  // P1 = 0,005 × 1222 = 6,11; P2 = 0,1 × (500 − 100) = 40. La instalada, en tres campos.
  DatosGenerales g = Edificacion(1222, 1000, 100, 0);
  g.PotPico_FV = {2.03F, 2.04F, 2.04F};
  const RequisitoHE5 r = ComprobarHE5(g);
  EXPECT_TRUE(r.pasa);
  EXPECT_THAT(r.lineas,
              ElementsAre("Es obligatoria la instalación fotovoltáica por ser la superficie mayor "
                          "o igual a 1000 m2",
                          "La potencia en función de la superficie total sería 6.11 kW",
                          "La potencia en función de la superficie cubierta y la ocupada por "
                          "captadoress térmicos sería 40.00 kW",
                          "La potencia fotovoltaica instalada son 6.11 kW", "Cumple"));
  EXPECT_EQ(r.H5FRASE,
            "Pot.fotovoltaica requerida = 6.11 kW  Pot.fotovoltaica instalada = 6.11 kW. Cumple");
  g.PotPico_FV[0] = 2.02F;
  EXPECT_EQ(ComprobarHE5(g).lineas.back(), "No Cumple");
  // En terciario se pide el doble.
  g.PotPico_FV[0] = 2.03F;
  g.PerfilUso = 3;
  EXPECT_NEAR(ComprobarHE5(g).P1, 12.22, 1e-9);
  EXPECT_FALSE(ComprobarHE5(g).pasa);
}

TEST(HE5, SiLosCaptadoresOcupanLaCubiertaPasaCualquiera) {
  const RequisitoHE5 r = ComprobarHE5(Edificacion(3000, 200, 150, 0));
  EXPECT_EQ(r.P2, 0);
  EXPECT_TRUE(r.pasa);
  EXPECT_EQ(r.veredicto.limite, 0);
}

TEST(HE5, LosDatosTecleadosSeCompruebanYSeGuardan) {
  Edificio edificio;
  RegistroMensajes mensajes;
  PonerSuperficieCubiertaHE5(edificio, "500,5", mensajes);
  PonerSuperficieCaptadorestermHE5(edificio, "20", mensajes);
  EXPECT_NEAR(PonerSuperficieTotalHE5(edificio, "1500", mensajes).P2, 23.025, 1e-9);
  EXPECT_TRUE(mensajes.recibidos.empty());
  PonerSuperficieTotalHE5(edificio, "900001", mensajes);
  EXPECT_EQ(edificio.GetDatosGenerales().SuperficieTotalHE5, 0);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_TRUE(PonerRehabIntegralHE5(edificio, true).aplica);
  EXPECT_EQ(edificio.GetDatosGenerales().RehabIntegralHE5, "Si");
  PonerRehabIntegralHE5(edificio, false);
  EXPECT_EQ(edificio.GetDatosGenerales().RehabIntegralHE5, "No");
}

}  // namespace
}  // namespace novex
