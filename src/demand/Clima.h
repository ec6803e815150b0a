#pragma once

#include "demand/CoeficientesRespuesta.h"
#include "demand/FicheroMet.h"
#include "demand/Series.h"
#include "files/xmlParser.h"
#include "model/Localizacion.h"

namespace novex {

/// Presión del aire con que se lee el clima, Pa.
inline constexpr float kPresionNormal = 101325.0F;
/// Presión del sitio por la fórmula de la altura, Pa. \param asnm altitud, m
float PresionAltura(float asnm);
/// Presión del sitio en los bucles horarios, Pa. \param asnm altitud, m
float PresionHoraria(float asnm);

/// Pasa el año de un fichero de clima a las series que muestran las pantallas: temperaturas,
/// humedad, posición del sol y radiación.
void LeerClima(const FicheroMet& met, SeriesClima& clima);

/// Irradiancias en todos los planos y temperaturas de respuesta de la envolvente.
/// \param colorMuros,colorCubiertas posiciones de color de la construcción
void CalcularSolYRespuesta(const CoeficientesRespuesta& coeficientes, int colorMuros,
                           int colorCubiertas, SeriesClima& clima);

/// Redondea las series del clima como las deja la primera escritura del fichero de caso.
void RedondearClima(SeriesClima& clima);

/// Temperatura exterior media de cada mes (1 a 12); la posición 0 es la media de los doce meses,
/// °C.
TablaMensual MediasMensuales(const SerieHoraria& TSE);

/// Pone en el registro del sitio las medias del año y la mayor desviación de un mes.
void AnotarMediaAnual(const TablaMensual& media, DatosClimaticosSitio& sitio);

/// Agua de red y estado exterior de proyecto del sitio, de `Capitales.xml`. Una provincia que no
/// está deja el registro como estaba.
void AnotarDatosCapital(const XMLNode& capitales, const Localizacion& lugar,
                        DatosClimaticosSitio& sitio, Mensajes& mensajes);

}  // namespace novex
