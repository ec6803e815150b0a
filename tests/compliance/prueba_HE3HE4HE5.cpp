#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "compliance/RequisitoHE3.h"
#include "compliance/RequisitoHE4.h"
#include "compliance/RequisitoHE5.h"
#include "rating/EdificioPrueba.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

using testing::ElementsAre;

DatosGenerales Oficina(float lux, float potencia, float VEII, float VEIIMax) {
  DatosGenerales g;
  g.PerfilUso = 3;
  g.Lux = lux;
  g.Iluminacion = potencia;
  g.VEII = VEII;
  g.VEIIMax = VEIIMax;
  return g;
}

TEST(HE3, EnResidencialNoSeComprueba) {
  DatosGenerales g = Oficina(500, 90, 9, 3);
  g.PerfilUso = 2;
  const RequisitoHE3 r = ComprobarHE3(g);
  EXPECT_TRUE(r.pasa);
  EXPECT_THAT(r.lineas,
              ElementsAre("No es de aplicación en edificios residenciales en las viviendas",
                          "No se compruebra en las zonas comunes del edificio"));
  ASSERT_EQ(r.veredictos.size(), 1U);
  EXPECT_FALSE(r.veredictos[0].aplica);
  EXPECT_TRUE(r.veredictos[0].pasa);
}

TEST(HE3, EnElLimiteCumpleYCadaUnoPorSuLado) {
  const RequisitoHE3 r = ComprobarHE3(Oficina(500, 10, 3, 3));
  EXPECT_TRUE(r.pasa);
  EXPECT_THAT(
      r.lineas,
      ElementsAre("Los lux de la instalación de iluminación son 500.00",
                  "Como la iluminación media en plano horizontal es menor o igual a 600 lux la "
                  "potencia máxima son 10,00 W/m2 ",
                  "La potencia en iluminación de la instalación es = 10.00 W/m2", "Cumple",
                  "El VEIIlím es 3.00", "El VEII de la instalación es = 3.00", "Cumple"));
  struct Caso {
    float lux, potencia, VEII;
    const char *dePotencia, *deVEII;
    double maxima;
  };
  const Caso casos[] = {{599, 10.01F, 3, "No cumple", "Cumple", 10},
                        {599, 10, 3.01F, "Cumple", "No cumple", 10},
                        {600, 25, 3, "Cumple", "Cumple", 25}};
  for (const Caso& c : casos) {
    const RequisitoHE3 h = ComprobarHE3(Oficina(c.lux, c.potencia, c.VEII, 3));
    EXPECT_EQ(h.lineas[3], c.dePotencia);
    EXPECT_EQ(h.lineas[6], c.deVEII);
    EXPECT_EQ(h.pasa, h.lineas[3] == h.lineas[6]);
    EXPECT_EQ(h.veredictos[0].limite, c.maxima);
  }
}

constexpr float kLitros = 1000;

// 100 m2 de cafetería: con 1 l por persona, el volumen de referencia es el número de personas.
class HE4 : public testing::Test {
 protected:
  HE4() {
    PonerVolumenes(kLitros, kLitros);
    auto& f = caso->resultados.factores;
    f[static_cast<std::size_t>(FilaFactor::ElectricidadPeninsular)].EPR = 0.4F;
    f[static_cast<std::size_t>(FilaFactor::Biomasa_Pellet)].EPR = 1.5F;
    f[static_cast<std::size_t>(FilaFactor::Biomasa_Otros)].EPR = 1.25F;
    f[static_cast<std::size_t>(FilaFactor::Energiasolartermica)].EPR = 1;
    // Demanda de 1500 kWh y pérdidas de 70.
    caso->meses.demanda[kACS][1] = 10;
    caso->meses.demanda[kACS][7] = 5;
    caso->meses.perdidaDeposito[1] = 50;
    caso->meses.perdidaRetorno[7] = 20;
    // Aportes de 300 + 75 + 75 + 400 + 50 = 900 kWh; la electricidad no cuenta.
    PonerAporte(VectorEnergetico::MedioAmbiente, 1, 300);
    PonerAporte(VectorEnergetico::Biomasa_Pellet, 1, 50);
    PonerAporte(VectorEnergetico::Biomasa_Otros, 1, 60);
    PonerAporte(VectorEnergetico::Energiasolartermica, 7, 410);
    PonerAporte(VectorEnergetico::Energiasolartermica, 12, -10);
    PonerAporte(VectorEnergetico::Energiasolarfotovoltaica, 7, 50);
    PonerAporte(VectorEnergetico::Electricidad, 1, 500);
  }
  void PonerVolumenes(float referencia, float proyecto) {
    pruebas::CambiarGenerales(*edificio, [&](DatosGenerales& g) {
      g.Actividad = "Cafeterías";
      g.Nm2_p = 100 / referencia;
      g.ConsumoAgua_litros_dia = proyecto;
    });
  }
  void PonerAporte(VectorEnergetico vector, std::size_t mes, float kWh) {
    caso->resultados.servicio[kACS].finalPorVector[Indice(vector)][mes] = kWh;
  }
  RequisitoHE4 Comprobar(bool exenta = false) const {
    return ComprobarHE4(*edificio, *caso, exenta);
  }

  std::unique_ptr<Edificio> edificio = pruebas::EdificioDe100(3, "NO");
  std::unique_ptr<calculo> caso = std::make_unique<calculo>();
};

double Valor(const Tabla& tabla, std::size_t fila, std::size_t columna) {
  return tabla.filas.at(fila).at(columna).numero.value();
}

