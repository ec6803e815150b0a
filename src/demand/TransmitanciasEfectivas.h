#pragma once

#include "demand/ResultadosCaso.h"
#include "model/Edificio.h"

namespace novex {

/// Resistencia que una medida añade a los elementos de una posición, m2K/W; 0 si a ninguno.
float ResistenciaAnadida(std::size_t posicion, const Forzados& forzados);

/// U efectiva de cada posición de la envolvente, W/m2K: la de su composición, con las resistencias
/// superficiales de su papel si la construcción no las da por buenas, y la resistencia añadida de
/// la medida que se estudia. Una U de 0 sigue en 0.
std::array<float, kRanuras> TransmitanciasEfectivas(const Edificio& edificio,
                                                    const Forzados& forzados);

/// Factor b de un espacio no acondicionado en el balance horario: parte de la diferencia de
/// temperatura que ve la partición, entre 0,28 y 1. 0 sin conductancias. \param
/// UAinterior,UAexterior W/K \param claseRenovacion 0 a 4: 0, 0,5, 1, 5 y 10 renovaciones por hora
float FactorLocalNoHabitable(float UAinterior, float UAexterior, int claseRenovacion);

/// Factor b de los informes (CTE, DA DB-HE/1, tabla 7): por la relación de áreas, el aislamiento de
/// los dos cerramientos y la ventilación del espacio. 0 sin áreas.
float FactorReduccionB(float Ainterior, float Uinterior, float Aexterior, float Uexterior,
                       int claseRenovacion);

/// Deja en los resultados las constantes de los informes: U equivalente de los elementos al terreno
/// y factor b y b·U de los elementos a espacios no acondicionados. Usa `resultados.Uefectiva`.
void ConstantesDeInforme(const Edificio& edificio, ResultadosCaso& resultados);

}  // namespace novex
