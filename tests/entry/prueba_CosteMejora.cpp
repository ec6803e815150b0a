#include "entry/CosteMejora.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

TEST(CosteMejora, ListasYSinElegir) {
  Edificio e;
  const auto textos = [&](int coste, int plazo) {
    PonerCosteMejora(e, coste);
    PonerPlazoMejora(e, plazo);
    return std::string(TextoCosteEstimado(e.GetDatosGenerales())) + "|" +
           std::string(TextoPlazoRecuperacion(e.GetDatosGenerales()));
  };
  EXPECT_EQ(textos(6, 0), ">100000|<5");
  EXPECT_EQ(textos(-1, 4), "|");
}

TEST(CifrasEstudio, SeCompruebanYSeBorranAlDesmarcar) {
  EstudioModificaciones estudio;
  MedidaEstudio conNotas;
  conNotas.codigo = 61;
  conNotas.marca = true;
  conNotas.precio = "900";
  conNotas.notas = {"Ojo"};
  estudio.medidas = {conNotas};
  RegistroMensajes m;
  const auto guardar = [&](const CifrasTecleadas& c) {
    GuardarCifrasEstudio(estudio, std::array{c}, m);
  };
  guardar({3, true, "1250,5", "7"});
  EXPECT_EQ(CifrasDeMedida(estudio, 3).PrecioMejora, 1250.5F);
  EXPECT_EQ(CifrasDeMedida(estudio, 3).AmortMejora, 7.0F);
  EXPECT_EQ(CifrasDeMedida(estudio, 61).PrecioMejora, 900.0F);
  guardar({9, true, "", "0"});
  guardar({5, false, "300", "2"});
  EXPECT_TRUE(m.recibidos.empty());
  ASSERT_EQ(estudio.medidas.size(), 3U);
  EXPECT_EQ(estudio.medidas[0].codigo, 3);
  EXPECT_EQ(estudio.medidas[1].codigo, 9);
  EXPECT_EQ(estudio.medidas[1].precio, "0");
  guardar({3, true, "mucho", "1e999"});
  EXPECT_EQ(CifrasDeMedida(estudio, 3).PrecioMejora, 0.0F);
  EXPECT_EQ(estudio.medidas[0].amortizacion, "0");
  EXPECT_EQ(m.recibidos.size(), 2U);
  // Sin marca se borran las cifras; solo queda la medida que tiene notas.
  for (const int codigo : {3, 9, 61}) guardar({codigo, false, "300", "2"});
  ASSERT_EQ(estudio.medidas.size(), 1U);
  EXPECT_EQ(estudio.medidas[0].notas, conNotas.notas);
  EXPECT_EQ(CifrasDeMedida(estudio, 61).PrecioMejora, 0.0F);
  EXPECT_FALSE(estudio.medidas[0].marca);
}

}  // namespace
}  // namespace novex
