#pragma once

#include <string_view>

#include "base/Mensajes.h"
#include "files/xmlParser.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Cambia el objetivo del trabajo en todos los casos: "CertificacionSolo", "Certificacion" o
/// "Simulacion". En un uso residencial "Simulacion" vuelve a cargar el uso "Residencial". Los casos
/// quedan sin cálculo. \param perfilesUso elemento `PERFILES_USO`
/// \returns false, sin cambiar nada, si no es uno de los tres
bool CambiarObjetivo(GestorEdifActivo& gestor, std::string_view objetivo,
                     const XMLNode& perfilesUso, Mensajes& mensajes);

/// Cambia el perfil de uso de un caso, de 0 a 15, y carga sus valores por defecto. Al pasar de
/// residencial a terciario o al revés se borran los sistemas y cambia el manejo de las ventanas.
/// \returns false, sin cambiar nada, si el perfil no existe
bool CambiarPerfilUso(Edificio& edificio, int perfil, const XMLNode& perfilesUso,
                      Mensajes& mensajes);

/// ¿Borra los sistemas de un caso pasar a un perfil? Solo si cruza de residencial a terciario o al
/// revés y tiene alguno.
bool PerfilBorraSistemas(const Edificio& edificio, int perfil);

/// Cambia el tipo de certificado y el modo de trabajo que sigue de él.
/// \returns false, sin cambiar nada, si no es uno de los siete
bool CambiarTipoCertificado(Edificio& edificio, std::string_view tipo);

}  // namespace novex
