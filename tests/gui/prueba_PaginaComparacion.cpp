#include <QTextDocument>

#include "gui/ResultadosPrueba.h"
#include "outputs/AnalisisTecnico.h"
#include "outputs/ComparacionCasos.h"
#include "shell/gui/EditorMemo.h"
#include "shell/gui/EtiquetaEnergetica.h"
#include "shell/gui/VistaGrafico.h"

namespace novex::gui::pruebas {
namespace {

constexpr const char* kVisitas = "Visitas/Observaciones/Intervenciones";

class PaginaComparacionTest : public ResultadosTest {
 protected:
  // Un ejemplo con una mejora, la activa, que tiene el doble de cubierta.
  void AbrirConMejora(const char* ejemplo) {
    sesion.Abrir(Ejemplo(ejemplo));  // sin preguntar si se guarda el anterior
    ASSERT_TRUE(sesion.DuplicarCaso());
    ventana->Contexto().Editar("cubierta",
                               [](Edificio& e) { e.GetRecinto(0).Cubierta_horiz_sol_m2[0] *= 2; });
    emit ventana->Contexto().ProyectoCambiado();
  }
  static QString Leido(const QString& texto) {
    QTextDocument documento;
    documento.setHtml(texto);
    return documento.toPlainText().simplified();
  }
};

TEST_F(PaginaComparacionTest, UnGraficoPorServicioConSusLetras) {
  for (const auto& [ejemplo, cuantos] :
       {std::pair{"adosada_C1.xml", 5U}, {"hotel_24h_A3.xml", 6U}}) {
    SCOPED_TRACE(ejemplo);
    AbrirConMejora(ejemplo);
    ventana->Mostrar(Destino::Comparacion);  // sin haber pasado por la certificación
    for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
      for (std::size_t t = 0; t < kTextoTipoValor.size(); ++t) {
        ElegirEn("RGTipoResul", u);
        Marcar("RGTipoValor", t);
        const auto esperados =
            CompararCasos(CasosCalculados(sesion.Gestor()), static_cast<UnidadEnergia>(u),
                          static_cast<TipoValor>(t));
        ASSERT_EQ(esperados.size(), cuantos);
        const auto vistos = ventana->PaginaDe(Destino::Comparacion)->findChildren<VistaGrafico*>();
        for (std::size_t i = 0; i < cuantos; ++i) {
          const Grafico& puesto = vistos[static_cast<qsizetype>(i)]->Puesto();
          EXPECT_EQ(puesto.titulo, esperados[i].grafico.titulo);
          EXPECT_EQ(puesto.ejeY, esperados[i].grafico.ejeY);
          EXPECT_EQ(puesto.posiciones, (std::vector<std::string>{"Actual", "Mejora_1"}));
          EXPECT_EQ(puesto.series[0].valores, esperados[i].grafico.series[0].valores);
          auto* letras = Buscar<QLabel>(qPrintable(QString("letras%1").arg(i)));
          EXPECT_TRUE(letras->isVisible());
          EXPECT_EQ(Leido(letras->text()), Q(esperados[i].LineaLetras()).simplified());
        }
      }
  }
  AbrirConMejora("adosada_C1.xml");  // la que sobra se esconde
  ventana->Mostrar(Destino::Comparacion);
  EXPECT_FALSE(Buscar<QLabel>("letras5")->isVisible());
}

TEST_F(PaginaComparacionTest, LoQueImpideCalcularSeDice) {
  AbrirConMejora("adosada_C1.xml");
  ventana->Mostrar(Destino::Comparacion);
  auto* fallo = Buscar<QLabel>("fallo");
  EXPECT_FALSE(fallo->isVisible());
  ventana->Contexto().Editar("sitio", [](Edificio& e) {
    Localizacion l = e.GetLocalizacion();
    l.ZonaClimatica = "Z9";
    e.SetLocalizacion(l);
  });
  EXPECT_TRUE(fallo->isVisible());
  EXPECT_FALSE(fallo->text().isEmpty());
  Ordenar("Deshacer");
  EXPECT_FALSE(fallo->isVisible());
  // La base, que va delante, no impide la mejora.
  ventana->Contexto().EditarProyecto("sitio", [](GestorEdifActivo& gestor) {
    Localizacion l = gestor.Caso(caso::kViejo)->GetLocalizacion();
    l.ZonaClimatica = "Z9";
    gestor.Caso(caso::kViejo)->SetLocalizacion(l);
  });
  EXPECT_TRUE(fallo->text().startsWith("Base: ")) << S(fallo->text());
  const auto casos = CasosCalculados(sesion.Gestor());
  ASSERT_EQ(casos.size(), 1U);
  EXPECT_EQ(casos[0].nombre, "Mejora_1");
}

TEST_F(PaginaComparacionTest, ElAnalisisTecnicoTieneUnaFilaPorCasoYLasVisitasSonDeLaBase) {
  AbrirConMejora("oficina_VRV_B4.xml");
  IrAPestana("Análisis técnico");
  const auto esperadas = TablasAnalisisTecnico(CasosCalculados(sesion.Gestor()));
  const auto vistas = TablasVistas();
  ASSERT_EQ(vistas.size(), esperadas.size());
  for (std::size_t i = 0; i < vistas.size(); ++i) EsTabla(*vistas[i], esperadas[i]);
  // La letra da su color a la casilla que la lleva con el ahorro.
  const auto* total = vistas[1]->Rejilla()->item(0, 12);
  EXPECT_EQ(total->background().color(), ColorLetra(total->text().left(1)));
  EXPECT_NE(total->background().color(), ColorLetra("-"));

  EXPECT_FALSE(HayPestana(kVisitas));
  sesion.ActivarCaso(caso::kViejo);
  emit ventana->Contexto().ProyectoCambiado();
  EXPECT_TRUE(HayPestana(kVisitas));
}

TEST_F(PaginaComparacionTest, LasVisitasSeEditanJuntoALosResultadosSinRecalcular) {
  Entrar("vivienda_unifamiliar_D3.xml", kVisitas);
  Activar();
  auto* lista = Buscar<QComboBox>("NumeroVisitas");
  lista->setCurrentIndex(3);
  emit lista->activated(3);
  EXPECT_TRUE(Buscar<EditorMemo>("Memo3")->isVisible());
  EXPECT_FALSE(Buscar<EditorMemo>("Memo6")->isVisible());
  Teclear(Buscar<QLineEdit>("FechaVisita3"), "02/10/2026");
  Buscar<QCheckBox>("CBSombras")->click();
  auto* texto = Buscar<EditorMemo>("Memo3")->Texto();
  texto->setFocus();
  QTest::keyClicks(texto, "cata");
  texto->clearFocus();
  QApplication::processEvents();
  const DatosGenerales& g = sesion.Caso().GetDatosGenerales();
  EXPECT_EQ(g.NumeroVisitas, 3);
  EXPECT_EQ(g.FechaVisita[2], "02/10/2026");
  EXPECT_EQ(g.Memo[3], std::vector<std::string>{"cata"});
  EXPECT_TRUE(g.CBSombras);
  EXPECT_NE(sesion.Caso().GetCalculo(), nullptr);
  ventana->Mostrar(Destino::Definicion);
  EXPECT_EQ(Buscar<EditorMemo>("Memo3")->Texto()->toPlainText(), "cata");
}

}  // namespace
}  // namespace novex::gui::pruebas
