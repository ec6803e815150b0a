#include <QDropEvent>
#include <QMimeData>
#include <QTabWidget>
#include <QTableWidget>

#include "base/NumeroTexto.h"
#include "gui/VentanaPrueba.h"
#include "shell/gui/TFCrearMuro.h"
#include "shell/gui/TFMuros.h"

namespace novex::gui::pruebas {
namespace {

constexpr auto kFamilia = FamiliaCerramiento::MurosExterior;

// Los diálogos con una copia de los catálogos, que cambian.
class BibliotecaTest : public testing::Test {
 protected:
  BibliotecaTest() {
    std::filesystem::create_directories(carpeta / "programa");
    std::filesystem::copy(std::filesystem::path(NOVEX_RAIZ_DATOS) / "database",
                          EspacioTrabajo{carpeta / "programa"}.Datos(),
                          std::filesystem::copy_options::recursive);
    ficheros = std::make_unique<FicherosPrograma>(EspacioTrabajo{carpeta / "programa"});
    sesion = std::make_unique<SesionProyecto>(*ficheros, mensajes);
    contexto = std::make_unique<ContextoGui>(*sesion);
  }
  CatalogoComposiciones Catalogo() {
    return CatalogoComposiciones(ficheros->Espacio().Datos() / "Composiciones.xml");
  }
  static void Pulsar(QWidget& dialogo, const char* boton) {
    auto* b = dialogo.findChild<QPushButton*>(boton);
    ASSERT_NE(b, nullptr) << boton;
    QTest::mouseClick(b, Qt::LeftButton);
  }
  const composicion& Puesta() const { return sesion->Caso().GetComposicion(ranura::MuroExt1); }

