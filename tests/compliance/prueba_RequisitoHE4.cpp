#include "compliance/RequisitoHE4.h"

#include <gtest/gtest.h>

#include "rating/EdificioPrueba.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

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
}

TEST_F(HE4, ConElMinimoJustoCumpleYPorDebajoNo) {
  RequisitoHE4 r = Comprobar();
  EXPECT_EQ(r.LabelCUMPEHE4, "Cumple");
  EXPECT_EQ(r.RERACSCUMPLE, "Si cumple");
  EXPECT_EQ(r.RERACSNRBMIN, "60.00");
  // 898,5 de 1500.
  PonerAporte(VectorEnergetico::MedioAmbiente, 1, 298.5F);
  r = Comprobar();
  EXPECT_NEAR(r.f, 59.9, 1e-9);
  EXPECT_EQ(r.fEntera, 59);
  EXPECT_EQ(r.LabelCUMPEHE4, "No cumple");
  EXPECT_EQ(r.RERACSNRB, "59.90");
  EXPECT_EQ(r.RERACSCUMPLE, "No cumple");
  EXPECT_FALSE(r.veredicto.pasa);
  EXPECT_EQ(r.veredicto.limite, 60);
}

TEST_F(HE4, LaContribucionLlegaA100YEsCeroSinDemanda) {
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
  EXPECT_EQ(r.campos[4].valor.texto, "4998.00");
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

}  // namespace
}  // namespace novex
