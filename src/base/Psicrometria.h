#pragma once

namespace novex {

/// Funciones del aire húmedo: temperaturas en °C, presión en Pa, humedad absoluta en kg/kg de aire
/// seco, humedad relativa en %, entalpía en kJ/kg. No guardan estado.
namespace psicrometria {

inline constexpr float kCpAire = 1.006F;         ///< kJ/kg°C
inline constexpr float kCpVapor = 1.86F;         ///< kJ/kg°C
inline constexpr float kCalorLatente = 2501.0F;  ///< kJ/kg
inline constexpr float kCpAgua = 4.186F;         ///< kJ/kg°C
inline constexpr float kMasaAire = 28.966F;
inline constexpr float kMasaAgua = 18.015268F;
inline constexpr float kGases = 8314.472F;  ///< J/kmol K
inline constexpr float kCeroEscala = 273.15F;
inline constexpr float kRazonMasas = kMasaAgua / kMasaAire;

/// Presión de saturación a `t`, Pa (Hyland y Wexler; ASHRAE Fundamentals): sobre hielo por debajo
/// de -0,0606 °C y sobre agua desde ahí.
float PresionSaturacion(float t);
/// Humedad absoluta con presión de vapor `pv`.
float HumedadDePresion(float pv, float presion);
/// Humedad absoluta a `t` con humedad relativa `hr`.
float HumedadDeRelativa(float t, float hr, float presion);
/// Humedad absoluta de saturación a `t`.
float HumedadSaturacion(float t, float presion);
/// Presión de vapor, Pa.
float PresionVapor(float w, float presion);
/// Estimación del bulbo húmedo con la humedad de saturación `ws` a una temperatura de prueba.
float EstimacionBulboHumedo(float t, float w, float ws);
/// Temperatura de bulbo húmedo, a 0,001 °C.
float BulboHumedo(float t, float w, float presion);
/// Punto de rocío, a 0,001 °C; -60 para aire sin humedad o con 1 Pa de vapor o menos.
float PuntoRocio(float w, float presion);
/// Humedad absoluta de aire a `t` con bulbo húmedo `tw`.
float HumedadDeBulboHumedo(float t, float tw, float presion);
/// Entalpía.
float Entalpia(float t, float w);
/// Humedad absoluta de aire a `t` con entalpía `h`.
float HumedadDeEntalpia(float t, float h);
/// Humedad relativa, % hasta 100; 0 con t y w nulos y 50 si no hay presión de saturación.
float HumedadRelativa(float t, float w, float presion);
/// Volumen específico, m3/kg.
float VolumenEspecifico(float t, float w, float presion);
/// Temperatura del aire con humedad relativa `hr` y entalpía `h`, a 0,001 °C.
float TemperaturaDeEntalpia(float hr, float h, float presion);
/// Parte sensible del calor que quita a aire (t, hr) una batería a temperatura `tc`: de 0,7 a 1.
float RazonSensibleBateria(float t, float hr, float presion, float tc);
/// Punto de rocío del aparato: temperatura saturada a la que la razón sensible del aire (t, w) baja
/// a `razon`, a pasos de 0,01 °C; no menos de 6 °C.
float RocioAparato(float razon, float t, float w, float presion);

/// Estado del aire a la entrada de una batería.
struct AireEntrada {
  float t;   ///< °C
  float tw;  ///< bulbo húmedo, °C
};

/// Razón entre la potencia sensible de la hora y la nominal por el método de la batería.
/// \param total,sensible potencias nominales en las condiciones `nominal`, kW
/// \param totalHora potencia total en las condiciones `hora`, kW
float MetodoBateria(float total, float sensible, AireEntrada nominal, AireEntrada hora,
                    float totalHora, float presion);

}  // namespace psicrometria
}  // namespace novex
