#pragma once

#include "demand/AjustesUso.h"
#include "demand/Series.h"

namespace novex {

/// Eficiencia de la recuperación en una hora, %.
struct EficienciaHora {
  float sensible = 0;
  float humedad = 0;
};

/// Eficiencia de un recuperador con un caudal distinto del nominal (método NTU), %.
/// \param eficiencia nominal, % \param razonMasas de los dos aires \param caudal % del nominal
float EficienciaParcial(float eficiencia, float razonMasas, float caudal, bool residencial);

/// Recuperación de calor de la ventilación de un caso.
class Recuperador {
 public:
  /// \param caudalNominal volumen por renovaciones de proyecto, m3/h
  Recuperador(const DatosGenerales& generales, const AjustesUso& ajustes, float forzada,
              float caudalNominal);
  /// Eficiencia de la hora. \param NRR horario de ventilación \param Te exterior, °C
  /// \param QV caudal de la hora, m3/h \param conEnfriamiento se evalúa con enfriamiento gratuito
  EficienciaHora Hora(float NRR, float Te, float QV, bool conEnfriamiento);

 private:
  float Parcial(float eficiencia, float razonMasas, float caudal);

  AjustesUso ajustes_;
  float forzada_, caudalNominal_;
  float sensible_, humedad_, razonMasas_, Teminrec_, Temaxrec_, TminImp_;
  // Última eficiencia resuelta, que en casi todas las horas vale otra vez.
  struct Resuelta {
    float eficiencia = -1, razon = 0, caudal = 0, valor = 0;
  };
  Resuelta ultima_[2];
};

}  // namespace novex
