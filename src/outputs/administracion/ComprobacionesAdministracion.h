#pragma once

#include <optional>

#include "base/Mensajes.h"
#include "model/Edificio.h"

namespace novex {

/// Aviso de que faltan datos del edificio o de quien lo certifica.
inline const Mensaje kAvisoDatosObligatorios = {
    "AVISO",
    "No se genera el fichero. Faltan datos generales obligatorios del edificio y(o del "
    "certificador"};
/// Aviso de que no consta ninguna visita, que el certificador ha de hacer (RD 390/2021).
inline const Mensaje kAvisoVisitas = {
    "AVISO", "No se genera el fichero. Faltan definir visitas edificio (mínimo una)"};

/// Comprueba lo que el fichero para la administración exige, en este orden: los datos del edificio
/// y del certificador, la forma de las referencias catastrales y que haya alguna visita. Un dato
/// con solo blancos falta. \param edificio el caso que se certifica
/// \returns el aviso de lo primero que falta, o nada si no falta nada
std::optional<Mensaje> ComprobarAdministracion(const Edificio& edificio);

}  // namespace novex
