#include <algorithm>
#include <memory>
#include <system_error>

#include "base/FicheroSeguro.h"
#include "demand/EstadisticasClima.h"
#include "demand/FicheroMet.h"
#include "demand/GeneradorClima.h"
#include "demand/InstalarClima.h"
#include "outputs/TablaClima.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

constexpr const char* kOficial = "Oficial";
const std::vector<std::string> kConjuntos = {kOficial, "1992", "2002", "2012", "2022"};

struct OpcionesClima {
  std::string programa, estadisticas, carpeta, zona;
  std::string conjunto = kOficial;
};

// Marca de un conjunto en el código postal del proyecto, que es la que decide su carpeta.
std::string Marca(const std::string& conjunto) {
  return conjunto == kOficial ? std::string() : "-" + conjunto;
}

void CrearCarpeta(const std::filesystem::path& carpeta) {
  std::error_code error;
  std::filesystem::create_directories(carpeta, error);
  if (error) throw ErrorOrden("No se pudo crear la carpeta \"" + carpeta.string() + "\"");
}

int Generar(const OpcionesClima& opciones) {
  // La carpeta de programa puede no estar hecha todavía.
  if (!opciones.programa.empty()) CrearCarpeta(opciones.programa);
  const EspacioTrabajo espacio = AbrirEspacio(opciones.programa);
  const std::filesystem::path origen = opciones.estadisticas.empty()
                                           ? espacio.programa / "clima"
                                           : std::filesystem::path(opciones.estadisticas);
  const EstadisticasClima clima = LeerEstadisticasClima(origen);
  std::size_t escritos = 0;
  for (const std::string& conjunto : kConjuntos) {
    CrearCarpeta(espacio.programa / CarpetaClima(Marca(conjunto)));
    for (const std::string_view zona : kZonasMet) {
      const std::string nombre(zona);
      EscribirFichero(espacio.Clima(nombre, Marca(conjunto)), GenerarMet(clima, nombre, conjunto));
      ++escritos;
    }
  }
  EscribirSalida(std::to_string(escritos) + " ficheros de clima en " + espacio.programa.string() +
                 "\n");
  return kHecho;
}

int Instalar(const OpcionesClima& opciones) {
  const EspacioTrabajo espacio = AbrirEspacio(opciones.programa);
  const auto destino = espacio.programa / CarpetaClima(Marca(opciones.conjunto));
  const auto zonas = InstalarClima(opciones.carpeta, destino);
  Tabla tabla;
  tabla.titulo = "Ficheros de clima instalados en " + destino.string();
  tabla.cabeceras = {"Zona", "", ""};
  bool alguno = false, faltas = false;
  for (const ClimaInstalado& zona : zonas) {
    if (zona.origen.empty()) continue;
    alguno |= zona.instalado;
    faltas |= !zona.instalado;
    tabla.filas.push_back({zona.zona, zona.instalado ? "instalado" : "no vale",
                           zona.faltas.empty() ? Celda() : Celda(zona.faltas.front())});
    for (std::size_t i = 1; i < zona.faltas.size(); ++i)
      tabla.filas.push_back({"", "", zona.faltas[i]});
  }
  if (!alguno && !faltas)
    throw ErrorOrden("La carpeta \"" + opciones.carpeta + "\" no tiene ficheros zona*.met");
  EscribirTablas({tabla});
  return faltas ? kNoCumple : kHecho;
}

int Informar(const OpcionesClima& opciones) {
  if (std::find(kZonasMet.begin(), kZonasMet.end(), opciones.zona) == kZonasMet.end()) {
    std::string zonas;
    for (const std::string_view zona : kZonasMet) zonas.append(" ").append(zona);
    throw ErrorUso("No hay zona \"" + opciones.zona + "\"; las zonas son:" + zonas);
  }
  const EspacioTrabajo espacio = AbrirEspacio(opciones.programa);
  const auto ruta = espacio.Clima(opciones.zona, Marca(opciones.conjunto));
  if (std::error_code error; !std::filesystem::is_regular_file(ruta, error)) {
    MensajesConsola().Avisar("fichero entrada datos ambientales",
                             "No se pudo abrir el fichero .met");
    return kSinHacer;
  }
  EscribirTablas({TablaClima(LeerMet(LeerFichero(ruta), ruta.string()))});
  return kHecho;
}

// Vacío si el conjunto existe; si no, lo que está mal.
std::string ComprobarConjunto(const std::string& conjunto) {
  if (std::find(kConjuntos.begin(), kConjuntos.end(), conjunto) != kConjuntos.end()) return {};
  return "no hay conjunto \"" + conjunto + "\"";
}

void OpcionPrograma(CLI::App& orden, OpcionesClima& opciones) {
  orden.add_option("--programa", opciones.programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
}

void OpcionConjunto(CLI::App& orden, OpcionesClima& opciones) {
  orden.add_option("--conjunto", opciones.conjunto, "Oficial, 1992, 2002, 2012 o 2022")
      ->type_name("CONJUNTO")
      ->check(ComprobarConjunto);
}

}  // namespace

void AnadirClima(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesClima>();
  CLI::App* clima = NuevaOrden(programa, "clima", "Ficheros de clima");
  clima->require_subcommand(1);

  CLI::App* generar = NuevaOrden(
      *clima, "generar", "Genera los de todas las zonas y conjuntos a partir de sus estadísticas");
  OpcionPrograma(*generar, *o);
  generar
      ->add_option("--estadisticas", o->estadisticas,
                   "Carpeta de las estadísticas mensuales; si no, clima/ de la de programa")
      ->type_name("CARPETA");
  generar->callback([&orden, o] { orden = [o] { return Generar(*o); }; });

  CLI::App* instalar =
      NuevaOrden(*clima, "instalar", "Instala los ficheros zona*.met de una carpeta");
  instalar->add_option("CARPETA", o->carpeta, "Donde están")->required()->type_name(" ");
  OpcionConjunto(*instalar, *o);
  OpcionPrograma(*instalar, *o);
  instalar->callback([&orden, o] { orden = [o] { return Instalar(*o); }; });

  CLI::App* info = NuevaOrden(*clima, "info", "Cifras mensuales del fichero de una zona");
  info->add_option("ZONA", o->zona, "Zona climática: D3, alfa3c...")->required()->type_name(" ");
  OpcionConjunto(*info, *o);
  OpcionPrograma(*info, *o);
  info->callback([&orden, o] { orden = [o] { return Informar(*o); }; });
}

}  // namespace novex::cli
