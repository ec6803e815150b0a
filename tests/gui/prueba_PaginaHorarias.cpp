#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <fstream>
#include <sstream>

#include "gui/VentanaPrueba.h"
#include "outputs/EstadisticaSerie.h"
#include "outputs/ExportacionSeries.h"
#include "outputs/TextoTabla.h"
#include "shell/gui/ArbolSeries.h"
#include "shell/gui/MapaCalor.h"
#include "shell/gui/TResultadosT.h"
#include "shell/gui/TextoQt.h"
#include "shell/gui/VistaGrafico.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui::pruebas {
namespace {

class PaginaHorariasTest : public VentanaTest {
 protected:
  void Entrar(const char* ejemplo) {
    ASSERT_TRUE(ventana->Abrir(Ejemplo(ejemplo)));
    ventana->Mostrar(Destino::Certificacion, kSubdestinoTemp);
    arbol = Pagina()->findChild<ArbolSeries*>();
    ASSERT_NE(arbol, nullptr);
  }
  TResultadosT* Pagina() {
    return qobject_cast<TResultadosT*>(ventana->PaginaDe(Destino::Certificacion));
  }
  template <class W>
  W* Control(const char* nombre) {
    auto* control = Pagina()->findChild<W*>(nombre);
    EXPECT_NE(control, nullptr) << nombre;
    return control;
  }
  // Como quien elige en la lista.
  void Elegir(const char* nombre, int fila) {
    auto* lista = Control<QComboBox>(nombre);
    ASSERT_GE(fila, 0) << nombre;
    lista->setCurrentIndex(fila);
    emit lista->activated(fila);
  }
  void ElegirSerie(const char* nombre, const char* codigo) {
    Elegir(nombre, Control<QComboBox>(nombre)->findData(codigo));
  }
  void Modo(int cual) { Control<QTabBar>("modosHorarias")->setCurrentIndex(cual); }
  SerieMostrada Serie(const std::string& codigo) const {
    auto buscada = SerieDeVariable(sesion.Caso(), *sesion.Caso().GetCalculo(), codigo);
    if (buscada.serie) return *buscada.serie;
    ADD_FAILURE() << codigo;
    return {{}, {{}, {}, {}, std::vector<float>(kHorasAno)}};
  }
  double Superficie() const {
    return static_cast<double>(sesion.Caso().GetRecinto(0).Suelo_habitable_m2);
  }
  static QString Cifra(double valor) {
    return Q(General(static_cast<float>(valor))).replace('.', ',');
  }
  // Píxeles azules, el color de la primera serie.
  static int PixelesDeSerie(VistaGrafico* grafico) {
    QApplication::processEvents();
    const QImage imagen = grafico->grab().toImage();
    int pixeles = 0;
    for (int y = 0; y < imagen.height(); ++y)
      for (int x = 0; x < imagen.width(); ++x) {
        const QColor color = imagen.pixelColor(x, y);
        pixeles += color.blue() > color.red() + 60;
      }
    return pixeles;
  }
  QString Aviso() { return Control<QLabel>("avisoHorarias")->text(); }
  QStringList Visibles() {
    QStringList textos;
    auto* lista = Control<QTreeWidget>("LVVariables");
    for (int g = 0; g < lista->topLevelItemCount(); ++g)
      for (int i = 0; i < lista->topLevelItem(g)->childCount(); ++i)
        if (!lista->topLevelItem(g)->isHidden() && !lista->topLevelItem(g)->child(i)->isHidden())
          textos << lista->topLevelItem(g)->child(i)->text(0);
    return textos;
  }
  void Marcar(const char* texto) {
    const auto nodos = Control<QTreeWidget>("LVVariables")
                           ->findItems(texto, Qt::MatchContains | Qt::MatchRecursive);
    ASSERT_EQ(nodos.size(), 1) << texto;
    nodos.front()->setCheckState(0, Qt::Checked);
  }

