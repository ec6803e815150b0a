#pragma once

#include <string_view>

namespace novex {

/// De dónde sale el valor de un campo de un caso.
enum class OrigenCampo {
  Editado,    ///< lo da quien define el edificio: alguna página tiene su editor
  Calculado,  ///< lo pone el programa con otros campos o con el clima
  Conservado  ///< se lee y se vuelve a escribir; ningún cálculo lo usa
};

/// El origen de un campo. \param direccion como en `files/AccesoCampos.h`
OrigenCampo OrigenDeCampo(std::string_view direccion);

}  // namespace novex
