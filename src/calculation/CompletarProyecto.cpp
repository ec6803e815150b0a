#include "calculation/CompletarProyecto.h"

#include "reference/LongitudesPuentes.h"
#include "reference/PerfilesUso.h"

namespace novex {

void CompletarProyecto(GestorEdifActivo& gestor, std::span<const std::string_view> sinUso,
                       FicherosPrograma& ficheros, Mensajes& mensajes) {
  constexpr std::string_view kUsoResidencial = "Residencial";
  for (const std::string_view nombre : sinUso)
    if (Edificio* edificio = gestor.Caso(nombre))
      AplicarUsoPorDefecto(ficheros.Xml("PerfilesUso.xml", "PERFILES_USO"), kUsoResidencial,
                           *edificio, mensajes);
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
    if (Edificio* edificio = gestor.Caso(GestorEdifActivo::NombreCasoUsuario(i)))
      edificio->SetConstruccion(LongitudesEstimadas(*edificio));
}

}  // namespace novex
