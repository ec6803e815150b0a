#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

#include "entry/CreacionSistema.h"
#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Pide un sistema nuevo: su servicio, su tipología, su clase y lo que la clase deja elegir.
class DialogoSistema : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoSistema(ContextoGui& contexto, QWidget* padre = nullptr);
  /// Lo que hay elegido. \param avisos los de la superficie tecleada
  PeticionSistema Peticion(Mensajes& avisos) const;

 private:
  QWidget* CajaServicios();
  QWidget* CajaOpciones();
  void PonerClases();
  void PonerOpciones();
  void PonerAviso();
  void Crear();

  ContextoGui& contexto_;
  QButtonGroup *servicios_, *tipologias_;
  QListWidget* clases_;
  QFormLayout* opciones_;
  QLineEdit *nombre_, *superficie_;
  QComboBox *emisor_, *bomba_, *distribucion_, *distribucion2_;
  QLabel *potencia_, *aviso_;
};

}  // namespace novex::gui
