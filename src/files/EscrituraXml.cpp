#include <unistd.h>

#include <system_error>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "files/ArbolXml.h"
#include "files/xmlParser.h"

namespace novex {
namespace {

using arbolXml::Contenido;
using arbolXml::Nodo;

class EscritorXml {
 public:
  explicit EscritorXml(bool enLineas) : enLineas_(enLineas) {}

  std::string Texto(const Nodo& nodo) {
    if (nodo.esDeclaracion) {
      salida_.append("<?").append(nodo.nombre).append("?>");
      if (enLineas_) salida_ += '\n';
      EscribirContenido(nodo, 0);
    } else {
      EscribirElemento(nodo, 0);
    }
    return std::move(salida_);
  }

 private:
  void EscribirElemento(const Nodo& nodo, std::size_t nivel) {
    Sangrar(nivel);
    salida_.append("<").append(nodo.nombre);
    for (const auto& a : nodo.atributos) {
      salida_.append(" ").append(a.nombre).append("=\"");
      ToXMLStringTool::Anadir(salida_, a.valor);
      salida_ += '"';
    }
    const bool conHijos = !nodo.hijos.empty();
    if (!conHijos && nodo.textos.empty() && nodo.claros.empty()) {
      salida_ += "/>";
    } else {
      salida_ += '>';
      if (conHijos) Saltar();
      EscribirContenido(nodo, nivel + 1);
      if (conHijos) Sangrar(nivel);
      salida_.append("</").append(nodo.nombre).append(">");
    }
    Saltar();
  }

  // Los textos y los bloques van en su línea solo entre hijos; solos, junto a su etiqueta.
  void EscribirContenido(const Nodo& nodo, std::size_t nivel) {
    const bool conHijos = !nodo.hijos.empty();
    std::size_t hijo = 0, texto = 0, claro = 0;
    const auto escribirUno = [&](Contenido clase) {
      if (clase == Contenido::Hijo) {
        EscribirElemento(*nodo.hijos[hijo++], nivel);
        return;
      }
      if (conHijos) Sangrar(nivel);
      if (clase == Contenido::Texto)
        ToXMLStringTool::Anadir(salida_, nodo.textos[texto++]);
      else
        salida_.append("<![CDATA[").append(nodo.claros[claro++]).append("]]>");
      if (conHijos) Saltar();
    };
    if (nodo.orden.empty()) {
      for (std::size_t k = 0; k < nodo.hijos.size(); ++k) escribirUno(Contenido::Hijo);
      for (std::size_t k = 0; k < nodo.textos.size(); ++k) escribirUno(Contenido::Texto);
      for (std::size_t k = 0; k < nodo.claros.size(); ++k) escribirUno(Contenido::Claro);
    } else {
      for (const Contenido clase : nodo.orden) escribirUno(clase);
    }
  }

  void Sangrar(std::size_t nivel) {
    if (enLineas_) salida_.append(nivel, '\t');
  }
  void Saltar() {
    if (enLineas_) salida_ += '\n';
  }

  std::string salida_;
  bool enLineas_;
};

bool SePuedeAbrir(const std::filesystem::path& ruta) {
  std::error_code sinImportancia;
  if (std::filesystem::is_directory(ruta, sinImportancia)) return false;
  const std::filesystem::path carpeta = ruta.has_parent_path() ? ruta.parent_path() : ".";
  return std::filesystem::is_directory(carpeta, sinImportancia) &&
         ::access(carpeta.c_str(), W_OK) == 0;
}

}  // namespace

std::string XMLNode::toString(bool pretty) const {
  return nodo_ == nullptr ? std::string() : EscritorXml(pretty).Texto(*nodo_);
}

int XMLNode::saveToFile(const std::filesystem::path& path, std::string_view encodingName,
                        bool pretty, const ModoCodificacion& modo) const {
  if (!SePuedeAbrir(path)) return codigoXml::kNoSeAbre;
  std::string contenido;
  if (modo.valor == CodificacionXml::Utf8) contenido.append(kBomUtf8);
  if (nodo_ != nullptr && !nodo_->esDeclaracion) {
    contenido.append("<?xml version=\"1.0\" encoding=\"");
    contenido.append(encodingName.empty() ? modo.NombreCabecera() : encodingName);
    contenido.append("\"?>\n");
  }
  contenido += toString(pretty);
  try {
    EscribirFichero(path, contenido);
  } catch (const ErrorFichero&) {
    return codigoXml::kNoSeEscribe;
  }
  return codigoXml::kSinError;
}

}  // namespace novex
