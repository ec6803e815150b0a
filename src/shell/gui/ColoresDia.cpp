#include "shell/gui/ColoresDia.h"

#include <array>

namespace novex::gui {
namespace {

constexpr std::array<QRgb, 9> kColores = {0xff3b7cb8, 0xff4c9f70, 0xffd9822b,
                                          0xff8d6cc1, 0xffc4577f, 0xff2ba3a3,
                                          0xff9c7a4d, 0xff8a9a2f, 0xffb0504a};
constexpr QRgb kSinUso = 0xff8b9096;
constexpr int kLuminosidadTextoOscuro = 150;

}  // namespace

QColor ColorDia(int codigo) {
  if (codigo >= 1 && codigo <= static_cast<int>(kColores.size()))
    return QColor::fromRgb(kColores.at(static_cast<std::size_t>(codigo - 1)));
  return QColor::fromRgb(kSinUso);
}

QColor TextoSobreDia(int codigo) {
  const QColor fondo = ColorDia(codigo);
  return qGray(fondo.rgb()) > kLuminosidadTextoOscuro ? QColor(Qt::black) : QColor(Qt::white);
}

QColor ColorReja(const QPalette& paleta) {
  QColor color = paleta.color(QPalette::PlaceholderText);
  color.setAlpha(90);
  return color;
}

}  // namespace novex::gui
