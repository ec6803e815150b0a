#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Qué se mira en la página de detalle, en el orden de `RGTipoSalida`.
enum class SalidaDetalle : std::size_t {
  Demanda,
  Emisiones,
  EnergiaPrimaria,
  PrimariaRenovable,
  PrimariaNoRenovable,
  Vectores
};
inline constexpr std::array<std::string_view, 6> kSalidasDetalle = {"Demanda",
                                                                    "Emisiones",
                                                                    "Energía Primaria",
                                                                    "E.Primaria Renovable",
                                                                    "E.Primaria No Renovable",
                                                                    "Vectores Energéticos"};

/// De qué servicios, en el orden de `RadioGroup7`.
enum class ServiciosDetalle : std::size_t {
  Totales,  ///< los cinco
  CadaUno,  ///< calefacción y refrigeración por separado
  Sumados   ///< las dos sumadas
};
inline constexpr std::array<std::string_view, 3> kServiciosDetalle = {
    "Totales", "Calefac / Refrig.", "Calefac + Refrig."};

/// Cómo se reparten calefacción y refrigeración, en el orden de `RBTipoAnalisis`. De los totales y
/// de los vectores no hay reparto.
enum class AnalisisDetalle : std::size_t {
  Globales,
  Elementos,
  Opacos,
  HuecosGrupos,
  HuecosOrientacion
};
inline constexpr std::array<std::string_view, 5> kAnalisisDetalle = {
    "Globales", "Elementos", "Cerr.Opacos", "Huecos Grupos", "Huecos Orient."};

struct SeleccionDetalle {
  SalidaDetalle salida = SalidaDetalle::Demanda;
  ServiciosDetalle servicios = ServiciosDetalle::Totales;
  AnalisisDetalle analisis = AnalisisDetalle::Globales;
};

/// Un gráfico de barras con el rótulo que lleva su valor.
struct GraficoDetalle {
  Grafico grafico;
  std::string rotulo;  ///< "Demanda Calef. 12.34 kWh/m2 año."
};

/// Los gráficos de la página de detalle de un caso. Valores por m2 de superficie útil y año, en kWh
/// o en kg de CO2; los vectores, además, en kWh del edificio. \param caso ya calculado
std::vector<GraficoDetalle> PaginaDetalle(const CasoCalculado& caso,
                                          const SeleccionDetalle& seleccion);

/// Los elementos de la envolvente, de más a menos por lo que hacen entre las dos: la calefacción,
/// por lo que pierden, y la refrigeración, por lo que ganan. Un cerramiento, un grupo de huecos, la
/// renovación de aire o los puentes por fila, y el total; valores por m2 y año y su parte en %.
/// \param salida en qué se da; los vectores no se reparten: la demanda
Tabla TablaElementos(const CasoCalculado& caso, SalidaDetalle salida);

}  // namespace novex
