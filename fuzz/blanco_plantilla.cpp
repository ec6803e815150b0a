// El relleno de las plantillas HTML. La entrada es la plantilla, la de una mejora y un texto del
// usuario, separados por un byte nulo.
#include <algorithm>

#include "Comun.h"
#include "outputs/documentos/RellenoPlantilla.h"

namespace {

std::string_view Tomar(std::string_view& resto) {
  const std::size_t fin = std::min(resto.find('\0'), resto.size());
  const std::string_view trozo = resto.substr(0, fin);
  resto.remove_prefix(std::min(fin + 1, resto.size()));
  return trozo;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  using namespace novex;
  std::string_view resto = fuzz::Texto(datos, bytes);
  const std::string_view plantilla = Tomar(resto), mejora = Tomar(resto), usuario = Tomar(resto);
  const std::string html = TextoHtml(usuario);
  fuzz::Exigir(html.find_first_of("<>\"'_") == std::string::npos,
               "un texto sin etiquetas ni marcas");

  NOVEX_TO_MODELOCERTIFICADO modelo;
  // Valores que traen marcas: la suya, la de otra, y dos que se llaman una a otra.
  modelo.variables = {{"NOMBRE", html}, {"A", "_A__A_"}, {"B", "_C_"}, {"C", "_B_"}, {"", "x"}};
  modelo.cerramientos = {{html, html, html, html, html, {}}};
  modelo.composiciones = {
      {html, html, html, html, html, {{html, html, html, html, html, html, html}}}};
  modelo.huecos = {{html, html, html, html, html, html, html, html}};
  modelo.equiposCalefaccion = {{html, html, html, html, html, html}};
  modelo.equiposRefrigeracion = modelo.equiposACS = modelo.equiposCalefaccion;
  modelo.consumos = {{html, html, html, html}};
  modelo.producciones = {{html, html, html, html}};
  modelo.puentes = {{html, html, html, html, html}};
  modelo.funcionamiento = {{{html, html, html, html, html, html}}};
  modelo.condensaciones.resize(3);
  modelo.mejoras = {{html, modelo.variables}, {"", {}}};
  static_cast<void>(RellenarPlantilla(plantilla, modelo, mejora));

  fuzz::Exigir(RellenarPlantilla("<p>_NOMBRE_</p>", modelo, "") == "<p>" + html + "</p>\n",
               "el texto del usuario entra una vez y tal como está");
  return 0;
}
