#pragma once

#include "demand/AjustesUso.h"
#include "demand/Series.h"

namespace novex {

/// Parte de la potencia nominal de un ventilador con el caudal `x` en % del nominal.
float FactorCargaParcial(float x, ControlVentilador control);

/// Potencia de los ventiladores de un recuperador que impone una medida en una vivienda, W.
/// \param eficiencia % \param caudal m3/h, de todas \param viviendas mayor que 0
float PotenciaRecuperadorForzado(float eficiencia, float caudal, float viviendas);

/// Potencia de los ventiladores de ventilación de un caso.
class VentiladorAire {
 public:
  /// \param caudalNominal volumen por renovaciones de proyecto, m3/h
  VentiladorAire(const DatosGenerales& generales, int viviendas, const AjustesUso& ajustes,
                 float forzada, float caudalNominal);

  struct Hora {
    float potencia = 0;  ///< W
    bool puenteado = false;
  };
  /// \param NRR horario de ventilación \param Te exterior, °C
  /// \param QV,CUTA caudales de la hora, m3/h \param conEnfriamiento con enfriamiento gratuito
  Hora Potencia(float NRR, float Te, float QV, float CUTA, bool conEnfriamiento) const;

 private:
  Hora EnVivienda(float NRR, float Te, float QV) const;
  Hora EnTerciario(float Te, float QV, float CUTA, bool conEnfriamiento) const;

  AjustesUso ajustes_;
  float viviendas_, forzada_, caudalNominal_, caudalUTA_, ventilacion_;
  float WRecuperador_, WRecuperadorr_, Teminrec_, Temaxrec_, TminImp_, perdida_, rendimiento_;
};

}  // namespace novex
