#include <algorithm>
#include <memory>

#include "base/FicheroSeguro.h"
#include "calculation/ComprobacionesPrevias.h"
#include "calculation/EjecutarCalculo.h"
#include "outputs/JsonResultados.h"
#include "outputs/SeriesHorarias.h"
#include "outputs/TablaResultados.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesCalcular {
  std::string proyecto, caso, json, series, programa;
  bool ficherosDeCaso = false;
  bool sinComprobar = false;
};

constexpr const char* kSalidaEstandar = "-";

std::vector<std::string> CasosDe(const GestorEdifActivo& gestor) {
  std::vector<std::string> nombres;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
    nombres.emplace_back(GestorEdifActivo::NombreCasoUsuario(i));
  return nombres;
}

std::vector<std::string> CasosPedidos(const GestorEdifActivo& gestor, const std::string& caso) {
  std::vector<std::string> nombres = CasosDe(gestor);
  if (caso.empty()) return nombres;
  if (std::find(nombres.begin(), nombres.end(), caso) != nombres.end()) return {caso};
  std::string hay;
  for (const std::string& nombre : nombres) hay += (hay.empty() ? "" : ", ") + nombre;
  throw ErrorUso("El proyecto no tiene el caso \"" + caso + "\"; tiene: " + hay);
}

// Un descuido al teclear no ha de costar el proyecto.
void NoPisarProyecto(const OpcionesCalcular& opciones) {
  for (const std::string& salida : {opciones.json, opciones.series}) {
    std::error_code error;
    if (!salida.empty() && std::filesystem::equivalent(salida, opciones.proyecto, error))
      throw ErrorUso("Los resultados se escribirían encima del proyecto \"" + salida + "\"");
  }
}

// Avisa de lo que impide calcular los casos; con varios en el proyecto, dice de cuál es.
bool SePuedenCalcular(const GestorEdifActivo& gestor, const std::vector<std::string>& nombres,
                      Mensajes& mensajes) {
  bool pueden = true;
  for (const std::string& nombre : nombres)
    for (const Mensaje& aviso : AvisosPrevios(*gestor.Caso(nombre))) {
      const std::string caso = gestor.NumeroCasos() > 1 ? NombreMostrado(nombre) + ": " : "";
      mensajes.Avisar(caso + aviso.titulo, aviso.texto);
      pueden = false;
    }
  return pueden;
}

// Con varios casos, las series de cada mejora van a un fichero propio con su nombre.
std::filesystem::path FicheroSeries(const std::string& pedido, const CasoCalculado& caso,
                                    std::size_t casos) {
  std::filesystem::path ruta(pedido);
  if (casos > 1 && caso.nombre != caso::kViejo)
    ruta.replace_filename(ruta.stem().string() + "_" + caso.nombre + ruta.extension().string());
  return ruta;
}

// Nada si falta el clima, del que ya se ha avisado.
std::vector<CasoCalculado> CalcularCasos(GestorEdifActivo& gestor,
                                         const std::vector<std::string>& nombres,
                                         const OpcionesCalcular& opciones,
                                         MensajesConsola& mensajes) {
  FicherosPrograma ficheros(AbrirEspacio(opciones.programa));
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso, opciones.ficherosDeCaso};
  std::vector<CasoCalculado> calculados;
  for (const std::string& nombre : nombres) {
    Edificio& edificio = *gestor.Caso(nombre);
    if (!CalcularCaso(gestor, nombre, entorno)) return {};
    calculados.push_back({nombre, &edificio, edificio.GetCalculo().get(), mensajes.Tomar()});
  }
  return calculados;
}

int Calcular(const OpcionesCalcular& opciones) {
  NoPisarProyecto(opciones);
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, opciones.proyecto, mensajes, opciones.programa);
  const std::vector<std::string> pedidos = CasosPedidos(gestor, opciones.caso);
  if (!opciones.sinComprobar && !SePuedenCalcular(gestor, pedidos, mensajes)) return kNoCumple;
  const auto casos = CalcularCasos(gestor, pedidos, opciones, mensajes);
  if (casos.empty()) return kSinHacer;

  const std::string nombre = std::filesystem::path(opciones.proyecto).filename().string();
  if (!opciones.series.empty())
    for (const CasoCalculado& caso : casos)
      EscribirFichero(FicheroSeries(opciones.series, caso, casos.size()),
                      CsvSeries(*caso.resultado));
  if (opciones.json == kSalidaEstandar) {
    EscribirSalida(JsonResultados(nombre, casos));
    return kHecho;
  }
  if (!opciones.json.empty()) EscribirFichero(opciones.json, JsonResultados(nombre, casos));
  for (std::size_t i = 0; i < casos.size(); ++i) {
    if (i > 0) EscribirSalida("\n\n");
    EscribirTablas(TablasCaso(casos[i]));
  }
  return kHecho;
}

}  // namespace

void AnadirCalcular(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesCalcular>();
  CLI::App* calcular =
      NuevaOrden(programa, "calcular", "Calcula y califica los casos de un proyecto");
  calcular->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml); no se modifica")
      ->required()
      ->type_name("FICHERO");
  calcular->add_option("--caso", o->caso, "Solo ese caso: Viejo, Mejora_1 .. Mejora_5")
      ->type_name("NOMBRE");
  calcular
      ->add_option("--json", o->json,
                   "Escribe los resultados en JSON; con - van a la salida en lugar de las tablas")
      ->type_name("FICHERO|-");
  calcular
      ->add_option("--series", o->series,
                   "Escribe las series horarias en CSV; las de las mejoras, en FICHERO_Mejora_n")
      ->type_name("FICHERO.csv");
  calcular->add_flag("--ficheros-de-caso", o->ficherosDeCaso,
                     "Deja los ficheros de caso en la carpeta de datos del programa");
  calcular
      ->add_option("--programa", o->programa,
                   "Carpeta de programa (con database/, databaseCTE/...) en lugar de la suya")
      ->type_name("CARPETA");
  calcular->add_flag("--sin-comprobar", o->sinComprobar,
                     "Calcula aunque el proyecto no pase las comprobaciones previas");
  calcular->callback([&orden, o] { orden = [o] { return Calcular(*o); }; });
}

}  // namespace novex::cli
