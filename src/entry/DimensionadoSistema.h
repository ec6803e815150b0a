#pragma once

#include <string_view>

#include "model/Edificio.h"
#include "systems/ClasesSistema.h"

namespace novex {

/// Punta de calefacción de una zona climática por su letra, W/m2. Una que no se reconoce cuenta
/// como A. \param zona como "D3" o "alfa1c"
double PuntaCalefaccionZona(std::string_view zona);
/// Punta de refrigeración de una zona climática por su número, W/m2. Sin número cuenta como 1.
double PuntaRefrigeracionZona(std::string_view zona);

/// Superficie útil del primer recinto, m2; nunca negativa.
double SuperficieDimensionado(const Edificio& edificio);

/// Entre cuántas viviendas se reparte y por cuántas se multiplica la carga de un caso.
struct UnidadesSistema {
  double individuales = 1;  ///< viviendas del edificio, si cada una tiene su equipo
  double delBloque = 1;     ///< viviendas del bloque de la vivienda, si el equipo es de todas
};
/// \param tipologia texto de `TipoInstalacionesG`
UnidadesSistema UnidadesDe(const Edificio& edificio, std::string_view tipologia);

/// Cargas punta que ha de cubrir un equipo, kW.
struct CargasPunta {
  double calefaccion = 0;
  double refrigeracion = 0;  ///< sensible
  double acs = 0;
};
/// Cargas punta del primer recinto y del consumo de agua caliente, por equipo. Sin viviendas, sin
/// área o sin consumo son 0. \param tipologia texto de `TipoInstalacionesG`
CargasPunta CargasPuntaDe(const Edificio& edificio, std::string_view tipologia);

/// Potencia con que se dimensiona un sistema, kW. La refrigeración cuenta con su carga total.
double PotenciaDimensionado(TipoSistema tipo, const CargasPunta& cargas);

/// Caudal de agua que lleva una potencia, l/h; 0 sin salto. \param potencia kW \param salto °C
double CaudalDeAgua(double potencia, double salto);
/// Caudal de aire que lleva una potencia, m3/h. \param potencia kW
double CaudalDeAire(double potencia);
/// Caudal de la bomba de retorno de agua caliente, l/h: el que repone lo que pierde la tubería con
/// 2 °C de salto, y no menos de 250. \param longitud m \param perdida W/m°C \param impulsion °C
double CaudalDeRetorno(double longitud, double perdida, double impulsion);

/// Volumen del depósito de un equipo de agua caliente, l: el consumo del día en una vivienda y la
/// mitad en un bloque. \param tipologia texto de `TipoInstalacionesG`
double VolumenDeposito(const Edificio& edificio, std::string_view tipologia);
/// Área del serpentín de un depósito, m2; 0 sin depósito. \param volumen l
double AreaSerpentin(double volumen);
/// Coeficiente de pérdidas de un depósito dos veces más alto que ancho, W/°C. \param volumen l
double UADeposito(double volumen);
/// Longitud de la tubería de retorno, m. \param tipologia texto de `TipoInstalacionesG`
double LongitudTuberias(const Edificio& edificio, std::string_view tipologia);

}  // namespace novex
