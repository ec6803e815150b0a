#include "shell/cli/AbrirProyectoConsola.h"

#include "entry/CompletarProyecto.h"
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

ProyectoAbierto AbrirProyectoConsola(GestorEdifActivo& gestor, const std::string& ruta,
                                     Mensajes& mensajes, const std::string& programa) {
  if (!EsDeProyecto(ruta))
    throw ErrorUso(
        "\"" + ruta +
        "\" no es un fichero de proyecto: ha de ser un .xml, o un .txt de una versión antigua");
  gestor.NuevoProyecto();
  ProyectoAbierto abierto = AbrirProyecto(gestor, ruta, ModoApertura::Nuevo, mensajes);
  if (!abierto.abierto) throw ErrorOrden("No se ha abierto el proyecto \"" + ruta + "\"");
  // La carpeta de programa solo hace falta para dar horarios a quien no los trae.
  FicherosPrograma ficheros(abierto.casosSinUso.empty() ? EspacioTrabajo{}
                                                        : AbrirEspacio(programa));
  CompletarProyecto(gestor, abierto, ficheros, mensajes);
  return abierto;
}

// Un proyecto que ya está no se pierde por un descuido.
void NoPisar(const std::string& fichero, bool sobrescribir) {
  std::error_code error;
  const std::filesystem::path ruta = RutaDeGuardado(fichero);
  if (sobrescribir || !std::filesystem::exists(ruta, error)) return;
  if (std::filesystem::file_size(ruta, error) == 0 && !error) return;
  throw ErrorUso("Ya existe \"" + ruta.string() + "\"; con --sobrescribir se escribe encima");
}

}  // namespace novex::cli
