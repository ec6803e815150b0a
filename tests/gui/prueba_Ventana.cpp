#include "gui/VentanaPrueba.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QMessageBox>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>
#include <QTreeWidget>
#include <functional>

#include "base/FicheroSeguro.h"

namespace novex::gui::pruebas {
namespace {

constexpr std::array kTodas = {
    Destino::Titulo,        Destino::Global,      Destino::Edificio, Destino::Instalaciones,
    Destino::Certificacion, Destino::Comparacion, Destino::HE,       Destino::Definicion};

TEST_F(VentanaTest, CadaPaginaSeAbreConCadaEjemplo) {
  for (const auto& ruta : Ejemplos()) {
    SCOPED_TRACE(ruta.filename().string());
    ASSERT_TRUE(ventana->Abrir(ruta));
    for (const Destino destino : kTodas) {
      ventana->Mostrar(destino);
      EXPECT_EQ(ventana->Mostrada(), destino);
      QApplication::processEvents();
    }
  }
  EXPECT_TRUE(mensajes.recibidos.empty());
}

TEST_F(VentanaTest, LoQueImpideCalcularNoDejaPasar) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  ventana->Contexto().Editar("volumen", [](Edificio& e) { e.GetRecinto(0).Volumen_total_m3 = 1; });
  ventana->Mostrar(Destino::Certificacion);
  EXPECT_EQ(ventana->Mostrada(), Destino::Titulo);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "Valor incorrecto");
  EsperarVivo();
  EXPECT_EQ(ventana->Panel().Calculo().EnQue(), CalculoVivo::Estado::Rechazado);
}

TEST_F(VentanaTest, DeshacerHastaDondeNoSePuedeCalcularSacaDeLosResultados) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  const auto volumen = [&](float v) {
    ventana->Contexto().Editar("v", [v](Edificio& e) { e.GetRecinto(0).Volumen_total_m3 = v; });
  };
  ventana->Mostrar(Destino::Global);
  const float bueno = sesion.Caso().GetRecinto(0).Volumen_total_m3;
  volumen(1);
  volumen(bueno);
  ventana->Mostrar(Destino::Certificacion);
  Ordenar("Deshacer");
  EXPECT_EQ(ventana->Mostrada(), Destino::Titulo);
  // Otro caso, calculado como los demás al entrar, se sigue viendo aunque a él le falte algo.
  Ordenar("Rehacer");
  Ordenar("Duplicar");
  volumen(1);
  sesion.ActivarCaso(caso::kViejo);
  ventana->Mostrar(Destino::Certificacion);
  auto* casos = ventana->findChild<QComboBox*>("RGEdificio");
  emit casos->activated(1);
  EXPECT_EQ(sesion.Gestor().NombreActivo(), "Mejora_1");
  EXPECT_EQ(ventana->Mostrada(), Destino::Certificacion);
  EXPECT_TRUE(mensajes.recibidos.empty());
}

TEST_F(VentanaTest, UnSubdestinoAbreSuPagina) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  struct Paso {
    Destino destino;
    const char *subdestino, *pestana;
  };
  for (const Paso& p : {Paso{Destino::Edificio, "CiudadEntorno", "CiudadEntorno"},
                        {Destino::Edificio, "Cubiertas", "Cubiertas"},
                        {Destino::Edificio, "Suelos", "Suelos"},
                        {Destino::Edificio, "Huecos", "Huecos"},
                        {Destino::Edificio, "Puentes", "Puentes"},
                        {Destino::Certificacion, "Temp", "Horarias"}}) {
    ventana->Contexto().IrA(p.destino, p.subdestino);
    ASSERT_EQ(ventana->Mostrada(), p.destino);
    const auto* pestanas = ventana->PaginaDe(p.destino)->findChild<QTabWidget*>();
    EXPECT_EQ(pestanas->tabText(pestanas->currentIndex()), p.pestana);
  }
}

// El selector de casos y la comparación están cuando hay con qué; duplicar, mientras caben.
TEST_F(VentanaTest, LasOrdenesDeCasosSiguenASuNumero) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  auto* selector = ventana->findChild<QComboBox*>("RGEdificio");
  auto* pestanas = ventana->findChild<QTabBar*>("pestanas");
  auto* duplicar = ventana->findChild<QAction*>("SBDuplicar");
  const auto comparacion = [&] {
    return pestanas->isTabVisible(static_cast<int>(Destino::Comparacion));
  };
  for (int casos = 1; casos <= 6; ++casos) {
    SCOPED_TRACE(casos);
    EXPECT_EQ(selector->isVisible(), casos > 1);
    EXPECT_EQ(comparacion(), casos > 1);
    EXPECT_EQ(selector->count(), casos);
    EXPECT_EQ(duplicar->isVisible(), casos < 6);
    if (casos < 6) duplicar->trigger();
  }
  ventana->Mostrar(Destino::Comparacion);
  while (sesion.Gestor().NumeroCasos() > 1) ventana->findChild<QAction*>("SBBorrar")->trigger();
  EXPECT_FALSE(selector->isVisible());
  EXPECT_FALSE(comparacion());
  EXPECT_NE(ventana->Mostrada(), Destino::Comparacion);
  EXPECT_TRUE(mensajes.recibidos.empty());
}

