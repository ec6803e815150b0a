#include "demand/RadiacionSintetica.h"

#include <algorithm>
#include <cmath>

#include "demand/PosicionSolar.h"

namespace novex {
namespace {

constexpr std::size_t kMaximoDiasMes = 31;
constexpr std::size_t kHorasDia = 24;

// Índices de claridad de los días más cubiertos y más despejados.
constexpr double kClaridadMinima = 0.04;
constexpr double kClaridadMaxima = 0.79;
// Directa normal a la que no llega ningún cielo: el cálculo deja fuera las que pasan de 1100 W/m2.
constexpr double kDirectaNormalMaxima = 1050.0;
// Fracción directa = pendiente x (claridad - origen): ajuste sobre los climas de referencia.
constexpr double kPendienteDirecta = 1.55;
constexpr double kOrigenDirecta = 0.20;
// Parte de la desviación de la global diaria que puede venir del alargarse los días en el mes.
constexpr double kDerivaMaxima = 0.6;

using SerieMes = std::array<double, kMaximoDiasMes>;
using HorasMes = std::array<std::array<double, kHorasDia>, kMaximoDiasMes>;

// Lo que un mes necesita de la posición del sol y lo que se va llenando.
struct MesDeSol {
  std::size_t dias = 0;
  HorasMes coseno{};
  SerieMes extraterrestre{};  // kWh/m2 y día
  SerieMes global{};          // kWh/m2 y día
  SerieMes claridad{};
  SerieMes difusa{};   // kWh/m2 y día
  SerieMes directa{};  // kWh/m2 y día
};

MesDeSol PrepararMes(double latitud, std::size_t m) {
  MesDeSol mes;
  mes.dias = DiasDe(m);
  for (std::size_t d = 0; d < mes.dias; ++d) {
    for (std::size_t h = 0; h < kHorasDia; ++h) {
      mes.coseno[d][h] = CalcularPosicionSolar(latitud, static_cast<int>(PrimerDia(m) + d) + 1,
                                               static_cast<int>(h) + 1)
                             .cosenoCenit;
      mes.extraterrestre[d] += kConstanteSolar * mes.coseno[d][h] / 1000.0;
    }
  }
  return mes;
}

// Los días se alargan o acortan dentro del mes; donde eso solo ya daría más desviación que la del
// mes, se toma una parte.
SerieMes ExtraterrestreModerada(const MesDeSol& mes, double global, double desviacion) {
  SerieMes serie = mes.extraterrestre;
  const double media = Media(serie.data(), mes.dias);
  const double propia = Desviacion(serie.data(), mes.dias) * global / media;
  if (propia <= kDerivaMaxima * desviacion) return serie;
  const double parte = kDerivaMaxima * desviacion / propia;
  for (std::size_t d = 0; d < mes.dias; ++d) serie[d] = media + parte * (serie[d] - media);
  return serie;
}

// Curva en S entre 0 y 1, sin exponenciales.
double Sigmoide(double x) {
  return 0.5 * (1.0 + x / std::sqrt(1.0 + x * x));
}

class ClaridadDelMes {
 public:
  ClaridadDelMes(MesDeSol& mes, const double* z, double global, double desviacion)
      : mes_(mes),
        z_(z),
        global_(global),
        desviacion_(desviacion),
        extraterrestre_(ExtraterrestreModerada(mes, global, desviacion)) {}

  // Busca el ensanche de la curva con el que la global diaria tiene la desviación pedida.
  void Resolver() {
    const double media = global_ / Media(extraterrestre_.data(), mes_.dias);
    for (maxima_ = std::max(kClaridadMaxima, media + 0.04); maxima_ < 1.0; maxima_ += 0.05)
      if (DesviacionCon(kEnsancheMaximo) >= desviacion_) break;
    double bajo = 0;
    double alto = kEnsancheMaximo;
    for (int i = 0; i < kBisecciones; ++i) {
      const double medio = 0.5 * (bajo + alto);
      (DesviacionCon(medio) < desviacion_ ? bajo : alto) = medio;
    }
    DesviacionCon(0.5 * (bajo + alto));
    for (std::size_t d = 0; d < mes_.dias; ++d)
      mes_.claridad[d] = mes_.global[d] / mes_.extraterrestre[d];
  }

