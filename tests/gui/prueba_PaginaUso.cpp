#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTabWidget>

#include "gui/VentanaPrueba.h"

namespace novex::gui::pruebas {
namespace {

class PaginaUsoTest : public VentanaTest {
 protected:
  void Abrir(const char* nombre) {
    ASSERT_TRUE(ventana->Abrir(Ejemplo(nombre)));
    ventana->Mostrar(Destino::Global);
    ventana->PaginaDe(Destino::Global)->findChild<QTabWidget*>()->setCurrentIndex(1);
  }
  const DatosGenerales& Generales() const { return sesion.Caso().GetDatosGenerales(); }
  float Renovaciones() const { return sesion.Caso().GetVentilacion().nrenovventilacion; }
  void Elegir(const char* direccion, int posicion) {
    auto* lista = Buscar<QComboBox>(direccion);
    ASSERT_NE(lista, nullptr);
    lista->setCurrentIndex(posicion);
    emit lista->activated(posicion);
  }
  bool SeVe(const char* direccion) {
    const auto* editor = Buscar<QWidget>(direccion);
    return editor != nullptr && editor->isVisible();
  }
};

TEST_F(PaginaUsoTest, PasarATerciarioPreguntaAntesDeBorrarLosSistemas) {
  Abrir("vivienda_unifamiliar_D3.xml");
  const std::size_t sistemas = sesion.Caso().NumeroSistemas();
  ASSERT_GT(sistemas, 0U);
  mensajes.respuesta = false;
  Elegir("PerfilUso", 4);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(Generales().PerfilUso, 0);
  EXPECT_EQ(Buscar<QComboBox>("PerfilUso")->currentIndex(), 0);
  Elegir("PerfilUso", 2);  // sigue siendo vivienda: no pregunta
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(sesion.Caso().NumeroSistemas(), sistemas);
  EXPECT_TRUE(SeVe("NVBloqueF"));
  mensajes.respuesta = true;
  Elegir("PerfilUso", 4);
  EXPECT_EQ(Generales().PerfilUso, 4);
  EXPECT_EQ(sesion.Caso().NumeroSistemas(), 0U);
  for (const char* deTerciario : {"Uso", "TipoVEIIMax", "Lux", "Actividad", "AceptarIDA1"})
    EXPECT_TRUE(SeVe(deTerciario)) << deTerciario;
  for (const char* deVivienda : {"Tipologia[1]/N_viviendas", "TipoVentilacion2", "NVBloqueF",
                                 "Calcular_Renov_h_segun_HS3", "ManejoVentanas2"})
    EXPECT_FALSE(SeVe(deVivienda)) << deVivienda;
  // Sin superficie por persona una clase de aire no tiene caudal: no se puede aceptar.
  EXPECT_FALSE(Buscar<QPushButton>("AceptarIDA1")->isEnabled());
  Teclear(Buscar<QLineEdit>("Nm2_p"), "10");
  EXPECT_TRUE(Buscar<QPushButton>("AceptarIDA1")->isEnabled());
  sesion.Deshacer();
  sesion.Deshacer();
  EXPECT_EQ(sesion.Caso().NumeroSistemas(), sistemas);
}

// Con DB-HS3, 4 dormitorios y una sala piden 30 l/s de admisión; 5 baños, 40 l/s de extracción.
TEST_F(PaginaUsoTest, LasRenovacionesSiguenALasViviendasYAlVolumen) {
  Abrir("vivienda_unifamiliar_D3.xml");
  EXPECT_FALSE(Buscar<QLineEdit>("nrenovventilacion")->isEnabled());
  Teclear(Buscar<QLineEdit>("Tipologia[1]/N_cuartos_de_banyo"), "5");
  EXPECT_NEAR(Renovaciones(), 40 * 3.6 / 457.6, 1e-4);
  Teclear(Buscar<QLineEdit>("Volumen_total_m3"), "400");
  EXPECT_NEAR(Renovaciones(), 40 * 3.6 / 400, 1e-4);
  Buscar<QCheckBox>("Calcular_Renov_h_segun_HS3")->click();
  Teclear(Buscar<QLineEdit>("nrenovventilacion"), "0,63");
  EXPECT_NEAR(Renovaciones(), 0.63, 1e-6);
  Teclear(Buscar<QLineEdit>("nrenovventilacion"), "31");  // como mucho 30: vale 0,5
  EXPECT_NEAR(Renovaciones(), 0.5, 1e-6);
  Teclear(Buscar<QLineEdit>("ConsumoAgua_litros_dia"), "99");
  Buscar<QPushButton>("TomarAguaDeReferencia")->click();
  EXPECT_EQ(Generales().ConsumoAgua_litros_dia, 140);  // 28 l por cada una de 5 personas
}

TEST_F(PaginaUsoTest, SeEnsenanLosTiposDeViviendaQueHayYUnoMas) {
  Abrir("vivienda_unifamiliar_D3.xml");
  EXPECT_TRUE(SeVe("Tipologia[2]/N_viviendas"));
  EXPECT_FALSE(SeVe("Tipologia[3]/N_viviendas"));
  Teclear(Buscar<QLineEdit>("Tipologia[2]/N_viviendas"), "3");
  EXPECT_TRUE(SeVe("Tipologia[3]/N_cuartos_de_banyo"));
  EXPECT_FALSE(SeVe("Tipologia[4]/N_viviendas"));
}

TEST_F(PaginaUsoTest, ElRecuperadorEnsenaSoloSusDatos) {
  Abrir("vivienda_unifamiliar_D3.xml");
  Elegir("Recuperador", 1);  // sensible sin by-pass
  EXPECT_TRUE(SeVe("Eficiencia_recuperador"));
  EXPECT_FALSE(SeVe("Teminrec"));
  Elegir("Recuperador", 0);
  EXPECT_FALSE(SeVe("Eficiencia_recuperador"));
  EXPECT_TRUE(SeVe("WRecuperador"));
  Elegir("TipoVentilacion2", 1);  // híbrida
  EXPECT_FALSE(SeVe("Recuperador"));
  EXPECT_FALSE(SeVe("WRecuperador"));
  Elegir("Tipon50", 1);
  EXPECT_TRUE(SeVe("Valorn50"));
}

TEST_F(PaginaUsoTest, ElTerciarioTieneSuAireYSuIluminacion) {
  Abrir("oficina_VRV_B4.xml");
  EXPECT_TRUE(SeVe("TipoCO2"));
  EXPECT_TRUE(SeVe("Eficiencia_recuperador_Ental"));
  EXPECT_FALSE(SeVe("CaudalUTA"));
  Buscar<QPushButton>("AceptarIDA3")->click();
  // 28,8 m3/h por persona, 10 m2 por persona, 1032 m2 y 3405,6 m3.
  EXPECT_NEAR(Renovaciones(), 28.8 * 103.2 / 3405.6, 1e-4);
  EXPECT_EQ(sesion.Caso().GetVentilacion().Calcular_Renov_h_segun_HS3, "Si");
  EXPECT_TRUE(Buscar<QLineEdit>("nrenovventilacion")->isEnabled());
  Elegir("ManejoVentilacion", 3);  // todo aire
  EXPECT_TRUE(SeVe("CaudalUTA"));
  Elegir("ManejoVentilacion", 0);  // tomas
  EXPECT_TRUE(SeVe("PerdPresionToma"));
  for (const char* deUTA : {"TipoCO2", "Recuperador", "HRmin", "ControlVent"})
    EXPECT_FALSE(SeVe(deUTA)) << deUTA;
  EXPECT_FALSE(Buscar<QLineEdit>("VEIIMax")->isEnabled());
  Elegir("TipoVEIIMax", 23);
  EXPECT_EQ(Generales().VEIIMax, 7);
  Teclear(Buscar<QLineEdit>("VEIIMax"), "2,5");
  EXPECT_EQ(Generales().VEIIMax, 2.5F);
  Teclear(Buscar<QLineEdit>("Lux"), "601");
  EXPECT_EQ(Generales().EPotIluMax, 25);
  Teclear(Buscar<QLineEdit>("Iluminacion"), "27");  // como mucho 26: vale 5
  EXPECT_EQ(Generales().Iluminacion, 5);
  Teclear(Buscar<QLineEdit>("Sensibleocupantes"), "8");
  Teclear(Buscar<QLineEdit>("Latenteocupantes"), "5");
  Teclear(Buscar<QLineEdit>("Equipos"), "41");  // como mucho 40: vale 0
  EXPECT_EQ(Generales().Sensibleocupantes, 8);
  EXPECT_EQ(Generales().Latenteocupantes, 5);
  EXPECT_EQ(Generales().Equipos, 0);
}

TEST_F(PaginaUsoTest, RefrescarEsRapido) {
  Abrir("oficina_VRV_B4.xml");
  Pagina* global = ventana->PaginaDe(Destino::Global);
  QElapsedTimer reloj;
  reloj.start();
  constexpr int kVeces = 20;
  for (int i = 0; i < kVeces; ++i) global->Refrescar();
  // Se piden 5 ms; el doble es el margen de una máquina ocupada.
  RecordProperty("ms", static_cast<int>(reloj.elapsed() / kVeces));
  EXPECT_LT(reloj.elapsed(), kVeces * 10);
}

}  // namespace
}  // namespace novex::gui::pruebas
