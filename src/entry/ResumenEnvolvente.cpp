#include "entry/ResumenEnvolvente.h"

#include <algorithm>
#include <numeric>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

double D(float x) {
  return static_cast<double>(x);
}

template <class Lista>
double Suma(const Lista& lista) {
  return std::accumulate(lista.begin(), lista.end(), 0.0,
                         [](double suma, float x) { return suma + D(x); });
}

double Cociente(double a, double b) {
  return b == 0 ? 0 : a / b;
}

template <class Tabla>
AreasPorSector Sectores(const Edificio& edificio, const Tabla& opacos, bool lucernarios) {
  AreasPorSector areas;
  for (const auto& tipo : opacos)
    for (std::size_t s = 0; s < kSectores; ++s) areas[s].opaco += D(tipo[s]);
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& g = edificio.GetHuecos(i);
    if ((g.Tipo_de_hueco == kLucernario) != lucernarios) continue;
    for (std::size_t s = 0; s < kSectores; ++s)
      areas[s].huecos +=
          D(g.Ancho_m) * D(g.Alto_m) * static_cast<double>(g.columnas[s].recintos.size());
  }
  return areas;
}

AreasSector Total(const AreasPorSector& areas) {
  AreasSector total;
  for (const AreasSector& s : areas) {
    total.opaco += s.opaco;
    total.huecos += s.huecos;
  }
  return total;
}

}  // namespace

AreasPorSector FachadaPorSector(const Edificio& edificio) {
  return Sectores(edificio, edificio.GetRecinto(0).Muro_ext_m2, false);
}

AreasPorSector FaldonesPorSector(const Edificio& edificio) {
  return Sectores(edificio, edificio.GetRecinto(0).Cubierta_incl_m2, true);
}

AreasSector CubiertaPlana(const Edificio& edificio) {
  AreasSector plana;
  plana.opaco = Suma(edificio.GetRecinto(0).Cubierta_horiz_sol_m2);
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& g = edificio.GetHuecos(i);
    plana.huecos += D(g.Ancho_m) * D(g.Alto_m) *
                    static_cast<double>(g.columnas[kColumnaHorizontal].recintos.size());
  }
  return plana;
}

ResumenEnvolvente ResumirEnvolvente(const Edificio& edificio) {
  const Recinto& r = edificio.GetRecinto(0);
  const AreasSector fachada = Total(FachadaPorSector(edificio));
  const AreasSector faldones = Total(FaldonesPorSector(edificio));
  const AreasSector plana = CubiertaPlana(edificio);
  const double terreno = Suma(r.Suelo_al_terreno_m2), exterior = Suma(r.Suelo_ext_m2);
  // Ni lo enterrado de la cubierta ni lo que da a espacios no acondicionados cuenta en la
  // compacidad, como en la comprobación de K.
  const double intercambio = fachada.Total() + faldones.Total() + plana.Total() + terreno +
                             exterior + Suma(r.Muro_al_terreno_m2);
  ResumenEnvolvente e;
  e.fachada = fachada.Total();
  e.cubierta = faldones.Total() + plana.Total() + Suma(r.Cubierta_techo_ventilado_m2) +
               Suma(r.Cubierta_terreno_m2);
  e.suelo = terreno + exterior + Suma(r.Suelo_otro_local_m2) + Suma(r.Suelo_vacio_sanitario_m2);
  e.huecos = 100 * Cociente(fachada.huecos, fachada.Total());
  e.V_A = Cociente(D(r.Volumen_total_m3), intercambio);
  e.V_S = Cociente(D(r.Volumen_total_m3), D(r.Suelo_habitable_m2));
  return e;
}

std::string TextoResumen(const ResumenEnvolvente& e) {
  const auto cifra = [](double valor, int decimales) {
    std::string texto = Fijo(valor, decimales);
    std::replace(texto.begin(), texto.end(), '.', ',');
    return texto;
  };
  return "Fachada " + cifra(e.fachada, 1) + " m² · Cubierta " + cifra(e.cubierta, 1) +
         " m² · Suelo " + cifra(e.suelo, 1) + " m² · Huecos " + cifra(e.huecos, 0) + " % · V/A " +
         cifra(e.V_A, 2) + " m · V/S " + cifra(e.V_S, 2) + " m";
}

}  // namespace novex
