#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "entry/CambioUso.h"
#include "gui/VentanaPrueba.h"
#include "shell/gui/DialogoExpres.h"

namespace novex::gui::pruebas {
namespace {

class ExpresTest : public VentanaTest {
 protected:
  void Uso(int perfil, const char* vision = "Simplificado") {
    ventana->Contexto().Editar("uso", [&](Edificio& e) {
      CambiarPerfilUso(e, perfil, ficheros.Xml("PerfilesUso.xml", "PERFILES_USO"), mensajes);
      DatosGenerales g = e.GetDatosGenerales();
      g.Modo_Vision = vision;
      g.Nm2_p = 10;
      e.SetDatosGenerales(g);
    });
  }
  void Abrir() {
    dialogo = std::make_unique<DialogoExpres>(ventana->Contexto(), ventana.get());
    dialogo->show();
  }
  void Poner(const char* nombre, const QString& texto) {
    auto* linea = dialogo->findChild<QLineEdit*>(nombre);
    ASSERT_NE(linea, nullptr) << nombre;
    linea->selectAll();
    QTest::keyClicks(linea, texto);
  }
  QString Texto(const char* nombre) {
    QTest::qWait(200);  // la frase espera a que se deje de teclear
    return dialogo->findChild<QLabel*>(nombre)->text();
  }
  bool Esta(const char* nombre) { return dialogo->findChild<QWidget*>(nombre) != nullptr; }

  std::unique_ptr<DialogoExpres> dialogo;
};

TEST_F(ExpresTest, SeCuentaAntesYSeAceptaEnUnaEdicion) {
  const auto antes = sesion.Caso().Clonar();
  Abrir();
  Poner("fachadaN", "60");
  Poner("fachadaS", "40");
  Poner("vidrio1N", "2");
  Poner("vidrio1S", "1");
  Poner("vidrio1Ancho", "2");
  Poner("vidrio1Alto", "2");
  EXPECT_TRUE(Texto("frase").contains("fachada 100 m² con 12 % de huecos"));
  EXPECT_TRUE(Texto("avisos").isEmpty());
  EXPECT_TRUE(MismosRegistros(sesion.Caso(), *antes));  // todavía nada
  dialogo->findChild<QPushButton*>("aceptar")->click();
  EXPECT_EQ(sesion.Caso().GetRecinto(0).Muro_ext_m2[0][norte], 52);
  EXPECT_EQ(sesion.Caso().NumeroSistemas(), 1U);
  EXPECT_EQ(sesion.QueDeshace(), "definición exprés");
  sesion.Deshacer();
  EXPECT_TRUE(MismosRegistros(sesion.Caso(), *antes));
  EXPECT_TRUE(sesion.QueDeshace().empty());
}

TEST_F(ExpresTest, LosDatosIlogicosSeDicenYSeSigue) {
  Abrir();
  Poner("fachadaN", "3");
  Poner("vidrio1N", "2");
  Poner("vidrio1Ancho", "2");
  Poner("vidrio1Alto", "1");
  EXPECT_TRUE(Texto("avisos").startsWith("Datos ilógicos introducidos al Norte."));
  EXPECT_TRUE(mensajes.recibidos.empty());
  dialogo->accept();
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "AVISO");
  EXPECT_EQ(sesion.Caso().GetRecinto(0).Muro_ext_m2[0][norte], -1);
}

TEST_F(ExpresTest, CancelarNoCambiaNada) {
  Abrir();
  Poner("superficie", "500");
  QTest::keyClick(dialogo.get(), Qt::Key_Escape);
  EXPECT_FALSE(dialogo->isVisible());
  EXPECT_TRUE(sesion.QueDeshace().empty());
}

TEST_F(ExpresTest, CadaUsoPideLoSuyo) {
  Uso(0);
  Abrir();
  EXPECT_TRUE(Esta("dormitorios") && Esta("ventilacion") && Esta("fotovoltaica"));
  EXPECT_FALSE(Esta("viviendas") || Esta("reparto") || Esta("aire"));
  Uso(1, "Completo");
  Abrir();
  EXPECT_TRUE(Esta("viviendas") && Esta("reparto"));
  EXPECT_FALSE(Esta("aire") || Esta("fotovoltaica"));
  auto* generador = dialogo->findChild<QComboBox*>("instalacion");
  EXPECT_EQ(generador->count(), 5);
  dialogo->findChild<QComboBox*>("reparto")->setCurrentText("Colectiva");
  EXPECT_EQ(generador->count(), 2);
  EXPECT_EQ(generador->currentText(), "1 Caldera");
  dialogo->accept();
  EXPECT_EQ(sesion.Caso().GetVentilacion().tipologias[0].N_viviendas, 10);
  Uso(4);
  Abrir();
  EXPECT_TRUE(Esta("aire"));
  EXPECT_FALSE(Esta("viviendas") || Esta("dormitorios") || Esta("ventilacion"));
  dialogo->findChild<QComboBox*>("aire")->setCurrentText("IDA1");
  dialogo->accept();
  // 72 m3/h por persona, una cada 10 m2, en 100 m2 y 300 m3.
  EXPECT_FLOAT_EQ(sesion.Caso().GetVentilacion().nrenovventilacion, 2.4F);
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().NVBloqueF, 1);
}

TEST_F(ExpresTest, ProponerRespetaLoTecleadoYSiguePorDondeVa) {
  Uso(0);
  Abrir();
  Poner("superficie", "120");
  Poner("fachadaN", "25");
  dialogo->findChild<QPushButton*>("proponer")->click();
  EntradaExpres e = dialogo->Entrada();
  // Dos plantas de 60 m2, lado 7,746 m, 5,4 m de alto.
  EXPECT_EQ(e.volumen, "324.0");
  EXPECT_EQ(e.fachada[norte], "25");
  EXPECT_EQ(e.fachada[sur], "41.8");
  ASSERT_EQ(e.vidrios.size(), 1U);
  EXPECT_TRUE(Texto("supuestos").contains("Plantas: 2"));
  // Lo propuesto se vuelve a proponer con la superficie de ahora.
  Poner("superficie", "240");
  dialogo->findChild<QPushButton*>("proponer")->click();
  e = dialogo->Entrada();
  EXPECT_EQ(e.volumen, "648.0");
  EXPECT_EQ(e.cubierta, "120.0");
  EXPECT_EQ(e.fachada[norte], "25");
  EXPECT_EQ(e.vidrios.size(), 1U);
}

TEST_F(ExpresTest, Capturas) {
  const QString destino = qEnvironmentVariable("NOVEX_CAPTURAS");
  if (destino.isEmpty()) GTEST_SKIP() << "sin NOVEX_CAPTURAS";
  for (const int perfil : {1, 4}) {
    Uso(perfil);
    Abrir();
    dialogo->findChild<QPushButton*>("proponer")->click();
    QTest::qWait(200);
    EXPECT_TRUE(GuardarCaptura(*dialogo, destino + QString("/expres_%1.png").arg(perfil)));
  }
}

}  // namespace
}  // namespace novex::gui::pruebas
