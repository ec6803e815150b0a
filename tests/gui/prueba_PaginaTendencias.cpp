#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>

#include "entry/CosteMejora.h"
#include "gui/VentanaPrueba.h"
#include "outputs/TablaMejoras.h"
#include "shell/gui/PaginaTendencias.h"

namespace novex::gui::pruebas {
namespace {

class PaginaTendenciasTest : public VentanaTest {
 protected:
  void AbrirEn(const char* ejemplo) {
    ASSERT_TRUE(ventana->Abrir(Ejemplo(ejemplo)));
    ventana->Mostrar(Destino::Certificacion);
    auto* resultados = ventana->PaginaDe(Destino::Certificacion);
    auto* pestanas = resultados->findChild<QTabWidget*>();
    pestanas->setCurrentIndex(pestanas->count() - 1);
    EXPECT_EQ(pestanas->tabText(pestanas->count() - 1), "Tendencias de Rehabilitaciones");
    pagina = resultados->findChild<PaginaTendencias*>();
    ASSERT_NE(pagina, nullptr);
  }
  // La pestaña de una medida, que se hace al verla.
  void VerMedida(int codigo) {
    const auto pestana = static_cast<int>(MedidaDeCodigo(codigo)->pagina);
    pagina->findChild<QTabWidget*>()->setCurrentIndex(pestana);
  }
  void Marcar(int codigo) {
    VerMedida(codigo);
    Buscar<QCheckBox>(Nombre("CBLL", codigo).c_str())->click();
  }
  static std::string Nombre(const char* prefijo, int codigo) {
    return prefijo + std::to_string(codigo);
  }
  std::string Valor(int codigo) {
    return Buscar<QLabel>(Nombre("LL", codigo).c_str())->text().toStdString();
  }
  bool Pulsar(const char* boton) {
    auto* b = Buscar<QPushButton>(boton);
    const bool activo = b->isEnabled();
    b->click();
    return activo;
  }
  void Esperar() {
    for (int i = 0; i < 6000 && EnCurso(); ++i) QTest::qWait(20);
    ASSERT_EQ(pagina->Estudio().EnQue(), EstudioEnCurso::Estado::Hecho);
  }
  bool EnCurso() const { return pagina->Estudio().EnQue() == EstudioEnCurso::Estado::Calculando; }
  QTableWidget* Lista() { return pagina->findChild<ListaMejoras*>()->findChild<QTableWidget*>(); }
  // Lo que dice la lista de una medida en una columna; con el código 0, su primera fila.
  QTableWidgetItem* EnLista(int codigo, std::size_t columna) {
    for (int f = 0; f < Lista()->rowCount(); ++f)
      if (codigo == 0 ? f == 1 : Lista()->item(f, kColumnaCodigo)->text().toInt() == codigo)
        return Lista()->item(f, static_cast<int>(columna));
    ADD_FAILURE() << "no está la medida " << codigo;
    return nullptr;
  }
  static constexpr int kColumnaCodigo = static_cast<int>(kColumnaCodigoMejora);
  const EstudioModificaciones& Estudio() const { return sesion.Caso().GetEstudioModificaciones(); }
  PaginaTendencias* pagina = nullptr;
};

TEST_F(PaginaTendenciasTest, LosValoresSonLosDelEstudioEnCadaDato) {
  for (const char* ejemplo : {"vivienda_unifamiliar_D3.xml", "oficina_VRV_B4.xml"}) {
    SCOPED_TRACE(ejemplo);
    AbrirEn(ejemplo);
    const std::vector<int> codigos = {9, 52, 62};
    for (const int codigo : codigos) Marcar(codigo);
    EXPECT_EQ(Valor(9), "----");
    EXPECT_TRUE(Pulsar("BBAnalisisPuntual"));
    EXPECT_FALSE(Pulsar("CalcularTodas"));  // mientras mide
    Esperar();
    Progreso progreso;
    Entorno entorno{ficheros, mensajes, progreso};
    const auto estudio =
        EstudioMejoras::Preparar(sesion.GestorParaCalcular(), caso::kViejo, entorno);
    EXPECT_NE(sesion.Caso().GetCalculo(), nullptr);
    for (const int codigo : codigos) {
      SCOPED_TRACE(codigo);
      const ResultadoMedida medida = estudio->MedirCodigo(codigo);
      auto* hoja = Buscar<QCheckBox>(Nombre("CBLL", codigo).c_str())->parentWidget();
      while (qobject_cast<PestanaMedidas*>(hoja) == nullptr) hoja = hoja->parentWidget();
      auto* datos = hoja->findChild<QComboBox*>("TipoDatos");
      const PaginaMedida pag = MedidaDeCodigo(codigo)->pagina;
      const auto lista = DatosDePagina(pag);
      ASSERT_EQ(datos->count(), static_cast<int>(lista.size()));
      for (int i = 0; i < datos->count(); ++i) {
        datos->setCurrentIndex(i);
        const DatoEstudio dato = lista[static_cast<std::size_t>(i)];
        EXPECT_EQ(datos->currentText().toStdString(), NombreDato(dato, pag));
        EXPECT_EQ(Valor(codigo), TextoDato(dato, &medida, estudio->Base()));
        EXPECT_EQ(hoja->findChild<QLabel*>("LL1")->text().toStdString(),
                  TextoDatoBase(dato, estudio->Base()));
      }
    }
    EXPECT_EQ(Valor(3), "----");
    EXPECT_TRUE(mensajes.recibidos.empty());
    // Sin marcas no hay nada que guardar al abrir el otro.
    while (sesion.Deshacer()) continue;
  }
}

// Con todas hechas de golpe se notaba al entrar.
TEST_F(PaginaTendenciasTest, SoloSeConstruyeLoQueSeVe) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  ventana->Mostrar(Destino::Certificacion);
  auto* resultados = ventana->PaginaDe(Destino::Certificacion);
  EXPECT_EQ(resultados->findChildren<PaginaResultados*>().size(), 1);
  AbrirEn("vivienda_unifamiliar_D3.xml");
  EXPECT_EQ(pagina->findChildren<PestanaMedidas*>().size(), 1);
  pagina->findChild<QTabWidget*>()->setCurrentIndex(2);
  EXPECT_EQ(pagina->findChildren<PestanaMedidas*>().size(), 2);
}

TEST_F(PaginaTendenciasTest, CuatroMarcasAvisanYNoCalculan) {
  AbrirEn("vivienda_unifamiliar_D3.xml");
  for (const int codigo : {3, 9, 57}) Marcar(codigo);
  EXPECT_TRUE(mensajes.recibidos.empty());
  Marcar(61);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "AVISO");
  EXPECT_EQ(CodigosMarcados(Estudio()), (std::vector<int>{3, 9, 57, 61}));
  EXPECT_FALSE(Pulsar("BBAnalisisPuntual"));
  EXPECT_FALSE(EnCurso());
  sesion.Deshacer();
  EXPECT_EQ(CodigosMarcados(Estudio()), (std::vector<int>{3, 9, 57}));
}

