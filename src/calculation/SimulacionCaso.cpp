#include "calculation/SimulacionCaso.h"

#include <algorithm>

#include "base/Psicrometria.h"
#include "demand/Clima.h"
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

SimulacionCaso::SimulacionCaso(Edificio& edificio, const AjustesUso& ajustes, calculo& caso,
                               Mensajes& mensajes)
    : edificio_(edificio),
      ajustes_(ajustes),
      caso_(caso),
      aire_(kHorasAno + 1),
      superficie_(edificio.GetRecinto(0).Suelo_habitable_m2) {
  caso_.VaciarResultados();
  PrepararZona();
  despacho_ = std::make_unique<Despacho>(edificio_, ajustes_, caso_, mensajes);
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
  balance_->Demanda(h, mes, aire);
  cargaPrevia_ = zona.cargaRefrigeracion[h] - zona.cargaCalefaccion[h];

  // El caudal de una unidad con variador sigue a la carga que acaba de salir.
  if (ajustes_.aire == SistemaAire::UTA && ajustes_.control != ControlVentilador::Compuertas &&
      cargaPrevia_ != 0.0F) {
    aire = ventilacion_->Hora(h, mes, false, cargaPrevia_);
    balance_->Demanda(h, mes, aire);
  }
  if (ajustes_.PruebaEnfriamientoGratuito()) {
    if (ConvieneEnfriamiento(h)) {
      aire = ventilacion_->Hora(h, mes, true, cargaPrevia_);
      balance_->Demanda(h, mes, aire);
    }
    if (ajustes_.enfriamiento == PruebaEnfriamiento::Entalpica)
      humedad_->Hora(h, 0.0F, aire.eficienciaHumedad);
  }

  zona.DCAL[h] = zona.cargaCalefaccion[h] * 0.001F;
  zona.DREF[h] = std::max(0.0F, zona.cargaRefrigeracion[h] * 0.001F);
  zona.cargaCalefaccion[h] *= 0.001F;
  // El calor del ventilador puede llevar la zona a la consigna sin que quede carga que quitar.
  zona.cargaRefrigeracion[h] = zona.DREF[h];
  zona.DVENT[h] *= 0.001F;
}

void SimulacionCaso::AnotarDemandaACS(int h, int mes) {
  const float Tred = edificio_.GetDatosClimaticosSitio().aguaRed[static_cast<std::size_t>(mes)];
  const float litros =
      0.01F * caso_.carga.CCAC[h] * edificio_.GetDatosGenerales().ConsumoAgua_litros_dia;
  caso_.zona.DACS[h] = litros * (kTemperaturaACS - Tred) * kCpAgua / 3600.0F;
}

HoraSistemas SimulacionCaso::HoraDeSistemas(int h, int mes) const {
  const SeriesZona& zona = caso_.zona;
  const auto asnm = static_cast<float>(edificio_.GetLocalizacion().asnm);
  HoraSistemas hora;
  hora.h = h;
  hora.mes = mes;
  hora.THE = caso_.clima.THE[h];
  hora.TSE = caso_.clima.TSE[h];
  hora.presion = PresionHoraria(asnm);
  if (zona.cargaCalefaccion[h] < 0.0F)
    hora.consigna = caso_.carga.TCR[h];
  else if (zona.cargaRefrigeracion[h] > 0.0F)
    hora.consigna = caso_.carga.TRR[h];
  if (h == 1) return hora;
  hora.Tanterior = zona.TSL[h - 1];
  hora.Wanterior = zona.WL[h - 1];
  // Solo la refrigeración lee el bulbo húmedo interior.
  const bool hayFrio = zona.cargaRefrigeracion[h] > 0.0F || zona.DVENT[h] < 0.0F;
  if (hayFrio && despacho_->HaySistemas())
    hora.humedoInterior =
        psicrometria::BulboHumedo(hora.Tanterior, hora.Wanterior, PresionAltura(asnm));
  return hora;
}

void SimulacionCaso::FlotarZona(int h, int mes, const CargasHora& sinCubrir) {
  const float falta = sinCubrir[kCalefaccion] != 0.0F ? -sinCubrir[kCalefaccion] * 1000.0F
                                                      : sinCubrir[kRefrigeracion] * 1000.0F;
  if (falta == 0.0F) return;
  AireHora& aire = aire_[static_cast<std::size_t>(h)];
  balance_->Flotar(h, mes, aire, falta);
  if (ajustes_.PruebaEnfriamientoGratuito() && ConvieneEnfriamiento(h)) {
    aire = ventilacion_->Hora(h, mes, true, cargaPrevia_);
    balance_->Demanda(h, mes, aire);
    caso_.zona.cargaCalefaccion[h] *= 0.001F;
    caso_.zona.cargaRefrigeracion[h] *= 0.001F;
    caso_.zona.DVENT[h] *= 0.001F;
  }
  AnotarDesviacion(h, mes);
}

