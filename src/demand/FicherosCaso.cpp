#include "demand/FicherosCaso.h"

#include <vector>

#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"

namespace novex {
namespace {

struct Columna {
  const char* atributo;
  int decimales;
  const SerieHoraria* serie;
};

// Los atributos de una hora, en el orden del fichero.
std::vector<Columna> Columnas(const calculo& c) {
  const SeriesClima& k = c.clima;
  const SeriesCarga& q = c.carga;
  return {{"TSE", 2, &k.TSE},
          {"WE", 5, &k.WE},
          {"THE", 2, &k.THE},
          {"FIE", 2, &k.FIE},
          {"TCIE", 2, &k.TCIE},
          {"IDIRECTA", 2, &k.IDIRECTA},
          {"IDIFUSA", 2, &k.IDIFUSA},
          {"RADH", 2, &k.RADH},
          {"AZIMUTS", 2, &k.AZIMUTS},
          {"CENITS", 2, &k.CENITS},
          {"MLIGEROS", 2, &k.MLIGERO[sur]},
          {"MLIGEROSE", 2, &k.MLIGERO[sur_este]},
          {"MLIGEROE", 2, &k.MLIGERO[este]},
          {"MLIGERON", 2, &k.MLIGERO[norte]},
          {"MLIGEROO", 2, &k.MLIGERO[oeste]},
          {"MLIGEROSO", 2, &k.MLIGERO[sur_oeste]},
          {"CLIGEROH", 2, &k.CLIGEROH},
          {"CLIGEROS", 2, &k.CLIGERO[sur]},
          {"CLIGEROSE", 2, &k.CLIGERO[sur_este]},
          {"CLIGEROE", 2, &k.CLIGERO[este]},
          {"CLIGERON", 2, &k.CLIGERO[norte]},
          {"CLIGEROO", 2, &k.CLIGERO[oeste]},
          {"CLIGEROSO", 2, &k.CLIGERO[sur_oeste]},
          {"CLIGEROSS", 2, &k.CLIGERO[sur]},
          {"SUELOEXT", 2, &k.SUELOEXT},
          {"COND", 2, &k.COND},
          {"IRADS", 2, &k.IRAD[sur]},
          {"IRADSE", 2, &k.IRAD[sur_este]},
          {"IRADE", 2, &k.IRAD[este]},
          {"IRADN", 2, &k.IRAD[norte]},
          {"IRADO", 2, &k.IRAD[oeste]},
          {"IRADSO", 2, &k.IRAD[sur_oeste]},
          {"IRADH", 2, &k.IRADH},
          {"TCR", 2, &q.TCR},
          {"TRR", 2, &q.TRR},
          {"NRR", 2, &q.NRR},
          {"QOCUPShT", 2, &q.QOCUPShT},
          {"QILUhT", 2, &q.QILUhT},
          {"QEQhT", 2, &q.QEQhT},
          {"QOCUPSh", 2, &q.QOCUPSh},
          {"QILUh", 2, &q.QILUh},
          {"QEQh", 2, &q.QEQh}};
}

constexpr const char* kCabecera = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<DatosNOVEX6.1>\n";
constexpr const char* kPie = "</DatosNOVEX6.1>\n";

std::string NombreFichero(std::string_view prefijo, std::string_view nombreCaso) {
  constexpr std::string_view kMejora = "Mejora_";
  std::string nombre(prefijo);
  if (nombreCaso.starts_with(kMejora))
    nombre.append("R").append(nombreCaso.substr(kMejora.size()));
  else if (nombreCaso == "Referencia")
    nombre += "Referencia";
  return nombre + ".xml";
}

}  // namespace

std::string NombreFicheroBalance(std::string_view nombreCaso) {
  return NombreFichero("Prueba", nombreCaso);
}

std::string NombreFicheroSistemas(std::string_view nombreCaso) {
  return NombreFichero("PruebaBis", nombreCaso);
}

void EscribirFicheroBalance(const std::filesystem::path& carpeta, std::string_view nombreCaso,
                            const calculo& caso) {
  const std::vector<Columna> columnas = Columnas(caso);
  std::string texto = kCabecera;
  texto.reserve(std::size_t{8} * 1024 * 1024);
  for (int h = 1; h <= kHorasAno; ++h) {
    texto.append("\t<Item Hora=\"").append(std::to_string(h)).append("\"");
    for (const Columna& c : columnas)
      texto.append(" ")
          .append(c.atributo)
          .append("=\"")
          .append(Fijo((*c.serie)[h], c.decimales))
          .append("\"");
    texto += "/>\n";
  }
  texto += kPie;
  EscribirFichero(carpeta / NombreFicheroBalance(nombreCaso), texto);
}

void EscribirFicheroSistemas(const std::filesystem::path& carpeta, std::string_view nombreCaso,
                             const calculo& caso) {
  constexpr int kCifras = 5;
  std::string texto = kCabecera;
  texto.reserve(std::size_t{1024} * 1024);
  for (int h = 1; h <= kHorasAno; ++h) {
    texto += "\t<Item";
    for (const AtributoSistema& a : caso.atributos)
      texto.append(" ")
          .append(a.nombre)
          .append("=\"")
          .append(FijoCifras(static_cast<double>(a.serie[h]), kCifras, a.decimales))
          .append("\"");
    texto += "/>\n";
  }
  texto += kPie;
  EscribirFichero(carpeta / NombreFicheroSistemas(nombreCaso), texto);
}

}  // namespace novex
