#include "shell/gui/ProgresoVentana.h"

#include "VentanaPrueba.h"

namespace novex::gui::pruebas {
namespace {

QProgressDialog* Panel() {
  return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
}

TEST(ProgresoVentana, ElPanelSoloSaleSiElCalculoTarda) {
  {
    ProgresoVentana corto(60'000);
    corto.Avanzar(50);
    EXPECT_EQ(Panel(), nullptr);
  }
  ProgresoVentana largo(0);
  QTest::qSleep(2);
  largo.Avanzar(30);
  ASSERT_NE(Panel(), nullptr);
  EXPECT_EQ(Panel()->labelText(), "Calculando, tardamos 15 segundos....................");
  EXPECT_EQ(Panel()->value(), 30);
  // El edificio de referencia vuelve a empezar; lo hecho, no.
  largo.Avanzar(10);
  EXPECT_EQ(Panel()->value(), 30);
  Panel()->cancel();
  EXPECT_THROW(largo.Avanzar(60), CalculoCancelado);
}

class CalculoLargoTest : public VentanaTest {
 protected:
  /// Entra en los resultados y cancela el cálculo cuando sale su panel.
  void EntrarYCancelar() {
    QTimer buscar;
    QObject::connect(&buscar, &QTimer::timeout, [this] {
      if (Panel() == nullptr) return;
      canceladas++;
      EXPECT_TRUE(ventana->Contexto().Calculando());
      Panel()->cancel();
    });
    buscar.start(0);
    ventana->Mostrar(Destino::Certificacion);
  }
  int canceladas = 0;
};

TEST_F(CalculoLargoTest, CancelarDejaLoCalculadoYSePuedeVolverAEntrar) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("bloque_caldera_central_solar_B3.xml")));
  for (int i = 0; i < 5; ++i) ASSERT_TRUE(sesion.DuplicarCaso());
  ASSERT_EQ(sesion.Gestor().NumeroCasos(), 6U);
  EntrarYCancelar();
  ASSERT_GT(canceladas, 0);
  EXPECT_FALSE(ventana->Contexto().Calculando());
  EXPECT_EQ(ventana->Contexto().FalloCalculo(), "Se ha cancelado el cálculo");
  EXPECT_EQ(Panel(), nullptr);
  const Edificio* ultimo = sesion.Gestor().Caso(GestorEdifActivo::NombreCasoUsuario(5));
  EXPECT_TRUE(!ultimo->GetCalculo() || !ultimo->GetCalculo()->Calculado());
  ventana->Mostrar(Destino::Titulo);
  ventana->Mostrar(Destino::Certificacion);
  EXPECT_TRUE(ventana->Contexto().FalloCalculo().isEmpty());
  EXPECT_TRUE(ultimo->GetCalculo()->Calculado());
}

}  // namespace
}  // namespace novex::gui::pruebas
