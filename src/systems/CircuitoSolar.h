#pragma once

#include "base/Mensajes.h"
#include "demand/calculo.h"
#include "model/Edificio.h"
#include "systems/ArregloACS.h"
#include "systems/CaptadoresSolares.h"

namespace novex {

/// Lo que la instalación solar, que es una por caso, pasa de un sistema a otro y de una hora a
/// otra. El primer sistema de la hora es el que la guarda y la contabiliza.
struct EstadoSolarCaso {
  Nodos anterior{25, 25, 25, 25, 25}, actual{25, 25, 25, 25, 25};
  int hora = 0;            ///< última hora guardada
  bool calentado = false;  ///< algún sistema ha hecho ya su puesta en marcha
  bool avisado = false;    ///< del estancamiento
  bool avisadoTermo = false;
  bool volumenNulo = false;  ///< algún depósito sin volumen

  /// Temperaturas con que empieza la hora `h`.
  const Nodos& Inicio(int h) const { return hora < h ? actual : anterior; }
  /// Guarda el final de la hora. \returns true si es el primer sistema que la guarda
  bool Guardar(int h, const Nodos& S);
};

/// Sumas solares de una hora.
struct SumasSolares {
  double perdidaTuberia = 0;   ///< J
  double potencia = 0;         ///< J de los captadores
  double entrada = 0;          ///< J que entran al depósito solar
  double perdidaDeposito = 0;  ///< J, negativa
  double irradiacion = 0;      ///< Wh
  double bombaCaptadores = 0, bombaDeposito = 0, bombaRecirculacion = 0;  ///< W por minuto
};

/// Circuito de captadores y depósito solar tal como los ve un sistema.
class CircuitoSolar {
 public:
  CircuitoSolar(const Edificio& edificio, const Instalaciones& bloque, const ArregloACS& arreglo,
                const calculo& caso);

  void EmpezarHora(const Nodos& S, int h);
  /// Un minuto. Deja el depósito solar avanzado y las entradas solares del depósito de consumo.
  /// \param minuto de 1 a 60 \param extraccion caudal del grifo, kg/s \param Tred °C
  /// \param T temperaturas del depósito de consumo al empezar
  void Minuto(int minuto, double extraccion, double Tred, double ambiente, const Nodos& T,
              SumasSolares& sumas);
  /// Entrada solar del depósito de consumo en este minuto, tras `Minuto`.
  /// \param f2 divisor de los caudales que vienen de un depósito compartido
  EntradaDeposito EntradaDeConsumo(double T5, double f2) const;
  /// Apunta la salida del serpentín solar del depósito de consumo.
  void ApuntarSalida(double salida) { salidaConsumo_ = salida; }

  const Nodos& Temperaturas() const { return S_; }
  double Arriba() const { return S_[0]; }
  /// Temperatura del lado del grifo tras el intercambiador de consumo, °C.
  double TrasIntercambiador() const { return Tx_; }

 private:
  double TemperaturaRetorno(int minuto, const Nodos& T) const;
  void Captar(int minuto, const Nodos& T, SumasSolares& sumas);
  void AvanzarSolar(int minuto, double extraccion, double Tred, double ambiente, const Nodos& T,
                    SumasSolares& sumas);

  ArregloACS arreglo_;
  CaptadoresSolares captadores_;
  GeometriaDeposito geometria_;
  const SeriesClima& clima_;
  float inclinacion_, azimut_;
  double caudalDeposito_, caudalRecirculacion_, efectividad_, efectividadConsumo_;
  double areaSerpentin_, areaSolarConsumo_;
  double bombaCaptadores_, bombaDeposito_, bombaRecirculacion_;  // W
  double viviendas_;  // que comparten la irradiación en una vivienda de bloque

  Nodos S_{};
  double G_ = 0, Ta_ = 0;
  bool hayCaudal_ = false;    // los captadores dan calor en el minuto
  double entradaSolar_ = 0;   // temperatura del agua que entra al depósito solar o a su serpentín
  double salidaSolar_ = 0;    // salida del serpentín del depósito solar
  double salidaConsumo_ = 0;  // salida del serpentín solar del depósito de consumo
  double Tx_ = 0;
};

}  // namespace novex