TEST_F(HE4, LasRejillasSumanPorMesesYPorFilas) {
  const RequisitoHE4 r = Comprobar();
  const Tabla& d = r.SGHE4Demanda;
  ASSERT_EQ(d.cabeceras.size(), 14U);
  EXPECT_EQ(d.cabeceras[0], "Demanda kWh");
  EXPECT_EQ(Valor(d, 0, 1), 1000);
  EXPECT_EQ(Valor(d, 0, 13), 1500);
  // Las pérdidas ya son del edificio.
  EXPECT_EQ(Valor(d, 1, 1), 50);
  EXPECT_EQ(Valor(d, 3, 7), 520);
  EXPECT_EQ(Valor(d, 3, 13), 1570);
  const Tabla& a = r.SGRenovACS;
  EXPECT_EQ(Valor(a, 1, 12), -10);
  EXPECT_EQ(Valor(a, 3, 1), 150);
  EXPECT_EQ(Valor(a, 4, 1), 450);
  EXPECT_EQ(Valor(a, 4, 13), 900);
  // Con el mínimo justo cumple, y por debajo no.
  RequisitoHE4 justo = Comprobar();
  EXPECT_EQ(justo.LabelCUMPEHE4, "Cumple");
  EXPECT_EQ(justo.RERACSCUMPLE, "Si cumple");
  EXPECT_EQ(justo.RERACSNRBMIN, "60.00");
  // 898,5 de 1500.
  PonerAporte(VectorEnergetico::MedioAmbiente, 1, 298.5F);
  justo = Comprobar();
  EXPECT_NEAR(justo.f, 59.9, 1e-9);
  EXPECT_EQ(justo.fEntera, 59);
  EXPECT_EQ(justo.LabelCUMPEHE4, "No cumple");
  EXPECT_EQ(justo.RERACSNRB, "59.90");
  EXPECT_EQ(justo.RERACSCUMPLE, "No cumple");
  EXPECT_FALSE(justo.veredicto.pasa);
  EXPECT_EQ(justo.veredicto.limite, 60);
  PonerAporte(VectorEnergetico::MedioAmbiente, 1, 3000);
  EXPECT_EQ(Comprobar().f, 100);
  // Con pérdidas y sin demanda tampoco hay división.
  caso->meses.demanda[kACS] = {};
  EXPECT_EQ(Comprobar().f, 0);
}

TEST_F(HE4, ElMinimoCambiaCon5000Litros) {
  PonerVolumenes(5000, kLitros);
  RequisitoHE4 r = Comprobar();
  EXPECT_EQ(r.minimo, 70);
  EXPECT_EQ(r.LabelCUMPEHE4, "No cumple");
  // Por debajo, también por el camino de las viviendas: 28 l × 1,5 personas × 170 × 0,7 son 4998.
  EXPECT_EQ(AporteRenovableMinimo(4999), 60);
  pruebas::CambiarGenerales(*edificio, [](DatosGenerales& g) { g.PerfilUso = 1; });
  Ventilacion v = edificio->GetVentilacion();
  v.tipologias = {{{170, 1, 0, 1}, {}, {}, {}, {}, {}}};
  edificio->SetVentilacion(v);
  r = Comprobar();
  EXPECT_EQ(r.minimo, 60);
  EXPECT_EQ(r.campos[0].valor.texto, "255.00");
  // La demanda es la del volumen de referencia, con el agua de red a 0 °C: 4998·4,184·60·365/3600;
  // el consumo, el del proyecto.
  EXPECT_EQ(r.campos[3].valor.texto, "127212.43");
  EXPECT_EQ(r.campos[4].valor.texto, "1000.00");
}

TEST_F(HE4, NoSeExigeConPocaAguaNiEnUnaIntervencionExenta) {
  PonerAporte(VectorEnergetico::MedioAmbiente, 1, 0);
  EXPECT_EQ(Comprobar().LabelCUMPEHE4, "No cumple");
  const auto noAplica = [](const RequisitoHE4& r) {
    return r.LabelCUMPEHE4 == "No aplicable" && r.RERACSCUMPLE == "No aplicable" &&
           r.RERACSNRBMIN.empty() && !r.veredicto.aplica && r.veredicto.pasa &&
           !r.veredicto.nota.empty() && !r.veredicto.limite;
  };
  EXPECT_TRUE(noAplica(Comprobar(true)));
  PonerVolumenes(99, kLitros);
  EXPECT_TRUE(noAplica(Comprobar()));
  PonerVolumenes(kLitros, 99);
  EXPECT_TRUE(noAplica(Comprobar()));
  PonerVolumenes(kLitros, 100);
  EXPECT_TRUE(Comprobar().aplica);
}

TEST(DemandaAnualACS, PesaLosDiasDeCadaMes) {
  TablaMensual red{};
  red.fill(10);
  // 100 l × 4,184 × 50 K × 365 días / 3600.
  EXPECT_NEAR(DemandaAnualACS(100, red), 2121.056, 1e-3);
  red[2] = 60;
  EXPECT_NEAR(DemandaAnualACS(100, red), 2121.056 * 337 / 365, 1e-3);
}

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
  // Si los captadores ocupan la cubierta pasa cualquiera.
  const RequisitoHE5 ocupada = ComprobarHE5(Edificacion(3000, 200, 150, 0));
  EXPECT_EQ(ocupada.P2, 0);
  EXPECT_TRUE(ocupada.pasa);
  EXPECT_EQ(ocupada.veredicto.limite, 0);
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