TEST_F(VentanaTest, AcercaDiceQueEsElPrograma) {
  ConDialogo<QDialog>([&] { Ordenar("Acerca de"); },
                      [](QDialog& d) {
                        const QString texto =
                            d.findChild<QTextBrowser*>("textoAcerca")->toPlainText();
                        for (const char* titulo : {"\t- Campo de aplicación de Novex 6.1",
                                                   "\t- Principios básicos de Novex "})
                          EXPECT_TRUE(texto.contains(titulo)) << titulo;
                      });
  EXPECT_FALSE(sesion.Modificado());
}

// Cada motivo por el que no se calcula devuelve a "Titulo" y su enlace lleva a donde se corrige.
TEST_F(VentanaTest, CadaMotivoLlevaADondeSeCorrige) {
  struct Motivo {
    const char* ejemplo;
    std::function<void(Edificio&)> estropear;
    Destino destino;
    const char* pestana;
    const char* campo;  // el que queda con el foco
  };
  const char* casa = "vivienda_unifamiliar_D3.xml";
  const auto recinto = [](void (*cambiar)(Recinto&)) {
    return [cambiar](Edificio& e) { cambiar(e.GetRecinto(0)); };
  };
  const auto general = [](void (*cambiar)(DatosGenerales&)) {
    return [cambiar](Edificio& e) {
      DatosGenerales g = e.GetDatosGenerales();
      cambiar(g);
      e.SetDatosGenerales(g);
    };
  };
  const std::vector<Motivo> motivos = {
      {casa, recinto([](Recinto& r) { r.Suelo_al_terreno_m2 = {}; }), Destino::Edificio, "Suelos",
       nullptr},
      {casa, recinto([](Recinto& r) { r.Suelo_al_terreno_m2[0] = 900; }), Destino::Edificio,
       "Suelos", nullptr},
      {casa, recinto([](Recinto& r) { r.Suelo_habitable_m2 = 0; }), Destino::Global, "Uso",
       "Suelo_habitable_m2"},
      {casa, recinto([](Recinto& r) { r.Volumen_total_m3 = 1; }), Destino::Global, "Uso",
       "Volumen_total_m3"},
      {casa, general([](DatosGenerales& g) { g.perfiles.tabla = {}; }), Destino::Global, "Uso",
       "PerfilUso"},
      {casa, [](Edificio& e) { e.GetSistema(0).instalaciones[0].NEquipos = 0; },
       Destino::Instalaciones, "", nullptr},
      {casa, [](Edificio& e) { e.BorrarSistema(0); }, Destino::Instalaciones, "", nullptr},
      {casa, [](Edificio& e) { e.GetHuecos(0).Tipo_de_hueco = kEscaparate; }, Destino::Edificio,
       "Huecos", nullptr},
      {casa, [](Edificio& e) { e.GetComposicion(ranura::MuroExt1).U = 0; }, Destino::Edificio,
       "Muros", "MuroExt[1]/U_Muro_ext_W_m2K"},
      {casa,
       [](Edificio& e) {
         e.GetRecinto(0).Muro_otro_local_ext_m2[1] = 9;
         e.GetComposicion(ranura::MuroExt7).U = 0;
       },
       Destino::Edificio, "Muros", "Muro_otro[2]/U_Muro_otro_local_ext_W_m2K"},
      {"oficina_VRV_B4.xml",
       [](Edificio& e) {
         DatosGenerales g = e.GetDatosGenerales();
         g.ManejoVentilacion = "TomaUT";
         e.SetDatosGenerales(g);
         for (std::size_t i = 0; i < e.NumeroSistemas(); ++i)
           e.GetSistema(i).instalaciones[0].Emisor = "Fancoil + Sist.Vent.";
       },
       Destino::Instalaciones, "", nullptr},
  };
  for (const Motivo& motivo : motivos) {
    SCOPED_TRACE(std::string(motivo.pestana) + " " + (motivo.campo ? motivo.campo : ""));
    ASSERT_TRUE(ventana->Abrir(Ejemplo(motivo.ejemplo)));
    mensajes.recibidos.clear();
    sesion.Editar("estropear", motivo.estropear);
    emit ventana->Contexto().Editado();
    ventana->Mostrar(Destino::Certificacion);
    EXPECT_EQ(ventana->Mostrada(), Destino::Titulo);
    ASSERT_FALSE(mensajes.recibidos.empty());
    Activar();
    emit ventana->findChild<QLabel*>("falta")->linkActivated("#");
    ASSERT_EQ(ventana->Mostrada(), motivo.destino);
    if (auto* pestanas = ventana->PaginaDe(motivo.destino)->findChild<QTabWidget*>()) {
      EXPECT_EQ(pestanas->tabText(pestanas->currentIndex()), motivo.pestana);
    }
    if (motivo.campo != nullptr) {
      ASSERT_NE(QApplication::focusWidget(), nullptr);
      EXPECT_EQ(QApplication::focusWidget()->objectName(), motivo.campo);
    }
    sesion.Deshacer();
  }
}

