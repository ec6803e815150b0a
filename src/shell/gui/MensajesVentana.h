#pragma once

#include <QWidget>

#include "base/Mensajes.h"

namespace novex::gui {

/// Los avisos como cajas sobre la ventana.
class MensajesVentana : public Mensajes {
 public:
  /// \param padre sobre qué ventana; nulo al arrancar
  explicit MensajesVentana(QWidget* padre = nullptr) : padre_(padre) {}
  void PonerPadre(QWidget* padre) { padre_ = padre; }
  void Avisar(const std::string& titulo, const std::string& texto) override;
  bool Preguntar(const std::string& titulo, const std::string& texto) override;

 private:
  QWidget* padre_;
};

}  // namespace novex::gui
