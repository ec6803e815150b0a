#include "shell/gui/PaginaEnvolvente.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QShowEvent>
#include <QVBoxLayout>
#include <algorithm>

#include "base/ErrorFichero.h"
#include "base/NumeroTexto.h"
#include "reference/CatalogoComposiciones.h"
#include "shell/gui/TFCrearMuro.h"
#include "shell/gui/TFMuros.h"
#include "shell/gui/TablaEnWidget.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

const std::vector<std::string> kColores = {"0", "1", "2"};
const std::vector<std::string> kRotulosColores = {
    "Claro (absortividad 0,6)", "Medio (absortividad 0,7)", "Oscuro (absortividad 0,8)"};

constexpr int kAltoCapas = 190;

QString Cifra(double valor, int decimales) {
  return Q(Fijo(valor, decimales)).replace('.', ',');
}

}  // namespace

PaginaEnvolvente::PaginaEnvolvente(ContextoGui& contexto, PaginaOpacos pagina, QWidget* padre)
    : Pagina(contexto, padre), pagina_(pagina) {
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(10, 8, 10, 6);
  auto* izquierda = new QVBoxLayout;
  clases_ = new QListWidget(this);
  clases_->setObjectName("clases");
  clases_->setFixedWidth(176);
  clases_->setStyleSheet("QListWidget::item { padding: 4px 3px; }");
  izquierda->addWidget(clases_, 1);
  if (pagina != PaginaOpacos::Suelos) izquierda->addWidget(Color());
  fila->addLayout(izquierda);
  pila_ = new QStackedWidget(this);
  for (const ClaseElemento& clase : ClasesDePagina(pagina)) {
    auto* ficha = new FichaElemento(contexto_, enlaces_, clase);
    connect(ficha, &FichaElemento::Elegida, this, &PaginaEnvolvente::EnsenarSeccion);
    connect(ficha, &FichaElemento::PideElegir, this, &PaginaEnvolvente::Elegir);
    connect(ficha, &FichaElemento::PideCapas, this, &PaginaEnvolvente::Definir);
    fichas_.push_back(ficha);
    pila_->addWidget(ficha);
    clases_->addItem(Q(clase.nombre));
    clases_->item(clases_->count() - 1)->setToolTip(Q(clase.ayuda));
  }
  auto* centro = new QVBoxLayout;
  centro->addWidget(pila_, 1);
  capas_ = CrearTablaDeFilas(
      {tr("Capas"), "m", tr("k (W/mK)"), tr("R (m²K/W)"), tr("Vapor"), tr("kg/m²")}, this);
  capas_->setObjectName("capas");
  capas_->setFocusPolicy(Qt::NoFocus);
  centro->addWidget(capas_);
  fila->addLayout(centro, 1);
  fila->addWidget(Dibujos());
  connect(clases_, &QListWidget::currentRowChanged, this, [this](int cual) {
    if (cual < 0) return;
    tocada_ = true;
    pila_->setCurrentIndex(cual);
    PonerDibujo();
    EnsenarSeccion(fichas_[static_cast<std::size_t>(cual)]->RanuraElegida());
  });
  clases_->setCurrentRow(0);
  tocada_ = false;
}

QWidget* PaginaEnvolvente::Color() {
  auto* caja = new QWidget(this);
  auto* formulario = new QFormLayout(caja);
  formulario->setContentsMargins(0, 0, 0, 0);
  formulario->setRowWrapPolicy(QFormLayout::WrapAllRows);
  OpcionesCampo color;
  color.rotulo = tr("Color exterior");
  color.ayuda = tr("Absortividad solar de todas las superficies exteriores de esta página");
  enlaces_.Lista(formulario,
                 pagina_ == PaginaOpacos::Muros ? "NColorMurosExt" : "NColorCubiertasExt", kColores,
                 color, kRotulosColores);
  return caja;
}

QWidget* PaginaEnvolvente::Dibujos() {
  auto* caja = new QWidget(this);
  caja->setFixedWidth(252);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  planta_ = new DibujoPlanta(caja);
  planta_->setVisible(pagina_ != PaginaOpacos::Suelos);
  columna->addWidget(planta_, 5);
  reparto_ = new DibujoReparto(caja);
  reparto_->setVisible(pagina_ == PaginaOpacos::Suelos);
  columna->addWidget(reparto_, 5);
  seccion_ = new DibujoSeccion(caja);
  seccion_->PonerVacio(tr("Sin capas. Elija o cree una composición, o escriba su U"));
  columna->addWidget(seccion_, 4);
  pieSeccion_ = new QLabel(caja);
  pieSeccion_->setProperty("papel", "nota");
  pieSeccion_->setWordWrap(true);
  columna->addWidget(pieSeccion_);
  return caja;
}

