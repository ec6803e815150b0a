#include "shell/gui/Estilo.h"

#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

namespace novex::gui {
namespace {

constexpr int kMedioGris = 128;
constexpr double kTrazo = 0.55;  // del color del texto, en el borde de una casilla
constexpr const char *kAvisoClaro = "#b3261e", *kAvisoOscuro = "#ff9c8a";

bool EsOscura(const QPalette& paleta) {
  return paleta.color(QPalette::Window).lightness() < kMedioGris;
}

// Con fondo oscuro el borde de las casillas casi no se distingue de él: se traza encima.
class EstiloPrograma : public QProxyStyle {
 public:
  EstiloPrograma() : QProxyStyle(QStyleFactory::create("Fusion")) {}

  void drawPrimitive(PrimitiveElement elemento, const QStyleOption* opcion, QPainter* pintor,
                     const QWidget* widget) const override {
    QProxyStyle::drawPrimitive(elemento, opcion, pintor, widget);
    const bool casilla =
        elemento == PE_IndicatorCheckBox || elemento == PE_IndicatorItemViewItemCheck;
    if ((!casilla && elemento != PE_IndicatorRadioButton) || !EsOscura(opcion->palette)) return;
    pintor->save();
    QColor trazo = opcion->palette.color(QPalette::WindowText);
    trazo.setAlphaF(static_cast<float>(opcion->state & State_Enabled ? kTrazo : kTrazo / 2));
    pintor->setPen(trazo);
    pintor->setBrush(Qt::NoBrush);
    pintor->setRenderHint(QPainter::Antialiasing, !casilla);
    const QRectF borde = QRectF(opcion->rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (casilla)
      pintor->drawRect(borde.adjusted(0, 0, -0.5, -0.5));
    else
      pintor->drawEllipse(borde);
    pintor->restore();
  }
};

}  // namespace

QColor ColorAviso(const QPalette& paleta) {
  return {EsOscura(paleta) ? kAvisoOscuro : kAvisoClaro};
}

void PonerEstilo(QApplication& aplicacion) {
  QApplication::setStyle(new EstiloPrograma);
  const bool oscuro = EsOscura(QApplication::palette());
  if (oscuro) {
    // El azul de los enlaces no se lee sobre un fondo oscuro.
    QPalette paleta = QApplication::palette();
    paleta.setColor(QPalette::Link, QColor("#7fb8e6"));
    QApplication::setPalette(paleta);
  }
  const QString suave = oscuro ? "#9aa4ad" : "#66727c";
  const QString aviso = ColorAviso(QApplication::palette()).name();
  const QString distinto = oscuro ? "#7fb8e6" : "#1f5f8b";
  const QString cumple = oscuro ? "#7fce9a" : "#1f7a3d";
  const QString linea = oscuro ? "#565c62" : "#c4c9ce";
  aplicacion.setStyleSheet(QString(R"(
    QLabel[papel="titulo"] { font-size: 15pt; font-weight: 600; }
    QLabel[papel="seccion"] { font-weight: 600; padding-top: 8px; }
    QLabel[papel="unidad"], QLabel[papel="nota"] { color: %1; }
    QLabel[papel="aviso"] { color: %2; }
    QLabel[papel="bloque"] { font-size: 12pt; font-weight: 600; }
    QLabel[papel="cumple"] { color: %5; font-weight: 600; }
    QLabel[papel="nocumple"] { color: %2; font-weight: 600; }
    QLabel[papel="noaplica"] { color: %1; font-weight: 600; }
    QLineEdit[distinto="true"], QComboBox[distinto="true"] { color: %3; }
    QLineEdit { padding: 3px 5px; }
    QGroupBox { font-weight: 600; border: none; border-top: 1px solid %4; margin-top: 1.7em;
                padding-top: 2px; }
    QGroupBox::title { subcontrol-origin: margin; left: 0px; }
    QGroupBox QLabel, QGroupBox QComboBox, QGroupBox QCheckBox, QGroupBox QLineEdit,
    QGroupBox QRadioButton, QGroupBox QPushButton { font-weight: normal; }
    QListWidget { border: none; background: transparent; }
  )")
                               .arg(suave, aviso, distinto, linea, cumple));
}

}  // namespace novex::gui
