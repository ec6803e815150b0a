#include "systems/Fotovoltaica.h"

#include <gtest/gtest.h>

#include <memory>

namespace novex {
namespace {

class Campos : public testing::Test {
 protected:
  Campos() {
    g.PerfilUso = 0;
    g.PSuciedad_FV = 6;
    g.PConversor_FV = 4;
    clima->CENITS[12] = 60;
    clima->IDIRECTA[12] = 800;
    clima->IDIFUSA[12] = 100;
    clima->TSE[12] = 20;
  }
  float Potencia(float extra = 0) const { return PotenciaFotovoltaica(g, *clima, extra, 12); }

  DatosGenerales g;
  std::unique_ptr<SeriesClima> clima = std::make_unique<SeriesClima>();
};

// 800 cos 60° + 100 = 500 W/m2; la célula pierde 0,4 (15 + 25 - 20) = 8 % y queda el 82 %.
TEST_F(Campos, UnaHoraAMano) {
  EXPECT_FALSE(HayFotovoltaica(g, 0));
  g.PotPico_FV[0] = 3;
  EXPECT_TRUE(HayFotovoltaica(g, 0));
  EXPECT_NEAR(Potencia(), 1.23, 1e-4);
  EXPECT_NEAR(Potencia(1), 1.64, 1e-4);
  clima->TSE[12] = -10;  // con frío, 0,4 (15 + 25 + 10) = 20 % y queda el 70 %
  EXPECT_NEAR(Potencia(), 3 * 0.5 * 0.7, 1e-4);
  clima->TSE[12] = 20;
  // Otro campo de 1 kW de cara al sol: 800 + 93,30 + 6,70 W/m2, y su célula pierde 12,8 %.
  g.PotPico_FV[2] = 1;
  g.Incli_FV[2] = 60;
  EXPECT_NEAR(Potencia(), 1.23 + 0.9 * 0.772, 1e-3);
}

TEST_F(Campos, LaMedidaPoneElPrimerCampo) {
  EXPECT_TRUE(HayFotovoltaica(g, 1));
  EXPECT_NEAR(Potencia(1), 0.41, 1e-4);
  EXPECT_EQ(Potencia(), 0.0F);
}

// Lo mismo a mediodía del 1 de enero y en la última hora de febrero, la 1416.
TEST_F(Campos, SeSumaPorMeses) {
  EXPECT_EQ(ProduccionFotovoltaica(g, *clima)[0], 0.0F);
  clima->CENITS[1416] = 60;
  clima->IDIRECTA[1416] = 800;
  clima->IDIFUSA[1416] = 100;
  clima->TSE[1416] = 20;
  g.PotPico_FV[0] = 3;
  const TablaMensual meses = ProduccionFotovoltaica(g, *clima);
  EXPECT_NEAR(meses[1], 1.23, 1e-4);
  EXPECT_NEAR(meses[2], 1.23, 1e-4);
  EXPECT_EQ(meses[3], 0.0F);
  EXPECT_NEAR(meses[0], 2.46, 1e-4);
}

TEST_F(Campos, AUnPisoLeTocaSuParte) {
  g.PotPico_FV[0] = 3;
  g.PerfilUso = 2;
  g.NVBloqueF = 4;
  EXPECT_NEAR(Potencia(), 1.23 / 4, 1e-4);
  g.PerfilUso = 1;
  EXPECT_NEAR(Potencia(), 1.23, 1e-4);
}

}  // namespace
}  // namespace novex
