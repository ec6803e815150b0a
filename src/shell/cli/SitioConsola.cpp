#include "shell/cli/SitioConsola.h"

#include <algorithm>

#include "base/NumeroTexto.h"
#include "entry/CatalogoMunicipios.h"
#include "entry/Sitio.h"
#include "model/DatosGenerales.h"

namespace novex::cli {
namespace {

constexpr std::size_t kCandidatosMaximos = 8;

const Municipio& MunicipioPedido(const CatalogoMunicipios& municipios, const SitioPedido& sitio) {
  if (const Municipio* m = municipios.Elegir(sitio.provincia, sitio.municipio)) return *m;
  const auto candidatos = municipios.Empiezan(sitio.municipio, sitio.provincia);
  if (candidatos.empty())
    throw ErrorUso("No se encuentra el municipio \"" + sitio.municipio + "\"" +
                   (sitio.provincia.empty() ? "" : " en \"" + sitio.provincia + "\""));
  std::string hay;
  for (std::size_t i = 0; i < std::min(candidatos.size(), kCandidatosMaximos); ++i)
    hay += (i == 0 ? "" : "; ") + candidatos[i]->nombre + " (" + candidatos[i]->provincia + ")";
  if (candidatos.size() > kCandidatosMaximos) hay += "...";
  throw ErrorUso("\"" + sitio.municipio + "\" puede ser varios municipios: " + hay);
}

}  // namespace

void PonerSitio(Edificio& edificio, const SitioPedido& sitio, FicherosPrograma& ficheros,
                Mensajes& mensajes) {
  const XMLNode& capitales = ficheros.Xml("Capitales.xml", "CAPITALES");
  if (!sitio.municipio.empty()) {
    const CatalogoMunicipios municipios(
        ficheros.Xml("ZONACLIMATICATEMPYRAD.xml", "ZONACLIMATICATEMPYRAD"));
    const Municipio& m = MunicipioPedido(municipios, sitio);
    PonerMunicipio(edificio, municipios, capitales, m.provincia, m.nombre, false, mensajes);
  } else if (!sitio.provincia.empty()) {
    throw ErrorUso("Con la provincia ha de darse el municipio");
  }
  if (!sitio.altitud.empty()) PonerAltitud(edificio, capitales, sitio.altitud, mensajes);
  if (!sitio.zona.empty() && !FijarZona(edificio, sitio.zona))
    throw ErrorUso("\"" + sitio.zona + "\" no es una zona climática de la lista");
}

int PerfilUsoPedido(const std::string& texto) {
  double numero = 0;
  if (LeerReal(texto, numero)) {
    if (numero != static_cast<int>(numero) || numero < 0 ||
        numero >= static_cast<double>(kNombrePerfilUso.size()))
      throw ErrorUso("El uso ha de ser un número de 0 a " +
                     std::to_string(kNombrePerfilUso.size() - 1) + " o un nombre");
    return static_cast<int>(numero);
  }
  constexpr std::array<std::pair<std::string_view, int>, 3> kCortos = {
      {{"unifamiliar", 0}, {"bloque", 1}, {"piso", 2}}};
  for (const auto& [corto, perfil] : kCortos)
    if (ClaveBusqueda(SinBlancos(texto)) == corto) return perfil;
  // Bastan las palabras que lo distinguen: "unifamiliar", "8h alta".
  const std::string clave = ClaveBusqueda(SinBlancos(texto));
  std::vector<std::size_t> posibles;
  for (std::size_t i = 0; i < kNombrePerfilUso.size(); ++i) {
    const std::string nombre = ClaveBusqueda(kNombrePerfilUso[i]);
    if (nombre == clave) return static_cast<int>(i);
    bool todas = !clave.empty();
    for (std::size_t desde = 0; desde < clave.size();) {
      const std::size_t hasta = std::min(clave.find(' ', desde), clave.size());
      todas &= nombre.find(clave.substr(desde, hasta - desde)) != std::string::npos;
      desde = hasta + 1;
    }
    if (todas) posibles.push_back(i);
  }
  if (posibles.size() == 1) return static_cast<int>(posibles.front());
  std::string hay;
  for (std::size_t i = 0; i < kNombrePerfilUso.size(); ++i)
    hay += "\n  " + std::to_string(i) + "  " + std::string(kNombrePerfilUso[i]);
  throw ErrorUso("El uso \"" + texto + "\" no es uno solo de:" + hay);
}

}  // namespace novex::cli
