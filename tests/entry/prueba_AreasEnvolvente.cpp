#include "entry/AreasEnvolvente.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace novex {
namespace {

TEST(AreasEnvolvente, ElTotalRecortaSuParteYAvisa) {
  Recinto r;
  RegistroMensajes m;
  const CasillaArea muro{ElementoConParte::Muro, 4, sur_este};
  PonerAreaTotal(r, muro, "12,5", m);
  PonerAreaParte(r, muro, "5", m);
  PonerAreaTotal(r, muro, "5", m);  // igual que su parte: vale
  EXPECT_TRUE(m.recibidos.empty());
  PonerAreaTotal(r, muro, "0", m);
  EXPECT_EQ(r.Muro_ext_m2[4][sur_este], 0.0F);
  EXPECT_EQ(r.Muro_ext_Var_m2[4][sur_este], 0.0F);
  ASSERT_EQ(m.recibidos.size(), 2U);
  EXPECT_EQ(m.recibidos[0].texto,
            "El area total es inferior al area fuera del 1º plano de fachada");
  EXPECT_EQ(m.recibidos[1].texto, "Atención. Se pone como area 1º plano la nueva area total");
  EXPECT_THROW(PonerAreaTotal(r, {ElementoConParte::Muro, 5, sur}, "1", m), std::out_of_range);
}

TEST(AreasEnvolvente, LasCubiertasTienenAreaAlSol) {
  Recinto r;
  RegistroMensajes m;
  const CasillaArea horizontal{ElementoConParte::CubiertaHorizontal, 2, norte};
  const CasillaArea inclinada{ElementoConParte::CubiertaInclinada, 1, norte};
  for (const CasillaArea& casilla : {horizontal, inclinada}) {
    PonerAreaTotal(r, casilla, "80", m);
    PonerAreaParte(r, casilla, "30", m);
    EXPECT_EQ(AreaRestante(r, casilla), 50.0F);
    m.recibidos.clear();
    PonerAreaTotal(r, casilla, "20", m);
    ASSERT_EQ(m.recibidos.size(), 2U);
    EXPECT_EQ(m.recibidos[0].texto, "El area total es inferior al area a la sombra");
    EXPECT_EQ(m.recibidos[1].texto, "Atención. Se pone como area a la sombra la area total");
    EXPECT_EQ(AreaRestante(r, casilla), 0.0F);
  }
  EXPECT_EQ(r.Cubierta_horiz_sombra_m2[2], 20.0F);
  EXPECT_EQ(r.Cubierta_incl_Sombra_m2[1][norte], 20.0F);
  PonerAreaParte(r, horizontal, "25", m);
  EXPECT_EQ(AreaRestante(r, horizontal), 0.0F);
}

TEST(AreasEnvolvente, MuroNorteSinParteYValorFueraDeLimites) {
  Recinto r;
  RegistroMensajes m;
  const CasillaArea muro{ElementoConParte::Muro, 0, norte};
  PonerAreaTotal(r, muro, "20", m);
  PonerAreaParte(r, muro, "50", m);
  EXPECT_EQ(AreaRestante(r, muro), 20.0F);
  EXPECT_TRUE(m.recibidos.empty());
  PonerAreaTotal(r, muro, "900001", m);
  EXPECT_EQ(r.Muro_ext_m2[0][norte], 0.0F);
  EXPECT_EQ(m.recibidos.size(), 1U);
}

}  // namespace
}  // namespace novex
