#include "outputs/bloques/AuxiliaresSistema.h"

#include <algorithm>
#include <array>

namespace novex {
namespace {

using G = GeneradorPreparado;
using I = Instalaciones;

struct Circuito {
  const char* nombre;
  BombaPreparada G::*bomba;
  BombaCircuito I::*datos;
  bool porServicio;  // lleva aparte el calor y el frío
  bool deACS;        // del agua caliente en los sistemas que la dan
};
constexpr std::array kCircuitosFichero = {Circuito{"SBZ", &G::SBZ, &I::SBZ, true, false},
                                          Circuito{"GEN1", &G::GEN1, &I::GEN1, true, false},
                                          Circuito{"GEN2", &G::GEN2, &I::GEN2, false, false},
                                          Circuito{"DEP", &G::DEP, &I::DEP, false, true},
                                          Circuito{"INT", &G::INT, &I::INT, false, true},
                                          Circuito{"RET", &G::RET, &I::RET, false, true}};

const SerieHoraria* SerieDe(const calculo& caso, std::string_view atributo) {
  const auto a = std::find_if(caso.atributos.begin(), caso.atributos.end(),
                              [&](const AtributoSistema& x) { return x.nombre == atributo; });
  return a == caso.atributos.end() ? nullptr : &a->serie;
}

double Cociente(double a, double b) {
  return b > 0.0 ? a / b : 0.0;
}

bool DaCalor(const G& g) {
  return DaACS(g.tipo) || DaCalefaccion(g.tipo);
}

Servicio ServicioDe(const G& g, const Circuito& c, bool frio) {
  if (frio) return kRefrigeracion;
  const bool deACS = DaACS(g.tipo) && (c.deACS || !DaCalefaccion(g.tipo));
  return deACS ? kACS : kCalefaccion;
}

// Marca de un servicio en las magnitudes de un sistema: solo si da los dos.
const char* Marca(const G& g, bool frio) {
  if (!(DaCalor(g) && DaRefrigeracion(g.tipo))) return "";
  return frio ? "R" : "C";
}

// kWh de una magnitud en W.
double Consumo(const calculo& caso, const std::string& nombre, const G& g, const char* marca) {
  return SumaAnual(caso, nombre + marca + std::to_string(g.numero)) * 0.001;
}

AuxiliarSistema Bomba(const G& g, const Circuito& c, const char* sufijo, bool frio,
                      double consumo) {
  AuxiliarSistema a;
  a.nombre = std::string(c.nombre) + sufijo;
  a.servicio = ServicioDe(g, c, frio);
  if (!(consumo > 0.0)) return a;
  a.consumo = consumo;
  a.caudal = static_cast<double>((g.datos->*c.datos).Caudal * g.porEquipos);
  a.especifica = Cociente(static_cast<double>((g.*c.bomba).Potencia(1.0F)), a.caudal * 0.001);
  return a;
}

AuxiliarSistema Ventilador(const G& g, const calculo& caso, bool frio) {
  AuxiliarSistema a;
  a.nombre = frio ? "VentUTR" : "VentUTC";
  a.ventilador = true;
  a.servicio = frio ? kRefrigeracion : kCalefaccion;
  if (frio ? !DaRefrigeracion(g.tipo) : !DaCalor(g)) return a;
  a.consumo = Consumo(caso, "WVEMI", g, Marca(g, frio));
  if (!(a.consumo > 0.0)) return a;
  a.caudal = static_cast<double>(static_cast<float>(g.datos->NEmisores) * g.datos->CaudalVent *
                                 g.porEquipos);
  a.especifica =
      Cociente(static_cast<double>(std::max(g.ventilador, g.ventiladorInterior)), a.caudal);
  return a;
}

}  // namespace

double SumaAnual(const calculo& caso, std::string_view atributo) {
  double suma = 0;
  if (const SerieHoraria* serie = SerieDe(caso, atributo))
    for (int h = 1; h <= kHorasAno; ++h) suma += static_cast<double>((*serie)[h]);
  return suma;
}

double MayorAnual(const calculo& caso, std::string_view atributo) {
  const SerieHoraria* serie = SerieDe(caso, atributo);
  return serie != nullptr ? static_cast<double>(*std::max_element(serie->begin(), serie->end()))
                          : 0.0;
}

std::vector<AuxiliarSistema> AuxiliaresDeBloque(const GeneradorPreparado& g, const calculo& caso) {
  const bool losDos = DaCalor(g) && DaRefrigeracion(g.tipo);
  std::vector<AuxiliarSistema> auxiliares;
  for (const Circuito& c : kCircuitosFichero) {
    const std::string nombre = "W" + std::string(c.nombre);
    if (c.porServicio) {
      auxiliares.push_back(Bomba(g, c, "R", true, losDos ? Consumo(caso, nombre, g, "R") : 0.0));
      auxiliares.push_back(Bomba(g, c, "C", false, losDos ? Consumo(caso, nombre, g, "C") : 0.0));
      auxiliares.push_back(
          Bomba(g, c, "", !DaCalor(g), losDos ? 0.0 : Consumo(caso, nombre, g, "")));
    } else {
      auxiliares.push_back(Bomba(g, c, "", false, Consumo(caso, nombre, g, Marca(g, false))));
    }
  }
  auxiliares.push_back(Ventilador(g, caso, false));
  auxiliares.push_back(Ventilador(g, caso, true));
  return auxiliares;
}

}  // namespace novex
