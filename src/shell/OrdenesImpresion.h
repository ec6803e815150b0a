#pragma once

#include <span>
#include <string>
#include <string_view>

#include "model/Edificio.h"
#include "outputs/documentos/ModeloCertificado.h"
#include "shell/SesionProyecto.h"

namespace novex {

/// Los paneles de la impresión; en cada momento se ve uno.
enum class PanelImpresion {
  PHE1,       ///< la verificación, desde su página
  Pnuevo1,    ///< el certificado de un edificio nuevo
  PExistente  ///< el de uno existente
};
std::string_view NombrePanel(PanelImpresion panel);

/// Una orden de un panel: el documento que escribe.
struct OrdenImpresion {
  std::string_view control;  ///< nombre de su botón
  PanelImpresion panel;
  std::string_view rotulo;
  TipoDocumento tipo;
  std::string_view clase;  ///< la del documento
};
/// Las cinco órdenes, en el orden de los paneles.
std::span<const OrdenImpresion> OrdenesImpresion();

/// El panel que toca. \param desdeVerificacion ¿se imprime desde la página de la verificación?
PanelImpresion PanelDeImpresion(bool desdeVerificacion, const DatosGenerales& generales);

/// Pone el edificio como existente, o como nuevo.
void PonerExistente(Edificio& edificio, bool existente);

/// ¿Hay que guardar el proyecto antes de imprimir? Los documentos se escriben a su lado, y uno
/// antiguo de texto no puede tenerlos con su nombre.
bool HayQueGuardarAntes(const SesionProyecto& sesion);

/// Lo que se dice al usuario de dónde queda el documento y de por qué puede fallar.
inline constexpr std::string_view kTextoSalidaPdf =
    "- Salida en pdf con el mismo nombre del proyecto en la carpeta donde tenga almacenado el "
    "proyecto";
inline constexpr std::string_view kTextoCausas =
    "Si usted no puede imprimir el informe es posible que:\n"
    "  · el nombre del fichero tenga algún carácter extraño\n"
    "  · el proyecto sea un \".txt\" antiguo, que antes hay que guardar como \".xml\"\n"
    "  · el programa que hace el PDF no tenga permiso para ejecutarse";
inline constexpr std::string_view kTextoDocumentoEscrito = "Documento escrito";

}  // namespace novex
