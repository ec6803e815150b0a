#pragma once

#include <string>
#include <vector>

#include "calculation/Entorno.h"
#include "model/GestorEdifActivo.h"
#include "outputs/CasoCalculado.h"
#include "shell/cli/Consola.h"

namespace novex::cli {

/// Los casos de usuario de un proyecto, en su orden.
std::vector<std::string> CasosDe(const GestorEdifActivo& gestor);

/// Los casos que se piden: el de ese nombre, o todos si está vacío.
/// \throws ErrorUso si el proyecto no lo tiene
std::vector<std::string> CasosPedidos(const GestorEdifActivo& gestor, const std::string& caso);

/// Avisa de lo que impide calcular los casos; con varios en el proyecto, dice de cuál es.
/// \returns si se pueden calcular todos
bool SePuedenCalcular(const GestorEdifActivo& gestor, const std::vector<std::string>& nombres,
                      Mensajes& mensajes);

/// Calcula los casos. \returns uno por caso, o ninguno si falta el clima o el
/// volumen de un depósito, de lo que ya se ha avisado
std::vector<CasoCalculado> CalcularCasos(GestorEdifActivo& gestor,
                                         const std::vector<std::string>& nombres,
                                         FicherosPrograma& ficheros, MensajesConsola& mensajes,
                                         bool ficherosDeCaso = false);

}  // namespace novex::cli
