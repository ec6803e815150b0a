#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QWidget>
#include <vector>

#include "shell/gui/VistaGrafico.h"

namespace novex::gui {

/// Un gráfico y el texto que va debajo.
struct GraficoRotulado {
  Grafico grafico;
  QString rotulo;
};

/// Varios gráficos de resultados en filas, cada uno con un texto debajo.
class RejillaGraficos : public QWidget {
  Q_OBJECT

 public:
  /// \param rotulo el nombre de sus textos, al que sigue su número \param formato el de los textos
  RejillaGraficos(int porFila, const QString& rotulo, Qt::TextFormat formato,
                  QWidget* padre = nullptr);
  /// Enseña unos gráficos. Los que ya había se aprovechan.
  void Poner(const std::vector<GraficoRotulado>& graficos);

 private:
  struct Vista {
    QWidget* caja;
    VistaGrafico* grafico;
    QLabel* rotulo;
  };
  Vista NuevaVista();

  int porFila_;
  QString nombre_;
  Qt::TextFormat formato_;
  QGridLayout* rejilla_;
  std::vector<Vista> vistas_;
};

}  // namespace novex::gui