  MensajesCallados mensajes;
  novex::pruebas::CarpetaTemporal carpeta;
  std::unique_ptr<FicherosPrograma> ficheros;
  std::unique_ptr<SesionProyecto> sesion;
  std::unique_ptr<ContextoGui> contexto;
};

TEST_F(BibliotecaTest, SeBuscaSeEligeYSePone) {
  TFMuros dialogo(*contexto, ranura::MuroExt1);
  dialogo.show();
  auto* lista = dialogo.findChild<QTableWidget*>("composiciones");
  const int todas = lista->rowCount();
  EXPECT_EQ(static_cast<std::size_t>(todas),
            Catalogo().Composiciones(kFamilia, kTodosLosGrupos).size());
  auto* buscar = dialogo.findChild<QLineEdit*>("buscar");
  QTest::keyClicks(buscar, "sate eps");
  ASSERT_GT(lista->rowCount(), 0);
  ASSERT_LT(lista->rowCount(), todas);
  EXPECT_FALSE(dialogo.findChild<QPushButton*>("arriba")->isEnabled());  // sin sus vecinas
  for (int f = 0; f < lista->rowCount(); ++f)
    EXPECT_TRUE(lista->item(f, 0)->text().contains("SATE EPS", Qt::CaseInsensitive));
  const QString nombre = lista->item(0, 0)->text();
  const QString U = lista->item(0, 3)->text();
  EXPECT_EQ(dialogo.findChild<QLabel*>("titulo")->text(), "Nuevo cerramiento elegido:  " + nombre);
  buscar->setText("no hay ninguna así");
  EXPECT_EQ(lista->rowCount(), 0);
  dialogo.accept();  // sin elegida no hace nada
  EXPECT_TRUE(dialogo.isVisible());
  buscar->setText("sate eps");
  QTest::keyClick(lista, Qt::Key_Return);
  EXPECT_EQ(dialogo.result(), QDialog::Accepted);
  EXPECT_EQ(QString::fromStdString(Puesta().nombre), nombre);
  EXPECT_EQ(QString::fromStdString(Fijo(static_cast<double>(Puesta().U), 2)), U);
  EXPECT_FALSE(Puesta().capas.empty());
  sesion->Deshacer();
  EXPECT_TRUE(Puesta().capas.empty());
}

TEST_F(BibliotecaTest, AlmacenarYCrearPidenSubtipoYBorrarPregunta) {
  {
    TFMuros elegir(*contexto, ranura::MuroExt1);
    elegir.accept();
  }
  TFMuros dialogo(*contexto, ranura::MuroExt1);
  dialogo.show();
  auto* lista = dialogo.findChild<QTableWidget*>("composiciones");
  Pulsar(dialogo, "almacenar");
  Pulsar(dialogo, "crear");
  ASSERT_EQ(mensajes.recibidos.size(), 2U);
  EXPECT_EQ(mensajes.recibidos[0].texto,
            "Se debe especificar/elegir un determinado subtipo. En el se almacenará");
  EXPECT_TRUE(mensajes.recibidos[1].texto.starts_with(
      "Se debe especificar/elegir un determinado subtipo. En cada subtipo"));
  dialogo.findChild<QComboBox*>("subtipos")->setCurrentIndex(2);
  const int antes = lista->rowCount();
  Pulsar(dialogo, "almacenar");
  ASSERT_EQ(lista->rowCount(), antes + 1);
  EXPECT_EQ(lista->currentRow(), antes);  // la guardada, al final
  const QString guardada = lista->item(antes, 0)->text();
  Pulsar(dialogo, "arriba");
  EXPECT_EQ(lista->item(antes - 1, 0)->text(), guardada);
  EXPECT_EQ(lista->currentRow(), antes - 1);
  Pulsar(dialogo, "eliminar");
  EXPECT_EQ(lista->rowCount(), antes + 1);  // se ha dicho que no
  mensajes.respuesta = true;
  Pulsar(dialogo, "eliminar");
  EXPECT_EQ(lista->rowCount(), antes);
  EXPECT_FALSE(Catalogo().PorNombre(kFamilia, guardada.toStdString() + " (2)"));
}

// Un editor con tres capas: enfoscado, cámara sin ventilar y tabique.
class EditorTest : public BibliotecaTest {
 protected:
  EditorTest() : catalogo(Catalogo()) {
    modelo.familia = kFamilia;
    modelo.subtipo = catalogo.Subtipos(kFamilia)[1];
    modelo.nombre = "Prueba";
    modelo.capas = {
        {"Enfoscado", 0.02F, 1.0F, 1800, 1000, 10, 0.02F, "E", "cte", "Morteros"},
        {"Cámara de aire sin ventilar", 0.05F, 0.278F, 1, 1000, 2, 0.18F, "C", "cte",
         "Cámara de aire sin ventilar"},
        {"Tabique", 0.10F, 0.5F, 1000, 1000, 10, 0.20F, "T", "cte", "Fábricas de ladrillo"}};
    editor = std::make_unique<TFCrearMuro>(*contexto, catalogo, ranura::MuroExt1, modelo);
    editor->show();
    lista = editor->findChild<ListaCapas*>("capas");
  }
  QString TextoU() const { return editor->findChild<QLabel*>("U")->text(); }
  std::string Orden() const {
    std::string iniciales;
    for (const Capa& c : editor->Capas()) iniciales += c.ini;
    return iniciales;
  }

