#include "systems/ArregloACS.h"

#include <array>

namespace novex {
namespace {

using T = TipoSistema;
using C = ClaseGenerador;
using L = LadoAgua;
using A = AlimentacionACS;

// Campo del bloque en que está la alimentación de cada arreglo.
enum class Campo { Alimentacion, Alimentacion2, Alimentacion3, Alimentacion4 };

// Alimentaciones que admite un arreglo.
enum class Grupo { Red, Directas, Cuatro, SolarSinDeposito, SolarConSerpentin, Recirculadas };

bool Admite(Grupo grupo, A a) {
  switch (grupo) {
    case Grupo::Red:
      return a == A::Red;
    case Grupo::Directas:
      return a == A::DirectoIntercambiador || a == A::DirectoInteracumulador;
    case Grupo::Cuatro:
      return a == A::DirectoIntercambiador || a == A::DirectoInteracumulador ||
             a == A::RecirculadoIntercambiador || a == A::RecirculadoInteracumulador;
    case Grupo::SolarSinDeposito:
      return a == A::RecirculadoSolar;
    case Grupo::SolarConSerpentin:
      return a == A::RecirculadoIntercambiadorS || a == A::RecirculadoInteracumuladorS;
    case Grupo::Recirculadas:
      return a == A::RecirculadoIntercambiador || a == A::RecirculadoInteracumulador;
  }
  return false;
}

// Familias de generador que comparten filas.
enum class FamiliaACS { Ninguna, Dedicada, Corriente, Termo, Interacumulador, Mixta };

FamiliaACS FamiliaDe(T tipo, C clase) {
  const bool comun = clase == C::Caldera || clase == C::BombaCalor || clase == C::BombaCalorCaldera;
  if (tipo == T::ACS) {
    if (clase == C::BombaDedicada) return FamiliaACS::Dedicada;
    if (comun || clase == C::Calentador) return FamiliaACS::Corriente;
    if (clase == C::Termo) return FamiliaACS::Termo;
    if (clase == C::Interacumulador) return FamiliaACS::Interacumulador;
    return FamiliaACS::Ninguna;
  }
  // El sistema de los tres servicios se trata en agua caliente como el de dos.
  if (tipo == T::ACSCalefaccion || tipo == T::Todo) {
    if (comun) return FamiliaACS::Corriente;
    if (clase == C::CalderaMixta) return FamiliaACS::Mixta;
  }
  return FamiliaACS::Ninguna;
}

struct Fila {
  bool conCalefaccion;
  FamiliaACS familia;
  L lado;  // Otro: el arreglo no mira el lado del agua
  Campo campo;
  Grupo grupo;
  bool deposito, depositoSolar, captadores;
};

constexpr std::array kFilas = std::to_array<Fila>({
    {false, FamiliaACS::Dedicada, L::Otro, Campo::Alimentacion, Grupo::Red, false, false, false},
    {false, FamiliaACS::Dedicada, L::Otro, Campo::Alimentacion, Grupo::Directas, false, true, true},
    {false, FamiliaACS::Corriente, L::Directo, Campo::Alimentacion, Grupo::Red, false, false,
     false},
    {false, FamiliaACS::Corriente, L::Directo, Campo::Alimentacion, Grupo::Directas, false, true,
     true},
    {false, FamiliaACS::Corriente, L::Deposito, Campo::Alimentacion4, Grupo::Red, true, false,
     false},
    {false, FamiliaACS::Corriente, L::Deposito, Campo::Alimentacion4, Grupo::Cuatro, true, true,
     true},
    {false, FamiliaACS::Corriente, L::IntercambDeposito, Campo::Alimentacion4, Grupo::Red, true,
     false, false},
    {false, FamiliaACS::Corriente, L::IntercambDeposito, Campo::Alimentacion4, Grupo::Cuatro, true,
     true, true},
    {false, FamiliaACS::Corriente, L::InteracumuGenerador, Campo::Alimentacion4, Grupo::Red, true,
     false, false},
    {false, FamiliaACS::Corriente, L::InteracumuGenerador, Campo::Alimentacion4, Grupo::Cuatro,
     true, true, true},
    {false, FamiliaACS::Corriente, L::InteracumuSolar, Campo::Alimentacion2,
     Grupo::SolarSinDeposito, true, false, true},
    {false, FamiliaACS::Corriente, L::InteracumuSolar, Campo::Alimentacion2,
     Grupo::SolarConSerpentin, true, true, true},
    {false, FamiliaACS::Corriente, L::Intercambiador, Campo::Alimentacion3, Grupo::Recirculadas,
     false, true, true},
    {false, FamiliaACS::Termo, L::Otro, Campo::Alimentacion4, Grupo::Red, true, false, false},
    {false, FamiliaACS::Termo, L::Otro, Campo::Alimentacion4, Grupo::Cuatro, true, true, true},
    {false, FamiliaACS::Interacumulador, L::Otro, Campo::Alimentacion2, Grupo::SolarSinDeposito,
     true, false, true},
    {false, FamiliaACS::Interacumulador, L::Otro, Campo::Alimentacion2, Grupo::SolarConSerpentin,
     true, true, true},
    {true, FamiliaACS::Corriente, L::Deposito, Campo::Alimentacion, Grupo::Red, true, false, false},
    {true, FamiliaACS::Corriente, L::Deposito, Campo::Alimentacion, Grupo::Directas, true, true,
     true},
    {true, FamiliaACS::Corriente, L::Interacumulador, Campo::Alimentacion, Grupo::Red, true, false,
     false},
    {true, FamiliaACS::Corriente, L::Interacumulador, Campo::Alimentacion, Grupo::Directas, true,
     true, true},
    {true, FamiliaACS::Mixta, L::Otro, Campo::Alimentacion, Grupo::Red, false, false, false},
    {true, FamiliaACS::Mixta, L::Otro, Campo::Alimentacion, Grupo::Directas, false, true, true},
});

A AlimentacionEn(Campo campo, const Instalaciones& i) {
  switch (campo) {
    case Campo::Alimentacion:
      return AlimentacionDe(i.Alimentacion);
    case Campo::Alimentacion2:
      return AlimentacionDe(i.Alimentacion2);
    case Campo::Alimentacion3:
      return AlimentacionDe(i.Alimentacion3);
    case Campo::Alimentacion4:
      return AlimentacionDe(i.Alimentacion4);
  }
  return A::Otra;
}

}  // namespace

ArregloACS ResolverArreglo(TipoSistema tipo, const Instalaciones& bloque) {
  const C clase = ClaseGeneradorDe(bloque.Seleccion);
  ArregloACS arreglo;
  arreglo.lado = LadoAguaDe(clase == C::Calentador ? bloque.Distribucion2 : bloque.Distribucion);
  const FamiliaACS familia = FamiliaDe(tipo, clase);
  const bool conCalefaccion = tipo != T::ACS;
  for (const Fila& fila : kFilas) {
    if (fila.familia != familia || fila.conCalefaccion != conCalefaccion) continue;
    if (fila.lado != L::Otro && fila.lado != arreglo.lado) continue;
    const A alimentacion = AlimentacionEn(fila.campo, bloque);
    if (!Admite(fila.grupo, alimentacion)) continue;
    arreglo.alimentacion = alimentacion;
    arreglo.deposito = fila.deposito;
    arreglo.depositoSolar = fila.depositoSolar;
    arreglo.captadores = fila.captadores;
    break;
  }
  return arreglo;
}

}  // namespace novex
