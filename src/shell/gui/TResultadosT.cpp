#include "shell/gui/TResultadosT.h"

#include <QVBoxLayout>

#include "shell/gui/PaginaAnalisisTecnico.h"
#include "shell/gui/PaginaCalificacion.h"
#include "shell/gui/PaginaDetalle.h"
#include "shell/gui/PaginaHorarias.h"
#include "shell/gui/PaginaMensual.h"
#include "shell/gui/PaginaReferencia.h"
#include "shell/gui/PaginaTendencias.h"
#include "shell/gui/PaginaVisitas.h"

namespace novex::gui {
namespace {

constexpr const char* kMensuales = "Mensuales";
constexpr const char* kHorarias = "Horarias";
constexpr const char* kReferencia = "Objeto_Referencia";
constexpr const char* kVisitas = "Visitas/Observaciones/Intervenciones";

}  // namespace

template <class UnaPagina>
void TResultadosT::Tarde(const QString& titulo) {
  AnadirTarde([this] { return new UnaPagina(contexto_); }, titulo);
}

TResultadosT::TResultadosT(ContextoGui& contexto, QWidget* padre)
    : PaginaPestanas(contexto, padre) {
  fallo_ = new QLabel(this);
  fallo_->setObjectName("falloResultados");
  fallo_->setProperty("papel", "aviso");
  fallo_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  fallo_->setWordWrap(true);
  fallo_->setContentsMargins(12, 6, 12, 6);
  static_cast<QVBoxLayout*>(layout())->insertWidget(0, fallo_);
  // Entrar es ver la primera; las demás se hacen cuando se enseñan.
  Anadir(new PaginaCalificacion(contexto), "Calificación");
  Tarde<PaginaMensual>(kMensuales);
  Tarde<PaginaHorarias>(kHorarias);
  Tarde<PaginaDetalle>("Detalle");
  Tarde<PaginaReferencia>(kReferencia);
  Tarde<PaginaVisitas>(kVisitas);
  Tarde<PaginaAnalisisTecnico>("Análisis técnico");
  Tarde<PaginaTendencias>("Tendencias de Rehabilitaciones");
}

void TResultadosT::PonerPestanas() {
  const DatosGenerales generales = contexto_.Caso().GetDatosGenerales();
  const bool libre = generales.Tiposimulacion == "Simulacion";
  Esconder(kReferencia, generales.EsResidencial() || libre);
  Esconder(kVisitas, !contexto_.Sesion().Gestor().EsCasoActivo(caso::kViejo));
  const bool pasaALibre = libre && !libre_;
  libre_ = libre;
  if (pasaALibre) Mostrar(kMensuales);
}

void TResultadosT::AbrirEn(const QString& subdestino) {
  PaginaPestanas::AbrirEn(subdestino == kSubdestinoTemp ? QString(kHorarias) : subdestino);
}

void TResultadosT::Refrescar() {
  const bool calculado = contexto_.Calcular();
  fallo_->setText(contexto_.FalloCalculo());
  fallo_->setVisible(!calculado);
  // Los de antes no son de lo que hay ahora.
  const auto& suyo = contexto_.Caso().GetCalculo();
  Tapar(!suyo || !suyo->Calculado());
  PonerPestanas();
  PaginaPestanas::Refrescar();
}

}  // namespace novex::gui
