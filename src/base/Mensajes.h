#pragma once

#include <string>
#include <vector>

namespace novex {

/// Un aviso tal como se muestra: el título de la caja y su texto.
struct Mensaje {
  std::string titulo;
  std::string texto;
  bool operator==(const Mensaje&) const = default;
};

/// Puerto de los avisos al usuario: una caja en el escritorio, una línea en la consola, un registro
/// en las pruebas. Un aviso nunca está entre un resultado y quien lo pidió.
class Mensajes {
 public:
  virtual ~Mensajes() = default;
  /// Muestra un aviso con su título.
  virtual void Avisar(const std::string& titulo, const std::string& texto) = 0;
  /// Hace una pregunta de sí o no. Sin nadie que conteste, la respuesta es no.
  virtual bool Preguntar(const std::string& titulo, const std::string& texto) {
    Avisar(titulo, texto);
    return false;
  }
};

/// Guarda los avisos en orden, sin mostrarlos.
class RegistroMensajes : public Mensajes {
 public:
  void Avisar(const std::string& titulo, const std::string& texto) override {
    recibidos.push_back({titulo, texto});
  }
  std::vector<Mensaje> recibidos;
};

}  // namespace novex
