#include "demand/RespuestaZona.h"

#include <algorithm>
#include <numeric>

#include "demand/TransmitanciasEfectivas.h"

namespace novex {
namespace {

using SerieZ = std::array<float, kTerminosZona>;

// Factores de respuesta de cada familia, W/m2K por hora de retardo. Los de muro exterior, cubierta
// y suelo son de un elemento de referencia y se escalan a la U de cada uno; los demás suman 0: solo
// acumulan.
constexpr SerieZ kZMuroExterior = {-5.0613236F, 1.762527F,   0.98505014F, 0.62172157F, 0.3944478F,
                                   0.25155923F, 0.16139548F, 0.10426067F, 0.06787614F, 0.04457217F,
                                   0.0295471F,  0.01978673F, 0.01339282F, 0.00916533F, 0.00634217F,
                                   0.0044368F,  0.00313667F, 0.00223962F, 0.00161381F, 0.00117253F,
                                   0.00085818F, 0.00063213F, 0.00046816F, 0.00034829F};
constexpr SerieZ kZMuroTerreno = {-5.350886F,  1.2105969F,  0.5663152F,  0.3793238F,  0.28225014F,
                                  0.22301286F, 0.18375292F, 0.15626128F, 0.13618392F, 0.12101081F,
                                  0.1092024F,  0.7046866F,  0.09215204F, 0.08580955F, 0.52644527F,
                                  0.07591285F, 0.07197527F, 0.06853598F, 0.06550242F, 0.06280293F,
                                  0.06038124F, 0.05819262F, 0.05620113F, 0.05437761F};
constexpr SerieZ kZMuroAdiabatico = {
    -5.1268907F, 1.4684786F,  0.7801049F,  0.59806055F, 0.47368565F, 0.37617376F,
    0.29880303F, 0.23735446F, 0.18854769F, 0.14978167F, 0.1189908F,  0.09453436F,
    0.07510921F, 0.05968029F, 0.04742548F, 0.03769178F, 0.02996054F, 0.02381981F,
    0.01894238F, 0.01506836F, 0.01199131F, 0.00954729F, 0.00760607F, 0.00553248F};
constexpr SerieZ kZCubierta = {-7.7114596F, 1.4381334F,  0.7686557F,  0.55748653F, 0.44596308F,
                               0.37721267F, 0.33136314F, 0.2991266F,  0.27539787F, 0.25713205F,
                               0.24244481F, 0.23015083F, 0.21949814F, 0.21000674F, 0.2013682F,
                               0.19338252F, 0.18591844F, 0.17888832F, 0.1722323F,  0.16590825F,
                               0.15988539F, 0.15414038F, 0.14865464F, 0.14341286F};
constexpr SerieZ kZCubiertaAdiabatica = {
    -6.663538F,  1.4147455F,  0.6843439F,  0.48714292F, 0.38702062F, 0.3282756F,
    0.2910089F,  0.265615F,   0.24697173F, 0.23226953F, 0.21995255F, 0.20915353F,
    0.19938473F, 0.19036806F, 0.18194132F, 0.17400669F, 0.16650216F, 0.15938595F,
    0.15262765F, 0.1462036F,  0.14009415F, 0.13428213F, 0.1287521F,  0.12348989F};
constexpr SerieZ kZSuelo = {-4.824067F,  1.5160882F,  0.9895315F,  0.64713126F, 0.42344722F,
                            0.27727824F, 0.18173756F, 0.11926976F, 0.07840965F, 0.05166858F,
                            0.03415485F, 0.02267288F, 0.01513501F, 0.01017718F, 0.00690807F,
                            0.00474514F, 0.00330756F, 0.0023463F,  0.00169846F, 0.00125738F,
                            0.00095319F, 0.00074008F, 0.00058793F, 0.00047693F};
constexpr SerieZ kZSueloTerreno = {-4.8741016F, 0.6034523F,  0.40423197F, 0.33728695F, 0.2951556F,
                                   0.26518968F, 0.24247F,    0.22452001F, 0.20991556F, 0.19776526F,
                                   0.18747674F, 0.17863835F, 0.17095375F, 0.16420355F, 0.1582215F,
                                   0.15287916F, 0.14807566F, 0.14373058F, 0.13977903F, 0.13616805F,
                                   0.13285394F, 0.12980033F, 0.12697665F, 0.124357F};
constexpr SerieZ kZSueloAdiabatico = {
    -4.7647557F, 0.74199396F, 0.4300989F,  0.32956445F, 0.27733597F, 0.24657951F,
    0.22679165F, 0.21284173F, 0.2020857F,  0.19314295F, 0.02382326F, 0.1781374F,
    0.17148466F, 0.16521703F, 0.15927029F, 0.1536058F,  0.14819854F, 0.14303067F,
    0.13808845F, 0.13336034F, 0.1288362F,  0.12450677F, 0.12036345F, 0.1163981F};
constexpr SerieZ kZTabique = {-4.299487F,  1.7842946F,  0.961994F,   0.5939641F,  0.36683634F,
                              0.22656117F, 0.13992645F, 0.08642035F, 0.05337468F, 0.03296549F,
                              0.02036066F, 0.01257585F, 0.0077679F,  0.00479849F, 0.00296456F,
                              0.00183192F, 0.00113239F, 0.00070036F, 0.00043353F, 0.00026874F,
                              0.00016696F, 0.00010411F, 3.28e-06F,   4.131e-05F};
constexpr SerieZ kZForjado = {-15.208361F, 2.7592876F,  1.5617615F,  1.2948961F,  1.1432326F,
                              1.0194352F,  0.91044796F, 0.8133541F,  0.7266897F,  0.64926237F,
                              0.5799968F,  0.51840127F, 0.46326974F, 0.41403422F, 0.37006414F,
                              0.3307963F,  0.29572782F, 0.26440963F, 0.23644064F, 0.2114627F,
                              0.18915594F, 0.16923468F, 0.15144382F, 0.13555554F};

// El suelo sobre el exterior solo lleva los nueve primeros términos.
constexpr std::size_t kTerminosSueloExterior = 9;

template <typename Lista>
float Suma(const Lista& lista) {
  return std::accumulate(lista.begin(), lista.end(), 0.0F);
}

// Construye los factores elemento a elemento.
class Acumulador {
 public:
  explicit Acumulador(RespuestaZona& zona) : zona_(zona) {}

