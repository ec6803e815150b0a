#pragma once

#include "systems/SistemaACS.h"

namespace novex {

/// Magnitudes horarias de un bloque para el fichero de sistemas del caso. Los nombres se resuelven
/// una vez; en la hora solo se escriben posiciones.
class AtributosSistema {
 public:
  AtributosSistema(const GeneradorPreparado& generador, const ArregloACS* arreglo, calculo& caso);
  /// Anota la hora de un bloque.
  void Anotar(int h, const RespuestaHora& r);
  /// Anota lo propio del agua caliente. \param T temperaturas del depósito, °C
  void AnotarACS(int h, const ResultadoACS& acs, const Nodos& T);

 private:
  // Calor, consumo y rendimiento de un generador, o frío con su total.
  struct Terna {
    SerieHoraria* Q = nullptr;
    SerieHoraria* C = nullptr;
    SerieHoraria* Rend = nullptr;
    SerieHoraria* QT = nullptr;
    void Poner(int h, float q, float c, float total) const;
  };
  Terna NuevaTerna(const std::string& servicio, const std::string& sufijo, bool frio);
  SerieHoraria* Nuevo(const std::string& nombre, int decimales = 2);

  calculo& caso_;
  std::string numero_;
  bool conjunto_;  ///< bomba de calor y caldera
  Terna calor1_, calor2_, frio_, resistencia_;
  std::array<SerieHoraria*, kCircuitos> bombaCalor_{}, bombaFrio_{};
  SerieHoraria* ventiladorCalor_ = nullptr;
  SerieHoraria* ventiladorFrio_ = nullptr;
  std::array<SerieHoraria*, 3> caudales_{};  ///< CW60, CWT y TWC
  std::array<SerieHoraria*, 2> perdidas_{};  ///< PRET y PDACS
  std::array<SerieHoraria*, 6> solares_{};   ///< PTCS, PDS, EASC y las tres bombas
  std::array<SerieHoraria*, kNodos> nodos_{};
};

}  // namespace novex
