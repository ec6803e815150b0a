#include <algorithm>
#include <functional>
#include <iostream>
#include <memory>

#include "entry/CambioUso.h"
#include "entry/CatalogoMunicipios.h"
#include "entry/CosteMejora.h"
#include "entry/CreacionSistema.h"
#include "entry/GruposHuecos.h"
#include "entry/ListasSistemas.h"
#include "entry/ReglasVentilacion.h"
#include "entry/Sitio.h"
#include "entry/TextosLibres.h"
#include "files/ProyectoFichero.h"
#include "improvements/EstudioMejoras.h"
#include "outputs/JsonTabla.h"
#include "reference/CatalogoComposiciones.h"
#include "reference/LongitudesPuentes.h"
#include "reference/ValoresPuentes.h"
#include "shell/CambioCampos.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/CalculoConsola.h"
#include "shell/cli/Ordenes.h"
#include "shell/cli/SitioConsola.h"

namespace novex::cli {
namespace {

// Una regla no deja hacer lo pedido, y ya lo ha dicho.
class Rechazado : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

constexpr const char* kNadaGuardado = "\nNo se ha guardado nada";

struct OpcionesCambiar {
  std::string proyecto, caso, guardar, programa;
  std::vector<std::string> cambios;
  bool json = false;
};

// Un proyecto abierto mientras se le hacen cambios, y la tabla de lo hecho.
struct Taller {
  GestorEdifActivo& gestor;
  Edificio& edificio;
  FicherosPrograma& ficheros;
  Mensajes& mensajes;
  Tabla& hecho;

