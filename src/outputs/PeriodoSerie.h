#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "base/Calendario.h"
#include "base/Mensajes.h"

namespace novex {

/// Lo pedido o, si no se puede dar, el aviso que lo dice.
template <class T>
struct ConAviso {
  std::optional<T> valor;
  Mensaje aviso;  ///< solo cuenta sin valor
};

inline constexpr int kSemanas = 52;

/// Meses con el nombre con que se eligen; la posición 0 no se usa.
inline constexpr std::array<const char*, 13> kNombreMesCompleto = {
    "",      "Enero",  "Febrero",    "Marzo",   "Abril",     "Mayo",     "Junio",
    "Julio", "Agosto", "Septiembre", "Octubre", "Noviembre", "Diciembre"};

enum class TipoPeriodo { Anual, Mensual, Semanal, Diario };

/// Parte del año que se mira de una serie. Solo cuentan los campos de su tipo.
struct PeriodoSerie {
  TipoPeriodo tipo = TipoPeriodo::Anual;
  int mes = 1;     ///< 1 a 12, del mes o del día
  int semana = 1;  ///< 1 a 52
  int dia = 1;     ///< del mes, desde 1
};

/// Horas del año seguidas, las dos incluidas, de 1 a 8760.
struct RangoHoras {
  int primera = 1;
  int ultima = kHorasAno;
  int Cuantas() const { return ultima - primera + 1; }
  bool operator==(const RangoHoras&) const = default;
};

/// Horas de un periodo. Un mes fuera de 1 a 12, una semana fuera de 1 a 52 o un día que el mes no
/// tiene no dan horas, sino su aviso.
ConAviso<RangoHoras> HorasDelPeriodo(const PeriodoSerie& periodo);

/// El aviso de que un solo día no se puede dibujar en tres dimensiones; vacío si el periodo sí.
std::optional<Mensaje> AvisoTresDimensiones(const PeriodoSerie& periodo);

/// Las 52 semanas como se eligen: "1 enero al 7 enero"... El 31 de diciembre no cae en ninguna.
std::vector<std::string> NombresSemanas();

/// Con lo que empieza el rótulo de un gráfico: "Anual ", "Mes=Enero ", "Semana=1 enero al 7 enero "
/// o "Dia 3 Enero ". Un periodo que no existe da solo la palabra de su tipo.
std::string RotuloPeriodo(const PeriodoSerie& periodo);

/// El periodo del mismo tipo que está `pasos` meses, semanas o días después, o antes con negativo;
/// tras el último del año viene el primero. Un día que no existe cuenta como el último de su mes.
PeriodoSerie PeriodoContiguo(PeriodoSerie periodo, int pasos);

/// Una parte de un periodo con su rótulo corto.
struct TramoPeriodo {
  std::string nombre;
  int ultima;  ///< su última hora del año
  bool operator==(const TramoPeriodo&) const = default;
};
/// En lo que se parte el eje de un periodo: los meses del año ("ene"), los días del mes ("1"), los
/// de la semana ("1 enero") o las horas del día ("1"). De uno que no existe, nada.
std::vector<TramoPeriodo> TramosPeriodo(const PeriodoSerie& periodo);

/// Día del mes (desde 1) de la hora del año `h` (1 a 8760).
int DiaDelMes(int h);

/// Cuándo es una hora del año: "15 h 3 Enero" es la decimoquinta del 3 de enero.
std::string TextoHora(int h);

}  // namespace novex
