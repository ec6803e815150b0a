#pragma once

#include <string_view>
#include <vector>

#include "model/Edificio.h"

namespace novex {

/// Personas de una vivienda por su número de dormitorios.
float PersonasVivienda(int dormitorios);
/// Personas de todas las viviendas del caso.
float PersonasTotales(const Ventilacion& ventilacion);
/// Factor de centralización por el número de viviendas (CTE DB-HE4).
float FactorCentralizacion(int viviendas);
/// Actividades de un uso terciario que dan su consumo de agua caliente por persona.
std::vector<std::string_view> ActividadesACS();
/// Volumen diario de referencia de agua caliente a 60 °C, l/día (CTE DB-HE, anejo F).
float VolumenReferencia(const Edificio& edificio);

/// Factores con que un depósito ve el consumo del edificio (f1) y los caudales que vienen de un
/// depósito solar compartido (f2).
struct FactoresVivienda {
  double f1 = 1, f2 = 1;
};
FactoresVivienda FactoresDeVivienda(const Edificio& edificio, const Instalaciones& bloque);

}  // namespace novex
