#include "files/DerivacionesAntiguas.h"

#include <array>
#include <limits>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

struct Periodo {
  double ultimoAno = 0;
  std::string_view nombre;
};
constexpr std::array<Periodo, 8> kPeriodos = {{{1899, "ANTE-1900"},
                                               {1939, "1900-1939"},
                                               {1959, "1940-1959"},
                                               {1978, "1960-1978"},
                                               {2005, "1979-2005"},
                                               {2012, "2006-2012"},
                                               {2018, "2013-2018"},
                                               {std::numeric_limits<double>::max(), "POST-2018"}}};

}  // namespace

std::string TipoCertificadoDe(std::string_view modoTrabajo) {
  if (modoTrabajo == "Nuevo") return "ProyectoNuevaConstruccion";
  if (modoTrabajo == "Existente" || modoTrabajo == "CertificacionSolo") return "Existente";
  if (modoTrabajo == "Ampliación" || modoTrabajo == "Cambio de uso") return "ProyectoAmpliacion";
  return modoTrabajo.starts_with("Reforma ") ? "ProyectoReforma" : "";
}

std::string PeriodoConstruccionDe(std::string_view ano) {
  double numero = 0;
  if (!LeerReal(ano, numero)) return std::string(ano);
  std::size_t i = 0;
  while (numero >= kPeriodos[i].ultimoAno + 1 && i + 1 < kPeriodos.size()) ++i;
  return std::string(kPeriodos[i].nombre);
}

}  // namespace novex
