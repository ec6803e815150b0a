#include "systems/CircuitoSolar.h"

#include "demand/Solar.h"

namespace novex {
namespace {

constexpr double kSegundos = 60.0;
constexpr std::size_t kNodoEntrada = 2;  // el tercero

// Bomba solar: rendimiento 0,55 y velocidad fija, W.
double PotenciaBombaSolar(float caudal, float altura) {
  BombaCircuito b;
  b.Caudal = caudal;
  b.P = altura;
  b.Rend = 0.55F;
  return static_cast<double>(PrepararBomba(b, 1.0F).Potencia(1.0F));
}

}  // namespace

bool EstadoSolarCaso::Guardar(int h, const Nodos& S) {
  if (hora >= h) return false;
  anterior = actual;
  actual = S;
  hora = h;
  return true;
}

CircuitoSolar::CircuitoSolar(const Edificio& edificio, const Instalaciones& bloque,
                             const ArregloACS& arreglo, const calculo& caso)
    : arreglo_(arreglo),
      captadores_(edificio.GetDatosGenerales()),
      geometria_(static_cast<double>(edificio.GetDatosGenerales().Volumen_Dep_ST),
                 static_cast<double>(edificio.GetDatosGenerales().UA_Dep_ST),
                 static_cast<double>(edificio.GetDatosGenerales().LD_Dep_ST)),
      clima_(caso.clima) {
  const DatosGenerales& g = edificio.GetDatosGenerales();
  inclinacion_ = g.Incli_colec_term;
  azimut_ = g.Azimut_colec_term;
  caudalDeposito_ = static_cast<double>(g.Caudal_Dep_ST) / 3600.0;
  caudalRecirculacion_ = static_cast<double>(g.Caudal_Rec_ST) / 3600.0;
  efectividad_ = static_cast<double>(g.Efi_Inter_ST) * 0.01;
  efectividadConsumo_ = static_cast<double>(bloque.EfiIntercamb) * 0.01;
  areaSerpentin_ = static_cast<double>(
      arreglo.alimentacion == AlimentacionACS::RecirculadoInteracumuladorS ? bloque.AintermbD
                                                                           : g.Area_Serp_ST);
  areaSolarConsumo_ = static_cast<double>(bloque.AintermbD2);
  bombaCaptadores_ = PotenciaBombaSolar(g.Caudal_Col_ST, g.PerdP_Col_ST);
  bombaDeposito_ = PotenciaBombaSolar(g.Caudal_Dep_ST, g.PerdP_Dep_ST);
  bombaRecirculacion_ = PotenciaBombaSolar(g.Caudal_Rec_ST, g.PerdP_Rec_ST);
  viviendas_ = g.PerfilUso == 2 && g.NVBloqueF > 0.0F ? static_cast<double>(g.NVBloqueF) : 1.0;
}

void CircuitoSolar::EmpezarHora(const Nodos& S, int h) {
  S_ = S;
  Ta_ = static_cast<double>(clima_.TSE[h]);
  G_ = static_cast<double>(IrradianciaTotal(inclinacion_, azimut_, clima_.AZIMUTS[h],
                                            clima_.CENITS[h], clima_.IDIRECTA[h],
                                            clima_.IDIFUSA[h]));
}

double CircuitoSolar::TemperaturaRetorno(int minuto, const Nodos& T) const {
  if (!arreglo_.depositoSolar) return minuto == 1 ? T[4] : salidaConsumo_;
  if (arreglo_.CargaPorIntercambiador() || minuto == 1) return S_[4];
  return salidaSolar_;
}

void CircuitoSolar::Captar(int minuto, const Nodos& T, SumasSolares& sumas) {
  constexpr int kVueltas = 10;
  hayCaudal_ = false;
  const double retorno = TemperaturaRetorno(minuto, T);
  entradaSolar_ = retorno;
  if (G_ <= 0.0 || captadores_.area <= 0.0 || captadores_.caudal <= 0.0) return;
  sumas.irradiacion += captadores_.area * G_ / 60.0 / viviendas_;
  MinutoCaptadores m = RecorrerCaptadores(captadores_, retorno, G_, Ta_);
  entradaSolar_ = m.temperatura;
  if (arreglo_.depositoSolar && arreglo_.CargaPorIntercambiador()) {
    for (int vuelta = 1;; ++vuelta) {
      const auto fuera =
          Intercambiar(captadores_.caudal, m.temperatura, efectividad_, caudalDeposito_, retorno);
      m = RecorrerCaptadores(captadores_, fuera.primario, G_, Ta_);
      entradaSolar_ =
          Intercambiar(captadores_.caudal, m.temperatura, efectividad_, caudalDeposito_, retorno)
              .secundario;
      const double cedido = caudalDeposito_ * kCpCircuito * (entradaSolar_ - retorno);
      if (vuelta > kVueltas || m.neto == 0.0 || m.potencia == 0.0) break;
      const double diferencia = 100.0 * (cedido - m.neto) / m.neto;
      if (diferencia > -1.0 && diferencia < 1.0) break;
    }
    if (m.neto > 0.0) sumas.bombaDeposito += bombaDeposito_;
  }
  if (m.neto <= 0.0) return;
  hayCaudal_ = true;
  sumas.bombaCaptadores += bombaCaptadores_;
  sumas.perdidaTuberia += m.perdida * kSegundos;
  sumas.potencia += m.potencia * kSegundos;
}

void CircuitoSolar::AvanzarSolar(int minuto, double extraccion, double Tred, double ambiente,
                                 const Nodos& T, SumasSolares& sumas) {
  MinutoDeposito entra;
  entra.ambiente = ambiente;
  entra.solar.temperatura = entradaSolar_;
  entra.solar.nodo = kNodoEntrada;
  const bool porIntercambiador = arreglo_.CargaPorIntercambiador();
  if (hayCaudal_ && porIntercambiador) entra.solar.caudalDirecto = caudalDeposito_;
  if (hayCaudal_ && !porIntercambiador) {
    entra.solar.caudalSerpentin = captadores_.caudal;
    entra.solar.areaSerpentin = areaSerpentin_;
  }
  Tx_ = Tred;
  if (arreglo_.AlimentacionDirecta()) {
    entra.extraccion = extraccion;
    entra.entradaAgua = Tred;
  } else if (!arreglo_.deposito) {
    // Sin depósito de consumo, el solar calienta el agua del grifo en un intercambiador.
    if (extraccion > 0.0) {
      const auto salida =
          Intercambiar(extraccion, Tred, efectividadConsumo_, caudalRecirculacion_, S_[0]);
      Tx_ = salida.primario;
      entra.extraccion = caudalRecirculacion_;
      entra.entradaAgua = salida.secundario;
      sumas.bombaRecirculacion += bombaRecirculacion_;
    }
  } else if (T[4] < S_[0]) {
    entra.extraccion = caudalRecirculacion_;
    entra.entradaAgua = arreglo_.RecirculadoPorSerpentin() && minuto > 1 ? salidaConsumo_ : T[4];
    sumas.bombaRecirculacion += bombaRecirculacion_;
  }
  const EnergiasDeposito e = AvanzarDeposito(geometria_, entra, S_);
  salidaSolar_ = e.salidaSolar;
  sumas.entrada += e.directaSolar + e.serpentinSolar;
  sumas.perdidaDeposito += e.perdidas;
}

void CircuitoSolar::Minuto(int minuto, double extraccion, double Tred, double ambiente,
                           const Nodos& T, SumasSolares& sumas) {
  Captar(minuto, T, sumas);
  if (arreglo_.depositoSolar) AvanzarSolar(minuto, extraccion, Tred, ambiente, T, sumas);
}

EntradaDeposito CircuitoSolar::EntradaDeConsumo(double T5, double f2) const {
  EntradaDeposito e;
  e.nodo = kNodoEntrada;
  if (arreglo_.alimentacion == AlimentacionACS::RecirculadoSolar) {
    e.temperatura = entradaSolar_;
    e.caudalSerpentin = hayCaudal_ ? captadores_.caudal / f2 : 0.0;
    e.areaSerpentin = areaSolarConsumo_;
    return e;
  }
  const bool recircula = arreglo_.deposito && arreglo_.depositoSolar && T5 < S_[0];
  e.temperatura = S_[0];
  if (arreglo_.RecirculadoDirecto() && recircula) e.caudalDirecto = caudalRecirculacion_ / f2;
  if (arreglo_.RecirculadoPorSerpentin()) {
    e.caudalSerpentin = recircula ? caudalRecirculacion_ / f2 : 0.0;
    e.areaSerpentin = areaSolarConsumo_;
  }
  return e;
}

}  // namespace novex
