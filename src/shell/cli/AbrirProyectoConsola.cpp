#include "shell/cli/AbrirProyectoConsola.h"

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

void AbrirProyectoConsola(GestorEdifActivo& gestor, const std::string& ruta, Mensajes& mensajes) {
  if (!EsDeProyecto(ruta))
    throw ErrorUso("\"" + ruta + "\" no es un fichero de proyecto: ha de ser un .xml");
  gestor.NuevoProyecto();
  if (!AbrirProyecto(gestor, ruta, ModoApertura::Nuevo, mensajes).abierto)
    throw ErrorOrden("No se ha abierto el proyecto \"" + ruta + "\"");
}

}  // namespace novex::cli
