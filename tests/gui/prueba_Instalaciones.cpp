#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>
#include <QTreeWidget>
#include <functional>

#include "calculation/EjecutarCalculo.h"
#include "gui/VentanaPrueba.h"
#include "shell/gui/DialogoCatalogo.h"
#include "shell/gui/DialogoDimensionado.h"
#include "shell/gui/DialogoSistema.h"
#include "shell/gui/FichaFotovoltaica.h"
#include "shell/gui/TbdEquipos.h"

namespace novex::gui::pruebas {
namespace {

class InstalacionesTest : public VentanaTest {
 protected:
  void Abrir(const char* ejemplo) {
    ASSERT_TRUE(ventana->Abrir(Ejemplo(ejemplo)));
    ventana->Mostrar(Destino::Instalaciones);
  }
  template <class T>
  T* Pieza(const char* nombre) {
    return ventana->PaginaDe(Destino::Instalaciones)->findChild<T*>(nombre);
  }
  QTreeWidget* Arbol() { return Pieza<QTreeWidget>("LVSistemas"); }
  /// Elige el primer nodo del árbol con ese texto.
  void Elegir(const char* texto) {
    const auto nodos = Arbol()->findItems(texto, Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_FALSE(nodos.isEmpty()) << texto;
    Arbol()->setCurrentItem(nodos.first());
  }
  QStringList Nodos() {
    QStringList textos;
    for (QTreeWidgetItemIterator it(Arbol()); *it != nullptr; ++it) textos << (*it)->text(0);
    return textos;
  }
  /// Elige de una lista de la página.
  void ElegirLista(const char* direccion, const char* texto) {
    auto* lista = Buscar<QComboBox>(direccion);
    ASSERT_NE(lista, nullptr) << direccion;
    const int posicion = lista->findData(texto);
    ASSERT_GE(posicion, 0) << texto;
    lista->setCurrentIndex(posicion);
    emit lista->activated(posicion);
  }
  /// Pulsa un botón que abre un diálogo y hace algo en él.
  template <class Dialogo>
  void EnDialogo(QPushButton* boton, const std::function<void(Dialogo&)>& hacer) {
    ASSERT_NE(boton, nullptr);
    bool abierto = false;
    QTimer::singleShot(0, [&] {
      auto* dialogo = qobject_cast<Dialogo*>(QApplication::activeModalWidget());
      ASSERT_NE(dialogo, nullptr);
      abierto = true;
      hacer(*dialogo);
      if (dialogo->isVisible()) dialogo->reject();
    });
    boton->click();
    EXPECT_TRUE(abierto);
  }
  QPushButton* Boton(const QString& texto) {
    for (auto* b : ventana->PaginaDe(Destino::Instalaciones)->findChildren<QPushButton*>())
      if (b->text() == texto && b->isVisible()) return b;
    return nullptr;
  }
  const Instalaciones& Bloque(std::size_t s) {
    return sesion.Caso().GetSistema(s).instalaciones[0];
  }
};

TEST_F(InstalacionesTest, ElArbolTieneServiciosGeneradoresYEmisores) {
  Abrir("caldera_condensacion_solar_D3.xml");
  EXPECT_EQ(Nodos(), QStringList({"ACS", "1 Caldera", "Depósito 120 l", "Calefacción",
                                  "1 Caldera (Radiadores)", "Radiadores", "Refrigeración",
                                  "Equipo Split (Unid.Interior)", "Unid.Interior", "Solar térmica",
                                  "Fotovoltaica"}));
  Elegir("Equipo Split (Unid.Interior)");
  EXPECT_NE(Buscar<QLineEdit>("Tipo_sistema[3]/QFrioTot1"), nullptr);
  EXPECT_EQ(Buscar<QLineEdit>("Tipo_sistema[3]/QcalorCaldera1"), nullptr);
  EXPECT_EQ(Buscar<QLineEdit>("Tipo_sistema[1]/QcalorCaldera1"), nullptr);
}

// Se pliegan dos servicios y se edita el sistema de uno: siguen plegados y el nodo elegido es el
// suyo.
TEST_F(InstalacionesTest, ElArbolSigueComoEstabaTrasUnaEdicion) {
  Abrir("caldera_condensacion_solar_D3.xml");
  EXPECT_EQ(Pieza<QLabel>("reparto")->text(), "Reparto: ACS 100 %");
  EXPECT_TRUE(Pieza<QLabel>("sinSistema")->isHidden());
  Elegir("Radiadores");
  Arbol()->topLevelItem(0)->setExpanded(false);
  Teclear(Buscar<QLineEdit>("Tipo_sistema[2]/QcalorCaldera1"), "40");
  EXPECT_FALSE(Arbol()->topLevelItem(0)->isExpanded());
  EXPECT_TRUE(Arbol()->topLevelItem(1)->isExpanded());
  EXPECT_EQ(Arbol()->currentItem()->text(0), "Radiadores");
  // Plegar lo elegido deja elegido su servicio, y otra edición no lo despliega.
  Arbol()->setCurrentItem(Arbol()->topLevelItem(1));
  Arbol()->topLevelItem(1)->setExpanded(false);
  Teclear(Buscar<QLineEdit>("Tipo_sistema[2]/QcalorCaldera1"), "30");
  EXPECT_FALSE(Arbol()->topLevelItem(1)->isExpanded());
  EXPECT_EQ(Arbol()->currentItem(), Arbol()->topLevelItem(1));
  Pieza<QPushButton>("eliminar")->click();
  EXPECT_EQ(Pieza<QLabel>("sinSistema")->text().replace(QChar::Nbsp, ' '),
            "Sin sistema: calefacción 100 %");
}

TEST_F(InstalacionesTest, UnaPotenciaSeTecleaRellenaSeRechazaYSeDeshace) {
  Abrir("caldera_condensacion_solar_D3.xml");
  Elegir("1 Caldera (Radiadores)");
  const float caudal = Bloque(1).GEN1.Caudal;
  Teclear(Buscar<QLineEdit>("Tipo_sistema[2]/QcalorCaldera1"), "40");
  EXPECT_FLOAT_EQ(Bloque(1).QcalorCaldera1, 40);
  EXPECT_NE(Bloque(1).GEN1.Caudal, caudal);
  EXPECT_EQ(Buscar<QLineEdit>("Tipo_sistema[2]/CaudalGEN1")->text().toFloat(),
            std::round(Bloque(1).GEN1.Caudal * 100) / 100);
  Teclear(Buscar<QLineEdit>("Tipo_sistema[2]/RendCalor1"), "3");  // de 0,6 a 1,2
  EXPECT_FLOAT_EQ(Bloque(1).RendCalor1, 0.95F);
  EXPECT_EQ(Buscar<QLineEdit>("Tipo_sistema[2]/RendCalor1")->text(), "0.95");
  sesion.Deshacer();
  sesion.Deshacer();
  EXPECT_FLOAT_EQ(Bloque(1).GEN1.Caudal, caudal);
}

TEST_F(InstalacionesTest, LosCamposSiguenALasElecciones) {
  Abrir("caldera_condensacion_solar_D3.xml");
  ElegirLista("Tipo_sistema[1]/Retorno", "Con retorno");
  ASSERT_NE(Buscar<QLineEdit>("Tipo_sistema[1]/Long_tuberias"), nullptr);
  ASSERT_NE(Buscar<QLineEdit>("Tipo_sistema[1]/CaudalRET"), nullptr);
  ElegirLista("Tipo_sistema[1]/TipoGenerador1", "Biomasa");
  EXPECT_NE(Buscar<QComboBox>("Tipo_sistema[1]/CombCalorBio1"), nullptr);
  EXPECT_EQ(Buscar<QComboBox>("Tipo_sistema[1]/CombCalor1"), nullptr);
  // Sin depósito se van sus campos, también el que se está tecleando.
  auto* volumen = Buscar<QLineEdit>("Tipo_sistema[1]/Volumen");
  volumen->setFocus();
  QTest::keyClicks(volumen, "9");
  ElegirLista("Tipo_sistema[1]/Distribucion", "Directo");
  EXPECT_EQ(Buscar<QLineEdit>("Tipo_sistema[1]/Volumen"), nullptr);
  EXPECT_EQ(Bloque(0).Alimentacion, "Alimentación agua red");
  QTest::qWait(10);  // se borra lo que se quitó
  // La única de calefacción puede ser central, y entonces tiene otras clases; un split no puede.
  Elegir("1 Caldera (Radiadores)");
  EXPECT_EQ(Buscar<QComboBox>("Tipo_sistema[2]/Seleccion")->count(), 7);
  ElegirLista("Tipo_sistema[2]/TipoInstalacionesG", "Centralizada/Bloque");
  EXPECT_EQ(Buscar<QComboBox>("Tipo_sistema[2]/Seleccion")->count(), 5);
  Elegir("Equipo Split (Unid.Interior)");
  ElegirLista("Tipo_sistema[3]/TipoInstalacionesG", "Centralizada/Bloque");
  EXPECT_EQ(Bloque(2).TipoInstalacionesG, "Individual/Vivienda");
  EXPECT_EQ(Buscar<QComboBox>("Tipo_sistema[3]/TipoInstalacionesG")->currentData(),
            "Individual/Vivienda");
}

TEST_F(InstalacionesTest, SeCreaSeRechazaYSeElimina) {
  Abrir("caldera_condensacion_solar_D3.xml");
  EnDialogo<DialogoSistema>(Pieza<QPushButton>("crear"), [&](DialogoSistema& d) {
    auto* clases = d.findChild<QListWidget*>("clases");
    const auto servicio = [&](const char* texto) {
      for (auto* boton : d.findChildren<QRadioButton*>())
        if (boton->text() == texto) boton->click();
    };
    EXPECT_EQ(clases->count(), 9);
    servicio("Calefacción");
    servicio("Centralizada/Edificio");
    EXPECT_EQ(clases->count(), 5);
    d.findChild<QPushButton*>("BitBtn3")->click();  // ya hay una individual
    ASSERT_EQ(mensajes.recibidos.size(), 1U);
    EXPECT_TRUE(mensajes.recibidos[0].texto.starts_with(
        "Ya existe una instalación individual de calefacción"));
    EXPECT_EQ(sesion.Caso().NumeroSistemas(), 3U);
    servicio("Individual/Vivienda");
    clases->setCurrentItem(clases->findItems("Radiadores eléctricos", Qt::MatchExactly).first());
    auto* superficie = d.findChild<QLineEdit*>("superficie");
    superficie->setText("0");
    d.findChild<QPushButton*>("BitBtn3")->click();
    ASSERT_EQ(mensajes.recibidos.size(), 2U);
    EXPECT_EQ(mensajes.recibidos[1].titulo, "Valor incorrecto");
    superficie->setText("40");
    d.findChild<QLineEdit*>("nombre")->setText("Baños");
    d.findChild<QPushButton*>("BitBtn3")->click();
  });
  ASSERT_EQ(sesion.Caso().NumeroSistemas(), 4U);
  sesion.Deshacer();
  EXPECT_EQ(sesion.Caso().NumeroSistemas(), 3U);
  sesion.Rehacer();
  ASSERT_EQ(sesion.Caso().NumeroSistemas(), 4U);
  emit ventana->Contexto().Editado();
  EXPECT_EQ(sesion.Caso().GetSistema(3).Nombre_sistema, "Baños");
  EXPECT_FLOAT_EQ(sesion.Caso().GetSistema(3).Sup_Calefaccion, 40);
  EXPECT_NE(Buscar<QLineEdit>("Tipo_sistema[4]/RadiadorElectrico"), nullptr);
  Teclear(Buscar<QLineEdit>("Tipo_sistema[4]/Nombre_sistema"), "Aseos");
  EXPECT_EQ(sesion.Caso().GetSistema(3).Nombre_sistema, "Aseos");
  Pieza<QPushButton>("eliminar")->click();
  EXPECT_EQ(sesion.Caso().NumeroSistemas(), 3U);
  EXPECT_NE(Buscar<QLineEdit>("Tipo_sistema[3]/QFrioTot1"), nullptr);
  // Sin sistemas la página dice qué hacer.
  for (int i = 0; i < 3; ++i) {
    Arbol()->setCurrentItem(Arbol()->topLevelItem(0));
    Arbol()->setFocus();
    QTest::keyClick(Arbol(), Qt::Key_Delete);
  }
  EXPECT_EQ(sesion.Caso().NumeroSistemas(), 0U);
  EXPECT_EQ(Nodos(), QStringList({"Solar térmica", "Fotovoltaica"}));
  EXPECT_NE(Boton("Crear instalación…"), nullptr);
  EXPECT_FALSE(Pieza<QPushButton>("eliminar")->isEnabled());
}

TEST_F(InstalacionesTest, SeDimensionaSoloLoMarcado) {
  Abrir("caldera_condensacion_solar_D3.xml");
  Elegir("1 Caldera (Radiadores)");
  Teclear(Buscar<QLineEdit>("Tipo_sistema[2]/QcalorCaldera1"), "60");
  const float caudal = Bloque(1).GEN1.Caudal;
  EnDialogo<DialogoDimensionado>(Boton("Dimensionar…"), [&](DialogoDimensionado& d) {
    auto* tabla = d.findChild<QTableWidget*>("cambios");
    ASSERT_GE(tabla->rowCount(), 2);
    for (int f = 0; f < tabla->rowCount(); ++f)
      tabla->item(f, 0)->setCheckState(
          tabla->item(f, 0)->text() == "Potencia nominal" ? Qt::Checked : Qt::Unchecked);
    d.findChild<QPushButton*>("aplicar")->click();
  });
  // 160 m2 en D3 piden 8,8 kW: queda la caldera mínima.
  EXPECT_FLOAT_EQ(Bloque(1).QcalorCaldera1, 16);
  EXPECT_FLOAT_EQ(Bloque(1).GEN1.Caudal, caudal);
  EXPECT_EQ(sesion.QueDeshace(), "Dimensionado");
  sesion.Deshacer();
  EXPECT_FLOAT_EQ(Bloque(1).QcalorCaldera1, 60);
}

TEST_F(InstalacionesTest, UnModeloDelCatalogoLlenaElEquipo) {
  Abrir("caldera_condensacion_solar_D3.xml");
  Elegir("Equipo Split (Unid.Interior)");
  const Instalaciones antes = Bloque(2);
  EnDialogo<DialogoCatalogo>(Boton("Catálogo…"), [&](DialogoCatalogo& d) {
    auto* fabricantes = d.findChild<QComboBox*>("fabricantes");
    auto* tabla = d.findChild<QTableWidget*>("modelos");
    ASSERT_GE(fabricantes->count(), 2);
    fabricantes->setCurrentIndex(1);
    ASSERT_GE(tabla->rowCount(), 1);
    tabla->selectRow(0);
    const float total = tabla->item(0, 1)->text().toFloat();
    const float consumo = tabla->item(0, 3)->text().toFloat();
    EXPECT_NEAR(tabla->item(0, 4)->text().toFloat(), total / consumo, 0.005);
    d.findChild<QPushButton*>("aplicar")->click();
    EXPECT_FLOAT_EQ(Bloque(2).QFrioTot1, total);
    EXPECT_FLOAT_EQ(Bloque(2).WeFrio1, consumo);
    EXPECT_EQ(Bloque(2).Fabricante, fabricantes->currentText().toStdString());
  });
  EXPECT_EQ(sesion.QueDeshace(), "Modelo del catálogo");
  sesion.Deshacer();
  EXPECT_EQ(Bloque(2), antes);
}

TEST_F(InstalacionesTest, LasCurvasSeCambianYDejanDeSerLasDelModelo) {
  Abrir("caldera_condensacion_solar_D3.xml");
  Elegir("1 Caldera (Radiadores)");
  EnDialogo<TbdEquipos>(Boton("Curvas…"), [&](TbdEquipos& d) {
    auto* tabla = d.findChild<QTableWidget*>("ren_F");
    ASSERT_NE(tabla, nullptr);
    EXPECT_EQ(d.findChild<QTableWidget*>("CapCal_T"), nullptr);
    const QString antes = tabla->item(0, 1)->text();
    tabla->item(0, 1)->setText("nada");
    EXPECT_EQ(tabla->item(0, 1)->text(), antes);
    tabla->item(0, 0)->setText("0,5");
    EXPECT_EQ(tabla->item(0, 0)->text(), "0.5");
    d.findChild<QPushButton*>("aceptar")->click();
  });
  EXPECT_FLOAT_EQ(Bloque(1).curvas.cC[0], 0.5F);
  EXPECT_EQ(Bloque(1).Fabricante, "");
  sesion.Deshacer();
  EXPECT_EQ(Bloque(1).Fabricante, "Defecto");
}

TEST_F(InstalacionesTest, SolarYFotovoltaica) {
  Abrir("caldera_condensacion_solar_D3.xml");
  Elegir("Solar térmica");
  Teclear(Buscar<QLineEdit>("Incli_colec_term"), "50");
  EXPECT_FLOAT_EQ(sesion.Caso().GetDatosGenerales().Incli_colec_term, 50);
  // Un depósito no puede ser negativo ni más esbelto que 10: vale lo de la sustitución.
  Teclear(Buscar<QLineEdit>("Volumen_Dep_ST"), "-5");
  EXPECT_FLOAT_EQ(sesion.Caso().GetDatosGenerales().Volumen_Dep_ST, 100);
  Teclear(Buscar<QLineEdit>("LD_Dep_ST"), "11");
  EXPECT_FLOAT_EQ(sesion.Caso().GetDatosGenerales().LD_Dep_ST, 1);
  auto* fluido = Pieza<QLabel>("fluido");
  EXPECT_EQ(fluido->text(), "Calor específico 4184 J/kgK · densidad 984 kg/m³");
  const auto botones = Pieza<QWidget>("RBGlicol")->findChildren<QRadioButton*>();
  ASSERT_EQ(botones.size(), 6);
  EXPECT_EQ(botones[4]->text(), botones[5]->text());
  botones[1]->click();
  // Al 10 %: cp 4132,4, densidad 989,7 y congela a -2,63 °C.
  EXPECT_EQ(fluido->text(), "Calor específico 4132 J/kgK · densidad 990 kg/m³ · congela a -2.6 °C");
  Elegir("Fotovoltaica");
  Teclear(Buscar<QLineEdit>("PotPico_FV2"), "3");
  EXPECT_FLOAT_EQ(sesion.Caso().GetDatosGenerales().PotPico_FV[1], 3);
  Teclear(Buscar<QLineEdit>("Aporte_fotovoltaico_kwh_ano"), "4000");
  EXPECT_FLOAT_EQ(sesion.Caso().GetDatosGenerales().Aporte_fotovoltaico_kwh_ano, 4000);
  ElegirLista("Uso_fotovoltaico", "ACS");
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().Uso_fotovoltaico, "ACS");
  // La producción se ve sin calcular y es la del cálculo.
  auto* barras = Pieza<BarrasMeses>("produccionFV");
  EXPECT_FALSE(barras->isHidden());
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  ASSERT_TRUE(CalcularProyecto(sesion.GestorParaCalcular(), entorno).empty());
  for (std::size_t m = 0; m < 12; ++m)
    EXPECT_FLOAT_EQ(barras->Valores()[m],
                    sesion.Caso().GetCalculo()->meses.produccionFotovoltaica[m + 1]);
  Teclear(Buscar<QLineEdit>("PotPico_FV2"), "0");
  EXPECT_TRUE(barras->isHidden());
}

TEST_F(InstalacionesTest, CapturasDeInstalaciones) {
  const QString destino = qEnvironmentVariable("NOVEX_CAPTURAS");
  if (destino.isEmpty()) GTEST_SKIP() << "sin NOVEX_CAPTURAS";
  const QString ejemplo = qEnvironmentVariable("NOVEX_CAPTURAS_EJEMPLO");
  Abrir(ejemplo.isEmpty() ? "vivienda_unifamiliar_D3.xml" : ejemplo.toStdString().c_str());
  int n = 0;
  QTreeWidgetItem* antes = nullptr;
  for (QTreeWidgetItemIterator it(Arbol()); *it != nullptr; ++it) {
    if ((*it)->parent() == antes && antes != nullptr) continue;
    antes = *it;
    Arbol()->setCurrentItem(*it);
    QTest::qWait(30);
    GuardarCaptura(*ventana, destino + QString("/instalaciones_%1.png").arg(n++));
  }
  const auto dialogo = [&](QPushButton* boton, const QString& nombre) {
    QTimer::singleShot(100, [&] {
      QWidget* d = QApplication::activeModalWidget();
      GuardarCaptura(*d, destino + "/instalaciones_" + nombre + ".png");
      d->close();
    });
    boton->click();
  };
  Arbol()->setCurrentItem(Arbol()->topLevelItem(0));
  dialogo(Pieza<QPushButton>("crear"), "crear");
  dialogo(Boton("Dimensionar…"), "dimensionar");
  if (auto* boton = Boton("Catálogo…")) dialogo(boton, "catalogo");
  if (auto* boton = Boton("Curvas…")) dialogo(boton, "curvas");
  for (QTreeWidgetItemIterator it(Arbol()); *it != nullptr; ++it)
    if ((*it)->text(0).startsWith("Equipo")) Arbol()->setCurrentItem(*it);
  if (auto* boton = Boton("Curvas…")) dialogo(boton, "curvas_frio");
}

}  // namespace
}  // namespace novex::gui::pruebas
