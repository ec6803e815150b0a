#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "files/CodificacionXml.h"
#include "files/EntidadesXml.h"
#include "files/ErroresXml.h"

namespace novex {

namespace arbolXml {
struct Arbol;
struct Nodo;
}  // namespace arbolXml

/// Asa de un elemento de un documento XML. Copiarla comparte el elemento; el documento vive
/// mientras quede un asa suya, y con él los textos que devuelve. El asa vacía no tiene elemento:
/// leer a través de ella siempre vale y da lo vacío. Los nombres se buscan sin distinguir
/// mayúsculas.
class XMLNode {
 public:
  /// Niveles de anidamiento, marcas '<' y marcas '=' que se aceptan de un fichero.
  static constexpr int kMaximoNivel = 256;
  static constexpr std::size_t kMaximoMarcas = 2'000'000;

  XMLNode() = default;

  /// Lee un fichero y da el elemento de nombre `rootTag`: el del documento o un hijo suyo; con
  /// `rootTag` vacío, el del documento. `modo` toma la codificación del fichero.
  /// \throws ErrorFichero con el código, la línea y la columna si falta o está mal formado
  static XMLNode loadFile(const std::filesystem::path& path, std::string_view rootTag,
                          ModoCodificacion& modo);
  /// Lo mismo, para los catálogos, cuya codificación no decide ninguna escritura.
  static XMLNode loadFile(const std::filesystem::path& path, std::string_view rootTag);
  /// Lee un documento que ya está en memoria; `nombre` es el que llevan sus errores.
  static XMLNode parseString(std::string bytes, std::string_view rootTag,
                             const std::string& nombre);
  /// Un documento nuevo con el texto de una declaración: `xml version="1.0" encoding="UTF-8"`.
  static XMLNode createTop(std::string_view declaration);

  bool isEmpty() const { return nodo_ == nullptr; }
  explicit operator bool() const { return nodo_ != nullptr; }

  /// El primer hijo de un nombre. Con `i`, la búsqueda empieza en la posición `*i`, y si lo
  /// encuentra
  /// `*i` pasa a la siguiente: llamadas repetidas recorren todos los de ese nombre.
  XMLNode childNamed(std::string_view name, std::size_t* i = nullptr) const;
  /// El hijo `k`, desde 0; vacío si no lo hay.
  XMLNode childAt(std::size_t k) const;
  std::size_t childCount() const;

  /// El valor del primer atributo de un nombre, con `i` como en `childNamed`; sin valor si no está,
  /// que es distinto de un texto vacío. El texto vale mientras viva el documento.
  std::optional<std::string_view> attributeValue(std::string_view name,
                                                 std::size_t* i = nullptr) const;
  bool hasAttribute(std::string_view name) const { return attributeValue(name).has_value(); }
  std::size_t attributeCount() const;
  struct Attribute {
    std::string_view name;
    std::string_view value;
  };
  /// El atributo `k`, desde 0; sin valor si no lo hay.
  std::optional<Attribute> attributeAt(std::size_t k) const;

  std::size_t textCount() const;
  std::optional<std::string_view> textAt(std::size_t k) const;
  std::size_t clearCount() const;
  std::optional<std::string_view> clearAt(std::size_t k) const;
  /// El nombre; sin valor en el asa vacía.
  std::optional<std::string_view> nameOf() const;

  /// Añade un hijo al final y lo devuelve. Las operaciones que cambian el documento no hacen nada
  /// sobre el asa vacía.
  XMLNode appendChild(std::string_view name);
  /// Añade un atributo al final, sin mirar si ya lo hay.
  void setAttribute(std::string_view name, std::string_view value);
  void appendText(std::string_view text);
  /// Añade un bloque `<![CDATA[`...`]]>`.
  void appendClear(std::string_view text);
  /// Cambia el texto del primer bloque, o lo añade si no hay ninguno.
  void updateClear(std::string_view text);

  /// El documento como texto, sin cabecera ni marca de orden de bytes.
  /// \param pretty un elemento por línea, con un tabulador por nivel
  std::string toString(bool pretty = true) const;
  /// Escribe el documento en un fichero, que nunca queda a medias.
  /// \param encodingName el de la cabecera cuando el documento no trae declaración; vacío, el del
  /// modo \returns 0, 15 si el fichero no se puede abrir o 16 si no se puede escribir
  int saveToFile(const std::filesystem::path& path, std::string_view encodingName = {},
                 bool pretty = true, const ModoCodificacion& modo = {}) const;

 private:
  XMLNode(std::shared_ptr<arbolXml::Arbol> arbol, arbolXml::Nodo* nodo)
      : arbol_(std::move(arbol)), nodo_(nodo) {}
  friend class LectorXml;

  std::shared_ptr<arbolXml::Arbol> arbol_;
  arbolXml::Nodo* nodo_ = nullptr;
};

}  // namespace novex
