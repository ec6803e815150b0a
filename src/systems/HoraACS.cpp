#include "systems/HoraACS.h"

#include <algorithm>

namespace novex {
namespace {

constexpr double kSegundos = 60.0;
constexpr double kJulioskWh = 3.6e6;
constexpr double kTemperaturaACS = 60.0;
constexpr double kInteriorRetorno = 20.0;  // °C
constexpr double kMargenTermostato = 2.0;  // K
constexpr double kEstancamiento = 95.0;    // °C
constexpr int kPrimeraHoraMarcha = 8600;

enum Bomba : std::size_t { kGen1, kGen2, kDep, kInt, kRet };

double D(float x) {
  return static_cast<double>(x);
}

}  // namespace

// Lo que suma una hora.
struct HoraACS::Sumas {
  double Q = 0, C = 0, R = 0, U = 0;  // kWh
  double perdida = 0;                 // J, negativa
  double retorno = 0;                 // kW por minuto
  std::array<double, 5> bombas{};     // W por minuto
  SumasSolares solar;
  double m60 = 0, caudal = 0, temperatura = kTemperaturaACS;
};

// El agua que se pide en un minuto, kg/s.
struct HoraACS::Extraccion {
  double m60 = 0;       // a 60 °C
  double vivienda = 0;  // la que ve el depósito o el calentador
  double solar = 0;     // la que pasa por el depósito solar
  double temperatura = kTemperaturaACS;
};

HoraACS::HoraACS(const Edificio& edificio, const GeneradorPreparado& generador,
                 EstadoSolarCaso& solar, const calculo& caso, Mensajes& mensajes)
    : edificio_(edificio),
      g_(generador),
      i_(*generador.datos),
      estadoSolar_(solar),
      caso_(caso),
      mensajes_(mensajes),
      arreglo_(ResolverArreglo(generador.tipo, *generador.datos)),
      factores_(FactoresDeVivienda(edificio, *generador.datos)),
      geometria_(D(i_.Volumen), D(i_.UA_deposito), D(i_.LD_deposito)) {
  const DatosGenerales& d = edificio.GetDatosGenerales();
  comparte_ = d.PerfilUso == 2;
  if (comparte_ && d.NVBloqueF > 0.0F) viviendas_ = D(d.NVBloqueF);
  equipos_ = i_.NEquipos;
  const auto bomba = [](const BombaCircuito& b) {
    return D(PrepararBomba(b, 1.0F).Potencia(1.0F));
  };
  bombas_ = {bomba(i_.GEN1), bomba(i_.GEN2), bomba(i_.DEP), bomba(i_.INT), bomba(i_.RET)};
  if (arreglo_.captadores) solar_.emplace(edificio, i_, arreglo_, caso);
  const bool sinVolumen = arreglo_.deposito && i_.Volumen <= 0.0F;
  const bool sinVolumenSolar = arreglo_.depositoSolar && d.Volumen_Dep_ST <= 0.0F;
  nulo_ = sinVolumen || sinVolumenSolar;
  if (sinVolumen)
    mensajes.Avisar("AVISO",
                    "El depósito no puede tener un volumen nulo. Los calculos no se realizan");
  if (sinVolumenSolar)
    mensajes.Avisar(
        "AVISO", "El depósito solar no puede tener un volumen nulo. Los calculos no se realizan");
  if (nulo_) estadoSolar_.volumenNulo = true;
}

bool HoraACS::FuncionaCaldera(int h) const {
  return g_.clase == ClaseGenerador::BombaCalorCaldera && !(i_.EControlTe < caso_.clima.TSE[h]);
}

double HoraACS::AmbienteDeposito(int h) const {
  const int mes = HoraDelMes(h);
  const double interior = edificio_.GetLocalizacion().EsVerano(mes) ? 25.0 : 20.0;
  return 0.5 * (D(caso_.TmediaMes[static_cast<std::size_t>(mes)]) + interior);
}

HoraACS::Extraccion HoraACS::CalcularExtraccion(int h, double Tred) const {
  Extraccion x;
  x.m60 = 0.01 * D(caso_.carga.CCAC[h]) * D(edificio_.GetDatosGenerales().ConsumoAgua_litros_dia) /
          3600.0;
  if (x.m60 == 0.0) return x;
  x.temperatura = D(i_.TimpACS);
  if (arreglo_.deposito)
    x.temperatura = std::max(T_[0], D(i_.TbajaD));
  else if (arreglo_.depositoSolar)
    x.temperatura = std::max(solar_->Arriba(), D(i_.TimpACS));
  const double salto = x.temperatura - Tred;
  double m = salto == 0.0 ? 0.0 : (kTemperaturaACS - Tred) * x.m60 / salto;
  // Un depósito más frío que la red no da agua: su caudal saldría negativo.
  if (arreglo_.deposito || arreglo_.depositoSolar) m = std::max(0.0, m);
  // En una vivienda de bloque, lo común ve el caudal de todas.
  x.solar = m * viviendas_;
  x.vivienda = g_.individual ? m : x.solar;
  return x;
}

void HoraACS::LadoGenerador(int h, int minuto, const Nodos& T, MinutoDeposito& entra,
                            PasoGenerador& paso, Sumas& sumas) {
  const double alta = D(i_.TaltaD);
  const double baja = D(i_.TbajaD);
  if (EsElectricoACS(g_.clase)) {
    const std::size_t nodo = g_.clase == ClaseGenerador::Termo ? 4 : 1;
    if (T[nodo] < baja) apoyoEncendido_ = true;
    if (T[nodo] > alta) apoyoEncendido_ = false;
    entra.nodoAuxiliar = nodo;
    entra.auxiliar = apoyoEncendido_ ? 1000.0 * D(i_.QApoyoEquipo) : 0.0;
    return;
  }
  const bool conPaso =
      g_.tipo == TipoSistema::ACS && (arreglo_.lado == LadoAgua::IntercambDeposito ||
                                      arreglo_.lado == LadoAgua::InteracumuGenerador);
  if (T[1] < baja + (conPaso ? kMargenTermostato : 0.0)) generadorEncendido_ = true;
  if (conPaso ? T[1] >= alta : T[1] > alta) generadorEncendido_ = false;

  const bool caldera = FuncionaCaldera(h);
  const double gen1 = D(i_.GEN1.Caudal) / 3600.0;
  const double dep = D(i_.DEP.Caudal) / 3600.0;
  if (conPaso) {
    const double primario = caldera ? D(i_.GEN2.Caudal) / 3600.0 : gen1;
    const bool serpentin = arreglo_.lado == LadoAgua::InteracumuGenerador;
    const double Ti = minuto > 1 ? T[4] : (h == 1 ? kTemperaturaACS : T[0]);
    if (generadorEncendido_)
      paso = CalcularPasoGenerador(g_, arreglo_.lado, caldera ? 2 : 1, serpentin ? gen1 : dep,
                                   serpentin ? gen1 : primario, Ti, T, caso_.clima.THE[h]);
    if (paso.entra) {
      entra.generador.temperatura = paso.temperatura;
      if (serpentin) {
        entra.generador.caudalSerpentin = gen1;
        entra.generador.areaSerpentin = D(i_.AintermbD);
      } else {
        entra.generador.caudalDirecto = dep;
        const bool esCaldera = caldera || g_.clase == ClaseGenerador::Caldera ||
                               g_.clase == ClaseGenerador::Calentador;
        entra.generador.nodo = esCaldera ? 0 : 2;
      }
    }
    if (generadorEncendido_) {
      sumas.bombas[caldera ? kGen2 : kGen1] += bombas_[caldera ? kGen2 : kGen1];
      if (!serpentin) sumas.bombas[kDep] += bombas_[kDep];
    }
    // Resistencia de una bomba de calor sola.
    if (g_.clase == ClaseGenerador::BombaCalor) {
      if (T[1] < baja) apoyoEncendido_ = true;
      if (T[1] > baja + kMargenTermostato) apoyoEncendido_ = false;
      entra.nodoAuxiliar = 1;
      entra.auxiliar = apoyoEncendido_ ? 1000.0 * D(i_.QApoyoTermo) : 0.0;
    }
    return;
  }
  if (!generadorEncendido_) return;
  sumas.bombas[kGen1] += bombas_[kGen1];
  entra.generador.temperatura = alta + 5.0;
  if (g_.tipo != TipoSistema::ACS && arreglo_.lado == LadoAgua::Deposito) {
    const auto salida =
        Intercambiar(D(i_.INT.Caudal) / 3600.0, alta + 5.0, D(i_.EfiIntercamb) * 0.01, dep, T[4]);
    entra.generador.temperatura = salida.secundario;
    entra.generador.caudalDirecto = dep;
    sumas.bombas[kDep] += bombas_[kDep];
    sumas.bombas[kInt] += bombas_[kInt];
  } else if (g_.tipo != TipoSistema::ACS && arreglo_.lado == LadoAgua::Interacumulador) {
    entra.generador.caudalSerpentin = dep;
    entra.generador.areaSerpentin = D(i_.AintermbD);
    sumas.bombas[kDep] += bombas_[kDep];
  } else {
    entra.generador.caudalDirecto = gen1;
  }
}

void HoraACS::Contabilizar(const EnergiasDeposito& e, const PasoGenerador& paso, double md,
                           const Nodos& inicio, double calorPrimario, Sumas& sumas) {
  const double baja = D(i_.TbajaD);
  if (EsElectricoACS(g_.clase)) {
    sumas.Q += e.auxiliar / kJulioskWh;
    if (inicio[0] + kMargenTermostato < baja && !estadoSolar_.avisadoTermo && !enMarcha_) {
      estadoSolar_.avisadoTermo = true;
      mensajes_.Avisar("AVISO",
                       "En algún momento no se consigue la temperatura mínima del ACS. Aumentar "
                       "potencia resistencia eléctrica.");
    }
    return;
  }
  double entregado = e.directaGenerador + e.serpentinGenerador;
  if (g_.tipo != TipoSistema::ACS && arreglo_.lado == LadoAgua::Deposito) entregado = calorPrimario;
  entregado /= kJulioskWh;
  sumas.Q += entregado;
  if (paso.calor > 0.0) sumas.C += paso.consumo / paso.calor * entregado;
  sumas.R += e.auxiliar / kJulioskWh;
  if (T_[0] < baja) sumas.U += md * kCpCircuito * (baja - T_[0]) * 0.001 / 60.0;
}

void HoraACS::Depositar(int h, int minuto, bool calentamiento, double ambiente, double Tred,
                        const Extraccion& x, Sumas& sumas) {
  MinutoDeposito entra;
  entra.ambiente = ambiente;
  const double md = g_.clase == ClaseGenerador::Interacumulador ? x.solar / factores_.f2
                                                                : x.vivienda * factores_.f1;
  entra.extraccion = md;
  const Nodos inicio = T_;
  if (!calentamiento && i_.Retorno == "Con retorno" &&
      (i_.NHretorno == 0 || (i_.NHretorno == 1 && x.vivienda > 0.0)) && i_.RET.Caudal > 0.0F) {
    const double mr = D(i_.RET.Caudal) / 3600.0;
    const double UA = D(i_.Long_tuberias) * D(i_.Pot_perdida_m_tub);
    entra.recirculacion = mr;
    entra.nodoRetorno = 1;
    entra.retorno = T_[0] - UA * (T_[0] - kInteriorRetorno) / (mr * kCpCircuito);
    sumas.retorno += equipos_ * UA * 0.001 * (T_[0] - kInteriorRetorno);
    sumas.bombas[kRet] += bombas_[kRet];
  }
  entra.entradaAgua =
      arreglo_.depositoSolar && arreglo_.AlimentacionDirecta() ? solar_->Arriba() : Tred;
  if (solar_) entra.solar = solar_->EntradaDeConsumo(inicio[4], factores_.f2);
  PasoGenerador paso;
  LadoGenerador(h, minuto, inicio, entra, paso, sumas);

  // El calor del intercambiador exterior es la media del que cede al empezar y al acabar el minuto.
  const bool intercambiador =
      g_.tipo != TipoSistema::ACS && arreglo_.lado == LadoAgua::Deposito && generadorEncendido_;
  const auto primario = [&](double T5) {
    const double n = std::min(D(i_.INT.Caudal), D(i_.DEP.Caudal)) / 3600.0;
    return n * kCpCircuito * D(i_.EfiIntercamb) * 0.01 * (D(i_.TaltaD) + 5.0 - T5) * kSegundos;
  };
  const EnergiasDeposito e = AvanzarDeposito(geometria_, entra, T_);
  if (solar_) solar_->ApuntarSalida(e.salidaSolar);
  const double calorPrimario = intercambiador ? 0.5 * (primario(inicio[4]) + primario(T_[4])) : 0.0;
  Contabilizar(e, paso, md, inicio, calorPrimario, sumas);
  double porEquipos = equipos_;
  if (comparte_) porEquipos = g_.individual && EsElectricoACS(g_.clase) ? viviendas_ : 1.0;
  sumas.perdida += e.perdidas * porEquipos;
}

void HoraACS::SinDeposito(const Extraccion& x, double Tred, Sumas& sumas) {
  const double impulsion = D(i_.TimpACS);
  double entrada = Tred;
  if (arreglo_.depositoSolar)
    entrada =
        arreglo_.lado == LadoAgua::Intercambiador ? solar_->TrasIntercambiador() : solar_->Arriba();
  const bool pide =
      !arreglo_.depositoSolar ||
      (entrada <= impulsion && (arreglo_.lado != LadoAgua::Intercambiador || x.vivienda > 0.0));
  if (pide)
    sumas.Q += x.vivienda * factores_.f1 * kCpCircuito * (impulsion - entrada) * 0.001 / 60.0;
}

void HoraACS::Minuto(int h, int minuto, bool calentamiento, double ambiente, double Tred,
                     Sumas& sumas) {
  const Extraccion x = CalcularExtraccion(h, Tred);
  if (solar_) {
    solar_->Minuto(minuto, x.solar, Tred, ambiente, T_, sumas.solar);
    if (arreglo_.depositoSolar && solar_->Arriba() > kEstancamiento && !estadoSolar_.avisado &&
        !calentamiento) {
      estadoSolar_.avisado = true;
      mensajes_.Avisar("AVISO",
                       "Demasiados colectores térmicos solares, la instalación llega al "
                       "estancamiento. La simulación de la instalación de ACS puede ser no "
                       "correcta");
    }
  }
  if (arreglo_.deposito)
    Depositar(h, minuto, calentamiento, ambiente, Tred, x, sumas);
  else
    SinDeposito(x, Tred, sumas);
  sumas.m60 = x.m60;
  sumas.caudal = x.vivienda * factores_.f1;
  sumas.temperatura = x.temperatura;
}

ResultadoACS HoraACS::Cerrar(int h, bool calentamiento, const Sumas& sumas) {
  ResultadoACS r;
  if (calentamiento) return r;
  const bool centralCompartida = comparte_ && !g_.individual;
  const double escala = comparte_ ? (centralCompartida ? 1.0 / viviendas_ : 1.0) : equipos_;
  r.calor = static_cast<float>(sumas.Q * escala);
  r.consumo = static_cast<float>(sumas.C * escala);
  r.resistencia = static_cast<float>(sumas.R * escala);
  r.noDado = static_cast<float>(sumas.U * escala);
  const double reparto = centralCompartida ? 1.0 / viviendas_ : 1.0;
  r.perdidaRetorno = static_cast<float>(sumas.retorno / 60.0 * reparto);
  r.perdidaDeposito = static_cast<float>(-sumas.perdida / kJulioskWh * reparto);
  for (std::size_t b = 0; b < sumas.bombas.size(); ++b)
    r.bombaCircuito[b] = static_cast<float>(sumas.bombas[b] / 60.0 * escala);
  r.caudal60 = static_cast<float>(sumas.m60 * 3600.0);
  r.caudal = static_cast<float>(sumas.caudal * 3600.0);
  r.temperatura = static_cast<float>(sumas.temperatura);
  if (!solar_) return r;

  // La instalación solar es una y la contabiliza el primer sistema de la hora.
  r.contabilizaSolar = estadoSolar_.Guardar(h, solar_->Temperaturas());
  if (!r.contabilizaSolar) return r;
  const SumasSolares& s = sumas.solar;
  const bool porDeposito = arreglo_.depositoSolar && g_.clase != ClaseGenerador::Interacumulador;
  const double captada = porDeposito ? s.entrada + s.perdidaTuberia : s.potencia;
  r.captada = static_cast<float>(std::max(0.0, captada) / kJulioskWh / viviendas_);
  r.perdidaSolar = static_cast<float>(-s.perdidaDeposito / kJulioskWh / viviendas_);
  r.perdidaTuberia = static_cast<float>(s.perdidaTuberia / kJulioskWh / viviendas_);
  r.irradiacion = static_cast<float>(s.irradiacion * 0.001);
  r.bombaCaptadores = static_cast<float>(s.bombaCaptadores / 60.0 / viviendas_);
  r.bombaDepositoSolar = static_cast<float>(s.bombaDeposito / 60.0 / viviendas_);
  r.bombaRecirculacion = static_cast<float>(s.bombaRecirculacion / 60.0 / viviendas_);
  return r;
}

ResultadoACS HoraACS::Simular(int h, bool calentamiento) {
  const auto mes = static_cast<std::size_t>(HoraDelMes(h));
  const double Tred = D(edificio_.GetDatosClimaticosSitio().aguaRed[mes]);
  const double ambiente = AmbienteDeposito(h);
  Sumas sumas;
  for (int minuto = 1; minuto <= 60; ++minuto)
    Minuto(h, minuto, calentamiento, ambiente, Tred, sumas);
  return Cerrar(h, calentamiento, sumas);
}

void HoraACS::PonerEnMarcha() {
  enMarcha_ = true;
  T_.fill(D(i_.TimpACS));
  Nodos S{25, 25, 25, 25, 25};
  for (int h = kPrimeraHoraMarcha; h <= kHorasAno; ++h) {
    if (solar_) solar_->EmpezarHora(S, h);
    Simular(h, true);
    if (solar_) S = solar_->Temperaturas();
  }
  enMarcha_ = false;
  if (solar_ && !estadoSolar_.calentado) {
    estadoSolar_.actual = S;
    estadoSolar_.calentado = true;
  }
}

ResultadoACS HoraACS::Hora(int h) {
  if (nulo_) return {};
  if (repetido_ != nullptr) {
    const HoraGuardadaACS& hora = repetido_->at(static_cast<std::size_t>(h - 1));
    T_ = hora.deposito;
    estadoSolar_.actual = hora.depositoSolar;
    return hora.acs;
  }
  if (h == 1 && (arreglo_.deposito || arreglo_.depositoSolar)) PonerEnMarcha();
  if (solar_) solar_->EmpezarHora(estadoSolar_.Inicio(h), h);
  const ResultadoACS r = Simular(h, false);
  if (grabado_ != nullptr) grabado_->push_back({r, T_, estadoSolar_.actual});
  return r;
}

}  // namespace novex
