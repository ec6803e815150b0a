#include "outputs/ExportacionTablas.h"

#include <algorithm>

#include "base/Texto.h"
#include "outputs/TextoTabla.h"

namespace novex {
namespace {

constexpr std::size_t kMaximoColumnas = 15;
constexpr std::string_view kExtension = ".txt";

}  // namespace

std::string ExportarTablas(const CasoCalculado& caso, AlcanceExportacion alcance,
                           const SeleccionMensual& seleccion) {
  auto rejillas = alcance == AlcanceExportacion::Todas ? RejillasMensuales(caso)
                                                       : RejillasVisibles(caso, seleccion);
  std::stable_sort(rejillas.begin(), rejillas.end(),
                   [](const RejillaMensual& a, const RejillaMensual& b) {
                     return a.ordenFichero < b.ordenFichero;
                   });
  std::string texto;
  std::vector<std::string> anteriores;
  for (const RejillaMensual& rejilla : rejillas) {
    // Un título que sigue siendo el de la rejilla anterior no se repite.
    const auto& titulos = rejilla.titulosFichero;
    const auto nuevos =
        std::mismatch(titulos.begin(), titulos.end(), anteriores.begin(), anteriores.end()).first;
    for (auto it = nuevos; it != titulos.end(); ++it) texto.append(*it).append(";\n");
    texto += TextoSeparado(rejilla.tabla, kMaximoColumnas);
    anteriores = titulos;
  }
  return texto;
}

std::string ExportarObjetoReferencia(const CasoCalculado& caso, UnidadesReferencia unidades) {
  const auto tabla = TablaObjetoReferencia(caso, unidades);
  if (!tabla) return {};
  return tabla->titulo + ";\n" + TextoSeparado(*tabla, kMaximoColumnas);
}

std::string ExportarTablas(const std::vector<Tabla>& tablas) {
  std::string texto;
  for (const Tabla& tabla : tablas) {
    texto += tabla.titulo + ";\n" + TextoSeparado(tabla, kMaximoColumnas);
    for (const std::string& nota : tabla.notas) texto += nota + ";\n";
  }
  return texto;
}

std::filesystem::path RutaExportacion(const std::filesystem::path& elegida) {
  const std::string nombre = elegida.filename().string();
  const bool tiene =
      nombre.size() >= kExtension.size() &&
      IgualesSinMayusculas(std::string_view(nombre).substr(nombre.size() - kExtension.size()),
                           kExtension);
  std::filesystem::path ruta = elegida;
  if (!tiene) ruta += kExtension;
  return ruta;
}

}  // namespace novex
