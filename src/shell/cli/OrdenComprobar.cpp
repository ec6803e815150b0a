#include <memory>

#include "calculation/ComprobacionesPrevias.h"
#include "outputs/CasoCalculado.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

Tabla TablaComprobaciones(const std::string& nombre, const Edificio& edificio) {
  Tabla tabla;
  tabla.titulo = NombreMostrado(nombre) + ": no se puede calcular";
  tabla.cabeceras = {"Dónde", "Qué"};
  for (const MensajePrevio& mensaje : TodasLasComprobaciones(edificio))
    tabla.filas.push_back({std::string(NombrePagina(mensaje.pagina)), mensaje.texto});
  return tabla;
}

int Comprobar(const std::string& proyecto) {
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, proyecto, mensajes);
  const std::size_t casos = gestor.NumeroCasos();
  std::vector<Tabla> tablas;
  for (std::size_t i = 0; i < casos; ++i) {
    const std::string nombre(GestorEdifActivo::NombreCasoUsuario(i));
    Tabla tabla = TablaComprobaciones(nombre, *gestor.Caso(nombre));
    if (!tabla.filas.empty()) tablas.push_back(std::move(tabla));
  }
  if (tablas.empty()) {
    EscribirSalida("El proyecto se puede calcular (" + std::to_string(casos) +
                   (casos == 1 ? " caso)\n" : " casos)\n"));
    return kHecho;
  }
  EscribirTablas(tablas);
  return kNoCumple;
}

}  // namespace

void AnadirComprobar(CLI::App& programa, Orden& orden) {
  auto proyecto = std::make_shared<std::string>();
  CLI::App* comprobar =
      NuevaOrden(programa, "comprobar", "Dice qué falta a un proyecto para poder calcularlo");
  comprobar->add_option("PROYECTO", *proyecto, "Fichero de proyecto (.xml)")
      ->required()
      ->type_name("FICHERO");
  comprobar->callback([&orden, proyecto] { orden = [proyecto] { return Comprobar(*proyecto); }; });
}

}  // namespace novex::cli
