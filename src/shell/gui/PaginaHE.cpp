#include "shell/gui/PaginaHE.h"

#include <QHBoxLayout>

#include "compliance/RequisitoHE5.h"
#include "compliance/ResumenAnual.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {

PaginaHE::PaginaHE(ContextoGui& contexto, HojaHE hoja,
                   const std::optional<VerificacionHE>& verificacion, QWidget* padre)
    : PaginaResultados(contexto, padre), hoja_(hoja), verificacion_(verificacion) {
  columna_ = new QVBoxLayout(this);
  hojas_ = new QVBoxLayout;
  hojas_->setSpacing(6);
  columna_->addLayout(hojas_);
  columna_->addStretch(1);
}

void PaginaHE::Ensenar(const CasoCalculado& caso) {
  // Sin verificación no se deja a la vista la de otro caso.
  std::vector<BloqueHE> bloques;
  if (verificacion_) bloques = BloquesHojaHE(hoja_, *verificacion_, *caso.resultado);
  while (bloques_.size() > bloques.size()) {
    delete bloques_.back();
    bloques_.pop_back();
  }
  while (bloques_.size() < bloques.size()) {
    bloques_.push_back(new BloqueVerificacion(this));
    hojas_->addWidget(bloques_.back());
  }
  for (std::size_t i = 0; i < bloques.size(); ++i) bloques_[i]->Poner(bloques[i]);
}

PaginaHE5::PaginaHE5(ContextoGui& contexto, const std::optional<VerificacionHE>& verificacion,
                     QWidget* padre)
    : PaginaHE(contexto, HojaHE::HE5, verificacion, padre) {
  const CajaFormulario datos = NuevaCaja(tr("Superficies"), this);
  const auto superficie = [&](const char* campo, std::string_view rotulo, auto poner) {
    OpcionesCampo opciones = OpcionesSinCalculo(Q(rotulo), tr("CTE DB-HE5"));
    opciones.poner = [poner](Edificio& edificio, std::string_view texto, Mensajes& mensajes) {
      poner(edificio, texto, mensajes);
    };
    enlaces_.Linea(datos.filas, campo, opciones);
  };
  superficie("SuperficieTotalHE5", kRotuloSuperficieTotalHE5, PonerSuperficieTotalHE5);
  superficie("SuperficieCubiertaHE5", kRotuloSuperficieCubiertaHE5, PonerSuperficieCubiertaHE5);
  superficie("SuperficieCaptadorestermHE5", kRotuloSuperficieCaptadorestermHE5,
             PonerSuperficieCaptadorestermHE5);
  OpcionesCampo rehabilitacion = OpcionesSinCalculo(
      Q(kRotuloRehabIntegralHE5), tr("Un edificio existente que se rehabilita entero también ha de "
                                     "generar electricidad (CTE DB-HE5)"));
  rehabilitacion.poner = [](Edificio& edificio, std::string_view texto, Mensajes&) {
    PonerRehabIntegralHE5(edificio, texto == "Si");
  };
  enlaces_.Casilla(datos.filas, "RehabIntegralHE5", rehabilitacion, "Si", "No");
  Columna()->insertWidget(0, datos.caja);
}

PaginaAnoHE::PaginaAnoHE(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  auto* eleccion = new QHBoxLayout;
  eleccion->addWidget(new QLabel(tr("Tipo resultado"), this));
  tipo_ = new QComboBox(this);
  tipo_->setObjectName("TipoResultado");
  for (const std::string_view texto : kTextoTipoResultado) tipo_->addItem(Q(texto));
  tipo_->setCurrentIndex(static_cast<int>(TipoResultado::EnergiaFinal));
  connect(tipo_, &QComboBox::activated, this, [this] { Refrescar(); });
  eleccion->addWidget(tipo_);
  eleccion->addStretch(1);
  columna->addLayout(eleccion);
  auto* graficos = new QHBoxLayout;
  meses_ = new VistaGrafico(this);
  eficiencia_ = new VistaGrafico(this);
  for (VistaGrafico* grafico : {meses_, eficiencia_}) {
    grafico->setMinimumHeight(260);
    graficos->addWidget(grafico, 1);
  }
  columna->addLayout(graficos, 1);
  lineas_ = new QLabel(this);
  lineas_->setObjectName("lineas");
  lineas_->setWordWrap(true);
  lineas_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  columna->addWidget(lineas_);
}

void PaginaAnoHE::Ensenar(const CasoCalculado& caso) {
  const auto tipo = static_cast<TipoResultado>(tipo_->currentIndex());
  meses_->Poner(GraficoMensual(*caso.edificio, *caso.resultado, tipo));
  const Grafico eficiencia = GraficoEficiencia(*caso.edificio, *caso.resultado, tipo);
  eficiencia_->Poner(eficiencia);
  eficiencia_->setVisible(!eficiencia.series.empty());
  QStringList lineas;
  for (const std::string& linea : ResumirAno(*caso.edificio, *caso.resultado).lineas)
    lineas << Q(linea).trimmed();
  lineas_->setText(lineas.join('\n'));
}

}  // namespace novex::gui
