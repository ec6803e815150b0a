#include "shell/cli/AbrirProyectoConsola.h"

#include "calculation/CompletarProyecto.h"
#include "files/ProyectoFichero.h"

namespace novex::cli {
namespace {

// Por el camino se decide de qué clase es un fichero; otro no se abre.
bool EsDeProyecto(const std::string& ruta) {
  for (const char* marca : {"xml", "XML", "txt"})
    if (ruta.find(marca) != std::string::npos) return true;
  return false;
}

}  // namespace

void AbrirProyectoConsola(GestorEdifActivo& gestor, const std::string& ruta, Mensajes& mensajes,
                          const std::string& programa) {
  if (!EsDeProyecto(ruta))
    throw ErrorUso("\"" + ruta + "\" no es un fichero de proyecto: ha de ser un .xml");
  gestor.NuevoProyecto();
  const ProyectoAbierto abierto = AbrirProyecto(gestor, ruta, ModoApertura::Nuevo, mensajes);
  if (!abierto.abierto) throw ErrorOrden("No se ha abierto el proyecto \"" + ruta + "\"");
  // La carpeta de programa solo hace falta para dar horarios a quien no los trae.
  FicherosPrograma ficheros(abierto.casosSinUso.empty() ? EspacioTrabajo{}
                                                        : AbrirEspacio(programa));
  CompletarProyecto(gestor, abierto.casosSinUso, ficheros, mensajes);
}

}  // namespace novex::cli
