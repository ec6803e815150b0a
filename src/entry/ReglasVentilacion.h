#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "model/Edificio.h"

namespace novex {

/// Texto del caudal de aire que suponen las renovaciones de proyecto con el volumen de ahora.
std::string TextoCaudalVentilacion(const Edificio& edificio);

/// Guarda las renovaciones por hora tecleadas.
void PonerRenovaciones(Edificio& edificio, std::string_view texto, Mensajes& mensajes);

/// Nota junto a las renovaciones: el valor que se usa en un edificio existente o el mínimo de una
/// vivienda nueva; vacía en un terciario nuevo.
std::string_view NotaRenovaciones(const DatosGenerales& generales);

/// Caudal mínimo constante de un tipo de vivienda con todas sus viviendas, l/s: el mayor del de
/// admisión y el de extracción (CTE DB-HS3, tabla 2.1).
float CaudalTipologiaHS3(const TipologiaVivienda& tipologia);

/// Caudal mínimo constante de todas las viviendas, m3/h.
float CaudalViviendasHS3(const Ventilacion& ventilacion);

/// Pone en las renovaciones de una vivienda el mínimo de DB-HS3 si el caso las pide así; ha de
/// llamarse cuando cambian las viviendas o el volumen. Sin volumen son 0. \returns si las ha puesto
bool ActualizarRenovacionesHS3(Edificio& edificio, Mensajes& mensajes);

/// Marca si las renovaciones se calculan según DB-HS3 y, si es así en una vivienda, las pone.
void PonerSegunHS3(Edificio& edificio, bool segunHS3, Mensajes& mensajes);

/// Elige la modulación del aire exterior de un uso terciario. Una sonda de CO2 necesita la
/// ocupación: sin calor sensible de ocupantes se avisa y no cambia nada.
/// \returns si la ha puesto; falso también si el texto no es de la lista
bool PonerModulacionAire(Edificio& edificio, std::string_view texto, Mensajes& mensajes);

/// Pone el calor sensible de los ocupantes de un uso terciario, W/m2. Mientras el aire siga a una
/// sonda de CO2 no puede ser 0: se avisa y no cambia. \returns si lo ha puesto
bool PonerOcupacionSensible(Edificio& edificio, std::string_view texto, Mensajes& mensajes);

/// Clases de calidad del aire interior de los usos terciarios (RITE, IT 1.1.4.2.2).
enum class ClaseAire : std::size_t { IDA1, IDA2, IDA3 };

/// Caudal de aire exterior por persona de cada clase, m3/h (RITE, tabla 1.4.2.1).
inline constexpr std::array<float, 3> kCaudalPersona = {72.0F, 45.0F, 28.8F};

/// Lo que supone una clase en un edificio.
struct AireClase {
  float caudal = 0;        ///< m3/h
  float renovaciones = 0;  ///< por hora
};

/// Caudal y renovaciones de una clase con la superficie por persona del uso; 0 sin esta, y las
/// renovaciones también sin volumen.
AireClase CalcularClaseAire(const Edificio& edificio, ClaseAire clase);

/// Línea de una clase con su caudal y sus renovaciones.
std::string TextoClaseAire(const Edificio& edificio, ClaseAire clase);

/// Toma las renovaciones de una clase. \returns el texto del caudal que suponen
std::string AceptarClaseAire(Edificio& edificio, ClaseAire clase, Mensajes& mensajes);

/// Explicación de las clases.
inline const Mensaje kAclaracionClasesAire = {
    "Aclaración",
    "IDA1: Hospitales, Clínicas, Laboratorios y Guarderías       IDA2: Oficinas, Residencias, "
    "Salas de lectura, Museos, Aulas y asimilables   IDA3: Edificios comerciales, Cines, Teatros, "
    "Salones de Actos, Habitaciones de Hoteles, Restaurantes, Cafeterías, Gimnasios, Locales para "
    "deportes"};

}  // namespace novex
