#include "files/SeccionesProyecto.h"

#include <algorithm>

namespace novex {

int LeerTipos(const XMLNode& grupo, std::span<const Campo<RegistrosCaso>> campos, RegistrosCaso& r,
              std::size_t maximo, Mensajes& mensajes) {
  const std::size_t cuantos = std::min(grupo.childCount(), maximo);
  for (std::size_t tipo = 0; tipo < cuantos; ++tipo)
    LeerCampos(grupo.childAt(tipo), campos, r, mensajes, SiFalta::Conservar, tipo);
  return static_cast<int>(cuantos);
}

void EscribirTipos(XMLNode& padre, std::string_view grupo, std::string_view etiqueta,
                   std::span<const Campo<RegistrosCaso>> campos, RegistrosCaso& r,
                   std::size_t cuantos) {
  XMLNode nodoGrupo = padre.appendChild(grupo);
  for (std::size_t tipo = 0; tipo < cuantos; ++tipo) {
    XMLNode nodo = nodoGrupo.appendChild(etiqueta);
    EscribirCampos(nodo, campos, r, tipo);
  }
}

}  // namespace novex
