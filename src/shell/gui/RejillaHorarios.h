#pragma once

#include <QTableWidget>

#include "entry/Horarios.h"

namespace novex::gui {

/// La rejilla de una familia de horarios: una fila por clase de día y una columna por hora. Lo que
/// se teclea va a todas las horas elegidas; se copia y se pega con una hoja de cálculo.
class RejillaHorarios : public QTableWidget {
  Q_OBJECT

 public:
  explicit RejillaHorarios(QWidget* padre = nullptr);
  /// \param dias del año que tiene cada código del calendario
  void Poner(const std::array<PerfilDiario, kClasesDia>& tablas,
             const std::array<int, kCodigosDia>& dias);
  /// Las horas elegidas.
  std::vector<CasillaHoraria> Elegidas() const;
  /// Lo elegido, por filas y con tabuladores; el hueco de lo que no lo está queda vacío.
  QString TextoElegido() const;

 signals:
  void Tecleado(const std::vector<novex::CasillaHoraria>& casillas, const QString& texto);
  void Pegado(const novex::CasillaHoraria& esquina, const QString& texto);

 protected:
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  void Pegar();
};

}  // namespace novex::gui
