#include "shell/gui/SelectorPeriodo.h"

#include <QHBoxLayout>

#include "shell/gui/ListaSinRueda.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kDiasMesLargo = 31;

}  // namespace

SelectorPeriodo::SelectorPeriodo(QWidget* padre) : QWidget(padre) {
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->setSpacing(4);
  anterior_ = Flecha(Qt::LeftArrow, tr("El periodo anterior"), -1);
  tipo_ = Lista("RGperiodo", tr("Parte del año que se mira"));
  tipo_->addItems({"Anual", "Mensual", "Semanal", "Diario"});
  semana_ = Lista("semanaPeriodo", tr("Semana"));
  for (const std::string& semana : NombresSemanas()) semana_->addItem(Q(semana));
  dia_ = Lista("diaPeriodo", tr("Día del mes"));
  for (int dia = 1; dia <= kDiasMesLargo; ++dia) dia_->addItem(QString::number(dia));
  mes_ = Lista("mesPeriodo", tr("Mes"));
  for (int mes = 1; mes <= kMeses; ++mes)
    mes_->addItem(Q(kNombreMesCompleto.at(static_cast<std::size_t>(mes))));
  siguiente_ = Flecha(Qt::RightArrow, tr("El periodo siguiente"), 1);
  for (QWidget* w :
       std::initializer_list<QWidget*>{tipo_, anterior_, semana_, dia_, mes_, siguiente_})
    fila->addWidget(w);
  Ajustar();
}

QComboBox* SelectorPeriodo::Lista(const char* nombre, const QString& ayuda) {
  auto* lista = new ListaSinRueda(this);
  lista->setObjectName(nombre);
  lista->setToolTip(ayuda);
  connect(lista, &QComboBox::activated, this, [this] {
    Ajustar();
    emit Cambiado();
  });
  return lista;
}

QToolButton* SelectorPeriodo::Flecha(Qt::ArrowType flecha, const QString& ayuda, int pasos) {
  auto* boton = new QToolButton(this);
  boton->setObjectName(pasos < 0 ? "periodoAnterior" : "periodoSiguiente");
  boton->setArrowType(flecha);
  boton->setAutoRaise(true);
  boton->setAutoRepeat(true);
  boton->setToolTip(ayuda);
  connect(boton, &QToolButton::clicked, this, [this, pasos] { Mover(pasos); });
  return boton;
}

PeriodoSerie SelectorPeriodo::Periodo() const {
  return {.tipo = static_cast<TipoPeriodo>(tipo_->currentIndex()),
          .mes = mes_->currentIndex() + 1,
          .semana = semana_->currentIndex() + 1,
          .dia = dia_->currentIndex() + 1};
}

void SelectorPeriodo::Mover(int pasos) {
  const PeriodoSerie otro = PeriodoContiguo(Periodo(), pasos);
  mes_->setCurrentIndex(otro.mes - 1);
  semana_->setCurrentIndex(otro.semana - 1);
  dia_->setCurrentIndex(otro.dia - 1);
  emit Cambiado();
}

void SelectorPeriodo::Ajustar() {
  const TipoPeriodo tipo = Periodo().tipo;
  mes_->setVisible(tipo == TipoPeriodo::Mensual || tipo == TipoPeriodo::Diario);
  semana_->setVisible(tipo == TipoPeriodo::Semanal);
  dia_->setVisible(tipo == TipoPeriodo::Diario);
  anterior_->setVisible(tipo != TipoPeriodo::Anual);
  siguiente_->setVisible(tipo != TipoPeriodo::Anual);
}

}  // namespace novex::gui
