#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"
#include "rating/Escala.h"

namespace novex {

/// Decimales con que se muestran las cifras de las páginas de resultados.
inline constexpr int kDecimalesResultado = 2;

/// Una cifra de las páginas de resultados.
inline Celda CeldaResultado(double valor) {
  return Celda::Numero(valor, kDecimalesResultado);
}

/// ¿Se califica el edificio? En una simulación libre, no.
bool SeCalifica(const Edificio& edificio);

/// ¿Queda la refrigeración fuera de la calificación que se muestra? Sí en viviendas de "C1", "D1" y
/// "E1", salvo en una simulación libre.
bool RefrigeracionFuera(const Edificio& edificio);

/// Nota de la zona en que no se cuenta la refrigeración; vacía si se cuenta.
std::string NotaZonaSinRefrigeracion(const Edificio& edificio);

/// Servicios con demanda que algún sistema del caso da, para los avisos de servicio sin equipo.
/// \returns por `Servicio`: agua caliente, calefacción y refrigeración
std::array<bool, kServiciosDemanda> ServiciosConEquipo(const Edificio& edificio);

/// Texto de las horas fuera de consigna.
struct HorasFueraConsigna {
  std::string texto;      ///< vacío si no hay nada que mostrar
  bool noValida = false;  ///< la certificación no es válida: el texto va con color
};
/// El texto de las horas fuera de consigna, que solo lleva el caso base. Sin horas de ocupación no
/// hay texto; por encima del 4 % de ellas la certificación no es válida.
HorasFueraConsigna TextoHorasFuera(const CasoCalculado& caso);

/// Indicador con que se califica un servicio, o el total con `servicio` vacío. Vacío si no tiene:
/// solo se califican las emisiones y la primaria no renovable, y la ventilación nunca.
/// \param residencial sin calificación de la iluminación
std::optional<Indicador> IndicadorDe(std::optional<Servicio> servicio, UnidadEnergia unidad,
                                     bool residencial);

/// ¿Es un indicador de la iluminación? Solo se califican en terciario.
constexpr bool EsDeIluminacion(Indicador indicador) {
  return indicador == Indicador::EmisionesIlu || indicador == Indicador::EPriNoRIlu;
}

/// Letra con que se muestra un indicador: "A" a "G" o "( - )"; vacía en una simulación libre.
std::string LetraMostrada(Indicador indicador, const CasoCalculado& caso);

/// Bandas de la escala: de "A" a "G".
inline constexpr std::size_t kBandas = 7;
using UmbralesEscala = std::array<float, kBandas - 1>;

/// ¿Tiene un indicador escala en vigor? No la tiene si todos sus umbrales son 0.
bool HayEscala(const UmbralesEscala& umbrales);

/// Última banda de una escala, desde 0: "E" en obra nueva y en las escalas sin completar, como sus
/// letras.
std::size_t UltimaBanda(bool nuevo, const UmbralesEscala& umbrales);

/// Ahorro de un valor sobre el de la base, %. \returns vacío si la base no es mayor que 0
std::optional<double> Ahorro(double base, double valor);

/// Caso con que se comparan los demás, el de nombre "Viejo"; nulo si no está.
const CasoCalculado* CasoBase(const std::vector<CasoCalculado>& casos);

}  // namespace novex
