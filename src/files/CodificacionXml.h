#pragma once

#include <string_view>

namespace novex {

/// Codificaciones que distingue la capa XML.
enum class CodificacionXml { Utf8, Legado, ShiftJIS, GB2312, Big5, GBK };

/// Modo de codificación de un trabajo con ficheros: lo fija cada lectura y decide la cabecera de la
/// escritura siguiente. El objeto lo guarda quien abre y guarda, y se pasa a ambas.
struct ModoCodificacion {
  CodificacionXml valor = CodificacionXml::Utf8;

  /// Cambia el modo según los primeros bytes de un fichero (se miran 200). Con menos de 25 bytes, o
  /// si parecen texto de 16 bits, no cambia.
  void Deducir(std::string_view bytes);

  /// Nombre que lleva la cabecera de un fichero que no tiene declaración propia.
  std::string_view NombreCabecera() const;
};

/// Marca de orden de bytes de UTF-8.
inline constexpr std::string_view kBomUtf8 = "\xEF\xBB\xBF";

}  // namespace novex
