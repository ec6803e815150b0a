#include "compliance/DocumentosCondensacion.h"

#include "base/ErrorFichero.h"
#include "files/xmlParser.h"

namespace novex {
namespace {

constexpr std::string_view kDeclaracion = "xml version=\"1.0\" encoding=\"UTF-8\"";
constexpr std::string_view kRaizCondensacion = "CONDENSACION";
constexpr std::string_view kRaizPuentes = "PUENTESTERMICOS";
constexpr std::string_view kFila = "L";
constexpr std::size_t kColumnasDeTexto = 2;  // TIPO y Nombre

XMLNode DocumentoCondensacion(const Tabla& tabla) {
  XMLNode documento = XMLNode::createTop(kDeclaracion);
  XMLNode raiz = documento.appendChild(kRaizCondensacion);
  for (const auto& celdas : tabla.filas) {
    XMLNode fila = raiz.appendChild(kFila);
    for (std::size_t c = 0; c < kColumnasCondensacion.size(); ++c)
      fila.setAttribute(kColumnasCondensacion[c], celdas.at(c).texto);
  }
  return documento;
}

// El documento que hay. Es una copia de trabajo de la que solo se toman textos: si no se lee, se
// hace de nuevo.
XMLNode PuentesAnteriores(const std::filesystem::path& ruta) {
  try {
    return XMLNode::loadFile(ruta, kRaizPuentes);
  } catch (const ErrorFichero&) {
    return {};
  }
}

XMLNode DocumentoPuentes(const Tabla& tabla, const XMLNode& anterior) {
  XMLNode documento = XMLNode::createTop(kDeclaracion);
  XMLNode raiz = documento.appendChild(kRaizPuentes);
  XMLNode titulos = raiz.appendChild(kFila);
  const XMLNode titulosAnteriores = anterior.childAt(0);
  for (const std::string_view columna : kColumnasPuentes)
    titulos.setAttribute(columna, titulosAnteriores.attributeValue(columna).value_or(columna));
  for (std::size_t f = 0; f < tabla.filas.size(); ++f) {
    XMLNode fila = raiz.appendChild(kFila);
    const XMLNode filaAnterior = anterior.childAt(f + 1);
    for (std::size_t c = 0; c < kColumnasPuentes.size(); ++c) {
      const std::string& texto = tabla.filas[f].at(c).texto;
      fila.setAttribute(kColumnasPuentes[c],
                        c < kColumnasDeTexto
                            ? filaAnterior.attributeValue(kColumnasPuentes[c]).value_or(texto)
                            : std::string_view(texto));
    }
  }
  return documento;
}

}  // namespace

int EscribirDocumentosCondensacion(const std::filesystem::path& carpetaDatos,
                                   const VerificacionCondensacion& verificacion) {
  const int condensacion = DocumentoCondensacion(verificacion.tablaCerramientos)
                               .saveToFile(carpetaDatos / kFicheroCondensacion);
  const std::filesystem::path rutaPuentes = carpetaDatos / kFicheroPuentesTermicos;
  const int puentes = DocumentoPuentes(verificacion.tablaPuentes, PuentesAnteriores(rutaPuentes))
                          .saveToFile(rutaPuentes);
  return condensacion != 0 ? condensacion : puentes;
}

}  // namespace novex
