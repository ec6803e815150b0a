#include "shell/gui/PaginaCiudadEntorno.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "shell/gui/CajaTitulo.h"
#include "shell/gui/Filas.h"
#include "shell/gui/GraficaSombra.h"
#include "shell/gui/RosaObstaculos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

struct Rumbo {
  const char* campo;
  const char* rotulo;
};
constexpr std::array<Rumbo, 5> kRumbos = {{{"Oeste", "Oeste"},
                                           {"SurOeste", "Suroeste"},
                                           {"Sur", "Sur"},
                                           {"SurEste", "Sureste"},
                                           {"Este", "Este"}}};
constexpr int kAnchoObstaculos = 400;

}  // namespace

PaginaCiudadEntorno::PaginaCiudadEntorno(ContextoGui& contexto, QWidget* padre)
    : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(12, 8, 12, 6);
  lugar_ = NotaCorta(this);
  lugar_->setObjectName("lugar");
  connect(lugar_, &QLabel::linkActivated, this,
          [this] { contexto_.IrA(novex::PaginaProyecto::Global, "Municipio"); });
  columna->addWidget(lugar_);
  auto* fila = new QHBoxLayout;
  fila->setSpacing(20);
  auto* obstaculos = new QVBoxLayout;
  obstaculos->addLayout(Rejilla());
  rosa_ = new RosaObstaculos(this);
  rosa_->setMinimumHeight(220);
  obstaculos->addWidget(rosa_, 1);
  auto* nota = NuevaNota(this);
  nota->setText(
      tr("Edificios, montes o arbolado lejanos que quitan sol. El dibujo es el cielo: lo gris es "
         "lo que tapan, y las líneas, el sol en invierno, en los equinoccios y en verano."));
  obstaculos->addWidget(nota);
  QWidget* caja = CajaTitulo(this, tr("Obstáculos remotos"), obstaculos);
  caja->setFixedWidth(kAnchoObstaculos);
  fila->addWidget(caja);
  auto* derecha = new QVBoxLayout;
  sombra_ = new GraficaSombra(contexto_, sur, this);
  derecha->addWidget(sombra_);
  fila->addWidget(CajaTitulo(this, tr("Porcentaje de sombra"), derecha), 1);
  columna->addLayout(fila, 1);
}

QLayout* PaginaCiudadEntorno::Rejilla() {
  auto* rejilla = new QGridLayout;
  rejilla->setHorizontalSpacing(12);
  rejilla->setVerticalSpacing(3);
  rejilla->addWidget(new QLabel(tr("Altura m"), this), 0, 1);
  rejilla->addWidget(new QLabel(tr("Distancia m"), this), 0, 2);
  auto* aviso = NuevaNota(this, "aviso");
  aviso->hide();
  for (std::size_t i = 0; i < kRumbos.size(); ++i) {
    const QString rumbo = Q(kRumbos[i].rotulo);
    const int fila = static_cast<int>(i) + 1;
    rejilla->addWidget(new QLabel(rumbo, this), fila, 0);
    const std::string campo = kRumbos[i].campo;
    const auto celda = [&](const char* dato, const QString& rotulo, const QString& ayuda) {
      return enlaces_.Celda(campo + dato, Opciones(rotulo.arg(rumbo.toLower()), ayuda), aviso);
    };
    rejilla->addWidget(
        celda("_Altura", tr("Obstáculo al %1, altura"), tr("Sobre el pie del edificio, m")), fila,
        1);
    rejilla->addWidget(
        celda("_Distancia", tr("Obstáculo al %1, distancia"), tr("Del edificio al obstáculo, m")),
        fila, 2);
  }
  rejilla->addWidget(aviso, static_cast<int>(kRumbos.size()) + 1, 0, 1, 4);
  rejilla->setColumnStretch(3, 1);
  return rejilla;
}

void PaginaCiudadEntorno::Refrescar() {
  Pagina::Refrescar();
  const Edificio& e = contexto_.Caso();
  const Localizacion& lugar = e.GetLocalizacion();
  const auto latitud = static_cast<double>(lugar.latitud);
  lugar_->setText(tr("%1 · zona %2 · latitud %3º. El sitio y su clima se eligen en "
                     "<a href=\"#\">Global › Sitio</a>.")
                      .arg(Q(lugar.Municipio).toHtmlEscaped(), Q(lugar.ZonaClimatica),
                           Q(Fijo(latitud, 2)).replace('.', ',')));
  rosa_->Poner(e.GetObstaculosRemotos(), latitud);
  sombra_->Refrescar();
}

}  // namespace novex::gui
