#include "outputs/CasoCalculado.h"

namespace novex {

std::vector<CasoCalculado> CasosCalculados(const GestorEdifActivo& gestor) {
  std::vector<CasoCalculado> casos;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i) {
    const std::string nombre(GestorEdifActivo::NombreCasoUsuario(i));
    const Edificio* edificio = gestor.Caso(nombre);
    const auto& resultado = edificio->GetCalculo();
    if (resultado && resultado->Calculado())
      casos.push_back({nombre, edificio, resultado.get(), {}});
  }
  return casos;
}

}  // namespace novex
