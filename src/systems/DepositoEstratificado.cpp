#include "systems/DepositoEstratificado.h"

#include <cmath>

namespace novex {
namespace {

constexpr double kPaso = 60.0;           // s
constexpr double kDensidad = 983.0;      // kg/m3
constexpr double kConductividad = 0.66;  // W/m°C
constexpr double kSerpentin = 200.0;     // W/m2°C
constexpr double kPi = 3.1416;
constexpr double kDosPi = 6.2832;
constexpr double kMezcla = 1e-6;  // inversión que ya no se mezcla, K

// Serpentín repartido por los nodos 3, 4 y 5.
struct Serpentin {
  double mcp = 0;  // W/°C
  double e = 0;    // parte del salto que queda tras un tercio
  double entrada = 0;
  explicit Serpentin(const EntradaDeposito& d) : entrada(d.temperatura) {
    if (d.caudalSerpentin <= 0.0 || d.areaSerpentin <= 0.0) return;
    mcp = d.caudalSerpentin * kCpCircuito;
    e = std::exp(-kSerpentin * d.areaSerpentin / (3.0 * mcp));
  }
  // Temperatura del agua que llega al nodo 3, 4 o 5 (tramo 0, 1, 2) y la que sale del último (3).
  double Agua(int tramo, const Nodos& T) const {
    double agua = entrada;
    for (int i = 0; i < tramo; ++i)
      agua = (1.0 - e) * T[static_cast<std::size_t>(2 + i)] + e * agua;
    return agua;
  }
};

// Caudales netos hacia arriba entre cada nodo y el de debajo.
std::array<double, kNodos - 1> CaudalesEntreNodos(const MinutoDeposito& m) {
  std::array<double, kNodos - 1> f{};
  for (std::size_t k = 0; k < f.size(); ++k) {
    f[k] = m.extraccion;
    if (k < m.nodoRetorno) f[k] += m.recirculacion;
    if (k >= m.generador.nodo) f[k] -= m.generador.caudalDirecto;
    if (k >= m.solar.nodo) f[k] -= m.solar.caudalDirecto;
  }
  return f;
}

// La ecuación dT/dt = a T + b de cada nodo; `a` no cambia en el minuto.
class Ecuacion {
 public:
  Ecuacion(const GeometriaDeposito& g, const MinutoDeposito& m)
      : g_(g), m_(m), f_(CaudalesEntreNodos(m)), generador_(m.generador), solar_(m.solar) {
    for (std::size_t k = 0; k < kNodos; ++k) {
      a[k] = Pendiente(k) / g_.masaCp;
      exponencial[k] = std::exp(a[k] * kPaso);
    }
  }

  // Términos independientes con unas temperaturas de los nodos vecinos.
  Nodos Independientes(const Nodos& T) const {
    Nodos b{};
    for (std::size_t k = 0; k < kNodos; ++k) b[k] = Independiente(k, T) / g_.masaCp;
    return b;
  }

  // Temperatura tras el paso, y media del paso, de un nodo que parte de T.
  double Final(std::size_t k, double T, double b) const {
    if (a[k] == 0.0) return T + b * kPaso;
    return exponencial[k] * (T + b / a[k]) - b / a[k];
  }
  double Media(std::size_t k, double T, double b) const {
    if (a[k] == 0.0) return T + 0.5 * b * kPaso;
    return (exponencial[k] - 1.0) * (b / a[k] + T) / (a[k] * kPaso) - b / a[k];
  }

  const Serpentin& Generador() const { return generador_; }
  const Serpentin& Solar() const { return solar_; }

 private:
  double Pendiente(std::size_t k) const {
    const bool extremo = k == 0 || k == kNodos - 1;
    double a0 = -(extremo ? 1.0 : 2.0) * g_.conduccion - g_.UAlateral - (extremo ? g_.UAtapa : 0.0);
    for (const EntradaDeposito* d : {&m_.generador, &m_.solar})
      if (d->nodo == k) a0 -= d->caudalDirecto * kCpCircuito;
    if (k == m_.nodoRetorno) a0 -= m_.recirculacion * kCpCircuito;
    if (k == kNodos - 1) a0 -= m_.extraccion * kCpCircuito;
    if (k >= 2) a0 -= generador_.mcp * (1.0 - generador_.e) + solar_.mcp * (1.0 - solar_.e);
    if (k < kNodos - 1 && f_[k] > 0.0) a0 -= f_[k] * kCpCircuito;
    if (k > 0 && f_[k - 1] < 0.0) a0 += f_[k - 1] * kCpCircuito;
    return a0;
  }

  double Independiente(std::size_t k, const Nodos& T) const {
    const bool extremo = k == 0 || k == kNodos - 1;
    double b = (g_.UAlateral + (extremo ? g_.UAtapa : 0.0)) * m_.ambiente;
    if (k > 0) b += g_.conduccion * T[k - 1];
    if (k < kNodos - 1) b += g_.conduccion * T[k + 1];
    if (k == m_.nodoAuxiliar) b += m_.auxiliar;
    for (const EntradaDeposito* d : {&m_.generador, &m_.solar})
      if (d->nodo == k) b += d->caudalDirecto * kCpCircuito * d->temperatura;
    if (k == m_.nodoRetorno) b += m_.recirculacion * kCpCircuito * m_.retorno;
    if (k == kNodos - 1) b += m_.extraccion * kCpCircuito * m_.entradaAgua;
    if (k >= 2)
      for (const Serpentin* s : {&generador_, &solar_})
        if (s->mcp > 0.0) b += s->mcp * (1.0 - s->e) * s->Agua(static_cast<int>(k) - 2, T);
    if (k < kNodos - 1 && f_[k] > 0.0) b += f_[k] * kCpCircuito * T[k + 1];
    if (k > 0 && f_[k - 1] < 0.0) b -= f_[k - 1] * kCpCircuito * T[k - 1];
    return b;
  }

