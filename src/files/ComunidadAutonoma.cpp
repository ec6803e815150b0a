#include "files/ComunidadAutonoma.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

struct Fila {
  std::string_view provincia;
  std::string_view comunidad;
};

constexpr std::string_view kAndalucia = "Andalucía";
constexpr std::string_view kAragon = "Aragón";
constexpr std::string_view kCanarias = "Canarias";
constexpr std::string_view kCastillaLeon = "Castilla y León";
constexpr std::string_view kCastillaMancha = "Castilla-La Mancha";
constexpr std::string_view kCataluna = "Cataluña";
constexpr std::string_view kExtremadura = "Extremadura";
constexpr std::string_view kGalicia = "Galicia";
constexpr std::string_view kPaisVasco = "País Vasco";
constexpr std::string_view kValenciana = "Comunidad Valenciana";

constexpr std::array<Fila, 52> kProvincias = {{
    {"A Coruña", kGalicia},
    {"Álava", kPaisVasco},
    {"Albacete", kCastillaMancha},
    {"Alicante/Alacant", kValenciana},
    {"Almería", kAndalucia},
    {"Asturias", "Principado de Asturias"},
    {"Ávila", kCastillaLeon},
    {"Badajoz", kExtremadura},
    {"Barcelona", kCataluna},
    {"Burgos", kCastillaLeon},
    {"Cáceres", kExtremadura},
    {"Cádiz", kAndalucia},
    {"Cantabria", "Cantabria"},
    {"Castellón/Castelló", kValenciana},
    {"Ceuta", "Ceuta"},
    {"Ciudad Real", kCastillaMancha},
    {"Córdoba", kAndalucia},
    {"Cuenca", kCastillaMancha},
    {"Girona", kCataluna},
    {"Granada", kAndalucia},
    {"Guadalajara", kCastillaMancha},
    {"Guipúzcoa", kPaisVasco},
    {"Huelva", kAndalucia},
    {"Huesca", kAragon},
    {"Illes Balears", "Illes Balears"},
    {"Jaén", kAndalucia},
    {"La Rioja", "La Rioja"},
    {"Las Palmas", kCanarias},
    {"León", kCastillaLeon},
    {"Lleida", kCataluna},
    {"Lugo", kGalicia},
    {"Madrid", "Comunidad de Madrid"},
    {"Málaga", kAndalucia},
    {"Melilla", "Melilla"},
    {"Murcia", "Región de Murcia"},
    {"Navarra", "Comunidad Foral de Navarra"},
    {"Ourense", kGalicia},
    {"Palencia", kCastillaLeon},
    {"Pontevedra", kGalicia},
    {"Salamanca", kCastillaLeon},
    {"Santa Cruz de Tenerife", kCanarias},
    {"Segovia", kCastillaLeon},
    {"Sevilla", kAndalucia},
    {"Soria", kCastillaLeon},
    {"Tarragona", kCataluna},
    {"Teruel", kAragon},
    {"Toledo", kCastillaMancha},
    {"Valencia/València", kValenciana},
    {"Valladolid", kCastillaLeon},
    {"Vizcaya", kPaisVasco},
    {"Zamora", kCastillaLeon},
    {"Zaragoza", kAragon},
}};

}  // namespace

std::string_view ComunidadAutonomaDe(std::string_view provincia) {
  const auto it = std::find_if(kProvincias.begin(), kProvincias.end(),
                               [provincia](const Fila& f) { return f.provincia == provincia; });
  return it == kProvincias.end() ? std::string_view{} : it->comunidad;
}

}  // namespace novex
