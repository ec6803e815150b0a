#include "demand/Sombras.h"

#include <algorithm>
#include <cmath>

#include "demand/CieloClaro.h"
#include "demand/Solar.h"

namespace novex {
namespace {

constexpr float kDiscriminanteNulo = 1e-6F;

float Grados(float radianes) {
  return radianes / kGradosARadianes;
}

// ¿Sale el sol por detrás del plano este-oeste, de modo que llega a estar justo al este y al oeste?
// Con declinación 0 sale exactamente por el este, y cuenta.
bool LlegaAlEste(float latitud, float declinacion) {
  if (declinacion == 0.0F) return true;
  const float coseno =
      -std::sin(declinacion * kGradosARadianes) / std::cos(latitud * kGradosARadianes);
  return Grados(std::acos(std::clamp(coseno, -1.0F, 1.0F))) >= 90.0F;
}

// Altura de la sombra del obstáculo sobre la fachada, m.
float AlturaSombra(const ObstaculoCercano& o, const AlturaEnDireccion& sol) {
  return o.distancia == 0.0F ? o.altura : o.altura - sol.tangente * o.distancia;
}

// Huecos de la columna que tapa el obstáculo de una dirección: los de más abajo.
std::size_t HuecosTapados(const ColumnaHuecos& columna, const ObstaculoCercano& o, Sector direccion,
                          float latitud, int mes) {
  const AlturaEnDireccion sol = AlturaSolEnDireccion(direccion, latitud, mes);
  const std::size_t N = columna.recintos.size();
  if (!sol.dentro || !sol.hayRaiz) return 0;
  const float hs = AlturaSombra(o, sol);
  if (!(hs > 0.0F)) return 0;
  const float separacion = columna.Separacion_ventanas_vertical;
  if (separacion == 0.0F) return N;
  const float n = std::trunc(hs / separacion + 1.0F);
  return n < static_cast<float>(N) ? static_cast<std::size_t>(std::max(n, 0.0F)) : N;
}

// Parte tapada de la columna, contando o no la dirección este u oeste.
float FraccionTapada(const ColumnaHuecos& columna, Sector orientacion, float latitud, int mes,
                     bool conExtremo) {
  const DireccionesObstaculo d = DireccionesDeColumna(orientacion);
  std::size_t tapados = 0, direcciones = 0;
  for (std::size_t i = 0; i < d.cuantas; ++i) {
    if (!conExtremo && (d.sector[i] == oeste || d.sector[i] == este)) continue;
    ++direcciones;
    tapados += HuecosTapados(columna, columna.obstaculos[i], d.sector[i], latitud, mes);
  }
  const std::size_t total = columna.recintos.size() * direcciones;
  return total == 0 ? 0.0F : static_cast<float>(tapados) / static_cast<float>(total);
}

// Posición del sol a una hora solar entera del día representativo.
struct SolDelDia {
  float azimut, cenit;
};

SolDelDia SolRepresentativo(float latitud, int dia, int hora) {
  const float declinacion =
      23.45F * std::sin(static_cast<float>(dia + 284) * 360.0F / 365.25F * kGradosARadianes) *
      kGradosARadianes;
  const float omega = 15.0F * static_cast<float>(hora - 12) * kGradosARadianes;
  const float phi = latitud * kGradosARadianes;
  const float senoAltura = std::sin(phi) * std::sin(declinacion) +
                           std::cos(phi) * std::cos(declinacion) * std::cos(omega);
  const float azimut = std::atan2(std::cos(declinacion) * std::sin(omega),
                                  std::sin(phi) * std::cos(declinacion) * std::cos(omega) -
                                      std::cos(phi) * std::sin(declinacion));
  return {Grados(azimut), Grados(std::acos(std::clamp(senoAltura, -1.0F, 1.0F)))};
}

}  // namespace

ObstaculoCercano ObstaculoRemoto(Sector s, const ObstaculosRemotos& o) {
  switch (s) {
    case oeste:
      return {o.Oeste_Altura, o.Oeste_Distancia};
    case sur_oeste:
      return {o.SurOeste_Altura, o.SurOeste_Distancia};
    case sur:
      return {o.Sur_Altura, o.Sur_Distancia};
    case sur_este:
      return {o.SurEste_Altura, o.SurEste_Distancia};
    case este:
      return {o.Este_Altura, o.Este_Distancia};
    default:
      return {};
  }
}

AlturaEnDireccion AlturaSolEnDireccion(Sector direccion, float latitud, int mes) {
  AlturaEnDireccion salida;
  const float declinacion = kDeclinacionMes.at(static_cast<std::size_t>(mes));
  const bool extremo = direccion == oeste || direccion == este;
  if (extremo && !LlegaAlEste(latitud, declinacion)) {
    salida.dentro = false;
    return salida;
  }
  const float senoPhi = std::sin(latitud * kGradosARadianes);
  const float cosPhi = std::cos(latitud * kGradosARadianes);
  const float senoDelta = std::sin(declinacion * kGradosARadianes);
  const float cosGamma = extremo ? 0.0F : std::cos(kAzimutSector[direccion] * kGradosARadianes);
  // Segundo grado en el seno de la altura.
  const float k = cosGamma * cosGamma * cosPhi * cosPhi;
  const float a = senoPhi * senoPhi + k;
  const float b = -2.0F * senoPhi * senoDelta;
  const float c = senoDelta * senoDelta - k;
  float discriminante = b * b - 4.0F * a * c;
  if (std::fabs(discriminante) < kDiscriminanteNulo) discriminante = 0.0F;
  if (discriminante < 0.0F || a == 0.0F) {
    salida.hayRaiz = false;
    return salida;
  }
  const float x = std::clamp((-b + std::sqrt(discriminante)) / (2.0F * a), -1.0F, 1.0F);
  salida.tangente = std::tan(std::asin(x));
  return salida;
}

float FraccionObstaculos(Sector fachada, const ObstaculosRemotos& obstaculos, float latitud,
                         int mes, float alturaEdificio) {
  const DireccionesObstaculo d = DireccionesDeColumna(fachada);
  float suma = 0;
  int direcciones = 0;
  for (std::size_t i = 0; i < d.cuantas; ++i) {
    const AlturaEnDireccion sol = AlturaSolEnDireccion(d.sector[i], latitud, mes);
    if (!sol.dentro) continue;
    ++direcciones;
    if (!sol.hayRaiz || alturaEdificio == 0.0F) continue;
    const float tapado = AlturaSombra(ObstaculoRemoto(d.sector[i], obstaculos), sol);
    suma += std::clamp(tapado / alturaEdificio, 0.0F, 1.0F);
  }
  return direcciones == 0 ? 0.0F : suma / static_cast<float>(direcciones);
}

float SombraMuro(float area, float fueraDePlano, float fraccion, int perfilUso, bool verano) {
  const float enPlano = area - fueraDePlano;
  if (enPlano <= 0.0F) return -1.0F;
  if (perfilUso == 3) return 0.5F * (fraccion * area + fraccion * enPlano + fueraDePlano);
  return verano ? fraccion * area : fraccion * enPlano + fueraDePlano;
}

float FraccionSinObstaculos(const ColumnaHuecos& columna, Sector orientacion, float latitud,
                            int mes, int perfilUso, bool verano) {
  const float enVerano = 1.0F - FraccionTapada(columna, orientacion, latitud, mes, true);
  if (orientacion == sur) return enVerano;
  const float enInvierno = 1.0F - FraccionTapada(columna, orientacion, latitud, mes, false);
  if (perfilUso >= 3) return 0.5F * (enVerano + enInvierno);
  return verano ? enVerano : enInvierno;
}

float SombraPropia::FraccionSoleada(float t, float s) const {
  if (ancho <= 0.0F || alto <= 0.0F) return 0.0F;
  const float lateral = retranqueo * s;
  const float altura = longitudAlero * t <= distanciaAlero
                           ? retranqueo * t
                           : std::max(0.0F, (retranqueo + longitudAlero) * t - distanciaAlero);
  return std::max(ancho - lateral, 0.0F) * std::max(alto - altura, 0.0F) / (ancho * alto);
}

SolEnFachada MirarSol(float azimut, float cenit, float azimutFachada) {
  const float altura = 90.0F - cenit;
  const float relativo = std::fabs(azimut - azimutFachada);
  if (altura <= 0.0F || (relativo >= 90.0F && relativo <= 270.0F)) return {};
  const float r = relativo * kGradosARadianes;
  return {true, std::tan(altura * kGradosARadianes) / std::cos(r), std::fabs(std::tan(r))};
}

float FraccionSolCercana(const SombraPropia& sombra, Sector orientacion, float latitud, int mes) {
  constexpr std::array<int, 13> kDia = {0, 21, 51, 81, 110, 141, 172, 203, 236, 265, 296, 325, 356};
  if (!sombra.Hay()) return 1.0F;
  const Plano fachada(90.0F, kAzimutSector[orientacion]);
  float soleado = 0, total = 0;
  for (int hora = 5; hora <= 19; ++hora) {
    const SolDelDia sol = SolRepresentativo(latitud, kDia.at(static_cast<std::size_t>(mes)), hora);
    const SolEnFachada visto = MirarSol(sol.azimut, sol.cenit, kAzimutSector[orientacion]);
    if (!visto.delante) continue;
    const float peso =
        IrradianciaCieloClaro(sol.cenit, fachada.CosenoIncidencia(SolHora(sol.azimut, sol.cenit)));
    soleado += sombra.FraccionSoleada(visto.t, visto.s) * peso;
    total += peso;
  }
  return total == 0.0F ? 0.0F : soleado / total;
}

}  // namespace novex
