#include "base/FicheroSeguro.h"

#include <fstream>
#include <system_error>

#include "base/Disco.h"
#include "base/ErrorFichero.h"

namespace novex {
namespace {

[[noreturn]] void Fallar(const std::filesystem::path& ruta, const std::string& que) {
  throw ErrorFichero(ruta.string(), 0, 0, 0, que + " \"" + ruta.string() + "\"");
}

}  // namespace

std::string LeerFichero(const std::filesystem::path& ruta) {
  std::error_code fallo;
  if (!std::filesystem::is_regular_file(ruta, fallo)) Fallar(ruta, "No se pudo abrir el fichero");
  const auto tamano = std::filesystem::file_size(ruta, fallo);
  if (fallo) Fallar(ruta, "No se pudo abrir el fichero");
  if (tamano > kTamanoMaximoFichero) Fallar(ruta, "Pasa de 256 MiB y no se lee el fichero");
  std::ifstream entrada(ruta, std::ios::binary);
  if (!entrada) Fallar(ruta, "No se pudo abrir el fichero");
  std::string contenido(static_cast<std::size_t>(tamano), '\0');
  entrada.read(contenido.data(), static_cast<std::streamsize>(contenido.size()));
  if (!entrada) Fallar(ruta, "No se pudo leer entero el fichero");
  return contenido;
}

void EscribirFichero(const std::filesystem::path& ruta, std::string_view contenido) {
  Disco disco;
  EscribirFicheroEn(disco, ruta, contenido);
}

}  // namespace novex
