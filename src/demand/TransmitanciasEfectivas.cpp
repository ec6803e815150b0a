#include "demand/TransmitanciasEfectivas.h"

#include <algorithm>

#include "demand/TransmitanciaTerreno.h"

namespace novex {
namespace {

enum class Extra { Ninguna, Cubiertas, Muros, Suelos };

// Resistencias superficiales del papel de una posición y la medida que le añade resistencia.
struct Papel {
  bool cambiaPeliculas = true;
  float a = 0, b = 0;  // m2K/W
  Extra extra = Extra::Ninguna;
};

Papel PapelDe(std::size_t posicion) {
  using namespace ranura;
  switch (posicion) {
    case TechoExt1:
    case TechoExt2:
    case TechoExt3:
    case TechoInc1:
    case TechoInc2:
    case TechoInc3:
    case TechoTerr1:
    case TechoTerr2:
      return {true, 0.04F, 0.1F, Extra::Cubiertas};
    case TechoVent1:
    case TechoVent2:
    case TechoVent3:
    case TechoVent4:
      return {true, 0.1F, 0.1F, Extra::Cubiertas};
    case MuroExt1:
    case MuroExt2:
    case MuroExt3:
    case MuroExt4:
    case MuroExt5:
      return {false, 0, 0, Extra::Muros};
    case MuroOtro3:
    case MuroOtro7:
      return {true, 0.13F, 0.13F, Extra::Muros};
    case MuroTerr1:
    case MuroTerr2:
      return {true, 0.13F, 0, Extra::Muros};
    case MuroExt6:
    case MuroExt7:
      return {false, 0, 0, Extra::Ninguna};
    case SueloExt1:
    case SueloExt2:
      return {true, 0.04F, 0.17F, Extra::Suelos};
    case SueloVent1:
    case SueloVent3:
    case SueloOtro1:
    case SueloOtro3:
      return {true, 0.17F, 0.17F, Extra::Suelos};
    case SueloTerr1:
    case SueloTerr2:
    case SueloTerr3:
      return {true, 0.17F, 0, Extra::Suelos};
    case MuroExt8:
    case MuroExt9:
    case SueloOtro2:
    case SueloOtro4:
    case SueloInt1:
    case SueloInt2:
    case SueloInt3:
    case SueloInt4:
      return {true, 0.17F, 0.17F, Extra::Ninguna};
    case TechoOtro1:
    case TechoOtro2:
    case TechoInt1:
    case TechoInt2:
    case TechoInt3:
    case TechoInt4:
      return {true, 0.1F, 0.1F, Extra::Ninguna};
    default:
      return {true, 0.13F, 0.13F, Extra::Ninguna};  // muros interiores y medianeras
  }
}

float ResistenciaExtra(Extra extra, const Forzados& f) {
  switch (extra) {
    case Extra::Cubiertas:
      return f.ExtraRCubiertas;
    case Extra::Muros:
      return f.ExtraRMuros;
    case Extra::Suelos:
      return f.ExtraRSuelos;
    case Extra::Ninguna:
      break;
  }
  return 0;
}

float Inversa(float x) {
  return x == 0.0F ? 0.0F : 1.0F / x;
}

// Relación de áreas y b por aislamiento relativo y ventilación: más aislado, igual y menos aislado,
// cada uno poco y muy ventilado.
constexpr std::array<float, 8> kRelaciones = {0.25F, 0.5F, 0.75F, 1, 1.25F, 2, 2.5F, 3};
constexpr std::array<std::array<float, 6>, 9> kFactorB = {{
    {{0.99F, 1, 0.94F, 0.97F, 0.91F, 0.96F}},
    {{0.97F, 0.99F, 0.85F, 0.92F, 0.77F, 0.9F}},
    {{0.96F, 0.98F, 0.77F, 0.87F, 0.67F, 0.84F}},
    {{0.94F, 0.97F, 0.7F, 0.83F, 0.59F, 0.79F}},
    {{0.92F, 0.96F, 0.65F, 0.79F, 0.53F, 0.74F}},
    {{0.89F, 0.95F, 0.56F, 0.73F, 0.44F, 0.67F}},
    {{0.86F, 0.93F, 0.48F, 0.66F, 0.36F, 0.59F}},
    {{0.83F, 0.91F, 0.43F, 0.61F, 0.32F, 0.54F}},
    {{0.81F, 0.9F, 0.39F, 0.57F, 0.28F, 0.5F}},
}};

// Elemento a un espacio no acondicionado, con el cerramiento exterior de este.
struct ParNoAcondicionado {
  std::size_t interior, exterior;
  float Ainterior, Aexterior;
  int clase;
};

std::array<ParNoAcondicionado, 6> ParesNoAcondicionados(const Recinto& r, const Construccion& c) {
  using namespace ranura;
  return {{{MuroOtro3, MuroExt6, r.Muro_otro_local_m2[0], r.Muro_otro_local_ext_m2[0],
            c.Renovacion_Otro_Local[0]},
           {MuroOtro7, MuroExt7, r.Muro_otro_local_m2[1], r.Muro_otro_local_ext_m2[1],
            c.Renovacion_Otro_Local[1]},
           {TechoVent1, TechoVent2, r.Cubierta_techo_ventilado_m2[0],
            r.Cubierta_buhardilla_ext_m2[0], c.Renovacion_Buhardilla[0]},
           {TechoVent3, TechoVent4, r.Cubierta_techo_ventilado_m2[1],
            r.Cubierta_buhardilla_ext_m2[1], c.Renovacion_Buhardilla[1]},
           {SueloVent1, MuroExt8, r.Suelo_otro_local_m2[0], r.Suelo_otro_local_ext_m2[0],
            c.Renovacion_Otro_Local_suelo[0]},
           {SueloVent3, MuroExt9, r.Suelo_otro_local_m2[1], r.Suelo_otro_local_ext_m2[1],
            c.Renovacion_Otro_Local_suelo[1]}}};
}

float USolera(const SueloTerreno& suelo, float area, float perimetro, float U) {
  constexpr float kProfundidadSuperficial = 0.5F;
  constexpr float kAnchuraContinuo = 1.5F;
  const float B = DimensionCaracteristica(area, perimetro);
  if (suelo.Profundidad_suelo_enterrado_m > kProfundidadSuperficial)
    return USoleraProfunda(B, Inversa(U) - 0.17F, suelo.Profundidad_suelo_enterrado_m);
  if (suelo.Tipo_aislamiento_suelo == "Continuo")
    return USoleraSuperficial(B, kAnchuraContinuo, suelo.Ra_Resitencia_aislante_m2K_W);
  if (suelo.Tipo_aislamiento_suelo == "Periferico")
    return USoleraSuperficial(B, suelo.D_Longitud_aislamiento_m,
                              suelo.Ra_Resitencia_aislante_m2K_W);
  return USoleraSuperficial(B, 0, 0);
}

void EquivalentesDelTerreno(const Recinto& r, const Construccion& c, ResultadosCaso& res) {
  for (std::size_t i = 0; i < 2; ++i) {
    const std::size_t muro = ranura::MuroTerr1 + i;
    if (res.Uefectiva[muro] > 0)
      res.Uequivalente[muro] =
          UMuroTerreno(1 / res.Uefectiva[muro] - 0.13F, c.Profundidad_muro_enterrado_m[i]);
    const std::size_t camara = ranura::SueloOtro1 + i;
    if (res.Uefectiva[camara] > 0)
      res.Uequivalente[camara] =
          UCamaraSanitaria(DimensionCaracteristica(r.Suelo_vacio_sanitario_m2[i],
                                                   r.Perimetro_Ext_Vacio_Sanitario_m[i]),
                           1 / res.Uefectiva[camara] - 0.34F);
  }
  for (std::size_t i = 0; i < 3; ++i) {
    const std::size_t solera = ranura::SueloTerr1 + i;
    if (res.Uefectiva[solera] > 0)
      res.Uequivalente[solera] = USolera(c.suelosTerreno[i], r.Suelo_al_terreno_m2[i],
                                         r.Perimetro_Ext_Suelo_Terreno_m[i], res.Uefectiva[solera]);
  }
}

}  // namespace

float ResistenciaAnadida(std::size_t posicion, const Forzados& forzados) {
  return ResistenciaExtra(PapelDe(posicion).extra, forzados);
}

std::array<float, kRanuras> TransmitanciasEfectivas(const Edificio& edificio,
                                                    const Forzados& forzados) {
  // Las composiciones traen las dos resistencias de una pared exterior: 0,13 y 0,04.
  constexpr float kPeliculas = 0.13F + 0.04F;
  const bool valenPeliculas = edificio.GetConstruccion().resistenciasSuperficiales == "Si";
  std::array<float, kRanuras> efectiva{};
  for (std::size_t i = 0; i < kRanuras; ++i) {
    const float U = edificio.GetComposicion(i).U;
    if (U == 0.0F) continue;
    const Papel papel = PapelDe(i);
    const float R = papel.cambiaPeliculas && !valenPeliculas
                        ? 1.0F / U - kPeliculas + papel.a + papel.b
                        : 1.0F / U;
    efectiva[i] = Inversa(R + ResistenciaExtra(papel.extra, forzados));
  }
  return efectiva;
}

float FactorLocalNoHabitable(float UAinterior, float UAexterior, int claseRenovacion) {
  constexpr std::array<float, 5> kRenovaciones = {0, 0.5F, 1, 5, 10};
  if (UAinterior + UAexterior <= 0.0F) return 0.0F;
  const auto clase = static_cast<std::size_t>(std::clamp(claseRenovacion, 0, 4));
  const float k = (1.0F + 0.15F * kRenovaciones[clase]) * UAexterior;
  return std::clamp(k / (k + UAinterior), 0.28F, 1.0F);
}

float FactorReduccionB(float Ainterior, float Uinterior, float Aexterior, float Uexterior,
                       int claseRenovacion) {
  if (Ainterior <= 0.0F && Aexterior <= 0.0F) return 0.0F;
  if (Aexterior <= 0.0F) Aexterior = 0.1F * Ainterior;
  const float relacion = Ainterior / Aexterior;
  std::size_t columna = 2;  // igual de aislados
  if (Uinterior * 1.2F < Uexterior)
    columna = 0;
  else if (Uexterior * 1.2F < Uinterior)
    columna = 4;
  if (claseRenovacion > 2) ++columna;
  if (relacion > kRelaciones.back()) return kFactorB.back()[columna];
  if (relacion <= kRelaciones.front()) return kFactorB.front()[columna];
  std::size_t i = 0;
  while (relacion > kRelaciones[i + 1]) ++i;
  const float fraccion = (relacion - kRelaciones[i]) / (kRelaciones[i + 1] - kRelaciones[i]);
  return kFactorB[i][columna] + fraccion * (kFactorB[i + 1][columna] - kFactorB[i][columna]);
}

void ConstantesDeInforme(const Edificio& edificio, ResultadosCaso& resultados) {
  const Recinto& r = edificio.GetRecinto(0);
  const Construccion& c = edificio.GetConstruccion();
  resultados.Uequivalente = {};
  resultados.factorNoAcondicionado = {};
  resultados.bU = {};
  EquivalentesDelTerreno(r, c, resultados);
  for (const auto& par : ParesNoAcondicionados(r, c)) {
    const float U = resultados.Uefectiva[par.interior];
    const float b = FactorReduccionB(par.Ainterior, U, par.Aexterior,
                                     resultados.Uefectiva[par.exterior], par.clase);
    resultados.factorNoAcondicionado[par.interior] = b;
    resultados.bU[par.interior] = b * U;
  }
}

}  // namespace novex