  ArbolSeries* arbol = nullptr;
};

TEST_F(PaginaHorariasTest, CadaVariableSeEnsenaConSusCifras) {
  const std::pair<int, PeriodoSerie> periodos[] = {
      {0, {}},
      {1, {.tipo = TipoPeriodo::Mensual, .mes = 7}},
      {2, {.tipo = TipoPeriodo::Semanal, .mes = 7, .semana = 5}},
      {3, {.tipo = TipoPeriodo::Diario, .mes = 7, .semana = 5, .dia = 21}}};
  for (const char* ejemplo :
       {"caldera_condensacion_solar_D3.xml", "oficina_VRV_B4.xml", "hotel_24h_A3.xml"}) {
    Entrar(ejemplo);
    Elegir("mesPeriodo", 6);
    Elegir("semanaPeriodo", 4);
    Elegir("diaPeriodo", 20);
    const auto nodos = ArbolVariables(sesion.Caso(), *sesion.Caso().GetCalculo());
    EXPECT_EQ(Visibles().size(), static_cast<qsizetype>(nodos.size()));
    for (std::size_t i = 0; i < nodos.size(); i += 3) {
      arbol->Elegir(nodos[i].codigo);
      const SerieMostrada serie = Serie(nodos[i].codigo);
      for (const auto& [fila, periodo] : periodos) {
        Elegir("RGperiodo", fila);
        EXPECT_EQ(Control<QLabel>("lineaEstadistica")->text(),
                  Q(LineaEstadistica(serie.serie, periodo, Superficie())));
        const Grafico& puesto = Control<VistaGrafico>("graficaSerie")->Puesto();
        EXPECT_EQ(puesto.titulo, RotuloPeriodo(periodo) + nodos[i].texto);
        EXPECT_EQ(puesto.series.at(0).valores,
                  GraficoPeriodo(serie, periodo).valor->series[0].valores);
      }
    }
  }
}

TEST_F(PaginaHorariasTest, SeBuscaEnElArbolYSeLeeLaHora) {
  Entrar("caldera_condensacion_solar_D3.xml");
  EXPECT_EQ(arbol->Elegida(), "TSL");
  auto* buscar = Control<QLineEdit>("buscarVariable");
  buscar->setText("HUMEDA");
  EXPECT_EQ(Visibles(), QStringList({"Temp.húmeda local THL(ºC)", "Temp.húmeda THE(ºC)"}));
  QTest::keyClick(buscar, Qt::Key_Return);
  EXPECT_EQ(arbol->Elegida(), "THL");
  auto* grafico = Control<VistaGrafico>("graficaSerie");
  EXPECT_EQ(grafico->Puesto().titulo, "Anual Temp.húmeda local THL(ºC)");
  // El año se dibuja con menos puntos, pero se lee y se copia hora a hora.
  auto* linea = qobject_cast<QXYSeries*>(grafico->Dibujo()->series().at(0));
  EXPECT_LT(linea->count(), 4000);
  EXPECT_EQ(grafico->Datos().filas.size(), 8760U);
  EXPECT_TRUE(grafico->Lectura(4575).startsWith("15 h 10 Julio: ")) << S(grafico->Lectura(4575));
  // Al acercarse salen todas las horas de lo que se ve.
  grafico->Dibujo()->axes(Qt::Horizontal).at(0)->setRange(100, 200);
  EXPECT_EQ(linea->count(), 103);
  EXPECT_EQ(linea->at(1).x(), 100);
}

TEST_F(PaginaHorariasTest, ElMapaDeHorasPorDias) {
  Entrar("oficina_VRV_B4.xml");
  arbol->Elegir("TSE");
  auto* mapa = Control<MapaCalor>("mapaSerie");
  Control<QRadioButton>("grafica3D")->click();
  ASSERT_TRUE(mapa->isVisible());
  EXPECT_EQ(mapa->Puesta().dias.size(), 365U);
  Elegir("RGperiodo", 1);
  Elegir("mesPeriodo", 1);
  ASSERT_EQ(mapa->Puesta().dias.size(), 28U);
  QApplication::processEvents();
  // Bajo el puntero, en medio de la casilla del día 3 a la hora 15.
  const QRectF zona = mapa->Zona();
  const QPointF centro(zona.left() + zona.width() * 2.5 / 28,
                       zona.bottom() - zona.height() * 14.5 / 24);
  const float valor = Serie("TSE").serie.valores[(31 + 2) * 24 + 14];
  EXPECT_EQ(mapa->LecturaEn(centro),
            "15 h 3 Febrero: " + Cifra(static_cast<double>(valor)) + " ºC");
  EXPECT_TRUE(mapa->LecturaEn({zona.left() - 2, zona.top() + 5}).isEmpty());
  const QImage imagen = mapa->grab().toImage();
  EXPECT_EQ(imagen.pixelColor(centro.toPoint()), mapa->Color(static_cast<double>(valor)));
  EXPECT_TRUE(mensajes.recibidos.empty());
  // De un día no hay mapa: se dice y se vuelve a la línea.
  Elegir("RGperiodo", 3);
  EXPECT_EQ(mensajes.recibidos,
            (std::vector<Mensaje>{
                {"AVISO", "No se puede representar una gráficaen 3D para un sólo día"}}));
  EXPECT_TRUE(Control<QRadioButton>("grafica2D")->isChecked());
  EXPECT_TRUE(Control<VistaGrafico>("graficaSerie")->isVisible());
}

TEST_F(PaginaHorariasTest, UnDiaQueNoExisteSeDiceYLasFlechasSiguen) {
  Entrar("vivienda_unifamiliar_D3.xml");
  auto* anterior = Control<QAbstractButton>("periodoAnterior");
  EXPECT_FALSE(anterior->isVisible());
  Elegir("RGperiodo", 3);
  Elegir("mesPeriodo", 1);
  Elegir("diaPeriodo", 30);
  EXPECT_EQ(Aviso(), "Ese día no existe");
  EXPECT_FALSE(Control<VistaGrafico>("graficaSerie")->isVisible());
  anterior->click();
  EXPECT_TRUE(Aviso().isEmpty());
  EXPECT_EQ(Control<QComboBox>("diaPeriodo")->currentText(), "27");
  EXPECT_EQ(Control<VistaGrafico>("graficaSerie")->Puesto().x.front(), (31 + 26) * 24 + 1);
  Elegir("RGperiodo", 2);
  EXPECT_EQ(Control<QComboBox>("semanaPeriodo")->count(), 52);
  EXPECT_EQ(Control<QComboBox>("semanaPeriodo")->itemText(0), "1 enero al 7 enero");
  EXPECT_TRUE(mensajes.recibidos.empty());
}

TEST_F(PaginaHorariasTest, LasVariablesMarcadasVanALaTablaYAlFichero) {
  Entrar("caldera_condensacion_solar_D3.xml");
  Modo(1);
  // La que se miraba está ya marcada.
  EXPECT_EQ(arbol->Marcadas(), std::vector<std::string>{"TSL"});
  Marcar("EASC(kWh)");
  Marcar("Temp.seca TSE(ºC)");
  Elegir("RGperiodo", 1);
  Elegir("mesPeriodo", 1);
  Control<QPushButton>("Button2")->click();
  auto* rejilla = Control<QTableWidget>("SGResultados");
  const std::vector<SerieMostrada> series = {Serie("TSL"), Serie("TSE"), Serie("EASC")};
  const PeriodoSerie febrero{.tipo = TipoPeriodo::Mensual, .mes = 2};
  const Tabla espera = *TablaNumerica(series, febrero).valor;
  ASSERT_EQ(rejilla->rowCount(), 28 * 24);
  ASSERT_EQ(rejilla->columnCount(), 7);
  for (int c = 0; c < 7; ++c) {
    EXPECT_EQ(S(rejilla->horizontalHeaderItem(c)->text()), espera.cabeceras.at(c));
    EXPECT_EQ(S(rejilla->item(60, c)->text()), espera.filas.at(60).at(c).texto);
  }
  // Otra elección deja la tabla sin valer.
  Control<QCheckBox>("columnaConta")->click();
  EXPECT_EQ(rejilla->rowCount(), 0);
  const auto guardado = carpeta / "horas.datos";
  ConDialogo<QFileDialog>([&] { Control<QPushButton>("Button1")->click(); },
                          [&](QFileDialog& dialogo) {
                            EXPECT_EQ(dialogo.nameFilters().front(), "Text files (*.txt)");
                            EXPECT_EQ(dialogo.directory().dirName(), "proyectos");
                            dialogo.findChild<QLineEdit*>()->setText(Q(guardado));
                            static_cast<QDialog&>(dialogo).accept();
                          });
  std::ifstream fichero(guardado.string() + ".txt");
  std::stringstream texto;
  texto << fichero.rdbuf();
  EXPECT_EQ(texto.str(), TextoSeparado(*TablaNumerica(series, febrero, {.conta = false}).valor));
  ConDialogo<QFileDialog>([&] { Control<QPushButton>("Button1")->click(); },
                          [](QFileDialog& dialogo) { dialogo.reject(); });
  // Las marcas siguen al volver, y no caben más de 25.
  Modo(0);
  Modo(1);
  EXPECT_EQ(arbol->Marcadas(), (std::vector<std::string>{"TSL", "TSE", "EASC"}));
  auto* variables = Control<QTreeWidget>("LVVariables");
  for (QTreeWidgetItem* nodo : variables->findItems("(", Qt::MatchContains | Qt::MatchRecursive))
    if (nodo->parent() != nullptr) nodo->setCheckState(0, Qt::Checked);
  Control<QPushButton>("Button2")->click();
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].texto, "En la tabla caben 25 variables");
}

