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
  double mcp = 0;      // W/°C
  double e = 0;        // parte del salto que queda tras un tercio
  double cede = 0;     // W/°C que cada tercio cruza al depósito
  double entrada = 0;  // °C
  explicit Serpentin(const EntradaDeposito& d) : entrada(d.temperatura) {
    if (d.caudalSerpentin <= 0.0 || d.areaSerpentin <= 0.0) return;
    mcp = d.caudalSerpentin * kCpCircuito;
    e = std::exp(-kSerpentin * d.areaSerpentin / (3.0 * mcp));
    cede = mcp * (1.0 - e);
  }
  bool Hay() const { return mcp > 0.0; }
  // Temperatura con que el agua deja un tercio a temperatura T.
  double Deja(double agua, double T) const { return (1.0 - e) * T + e * agua; }
  double Salida(const Nodos& T) const { return Deja(Deja(Deja(entrada, T[2]), T[3]), T[4]); }
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

// La ecuación dT/dt = a T + b de cada nodo. En el minuto, `a` no cambia, y `b` es una constante más
// lo que llega de los nodos vecinos y de los serpentines.
class Ecuacion {
 public:
  Ecuacion(const GeometriaDeposito& g, const MinutoDeposito& m)
      : generador_(m.generador), solar_(m.solar) {
    Conducir(g, m);
    Entradas(m);
    Circular(CaudalesEntreNodos(m));
    const double cede = generador_.cede + solar_.cede;
    for (std::size_t k = 2; k < kNodos; ++k) sale_[k] += cede;
    for (std::size_t k = 0; k < kNodos; ++k) {
      sale_[k] /= g.masaCp;
      fija_[k] /= g.masaCp;
      deArriba_[k] /= g.masaCp;
      deAbajo_[k] /= g.masaCp;
      decae_[k] = std::exp(-sale_[k] * kPaso);
      inversa_[k] = sale_[k] > 0.0 ? 1.0 / sale_[k] : 0.0;
    }
    inversaMasa_ = 1.0 / g.masaCp;
  }

  // Términos independientes con unas temperaturas de los nodos.
  Nodos Independientes(const Nodos& T) const {
    Nodos b = fija_;
    for (std::size_t k = 1; k < kNodos; ++k) {
      b[k] += deArriba_[k] * T[k - 1];
      b[k - 1] += deAbajo_[k - 1] * T[k];
    }
    for (const Serpentin* s : {&generador_, &solar_}) {
      if (!s->Hay()) continue;
      const double cede = s->cede * inversaMasa_;
      double agua = s->entrada;
      for (std::size_t k = 2; k < kNodos; ++k) {
        b[k] += cede * agua;
        agua = s->Deja(agua, T[k]);
      }
    }
    return b;
  }

  // Temperatura tras el paso, y media del paso, de un nodo que parte de T.
  double Final(std::size_t k, double T, double b) const {
    if (inversa_[k] == 0.0) return T + b * kPaso;
    const double equilibrio = b * inversa_[k];
    return decae_[k] * (T - equilibrio) + equilibrio;
  }
  double Media(std::size_t k, double T, double b) const {
    if (inversa_[k] == 0.0) return T + 0.5 * b * kPaso;
    const double equilibrio = b * inversa_[k];
    return (1.0 - decae_[k]) * (T - equilibrio) * inversa_[k] / kPaso + equilibrio;
  }

  const Serpentin& Generador() const { return generador_; }
  const Serpentin& Solar() const { return solar_; }

 private:
  void Conducir(const GeometriaDeposito& g, const MinutoDeposito& m) {
    for (std::size_t k = 0; k < kNodos; ++k) {
      const bool extremo = k == 0 || k == kNodos - 1;
      const double UA = g.UAlateral + (extremo ? g.UAtapa : 0.0);
      sale_[k] = (extremo ? 1.0 : 2.0) * g.conduccion + UA;
      fija_[k] = UA * m.ambiente;
      if (k > 0) deArriba_[k] = g.conduccion;
      if (k < kNodos - 1) deAbajo_[k] = g.conduccion;
    }
    fija_[m.nodoAuxiliar] += m.auxiliar;
  }

  void Entrar(std::size_t nodo, double caudal, double temperatura) {
    sale_[nodo] += caudal * kCpCircuito;
    fija_[nodo] += caudal * kCpCircuito * temperatura;
  }

  void Entradas(const MinutoDeposito& m) {
    Entrar(m.generador.nodo, m.generador.caudalDirecto, m.generador.temperatura);
    Entrar(m.solar.nodo, m.solar.caudalDirecto, m.solar.temperatura);
    Entrar(m.nodoRetorno, m.recirculacion, m.retorno);
    Entrar(kNodos - 1, m.extraccion, m.entradaAgua);
  }

  void Circular(const std::array<double, kNodos - 1>& f) {
    for (std::size_t k = 0; k < f.size(); ++k) {
      const double W = f[k] * kCpCircuito;
      if (W > 0.0) {
        sale_[k] += W;
        deAbajo_[k] += W;
      } else {
        sale_[k + 1] -= W;
        deArriba_[k + 1] -= W;
      }
    }
  }

  Serpentin generador_, solar_;
  Nodos sale_{}, fija_{}, deArriba_{}, deAbajo_{};  // entre la masa del nodo
  Nodos decae_{}, inversa_{};
  double inversaMasa_ = 0;
};

// Un nodo más caliente que el de encima se mezcla con él. El tope solo lo alcanzan temperaturas tan
// grandes que la tolerancia es menor que su redondeo.
void Mezclar(Nodos& T) {
  constexpr int kVueltas = 1000;
  bool inversion = true;
  for (int vuelta = 0; inversion && vuelta < kVueltas; ++vuelta) {
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
    if (!s.Hay()) return;
    energia = s.mcp * (temperatura - s.Salida(Tm)) * kPaso;
    salida = s.Salida(Tfinal);
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
