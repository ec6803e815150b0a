#include "shell/ProyectoPrueba.h"

#include "files/ProyectoFichero.h"
#include "model/Cambios.h"

namespace novex::pruebas {
namespace {

SistemaResidencial CalderaACS() {
  SistemaResidencial sistema;
  sistema.Tipo_sistema = "ACS";
  Instalaciones& generador = sistema.instalaciones.emplace_back();
  generador.Seleccion = "1 Caldera";
  generador.TipoInstalacionesG = "Individual/Vivienda";
  generador.Distribucion = "Directo";
  generador.Alimentacion = "Alimentación agua red";
  generador.NEquipos = 1;
  return sistema;
}

}  // namespace

void GuardarProyectoPrueba(const std::filesystem::path& ruta, const std::string& zona,
                           float superficie, int mejoras, bool mejorasSinACS) {
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  Edificio& base = gestor.Activo();
  Recinto& recinto = base.GetRecinto(0);
  recinto.Suelo_habitable_m2 = superficie;
  recinto.Suelo_adiabatico_m2[0] = superficie;
  base.GetComposicion(ranura::SueloOtro2).U = 1;
  base.AnadirSistema(CalderaACS());
  pruebas::CambiarLugar(base, [&](Localizacion& lugar) {
    lugar.ZonaClimatica = zona;
    lugar.Provincia = "Madrid";
  });
  pruebas::CambiarGenerales(base, [&](DatosGenerales& generales) {
    generales.Equipos_Defecto = "SI";
    generales.perfiles.tabla[CTCh][0].fill(20);
  });
  for (int i = 0; i < mejoras; ++i) {
    gestor.AnadirMejora();
    while (mejorasSinACS && gestor.Activo().NumeroSistemas() > 0) gestor.Activo().BorrarSistema(0);
  }
  GuardarProyecto(gestor, ruta);
}

}  // namespace novex::pruebas
