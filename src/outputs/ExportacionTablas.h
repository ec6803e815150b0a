#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "outputs/CasoCalculado.h"
#include "outputs/TablaObjetoReferencia.h"
#include "outputs/TablasMensualesResultados.h"

namespace novex {

/// Qué tablas mensuales se exportan.
enum class AlcanceExportacion { Todas, Visible };

/// Las tablas mensuales de un caso como texto UTF-8: cada una con la fila de su título y las de la
/// rejilla, de 15 columnas como mucho y con cada celda seguida de ";". Las cifras llevan punto.
/// \param seleccion lo que está a la vista; solo se mira con `Visible`
std::string ExportarTablas(const CasoCalculado& caso, AlcanceExportacion alcance,
                           const SeleccionMensual& seleccion = {});

/// La tabla del edificio objeto y el de referencia en la misma forma; vacía donde no la hay.
std::string ExportarObjetoReferencia(const CasoCalculado& caso, UnidadesReferencia unidades);

/// Otras tablas de resultados en la misma forma, con sus notas debajo de cada una.
std::string ExportarTablas(const std::vector<Tabla>& tablas);

/// El camino con que se guarda una exportación: al que no acaba en ".txt" se le añade.
std::filesystem::path RutaExportacion(const std::filesystem::path& elegida);

}  // namespace novex
