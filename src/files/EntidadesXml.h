#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace novex {

/// Una fila de la tabla de entidades: el texto con que se escribe un carácter.
struct EntidadXml {
  std::string_view texto;
  char32_t codigo;
};

/// La tabla, en el orden en que se busca.
std::span<const EntidadXml> TablaEntidades();

/// Escritura de textos y valores de atributo.
class ToXMLStringTool {
 public:
  /// El texto (UTF-8) con las entidades de la tabla; los demás caracteres quedan como están. El
  /// carácter nulo no puede estar en un XML y se omite.
  static std::string toXML(std::string_view texto);
  /// Lo mismo, añadido al final de `destino`.
  static void Anadir(std::string& destino, std::string_view texto);
};

/// Resultado de decodificar un texto: código de error, 0 si no lo hay, y el byte donde está.
struct ResultadoEntidades {
  int codigo = 0;
  std::size_t posicion = 0;
};

/// ¿Puede tomarse el texto de un fichero tal como está, sin entidades ni bytes fuera de ASCII?
bool EsTextoLlano(std::string_view bytes);

/// Pasa a UTF-8 un texto de un fichero: resuelve las entidades, deja los bytes que ya son UTF-8 y
/// toma los demás por Latin-1/Windows-1252. El resultado se añade a `destino`.
ResultadoEntidades DecodificarTextoXml(std::string_view bytes, std::string& destino);

}  // namespace novex