TEST_F(VentanaTest, LaCalificacionSigueALasEdiciones) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  EsperarVivo();
  ASSERT_EQ(ventana->Panel().Calculo().EnQue(), CalculoVivo::Estado::Hecho);
  const float antes = ventana->Panel().Calculo().Resumen()->demandaCalefaccion;
  ventana->Contexto().Editar("U", [](Edificio& e) { e.GetComposicion(ranura::MuroExt1).U = 3; });
  EXPECT_TRUE(ventana->windowTitle().endsWith("*"));
  EsperarVivo();
  EXPECT_GT(ventana->Panel().Calculo().Resumen()->demandaCalefaccion, antes);
  EXPECT_EQ(sesion.Caso().GetCalculo(), nullptr);  // se ha calculado una copia
}

TEST_F(VentanaTest, UnCampoTecladoSeGuardaAvisaYSeDeshace) {
  ventana->Mostrar(Destino::Titulo);
  auto* tipo = Buscar<QComboBox>("TipoCertificado");
  ASSERT_NE(tipo, nullptr);
  tipo->setCurrentIndex(0);
  emit tipo->activated(0);
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().Modo_trabajo, "Existente");
  EXPECT_EQ(sesion.QueDeshace(), "Edificio");
  sesion.Deshacer();
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().Modo_trabajo, "Nuevo");
}

TEST_F(VentanaTest, UnFicheroRotoDejaLoAbiertoEnSuCopia) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("piso_C2.xml")));
  ventana->Contexto().Editar("título", [](Edificio& e) {
    DatosGenerales g = e.GetDatosGenerales();
    g.Edificio_Titulo = "a medias";
    e.SetDatosGenerales(g);
  });
  const auto roto = carpeta / "roto.xml";
  EscribirFichero(roto, "<DatosEnergeticosDelEdificio><a></b>");
  // A la pregunta de si se guarda se contesta que no.
  QTimer contestar;
  QObject::connect(&contestar, &QTimer::timeout, &contestar, [&] {
    auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (caja == nullptr) return;
    contestar.stop();
    caja->button(QMessageBox::No)->click();
  });
  contestar.start(10);
  EXPECT_FALSE(ventana->Abrir(roto));
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_NE(mensajes.recibidos[0].texto.find("XML Parsing error"), std::string::npos);
  EXPECT_EQ(sesion.Caso().GetDatosGenerales().Edificio_Titulo, "a medias");
  SesionProyecto otra(ficheros, mensajes);
  ASSERT_TRUE(otra.Abrir(Recuperacion(carpeta / "copias").Fichero()));
  EXPECT_EQ(otra.Caso().GetDatosGenerales().Edificio_Titulo, "a medias");
  EXPECT_EQ(QApplication::exec(), kXmlErroneo);
}

// Lo que se ha cambiado o supuesto al leer un proyecto antiguo se enseña sin estorbar.
TEST_F(VentanaTest, UnProyectoDeOtraVersionDiceQueSeHaHechoConEl) {
  const auto lista = [this] {
    const auto listas = ventana->findChildren<QTreeWidget*>("lectura");
    return listas.empty() ? nullptr : listas.back();
  };
  ASSERT_TRUE(ventana->Abrir(Ejemplo("piso_C2.xml")));
  EXPECT_EQ(lista(), nullptr);
  ASSERT_TRUE(
      ventana->Abrir(std::filesystem::path(NOVEX_RAIZ_PRUEBAS) / "casos/antiguos/v6_1.xml"));
  ASSERT_NE(lista(), nullptr);
  EXPECT_TRUE(lista()->isVisible());
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(lista()->topLevelItemCount(), 3);
  const QTreeWidgetItem* cambiado = lista()->topLevelItem(0);
  EXPECT_EQ(cambiado->text(0), QString("Cambiado (%1)").arg(cambiado->childCount()));
  EXPECT_EQ(
      lista()->findItems("Año de construcción", Qt::MatchContains | Qt::MatchRecursive).size(), 1);
  EXPECT_TRUE(mensajes.recibidos.empty());
}

}  // namespace
}  // namespace novex::gui::pruebas
