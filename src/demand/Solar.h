#pragma once

namespace novex {

/// Factor de grados a radianes de todas las funciones solares.
inline constexpr float kGradosARadianes = 0.0174533F;
/// Reflectancia del suelo.
inline constexpr float kAlbedo = 0.2F;

/// Coseno del ángulo de incidencia del sol sobre un plano; negativo con el sol detrás.
/// \param inclinacion,azimutPlano del plano: 0 horizontal, 0 al sur y positivo al oeste, grados
/// \param azimutSolar,alturaSolar del sol, grados
float CosenoIncidencia(float inclinacion, float azimutPlano, float azimutSolar, float alturaSolar);

/// Irradiancia total sobre un plano con cielo isótropo y suelo de reflectancia 0,2, W/m2.
/// \param cenit distancia del sol al cenit, grados
/// \param directaNormal,difusa W/m2
float IrradianciaTotal(float inclinacion, float azimutPlano, float azimutSolar, float cenit,
                       float directaNormal, float difusa);

/// La misma irradiancia tras la dependencia angular de un vidrio, W/m2: la directa se reduce a
/// partir de 40° de incidencia y la difusa en 0,89.
float IrradianciaVidrio(float inclinacion, float azimutPlano, float azimutSolar, float cenit,
                        float directaNormal, float difusa);

/// Posición del sol de una hora con sus senos y cosenos, para recorrer muchos planos.
struct SolHora {
  float senoAltura, cosenoAltura, senoAzimut, cosenoAzimut, cosenoCenit;
  SolHora(float azimutSolar, float cenit);
};

/// Plano con sus senos y cosenos.
struct Plano {
  float senoInclinacion, cosenoInclinacion, senoAzimut, cosenoAzimut;
  Plano(float inclinacion, float azimut);
  float CosenoIncidencia(const SolHora& sol) const {
    return senoInclinacion * senoAzimut * sol.cosenoAltura * sol.senoAzimut +
           senoInclinacion * cosenoAzimut * sol.cosenoAltura * sol.cosenoAzimut +
           cosenoInclinacion * sol.senoAltura;
  }
  float IrradianciaTotal(const SolHora& sol, float directaNormal, float difusa) const;
  float IrradianciaVidrio(const SolHora& sol, float directaNormal, float difusa) const;
};

/// Azimut de cada sector de orientación, grados.
inline constexpr float kAzimutSector[6] = {180.0F, 90.0F, 45.0F, 0.0F, -45.0F, -90.0F};

}  // namespace novex
