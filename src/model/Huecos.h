#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "model/TablaEnvolvente.h"

namespace novex {

/// Un obstáculo cercano a los huecos de una columna.
struct ObstaculoCercano {
  float altura = 0;     ///< m
  float distancia = 0;  ///< m
  bool operator==(const ObstaculoCercano&) const = default;
};

/// Direcciones de obstáculo que tiene una columna de huecos, en el orden del fichero; norte y la
/// horizontal no tienen ninguna.
struct DireccionesObstaculo {
  std::size_t cuantas = 0;
  std::array<Sector, 3> sector{};
};

/// Direcciones de los obstáculos cercanos de la columna de un sector.
constexpr DireccionesObstaculo DireccionesDeColumna(std::size_t columna) {
  switch (columna) {
    case oeste:
      return {2, {oeste, sur_oeste, norte}};
    case sur_oeste:
      return {3, {oeste, sur_oeste, sur}};
    case sur:
      return {3, {sur_oeste, sur, sur_este}};
    case sur_este:
      return {3, {sur, sur_este, este}};
    case este:
      return {2, {sur_este, este, norte}};
    default:
      return {};
  }
}

/// Todos los huecos de un grupo en una orientación.
struct ColumnaHuecos {
  std::vector<std::size_t> recintos;  ///< recinto de cada hueco; su largo es el número de huecos
  std::array<ObstaculoCercano, 3> obstaculos{};  ///< en el orden de `DireccionesDeColumna`
  float Separacion_ventanas_vertical = 3.0F;     ///< m
  float FactorUColumna = 1;
  float FactorFSColumna = 1;  ///< multiplica en verano el factor solar del vidrio
  float FactorAreaColumna = 1;

  /// Añade `n` huecos del recinto 0.
  void Anadir(std::size_t n) { recintos.insert(recintos.end(), n, 0); }
  /// Quita los `n` últimos huecos, o todos si hay menos.
  void Quitar(std::size_t n) { recintos.resize(n < recintos.size() ? recintos.size() - n : 0); }
  /// Deja `n` huecos: añade del recinto 0 o quita los últimos.
  void PonerNumero(std::size_t n) {
    if (n > recintos.size())
      Anadir(n - recintos.size());
    else
      recintos.resize(n);
  }
  /// Número de huecos de la columna que dan a un recinto.
  std::size_t NumeroEnRecinto(std::size_t recinto) const;

  bool operator==(const ColumnaHuecos&) const = default;
};

/// Un grupo de huecos iguales.
struct Huecos {
  std::array<ColumnaHuecos, kColumnasHuecos> columnas{};  ///< por `Sector`; 7 es la horizontal
  std::string Nombre_hueco = "Grupo_1";
  float Ancho_m = 2;
  float Alto_m = 1;
  int Tipo_de_hueco = 0;  ///< 0 "Ventana", 1 "Puerta", 2 "Lucernario", 3 "Escaparate"
  float Distancia_alero_m = 0;
  float Longitud_alero_m = 0;
  float Retranqueo_m = 0;
  int Indice_tipo_cristal = 0;
  int Indice_cristal_concreto = 0;
  int Indice_marco = 0;
  int Indice_tipo_junta = 0;
  int Indice_tipo_sombra_fija = 0;
  int Indice_tipo_sombra_movil = 0;
  int Indice_tipo_control_Verano = 0;
  int Indice_tipo_control_Invierno = 0;
  float U_cristal_W_m2K = 5.7F;
  int HuecoReh = 0;
  float FS_cristal_tanto_por_uno = 0.85F;
  float U_marco_W_m2K = 5.7F;
  float Fraccion_marco_tanto_por_cien = 10;
  float Valor_multiplicativo_FS_verano = 1;
  float Valor_multiplicativo_FS_invierno = 1;
  float Valor_multiplicativo_U_verano = 1;
  float Valor_multiplicativo_U_invierno = 1;
  float Permeabilidad_Ventanas = 50;  ///< m3/h m2 a 100 Pa
  int Existe_Caja_persiana = 1;       ///< 0 "Existe", 1 "No existe"
  int Tipo_de_U_Caja_persiana = 0;
  float U_Caja_de_persiana_W_m2K = 0;
  int Tipo_de_Vinf_Caja_persiana = 0;
  float Vinf_Caja_de_persiana_m3_h = 0;
  float Altura_Caja_de_persiana_m = 0.25F;

  /// Huecos de las ocho columnas.
  std::size_t NumeroTotal() const;
  bool operator==(const Huecos&) const = default;
};

/// Posiciones de `Tipo_de_hueco`.
enum TipoHueco : int { kVentana = 0, kPuerta = 1, kLucernario = 2, kEscaparate = 3 };

}  // namespace novex
