#include "demand/InstalarClima.h"

#include <algorithm>
#include <system_error>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/Texto.h"
#include "demand/FicheroMet.h"

namespace novex {
namespace {

std::vector<std::filesystem::path> FicherosDe(const std::filesystem::path& carpeta) {
  std::error_code error;
  std::filesystem::directory_iterator it(carpeta, error);
  if (error)
    throw ErrorFichero(carpeta.string(), 0, 0, 0, "No se pudo leer la carpeta " + carpeta.string());
  std::vector<std::filesystem::path> ficheros;
  for (const std::filesystem::directory_iterator fin; it != fin; it.increment(error)) {
    if (error) break;
    ficheros.push_back(it->path());
  }
  // El orden de una carpeta depende del sistema de ficheros.
  std::sort(ficheros.begin(), ficheros.end());
  return ficheros;
}

ClimaInstalado InstalarZona(std::string_view zona,
                            const std::vector<std::filesystem::path>& ficheros,
                            const std::filesystem::path& carpetaConjunto) {
  ClimaInstalado resultado;
  resultado.zona = zona;
  const std::string nombre = "zona" + resultado.zona + ".met";
  const auto hallado = std::find_if(ficheros.begin(), ficheros.end(), [&](const auto& ruta) {
    return IgualesSinMayusculas(ruta.filename().string(), nombre);
  });
  if (hallado == ficheros.end()) {
    resultado.faltas = {"no está en la carpeta"};
    return resultado;
  }
  resultado.origen = *hallado;
  const std::string contenido = LeerFichero(*hallado);
  resultado.faltas = ComprobarMet(contenido);
  if (!resultado.faltas.empty()) return resultado;
  EscribirFichero(carpetaConjunto / ("Zona" + resultado.zona + ".met"), contenido);
  resultado.instalado = true;
  return resultado;
}

}  // namespace

std::vector<ClimaInstalado> InstalarClima(const std::filesystem::path& carpeta,
                                          const std::filesystem::path& carpetaConjunto) {
  const std::vector<std::filesystem::path> ficheros = FicherosDe(carpeta);
  std::error_code error;
  std::filesystem::create_directories(carpetaConjunto, error);
  if (error)
    throw ErrorFichero(carpetaConjunto.string(), 0, 0, 0,
                       "No se pudo crear la carpeta " + carpetaConjunto.string());
  std::vector<ClimaInstalado> resultados;
  resultados.reserve(kZonasMet.size());
  for (const std::string_view zona : kZonasMet)
    resultados.push_back(InstalarZona(zona, ficheros, carpetaConjunto));
  return resultados;
}

}  // namespace novex
