#pragma once

#include <QDateTime>
#include <QStringList>
#include <QStyledItemDelegate>

namespace novex::gui {

/// Los proyectos abiertos últimamente, del más nuevo al más viejo.
QStringList ProyectosRecientes();

/// Recuerda la letra de energía primaria que ha dado un fichero de proyecto tal como está ahora.
void RecordarLetra(const QString& ruta, const QString& letra);
/// La letra de un fichero; vacía si no se ha calculado o ha cambiado desde entonces.
QString LetraDe(const QString& ruta);

/// Una fecha vista desde otra: "hoy 9:05", "ayer", "3 nov" y, de otro año, "3 nov 2024".
QString FechaRelativa(const QDateTime& fecha, const QDateTime& ahora);

/// Lo que una lista enseña de un proyecto además de su nombre.
enum PapelProyecto { kRutaProyecto = Qt::UserRole, kFechaProyecto, kLetraProyecto };

/// Dibuja un proyecto de una lista: su nombre, la fecha y el cuadro de la letra.
class DelegadoProyecto : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* p, const QStyleOptionViewItem& opcion,
             const QModelIndex& indice) const override;
  QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override;
};

}  // namespace novex::gui
