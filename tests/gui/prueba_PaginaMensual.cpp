#include "gui/ResultadosPrueba.h"
#include "outputs/ExportacionTablas.h"
#include "shell/gui/VistaGrafico.h"

namespace novex::gui::pruebas {
namespace {

class PaginaMensualTest : public ResultadosTest {
 protected:
  void EsLaVista(const SeleccionMensual& seleccion) {
    const auto rejillas = RejillasVisibles(Caso(), seleccion);
    const auto vistas = TablasVistas();
    ASSERT_EQ(vistas.size(), rejillas.size());
    auto* dibujada = Buscar<QComboBox>("rejillaDibujada");
    ASSERT_EQ(dibujada->count(), static_cast<int>(rejillas.size()));
    for (std::size_t i = 0; i < rejillas.size(); ++i) {
      EsTabla(*vistas[i], rejillas[i].tabla);
      dibujada->setCurrentIndex(static_cast<int>(i));
      emit dibujada->activated(static_cast<int>(i));
      const Grafico esperado = GraficoMeses(rejillas[i].tabla);
      auto* grafico = dibujada->parentWidget()->findChild<VistaGrafico*>();
      EXPECT_EQ(grafico->isVisible(), !esperado.series.empty());
      ASSERT_EQ(grafico->Puesto().series.size(), esperado.series.size());
      for (std::size_t s = 0; s < esperado.series.size(); ++s)
        EXPECT_EQ(grafico->Puesto().series[s].valores, esperado.series[s].valores);
    }
  }
};

TEST_F(PaginaMensualTest, CadaVistaTieneSusRejillasYSuGrafico) {
  for (const char* ejemplo : {"caldera_condensacion_solar_D3.xml", "hotel_24h_A3.xml"}) {
    SCOPED_TRACE(ejemplo);
    Entrar(ejemplo, "Mensuales");
    ElegirEn("RGSeleccion", 0);
    for (std::size_t s = 0; s < kTextoServicioMes.size(); ++s)
      for (std::size_t u = 0; u < kUnidadesEnergia; ++u) {
        ElegirEn("RGServicioMes", s);
        ElegirEn("RGTipoResultado", u);
        EsLaVista({VistaMensual::PorServicio, static_cast<ServicioMes>(s),
                   static_cast<UnidadEnergia>(u)});
      }
    for (const auto vista : {VistaMensual::DemandaYSolar, VistaMensual::Fotovoltaica}) {
      ElegirEn("RGSeleccion", static_cast<std::size_t>(vista));
      EXPECT_FALSE(Buscar<QComboBox>("RGServicioMes")->isVisible());
      EsLaVista({vista});
    }
  }
}

TEST_F(PaginaMensualTest, SeGuardanTodasOLasVisibles) {
  Entrar("vivienda_unifamiliar_D3.xml", "Mensuales");
  ElegirEn("RGServicioMes", static_cast<std::size_t>(ServicioMes::ACS));
  ElegirEn("RGTipoResultado", kEmisiones);
  EXPECT_EQ(Guardar("SpeedButton1"), ExportarTablas(Caso(), AlcanceExportacion::Todas));
  const std::string visibles = Guardar("SpeedButton3");
  EXPECT_TRUE(visibles.starts_with("Emisiones CO2 servicio ACS;\nACS (kg CO2);ENE;"));
  EXPECT_EQ(visibles, ExportarTablas(Caso(), AlcanceExportacion::Visible,
                                     {VistaMensual::PorServicio, ServicioMes::ACS, kEmisiones}));
}

}  // namespace
}  // namespace novex::gui::pruebas
