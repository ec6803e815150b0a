#include <algorithm>
#include <memory>
#include <thread>

#include "shell/EmitirDocumento.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/CalculoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesCertificado {
  std::string proyecto, tipo, programa, salida;
  std::string caso = std::string(caso::kViejo);
  bool he = false, pdf = false;
};

int CodigoDe(Emision estado) {
  switch (estado) {
    case Emision::Hecha:
      return kHecho;
    case Emision::Rechazada:
      return kNoCumple;
    case Emision::SinCalculo:
    case Emision::SinHtml:
    case Emision::SinPdf:
      break;
  }
  return kSinHacer;
}

int Certificar(const OpcionesCertificado& o) {
  if (o.caso.empty()) throw ErrorUso("Falta el nombre del caso");
  if (o.he && !o.tipo.empty()) throw ErrorUso("La verificación (--he) no tiene --tipo");
  if (!o.salida.empty() && !std::filesystem::is_directory(o.salida))
    throw ErrorUso("No existe la carpeta \"" + o.salida + "\"");
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  CasosPedidos(gestor, o.caso);
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  PedidoDocumento pedido;
  pedido.tipo = o.he ? TipoDocumento::HE : TipoDocumento::Certi;
  pedido.clase = o.tipo;
  pedido.proyecto = o.proyecto;
  pedido.carpeta = o.salida;
  pedido.pdf = o.pdf;
  pedido.hilos = std::max(1U, std::thread::hardware_concurrency());
  const DocumentoEmitido documento = EmitirDocumento(gestor, o.caso, pedido, entorno);
  for (const auto& ruta : {documento.html, documento.pdf})
    if (!ruta.empty()) EscribirSalida(ruta.string() + "\n");
  if (documento.estado == Emision::Hecha) EscribirSalida("Documento escrito\n");
  return CodigoDe(documento.estado);
}

}  // namespace

void AnadirCertificado(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesCertificado>();
  CLI::App* app = NuevaOrden(programa, "certificado",
                             "Escribe el certificado de un caso, o la verificación del DB-HE");
  app->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml); no se modifica")
      ->required()
      ->type_name("FICHERO");
  app->add_flag("--he", o->he, "La verificación del DB-HE en lugar del certificado");
  app->add_flag("--pdf", o->pdf, "Hace además el PDF, con su pie de página");
  app->add_option("--tipo", o->tipo,
                  "Clase de certificado; sin ella, la del proyecto: EXISTENTES, NUEVOS. PROYECTO o "
                  "NUEVOS. TERMINADO")
      ->check(CLI::IsMember({"EXISTENTES", "NUEVOS. PROYECTO", "NUEVOS. TERMINADO"}))
      ->type_name("CLASE");
  app->add_option("--caso", o->caso, "Caso que se certifica: Viejo, Mejora_1 .. Mejora_5")
      ->type_name("NOMBRE");
  app->add_option("--salida", o->salida, "Carpeta de los documentos; sin ella, la del proyecto")
      ->type_name("CARPETA");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o] { orden = [o] { return Certificar(*o); }; });
}

}  // namespace novex::cli
