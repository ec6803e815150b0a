#include "outputs/documentos/EscribirDocumento.h"

#include <optional>
#include <string>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "outputs/documentos/RellenoPlantilla.h"

namespace novex {
namespace {

constexpr const char* kTitulo = "Atención";
constexpr const char* kFicheroEstilo = "documentos.css";

std::optional<std::string> Leer(const std::filesystem::path& ruta) {
  try {
    return LeerFichero(ruta);
  } catch (const ErrorFichero&) {
    return std::nullopt;
  }
}

}  // namespace

PlantillasDocumento PlantillasDe(const std::filesystem::path& datos, TipoDocumento tipo,
                                 bool residencial) {
  const bool certificado = tipo == TipoDocumento::Certi;
  const char* documento = nullptr;
  if (residencial)
    documento = certificado ? "PLANTILLA_CERTIFICADO_VIVIENDA.html"
                            : "PLANTILLA_CERTIFICADO_VIVIENDA_HE.html";
  else
    documento = certificado ? "CERTIFICADO DE EFICIENCIA ENERGÉTICA DE EDIFICIOS EXISTENTES.html"
                            : "VERIFICACION_DE_REQUISITOS_DE_CTE-HE0_Y_HE1.html";
  return {datos / documento,
          datos / (residencial ? "PLANTILLA_MEJORAS.html" : "PLANTILLA_MEJORAS_TERCIARIO.html")};
}

std::filesystem::path NombreDocumento(const std::filesystem::path& proyecto, TipoDocumento tipo,
                                      const std::filesystem::path& carpeta) {
  std::filesystem::path nombre = proyecto.filename();
  const std::filesystem::path extension = nombre.extension();
  if (extension == ".xml" || extension == ".txt") nombre = nombre.stem();
  nombre += tipo == TipoDocumento::HE ? "_HE.html" : ".html";
  return (carpeta.empty() ? proyecto.parent_path() : carpeta) / nombre;
}

std::string LeerHojaEstilo(const std::filesystem::path& datos) {
  return Leer(datos / kFicheroEstilo).value_or("");
}

bool EscribirDocumento(const PlantillasDocumento& plantillas, const std::filesystem::path& salida,
                       const NOVEX_TO_MODELOCERTIFICADO& modelo, Mensajes& mensajes) {
  const auto documento = Leer(plantillas.documento);
  const auto mejora = modelo.mejoras.empty() ? std::string() : Leer(plantillas.mejora);
  if (!documento || !mejora) {
    mensajes.Avisar(kTitulo, "No se pudo abrir el fichero plantilla entrada html");
    return false;
  }
  try {
    EscribirFichero(salida, RellenarPlantilla(*documento, modelo, *mejora));
  } catch (const ErrorFichero&) {
    mensajes.Avisar(kTitulo, "No se pudo abrir el fichero de salida html");
    return false;
  }
  return true;
}

}  // namespace novex
