#include "shell/MejorasMarcadas.h"

#include "improvements/EstudioMejoras.h"

namespace novex {

std::optional<MejorasMedidas> MedirMarcadas(GestorEdifActivo& gestor, std::string_view nombreCaso,
                                            unsigned hilos, Entorno& entorno) {
  const EstudioModificaciones& estudio = gestor.Caso(nombreCaso)->GetEstudioModificaciones();
  const std::vector<int> codigos = CodigosMarcados(estudio);
  if (codigos.empty()) return MejorasMedidas{};
  if (const auto aviso = AvisoMarcas(estudio)) {
    entorno.mensajes.Avisar(aviso->titulo, aviso->texto);
    return MejorasMedidas{};
  }
  const auto preparado = EstudioMejoras::Preparar(gestor, nombreCaso, entorno);
  if (!preparado) return std::nullopt;
  return MejorasMedidas{preparado->Base(), preparado->Medir(codigos, hilos)};
}

}  // namespace novex