TEST_F(PaginaTendenciasTest, CostesYNotasSonDeLasMarcadasYNoRecalculan) {
  AbrirEn("vivienda_unifamiliar_D3.xml");
  const auto resultados = sesion.Caso().GetCalculo();
  auto* coste = Buscar<QLineEdit>("EELL3");
  EXPECT_TRUE(coste->isHidden());
  Marcar(3);
  EXPECT_FALSE(coste->isHidden());
  Teclear(coste, "1250,5");
  Teclear(Buscar<QLineEdit>("EELA3"), "7");
  EXPECT_EQ(CifrasDeMedida(Estudio(), 3).PrecioMejora, 1250.5F);
  EXPECT_EQ(CifrasDeMedida(Estudio(), 3).AmortMejora, 7.0F);
  pagina->findChild<QTabWidget*>()->setCurrentIndex(5);
  auto* memo = Buscar<QPlainTextEdit>("MemoMejora1");
  EXPECT_FALSE(memo->parentWidget()->isHidden());
  EXPECT_TRUE(Buscar<QPlainTextEdit>("MemoMejora2")->parentWidget()->isHidden());
  Activar();
  memo->setFocus();
  for (int i = 0; i < 11; ++i) QTest::keyClicks(memo, "a"), QTest::keyClick(memo, Qt::Key_Return);
  memo->clearFocus();
  QTest::qWait(20);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "ATENCION");
  EXPECT_EQ(Estudio().medidas[0].notas.size(), 10U);
  EXPECT_EQ(sesion.Caso().GetCalculo(), resultados);
  Marcar(3);
  EXPECT_EQ(CifrasDeMedida(Estudio(), 3).PrecioMejora, 0.0F);
  EXPECT_TRUE(coste->isHidden());
}

