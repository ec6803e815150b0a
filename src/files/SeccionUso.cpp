#include "base/Calendario.h"
#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using D = DatosGenerales;
constexpr auto g = &R::generales;

constexpr std::string_view kSeccion = "Datos_Uso";
constexpr std::string_view kMaximos = "Valores_Maximos";
constexpr std::string_view kIluminacion = "Iluminacion";
constexpr std::string_view kVarios = "Varios";
constexpr std::string_view kAccionMes = "AccionMes";
constexpr std::string_view kOrdinal = "C";
constexpr std::size_t kHorasDia = 24;
constexpr int kDecimalesPerfil = 2;
constexpr int kMayorClaseDia = static_cast<int>(kClasesDia);

constexpr std::array kTipo = {Texto<g, &D::Tipo>("Tipo")};

constexpr std::array kCamposMaximos = {Real<g, &D::Sensibleocupantes>("Sensibleocupantes", 2),
                                       Real<g, &D::Latenteocupantes>("Latenteocupantes", 2),
                                       Real<g, &D::Ventilacion>("Ventilacion", 0),
                                       Real<g, &D::Iluminacion>(kIluminacion, 2),
                                       Real<g, &D::Equipos>("Equipos", 2),
                                       Real<g, &D::QOCUPSSimple>("QOCUPSSimple", 2),
                                       Real<g, &D::QOCUPLSimple>("QOCUPLSimple", 2),
                                       Texto<g, &D::Actividad>("Actividad"),
                                       Texto<g, &D::CriterioACS>("CriterioACS"),
                                       Real<g, &D::Nm2_p>("Nm2_p", 2)};

constexpr std::array kCamposIluminacion = {Real<g, &D::VEII>("VEII", 2),
                                           Real<g, &D::Lux>("Lux", 2),
                                           Real<g, &D::EPotIluMax>("EPotIluMax", 2),
                                           Real<g, &D::Qescaparates>("Qescaparates", 0),
                                           Real<g, &D::VEIIMax>("VEIIMax", 2),
                                           Texto<g, &D::TipoVEIIMax>("TipoVEIIMax")};

constexpr std::array kCamposVarios = {
    campoComun::kWRecuperadorr,
    campoComun::kTeminrec,
    campoComun::kTemaxrec,
    campoComun::kTminImp,
    campoComun::kHRmin,
    Real<g, &D::NEquiposVent>("NEquiposVent", 0),
    Texto<g, &D::ManejoVentilacion>("ManejoVentilacion"),
    Texto<g, &D::TipoCO2>("TipoCO2"),
    Texto<g, &D::ControlVent>("ControlVent"),
    Texto<g, &D::UTAFreeCooling>("UTAFreeCooling"),
    Texto<g, &D::UTAHumectacion>("UTAHumectacion"),
    Real<g, &D::TminFreeCooling>("TminFreeCooling", 0),
    Real<g, &D::CaudalUTA>("CaudalUTA", 0),
    Real<g, &D::RendVentToma>("RendVentToma", 2),
    Real<g, &D::PerdPresionToma>("PerdPresionToma", 0),
    Real<g, &D::SuperficieTotalHE5>("SuperficieTotalHE5", 2),
    Real<g, &D::SuperficieCubiertaHE5>("SuperficieCubiertaHE5", 2),
    Real<g, &D::SuperficieCaptadorestermHE5>("SuperficieCaptadorestermHE5", 2),
    Texto<g, &D::RehabIntegralHE5>("RehabIntegralHE5")};

// El fichero no sigue el orden del registro.
constexpr std::array<Familia, kFamilias> kOrdenFamilias = {C1,  C2,   CIlu, CEq,
                                                           CNR, CTRh, CTCh, CCAC};

constexpr std::array<std::string_view, 13> kNombresMes = {
    "",      "Enero",  "Febrero",    "Marzo",   "Abril",     "Mayo",     "Junio",
    "Julio", "Agosto", "Septiembre", "Octubre", "Noviembre", "Diciembre"};

std::string Ordinal(std::size_t n) {
  return std::string(kOrdinal) + std::to_string(n);
}

// Llama con la etiqueta y la tabla de cada perfil, en el orden del fichero.
template <class Visitante>
void RecorrerPerfiles(Perfiles& perfiles, Visitante visitar) {
  for (const Familia familia : kOrdenFamilias)
    for (std::size_t clase = 0; clase < kClasesDia; ++clase) {
      std::string etiqueta(kNombreFamilia[familia]);
      etiqueta += kNombreClaseDia[clase];
      visitar(etiqueta, perfiles.tabla[familia][clase]);
    }
}

