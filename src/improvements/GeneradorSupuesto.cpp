#include "improvements/GeneradorSupuesto.h"

#include <optional>

#include "entry/CambioSistema.h"
#include "entry/CreacionSistema.h"
#include "entry/ListasSistemas.h"
#include "systems/ClasesSistema.h"
#include "systems/RepartoSuperficies.h"

namespace novex {
namespace {

// Parte de la carga total que es sensible en un equipo de rendimiento estacional: su EER es de
// carga total y el de la medida, de sensible.
constexpr float kSensible = 0.7F;

// El servicio de zona que da el generador de una medida.
struct GeneradorDeZona {
  TipoSistema tipo = TipoSistema::Ninguno;
  const ServicioForzado* forzado = nullptr;
  std::string_view tipoSistema, clase, servicio;
};

std::optional<GeneradorDeZona> DeZona(const Forzados& f) {
  if (f.CasoCalefaccion.Concreto())
    return GeneradorDeZona{TipoSistema::Calefaccion, &f.CasoCalefaccion, "Calefaccion",
                           "Rend. estacional", "la calefacción"};
  if (f.CasoRefrigeracion.Concreto())
    return GeneradorDeZona{TipoSistema::Refrigeracion, &f.CasoRefrigeracion, "Refrigeracion",
                           "Rend. estacional (refrigerante)", "la refrigeración"};
  return std::nullopt;
}

bool LoDa(TipoSistema sistema, TipoSistema servicio) {
  return servicio == TipoSistema::Calefaccion ? DaCalefaccion(sistema) : DaRefrigeracion(sistema);
}

// Lo que queda de los servicios de un sistema sin uno de ellos; vacío si ninguno. Agua caliente y
// refrigeración no van juntas en ninguno.
std::optional<std::string_view> Resto(TipoSistema sistema, TipoSistema sin) {
  const bool calor = sin == TipoSistema::Calefaccion;
  switch (sistema) {
    case TipoSistema::ACSCalefaccion:
      return "ACS";
    case TipoSistema::CaleRefri:
      return calor ? "Refrigeracion" : "Calefaccion";
    case TipoSistema::Todo:
      if (calor) return std::nullopt;
      return "ACS+Calefaccion";
    default:
      return "";
  }
}

bool SePuedeSeparar(const Edificio& edificio, std::size_t n, TipoSistema servicio) {
  const auto resto = Resto(TipoSistemaDe(edificio.GetSistema(n).Tipo_sistema), servicio);
  return resto && (resto->empty() || AdmiteServicios(edificio, n, *resto));
}

}  // namespace

std::string ImpideGenerador(const Edificio& edificio, const Forzados& forzados) {
  if (forzados.CasoACS.Concreto())
    return "La medida supone un generador de agua caliente sin potencia ni depósito, y ninguna "
           "clase de equipo de solo ACS tiene rendimiento estacional: el equipo que lo da se "
           "define en Instalaciones";
  const auto zona = DeZona(forzados);
  if (!zona) return {};
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n) {
    const SistemaResidencial& s = edificio.GetSistema(n);
    if (!LoDa(TipoSistemaDe(s.Tipo_sistema), zona->tipo)) continue;
    if (EsSistemaDeAire(s))
      return "\"" + s.Nombre_sistema + "\" trata el aire de ventilación, y la medida supone " +
             std::string(zona->servicio) + " entera en un equipo de zona";
    if (!SePuedeSeparar(edificio, n, zona->tipo))
      return "\"" + s.Nombre_sistema + "\" da con el mismo equipo " + std::string(zona->servicio) +
             " y otros servicios que no puede dar solo: se cambia en Instalaciones";
  }
  return {};
}

std::string CambiosGenerador(const Edificio& edificio, const Forzados& forzados) {
  const auto zona = DeZona(forzados);
  if (!zona) return {};
  std::string quitados, reducidos;
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n) {
    const SistemaResidencial& s = edificio.GetSistema(n);
    const TipoSistema tipo = TipoSistemaDe(s.Tipo_sistema);
    if (!LoDa(tipo, zona->tipo)) continue;
    std::string& lista = tipo == zona->tipo ? quitados : reducidos;
    lista += (lista.empty() ? "\"" : ", \"") + s.Nombre_sistema + "\"";
  }
  std::string texto = std::string(zona->servicio) +
                      " de toda la superficie, que pasa a un sistema nuevo de rendimiento "
                      "estacional (" +
                      zona->forzado->combustible + ")";
  if (!quitados.empty()) texto += "; se quita " + quitados;
  if (!reducidos.empty()) texto += "; deja de darla " + reducidos;
  return texto;
}

void PonerGeneradorSupuesto(Edificio& edificio, const Forzados& forzados) {
  const auto zona = DeZona(forzados);
  if (!zona || !ImpideGenerador(edificio, forzados).empty()) return;
  for (std::size_t n = edificio.NumeroSistemas(); n-- > 0;) {
    const TipoSistema tipo = TipoSistemaDe(edificio.GetSistema(n).Tipo_sistema);
    if (!LoDa(tipo, zona->tipo)) continue;
    if (const auto resto = Resto(tipo, zona->tipo); resto->empty())
      edificio.BorrarSistema(n);
    else
      CambiarServicios(edificio, n, *resto);
  }
  PeticionSistema peticion;
  peticion.tipoSistema = zona->tipoSistema;
  peticion.seleccion = zona->clase;
  peticion.tipologia = kIndividual;
  SistemaResidencial nuevo = NuevoSistema(edificio, peticion, nullptr);
  Instalaciones& bloque = nuevo.instalaciones.front();
  bloque.CombEst = zona->forzado->combustible;
  const float rendimiento = zona->forzado->rendimiento;
  if (zona->tipo == TipoSistema::Calefaccion)
    bloque.RendCalorEst = rendimiento;
  else
    bloque.RendFrioEst = rendimiento / kSensible;
  edificio.AnadirSistema(std::move(nuevo));
}

}  // namespace novex
