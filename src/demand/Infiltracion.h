#pragma once

#include <unordered_map>

namespace novex {

/// Lo que la envolvente deja pasar con 100 Pa.
struct FugasZona {
  float volumen = 0;            ///< m3
  float coeficienteOpacos = 0;  ///< m3/h por m3 de zona
  float ventanas = 0;           ///< m3/h
  float cajasPersiana = 0;      ///< m3/h
};

/// Caudal que cruza la envolvente con el viento de proyecto, m3/h: la presión interior que
/// equilibra los caudales de barlovento y sotavento con el de la ventilación (UNE-EN 16798-7).
/// \param renovaciones de la ventilación, 1/h
float FugasEnvolvente(const FugasZona& zona, float renovaciones);

/// La misma búsqueda, que recuerda cada renovación ya resuelta.
class BuscadorFugas {
 public:
  explicit BuscadorFugas(FugasZona zona) : zona_(zona) {}
  /// Infiltración de la hora, m3/h, que se suma a la ventilación de esas renovaciones.
  float Infiltracion(float renovaciones);

 private:
  FugasZona zona_;
  float ultimaRenovacion_ = -1;
  float ultimaFuga_ = 0;
  std::unordered_map<float, float> resueltas_;
};

}  // namespace novex
