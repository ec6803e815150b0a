#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "base/Tabla.h"
#include "improvements/EstudioMejoras.h"

namespace novex {

/// Lo que enseña una página del estudio de mejoras, en el orden de su selector. Las de equipos no
/// tienen los dos primeros.
enum class DatoEstudio : std::size_t {
  Demanda,
  AhorroDemanda,
  Final,
  AhorroFinal,
  PrimariaNoRenovable,
  AhorroPrimariaNoRenovable,
  Emisiones,
  AhorroEmisiones,
  CalificacionCO2,
  CalificacionPrimaria
};
inline constexpr std::size_t kDatosEstudio = 10;

/// Los datos que ofrece una página, en su orden.
std::vector<DatoEstudio> DatosDePagina(PaginaMedida pagina);
/// Nombre de un dato en una página.
std::string_view NombreDato(DatoEstudio dato, PaginaMedida pagina);

/// Valor de una medida en un dato: la cifra, el ahorro en % frente a la base o la letra; "----" si
/// la medida no se ha medido. \param medida puede ser nula
std::string TextoDato(DatoEstudio dato, const ResultadoMedida* medida, const ResultadoMedida& base);
/// Valor de la base, con su unidad tras las cifras; sobre un ahorro, la cifra de que se ahorra.
std::string TextoDatoBase(DatoEstudio dato, const ResultadoMedida& base);

/// Una página del estudio: la base y una fila por medida, marcadas con "*" las del proyecto.
/// \param medidas lo medido hasta ahora, en cualquier orden
Tabla TablaPaginaEstudio(PaginaMedida pagina, DatoEstudio dato, const ResultadoMedida& base,
                         const std::vector<ResultadoMedida>& medidas,
                         const EstudioModificaciones& estudio);

/// Lo que falta de un estudio: "Quedan: 1 min 5 s". \param media segundos por paso
std::string TextoQuedan(double media, std::size_t pasos);

}  // namespace novex