void LeerPerfil(const XMLNode& nodo, PerfilDiario& perfil, Mensajes& mensajes) {
  camposFichero::Buscador buscador(nodo, Lugar::Atributos);
  for (std::size_t h = 1; h <= kHorasDia; ++h) {
    const std::string etiqueta = Ordinal(h);
    perfil[h] = camposFichero::LeerReal(buscador.Valor(etiqueta).value_or(""), etiqueta, mensajes);
  }
}

void LeerCalendario(const XMLNode& uso, Perfiles& perfiles, Mensajes& mensajes) {
  std::size_t dia = 0;
  for (std::size_t mes = 1; mes < kNombresMes.size(); ++mes) {
    const XMLNode nodo = uso.childNamed(kNombresMes[mes]);
    camposFichero::Buscador buscador(nodo, Lugar::Atributos);
    for (int d = 1; d <= kDiasMes[mes]; ++d, ++dia) {
      const std::string etiqueta = Ordinal(static_cast<std::size_t>(d));
      perfiles.calendario[dia] = camposFichero::LeerEntero(
          buscador.Valor(etiqueta).value_or(""), kNombresMes[mes], 0, kMayorClaseDia, mensajes);
    }
  }
}

void EscribirCalendario(XMLNode& uso, const Perfiles& perfiles) {
  std::size_t dia = 0;
  for (std::size_t mes = 1; mes < kNombresMes.size(); ++mes) {
    XMLNode nodo = uso.appendChild(kNombresMes[mes]);
    for (int d = 1; d <= kDiasMes[mes]; ++d, ++dia)
      nodo.setAttribute(Ordinal(static_cast<std::size_t>(d)),
                        std::to_string(perfiles.calendario[dia]));
  }
}

}  // namespace

void LeerUso(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes) {
  const XMLNode uso = novex.childNamed(kSeccion);
  const auto atributos = [&](std::string_view etiqueta, std::span<const Campo<R>> campos,
                             SiFalta siFalta) {
    LeerCampos(uso.childNamed(etiqueta), campos, r, mensajes, siFalta, 0, Lugar::Atributos);
  };
  LeerCampos<R>(uso, kTipo, r, mensajes);
  atributos(kMaximos, kCamposMaximos, SiFalta::Vaciar);
  atributos(kIluminacion, kCamposIluminacion, SiFalta::Vaciar);
  atributos(kVarios, kCamposVarios, SiFalta::Conservar);
  Perfiles& perfiles = r.generales.perfiles;
  std::size_t siguiente = 0;
  RecorrerPerfiles(perfiles, [&](const std::string& etiqueta, PerfilDiario& perfil) {
    std::size_t i = siguiente;
    XMLNode nodo = uso.childNamed(etiqueta, &i);
    if (nodo)
      siguiente = i;
    else if (siguiente > 0)
      nodo = uso.childNamed(etiqueta);
    LeerPerfil(nodo, perfil, mensajes);
  });
  LeerCalendario(uso, perfiles, mensajes);
  const XMLNode acciones = uso.childNamed(kAccionMes);
  for (std::size_t mes = 1; mes <= kMeses; ++mes)
    perfiles.AccionMes[mes] = acciones.attributeValue(Ordinal(mes)).value_or("");
}

void EscribirUso(XMLNode& novex, RegistrosCaso& r) {
  XMLNode uso = novex.appendChild(kSeccion);
  const auto atributos = [&](std::string_view etiqueta, std::span<const Campo<R>> campos) {
    XMLNode nodo = uso.appendChild(etiqueta);
    EscribirCampos(nodo, campos, r, 0, Lugar::Atributos);
  };
  EscribirCampos<R>(uso, kTipo, r);
  atributos(kMaximos, kCamposMaximos);
  atributos(kIluminacion, kCamposIluminacion);
  atributos(kVarios, kCamposVarios);
  Perfiles& perfiles = r.generales.perfiles;
  RecorrerPerfiles(perfiles, [&](const std::string& etiqueta, const PerfilDiario& perfil) {
    XMLNode nodo = uso.appendChild(etiqueta);
    for (std::size_t h = 1; h <= kHorasDia; ++h)
      nodo.setAttribute(Ordinal(h), Fijo(static_cast<double>(perfil[h]), kDecimalesPerfil));
  });
  EscribirCalendario(uso, perfiles);
  XMLNode acciones = uso.appendChild(kAccionMes);
  for (std::size_t mes = 1; mes <= kMeses; ++mes)
    acciones.setAttribute(Ordinal(mes), perfiles.AccionMes[mes]);
}

void AnadirTablasUso(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"", kTipo, 1});
  tablas.push_back({"", kCamposMaximos, 1});
  tablas.push_back({"", kCamposIluminacion, 1});
  tablas.push_back({"", kCamposVarios, 1});
}

}  // namespace novex
