#pragma once

#include <array>

namespace novex {

inline constexpr std::size_t kNodos = 5;
using Nodos = std::array<double, kNodos>;  ///< °C, de arriba abajo

/// Calor específico del agua de todos los circuitos, J/kg°C.
inline constexpr double kCpCircuito = 4184.0;

/// Geometría y conductancias de un depósito cilíndrico de cinco nodos.
struct GeometriaDeposito {
  double masaCp = 0;      ///< de un nodo, J/°C
  double conduccion = 0;  ///< entre dos nodos, W/°C
  double UAlateral = 0;   ///< de un nodo, W/°C
  double UAtapa = 0;      ///< de un extremo, W/°C
  /// \param volumen l \param UA coeficiente de pérdidas, W/°C \param LD altura entre diámetro
  GeometriaDeposito(double volumen, double UA, double LD);
};

/// Una entrada al depósito: por serpentín o directa, nunca las dos.
struct EntradaDeposito {
  double temperatura = 0;      ///< °C
  double caudalSerpentin = 0;  ///< kg/s
  double areaSerpentin = 0;    ///< m2
  double caudalDirecto = 0;    ///< kg/s
  std::size_t nodo = 0;        ///< al que entra el caudal directo, desde 0
};

/// Lo que entra y sale de un depósito en un minuto. Caudales en kg/s.
struct MinutoDeposito {
  double ambiente = 20;          ///< °C
  double auxiliar = 0;           ///< W
  std::size_t nodoAuxiliar = 0;  ///< desde 0
  double extraccion = 0;         ///< sale por arriba
  double entradaAgua = 0;        ///< temperatura de la que entra por abajo, °C
  double recirculacion = 0;      ///< sale por arriba y vuelve
  double retorno = 0;            ///< temperatura a la que vuelve, °C
  std::size_t nodoRetorno = 0;   ///< desde 0
  EntradaDeposito generador, solar;
};

/// Energías de un minuto, J, positivas hacia el depósito, y temperatura de salida de los
/// serpentines.
struct EnergiasDeposito {
  double directaGenerador = 0, directaSolar = 0;
  double extraccion = 0, recirculacion = 0;
  double serpentinGenerador = 0, serpentinSolar = 0;
  double perdidas = 0, auxiliar = 0;
  double salidaGenerador = 0, salidaSolar = 0;  ///< °C
  double Suma() const {
    return directaGenerador + directaSolar + extraccion + recirculacion + serpentinGenerador +
           serpentinSolar + perdidas + auxiliar;
  }
};

/// Avanza un minuto las temperaturas de un depósito.
EnergiasDeposito AvanzarDeposito(const GeometriaDeposito& geometria, const MinutoDeposito& minuto,
                                 Nodos& T);

}  // namespace novex
