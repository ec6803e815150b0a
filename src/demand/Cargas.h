#pragma once

#include "base/Mensajes.h"
#include "demand/AjustesUso.h"
#include "demand/Series.h"
#include "files/xmlParser.h"

namespace novex {

/// Valores de partida de los horarios, de `NuevoUsoControl.xml`: 8760 hijos en orden de horas.
void LeerUsoBase(const XMLNode& raiz, SeriesCarga& carga, Mensajes& mensajes);

/// ¿Tiene el calendario algún día cuya clase no es de 0 a 9, que se queda con los valores de
/// partida?
bool NecesitaUsoBase(const DatosGenerales& generales);

/// Pasa los horarios del caso a series del año: cargas, ventilación, consignas y agua caliente.
/// Deja en `QOCUPShT`, `QILUhT` y `QEQhT` la copia de lo programado.
void GenerarCargas(const DatosGenerales& generales, const AjustesUso& ajustes, SeriesCarga& carga);

/// Reparte cada serie entre lo que llega al aire en la hora y lo que la radiación retrasa hasta 22
/// horas, en las cargas y en las temperaturas de respuesta, y redondea como la segunda escritura
/// del fichero de caso.
void AplicarRetardoRadiante(SeriesCarga& carga, SeriesClima& clima);

}  // namespace novex
