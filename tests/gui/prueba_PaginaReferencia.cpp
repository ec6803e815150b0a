#include "gui/ResultadosPrueba.h"
#include "outputs/ExportacionTablas.h"
#include "outputs/ReglasResultados.h"

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
    Tabla tabla = TablaObjetoReferencia(Caso(), unidades).value();
    const std::string horas = TextoHorasFuera(Caso()).texto;
    ASSERT_EQ(std::erase(tabla.notas, horas), 1U);
    EsTabla(*TablasVistas()[0], tabla);
    EXPECT_EQ(S(Buscar<QLabel>("horasFueraReferencia")->text()), horas);
    EXPECT_EQ(Guardar("SpeedButton2"), ExportarObjetoReferencia(Caso(), unidades));
  }
  auto& r = sesion.GestorParaCalcular().Activo().GetCalculo()->resultados;
  r.horasFueraCalefaccion = r.horasOcupacion;
  ventana->Mostrar(Destino::Certificacion);
  EXPECT_EQ(Buscar<QLabel>("horasFueraReferencia")->property("papel"), "aviso");
}

}  // namespace
}  // namespace novex::gui::pruebas