  CatalogoComposiciones catalogo;
  ComposicionCatalogo modelo;
  std::unique_ptr<TFCrearMuro> editor;
  ListaCapas* lista;
};

TEST_F(EditorTest, ResumenYUSiguenALasCapasYALasPeliculas) {
  // R = 0.02 + 0.18 + 0.20 + 1/25 + 1/7.69 = 0.570
  EXPECT_EQ(TextoU(), "U 1.75 W/m²K");
  EXPECT_EQ(editor->findChild<QLabel*>("resumen")->text(),
            "Espesor (cm) 0.170 · Peso (kg/m2) 136 · Resis.Vapor (adim.) 1.3");
  auto* he = editor->findChild<QLineEdit*>("he");
  he->setFocus();
  he->selectAll();
  QTest::keyClicks(he, "9999");
  QTest::keyClick(he, Qt::Key_Return);
  EXPECT_EQ(he->text(), "Terreno");
  EXPECT_EQ(TextoU(), "U 1.89 W/m²K");  // sin el 1/25
  EXPECT_TRUE(editor->isVisible());     // Intro no cierra
  lista->setCurrentItem(lista->topLevelItem(2));
  Pulsar(*editor, "quitarCapa");
  EXPECT_EQ(Orden(), "EC");
  Pulsar(*editor, "vaciar");
  EXPECT_TRUE(editor->Capas().empty());
}

TEST_F(EditorTest, LasCapasSeOrdenanConBotonesTeclasYArrastrando) {
  lista->setCurrentItem(lista->topLevelItem(0));
  Pulsar(*editor, "bajarCapa");
  EXPECT_EQ(Orden(), "CET");
  EXPECT_EQ(lista->Elegida(), 1);
  QTest::keyClick(lista, Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(Orden(), "CTE");
  EXPECT_FALSE(editor->findChild<QPushButton*>("bajarCapa")->isEnabled());
  EXPECT_TRUE(editor->findChild<QPushButton*>("subirCapa")->isEnabled());
  QTest::keyClick(lista, Qt::Key_Down, Qt::AltModifier);  // ya es la última
  EXPECT_EQ(Orden(), "CTE");
  const QRect segunda = lista->visualItemRect(lista->topLevelItem(1));
  EXPECT_EQ(lista->LugarEn({5, segunda.top() + 1}), 1);
  EXPECT_EQ(lista->LugarEn({5, segunda.bottom() - 1}), 2);
  EXPECT_EQ(lista->LugarEn({5, lista->viewport()->height() - 1}), 3);
  // La última se suelta sobre la mitad de arriba de la primera.
  struct Abierta : ListaCapas {
    using ListaCapas::dropEvent;
  };
  const QMimeData datos;
  lista->setCurrentItem(lista->topLevelItem(2));
  QDropEvent soltar(QPointF(5, lista->visualItemRect(lista->topLevelItem(0)).top() + 1),
                    Qt::MoveAction, &datos, Qt::LeftButton, Qt::NoModifier);
  (lista->*&Abierta::dropEvent)(&soltar);
  EXPECT_EQ(soltar.dropAction(), Qt::IgnoreAction);  // Qt no ha de quitar nada
  EXPECT_EQ(Orden(), "ECT");
  EXPECT_EQ(lista->Elegida(), 0);
  EXPECT_EQ(lista->topLevelItemCount(), 3);
}

TEST_F(EditorTest, ElEspesorSeCambiaEnSuSitioMenosElDeUnaCamara) {
  const auto pulsar = [&](int capa) {
    emit lista->itemDoubleClicked(lista->topLevelItem(capa), 1);
    return lista->findChild<QLineEdit*>();
  };
  EXPECT_EQ(pulsar(1), nullptr);
  QLineEdit* casilla = pulsar(2);
  ASSERT_NE(casilla, nullptr);
  casilla->selectAll();
  QTest::keyClicks(casilla, "0,25");
  QTest::keyClick(casilla, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return editor->Capas()[2].espesor == 0.25F; }));
  EXPECT_EQ(editor->Capas()[2].rterm, 0.5F);
  emit lista->EspesorTecleado(0, "2");
  ASSERT_TRUE(QTest::qWaitFor([&] { return mensajes.recibidos.size() == 1; }));
  EXPECT_EQ(editor->Capas()[0].espesor, 0.1F);  // el de sustitución
}

TEST_F(EditorTest, AceptarCompruebaYGuardaEnElSubtipo) {
  Pulsar(*editor, "vaciar");
  editor->accept();
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "Atención");
  EXPECT_EQ(mensajes.recibidos[0].texto, "El cerramiento debe contener almenos una capa");
  modelo.capas = {modelo.capas[1]};
  TFCrearMuro camara(*contexto, catalogo, ranura::MuroExt1, modelo);
  camara.accept();
  EXPECT_EQ(mensajes.recibidos.size(), 3U);  // empieza y termina en cámara
  EXPECT_NE(camara.result(), QDialog::Accepted);
  auto* materiales = editor->findChild<QTableWidget*>("materiales");
  editor->findChild<QLineEdit*>("buscarMaterial")->setText("mortero de cemento");
  ASSERT_GT(materiales->rowCount(), 0);
  emit materiales->cellDoubleClicked(0, 0);
  ASSERT_EQ(editor->Capas().size(), 1U);
  editor->accept();
  EXPECT_EQ(editor->result(), QDialog::Accepted);
  EXPECT_EQ(editor->Creada().nombre, "Prueba");
  const auto guardada = Catalogo().PorNombre(kFamilia, "Prueba");
  ASSERT_TRUE(guardada);
  EXPECT_EQ(guardada->subtipo, modelo.subtipo);
  EXPECT_EQ(guardada->capas.size(), 1U);
}

