#include "outputs/ReglasResultados.h"

#include <algorithm>

#include "model/GestorEdifActivo.h"
#include "systems/ClasesSistema.h"

namespace novex {
namespace {

constexpr double kMayorPorcentaje = 4;

Indicador SegunUnidad(bool emisiones, Indicador deEmisiones, Indicador dePrimaria) {
  return emisiones ? deEmisiones : dePrimaria;
}

}  // namespace

bool SeCalifica(const Edificio& edificio) {
  return edificio.GetDatosGenerales().Tiposimulacion != "Simulacion";
}

bool RefrigeracionFuera(const Edificio& edificio) {
  return SinRefrigeracionCalificada(edificio) && SeCalifica(edificio);
}

std::string NotaZonaSinRefrigeracion(const Edificio& edificio) {
  if (!RefrigeracionFuera(edificio)) return {};
  return "No se contabiliza refrigeración por estar en zona " +
         edificio.GetLocalizacion().ZonaClimatica;
}

std::array<bool, kServiciosDemanda> ServiciosConEquipo(const Edificio& edificio) {
  std::array<bool, kServiciosDemanda> hay{};
  for (std::size_t i = 0; i < edificio.NumeroSistemas(); ++i) {
    const TipoSistema tipo = TipoSistemaDe(edificio.GetSistema(i).Tipo_sistema);
    const auto es = [tipo](auto... tipos) { return ((tipo == tipos) || ...); };
    hay[kACS] |= es(TipoSistema::ACS, TipoSistema::ACSCalefaccion, TipoSistema::Todo);
    // La calefacción de los sistemas de los tres servicios no entra en esta cuenta.
    hay[kCalefaccion] |=
        es(TipoSistema::Calefaccion, TipoSistema::CaleRefri, TipoSistema::ACSCalefaccion);
    hay[kRefrigeracion] |=
        es(TipoSistema::Refrigeracion, TipoSistema::CaleRefri, TipoSistema::Todo);
  }
  return hay;
}

HorasFueraConsigna TextoHorasFuera(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  if (caso.nombre != caso::kViejo || r.horasOcupacion == 0.0F) return {};
  const double fuera =
      static_cast<double>(r.horasFueraCalefaccion) + static_cast<double>(r.horasFueraRefrigeracion);
  const double porcentaje = fuera * 100.0 / static_cast<double>(r.horasOcupacion);
  const std::string cifra = Fijo(porcentaje, kDecimalesResultado);
  if (porcentaje > kMayorPorcentaje)
    return {"Porcentaje horas fuera consigna = " + cifra + " %. Certificación no válida", true};
  return {"Nº horas fuera consigna = " + Fijo(fuera, 0) + " h lo que supone un " + cifra +
              " % de las horas de ocupación",
          false};
}

std::optional<Indicador> IndicadorDe(std::optional<Servicio> servicio, UnidadEnergia unidad,
                                     bool residencial) {
  const bool emisiones = unidad == kEmisiones;
  if (!emisiones && unidad != kPrimariaNoRenovable) return std::nullopt;
  if (!servicio)
    return SegunUnidad(emisiones, Indicador::EmisionesTotales, Indicador::EPriNoRTotales);
  switch (*servicio) {
    case kCalefaccion:
      return SegunUnidad(emisiones, Indicador::EmisionesCalefaccion, Indicador::EPriNoRCalefaccion);
    case kRefrigeracion:
      return SegunUnidad(emisiones, Indicador::EmisionesRefrigeracion,
                         Indicador::EPriNoRRefrigeracion);
    case kACS:
      return SegunUnidad(emisiones, Indicador::EmisionesACS, Indicador::EPriNoRACS);
    case kIluminacion:
      if (residencial) return std::nullopt;
      return SegunUnidad(emisiones, Indicador::EmisionesIlu, Indicador::EPriNoRIlu);
    case kVentilacion:
      break;
  }
  return std::nullopt;
}

std::string LetraMostrada(Indicador indicador, const CasoCalculado& caso) {
  if (!SeCalifica(*caso.edificio)) return {};
  return caso.resultado->resultados.escala.letra[static_cast<std::size_t>(indicador)];
}

bool HayEscala(const UmbralesEscala& umbrales) {
  return std::any_of(umbrales.begin(), umbrales.end(), [](float t) { return t != 0.0F; });
}

std::size_t UltimaBanda(bool nuevo, const UmbralesEscala& umbrales) {
  return nuevo || umbrales.back() == 0.0F ? 4 : kBandas - 1;
}

std::optional<double> Ahorro(double base, double valor) {
  if (!(base > 0.0)) return std::nullopt;
  return (base - valor) * 100.0 / base;
}

const CasoCalculado* CasoBase(const std::vector<CasoCalculado>& casos) {
  const auto it = std::find_if(casos.begin(), casos.end(),
                               [](const CasoCalculado& c) { return c.nombre == caso::kViejo; });
  return it == casos.end() ? nullptr : &*it;
}

}  // namespace novex
