#include <algorithm>

#include "outputs/bloques/AuxiliaresSistema.h"
#include "outputs/bloques/Bloque.h"
#include "outputs/bloques/BloquesResultados.h"
#include "outputs/documentos/EquiposServicio.h"

namespace novex {
namespace {

using Resultados = DatosDerivados::Caso::ResultadosSistema;
using Generadores = std::vector<GeneradorServicio>;

// Un generador del bloque en un servicio; sin él, uno a 0.
GeneradorServicio Buscar(const Generadores& generadores, std::size_t bloque, int generador) {
  const auto g = std::find_if(generadores.begin(), generadores.end(), [&](const auto& x) {
    return !x.sustitucion && x.bloque == bloque && x.generador == generador;
  });
  return g == generadores.end() ? GeneradorServicio{} : *g;
}

// Las cuatro etiquetas de un generador en un servicio.
struct Etiquetas {
  std::string producido, consumido, rendimiento, cop;
};

void AnadirGenerador(const GeneradorServicio& g, const Etiquetas& e, Resultados& r) {
  const float rendimiento = g.rendimientoEstacional.value_or(0.0F);
  r.emplace_back(e.producido, bloque::Cifra(g.dado));
  r.emplace_back(e.consumido, bloque::Cifra(g.consumido));
  r.emplace_back(e.rendimiento, bloque::Cifra(rendimiento));
  r.emplace_back(e.cop, bloque::Cifra(g.bombaDeCalor ? rendimiento : 0.0F));
}

void AnadirAuxiliares(const GeneradorPreparado& g, const calculo& caso, Resultados& r) {
  for (const AuxiliarSistema& a : AuxiliaresDeBloque(g, caso)) {
    const std::string nombre = a.ventilador ? a.nombre : "Bomba" + a.nombre;
    r.emplace_back("Caudal2" + nombre, bloque::Cifra(a.caudal));
    r.emplace_back("PotenciaEspecifica" + a.nombre, bloque::Cifra(a.especifica));
    r.emplace_back("Consumo" + nombre, bloque::Cifra(a.consumo));
  }
}

}  // namespace

std::vector<Resultados> ResultadosDeSistemas(const CasoCalculado& caso) {
  const Generadores acs = GeneradoresDeServicio(caso, kACS);
  const Generadores calefaccion = GeneradoresDeServicio(caso, kCalefaccion);
  const Generadores refrigeracion = GeneradoresDeServicio(caso, kRefrigeracion);
  std::vector<Resultados> bloques;
  for (std::size_t n = 0; n < caso.edificio->NumeroSistemas(); ++n) {
    const SistemaResidencial& sistema = caso.edificio->GetSistema(n);
    for (const Instalaciones& instalacion : sistema.instalaciones) {
      const std::size_t este = bloques.size();
      Resultados& r = bloques.emplace_back();
      const std::pair<const char*, const Generadores*> calor[] = {{"ACS", &acs},
                                                                  {"Cale", &calefaccion}};
      for (const auto& [nombre, generadores] : calor)
        for (const int k : {1, 2}) {
          const std::string fin = std::string(nombre) + "_" + std::to_string(k);
          AnadirGenerador(
              Buscar(*generadores, este, k),
              {std::string(nombre) + "TotalProducido_" + std::to_string(k),
               "EnergiaConsumidaEn" + fin, "RendimientoEstacional" + fin, "SCOPEstacional" + fin},
              r);
        }
      AnadirGenerador(Buscar(refrigeracion, este, 1),
                      {"FrioTotalProducido", "EnergiaConsumidaEnFrio", "RendimientoEstacional",
                       "SEEREstacional"},
                      r);
      AnadirAuxiliares(
          GeneradorPreparado(*caso.edificio, sistema, instalacion, static_cast<int>(n) + 1),
          *caso.resultado, r);
    }
  }
  return bloques;
}

}  // namespace novex