TEST_F(PaginaHorariasTest, UnaContraOtraYDosEjes) {
  Entrar("caldera_condensacion_solar_D3.xml");
  Elegir("RGperiodo", 1);
  Modo(2);
  ElegirSerie("CBX", "WE");
  ElegirSerie("CBY", "DCAL");
  const PeriodoSerie enero{.tipo = TipoPeriodo::Mensual, .mes = 1};
  const Grafico espera = *GraficoXY(Serie("WE"), Serie("DCAL"), enero).valor;
  const Grafico& nube = Control<VistaGrafico>("graficaXY")->Puesto();
  EXPECT_EQ(nube.x, espera.x);
  EXPECT_EQ(nube.series.at(0).valores, espera.series[0].valores);
  EXPECT_EQ(nube.titulo, "Mes=Enero Demanda sensible DCAL(kWh) / Hum.específica WE(gr/kg)");
  // Bajo el puntero, el punto más cercano en los dos ejes.
  const std::size_t cual = 200;
  EXPECT_EQ(
      Control<VistaGrafico>("graficaXY")->LecturaEn({nube.x[cual], espera.series[0].valores[cual]}),
      "Hum.específica WE(gr/kg) " + Cifra(nube.x[cual]) + " · Demanda sensible DCAL(kWh) " +
          Cifra(espera.series[0].valores[cual]));
  EXPECT_GT(PixelesDeSerie(Control<VistaGrafico>("graficaXY")), 200);
  Elegir("CBX", 0);
  EXPECT_EQ(PixelesDeSerie(Control<VistaGrafico>("graficaXY")), 0);
  EXPECT_EQ(Aviso(), "Elija las dos variables.");

  Modo(3);
  EXPECT_EQ(Control<QComboBox>("CBIzq5")->currentText(), "Ninguno");
  for (const char* lista : {"CBIzq2", "CBDer1"}) Elegir(lista, 0);
  ElegirSerie("CBIzq1", "TSE");
  auto* ejes = Control<VistaGrafico>("graficaMas");
  EXPECT_TRUE(mensajes.recibidos.empty());
  ElegirSerie("CBIzq5", "FIE");
  const Mensaje unidades{"AVISO",
                         "En cada eje solo se representan variables con las mismas unidades"};
  EXPECT_EQ(mensajes.recibidos, std::vector<Mensaje>{unidades});
  EXPECT_EQ(Aviso(), Q(unidades.texto));
  ASSERT_EQ(ejes->Puesto().series.size(), 1U);
  EXPECT_EQ(ejes->Puesto().ejeY, "ºC");
  // En el otro eje sí se dibuja, y lo dicho no se repite.
  ElegirSerie("CBDer5", "FIE");
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  ASSERT_EQ(ejes->Derecho()->series.size(), 1U);
  EXPECT_EQ(ejes->Derecho()->ejeY, "%");
  // Solo el derecho: también se dibuja y se lee.
  for (const char* lista : {"CBIzq1", "CBIzq5"}) Elegir(lista, 0);
  EXPECT_TRUE(Aviso().isEmpty());
  EXPECT_EQ(ejes->Dibujo()->series().size(), 1);
  EXPECT_TRUE(ejes->Lectura(30).startsWith("6 h 2 Enero: ")) << S(ejes->Lectura(30));
}

TEST_F(PaginaHorariasTest, LaPeticionDeHorariasVaPorDelanteDeLaDeUnaSimulacion) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  sesion.Editar("Simulación libre", [](Edificio& e) {
    DatosGenerales libre = e.GetDatosGenerales();
    libre.Tiposimulacion = "Simulacion";
    e.SetDatosGenerales(libre);
  });
  EsperarVivo();
  // Del panel de la calificación se va a ellas.
  emit ventana->findChild<QLabel*>("irASeries")->linkActivated("#");
  EXPECT_EQ(ventana->Mostrada(), Destino::Certificacion);
  auto* pestanas = Pagina()->findChild<QTabWidget*>();
  EXPECT_EQ(pestanas->tabText(pestanas->currentIndex()), "Horarias");
}

}  // namespace
}  // namespace novex::gui::pruebas
