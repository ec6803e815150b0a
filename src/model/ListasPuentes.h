#pragma once

#include <array>
#include <string_view>

namespace novex {

/// Listas de elección de los puentes térmicos de `Construccion`: el campo guarda la posición.
namespace listaPuentes {

/// `Def_Puentes_termicos`; la posición 3 no se usa.
inline constexpr std::array<std::string_view, 6> kDefinicion = {
    "No aislado", "Aislado", "Continuo", "", "Dar valores", "Lider"};
/// `Def_Puentes_termicos_pilares`
inline constexpr std::array<std::string_view, 4> kPilares = {
    "Pilares no aislados", "Pilares aislados ext", "Pilares aislados int", "Sin pilares"};
/// `Existencia_pilares`
inline constexpr std::array<std::string_view, 2> kExistencia = {"Con pilares", "Sin pilares"};
/// `Def_Puentes_termicos_ventanas`
inline constexpr std::array<std::string_view, 3> kVentanas = {
    "Sin aislamiento", "Aislamiento en contacto marco", "Aislamiento sin contacto marco"};

}  // namespace listaPuentes
}  // namespace novex
