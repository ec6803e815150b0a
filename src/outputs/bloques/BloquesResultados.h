#pragma once

#include <vector>

#include "compliance/DocumentosHE.h"
#include "files/DatosDerivados.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// Las etiquetas de resultados de cada bloque de generador, de `ACSTotalProducido_1` a
/// `ConsumoVentUTR`, en el orden del fichero. Energías en kWh y rendimientos como razón; los `SCOP`
/// y el `SEER` son los mismos de las máquinas de compresión, y 0 en las demás. Caudales en l/h los
/// de las bombas y en m3/h los de aire; potencias específicas en W por m3/h.
std::vector<DatosDerivados::Caso::ResultadosSistema> ResultadosDeSistemas(
    const CasoCalculado& caso);

/// Lo de la ventilación de un caso: consumo del año, caudal de proyecto y la mayor potencia del año
/// por ese caudal. Lo demás queda a 0.
DatosDerivados::Caso VentilacionDeCaso(const CasoCalculado& caso);

// Los bloques que siguen a las instalaciones del primer caso. Todos de un caso ya calificado; las
// cifras van por m2 y año, como las enseñan las páginas de resultados.

/// `Sistemas`: generadores, captadores, paneles, aire, bombas, ventiladores y depósitos.
NodoConservado BloqueSistemas(const CasoCalculado& caso);
/// `Indicadores`: demanda, energía y emisiones por servicio, y la energía final por vector.
NodoConservado BloqueIndicadores(const CasoCalculado& caso);
/// `IndicadoresReferencia`: los mismos del edificio de referencia. Solo un terciario lo tiene: una
/// vivienda lleva los valores de referencia de su escala y no lleva energía final.
NodoConservado BloqueIndicadoresReferencia(const CasoCalculado& caso);
/// `Tablas`: renovables y desglose de emisiones.
NodoConservado BloqueTablas(const CasoCalculado& caso);
/// `Escalas`: los límites de las clases de cada indicador que se califica.
NodoConservado BloqueEscalas(const CasoCalculado& caso);
/// `Calificacion`: las letras.
NodoConservado BloqueCalificacion(const CasoCalculado& caso);
/// `MedidasMejora`: una medida por caso de mejora. \param mejoras los calculados
NodoConservado BloqueMedidasMejora(const CasoCalculado& base,
                                   const std::vector<CasoCalculado>& mejoras);
/// `InspeccionesObservaciones`: visitas, observaciones e intervenciones.
NodoConservado BloqueInspecciones(const DatosGenerales& generales);
/// `DatosBalance`: factores de paso y componentes por meses (ISO 52000-1).
NodoConservado BloqueDatosBalance(const CasoCalculado& caso);
/// `ResultadosBalance`: la energía primaria de esos componentes, con kexp 0.
NodoConservado BloqueResultadosBalance(const CasoCalculado& caso);
/// `OtrosIndicadores`: los de la envolvente que verifica el DB-HE1.
/// \param documentos ficheros de límites
NodoConservado BloqueOtrosIndicadores(const CasoCalculado& caso, const DocumentosHE& documentos);

}  // namespace novex
