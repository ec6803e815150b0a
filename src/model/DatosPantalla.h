#pragma once

#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace novex {

struct ReferenciaCatastral {
  std::string Parcela, Inmueble, Parte;
  bool operator==(const ReferenciaCatastral&) const = default;
};

/// Clases de elemento que la protección del edificio no deja cambiar.
inline constexpr std::array<std::string_view, 7> kClasesInalterables = {
    "Ninguno", "Fachada", "Cubierta", "Portal", "Escaleras", "Patio", "Otro"};

struct ElementoInalterable {
  std::string Tipo, Descripcion;
  bool operator==(const ElementoInalterable&) const = default;
};

/// Datos del proyecto que se guardan en el fichero y no están en los demás registros.
struct DatosPantalla {
  std::string Registro = "DGC";  ///< "DGC", "AFA", "BFA", "GFA" o "RRTN"
  std::vector<ReferenciaCatastral> referencias;
  std::vector<ElementoInalterable> inalterables;
  /// Texto de la imagen del edificio y del plano; sin valor, no hay imagen. Los casos los
  /// comparten.
  std::shared_ptr<const std::string> Imagen, Plano;

  bool operator==(const DatosPantalla& otro) const {
    const auto iguales = [](const auto& a, const auto& b) {
      return a == b || (a && b && *a == *b);
    };
    return Registro == otro.Registro && referencias == otro.referencias &&
           inalterables == otro.inalterables && iguales(Imagen, otro.Imagen) &&
           iguales(Plano, otro.Plano);
  }
};

}  // namespace novex
