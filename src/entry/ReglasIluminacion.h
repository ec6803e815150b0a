#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "model/Edificio.h"

namespace novex {

/// Una actividad con el límite de la eficiencia de su iluminación (CTE DB-HE3).
struct EntradaVEII {
  std::string_view texto;  ///< el que se guarda en `TipoVEIIMax`
  float VEIIMax;           ///< W/m2 por cada 100 lux
};

/// La actividad cuyo límite da el usuario.
inline constexpr std::string_view kVEIIMaxDefinir =
    "VIEElim=(Definir)    Otros (iluminancia media)";

/// Actividades en el orden en que se enseñan. El valor de la última es el de partida.
inline constexpr std::array<EntradaVEII, 24> kEntradasVEII = {{
    {"VIEElim=3     Administrativo en general", 3.0F},
    {"VIEElim=3     Andenes de estaciones de transporte", 3.0F},
    {"VIEElim=3     Pabellones de exposición o ferias", 3.0F},
    {"VIEElim=3,5  Salas de diagnóstico", 3.5F},
    {"VIEElim=3,5  Aulas y laboratorios", 3.5F},
    {"VIEElim=4     Habitaciones de hospital", 4.0F},
    {"VIEElim=4     Recintos interiores no descritos en este listado", 4.0F},
    {"VIEElim=4     Zonas comunes", 4.0F},
    {"VIEElim=4     Almacenes, archivos, salastécnicas y cocinas", 4.0F},
    {"VIEElim=4     Aparcamientos", 4.0F},
    {"VIEElim=4     Espacios deportivos", 4.0F},
    {"VIEElim=5     Estacione de transporte", 5.0F},
    {"VIEElim=5     Supermercados, hipermercados y grandes almacenes", 5.0F},
    {"VIEElim=5     Bibliotecas, museos y galerías de arte", 5.0F},
    {"VIEElim=6     Zonas comunes en edificios no residenciales", 6.0F},
    {"VIEElim=6     Centros comerciales (excluidas tiendas)", 6.0F},
    {"VIEElim=8     Hostelería y restauración", 8.0F},
    {"VIEElim=8     Religioso en general", 8.0F},
    {"VIEElim=8     Salones de actos, auditorios y salas de usos múltiples y convenciones", 8.0F},
    {"VIEElim=8     Salas de ocio o espectáculo, salas de v y zsalas de conferencias", 8.0F},
    {"VIEElim=8     Tiendas y pequeño comercio", 8.0F},
    {"VIEElim=10    Habitaciones de hoteles, hostales, etc.", 10.0F},
    {"VIEElim=2.5   Locales con nivel de iluminación superior a 600lux", 2.5F},
    {kVEIIMaxDefinir, 7.0F},
}};

/// Toma una actividad y su límite. La que da el usuario empieza en 7 y conserva después lo que haya
/// dado. \returns falso, sin cambiar nada, si el texto no es de la lista
bool ElegirVEIIMax(Edificio& edificio, std::string_view entrada);

/// Guarda el límite tecleado, W/m2 por cada 100 lux, si la actividad es la que da el usuario.
/// \returns si lo ha guardado
bool DefinirVEIIMax(Edificio& edificio, std::string_view texto, Mensajes& mensajes);

/// Potencia máxima instalada según la iluminancia media del uso, W/m2 (CTE DB-HE3).
float PotenciaMaximaIluminacion(float lux);

/// Texto de esa potencia.
std::string TextoPotenciaMaximaIluminacion(float lux);

/// Guarda la iluminancia media tecleada, lux, y la potencia máxima que le toca.
void PonerLux(Edificio& edificio, std::string_view texto, Mensajes& mensajes);

/// Guarda la potencia de iluminación tecleada, W/m2.
void PonerIluminacion(Edificio& edificio, std::string_view texto, Mensajes& mensajes);

/// Texto de una carga interna media, W/m2.
std::string TextoCargaInterna(float cfi);

/// Nivel de una carga interna media, W/m2.
std::string_view NivelCargaInterna(float cfi);

}  // namespace novex
