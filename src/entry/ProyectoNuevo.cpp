#include "entry/ProyectoNuevo.h"

#include <utility>

#include "reference/PerfilesUso.h"
#include "reference/ValoresPuentes.h"

namespace novex {
namespace {

void PonerObjetivo(DatosGenerales& d) {
  d.TipoCertificado = "ProyectoNuevaConstruccion";
  d.Modo_trabajo = ModoTrabajoDe(d.TipoCertificado);
  d.Modo_Vision = "Simplificado";
  d.Tiposimulacion = "CertificacionSolo";
  d.Equipos_Defecto = "SI";
  d.Reforma = "Reforma >25% envolvente + Clima + ACS";
  d.PerfilUso = 0;
  d.Uso = "Otro";
  d.Alcance = "Completo";
  d.AnoConstruccion = "POST-2018";
  d.NormativaEdificacion = "CTE_DB_HE_2019";
  d.NormativaInstalaciones = "RITE_2021";
  d.Otra_legislacion_aplicable = "Ninguna";
  d.GradoProteccion = "Ninguna";
}

// Lo que no se dice aquí lo lleva ya un caso en blanco.
void PonerEnergiaSolar(DatosGenerales& d) {
  d.Incli_FV.fill(40.0F);
}

}  // namespace

void PonerValoresIniciales(Edificio& edificio, const XMLNode& perfilesUso, Mensajes& mensajes) {
  DatosGenerales d = edificio.GetDatosGenerales();
  PonerObjetivo(d);
  PonerEnergiaSolar(d);
  edificio.SetDatosGenerales(std::move(d));
  Construccion c = edificio.GetConstruccion();
  c.Longitud_puentes_termicos_modo = "Estimados";
  edificio.SetConstruccion(PuentesPorTabla(c, edificio.GetLocalizacion().ZonaClimatica));
  AplicarUsoPorDefecto(perfilesUso, ClaveUsoPorDefecto(0), edificio, mensajes);
}

void PonerSitioInicial(Edificio& edificio) {
  Localizacion sitio;
  sitio.Provincia = "Valencia/València";
  sitio.Municipio = "Valencia";
  sitio.asnm = 6;
  sitio.latitud = 39;
  sitio.ZonaClimatica = "B3";
  sitio.zona_radiante = "IV";
  edificio.SetLocalizacion(std::move(sitio));
}

void EmpezarProyecto(GestorEdifActivo& gestor, const XMLNode& perfilesUso, Mensajes& mensajes) {
  if (gestor.NombreActivo().empty()) {
    gestor.NuevoProyecto();
    PonerSitioInicial(gestor.Activo());
  } else {
    gestor.ReiniciarConservandoSitio();
  }
  PonerValoresIniciales(gestor.Activo(), perfilesUso, mensajes);
}

}  // namespace novex
