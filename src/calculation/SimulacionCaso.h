#pragma once

#include <array>
#include <memory>
#include <vector>

#include "base/Progreso.h"
#include "demand/AjustesUso.h"
#include "demand/Balance.h"
#include "demand/HumedadZona.h"
#include "demand/calculo.h"
#include "model/Edificio.h"
#include "systems/Despacho.h"

namespace novex {

/// La simulación del año de un caso ya preparado, en dos pasadas por las horas. Se construye, se
/// avanza por tramos y al acabar los resultados están en el `calculo`.
class SimulacionCaso {
 public:
  /// Prepara los coeficientes de la zona y vacía los resultados anteriores.
  SimulacionCaso(Edificio& edificio, const AjustesUso& ajustes, calculo& caso, Mensajes& mensajes);
  ~SimulacionCaso();

  /// Antes de avanzar: apunta en `anos` el agua caliente de los sistemas.
  void GrabarACS(AnosACS& anos) { despacho_->GrabarACS(anos); }
  /// Antes de avanzar: toma el agua caliente que apuntó otra simulación de los mismos sistemas.
  void RepetirACS(const AnosACS& anos) { despacho_->RepetirACS(anos); }

  /// Avanza hasta `horas` horas de pasada. \returns false cuando ya no queda ninguna
  bool Avanzar(int horas);
  /// Parte hecha, de 0 a 100.
  int Porcentaje() const { return hechas_ * 100 / (2 * kHorasAno); }
  /// Suma los meses y calcula los indicadores y las letras. Tras la última hora.
  void Terminar();

 private:
  void PrepararZona();
  void PrimeraPasada(int h, int mes);
  void SegundaPasada(int h, int mes);
  bool ConvieneEnfriamiento(int h) const;
  void AnotarDemandaACS(int h, int mes);
  /// Estado de la hora que ven los sistemas.
  HoraSistemas HoraDeSistemas(int h, int mes) const;
  /// Con equipos reales, lo que no alcanzan deja flotar la temperatura de la zona.
  void FlotarZona(int h, int mes, const CargasHora& sinCubrir);
  /// Aparta la temperatura de la consigna de la hora y cuenta las horas fuera de ella.
  void AnotarDesviacion(int h, int mes);
  void CorregirBalanceSolar();

  Edificio& edificio_;
  const AjustesUso ajustes_;
  calculo& caso_;
  std::unique_ptr<ElementosOpacos> opacos_;
  std::unique_ptr<ElementosHuecos> huecos_;
  std::unique_ptr<PasoVentilacion> ventilacion_;
  std::unique_ptr<Balance> balance_;
  std::unique_ptr<HumedadZona> humedad_;
  std::unique_ptr<Despacho> despacho_;
  std::vector<AireHora> aire_;  ///< aire que dejó la primera pasada en cada hora
  int hechas_ = 0;
  int mes_ = 0;
  float cargaPrevia_ = 0;  ///< W
  float superficie_ = 0;
  float defectoACS_ = 0;  ///< kWh del año que los sistemas no dan
};

}  // namespace novex
