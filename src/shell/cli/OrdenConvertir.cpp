#include <memory>

#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesConvertir {
  std::string viejo, nuevo, programa;
  bool sobrescribir = false;
};

void EscribirLineas(const std::string& titulo, const InformeLectura::Lineas& lineas) {
  if (lineas.empty()) return;
  std::string texto = titulo + ":\n";
  for (const std::string& linea : lineas) texto += "  " + linea + "\n";
  EscribirSalida(texto + "\n");
}

int Convertir(const OpcionesConvertir& o) {
  NoPisar(o.nuevo, o.sobrescribir);
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  const ProyectoAbierto abierto = AbrirProyectoConsola(gestor, o.viejo, mensajes, o.programa);
  const auto escrito = GuardarProyecto(gestor, o.nuevo);
  EscribirLineas("Leído", abierto.informe.leidos);
  EscribirLineas("Puesto por defecto", abierto.informe.porDefecto);
  EscribirLineas("Saltado", abierto.informe.saltados);
  EscribirLineas("Cambiado", abierto.informe.cambiados);
  const std::size_t casos = gestor.NumeroCasos();
  EscribirSalida(std::to_string(casos) + (casos == 1 ? " caso guardado" : " casos guardados") +
                 " en " + escrito.string() + "\n");
  return kHecho;
}

}  // namespace

void AnadirConvertir(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesConvertir>();
  CLI::App* convertir = NuevaOrden(
      programa, "convertir", "Pasa a la disposición de hoy un proyecto de una versión anterior");
  convertir->add_option("VIEJO", o->viejo, "Proyecto de una versión anterior (.txt o .xml)")
      ->required()
      ->type_name("FICHERO");
  convertir->add_option("NUEVO", o->nuevo, "Fichero de proyecto que se crea (.xml)")
      ->required()
      ->type_name("FICHERO");
  convertir->add_flag("--sobrescribir", o->sobrescribir,
                      "Escribe encima de un proyecto que ya está");
  convertir->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  convertir->callback([&orden, o] { orden = [o] { return Convertir(*o); }; });
}

}  // namespace novex::cli
