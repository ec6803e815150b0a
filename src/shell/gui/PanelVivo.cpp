#include "shell/gui/PanelVivo.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "shell/gui/EtiquetaEnergetica.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kEsperaMs = 500;
constexpr std::chrono::milliseconds kRato{10};  // de los 15 ms que puede durar un paso

QLabel* Letra(QWidget* padre) {
  auto* letra = new QLabel(padre);
  letra->setAlignment(Qt::AlignCenter);
  letra->setFixedSize(44, 34);
  QFont f = letra->font();
  f.setPointSizeF(f.pointSizeF() * 1.6);
  f.setBold(true);
  letra->setFont(f);
  return letra;
}

void PonerLetra(QLabel* etiqueta, const std::string& letra) {
  const QString texto = Q(letra);
  etiqueta->setText(texto.size() == 1 ? texto : "–");
  etiqueta->setStyleSheet(QString("background:%1;color:%2;border-radius:4px")
                              .arg(ColorLetra(texto).name(), TextoSobreLetra(texto).name()));
}

QString Cifra(float valor) {
  return Q(Fijo(static_cast<double>(valor), 1)).replace('.', ',');
}

QString ConSigno(float valor) {
  return (valor > 0 ? "+" : "") + Cifra(valor).replace('-', u'\u2212');
}

}  // namespace

PanelVivo::PanelVivo(ContextoGui& contexto, QWidget* padre)
    : QWidget(padre), contexto_(contexto), vivo_(contexto.Ficheros()) {
  auto* columna = new QVBoxLayout(this);
  cuerpo_ = new QWidget(this);
  auto* rejilla = new QGridLayout(cuerpo_);
  rejilla->setContentsMargins(0, 0, 0, 0);
  rejilla->setVerticalSpacing(6);
  int fila = 0;
  const auto indicador = [&](const QString& titulo, QLabel*& letra, QLabel*& valor,
                             const QString& unidad) {
    rejilla->addWidget(new QLabel(titulo, cuerpo_), fila++, 0, 1, 2);
    letra = Letra(cuerpo_);
    valor = new QLabel(cuerpo_);
    valor->setToolTip(unidad);
    rejilla->addWidget(letra, fila, 0);
    rejilla->addWidget(valor, fila++, 1);
  };
  indicador(tr("Energía primaria no renovable"), letraPrimaria_, primaria_, "kWh/m² año");
  indicador(tr("Emisiones de CO2"), letraEmisiones_, emisiones_, "kg CO2/m² año");
  rejilla->setRowMinimumHeight(fila++, 8);
  const auto cifra = [&](const QString& titulo, QLabel*& valor, const QString& unidad) {
    rejilla->addWidget(new QLabel(titulo, cuerpo_), fila, 0);
    valor = new QLabel(cuerpo_);
    valor->setAlignment(Qt::AlignRight);
    valor->setToolTip(unidad);
    rejilla->addWidget(valor, fila++, 1);
  };
  cifra(tr("Calefacción"), calefaccion_, tr("Demanda, kWh/m² año"));
  cifra(tr("Refrigeración"), refrigeracion_, tr("Demanda, kWh/m² año"));
  cifra(tr("ACS"), agua_, tr("Demanda, kWh/m² año"));
  cifra(tr("Fuera de consigna"), fuera_, tr("% de las horas de ocupación"));
  series_ = new QLabel(tr("<a href=\"#\">Series horarias →</a>"), cuerpo_);
  series_->setObjectName("irASeries");
  series_->setToolTip(tr("La temperatura y la demanda, hora a hora"));
  connect(series_, &QLabel::linkActivated, this,
          [this] { contexto_.IrA(Destino::Certificacion, kSubdestinoTemp); });
  rejilla->addWidget(series_, fila, 0, 1, 2);
  columna->addWidget(cuerpo_);
  cambio_ = new QLabel(this);
  cambio_->setWordWrap(true);
  cambio_->setProperty("papel", "unidad");
  columna->addWidget(cambio_);
  motivo_ = new QLabel(this);
  motivo_->setWordWrap(true);
  motivo_->setTextFormat(Qt::RichText);
  columna->addWidget(motivo_);
  connect(motivo_, &QLabel::linkActivated, this, [this] {
    // Al salir de lo que se está tecleando el motivo puede ser ya otro.
    if (const auto motivo = vivo_.Motivo()) contexto_.IrA(*motivo);
  });
  estado_ = new QLabel(this);
  estado_->setProperty("papel", "unidad");
  columna->addWidget(estado_);
  columna->addStretch(1);
  activo_ = new QCheckBox(tr("En vivo"), this);
  activo_->setChecked(true);
  activo_->setToolTip(tr("Calcula una copia del caso medio segundo después de cada cambio"));
  columna->addWidget(activo_);
  connect(activo_, &QCheckBox::toggled, this, [this](bool si) {
    if (si) return Pedir();
    espera_.stop();
    reloj_.stop();
    vivo_.Parar();
    Ensenar();
  });
  espera_.setSingleShot(true);
  espera_.setInterval(kEsperaMs);
  connect(&espera_, &QTimer::timeout, this, &PanelVivo::Empezar);
  reloj_.setInterval(0);
  connect(&reloj_, &QTimer::timeout, this, &PanelVivo::Paso);
  Ensenar();
}

