#include "shell/cli/Consola.h"

#include <iostream>
#include <system_error>
#include <utility>

#include "outputs/TextoTabla.h"

namespace novex::cli {

void MensajesConsola::Avisar(const std::string& titulo, const std::string& texto) {
  std::cerr << titulo << ": " << texto << '\n';
  recibidos_.push_back({titulo, texto});
}

std::vector<Mensaje> MensajesConsola::Tomar() {
  return std::exchange(recibidos_, {});
}

EspacioTrabajo AbrirEspacio(const std::string& programa) {
  std::error_code error;
  if (!programa.empty()) {
    if (!std::filesystem::is_directory(programa, error))
      throw ErrorOrden("No existe la carpeta de programa \"" + programa + "\"");
    return {programa};
  }
  const auto ejecutable = std::filesystem::read_symlink("/proc/self/exe", error);
  const auto carpeta = error ? std::filesystem::path{} : BuscarCarpetaPrograma(ejecutable);
  if (carpeta.empty())
    throw ErrorOrden("No se encuentra la carpeta de programa: désela con --programa");
  return {carpeta};
}

void EscribirTablas(const std::vector<Tabla>& tablas) {
  std::string texto;
  for (const Tabla& tabla : tablas) {
    if (tabla.filas.empty()) continue;
    if (!texto.empty()) texto += '\n';
    texto += TextoTabla(tabla);
  }
  EscribirSalida(texto);
}

void EscribirSalida(const std::string& texto) {
  std::cout << texto << std::flush;
  if (!std::cout) throw ErrorOrden("No se pudo escribir en la salida");
}

}  // namespace novex::cli
