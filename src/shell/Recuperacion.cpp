#include "shell/Recuperacion.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "files/ProyectoFichero.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

constexpr const char* kComienzo = "recuperado_";
constexpr const char* kOriginal = ".origen";

bool SigueVivo(long proceso) {
  return proceso > 0 && (::kill(static_cast<pid_t>(proceso), 0) == 0 || errno == EPERM);
}

fs::path FicheroOrigen(const fs::path& copia) {
  fs::path origen = copia;
  return origen += kOriginal;
}

}  // namespace

Recuperacion::Recuperacion(fs::path carpeta) : carpeta_(std::move(carpeta)) {}

fs::path Recuperacion::Fichero() const {
  return carpeta_ / (kComienzo + std::to_string(::getpid()) + ".xml");
}

bool Recuperacion::Guardar(const GestorEdifActivo& gestor, const fs::path& original) const {
  try {
    std::error_code sinImportancia;  // si no se crea, lo dirá la escritura
    fs::create_directories(carpeta_, sinImportancia);
    EscribirFichero(FicheroOrigen(Fichero()), original.string());
    GuardarProyecto(gestor, Fichero());
    return true;
  } catch (const ErrorFichero&) {
    return false;
  }
}

void Recuperacion::Quitar() const {
  Quitar({Fichero(), {}, {}});
}

void Recuperacion::Quitar(const TrabajoPerdido& perdido) {
  std::error_code sinImportancia;
  fs::remove(perdido.copia, sinImportancia);
  fs::remove(FicheroOrigen(perdido.copia), sinImportancia);
}

std::vector<TrabajoPerdido> Recuperacion::Perdidos() const {
  std::vector<TrabajoPerdido> perdidos;
  std::error_code fallo;
  for (const auto& entrada : fs::directory_iterator(carpeta_, fallo)) {
    const fs::path& ruta = entrada.path();
    const std::string nombre = ruta.stem().string();
    if (ruta.extension() != ".xml" || !nombre.starts_with(kComienzo)) continue;
    const long proceso =
        EnteroInicial(std::string_view(nombre).substr(std::string_view(kComienzo).size()));
    if (SigueVivo(proceso)) continue;
    TrabajoPerdido perdido{ruta, {}, entrada.last_write_time(fallo)};
    try {
      perdido.original = LeerFichero(FicheroOrigen(ruta));
    } catch (const ErrorFichero&) {
      perdido.original = "Nuevo.xml";
    }
    perdidos.push_back(std::move(perdido));
  }
  std::sort(perdidos.begin(), perdidos.end(),
            [](const auto& a, const auto& b) { return a.momento > b.momento; });
  return perdidos;
}

fs::path CarpetaRecuperacion() {
  const char* estado = std::getenv("XDG_STATE_HOME");
  if (estado != nullptr && *estado != '\0') return fs::path(estado) / "novex";
  const char* casa = std::getenv("HOME");
  return fs::path(casa != nullptr ? casa : ".") / ".local/state/novex";
}

}  // namespace novex
