#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>
#include <memory>

#include "files/CarpetaTemporal.h"
#include "shell/gui/TForm1.h"

namespace novex::gui::pruebas {

/// Avisos que se apuntan en lugar de enseñarse.
class MensajesCallados : public MensajesVentana {
 public:
  void Avisar(const std::string& titulo, const std::string& texto) override {
    recibidos.push_back({titulo, texto});
  }
  bool Preguntar(const std::string& titulo, const std::string& texto) override {
    recibidos.push_back({titulo, texto});
    return respuesta;
  }
  std::vector<Mensaje> recibidos;
  bool respuesta = false;
};

/// La ventana con un proyecto nuevo, sin pantalla.
class VentanaTest : public testing::Test {
 protected:
  /// \param programa la carpeta de programa
  explicit VentanaTest(const std::filesystem::path& programa = NOVEX_PROGRAMA_PRUEBAS);
  /// Activa la ventana: solo una activa da y quita el foco.
  void Activar();
  /// Espera a que acabe la calificación en vivo.
  void EsperarVivo();
  /// Un editor de la página que se enseña, por la dirección de su campo; nulo si no está.
  template <class Editor>
  Editor* Buscar(const char* direccion) {
    return ventana->PaginaDe(ventana->Mostrada())->findChild<Editor*>(direccion);
  }
  /// Teclea un valor en un editor y sale de él.
  void Teclear(QLineEdit* linea, const QString& texto);

  /// Hace algo que abre un diálogo y lo que haya que hacer en él, que si sigue abierto se cierra.
  template <class Dialogo>
  void ConDialogo(const std::function<void()>& abrir, const std::function<void(Dialogo&)>& hacer) {
    bool abierto = false;
    QTimer::singleShot(0, [&] {
      auto* dialogo = qobject_cast<Dialogo*>(QApplication::activeModalWidget());
      ASSERT_NE(dialogo, nullptr);
      abierto = true;
      hacer(*dialogo);
      if (dialogo->isVisible()) dialogo->reject();
    });
    abrir();
    EXPECT_TRUE(abierto);
  }
  /// Da una orden de la barra por su texto.
  void Ordenar(const QString& texto);

  MensajesCallados mensajes;
  novex::pruebas::CarpetaTemporal carpeta;
  FicherosPrograma ficheros;
  SesionProyecto sesion{ficheros, mensajes};
  std::unique_ptr<TForm1> ventana;
};

/// Una carpeta de programa con sus propios catálogos, para las pruebas que los cambian.
struct CopiaPrograma {
  CopiaPrograma();
  novex::pruebas::CarpetaTemporal programa;
};

/// Guarda la imagen de una ventana para el manual, sin transparencia y muy comprimida.
/// \returns si se ha podido
bool GuardarCaptura(QWidget& ventana, const QString& ruta);

/// Un proyecto de ejemplo.
std::filesystem::path Ejemplo(const std::string& nombre);
std::vector<std::filesystem::path> Ejemplos();

}  // namespace novex::gui::pruebas
