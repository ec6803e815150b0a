#include "gui/ResultadosPrueba.h"
#include "outputs/DetalleResultados.h"
#include "shell/gui/VistaGrafico.h"

namespace novex::gui::pruebas {
namespace {

class PaginaDetalleTest : public ResultadosTest {
 protected:
  void SonLosGraficos(const SeleccionDetalle& seleccion) {
    const auto esperados = PaginaDetalle(Caso(), seleccion);
    std::vector<const VistaGrafico*> vistos;
    for (auto* g : ventana->PaginaDe(Destino::Certificacion)->findChildren<VistaGrafico*>())
      if (g->isVisible()) vistos.push_back(g);
    ASSERT_EQ(vistos.size(), esperados.size());
    for (std::size_t i = 0; i < esperados.size(); ++i) {
      EXPECT_EQ(S(Buscar<QLabel>(qPrintable(QString("rotulo%1").arg(i)))->text()),
                esperados[i].rotulo);
      const Grafico& puesto = vistos[i]->Puesto();
      EXPECT_EQ(puesto.titulo, esperados[i].grafico.titulo);
      EXPECT_EQ(puesto.posiciones, esperados[i].grafico.posiciones);
      EXPECT_EQ(puesto.series[0].valores, esperados[i].grafico.series[0].valores);
    }
  }
};

TEST_F(PaginaDetalleTest, CadaEleccionTieneSusGraficosYSusElementos) {
  for (const char* ejemplo : {"vivienda_unifamiliar_D3.xml", "oficina_VRV_B4.xml"}) {
    SCOPED_TRACE(ejemplo);
    Entrar(ejemplo, "Detalle");
    for (std::size_t s = 0; s < kSalidasDetalle.size(); ++s) {
      ElegirEn("RGTipoSalida", s);
      EsTabla(*Buscar<VistaTabla>("elementos"),
              TablaElementos(Caso(), static_cast<SalidaDetalle>(s)));
      for (std::size_t r = 0; r < kServiciosDetalle.size(); ++r)
        for (std::size_t a = 0; a < kAnalisisDetalle.size(); ++a) {
          Marcar("RadioGroup7", r);
          ElegirEn("RBTipoAnalisis", a);
          SonLosGraficos({static_cast<SalidaDetalle>(s), static_cast<ServiciosDetalle>(r),
                          static_cast<AnalisisDetalle>(a)});
        }
    }
    // De los vectores no hay reparto.
    EXPECT_FALSE(Buscar<QComboBox>("RBTipoAnalisis")->isEnabled());
  }
}

}  // namespace
}  // namespace novex::gui::pruebas
