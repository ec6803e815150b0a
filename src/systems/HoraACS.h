#pragma once

#include <optional>
#include <vector>

#include "systems/CircuitoSolar.h"
#include "systems/DemandaACS.h"
#include "systems/PasoGenerador.h"
#include "systems/RespuestaHora.h"

namespace novex {

/// Lo que un sistema de agua caliente deja en una hora, kWh salvo donde se dice.
struct ResultadoACS {
  float calor = 0;        ///< tomado del generador
  float consumo = 0;      ///< del generador, si el depósito lo calcula
  float resistencia = 0;  ///< de apoyo
  float noDado = 0;
  /// Bombas de los generadores 1 y 2, del lado del depósito, del generador y del retorno, W.
  std::array<float, 5> bombaCircuito{};
  float perdidaDeposito = 0, perdidaRetorno = 0;
  float caudal60 = 0, caudal = 0, temperatura = 0;  ///< l/h y °C en el último minuto
  bool contabilizaSolar = false;  ///< es el primero de la hora con instalación solar
  float perdidaSolar = 0, perdidaTuberia = 0, captada = 0, irradiacion = 0;
  float bombaCaptadores = 0, bombaDepositoSolar = 0, bombaRecirculacion = 0;  ///< W
};

/// Lo que deja una hora del agua caliente de un bloque, para no volver a simularla.
struct HoraGuardadaACS {
  ResultadoACS acs;
  Nodos deposito{}, depositoSolar{};  ///< al acabar la hora, °C
};
/// El año de agua caliente de los bloques de un caso, en su orden; vacío el de uno sin ella.
using AnosACS = std::vector<std::vector<HoraGuardadaACS>>;

/// Agua caliente de un sistema minuto a minuto: depósitos, generador, retorno y captadores.
class HoraACS {
 public:
  HoraACS(const Edificio& edificio, const GeneradorPreparado& generador, EstadoSolarCaso& solar,
          const calculo& caso, Mensajes& mensajes);

  /// Avanza la hora `h`. En la 1 hace antes la puesta en marcha.
  ResultadoACS Hora(int h);
  /// Desde aquí cada hora se apunta al final de `ano`, que ha de durar lo que este objeto.
  void Grabar(std::vector<HoraGuardadaACS>& ano) { grabado_ = &ano; }
  /// Desde aquí las horas se toman de un año ya simulado de este mismo bloque, que ha de durar lo
  /// que este objeto. El agua caliente no depende de la zona ni de las demás cargas.
  void Repetir(const std::vector<HoraGuardadaACS>& ano) { repetido_ = &ano; }

  const ArregloACS& Arreglo() const { return arreglo_; }
  /// Temperaturas del depósito al acabar la hora, °C.
  const Nodos& Temperaturas() const { return T_; }
  /// ¿Funciona en la hora la caldera del conjunto de bomba de calor y caldera?
  bool FuncionaCaldera(int h) const;

 private:
  struct Sumas;
  struct Extraccion;
  void PonerEnMarcha();
  ResultadoACS Simular(int h, bool calentamiento);
  Extraccion CalcularExtraccion(int h, double Tred) const;
  void Minuto(int h, int minuto, bool calentamiento, double ambiente, double Tred, Sumas& sumas);
  void LadoGenerador(int h, int minuto, const Nodos& T, MinutoDeposito& entra, PasoGenerador& paso,
                     Sumas& sumas);
  void Depositar(int h, int minuto, bool calentamiento, double ambiente, double Tred,
                 const Extraccion& x, Sumas& sumas);
  void Contabilizar(const EnergiasDeposito& e, const PasoGenerador& paso, double md,
                    const Nodos& inicio, double calorPrimario, Sumas& sumas);
  void SinDeposito(const Extraccion& x, double Tred, Sumas& sumas);
  ResultadoACS Cerrar(int h, bool calentamiento, const Sumas& sumas);
  double AmbienteDeposito(int h) const;

  const Edificio& edificio_;
  const GeneradorPreparado& g_;
  const Instalaciones& i_;
  EstadoSolarCaso& estadoSolar_;
  const calculo& caso_;
  Mensajes& mensajes_;
  ArregloACS arreglo_;
  FactoresVivienda factores_;
  GeometriaDeposito geometria_;
  std::optional<CircuitoSolar> solar_;
  std::vector<HoraGuardadaACS>* grabado_ = nullptr;
  const std::vector<HoraGuardadaACS>* repetido_ = nullptr;
  bool nulo_ = false;      ///< un depósito del arreglo no tiene volumen
  bool comparte_ = false;  ///< una sola vivienda de bloque (perfil 2)
  double viviendas_ = 1;   ///< NVBloqueF en el perfil 2
  double equipos_ = 1;
  Nodos T_{};
  bool generadorEncendido_ = false;
  bool apoyoEncendido_ = false;
  bool enMarcha_ = false;           ///< en las horas de puesta en marcha, que no avisan de nada
  std::array<double, 5> bombas_{};  ///< GEN1, GEN2, DEP, INT, RET de un equipo, W
};

}  // namespace novex
