#include "shell/gui/ContextoGui.h"

#include "shell/gui/TextoQt.h"

namespace novex::gui {

bool ContextoGui::Editar(const QString& nombre, const SesionProyecto::CambioCaso& cambio,
                         bool recalcula) {
  const bool cambiado = recalcula ? sesion_.Editar(S(nombre), cambio)
                                  : sesion_.EditarSinRecalcular(S(nombre), cambio);
  if (cambiado) emit Editado();
  return cambiado;
}

bool ContextoGui::EditarProyecto(const QString& nombre,
                                 const SesionProyecto::CambioProyecto& cambio) {
  const bool cambiado = sesion_.EditarProyecto(S(nombre), cambio);
  if (cambiado) emit ProyectoCambiado();
  return cambiado;
}

}  // namespace novex::gui
