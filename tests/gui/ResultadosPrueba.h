#pragma once

#include <QComboBox>
#include <QFileDialog>
#include <QTabWidget>

#include "base/FicheroSeguro.h"
#include "gui/VentanaPrueba.h"
#include "outputs/CasoCalculado.h"
#include "shell/gui/PaginaPestanas.h"
#include "shell/gui/SelectorOpciones.h"
#include "shell/gui/TextoQt.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui::pruebas {

/// La ventana en los resultados de un ejemplo.
class ResultadosTest : public VentanaTest {
 protected:
  /// Abre un ejemplo y entra en una pestaña de sus resultados.
  void Entrar(const char* ejemplo, const char* pestana) {
    ASSERT_TRUE(ventana->Abrir(Ejemplo(ejemplo)));
    IrAPestana(pestana);
  }
  void IrAPestana(const char* pestana) {
    ventana->Mostrar(Destino::Certificacion);
    static_cast<PaginaPestanas*>(ventana->PaginaDe(Destino::Certificacion))->Mostrar(pestana);
  }
  bool HayPestana(const QString& titulo) {
    const auto* pestanas = ventana->PaginaDe(Destino::Certificacion)->findChild<QTabWidget*>();
    for (int i = 0; i < pestanas->count(); ++i)
      if (pestanas->tabText(i) == titulo) return pestanas->isTabVisible(i);
    return false;
  }
  /// Un caso como lo da el motor.
  CasoCalculado Caso(std::size_t cual = 0) { return CasosCalculados(sesion.Gestor()).at(cual); }
  void ElegirEn(const char* lista, std::size_t posicion) {
    Buscar<QComboBox>(lista)->setCurrentIndex(static_cast<int>(posicion));
  }
  void Marcar(const char* opciones, std::size_t posicion) {
    Buscar<SelectorOpciones>(opciones)->Elegir(static_cast<int>(posicion));
  }
  /// Pulsa un botón que pregunta dónde guardar. \returns lo que ha escrito
  std::string Guardar(const char* boton) {
    const std::filesystem::path elegida = carpeta / boton;
    ConDialogo<QFileDialog>([&] { QTest::mouseClick(Buscar<QWidget>(boton), Qt::LeftButton); },
                            [&](QFileDialog& d) {
                              d.findChild<QLineEdit*>("fileNameEdit")->setText(Q(elegida));
                              static_cast<QDialog&>(d).accept();
                            });
    return LeerFichero(elegida.string() + ".txt");
  }
  /// Lo que se lee en una tabla es lo que dice la suya.
  static void EsTabla(VistaTabla& vista, const Tabla& tabla) {
    EXPECT_TRUE(vista.isVisible()) << tabla.titulo;
    QStringList textos;
    for (const QLabel* texto : vista.findChildren<QLabel*>()) textos << texto->text();
    EXPECT_TRUE(textos.contains(Q(tabla.titulo))) << tabla.titulo;
    for (const std::string& nota : tabla.notas)
      EXPECT_TRUE(textos.join('\n').contains(Q(nota))) << nota;
    QTableWidget& rejilla = *vista.Rejilla();
    ASSERT_EQ(rejilla.rowCount(), static_cast<int>(tabla.filas.size())) << tabla.titulo;
    for (std::size_t c = 0; c < tabla.cabeceras.size(); ++c)
      EXPECT_EQ(rejilla.horizontalHeaderItem(static_cast<int>(c))->text().simplified(),
                Q(tabla.cabeceras[c]).simplified());
    for (std::size_t f = 0; f < tabla.filas.size(); ++f)
      for (std::size_t c = 0; c < tabla.filas[f].size(); ++c)
        EXPECT_EQ(S(rejilla.item(static_cast<int>(f), static_cast<int>(c))->text()),
                  tabla.filas[f][c].texto)
            << tabla.titulo << " " << f << "," << c;
  }
  /// Las tablas que se ven, de arriba abajo.
  std::vector<VistaTabla*> TablasVistas() {
    QApplication::processEvents();  // una tabla nueva se enseña en la vuelta siguiente
    std::vector<VistaTabla*> vistas;
    for (auto* vista : ventana->PaginaDe(ventana->Mostrada())->findChildren<VistaTabla*>())
      if (vista->isVisible()) vistas.push_back(vista);
    return vistas;
  }
};

}  // namespace novex::gui::pruebas
