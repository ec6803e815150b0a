#include "shell/gui/ContextoGui.h"

#include <QScopedValueRollback>
#include <exception>

#include "calculation/EjecutarCalculo.h"
#include "outputs/CasoCalculado.h"
#include "shell/gui/ProgresoVentana.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

bool TodosCalculados(const GestorEdifActivo& gestor) {
  return CasosCalculados(gestor).size() == gestor.NumeroCasos();
}

}  // namespace

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

void ContextoGui::DarPorGuardado(const std::filesystem::path& fichero) {
  sesion_.DarPorGuardado(fichero);
  emit Guardado();
}

bool ContextoGui::Calcular() {
  fallo_.clear();
  if (TodosCalculados(sesion_.Gestor())) return true;
  ProgresoVentana progreso;
  Entorno entorno{Ficheros(), sesion_.Avisos(), progreso};
  const QScopedValueRollback calculando(calculando_, true);
  try {
    if (CalcularProyecto(sesion_.GestorParaCalcular(), entorno)) return true;
    fallo_ = tr("No se ha podido calcular");
  } catch (const std::exception& error) {
    // Unos datos que pasan las comprobaciones y no tienen sentido físico, o un fichero que falta.
    fallo_ = Q(error.what());
  }
  return false;
}

}  // namespace novex::gui
