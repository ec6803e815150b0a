#include "systems/PasoGenerador.h"

#include <algorithm>
#include <cmath>

#include "systems/Curvas.h"

namespace novex {
namespace {

// Cómo la potencia que entra al depósito decide la temperatura del agua, con intercambiador
// exterior o con serpentín.
class Enlace {
 public:
  Enlace(const GeneradorPreparado& g, LadoAgua lado, double caudalDeposito, double primario,
         double Ti, const Nodos& T)
      : tope_(static_cast<double>(g.datos->TaltaD) + 5.0),
        porSerpentin_(lado == LadoAgua::InteracumuGenerador),
        mcp_(caudalDeposito * kCpCircuito),
        Ti_(Ti) {
    if (porSerpentin_) {
      e_ = std::exp(-static_cast<double>(g.datos->AintermbD) * 200.0 / 3.0 / mcp_);
      L_ = (1.0 - e_) * (T[4] + e_ * (T[3] + e_ * T[2]));
      ganancia_ = mcp_ * (1.0 - e_ * e_ * e_);
    } else {
      const double n = std::min(caudalDeposito, primario);
      ganancia_ = n * kCpCircuito * static_cast<double>(g.datos->EfiIntercamb) * 0.01;
    }
  }

  // Temperatura del generador que hace ceder la potencia P.
  double Temperatura(double P) const {
    if (ganancia_ <= 0.0) return tope_;
    return porSerpentin_ ? (P / mcp_ + L_) * mcp_ / ganancia_ : P / ganancia_ + Ti_;
  }
  // Calor que se cede con el generador a temperatura Ts.
  double Calor(double Ts) const {
    return porSerpentin_ ? Ts * ganancia_ - L_ * mcp_ : ganancia_ * (Ts - Ti_);
  }
  bool Limita(double Ts) const { return Ts > tope_; }
  double Tope() const { return tope_; }
  // Temperatura del agua que entra al depósito, o a su serpentín.
  double Entrada(double Ts, double calor, bool limitado) const {
    if (porSerpentin_) return Ts;
    return limitado ? calor / mcp_ + Ti_ : Ts - calor / mcp_;
  }

 private:
  double tope_;
  bool porSerpentin_;
  double mcp_, Ti_;
  double e_ = 0, L_ = 0, ganancia_ = 0;
};

PasoGenerador Cerrar(const Enlace& enlace, double Ts, double disponible) {
  PasoGenerador paso;
  paso.entra = true;
  const bool limitado = enlace.Limita(Ts);
  if (limitado) Ts = enlace.Tope();
  paso.calor = limitado ? enlace.Calor(Ts) : disponible;
  paso.temperatura = enlace.Entrada(Ts, paso.calor, limitado);
  return paso;
}

PasoGenerador PasoCaldera(const GeneradorPreparado& g, int generador, const Enlace& enlace) {
  const Instalaciones& i = *g.datos;
  const double P =
      1000.0 * static_cast<double>(generador == 2 ? i.QcalorCaldera2 : i.QcalorCaldera1);
  const float rendimiento = generador == 2 ? i.RendCalor2 : i.RendCalor1;
  if (P <= 0.0 || rendimiento <= 0.0F) return {};
  const double Ts = enlace.Temperatura(P);
  PasoGenerador paso = Cerrar(enlace, Ts, P);
  const float p = static_cast<float>(paso.calor / P);
  const float e = rendimiento * curvas::RendimientoCaldera(
                                    i.curvas, p, static_cast<float>(std::min(Ts, enlace.Tope())));
  if (e <= 0.0F) return {};
  paso.consumo = paso.calor / static_cast<double>(e);
  return paso;
}

PasoGenerador PasoBomba(const GeneradorPreparado& g, const Enlace& enlace, bool porSerpentin,
                        float THE) {
  const Instalaciones& i = *g.datos;
  double P = 1000.0 * static_cast<double>(i.QcalorBC1);
  if (i.QcalorBC1 <= 0.0F) return {};
  if (g.partida) P -= static_cast<double>(g.perdidaLinea) * P;
  double Ts = enlace.Temperatura(P);
  const double Q =
      static_cast<double>(curvas::CapacidadCalor(i.curvas, static_cast<float>(Ts), THE)) * P;
  if (Q <= 0.0) return {};
  if (!porSerpentin) Ts = enlace.Temperatura(Q);
  PasoGenerador paso = Cerrar(enlace, Ts, Q);
  const auto agua = static_cast<float>(std::min(Ts, enlace.Tope()));
  const auto p = static_cast<float>(paso.calor / Q);
  paso.consumo = static_cast<double>(curvas::ConsumoCalor(i.curvas, agua, THE)) * 1000.0 *
                 static_cast<double>(i.WeCalor1) *
                 static_cast<double>(curvas::CargaParcial(i.curvas.cQ, p));
  return paso;
}

}  // namespace

PasoGenerador CalcularPasoGenerador(const GeneradorPreparado& g, LadoAgua lado, int generador,
                                    double caudalDeposito, double primario, double Ti,
                                    const Nodos& T, float THE) {
  if (caudalDeposito <= 0.0 || primario <= 0.0) return {};
  const Enlace enlace(g, lado, caudalDeposito, primario, Ti, T);
  const bool caldera =
      generador == 2 || g.clase == ClaseGenerador::Caldera || g.clase == ClaseGenerador::Calentador;
  if (caldera) return PasoCaldera(g, generador, enlace);
  return PasoBomba(g, enlace, lado == LadoAgua::InteracumuGenerador, THE);
}

}  // namespace novex
