#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace novex {

/// Qué ha sido de cada cosa de un fichero de una versión anterior: líneas de texto que se enseñan a
/// quien lo abre o lo convierte. Una lectura de un fichero de hoy lo deja vacío.
struct InformeLectura {
  using Lineas = std::vector<std::string>;

  Lineas leidos;      ///< qué se ha leído, y cuánto
  Lineas porDefecto;  ///< lo que el fichero no dice, con el valor que ha tomado
  Lineas saltados;    ///< lo que no se ha leído, con su lugar en el fichero y por qué
  Lineas cambiados;   ///< lo que se ha guardado de otro modo que como estaba

  /// Líneas que admite una lista: un fichero estropeado no la hace crecer más.
  static constexpr std::size_t kMaximoLineas = 500;

  /// Añade una línea a una de las listas; la que pasa del máximo dice solo que hay más.
  static void Anotar(Lineas& lista, std::string linea) {
    if (lista.size() < kMaximoLineas)
      lista.push_back(std::move(linea));
    else if (lista.size() == kMaximoLineas)
      lista.emplace_back("... y más");
  }

  /// Añade lo de otro informe, con algo delante de cada línea.
  void Juntar(const InformeLectura& otro, const std::string& delante = "") {
    for (auto lista : {&InformeLectura::leidos, &InformeLectura::porDefecto,
                       &InformeLectura::saltados, &InformeLectura::cambiados})
      for (const std::string& linea : otro.*lista) Anotar(this->*lista, delante + linea);
  }

  bool Vacio() const {
    return leidos.empty() && porDefecto.empty() && saltados.empty() && cambiados.empty();
  }
};

}  // namespace novex