void PaginaEnvolvente::EnsenarSeccion(std::size_t ranura) {
  const std::vector<Capa> capas = CapasDeRanura(contexto_.Caso(), ranura);
  seccion_->Poner(capas, ranura);
  const ResumenCerramiento r = ResumirCerramiento(capas);
  capas_->setVisible(!capas.empty());
  PonerTabla(capas_, CapasNumeradas(r));
  // No ocupa más que sus filas, para que una clase con muchos tipos quepa sin correr la página.
  const int filas = capas_->rowCount() * capas_->verticalHeader()->defaultSectionSize();
  capas_->setMaximumHeight(
      std::min(kAltoCapas,
               filas + capas_->horizontalHeader()->sizeHint().height() + 2 * capas_->frameWidth()));
  const composicion& puesta = contexto_.Caso().GetComposicion(ranura);
  QString texto = Q(puesta.nombre) + " · U " + Cifra(static_cast<double>(puesta.U), 2) + " W/m²K";
  if (!capas.empty()) {
    texto += " · " + Cifra(static_cast<double>(r.espesor) * 100, 1) + " cm · " +
             Cifra(static_cast<double>(r.peso), 0) + " kg/m²";
  }
  pieSeccion_->setText(texto);
}

void PaginaEnvolvente::PonerDibujo() {
  const Edificio& e = contexto_.Caso();
  if (pagina_ == PaginaOpacos::Muros) planta_->Poner(FachadaPorSector(e));
  if (pagina_ == PaginaOpacos::Cubiertas) planta_->Poner(FaldonesPorSector(e), CubiertaPlana(e));
  if (pagina_ != PaginaOpacos::Suelos) return;
  std::vector<DibujoReparto::Barra> barras;
  for (const ClaseElemento& clase : ClasesDePagina(pagina_))
    barras.push_back({Q(clase.nombre), AreaDeClase(e, clase)});
  reparto_->Poner(barras);
}

void PaginaEnvolvente::ElegirMayor() {
  if (tocada_) return;
  double mayor = 0;
  int cual = 0;
  for (std::size_t i = 0; i < fichas_.size(); ++i) {
    const double area = AreaDeClase(contexto_.Caso(), fichas_[i]->Clase());
    if (area > mayor) {
      mayor = area;
      cual = static_cast<int>(i);
    }
  }
  clases_->setCurrentRow(cual);
  tocada_ = false;
}

void PaginaEnvolvente::showEvent(QShowEvent* evento) {
  Pagina::showEvent(evento);
  if (!evento->spontaneous()) ElegirMayor();
}

void PaginaEnvolvente::Refrescar() {
  Pagina::Refrescar();
  for (std::size_t i = 0; i < fichas_.size(); ++i) {
    const ClaseElemento& clase = fichas_[i]->Clase();
    const double area = AreaDeClase(contexto_.Caso(), clase);
    QListWidgetItem* entrada = clases_->item(static_cast<int>(i));
    entrada->setText(area > 0 ? Q(clase.nombre) + "\n" + Cifra(area, 1) + " m²" : Q(clase.nombre));
  }
  const int cual = pila_->currentIndex();
  if (cual < 0) return;
  FichaElemento* ficha = fichas_[static_cast<std::size_t>(cual)];
  ficha->Refrescar();
  PonerDibujo();
  EnsenarSeccion(ficha->RanuraElegida());
}

void PaginaEnvolvente::Senalar(const MensajePrevio& motivo) {
  if (!motivo.ranura) return Pagina::Senalar(motivo);
  for (std::size_t i = 0; i < fichas_.size(); ++i) {
    const std::string direccion = DireccionU(fichas_[i]->Clase(), *motivo.ranura);
    if (direccion.empty()) continue;
    clases_->setCurrentRow(static_cast<int>(i));
    Pagina::Senalar({.texto = {}, .pagina = motivo.pagina, .campo = direccion, .ranura = {}});
  }
}

void PaginaEnvolvente::Elegir(std::size_t ranura) {
  try {
    TFMuros(contexto_, ranura, this).exec();
  } catch (const ErrorFichero& error) {
    contexto_.Sesion().Avisos().Avisar("AVISO", error.what());
  }
}

void PaginaEnvolvente::Definir(std::size_t ranura) {
  try {
    DefinirComposicion(contexto_, ranura, this);
  } catch (const ErrorFichero& error) {
    contexto_.Sesion().Avisos().Avisar("AVISO", error.what());
  }
}

}  // namespace novex::gui