TEST_F(PaginaTendenciasTest, TodasSeOrdenanSeCancelanYUnaSeAplica) {
  AbrirEn("vivienda_unifamiliar_D3.xml");
  Pulsar("CalcularTodas");
  for (int i = 0; i < 1000 && pagina->Estudio().Hechos() < 3; ++i) QTest::qWait(10);
  EXPECT_TRUE(Buscar<QLabel>("Quedan")->text().startsWith("Quedan: "));
  Pulsar("CancelarEstudio");
  EXPECT_FALSE(EnCurso());
  EXPECT_EQ(Valor(3), "----");
  Pulsar("CalcularTodas");
  Esperar();
  EXPECT_NE(Valor(3), "----");
  QTableWidget* tabla = Lista();
  ASSERT_EQ(tabla->rowCount(), 71);
  auto* aplicar = Buscar<QPushButton>("AplicarMejora");
  const auto elegir = [&](const char* codigo) {
    for (int f = 0; f < tabla->rowCount(); ++f)
      if (tabla->item(f, 1)->text() == codigo) tabla->selectRow(f);
  };
  elegir("97");
  EXPECT_FALSE(aplicar->isEnabled());
  EXPECT_TRUE(Buscar<QLabel>("QueCambia")->text().startsWith("No se puede aplicar. "));
  elegir("38");
  ASSERT_TRUE(aplicar->isEnabled());
  aplicar->click();
  EXPECT_EQ(sesion.Gestor().NombreActivo(), "Mejora_1");
  EXPECT_EQ(sesion.Caso().GetHuecos(0).U_cristal_W_m2K, 1.8F);
  EXPECT_EQ(Valor(3), "----");  // la mejora es otro caso
  EXPECT_TRUE(sesion.Deshacer());
  EXPECT_EQ(sesion.Gestor().NumeroCasos(), 1U);
}

TEST_F(PaginaTendenciasTest, LaListaSeOrdenaPorLoQueSeElijaYSenala) {
  AbrirEn("vivienda_unifamiliar_D3.xml");
  for (const int codigo : {3, 24}) Marcar(codigo);
  Teclear(Buscar<QLineEdit>("EELL24"), "900");
  Pulsar("CalcularTodas");
  Esperar();
  auto* orden = Buscar<QComboBox>("OrdenarPor");
  const auto primera = [&](CriterioMejoras criterio) {
    orden->setCurrentIndex(static_cast<int>(criterio));
    return EnLista(0, kColumnaCodigoMejora)->text().toInt();
  };
  // La biomasa ahorra energía primaria y no demanda; la que más aísla, al revés.
  EXPECT_EQ(primera(CriterioMejoras::PrimariaNoRenovable), 101);
  EXPECT_EQ(primera(CriterioMejoras::Demanda), 95);
  EXPECT_EQ(primera(CriterioMejoras::EnergiaFinal), 100);
  EXPECT_EQ(primera(CriterioMejoras::Codigo), 3);
  EXPECT_EQ(primera(CriterioMejoras::Coste), 24);
  for (const std::size_t ahorro : {3U, 5U, 7U, 9U})
    EXPECT_EQ(EnLista(95, ahorro)->textAlignment() & Qt::AlignRight, Qt::AlignRight);
  // Las marcas y las cifras se cambian también aquí.
  EXPECT_EQ(EnLista(24, kColumnaCosteMejora)->text(), "900");
  EXPECT_FALSE(EnLista(5, kColumnaCosteMejora)->flags().testFlag(Qt::ItemIsEditable));
  EnLista(5, kColumnaMarcaMejora)->setCheckState(Qt::Checked);
  QTest::qWait(20);
  EXPECT_EQ(CodigosMarcados(Estudio()), (std::vector<int>{3, 5, 24}));
  EnLista(5, kColumnaCosteMejora)->setText("450,5");
  QTest::qWait(20);
  EXPECT_EQ(CifrasDeMedida(Estudio(), 5).PrecioMejora, 450.5F);
  EXPECT_EQ(EnLista(0, kColumnaCodigoMejora)->text(), "5");  // ya es la más barata
  EXPECT_TRUE(mensajes.recibidos.empty());
  EnLista(3, kColumnaAnosMejora)->setText("x");
  QTest::qWait(20);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(EnLista(3, kColumnaAnosMejora)->text(), "");
  mensajes.recibidos.clear();
  EnLista(9, kColumnaMarcaMejora)->setCheckState(Qt::Checked);
  QTest::qWait(20);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "AVISO");
  EnLista(5, kColumnaMarcaMejora)->setCheckState(Qt::Unchecked);
  QTest::qWait(20);
  EXPECT_EQ(EnLista(5, kColumnaCosteMejora)->text(), "");
}

}  // namespace
}  // namespace novex::gui::pruebas
