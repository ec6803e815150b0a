#include <memory>

#include "outputs/TablaProyecto.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

int Informar(const std::string& proyecto) {
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, proyecto, mensajes);
  const std::size_t casos = gestor.NumeroCasos();
  EscribirSalida(proyecto + ": " + std::to_string(casos) + (casos == 1 ? " caso" : " casos") +
                 "\n");
  for (std::size_t i = 0; i < casos; ++i) {
    const std::string nombre(GestorEdifActivo::NombreCasoUsuario(i));
    EscribirSalida("\n");
    EscribirTablas(TablasProyecto(nombre, *gestor.Caso(nombre)));
  }
  return kHecho;
}

}  // namespace

void AnadirInfo(CLI::App& programa, Orden& orden) {
  auto proyecto = std::make_shared<std::string>();
  CLI::App* info = NuevaOrden(programa, "info", "Dice lo que contiene un proyecto");
  info->add_option("PROYECTO", *proyecto, "Fichero de proyecto (.xml)")
      ->required()
      ->type_name("FICHERO");
  info->callback([&orden, proyecto] { orden = [proyecto] { return Informar(*proyecto); }; });
}

}  // namespace novex::cli
