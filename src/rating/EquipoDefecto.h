#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "demand/ResultadosCaso.h"
#include "demand/calculo.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"

namespace novex {

/// Lee de `Defecto.xml` el equipo por defecto que corresponde al uso. El rendimiento de
/// refrigeración que resulta es el del fichero por 0,7.
/// \param raiz elemento `DEFECTO` del documento
/// \param ruta camino del fichero, para los mensajes
/// \param residencial si el uso es residencial o terciario
/// \throws ErrorFichero con el nombre del atributo si un rendimiento falta o no es mayor que 0: se
/// divide por él.
EquipoDefecto LeerDefecto(const XMLNode& raiz, const std::string& ruta, bool residencial,
                          Mensajes& mensajes);

/// Lo que dice `Equipos_Defecto`: "NO" simula solo los equipos reales, "SI" carga lo que falte a
/// los equipos por defecto. Un texto que no es ninguno de los dos solo les carga el agua caliente.
enum class ModoDefecto { No, Si, SinDecir };
ModoDefecto ModoDefectoDe(std::string_view equiposDefecto);

/// Vector en que cuenta la energía del equipo por defecto: lo fija el uso, no el fichero.
/// \param servicio uno de los que tienen demanda
VectorEnergetico VectorDefecto(std::size_t servicio, bool residencial);

/// Carga a los equipos por defecto lo que los sistemas no dan en una hora: suma la energía final a
/// sus filas mensuales y deja las series horarias. La serie de ACS se guarda siempre; las otras,
/// solo cuando lo toman los equipos por defecto. \param h hora del año, 1 a 8760 \param noDado
/// demanda de cada servicio que ningún sistema da, kW (>= 0) \param caso con los rendimientos por
/// defecto ya leídos
void CargarDefectoHora(int h, const std::array<float, kServiciosDemanda>& noDado, ModoDefecto modo,
                       calculo& caso);

/// Energía de iluminación de un caso terciario: llena sus filas mensuales, en kWh del edificio, con
/// la carga horaria tal como está en los horarios. En uso residencial las deja a 0.
/// \returns kWh/m2 y año
float CargarIluminacion(const Edificio& edificio, calculo& caso);

}  // namespace novex