void PanelVivo::Pedir() {
  if (!activo_->isChecked()) return;
  reloj_.stop();
  vivo_.Parar();
  espera_.start();
}

void PanelVivo::PedirDeNuevo() {
  vivo_.Olvidar();
  Ensenar();
  Pedir();
}

void PanelVivo::Empezar() {
  if (contexto_.Calculando()) {
    espera_.start();
    return;
  }
  queCambia_ = Q(contexto_.Sesion().QueDeshace());
  vivo_.Empezar(contexto_.Sesion().Gestor());
  if (vivo_.EnQue() == CalculoVivo::Estado::Calculando) reloj_.start();
  Ensenar();
}

void PanelVivo::Paso() {
  if (contexto_.Calculando()) return;
  if (vivo_.Avanzar(kRato)) return;
  reloj_.stop();
  Ensenar();
  if (vivo_.EnQue() == CalculoVivo::Estado::Hecho) emit Calculado();
}

void PanelVivo::EnsenarCambio() {
  cambio_->clear();
  const auto& ahora = vivo_.Resumen();
  const auto& antes = vivo_.Anterior();
  if (!ahora || !antes || *ahora == *antes) return;
  QStringList lineas;
  const auto anadir = [&](const QString& que, float a, float b) {
    if (Cifra(a) != Cifra(b)) lineas << que + " " + ConSigno(b - a);
  };
  anadir(tr("calefacción"), antes->demandaCalefaccion, ahora->demandaCalefaccion);
  anadir(tr("refrigeración"), antes->demandaRefrigeracion, ahora->demandaRefrigeracion);
  anadir(tr("primaria"), antes->primaria, ahora->primaria);
  anadir(tr("emisiones"), antes->emisiones, ahora->emisiones);
  if (!lineas.isEmpty())
    cambio_->setText(
        (queCambia_.isEmpty() ? tr("Último cambio") : "<b>" + queCambia_.toHtmlEscaped() + "</b>") +
        ": " + lineas.join(", "));
}

void PanelVivo::Ensenar() {
  using Estado = CalculoVivo::Estado;
  const auto& r = vivo_.Resumen();
  cuerpo_->setVisible(r.has_value());
  cuerpo_->setEnabled(vivo_.EnQue() == Estado::Hecho);
  if (r) {
    PonerLetra(letraPrimaria_, r->letraPrimaria);
    PonerLetra(letraEmisiones_, r->letraEmisiones);
    primaria_->setText("<b>" + Cifra(r->primaria) + "</b>");
    emisiones_->setText("<b>" + Cifra(r->emisiones) + "</b>");
    calefaccion_->setText(Cifra(r->demandaCalefaccion));
    refrigeracion_->setText(Cifra(r->demandaRefrigeracion));
    agua_->setText(Cifra(r->demandaACS));
    fuera_->setText(r->fueraDeConsigna ? Cifra(*r->fueraDeConsigna) + " %" : "–");
  }
  EnsenarCambio();
  motivo_->setVisible(vivo_.Motivo().has_value());
  if (vivo_.Motivo())
    motivo_->setText("<a href=\"#\">" + Q(vivo_.Motivo()->texto).toHtmlEscaped() + "</a>");
  switch (vivo_.EnQue()) {
    case Estado::Calculando:
      estado_->setText(tr("Calculando…"));
      break;
    case Estado::Fallido:
      estado_->setText(Q(vivo_.Fallo()));
      break;
    case Estado::Rechazado:
      estado_->setText(tr("Para calificar falta:"));
      estado_->setVisible(true);
      break;
    default:
      estado_->clear();
  }
  estado_->setWordWrap(true);
}

}  // namespace novex::gui