  void Apuntar(std::string campo, std::string antes, std::string ahora) {
    hecho.filas.push_back({std::move(campo), std::move(antes), std::move(ahora)});
  }
  const XMLNode& Perfiles() { return ficheros.Xml("PerfilesUso.xml", "PERFILES_USO"); }
  const XMLNode& Capitales() { return ficheros.Xml("Capitales.xml", "CAPITALES"); }
};

std::string Lugar(const Localizacion& l) {
  return l.Municipio + " (" + l.Provincia + "), " + std::to_string(l.asnm) + " m, " +
         l.ZonaClimatica;
}

// Los cambios que en las pantallas arrastran otros van por sus reglas y no por su campo.

void CambiarMunicipio(Taller& t, const std::string& valor) {
  const std::string antes = Lugar(t.edificio.GetLocalizacion());
  const std::size_t barra = valor.rfind(',');
  SitioPedido sitio;
  sitio.municipio = valor.substr(0, barra);
  if (barra != std::string::npos) sitio.provincia = valor.substr(barra + 1);
  PonerSitio(t.edificio, sitio, t.ficheros, t.mensajes);
  t.Apuntar("Municipio", antes, Lugar(t.edificio.GetLocalizacion()));
}

void CambiarAltitud(Taller& t, const std::string& valor) {
  const std::string antes = Lugar(t.edificio.GetLocalizacion());
  PonerAltitud(t.edificio, t.Capitales(), valor, t.mensajes);
  t.Apuntar("asnm", antes, Lugar(t.edificio.GetLocalizacion()));
}

void CambiarZona(Taller& t, const std::string& valor) {
  const std::string antes = t.edificio.GetLocalizacion().ZonaClimatica;
  if (!FijarZona(t.edificio, valor))
    throw ErrorCampo("\"" + valor + "\" no es una zona climática de la lista");
  t.Apuntar("ZonaClimatica", antes, valor);
}

void CambiarUso(Taller& t, const std::string& valor) {
  const int antes = t.edificio.GetDatosGenerales().PerfilUso;
  CambiarPerfilUso(t.edificio, PerfilUsoPedido(valor), t.Perfiles(), t.mensajes);
  t.Apuntar("PerfilUso", std::to_string(antes),
            std::to_string(t.edificio.GetDatosGenerales().PerfilUso));
}

void CambiarObjetivoDelProyecto(Taller& t, const std::string& valor) {
  const std::string antes = t.edificio.GetDatosGenerales().Tiposimulacion;
  if (!CambiarObjetivo(t.gestor, valor, t.Perfiles(), t.mensajes))
    throw ErrorCampo("Tiposimulacion no admite \"" + valor +
                     "\"; puede ser \"CertificacionSolo\", \"Certificacion\" o \"Simulacion\"");
  t.Apuntar("Tiposimulacion (todos los casos)", antes, valor);
}

// Un texto por sus barras.
std::vector<std::string> Partes(const std::string& valor) {
  std::vector<std::string> partes;
  for (std::size_t desde = 0; desde <= valor.size();) {
    const std::size_t hasta = std::min(valor.find('/', desde), valor.size());
    partes.push_back(valor.substr(desde, hasta - desde));
    desde = hasta + 1;
  }
  return partes;
}

void CrearSistemaPedido(Taller& t, const std::string& valor) {
  std::vector<std::string> partes = Partes(valor);
  if (partes.size() < 3)
    throw ErrorCampo("\"" + valor + "\" ha de ser SERVICIO/CLASE/TIPOLOGIA[/EMISOR]");
  // La tipología se puede escribir entera: "Individual/Vivienda".
  if (partes.size() > 3 && kTipologiasInstalacion[0].texto.ends_with("/" + partes[3]))
    partes.erase(partes.begin() + 3);
  else if (partes.size() > 3 && (partes[3] == "Vivienda" || partes[3] == "Edificio"))
    partes.erase(partes.begin() + 3);
  std::vector<std::string> servicios;
  for (const ServicioSistema& s : kServiciosSistema) servicios.emplace_back(s.tipoSistema);
  std::vector<std::string> tipologias;
  for (const TipologiaInstalacion& p : kTipologiasInstalacion) tipologias.emplace_back(p.texto);
  PeticionSistema peticion;
  peticion.tipoSistema = servicios[ElegirDeLista(servicios, partes[0], "El servicio")];
  peticion.tipologia = tipologias[ElegirDeLista(tipologias, partes[2], "La tipología")];
  const auto clases = ClasesOfrecidas(peticion.tipoSistema, peticion.tipologia);
  peticion.seleccion = clases[ElegirDeLista(clases, partes[1], "La clase")];
  if (partes.size() > 3) {
    const auto emisores = EmisoresOfrecidos(peticion.tipoSistema, peticion.seleccion);
    peticion.emisor = emisores[ElegirDeLista(emisores, partes[3], "El emisor")];
  }
  const CatalogoEquipos catalogo(t.ficheros.Xml("Equipos.xml", "EquiposNovex"), t.mensajes);
  if (!CrearSistema(t.edificio, peticion, &catalogo, t.mensajes))
    throw Rechazado("No se ha creado el sistema \"" + valor + "\"");
  const std::size_t n = t.edificio.NumeroSistemas();
  t.Apuntar("Tipo_sistema[" + std::to_string(n) + "]", "",
            t.edificio.GetSistema(n - 1).Nombre_sistema + ": " + peticion.tipoSistema + ", " +
                peticion.seleccion + ", " + peticion.tipologia);
}

// La posición, desde 0, del elemento que dice un número desde 1 o un nombre.
std::size_t Elegir(const std::string& valor, std::size_t cuantos, const std::string& que,
                   const std::function<std::string(std::size_t)>& nombre) {
  for (std::size_t i = 0; i < cuantos; ++i)
    if (valor == std::to_string(i + 1) || valor == nombre(i)) return i;
  throw ErrorCampo("No hay " + que + " \"" + valor + "\"");
}

void BorrarSistemaPedido(Taller& t, const std::string& valor) {
  const std::size_t i =
      Elegir(valor, t.edificio.NumeroSistemas(), "ningún sistema",
             [&](std::size_t k) { return t.edificio.GetSistema(k).Nombre_sistema; });
  t.Apuntar("Tipo_sistema[" + std::to_string(i + 1) + "]", t.edificio.GetSistema(i).Nombre_sistema,
            "borrado");
  t.edificio.BorrarSistema(i);
}

void PonerComposicion(Taller& t, const std::string& valor) {
  const std::size_t barra = valor.find('/');
  const auto ranura = TablaEnvolvente::Indice(valor.substr(0, barra));
  if (barra == std::string::npos || !ranura)
    throw ErrorCampo("\"" + valor + "\" ha de ser POSICIÓN/COMPOSICIÓN, como MuroExt1/...");
  const CatalogoComposiciones catalogo(t.ficheros.Espacio().Datos() / "Composiciones.xml");
  const FamiliaCerramiento familia = FamiliaDeRanura(*ranura);
  const auto elegida = catalogo.PorNombre(familia, valor.substr(barra + 1));
  if (!elegida)
    throw ErrorCampo("El catálogo no tiene en " + std::string(NombreFamilia(familia)) +
                     " la composición \"" + valor.substr(barra + 1) + "\"");
  const auto texto = [&] {
    const composicion& c = t.edificio.GetComposicion(*ranura);
    return c.nombre + ", U " + Fijo(static_cast<double>(c.U), 2);
  };
  const std::string antes = texto();
  ElegirComposicion(t.edificio, *ranura, elegida->nombre, elegida->capas);
  t.Apuntar(valor.substr(0, barra), antes, texto());
}

void AnadirGrupo(Taller& t, const std::string& valor) {
  const std::size_t i = AnadirGrupoHuecos(t.edificio);
  RenombrarGrupoHuecos(t.edificio, i, valor);
  t.Apuntar("Hueco[" + std::to_string(i + 1) + "]", "", t.edificio.GetHuecos(i).Nombre_hueco);
}

void BorrarGrupo(Taller& t, const std::string& valor) {
  const std::size_t i = Elegir(valor, t.edificio.NumeroHuecos(), "ningún grupo de huecos",
                               [&](std::size_t k) { return t.edificio.GetHuecos(k).Nombre_hueco; });
  const std::string nombre = t.edificio.GetHuecos(i).Nombre_hueco;
  if (!QuitarGrupoHuecos(t.edificio, i)) throw ErrorCampo("El último grupo de huecos no se borra");
  t.Apuntar("Hueco[" + std::to_string(i + 1) + "]", nombre, "borrado");
}

int CodigoMedida(const std::string& texto) {
  for (const MedidaPredefinida& m : MedidasPredefinidas())
    if (texto == std::to_string(m.codigo)) return m.codigo;
  throw ErrorCampo("No hay ninguna medida predefinida \"" + texto + "\"");
}

// Marca una medida del estudio con su coste y su plazo.
void MarcarMedida(Taller& t, const std::string& valor) {
  const std::vector<std::string> partes = Partes(valor);
  if (partes.size() > 3) throw ErrorCampo("\"" + valor + "\" ha de ser CODIGO[/EUROS[/AÑOS]]");
  const int codigo = CodigoMedida(partes.front());
  EstudioModificaciones estudio = t.edificio.GetEstudioModificaciones();
  // Lo que no se da sigue como estaba.
  const CifrasMedida antes = CifrasDeMedida(estudio, codigo);
  const std::string precio = partes.size() > 1 ? partes[1] : General(antes.PrecioMejora);
  const std::string plazo = partes.size() > 2 ? partes[2] : General(antes.AmortMejora);
  GuardarCifrasEstudio(estudio, std::array{CifrasTecleadas{codigo, true, precio, plazo}},
                       t.mensajes);
  if (const auto aviso = AvisoMarcas(estudio)) t.mensajes.Avisar(aviso->titulo, aviso->texto);
  t.edificio.SetEstudioModificaciones(estudio);
  t.Apuntar("Medida " + partes.front(), "", "marcada: " + MedidaDeCodigo(codigo)->texto);
}

void DesmarcarMedida(Taller& t, const std::string& valor) {
  const int codigo = CodigoMedida(valor);
  EstudioModificaciones estudio = t.edificio.GetEstudioModificaciones();
  GuardarCifrasEstudio(estudio, std::array{CifrasTecleadas{codigo, false, "", ""}}, t.mensajes);
  t.edificio.SetEstudioModificaciones(estudio);
  t.Apuntar("Medida " + valor, "", "sin marcar");
}

void AnotarMedida(Taller& t, const std::string& valor) {
  const std::size_t barra = std::min(valor.find('/'), valor.size());
  const int codigo = CodigoMedida(valor.substr(0, barra));
  const std::string nota = barra < valor.size() ? valor.substr(barra + 1) : std::string();
  EstudioModificaciones estudio = t.edificio.GetEstudioModificaciones();
  if (!GuardarNotaMedida(estudio, codigo, nota, t.mensajes))
    throw ErrorCampo("La medida " + valor.substr(0, barra) + " no está marcada");
  t.edificio.SetEstudioModificaciones(estudio);
  std::string guardada;
  for (const MedidaEstudio& m : estudio.medidas)
    if (m.codigo == codigo)
      for (const std::string& linea : m.notas) guardada += (guardada.empty() ? "" : " / ") + linea;
  t.Apuntar("Nota de la medida " + valor.substr(0, barra), "", guardada);
}

using Regla = void (*)(Taller&, const std::string&);
constexpr std::pair<std::string_view, Regla> kReglas[] = {
    {"municipio", CambiarMunicipio},
    {"asnm", CambiarAltitud},
    {"zonaclimatica", CambiarZona},
    {"perfiluso", CambiarUso},
    {"tiposimulacion", CambiarObjetivoDelProyecto},
    {"sistema", CrearSistemaPedido},
    {"borrar_sistema", BorrarSistemaPedido},
    {"composicion", PonerComposicion},
    {"grupo_huecos", AnadirGrupo},
    {"borrar_grupo", BorrarGrupo},
    {"medida", MarcarMedida},
    {"borrar_medida", DesmarcarMedida},
    {"nota_medida", AnotarMedida},
};

// Lo que sigue de un campo cambiado: los puentes de su tabla y el caudal de las viviendas.
void Seguir(Taller& t, const std::string& etiqueta) {
  if (etiqueta.starts_with("Def_Puentes"))
    t.edificio.SetConstruccion(
        PuentesPorTabla(t.edificio.GetConstruccion(), t.edificio.GetLocalizacion().ZonaClimatica));
  const bool caudal = etiqueta.starts_with("N_") || etiqueta == "Volumen_total_m3" ||
                      etiqueta == "Calcular_Renov_h_segun_HS3";
  if (caudal) ActualizarRenovacionesHS3(t.edificio, t.mensajes);
  if (etiqueta == "TipoCertificado")
    CambiarTipoCertificado(t.edificio, t.edificio.GetDatosGenerales().TipoCertificado);
}

void HacerCambio(Taller& t, const std::string& cambio) {
  const std::size_t igual = cambio.find('=');
  if (igual == std::string::npos || igual == 0)
    throw ErrorUso("\"" + cambio + "\" ha de ser CAMPO=VALOR");
  const std::string campo = cambio.substr(0, igual);
  const std::string valor = cambio.substr(igual + 1);
  const std::string clave = ClaveBusqueda(campo);
  for (const auto& [nombre, regla] : kReglas)
    if (nombre == clave) return regla(t, valor);
  const CampoCambiado c = CambiarCampo(t.edificio, campo, valor, t.mensajes);
  Seguir(t, c.campo.substr(c.campo.rfind('/') + 1));
  t.Apuntar(c.campo, c.antes, c.ahora);
}

int Cambiar(const OpcionesCambiar& o) {
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  const std::vector<std::string> casos = CasosDe(gestor);
  if (std::find(casos.begin(), casos.end(), o.caso) == casos.end())
    throw ErrorUso("El proyecto no tiene el caso \"" + o.caso + "\"");
  FicherosPrograma ficheros(AbrirEspacio(o.programa));
  Tabla hecho;
  hecho.cabeceras = {"Campo", "Antes", "Ahora"};
  Taller taller{gestor, *gestor.Caso(o.caso), ficheros, mensajes, hecho};
  try {
    for (const std::string& cambio : o.cambios) HacerCambio(taller, cambio);
  } catch (const ErrorCampo& error) {
    throw ErrorUso(std::string(error.what()) + kNadaGuardado);
  } catch (const Rechazado& rechazo) {
    std::cerr << rechazo.what() << kNadaGuardado << '\n';
    return kNoCumple;
  }
  Edificio& edificio = taller.edificio;
  edificio.SetConstruccion(LongitudesEstimadas(edificio));
  const auto escrito = GuardarProyecto(gestor, o.guardar);
  if (o.json) {
    EscribirSalida(JsonTabla(hecho));
  } else {
    EscribirTablas({hecho});
    EscribirSalida("Guardado en " + escrito.string() + "\n");
  }
  return kHecho;
}

}  // namespace

void AnadirCambiar(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesCambiar>();
  o->caso = caso::kViejo;
  CLI::App* app = NuevaOrden(programa, "cambiar", "Cambia campos de un proyecto");
  app->footer(
      "Un campo se nombra por su etiqueta en el fichero, con lo que lo contiene delante si hace "
      "falta:\n  Suelo_habitable_m2=120  MuroExt[2]/Muro_ext_sur_m2=30  "
      "Hueco[Grupo_1]/Ancho_m=1.5\nAdemás:\n"
      "  Municipio=NOMBRE[,PROVINCIA]            asnm=M   ZonaClimatica=D3   PerfilUso=USO\n"
      "  sistema=SERVICIO/CLASE/TIPOLOGIA[/EMISOR]   borrar_sistema=N\n"
      "  composicion=POSICION/NOMBRE             grupo_huecos=NOMBRE   borrar_grupo=N\n"
      "  medida=CODIGO[/EUROS/AÑOS]   borrar_medida=CODIGO   nota_medida=CODIGO/TEXTO");
  app->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml)")
      ->required()
      ->type_name("FICHERO");
  app->add_option("CAMBIOS", o->cambios, "Cambios, en el orden en que se hacen")
      ->required()
      ->type_name("CAMPO=VALOR");
  app->add_option("--caso", o->caso, "Caso que se cambia: Viejo, Mejora_1 .. Mejora_5")
      ->type_name("CASO");
  app->add_option("--guardar", o->guardar, "Fichero en que se guarda; puede ser el mismo")
      ->required()
      ->type_name("FICHERO.xml");
  app->add_flag("--json", o->json, "Lo hecho, en JSON en lugar de en tabla");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o] { orden = [o] { return Cambiar(*o); }; });
}

}  // namespace novex::cli
