#include "calculation/SimulacionCaso.h"

#include <algorithm>

#include "base/Psicrometria.h"
#include "demand/PuentesTermicos.h"
#include "demand/TransmitanciasEfectivas.h"
#include "rating/EquipoDefecto.h"
#include "rating/Escala.h"
#include "rating/Plegado.h"
#include "reference/LongitudesPuentes.h"
#include "systems/Fotovoltaica.h"

namespace novex {
namespace {

constexpr float kTemperaturaACS = 60.0F;  // °C
constexpr float kCpAgua = 4.184F;         // kJ/l°C
constexpr float kLatenteDefecto = 0.3F / 0.7F;

// Parte de huecos de la fachada de cada sector, con los muros a otros locales en su orientación.
std::array<float, kSectores> ProporcionHuecos(const Edificio& edificio) {
  const Recinto& r = edificio.GetRecinto(0);
  const Construccion& c = edificio.GetConstruccion();
  std::array<float, kSectores> muros{}, huecos{}, proporcion{};
  for (const auto& tipo : r.Muro_ext_m2)
    for (std::size_t s = 0; s < kSectores; ++s) muros[s] += tipo[s];
  for (std::size_t i = 0; i < 2; ++i)
    muros[static_cast<std::size_t>(std::clamp(c.Orientacion_Otro_Local[i], 0, 5))] +=
        r.Muro_otro_local_m2[i];
  for (std::size_t n = 0; n < edificio.NumeroHuecos(); ++n) {
    const Huecos& g = edificio.GetHuecos(n);
    for (std::size_t s = 0; s < kSectores; ++s)
      huecos[s] += static_cast<float>(g.columnas[s].recintos.size()) * g.Ancho_m * g.Alto_m;
  }
  for (std::size_t s = 0; s < kSectores; ++s) {
    const float total = muros[s] + huecos[s];
    proporcion[s] = total > 0.0F ? huecos[s] / total : 0.0F;
  }
  return proporcion;
}

}  // namespace

SimulacionCaso::SimulacionCaso(Edificio& edificio, const AjustesUso& ajustes, calculo& caso)
    : edificio_(edificio),
      ajustes_(ajustes),
      caso_(caso),
      aire_(kHorasAno + 1),
      superficie_(edificio.GetRecinto(0).Suelo_habitable_m2) {
  caso_.VaciarResultados();
  PrepararZona();
}

SimulacionCaso::~SimulacionCaso() = default;

void SimulacionCaso::PrepararZona() {
  ResultadosCaso& res = caso_.resultados;
  const Recinto& recinto = edificio_.GetRecinto(0);
  res.superficieTotal = recinto.Suelo_habitable_m2;
  res.volumenTotal = recinto.Volumen_total_m3;
  edificio_.SetConstruccion(LongitudesEstimadas(edificio_));
  const Construccion& construccion = edificio_.GetConstruccion();
  const AlturaEdificio altura = AlturaDeEdificio(edificio_);
  res.alturaLibre = (altura.alturaPlanta - construccion.Espesor_forjado) / altura.alturaPlanta;
  caso_.alturaEdificio = altura.Total();
  res.Uefectiva = TransmitanciasEfectivas(edificio_, res.forzados);
  ConstantesDeInforme(edificio_, res);
  res.proporcionHuecos = ProporcionHuecos(edificio_);
  const float Htb = ConductanciaPuentes(construccion, res.forzados.PuentesForzados,
                                        edificio_.GetLocalizacion().ZonaClimatica);
  opacos_ = std::make_unique<ElementosOpacos>(edificio_, ajustes_, caso_);
  huecos_ = std::make_unique<ElementosHuecos>(edificio_, ajustes_, caso_);
  ventilacion_ = std::make_unique<PasoVentilacion>(edificio_, ajustes_, caso_);
  balance_ = std::make_unique<Balance>(edificio_, ajustes_,
                                       PrepararRespuestaZona(edificio_, res.Uefectiva), Htb,
                                       *opacos_, *huecos_, caso_);
  humedad_ = std::make_unique<HumedadZona>(edificio_, ajustes_, caso_);
}

bool SimulacionCaso::Avanzar(int horas) {
  for (; horas > 0 && hechas_ < 2 * kHorasAno; --horas, ++hechas_) {
    const bool primera = hechas_ < kHorasAno;
    const int h = hechas_ % kHorasAno + 1;
    if (h == 1) mes_ = 1;
    if (h > kUltimaHoraMes[static_cast<std::size_t>(mes_)]) ++mes_;
    if (primera)
      PrimeraPasada(h, mes_);
    else
      SegundaPasada(h, mes_);
  }
  return hechas_ < 2 * kHorasAno;
}

bool SimulacionCaso::ConvieneEnfriamiento(int h) const {
  const SeriesZona& zona = caso_.zona;
  const float T = zona.TSL[h];
  const float Te = caso_.clima.TSE[h];
  if (ajustes_.enfriamiento == PruebaEnfriamiento::Ninguna) return false;
  if (!(zona.cargaRefrigeracion[h] > 0.0F && T > Te)) return false;
  if (ajustes_.enfriamiento == PruebaEnfriamiento::Termica) return true;
  const float Wzona = h == 1 ? caso_.clima.WE[1] : zona.WL[h - 1];
  return psicrometria::Entalpia(Te, caso_.clima.WE[h]) < psicrometria::Entalpia(T, Wzona);
}

void SimulacionCaso::PrimeraPasada(int h, int mes) {
  if (h == 1 || h == kUltimaHoraMes[static_cast<std::size_t>(mes - 1)] + 1) {
    opacos_->RefrescarMes(mes);
    huecos_->RefrescarMes(mes);
  }
  SeriesZona& zona = caso_.zona;
  AireHora& aire = aire_[static_cast<std::size_t>(h)];
  aire = ventilacion_->Hora(h, mes, false, cargaPrevia_);
  balance_->Ganancias(h, mes);
  CargasPorSuperficie cargas = balance_->Demanda(h, mes, aire);
  cargaPrevia_ = zona.cargaRefrigeracion[h] - zona.cargaCalefaccion[h];

  // El caudal de una unidad con variador sigue a la carga que acaba de salir.
  if (ajustes_.aire == SistemaAire::UTA && ajustes_.control != ControlVentilador::Compuertas &&
      cargaPrevia_ != 0.0F) {
    aire = ventilacion_->Hora(h, mes, false, cargaPrevia_);
    cargas = balance_->Demanda(h, mes, aire);
  }
  if (ajustes_.PruebaEnfriamientoGratuito()) {
    if (ConvieneEnfriamiento(h)) {
      aire = ventilacion_->Hora(h, mes, true, cargaPrevia_);
      cargas = balance_->Demanda(h, mes, aire);
    }
    if (ajustes_.enfriamiento == PruebaEnfriamiento::Entalpica)
      humedad_->Hora(h, 0.0F, aire.eficienciaHumedad);
  }

  zona.DCAL[h] = zona.cargaCalefaccion[h] * 0.001F;
  zona.DREF[h] = std::max(0.0F, zona.cargaRefrigeracion[h] * 0.001F);
  zona.cargaCalefaccion[h] *= 0.001F;
  zona.cargaRefrigeracion[h] *= 0.001F;
  zona.DVENT[h] *= 0.001F;
  caso_.resultados.demandaCalefaccion -= 0.001F * cargas.calefaccion;
  caso_.resultados.demandaRefrigeracion += 0.001F * cargas.refrigeracion;
}

void SimulacionCaso::AnotarDemandaACS(int h, int mes) {
  const float Tred = edificio_.GetDatosClimaticosSitio().aguaRed[static_cast<std::size_t>(mes)];
  const float litros =
      0.01F * caso_.carga.CCAC[h] * edificio_.GetDatosGenerales().ConsumoAgua_litros_dia;
  caso_.zona.DACS[h] = litros * (kTemperaturaACS - Tred) * kCpAgua / 3600.0F;
}

std::array<float, kServiciosDemanda> SimulacionCaso::NoServido(int h) const {
  return {caso_.zona.DACS[h], -caso_.zona.cargaCalefaccion[h], caso_.zona.cargaRefrigeracion[h]};
}

void SimulacionCaso::SegundaPasada(int h, int mes) {
  SeriesZona& zona = caso_.zona;
  TablasMensuales& meses = caso_.meses;
  AnotarDemandaACS(h, mes);
  SumarMes(meses.demanda[kCalefaccion], mes, zona.DCAL[h] / superficie_);
  SumarMes(meses.demanda[kRefrigeracion], mes, zona.DREF[h] / superficie_);
  SumarMes(meses.demanda[kACS], mes, zona.DACS[h] / superficie_);

  const auto noServido = NoServido(h);
  for (std::size_t s = 0; s < kServiciosDemanda; ++s) caso_.resultados.noServido[s] += noServido[s];
  const EficienciaHora recuperacion =
      ventilacion_->RecuperadorHora(h, ajustes_.PruebaEnfriamientoGratuito());
  if (caso_.carga.QOCUPShT[h] > 0.0F) caso_.resultados.horasOcupacion += 1.0F;
  humedad_->Hora(h, noServido[kRefrigeracion] * 1000.0F * kLatenteDefecto, recuperacion.humedad);

  SumarMes(meses.ventilacion, mes, zona.CV[h] * 0.001F);
  const float extraPico = caso_.resultados.forzados.ExtraPotPicoFV;
  if (HayFotovoltaica(edificio_.GetDatosGenerales(), extraPico))
    SumarMes(meses.produccionFotovoltaica, mes,
             PotenciaFotovoltaica(edificio_.GetDatosGenerales(), caso_.clima, extraPico, h));
  CargarDefectoHora(h, noServido, ModoDefectoDe(edificio_.GetDatosGenerales().Equipos_Defecto),
                    caso_);
}

void SimulacionCaso::Terminar() {
  for (TablaMensual& tabla : caso_.meses.demanda) SumarAno(tabla);
  for (TablaMensual& tabla : caso_.meses.defecto) SumarAno(tabla);
  SumarAno(caso_.meses.ventilacion);
  SumarAno(caso_.meses.produccionFotovoltaica);
  caso_.resultados.demandaACS = caso_.meses.demanda[kACS][0];
  CargarIluminacion(edificio_, caso_);
  PlegarCaso(edificio_, caso_);
  caso_.correccionBalance = 1.0F;
  CalificarCaso(edificio_, caso_);
}

}  // namespace novex
