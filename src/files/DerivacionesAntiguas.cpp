#include "files/DerivacionesAntiguas.h"

#include <algorithm>
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

constexpr std::array<std::string_view, 3> kResidenciales = {"Unifamiliar", "Bloque",
                                                            "ViviendaBloque"};
constexpr std::string_view kTerciario = "Terciario";
// Los terciarios por el nombre de su horario, desde el primero.
constexpr int kPrimerTerciario = 3;
constexpr int kPerfilUsuario = 15;
constexpr std::array<std::string_view, 12> kHorarios = {
    "8hB", "8hM", "8hA", "12hB", "12hM", "12hA", "16hB", "16hM", "16hA", "24hB", "24hM", "24hA"};

using D = DatosGenerales;
struct DatoSinSitio {
  std::string_view nombre;
  std::string D::*campo;
};
constexpr std::array kSinSitio = std::to_array<DatoSinSitio>({
    {"Apellidos del proyectista", &D::Proyectista_Apellidos},
    {"Nombre del proyectista", &D::Proyectista_Nombre},
    {"Dirección del proyectista", &D::Proyectista_Direccion},
    {"NIF del proyectista", &D::Proyectista_NIF},
    {"Código postal del proyectista", &D::Proyectista_CP},
    {"Localidad del proyectista", &D::Proyectista_Localidad},
    {"Provincia del proyectista", &D::Proyectista_Provincia},
    {"Teléfono del proyectista", &D::Proyectista_Telefono},
    {"Correo del proyectista", &D::Proyectista_email},
    {"Empresa del proyectista", &D::Proyectista_Empresa},
    {"Nº de colegiado del proyectista", &D::Proyectista_N_Colegiado},
    {"Colegio del proyectista", &D::Proyectista_Colegio_Profesional},
    {"Profesión del proyectista", &D::Proyectista_Profesion},
    {"Nº de expediente del proyecto", &D::NExpedienteP},
    {"Nº de expediente de la inspección", &D::NExpediente_ICE},
    {"Normativa vigente", &D::NormativaVigente},
    {"Colegio del certificador", &D::Certificador_Colegio_Profesional},
});

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

ReferenciaCatastral FilaDeReferencia(std::string_view referencia) {
  constexpr std::size_t kParcela = 14, kEntera = 20;
  const bool entera = referencia.size() == kEntera &&
                      std::all_of(referencia.begin(), referencia.end(),
                                  [](unsigned char c) { return c > ' ' && c < 0x7F; });
  ReferenciaCatastral fila;
  fila.Parcela = referencia.substr(0, entera ? kParcela : referencia.size());
  if (entera) fila.Inmueble = referencia.substr(kParcela);
  return fila;
}

void DejarUnTelefono(DatosGenerales& generales, InformeLectura& informe) {
  if (!generales.Certificador_Movil.empty() || generales.Certificador_Telefono.empty()) return;
  generales.Certificador_Movil = generales.Certificador_Telefono;
  InformeLectura::Anotar(informe.cambiados,
                         "Teléfono del certificador, el único que se guarda: \"" +
                             generales.Certificador_Movil + "\"");
}

void AnotarSinSitio(const DatosGenerales& generales, InformeLectura& informe) {
  for (const DatoSinSitio& dato : kSinSitio) {
    const std::string& texto = generales.*dato.campo;
    // La legislación de los ficheros de texto está en dos campos, y el otro sí se guarda.
    const bool esta =
        dato.campo == &D::NormativaVigente && texto == generales.Otra_legislacion_aplicable;
    if (!texto.empty() && !esta)
      InformeLectura::Anotar(informe.saltados, std::string(dato.nombre) + " \"" + texto +
                                                   "\": un proyecto de hoy no lo guarda");
  }
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
