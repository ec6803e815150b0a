#pragma once

#include <array>
#include <vector>

#include "shell/gui/Enlaces.h"

class QGridLayout;

namespace novex::gui {

class EditorMemo;

/// Lo que el técnico anota en el caso base: sus visitas, sus observaciones y lo que interviene en
/// el edificio. Son los mismos controles en las dos páginas que lo enseñan.
class CajasVisitas {
 public:
  /// \param enlaces los de la página \param pagina la que las lleva
  CajasVisitas(ContextoGui& contexto, Enlaces& enlaces, QWidget* pagina)
      : contexto_(contexto), enlaces_(enlaces), pagina_(pagina) {}

  /// Crean las cajas, una vez cada una.
  QWidget* Visitas();
  QWidget* Observaciones();
  QWidget* Intervenciones();
  /// Enseña las que hay y sus textos.
  void Refrescar();

 private:
  /// Las tres visitas o las tres observaciones.
  struct Anotaciones {
    QLabel* ninguna = nullptr;
    std::array<QWidget*, 3> cajas{};
  };
  QWidget* Caja(Anotaciones& anotaciones, const QString& titulo, const QString& una,
                const std::string& numero, const std::string& fecha, std::size_t primerMemo,
                const QString& ninguna);

  ContextoGui& contexto_;
  Enlaces& enlaces_;
  QWidget* pagina_;
  Anotaciones visitas_, observaciones_;
  std::vector<EditorMemo*> memos_;
};

/// Una casilla de una caja que las reparte en columnas: cada una va en un formulario de una fila.
QFormLayout* CeldaFormulario(QGridLayout* rejilla, std::size_t cual, int columnas);

}  // namespace novex::gui
