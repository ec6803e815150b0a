#include "shell/gui/TDefEdificio.h"

#include <QVBoxLayout>

#include "entry/ResumenEnvolvente.h"
#include "shell/gui/PaginaCiudadEntorno.h"
#include "shell/gui/PaginaCubiertas.h"
#include "shell/gui/PaginaHuecos.h"
#include "shell/gui/PaginaMuros.h"
#include "shell/gui/PaginaPuentes.h"
#include "shell/gui/PaginaSuelos.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// La pestaña en que se corrige lo que dice un mensaje previo.
QString PestanaDe(PaginaProyecto pagina) {
  switch (pagina) {
    case PaginaProyecto::Muros:
      return "Muros";
    case PaginaProyecto::Cubiertas:
      return "Cubiertas";
    case PaginaProyecto::Suelos:
      return "Suelos";
    case PaginaProyecto::Huecos:
      return "Huecos";
    case PaginaProyecto::CiudadEntorno:
      return "CiudadEntorno";
    case PaginaProyecto::Global:
    case PaginaProyecto::Instalaciones:
      break;
  }
  return {};
}

}  // namespace

TDefEdificio::TDefEdificio(ContextoGui& contexto, QWidget* padre)
    : PaginaPestanas(contexto, padre) {
  sumas_ = new QLabel(this);
  sumas_->setProperty("papel", "nota");
  sumas_->setObjectName("sumas");
  sumas_->setContentsMargins(12, 3, 12, 3);
  sumas_->setToolTip(
      tr("Fachada con sus huecos; compacidad V/A con el área de intercambio (DB-HE, anejo A)"));
  Anadir(new PaginaCubiertas(contexto), "Cubiertas");
  Anadir(new PaginaMuros(contexto), "Muros");
  Anadir(new PaginaSuelos(contexto), "Suelos");
  Anadir(new PaginaHuecos(contexto), "Huecos");
  Anadir(new PaginaPuentes(contexto), "Puentes");
  Anadir(new PaginaCiudadEntorno(contexto), "CiudadEntorno");
  layout()->addWidget(sumas_);
}

void TDefEdificio::Refrescar() {
  PaginaPestanas::Refrescar();
  sumas_->setText(Q(TextoResumen(ResumirEnvolvente(contexto_.Caso()))));
}

void TDefEdificio::Senalar(const MensajePrevio& motivo) {
  Mostrar(PestanaDe(motivo.pagina));
  PaginaPestanas::Senalar(motivo);
}

}  // namespace novex::gui
