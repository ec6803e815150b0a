#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <QWheelEvent>

#include "gui/VentanaPrueba.h"
#include "shell/gui/CalendarioUso.h"
#include "shell/gui/RejillaHorarios.h"

namespace novex::gui::pruebas {
namespace {

class HorariosTest : public VentanaTest {
 protected:
  void Entrar(const char* ejemplo) {
    ASSERT_TRUE(ventana->Abrir(Ejemplo(ejemplo)));
    ventana->Mostrar(Destino::Global);
    pestanas = ventana->PaginaDe(Destino::Global)->findChild<QTabWidget*>();
    pestanas->setCurrentIndex(2);
    QApplication::processEvents();
    rejilla = Buscar<RejillaHorarios>("rejillaHorarios");
    ASSERT_NE(rejilla, nullptr);
  }
  const Perfiles& Ahora() const { return sesion.Caso().GetDatosGenerales().perfiles; }
  void Familias(const char* nombre) { Buscar<QAbstractButton>(nombre)->click(); }
  void VerCalendario() { Buscar<QTabBar>("vistasHorarios")->setCurrentIndex(1); }
  void Elegir(int fila, int columna, int filas = 1, int columnas = 1) {
    rejilla->setCurrentCell(fila, columna);
    rejilla->setRangeSelected({fila, columna, fila + filas - 1, columna + columnas - 1}, true);
  }
  void TeclearCelda(const QString& texto) {
    QTest::keyClick(rejilla, texto.at(0).toLatin1());
    auto* editor = rejilla->findChild<QLineEdit*>();
    ASSERT_NE(editor, nullptr);
    QTest::keyClicks(editor, texto.mid(1));
    QTest::keyClick(editor, Qt::Key_Return);
    QApplication::processEvents();  // la celda se guarda al volver al bucle
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QTabWidget* pestanas = nullptr;
  RejillaHorarios* rejilla = nullptr;
};

TEST_F(HorariosTest, LoTecladoVaALasHorasElegidasYSeDeshace) {
  Entrar("vivienda_unifamiliar_D3.xml");
  const Perfiles antes = Ahora();
  Familias("CTCh");
  Elegir(1, 8, 2, 3);
  TeclearCelda("21,5");
  for (std::size_t clase = 1; clase <= 2; ++clase)
    for (std::size_t h = 9; h <= 11; ++h) EXPECT_EQ(Ahora().tabla[CTCh][clase][h], 21.5F);
  EXPECT_EQ(Ahora().tabla[CTCh][1][12], antes.tabla[CTCh][1][12]);
  EXPECT_EQ(Ahora().tabla[CTCh][0], antes.tabla[CTCh][0]);
  EXPECT_EQ(rejilla->item(1, 8)->text(), "21,5");
  EXPECT_EQ(sesion.QueDeshace(), "Ter.Calef.(ºC)");
  sesion.Deshacer();
  EXPECT_EQ(Ahora(), antes);
}

TEST_F(HorariosTest, LoQueNoSeAdmiteVuelveALoQueHabia) {
  Entrar("vivienda_unifamiliar_D3.xml");
  Elegir(0, 0);
  const QString habia = rejilla->item(0, 0)->text();
  TeclearCelda("41");
  EXPECT_EQ(rejilla->item(0, 0)->text(), habia);
  EXPECT_TRUE(Buscar<QLabel>("avisosHorario")->text().contains("entre 0 W/m2 y 40 W/m2"));
  EXPECT_TRUE(sesion.QueDeshace().empty());
  Elegir(0, 0);
  TeclearCelda("3");
  EXPECT_TRUE(Buscar<QLabel>("avisosHorario")->text().isEmpty());
}

TEST_F(HorariosTest, SeCopiaYSePegaConUnaHojaDeCalculo) {
  Entrar("oficina_VRV_B4.xml");
  Familias("CIlu");
  QApplication::clipboard()->setText("10\t20\r\n30,5\t40\r\n");
  Elegir(3, 5);
  QTest::keyClick(rejilla, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Ahora().tabla[CIlu][3][6], 10);
  EXPECT_EQ(Ahora().tabla[CIlu][4][7], 40);
  rejilla->clearSelection();
  Elegir(3, 5, 2, 2);
  QTest::keyClick(rejilla, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "10\t20\n30,5\t40\n");
  QTest::keyClick(rejilla, Qt::Key_Delete);
  EXPECT_EQ(Ahora().tabla[CIlu][3][6], 0);
  EXPECT_EQ(Ahora().tabla[CIlu][4][7], 0);
  // Un valor solo llena todo lo elegido.
  QApplication::clipboard()->setText("55\n");
  QTest::keyClick(rejilla, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Ahora().tabla[CIlu][3][7], 55);
  EXPECT_EQ(Ahora().tabla[CIlu][4][6], 55);
  // Lo mismo con el menú: copiar, pegar y poner 0.
  ASSERT_EQ(rejilla->actions().size(), 3);
  rejilla->actions()[0]->trigger();
  EXPECT_EQ(QApplication::clipboard()->text(), "55\t55\n55\t55\n");
  rejilla->actions()[2]->trigger();
  EXPECT_EQ(Ahora().tabla[CIlu][4][6], 0);
  rejilla->actions()[1]->trigger();
  EXPECT_EQ(Ahora().tabla[CIlu][4][6], 55);
}

TEST_F(HorariosTest, UnDiaSeCopiaAOtrosYSeReponeElDelUso) {
  Entrar("vivienda_unifamiliar_D3.xml");
  const Perfiles antes = Ahora();
  Familias("CNR");
  Elegir(2, 3);
  TeclearCelda("50");
  auto* menu = Buscar<QToolButton>("copiarHorario")->menu();
  emit menu->aboutToShow();
  for (QAction* accion : menu->actions())
    if (accion->text() == "Laborable") accion->trigger();
  EXPECT_EQ(Ahora().tabla[CNR][0], Ahora().tabla[CNR][2]);
  EXPECT_EQ(Ahora().tabla[CNR][0][4], 50);
  EXPECT_EQ(Ahora().tabla[C1], antes.tabla[C1]);
  Buscar<QPushButton>("reponerHorario")->click();
  EXPECT_EQ(Ahora().tabla[CNR], antes.tabla[CNR]);
}

TEST_F(HorariosTest, ElCalendarioSePintaConLaClaseElegida) {
  Entrar("oficina_VRV_B4.xml");
  const auto antes = Ahora().calendario;
  VerCalendario();
  auto* calendario = Buscar<CalendarioUso>("calendario");
  Buscar<QRadioButton>("clase0")->click();
  // Arrastrar de un mes a otro pinta el recuadro; febrero no tiene 30 y no se sale.
  QTest::mousePress(calendario, Qt::LeftButton, {}, calendario->Centro(1, 28));
  QTest::mouseMove(calendario, calendario->Centro(2, 28));
  QTest::mouseRelease(calendario, Qt::LeftButton, {}, calendario->Centro(2, 28));
  EXPECT_EQ(Ahora().calendario[27], 0);
  EXPECT_EQ(Ahora().calendario[31 + 27], 0);
  EXPECT_EQ(Ahora().calendario[28], antes[28]);
  EXPECT_TRUE(Buscar<QRadioButton>("clase0")->text().contains("2 d"));
  // El nombre del mes lo pinta entero, y las teclas, un día.
  QTest::keyClick(calendario, Qt::Key_4);
  EXPECT_TRUE(Buscar<QRadioButton>("clase4")->isChecked());
  QTest::mouseClick(calendario, Qt::LeftButton, {}, {5, calendario->Centro(8, 1).y()});
  EXPECT_EQ(DiasPorCodigo(Ahora())[4], 31);
  QTest::keyClick(calendario, Qt::Key_Down);
  QTest::keyClick(calendario, Qt::Key_Space);
  EXPECT_EQ(Ahora().calendario[*PosicionDia(9, 1)], 4);
  for (int i = 0; i < 3; ++i) sesion.Deshacer();
  EXPECT_EQ(Ahora().calendario, antes);
}

TEST_F(HorariosTest, LaAccionDeUnMesSeElige) {
  Entrar("oficina_VRV_B4.xml");
  VerCalendario();
  auto* lista = Buscar<QComboBox>("AccionMes[8]");
  EXPECT_EQ(lista->currentText(), "Cale+Refri");
  lista->setCurrentText("Nada");
  emit lista->activated(lista->currentIndex());
  EXPECT_EQ(Ahora().AccionMes[8], "Nada");
  EXPECT_EQ(sesion.QueDeshace(), "acción de agosto");
  // La rueda que pasa por encima no la cambia; con el foco, sí.
  const auto rodar = [lista] {
    QWheelEvent rueda(QPointF(5, 5), lista->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(lista, &rueda);
  };
  lista->clearFocus();
  rodar();
  EXPECT_EQ(Ahora().AccionMes[8], "Nada");
  Activar();
  lista->setFocus();
  rodar();
  EXPECT_NE(Ahora().AccionMes[8], "Nada");
}

TEST_F(HorariosTest, Capturas) {
  const QString destino = qEnvironmentVariable("NOVEX_CAPTURAS");
  if (destino.isEmpty()) GTEST_SKIP() << "sin NOVEX_CAPTURAS";
  Entrar("oficina_VRV_B4.xml");
  Familias("CIlu");
  QApplication::processEvents();
  EXPECT_TRUE(GuardarCaptura(*ventana, destino + "/horarios_terciario.png"));
  VerCalendario();
  QApplication::processEvents();
  EXPECT_TRUE(GuardarCaptura(*ventana, destino + "/horarios_calendario.png"));
}

}  // namespace
}  // namespace novex::gui::pruebas
