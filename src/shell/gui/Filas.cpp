#include "shell/gui/Filas.h"

#include <QCalendarWidget>
#include <QMenu>
#include <QStyle>
#include <QVBoxLayout>
#include <QWidgetAction>

namespace novex::gui {
namespace {

constexpr const char* kFormatoFecha = "dd/MM/yyyy";
constexpr int kSeparacion = 16;

QWidget* Columna(QWidget* padre) {
  auto* columna = new QWidget(padre);
  auto* cajas = new QVBoxLayout(columna);
  cajas->setContentsMargins(0, 0, 0, 0);
  cajas->addStretch(1);
  return columna;
}

void Anadir(QWidget* columna, QWidget* caja) {
  auto* cajas = static_cast<QVBoxLayout*>(columna->layout());
  cajas->insertWidget(cajas->count() - 1, caja);
}

}  // namespace

OpcionesCampo Opciones(const QString& rotulo, const QString& ayuda, const QString& unidad) {
  OpcionesCampo opciones;
  opciones.rotulo = rotulo;
  opciones.ayuda = ayuda;
  opciones.unidad = unidad;
  return opciones;
}

OpcionesCampo OpcionesSinCalculo(const QString& rotulo, const QString& ayuda) {
  OpcionesCampo opciones = Opciones(rotulo, ayuda);
  opciones.recalcula = false;
  return opciones;
}

std::vector<std::string> Textos(std::span<const std::string_view> lista) {
  return {lista.begin(), lista.end()};
}

void PonerMargenes(QGroupBox* caja) {
  caja->layout()->setContentsMargins(0, 4, 0, 8);
}

CajaFormulario NuevaCaja(const QString& titulo, QWidget* padre) {
  CajaFormulario nueva;
  nueva.caja = new QGroupBox(titulo, padre);
  nueva.filas = new QFormLayout(nueva.caja);
  nueva.filas->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  nueva.filas->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  nueva.filas->setVerticalSpacing(5);
  PonerMargenes(nueva.caja);
  return nueva;
}

void MostrarFila(QFormLayout* formulario, QWidget* editor, bool mostrar) {
  while (editor != nullptr && formulario->indexOf(editor) < 0) editor = editor->parentWidget();
  if (editor != nullptr) formulario->setRowVisible(editor, mostrar);
}

QLabel* NuevaNota(QWidget* padre, const char* papel) {
  auto* nota = new QLabel(padre);
  nota->setProperty("papel", papel);
  nota->setWordWrap(true);
  return nota;
}

QLabel* NotaCorta(QWidget* padre, const char* papel) {
  QLabel* nota = NuevaNota(padre, papel);
  nota->setWordWrap(false);
  return nota;
}

void Ensanchar(QLineEdit* linea) {
  constexpr int kLetras = 46;
  linea->setMinimumWidth(
      std::min(linea->maximumWidth(), kLetras * linea->fontMetrics().averageCharWidth()));
}

void PonerPapel(QLabel* texto, const char* papel) {
  if (texto->property("papel").toString() == papel) return;
  texto->setProperty("papel", papel);
  texto->style()->unpolish(texto);
  texto->style()->polish(texto);
}

QToolButton* BotonCalendario(QLineEdit* fecha, QWidget* padre) {
  auto* boton = new QToolButton(padre);
  boton->setText(QObject::tr("Calendario"));
  boton->setToolTip(QObject::tr("Elegir la fecha en un calendario"));
  boton->setPopupMode(QToolButton::InstantPopup);
  auto* menu = new QMenu(boton);
  auto* calendario = new QCalendarWidget(menu);
  calendario->setFirstDayOfWeek(Qt::Monday);
  auto* accion = new QWidgetAction(menu);
  accion->setDefaultWidget(calendario);
  menu->addAction(accion);
  boton->setMenu(menu);
  QObject::connect(menu, &QMenu::aboutToShow, calendario, [calendario, fecha] {
    const QDate dia = QDate::fromString(fecha->text(), kFormatoFecha);
    calendario->setSelectedDate(dia.isValid() ? dia : QDate::currentDate());
  });
  QObject::connect(calendario, &QCalendarWidget::clicked, fecha, [menu, fecha](const QDate& dia) {
    menu->hide();
    fecha->setText(dia.toString(kFormatoFecha));
    fecha->setModified(true);
    emit fecha->editingFinished();
  });
  return boton;
}

DosColumnas::DosColumnas(QWidget* padre)
    : QWidget(padre),
      columnas_(new QBoxLayout(QBoxLayout::LeftToRight, this)),
      izquierda_(Columna(this)),
      derecha_(Columna(this)) {
  columnas_->setContentsMargins(0, 0, 0, 0);
  columnas_->setSpacing(kSeparacion);
  columnas_->addWidget(izquierda_, 1);
  columnas_->addWidget(derecha_, 1);
}

void DosColumnas::AnadirIzquierda(QWidget* caja) {
  Anadir(izquierda_, caja);
}

void DosColumnas::AnadirDerecha(QWidget* caja) {
  Anadir(derecha_, caja);
}

int DosColumnas::AnchoDeDos() const {
  return izquierda_->minimumSizeHint().width() + kSeparacion + derecha_->minimumSizeHint().width();
}

// Una columna bajo otra siempre cabe: no hay que pedir el ancho de las dos.
QSize DosColumnas::minimumSizeHint() const {
  const int ancho =
      std::max(izquierda_->minimumSizeHint().width(), derecha_->minimumSizeHint().width());
  return {ancho, columnas_->minimumSize().height()};
}

void DosColumnas::resizeEvent(QResizeEvent* evento) {
  QWidget::resizeEvent(evento);
  const auto direccion =
      width() >= AnchoDeDos() ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom;
  if (columnas_->direction() == direccion) return;
  columnas_->setDirection(direccion);
  updateGeometry();
}

}  // namespace novex::gui
