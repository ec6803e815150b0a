#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "calculation/Entorno.h"
#include "model/GestorEdifActivo.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Un documento que se pide de un proyecto.
struct PedidoDocumento {
  TipoDocumento tipo = TipoDocumento::Certi;
  /// "EXISTENTES", "NUEVOS. PROYECTO", "NUEVOS. TERMINADO"; vacía, la que corresponde al caso.
  std::string clase;
  std::filesystem::path proyecto;  ///< fichero del proyecto: da nombre al documento
  std::filesystem::path carpeta;   ///< donde se escribe; vacía, junto al proyecto
  bool pdf = true;
  unsigned hilos = 1;  ///< para medir las mejoras marcadas
};

/// Hasta dónde se ha llegado.
enum class Emision {
  Hecha,
  Rechazada,   ///< el caso no pasa las comprobaciones previas
  SinCalculo,  ///< no se ha podido calcular
  SinHtml,     ///< no se ha podido escribir
  SinPdf       ///< queda el HTML
};
struct DocumentoEmitido {
  Emision estado = Emision::Hecha;
  std::filesystem::path html, pdf;  ///< vacío lo que no se ha escrito
};

/// Escribe el certificado o la verificación de un caso, en HTML y si se pide en PDF: comprueba el
/// caso, lo calcula si no lo está, mide las mejoras marcadas, deja sus imágenes en la carpeta de
/// imágenes y rellena la plantilla. De lo que impide algo se avisa por `entorno.mensajes`, y el
/// avance va del cálculo al PDF, en `entorno.progreso`: lo que este lance hasta el 70 %
/// interrumpe el documento sin haber escrito nada.
/// \throws ErrorFichero si un fichero de datos del programa falta o no se entiende
DocumentoEmitido EmitirDocumento(GestorEdifActivo& gestor, std::string_view nombreCaso,
                                 const PedidoDocumento& pedido, Entorno& entorno);

}  // namespace novex
