#pragma once

#include "base/Mensajes.h"
#include "files/xmlParser.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Nombre de un proyecto que aún no se ha guardado.
inline constexpr const char* kNombreProyectoNuevo = "Nuevo.xml";

/// Valores con que empieza un proyecto: datos generales, ventilación, aire, fotovoltaica, puentes
/// térmicos de su zona y uso "Residencial". El sitio no cambia.
/// \param perfilesUso elemento `PERFILES_USO`
void PonerValoresIniciales(Edificio& edificio, const XMLNode& perfilesUso, Mensajes& mensajes);

/// Sitio con que arranca el programa: Valencia, zona B3, 6 m y 39 grados.
void PonerSitioInicial(Edificio& edificio);

/// La orden de proyecto nuevo: deja un caso base con sus valores iniciales y el sitio del proyecto
/// que había; sin proyecto, con el sitio inicial.
void EmpezarProyecto(GestorEdifActivo& gestor, const XMLNode& perfilesUso, Mensajes& mensajes);

}  // namespace novex
