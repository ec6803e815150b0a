#include "demand/SecuenciaDias.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace novex {
namespace {

constexpr std::size_t kMaximoDiasMes = 31;
constexpr int kCandidatas = 800;
// Autocorrelación de la claridad de un día al siguiente, media de los climas de referencia.
constexpr double kAutocorrelacionClaridad = 0.22;
// Apuntamiento de una muestra de un mes de una normal.
constexpr double kCurtosis = 2.6;
// Parte de la desviación de un mes que puede venir de la deriva de la estación.
constexpr double kDerivaMaxima = 0.75;

using SerieMes = std::array<double, kMaximoDiasMes>;

double Cuadrado(double x) {
  return x * x;
}

// Sucesión autorregresiva tipificada: media 0 y desviación 1 en el mes.
SerieMes Autorregresiva(Azar& azar, double fi, std::size_t dias) {
  SerieMes serie{};
  double z = azar.Normal();
  const double fuerza = std::sqrt(1.0 - fi * fi);
  for (std::size_t d = 0; d < dias; ++d) {
    serie[d] = z;
    z = fi * z + fuerza * azar.Normal();
  }
  const double media = Media(serie.data(), dias);
  const double desviacion = Desviacion(serie.data(), dias);
  for (std::size_t d = 0; d < dias; ++d) serie[d] = (serie[d] - media) / desviacion;
  return serie;
}

// Cuánto se aparta de la forma de una normal una muestra tipificada.
double FaltaDeForma(const SerieMes& z, std::size_t dias) {
  double tercero = 0;
  double cuarto = 0;
  for (std::size_t d = 0; d < dias; ++d) {
    tercero += z[d] * z[d] * z[d];
    cuarto += Cuadrado(z[d] * z[d]);
  }
  const double n = static_cast<double>(dias);
  return Cuadrado(tercero / n / 0.25) + Cuadrado((cuarto / n - kCurtosis) / 0.4);
}

double CorrelacionConElDia(const SerieMes& z, std::size_t dias) {
  SerieMes dia{};
  for (std::size_t d = 0; d < dias; ++d) dia[d] = static_cast<double>(d);
  return Correlacion(z.data(), dia.data(), dias);
}

// Desviación de las medias de cinco días seguidos partida por la de los días, en una autorregresiva
// de primer orden. Una casa pesada siente las rachas, no los días sueltos.
double DispersionDeRachas(double fi) {
  return std::sqrt(5.0 + 2.0 * fi * (4.0 + fi * (3.0 + fi * (2.0 + fi)))) / 5.0;
}

double DesviacionDeRachas(const SerieMes& valores, std::size_t dias) {
  SerieMes medias{};
  for (std::size_t d = 0; d + 5 <= dias; ++d) medias[d] = Media(&valores[d], 5);
  return Desviacion(medias.data(), dias - 4);
}

// Semilla de un mes: no depende de la zona. El sumando se eligió entre dieciséis como el que da un
// año más representativo: su demanda es la que menos se aparta de la de los climas de referencia.
std::uint64_t Semilla(std::uint64_t magnitud, std::size_t mes) {
  return magnitud * 1000003U + static_cast<std::uint64_t>(mes) * 7919U + 4017U;
}

// Factor de la sucesión tipificada con el que deriva más sucesión tienen la desviación pedida.
double FactorDeDispersion(const SerieMes& deriva, const SerieMes& z, double desviacion,
                          std::size_t dias) {
  const double sd = Desviacion(deriva.data(), dias);
  const double covarianza = sd > 0 ? Correlacion(deriva.data(), z.data(), dias) * sd : 0.0;
  return -covarianza +
         std::sqrt(std::max(0.0, Cuadrado(covarianza) - sd * sd + Cuadrado(desviacion)));
}

}  // namespace

std::uint64_t Azar::Entero() {
  estado_ += 0x9E3779B97F4A7C15ULL;
  std::uint64_t z = estado_;
  z = (z ^ (z >> 30U)) * 0xBF58476D1CE4E5B9ULL;
  z = (z ^ (z >> 27U)) * 0x94D049BB133111EBULL;
  return z ^ (z >> 31U);
}

double Azar::Uniforme() {
  return static_cast<double>(Entero() >> 11U) * 0x1.0p-53;
}

double Azar::Normal() {
  // Tres enteros dan doce uniformes de 16 bits; 32767.5 es la media de cada uno.
  std::int64_t suma = 0;
  for (int i = 0; i < 3; ++i) {
    std::uint64_t z = Entero();
    for (int k = 0; k < 4; ++k, z >>= 16U) suma += static_cast<std::int64_t>(z & 0xFFFFU);
  }
  return (static_cast<double>(suma) - 12 * 32767.5) / 65536.0;
}

