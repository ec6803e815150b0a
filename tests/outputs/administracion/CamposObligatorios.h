#pragma once

#include "model/DatosGenerales.h"

namespace novex::pruebas {

/// Datos sin los que no hay fichero para la administración, además del NIF o del CIF.
constexpr std::string DatosGenerales::*kCamposObligatorios[] = {
    &DatosGenerales::Certificador_Nombre,
    &DatosGenerales::Certificador_Empresa,
    &DatosGenerales::Certificador_Direccion,
    &DatosGenerales::Certificador_CP,
    &DatosGenerales::Certificador_email,
    &DatosGenerales::Certificador_Movil,
    &DatosGenerales::Certificador_Profesion,
    &DatosGenerales::Certificador_Provincia,
    &DatosGenerales::Certificador_Localidad,
    &DatosGenerales::Edificio_Titulo,
    &DatosGenerales::AnoConstruccion,
    &DatosGenerales::Direccion,
    &DatosGenerales::CodigoPostal};

}  // namespace novex::pruebas
