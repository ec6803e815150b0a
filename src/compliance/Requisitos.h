#pragma once

#include "model/DatosGenerales.h"

namespace novex {

/// Exigencias cuya aplicación depende de la intervención.
enum class Requisito {
  HE0,      ///< limitación del consumo
  HE1Kq,    ///< transmitancia global, control solar y permeabilidad del edificio
  HE1Klim,  ///< transmitancia máxima de todos los elementos
  HE4       ///< contribución renovable al agua caliente
};
enum class Aplicacion { Si, No, Ninguna };

/// ¿Se exige un requisito? En un edificio nuevo, todos; en uno existente, según su `Reforma`. Una
/// reforma que no es de la lista no da respuesta.
Aplicacion AplicaRequisito(const DatosGenerales& generales, Requisito requisito);

/// ¿Es un edificio existente con esa intervención? Los blancos finales no cuentan.
bool EsReforma(const DatosGenerales& generales, std::string_view reforma);

/// Por qué no se aplica un requisito; vacía si se aplica.
std::string NotaAplicacion(const DatosGenerales& generales, Aplicacion aplicacion);

}  // namespace novex
