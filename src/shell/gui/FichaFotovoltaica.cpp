#include "shell/gui/FichaFotovoltaica.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "base/NumeroTexto.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr std::array<const char*, 12> kMeses = {"E", "F", "M", "A", "M", "J",
                                                "J", "A", "S", "O", "N", "D"};

struct FilaCampo {
  const char *etiqueta, *rotulo, *unidad, *ayuda;
};
constexpr FilaCampo kFilas[] = {
    {"PotPico_FV", "Potencia pico", "kW", "En condiciones estándar"},
    {"Super_FV", "Superficie", "m²", "Informativa: la producción sale de la potencia"},
    {"Az_FV", "Azimut", "°", "0 al sur, positivo al oeste"},
    {"Incli_FV", "Inclinación", "°", "0 horizontal, 90 vertical"}};
constexpr FilaCampo kPerdidas[] = {{"PSuciedad_FV", "Suciedad y polvo", "%", "Pérdida"},
                                   {"PConversor_FV", "Inversor", "%", "Pérdida"},
                                   {"PTcelula_FV", "Temperatura de célula", "%",
                                    "Media anual, informativa: el cálculo saca la de cada hora"}};

QLabel* Seccion(const QString& texto, QWidget* padre) {
  auto* seccion = new QLabel(texto, padre);
  seccion->setProperty("papel", "seccion");
  return seccion;
}

}  // namespace

BarrasMeses::BarrasMeses(QWidget* padre) : QWidget(padre) {
  setMinimumHeight(130);
  setObjectName("produccionFV");
}

void BarrasMeses::Poner(const std::array<float, 12>& valores) {
  valores_ = valores;
  update();
}

void BarrasMeses::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  const QColor texto = palette().color(QPalette::WindowText);
  const float mayor = std::max(1.0F, *std::max_element(valores_.begin(), valores_.end()));
  const double alto = height() - 40.0, paso = width() / 12.0;
  for (std::size_t m = 0; m < valores_.size(); ++m) {
    // Un mes puede salir negativo con unas pérdidas muy altas: no tiene barra.
    const double barra = alto * static_cast<double>(std::max(0.0F, valores_[m]) / mayor);
    const double x = paso * static_cast<double>(m);
    p.fillRect(QRectF(x + paso * 0.2, 20 + alto - barra, paso * 0.6, barra),
               palette().color(QPalette::Highlight));
    p.setPen(texto);
    p.drawText(QRectF(x, 22 + alto, paso, 18), Qt::AlignCenter, Q(kMeses[m]));
    p.drawText(QRectF(x, 2 + alto - barra, paso, 16), Qt::AlignCenter,
               Q(Fijo(static_cast<double>(valores_[m]), 0)));
  }
}

FichaFotovoltaica::FichaFotovoltaica(ContextoGui& contexto, QWidget* padre)
    : Pagina(contexto, padre), prevista_(contexto.Ficheros()) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(12, 4, 12, 8);
  auto* titulo = new QLabel(tr("Fotovoltaica"), this);
  titulo->setProperty("papel", "titulo");
  columna->addWidget(titulo);
  auto* nota = new QLabel(
      tr("Un campo produce si tiene potencia pico. Lo que produce se descuenta, mes a mes, de la "
         "electricidad de los servicios."),
      this);
  nota->setProperty("papel", "nota");
  nota->setWordWrap(true);
  columna->addWidget(nota);
  auto* fila = new QHBoxLayout;
  fila->setSpacing(32);
  fila->addWidget(CajaCampos(), 0, Qt::AlignTop);
  fila->addWidget(CajaDatos(), 1, Qt::AlignTop);
  columna->addLayout(fila);
  columna->addWidget(Seccion(tr("Producción de cada mes, kWh"), this));
  produccion_ = new QLabel(this);
  produccion_->setProperty("papel", "nota");
  columna->addWidget(produccion_);
  barras_ = new BarrasMeses(this);
  columna->addWidget(barras_);
  columna->addStretch(1);
}

