#include <algorithm>
#include <memory>

#include "base/FicheroSeguro.h"
#include "calculation/ComprobacionesPrevias.h"
#include "entry/CambioUso.h"
#include "entry/ProyectoNuevo.h"
#include "entry/SupuestosExpres.h"
#include "files/ProyectoFichero.h"
#include "outputs/JsonResultados.h"
#include "outputs/TablaProyecto.h"
#include "outputs/TablaResultados.h"
#include "reference/ValoresDefectoU.h"
#include "shell/Certificador.h"
#include "shell/cli/CalculoConsola.h"
#include "shell/cli/Ordenes.h"
#include "shell/cli/SitioConsola.h"

namespace novex::cli {
namespace {

struct OpcionesExpres {
  SitioPedido sitio;
  std::string uso, periodo, certificado, guardar, json, programa;
  std::string tipoCubierta, tipoSuelo, calidadAire, instalacion, superficiePersona;
  std::vector<std::string> fachadas, ventanas, puerta;
  EntradaExpres entrada;
  int plantas = 0;
};

constexpr std::array<std::array<std::string_view, 3>, kSectores> kSectoresPedidos = {
    {{"norte", "n", "norte"},
     {"oeste", "o", "oeste"},
     {"suroeste", "so", "sur_oeste"},
     {"sur", "s", "sur"},
     {"sureste", "se", "sur_este"},
     {"este", "e", "este"}}};

std::size_t SectorPedido(const std::string& texto) {
  const std::string clave = ClaveBusqueda(SinBlancos(texto));
  for (std::size_t i = 0; i < kSectores; ++i)
    for (const std::string_view nombre : kSectoresPedidos[i])
      if (nombre == clave) return i;
  throw ErrorUso("\"" + texto + "\" no es una orientación: N, O, SO, S, SE o E");
}

std::vector<std::string> Partir(const std::string& texto, char separador) {
  std::vector<std::string> partes;
  for (std::size_t desde = 0; desde <= texto.size();) {
    const std::size_t hasta = std::min(texto.find(separador, desde), texto.size());
    partes.push_back(texto.substr(desde, hasta - desde));
    desde = hasta + 1;
  }
  return partes;
}

// "SECTOR=VALOR" en el sitio de ese sector.
void PonerPorSector(UnidadesPorSector& destino, const std::string& texto) {
  const std::vector<std::string> partes = Partir(texto, '=');
  if (partes.size() != 2 || partes[1].empty())
    throw ErrorUso("\"" + texto + "\" ha de ser ORIENTACIÓN=VALOR");
  destino[SectorPedido(partes[0])] = partes[1];
}

// "ANCHOxALTO:SECTOR=N,SECTOR=N" y lo que siga tras los dos puntos.
std::vector<std::string> LeerHueco(const std::string& texto, std::string& ancho, std::string& alto,
                                   UnidadesPorSector& unidades) {
  std::vector<std::string> partes = Partir(texto, ':');
  const std::vector<std::string> medidas = Partir(partes[0], 'x');
  if (partes.size() < 2 || medidas.size() != 2)
    throw ErrorUso("\"" + texto + "\" ha de ser ANCHOxALTO:ORIENTACIÓN=N,ORIENTACIÓN=N");
  ancho = medidas[0];
  alto = medidas[1];
  for (const std::string& unidad : Partir(partes[1], ',')) PonerPorSector(unidades, unidad);
  partes.erase(partes.begin(), partes.begin() + 2);
  return partes;
}

GrupoExpres VentanaPedida(const std::string& texto, const std::string& periodo) {
  GrupoExpres grupo;
  grupo.vidrio = periodo == kPeriodosConstruccion[0] ? VidrioExpres::Sencillo : VidrioExpres::Doble;
  const std::vector<std::string> resto = LeerHueco(texto, grupo.ancho, grupo.alto, grupo.unidades);
  if (!resto.empty() && !resto[0].empty())
    grupo.vidrio = static_cast<VidrioExpres>(ElegirDeLista(kVidriosExpres, resto[0], "El vidrio"));
  if (resto.size() > 1)
    grupo.proteccion = static_cast<ProteccionExpres>(
        ElegirDeLista(kProteccionesExpres, resto[1], "La protección"));
  return grupo;
}

SupuestosExpres LeerPeticion(const OpcionesExpres& o, int perfil) {
  SupuestosExpres s;
  s.entrada = o.entrada;
  EntradaExpres& e = s.entrada;
  s.plantas = o.plantas;
  e.periodo = kPeriodosConstruccion[ElegirDeLista(kPeriodosConstruccion, o.periodo, "El periodo")];
  for (const std::string& fachada : o.fachadas) PonerPorSector(e.fachada, fachada);
  for (const std::string& ventana : o.ventanas)
    e.vidrios.push_back(VentanaPedida(ventana, e.periodo));
  s.conVidrios = !o.ventanas.empty();
  if (e.vidrios.size() > kVidriosMaximos)
    throw ErrorUso("Caben como mucho cuatro tipos de ventana");
  s.conPuerta = !o.puerta.empty();
  for (const std::string& puerta : o.puerta) {
    const auto resto = LeerHueco(puerta, e.anchoPuerta, e.altoPuerta, e.puertas);
    if (!resto.empty())
      e.puerta = static_cast<PuertaExpres>(ElegirDeLista(kPuertasExpres, resto[0], "La puerta"));
  }
  s.conTipoCubierta = !o.tipoCubierta.empty();
  if (s.conTipoCubierta)
    e.tipoCubierta =
        static_cast<CubiertaExpres>(ElegirDeLista(kCubiertasExpres, o.tipoCubierta, "La cubierta"));
  s.conTipoSuelo = !o.tipoSuelo.empty();
  if (s.conTipoSuelo)
    e.tipoSuelo = static_cast<SueloExpres>(ElegirDeLista(kSuelosExpres, o.tipoSuelo, "El suelo"));
  if (!o.calidadAire.empty())
    e.calidadAire = kCalidadesAire[ElegirDeLista(kCalidadesAire, o.calidadAire, "La calidad")];
  s.conInstalacion = !o.instalacion.empty();
  if (s.conInstalacion) {
    const auto lista = InstalacionesExpres(perfil, e.colectiva);
    e.instalacion = lista[ElegirDeLista(lista, o.instalacion, "La instalación")];
  }
  return s;
}

// Lo que sigue de la época y no se pide: el tipo de certificado y las normas.
void PonerEpoca(Edificio& edificio, const OpcionesExpres& o, const std::string& periodo,
                std::vector<std::string>& supuestos) {
  struct Epoca {
    std::string_view ano, edificacion, instalaciones;
  };
  constexpr std::array<Epoca, 4> kEpocas = {{{"1960-1978", "ANTE_NBE_CT_79", "ANTE_RD_1490_1975"},
                                             {"1979-2005", "NBE_CT_79", "RICCACS_RD_1618_1980"},
                                             {"2013-2018", "CTE_DB_HE_2013", "RITE_2013"},
                                             {"POST-2018", "CTE_DB_HE_2019", "RITE_2021"}}};
  const auto i = static_cast<std::size_t>(
      std::find(kPeriodosConstruccion.begin(), kPeriodosConstruccion.end(), periodo) -
      kPeriodosConstruccion.begin());
  const bool nuevo = i + 1 == kPeriodosConstruccion.size();
  std::string tipo = o.certificado;
  if (tipo.empty()) {
    tipo = nuevo ? "ProyectoNuevaConstruccion" : "Existente";
    supuestos.push_back("Tipo de certificado: " + tipo + " (por la época)");
  }
  CambiarTipoCertificado(edificio, tipo);
  DatosGenerales d = edificio.GetDatosGenerales();
  d.AnoConstruccion = kEpocas.at(i).ano;
  d.NormativaEdificacion = kEpocas.at(i).edificacion;
  d.NormativaInstalaciones = kEpocas.at(i).instalaciones;
  edificio.SetDatosGenerales(std::move(d));
}

void PonerPersonas(Edificio& edificio, const OpcionesExpres& o,
                   std::vector<std::string>& supuestos) {
  DatosGenerales d = edificio.GetDatosGenerales();
  if (d.EsResidencial()) return;
  constexpr float kSuperficiePersona = 10;
  double valor = 0;
  if (!o.superficiePersona.empty() && (!LeerReal(o.superficiePersona, valor) || valor <= 0))
    throw ErrorUso("La superficie por persona ha de ser mayor que cero");
  d.Nm2_p = o.superficiePersona.empty() ? kSuperficiePersona : static_cast<float>(valor);
  if (o.superficiePersona.empty())
    supuestos.push_back("Superficie por persona, m2: " + General(d.Nm2_p) + " (oficinas)");
  edificio.SetDatosGenerales(std::move(d));
}

Tabla TablaSupuestos(const std::vector<std::string>& lineas) {
  Tabla tabla;
  tabla.titulo = "Lo que no se ha dado y se ha supuesto";
  for (const std::string& linea : lineas) tabla.filas.push_back({linea});
  for (const std::string_view aviso : kAvisosExpres) tabla.notas.emplace_back(aviso);
  return tabla;
}

// Calcula lo construido y enseña su calificación.
int Calificar(GestorEdifActivo& gestor, const OpcionesExpres& o, FicherosPrograma& ficheros,
              MensajesConsola& mensajes, const std::string& nombre) {
  const std::vector<std::string> casos = CasosDe(gestor);
  if (!SePuedenCalcular(gestor, casos, mensajes)) return kNoCumple;
  const auto calculados = CalcularCasos(gestor, casos, ficheros, mensajes);
  if (calculados.empty()) return kSinHacer;
  if (o.json == kSalidaEstandar) {
    EscribirSalida(JsonResultados(nombre, calculados));
    return kHecho;
  }
  if (!o.json.empty()) EscribirFichero(o.json, JsonResultados(nombre, calculados));
  EscribirSalida("\n");
  std::vector<Tabla> tablas = TablasCaso(calculados.front());
  tablas.erase(tablas.begin());  // qué edificio es ya se ha enseñado
  EscribirTablas(tablas);
  return kHecho;
}

int Construir(const OpcionesExpres& o) {
  MensajesConsola mensajes;
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  const XMLNode& perfiles = ficheros.Xml("PerfilesUso.xml", "PERFILES_USO");
  const int perfil = PerfilUsoPedido(o.uso);
  SupuestosExpres peticion = LeerPeticion(o, perfil);

  GestorEdifActivo gestor;
  EmpezarProyecto(gestor, perfiles, mensajes);
  Edificio& edificio = gestor.Activo();
  PonerSitio(edificio, o.sitio, ficheros, mensajes);
  CambiarPerfilUso(edificio, perfil, perfiles, mensajes);
  DatosGenerales d = edificio.GetDatosGenerales();
  LeerCertificador(FicheroCertificador(ficheros.Espacio()), d, mensajes);
  edificio.SetDatosGenerales(std::move(d));

  std::vector<std::string> supuestos = CompletarExpres(peticion, perfil);
  PonerEpoca(edificio, o, peticion.entrada.periodo, supuestos);
  PonerPersonas(edificio, o, supuestos);
  Construccion construccion = edificio.GetConstruccion();
  construccion.NPlantasSobreRasante = peticion.plantas;
  edificio.SetConstruccion(std::move(construccion));
  const CatalogoEquipos catalogo(ficheros.Xml("Equipos.xml", "EquiposNovex"), mensajes);
  DefinirExpres(edificio, peticion.entrada, ficheros.Xml("ValoresDefectoU.xml", "ValoresDefectoU"),
                &catalogo, mensajes);

  std::string nombre = kNombreProyectoNuevo;
  if (!o.guardar.empty()) nombre = GuardarProyecto(gestor, o.guardar).string();
  if (o.json != kSalidaEstandar) {
    EscribirTablas({TablaSupuestos(supuestos)});
    EscribirSalida("\n");
    EscribirTablas(TablasProyecto(std::string(caso::kViejo), edificio));
    if (!o.guardar.empty()) EscribirSalida("\nGuardado en " + nombre + "\n");
  }
  return Calificar(gestor, o, ficheros, mensajes,
                   std::filesystem::path(nombre).filename().string());
}

void AnadirCifras(CLI::App& app, OpcionesExpres& o) {
  EntradaExpres& e = o.entrada;
  const auto cifra = [&](const char* opcion, std::string& destino, const char* que,
                         const char* unidad) {
    destino.clear();
    return app.add_option(opcion, destino, que)->type_name(unidad);
  };
  cifra("--superficie", e.superficie, "Suelo habitable", "M2")->required();
  cifra("--volumen", e.volumen, "Volumen total", "M3");
  app.add_option("--plantas", o.plantas, "Plantas sobre rasante, que dan la forma")
      ->check(CLI::Range(1, 200))
      ->type_name("N");
  cifra("--viviendas", e.viviendas, "Viviendas del bloque", "N");
  cifra("--dormitorios", e.dormitorios, "Dormitorios por vivienda", "N");
  cifra("--banos", e.banos, "Cuartos de baño por vivienda", "N");
  cifra("--ventilacion", e.ventilacion, "Renovaciones por hora", "R");
  cifra("--medianeras", e.medianeras, "Medianeras", "M2");
  cifra("--local-no-acondicionado", e.aLocalNoAcondicionado, "Muros a un local no acondicionado",
        "M2");
  cifra("--cubierta", e.cubierta, "Cubierta", "M2");
  cifra("--suelo", e.suelo, "Suelo", "M2");
  cifra("--fotovoltaica", e.fotovoltaica, "Potencia de pico fotovoltaica", "KW");
}

}  // namespace

void AnadirExpres(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesExpres>();
  CLI::App* app = NuevaOrden(programa, "expres",
                             "Construye y califica un edificio a partir de unas pocas cifras");
  AnadirSitio(*app, o->sitio);
  app->get_option("--municipio")->required();
  app->add_option("--uso", o->uso, "Uso del edificio, por su número o su nombre")
      ->required()
      ->type_name("USO");
  app->add_option("--periodo", o->periodo, "Época: Antes_1979, 1979-2013, 2013-2019 o Despues_2019")
      ->required()
      ->type_name("EPOCA");
  AnadirCifras(*app, *o);
  app->add_option("--fachada", o->fachadas,
                  "Fachada con sus huecos, m2 por orientación: N=30 (se repite)")
      ->type_name("O=M2");
  app->add_option("--ventanas", o->ventanas,
                  "Ventanas: 1.2x1.1:N=2,S=3[:Doble[:Persina]] (hasta cuatro veces)")
      ->type_name("GRUPO");
  app->add_option("--puerta", o->puerta, "Puerta: 0.9x2.1:S=1[:Madera]")
      ->expected(1)
      ->type_name("GRUPO");
  app->add_option("--tipo-cubierta", o->tipoCubierta,
                  "Al exterior, A buhardilla o A local acondicionado")
      ->type_name("TIPO");
  app->add_option("--tipo-suelo", o->tipoSuelo,
                  "Al terreno, Vacio sanitario, A local no acond. o A local acondicionado")
      ->type_name("TIPO");
  app->add_option("--calidad-aire", o->calidadAire, "IDA1, IDA2 o IDA3, en uso terciario")
      ->type_name("IDA");
  app->add_option("--m2-persona", o->superficiePersona, "Superficie por persona, en uso terciario")
      ->type_name("M2");
  app->add_option("--instalacion", o->instalacion, "Instalación de agua caliente")
      ->type_name("CLASE");
  app->add_flag("--colectiva", o->entrada.colectiva, "Agua caliente colectiva");
  app->add_option("--certificado", o->certificado, "Tipo de certificado")
      ->check(CLI::IsMember({"Existente", "ProyectoNuevaConstruccion", "ProyectoAmpliacion",
                             "ProyectoReforma", "ObraNuevaConstruccion", "ObraAmpliacion",
                             "ObraReforma"}))
      ->type_name("TIPO");
  app->add_option("--guardar", o->guardar, "Guarda el proyecto")->type_name("FICHERO.xml");
  app->add_option("--json", o->json, "Escribe los resultados en JSON; con - van a la salida")
      ->type_name("FICHERO|-");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o] { orden = [o] { return Construir(*o); }; });
}

}  // namespace novex::cli