  // Elemento que intercambia con el exterior: sus términos suman -A·U.
  void Exterior(const SerieZ& z, float area, float U, std::size_t terminos = kTerminosZona) {
    if (area <= 0.0F) return;
    const float S = std::accumulate(z.begin() + 1, z.end(), 0.0F);
    const float escala = -(z[0] + U) / S;
    zona_.F1[0] += area * z[0];
    for (std::size_t k = 1; k < terminos; ++k) zona_.F1[k] += area * z[k] * escala;
    zona_.K += area * U;
  }

  // Elemento a un espacio no acondicionado: su área se reduce por b. Sin alguna de las dos
  // conductancias no toma parte.
  void NoAcondicionado(const SerieZ& z, float area, float U, float UAexterior, int clase) {
    const float UAinterior = area * U;
    if (UAinterior <= 0.0F || UAexterior <= 0.0F) return;
    Exterior(z, area * FactorLocalNoHabitable(UAinterior, UAexterior, clase), U);
  }

  // Elemento que solo acumula.
  void Acumulacion(const SerieZ& z, float area) {
    if (area <= 0.0F) return;
    for (std::size_t k = 0; k < kTerminosZona; ++k) zona_.F1[k] += area * z[k];
  }

 private:
  RespuestaZona& zona_;
};

void AnadirMuros(const Recinto& r, const Construccion& c, const std::array<float, kRanuras>& U,
                 Acumulador& zona) {
  for (std::size_t t = 0; t < r.Muro_ext_m2.size(); ++t)
    for (const float area : r.Muro_ext_m2[t])
      zona.Exterior(kZMuroExterior, area, U[ranura::MuroExt1 + t]);
  constexpr std::array kInterior = {ranura::MuroOtro3, ranura::MuroOtro7};
  constexpr std::array kExterior = {ranura::MuroExt6, ranura::MuroExt7};
  for (std::size_t i = 0; i < 2; ++i) {
    zona.NoAcondicionado(kZMuroExterior, r.Muro_otro_local_m2[i], U[kInterior[i]],
                         r.Muro_otro_local_ext_m2[i] * U[kExterior[i]], c.Renovacion_Otro_Local[i]);
    zona.Acumulacion(kZMuroTerreno, r.Muro_al_terreno_m2[i]);
    zona.Acumulacion(kZMuroAdiabatico, r.Muro_adiabatico_m2[i]);
  }
}

void AnadirCubiertas(const Recinto& r, const Construccion& c, const std::array<float, kRanuras>& U,
                     Acumulador& zona) {
  for (std::size_t t = 0; t < 3; ++t) {
    zona.Exterior(kZCubierta, r.Cubierta_horiz_sol_m2[t], U[ranura::TechoExt1 + t]);
    for (const float area : r.Cubierta_incl_m2[t])
      zona.Exterior(kZCubierta, area, U[ranura::TechoInc1 + t]);
  }
  constexpr std::array kInterior = {ranura::TechoVent1, ranura::TechoVent3};
  constexpr std::array kExterior = {ranura::TechoVent2, ranura::TechoVent4};
  for (std::size_t i = 0; i < 2; ++i) {
    zona.Exterior(kZCubierta, r.Cubierta_terreno_m2[i], U[ranura::TechoTerr1 + i]);
    zona.NoAcondicionado(kZCubierta, r.Cubierta_techo_ventilado_m2[i], U[kInterior[i]],
                         r.Cubierta_buhardilla_ext_m2[i] * U[kExterior[i]],
                         c.Renovacion_Buhardilla[i]);
    zona.Acumulacion(kZCubiertaAdiabatica, r.Cubierta_adiabatico_m2[i]);
  }
}

void AnadirSuelos(const Recinto& r, const Construccion& c, const std::array<float, kRanuras>& U,
                  Acumulador& zona) {
  constexpr int kCamaraMuyVentilada = 4;
  constexpr std::array kInterior = {ranura::SueloVent1, ranura::SueloVent3};
  constexpr std::array kExterior = {ranura::MuroExt8, ranura::MuroExt9};
  for (std::size_t i = 0; i < 2; ++i) {
    zona.Exterior(kZSuelo, r.Suelo_ext_m2[i], U[ranura::SueloExt1 + i], kTerminosSueloExterior);
    zona.NoAcondicionado(kZSuelo, r.Suelo_otro_local_m2[i], U[kInterior[i]],
                         r.Suelo_otro_local_ext_m2[i] * U[kExterior[i]],
                         c.Renovacion_Otro_Local_suelo[i]);
    const float Ucamara = U[ranura::SueloOtro1 + i];
    zona.NoAcondicionado(kZSuelo, r.Suelo_vacio_sanitario_m2[i], Ucamara,
                         r.Suelo_vacio_sanitario_m2[i] * Ucamara, kCamaraMuyVentilada);
    zona.Acumulacion(kZSueloAdiabatico, r.Suelo_adiabatico_m2[i]);
  }
  for (const float area : r.Suelo_al_terreno_m2) zona.Acumulacion(kZSueloTerreno, area);
}

}  // namespace

RespuestaZona PrepararRespuestaZona(const Edificio& edificio,
                                    const std::array<float, kRanuras>& Uefectiva) {
  const Recinto& r = edificio.GetRecinto(0);
  const Construccion& c = edificio.GetConstruccion();
  RespuestaZona zona;
  Acumulador acumulador(zona);
  AnadirMuros(r, c, Uefectiva, acumulador);
  AnadirCubiertas(r, c, Uefectiva, acumulador);
  AnadirSuelos(r, c, Uefectiva, acumulador);
  const float suelos = Suma(r.Suelo_ext_m2) + Suma(r.Suelo_otro_local_m2) +
                       Suma(r.Suelo_vacio_sanitario_m2) + Suma(r.Suelo_al_terreno_m2) +
                       Suma(r.Suelo_adiabatico_m2);
  const float interior = std::max(0.0F, r.Suelo_habitable_m2 - suelos);
  for (std::size_t k = 0; k < kTerminosZona; ++k) {
    zona.F2[k] = r.Suelo_habitable_m2 * kZTabique[k];
    zona.F3[k] = interior * kZForjado[k];
  }
  return zona;
}

}  // namespace novex