double Media(const double* valores, std::size_t cuantos) {
  double suma = 0;
  for (std::size_t i = 0; i < cuantos; ++i) suma += valores[i];
  return suma / static_cast<double>(cuantos);
}

double Desviacion(const double* valores, std::size_t cuantos) {
  const double media = Media(valores, cuantos);
  double suma = 0;
  for (std::size_t i = 0; i < cuantos; ++i) suma += Cuadrado(valores[i] - media);
  return std::sqrt(suma / static_cast<double>(cuantos - 1));
}

double Autocorrelacion(const double* valores, std::size_t cuantos) {
  const double media = Media(valores, cuantos);
  double cruzada = 0;
  double total = 0;
  for (std::size_t i = 0; i < cuantos; ++i) {
    total += Cuadrado(valores[i] - media);
    if (i + 1 < cuantos) cruzada += (valores[i] - media) * (valores[i + 1] - media);
  }
  return total > 0 ? cruzada / total : 0.0;
}

double Correlacion(const double* a, const double* b, std::size_t cuantos) {
  const double mediaA = Media(a, cuantos);
  const double mediaB = Media(b, cuantos);
  double cruzada = 0;
  double totalA = 0;
  double totalB = 0;
  for (std::size_t i = 0; i < cuantos; ++i) {
    cruzada += (a[i] - mediaA) * (b[i] - mediaB);
    totalA += Cuadrado(a[i] - mediaA);
    totalB += Cuadrado(b[i] - mediaB);
  }
  return totalA > 0 && totalB > 0 ? cruzada / std::sqrt(totalA * totalB) : 0.0;
}

double EntreDias(const SerieDiaria& nodos, std::size_t dia, std::size_t hora) {
  const double fraccion = (static_cast<double>(hora) + 0.5) / 24.0 - 0.5;
  const std::size_t vecino = fraccion < 0 ? (dia + kDiasAno - 1) % kDiasAno : (dia + 1) % kDiasAno;
  const double peso = std::fabs(fraccion);
  return nodos[dia] * (1.0 - peso) + nodos[vecino] * peso;
}

SerieDiaria CurvaEstacional(const std::array<double, kMeses>& medias) {
  constexpr int kIteraciones = 40;
  std::array<double, kMeses> nodos = medias;
  SerieDiaria curva{};
  for (int i = 0; i < kIteraciones; ++i) {
    for (std::size_t m = 0; m < kMeses; ++m) {
      const std::size_t dias = DiasDe(m);
      for (std::size_t d = 0; d < dias; ++d) {
        const double fraccion = (static_cast<double>(d) + 0.5) / static_cast<double>(dias) - 0.5;
        const std::size_t vecino = fraccion < 0 ? (m + kMeses - 1) % kMeses : (m + 1) % kMeses;
        const double peso = std::fabs(fraccion);
        curva[PrimerDia(m) + d] = nodos[m] * (1.0 - peso) + nodos[vecino] * peso;
      }
    }
    for (std::size_t m = 0; m < kMeses; ++m)
      nodos[m] += medias[m] - Media(&curva[PrimerDia(m)], DiasDe(m));
  }
  return curva;
}

SerieDiaria SecuenciaClaridad() {
  SerieDiaria secuencia{};
  for (std::size_t m = 0; m < kMeses; ++m) {
    const std::size_t dias = DiasDe(m);
    Azar azar(Semilla(1, m));
    double mejor = std::numeric_limits<double>::max();
    for (int c = 0; c < kCandidatas; ++c) {
      const SerieMes z = Autorregresiva(azar, kAutocorrelacionClaridad + 0.05, dias);
      double nota = Cuadrado((Autocorrelacion(z.data(), dias) - kAutocorrelacionClaridad) / 0.05);
      if (nota >= mejor) continue;
      nota += FaltaDeForma(z, dias) + Cuadrado(CorrelacionConElDia(z, dias) / 0.1);
      if (nota >= mejor) continue;
      mejor = nota;
      std::copy_n(z.begin(), dias, secuencia.begin() + static_cast<std::ptrdiff_t>(PrimerDia(m)));
    }
  }
  return secuencia;
}

