#include <QClipboard>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>

#include "gui/VentanaPrueba.h"
#include "shell/gui/TFCrearMuro.h"
#include "shell/gui/TFMuros.h"

namespace novex::gui::pruebas {
namespace {

class EnvolventeTest : public VentanaTest {
 protected:
  /// Abre un ejemplo y enseña una pestaña de la página del edificio.
  void Ir(const QString& pestana, const char* ejemplo = "vivienda_unifamiliar_D3.xml") {
    ASSERT_TRUE(ventana->Abrir(Ejemplo(ejemplo)));
    ventana->Mostrar(Destino::Edificio);
    auto* pestanas = ventana->PaginaDe(Destino::Edificio)->findChild<QTabWidget*>();
    for (int i = 0; i < pestanas->count(); ++i)
      if (pestanas->tabText(i) == pestana) pestanas->setCurrentIndex(i);
  }
  const Recinto& Zona() { return sesion.Caso().GetRecinto(0); }
  const Construccion& Obra() { return sesion.Caso().GetConstruccion(); }
  template <class Control>
  Control* Visible(const char* nombre) {
    for (Control* c : ventana->PaginaDe(Destino::Edificio)->findChildren<Control*>(nombre))
      if (c->isVisible()) return c;
    return nullptr;
  }
  /// Los avisos que se ven en la página.
  QStringList Avisos() {
    QStringList textos;
    for (QLabel* l : ventana->PaginaDe(Destino::Edificio)->findChildren<QLabel*>())
      if (l->isVisible() && l->property("papel") == "aviso") textos << l->text();
    return textos;
  }
};

TEST_F(EnvolventeTest, UnTotalMenorQueSuParteLaRecortaYLoDice) {
  Ir("Muros");
  auto* total = Buscar<QLineEdit>("MuroExt[1]/Muro_ext_sur_m2");
  auto* parte = Buscar<QLineEdit>("MuroExt[1]/Muro_ext_Var_sur_m2");
  ASSERT_TRUE(total != nullptr && parte != nullptr);
  EXPECT_EQ(Buscar<QLineEdit>("MuroExt[1]/Muro_ext_Var_norte_m2"), nullptr);
  Teclear(parte, "5");
  Teclear(total, "0");
  EXPECT_EQ(Zona().Muro_ext_Var_m2[0][sur], 0.0F);
  EXPECT_EQ(parte->text(), "0.0");
  EXPECT_EQ(Avisos().join("").toStdString(),
            "El area total es inferior al area fuera del 1º plano de fachada\n"
            "Atención. Se pone como area 1º plano la nueva area total");
  sesion.Deshacer();
  EXPECT_EQ(Zona().Muro_ext_Var_m2[0][sur], 5.0F);
  Teclear(total, "-3");
  EXPECT_EQ(Zona().Muro_ext_m2[0][sur], 0.0F);
}

TEST_F(EnvolventeTest, LaRejillaSeCopiaYSePegaEnUnaEdicion) {
  Ir("Muros");
  const auto antes = Zona().Muro_ext_m2[0];
  QTest::mouseClick(Visible<QPushButton>("copiar"), Qt::LeftButton);
  const QStringList filas = QApplication::clipboard()->text().split('\n', Qt::SkipEmptyParts);
  ASSERT_EQ(filas.size(), 2);  // un tipo: el total y su parte
  EXPECT_EQ(filas[0].count('\t'), 5);
  auto* oesteTotal = Buscar<QLineEdit>("MuroExt[1]/Muro_ext_oeste_m2");
  oesteTotal->setFocus();
  QApplication::clipboard()->setText("1.210,5\t\t30\n2\t3\t");
  QTest::keyClick(oesteTotal, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Zona().Muro_ext_m2[0][norte], antes[norte]);
  EXPECT_EQ(Zona().Muro_ext_m2[0][oeste], 1210.5F);
  EXPECT_EQ(Zona().Muro_ext_m2[0][sur_oeste], antes[sur_oeste]);  // casilla vacía
  EXPECT_EQ(Zona().Muro_ext_m2[0][sur], 30.0F);
  EXPECT_EQ(Zona().Muro_ext_Var_m2[0][oeste], 2.0F);
  EXPECT_EQ(Zona().Muro_ext_Var_m2[0][sur_oeste], 3.0F);
  EXPECT_EQ(sesion.QueDeshace(), "Pegar");
  sesion.Deshacer();
  EXPECT_EQ(Zona().Muro_ext_m2[0], antes);
}

TEST_F(EnvolventeTest, UnaUEscritaQuitaLaComposicionYOtroTipoSeAnade) {
  Ir("Muros");
  ASSERT_FALSE(sesion.Caso().GetComposicion(ranura::MuroExt1).capas.empty());
  auto* U = Buscar<QLineEdit>("MuroExt[1]/U_Muro_ext_W_m2K");
  Teclear(U, "0,55");
  EXPECT_EQ(sesion.Caso().GetComposicion(ranura::MuroExt1).U, 0.55F);
  EXPECT_TRUE(sesion.Caso().GetComposicion(ranura::MuroExt1).capas.empty());
  auto* segundo = Buscar<QLineEdit>("MuroExt[2]/Muro_ext_este_m2");
  EXPECT_FALSE(segundo->isVisible());
  QTest::mouseClick(Visible<QPushButton>("mas"), Qt::LeftButton);
  ASSERT_TRUE(segundo->isVisible());
  Teclear(segundo, "12");
  EXPECT_EQ(Zona().Muro_ext_m2[1][este], 12.0F);
  const QString sumas = ventana->PaginaDe(Destino::Edificio)->findChild<QLabel*>("sumas")->text();
  EXPECT_TRUE(sumas.startsWith("Fachada ")) << sumas.toStdString();
  auto* quitar =
      ventana->PaginaDe(Destino::Edificio)->findChild<QToolButton*>("quitar0");  // MuroExt1
  QTest::mouseClick(quitar, Qt::LeftButton);
  EXPECT_EQ(sesion.Caso().GetComposicion(ranura::MuroExt1).U, 0.0F);
  EXPECT_FALSE(quitar->isEnabled());
}

TEST_F(EnvolventeTest, ElegirYCrearSePonenEnLaPosicion) {
  if (!std::filesystem::exists(ficheros.Espacio().Datos() / "Composiciones.xml"))
    GTEST_SKIP() << "sin los catálogos en la carpeta de programa";
  Ir("Muros");
  ventana->Contexto().Editar("quitar", [](Edificio& e) { e.LimpiarComposicion(ranura::MuroExt1); });
  auto* elegir = ventana->PaginaDe(Destino::Edificio)->findChild<QToolButton*>("elegir0");
  QTimer::singleShot(0, [] {
    auto* dialogo = qobject_cast<TFMuros*>(QApplication::activeModalWidget());
    ASSERT_NE(dialogo, nullptr);
    dialogo->accept();
  });
  QTest::mouseClick(elegir, Qt::LeftButton);
  EXPECT_FALSE(sesion.Caso().GetComposicion(ranura::MuroExt1).capas.empty());
  auto* crear = ventana->PaginaDe(Destino::Edificio)->findChild<QToolButton*>("crear0");
  std::size_t capas = 0;
  QTimer::singleShot(0, [&] {
    auto* dialogo = qobject_cast<TFCrearMuro*>(QApplication::activeModalWidget());
    ASSERT_NE(dialogo, nullptr);
    capas = dialogo->Capas().size();
    EXPECT_TRUE(dialogo->findChild<QLineEdit*>("nombre")->text().endsWith("(D)"));
    dialogo->reject();
  });
  QTest::mouseClick(crear, Qt::LeftButton);
  EXPECT_EQ(capas, sesion.Caso().GetComposicion(ranura::MuroExt1).capas.size());
  EXPECT_EQ(sesion.QueDeshace(), "Elegir composición");  // cancelar no cambia nada
}

TEST_F(EnvolventeTest, CadaClaseTieneLosDatosDeSuElemento) {
  Ir("Suelos");
  auto* clases = Visible<QListWidget>("clases");
  const auto elegir = [&](const char* direccion, const char* texto) {
    auto* lista = Buscar<QComboBox>(direccion);
    lista->setCurrentIndex(lista->findData(texto));
    emit lista->activated(lista->currentIndex());
  };
  elegir("Suelo_terreno[1]/Tipo_aislamiento_suelo", "Periferico");
  Teclear(Buscar<QLineEdit>("Suelo_terreno[1]/D_Longitud_aislamiento_m"), "1.5");
  EXPECT_EQ(Obra().suelosTerreno[0].Tipo_aislamiento_suelo, "Periferico");
  EXPECT_EQ(Obra().suelosTerreno[0].D_Longitud_aislamiento_m, 1.5F);
  clases->setCurrentRow(2);
  ventana->PaginaDe(Destino::Edificio)->Refrescar();
  elegir("Suelo_otro[1]/Renovacion_Otro_Local_suelo", "renovh=5");
  EXPECT_EQ(Obra().Renovacion_Otro_Local_suelo[0], 3);
  Teclear(Buscar<QLineEdit>("Suelo_otro[1]/U_Suelo_otro_local_ext_W_m2K"), "1.2");
  EXPECT_EQ(sesion.Caso().GetComposicion(ranura::MuroExt8).U, 1.2F);
}

// Se entra por la clase con más área, y teclear no cambia la que se mira.
TEST_F(EnvolventeTest, LaClaseQueSeMiraNoCambiaAlTeclear) {
  Ir("Cubiertas", "casa_antigua_E1.xml");
  auto* clases = Visible<QListWidget>("clases");
  ASSERT_EQ(clases->currentRow(), 1);  // la inclinada
  ventana->Contexto().Editar("plana",
                             [](Edificio& e) { e.GetRecinto(0).Cubierta_horiz_sol_m2[0] = 90; });
  EXPECT_EQ(clases->currentRow(), 1);
  Teclear(Buscar<QLineEdit>("CubiertaIncl[1]/Cubierta_incl_norte_m2"), "10");
  EXPECT_EQ(clases->currentRow(), 1);
  ventana->Mostrar(Destino::Titulo);
  ventana->Mostrar(Destino::Edificio);
  EXPECT_EQ(clases->currentRow(), 0);  // 90 m² de plana y 61,7 de faldones
}

TEST_F(EnvolventeTest, LosTresModosDeLosPuentes) {
  Ir("Puentes");
  const auto activar = [&](const char* lista, int cual) {
    auto* l = Buscar<QComboBox>(lista);
    l->setCurrentIndex(cual);
    emit l->activated(cual);
  };
  auto* U = Buscar<QLineEdit>("U_L_Puentes_forjados");
  EXPECT_FALSE(U->isEnabled());
  QTest::mouseClick(Buscar<QRadioButton>("RBPuentesTipicos"), Qt::LeftButton);
  activar("RGForjados", 2);
  EXPECT_EQ(Obra().Def_Puentes_termicos, 2);
  EXPECT_EQ(Obra().Def_Puentes_termicos_pilares, 1);
  EXPECT_EQ(Obra().Def_Puentes_termicos_ventanas, 1);
  EXPECT_EQ(U->text(), "-0.02");  // zona D3, tabla del aislamiento continuo
  EXPECT_FALSE(Buscar<QComboBox>("RGPuentesPilar")->isEnabled());
  activar("RGForjados", 0);
  activar("RGPuentesPilar", 3);
  EXPECT_EQ(Obra().Existencia_pilares, 1);
  EXPECT_EQ(Buscar<QLineEdit>("fi_Puentes_pilares")->text(), "100.00");
  QTest::mouseClick(Buscar<QRadioButton>("RBPuentesEspeciales"), Qt::LeftButton);
  ASSERT_TRUE(U->isEnabled());
  Teclear(U, "0,35");
  EXPECT_EQ(Obra().Def_Puentes_termicos, 4);
  EXPECT_EQ(Obra().U_L_Puentes[puente_forjados], 0.35F);
  Teclear(U, "7");
  EXPECT_EQ(Obra().U_L_Puentes[puente_forjados], 0.3F);
  EXPECT_FALSE(Avisos().isEmpty());
  QTest::mouseClick(Buscar<QRadioButton>("RBPuentesLider"), Qt::LeftButton);
  EXPECT_EQ(U->text(), "0.41");
}

TEST_F(EnvolventeTest, LasLongitudesSeEstimanOSeEscriben) {
  Ir("Puentes");
  ASSERT_EQ(Obra().Longitud_puentes_termicos_modo, "Estimados");
  auto* terreno = Buscar<QLineEdit>("Perimetro_suelo_terreno");
  EXPECT_EQ(terreno->text(), "39.00");  // 4√96 = 39,19
  EXPECT_FALSE(terreno->isEnabled());
  ventana->Contexto().Editar("suelo",
                             [](Edificio& e) { e.GetRecinto(0).Suelo_al_terreno_m2[0] = 100; });
  EXPECT_EQ(terreno->text(), "40.00");
  ventana->Mostrar(Destino::Titulo);  // al salir quedan puestas
  EXPECT_EQ(Obra().Perimetro_suelo_terreno, 40.0F);
  ventana->Mostrar(Destino::Edificio);
  QTest::mouseClick(Buscar<QRadioButton>("Facilitados"), Qt::LeftButton);
  ASSERT_TRUE(terreno->isEnabled());
  Teclear(terreno, "52");
  EXPECT_EQ(Obra().Perimetro_suelo_terreno, 52.0F);
  QTest::mouseClick(Buscar<QPushButton>("estimar"), Qt::LeftButton);
  EXPECT_EQ(Obra().Perimetro_suelo_terreno, 40.0F);
  EXPECT_EQ(Obra().Longitud_puentes_termicos_modo, "Facilitados");
}

TEST_F(EnvolventeTest, MirarLasPaginasNoCambiaElProyecto) {
  for (const auto& ruta : Ejemplos()) {
    SCOPED_TRACE(ruta.filename().string());
    ASSERT_TRUE(ventana->Abrir(ruta));
    ventana->Mostrar(Destino::Edificio);
    auto* pestanas = ventana->PaginaDe(Destino::Edificio)->findChild<QTabWidget*>();
    for (int i = 0; i < pestanas->count(); ++i) pestanas->setCurrentIndex(i);
    ventana->Mostrar(Destino::Titulo);
    EXPECT_FALSE(sesion.Modificado()) << sesion.QueDeshace();
  }
}

}  // namespace
}  // namespace novex::gui::pruebas
