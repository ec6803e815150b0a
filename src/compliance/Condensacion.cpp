#include "compliance/Condensacion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "base/Psicrometria.h"
#include "reference/Cerramiento.h"
#include "reference/FamiliaCerramiento.h"

namespace novex {
namespace {

constexpr double kTi = 20.0;  // °C

// Humedad relativa interior por clase de higrometría, %: 3 o inferior, 4 y 5 de UNE-EN ISO 13788.
constexpr std::array<double, 3> kHumedad = {55.0, 62.0, 70.0};

// Presión de saturación a 20 °C y coeficientes de su inversa sobre agua (CTE DA DB-HE/2).
constexpr double kSaturacion20 = 2337.0;
constexpr double kInversoHumedadLimite = 1.25;  // 80 % en la superficie
constexpr double kP0 = 610.5;
constexpr double kA = 17.269;
constexpr double kB = 237.3;

constexpr double kRsi = 0.25;  // m2K/W, de todo cerramiento al comprobar su superficie

// Posiciones que se comprueban; dentro de un grupo no se repite un nombre.
struct Grupo {
  std::size_t primera, ultima;
};
constexpr std::array<Grupo, 4> kGrupos = {{{ranura::MuroExt1, ranura::MuroExt5},
                                           {ranura::TechoExt1, ranura::TechoInc3},
                                           {ranura::TechoTerr1, ranura::TechoTerr2},
                                           {ranura::SueloExt1, ranura::SueloExt2}}};

double Finito(float valor) {
  return std::isfinite(valor) ? static_cast<double>(valor) : 0.0;
}

double Cociente(double a, double b) {
  return b == 0.0 ? 0.0 : a / b;
}

double Saturacion(double t) {
  // La función no tiene sentido fuera de aquí, y así la conversión nunca desborda.
  return static_cast<double>(
      psicrometria::PresionSaturacion(static_cast<float>(std::clamp(t, -300.0, 1000.0))));
}

// Una capa como la ve el método.
struct CapaGlaser {
  double e;        // m
  double R;        // m2K/W
  double sd;       // espesor de aire equivalente, m
  bool ventilada;  // cámara ligeramente ventilada
};

// La regla suma e/λ y la resistencia de la capa, también cuando esta ya es e/λ.
double ResistenciaDeRegla(const material& m) {
  return Cociente(Finito(m.Espesor), Finito(m.Conductividad)) + Finito(m.Resistencia_termica);
}

bool EsCamaraVentilada(const material& m) {
  return CamaraDe(m.Nombre_material) == CamaraAire::LigeramenteVentilada ||
         CamaraDe(m.Material) == CamaraAire::LigeramenteVentilada;
}

// Las capas desde el exterior. Las de un suelo al exterior se guardan desde dentro.
std::vector<CapaGlaser> CapasDesdeFuera(std::size_t ranura, const composicion& cerramiento) {
  std::vector<CapaGlaser> capas;
  capas.reserve(cerramiento.capas.size());
  for (const material* m : cerramiento.capas) {
    const double e = Finito(m->Espesor);
    capas.push_back({e, ResistenciaDeRegla(*m), e * Finito(m->Resisvidad_relativa_vapor),
                     EsCamaraVentilada(*m)});
  }
  if (FamiliaDeRanura(ranura) == FamiliaCerramiento::ForjadosInteriorExterior)
    std::reverse(capas.begin(), capas.end());
  return capas;
}

// Posición de la última cámara ventilada; también vale si es la primera capa.
std::optional<std::size_t> UltimaCamara(const std::vector<CapaGlaser>& capas) {
  std::optional<std::size_t> ultima;
  for (std::size_t i = 0; i < capas.size(); ++i)
    if (capas[i].ventilada) ultima = i;
  return ultima;
}

// La cámara y lo que queda fuera de ella no frenan el vapor; en el total cuenta aún la cámara.
double EspesorVaporTotal(const std::vector<CapaGlaser>& capas, std::optional<std::size_t> camara) {
  double total = 0;
  for (std::size_t i = camara.value_or(0); i < capas.size(); ++i) total += capas[i].sd;
  return total;
}

std::vector<InterfazCondensacion> Interfaces(const std::vector<CapaGlaser>& capas,
                                             Peliculas peliculas,
                                             const CondicionesCondensacion& c) {
  const double re = Cociente(1.0, static_cast<double>(peliculas.he));
  double RT = re + Cociente(1.0, static_cast<double>(peliculas.hi));
  for (const CapaGlaser& capa : capas) RT += capa.R;
  const auto camara = UltimaCamara(capas);
  const double sdTotal = EspesorVaporTotal(capas, camara);

  std::vector<InterfazCondensacion> interfaces;
  double r = re, x = 0, sd = 0;
  const auto anotar = [&] {
    const double T = c.Te - (c.Te - c.Ti) * Cociente(r, RT);
    const double P = c.Pe - (c.Pe - c.Pi) * Cociente(sd, sdTotal);
    interfaces.push_back({P, Saturacion(T), T, x, sd});
  };
  anotar();
  for (std::size_t i = 0; i < std::min(capas.size(), kInterfacesComprobadas); ++i) {
    r += capas[i].R;
    x += capas[i].e;
    sd = camara && i <= *camara ? 0.0 : sd + capas[i].sd;
    anotar();
  }
  return interfaces;
}

// Una posición sin capas no se comprueba y no deja fuera a otra de su nombre.
bool NombreYaVisto(const Edificio& edificio, std::size_t primera, std::size_t ranura) {
  for (std::size_t i = primera; i < ranura; ++i)
    if (!edificio.GetComposicion(i).capas.empty() &&
        edificio.GetComposicion(i).nombre == edificio.GetComposicion(ranura).nombre)
      return true;
  return false;
}

}  // namespace

std::size_t CondensacionElemento::InterfazPeor() const {
  std::size_t peor = interfaces.size() > 1 ? 1 : 0;
  for (std::size_t k = 2; k < interfaces.size(); ++k)
    if (interfaces[k].P - interfaces[k].Psat > interfaces[peor].P - interfaces[peor].Psat) peor = k;
  return peor;
}

CondicionesCondensacion CondicionesDeCondensacion(const Edificio& edificio) {
  const DatosClimaticosSitio& sitio = edificio.GetDatosClimaticosSitio();
  const int clase = edificio.GetConstruccion().Clase_de_higrometria;
  CondicionesCondensacion c;
  c.Te = Finito(sitio.Tproyecto);
  c.Pe = Finito(sitio.Pvproyecto);
  c.Ti = kTi;
  c.HR = kHumedad[clase == 1 || clase == 2 ? static_cast<std::size_t>(clase) : 0];
  c.Pi = c.HR * 0.01 * Saturacion(c.Ti);
  c.Pmin = c.HR * 0.01 * kSaturacion20 * kInversoHumedadLimite;
  const double x = std::log(c.Pmin / kP0);
  c.theta = Cociente(kB * x, kA - x);
  c.fRsiMin = std::max(0.0, Cociente(c.theta - c.Te, c.Ti - c.Te));
  return c;
}

CondensacionElemento ComprobarCondensacion(std::size_t ranura, const composicion& cerramiento,
                                           const CondicionesCondensacion& condiciones) {
  CondensacionElemento elemento;
  elemento.clave = TablaEnvolvente::Clave(ranura);
  elemento.nombre = cerramiento.nombre;
  elemento.capas = cerramiento.capas.size();
  elemento.fRsi = 1.0 - kRsi * Finito(cerramiento.U);
  // Las películas son las de la familia, también las del suelo al exterior, que las tiene al revés.
  elemento.interfaces = Interfaces(CapasDesdeFuera(ranura, cerramiento),
                                   PeliculasDe(FamiliaDeRanura(ranura)), condiciones);
  elemento.cumpleSuperficial = elemento.fRsi > condiciones.fRsiMin;
  elemento.cumpleIntersticial =
      std::all_of(elemento.interfaces.begin() + 1, elemento.interfaces.end(),
                  [](const InterfazCondensacion& i) { return i.P <= i.Psat; });
  return elemento;
}

bool SeCompruebaCondensacion(std::size_t ranura) {
  return std::any_of(kGrupos.begin(), kGrupos.end(), [ranura](const Grupo& grupo) {
    return ranura >= grupo.primera && ranura <= grupo.ultima;
  });
}

std::vector<CondensacionElemento> CondensacionElementos(
    const Edificio& edificio, const CondicionesCondensacion& condiciones) {
  std::vector<CondensacionElemento> elementos;
  for (const Grupo& grupo : kGrupos)
    for (std::size_t i = grupo.primera; i <= grupo.ultima; ++i) {
      const composicion& cerramiento = edificio.GetComposicion(i);
      if (!cerramiento.capas.empty() && !NombreYaVisto(edificio, grupo.primera, i))
        elementos.push_back(ComprobarCondensacion(i, cerramiento, condiciones));
    }
  return elementos;
}

}  // namespace novex
