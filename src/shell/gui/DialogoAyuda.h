#pragma once

#include <QDialog>
#include <QTextBrowser>
#include <filesystem>

namespace novex::gui {

/// El manual, por páginas en Markdown, con sus imágenes al ancho que se lee bien.
class DialogoAyuda : public QDialog {
  Q_OBJECT

 public:
  /// \param manual carpeta con sus páginas
  explicit DialogoAyuda(std::filesystem::path manual, QWidget* padre = nullptr);
  /// Enseña una página por su nombre de fichero; si no está, lo dice.
  void Mostrar(const QString& pagina);

 private:
  std::filesystem::path manual_;
  QTextBrowser* texto_;
};

}  // namespace novex::gui
