#include "entry/RellenoSistema.h"

#include <algorithm>

#include "entry/BloqueSistema.h"
#include "entry/DimensionadoSistema.h"

namespace novex {
namespace {

using C = ClaseGenerador;

constexpr const char* kTituloAviso = "AVISO";

// Calentador de una vivienda por sus cuartos de baño.
constexpr int kBanyosPocos = 2;
constexpr float kCalentadorPocos = 10, kCalentadorMuchos = 16;  // kW
constexpr const char* kTextoPocos =
    "En viviendas con 1 baño se considera una potencia mínima de calentador de 10 kW";
constexpr const char* kTextoMuchos =
    "En viviendas con 2 baños se considera una potencia mínima de calentador de 16 kW";

constexpr float kResistenciaMinima = 1;  // kW
constexpr const char* kTextoResistencia =
    "Se obliga como mínimo a que la potencia de la resistencia eléctrica seade 1 kW";

// La resistencia que usa una clase en agua caliente.
float Instalaciones::*CampoResistencia(TipoSistema tipo, C clase) {
  if (!DaACS(tipo)) return nullptr;
  if (EsElectricoACS(clase)) return &Instalaciones::QApoyoEquipo;
  const bool bomba = clase == C::BombaCalor || clase == C::BombaCalorCaldera;
  return bomba ? &Instalaciones::QApoyoTermo : nullptr;
}

void RellenarCaudales(TipoSistema tipo, Instalaciones& bloque) {
  const auto potencia = PotenciaGenerador(tipo, bloque);
  if (!potencia) return;
  const bool hibrida = ClaseGeneradorDe(bloque.Seleccion) == C::BombaCalorCaldera;
  const double segunda = hibrida ? static_cast<double>(bloque.QcalorCaldera2) : *potencia;
  PonerCaudales(tipo, *potencia, segunda, bloque);
  if (!DaCalefaccion(tipo) && !DaRefrigeracion(tipo)) return;
  // El ventilador es el de una de las unidades terminales del equipo.
  const double aire = CaudalDeAire(std::max(*potencia, segunda));
  bloque.CaudalVent = static_cast<float>(aire / std::max(1, bloque.NEmisores));
}

}  // namespace

std::optional<double> PotenciaGenerador(TipoSistema tipo, const Instalaciones& bloque) {
  const C clase = ClaseGeneradorDe(bloque.Seleccion);
  if (clase == C::Ninguna || EsEstacional(clase)) return std::nullopt;
  float kW = 0;
  if (clase == C::Radiadores) {
    kW = bloque.RadiadorElectrico;
  } else if (EsElectricoACS(clase)) {
    kW = bloque.QApoyoEquipo;
  } else if (LlevaCaldera(clase) && clase != C::BombaCalorCaldera) {
    kW = bloque.QcalorCaldera1;
  } else {
    // Equipos reversibles: la mayor de las que da el sistema.
    if (DaCalefaccion(tipo) || DaACS(tipo)) kW = bloque.QcalorBC1;
    if (DaRefrigeracion(tipo)) kW = std::max(kW, bloque.QFrioTot1);
  }
  return static_cast<double>(std::max(0.0F, kW));
}

bool PonerPotenciasMinimas(const Edificio& edificio, TipoSistema tipo, Instalaciones& bloque,
                           Mensajes& mensajes) {
  bool cambiado = false;
  const auto subir = [&](float& valor, float minimo, const char* texto) {
    if (valor >= minimo) return;
    valor = minimo;
    cambiado = true;
    mensajes.Avisar(kTituloAviso, texto);
  };
  const C clase = ClaseGeneradorDe(bloque.Seleccion);
  if (clase == C::Calentador && edificio.GetDatosGenerales().EsResidencial()) {
    const bool pocos = edificio.GetVentilacion().tipologias[0].N_cuartos_de_banyo <= kBanyosPocos;
    subir(bloque.QcalorCaldera1, pocos ? kCalentadorPocos : kCalentadorMuchos,
          pocos ? kTextoPocos : kTextoMuchos);
  }
  if (const auto campo = CampoResistencia(tipo, clase))
    subir(bloque.*campo, kResistenciaMinima, kTextoResistencia);
  return cambiado;
}

void RellenarSistema(const Edificio& edificio, SistemaResidencial& sistema, Mensajes& mensajes) {
  const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
  for (Instalaciones& bloque : sistema.instalaciones) {
    PonerPotenciasMinimas(edificio, tipo, bloque, mensajes);
    RellenarCaudales(tipo, bloque);
  }
}

}  // namespace novex
