#include "shell/ProyectoPrueba.h"

#include "files/ProyectoFichero.h"

namespace novex::pruebas {

void GuardarProyectoPrueba(const std::filesystem::path& ruta, const std::string& zona,
                           float superficie, int mejoras) {
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  Edificio& base = gestor.Activo();
  base.GetRecinto(0).Suelo_habitable_m2 = superficie;
  Localizacion lugar = base.GetLocalizacion();
  lugar.ZonaClimatica = zona;
  lugar.Provincia = "Madrid";
  base.SetLocalizacion(lugar);
  DatosGenerales generales = base.GetDatosGenerales();
  generales.Equipos_Defecto = "SI";
  base.SetDatosGenerales(generales);
  for (int i = 0; i < mejoras; ++i) gestor.AnadirMejora();
  GuardarProyecto(gestor, ruta);
}

}  // namespace novex::pruebas
