#pragma once

#include <QListWidget>
#include <QScrollArea>
#include <vector>

#include "base/Tabla.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

/// Tablas de resultados: la lista de sus nombres y la elegida. Calcula al enseñarse, como toda
/// página de resultados, y solo lo que ha cambiado.
class PaginaTablas : public Pagina {
  Q_OBJECT

 public:
  /// \param destino cuáles enseña: las de un caso, las que comparan casos o los veredictos
  PaginaTablas(ContextoGui& contexto, Destino destino, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  bool Calcular();
  std::vector<std::string> Nombres() const;
  std::vector<Tabla> TablasDe(const std::string& nombre) const;
  void Elegir();

  Destino destino_;
  QListWidget* nombres_;
  QScrollArea* visor_;
  QLabel* aviso_;
};

}  // namespace novex::gui
