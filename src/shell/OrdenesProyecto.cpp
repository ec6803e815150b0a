#include "shell/OrdenesProyecto.h"

#include "calculation/ComprobacionesPrevias.h"
#include "entry/CompletarProyecto.h"

namespace novex {
namespace {

constexpr const char* kAviso = "AVISO";

bool EsCasoDeUsuario(const GestorEdifActivo& gestor, std::string_view nombre) {
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
    if (GestorEdifActivo::NombreCasoUsuario(i) == nombre) return true;
  return false;
}

bool Existe(const GestorEdifActivo& gestor, std::string_view nombre, Mensajes& mensajes) {
  if (EsCasoDeUsuario(gestor, nombre)) return true;
  mensajes.Avisar(kAviso, "El proyecto no tiene el caso \"" + std::string(nombre) + "\"");
  return false;
}

}  // namespace

bool BorrarCaso(GestorEdifActivo& gestor, std::string_view nombre, Mensajes& mensajes) {
  if (!Existe(gestor, nombre, mensajes)) return false;
  if (gestor.NumeroCasos() == 1) {
    mensajes.Avisar(kAviso, "El proyecto solo tiene el caso base, que no se borra");
    return false;
  }
  gestor.EliminarCaso(nombre);
  return true;
}

std::string_view DuplicarCaso(GestorEdifActivo& gestor, std::string_view nombre,
                              Mensajes& mensajes) {
  if (!Existe(gestor, nombre, mensajes)) return {};
  if (gestor.PrimeraMejoraLibre().empty()) {
    mensajes.Avisar("Acción no válida", "o se pueden duplicar mas edificios. Maximo 5");
    return {};
  }
  if (const std::string falta = ComprobacionesPrevias(*gestor.Caso(nombre)); !falta.empty()) {
    mensajes.Avisar("Valor incorrecto", falta);
    return {};
  }
  gestor.ActivarCaso(nombre);
  return gestor.AnadirMejora();
}

ProyectoAbierto AnadirProyecto(GestorEdifActivo& gestor, const std::filesystem::path& ruta,
                               FicherosPrograma& ficheros, Mensajes& mensajes, bool& sustituido,
                               ModoCodificacion& codificacion) {
  sustituido = !ComprobacionesPrevias(gestor.Activo()).empty();
  if (sustituido)
    mensajes.Avisar(kAviso,
                    "Se abre como si fuera nuevo, ya que el edificio que existe no tierne datos "
                    "coherentes");
  ProyectoAbierto abierto =
      AbrirProyecto(gestor, ruta, sustituido ? ModoApertura::Nuevo : ModoApertura::Anadir, mensajes,
                    codificacion);
  if (abierto.abierto) CompletarProyecto(gestor, abierto, ficheros, mensajes);
  return abierto;
}

}  // namespace novex
