#include "compliance/Requisitos.h"

#include "base/Texto.h"

namespace novex {
namespace {

struct FilaReforma {
  std::string_view reforma;
  std::array<bool, 4> aplica;  // HE0, HE1Kq, HE1Klim, HE4
};
constexpr std::array<FilaReforma, 10> kReformas = {
    {{"Ampliación", {true, true, true, false}},
     {"Cambio de uso", {true, true, true, true}},
     {"Reforma >25% envolvente + Clima + ACS", {true, true, false, true}},
     {"Reforma <25% envolvente + Clima + ACS", {false, false, false, true}},
     {"Reforma >25% envolvente + Clima", {true, true, false, false}},
     {"Reforma <25% envolvente + Clima", {false, false, false, false}},
     {"Reforma >25% envolvente + ACS", {true, true, false, true}},
     {"Reforma <25% envolvente + ACS", {false, false, false, true}},
     {"Reforma >25% envolvente", {false, true, false, false}},
     {"Reforma <25% envolvente", {false, false, false, false}}}};

bool EsNuevo(const DatosGenerales& generales) {
  return generales.Modo_trabajo == "Nuevo";
}

}  // namespace

Aplicacion AplicaRequisito(const DatosGenerales& generales, Requisito requisito) {
  if (EsNuevo(generales)) return Aplicacion::Si;
  for (const FilaReforma& fila : kReformas)
    if (EsReforma(generales, fila.reforma))
      return fila.aplica[static_cast<std::size_t>(requisito)] ? Aplicacion::Si : Aplicacion::No;
  return Aplicacion::Ninguna;
}

bool EsReforma(const DatosGenerales& generales, std::string_view reforma) {
  return !EsNuevo(generales) && SinBlancosFinales(generales.Reforma) == reforma;
}

std::string NotaAplicacion(const DatosGenerales& generales, Aplicacion aplicacion) {
  if (aplicacion == Aplicacion::Si) return {};
  const std::string reforma(SinBlancosFinales(generales.Reforma));
  if (aplicacion == Aplicacion::No) return "No se exige en \"" + reforma + "\"";
  return reforma.empty() ? "El edificio existente no dice su intervención"
                         : "La intervención \"" + reforma + "\" no es de las del DB-HE";
}

}  // namespace novex
