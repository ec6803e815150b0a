#include "shell/gui/PaginaCalificacion.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

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

void PonerNota(QLabel* nota, const std::string& texto) {
  nota->setText(Q(texto));
  nota->setVisible(!texto.empty());
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

void PaginaCalificacion::EnsenarNotas(const HojaCalificacion& hoja) {
  PonerNota(zona_, hoja.notaZona);
  PonerNota(horas_, hoja.horas.texto);
  PonerPapel(horas_, hoja.horas.noValida ? "aviso" : "nota");
}

void PaginaCalificacion::Ensenar(const CasoCalculado& caso) {
  const auto hoja = HojaDeCalificacion(caso, static_cast<BaseCalificacion>(base_->Elegida()));
  sinHoja_->setVisible(!hoja.rellena);
  base_->setVisible(hoja.rellena);
  columnas_->setVisible(hoja.rellena);
  EnsenarNotas(hoja);
  if (!hoja.rellena) return;
  tituloDemanda_->setText(Q(hoja.tituloDemanda));
  tituloServicios_->setText(Q(hoja.tituloServicios));
  PonerFilas(demanda_, hoja.demanda);
  PonerFilas(servicios_, hoja.servicios);
  PonerFila(*total_, hoja.total);
}

}  // namespace novex::gui
