#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QTimer>
#include <QWidget>

#include "shell/CalculoVivo.h"
#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// La calificación que sigue a lo que se teclea. Espera medio segundo tras la última edición y
/// calcula en los ratos libres del hilo, en pasos que no estorban a las teclas.
class PanelVivo : public QWidget {
  Q_OBJECT

 public:
  explicit PanelVivo(ContextoGui& contexto, QWidget* padre = nullptr);

  /// Algo ha cambiado: calcula dentro de un rato.
  void Pedir();
  /// El proyecto o el caso es otro: lo de antes no se compara.
  void PedirDeNuevo();
  const CalculoVivo& Calculo() const { return vivo_; }
  /// ¿Queda algo por calcular?
  bool Ocupado() const { return espera_.isActive() || reloj_.isActive(); }

 signals:
  /// Hay un resumen nuevo.
  void Calculado();

 private:
  void Empezar();
  void Paso();
  void Ensenar();
  void EnsenarCambio();

  ContextoGui& contexto_;
  CalculoVivo vivo_;
  QTimer espera_, reloj_;
  QString queCambia_;  ///< la edición que se está calculando
  QCheckBox* activo_;
  QWidget* cuerpo_;
  QLabel *letraPrimaria_, *letraEmisiones_, *primaria_, *emisiones_;
  QLabel *calefaccion_, *refrigeracion_, *agua_, *fuera_, *series_, *cambio_, *motivo_, *estado_;
};

}  // namespace novex::gui
