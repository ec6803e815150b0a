#pragma once

#include <array>

#include "model/Edificio.h"

namespace novex {

/// Qué se climatiza en un mes.
enum class AccionMes { Desconocida, SoloCale, SoloRefri, CaleRefri, Nada };
/// Sistema de aire de un uso terciario.
enum class SistemaAire { Toma, Primario, UTA };
/// Modulación del aire exterior.
enum class ModulacionAire {
  Otra,
  Coeficientes,
  CoeficientesEnfriamiento,
  Sonda,
  SondaEnfriamiento
};
/// Control del caudal de los ventiladores.
enum class ControlVentilador { Otro, Variador, Compuertas };
/// Recuperador de calor.
enum class TipoRecuperador { Otro, No, SensibleSin, SensibleCon, EntalpicoSin, EntalpicoCon };
/// Prueba de enfriamiento gratuito.
enum class PruebaEnfriamiento { Ninguna, Termica, Entalpica };
/// Ventilación de una vivienda.
enum class VentilacionVivienda { Otra, Mecanica, Hibrida };

/// Los textos del caso que deciden ramas, resueltos una sola vez por cálculo.
struct AjustesUso {
  int perfil = 0;
  bool residencial = true;
  bool simulacionLibre = false;
  bool equiposDefecto = false;  ///< `Equipos_Defecto` "SI"
  bool equiposReales = false;   ///< `Equipos_Defecto` "NO"
  bool ventanasAbiertas = false;
  bool hayHumectador = false;
  bool n50Teorico = true;
  /// Zona sin refrigeración que contar en una vivienda ("C1", "D1" o "E1").
  bool sinRefrigeracion = false;
  SistemaAire aire = SistemaAire::Toma;
  ModulacionAire modulacion = ModulacionAire::Otra;
  ControlVentilador control = ControlVentilador::Otro;
  TipoRecuperador recuperador = TipoRecuperador::Otro;
  PruebaEnfriamiento enfriamiento = PruebaEnfriamiento::Ninguna;
  VentilacionVivienda vivienda = VentilacionVivienda::Otra;
  std::array<AccionMes, 13> accion{};  ///< por mes, 1 a 12
  std::array<bool, 13> verano{};       ///< por mes, 1 a 12

  /// ¿Modula el aire según la ocupación?
  bool PorOcupacion() const {
    return modulacion == ModulacionAire::Sonda || modulacion == ModulacionAire::SondaEnfriamiento;
  }
  /// ¿Tiene la modulación enfriamiento gratuito?
  bool ConEnfriamiento() const {
    return modulacion == ModulacionAire::CoeficientesEnfriamiento ||
           modulacion == ModulacionAire::SondaEnfriamiento;
  }
  /// ¿Se prueba el enfriamiento gratuito en las horas? El primer perfil terciario no entra.
  bool PruebaEnfriamientoGratuito() const {
    return perfil > 3 && ConEnfriamiento() && aire != SistemaAire::Toma;
  }
  bool Calienta(int mes) const {
    const AccionMes a = accion[static_cast<std::size_t>(mes)];
    return a == AccionMes::SoloCale || a == AccionMes::CaleRefri;
  }
  bool Refrigera(int mes) const {
    const AccionMes a = accion[static_cast<std::size_t>(mes)];
    return a == AccionMes::SoloRefri || a == AccionMes::CaleRefri;
  }
};

/// Resuelve los ajustes de un caso. Un texto desconocido no toma ninguna rama.
AjustesUso ResolverAjustes(const Edificio& edificio);

}  // namespace novex
