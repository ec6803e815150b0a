#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "demand/Series.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"

namespace novex {

/// Códigos del calendario: 0 es un día sin uso y del 1 al 9 las clases de día en su orden.
inline constexpr std::size_t kCodigosDia = kClasesDia + 1;
inline constexpr std::array<std::string_view, kCodigosDia> kNombresDia = {
    "Sin uso Esp 0", "Laborable",  "Sábado",     "Domingo",    "Especial 4",
    "Especial 5",    "Especial 6", "Especial 7", "Especial 8", "Especial 9"};

/// Acciones que se pueden dar a un mes.
inline constexpr std::array<std::string_view, 4> kAccionesMes = {"Sólo Cale", "Sólo Refri",
                                                                 "Cale+Refri", "Nada"};

/// Cómo se enseña y entre qué valores se teclea una familia de horarios.
struct DatosFamilia {
  std::string_view rotulo;  ///< con su unidad
  std::string_view unidad;
  std::string_view sujeto;  ///< principio de un aviso
  float minimo = 0, maximo = 0;
};

/// Los datos de una familia. En un uso residencial las cargas van en W/m2 y se admite lo que sus
/// claves del catálogo de campos; en uno terciario, en % del valor máximo del uso.
DatosFamilia DatosDeFamilia(Familia familia, bool residencial);

/// El valor de una hora como se enseña y se copia a una hoja de cálculo: con coma decimal y dos
/// decimales como mucho.
std::string TextoHora(float valor);

/// Dónde va un valor: la clase de día, desde 0, y la hora, de 1 a 24.
struct CasillaHoraria {
  std::size_t clase = 0;
  std::size_t hora = 1;
};

/// Pone un valor tecleado en una o más horas de una familia. Uno que no es un número o pasa de los
/// límites se avisa y no cambia nada. \returns si se ha admitido
bool PonerHoras(Edificio& edificio, Familia familia, std::span<const CasillaHoraria> casillas,
                std::string_view texto, Mensajes& mensajes);

/// Pone un bloque de celdas de una hoja de cálculo, filas por clases de día y columnas por horas
/// separadas por tabuladores, con su esquina en una casilla. Lo que no cabe se deja; una celda
/// vacía o que no se admite no cambia la suya, y se avisa de cuántas no se admiten.
/// \returns cuántas horas se han puesto
int PegarHoras(Edificio& edificio, Familia familia, CasillaHoraria esquina, std::string_view texto,
               Mensajes& mensajes);

/// Copia el horario de una clase de día a otras. \param familias las que se copian
/// \throws std::out_of_range si una clase no existe
void CopiarHorario(Edificio& edificio, std::span<const Familia> familias, std::size_t desde,
                   std::span<const std::size_t> hasta);

/// Vuelve a los horarios que una familia tiene de partida en el uso del caso.
/// \param perfilesUso elemento `PERFILES_USO` \returns si se han podido leer
bool ReponerHorario(Edificio& edificio, Familia familia, const XMLNode& perfilesUso,
                    Mensajes& mensajes);

/// Posición en el calendario, desde 0, de un día de un mes; nada si no existe.
std::optional<std::size_t> PosicionDia(int mes, int dia);

/// Da un código a unos días. \param posiciones en el calendario, de 0 a 364; otras no cuentan
/// \returns false, sin cambiar nada, si el código no es de 0 a 9
bool PintarDias(Edificio& edificio, std::span<const std::size_t> posiciones, int codigo);

/// Días del año de cada código.
std::array<int, kCodigosDia> DiasPorCodigo(const Perfiles& perfiles);

/// Da su acción a un mes, de 1 a 12. \returns false, sin cambiar nada, si no es de la lista
bool PonerAccionMes(Edificio& edificio, int mes, std::string_view accion);

/// Lo que conviene saber de una familia en el caso: si no se usa, si no suma lo que debe o si se
/// contradice con otra. Una frase por línea.
std::vector<std::string> NotasHorario(const Edificio& edificio, Familia familia);

/// La serie del año que resulta de una familia, con el calendario, la acción de cada mes y las
/// ventanas abiertas en las noches de verano: cargas en W/m2, consignas en °C, ventilación en %
/// (400 con las ventanas abiertas) y agua caliente en % del día.
SerieHoraria SerieDeHorario(const Edificio& edificio, Familia familia);

}  // namespace novex
