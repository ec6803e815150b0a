#include "compliance/CoeficientesPaso.h"

namespace novex {
namespace {

// Cada sistema eléctrico, con una provincia que lo tiene.
struct SistemaElectrico {
  const char* nombre;
  const char* provincia;
};
constexpr SistemaElectrico kElectricidades[] = {{"ElectricidadPeninsular", "Madrid"},
                                                {"ElectricidadBaleares", "Illes Balears"},
                                                {"ElectricidadCanarias", "Las Palmas"},
                                                {"ElectricidadCeutayMelilla", "Ceuta"}};
constexpr int kDecimales = 3;

std::vector<Celda> Fila(std::string nombre, VectorEnergetico vector, const Conversor& conversor) {
  std::vector<Celda> fila = {std::move(nombre)};
  for (const UnidadEnergia unidad :
       {kEmisiones, kPrimariaRenovable, kPrimariaNoRenovable, kPrimariaTotal})
    fila.push_back(
        Celda::Numero(static_cast<double>(conversor.Convertir(vector, unidad, 1.0F)), kDecimales));
  return fila;
}

}  // namespace

Tabla TablaCoeficientesPaso(const TablaFactores& factores) {
  Tabla tabla;
  tabla.titulo = "Coeficientes de paso";
  tabla.cabeceras = {"Tipo de energía", "kg CO2/kWh E.final", "kWh EP renovable/kWh E.final",
                     "kWh EP no renovable/kWh E.final", "kWh EP total/kWh E.final"};
  for (const auto& [nombre, provincia] : kElectricidades)
    tabla.filas.push_back(
        Fila(nombre, VectorEnergetico::Electricidad, Conversor(factores, provincia)));
  const Conversor conversor(factores, {});
  for (std::size_t v = 0; v < kVectores; ++v)
    if (const auto vector = static_cast<VectorEnergetico>(v);
        vector != VectorEnergetico::Electricidad)
      tabla.filas.push_back(Fila(std::string(kNombreVector[v]), vector, conversor));
  return tabla;
}

}  // namespace novex
