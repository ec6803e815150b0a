#include "outputs/TablaClima.h"

#include <array>

#include "base/Calendario.h"
#include "base/Texto.h"

namespace novex {
namespace {

constexpr std::array<const char*, kMeses> kNombreMes = {"ENE", "FEB", "MAR", "ABR", "MAY", "JUN",
                                                        "JUL", "AGO", "SEP", "OCT", "NOV", "DIC"};

Celda Cifra(float valor) {
  return Celda::Numero(static_cast<double>(valor), 1);
}

std::vector<Celda> Fila(const char* nombre, const FilaResumenMet& f) {
  return {nombre,
          Cifra(f.mediaSeca),
          Cifra(f.minimaSeca),
          Cifra(f.maximaSeca),
          Cifra(f.humedadRelativa),
          Cifra(f.global),
          Cifra(f.directa),
          Cifra(f.difusa),
          Cifra(f.depresionCielo)};
}

}  // namespace

Tabla TablaClima(const FicheroMet& fichero) {
  Tabla tabla;
  tabla.titulo = std::string(SinBlancos(fichero.titulo));
  tabla.cabeceras = {"",          "T media",    "T mínima",  "T máxima",   "HR media",
                     "Global Hz", "Directa Hz", "Difusa Hz", "T - T cielo"};
  const ResumenMensualMet resumen = ResumirMet(fichero);
  for (std::size_t m = 0; m < kMeses; ++m)
    tabla.filas.push_back(Fila(kNombreMes[m], resumen.meses[m]));
  tabla.filas.push_back(Fila("ANUAL", resumen.ano));
  tabla.notas.push_back("Temperaturas en ºC y K, humedad en %, irradiación en kWh/m2");
  if (fichero.hayCabecera)
    tabla.notas.push_back("Latitud " + Fijo(static_cast<double>(fichero.latitud), 2) +
                          "º, longitud " + Fijo(static_cast<double>(fichero.longitud), 2) +
                          "º, altitud " + Fijo(static_cast<double>(fichero.altitud), 0) + " m");
  return tabla;
}

}  // namespace novex
