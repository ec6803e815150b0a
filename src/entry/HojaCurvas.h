#pragma once

#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/SistemaResidencial.h"
#include "systems/CatalogoEquipos.h"

namespace novex {

/// Una línea de un gráfico de curvas, con el parámetro que la distingue.
struct LineaCurva {
  std::string rotulo;  ///< como "Tws=45ºC"; vacío si el gráfico solo tiene una
  std::vector<std::pair<float, float>> puntos;
};

/// Una fila de coeficientes de un grupo.
struct FilaCoeficientes {
  std::string_view rotulo;
  std::span<float> (*valores)(CurvasEquipo&);
};

/// Un grupo de curvas de un equipo: una tabla de coeficientes y su gráfico.
struct GrupoCurvas {
  std::string_view nombre;    ///< el del grupo en el catálogo de equipos
  std::string_view titulo;    ///< lo que da
  std::string_view variable;  ///< el eje horizontal
  std::vector<FilaCoeficientes> filas;
  bool conTeCambio = false;  ///< lleva además la temperatura de cambio
};

/// Una página de la hoja de curvas, de una familia de equipos.
struct PaginaCurvas {
  std::string_view familia;  ///< "Generadores", "EquiposAA" o "EquiposAW"
  std::string nominales;     ///< condiciones en que los cocientes valen 1
  std::vector<GrupoCurvas> grupos;
};

/// Las páginas que tocan a un bloque, con los grupos de los servicios que da. Vacía en las clases
/// sin curvas.
std::vector<PaginaCurvas> PaginasDeCurvas(std::string_view tipoSistema, std::string_view seleccion);

/// Las líneas del gráfico de un grupo. \param familia la de su página
std::vector<LineaCurva> LineasDeGrupo(std::string_view grupo, std::string_view familia,
                                      const CurvasEquipo& curvas);

/// La potencia de un equipo de aire a aire en otras condiciones, por el método de la batería desde
/// las nominales (27 °C secos y 19 °C húmedos dentro, 35 °C fuera, 101325 Pa).
struct PotenciaReal {
  float total = 0, sensible = 0;      ///< kW
  float tadp = 0;                     ///< rocío del aparato en las nominales, °C
  float razonNominal = 0, razon = 0;  ///< partes sensibles
  float cocienteTotal = 0;            ///< total de la hora entre la nominal
};
/// \param total,sensible nominales, kW \param ti,thi seco y húmedo dentro, °C \param te fuera, °C
/// \returns ceros sin potencias nominales
PotenciaReal PotenciaEnCondiciones(float total, float sensible, const CurvasEquipo& curvas,
                                   float ti, float thi, float te);

}  // namespace novex
