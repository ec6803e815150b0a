#pragma once

#include <QButtonGroup>
#include <QGridLayout>
#include <QPushButton>
#include <array>
#include <vector>

#include "entry/EntradaPuentes.h"
#include "shell/gui/DibujoPuente.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Los puentes térmicos: de dónde salen sus valores, los valores y sus longitudes.
class PaginaPuentes : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaPuentes(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 protected:
  /// Al salir, las longitudes que se estiman quedan puestas.
  void hideEvent(QHideEvent* evento) override;

 private:
  QWidget* Origen();
  QWidget* Medidas();
  QWidget* Valores();
  QWidget* Pilares();
  QLayout* ModoLongitudes();
  QComboBox* ListaDe(const QStringList& textos, const char* nombre,
                     int novex::PaginaPuentes::*dato);
  void Cambiar(const QString& que, const std::function<void(novex::PaginaPuentes&)>& cambio);

  struct Fila {
    DibujoPuente* dibujo;
    QLineEdit *U, *fi;
    QLabel* producto;
  };

  QButtonGroup *origen_, *modo_;
  std::vector<std::pair<QComboBox*, int novex::PaginaPuentes::*>> listas_;
  QComboBox *forjados_, *pilares_, *ventanas_, *existencia_;
  QWidget *tipicos_, *existenciaFila_;
  QPushButton* estimar_;
  QLabel *avisos_, *totalPilares_, *total_;
  std::array<Fila, kPuentes> filas_{};
  std::vector<QLineEdit*> longitudes_;
};

}  // namespace novex::gui
