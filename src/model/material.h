#pragma once

#include <string>
#include <vector>

namespace novex {

/// Una entrada del almacén de materiales de un caso.
struct material {
  std::string Material;                       ///< nombre con que se compara y se muestra
  float Espesor = 0;                          ///< m
  float Conductividad = 0;                    ///< W/mK
  float Densidad = 0;                         ///< kg/m3
  float CalorEspecifico = 0;                  ///< J/kgK
  std::string Iniciales;                      ///< código corto
  float Resistencia_termica = 0;              ///< m2K/W
  float Resisvidad_relativa_vapor = 0;        ///< factor de difusión, adimensional
  std::string Nombre_material;                ///< nombre de catálogo
  std::string Grupo;                          ///< grupo de catálogo
  std::string Pertenece_a_base_de_datos_CTE;  ///< "SI" o "NO"
  std::string Aplicacion;                     ///< "M" muros, "F" cubiertas y suelos
  int usos = 0;                               ///< capas que se refieren a esta entrada

  /// ¿Es el mismo material para el almacén? Lo es con igual nombre, espesor y conductividad.
  bool MismoMaterial(const material& otro) const {
    return Espesor == otro.Espesor && Conductividad == otro.Conductividad &&
           Material == otro.Material;
  }
};

/// La composición de una posición de la envolvente.
struct composicion {
  static constexpr const char* kNoDefinido = "No definido";

  std::string nombre = kNoDefinido;
  float U = 0;                         ///< W/m2K
  std::vector<const material*> capas;  ///< de fuera adentro; apuntan al almacén del caso
};

}  // namespace novex
