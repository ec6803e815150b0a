#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Calendario.h"

namespace novex {

/// Nombres de las zonas que tienen fichero de clima.
inline constexpr std::array<std::string_view, 32> kZonasMet = {
    "A4",  "A3",     "B4",     "B3",     "C1",     "C2",  "C3",  "C4",  "D1",  "D2",  "D3",
    "E1",  "alfa1c", "alfa2c", "alfa3c", "alfa4c", "A1c", "A2c", "A3c", "A4c", "B1c", "B2c",
    "B3c", "B4c",    "C1c",    "C2c",    "C3c",    "C4c", "D1c", "D2c", "D3c", "E1c"};

/// Una hora de un fichero de clima, en el orden de las columnas contadas desde el final de la
/// línea.
struct RegistroMet {
  float cenit = 90;             ///< distancia del sol al cenit, grados
  float acimut = 0;             ///< grados, 0 al sur, positivo hacia el oeste
  float humedadRelativa = 0;    ///< %
  float humedadAbsoluta = 0;    ///< kg/kg
  float difusa = 0;             ///< irradiancia difusa en el plano horizontal, W/m2
  float directaHorizontal = 0;  ///< irradiancia directa en el plano horizontal, W/m2
  float cielo = 0;              ///< temperatura del cielo, °C
  float seca = 0;               ///< temperatura seca del aire, °C
};

/// Contenido de un fichero `.met`.
struct FicheroMet {
  std::string titulo;
  bool hayCabecera = false;        ///< la línea 2 tiene al menos cuatro campos
  float latitud = 0;               ///< grados
  float longitud = 0;              ///< grados
  float altitud = 0;               ///< m
  float meridiano = 0;             ///< meridiano del huso, grados
  std::vector<RegistroMet> horas;  ///< 8760; la hora 1 del año está en la posición 0
};

/// Lee un fichero `.met`: título, línea del lugar y 8760 líneas de hora. Los campos se separan con
/// tabuladores o blancos y se cuentan desde el final de la línea; lo que sobre tras la línea 8762
/// no se lee. \param contenido bytes del fichero \param ruta camino del fichero, solo para los
/// mensajes \throws ErrorFichero con la línea, si faltan líneas o campos o si un campo no es un
/// número finito.
FicheroMet LeerMet(std::string_view contenido, const std::string& ruta = {});

/// Repasa un fichero que se quiere instalar: líneas, campos, márgenes de cada magnitud, radiación
/// contra posición del sol y posición del sol contra latitud y hora solar.
/// \returns las faltas en palabras, con su línea donde la hay; vacío si el fichero vale.
std::vector<std::string> ComprobarMet(std::string_view contenido);

/// Cifras de un mes o del año de un fichero de clima.
struct FilaResumenMet {
  float mediaSeca = 0;        ///< °C
  float minimaSeca = 0;       ///< °C
  float maximaSeca = 0;       ///< °C
  float humedadRelativa = 0;  ///< media, %
  float global = 0;           ///< irradiación global horizontal, kWh/m2
  float directa = 0;          ///< irradiación directa horizontal, kWh/m2
  float difusa = 0;           ///< irradiación difusa horizontal, kWh/m2
  float depresionCielo = 0;   ///< media de temperatura seca menos la del cielo, K
};

struct ResumenMensualMet {
  std::array<FilaResumenMet, kMeses> meses;
  FilaResumenMet ano;
};

/// Medias y sumas de cada mes y del año. Las del año son las de sus 8760 horas.
/// \param fichero con sus 8760 horas
ResumenMensualMet ResumirMet(const FicheroMet& fichero);

}  // namespace novex
