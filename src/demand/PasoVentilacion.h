#pragma once

#include "demand/Infiltracion.h"
#include "demand/Recuperador.h"
#include "demand/VentiladorAire.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Lo que el aire de una hora da al balance.
struct AireHora {
  float Gv = 0;                 ///< conductancia de la ventilación, W/K
  float Gi = 0;                 ///< conductancia de la infiltración, W/K
  float Ca = 0;                 ///< capacidad del aire de la zona, W/K por hora
  float eficiencia = 0;         ///< recuperación sensible, %
  float eficienciaHumedad = 0;  ///< recuperación de humedad, %
  float densidad = 0;           ///< del aire exterior, kg/m3
};

/// Aire exterior de la zona hora a hora: caudales, fugas, recuperación y ventiladores.
class PasoVentilacion {
 public:
  PasoVentilacion(const Edificio& edificio, const AjustesUso& ajustes, calculo& caso);

  /// Aire de la hora `h`; deja en la zona `QV`, `CUTA`, `HFC`, `HBP` y `CV`.
  /// \param cargaPrevia carga de la hora que sigue una unidad de caudal variable, W
  AireHora Hora(int h, int mes, bool conEnfriamiento, float cargaPrevia);
  /// Solo la recuperación de la hora, con el caudal ya fijado.
  EficienciaHora RecuperadorHora(int h, bool conEnfriamiento);

 private:
  struct Caudal {
    float renovaciones, ventilacion;
  };
  Caudal CaudalVivienda(int h);
  Caudal CaudalTerciario(int h, bool conEnfriamiento, float cargaPrevia, float densidad);
  float RenovacionesPrograma(int h) const;
  bool HayEnfriamiento(int h, bool conEnfriamiento) const;

  calculo& caso_;
  AjustesUso ajustes_;
  float presion_, volumen_, nrenov_, alturaLibre_;
  float sensibleocupantes_, caudalUTA_, TminImp_;
  float densidadInvierno_, densidadVerano_;
  BuscadorFugas fugas_;
  Recuperador recuperador_;
  VentiladorAire ventilador_;
};

/// Fugas de la envolvente del caso con 100 Pa.
FugasZona PrepararFugas(const Edificio& edificio, const Forzados& forzados);

}  // namespace novex
