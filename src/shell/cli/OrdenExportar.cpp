#include <memory>
#include <sstream>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/Texto.h"
#include "outputs/ExportacionSeries.h"
#include "outputs/ExportacionTablas.h"
#include "outputs/TextoTabla.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/CalculoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesExportar {
  std::string proyecto, caso, tablas, series, fichero, programa;
  bool sinComprobar = false;
};

std::vector<std::string> SeparadosPorComas(const std::string& texto) {
  std::vector<std::string> partes;
  std::istringstream entrada(texto);
  for (std::string parte; std::getline(entrada, parte, ',');)
    partes.emplace_back(SinBlancos(parte));
  return partes;
}

std::string TextoTablas(const CasoCalculado& caso, const std::string& cuales) {
  if (cuales == "todas") return ExportarTablas(caso, AlcanceExportacion::Todas);
  if (cuales == "visibles") return ExportarTablas(caso, AlcanceExportacion::Visible);
  const std::string texto = ExportarObjetoReferencia(caso, UnidadesReferencia::Totales);
  if (texto.empty()) throw ErrorUso(std::string(kSinObjetoReferencia));
  return texto;
}

std::string TextoSeries(const CasoCalculado& caso, const std::string& codigos) {
  std::vector<SerieMostrada> series;
  for (const std::string& codigo : SeparadosPorComas(codigos)) {
    SerieBuscada buscada = SerieDeVariable(*caso.edificio, *caso.resultado, codigo);
    if (!buscada.serie) throw ErrorUso(NoHayVariable(codigo, buscada.parecidos));
    series.push_back(std::move(*buscada.serie));
  }
  const ConAviso<Tabla> tabla = TablaNumerica(series, PeriodoSerie{});
  if (!tabla.valor) throw ErrorUso(tabla.aviso.texto);
  return TextoSeparado(*tabla.valor);
}

int Exportar(const OpcionesExportar& o) {
  if (o.tablas.empty() && o.series.empty()) throw ErrorUso("Falta --tablas o --series");
  const std::filesystem::path ruta = RutaExportacion(o.fichero);
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  const std::string nombre = o.caso.empty() ? std::string(caso::kViejo) : o.caso;
  const std::vector<std::string> pedidos = CasosPedidos(gestor, nombre);
  if (!o.sinComprobar && !SePuedenCalcular(gestor, pedidos, mensajes)) return kNoCumple;
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  const auto casos = CalcularCasos(gestor, pedidos, ficheros, mensajes);
  if (casos.empty()) return kSinHacer;

  std::string texto;
  if (!o.tablas.empty()) texto += TextoTablas(casos.front(), o.tablas);
  if (!o.series.empty()) texto += TextoSeries(casos.front(), o.series);
  try {
    EscribirFichero(ruta, texto);
  } catch (const ErrorFichero& error) {
    mensajes.Avisar("Exportar", error.what());
    return kNoCumple;
  }
  return kHecho;
}

}  // namespace

void AnadirExportar(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesExportar>();
  CLI::App* app = NuevaOrden(programa, "exportar",
                             "Escribe tablas y series de un caso en un fichero separado por \";\"");
  app->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml); no se modifica")
      ->required()
      ->type_name("FICHERO");
  app->add_option("--caso", o->caso, "El caso; sin él, la base")->type_name("NOMBRE");
  app->add_option("--tablas", o->tablas,
                  "Las tablas mensuales (todas, o las que se ven al entrar en la página) o la del "
                  "edificio objeto y el de referencia")
      ->check(CLI::IsMember({"todas", "visibles", "referencia"}))
      ->type_name("todas|visibles|referencia");
  app->add_option("--series", o->series,
                  "Series horarias del año por su código, hasta 25; los da calcular --tabla "
                  "variables")
      ->type_name("CÓDIGO,...");
  app->add_option("--a", o->fichero, "Fichero que se escribe; sin \".txt\" al final, se le añade")
      ->required()
      ->type_name("FICHERO.txt");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->add_flag("--sin-comprobar", o->sinComprobar,
                "Calcula aunque el proyecto no pase las comprobaciones previas");
  app->callback([&orden, o] { orden = [o] { return Exportar(*o); }; });
}

}  // namespace novex::cli
