#include "rating/FactoresConversion.h"

#include "model/CatalogoCampos.h"

namespace novex {
namespace {

// Sin fila propia en el fichero: lo tomado del ambiente y lo producido en el edificio son del todo
// renovables; los biocarburantes no los ofrece ningún sistema.
constexpr FactorConversion kRenovable{0.0F, 1.0F, 0.0F, 1.0F};
constexpr FactorConversion kBiocarburantes{0.0F, 1.04F, 0.24F, 1.24F};

constexpr std::array<std::string_view, kVectores> kTextoCertificado = {
    "ELECTRICIDAD",  "GASNATURAL",    "GASOLEO_C",         "GLP",
    "CARBON",        "BIOMASA",       "BIOMASA",           "BIOCARBURANTES",
    "MEDIOAMBIENTE", "SOLAR TERMICA", "SOLAR FOTOVOLTAICA"};

FilaFactor FilaElectricidad(std::string_view provincia) {
  if (provincia == "Illes Balears") return FilaFactor::ElectricidadBaleares;
  if (provincia == "Santa Cruz de Tenerife" || provincia == "Las Palmas")
    return FilaFactor::ElectricidadCanarias;
  if (provincia == "Ceuta" || provincia == "Melilla") return FilaFactor::ElectricidadCeutayMelilla;
  return FilaFactor::ElectricidadPeninsular;
}

float LeerAtributo(const XMLNode& fila, const char* nombre, Mensajes& mensajes) {
  const auto texto = fila.attributeValue(nombre);
  return texto ? ValorSinComprobar(*texto, mensajes) : 0.0F;
}

// Aplica una operación del conversor al vector de un nombre; 0 si no es ninguno.
template <class Operacion>
float PorNombre(std::string_view nombre, Operacion operacion) {
  const auto vector = VectorDeNombre(nombre);
  return vector ? operacion(*vector) : 0.0F;
}

}  // namespace

TablaFactores LeerFactores(const XMLNode& raiz, Mensajes& mensajes) {
  TablaFactores tabla{};
  for (std::size_t i = 0; i < tabla.size(); ++i) {
    const XMLNode fila = raiz.childAt(i);
    tabla[i] = {LeerAtributo(fila, "CO2", mensajes), LeerAtributo(fila, "EPR", mensajes),
                LeerAtributo(fila, "EPNoR", mensajes), LeerAtributo(fila, "EPTotal", mensajes)};
  }
  return tabla;
}

Conversor::Conversor(const TablaFactores& factores, std::string_view provincia) {
  const auto poner = [&](VectorEnergetico vector, FilaFactor fila) {
    factor_[Indice(vector)] = factores[static_cast<std::size_t>(fila)];
  };
  poner(VectorEnergetico::Electricidad, FilaElectricidad(provincia));
  poner(VectorEnergetico::GasNatural, FilaFactor::GasNatural);
  poner(VectorEnergetico::Gasoleo_C, FilaFactor::Gasoleo_C);
  poner(VectorEnergetico::GLP, FilaFactor::GLP);
  poner(VectorEnergetico::Carbon, FilaFactor::Carbon);
  poner(VectorEnergetico::Biomasa_Pellet, FilaFactor::Biomasa_Pellet);
  poner(VectorEnergetico::Biomasa_Otros, FilaFactor::Biomasa_Otros);
  poner(VectorEnergetico::Energiasolartermica, FilaFactor::Energiasolartermica);
  factor_[Indice(VectorEnergetico::Biocarburantes)] = kBiocarburantes;
  factor_[Indice(VectorEnergetico::MedioAmbiente)] = kRenovable;
  factor_[Indice(VectorEnergetico::Energiasolarfotovoltaica)] = kRenovable;
}

float Conversor::Emisiones(VectorEnergetico vector, float energia) const {
  return energia * factor_[Indice(vector)].CO2;
}

float Conversor::PrimariaTotal(VectorEnergetico vector, float energia) const {
  return energia * factor_[Indice(vector)].EPTotal;
}

float Conversor::PrimariaRenovable(VectorEnergetico vector, float energia) const {
  return energia * factor_[Indice(vector)].EPR;
}

float Conversor::PrimariaNoRenovable(VectorEnergetico vector, float energia) const {
  return energia * factor_[Indice(vector)].EPNoR;
}

float Conversor::Convertir(VectorEnergetico vector, std::size_t unidad, float energia) const {
  switch (unidad) {
    case kFinal:
      return energia;
    case kPrimariaTotal:
      return PrimariaTotal(vector, energia);
    case kPrimariaNoRenovable:
      return PrimariaNoRenovable(vector, energia);
    case kPrimariaRenovable:
      return PrimariaRenovable(vector, energia);
    case kEmisiones:
      return Emisiones(vector, energia);
    default:
      return 0.0F;
  }
}

float Conversor::Emisiones(std::string_view vector, float energia) const {
  return PorNombre(vector, [&](VectorEnergetico v) { return Emisiones(v, energia); });
}

float Conversor::PrimariaTotal(std::string_view vector, float energia) const {
  return PorNombre(vector, [&](VectorEnergetico v) { return PrimariaTotal(v, energia); });
}

float Conversor::PrimariaRenovable(std::string_view vector, float energia) const {
  return PorNombre(vector, [&](VectorEnergetico v) { return PrimariaRenovable(v, energia); });
}

float Conversor::PrimariaNoRenovable(std::string_view vector, float energia) const {
  return PorNombre(vector, [&](VectorEnergetico v) { return PrimariaNoRenovable(v, energia); });
}

float Conversor::Convertir(std::string_view vector, std::size_t unidad, float energia) const {
  return PorNombre(vector, [&](VectorEnergetico v) { return Convertir(v, unidad, energia); });
}

std::string_view TextoCertificado(VectorEnergetico vector) {
  return kTextoCertificado[Indice(vector)];
}

std::string_view TextoCertificado(std::string_view vector) {
  const auto hallado = VectorDeNombre(vector);
  return hallado ? TextoCertificado(*hallado) : std::string_view{};
}

}  // namespace novex