namespace {

struct MesEnCurso {
  std::size_t dias;
  ObjetivoMes objetivo;
  SerieMes deriva;
  SerieMes claridad;
  SerieMes amplitud;
  double ultimaAnterior;
  bool hayAnterior;
};

MesEnCurso PrepararMes(std::size_t m, const ObjetivoMes& objetivo, const SerieDiaria& estacional,
                       const SerieDiaria& hecha) {
  MesEnCurso mes{DiasDe(m), objetivo, {}, {}, {}, 0, m > 0};
  const std::size_t primero = PrimerDia(m);
  for (std::size_t d = 0; d < mes.dias; ++d)
    mes.deriva[d] = estacional[primero + d] - objetivo.media;
  const double sd = Desviacion(mes.deriva.data(), mes.dias);
  if (sd > kDerivaMaxima * objetivo.desviacion)
    for (double& x : mes.deriva) x *= kDerivaMaxima * objetivo.desviacion / sd;
  if (mes.hayAnterior) mes.ultimaAnterior = hecha[primero - 1];
  return mes;
}

// Distancia a los extremos horarios del mes. Tiene tope: hay meses cuyo extremo es de una sola
// hora, que ninguna secuencia de medias diarias puede dar.
double FaltaDeExtremos(const MesEnCurso& mes, const SerieMes& total) {
  constexpr double kTope = 3.0;
  double minima = std::numeric_limits<double>::max();
  double maxima = std::numeric_limits<double>::lowest();
  for (std::size_t d = 0; d < mes.dias; ++d) {
    minima = std::min(minima, total[d] + mes.amplitud[d] * mes.objetivo.noche);
    maxima = std::max(maxima, total[d] + mes.amplitud[d] * mes.objetivo.tarde);
  }
  const double escala = 0.4 * mes.objetivo.desviacion;
  const double frio = (mes.objetivo.media + minima - mes.objetivo.minima) / escala;
  const double calor = (mes.objetivo.media + maxima - mes.objetivo.maxima) / escala;
  return std::min(kTope, Cuadrado(frio)) + std::min(kTope, Cuadrado(calor));
}

// Suma de faltas de una secuencia; deja de sumar cuando ya no puede ser la mejor.
double Nota(const MesEnCurso& mes, const SerieMes& z, const SerieMes& total, double mejor) {
  const double autocorrelacion = Autocorrelacion(total.data(), mes.dias);
  double nota = Cuadrado((autocorrelacion - mes.objetivo.autocorrelacion) / 0.015);
  if (nota >= mejor) return nota;
  const double rachas = DesviacionDeRachas(total, mes.dias) / mes.objetivo.desviacion;
  nota += Cuadrado((rachas - DispersionDeRachas(mes.objetivo.autocorrelacion)) / 0.02) +
          FaltaDeExtremos(mes, total);
  if (nota >= mejor) return nota;
  nota += 0.5 * FaltaDeForma(z, mes.dias) +
          Cuadrado(Correlacion(total.data(), mes.claridad.data(), mes.dias) / 0.1) +
          Cuadrado(CorrelacionConElDia(z, mes.dias) / 0.3);
  if (mes.hayAnterior) {
    const double salto = mes.objetivo.media + total[0] - mes.ultimaAnterior;
    nota += 0.5 * Cuadrado(salto / mes.objetivo.desviacion);
  }
  return nota;
}

}  // namespace

SerieDiaria SecuenciaTemperatura(const std::array<ObjetivoMes, kMeses>& objetivos,
                                 const SerieDiaria& claridad, const SerieDiaria& amplitud) {
  std::array<double, kMeses> medias{};
  for (std::size_t m = 0; m < kMeses; ++m) medias[m] = objetivos[m].media;
  const SerieDiaria estacional = CurvaEstacional(medias);
  SerieDiaria serie{};
  for (std::size_t m = 0; m < kMeses; ++m) {
    MesEnCurso mes = PrepararMes(m, objetivos[m], estacional, serie);
    const auto primero = static_cast<std::ptrdiff_t>(PrimerDia(m));
    std::copy_n(claridad.begin() + primero, mes.dias, mes.claridad.begin());
    std::copy_n(amplitud.begin() + primero, mes.dias, mes.amplitud.begin());
    Azar azar(Semilla(2, m));
    double mejor = std::numeric_limits<double>::max();
    for (int c = 0; c < kCandidatas; ++c) {
      // Con la deriva, la autocorrelación del mes no es la de la sucesión: se tantea alrededor.
      const double fi =
          std::clamp(mes.objetivo.autocorrelacion + 0.5 * azar.Uniforme() - 0.25, -0.6, 0.95);
      const SerieMes z = Autorregresiva(azar, fi, mes.dias);
      const double factor = FactorDeDispersion(mes.deriva, z, mes.objetivo.desviacion, mes.dias);
      SerieMes total{};
      for (std::size_t d = 0; d < mes.dias; ++d) total[d] = mes.deriva[d] + factor * z[d];
      const double nota = Nota(mes, z, total, mejor);
      if (nota >= mejor) continue;
      mejor = nota;
      for (std::size_t d = 0; d < mes.dias; ++d)
        serie[PrimerDia(m) + d] = mes.objetivo.media + total[d];
    }
  }
  return serie;
}

}  // namespace novex
