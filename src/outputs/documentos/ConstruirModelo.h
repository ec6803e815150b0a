#pragma once

#include <string>

#include "compliance/VerificacionHE.h"
#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"
#include "outputs/documentos/VariablesImagenes.h"
#include "outputs/documentos/VariablesMejora.h"

namespace novex {

/// Lo que hace falta para el modelo de un documento.
struct DatosDocumento {
  TipoDocumento tipo = TipoDocumento::Certi;
  /// "EXISTENTES", "NUEVOS. PROYECTO" o "NUEVOS. TERMINADO"; en la verificación, "NUEVO" o
  /// "EXISTENTE".
  std::string clase;
  ImagenesDocumento imagenes;
  std::string hojaEstilo;  ///< CSS que la plantilla lleva dentro
};

/// El modelo de un documento. \param caso ya calculado y calificado \param verificacion la del
/// mismo caso \param mejoras medidas marcadas ya medidas; sin ninguna no hay hojas
NOVEX_TO_MODELOCERTIFICADO ConstruirModelo(const CasoCalculado& caso,
                                           const VerificacionHE& verificacion,
                                           const MejorasMedidas& mejoras,
                                           const DatosDocumento& datos);

/// La clase de un documento cuando no se dice: la que corresponde a `TipoCertificado`, y en la
/// verificación a `Modo_trabajo`.
std::string ClaseDocumento(const DatosGenerales& generales, TipoDocumento tipo);

}  // namespace novex
