#pragma once

#include "Comun.h"
#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "files/ProyectoFichero.h"

namespace novex::fuzz {

/// Guarda un proyecto y da sus bytes.
inline std::string Guardado(const GestorEdifActivo& gestor, const CarpetaDeTrabajo& carpeta,
                            const char* nombre) {
  return LeerFichero(GuardarProyecto(gestor, carpeta.Ruta() / nombre));
}

/// Abre un fichero como proyecto; si se abre, lo que se guarda se abre y se guarda igual. Si no, el
/// proyecto abierto queda como estaba.
inline void ProbarProyecto(const CarpetaDeTrabajo& carpeta, const std::filesystem::path& fichero) {
  RegistroMensajes mensajes;
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  const Edificio* const antes = &gestor.Activo();
  try {
    if (!AbrirProyecto(gestor, fichero, ModoApertura::Nuevo, mensajes).abierto) return;
  } catch (const ErrorFichero&) {
    Exigir(gestor.NumeroCasos() == 1 && &gestor.Activo() == antes, "el proyecto queda como estaba");
    return;
  }
  const std::string primero = Guardado(gestor, carpeta, "primero.xml");
  GestorEdifActivo otro;
  otro.NuevoProyecto();
  // Lo que el programa ha escrito lo ha de leer: aquí una excepción es una falta.
  AbrirProyecto(otro, carpeta.Ruta() / "primero.xml", ModoApertura::Nuevo, mensajes);
  Exigir(Guardado(otro, carpeta, "segundo.xml") == primero, "lo guardado se lee igual");
  try {
    AbrirProyecto(gestor, fichero, ModoApertura::Anadir, mensajes);
  } catch (const ErrorFichero&) {
  }
}

}  // namespace novex::fuzz
