#include "outputs/TextoTabla.h"

#include <algorithm>

#include "base/Texto.h"

namespace novex {
namespace {

constexpr std::string_view kMargen = "  ";
constexpr std::string_view kEntreColumnas = "  ";
constexpr std::string_view kRaya = "─";
constexpr std::size_t kAnchoRaya = 110;  // una columna de textos largos no la alarga más

struct Columna {
  std::size_t ancho = 0;
  bool numerica = false;
};

std::vector<Columna> Medir(const Tabla& tabla) {
  std::vector<Columna> columnas(tabla.cabeceras.size());
  for (std::size_t i = 0; i < tabla.cabeceras.size(); ++i)
    columnas[i].ancho = AnchuraTexto(tabla.cabeceras[i]);
  for (const auto& fila : tabla.filas) {
    if (fila.size() > columnas.size()) columnas.resize(fila.size());
    for (std::size_t i = 0; i < fila.size(); ++i) {
      columnas[i].ancho = std::max(columnas[i].ancho, AnchuraTexto(fila[i].texto));
      columnas[i].numerica |= fila[i].numero.has_value();
    }
  }
  return columnas;
}

void AnadirCelda(std::string& linea, std::string_view texto, const Columna& columna) {
  const std::string relleno(columna.ancho - AnchuraTexto(texto), ' ');
  if (columna.numerica) linea += relleno;
  linea += texto;
  if (!columna.numerica) linea += relleno;
}

// `texto(i)` da lo que va en la columna i.
template <class Texto>
std::string Linea(const std::vector<Columna>& columnas, std::size_t cuantas, Texto texto) {
  std::string linea(kMargen);
  for (std::size_t i = 0; i < cuantas; ++i) {
    if (i > 0) linea += kEntreColumnas;
    AnadirCelda(linea, texto(i), columnas[i]);
  }
  return std::string(SinBlancosFinales(linea)) + "\n";
}

std::string Raya(const std::vector<Columna>& columnas) {
  std::size_t ancho = 0;
  for (const Columna& c : columnas) ancho += c.ancho + kEntreColumnas.size();
  std::string linea(kMargen);
  for (std::size_t i = kEntreColumnas.size(); i < std::min(ancho, kAnchoRaya); ++i) linea += kRaya;
  return linea + "\n";
}

}  // namespace

std::size_t AnchuraTexto(std::string_view texto) {
  return static_cast<std::size_t>(std::count_if(texto.begin(), texto.end(), [](char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U;
  }));
}

std::string TextoTabla(const Tabla& tabla) {
  const std::vector<Columna> columnas = Medir(tabla);
  std::string texto;
  if (!tabla.titulo.empty()) texto += tabla.titulo + "\n";
  if (!tabla.cabeceras.empty()) {
    texto += Linea(columnas, tabla.cabeceras.size(),
                   [&](std::size_t i) -> std::string_view { return tabla.cabeceras[i]; });
    texto += Raya(columnas);
  }
  for (const auto& fila : tabla.filas)
    texto += Linea(columnas, fila.size(),
                   [&](std::size_t i) -> std::string_view { return fila[i].texto; });
  for (const std::string& nota : tabla.notas) texto.append(kMargen).append(nota).append("\n");
  return texto;
}

std::string TextoSeparado(const Tabla& tabla, std::size_t columnas) {
  std::string texto;
  for (std::size_t i = 0; i < std::min(columnas, tabla.cabeceras.size()); ++i)
    texto.append(tabla.cabeceras[i]).append(";");
  if (!tabla.cabeceras.empty()) texto += '\n';
  for (const auto& fila : tabla.filas) {
    for (std::size_t i = 0; i < std::min(columnas, fila.size()); ++i)
      texto.append(fila[i].texto).append(";");
    texto += '\n';
  }
  return texto;
}

}  // namespace novex
