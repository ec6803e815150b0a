#pragma once

#include <string>

#include "calculation/Entorno.h"
#include "model/Edificio.h"
#include "shell/cli/Consola.h"

namespace novex::cli {

/// El lugar de un edificio como se da en la consola; vacío lo que no se da.
struct SitioPedido {
  std::string provincia, municipio, altitud, zona;
  bool Dado() const { return !municipio.empty() || !altitud.empty() || !zona.empty(); }
};

/// Pone el edificio en el municipio pedido, con su altitud y su zona si se dan.
/// \throws ErrorUso si el municipio no está o hay varios, o la zona no existe
void PonerSitio(Edificio& edificio, const SitioPedido& sitio, FicherosPrograma& ficheros,
                Mensajes& mensajes);

/// Posición de un uso por su número o por su nombre, o lo que lo distingue de los demás, sin mirar
/// mayúsculas ni acentos. \throws ErrorUso si no es ninguno o puede ser varios
int PerfilUsoPedido(const std::string& texto);

/// La única entrada de una lista que es el texto o, si no, empieza por él, sin mirar mayúsculas ni
/// acentos. \param que nombre de lo que se elige, para el error \throws ErrorUso si no hay una sola
template <class Lista>
std::size_t ElegirDeLista(const Lista& lista, const std::string& texto, const std::string& que);

}  // namespace novex::cli

#include "base/Texto.h"

namespace novex::cli {

template <class Lista>
std::size_t ElegirDeLista(const Lista& lista, const std::string& texto, const std::string& que) {
  const std::string clave = ClaveBusqueda(SinBlancos(texto));
  std::string opciones;
  std::size_t encontrada = 0, cuantas = 0, i = 0;
  for (const auto& entrada : lista) {
    const std::string otra = ClaveBusqueda(SinBlancos(entrada));
    if (otra == clave) return i;
    if (otra.starts_with(clave)) {
      encontrada = i;
      ++cuantas;
    }
    opciones += (opciones.empty() ? "\"" : ", \"") + std::string(entrada) + "\"";
    ++i;
  }
  if (cuantas != 1 || clave.empty())
    throw ErrorUso(que + " \"" + texto + "\" no está en la lista: " + opciones);
  return encontrada;
}

}  // namespace novex::cli