  const GeometriaDeposito& g_;
  const MinutoDeposito& m_;
  std::array<double, kNodos - 1> f_;
  Serpentin generador_, solar_;

 public:
  Nodos a{}, exponencial{};
};

// Un nodo más caliente que el de encima se mezcla con él.
void Mezclar(Nodos& T) {
  for (bool inversion = true; inversion;) {
    inversion = false;
    for (std::size_t k = kNodos - 1; k > 0; --k) {
      if (!(T[k] > T[k - 1] + kMezcla)) continue;  // también si alguna no es un número
      T[k] = T[k - 1] = 0.5 * (T[k] + T[k - 1]);
      inversion = true;
    }
  }
}

EnergiasDeposito Energias(const GeometriaDeposito& g, const MinutoDeposito& m, const Ecuacion& ec,
                          const Nodos& Tm, const Nodos& Tfinal) {
  EnergiasDeposito e;
  const double cp = kCpCircuito * kPaso;
  e.directaGenerador = m.generador.caudalDirecto * cp * (m.generador.temperatura - Tm[4]);
  e.directaSolar = m.solar.caudalDirecto * cp * (m.solar.temperatura - Tm[4]);
  e.extraccion = m.extraccion * cp * (m.entradaAgua - Tm[0]);
  e.recirculacion = m.recirculacion * cp * (m.retorno - Tm[0]);
  e.salidaGenerador = e.salidaSolar = 0;
  const auto serpentin = [&](const Serpentin& s, double temperatura, double& energia,
                             double& salida) {
    salida = temperatura;
    if (s.mcp <= 0.0) return;
    energia = s.mcp * (temperatura - s.Agua(3, Tm)) * kPaso;
    salida = s.Agua(3, Tfinal);
  };
  serpentin(ec.Generador(), m.generador.temperatura, e.serpentinGenerador, e.salidaGenerador);
  serpentin(ec.Solar(), m.solar.temperatura, e.serpentinSolar, e.salidaSolar);
  double perdidas = 0;
  for (std::size_t k = 0; k < kNodos; ++k)
    perdidas += (g.UAlateral + (k == 0 || k == kNodos - 1 ? g.UAtapa : 0.0)) * (m.ambiente - Tm[k]);
  e.perdidas = perdidas * kPaso;
  e.auxiliar = m.auxiliar * kPaso;
  return e;
}

}  // namespace

GeometriaDeposito::GeometriaDeposito(double volumen, double UA, double LD) {
  if (volumen <= 0.0) return;
  const double esbeltez = LD > 0.0 ? LD : 1.0;
  const double radio = std::cbrt(0.001 * volumen / (kDosPi * esbeltez));
  const double altura = 2.0 * radio * esbeltez;
  const double lateral = kDosPi * radio * altura * 0.2;
  const double tapa = kPi * radio * radio;
  const double U = UA / (2.0 * tapa + 5.0 * lateral);
  masaCp = 0.001 * volumen * kDensidad * 0.2 * kCpCircuito;
  conduccion = kConductividad * tapa / (0.2 * altura);
  UAlateral = U * lateral;
  UAtapa = U * tapa;
}

EnergiasDeposito AvanzarDeposito(const GeometriaDeposito& g, const MinutoDeposito& minuto,
                                 Nodos& T) {
  const Ecuacion ecuacion(g, minuto);
  const Nodos inicio = T;
  Nodos b = ecuacion.Independientes(inicio);
  Nodos prueba{};
  for (std::size_t k = 0; k < kNodos; ++k) prueba[k] = ecuacion.Final(k, inicio[k], b[k]);
  const Nodos b2 = ecuacion.Independientes(prueba);
  Nodos media{};
  for (std::size_t k = 0; k < kNodos; ++k) {
    b[k] = 0.5 * (b[k] + b2[k]);
    T[k] = ecuacion.Final(k, inicio[k], b[k]);
    media[k] = ecuacion.Media(k, inicio[k], b[k]);
  }
  Mezclar(T);
  const EnergiasDeposito energias = Energias(g, minuto, ecuacion, media, T);
  // Las temperaturas finales se corrigen con lo que al balance le falta por cerrar.
  double S = 0;
  for (std::size_t k = 0; k < kNodos; ++k) S += g.masaCp * (T[k] - inicio[k]);
  const double resto = S != 0.0 ? (S - energias.Suma()) / S : 0.0;
  if (S != 0.0 && resto > -0.5 && resto < 0.5)
    for (std::size_t k = 0; k < kNodos; ++k) T[k] -= (T[k] - inicio[k]) * resto;
  return energias;
}

}  // namespace novex
