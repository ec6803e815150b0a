#include <algorithm>
#include <memory>

#include "base/FicheroSeguro.h"
#include "base/Parecidos.h"
#include "files/ProyectoFichero.h"
#include "outputs/JsonResultados.h"
#include "outputs/SeriesHorarias.h"
#include "outputs/TablaResultados.h"
#include "outputs/TablasPorNombre.h"
#include "outputs/bloques/DerivadosDeResultados.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/CalculoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesCalcular {
  std::string proyecto, caso, json, series, guardar, programa;
  std::vector<std::string> tablas;
  bool ficherosDeCaso = false;
  bool sinComprobar = false;
};

void ComprobarNombresTablas(const std::vector<std::string>& pedidas, const Edificio& edificio) {
  const std::vector<std::string> nombres = NombresTablas(edificio);
  for (const std::string& nombre : pedidas)
    if (std::find(nombres.begin(), nombres.end(), nombre) == nombres.end())
      throw ErrorUso("No hay ninguna tabla \"" + nombre + "\"" +
                     FraseParecidos(MasParecidos(nombre, nombres)));
}

bool AlgunaCompara(const std::vector<std::string>& tablas) {
  return std::any_of(tablas.begin(), tablas.end(),
                     [](const std::string& nombre) { return ComparaCasos(nombre); });
}

// Las tablas que se han pedido de un caso, o las corrientes. \param comparan las que comparan los
// casos, o las que son de uno
std::vector<Tabla> TablasPedidas(const OpcionesCalcular& opciones, const CasoCalculado& caso,
                                 const std::vector<CasoCalculado>& todos, bool comparan) {
  if (opciones.tablas.empty() && !comparan) return TablasCaso(caso);
  std::vector<Tabla> tablas;
  for (const std::string& nombre : opciones.tablas) {
    if (ComparaCasos(nombre) != comparan) continue;
    auto suyas = TablasDeNombre(caso, todos, nombre).value_or(std::vector<Tabla>{});
    if (std::all_of(suyas.begin(), suyas.end(), [](const Tabla& t) { return t.filas.empty(); }))
      throw ErrorUso("La tabla \"" + nombre + "\" no tiene nada en el caso " +
                     NombreMostrado(caso.nombre));
    for (Tabla& tabla : suyas) tablas.push_back(std::move(tabla));
  }
  return tablas;
}

// Enseña las tablas de cada caso y, una sola vez, las que los comparan.
void Ensenar(const OpcionesCalcular& opciones, const std::vector<CasoCalculado>& casos,
             const std::vector<CasoCalculado>& todos) {
  std::vector<std::vector<Tabla>> bloques;
  for (const CasoCalculado& caso : casos)
    bloques.push_back(TablasPedidas(opciones, caso, todos, false));
  bloques.push_back(TablasPedidas(opciones, todos.front(), todos, true));
  std::string separacion;
  for (const std::vector<Tabla>& bloque : bloques) {
    if (bloque.empty()) continue;
    EscribirSalida(separacion);
    EscribirTablas(bloque);
    separacion = "\n\n";
  }
}

// Un descuido al teclear no ha de costar el proyecto.
void NoPisarProyecto(const OpcionesCalcular& opciones) {
  const auto guardado = opciones.guardar.empty() ? "" : RutaDeGuardado(opciones.guardar).string();
  for (const std::string& salida : {opciones.json, opciones.series, guardado}) {
    std::error_code error;
    if (!salida.empty() && std::filesystem::equivalent(salida, opciones.proyecto, error))
      throw ErrorUso("Los resultados se escribirían encima del proyecto \"" + salida + "\"");
  }
}

// Con varios casos, las series de cada mejora van a un fichero propio con su nombre.
std::filesystem::path FicheroSeries(const std::string& pedido, const CasoCalculado& caso,
                                    std::size_t casos) {
  std::filesystem::path ruta(pedido);
  if (casos > 1 && caso.nombre != caso::kViejo)
    ruta.replace_filename(ruta.stem().string() + "_" + caso.nombre + ruta.extension().string());
  return ruta;
}

int Calcular(const OpcionesCalcular& opciones) {
  NoPisarProyecto(opciones);
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, opciones.proyecto, mensajes, opciones.programa);
  const std::vector<std::string> pedidos = CasosPedidos(gestor, opciones.caso);
  for (const std::string& nombre : pedidos)
    ComprobarNombresTablas(opciones.tablas, *gestor.Caso(nombre));
  if (!opciones.sinComprobar && !SePuedenCalcular(gestor, pedidos, mensajes)) return kNoCumple;
  FicherosPrograma ficheros(AbrirEspacio(opciones.programa));
  // Para comparar hacen falta todos los casos, aunque se pida uno.
  const bool comparar = AlgunaCompara(opciones.tablas);
  const auto todos = CalcularCasos(gestor, comparar ? CasosDe(gestor) : pedidos, ficheros, mensajes,
                                   opciones.ficherosDeCaso);
  if (todos.empty()) return kSinHacer;
  std::vector<CasoCalculado> casos;
  for (const CasoCalculado& caso : todos)
    if (std::find(pedidos.begin(), pedidos.end(), caso.nombre) != pedidos.end())
      casos.push_back(caso);

  const std::string nombre = std::filesystem::path(opciones.proyecto).filename().string();
  if (!opciones.series.empty())
    for (const CasoCalculado& caso : casos)
      EscribirFichero(FicheroSeries(opciones.series, caso, casos.size()),
                      CsvSeries(*caso.resultado));
  if (!opciones.guardar.empty())
    GuardarProyecto(gestor, opciones.guardar,
                    DerivadosDeResultados(todos, LeerDocumentosHE(ficheros.Espacio().Datos())));
  if (opciones.json == kSalidaEstandar) {
    EscribirSalida(JsonResultados(nombre, casos));
    return kHecho;
  }
  if (!opciones.json.empty()) EscribirFichero(opciones.json, JsonResultados(nombre, casos));
  Ensenar(opciones, casos, todos);
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
  calcular
      ->add_option("--tabla", o->tablas,
                   "Enseña esa tabla en lugar de las corrientes; se puede repetir. Un nombre que "
                   "no existe da los que se parecen")
      ->type_name("NOMBRE");
  calcular
      ->add_option("--guardar", o->guardar,
                   "Guarda el proyecto en otro fichero con los bloques de resultados")
      ->type_name("FICHERO.xml");
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
