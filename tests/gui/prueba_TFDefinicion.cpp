#include <QCheckBox>
#include <QComboBox>
#include <QRadioButton>

#include "gui/VentanaPrueba.h"
#include "shell/gui/EditorMemo.h"

namespace novex::gui::pruebas {
namespace {

class TFDefinicionTest : public VentanaTest {
 protected:
  TFDefinicionTest() {
    ventana->Mostrar(Destino::Definicion);
    Activar();
  }
  const DatosGenerales& Generales() const { return sesion.Caso().GetDatosGenerales(); }
  QPlainTextEdit* Memo(const char* nombre) { return Buscar<EditorMemo>(nombre)->Texto(); }
  void Escribir(QPlainTextEdit* texto, const QString& nuevo) {
    texto->setFocus();
    texto->selectAll();
    texto->insertPlainText(nuevo);
    texto->clearFocus();
    QApplication::processEvents();
  }
  void Elegir(const char* direccion, int posicion) {
    auto* lista = Buscar<QComboBox>(direccion);
    lista->setCurrentIndex(posicion);
    emit lista->activated(posicion);
  }
  QAbstractButton* Opcion(const char* texto) {
    for (auto* boton : ventana->PaginaDe(Destino::Definicion)->findChildren<QAbstractButton*>())
      if (boton->text() == texto && boton->isVisible()) return boton;
    return nullptr;
  }
};

TEST_F(TFDefinicionTest, UnMemoLargoSeCortaAlSalirYLoDice) {
  QStringList lineas;
  for (int i = 1; i <= 40; ++i) lineas << QString("línea %1").arg(i);
  Escribir(Memo("MemoRecomendaciones"), lineas.join('\n'));
  EXPECT_EQ(Generales().Memo[0].size(), 40U);
  EXPECT_TRUE(mensajes.recibidos.empty());
  lineas << "de más"
         << "y otra";
  Escribir(Memo("MemoRecomendaciones"), lineas.join('\n'));
  EXPECT_EQ(Generales().Memo[0].size(), 40U);
  EXPECT_EQ(Generales().Memo[0].back(), "línea 40");
  EXPECT_EQ(Memo("MemoRecomendaciones")->blockCount(), 40);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "ATENCION");
  EXPECT_EQ(mensajes.recibidos[0].texto,
            "Se han definido mas de 40 líneas, se recorta el texto a las 40 primeras líneas");
}

TEST_F(TFDefinicionTest, LoQueSeTecleaSeGuardaAlCambiarDePagina) {
  QPlainTextEdit* texto = Memo("MemoRecomendaciones");
  texto->setFocus();
  QTest::keyClicks(texto, "ventilar");
  ventana->Mostrar(Destino::Titulo);
  EXPECT_EQ(Generales().Memo[0], std::vector<std::string>{"ventilar"});
  sesion.Deshacer();
  EXPECT_TRUE(Generales().Memo[0].empty());
}

TEST_F(TFDefinicionTest, SeEnsenanLasVisitasQueHay) {
  EXPECT_FALSE(Memo("Memo1")->isVisible());
  Elegir("NumeroVisitas", 2);
  EXPECT_TRUE(Memo("Memo1")->isVisible());
  EXPECT_TRUE(Memo("Memo2")->isVisible());
  EXPECT_FALSE(Memo("Memo3")->isVisible());
  EXPECT_FALSE(Memo("Memo4")->isVisible());  // de las observaciones
  Teclear(Buscar<QLineEdit>("FechaVisita2"), "02/10/2026");
  Escribir(Memo("Memo2"), "Se comprueba\nla carpintería");
  EXPECT_EQ(Generales().FechaVisita[1], "02/10/2026");
  EXPECT_EQ(Generales().Memo[2], (std::vector<std::string>{"Se comprueba", "la carpintería"}));
  Buscar<QCheckBox>("CBHuecos")->click();
  EXPECT_TRUE(Generales().CBHuecos);
}

TEST_F(TFDefinicionTest, UnaMejoraTieneSuDescripcionYSuCoste) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  ventana->Mostrar(Destino::Definicion);
  EXPECT_FALSE(Memo("MemoSecuencia")->isVisible());
  const auto recomendaciones = Generales().Memo[0];
  ASSERT_TRUE(sesion.DuplicarCaso());
  emit ventana->Contexto().ProyectoCambiado();
  EXPECT_FALSE(Memo("MemoRecomendaciones")->isVisible());
  auto* nombre = Buscar<QLineEdit>("MedidaMejora");
  ventana->Contexto().Editar("nombre", [](Edificio& e) {
    DatosGenerales g = e.GetDatosGenerales();
    g.MedidaMejora.clear();
    e.SetDatosGenerales(g);
  });
  EXPECT_EQ(nombre->text(), "Mejora");
  Teclear(nombre, "Aerotermia");
  EXPECT_EQ(Generales().MedidaMejora, "Aerotermia");
  Opcion("10000-25000")->click();
  EXPECT_EQ(Generales().Coste, 3);
  Opcion(">15 años")->click();
  EXPECT_EQ(Generales().PlazoAmortizacion, 3);
  Opcion("Protección frente a incendios")->click();
  EXPECT_TRUE(Generales().CBIncendios);
  Escribir(Memo("MemoDescripcion"), "Bomba de calor");
  sesion.ActivarCaso("Viejo");
  emit ventana->Contexto().ProyectoCambiado();
  EXPECT_EQ(Generales().Memo[0], recomendaciones);
  EXPECT_FALSE(Generales().CBIncendios);
  EXPECT_TRUE(Memo("MemoSecuencia")->isVisible());  // ya hay una mejora
}

}  // namespace
}  // namespace novex::gui::pruebas
