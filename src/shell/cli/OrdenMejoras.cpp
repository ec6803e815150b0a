#include <algorithm>
#include <map>
#include <memory>
#include <thread>

#include "base/FicheroSeguro.h"
#include "outputs/TablaMejoras.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/CalculoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesMejoras {
  std::string proyecto, json, programa;
  std::string caso = std::string(caso::kViejo);
  std::string orden = "primaria";
  bool todas = false;
  unsigned hilos = 0;  // 0, los de la máquina
};

// Por qué se ordenan, con el nombre que tienen en la consola.
const std::map<std::string, CriterioMejoras> kCriterios = {
    {"primaria", CriterioMejoras::PrimariaNoRenovable},
    {"demanda", CriterioMejoras::Demanda},
    {"final", CriterioMejoras::EnergiaFinal},
    {"emisiones", CriterioMejoras::Emisiones},
    {"coste", CriterioMejoras::Coste},
    {"codigo", CriterioMejoras::Codigo}};

// Las que se piden: todas, o las que el proyecto lleva marcadas.
std::vector<int> CodigosPedidos(const OpcionesMejoras& o, const EstudioModificaciones& estudio) {
  if (!o.todas) return CodigosMarcados(estudio);
  std::vector<int> codigos;
  for (const MedidaPredefinida& m : MedidasPredefinidas()) codigos.push_back(m.codigo);
  return codigos;
}

int Estudiar(const OpcionesMejoras& o) {
  if (o.caso.empty()) throw ErrorUso("Falta el nombre del caso");
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  const std::vector<std::string> casos = CasosPedidos(gestor, o.caso);
  const EstudioModificaciones& marcas = gestor.Caso(o.caso)->GetEstudioModificaciones();
  if (const auto aviso = AvisoMarcas(marcas); aviso && !o.todas) {
    mensajes.Avisar(aviso->titulo, aviso->texto);
    return kNoCumple;
  }
  const std::vector<int> codigos = CodigosPedidos(o, marcas);
  if (codigos.empty()) {
    mensajes.Avisar("AVISO", "El caso no tiene ninguna medida marcada: use --todas");
    return kNoCumple;
  }
  if (!SePuedenCalcular(gestor, casos, mensajes)) return kNoCumple;
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  const auto estudio = EstudioMejoras::Preparar(gestor, o.caso, entorno);
  if (!estudio) return kSinHacer;
  const unsigned hilos = o.hilos != 0 ? o.hilos : std::max(1U, std::thread::hardware_concurrency());
  const auto medidas =
      OrdenarMejoras(estudio->Medir(codigos, hilos), kCriterios.at(o.orden), marcas);
  const std::string nombre = std::filesystem::path(o.proyecto).filename().string();
  const auto json = [&] { return JsonMejoras(nombre, o.caso, estudio->Base(), medidas); };
  if (o.json == kSalidaEstandar) {
    EscribirSalida(json());
    return kHecho;
  }
  if (!o.json.empty()) EscribirFichero(o.json, json());
  EscribirTablas({TablaMejoras(estudio->Base(), medidas, marcas)});
  return kHecho;
}

}  // namespace

void AnadirMejoras(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesMejoras>();
  CLI::App* app = NuevaOrden(programa, "mejoras",
                             "Mide las mejoras marcadas de un proyecto, o todas las predefinidas");
  app->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml); no se modifica")
      ->required()
      ->type_name("FICHERO");
  app->add_option("--caso", o->caso, "Caso que se mejora: Viejo, Mejora_1 .. Mejora_5")
      ->type_name("NOMBRE");
  app->add_flag("--todas", o->todas, "Las setenta");
  std::vector<std::string> criterios;
  for (const auto& [nombre, criterio] : kCriterios) criterios.push_back(nombre);
  app->add_option(
         "--orden", o->orden,
         "Por qué se ordenan; sin decirlo, por la energía primaria no renovable que ahorran")
      ->check(CLI::IsMember(criterios));
  app->add_option("--hilos", o->hilos, "Cálculos a la vez; sin decirlo, uno por procesador")
      ->check(CLI::Range(1, 256))
      ->type_name("N");
  app->add_option("--json", o->json,
                  "Escribe el estudio en JSON; con - va a la salida en lugar de la tabla")
      ->type_name("FICHERO|-");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o] { orden = [o] { return Estudiar(*o); }; });
}

}  // namespace novex::cli
