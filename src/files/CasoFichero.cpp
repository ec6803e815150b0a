#include <string>

#include "files/NodoConservadoXml.h"
#include "files/ProyectoFichero.h"
#include "files/SeccionesProyecto.h"
#include "files/VersionProyecto.h"

namespace novex {
namespace {

constexpr std::string_view kCaso = "Novex";
constexpr std::string_view kUsoPorDefecto = "Residencial";
constexpr const char* kLongitudesEstimadas = "Estimados";

void AnotarLeido(const Edificio& edificio, InformeLectura& informe) {
  const auto cuantos = [](std::size_t n, const char* que) { return std::to_string(n) + " " + que; };
  std::size_t composiciones = 0;
  for (std::size_t i = 0; i < kRanuras; ++i)
    composiciones += edificio.GetComposicion(i).capas.empty() ? 0U : 1U;
  informe.Anotar(informe.leidos, "Versión \"" + edificio.GetDatosGenerales().Version + "\": " +
                                     cuantos(edificio.NumeroHuecos(), "grupos de huecos, ") +
                                     cuantos(edificio.NumeroMateriales(), "materiales, ") +
                                     cuantos(composiciones, "composiciones con capas, ") +
                                     cuantos(edificio.NumeroSistemas(), "sistemas"));
}

}  // namespace

RegistrosCaso SacarRegistros(const Edificio& edificio) {
  RegistrosCaso r;
  r.generales = edificio.GetDatosGenerales();
  r.localizacion = edificio.GetLocalizacion();
  r.obstaculos = edificio.GetObstaculosRemotos();
  r.ventilacion = edificio.GetVentilacion();
  r.construccion = edificio.GetConstruccion();
  r.pantalla = edificio.GetDatosPantalla();
  r.estudio = edificio.GetEstudioModificaciones();
  r.recinto = edificio.GetRecinto(0);
  for (std::size_t i = 0; i < kRanuras; ++i) r.U[i] = edificio.GetComposicion(i).U;
  return r;
}

void GuardarRegistros(RegistrosCaso r, Edificio& edificio) {
  edificio.SetEstudioModificaciones(std::move(r.estudio));
  edificio.SetDatosGenerales(std::move(r.generales));
  edificio.SetLocalizacion(std::move(r.localizacion));
  edificio.SetObstaculosRemotos(r.obstaculos);
  edificio.SetVentilacion(std::move(r.ventilacion));
  edificio.SetConstruccion(std::move(r.construccion));
  edificio.SetDatosPantalla(std::move(r.pantalla));
  edificio.GetRecinto(0) = std::move(r.recinto);
  for (std::size_t i = 0; i < kRanuras; ++i) edificio.GetComposicion(i).U = r.U[i];
}

bool LeerCaso(const XMLNode& novex, Edificio& edificio, Mensajes& mensajes,
              InformeLectura* informe) {
  RegistrosCaso r = SacarRegistros(edificio);
  r.generales.Version = TextoDeHijo(novex, kEtiquetaVersion);
  const ReglasVersion& reglas = ReglasDe(r.generales.Version);
  const bool antiguo = reglas.disposicion == DisposicionProyecto::SitioAparte;
  if (antiguo) {
    r.siFalta = SiFalta::Conservar;
    r.construccion.Longitud_puentes_termicos_modo = kLongitudesEstimadas;
    LeerGeneralesAntiguos(novex, reglas, r, mensajes);
  } else {
    LeerGenerales(novex, r, mensajes);
  }
  LeerDefinicion(novex, r, mensajes);
  LeerUso(novex, r, mensajes);
  LeerGlobales(novex, reglas, r, mensajes);
  LeerPuentes(novex, r, mensajes);
  LeerCubiertas(novex, r, mensajes);
  LeerMuros(novex, r, mensajes);
  LeerSuelos(novex, r, mensajes);
  LeerHuecos(novex, edificio, mensajes);
  LeerMateriales(novex, edificio, mensajes);
  LeerInstalaciones(novex, reglas, r, edificio, mensajes);
  LeerEstudio(novex, r, mensajes);
  const bool diceUso = !r.generales.Tipo.empty();
  if (!diceUso) r.generales.Tipo = kUsoPorDefecto;
  InformeLectura propio = std::move(r.informe);
  GuardarRegistros(std::move(r), edificio);
  if (antiguo) {
    AnotarLeido(edificio, propio);
    if (!diceUso)
      propio.Anotar(propio.porDefecto,
                    "El uso y sus horarios: \"" + std::string(kUsoPorDefecto) + "\"");
  }
  if (informe != nullptr) informe->Juntar(propio);
  return diceUso;
}

void EscribirCaso(XMLNode& casos, const Edificio& edificio, bool primero,
                  const DatosDerivados::Caso& derivados) {
  RegistrosCaso r = SacarRegistros(edificio);
  r.derivados = derivados;
  XMLNode novex = casos.appendChild(kCaso);
  EscribirGenerales(novex, r, primero);
  EscribirCertificado(novex, r);
  EscribirDefinicion(novex, r);
  EscribirUso(novex, r);
  EscribirGlobales(novex, r, edificio);
  EscribirPuentes(novex, r);
  EscribirCubiertas(novex, r);
  EscribirMuros(novex, r);
  EscribirSuelos(novex, r);
  EscribirHuecos(novex, edificio);
  EscribirMateriales(novex, edificio);
  EscribirInstalaciones(novex, r, edificio);
  EscribirEstudio(novex, r);
  if (primero)
    for (const NodoConservado& bloque : r.derivados.bloques) Devolver(novex, bloque);
}

}  // namespace novex
