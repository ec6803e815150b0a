#include "demand/CargaInternaMedia.h"

#include <array>
#include <numeric>

#include "base/Calendario.h"

namespace novex {
namespace {

// Suma de las tres cargas en un día de una clase, Wh/m2.
double CargaDia(const DatosGenerales& g, std::size_t clase) {
  const auto suma = [&](Familia familia, float pico) {
    const PerfilDiario& perfil = g.perfiles.tabla[familia][clase];
    const double total = std::accumulate(perfil.begin() + 1, perfil.end(), 0.0);
    // Las tablas terciarias son tantos por ciento del pico; las residenciales, W/m2.
    return g.EsResidencial() ? total : total * static_cast<double>(pico) / 100.0;
  };
  return suma(C1, g.Sensibleocupantes) + suma(CIlu, g.Iluminacion) + suma(CEq, g.Equipos);
}

}  // namespace

float CargaInternaMedia(const Edificio& edificio) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  std::array<double, kClasesDia> cargaDia{};
  for (std::size_t clase = 0; clase < kClasesDia; ++clase) cargaDia[clase] = CargaDia(g, clase);
  double suma = 0;
  for (int dia = 0; dia < kHorasAno / 24; ++dia) {
    const int codigo = g.perfiles.calendario[static_cast<std::size_t>(dia)];
    // El código 0 es un día sin uso; uno fuera de las clases no tiene horario.
    if (codigo >= 1 && codigo <= static_cast<int>(kClasesDia))
      suma += cargaDia[static_cast<std::size_t>(codigo - 1)];
  }
  return static_cast<float>(suma / kHorasAno);
}

}  // namespace novex
