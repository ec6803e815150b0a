#include "gui/ResultadosPrueba.h"
#include "outputs/ExportacionTablas.h"

namespace novex::gui::pruebas {
namespace {

using PaginaReferenciaTest = ResultadosTest;

TEST_F(PaginaReferenciaTest, EstaSoloEnTerciarioYSeGuarda) {
  Entrar("vivienda_unifamiliar_D3.xml", "Calificación");
  EXPECT_FALSE(HayPestana("Objeto_Referencia"));
  Entrar("hotel_24h_A3.xml", "Objeto_Referencia");
  EXPECT_TRUE(HayPestana("Objeto_Referencia"));
  for (const auto unidades : {UnidadesReferencia::Totales, UnidadesReferencia::PorM2}) {
    Marcar("RGUnidades", static_cast<std::size_t>(unidades));
    ASSERT_EQ(TablasVistas().size(), 1U);
    EsTabla(*TablasVistas()[0], TablaObjetoReferencia(Caso(), unidades).value());
    EXPECT_EQ(Guardar("SpeedButton2"), ExportarObjetoReferencia(Caso(), unidades));
  }
}

}  // namespace
}  // namespace novex::gui::pruebas
