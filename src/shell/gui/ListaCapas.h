#pragma once

#include <QTreeWidget>
#include <vector>

#include "reference/Cerramiento.h"

namespace novex::gui {

/// Las capas de un cerramiento en una rejilla: se mueven arrastrándolas y el espesor se cambia en
/// su sitio donde se admite. No cambia nada por sí misma: avisa de lo que se pide.
class ListaCapas : public QTreeWidget {
  Q_OBJECT

 public:
  /// \param vertical las de un muro van de fuera adentro; las demás, de arriba abajo
  explicit ListaCapas(bool vertical, QWidget* padre = nullptr);
  void Poner(const std::vector<Capa>& capas, int elegida);
  /// La capa elegida, o -1.
  int Elegida() const;
  /// Delante de qué capa queda lo que se suelta en un punto de la rejilla; al final, el número de
  /// capas.
  int LugarEn(const QPoint& punto) const;

 signals:
  /// La capa `desde` ha de quedar delante de la que ahora es `hasta`.
  void Movida(int desde, int hasta);
  void EspesorTecleado(int capa, const QString& texto);
  void PideQuitar();

 protected:
  void dropEvent(QDropEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

 private:
  std::vector<bool> editable_;
  bool llenando_ = false;
};

}  // namespace novex::gui
