#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Vistas de la página mensual, en el orden de su selector.
enum class VistaMensual : std::size_t { PorServicio, DemandaYSolar, Fotovoltaica };
inline constexpr std::array<std::string_view, 3> kTextoVistaMensual = {
    "Por tipo servicio y Energía/Emisiones", "Demanda y E. Solar Térmica",
    "Reparto E. Fotovoltaica servicio EPBD"};

/// Servicios de la página mensual, en el orden de su selector.
enum class ServicioMes : std::size_t {
  Total,
  Calefaccion,
  Refrigeracion,
  Ventilacion,
  ACS,
  Iluminacion
};
inline constexpr std::array<std::string_view, 6> kTextoServicioMes = {
    "Total", "Calefacción", "Refrigeración", "Ventilación", "ACS", "Iluminación"};

/// Resultados de la página mensual y de la comparación, por `UnidadEnergia` y en el orden de sus
/// selectores.
inline constexpr std::array<std::string_view, kUnidadesEnergia> kTextoResultado = {
    "Energia Final", "Energía primaria", "Energia primaria no renovable",
    "Energía primaria renovable", "Emisiones CO2"};

/// Lo que está a la vista en la página mensual; tal cual, lo que se ve al entrar.
struct SeleccionMensual {
  VistaMensual vista = VistaMensual::PorServicio;
  ServicioMes servicio = ServicioMes::Total;  ///< solo en la vista por servicio
  UnidadEnergia unidad = kFinal;              ///< solo en la vista por servicio
};

/// Una rejilla de la página mensual.
struct RejillaMensual {
  std::string nombre;  ///< nombre fijo con que se pide: "final-acs", "demanda"...
  /// Títulos que la preceden en el fichero de texto, del general al propio.
  std::vector<std::string> titulosFichero;
  int ordenFichero = 0;  ///< entre las de una vista, al escribirlas
  /// Con su rótulo por título, el nombre de la rejilla en la esquina y "ENE" a "DIC", "ANUAL" y
  /// "ANUAL/m2" por columnas; lo que se lee debajo va en las notas.
  Tabla tabla;
};

/// Todas las rejillas de la página mensual de un caso, en el orden en que se escriben en el fichero
/// de texto. Las de iluminación, solo en terciario. \param caso ya plegado
std::vector<RejillaMensual> RejillasMensuales(const CasoCalculado& caso);

/// Las rejillas que están a la vista, de arriba abajo. \param caso ya plegado
std::vector<RejillaMensual> RejillasVisibles(const CasoCalculado& caso,
                                             const SeleccionMensual& seleccion);

/// Nombres de las rejillas de un caso, en su orden: en vivienda faltan los de iluminación.
std::vector<std::string> NombresRejillas(const Edificio& edificio);

/// La rejilla de ese nombre, comparado exactamente; vacía si no hay tal nombre en el caso.
std::optional<RejillaMensual> RejillaDeNombre(const CasoCalculado& caso, std::string_view nombre);

/// Los meses de una rejilla en barras, una serie por fila. Los totales y las filas que son 0 todo
/// el año no tienen barras. \returns sin series si no hay nada que dibujar
Grafico GraficoMeses(const Tabla& rejilla);

/// Rótulo de la vista de demanda: las demandas del año, kWh/m2.
std::string RotuloDemanda(const CasoCalculado& caso);

}  // namespace novex