TEST_F(EditorTest, MaterialesYEspesoresNuevosSoloEnUnGrupo) {
  const auto visible = [&](const char* boton) {
    return editor->findChild<QPushButton*>(boton)->isVisible();
  };
  EXPECT_FALSE(visible("nuevoEspesor"));  // con "Todos"
  auto* grupos = editor->findChild<QComboBox*>("grupos");
  auto* materiales = editor->findChild<QTableWidget*>("materiales");
  grupos->setCurrentText("Fábricas de bloque de hormigón convencional");
  EXPECT_FALSE(visible("nuevoMaterial"));
  grupos->setCurrentText("Aislantes");
  ASSERT_TRUE(visible("nuevoEspesor"));
  const int antes = materiales->rowCount();
  editor->findChild<QLineEdit*>("espesorNuevo")->setText("0,137");
  Pulsar(*editor, "nuevoEspesor");
  EXPECT_EQ(materiales->rowCount(), antes + 1);
  EXPECT_EQ(materiales->item(materiales->currentRow(), 1)->text(), "0.137");
  // Lo que se encuentra en las fábricas de bloque no se borra por estar en otro grupo.
  auto* buscar = editor->findChild<QLineEdit*>("buscarMaterial");
  buscar->setText("BH convencional espesor 100");
  ASSERT_GT(materiales->rowCount(), 0);
  EXPECT_FALSE(editor->findChild<QPushButton*>("borrarMaterial")->isEnabled());
  editor->findChild<QComboBox*>("listas")->setCurrentIndex(1);
  grupos->setCurrentText("Sin inercia");
  Pulsar(*editor, "nuevoMaterial");
  EXPECT_TRUE(editor->findChild<QLineEdit*>("rtermN")->isEnabled());
  EXPECT_FALSE(editor->findChild<QLineEdit*>("kN")->isEnabled());
  editor->findChild<QLineEdit*>("nombreN")->setText("Barrera");
  editor->findChild<QLineEdit*>("rtermN")->setText("2.5");
  Pulsar(*editor, "crearMaterial");
  ASSERT_GE(materiales->currentRow(), 0);
  EXPECT_EQ(materiales->item(materiales->currentRow(), 0)->text(), "Barrera");
  EXPECT_EQ(materiales->item(materiales->currentRow(), 6)->text(), "2.500");
  EXPECT_TRUE(mensajes.recibidos.empty());
}

TEST_F(EditorTest, ElVaporSeDibujaSinHaberCalculado) {
  const auto* dibujo = editor->findChild<DibujoVapor*>();
  ASSERT_TRUE(sesion->Caso().GetDatosClimaticosSitio().Pvproyecto == 0.0F);
  EXPECT_FALSE(dibujo->Vacio());
  Pulsar(*editor, "vaciar");
  EXPECT_TRUE(dibujo->Vacio());
  // El muro de un local no acondicionado no se comprueba.
  const TFCrearMuro local(*contexto, catalogo, ranura::MuroExt6, modelo);
  EXPECT_EQ(local.findChild<QTabWidget*>()->count(), 1);
}

// Para el manual; las hace scripts/capturas.sh.
TEST_F(EditorTest, CapturasDeLosDialogos) {
  const QString destino = qEnvironmentVariable("NOVEX_CAPTURAS");
  if (destino.isEmpty()) GTEST_SKIP() << "sin NOVEX_CAPTURAS";
  TFMuros biblioteca(*contexto, ranura::MuroExt1);
  biblioteca.show();
  biblioteca.findChild<QTableWidget*>("composiciones")->selectRow(20);
  EXPECT_TRUE(GuardarCaptura(biblioteca, destino + "/biblioteca.png"));
  EXPECT_TRUE(GuardarCaptura(*editor, destino + "/editor_composicion.png"));
  TFCrearMuro otro(*contexto, catalogo, ranura::MuroExt1,
                   CopiaParaEditar(catalogo.Composiciones(kFamilia, kTodosLosGrupos)[20]));
  otro.show();
  otro.findChild<QTabWidget*>()->setCurrentIndex(1);
  otro.findChild<QComboBox*>("grupos")->setCurrentText("Aislantes");
  Pulsar(otro, "nuevoMaterial");
  EXPECT_TRUE(GuardarCaptura(otro, destino + "/editor_vapor.png"));
}

}  // namespace
}  // namespace novex::gui::pruebas
