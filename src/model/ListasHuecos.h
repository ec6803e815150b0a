#pragma once

#include <array>
#include <string_view>

namespace novex {

/// Listas de elección de los campos de `Huecos`: el campo guarda la posición.
namespace listaHuecos {

/// `Tipo_de_hueco`
inline constexpr std::array<std::string_view, 4> kTipos = {"Ventana", "Puerta", "Lucernario",
                                                           "Escaparate"};

/// `Indice_tipo_cristal`
inline constexpr std::array<std::string_view, 6> kCristales = {"Monolíticos",
                                                               "Dobles",
                                                               "Dob.bajo emisivo 0.1-0.2",
                                                               "Dob.bajo emisivo 0.03-0.1",
                                                               "Dob.bajo emisivo <0.03",
                                                               "Otros"};

/// `Indice_marco`
inline constexpr std::array<std::string_view, 8> kMarcos = {
    "Metálico sin rotura puente térmico ",
    "Metálico con rotura puente térmico 4-12mm",
    "Metálico con rotura puente térmico >12mm",
    "Madera densidad media alta",
    "Madera densidad media baja",
    "PVC DOS cámaras",
    "PVC TRES cámaras",
    "Otros"};

/// `Indice_tipo_sombra_movil`
inline constexpr std::array<std::string_view, 14> kSombrasMoviles = {
    "Sin elementos moviles",
    "Persiana exterior blanca",
    "Persiana exterior pastel",
    "Persiana exterior oscura",
    "Toldo exterior blanco",
    "Toldo exterior pastel",
    "Toldo exterior oscuro",
    "Persiana interior veneciana blanca",
    "Persiana interior veneciana pastel",
    "Persiana interior veneciana oscura",
    "Cortina interior blanca",
    "Cortina interior pastel",
    "Cortina interior oscura",
    "Contraventanas"};

/// `Indice_tipo_sombra_fija`
inline constexpr std::array<std::string_view, 11> kSombrasFijas = {
    "Sin elementos fijos",    "Lamas horizontales 0º", "Lamas horizontales 30º",
    "Lamas horizontales 60º", "Lamas verticales -60º", "Lamas verticales -45º",
    "Lamas verticales -30º",  "Lamas verticales 0º",   "Lamas verticales 30º",
    "Lamas verticales 45º",   "Lamas verticales 60º"};

/// `Indice_tipo_control_Verano`: qué parte del hueco se protege y con qué sol en él
inline constexpr std::array<std::string_view, 9> kControlesVerano = {
    "50 % con más de 300 W/m2", "50 % con más de 500 W/m2", "70 % con más de 300 W/m2",
    "70 % con más de 500 W/m2", "90 % con más de 300 W/m2", "90 % con más de 500 W/m2",
    "50 % siempre que hay sol", "70 % siempre que hay sol", "90 % siempre que hay sol"};

/// `Indice_tipo_control_Invierno`: qué parte se cierra de noche
inline constexpr std::array<std::string_view, 5> kControlesInvierno = {
    "50 % de noche", "70 % de noche", "90 % de noche", "100 % de noche", "30 % de noche"};

/// `Existe_Caja_persiana`
inline constexpr std::array<std::string_view, 2> kExisteCaja = {"Existe", "No existe"};

/// `Tipo_de_U_Caja_persiana`
inline constexpr std::array<std::string_view, 4> kUCaja = {"Sin aislamiento", "1-2 cm aislamiento",
                                                           "2-4 cm aislamiento", "Se falicita U"};

/// `Tipo_de_Vinf_Caja_persiana`
inline constexpr std::array<std::string_view, 4> kInfiltracionCaja = {
    "Estanco", "1 mm rendija", "2 mm rendija", "Se facilita V"};

}  // namespace listaHuecos
}  // namespace novex
