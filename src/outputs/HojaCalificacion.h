#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"
#include "outputs/ReglasResultados.h"

namespace novex {

/// Indicador en que se califica la hoja, en el orden de su selector.
enum class BaseCalificacion : std::size_t { Emisiones, PrimariaNoRenovable };
inline constexpr std::array<std::string_view, 2> kTextoBaseCalificacion = {
    "Emisiones", "Energía primaria no renovable"};

/// Lo que se dice donde la hoja no se rellena.
inline constexpr std::string_view kSinCalificacion =
    "Una simulación libre no se califica: sus resultados están en \"Mensuales\"";

inline constexpr std::string_view kTituloDemandaSensible = "Demanda sensible (kWh/m2 año)";

/// Una fila de la hoja: un indicador con su letra y su escala.
struct FilaCalificacion {
  Indicador indicador = Indicador::EmisionesTotales;
  std::string nombre;
  std::optional<float> valor;  ///< por m2 y año; vacío si no se cuenta
  std::string letra;           ///< "A" a "G", o "( - )"
  /// Un texto por banda, con las últimas en blanco si la escala no llega; sin escala en vigor, uno
  /// solo: "( - )".
  std::vector<std::string> escala;
  std::optional<std::size_t> banda;  ///< posición de la letra en la escala: 0 es "A"
  std::string aviso;                 ///< "No existe equipos", o vacío

  /// El valor como se muestra.
  std::string TextoValor() const;
};

/// La hoja de calificación de un caso.
struct HojaCalificacion {
  /// Una simulación libre no se califica: la hoja queda sin filas.
  bool rellena = false;
  std::string tituloDemanda, tituloServicios;
  std::vector<FilaCalificacion> demanda;    ///< calefacción y refrigeración
  std::vector<FilaCalificacion> servicios;  ///< los que se califican; la iluminación, en terciario
  FilaCalificacion total;
  std::string notaZona;      ///< zona en que no se cuenta la refrigeración, o vacía
  HorasFueraConsigna horas;  ///< solo en el caso base
};

/// La hoja de un caso en el indicador elegido. \param caso ya calificado
HojaCalificacion HojaDeCalificacion(const CasoCalculado& caso, BaseCalificacion base);

/// Qué se pone de la escala de cada fila de la hoja.
enum class EscalaHoja {
  Entera,  ///< todas las bandas
  SuBanda  ///< los límites de la banda de su letra, que caben en una consola
};

/// La hoja como tablas: la de demanda y la del indicador con su total y, debajo, las notas. Sin
/// tablas si la hoja no está rellena.
std::vector<Tabla> TablasHoja(const HojaCalificacion& hoja, EscalaHoja escala = EscalaHoja::Entera);

/// La escala del total, como se dibuja: una fila por banda con su letra, una barra, sus límites y,
/// en la del edificio, su valor. Sin filas si el total no tiene escala.
Tabla TablaEscala(const HojaCalificacion& hoja);

}  // namespace novex
