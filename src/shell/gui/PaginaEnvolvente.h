#pragma once

#include <QListWidget>
#include <QStackedWidget>
#include <QTableWidget>
#include <vector>

#include "shell/gui/DibujoPlanta.h"
#include "shell/gui/DibujoSeccion.h"
#include "shell/gui/FichaElemento.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Una página de elementos opacos: sus clases a la izquierda, lo que se define de la elegida en el
/// centro y, a la derecha, el dibujo de sus áreas y la sección de la composición que se mira.
class PaginaEnvolvente : public Pagina {
  Q_OBJECT

 public:
  PaginaEnvolvente(ContextoGui& contexto, PaginaOpacos pagina, QWidget* padre);
  void Refrescar() override;
  /// Enseña la clase del elemento, con el foco en su U.
  void Senalar(const MensajePrevio& motivo) override;

 protected:
  void showEvent(QShowEvent* evento) override;

 private:
  QWidget* Color();
  QWidget* Dibujos();
  void Elegir(std::size_t ranura);
  void Definir(std::size_t ranura);
  void EnsenarSeccion(std::size_t ranura);
  void PonerDibujo();
  /// Al entrar, mientras nadie elige otra, se enseña la clase con más área. No se cambia con una
  /// edición, que la quitaría de la vista mientras se teclea.
  void ElegirMayor();

  PaginaOpacos pagina_;
  QListWidget* clases_;
  QStackedWidget* pila_;
  std::vector<FichaElemento*> fichas_;
  DibujoPlanta* planta_;
  DibujoReparto* reparto_;
  DibujoSeccion* seccion_;
  QTableWidget* capas_;
  QLabel* pieSeccion_;
  bool tocada_ = false;
};

}  // namespace novex::gui
