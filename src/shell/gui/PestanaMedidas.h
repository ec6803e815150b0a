#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QWidget>
#include <vector>

#include "outputs/PaginaEstudio.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Las medidas de una página del estudio: su marca, su valor en el dato que se elige y, en las
/// marcadas, el coste y los años que teclea el usuario.
class PestanaMedidas : public QWidget {
  Q_OBJECT

 public:
  PestanaMedidas(ContextoGui& contexto, Enlaces& enlaces, PaginaMedida pagina, QWidget* padre);
  /// \param medidas las del caso que se han medido; puede ser nula
  void Ensenar(const ResultadoMedida& base, const std::vector<ResultadoMedida>* medidas);

 signals:
  /// Se ha marcado o desmarcado una medida.
  void Marcada();

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  struct Fila {
    int codigo = 0;
    QCheckBox* marca = nullptr;
    QLabel* texto = nullptr;
    QLabel* valor = nullptr;
    QLineEdit *coste = nullptr, *anos = nullptr;
  };
  void AnadirFila(const MedidaPredefinida& medida, QGridLayout* rejilla);
  void Marcar(int codigo, bool si);
  void PonerValores();

  ContextoGui& contexto_;
  Enlaces& enlaces_;
  PaginaMedida pagina_;
  QComboBox* datos_;
  QLabel *base_, *coste_, *anos_;
  std::vector<Fila> filas_;
  ResultadoMedida resultadoBase_;
  std::vector<ResultadoMedida> medidas_;
};

}  // namespace novex::gui
