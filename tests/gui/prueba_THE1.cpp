#include <QCheckBox>
#include <QComboBox>
#include <QTabWidget>
#include <QTableWidget>
#include <set>

#include "base/FicheroSeguro.h"
#include "compliance/ResumenAnual.h"
#include "gui/VentanaPrueba.h"
#include "outputs/HojasVerificacion.h"
#include "shell/gui/TextoQt.h"
#include "shell/gui/VistaGrafico.h"

namespace novex::gui::pruebas {
namespace {

class THE1Test : public VentanaTest {
 protected:
  void Entrar(const char* ejemplo) {
    ASSERT_TRUE(ventana->Abrir(Ejemplo(ejemplo)));
    ventana->Mostrar(Destino::HE);
  }
  QTabWidget* Pestanas() { return ventana->PaginaDe(Destino::HE)->findChild<QTabWidget*>(); }
  QTabWidget* DeHE1() { return Pestanas()->widget(2)->findChild<QTabWidget*>(); }
  static int Indice(QTabWidget* tiras, const QString& titulo) {
    for (int i = 0; i < tiras->count(); ++i)
      if (tiras->tabText(i) == titulo) return i;
    ADD_FAILURE() << "no hay pestaña " << titulo.toStdString();
    return 0;
  }
  // La pestaña de una hoja, a la vista.
  QTabWidget* Ver(HojaHE hoja) {
    const bool dentro = hoja >= HojaHE::Global && hoja <= HojaHE::Condensaciones;
    if (dentro) Pestanas()->setCurrentIndex(Indice(Pestanas(), "HE1"));
    QTabWidget* tiras = dentro ? DeHE1() : Pestanas();
    tiras->setCurrentIndex(Indice(tiras, Q(TituloHojaHE(hoja))));
    QApplication::processEvents();  // los bloques nuevos se muestran al volver al bucle
    return tiras;
  }
  // Lo que se lee en la página que está a la vista.
  static std::set<QString> Leido(QWidget* pagina) {
    std::set<QString> textos;
    for (const auto* texto : pagina->findChildren<QLabel*>())
      if (texto->isVisible())
        for (const QString& linea : texto->text().split('\n')) textos.insert(linea.trimmed());
    for (const auto* tabla : pagina->findChildren<QTableWidget*>())
      for (int f = 0; tabla->isVisible() && f < tabla->rowCount(); ++f)
        for (int c = 0; c < tabla->columnCount(); ++c)
          if (const auto* casilla = tabla->item(f, c)) textos.insert(casilla->text().trimmed());
    return textos;
  }
  VerificacionHE Esperada() {
    return VerificarHE(sesion.Caso(), *sesion.Caso().GetCalculo(),
                       LeerDocumentosHE(ficheros.Espacio().Datos()));
  }
};

// Los textos de los registros de la verificación, no los de las hojas que los reparten.
std::vector<std::string> Dichos(const VerificacionHE& v) {
  std::vector<std::string> textos;
  const auto anadir = [&](const std::vector<std::string>& otros) {
    textos.insert(textos.end(), otros.begin(), otros.end());
  };
  const auto tabla = [&](const Tabla& t) {
    for (const auto& fila : t.filas)
      for (const Celda& celda : fila) textos.push_back(celda.texto);
    anadir(t.notas);
  };
  anadir(v.he0.textos);
  anadir({v.he0.veredictoHoras, v.K.comparacion, v.K.veredicto, v.K.notaDemanda, v.q.texto,
          v.q.veredicto, v.n50.veredicto, v.maximas.veredicto, v.condensacion.textoCerramientos,
          v.condensacion.textoPuentes, std::string(kNotaCondensacion), v.he4.LabelCUMPEHE4});
  for (const auto* lineas : {&v.K.textos, &v.n50.textos, &v.he3.lineas, &v.he5.lineas})
    anadir(*lineas);
  for (const Tabla* t : {&v.he0.indicadores, &v.K.SGKlimite, &v.q.SGqjulio, &v.n50.SGNV50limite,
                         &v.maximas.SGValorMaximo, &v.condensacion.tablaCerramientos,
                         &v.condensacion.tablaPuentes, &v.he4.SGHE4Demanda, &v.he4.SGRenovACS})
    tabla(*t);
  for (const CampoHE4& campo : v.he4.campos) anadir({campo.rotulo, campo.valor.texto});
  for (const Veredicto& r : v.veredictos) anadir({r.requisito, r.veredicto, r.nota});
  return textos;
}

TEST_F(THE1Test, TodoLoQueSeVerificaSeLeeEnAlgunaPestana) {
  for (const char* ejemplo : {"vivienda_unifamiliar_D3.xml", "oficina_VRV_B4.xml",
                              "hotel_24h_A3.xml", "casa_antigua_E1.xml"}) {
    SCOPED_TRACE(ejemplo);
    Entrar(ejemplo);
    const VerificacionHE v = Esperada();
    std::set<QString> leido;
    for (int h = 0; h <= static_cast<int>(HojaHE::Coeficientes); ++h) {
      const auto hoja = static_cast<HojaHE>(h);
      QTabWidget* tiras = Ver(hoja);
      leido.merge(Leido(tiras->currentWidget()));
      const auto marca = MarcaHoja(hoja, v);
      EXPECT_EQ(tiras->tabIcon(tiras->currentIndex()).isNull(), !marca);
      EXPECT_EQ(tiras->tabToolTip(tiras->currentIndex()), marca ? Q(TextoMarca(*marca)) : "");
    }
    for (const std::string& texto : Dichos(v))
      EXPECT_TRUE(texto.empty() || leido.contains(Q(texto).trimmed())) << texto;
    EXPECT_EQ(Pestanas()->tabToolTip(2), Q(TextoMarca(MarcaHE1(v))));
    // Los documentos de trabajo son los de este caso.
    const std::string documento = LeerFichero(ficheros.Espacio().Datos() / "Condensacion.xml");
    for (const CondensacionElemento& e : v.condensacion.elementos)
      EXPECT_NE(documento.find("Tipo=\"" + e.clave + "\""), std::string::npos) << e.clave;
  }
}

TEST_F(THE1Test, LasCifrasDelAnoSiguenAlTipoDeResultado) {
  Entrar("oficina_VRV_B4.xml");
  Pestanas()->setCurrentIndex(Indice(Pestanas(), "Cifras del año"));
  QWidget* pagina = Pestanas()->currentWidget();
  const std::set<QString> leido = Leido(pagina);
  const Edificio& e = sesion.Caso();
  for (const std::string& linea : ResumirAno(e, *e.GetCalculo()).lineas)
    EXPECT_TRUE(leido.contains(Q(linea).trimmed())) << linea;
  auto* tipo = pagina->findChild<QComboBox*>("TipoResultado");
  const auto graficos = pagina->findChildren<VistaGrafico*>();
  ASSERT_EQ(graficos.size(), 2);
  for (std::size_t i = 0; i < kTextoTipoResultado.size(); ++i) {
    tipo->setCurrentIndex(static_cast<int>(i));
    emit tipo->activated(static_cast<int>(i));
    const auto cual = static_cast<TipoResultado>(i);
    const Grafico meses = GraficoMensual(e, *e.GetCalculo(), cual);
    const Grafico eficiencia = GraficoEficiencia(e, *e.GetCalculo(), cual);
    ASSERT_FALSE(meses.series.empty());
    EXPECT_EQ(graficos[0]->Puesto().series.back().valores, meses.series.back().valores);
    EXPECT_EQ(graficos[1]->isVisible(), !eficiencia.series.empty());
    if (!eficiencia.series.empty()) {
      EXPECT_EQ(graficos[1]->Puesto().series[0].valores, eficiencia.series[0].valores);
    }
  }
}

TEST_F(THE1Test, LasSuperficiesDelHE5CambianElVeredictoSinRecalcular) {
  Entrar("oficina_VRV_B4.xml");
  Activar();
  QTabWidget* tiras = Ver(HojaHE::HE5);
  const int he5 = tiras->currentIndex();
  const calculo* antes = sesion.Caso().GetCalculo().get();
  // 20 kW instalados: con 3000 m2 hacen falta 30 por la superficie, y por la cubierta 17,2.
  Teclear(Buscar<QLineEdit>("SuperficieTotalHE5"), "3000");
  Teclear(Buscar<QLineEdit>("SuperficieCubiertaHE5"), "344");
  EXPECT_EQ(tiras->tabToolTip(he5), "Cumple");
  Teclear(Buscar<QLineEdit>("SuperficieCubiertaHE5"), "2000");
  EXPECT_EQ(tiras->tabToolTip(he5), "No cumple");
  EXPECT_TRUE(Leido(tiras->currentWidget()).contains("No Cumple"));
  EXPECT_EQ(tiras->tabToolTip(0), "No cumple");
  Teclear(Buscar<QLineEdit>("SuperficieCaptadorestermHE5"), "900");
  EXPECT_EQ(tiras->tabToolTip(he5), "Cumple");  // 0,1·(0,5·2000 − 900) = 10 kW
  EXPECT_EQ(sesion.Caso().GetCalculo().get(), antes);
  Ordenar("Deshacer");
  EXPECT_EQ(tiras->tabToolTip(he5), "No cumple");
  Teclear(Buscar<QLineEdit>("SuperficieTotalHE5"), "999.9");
  EXPECT_EQ(tiras->tabToolTip(he5), "No se exige");
  // Un edificio existente entra en la sección si se rehabilita entero.
  sesion.Guardar(carpeta / "oficina.xml");  // para que no pregunte por lo tecleado
  Entrar("casa_antigua_E1.xml");
  Ver(HojaHE::HE5);
  Teclear(Buscar<QLineEdit>("SuperficieTotalHE5"), "1000");
  Teclear(Buscar<QLineEdit>("SuperficieCubiertaHE5"), "1000");
  EXPECT_EQ(tiras->tabToolTip(he5), "No se exige");
  Buscar<QCheckBox>("RehabIntegralHE5")->click();
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().RehabIntegralHE5, "Si");
  EXPECT_EQ(tiras->tabToolTip(he5), "No cumple");
}

class THE1EstropeadoTest : private CopiaPrograma, public VentanaTest {
 protected:
  THE1EstropeadoTest() : VentanaTest(programa / "") {}
  std::filesystem::path Limites() const { return programa / "database/Klimite.xml"; }
};

TEST_F(THE1EstropeadoTest, UnFicheroDeLimitesEstropeadoSeDiceYNoSeJuzgaConEl) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  ventana->Mostrar(Destino::HE);
  QWidget* pagina = ventana->PaginaDe(Destino::HE);
  auto* tiras = pagina->findChild<QTabWidget*>();
  const auto veredictos = [&] { return pagina->findChildren<QLabel*>("veredicto").size(); };
  EXPECT_EQ(tiras->tabToolTip(0), "No cumple");
  EXPECT_GT(veredictos(), 0);
  const std::string bueno = LeerFichero(Limites());
  EscribirFichero(Limites(), "<Klimite><L");
  ventana->Mostrar(Destino::HE);
  EXPECT_EQ(tiras->tabToolTip(0), "");
  EXPECT_EQ(veredictos(), 0);
  bool dicho = false;
  for (const auto* texto : pagina->findChildren<QLabel*>())
    dicho = dicho || (texto->isVisible() && texto->text().contains("Klimite.xml"));
  EXPECT_TRUE(dicho);
  EscribirFichero(Limites(), bueno);
  ventana->Mostrar(Destino::HE);
  EXPECT_EQ(tiras->tabToolTip(0), "No cumple");
}

}  // namespace
}  // namespace novex::gui::pruebas
