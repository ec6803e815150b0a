#include "shell/Certificador.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <system_error>

#include "base/ErrorFichero.h"
#include "base/Texto.h"
#include "files/CamposFichero.h"

namespace novex {
namespace {

using D = DatosGenerales;

constexpr const char* kFichero = "Certificador.xml";
constexpr std::string_view kRaiz = "CERTIFICADOR";
constexpr std::string_view kDeclaracion = "xml version=\"1.0\" encoding=\"UTF-8\"";
constexpr const char* kTitulo = "Atención.";

struct Dato {
  std::string_view etiqueta;
  std::string D::*campo;
  bool exigido = true;  // los demás no tienen casilla: se leen y se conservan
};

constexpr std::array<Dato, 13> kDatos = {{
    {"Nombre", &D::Certificador_Nombre},
    {"Razon_social", &D::Certificador_Empresa},
    {"Domicilio", &D::Certificador_Direccion},
    {"CIF", &D::Certificador_CIF},
    {"NIF", &D::Certificador_NIF},
    {"CP", &D::Certificador_CP},
    {"email", &D::Certificador_email},
    {"titulacion", &D::Certificador_Profesion},
    {"provincia", &D::Certificador_Provincia},
    {"municipio", &D::Certificador_Localidad},
    {"Movil", &D::Certificador_Movil},
    {"Telefono", &D::Certificador_Telefono, false},
    {"Colegio", &D::Certificador_Colegio_Profesional, false},
}};

bool EnBlanco(const std::string& texto) {
  return SinBlancos(texto).empty();
}

}  // namespace

std::filesystem::path FicheroCertificador(const EspacioTrabajo& espacio) {
  return espacio.Datos() / kFichero;
}

bool LeerCertificador(const std::filesystem::path& fichero, DatosGenerales& generales,
                      Mensajes& mensajes) {
  std::error_code sinImportancia;
  if (!std::filesystem::exists(fichero, sinImportancia)) return false;
  try {
    const XMLNode raiz = XMLNode::loadFile(fichero, kRaiz);
    for (const Dato& dato : kDatos)
      generales.*dato.campo = ValorDeHijo(raiz, dato.etiqueta).value_or("");
    return true;
  } catch (const ErrorFichero& error) {
    // Estos datos solo ahorran teclear: sin ellos el programa sigue.
    mensajes.Avisar(kTitulo, error.what());
    return false;
  }
}

bool GuardarCertificador(const std::filesystem::path& fichero, const DatosGenerales& generales,
                         Mensajes& mensajes) {
  const bool falta = std::any_of(kDatos.begin(), kDatos.end(), [&](const Dato& dato) {
    return dato.exigido && EnBlanco(generales.*dato.campo);
  });
  if (falta) {
    mensajes.Avisar(kTitulo, "No se almacena por existir algún campo en blanco");
    return false;
  }
  XMLNode cima = XMLNode::createTop(kDeclaracion);
  XMLNode raiz = cima.appendChild(kRaiz);
  for (const Dato& dato : kDatos)
    if (dato.exigido || !EnBlanco(generales.*dato.campo))
      AnadirValor(raiz, dato.etiqueta, generales.*dato.campo);
  const int codigo = cima.saveToFile(fichero);
  if (codigo == codigoXml::kSinError) return true;
  mensajes.Avisar(kTitulo, std::string(TextoErrorXml(codigo)) + ": \"" + fichero.string() + "\"");
  return false;
}

}  // namespace novex
