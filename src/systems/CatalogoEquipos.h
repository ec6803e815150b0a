#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"

namespace novex {

/// Un modelo del catálogo de equipos.
struct ModeloEquipo {
  std::string modelo;
  float PotTotRef = 0, PotSenRef = 0, ConRef = 0, PotCal = 0, ConCal = 0;  ///< kW
  CurvasEquipo curvas;
  /// Eficiencia frigorífica, 0 sin consumo.
  float EER() const { return ConRef > 0.0F ? PotTotRef / ConRef : 0.0F; }
  /// Eficiencia en calor, 0 sin consumo.
  float COP() const { return ConCal > 0.0F ? PotCal / ConCal : 0.0F; }
};

/// Familia y tipo del catálogo que corresponden a una clase de generador; vacíos si no tiene.
struct TipoCatalogo {
  std::string_view familia, tipo;
};
TipoCatalogo TipoDeCatalogo(std::string_view seleccion);

/// Catálogo de equipos comerciales y genéricos, sobre `Equipos.xml`.
class CatalogoEquipos {
 public:
  /// \param raiz elemento `EquiposNovex`
  CatalogoEquipos(XMLNode raiz, Mensajes& mensajes) : raiz_(std::move(raiz)), mensajes_(mensajes) {}

  /// Fabricantes que tienen la familia y el tipo.
  std::vector<std::string> Fabricantes(std::string_view familia, std::string_view tipo) const;
  /// Modelos de un fabricante, en el orden del catálogo.
  std::vector<ModeloEquipo> Modelos(std::string_view fabricante, std::string_view familia,
                                    std::string_view tipo) const;
  /// Aplica a un bloque el modelo de la fila `fila` (desde 1): sus curvas y, si no es genérico, sus
  /// potencias. Una fila que no existe no cambia nada. \returns si se ha aplicado
  bool Aplicar(std::string_view fabricante, std::string_view familia, std::string_view tipo,
               std::size_t fila, Instalaciones& bloque) const;
  /// Pone en los bloques genéricos del caso las curvas del catálogo, por su clase y modelo.
  void PonerCurvasGenericas(Edificio& edificio) const;

 private:
  XMLNode NodoTipo(std::string_view fabricante, std::string_view familia,
                   std::string_view tipo) const;

  XMLNode raiz_;
  Mensajes& mensajes_;
};

}  // namespace novex
