#include "gui/VentanaPrueba.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QMessageBox>
#include <QTimer>

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

}  // namespace
}  // namespace novex::gui::pruebas
