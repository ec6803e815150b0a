#pragma once

#include <array>
#include <string>
#include <vector>

#include "outputs/CasoCalculado.h"
#include "outputs/ReglasResultados.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Una cifra de los documentos: cinco cifras significativas y dos decimales.
std::string CifraDocumento(float valor);

/// Los textos de las bandas de una escala, de "A" a "G", en HTML; "( - )" si no hay escala en
/// vigor. La obra nueva y las escalas sin completar acaban en "E": las dos últimas son un blanco.
std::array<std::string, kBandas> TextosBandas(const UmbralesEscala& umbrales, bool nuevo);

/// Añade las variables de los indicadores: valores, índices frente a la referencia y letras de
/// emisiones y energía primaria no renovable por servicio, y demandas. La iluminación, solo en
/// terciario. \param caso ya calificado
void VariablesIndicadores(const CasoCalculado& caso, std::vector<VBLE>& variables);

/// Añade las series de textos de las escalas de los totales y de las demandas.
void VariablesEscalas(const CasoCalculado& caso, std::vector<VBLE>& variables);

/// Añade las series de textos de las escalas que lleva cada hoja de mejora.
void VariablesEscalasMejora(const CasoCalculado& caso, std::vector<VBLE>& variables);

}  // namespace novex
