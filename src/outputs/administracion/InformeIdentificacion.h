#pragma once

#include <string>
#include <string_view>

#include "compliance/VerificacionHE.h"
#include "files/xmlParser.h"
#include "outputs/CasoCalculado.h"

namespace novex {

/// ¿Lleva el informe la verificación del DB-HE además de la certificación? La lleva todo lo que no
/// es certificar un edificio existente como está.
bool InformaVerificacion(const DatosGenerales& generales);

/// Alcance de la información del informe, por la clase de certificado.
std::string_view AlcanceInforme(const DatosGenerales& generales);

/// Clase de edificio del informe, por el perfil de uso y, en terciario, por el alcance.
std::string_view TipoDeEdificio(const DatosGenerales& generales);

/// El texto de una imagen del proyecto sin sus marcas de bloque: "data:image/jpeg;base64,...".
/// Acaba en el primer "]]>"; vacío si no queda nada.
std::string_view ContenidoImagen(std::string_view imagen);

/// Añaden al informe quién certifica, qué edificio es, y sus medidas. \param informe el elemento
/// raíz
void AnadirCertificador(XMLNode& informe, const DatosGenerales& generales);
void AnadirIdentificacion(XMLNode& informe, const Edificio& edificio);
/// \param verificacion da la compacidad
void AnadirGeometria(XMLNode& informe, const CasoCalculado& caso,
                     const VerificacionHE& verificacion);

}  // namespace novex