void SimulacionCaso::AnotarDesviacion(int h, int mes) {
  SeriesZona& zona = caso_.zona;
  const float T = zona.TSL[h];
  const float tc = caso_.carga.TCR[h];
  const float tr = caso_.carga.TRR[h];
  if (!(caso_.carga.QOCUPShT[h] > 0.0F)) return;
  if (tc > 0.0F && T < tc && ajustes_.Calienta(mes))
    zona.DIFT[h] = T - tc;
  else if (tr > 0.0F && T > tr && ajustes_.Refrigera(mes))
    zona.DIFT[h] = T - tr;
  if (zona.DIFT[h] < -1.0F) caso_.resultados.horasFueraCalefaccion += 1.0F;
  if (zona.DIFT[h] > 1.0F) caso_.resultados.horasFueraRefrigeracion += 1.0F;
}

void SimulacionCaso::SegundaPasada(int h, int mes) {
  SeriesZona& zona = caso_.zona;
  TablasMensuales& meses = caso_.meses;
  const DatosGenerales& generales = edificio_.GetDatosGenerales();
  AnotarDemandaACS(h, mes);
  SumarMes(meses.demanda[kCalefaccion], mes, zona.DCAL[h] / superficie_);
  SumarMes(meses.demanda[kRefrigeracion], mes, zona.DREF[h] / superficie_);
  SumarMes(meses.demanda[kACS], mes, zona.DACS[h] / superficie_);

  const ResultadoDespacho reparto = despacho_->Hora(HoraDeSistemas(h, mes));
  defectoACS_ += reparto.defecto[kACS];
  const EficienciaHora recuperacion =
      ventilacion_->RecuperadorHora(h, ajustes_.PruebaEnfriamientoGratuito());
  if (ajustes_.equiposReales) {
    aire_[static_cast<std::size_t>(h)].eficiencia = recuperacion.sensible;
    FlotarZona(h, mes, reparto.sinCubrir);
  }
  if (caso_.carga.QOCUPShT[h] > 0.0F) caso_.resultados.horasOcupacion += 1.0F;
  humedad_->Hora(h,
                 reparto.frioLatente + reparto.defecto[kRefrigeracion] * 1000.0F * kLatenteDefecto,
                 recuperacion.humedad);

  SumarMes(meses.ventilacion, mes, zona.CV[h] * 0.001F);
  const float extraPico = caso_.resultados.forzados.ExtraPotPicoFV;
  if (HayFotovoltaica(generales, extraPico)) {
    const float produccion = PotenciaFotovoltaica(generales, caso_.clima, extraPico, h);
    caso_.sistemas.produccionFotovoltaica[h] = produccion;
    SumarMes(meses.produccionFotovoltaica, mes, produccion);
  }
  CargarDefectoHora(h, reparto.defecto, ModoDefectoDe(generales.Equipos_Defecto), caso_);
}

void SimulacionCaso::CorregirBalanceSolar() {
  constexpr float kMenor = 0.9F;
  constexpr float kMayor = 1.1F;
  TablasMensuales& m = caso_.meses;
  float generado = -defectoACS_;
  for (const SumasBloque& s : despacho_->Sumas()) generado += s.dado[0][kACS] + s.dado[1][kACS];
  const float necesidad = m.demanda[kACS][0] * superficie_ + m.perdidaDeposito[0] +
                          m.perdidaRetorno[0] + m.perdidaTuberiaCaptador[0] +
                          m.perdidaDepositoSolar[0];
  const float captada = m.solarCaptada[0];
  float r = captada > 0.0F ? (necesidad - generado) / captada : 1.0F;
  if (r > kMayor || r < kMenor) r = 1.0F;
  for (float& mes : m.solarCaptada) mes *= r;
  caso_.correccionBalance = r;
}

void SimulacionCaso::Terminar() {
  TablasMensuales& m = caso_.meses;
  for (auto* grupo : {&m.demanda, &m.defecto, &m.ambiente, &m.bombas, &m.ventiladores, &m.servida})
    for (TablaMensual& tabla : *grupo) SumarAno(tabla);
  for (auto& vector : m.consumo)
    for (TablaMensual& tabla : vector) SumarAno(tabla);
  for (TablaMensual* tabla : {&m.ventilacion, &m.produccionFotovoltaica, &m.calorBiomasa,
                              &m.solarCaptada, &m.perdidaTuberiaCaptador, &m.perdidaDepositoSolar,
                              &m.perdidaDeposito, &m.perdidaRetorno, &m.irradiacionCaptadores})
    SumarAno(*tabla);
  ResultadosCaso& res = caso_.resultados;
  res.depositoNulo = despacho_->VolumenNulo();
  res.demandaCalefaccion = -m.demanda[kCalefaccion][0];
  res.demandaRefrigeracion = m.demanda[kRefrigeracion][0];
  res.demandaACS = m.demanda[kACS][0];
  CargarIluminacion(edificio_, caso_);
  PlegarCaso(edificio_, caso_);
  CorregirBalanceSolar();
  CalificarCaso(edificio_, caso_);
}

}  // namespace novex
