#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "demand/ResultadosCaso.h"
#include "demand/calculo.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"

namespace novex {

/// Letra de un indicador que no se califica.
inline constexpr std::string_view kSinLetra = "( - )";

/// Clave de un indicador.
std::string_view ClaveIndicador(Indicador indicador);
/// Indicador de una clave, comparada exactamente; una desconocida da el de emisiones totales.
Indicador IndicadorDeClave(std::string_view clave);

/// Nombre de una zona climática en la escala: "D3" es "D3_peninsular", "D3c" "D3_extrapeninsular" y
/// "alfa3c" "alpha3_extrapeninsular". Vacío si no es una zona.
std::string ClaveLocalidad(std::string_view zonaClimatica);

/// ¿Está la refrigeración fuera de la calificación? Lo está en viviendas de "C1", "D1" y "E1".
bool SinRefrigeracionCalificada(const Edificio& edificio);

/// Umbrales y valores de referencia de un caso. En uso residencial se leen de `Localidades.xml` por
/// zona, tipo de vivienda y nuevo o existente (RD 47/2007); en terciario los umbrales son razones
/// de los valores del edificio de referencia, que han de estar ya en `escala.referencia`. \param
/// localidades elemento `Base_Datos`; en terciario no se mira \param escala se cambia en su lugar;
/// lo que falta en el fichero queda como estaba
void CargarEscala(const XMLNode& localidades, const Edificio& edificio, EscalaCaso& escala,
                  Mensajes& mensajes);

/// Letra de un valor, de "A" a "G", o "( - )" si el indicador no se califica. Un valor igual a un
/// umbral toma la letra peor; la obra nueva no pasa de "E".
/// \param valor en la unidad del indicador, por m2 y año, sin redondear
std::string Letra(Indicador indicador, float valor, const Edificio& edificio,
                  const EscalaCaso& escala);
std::string Letra(std::string_view clave, float valor, const Edificio& edificio,
                  const EscalaCaso& escala);

/// Valor que se califica de un indicador, por m2 y año. \param resultados ya plegados y con totales
float ValorIndicador(Indicador indicador, const ResultadosCaso& resultados);

/// Suma los totales que se califican en cada unidad y pone las letras. La iluminación cuenta solo
/// en terciario; la refrigeración no cuenta donde no se califica, salvo en una simulación libre.
/// \param caso ya plegado y con su escala; queda calificado
void CalificarCaso(const Edificio& edificio, calculo& caso);

}  // namespace novex
