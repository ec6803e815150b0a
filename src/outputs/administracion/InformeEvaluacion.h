#pragma once

#include <string>
#include <vector>

#include "compliance/VerificacionHE.h"
#include "files/DatosDerivados.h"
#include "outputs/CasoCalculado.h"
#include "outputs/administracion/InformeMejoras.h"

namespace novex {

/// De lo que se hace el informe de evaluación energética.
struct DatosInforme {
  CasoCalculado caso;  ///< el que se certifica, ya calificado
  const VerificacionHE& verificacion;
  MejorasMedidas mejoras;                 ///< sin medidas, el informe no lleva la sección
  std::vector<const Edificio*> proyecto;  ///< todos los casos, con la base la primera
  DatosDerivados derivados;               ///< los que lleva el proyecto guardado
};

/// El informe de evaluación energética del edificio en formato electrónico, versión 2.0 (RD
/// 390/2021): el documento XML entero, en UTF-8 y con su declaración. En `DatosPersonalizados`
/// lleva los casos del proyecto, así que el fichero se puede abrir como proyecto.
/// \throws ErrorCalculo si el caso no tiene letra global, que el informe ha de llevar
std::string InformeEvaluacion(const DatosInforme& datos);

}  // namespace novex
