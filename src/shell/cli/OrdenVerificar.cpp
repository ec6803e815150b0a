#include <algorithm>
#include <memory>

#include "base/FicheroSeguro.h"
#include "compliance/CoeficientesPaso.h"
#include "compliance/ResumenAnual.h"
#include "outputs/TablaVeredictos.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/CalculoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesVerificar {
  std::string proyecto, caso, json, programa;
  bool documentos = false;
  bool resumen = false;
};

std::vector<CasoVerificado> VerificarCasos(const std::vector<CasoCalculado>& calculados,
                                           const DocumentosHE& documentos) {
  std::vector<CasoVerificado> verificados;
  for (const CasoCalculado& c : calculados)
    verificados.push_back({c.nombre, VerificarHE(*c.edificio, *c.resultado, documentos)});
  return verificados;
}

void EscribirDocumentos(const FicherosPrograma& ficheros, const CasoVerificado& caso) {
  if (EscribirDocumentosHE(ficheros.Espacio().Datos(), caso.verificacion) != 0)
    throw ErrorOrden("No se han podido escribir los documentos de trabajo en \"" +
                     ficheros.Espacio().Datos().string() + "\"");
}

void Ensenar(const CasoVerificado& caso, bool varios) {
  if (varios) EscribirSalida("== " + NombreMostrado(caso.nombre) + "\n\n");
  EscribirTablas(TablasVeredictos(caso.verificacion.veredictos));
  EscribirSalida(caso.verificacion.Cumple() ? "\nCumple todo lo que se le exige\n"
                                            : "\nNo cumple\n");
}

// Las cifras del año del caso y los coeficientes de paso con que se han hecho.
void EnsenarResumen(const CasoCalculado& caso) {
  EscribirSalida("\nResumen del año\n");
  for (const std::string& linea : ResumirAno(*caso.edificio, *caso.resultado).lineas)
    EscribirSalida("  " + linea + "\n");
  EscribirSalida("\n");
  EscribirTablas({TablaCoeficientesPaso(caso.resultado->resultados.factores)});
}

int Verificar(const OpcionesVerificar& o) {
  if (o.resumen && o.json == kSalidaEstandar)
    throw ErrorUso("El resumen no va en el JSON de la salida: dé un fichero en --json");
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  const std::vector<std::string> casos = CasosPedidos(gestor, o.caso);
  if (!SePuedenCalcular(gestor, casos, mensajes)) return kSinHacer;
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  const auto calculados = CalcularCasos(gestor, casos, ficheros, mensajes);
  if (calculados.empty()) return kSinHacer;
  const std::vector<CasoVerificado> verificados =
      VerificarCasos(calculados, LeerDocumentosHE(ficheros.Espacio().Datos()));
  const std::string nombre = std::filesystem::path(o.proyecto).filename().string();
  if (o.json == kSalidaEstandar) {
    EscribirSalida(JsonVeredictos(nombre, verificados));
  } else {
    if (!o.json.empty()) EscribirFichero(o.json, JsonVeredictos(nombre, verificados));
    for (std::size_t i = 0; i < verificados.size(); ++i) {
      if (i > 0) EscribirSalida("\n\n");
      Ensenar(verificados[i], verificados.size() > 1);
      if (o.resumen) EnsenarResumen(calculados[i]);
    }
  }
  if (o.documentos) EscribirDocumentos(ficheros, verificados.front());
  const bool cumplen = std::all_of(verificados.begin(), verificados.end(),
                                   [](const auto& c) { return c.verificacion.Cumple(); });
  return cumplen ? kHecho : kNoCumple;
}

}  // namespace

void AnadirVerificar(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesVerificar>();
  CLI::App* app = NuevaOrden(programa, "verificar",
                             "Verifica el ahorro de energía del código (CTE DB-HE) en los casos");
  app->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml); no se modifica")
      ->required()
      ->type_name("FICHERO");
  app->add_option("--caso", o->caso,
                  "Solo ese caso: Viejo, Mejora_1 .. Mejora_5; sin él, han de cumplir todos")
      ->type_name("NOMBRE");
  app->add_option("--json", o->json,
                  "Escribe los veredictos en JSON; con - van a la salida en lugar de las tablas")
      ->type_name("FICHERO|-");
  app->add_flag("--resumen", o->resumen,
                "Enseña además las cifras del año y los coeficientes de paso");
  app->add_flag("--documentos", o->documentos,
                "Escribe los documentos de trabajo del primer caso en la carpeta de datos");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o] { orden = [o] { return Verificar(*o); }; });
}

}  // namespace novex::cli
