#pragma once

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace novex::arbolXml {

enum class Contenido : std::uint8_t { Hijo, Texto, Claro };

struct Atributo {
  std::string_view nombre;
  std::string_view valor;
};

/// Un elemento. Sus textos apuntan a los bytes o a los textos del árbol que lo tiene.
struct Nodo {
  std::string_view nombre;
  bool esDeclaracion = false;
  std::vector<Atributo> atributos;
  std::vector<Nodo*> hijos;
  std::vector<std::string_view> textos;
  std::vector<std::string_view> claros;
  /// Orden entre hijos, textos y bloques; vacío mientras todo el contenido es de una clase.
  std::vector<Contenido> orden;

  void AnadirHijo(Nodo* hijo) {
    AnotarOrden(Contenido::Hijo);
    hijos.push_back(hijo);
  }
  void AnadirTexto(std::string_view texto) {
    AnotarOrden(Contenido::Texto);
    textos.push_back(texto);
  }
  void AnadirClaro(std::string_view texto) {
    AnotarOrden(Contenido::Claro);
    claros.push_back(texto);
  }

 private:
  void AnotarOrden(Contenido nuevo) {
    const std::size_t total = hijos.size() + textos.size() + claros.size();
    if (total == 0) return;
    if (orden.empty()) {
      const Contenido unico = !hijos.empty()    ? Contenido::Hijo
                              : !textos.empty() ? Contenido::Texto
                                                : Contenido::Claro;
      if (unico == nuevo) return;
      orden.assign(total, unico);
    }
    orden.push_back(nuevo);
  }
};

/// Dueño de los nodos y de los textos de un documento.
struct Arbol {
  std::string bytes;  ///< el fichero leído, que el analizador divide en su sitio
  std::deque<std::string> textos;
  std::deque<Nodo> nodos;

  std::string_view Guardar(std::string_view texto) { return textos.emplace_back(texto); }
  Nodo& Nuevo(std::string_view nombre) {
    Nodo& nodo = nodos.emplace_back();
    nodo.nombre = nombre;
    return nodo;
  }
};

}  // namespace novex::arbolXml
