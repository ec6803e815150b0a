#include "shell/gui/PaginaHuecos.h"

#include <QLineSeries>

#include "entry/GraficoSombra.h"
#include "gui/VentanaPrueba.h"
#include "shell/gui/DialogoColumna.h"
#include "shell/gui/DialogoCopiaHuecos.h"
#include "shell/gui/DialogoSombra.h"
#include "shell/gui/PaginaPestanas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui::pruebas {
namespace {

class PaginaHuecosTest : public VentanaTest {
 protected:
  void SetUp() override {
    ventana->Mostrar(Destino::Edificio);
    static_cast<PaginaPestanas*>(ventana->PaginaDe(Destino::Edificio))->Mostrar("Huecos");
    pagina = ventana->findChild<PaginaHuecos*>();
    ASSERT_NE(pagina, nullptr);
  }
  const Huecos& Grupo(std::size_t i) { return sesion.Caso().GetHuecos(i); }
  void Pulsar(const char* nombre) {
    auto* boton = pagina->findChild<QPushButton*>(nombre);
    ASSERT_NE(boton, nullptr) << nombre;
    QTest::mouseClick(boton, Qt::LeftButton);
  }
  void Escribir(const char* direccion, const QString& texto) {
    auto* linea = Buscar<QLineEdit>(direccion);
    ASSERT_NE(linea, nullptr) << direccion;
    Teclear(linea, texto);
  }
  void Elegir(const char* direccion, int posicion) {
    auto* lista = Buscar<QComboBox>(direccion);
    ASSERT_NE(lista, nullptr) << direccion;
    ASSERT_LT(posicion, lista->count());
    lista->setCurrentIndex(posicion);
    emit lista->activated(posicion);
  }
  QString Texto(const char* nombre) {
    auto* rotulo = pagina->findChild<QLabel*>(nombre);
    return rotulo == nullptr ? QString() : rotulo->text();
  }
  // ¿Hay a la vista un rótulo con ese texto?
  bool SeLee(const QString& texto) {
    for (const QLabel* rotulo : pagina->findChildren<QLabel*>())
      if (rotulo->isVisible() && rotulo->text().contains(texto)) return true;
    return false;
  }
  PaginaHuecos* pagina = nullptr;
};

TEST_F(PaginaHuecosTest, GruposQueSeAnadenSeRenombranYSeQuitan) {
  auto* lista = pagina->findChild<QTreeWidget*>("LVHuecos");
  ASSERT_EQ(lista->topLevelItemCount(), 1);
  EXPECT_FALSE(pagina->findChild<QPushButton*>("BVentanasMenos")->isEnabled());
  Pulsar("BVentanasMas");
  ASSERT_EQ(lista->topLevelItemCount(), 2);
  EXPECT_EQ(pagina->Grupo(), 1U);
  Escribir("Hueco[2]/Nombre_hueco", "Salon");
  EXPECT_EQ(lista->topLevelItem(1)->text(0), "Salon");
  Escribir("Hueco[2]/Ancho_m", "3");
  EXPECT_EQ(Grupo(1).Ancho_m, 3.0F);
  EXPECT_EQ(Grupo(0).Ancho_m, 2.0F);
  lista->setCurrentItem(lista->topLevelItem(0));
  EXPECT_EQ(Buscar<QLineEdit>("Hueco[2]/Ancho_m"), nullptr);
  ASSERT_NE(Buscar<QLineEdit>("Hueco[1]/Ancho_m"), nullptr);
  EXPECT_EQ(Buscar<QLineEdit>("Hueco[1]/Ancho_m")->text(), "2.00");
  Pulsar("BVentanasMenos");
  ASSERT_EQ(sesion.Caso().NumeroHuecos(), 1U);
  EXPECT_EQ(Grupo(0).Nombre_hueco, "Salon");
  EXPECT_EQ(Buscar<QLineEdit>("Hueco[1]/Ancho_m")->text(), "3.00");
  EXPECT_EQ(sesion.QueDeshace(), "Quitar un grupo de huecos");
}

// Deshacer lo que ha hecho el grupo elegido lo quita, con su ficha a la vista.
TEST_F(PaginaHuecosTest, DeshacerUnGrupoElegidoEnsenaElAnterior) {
  Pulsar("BVentanasMas");
  auto* ancho = Buscar<QLineEdit>("Hueco[2]/Ancho_m");
  ancho->setFocus();
  QTest::keyClicks(ancho, "7");  // a medio teclear
  sesion.Deshacer();
  emit ventana->Contexto().ProyectoCambiado();
  EXPECT_EQ(pagina->Grupo(), 0U);
  EXPECT_EQ(sesion.Caso().NumeroHuecos(), 1U);
  EXPECT_EQ(Grupo(0).Ancho_m, 2.0F);
  EXPECT_NE(Buscar<QLineEdit>("Hueco[1]/Ancho_m"), nullptr);
}

TEST_F(PaginaHuecosTest, UnidadesPorOrientacion) {
  Escribir("Hueco[1]/Numero_ventanas_sur", "3");
  Escribir("Hueco[1]/Numero_lucernarios_Hz", "1");
  EXPECT_EQ(Grupo(0).columnas[sur].recintos.size(), 3U);
  EXPECT_EQ(Grupo(0).columnas[kColumnaHorizontal].recintos.size(), 1U);
  auto* lista = pagina->findChild<QTreeWidget*>("LVHuecos");
  EXPECT_EQ(lista->topLevelItem(0)->text(1), "4");
  EXPECT_EQ(lista->topLevelItem(0)->text(2), "8,0");  // de 2 × 1 m
  EXPECT_TRUE(SeLee("6,00 m²"));
  Escribir("Hueco[1]/Numero_ventanas_sur", "1000");  // hasta 999
  EXPECT_EQ(Grupo(0).columnas[sur].recintos.size(), 0U);
  EXPECT_TRUE(SeLee("ventanas"));  // el aviso
  EXPECT_EQ(Buscar<QLineEdit>("Hueco[1]/Numero_ventanas_sur")->text(), "0");

  EXPECT_TRUE(SeLee("Ventana SE.."));
  Elegir("Hueco[1]/Tipo_de_hueco", kLucernario);
  EXPECT_TRUE(SeLee("Inclinada SE.."));
  EXPECT_FALSE(SeLee("Ventana SE.."));
  EXPECT_TRUE(SeLee("Fondo del pozo"));
  EXPECT_FALSE(Buscar<QLineEdit>("Hueco[1]/Retranqueo_m")->isVisible());
  EXPECT_FALSE(pagina->findChild<QPushButton*>("asignar_sur")->isEnabled());
}

TEST_F(PaginaHuecosTest, ElVidrioYElMarcoSalenDelCatalogo) {
  Elegir("Hueco[1]/Indice_tipo_cristal", 1);  // dobles: el primero es 4-6-4
  EXPECT_EQ(Grupo(0).U_cristal_W_m2K, 3.28F);
  EXPECT_EQ(Grupo(0).FS_cristal_tanto_por_uno, 0.76F);
  auto* concreto = Buscar<QComboBox>("Hueco[1]/Indice_cristal_concreto");
  EXPECT_EQ(concreto->currentText(), "4-6-4");
  Elegir("Hueco[1]/Indice_cristal_concreto", concreto->findText("4-12-4"));
  EXPECT_EQ(Grupo(0).U_cristal_W_m2K, 2.85F);
  EXPECT_EQ(Grupo(0).Indice_cristal_concreto, 4);
  auto* nota = pagina->findChild<QLabel*>("notaVidrio");
  EXPECT_FALSE(nota->isVisible());

  Escribir("Hueco[1]/U_cristal_W_m2K", "1,1");
  EXPECT_TRUE(nota->isVisible());
  EXPECT_TRUE(nota->text().contains("2,85"));
  emit nota->linkActivated("#");
  EXPECT_EQ(Grupo(0).U_cristal_W_m2K, 2.85F);
  EXPECT_FALSE(nota->isVisible());

  Elegir("Hueco[1]/Indice_marco", 7);  // «Otros» tiene varios
  Elegir("marcoConcreto", 4);          // mixto de madera y aluminio
  EXPECT_EQ(Grupo(0).Indice_marco, 7);
  EXPECT_EQ(Grupo(0).U_marco_W_m2K, 1.4F);
  EXPECT_EQ(Grupo(0).Fraccion_marco_tanto_por_cien, 10.0F);
  // En un lucernario se toman los valores en horizontal.
  Elegir("Hueco[1]/Tipo_de_hueco", kLucernario);
  EXPECT_TRUE(nota->text().contains("3,41"));
  emit nota->linkActivated("#");
  EXPECT_EQ(Grupo(0).U_cristal_W_m2K, 3.41F);
}

TEST_F(PaginaHuecosTest, LaPermeabilidadTieneSuClase) {
  auto* clase = Buscar<QComboBox>("Hueco[1]/Indice_tipo_junta");
  Elegir("Hueco[1]/Indice_tipo_junta", 3);
  EXPECT_EQ(Grupo(0).Permeabilidad_Ventanas, 9.0F);
  EXPECT_EQ(Grupo(0).Indice_tipo_junta, 3);
  Escribir("Hueco[1]/Permeabilidad_Ventanas", "139");
  EXPECT_EQ(clase->currentIndex(), -1);
  Escribir("Hueco[1]/Permeabilidad_Ventanas", "27");
  EXPECT_EQ(clase->currentText(), "Clase 2");
}

// Vidrio de U 2 y g 0,5 sin marco, de 2 × 1 m: L = 6 m a 0,05 W/mK da 2,15 W/m2K.
TEST_F(PaginaHuecosTest, LasCifrasSiguenALasEdiciones) {
  Elegir("Hueco[1]/Indice_tipo_cristal", 1);
  Elegir("Hueco[1]/Indice_marco", 5);
  Escribir("Hueco[1]/Fraccion_marco_tanto_por_cien", "0");
  Escribir("Hueco[1]/U_cristal_W_m2K", "2");
  Escribir("Hueco[1]/FS_cristal_tanto_por_uno", "0.5");
  EXPECT_TRUE(Texto("cifrasHueco").contains("2,15"));
  EXPECT_TRUE(Texto("cifrasHueco").contains("0,50"));
  EXPECT_FALSE(Texto("cifrasHueco").contains("protección"));
  EXPECT_FALSE(Buscar<QComboBox>("Hueco[1]/Indice_tipo_control_Verano")->isVisible());
  Elegir("Hueco[1]/Indice_tipo_sombra_movil", 5);      // toldo pastel: 0,23
  EXPECT_TRUE(Texto("cifrasHueco").contains("0,12"));  // 0,115, al par
  EXPECT_TRUE(Buscar<QComboBox>("Hueco[1]/Indice_tipo_control_Verano")->isVisible());
  Elegir("Hueco[1]/Indice_tipo_control_Verano", 8);
  EXPECT_EQ(Grupo(0).Indice_tipo_control_Verano, 8);
  Escribir("Hueco[1]/FS_cristal_tanto_por_uno", "0.95");  // hasta 0,9
  EXPECT_TRUE(SeLee("factor solar"));
  EXPECT_LE(Grupo(0).FS_cristal_tanto_por_uno, 0.9F);
}

TEST_F(PaginaHuecosTest, LaCajaDePersianaSoloCuentaSiExiste) {
  auto* u = Buscar<QLineEdit>("Hueco[1]/U_Caja_de_persiana_W_m2K");
  EXPECT_FALSE(u->isVisible());
  Elegir("Hueco[1]/Existe_Caja_persiana", 0);
  EXPECT_EQ(Grupo(0).Existe_Caja_persiana, 0);
  EXPECT_TRUE(u->isVisible());
  EXPECT_TRUE(SeLee("Falta la U de la caja"));
  Escribir("Hueco[1]/U_Caja_de_persiana_W_m2K", "1,5");
  EXPECT_FALSE(SeLee("Falta la U de la caja"));
  Elegir("Hueco[1]/Tipo_de_Vinf_Caja_persiana", 2);
  EXPECT_EQ(Grupo(0).Tipo_de_Vinf_Caja_persiana, 2);
}

TEST_F(PaginaHuecosTest, ObstaculosDeUnaColumna) {
  ventana->Contexto().Editar("huecos",
                             [](Edificio& e) { e.GetHuecos(0).columnas[sur_oeste].Anadir(4); });
  EXPECT_EQ(pagina->findChild<QPushButton*>("asignar_sur")->text(),
            sesion.Caso().GetDatosGenerales().Modo_Vision == "Simplificado" ? "Asignar/Sombra"
                                                                            : "Asignar");
  EXPECT_EQ(pagina->findChild<QPushButton*>("asignar_norte"), nullptr);
  DialogoColumna dialogo(ventana->Contexto(), 0, sur_oeste, nullptr);
  dialogo.show();
  const auto linea = [&](const char* final) {
    return dialogo.findChild<QLineEdit*>(QString("Hueco[1]/") + final);
  };
  for (const char* hacia : {"oeste", "sur_oeste", "sur"})
    EXPECT_NE(linea((std::string("Ventana_sur_oeste_altura_obstaculo_") + hacia).c_str()), nullptr);
  EXPECT_EQ(linea("Ventana_sur_oeste_altura_obstaculo_este"), nullptr);
  Teclear(linea("Ventana_sur_oeste_altura_obstaculo_sur"), "5");
  Teclear(linea("Ventana_sur_oeste_distancia_obstaculo_sur"), "2.5");
  Teclear(linea("Separacion_ventanas_vertical_sur_oeste"), "0");
  EXPECT_EQ(Grupo(0).columnas[sur_oeste].obstaculos[2], (ObstaculoCercano{5, 2.5F}));
  EXPECT_EQ(Grupo(0).columnas[sur_oeste].Separacion_ventanas_vertical, 0.0F);
  // En enero el sol está al sur a 30°: 5 - 2,5 × 0,58 m en sombra tapan los cuatro, que sin
  // separación van juntos. En invierno cuentan dos direcciones. En junio, a 74°, no llega.
  EXPECT_EQ(dialogo.findChild<QLabel*>("libre_1")->text(), "50");
  EXPECT_EQ(dialogo.findChild<QLabel*>("libre_6")->text(), "100");
  Teclear(linea("Numero_ventanas_sur_oeste"), "0");
  EXPECT_TRUE(Grupo(0).columnas[sur_oeste].recintos.empty());
}

TEST_F(PaginaHuecosTest, CopiaDePropiedadesAOtrosGrupos) {
  ventana->Contexto().Editar("grupos", [](Edificio& e) {
    for (int i = 0; i < 3; ++i) AnadirGrupoHuecos(e);
    e.GetHuecos(0).U_cristal_W_m2K = 1.1F;
    e.GetHuecos(0).Indice_tipo_sombra_movil = 4;
    e.GetHuecos(2).Tipo_de_hueco = kPuerta;
  });
  DialogoCopiaHuecos dialogo(ventana->Contexto(), 0, nullptr);
  dialogo.show();
  auto* aplicar = dialogo.findChild<QPushButton*>("BitBtnAplicarPropGrupos");
  EXPECT_FALSE(aplicar->isEnabled());
  QTest::mouseClick(dialogo.findChild<QCheckBox*>("CBGTodos"), Qt::LeftButton, {}, {8, 8});
  EXPECT_FALSE(aplicar->isEnabled());  // falta decir qué
  for (QCheckBox* conjunto : dialogo.findChildren<QCheckBox*>())
    if (conjunto->text() == "Tipo de cristal") conjunto->setChecked(true);
  ASSERT_TRUE(aplicar->isEnabled());
  QTest::mouseClick(aplicar, Qt::LeftButton);
  EXPECT_EQ(Grupo(1).U_cristal_W_m2K, 1.1F);
  EXPECT_EQ(Grupo(3).U_cristal_W_m2K, 1.1F);
  EXPECT_EQ(Grupo(2).U_cristal_W_m2K, 5.7F);        // una puerta
  EXPECT_EQ(Grupo(1).Indice_tipo_sombra_movil, 0);  // no se ha marcado
  sesion.Deshacer();
  EXPECT_EQ(Grupo(1).U_cristal_W_m2K, 5.7F);
  const DialogoCopiaHuecos deUnaPuerta(ventana->Contexto(), 2, nullptr);
  EXPECT_TRUE(deUnaPuerta.findChild<QLabel*>("resultado")->text().contains("puerta"));
  EXPECT_TRUE(dialogo.findChild<QLabel*>("resultado")->text().startsWith("Copiado en 2"));
}

TEST_F(PaginaHuecosTest, LaGraficaDeSombraEsLaDelCaso) {
  ObstaculosRemotos o;
  o.Sur_Altura = 40;
  o.Sur_Distancia = 20;
  ventana->Contexto().Editar("obstáculos", [&](Edificio& e) {
    e.SetObstaculosRemotos(o);
    e.GetRecinto(0).Suelo_al_terreno_m2[0] = 50;  // sin suelo no hay altura
  });
  DialogoSombra dialogo(ventana->Contexto(), sur, nullptr);
  const GraficoSombra esperado = CalcularGraficoSombra(sur, sesion.Caso());
  const auto series = dialogo.Grafica().series();
  ASSERT_EQ(series.size(), 7);
  EXPECT_EQ(series[0]->name(), "Diciembre");
  EXPECT_EQ(series[6]->name(), "Junio");
  float maxima = 0;
  for (std::size_t s = 0; s < esperado.size(); ++s) {
    const auto puntos = static_cast<QLineSeries*>(series[static_cast<int>(s)])->points();
    ASSERT_EQ(puntos.size(), 24);
    for (int h = 1; h <= 24; ++h) {
      const float valor = esperado[s].porcentaje[static_cast<std::size_t>(h)];
      EXPECT_FLOAT_EQ(static_cast<float>(puntos[h - 1].y()), valor);
      maxima = std::max(maxima, valor);
    }
  }
  EXPECT_GT(maxima, 50.0F);
  DialogoSombra otra(ventana->Contexto(), este, nullptr);
  bool lo_dice = false;
  for (const QLabel* nota : otra.findChildren<QLabel*>())
    lo_dice |= nota->text().startsWith("Ningún obstáculo lejano");
  EXPECT_TRUE(lo_dice);
}

}  // namespace
}  // namespace novex::gui::pruebas
