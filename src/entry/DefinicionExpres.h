#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"
#include "systems/CatalogoEquipos.h"

namespace novex {

/// Los textos de los tres avisos de la definición exprés, en su orden.
inline constexpr std::array<std::string_view, 3> kAvisosExpres = {
    "Se construye el edificio con valores  en función del año de construcción y zona climática con "
    "valores estandard que el certificador debe verificar",
    "Si el edificio tiene sistemas de calefacción o refrigeración deben añadirse",
    "El certificador es responsable de comprobar todos los valores de forma que se ajuste lo mas "
    "posible al edificio que se pretende certificar"};

/// Número de huecos tecleado por sector, norte a este.
using UnidadesPorSector = std::array<std::string, kSectores>;

enum class VidrioExpres { Sencillo, Doble };
enum class ProteccionExpres { NoExisten, Persiana, Contraventana };
enum class PuertaExpres { Madera, Metalica };
enum class CubiertaExpres { AlExterior, ABuhardilla, ALocalAcondicionado };
enum class SueloExpres { AlTerreno, VacioSanitario, ALocalNoAcondicionado, ALocalAcondicionado };

/// Los textos de cada elección, como se enseñan.
inline constexpr std::array<std::string_view, 2> kVidriosExpres = {"Sencillo", "Doble"};
inline constexpr std::array<std::string_view, 3> kProteccionesExpres = {"No existen", "Persina",
                                                                        "Contraventana"};
inline constexpr std::array<std::string_view, 2> kPuertasExpres = {"Madera",
                                                                   "Metalica 50% cristal"};
inline constexpr std::array<std::string_view, 3> kCubiertasExpres = {"Al exterior", "A buhardilla",
                                                                     "A local acondicionado"};
inline constexpr std::array<std::string_view, 4> kSuelosExpres = {
    "Al terreno", "Vacio sanitario", "A local no acond.", "A local acondicionado"};
inline constexpr std::array<std::string_view, 3> kCalidadesAire = {"IDA1", "IDA2", "IDA3"};

/// Una línea de "Vidrios tipo n".
struct GrupoExpres {
  UnidadesPorSector unidades;
  std::string ancho, alto;  ///< m
  VidrioExpres vidrio = VidrioExpres::Doble;
  ProteccionExpres proteccion = ProteccionExpres::NoExisten;
};

/// Lo que se teclea en la definición exprés; los números, como texto. Uno vacío vale 0.
struct EntradaExpres {
  std::string volumen = "300";     ///< m3
  std::string superficie = "100";  ///< m2 habitables
  std::string periodo = "Despues_2019";
  std::string viviendas = "10";
  std::string dormitorios = "3";
  std::string banos = "1";
  std::string ventilacion = "0,63";             ///< renovaciones por hora
  UnidadesPorSector fachada;                    ///< opaco y huecos, m2
  std::string medianeras;                       ///< m2
  std::string aLocalNoAcondicionado;            ///< m2
  std::string cubierta = "100", suelo = "100";  ///< m2
  CubiertaExpres tipoCubierta = CubiertaExpres::AlExterior;
  SueloExpres tipoSuelo = SueloExpres::AlTerreno;
  std::vector<GrupoExpres> vidrios;  ///< hasta cuatro
  UnidadesPorSector puertas;
  std::string anchoPuerta, altoPuerta;  ///< m
  PuertaExpres puerta = PuertaExpres::Madera;
  std::string fotovoltaica;          ///< kW de pico
  std::string calidadAire = "IDA2";  ///< solo en uso terciario
  std::string instalacion = "1 Calentador";
  bool colectiva = false;  ///< "Colectiva" en lugar de "Individdual"; no cuenta en una unifamiliar
};

inline constexpr std::size_t kVidriosMaximos = 4;

/// Instalaciones de agua caliente que se ofrecen para un uso.
std::span<const std::string_view> InstalacionesExpres(int perfilUso, bool colectiva);

/// Construye en un caso el edificio de la definición exprés para su zona y su uso: borra lo que hay
/// de la envolvente y la hace con las transmitancias de la época, los huecos, la ventilación, la
/// instalación de agua caliente con su consumo de referencia, y los puentes térmicos estimados. Los
/// valores fuera de límites se cambian con su aviso; si los huecos de un sector pasan de su fachada
/// se avisa y se sigue.
/// \param valoresU elemento `ValoresDefectoU` \param catalogo curvas de los equipos; puede ser nulo
void DefinirExpres(Edificio& edificio, const EntradaExpres& entrada, const XMLNode& valoresU,
                   const CatalogoEquipos* catalogo, Mensajes& mensajes);

}  // namespace novex
