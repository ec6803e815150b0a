#include "reference/ValoresPuentes.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace novex {
namespace {

struct ValorPuente {
  float U;   // W/mK
  float fi;  // factor de temperatura
};

constexpr std::size_t kLetras = 5;
constexpr int kModoZona = 5;

// Zonas de cada letra, de A a E. Las que faltan no tienen valores de soluciones constructivas.
constexpr std::array<std::string_view, 4> kZonasA = {"A4", "A3", "A2c", "alfa3c"};
constexpr std::array<std::string_view, 3> kZonasB = {"B4", "B3", "B2c"};
constexpr std::array<std::string_view, 5> kZonasC = {"C4", "C3", "C2", "C1", "C2c"};
constexpr std::array<std::string_view, 3> kZonasD = {"D3", "D2", "D1"};
constexpr std::array<std::string_view, 1> kZonasE = {"E1"};
constexpr std::array<std::span<const std::string_view>, kLetras> kZonasLetra = {
    kZonasA, kZonasB, kZonasC, kZonasD, kZonasE};

constexpr std::array kPuentesSolucion = {puente_forjados, puente_cubiertas, puente_suelo_exterior,
                                         puente_esquina_saliente, puente_suelo_terreno};
using FilaSolucion = std::array<ValorPuente, kPuentesSolucion.size()>;

// [modo][letra][puente de `kPuentesSolucion`]: frente de forjado sin aislar, aislado y aislamiento
// continuo. La transmitancia negativa del continuo es la del catálogo: la pérdida ya va en el muro.
constexpr std::array<std::array<FilaSolucion, kLetras>, 3> kSoluciones = {{
    {{
        {{{0.41F, 0.70F}, {0.36F, 0.67F}, {0.33F, 0.49F}, {0.08F, 0.79F}, {0.12F, 0.66F}}},
        {{{0.42F, 0.72F}, {0.38F, 0.69F}, {0.33F, 0.61F}, {0.08F, 0.81F}, {0.12F, 0.68F}}},
        {{{0.41F, 0.75F}, {0.38F, 0.71F}, {0.33F, 0.63F}, {0.08F, 0.82F}, {0.12F, 0.70F}}},
        {{{0.41F, 0.76F}, {0.38F, 0.72F}, {0.33F, 0.65F}, {0.08F, 0.84F}, {0.12F, 0.72F}}},
        {{{0.39F, 0.79F}, {0.38F, 0.74F}, {0.33F, 0.67F}, {0.08F, 0.85F}, {0.12F, 0.78F}}},
    }},
    {{
        {{{0.11F, 0.78F}, {0.34F, 0.49F}, {0.33F, 0.49F}, {0.08F, 0.79F}, {0.12F, 0.66F}}},
        {{{0.14F, 0.79F}, {0.34F, 0.61F}, {0.33F, 0.61F}, {0.08F, 0.81F}, {0.12F, 0.68F}}},
        {{{0.17F, 0.81F}, {0.34F, 0.63F}, {0.33F, 0.63F}, {0.08F, 0.82F}, {0.12F, 0.70F}}},
        {{{0.18F, 0.82F}, {0.34F, 0.65F}, {0.33F, 0.65F}, {0.08F, 0.84F}, {0.12F, 0.72F}}},
        {{{0.21F, 0.83F}, {0.34F, 0.67F}, {0.33F, 0.67F}, {0.08F, 0.85F}, {0.12F, 0.78F}}},
    }},
    {{
        {{{-0.05F, 0.85F}, {0.19F, 0.79F}, {0.19F, 0.81F}, {0.16F, 0.76F}, {0.12F, 0.66F}}},
        {{{-0.04F, 0.87F}, {0.19F, 0.81F}, {0.19F, 0.81F}, {0.16F, 0.78F}, {0.12F, 0.68F}}},
        {{{-0.03F, 0.88F}, {0.19F, 0.82F}, {0.19F, 0.82F}, {0.16F, 0.80F}, {0.12F, 0.70F}}},
        {{{-0.02F, 0.89F}, {0.19F, 0.84F}, {0.19F, 0.84F}, {0.16F, 0.81F}, {0.12F, 0.72F}}},
        {{{-0.02F, 0.91F}, {0.19F, 0.85F}, {0.19F, 0.85F}, {0.16F, 0.83F}, {0.12F, 0.78F}}},
    }},
}};

// [posición de `Def_Puentes_termicos_pilares`][letra]
constexpr std::array<std::array<ValorPuente, kLetras>, 4> kPilares = {{
    {{{0.87F, 0.56F}, {0.87F, 0.59F}, {0.80F, 0.62F}, {0.77F, 0.64F}, {0.72F, 0.67F}}},
    {{{0.04F, 0.84F}, {0.04F, 0.86F}, {0.04F, 0.87F}, {0.04F, 0.88F}, {0.04F, 0.89F}}},
    {{{0.08F, 0.84F}, {0.08F, 0.85F}, {0.08F, 0.86F}, {0.08F, 0.87F}, {0.08F, 0.89F}}},
    {{{0.0F, 100.0F}, {0.0F, 100.0F}, {0.0F, 100.0F}, {0.0F, 100.0F}, {0.0F, 100.0F}}},
}};

// [posición de `Def_Puentes_termicos_ventanas`][letra]
constexpr std::array<std::array<ValorPuente, kLetras>, 3> kVentanas = {{
    {{{0.11F, 0.76F}, {0.11F, 0.75F}, {0.11F, 0.75F}, {0.11F, 0.74F}, {0.11F, 0.74F}}},
    {{{0.02F, 0.88F}, {0.02F, 0.83F}, {0.02F, 0.81F}, {0.02F, 0.80F}, {0.02F, 0.80F}}},
    {{{0.41F, 0.69F}, {0.41F, 0.70F}, {0.41F, 0.70F}, {0.41F, 0.70F}, {0.41F, 0.70F}}},
}};

struct GrupoZonas {
  std::array<std::string_view, 5> zonas;  // las que sobran, vacías
  std::array<float, kPuentes> U;          // por `Puente`, W/mK
  std::array<float, kPuentes> fi;
};

// Valores por defecto por zona. Los grupos no son los de las letras.
constexpr std::array<GrupoZonas, 6> kPorZona = {{
    {{"A3", "A4", "A2c", "A3c", "alfa3c"},
     {0.22F, 0.41F, 0.42F, 0.42F, 0.16F, 0.87F, 0.13F},
     {0.63F, 0.70F, 0.68F, 0.68F, 0.76F, 0.56F, 0.72F}},
    {{"B3", "B4", "B2c", "B3c", ""},
     {0.27F, 0.42F, 0.46F, 0.43F, 0.16F, 0.87F, 0.13F},
     {0.63F, 0.72F, 0.71F, 0.71F, 0.78F, 0.59F, 0.73F}},
    {{"C1", "C2", "C3", "C4", "C2c"},
     {0.27F, 0.41F, 0.46F, 0.43F, 0.16F, 0.80F, 0.13F},
     {0.63F, 0.75F, 0.72F, 0.72F, 0.80F, 0.62F, 0.74F}},
    {{"D1", "D3", "", "", ""},
     {0.27F, 0.41F, 0.46F, 0.43F, 0.16F, 0.77F, 0.13F},
     {0.64F, 0.76F, 0.74F, 0.74F, 0.81F, 0.644F, 0.75F}},
    {{"D2", "", "", "", ""},
     {0.27F, 0.41F, 0.46F, 0.43F, 0.16F, 0.77F, 0.13F},
     {0.65F, 0.76F, 0.74F, 0.74F, 0.81F, 0.65F, 0.75F}},
    {{"E1", "", "", "", ""},
     {0.29F, 0.39F, 0.46F, 0.43F, 0.16F, 0.72F, 0.13F},
     {0.67F, 0.79F, 0.76F, 0.76F, 0.83F, 0.67F, 0.78F}},
}};

template <typename Lista>
bool Contiene(const Lista& zonas, std::string_view zona) {
  return std::find(zonas.begin(), zonas.end(), zona) != zonas.end();
}

std::optional<std::size_t> LetraDe(std::string_view zona) {
  for (std::size_t i = 0; i < kLetras; ++i)
    if (Contiene(kZonasLetra[i], zona)) return i;
  return std::nullopt;
}

void Poner(Construccion& c, Puente puente, ValorPuente valor) {
  c.U_L_Puentes[puente] = valor.U;
  c.fi_Puentes[puente] = valor.fi;
}

// Pone el valor de una posición de la tabla, si existe.
template <typename Tabla>
void PonerPosicion(Construccion& c, Puente puente, const Tabla& tabla, int posicion,
                   std::size_t letra) {
  const auto i = static_cast<std::size_t>(posicion);
  if (posicion >= 0 && i < tabla.size()) Poner(c, puente, tabla[i][letra]);
}

void PonerSolucion(Construccion& c, std::string_view zona) {
  const auto letra = LetraDe(zona);
  if (!letra) return;
  const FilaSolucion& fila = kSoluciones[static_cast<std::size_t>(c.Def_Puentes_termicos)][*letra];
  for (std::size_t i = 0; i < fila.size(); ++i) Poner(c, kPuentesSolucion[i], fila[i]);
  PonerPosicion(c, puente_pilares, kPilares, c.Def_Puentes_termicos_pilares, *letra);
  PonerPosicion(c, puente_ventanas, kVentanas, c.Def_Puentes_termicos_ventanas, *letra);
}

void PonerValoresZona(Construccion& c, std::string_view zona) {
  // Una zona sin texto no está en ningún grupo, aunque los huecos de las listas sean vacíos.
  if (zona.empty()) return;
  const auto grupo = std::find_if(kPorZona.begin(), kPorZona.end(),
                                  [zona](const GrupoZonas& g) { return Contiene(g.zonas, zona); });
  if (grupo == kPorZona.end()) return;
  c.U_L_Puentes = grupo->U;
  c.fi_Puentes = grupo->fi;
}

}  // namespace

Construccion PuentesPorTabla(const Construccion& construccion, std::string_view zona) {
  Construccion c = construccion;
  const int modo = c.Def_Puentes_termicos;
  if (modo == kModoZona)
    PonerValoresZona(c, zona);
  else if (modo >= 0 && static_cast<std::size_t>(modo) < kSoluciones.size())
    PonerSolucion(c, zona);
  return c;
}

}  // namespace novex
