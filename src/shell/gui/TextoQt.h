#pragma once

#include <QString>
#include <filesystem>
#include <string>
#include <string_view>

namespace novex::gui {

/// Textos entre el motor, que los lleva en UTF-8, y Qt.
inline QString Q(std::string_view texto) {
  return QString::fromUtf8(texto.data(), static_cast<qsizetype>(texto.size()));
}
inline QString Q(const std::string& texto) {
  return QString::fromStdString(texto);
}
inline QString Q(const char* texto) {
  return QString::fromUtf8(texto);
}
inline QString Q(const std::filesystem::path& ruta) {
  return QString::fromStdString(ruta.string());
}
inline std::string S(const QString& texto) {
  return texto.toStdString();
}

}  // namespace novex::gui
