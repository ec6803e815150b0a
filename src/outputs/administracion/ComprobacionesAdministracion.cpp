#include "outputs/administracion/ComprobacionesAdministracion.h"

#include <algorithm>
#include <array>

#include "base/Texto.h"
#include "model/Catastro.h"

namespace novex {
namespace {

constexpr float kVisitasMinimas = 1;

using CampoTexto = std::string DatosGenerales::*;

constexpr std::array<CampoTexto, 13> kObligatorios = {&DatosGenerales::Certificador_Nombre,
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

bool Relleno(const DatosGenerales& g, CampoTexto campo) {
  return !SinBlancos(g.*campo).empty();
}

bool DatosCompletos(const DatosGenerales& g) {
  const bool conNumero = Relleno(g, &DatosGenerales::Certificador_NIF) ||
                         Relleno(g, &DatosGenerales::Certificador_CIF);
  return conNumero && std::all_of(kObligatorios.begin(), kObligatorios.end(),
                                  [&](CampoTexto campo) { return Relleno(g, campo); });
}

}  // namespace

std::optional<Mensaje> ComprobarAdministracion(const Edificio& edificio) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  if (!DatosCompletos(g)) return kAvisoDatosObligatorios;
  const DatosPantalla& pantalla = edificio.GetDatosPantalla();
  if (!ComprobarReferencias(pantalla.referencias, pantalla.Registro)) return kAvisoCatastro;
  if (!(g.NumeroVisitas >= kVisitasMinimas)) return kAvisoVisitas;
  return std::nullopt;
}

}  // namespace novex