QWidget* FichaFotovoltaica::CajaCampos() {
  auto* caja = new QWidget(this);
  auto* rejilla = new QGridLayout(caja);
  rejilla->setContentsMargins(0, 0, 0, 0);
  rejilla->addWidget(Seccion(tr("Campos"), caja), 0, 0);
  auto* avisos = new QLabel(caja);
  avisos->setProperty("papel", "aviso");
  avisos->hide();
  for (int c = 1; c <= 3; ++c)
    rejilla->addWidget(new QLabel(tr("Campo %1").arg(c), caja), 0, c,
                       Qt::AlignHCenter | Qt::AlignBottom);
  int fila = 1;
  for (const FilaCampo& f : kFilas) {
    rejilla->addWidget(new QLabel(tr(f.rotulo), caja), fila, 0);
    for (int c = 1; c <= 3; ++c) {
      const std::string direccion = c == 1 ? f.etiqueta : f.etiqueta + std::to_string(c);
      OpcionesCampo opciones;
      opciones.rotulo = tr("%1, campo %2").arg(tr(f.rotulo)).arg(c);
      opciones.ayuda = tr(f.ayuda);
      rejilla->addWidget(enlaces_.Celda(direccion, opciones, avisos), fila, c);
    }
    auto* unidad = new QLabel(Q(f.unidad), caja);
    unidad->setProperty("papel", "unidad");
    rejilla->addWidget(unidad, fila++, 4);
  }
  rejilla->addWidget(avisos, fila, 0, 1, 5);
  rejilla->setColumnStretch(5, 1);
  return caja;
}

QWidget* FichaFotovoltaica::CajaDatos() {
  auto* caja = new QWidget(this);
  auto* formulario = new QFormLayout(caja);
  formulario->setContentsMargins(0, 0, 0, 0);
  formulario->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  formulario->setVerticalSpacing(4);
  formulario->addRow(Seccion(tr("Pérdidas"), caja));
  for (const FilaCampo& c : kPerdidas)
    enlaces_.Linea(formulario, c.etiqueta, {tr(c.rotulo), Q(c.unidad), tr(c.ayuda), {}, {}});
  formulario->addRow(Seccion(tr("Datos del proyecto"), caja));
  const QString ayuda = tr("Consta en el proyecto; la simulación calcula lo suyo");
  enlaces_.Linea(formulario, "Aporte_fotovoltaico_kwh_ano",
                 {tr("Aporte previsto"), tr("kWh/año"), ayuda, {}, {}, false});
  enlaces_.Lista(formulario, "Uso_fotovoltaico",
                 {"Refrigeracion", "Calefaccion", "ACS", "Iluminacion"},
                 {tr("Uso previsto"), {}, ayuda, {}, {}, false},
                 {"Refrigeración", "Calefacción", "ACS", "Iluminación"});
  enlaces_.Casilla(formulario, "Existe_fotovoltaica",
                   {tr("El edificio tiene instalación fotovoltaica"), {}, ayuda, {}, {}, false},
                   "Si", "No");
  return caja;
}

void FichaFotovoltaica::Refrescar() {
  PonerProduccion();
  Pagina::Refrescar();
}

void FichaFotovoltaica::PonerProduccion() {
  const auto tabla = prevista_.Calcular(contexto_.Caso());
  const bool produce = tabla && (*tabla)[0] != 0.0F;
  barras_->setVisible(produce);
  if (!tabla) {
    produccion_->setText(tr("No está el año de clima de la zona: no se sabe la producción."));
  } else if (!produce) {
    produccion_->setText(tr("Ningún campo tiene potencia pico."));
  } else {
    std::array<float, 12> valores{};
    std::copy(tabla->begin() + 1, tabla->begin() + 13, valores.begin());
    barras_->Poner(valores);
    produccion_->setText(tr("En el año: %1 kWh").arg(Q(Fijo(static_cast<double>((*tabla)[0]), 0))));
  }
}

}  // namespace novex::gui
