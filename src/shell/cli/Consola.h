#pragma once

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/EspacioTrabajo.h"
#include "base/Mensajes.h"
#include "base/Tabla.h"

namespace novex::cli {

/// Códigos de salida del programa.
enum Salida : int {
  kHecho = 0,
  kNoCumple = 1,     ///< el proyecto o los datos no cumplen algo
  kMalUso = 2,       ///< la orden está mal escrita
  kSinHacer = 3,     ///< no se ha podido calcular o escribir
  kXmlErroneo = 255  ///< un fichero XML falta o no se entiende
};

/// Lo que hace una orden ya elegida; da su código de salida.
using Orden = std::function<int()>;

/// La orden no se puede cumplir como está escrita.
class ErrorUso : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// No se puede hacer lo pedido con los ficheros y carpetas que hay.
class ErrorOrden : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Escribe los avisos en la salida de errores, como "título: texto", y los guarda.
class MensajesConsola : public Mensajes {
 public:
  void Avisar(const std::string& titulo, const std::string& texto) override;
  /// Los avisos recibidos desde la última vez que se tomaron.
  std::vector<Mensaje> Tomar();

 private:
  std::vector<Mensaje> recibidos_;
};

/// Las carpetas de trabajo con la carpeta de programa dada, o con la que corresponde al ejecutable
/// si no se da ninguna. \throws ErrorOrden si no la hay
EspacioTrabajo AbrirEspacio(const std::string& programa);

/// Escribe las tablas que tienen filas en la salida, con una línea en blanco entre ellas.
void EscribirTablas(const std::vector<Tabla>& tablas);

/// Nombre de fichero que significa la salida.
inline constexpr const char* kSalidaEstandar = "-";

/// Escribe un texto en la salida. \throws ErrorOrden si la salida no lo admite
void EscribirSalida(const std::string& texto);

}  // namespace novex::cli
