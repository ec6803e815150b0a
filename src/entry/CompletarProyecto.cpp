#include "entry/CompletarProyecto.h"

#include <algorithm>

#include "entry/CambiarGenerales.h"
#include "entry/Sitio.h"
#include "model/NombreMostrado.h"
#include "reference/LongitudesPuentes.h"
#include "reference/PerfilesUso.h"
#include "reference/ValoresPuentes.h"

namespace novex {
namespace {

constexpr std::string_view kUsoResidencial = "Residencial";
constexpr std::string_view kProvinciaProvisional = "Valencia/València";
constexpr std::string_view kMunicipioProvisional = "Valencia";
constexpr std::string_view kZonaProvisional = "B3";

const CasoDeTexto* BuscarDeTexto(const ProyectoAbierto& abierto, std::string_view nombre) {
  const auto it = std::find_if(abierto.casosDeTexto.begin(), abierto.casosDeTexto.end(),
                               [nombre](const CasoDeTexto& c) { return c.nombre == nombre; });
  return it == abierto.casosDeTexto.end() ? nullptr : &*it;
}

// Los horarios de un fichero de texto son los de su uso. Lo que uno terciario dice de su
// ventilación y su alumbrado vale más que lo del perfil.
void PonerUsoDeTexto(std::string_view nombre, Edificio& edificio, const XMLNode& perfiles,
                     InformeLectura& informe, Mensajes& mensajes) {
  const DatosGenerales antes = edificio.GetDatosGenerales();
  const std::string_view clave = ClaveUsoPorDefecto(antes.PerfilUso);
  if (!AplicarUsoPorDefecto(perfiles, clave, edificio, mensajes)) return;
  InformeLectura::Anotar(informe.porDefecto, NombreMostrado(nombre) +
                                                 ": horarios, consignas y cargas: los del uso \"" +
                                                 std::string(clave) + "\"");
  if (antes.EsResidencial()) return;
  CambiarGenerales(edificio, [&antes](DatosGenerales& d) {
    for (auto campo : {&DatosGenerales::Ventilacion, &DatosGenerales::Iluminacion,
                       &DatosGenerales::VEII, &DatosGenerales::VEIIMax})
      if (antes.*campo > 0) d.*campo = antes.*campo;
  });
}

// El sitio sale de la lista de municipios; uno que no está en ella queda en Valencia.
void PonerSitioDeTexto(const CasoDeTexto& dicho, Edificio& edificio, FicherosPrograma& ficheros,
                       const CatalogoMunicipios& municipios, InformeLectura& informe,
                       Mensajes& mensajes) {
  const XMLNode& capitales = ficheros.Xml("Capitales.xml", "CAPITALES");
  const Localizacion leido = edificio.GetLocalizacion();
  if (PonerMunicipio(edificio, municipios, capitales, leido.Provincia, leido.Municipio,
                     dicho.conAltitud, mensajes))
    return;
  mensajes.Avisar("AVISO",
                  "No se ha identificado la ciudad/provincia, por favor revise esos datos. Se pone "
                  "provisionalmente el edificio en Valencia");
  InformeLectura::Anotar(informe.cambiados, NombreMostrado(dicho.nombre) + ": provincia \"" +
                                                leido.Provincia + "\", municipio \"" +
                                                leido.Municipio + "\" -> Valencia");
  PonerMunicipio(edificio, municipios, capitales, kProvinciaProvisional, kMunicipioProvisional,
                 dicho.conAltitud, mensajes);
  Localizacion sitio = edificio.GetLocalizacion();
  sitio.Provincia = kProvinciaProvisional;
  sitio.Municipio = kMunicipioProvisional;
  sitio.ZonaClimatica = kZonaProvisional;
  edificio.SetLocalizacion(std::move(sitio));
}

// Los puentes que el fichero no dice salen de la tabla de la zona.
void PonerPuentesDeTexto(const CasoDeTexto& dicho, const Construccion& leida, Edificio& edificio) {
  Construccion c = PuentesPorTabla(leida, edificio.GetLocalizacion().ZonaClimatica);
  for (std::size_t p = 0; p < kPuentes; ++p) {
    if (dicho.conU[p]) c.U_L_Puentes[p] = leida.U_L_Puentes[p];
    if (dicho.conFi[p]) c.fi_Puentes[p] = leida.fi_Puentes[p];
  }
  edificio.SetConstruccion(std::move(c));
}

void CompletarDeTexto(GestorEdifActivo& gestor, ProyectoAbierto& abierto,
                      FicherosPrograma& ficheros, Mensajes& mensajes) {
  if (abierto.casosDeTexto.empty()) return;
  const CatalogoMunicipios municipios(
      ficheros.Xml("ZONACLIMATICATEMPYRAD.xml", "ZONACLIMATICATEMPYRAD"));
  for (const CasoDeTexto& dicho : abierto.casosDeTexto) {
    Edificio* edificio = gestor.Caso(dicho.nombre);
    if (edificio == nullptr) continue;
    const Construccion leida = edificio->GetConstruccion();
    PonerSitioDeTexto(dicho, *edificio, ficheros, municipios, abierto.informe, mensajes);
    PonerPuentesDeTexto(dicho, leida, *edificio);
  }
}

}  // namespace

void CompletarProyecto(GestorEdifActivo& gestor, ProyectoAbierto& abierto,
                       FicherosPrograma& ficheros, Mensajes& mensajes) {
  for (const std::string_view nombre : abierto.casosSinUso)
    if (Edificio* edificio = gestor.Caso(nombre)) {
      const XMLNode& perfiles = ficheros.Xml("PerfilesUso.xml", "PERFILES_USO");
      if (BuscarDeTexto(abierto, nombre) != nullptr)
        PonerUsoDeTexto(nombre, *edificio, perfiles, abierto.informe, mensajes);
      else
        AplicarUsoPorDefecto(perfiles, kUsoResidencial, *edificio, mensajes);
    }
  CompletarDeTexto(gestor, abierto, ficheros, mensajes);
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
    if (Edificio* edificio = gestor.Caso(GestorEdifActivo::NombreCasoUsuario(i)))
      edificio->SetConstruccion(LongitudesEstimadas(*edificio));
}

}  // namespace novex
