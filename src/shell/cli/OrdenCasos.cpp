#include <memory>

#include "outputs/CasoCalculado.h"
#include "outputs/JsonTabla.h"
#include "shell/OrdenesProyecto.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/CalculoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesCasos {
  std::string proyecto, caso, otro, guardar, programa;
  bool json = false;
};

Tabla TablaCasos(const GestorEdifActivo& gestor) {
  Tabla tabla;
  tabla.cabeceras = {"Caso", "Título", "Uso", "Zona", "Útil (m²)", "Sistemas"};
  for (const std::string& nombre : CasosDe(gestor)) {
    const Edificio& e = *gestor.Caso(nombre);
    const DatosGenerales& d = e.GetDatosGenerales();
    const auto uso = static_cast<std::size_t>(d.PerfilUso);
    tabla.filas.push_back(
        {nombre, nombre == caso::kViejo ? d.Edificio_Titulo : d.MedidaMejora,
         uso < kNombrePerfilUso.size() ? std::string(kNombrePerfilUso[uso]) : std::string(),
         e.GetLocalizacion().ZonaClimatica,
         Celda::Numero(static_cast<double>(e.GetRecinto(0).Suelo_habitable_m2), 2),
         Celda::Numero(static_cast<double>(e.NumeroSistemas()), 0)});
  }
  return tabla;
}

int Ensenar(const GestorEdifActivo& gestor, const OpcionesCasos& o) {
  if (o.json)
    EscribirSalida(JsonTabla(TablaCasos(gestor)));
  else
    EscribirTablas({TablaCasos(gestor)});
  return kHecho;
}

int Guardar(const GestorEdifActivo& gestor, const OpcionesCasos& o) {
  const auto escrito = GuardarProyecto(gestor, o.guardar.empty() ? o.proyecto : o.guardar);
  Ensenar(gestor, o);
  if (!o.json) EscribirSalida("Guardado en " + escrito.string() + "\n");
  return kHecho;
}

int Listar(const OpcionesCasos& o) {
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  return Ensenar(gestor, o);
}

int Duplicar(const OpcionesCasos& o) {
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  if (DuplicarCaso(gestor, o.caso.empty() ? caso::kViejo : o.caso, mensajes).empty())
    return kNoCumple;
  return Guardar(gestor, o);
}

int Borrar(const OpcionesCasos& o) {
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  if (!BorrarCaso(gestor, o.caso, mensajes)) return kNoCumple;
  return Guardar(gestor, o);
}

int Anadir(const OpcionesCasos& o) {
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  gestor.ActivarCaso(caso::kViejo);
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  bool sustituido = false;
  ModoCodificacion codificacion;
  const ProyectoAbierto abierto =
      AnadirProyecto(gestor, o.otro, ficheros, mensajes, sustituido, codificacion);
  if (!abierto.abierto) return kNoCumple;
  // Sobre su propio fichero se perdería el proyecto que no pasa las comprobaciones.
  if (sustituido && o.guardar.empty())
    throw ErrorUso("No se escribe encima de \"" + o.proyecto + "\": dé otro fichero con --guardar");
  return Guardar(gestor, o);
}

}  // namespace

void AnadirCasos(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesCasos>();
  CLI::App* casos = NuevaOrden(programa, "casos",
                               "Enseña los casos de un proyecto, o los duplica, borra o añade");
  casos->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml)")
      ->required()
      ->type_name("FICHERO");
  casos->add_flag("--json", o->json, "En JSON en lugar de en tabla");
  casos->require_subcommand(0, 1);
  casos->callback([&orden, o] {
    if (!orden) orden = [o] { return Listar(*o); };
  });
  const auto accion = [&](const char* nombre, const char* que, int (*hacer)(const OpcionesCasos&)) {
    CLI::App* app = NuevaOrden(*casos, nombre, que);
    app->add_option("--guardar", o->guardar, "Fichero en que se guarda, en lugar del mismo")
        ->type_name("FICHERO.xml");
    app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
        ->type_name("CARPETA");
    app->add_flag("--json", o->json, "En JSON en lugar de en tabla");
    app->callback([&orden, o, hacer] { orden = [o, hacer] { return hacer(*o); }; });
    return app;
  };
  accion("duplicar", "Hace una mejora igual a un caso", Duplicar)
      ->add_option("CASO", o->caso, "Caso que se duplica; sin él, la base")
      ->type_name("CASO");
  accion("borrar", "Borra un caso y corre los siguientes", Borrar)
      ->add_option("CASO", o->caso, "Viejo, Mejora_1 .. Mejora_5")
      ->required()
      ->type_name("CASO");
  accion("anadir", "Añade los casos de otro proyecto como mejoras", Anadir)
      ->add_option("OTRO", o->otro, "Fichero de proyecto (.xml)")
      ->required()
      ->type_name("FICHERO");
}

}  // namespace novex::cli
