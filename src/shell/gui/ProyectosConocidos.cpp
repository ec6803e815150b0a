#include "shell/gui/ProyectosConocidos.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QPainter>
#include <QSettings>
#include <QUrl>

#include "shell/gui/EtiquetaEnergetica.h"

namespace novex::gui {
namespace {

constexpr int kLadoLetra = 20;
constexpr int kAire = 4;

QString ClaveLetra(const QString& ruta) {
  return "letras/" + QString::fromLatin1(QUrl::toPercentEncoding(ruta));
}

// Lo que dice si un fichero es el mismo que se calculó.
QString Huella(const QString& ruta) {
  const QFileInfo fichero(ruta);
  return QString("%1 %2").arg(fichero.lastModified().toMSecsSinceEpoch()).arg(fichero.size());
}

}  // namespace

QStringList ProyectosRecientes() {
  return QSettings().value("recientes").toStringList();
}

void RecordarLetra(const QString& ruta, const QString& letra) {
  QSettings().setValue(ClaveLetra(ruta), QStringList{Huella(ruta), letra});
}

QString LetraDe(const QString& ruta) {
  const QStringList guardada = QSettings().value(ClaveLetra(ruta)).toStringList();
  return guardada.size() == 2 && guardada[0] == Huella(ruta) ? guardada[1] : QString();
}

QString FechaRelativa(const QDateTime& fecha, const QDateTime& ahora) {
  const qint64 dias = fecha.date().daysTo(ahora.date());
  if (dias == 0) return QObject::tr("hoy %1").arg(fecha.toString("h:mm"));
  if (dias == 1) return QObject::tr("ayer");
  const bool esteAno = fecha.date().year() == ahora.date().year();
  return QLocale(QLocale::Spanish).toString(fecha.date(), esteAno ? "d MMM" : "d MMM yyyy");
}

QSize DelegadoProyecto::sizeHint(const QStyleOptionViewItem& opcion,
                                 const QModelIndex& indice) const {
  const QSize base = QStyledItemDelegate::sizeHint(opcion, indice);
  return {base.width(), std::max(base.height(), kLadoLetra) + kAire};
}

void DelegadoProyecto::paint(QPainter* p, const QStyleOptionViewItem& opcion,
                             const QModelIndex& indice) const {
  QStyleOptionViewItem fondo = opcion;
  initStyleOption(&fondo, indice);
  const QString nombre = fondo.text;
  fondo.text.clear();
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &fondo, p, fondo.widget);
  p->save();
  p->setRenderHint(QPainter::Antialiasing);
  const bool elegido = opcion.state.testFlag(QStyle::State_Selected);
  QRect zona = opcion.rect.adjusted(6, 0, -6, 0);
  const QRect cuadro(zona.right() - kLadoLetra, zona.center().y() - kLadoLetra / 2 + 1, kLadoLetra,
                     kLadoLetra);
  const QString letra = indice.data(kLetraProyecto).toString();
  if (!letra.isEmpty()) {
    p->setPen(Qt::NoPen);
    p->setBrush(ColorLetra(letra));
    p->drawRoundedRect(cuadro, 3, 3);
    QFont negrita = opcion.font;
    negrita.setBold(true);
    p->setFont(negrita);
    p->setPen(TextoSobreLetra(letra));
    p->drawText(cuadro, Qt::AlignCenter, letra);
  }
  zona.setRight(cuadro.left() - 8);
  p->setFont(opcion.font);
  const QString fecha = indice.data(kFechaProyecto).toString();
  p->setPen(opcion.palette.color(elegido ? QPalette::HighlightedText : QPalette::PlaceholderText));
  p->drawText(zona, Qt::AlignRight | Qt::AlignVCenter, fecha);
  if (!fecha.isEmpty())
    zona.setRight(zona.right() - opcion.fontMetrics.horizontalAdvance(fecha) - 10);
  const bool vale = indice.flags().testFlag(Qt::ItemIsEnabled);
  if (vale) p->setPen(opcion.palette.color(elegido ? QPalette::HighlightedText : QPalette::Text));
  p->drawText(zona, Qt::AlignLeft | Qt::AlignVCenter,
              opcion.fontMetrics.elidedText(nombre, Qt::ElideMiddle, zona.width()));
  p->restore();
}

}  // namespace novex::gui
