#include "reference/LongitudesPuentes.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace novex {
namespace {

template <typename Lista>
float Suma(const Lista& lista) {
  return std::accumulate(lista.begin(), lista.end(), 0.0F);
}

float Cociente(float a, float b) {
  return b == 0.0F ? 0.0F : a / b;
}

// Clases de área de las que sale la estimación, m2.
struct ClasesArea {
  float sueloTerreno = 0, sueloExterior = 0, sueloAdiabatico = 0, sueloNoAcondicionado = 0;
  float cubierta = 0, bajoBuhardilla = 0;
  float muros = 0, medianeras = 0;
  float Suelos() const {
    return sueloTerreno + sueloExterior + sueloAdiabatico + sueloNoAcondicionado;
  }
};

ClasesArea AreasDe(const Recinto& r) {
  ClasesArea a;
  a.sueloTerreno = Suma(r.Suelo_al_terreno_m2);
  a.sueloExterior = Suma(r.Suelo_ext_m2);
  a.sueloAdiabatico = Suma(r.Suelo_adiabatico_m2);
  a.sueloNoAcondicionado = Suma(r.Suelo_otro_local_m2) + Suma(r.Suelo_vacio_sanitario_m2);
  a.cubierta = Suma(r.Cubierta_horiz_sol_m2);
  for (const auto& tipo : r.Cubierta_incl_m2) a.cubierta += Suma(tipo);
  a.bajoBuhardilla = Suma(r.Cubierta_techo_ventilado_m2);
  a.muros = Suma(r.Muro_otro_local_m2) + Suma(r.Muro_al_terreno_m2);
  for (const auto& tipo : r.Muro_ext_m2) a.muros += Suma(tipo);
  a.medianeras = Suma(r.Muro_adiabatico_m2);
  return a;
}

ClasesArea AreasDe(const Edificio& edificio) {
  ClasesArea total;
  for (std::size_t i = 0; i < edificio.NumeroRecintos(); ++i) {
    const ClasesArea a = AreasDe(edificio.GetRecinto(i));
    total.sueloTerreno += a.sueloTerreno;
    total.sueloExterior += a.sueloExterior;
    total.sueloAdiabatico += a.sueloAdiabatico;
    total.sueloNoAcondicionado += a.sueloNoAcondicionado;
    total.cubierta += a.cubierta;
    total.bajoBuhardilla += a.bajoBuhardilla;
    total.muros += a.muros;
    total.medianeras += a.medianeras;
  }
  return total;
}

// Perímetro de una planta cuadrada de esa área.
float Perimetro(float area) {
  return 4.0F * std::sqrt(std::max(area, 0.0F));
}

// Parte del perímetro de la clase que toca al recinto.
float ParteDePerimetro(float enRecinto, float total) {
  // Con un solo recinto es el perímetro entero, sin el error de un producto y una división.
  return Cociente(enRecinto, total) * Perimetro(total);
}

float PerimetroHuecos(const Edificio& edificio) {
  // Las medidas son decimales: cortar la suma de sus valores binarios puede quitar un metro entero.
  constexpr double kHolgura = 1e-4;
  double suma = 0;
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& g = edificio.GetHuecos(i);
    suma += 2.0 * (static_cast<double>(g.Ancho_m) + static_cast<double>(g.Alto_m)) *
            static_cast<double>(g.NumeroTotal());
  }
  return static_cast<float>(std::trunc(suma + kHolgura));
}

void EstimarRecinto(const Recinto& recinto, const ClasesArea& total, const AlturaEdificio& altura,
                    Construccion& c) {
  const ClasesArea propia = AreasDe(recinto);
  const float pTerreno = ParteDePerimetro(propia.sueloTerreno, total.sueloTerreno);
  const float pExterior = ParteDePerimetro(propia.sueloExterior, total.sueloExterior);
  const float pAdiabatico = ParteDePerimetro(propia.sueloAdiabatico, total.sueloAdiabatico);
  const float pNoAcond = ParteDePerimetro(propia.sueloNoAcondicionado, total.sueloNoAcondicionado);
  const float pCubierta = ParteDePerimetro(propia.cubierta, total.cubierta);
  const float pBuhardilla = ParteDePerimetro(propia.bajoBuhardilla, total.bajoBuhardilla);
  const float pilares =
      std::max(0.0F, (Perimetro(total.sueloTerreno) + Perimetro(total.sueloNoAcondicionado) +
                      Perimetro(total.sueloExterior) + Perimetro(total.sueloAdiabatico)) /
                             4.0F -
                         4.0F + 1.0F);

  const float H = altura.alturaPlanta;
  const float perimetroMuros = Cociente(total.muros, H);
  const float parteMuros = Cociente(propia.muros, total.muros);
  const float pMuros = perimetroMuros * parteMuros;
  const float pMedianeras =
      Cociente(total.medianeras, H) * Cociente(propia.medianeras, total.medianeras);
  const float exterior = Cociente(pMuros, pMuros + pMedianeras);

  const float porPilares = pilares * parteMuros * H * altura.plantas * exterior;
  for (std::size_t s = 0; s < kSectores; ++s) {
    float muroSector = 0;
    for (const auto& tipo : recinto.Muro_ext_m2) muroSector += tipo[s];
    c.Long_pilares[s] = std::trunc(porPilares * Cociente(muroSector, total.muros));
  }
  c.Longitud_esquinas_sal_menos_ent =
      std::trunc(Cociente(pMuros, perimetroMuros) * 4.0F * H * altura.plantas * exterior);
  const float forjadosInteriores =
      std::max(0.0F, pMuros - pTerreno - pNoAcond - pExterior - pAdiabatico);
  c.Perimetro_forjados = std::trunc(pNoAcond * 0.6F + forjadosInteriores + pBuhardilla * 0.6F);
  c.Perimetro_suelo_terreno = std::trunc(pTerreno);
  c.Perimetro_cubiertas = std::trunc(pCubierta);
  c.Perimetro_suelo_ext = std::trunc(pExterior);
}

}  // namespace

AlturaEdificio AlturaDeEdificio(const Edificio& edificio) {
  float superficie = 0, volumen = 0;
  for (std::size_t i = 0; i < edificio.NumeroRecintos(); ++i) {
    superficie += edificio.GetRecinto(i).Suelo_habitable_m2;
    volumen += edificio.GetRecinto(i).Volumen_total_m3;
  }
  const float suelos = AreasDe(edificio).Suelos();
  AlturaEdificio altura;
  altura.alturaPlanta = Cociente(volumen, superficie);
  altura.plantas = suelos == 0.0F ? 1.0F : std::max(1.0F, superficie / suelos);
  return altura;
}

Construccion LongitudesEstimadas(const Edificio& edificio) {
  Construccion c = edificio.GetConstruccion();
  if (c.Longitud_puentes_termicos_modo != "Estimados") return c;
  const ClasesArea total = AreasDe(edificio);
  const AlturaEdificio altura = AlturaDeEdificio(edificio);
  for (std::size_t i = 0; i < edificio.NumeroRecintos(); ++i)
    EstimarRecinto(edificio.GetRecinto(i), total, altura, c);
  c.Perimetro_huecos = PerimetroHuecos(edificio);
  return c;
}

}  // namespace novex
