#pragma once

#include <QLabel>
#include <QPixmap>
#include <QPushButton>
#include <filesystem>
#include <memory>

#include "files/ImagenesProyecto.h"
#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Una de las dos imágenes del proyecto: la enseña, la cambia y la quita. Es de todos los casos.
class MarcoImagen : public QWidget {
  Q_OBJECT

 public:
  MarcoImagen(ContextoGui& contexto, LugarImagen lugar, const QString& titulo,
              QWidget* padre = nullptr);
  void Refrescar();
  /// Toma la imagen de un fichero; si no se puede, avisa y la que hay sigue.
  void Tomar(const std::filesystem::path& fichero);

 private:
  void Elegir();
  void Ver();
  void Poner(const std::shared_ptr<const std::string>& texto);

  ContextoGui& contexto_;
  LugarImagen lugar_;
  QString titulo_;
  QLabel* vista_;
  QPushButton *ver_, *borrar_;
  std::shared_ptr<const std::string> mostrada_;
  QPixmap imagen_;
};

}  // namespace novex::gui
