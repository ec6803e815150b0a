#include "shell/gui/BloqueVerificacion.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <algorithm>

#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kIcono = 18;
constexpr int kAltoSuelto = 280, kAltoAlLado = 210;  // de un gráfico, en píxeles
constexpr std::size_t kColumnasEstrechas = 8;        // una tabla más ancha va sobre su gráfico
constexpr std::string_view kColumnaNombre = "Nombre";
constexpr int kParteTablas = 5, kParteDibujos = 6;  // del ancho, cuando van al lado

bool EsAncha(const Tabla& tabla) {
  return tabla.cabeceras.size() > kColumnasEstrechas;
}

// En una tabla ancha los nombres ceden su sitio, para que lo demás se vea sin desplazarla.
void EncogerNombres(VistaTabla& vista) {
  const Tabla& tabla = vista.Puesta();
  const auto it = std::find(tabla.cabeceras.begin(), tabla.cabeceras.end(), kColumnaNombre);
  if (!EsAncha(tabla) || it == tabla.cabeceras.end()) return;
  const int columna = static_cast<int>(it - tabla.cabeceras.begin());
  vista.Rejilla()->horizontalHeader()->setSectionResizeMode(columna, QHeaderView::Stretch);
  for (int f = 0; f < vista.Rejilla()->rowCount(); ++f)
    vista.Rejilla()->item(f, columna)->setToolTip(vista.Rejilla()->item(f, columna)->text());
}

const char* PapelDe(const std::optional<MarcaHE>& marca) {
  if (marca == MarcaHE::Cumple) return "cumple";
  if (marca == MarcaHE::NoCumple) return "nocumple";
  return "noaplica";
}

}  // namespace

QIcon IconoMarca(MarcaHE marca) {
  switch (marca) {
    case MarcaHE::Cumple:
      return QIcon(":/iconos/cumple.svg");
    case MarcaHE::NoCumple:
      return QIcon(":/iconos/nocumple.svg");
    case MarcaHE::NoAplica:
      break;
  }
  return QIcon(":/iconos/noaplica.svg");
}

BloqueVerificacion::BloqueVerificacion(QWidget* padre) : QWidget(padre) {
  auto* todo = new QVBoxLayout(this);
  todo->setContentsMargins(0, 0, 0, 10);
  auto* cabeza = new QHBoxLayout;
  cabeza->setSpacing(8);
  titulo_ = new QLabel(this);
  titulo_->setProperty("papel", "bloque");
  cabeza->addWidget(titulo_);
  icono_ = new QLabel(this);
  cabeza->addWidget(icono_);
  veredicto_ = new QLabel(this);
  veredicto_->setObjectName("veredicto");
  cabeza->addWidget(veredicto_);
  cabeza->addStretch(1);
  todo->addLayout(cabeza);
  textos_ = new QLabel(this);
  textos_->setWordWrap(true);
  textos_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  todo->addWidget(textos_);
  cuerpo_ = new QBoxLayout(QBoxLayout::LeftToRight);
  cuerpo_->setSpacing(18);
  columna_ = new QVBoxLayout;
  columna_->addStretch(1);
  cuerpo_->addLayout(columna_, kParteTablas);
  dibujos_ = new QWidget(this);
  auto* dibujo = new QVBoxLayout(dibujos_);
  dibujo->setContentsMargins(0, 0, 0, 0);
  cual_ = new QComboBox(dibujos_);
  cual_->setObjectName("cual");
  cual_->setToolTip(tr("Qué gráfico se ve"));
  connect(cual_, &QComboBox::activated, this,
          [this](int i) { grafico_->Poner(graficos_[static_cast<std::size_t>(i)]); });
  dibujo->addWidget(cual_, 0, Qt::AlignLeft);
  grafico_ = new VistaGrafico(dibujos_);
  dibujo->addWidget(grafico_, 1);
  cuerpo_->addWidget(dibujos_, kParteDibujos);
  todo->addLayout(cuerpo_);
}

void BloqueVerificacion::PonerVeredicto(const BloqueHE& bloque) {
  veredicto_->setText(Q(bloque.veredicto));
  veredicto_->setVisible(!bloque.veredicto.empty());
  PonerPapel(veredicto_, PapelDe(bloque.marca));
  icono_->setVisible(bloque.marca.has_value());
  if (bloque.marca) {
    icono_->setPixmap(IconoMarca(*bloque.marca).pixmap(kIcono, kIcono));
    icono_->setToolTip(Q(TextoMarca(*bloque.marca)));
  }
}

void BloqueVerificacion::PonerTablas(const std::vector<Tabla>& tablas) {
  while (tablas_.size() > tablas.size()) {
    delete tablas_.back();
    tablas_.pop_back();
  }
  while (tablas_.size() < tablas.size()) {
    tablas_.push_back(new VistaTabla(this));
    columna_->insertWidget(static_cast<int>(tablas_.size()) - 1, tablas_.back());
  }
  for (std::size_t i = 0; i < tablas.size(); ++i) {
    tablas_[i]->Poner(tablas[i]);
    EncogerNombres(*tablas_[i]);
  }
}

void BloqueVerificacion::PonerGraficos(const std::vector<Grafico>& graficos) {
  const QString elegido = cual_->currentText();
  graficos_ = graficos;
  dibujos_->setVisible(!graficos.empty());
  cual_->setVisible(graficos.size() > 1);
  cual_->clear();
  for (const Grafico& g : graficos_) cual_->addItem(Q(g.titulo));
  if (graficos_.empty()) return;
  cual_->setCurrentIndex(std::max(0, cual_->findText(elegido)));
  grafico_->Poner(graficos_[static_cast<std::size_t>(cual_->currentIndex())]);
}

void BloqueVerificacion::Poner(const BloqueHE& bloque) {
  titulo_->setText(Q(bloque.titulo));
  titulo_->setVisible(!bloque.titulo.empty());
  PonerVeredicto(bloque);
  QStringList textos;
  for (const std::string& texto : bloque.textos) textos << Q(texto).trimmed();
  textos_->setText(textos.join('\n'));
  textos_->setVisible(!textos.isEmpty());
  PonerTablas(bloque.tablas);
  PonerGraficos(bloque.graficos);
  const bool ancha = std::any_of(bloque.tablas.begin(), bloque.tablas.end(), EsAncha);
  grafico_->setMinimumHeight(ancha ? kAltoSuelto : kAltoAlLado);
  cuerpo_->setDirection(ancha ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

}  // namespace novex::gui
