#include "calculation/PrepararCaso.h"

#include "base/NumeroTexto.h"
#include "compliance/LimitesHE0.h"
#include "demand/CargaInternaMedia.h"
#include "demand/Cargas.h"
#include "demand/Clima.h"
#include "model/CatalogoCampos.h"
#include "rating/EquipoDefecto.h"
#include "rating/Escala.h"
#include "rating/FactoresConversion.h"
#include "systems/CatalogoEquipos.h"

namespace novex {
namespace {

// Fichero de clima de la zona; su latitud pasa a ser la del caso.
bool EtapaClima(Edificio& edificio, Entorno& entorno, calculo& caso) {
  Localizacion lugar = edificio.GetLocalizacion();
  const auto ruta = entorno.ficheros.Espacio().Clima(lugar.ZonaClimatica,
                                                     edificio.GetDatosGenerales().CodigoPostal);
  const auto met = entorno.ficheros.Met(ruta);
  if (!met) {
    entorno.mensajes.Avisar("fichero entrada datos ambientales",
                            "No se pudo abrir el fichero .met");
    return false;
  }
  if (met->hayCabecera) {
    lugar.latitud = ComprobarValor(General(met->latitud), "Latitud", entorno.mensajes);
    edificio.SetLocalizacion(lugar);
  }
  const Construccion& c = edificio.GetConstruccion();
  caso.clima =
      entorno.ficheros.Clima(ruta, *met, c.NColorMurosExt, c.NColorCubiertasExt, entorno.mensajes);
  return true;
}

void EtapaCargas(const Edificio& edificio, const AjustesUso& ajustes, Entorno& entorno,
                 calculo& caso) {
  caso.carga = SeriesCarga{};
  const DatosGenerales& generales = edificio.GetDatosGenerales();
  // Los valores de partida solo cuentan en los días que el calendario no define.
  if (NecesitaUsoBase(generales))
    LeerUsoBase(entorno.ficheros.Xml("NuevoUsoControl.xml", "CargaInternaNOVEX4.0"), caso.carga,
                entorno.mensajes);
  GenerarCargas(generales, ajustes, caso.carga);
  AplicarRetardoRadiante(caso.carga, caso.clima);
}

void EtapaSitio(Edificio& edificio, Entorno& entorno, calculo& caso) {
  caso.TmediaMes = MediasMensuales(caso.clima.TSE);
  DatosClimaticosSitio sitio = edificio.GetDatosClimaticosSitio();
  AnotarMediaAnual(caso.TmediaMes, sitio);
  AnotarDatosCapital(entorno.ficheros.Xml("Capitales.xml", "CAPITALES"), edificio.GetLocalizacion(),
                     sitio, entorno.mensajes);
  edificio.SetDatosClimaticosSitio(sitio);
}

void EtapaCalificacion(const Edificio& edificio, const AjustesUso& ajustes, Entorno& entorno,
                       calculo& caso) {
  FicherosPrograma& ficheros = entorno.ficheros;
  caso.resultados.factores =
      LeerFactores(ficheros.Xml("FactoresConversion.xml", "FACTORES_CONVERSION"), entorno.mensajes);
  const auto rutaDefecto = ficheros.Espacio().Datos() / "Defecto.xml";
  caso.resultados.defecto =
      LeerDefecto(ficheros.Xml("Defecto.xml", "DEFECTO"), rutaDefecto.string(), ajustes.residencial,
                  entorno.mensajes);
  caso.resultados.limites = LimitesHE0(edificio, CargaInternaMedia(edificio));
  if (ajustes.residencial)
    CargarEscala(ficheros.Xml("Localidades.xml", "Base_Datos"), edificio, caso.resultados.escala,
                 entorno.mensajes);
}

// Los equipos genéricos toman siempre sus curvas del catálogo.
void EtapaSistemas(Edificio& edificio, Entorno& entorno) {
  bool hayGenericos = false;
  for (std::size_t s = 0; s < edificio.NumeroSistemas(); ++s)
    for (const Instalaciones& i : edificio.GetSistema(s).instalaciones)
      hayGenericos = hayGenericos || i.Fabricante == kFabricanteDefecto;
  if (!hayGenericos) return;
  CatalogoEquipos(entorno.ficheros.Xml("Equipos.xml", "EquiposNovex"), entorno.mensajes)
      .PonerCurvasGenericas(edificio);
}

}  // namespace

bool PrepararCaso(Edificio& edificio, const AjustesUso& ajustes, Entorno& entorno, calculo& caso) {
  if (!EtapaClima(edificio, entorno, caso)) return false;
  EtapaCargas(edificio, ajustes, entorno, caso);
  EtapaSitio(edificio, entorno, caso);
  EtapaCalificacion(edificio, ajustes, entorno, caso);
  EtapaSistemas(edificio, entorno);
  return true;
}

}  // namespace novex
