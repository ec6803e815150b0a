#include <memory>

#include "base/NumeroTexto.h"
#include "calculation/Entorno.h"
#include "entry/CatalogoMunicipios.h"
#include "outputs/JsonTabla.h"
#include "reference/CatalogoComposiciones.h"
#include "reference/CatalogoMateriales.h"
#include "reference/FusionCatalogos.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

struct OpcionesBuscar {
  std::string texto, provincia, programa;
  bool json = false;
};

Celda Cifra(float valor, int decimales) {
  return Celda::Numero(static_cast<double>(valor), decimales);
}

// Enseña lo encontrado; nada encontrado no es un error de la orden, pero lo dice su código.
int Ensenar(const Tabla& tabla, const OpcionesBuscar& o) {
  if (o.json)
    EscribirSalida(JsonTabla(tabla));
  else if (tabla.filas.empty())
    EscribirSalida("Nada contiene \"" + o.texto + "\"\n");
  else
    EscribirTablas({tabla});
  return tabla.filas.empty() ? kNoCumple : kHecho;
}

int BuscarMateriales(const OpcionesBuscar& o) {
  const CatalogoMateriales catalogo(AbrirEspacio(o.programa).Datos() / "Materiales.xml");
  Tabla tabla;
  tabla.cabeceras = {"Material", "Grupo",     "Clase",      "Lista", "e (m)",
                     "k (W/mK)", "d (kg/m3)", "cp (J/kgK)", "mu",    "R (m2K/W)"};
  for (const MaterialCatalogo& m : catalogo.Buscar(o.texto)) {
    const Capa& c = m.capa;
    tabla.filas.push_back({c.especificacion, c.grupo,
                           m.rama.vertical ? "verticales" : "horizontales",
                           std::string(m.rama.lista), Cifra(c.espesor, 3), Cifra(c.k, 3),
                           Cifra(c.den, 0), Cifra(c.cp, 0), Cifra(c.rvapor, 1), Cifra(c.rterm, 3)});
  }
  return Ensenar(tabla, o);
}

int BuscarComposiciones(const OpcionesBuscar& o) {
  const CatalogoComposiciones catalogo(AbrirEspacio(o.programa).Datos() / "Composiciones.xml");
  Tabla tabla;
  tabla.cabeceras = {"Composición", "Familia",   "Subtipo",     "Época",
                     "Espesor (m)", "U (W/m2K)", "Peso (kg/m2)"};
  for (const ComposicionCatalogo& c : catalogo.Buscar(o.texto)) {
    const ResumenCerramiento resumen = ResumirCerramiento(c.capas);
    tabla.filas.push_back({c.nombre, std::string(NombreFamilia(c.familia)), c.subtipo, c.periodo,
                           Cifra(resumen.espesor, 3), Cifra(c.U(), 2), Cifra(resumen.peso, 0)});
  }
  return Ensenar(tabla, o);
}

int BuscarMunicipios(const OpcionesBuscar& o) {
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  const CatalogoMunicipios catalogo(
      ficheros.Xml("ZONACLIMATICATEMPYRAD.xml", "ZONACLIMATICATEMPYRAD"));
  Tabla tabla;
  tabla.cabeceras = {"Municipio", "Provincia", "Altitud (m)", "Latitud", "Zona", "Radiación"};
  for (const Municipio* m : catalogo.Empiezan(o.texto, o.provincia))
    tabla.filas.push_back({m->nombre, m->provincia, Celda::Numero(m->altitud, 0),
                           Celda::Numero(RealInicial(m->latitud), 4), m->ZonaClimatica(),
                           m->zonaRadiacion});
  return Ensenar(tabla, o);
}

int Actualizar(const std::string& version, const std::string& programa) {
  const EspacioTrabajo espacio = AbrirEspacio(programa);
  const std::vector<CuentaFusion> cuentas = ActualizarCatalogos(version, espacio.Datos());
  Tabla tabla;
  tabla.cabeceras = {"Catálogo", "Nuevas", "Corregidas", "Retiradas", "Conservadas"};
  for (std::size_t i = 0; i < cuentas.size(); ++i)
    tabla.filas.push_back({CatalogosAmpliables()[i].fichero, Celda::Numero(cuentas[i].nuevas, 0),
                           Celda::Numero(cuentas[i].corregidas, 0),
                           Celda::Numero(cuentas[i].retiradas, 0),
                           Celda::Numero(cuentas[i].conservadas, 0)});
  EscribirTablas({tabla});
  return kHecho;
}

CLI::App* AnadirBuscar(CLI::App& padre, Orden& orden, const std::string& que,
                       const std::shared_ptr<OpcionesBuscar>& o,
                       int (*buscar)(const OpcionesBuscar&)) {
  CLI::App* app = NuevaOrden(padre, "buscar", "Enseña " + que);
  app->add_option("TEXTO", o->texto, "Lo que se busca; ni acentos ni mayúsculas cuentan")
      ->required()
      ->type_name("TEXTO");
  app->add_flag("--json", o->json, "En JSON en lugar de en tabla");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o, buscar] { orden = [o, buscar] { return buscar(*o); }; });
  return app;
}

}  // namespace

void AnadirCatalogos(CLI::App& programa, Orden& orden) {
  CLI::App* materiales = NuevaOrden(programa, "materiales", "Materiales del catálogo");
  materiales->require_subcommand(1);
  AnadirBuscar(*materiales, orden, "los materiales cuyo nombre o grupo contiene un texto",
               std::make_shared<OpcionesBuscar>(), BuscarMateriales);

  CLI::App* composiciones =
      NuevaOrden(programa, "composiciones", "Composiciones de cerramientos del catálogo");
  composiciones->require_subcommand(1);
  AnadirBuscar(*composiciones, orden,
               "las composiciones cuyo nombre, subtipo o época contiene un texto",
               std::make_shared<OpcionesBuscar>(), BuscarComposiciones);

  CLI::App* municipios = NuevaOrden(programa, "municipios", "Municipios y su zona climática");
  municipios->require_subcommand(1);
  const auto o = std::make_shared<OpcionesBuscar>();
  AnadirBuscar(*municipios, orden, "los municipios que empiezan por unas letras", o,
               BuscarMunicipios)
      ->add_option("--provincia", o->provincia, "Solo los de esa provincia")
      ->type_name("NOMBRE");

  CLI::App* catalogos = NuevaOrden(programa, "catalogos",
                                   "Catálogos que el usuario amplía: materiales y composiciones");
  catalogos->require_subcommand(1);
  CLI::App* actualizar = NuevaOrden(*catalogos, "actualizar",
                                    "Los pone al día con otra versión sin perder lo del usuario");
  const auto version = std::make_shared<std::string>();
  const auto carpeta = std::make_shared<std::string>();
  actualizar->add_option("CARPETA", *version, "Carpeta con los catálogos de la versión nueva")
      ->required()
      ->type_name("CARPETA");
  actualizar->add_option("--programa", *carpeta, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  actualizar->callback([&orden, version, carpeta] {
    orden = [version, carpeta] { return Actualizar(*version, *carpeta); };
  });
}

}  // namespace novex::cli
