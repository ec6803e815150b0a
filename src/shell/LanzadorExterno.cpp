#include "shell/LanzadorExterno.h"

#include <system_error>

#include "base/Proceso.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

constexpr const char* kTituloFallo = "AVISO";

// El programa con su nombre o con ".exe"; vacío si no está.
fs::path Encontrar(const fs::path& carpeta, std::string_view nombre) {
  for (const char* extension : {"", ".exe"}) {
    const fs::path candidato = carpeta / (std::string(nombre) + extension);
    std::error_code sinImportancia;
    if (fs::is_regular_file(candidato, sinImportancia)) return candidato;
  }
  return {};
}

}  // namespace

bool HayExterno(const EspacioTrabajo& espacio, std::string_view nombre) {
  return !Encontrar(espacio.programa, nombre).empty();
}

bool LanzarExterno(const EspacioTrabajo& espacio, std::string_view nombre,
                   const std::vector<std::string>& argumentos, Mensajes& mensajes) {
  const std::string texto(nombre);
  const fs::path programa = Encontrar(espacio.programa, nombre);
  if (programa.empty()) {
    mensajes.Avisar(kTituloFallo,
                    "No se encuentra el programa externo " + texto + " en la carpeta del programa");
    return false;
  }
  const std::string motivo = LanzarProceso({programa, argumentos, espacio.programa});
  if (motivo.empty()) return true;
  mensajes.Avisar(kTituloFallo, "No se pudo abrir el programa externo " + texto + ": " + motivo);
  return false;
}

std::filesystem::path RutaFicheroAdministracion(const std::filesystem::path& proyecto) {
  fs::path ruta = proyecto;
  return ruta.replace_filename(proyecto.stem().string() + "_certi.xml");
}

bool LanzarFicheroAdministracion(const EspacioTrabajo& espacio,
                                 const std::filesystem::path& proyecto, Mensajes& mensajes) {
  // Los dos corren en la carpeta de programa, donde un camino relativo sería otro.
  const fs::path guardado = fs::absolute(proyecto);
  const std::string certificado = RutaFicheroAdministracion(guardado).string();
  if (!LanzarExterno(espacio, programaExterno::kConvertidor, {guardado.string(), certificado},
                     mensajes))
    return false;
  mensajes.Avisar("ATENCION", "Relleno el pdf del certificado");
  return LanzarExterno(espacio, programaExterno::kImpreso, {certificado}, mensajes);
}

}  // namespace novex
