#include "outputs/VariablesSistema.h"

#include <algorithm>
#include <array>
#include <set>
#include <string_view>

#include "systems/ArregloACS.h"

namespace novex {
namespace {

constexpr std::array kServiciosAtributo = {"ACS", "ACC", "CAL", "REF"};

// Generador en los nombres, y cómo se llama lo que da por lo que consume cuando da calor.
struct Generador {
  const char* marca;
  const char* rendimiento;
};
constexpr Generador kGeneradores[] = {
    {"CL", "Rendimiento"}, {"BCD", "COP"},        {"BC", "COP"},          {"CA", "Rendimiento"},
    {"TE", "Rendimiento"}, {"IE", "Rendimiento"}, {"CM", "Rendimiento"},  {"RE", "Rendimiento"},
    {"EV", "COP"},         {"ES", "COP"},         {"EC", "COP"},          {"EM", "COP"},
    {"VRV", "COP"},        {"RFT", "COP"},        {"REW", "Rendimiento"}, {"RER", "Rendimiento"},
    {"EA", "COP"}};
// De la resistencia de apoyo solo se muestra su calor.
constexpr const char* kResistencia = "RA";

constexpr int kCapasDeposito = 5;

struct Bomba {
  const char* marca;
  const char* nombre;
};
constexpr Bomba kBombas[] = {
    {"WRET", "Consumo bomba retorno"},        {"WGEN1", "Consumo bomba generador 1"},
    {"WGEN2", "Consumo bomba generador 2"},   {"WDEP", "Consumo bomba depósito"},
    {"WINT", "Consumo bomba intercambiador"}, {"WSBZ", "Consumo bomba zona"}};
constexpr std::string_view kVentiladores = "WVEMI";

// Va reuniendo los nodos cuyo nombre el cálculo ha dejado.
struct Recolector {
  std::set<std::string_view> nombres;
  std::string grupo, numero;
  std::vector<NodoVariable> nodos;

  void Probar(const std::string& nombre, const std::string& codigo, const char* unidad,
              ClaseSerie clase) {
    if (!nombres.contains(codigo)) return;
    nodos.push_back({grupo, nombre + " " + codigo + "(" + unidad + ")", codigo, codigo,
                     ViaSerie::Sistemas, clase, unidad});
  }

  void Generadores(const std::string& servicio) {
    const bool frio = servicio == "REF";
    for (const Generador& g : kGeneradores) {
      const std::string cola = servicio + "_" + g.marca + numero;
      Probar(frio ? "Frio Sensible" : "Calor aporte", "Q" + cola, "kWh", ClaseSerie::Energia);
      Probar("Frio Total", "QT" + cola, "kWh", ClaseSerie::Energia);
      Probar("Consumo", "C" + cola, "kWh", ClaseSerie::Energia);
      Probar(frio ? "EER" : g.rendimiento, "Rend" + cola, "", ClaseSerie::Otra);
    }
    Probar("Calor", "Q" + servicio + "_" + kResistencia + numero, "kWh", ClaseSerie::Energia);
  }

  void Deposito(bool hay) {
    for (int k = 1; hay && k <= kCapasDeposito; ++k)
      Probar("Temp.salida depósito acs", "TD" + std::to_string(k) + "_" + numero, "ºC",
             ClaseSerie::Temperatura);
    if (hay) Probar("Pérdidas depósito acs", "PDACS" + numero, "Wh", ClaseSerie::Energia);
    Probar("Pérdidas retorno", "PRET" + numero, "Wh", ClaseSerie::Energia);
  }

  // Un sistema de calor y frío lleva la marca del servicio detrás.
  void Auxiliares() {
    for (const char* marca : {"", "C", "R"}) {
      for (const Bomba& b : kBombas)
        Probar(b.nombre, std::string(b.marca) + marca + numero, "Wh", ClaseSerie::Energia);
      Probar("Consumo ventiladores", std::string(kVentiladores) + marca + numero, "kWh",
             ClaseSerie::Energia);
    }
  }
};

// Sin depósito el cálculo deja sus temperaturas a 0, que no son de nada.
bool HayDeposito(const SistemaResidencial& sistema) {
  const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
  return std::any_of(
      sistema.instalaciones.begin(), sistema.instalaciones.end(),
      [tipo](const Instalaciones& bloque) { return ResolverArreglo(tipo, bloque).deposito; });
}

}  // namespace

std::vector<NodoVariable> VariablesDeSistema(const Edificio& edificio, const calculo& caso,
                                             std::size_t numero) {
  if (numero == 0 || numero > edificio.NumeroSistemas()) return {};
  const SistemaResidencial& sistema = edificio.GetSistema(numero - 1);
  int equipos = 0;
  for (const Instalaciones& i : sistema.instalaciones) equipos += i.NEquipos;
  Recolector r;
  for (const AtributoSistema& a : caso.atributos) r.nombres.insert(a.nombre);
  r.grupo = "Instalación " + sistema.Nombre_sistema + " (" + std::to_string(equipos) + " equipos)";
  r.numero = std::to_string(numero);
  for (const char* servicio : kServiciosAtributo) r.Generadores(servicio);
  r.Deposito(HayDeposito(sistema));
  r.Auxiliares();
  return std::move(r.nodos);
}

float FactorDeSistema(const NodoVariable& nodo) {
  return nodo.etiqueta.starts_with(kVentiladores) ? 0.001F : 1.0F;
}

}  // namespace novex
