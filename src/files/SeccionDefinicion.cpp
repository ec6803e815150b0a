#include <algorithm>

#include "files/SeccionesProyecto.h"
#include "model/ListasMejora.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using D = DatosGenerales;
constexpr auto g = &R::generales;

constexpr std::string_view kSeccion = "Definicion";
constexpr std::string_view kMemo = "Memo";
constexpr std::string_view kLinea = "Linea";
constexpr std::string_view kCondiciones = "CondicionesMejora";
constexpr std::string_view kIntervenciones = "Intervenciones";
constexpr std::size_t kTerceraVisita = 3;

constexpr std::array kVisitas = {Real<g, &D::NumeroVisitas>("NumeroVisitas", 0),
                                 TextoEn<0, g, &D::FechaVisita>("FechaVisita1"),
                                 TextoEn<1, g, &D::FechaVisita>("FechaVisita2"),
                                 TextoEn<2, g, &D::FechaVisita>("FechaVisita3"),
                                 Real<g, &D::NumeroObservaciones>("NumeroObservaciones", 0),
                                 TextoEn<0, g, &D::FechaObservacion>("FechaObservacion1"),
                                 TextoEn<1, g, &D::FechaObservacion>("FechaObservacion2"),
                                 TextoEn<2, g, &D::FechaObservacion>("FechaObservacion3"),
                                 Texto<g, &D::MedidaMejora>("MedidaMejora")};

constexpr std::array kCamposCondiciones = {Logico<g, &D::CBConfort>("CBConfort"),
                                           Logico<g, &D::CBIluminacion>("CBIluminacion"),
                                           Logico<g, &D::CBMovilidad>("CBMovilidad"),
                                           Logico<g, &D::CBSeguridad>("CBSeguridad"),
                                           Logico<g, &D::CBAccesibilidad>("CBAccesibilidad"),
                                           Logico<g, &D::CBIncendios>("CBIncendios"),
                                           Logico<g, &D::CBSalubridad>("CBSalubridad"),
                                           Logico<g, &D::CBRuido>("CBRuido"),
                                           Logico<g, &D::CBOtros>("CBOtros")};

constexpr std::array kEconomia = {
    Posicion<g, &D::Coste>("Coste", kCostesMejora),
    Posicion<g, &D::PlazoAmortizacion>("PlazoAmortizacion", kPlazosFichero)};

constexpr std::array kCamposIntervenciones = {
    Logico<g, &D::CBHuecos>("CBHuecos"),
    Logico<g, &D::CBCubiertas>("CBCubiertas"),
    Logico<g, &D::CBFachadas>("CBFachadas"),
    Logico<g, &D::CBSuelos>("CBSuelos"),
    Logico<g, &D::CBMedianeras>("CBMedianeras"),
    Logico<g, &D::CBSombras>("CBSombras"),
    Logico<g, &D::CBGeneracionTermica>("CBGeneracionTermica"),
    Logico<g, &D::CBRenovables>("CBRenovables"),
    Logico<g, &D::CBIluminacion2>("CBIluminacion2"),
    Logico<g, &D::CBDistribucion>("CBDistribucion"),
    Logico<g, &D::CBRecuperacion>("CBRecuperacion"),
    Logico<g, &D::CBOtras>("CBOtras"),
    Logico<g, &D::CBUsoIntervencion>("CBUsoIntervencion")};

std::string EtiquetaMemo(std::size_t i) {
  return std::string(kMemo) + std::to_string(i);
}

// Lo que un memo no admite se corta con un aviso, como cuando se teclea.
std::vector<std::string> LeerMemo(const XMLNode& memo, std::size_t cual, Mensajes& mensajes) {
  std::vector<std::string> lineas;
  std::size_t i = 0;
  while (const XMLNode linea = memo.childNamed(kLinea, &i)) {
    if (lineas.size() == kLineasMemo) {
      mensajes.Avisar("ATENCION", EtiquetaMemo(cual) + ": tiene más de " +
                                      std::to_string(kLineasMemo) +
                                      " líneas, se leen las primeras");
      break;
    }
    lineas.emplace_back(linea.attributeValue(kAtributoValor).value_or(""));
  }
  return lineas;
}

// Número de líneas sin las vacías del final, hasta las que caben en un memo.
std::size_t LineasConTexto(const std::vector<std::string>& memo) {
  std::size_t n = std::min(memo.size(), kLineasMemo);
  while (n > 0 && memo[n - 1].empty()) --n;
  return n;
}

void EscribirMemo(XMLNode& definicion, std::size_t cual, const std::vector<std::string>& memo) {
  const std::size_t n = LineasConTexto(memo);
  // El memo de la tercera visita no está en los ficheros que no lo usan.
  if (cual == kTerceraVisita && n == 0) return;
  XMLNode nodo = definicion.appendChild(EtiquetaMemo(cual));
  for (std::size_t i = 0; i < n; ++i) AnadirValor(nodo, kLinea, memo[i]);
}

// Una fecha solo se guarda si su número está en uso.
void VaciarFechasSinUso(float usadas, std::array<std::string, 3>& fechas) {
  for (std::size_t i = 0; i < fechas.size(); ++i)
    if (static_cast<float>(i) >= usadas) fechas[i].clear();
}

}  // namespace

void LeerDefinicion(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes) {
  const XMLNode definicion = novex.childNamed(kSeccion);
  for (std::size_t i = 0; i < kMemos; ++i)
    r.generales.Memo[i] = LeerMemo(definicion.childNamed(EtiquetaMemo(i)), i, mensajes);
  LeerCampos<R>(definicion, kVisitas, r, mensajes);
  LeerCampos<R>(definicion.childNamed(kCondiciones), kCamposCondiciones, r, mensajes);
  LeerCampos<R>(definicion, kEconomia, r, mensajes);
  LeerCampos<R>(definicion.childNamed(kIntervenciones), kCamposIntervenciones, r, mensajes);
}

void EscribirDefinicion(XMLNode& novex, RegistrosCaso& r) {
  XMLNode definicion = novex.appendChild(kSeccion);
  for (std::size_t i = 0; i < kMemos; ++i) EscribirMemo(definicion, i, r.generales.Memo[i]);
  VaciarFechasSinUso(r.generales.NumeroVisitas, r.generales.FechaVisita);
  VaciarFechasSinUso(r.generales.NumeroObservaciones, r.generales.FechaObservacion);
  EscribirCampos<R>(definicion, kVisitas, r);
  XMLNode condiciones = definicion.appendChild(kCondiciones);
  EscribirCampos<R>(condiciones, kCamposCondiciones, r);
  EscribirCampos<R>(definicion, kEconomia, r);
  XMLNode intervenciones = definicion.appendChild(kIntervenciones);
  EscribirCampos<R>(intervenciones, kCamposIntervenciones, r);
}

void AnadirTablasDefinicion(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"", kVisitas, 1});
  tablas.push_back({"", kCamposCondiciones, 1});
  tablas.push_back({"", kEconomia, 1});
  tablas.push_back({"", kCamposIntervenciones, 1});
}

}  // namespace novex
