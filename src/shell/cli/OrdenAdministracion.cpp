#include <memory>

#include "files/ProyectoFichero.h"
#include "shell/FicheroAdministracion.h"
#include "shell/LanzadorExterno.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesAdministracion {
  std::string proyecto, salida, programa;
};

int Administracion(const OpcionesAdministracion& o) {
  if (!o.salida.empty() && !std::filesystem::is_directory(o.salida))
    throw ErrorUso("No hay ninguna carpeta \"" + o.salida + "\"");
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  PedidoAdministracion pedido;
  pedido.proyecto = o.proyecto;
  if (!o.salida.empty()) {
    pedido.proyecto = std::filesystem::path(o.salida) / pedido.proyecto.filename();
    pedido.nombreElegido = true;
  }
  // El programa ajeno que hace el informe, si está, va delante del propio.
  pedido.convertidor = [&](const std::filesystem::path& guardado, const std::filesystem::path&) {
    if (!HayExterno(ficheros.Espacio(), programaExterno::kConvertidor)) return false;
    LanzarFicheroAdministracion(ficheros.Espacio(), guardado, mensajes);
    return true;
  };
  const EscrituraAdministracion escritura = EscribirFicheroAdministracion(gestor, pedido, entorno);
  switch (escritura.fin) {
    case FinAdministracion::Rechazado:
      return kNoCumple;
    case FinAdministracion::SinCalcular:
      return kSinHacer;
    case FinAdministracion::Escrito:
      break;
  }
  EscribirSalida(escritura.informe.string() + "\n");
  return kHecho;
}

}  // namespace

void AnadirAdministracion(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesAdministracion>();
  CLI::App* app = NuevaOrden(
      programa, "administracion",
      "Guarda el proyecto y escribe a su lado el informe de evaluación energética para la "
      "administración, X_certi.xml");
  app->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml); se vuelve a guardar")
      ->required()
      ->type_name("FICHERO");
  app->add_option("--salida", o->salida,
                  "Guarda ahí el proyecto y el informe; el fichero dado no se modifica")
      ->type_name("CARPETA");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o] { orden = [o] { return Administracion(*o); }; });
}

}  // namespace novex::cli