 private:
  static constexpr double kEnsancheMaximo = 12.0;
  static constexpr int kBisecciones = 34;

  double MediaCon(double centro, double ensanche) {
    for (std::size_t d = 0; d < mes_.dias; ++d) {
      const double claridad =
          kClaridadMinima + (maxima_ - kClaridadMinima) * Sigmoide(centro + ensanche * z_[d]);
      mes_.global[d] = claridad * extraterrestre_[d];
    }
    return Media(mes_.global.data(), mes_.dias);
  }

  double DesviacionCon(double ensanche) {
    double bajo = -60;
    double alto = 60;
    for (int i = 0; i < kBisecciones; ++i) {
      const double medio = 0.5 * (bajo + alto);
      (MediaCon(medio, ensanche) < global_ ? bajo : alto) = medio;
    }
    const double media = MediaCon(0.5 * (bajo + alto), ensanche);
    for (double& g : mes_.global) g *= global_ / media;
    return Desviacion(mes_.global.data(), mes_.dias);
  }

  MesDeSol& mes_;
  const double* z_;
  double global_;      // media diaria, kWh/m2
  double desviacion_;  // kWh/m2
  SerieMes extraterrestre_;
  double maxima_ = kClaridadMaxima;
};

double FraccionDifusa(double claridad) {
  return 1.0 - std::clamp(kPendienteDirecta * (claridad - kOrigenDirecta), 0.01, 0.93);
}

// Parte la global de cada día en difusa y directa con la suma de difusa del mes.
void PartirDias(MesDeSol& mes, double difusaMes) {
  double bajo = 0;
  double alto = 20;
  for (int i = 0; i < 60; ++i) {
    const double factor = 0.5 * (bajo + alto);
    double suma = 0;
    for (std::size_t d = 0; d < mes.dias; ++d) {
      mes.difusa[d] = mes.global[d] * std::min(0.995, factor * FraccionDifusa(mes.claridad[d]));
      suma += mes.difusa[d];
    }
    (suma < difusaMes ? bajo : alto) = factor;
  }
  for (std::size_t d = 0; d < mes.dias; ++d) mes.directa[d] = mes.global[d] - mes.difusa[d];
}

// Cuánto varía la directa de una hora a otra: mucho con nubes, poco con cielo despejado.
double VariacionHoraria(double fraccionDirecta) {
  return 0.12 + 1.4 * std::max(0.0, 0.85 - fraccionDirecta);
}

// Forma de partida de cada hora antes del ajuste: cielo despejado por nubes al azar.
void DarForma(const MesDeSol& mes, Azar& azar, HorasMes& directa, HorasMes& difusa) {
  constexpr double kPersistenciaNubes = 0.5;
  const double fuerza = std::sqrt(1.0 - kPersistenciaNubes * kPersistenciaNubes);
  double nube = azar.Normal();
  for (std::size_t d = 0; d < mes.dias; ++d) {
    const double variacion = VariacionHoraria(mes.directa[d] / mes.global[d]);
    for (std::size_t h = 0; h < kHorasDia; ++h) {
      nube = kPersistenciaNubes * nube + fuerza * azar.Normal();
      const double c = mes.coseno[d][h];
      directa[d][h] = c * c / (c + 0.15) * std::max(0.03, 1.0 + variacion * nube);
      difusa[d][h] = c / (c + 0.25) * std::max(0.3, 1.0 - 0.15 * std::min(1.0, variacion) * nube);
      if (c <= 0) directa[d][h] = difusa[d][h] = 0;
    }
  }
}

struct Ajuste {
  const MesDeSol& mes;
  const SerieMes& dias;       // suma de cada día, kWh/m2
  const CursoDiario& perfil;  // curso medio, W/m2
  double total;               // suma del mes, kWh/m2
  bool limitarDirecta;
};

void AjustarHoras(const Ajuste& a, HorasMes& horas) {
  double sumaPerfil = 0;
  for (const double p : a.perfil) sumaPerfil += p;
  for (std::size_t h = 0; h < kHorasDia; ++h) {
    double suma = 0;
    for (std::size_t d = 0; d < a.mes.dias; ++d) suma += horas[d][h];
    const double pedida = a.perfil[h] / sumaPerfil * a.total * 1000.0;
    if (suma > 0)
      for (std::size_t d = 0; d < a.mes.dias; ++d) horas[d][h] *= pedida / suma;
  }
}

void AjustarDias(const Ajuste& a, HorasMes& horas) {
  for (std::size_t d = 0; d < a.mes.dias; ++d) {
    double suma = 0;
    for (const double x : horas[d]) suma += x;
    if (suma > 0)
      for (double& x : horas[d]) x *= a.dias[d] * 1000.0 / suma;
  }
}

// Recorta lo que pasa de la directa normal máxima; el ajuste siguiente lo lleva a otras horas.
void Recortar(const Ajuste& a, HorasMes& horas) {
  if (!a.limitarDirecta) return;
  for (std::size_t d = 0; d < a.mes.dias; ++d)
    for (std::size_t h = 0; h < kHorasDia; ++h)
      horas[d][h] = std::min(horas[d][h], kDirectaNormalMaxima * a.mes.coseno[d][h]);
}

// La suma del mes manda: lo que aún falte tras el último recorte se reparte por igual.
void CerrarSuma(const Ajuste& a, HorasMes& horas) {
  for (int i = 0; i < 20; ++i) {
    double suma = 0;
    for (std::size_t d = 0; d < a.mes.dias; ++d)
      for (const double x : horas[d]) suma += x;
    if (suma <= 0) return;
    const double factor = a.total * 1000.0 / suma;
    for (auto& dia : horas)
      for (double& x : dia) x *= factor;
    Recortar(a, horas);
  }
}

void AjustarMes(const Ajuste& a, HorasMes& horas) {
  constexpr int kIteraciones = 25;
  for (int i = 0; i < kIteraciones; ++i) {
    AjustarHoras(a, horas);
    Recortar(a, horas);
    AjustarDias(a, horas);
    Recortar(a, horas);
  }
  CerrarSuma(a, horas);
}

}  // namespace

RadiacionAno GenerarRadiacion(const EstadisticasZona& zona, const SerieDiaria& claridad) {
  RadiacionAno ano;
  ano.directa.reserve(static_cast<std::size_t>(kHorasAno));
  ano.difusa.reserve(static_cast<std::size_t>(kHorasAno));
  Azar azar(3);
  for (std::size_t m = 0; m < kMeses; ++m) {
    const EstadisticasMes& estadisticas = zona.meses[m];
    MesDeSol mes = PrepararMes(zona.latitud, m);
    const double globalDiaria =
        (estadisticas.directa + estadisticas.difusa) / static_cast<double>(mes.dias);
    ClaridadDelMes(mes, &claridad[PrimerDia(m)], globalDiaria, estadisticas.desviacionGlobal)
        .Resolver();
    PartirDias(mes, estadisticas.difusa);
    HorasMes directa{};
    HorasMes difusa{};
    DarForma(mes, azar, directa, difusa);
    AjustarMes({mes, mes.directa, estadisticas.directaHora, estadisticas.directa, true}, directa);
    AjustarMes({mes, mes.difusa, estadisticas.difusaHora, estadisticas.difusa, false}, difusa);
    const double media = Media(mes.claridad.data(), mes.dias);
    for (std::size_t d = 0; d < mes.dias; ++d) {
      ano.directa.insert(ano.directa.end(), directa[d].begin(), directa[d].end());
      ano.difusa.insert(ano.difusa.end(), difusa[d].begin(), difusa[d].end());
      ano.claridadRelativa[PrimerDia(m) + d] = mes.claridad[d] / media;
    }
  }
  return ano;
}

}  // namespace novex
