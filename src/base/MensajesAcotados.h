#pragma once

#include <cstddef>
#include <string>

#include "base/Mensajes.h"

namespace novex {

/// Deja pasar a otros mensajes los primeros avisos, con su texto hasta un largo, y cuenta los
/// demás: un fichero estropeado no da un millón de avisos, ni uno de cien megas.
class MensajesAcotados : public Mensajes {
 public:
  static constexpr std::size_t kMaximoAvisos = 100;
  static constexpr std::size_t kMaximoTexto = 1000;  ///< bytes

  explicit MensajesAcotados(Mensajes& destino) : destino_(destino) {}
  void Avisar(const std::string& titulo, const std::string& texto) override;
  bool Preguntar(const std::string& titulo, const std::string& texto) override;
  /// Avisa de cuántos se han callado, si hay alguno.
  void Terminar();

 private:
  Mensajes& destino_;
  std::size_t avisos_ = 0;
};

}  // namespace novex
