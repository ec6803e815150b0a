#include "entry/AreasEnvolvente.h"

#include <algorithm>
#include <type_traits>

#include "model/CatalogoCampos.h"

namespace novex {
namespace {

constexpr const char* kClave = "Area";
constexpr const char* kTitulo = "AVISO";

// Las dos áreas de una casilla; sin parte en el muro norte.
template <class Area>
struct ParAreas {
  Area* total;
  Area* parte;
};

template <class R>
auto AreasDe(R& recinto, const CasillaArea& casilla) {
  using Area = std::remove_reference_t<decltype((recinto.Volumen_total_m3))>;
  const std::size_t tipo = casilla.tipo;
  const std::size_t sector = casilla.sector;
  switch (casilla.elemento) {
    case ElementoConParte::CubiertaHorizontal:
      return ParAreas<Area>{&recinto.Cubierta_horiz_sol_m2.at(tipo),
                            &recinto.Cubierta_horiz_sombra_m2.at(tipo)};
    case ElementoConParte::CubiertaInclinada:
      return ParAreas<Area>{&recinto.Cubierta_incl_m2.at(tipo).at(sector),
                            &recinto.Cubierta_incl_Sombra_m2.at(tipo).at(sector)};
    case ElementoConParte::Muro:
      break;
  }
  return ParAreas<Area>{&recinto.Muro_ext_m2.at(tipo).at(sector),
                        sector == norte ? nullptr : &recinto.Muro_ext_Var_m2.at(tipo).at(sector)};
}

}  // namespace

void PonerAreaTotal(Recinto& recinto, const CasillaArea& casilla, std::string_view texto,
                    Mensajes& mensajes) {
  const auto [total, parte] = AreasDe(recinto, casilla);
  *total = ComprobarValor(texto, kClave, mensajes);
  if (parte == nullptr || *total >= *parte) return;
  const bool muro = casilla.elemento == ElementoConParte::Muro;
  mensajes.Avisar(kTitulo, muro ? "El area total es inferior al area fuera del 1º plano de fachada"
                                : "El area total es inferior al area a la sombra");
  mensajes.Avisar(kTitulo, muro ? "Atención. Se pone como area 1º plano la nueva area total"
                                : "Atención. Se pone como area a la sombra la area total");
  *parte = *total;
}

void PonerAreaParte(Recinto& recinto, const CasillaArea& casilla, std::string_view texto,
                    Mensajes& mensajes) {
  float* const parte = AreasDe(recinto, casilla).parte;
  if (parte != nullptr) *parte = ComprobarValor(texto, kClave, mensajes);
}

float AreaRestante(const Recinto& recinto, const CasillaArea& casilla) {
  const auto [total, parte] = AreasDe(recinto, casilla);
  return parte == nullptr ? *total : std::max(*total - *parte, 0.0F);
}

}  // namespace novex
