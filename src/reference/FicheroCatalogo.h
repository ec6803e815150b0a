#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "model/NodoConservado.h"

namespace novex {

/// Un catálogo que el usuario amplía en su sitio: se lee entero y cada cambio se guarda entero, con
/// lo que el programa no conoce tal como estaba.
class FicheroCatalogo {
 public:
  /// \throws ErrorFichero si falta, está mal formado o su elemento no es `raiz`
  FicheroCatalogo(std::filesystem::path ruta, std::string_view raiz);

  const NodoConservado& Raiz() const { return raiz_; }

  /// Aplica un cambio a una copia del catálogo y la guarda; solo entonces el catálogo cambia. Si
  /// otro programa ha cambiado el fichero desde que se leyó, pregunta antes de escribir sobre él.
  /// \param cambio devuelve false si no hay nada que cambiar
  /// \returns si se ha cambiado y guardado; si no se puede escribir, avisa
  bool Cambiar(const std::function<bool(NodoConservado&)>& cambio, Mensajes& mensajes);

 private:
  // Con qué se nota que el fichero ya no es el que se leyó.
  struct Sello {
    std::filesystem::file_time_type fecha{};
    std::uintmax_t tamano = 0;
    bool operator==(const Sello&) const = default;
  };
  static Sello SelloDe(const std::filesystem::path& ruta);

  std::filesystem::path ruta_;
  NodoConservado raiz_;
  Sello sello_;
};

/// Escribe un catálogo entero; el fichero nunca queda a medias. \returns 0, o el código de error de
/// la capa XML
int EscribirCatalogo(const NodoConservado& raiz, const std::filesystem::path& ruta);

/// El primer hijo con ese nombre de elemento, o nulo.
const NodoConservado* HijoDe(const NodoConservado& nodo, std::string_view nombre);
NodoConservado* HijoDe(NodoConservado& nodo, std::string_view nombre);

/// El número de un texto de catálogo, con punto o coma; 0 si no lo es.
float NumeroDeCatalogo(std::string_view texto);

/// Adónde se mueve un elemento entre sus hermanos.
enum class Sentido { Arriba, Abajo };
/// Intercambia el hijo `indice` con su vecino. \returns false si no lo hay o no tiene vecino
bool MoverHijo(NodoConservado& padre, std::size_t indice, Sentido sentido);

}  // namespace novex
