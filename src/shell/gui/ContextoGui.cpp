#include "shell/gui/ContextoGui.h"

#include <QScopedValueRollback>

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
  GestorEdifActivo& gestor = sesion_.GestorParaCalcular();
  if (TodosCalculados(gestor)) return true;
  ProgresoVentana progreso;
  Entorno entorno{Ficheros(), sesion_.Avisos(), progreso};
  const QScopedValueRollback calculando(calculando_, true);
  QStringList fallos;
  try {
    for (const CasoSinCalcular& caso : CalcularProyecto(gestor, entorno)) {
      const QString motivo = caso.motivo.empty() ? tr("No se ha podido calcular") : Q(caso.motivo);
      fallos << (gestor.NumeroCasos() > 1 ? Q(NombreMostrado(caso.nombre)) + ": " + motivo
                                          : motivo);
    }
  } catch (const CalculoCancelado&) {
    fallos << tr("Se ha cancelado el cálculo");
  }
  fallo_ = fallos.join('\n');
  return fallos.isEmpty();
}

}  // namespace novex::gui
