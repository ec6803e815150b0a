// Los catálogos de materiales y composiciones que el usuario amplía, y la puesta al día de uno con
// otro.
#include "Comun.h"
#include "base/ErrorFichero.h"
#include "files/NodoConservadoXml.h"
#include "reference/CatalogoComposiciones.h"
#include "reference/CatalogoMateriales.h"
#include "reference/FusionCatalogos.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  using namespace novex;
  static const fuzz::CarpetaDeTrabajo carpeta;
  const auto fichero = carpeta.Con("catalogo.xml", fuzz::Texto(datos, bytes));
  try {
    const CatalogoMateriales materiales(fichero);
    for (const MaterialCatalogo& m : materiales.Buscar("a")) static_cast<void>(m.capa);
  } catch (const ErrorFichero&) {
  }
  try {
    const CatalogoComposiciones composiciones(fichero);
    for (const ComposicionCatalogo& c : composiciones.Buscar("a")) static_cast<void>(c.U());
  } catch (const ErrorFichero&) {
  }
  try {
    const NodoConservado uno = Conservar(XMLNode::loadFile(fichero, ""));
    NodoConservado usuario = uno, vacio;
    FundirCatalogo(uno, usuario, uno);
    FundirCatalogo({}, vacio, uno);
    // Lo que se guarda es lo que se vuelve a leer.
    fuzz::Exigir(EscribirCatalogo(uno, fichero) == 0, "se guarda");
    fuzz::Exigir(Conservar(XMLNode::loadFile(fichero, "")) == uno, "lo guardado se lee igual");
  } catch (const ErrorFichero&) {
  }
  return 0;
}
