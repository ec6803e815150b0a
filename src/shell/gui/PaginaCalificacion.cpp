#include "shell/gui/PaginaCalificacion.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QMenu>
#include <QToolButton>
#include <QVBoxLayout>

#include "outputs/ExportacionTablas.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui {
namespace {

constexpr std::size_t kServiciosEnDos = 4;  // en dos columnas

QLabel* TituloColumna(QWidget* padre) {
  auto* titulo = new QLabel(padre);
  titulo->setProperty("papel", "seccion");
  return titulo;
}

void PonerFila(EtiquetaEnergetica& etiqueta, const FilaCalificacion& fila) {
  QStringList escala;
  for (const std::string& banda : fila.escala) escala << Q(banda);
  etiqueta.PonerTitulo(Q(fila.nombre));
  etiqueta.Poner(Q(fila.letra), Q(fila.TextoValor()), escala, Q(fila.aviso));
}

void PonerFilas(const std::vector<EtiquetaEnergetica*>& etiquetas,
                const std::vector<FilaCalificacion>& filas) {
  for (std::size_t i = 0; i < etiquetas.size(); ++i) {
    etiquetas[i]->setVisible(i < filas.size());
    if (i < filas.size()) PonerFila(*etiquetas[i], filas[i]);
  }
}

}  // namespace

PaginaCalificacion::PaginaCalificacion(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  auto* fila = new QHBoxLayout;
  base_ = new SelectorOpciones("RGCalificacion", kTextoBaseCalificacion, this);
  connect(base_, &SelectorOpciones::Cambiada, this, [this] { Refrescar(); });
  fila->addWidget(base_);
  fila->addStretch(1);
  fila->addWidget(menu_ = Menu());
  columna->addLayout(fila);
  sinHoja_ = new QLabel(Q(kSinCalificacion), this);
  sinHoja_->setObjectName("sinHoja");
  sinHoja_->setWordWrap(true);
  columna->addWidget(sinHoja_);
  columnas_ = Columnas();
  columna->addWidget(columnas_, 1);
  zona_ = NuevaNota(this);
  zona_->setObjectName("notaZona");
  horas_ = NuevaNota(this);
  horas_->setObjectName("horasFuera");
  columna->addWidget(zona_);
  columna->addWidget(horas_);
}

QWidget* PaginaCalificacion::Columnas() {
  auto* hoja = new QWidget(this);
  auto* rejilla = new QGridLayout(hoja);
  rejilla->setContentsMargins(0, 0, 0, 0);
  rejilla->setHorizontalSpacing(14);
  rejilla->setVerticalSpacing(6);
  tituloDemanda_ = TituloColumna(hoja);
  tituloServicios_ = TituloColumna(hoja);
  rejilla->addWidget(tituloDemanda_, 0, 0);
  rejilla->addWidget(tituloServicios_, 0, 2, 1, 2);
  const auto anadir = [&](std::vector<EtiquetaEnergetica*>& etiquetas, int fila, int columna) {
    etiquetas.push_back(new EtiquetaEnergetica({}, hoja));
    rejilla->addWidget(etiquetas.back(), fila, columna);
  };
  for (int i = 0; i < 2; ++i) anadir(demanda_, 1 + i, 0);
  for (int i = 0; i < static_cast<int>(kServiciosEnDos); ++i)
    anadir(servicios_, 1 + i / 2, 2 + i % 2);
  total_ = new EtiquetaEnergetica({}, hoja);
  total_->setObjectName("total");
  rejilla->addWidget(total_, 0, 5, 3, 1);
  for (const int separacion : {1, 4}) rejilla->setColumnMinimumWidth(separacion, 8);
  for (const int columna : {0, 2, 3}) rejilla->setColumnStretch(columna, 4);
  rejilla->setColumnStretch(5, 6);
  rejilla->setRowStretch(1, 1);
  rejilla->setRowStretch(2, 1);
  return hoja;
}

QToolButton* PaginaCalificacion::Menu() {
  auto* menu = new QToolButton(this);
  menu->setObjectName("menuHoja");
  menu->setText("⋯");
  menu->setToolTip(tr("Copiar o exportar la hoja"));
  menu->setAutoRaise(true);
  menu->setPopupMode(QToolButton::InstantPopup);
  auto* ordenes = new QMenu(menu);
  ordenes->addAction(tr("Copiar"), this, &PaginaCalificacion::Copiar);
  ordenes->addAction(tr("Exportar…"), this, &PaginaCalificacion::Exportar);
  ordenes->addAction(tr("Guardar imagen…"), this, &PaginaCalificacion::GuardarImagen);
  menu->setMenu(ordenes);
  return menu;
}

void PaginaCalificacion::Copiar() const {
  CopiarTablas(TablasHoja(hoja_));
}

void PaginaCalificacion::Exportar() {
  ExportarTextoPreguntando(this, contexto_.Ficheros().Espacio().Proyectos(),
                           ExportarTablas(TablasHoja(hoja_)));
}

void PaginaCalificacion::GuardarImagen() {
  const QString ruta = QFileDialog::getSaveFileName(this, tr("Guardar imagen"), "calificacion.png",
                                                    tr("Imagen (*.png)"));
  if (ruta.isEmpty()) return;
  const QString fichero = ruta.endsWith(".png", Qt::CaseInsensitive) ? ruta : ruta + ".png";
  if (!columnas_->grab().save(fichero, "PNG"))
    contexto_.Sesion().Avisos().Avisar("AVISO", S(tr("No se puede escribir \"%1\"").arg(fichero)));
}

void PaginaCalificacion::EnsenarNotas(const HojaCalificacion& hoja) {
  zona_->setText(Q(hoja.notaZona));
  zona_->setVisible(!hoja.notaZona.empty());
  PonerHorasFuera(horas_, hoja.horas);
}

void PaginaCalificacion::Ensenar(const CasoCalculado& caso) {
  hoja_ = HojaDeCalificacion(caso, static_cast<BaseCalificacion>(base_->Elegida()));
  sinHoja_->setVisible(!hoja_.rellena);
  for (QWidget* parte : std::initializer_list<QWidget*>{base_, menu_, columnas_})
    parte->setVisible(hoja_.rellena);
  EnsenarNotas(hoja_);
  if (!hoja_.rellena) return;
  tituloDemanda_->setText(Q(hoja_.tituloDemanda));
  tituloServicios_->setText(Q(hoja_.tituloServicios));
  PonerFilas(demanda_, hoja_.demanda);
  PonerFilas(servicios_, hoja_.servicios);
  PonerFila(*total_, hoja_.total);
}

}  // namespace novex::gui
