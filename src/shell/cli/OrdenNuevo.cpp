#include <memory>

#include "entry/CambioUso.h"
#include "entry/ProyectoNuevo.h"
#include "files/ProyectoFichero.h"
#include "outputs/TablaProyecto.h"
#include "shell/Certificador.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/Ordenes.h"
#include "shell/cli/SitioConsola.h"

namespace novex::cli {
namespace {

struct OpcionesNuevo {
  std::string fichero, uso, programa;
  SitioPedido sitio;
  bool sobrescribir = false;
};

int Crear(const OpcionesNuevo& o) {
  NoPisar(o.fichero, o.sobrescribir);
  MensajesConsola mensajes;
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  const XMLNode& perfiles = ficheros.Xml("PerfilesUso.xml", "PERFILES_USO");
  GestorEdifActivo gestor;
  EmpezarProyecto(gestor, perfiles, mensajes);
  Edificio& edificio = gestor.Activo();
  DatosGenerales d = edificio.GetDatosGenerales();
  LeerCertificador(FicheroCertificador(ficheros.Espacio()), d, mensajes);
  edificio.SetDatosGenerales(std::move(d));
  PonerSitio(edificio, o.sitio, ficheros, mensajes);
  if (!o.uso.empty()) CambiarPerfilUso(edificio, PerfilUsoPedido(o.uso), perfiles, mensajes);
  const auto escrito = GuardarProyecto(gestor, o.fichero);
  EscribirTablas(TablasProyecto(std::string(caso::kViejo), edificio));
  EscribirSalida("\nGuardado en " + escrito.string() + "\n");
  return kHecho;
}

}  // namespace

void AnadirSitio(CLI::App& app, SitioPedido& sitio) {
  app.add_option("--provincia", sitio.provincia, "Provincia, o sus primeras letras")
      ->type_name("NOMBRE");
  app.add_option("--municipio", sitio.municipio, "Municipio, o sus primeras letras")
      ->type_name("NOMBRE");
  app.add_option("--altitud", sitio.altitud,
                 "Altitud, m, en lugar de la del municipio; la zona sale de ella")
      ->type_name("M");
  app.add_option("--zona", sitio.zona, "Zona climática fijada, como D3 o alfa3c")
      ->type_name("ZONA");
}

void AnadirNuevo(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesNuevo>();
  CLI::App* nuevo = NuevaOrden(programa, "nuevo", "Crea un proyecto con los valores de partida");
  nuevo->add_option("FICHERO", o->fichero, "Fichero de proyecto que se crea (.xml)")
      ->required()
      ->type_name("FICHERO");
  nuevo->add_option("--uso", o->uso, "Uso del edificio, por su número o su nombre")
      ->type_name("USO");
  AnadirSitio(*nuevo, o->sitio);
  nuevo->add_flag("--sobrescribir", o->sobrescribir, "Escribe encima de un proyecto que ya está");
  nuevo->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  nuevo->callback([&orden, o] { orden = [o] { return Crear(*o); }; });
}

}  // namespace novex::cli
