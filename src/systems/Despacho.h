#pragma once

#include <array>
#include <memory>
#include <vector>

#include "demand/AjustesUso.h"
#include "systems/RespuestaHora.h"
#include "systems/SistemaACS.h"

namespace novex {

/// Lo que el reparto deja en una hora.
struct ResultadoDespacho {
  CargasHora sinCubrir{};  ///< asignado a sistemas que no lo alcanzan, kW
  CargasHora defecto{};    ///< lo anterior más lo que ningún sistema sirve, kW
  float frioLatente = 0;   ///< que quitan los sistemas, W
};

/// Reparto de las cargas de cada hora entre los sistemas del caso, en su orden.
class Despacho {
 public:
  /// Prepara los sistemas y reparte la superficie entre ellos por potencias; las superficies quedan
  /// en los sistemas del caso.
  Despacho(Edificio& edificio, const AjustesUso& ajustes, calculo& caso, Mensajes& mensajes);
  ~Despacho();

  /// Apunta en `anos`, que ha de durar lo que este objeto, el año de agua caliente de cada bloque.
  void GrabarACS(AnosACS& anos);
  /// Toma el agua caliente de lo que apuntó otro reparto de los mismos sistemas.
  void RepetirACS(const AnosACS& anos);

  /// Reparte la hora y contabiliza en las tablas del caso lo que cada sistema consume.
  ResultadoDespacho Hora(const HoraSistemas& hora);
  /// ¿Hay algún sistema?
  bool HaySistemas() const { return !sistemas_.empty(); }
  /// ¿Ha dado algún depósito sin volumen?
  bool VolumenNulo() const { return estadoSolar_.volumenNulo; }
  const std::vector<SumasBloque>& Sumas() const { return caso_.sumasBloques; }

 private:
  struct Bloque;
  struct Sistema;
  struct Totales;

  void RepartirSuperficies();
  RespuestaHora CorrerSistema(Sistema& s, const HoraSistemas& hora, const CargasHora& cargas,
                              Totales& totales);
  void Contabilizar(Bloque& b, const HoraSistemas& hora, const RespuestaHora& r);
  void AnotarSeries(int h, const RespuestaHora& r);
  void ContabilizarACS(const HoraSistemas& hora, const ResultadoACS& acs);
  CargasHora EtapaDeAire(const HoraSistemas& hora, float ventilacion, Totales& totales);

  Edificio& edificio_;
  const AjustesUso ajustes_;
  calculo& caso_;
  EstadoSolarCaso estadoSolar_;
  std::vector<std::unique_ptr<Sistema>> sistemas_;
  float superficie_;
  CargasHora servida_{};  ///< superficie que sirven los sistemas, por servicio, m2
  bool haySistemasDeAire_ = false;
  bool conEtapaDeAire_ = false;
};

}  // namespace novex
