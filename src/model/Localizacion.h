#pragma once

#include <array>
#include <string>

namespace novex {

/// Dónde está el edificio.
struct Localizacion {
  int indiceProvincia = 0;  ///< posición en la lista de clima de los ficheros de texto más antiguos
  int indiceCiudad = 0;
  std::string Localidad;
  int asnm = 0;  ///< altitud sobre el nivel del mar, m
  int Pt = 0;    ///< se guarda y se devuelve sin usarlo
  int mesmin = 0;
  int mesmax = 0;     ///< el mes m es de verano si mesmin <= m <= mesmax
  float latitud = 0;  ///< grados
  std::string ZonaClimatica;
  std::string zona_radiante;
  std::string Municipio;
  std::string Provincia;
  std::string Cambio_zona_temperatura = "NO";  ///< "SI" si la zona la ha elegido el usuario

  /// ¿Es de verano el mes `m` (1 a 12)?
  bool EsVerano(int m) const { return mesmin <= m && m <= mesmax; }
  bool operator==(const Localizacion&) const = default;
};

/// Clima del sitio que deduce la preparación del cálculo; no se guarda en el proyecto.
struct DatosClimaticosSitio {
  std::array<float, 13> aguaRed{};  ///< °C; 0 el año, 1 a 12 los meses
  float mediaAnual = 0;             ///< temperatura exterior media del año, °C
  float amplitud = 0;               ///< mayor diferencia entre la media de un mes y la del año, K
  float Tproyecto = 0;              ///< estado exterior de proyecto corregido al sitio, °C
  float HRproyecto = 0;             ///< %
  float cotaCapital = 0;            ///< m
  float TMEDENE = 0;                ///< °C
  float HUMENE = 0;                 ///< %
  float Pvproyecto = 0;             ///< presión de vapor del estado de proyecto, Pa
  bool operator==(const DatosClimaticosSitio&) const = default;
};

/// Obstáculos lejanos, m.
struct ObstaculosRemotos {
  float Oeste_Altura = 0, Oeste_Distancia = 0;
  float SurOeste_Altura = 0, SurOeste_Distancia = 0;
  float Sur_Altura = 0, Sur_Distancia = 0;
  float SurEste_Altura = 0, SurEste_Distancia = 0;
  float Este_Altura = 0, Este_Distancia = 0;
  bool operator==(const ObstaculosRemotos&) const = default;
};

}  // namespace novex
