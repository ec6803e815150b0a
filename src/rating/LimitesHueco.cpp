#include "rating/LimitesHueco.h"

#include <array>
#include <string>

namespace novex {
namespace {

constexpr std::array<float, 5> kProporciones = {0.1F, 0.2F, 0.3F, 0.4F, 0.5F};

// [clase de orientación: norte; este y oeste; sur y sus esquinas][proporción][letra A a E], W/m2K.
constexpr std::array<std::array<std::array<float, 5>, 6>, 3> kULimite = {{
    {{{{5.7F, 5.4F, 4.4F, 3.5F, 3.1F}},
      {{4.7F, 3.8F, 3.4F, 3.0F, 3.1F}},
      {{4.1F, 3.3F, 2.9F, 2.5F, 2.6F}},
      {{3.8F, 3.0F, 2.6F, 2.2F, 2.2F}},
      {{3.5F, 2.8F, 2.4F, 2.1F, 2.0F}},
      {{3.4F, 2.7F, 2.2F, 1.9F, 1.9F}}}},
    {{{{5.7F, 5.7F, 4.4F, 3.5F, 3.1F}},
      {{5.7F, 4.9F, 3.9F, 3.5F, 3.1F}},
      {{5.5F, 4.3F, 3.3F, 2.9F, 3.0F}},
      {{5.2F, 4.0F, 3.0F, 2.6F, 2.7F}},
      {{5.0F, 3.7F, 2.8F, 2.5F, 2.4F}},
      {{4.8F, 3.6F, 2.7F, 2.3F, 2.3F}}}},
    {{{{5.7F, 5.7F, 4.4F, 3.5F, 3.1F}},
      {{5.7F, 5.7F, 4.4F, 3.5F, 3.1F}},
      {{5.7F, 5.7F, 4.3F, 3.5F, 3.1F}},
      {{5.7F, 5.6F, 3.9F, 3.4F, 3.1F}},
      {{5.7F, 5.4F, 3.6F, 3.2F, 3.1F}},
      {{5.7F, 5.2F, 3.5F, 3.0F, 3.0F}}}},
}};

// Bandas de transmitancia de un vidrio con su factor solar y lo que este crece en la banda.
constexpr std::array<float, 20> kUBanda = {5.7F, 5.5F, 5.3F, 5.1F, 4.9F, 4.7F, 4.5F,
                                           4.3F, 4.1F, 3.9F, 3.7F, 3.5F, 3.3F, 3.1F,
                                           2.9F, 2.7F, 2.5F, 2.3F, 2.1F, 1.9F};
constexpr std::array<float, 20> kFactorBanda = {0.86F, 0.85F, 0.84F, 0.83F, 0.83F, 0.82F, 0.81F,
                                                0.8F,  0.79F, 0.78F, 0.77F, 0.76F, 0.74F, 0.73F,
                                                0.72F, 0.7F,  0.68F, 0.67F, 0.65F, 0.63F};
constexpr std::array<float, 20> kPasoBanda = {0,     0.01F, 0.01F, 0.01F, 0,     0.01F, 0.01F,
                                              0.01F, 0.01F, 0.01F, 0.01F, 0.01F, 0.02F, 0,
                                              0,     0,     0,     0,     0,     0.02F};
constexpr float kFactorMinimo = 0.63F;

// Límites por proporción de huecos hasta 0,3, 0,4, 0,5 y mayor; por carga baja y alta; y por este y
// oeste, sur, y sureste y suroeste. 0 es sin límite.
struct LimitesZona {
  std::string_view zona;
  std::array<std::array<std::array<float, 3>, 2>, 4> limite;
};
constexpr LimitesZona kLimites[] = {
    {"A3",
     {{{{{{0, 0, 0}}, {{0.6F, 0, 0}}}},
       {{{{0, 0, 0}}, {{0.48F, 0, 0.51F}}}},
       {{{{0.57F, 0, 0.6F}}, {{0.41F, 0.57F, 0.44F}}}},
       {{{{0.5F, 0, 0.54F}}, {{0.36F, 0.51F, 0.39F}}}}}}},
    {"A4",
     {{{{{{0, 0, 0}}, {{0.56F, 0, 0.57F}}}},
       {{{{0.57F, 0, 0.58F}}, {{0.43F, 0.59F, 0.44F}}}},
       {{{{0.47F, 0, 0.48F}}, {{0.35F, 0.49F, 0.37F}}}},
       {{{{0.4F, 0.55F, 0.42F}}, {{0.3F, 0.42F, 0.32F}}}}}}},
    {"B3",
     {{{{{{0, 0, 0}}, {{0.57F, 0, 0}}}},
       {{{{0, 0, 0}}, {{0.45F, 0, 0.5F}}}},
       {{{{0.53F, 0, 0.59F}}, {{0.38F, 0.57F, 0.43F}}}},
       {{{{0.46F, 0, 0.52F}}, {{0.33F, 0.51F, 0.38F}}}}}}},
    {"B4",
     {{{{{{0, 0, 0}}, {{0.55F, 0, 0.57F}}}},
       {{{{0.55F, 0, 0.58F}}, {{0.42F, 0.59F, 0.44F}}}},
       {{{{0.45F, 0, 0.48F}}, {{0.34F, 0.49F, 0.36F}}}},
       {{{{0.39F, 0.55F, 0.41F}}, {{0.29F, 0.42F, 0.31F}}}}}}},
    {"C1",
     {{{{{{0, 0, 0}}, {{0, 0, 0}}}},
       {{{{0, 0, 0}}, {{0.56F, 0, 0.6F}}}},
       {{{{0, 0, 0}}, {{0.47F, 0, 0.52F}}}},
       {{{{0, 0, 0}}, {{0.42F, 0, 0.46F}}}}}}},
    {"C2",
     {{{{{{0, 0, 0}}, {{0.6F, 0, 0}}}},
       {{{{0, 0, 0}}, {{0.47F, 0, 0.51F}}}},
       {{{{0.59F, 0, 0}}, {{0.4F, 0.58F, 0.43F}}}},
       {{{{0.51F, 0, 0.55F}}, {{0.35F, 0.52F, 0.38F}}}}}}},
    {"C3",
     {{{{{{0, 0, 0}}, {{0.55F, 0, 0.59F}}}},
       {{{{0, 0, 0}}, {{0.43F, 0, 0.46F}}}},
       {{{{0.51F, 0, 0.54F}}, {{0.35F, 0.52F, 0.39F}}}},
       {{{{0.43F, 0, 0.47F}}, {{0.31F, 0.46F, 0.34F}}}}}}},
    {"C4",
     {{{{{{0, 0, 0}}, {{0.54F, 0, 0.56F}}}},
       {{{{0.54F, 0, 0.56F}}, {{0.41F, 0.57F, 0.43F}}}},
       {{{{0.47F, 0, 0.46F}}, {{0.34F, 0.47F, 0.35F}}}},
       {{{{0.38F, 0.53F, 0.39F}}, {{0.29F, 0.4F, 0.3F}}}}}}},
    {"D1",
     {{{{{{0, 0, 0}}, {{0, 0, 0}}}},
       {{{{0, 0, 0}}, {{0.54F, 0, 0.58F}}}},
       {{{{0, 0, 0}}, {{0.45F, 0, 0.49F}}}},
       {{{{0, 0, 0}}, {{0.4F, 0.57F, 0.44F}}}}}}},
    {"D2",
     {{{{{{0, 0, 0}}, {{0.58F, 0, 0.61F}}}},
       {{{{0, 0, 0}}, {{0.46F, 0, 0.49F}}}},
       {{{{0, 0, 0.61F}}, {{0.38F, 0.54F, 0.41F}}}},
       {{{{0.49F, 0, 0.53F}}, {{0.33F, 0.48F, 0.36F}}}}}}},
    {"D3",
     {{{{{{0, 0, 0}}, {{0.54F, 0, 0.57F}}}},
       {{{{0, 0, 0}}, {{0.42F, 0.58F, 0.45F}}}},
       {{{{0.5F, 0, 0.53F}}, {{0.35F, 0.49F, 0.37F}}}},
       {{{{0.42F, 0.61F, 0.46F}}, {{0.3F, 0.43F, 0.32F}}}}}}},
    {"E1",
     {{{{{{0, 0, 0}}, {{0, 0, 0}}}},
       {{{{0, 0, 0}}, {{0.54F, 0, 0.56F}}}},
       {{{{0, 0, 0}}, {{0.45F, 0.6F, 0.49F}}}},
       {{{{0, 0, 0}}, {{0.4F, 0.54F, 0.43F}}}}}}},
};

enum Clase : std::size_t { kNorte, kEsteOeste, kSur };

Clase ClaseDe(Sector o) {
  if (o == norte) return kNorte;
  return o == este || o == oeste ? kEsteOeste : kSur;
}

std::size_t BandaProporcion(float f) {
  std::size_t i = 0;
  while (i < kProporciones.size() && f > kProporciones[i]) ++i;
  return i;
}

// Zona de la tabla: sin la marca de las islas, alfa como A, y las de verano suave como la 3.
std::string ZonaDeTabla(std::string_view zona) {
  constexpr std::string_view kAlfa = "alfa";
  std::string z(zona);
  if (z.ends_with('c')) z.pop_back();
  if (z.starts_with(kAlfa)) z = "A" + z.substr(kAlfa.size());
  if (z == "A1" || z == "A2" || z == "B1" || z == "B2") z[1] = '3';
  return z;
}

}  // namespace

char LetraInvierno(std::string_view zona) {
  const char letra = zona.empty() ? 'A' : zona[0];
  return letra >= 'A' && letra <= 'E' ? letra : 'A';
}

float ULimiteHueco(char letra, Sector orientacion, float proporcion) {
  return kULimite[ClaseDe(orientacion)][BandaProporcion(proporcion)]
                 [static_cast<std::size_t>(letra - 'A')];
}

float FactorSolarDeU(float U) {
  for (std::size_t i = 0; i < kUBanda.size(); ++i)
    if (U >= kUBanda[i]) return kFactorBanda[i] + (U - kUBanda[i]) * 5.0F * kPasoBanda[i];
  return kFactorMinimo;
}

float FactorSolarLimite(std::string_view zona, Sector orientacion, float proporcion,
                        int perfilUso) {
  const std::size_t banda = BandaProporcion(proporcion);
  if (orientacion == norte || banda < 2 || perfilUso < 3 || perfilUso > 14) return 0.0F;
  std::size_t columna = 2;
  if (orientacion == este || orientacion == oeste) columna = 0;
  if (orientacion == sur) columna = 1;
  const std::string buscada = ZonaDeTabla(zona);
  for (const LimitesZona& fila : kLimites) {
    if (fila.zona != buscada) continue;
    const float baja = fila.limite[banda - 2][0][columna];
    const float alta = fila.limite[banda - 2][1][columna];
    const int carga = perfilUso % 3;  // 0 baja, 1 media, 2 alta
    if (carga == 0) return baja;
    if (carga == 2) return alta;
    return baja > 0.0F && alta > 0.0F ? 0.5F * (baja + alta) : 0.0F;
  }
  return 0.0F;
}

}  // namespace novex
