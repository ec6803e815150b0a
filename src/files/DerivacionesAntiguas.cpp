#include "files/DerivacionesAntiguas.h"

#include <algorithm>
#include <array>
#include <limits>

#include "base/NumeroTexto.h"
#include "model/DatosGenerales.h"

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

constexpr std::array<std::string_view, 3> kResidenciales = {"Unifamiliar", "Bloque",
                                                            "ViviendaBloque"};
constexpr std::string_view kTerciario = "Terciario";
// Los terciarios por el nombre de su horario, desde el primero.
constexpr int kPrimerTerciario = 3;
constexpr int kPerfilUsuario = 15;
constexpr std::array<std::string_view, 12> kHorarios = {
    "8hB", "8hM", "8hA", "12hB", "12hM", "12hA", "16hB", "16hM", "16hA", "24hB", "24hM", "24hA"};

template <std::size_t N>
std::optional<int> Lugar(const std::array<std::string_view, N>& lista, std::string_view texto) {
  const auto donde = std::find(lista.begin(), lista.end(), texto);
  if (donde == lista.end()) return std::nullopt;
  return static_cast<int>(donde - lista.begin());
}

}  // namespace

std::optional<int> PerfilUsoDeTipologia(std::string_view tipologia, std::string_view tipoUso) {
  if (const auto residencial = Lugar(kResidenciales, tipologia)) return residencial;
  if (const auto perfil = Lugar(kNombrePerfilUso, tipologia)) return perfil;
  if (tipologia == kTerciario)
    return kPrimerTerciario + Lugar(kHorarios, tipoUso).value_or(kPerfilUsuario - kPrimerTerciario);
  double numero = 0;
  if (LeerReal(tipologia, numero) && numero >= 0 &&
      numero < static_cast<double>(kNombrePerfilUso.size()))
    return static_cast<int>(numero);
  return std::nullopt;
}

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
