#pragma once

#include "calculation/Entorno.h"
#include "demand/AjustesUso.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Deja en el `calculo` del caso lo que la simulación lee: clima, cargas, datos del sitio,
/// factores, equipo por defecto y escala. Cambia en el caso la latitud y el clima del sitio.
/// \returns false si no se puede abrir el fichero de clima (el aviso ya se ha dado)
/// \throws ErrorFichero
bool PrepararCaso(Edificio& edificio, const AjustesUso& ajustes, Entorno& entorno, calculo& caso);

}  // namespace novex
