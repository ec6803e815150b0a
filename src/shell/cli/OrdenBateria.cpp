#include <algorithm>
#include <iostream>
#include <memory>
#include <thread>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/Texto.h"
#include "outputs/Bateria.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesOrden {
  std::string lista = "bateria.txt";
  std::string json, csv, programa;
  unsigned hilos = 0;  // 0, los de la máquina
  bool todosLosCasos = false;
};

constexpr const char* kTitulo = "Bateria de calculo";

// La lista, o nada si no se puede abrir.
std::optional<ListaBateria> AbrirLista(const std::string& ruta, Mensajes& mensajes) {
  try {
    return LeerListaBateria(AUtf8(LeerFichero(ruta)));
  } catch (const ErrorFichero&) {
    mensajes.Avisar(kTitulo, "No se pudo abrir Bateria.txt");
    return std::nullopt;
  }
}

int Ejecutar(const OpcionesOrden& o) {
  MensajesConsola mensajes;
  const auto lista = AbrirLista(o.lista, mensajes);
  if (!lista) return kSinHacer;
  if (lista->ficheros.empty()) {
    mensajes.Avisar(kTitulo, "Bateria Terminada");
    return kHecho;
  }
  std::error_code error;
  if (!std::filesystem::is_directory(lista->carpeta, error))
    throw ErrorOrden("Línea 1 de \"" + o.lista + "\": no existe la carpeta \"" + lista->carpeta +
                     "\"");
  OpcionesBateria opciones;
  opciones.hilos = o.hilos != 0 ? o.hilos : std::max(1U, std::thread::hardware_concurrency());
  opciones.todosLosCasos = o.todosLosCasos;
  const std::size_t cuantos = lista->ficheros.size();
  const auto casos = EjecutarBateria(
      *lista, AbrirEspacio(o.programa), opciones, [&](std::size_t cual, std::size_t quedan) {
        std::cerr << "n calculo " << quedan << "\nCaso = " << cual << "  de  " << cuantos << '\n';
      });
  EscribirFichero(std::filesystem::path(lista->carpeta) / "bateria.out", TextoBateria(casos));
  if (!o.csv.empty()) EscribirFichero(o.csv, CsvBateria(casos));
  if (o.json == kSalidaEstandar)
    EscribirSalida(JsonBateria(casos));
  else if (!o.json.empty())
    EscribirFichero(o.json, JsonBateria(casos));
  bool todos = true;
  for (const CasoBateria& caso : casos) {
    if (caso.fallo.empty()) continue;
    mensajes.Avisar(caso.proyecto, caso.fallo);
    todos = false;
  }
  mensajes.Avisar(kTitulo, "Bateria Terminada");
  return todos ? kHecho : kNoCumple;
}

}  // namespace

void AnadirBateria(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesOrden>();
  CLI::App* app = NuevaOrden(programa, "bateria",
                             "Calcula una lista de proyectos y escribe bateria.out en su carpeta");
  app->add_option("LISTA", o->lista,
                  "Lista: la carpeta en la primera línea y un proyecto en cada una de las demás")
      ->capture_default_str()
      ->type_name("FICHERO");
  app->add_option("--hilos", o->hilos, "Proyectos a la vez; sin decirlo, uno por procesador")
      ->check(CLI::Range(1, 256))
      ->type_name("N");
  app->add_flag("--todos-los-casos", o->todosLosCasos, "También las mejoras de cada proyecto");
  app->add_option("--csv", o->csv, "Escribe además los resultados en CSV")->type_name("FICHERO");
  app->add_option("--json", o->json, "Escribe además los resultados en JSON; con - van a la salida")
      ->type_name("FICHERO|-");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o] { orden = [o] { return Ejecutar(*o); }; });
}

}  // namespace novex::cli
