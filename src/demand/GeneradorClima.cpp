#include "demand/GeneradorClima.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <stdexcept>

#include "base/NumeroTexto.h"
#include "demand/PosicionSolar.h"
#include "demand/RadiacionSintetica.h"

namespace novex {
namespace {

constexpr std::size_t kHorasDia = 24;
constexpr double kPresion = 101325.0;
// Masa molar del agua partida por la del aire seco.
constexpr double kRazonMasas = 0.622;

// Respuestas medias de los climas de referencia a la claridad del día.
constexpr double kAmplitudPorClaridad = 0.82;  // del recorrido diario de temperatura, en fracción
constexpr double kDesviacionHumedad = 5.5;     // de la humedad relativa media diaria, puntos
constexpr double kHumedadConClaridad = -0.75;  // correlación de las dos
constexpr double kDesviacionCielo = 2.0;       // de la depresión media diaria, K
constexpr double kCieloConClaridad = 0.87;     // correlación de las dos
// Con menos variación diaria de claridad que esta, lo que depende de ella varía en proporción.
constexpr double kVariacionClaridadPlena = 0.20;

struct AnoEnCurso {
  const EstadisticasZona& zona;
  SerieDiaria claridad;  // normales tipificadas
  RadiacionAno radiacion;
  std::vector<double> seca;
  std::vector<double> cielo;
  std::vector<double> absoluta;
  std::vector<double> relativa;
};

std::size_t HoraAno(std::size_t dia, std::size_t hora) {
  return dia * kHorasDia + hora;
}

std::size_t MesDelDia(std::size_t dia) {
  return static_cast<std::size_t>(HoraDelMes(static_cast<int>(dia * kHorasDia) + 1)) - 1;
}

// Amplitud de la onda diaria: la del día hasta la tarde; de noche pasa a la del día siguiente.
double AmplitudEn(const SerieDiaria& amplitud, std::size_t dia, std::size_t hora) {
  constexpr double kFinDeTarde = 17.0;
  const double parte = std::clamp((static_cast<double>(hora) + 0.5 - kFinDeTarde) /
                                      (static_cast<double>(kHorasDia) - kFinDeTarde),
                                  0.0, 1.0);
  return amplitud[dia] * (1.0 - parte) + amplitud[(dia + 1) % kDiasAno] * parte;
}

// Media 1 en cada mes y nunca por debajo de `minimo` (aproximadamente).
void NormalizarPorMes(SerieDiaria& serie, double minimo) {
  for (double& x : serie) x = std::max(x, minimo);
  for (std::size_t m = 0; m < kMeses; ++m) {
    const double media = Media(&serie[PrimerDia(m)], DiasDe(m));
    for (std::size_t d = 0; d < DiasDe(m); ++d) serie[PrimerDia(m) + d] /= media;
  }
}

// La onda media de cada hora del mes queda en la del perfil: unir días y cambiar amplitudes la
// mueve unas décimas.
void CorregirOnda(AnoEnCurso& ano, const std::array<CursoDiario, kMeses>& ondas) {
  for (std::size_t m = 0; m < kMeses; ++m) {
    const double n = static_cast<double>(DiasDe(m));
    CursoDiario media{};
    for (std::size_t d = 0; d < DiasDe(m); ++d)
      for (std::size_t h = 0; h < kHorasDia; ++h)
        media[h] += ano.seca[HoraAno(PrimerDia(m) + d, h)] / n;
    const double mediaMes = Media(media.data(), kHorasDia);
    for (std::size_t d = 0; d < DiasDe(m); ++d)
      for (std::size_t h = 0; h < kHorasDia; ++h)
        ano.seca[HoraAno(PrimerDia(m) + d, h)] += ondas[m][h] - (media[h] - mediaMes);
  }
}

void GenerarTemperatura(AnoEnCurso& ano) {
  std::array<ObjetivoMes, kMeses> objetivos;
  std::array<double, kMeses> incrementos{};
  std::array<CursoDiario, kMeses> ondas{};
  for (std::size_t m = 0; m < kMeses; ++m) {
    const EstadisticasMes& mes = ano.zona.meses[m];
    incrementos[m] = mes.incremento;
    const double media = Media(mes.temperatura.data(), kHorasDia);
    for (std::size_t h = 0; h < kHorasDia; ++h) ondas[m][h] = mes.temperatura[h] - media;
    const auto [noche, tarde] = std::minmax_element(ondas[m].begin(), ondas[m].end());
    objetivos[m] = {mes.temperaturaMedia,
                    mes.desviacionDiaria,
                    mes.autocorrelacion,
                    mes.temperaturaMinima,
                    mes.temperaturaMaxima,
                    *noche,
                    *tarde};
  }
  SerieDiaria amplitud{};
  for (std::size_t d = 0; d < kDiasAno; ++d)
    amplitud[d] = 1.0 + kAmplitudPorClaridad * (ano.radiacion.claridadRelativa[d] - 1.0);
  NormalizarPorMes(amplitud, 0.15);
  SerieDiaria medias = SecuenciaTemperatura(objetivos, ano.claridad, amplitud);
  const SerieDiaria tendencia = CurvaEstacional(incrementos);
  for (std::size_t d = 0; d < kDiasAno; ++d) medias[d] += tendencia[d];

  // Unir los días con rectas acerca sus medias y les quita dispersión: los nodos se mueven hasta
  // que la media de cada día es la de la secuencia.
  constexpr int kIteraciones = 14;
  SerieDiaria nodos = medias;
  for (int i = 0; i < kIteraciones; ++i) {
    const SerieDiaria unidos = nodos;
    for (std::size_t d = 0; d < kDiasAno; ++d) {
      const CursoDiario& onda = ondas[MesDelDia(d)];
      for (std::size_t h = 0; h < kHorasDia; ++h)
        ano.seca[HoraAno(d, h)] = EntreDias(unidos, d, h) + AmplitudEn(amplitud, d, h) * onda[h];
      nodos[d] += medias[d] - Media(&ano.seca[HoraAno(d, 0)], kHorasDia);
    }
  }
  CorregirOnda(ano, ondas);
}

// Cuánto pesa la claridad en lo que depende de ella: poco en los meses en que apenas varía.
double PesoClaridad(const EstadisticasMes& mes, std::size_t dias) {
  const double diaria = (mes.directa + mes.difusa) / static_cast<double>(dias);
  return std::min(1.0, mes.desviacionGlobal / diaria / kVariacionClaridadPlena);
}

// Normales tipificadas por día con la correlación dada con la claridad.
SerieDiaria SecuenciaConClaridad(const AnoEnCurso& ano, double correlacion, std::uint64_t semilla) {
  Azar azar(semilla);
  SerieDiaria serie{};
  const double resto = std::sqrt(1.0 - correlacion * correlacion);
  for (std::size_t m = 0; m < kMeses; ++m) {
    const double peso = PesoClaridad(ano.zona.meses[m], DiasDe(m));
    for (std::size_t d = PrimerDia(m); d < PrimerDia(m) + DiasDe(m); ++d)
      serie[d] = correlacion * peso * ano.claridad[d] + resto * azar.Normal();
    const double media = Media(&serie[PrimerDia(m)], DiasDe(m));
    for (std::size_t d = PrimerDia(m); d < PrimerDia(m) + DiasDe(m); ++d) serie[d] -= media;
  }
  return serie;
}

void GenerarCielo(AnoEnCurso& ano) {
  const SerieDiaria z = SecuenciaConClaridad(ano, kCieloConClaridad, 41);
  SerieDiaria factor{};
  for (std::size_t d = 0; d < kDiasAno; ++d) {
    const CursoDiario& depresion = ano.zona.meses[MesDelDia(d)].depresionCielo;
    factor[d] = 1.0 + kDesviacionCielo * z[d] / Media(depresion.data(), kHorasDia);
  }
  NormalizarPorMes(factor, 0.35);
  for (std::size_t d = 0; d < kDiasAno; ++d) {
    const CursoDiario& depresion = ano.zona.meses[MesDelDia(d)].depresionCielo;
    for (std::size_t h = 0; h < kHorasDia; ++h)
      ano.cielo[HoraAno(d, h)] = ano.seca[HoraAno(d, h)] - depresion[h] * EntreDias(factor, d, h);
  }
}

// Presión de saturación de Magnus, Pa.
double PresionDeSaturacion(double t) {
  return 611.2 * std::exp(17.62 * t / (243.12 + t));
}

double HumedadAbsoluta(double relativa, double saturacion) {
  const double pv = relativa * 0.01 * saturacion;
  return kRazonMasas * pv / (kPresion - pv);
}

double HumedadRelativa(double absoluta, double saturacion) {
  return 100.0 * absoluta * kPresion / (kRazonMasas + absoluta) / saturacion;
}

// Humedad relativa media de cada día, con la media del mes.
SerieDiaria ObjetivosHumedad(const AnoEnCurso& ano) {
  const SerieDiaria z = SecuenciaConClaridad(ano, kHumedadConClaridad, 43);
  SerieDiaria objetivo{};
  for (std::size_t m = 0; m < kMeses; ++m) {
    const double media = ano.zona.meses[m].humedadRelativa;
    const double desviacion = std::min(kDesviacionHumedad, 0.4 * (100.0 - media));
    for (std::size_t d = PrimerDia(m); d < PrimerDia(m) + DiasDe(m); ++d)
      objetivo[d] = std::clamp(media + desviacion * z[d], 0.4 * media, 96.0);
    const double falta = media - Media(&objetivo[PrimerDia(m)], DiasDe(m));
    for (std::size_t d = PrimerDia(m); d < PrimerDia(m) + DiasDe(m); ++d) objetivo[d] += falta;
  }
  return objetivo;
}

// La forma del día es la de la humedad absoluta media; su nivel, el que da la relativa del día.
void GenerarHumedad(AnoEnCurso& ano) {
  constexpr int kIteraciones = 20;
  const SerieDiaria objetivo = ObjetivosHumedad(ano);
  std::vector<double> saturacion(ano.seca.size());
  std::transform(ano.seca.begin(), ano.seca.end(), saturacion.begin(), PresionDeSaturacion);
  SerieDiaria nivel{};
  nivel.fill(1.0);
  for (int i = 0; i < kIteraciones; ++i) {
    const SerieDiaria unido = nivel;
    for (std::size_t d = 0; d < kDiasAno; ++d) {
      const CursoDiario& forma = ano.zona.meses[MesDelDia(d)].humedadAbsoluta;
      for (std::size_t h = 0; h < kHorasDia; ++h) {
        const std::size_t i8760 = HoraAno(d, h);
        const double tope = HumedadAbsoluta(100.0, saturacion[i8760]);
        ano.absoluta[i8760] = std::min(tope, forma[h] * EntreDias(unido, d, h));
        ano.relativa[i8760] =
            std::min(100.0, HumedadRelativa(ano.absoluta[i8760], saturacion[i8760]));
      }
      nivel[d] *= objetivo[d] / Media(&ano.relativa[HoraAno(d, 0)], kHorasDia);
    }
  }
}

// Ji cuadrado de tres grados por el curso medio: positiva y con la dispersión del mes.
double Viento(const EstadisticasMes& mes, std::size_t hora, const std::array<double, 3>& z) {
  constexpr double kVariacionJi = 0.816;
  const double media = Media(mes.viento.data(), kHorasDia);
  const double ji = (z[0] * z[0] + z[1] * z[1] + z[2] * z[2]) / 3.0;
  const double variacion = media > 0 ? mes.desviacionViento / media : 0.0;
  return mes.viento[hora] * std::max(0.0, 1.0 + variacion / kVariacionJi * (ji - 1.0));
}

std::vector<HoraClima> Componer(const AnoEnCurso& ano) {
  constexpr double kPersistencia = 0.8;
  Azar azar(47);
  std::array<double, 3> z{};
  double direccion = 200;
  std::vector<HoraClima> horas(static_cast<std::size_t>(kHorasAno));
  for (std::size_t i = 0; i < horas.size(); ++i) {
    const std::size_t dia = i / kHorasDia;
    const PosicionSolar sol = CalcularPosicionSolar(ano.zona.latitud, static_cast<int>(dia) + 1,
                                                    static_cast<int>(i % kHorasDia) + 1);
    RegistroMet& r = horas[i].registro;
    r.cenit = static_cast<float>(sol.cenit);
    r.acimut = static_cast<float>(sol.acimut);
    r.seca = static_cast<float>(ano.seca[i]);
    r.cielo = static_cast<float>(ano.cielo[i]);
    r.directaHorizontal = static_cast<float>(ano.radiacion.directa[i]);
    r.difusa = static_cast<float>(ano.radiacion.difusa[i]);
    r.humedadAbsoluta = static_cast<float>(ano.absoluta[i]);
    r.humedadRelativa = static_cast<float>(ano.relativa[i]);
    for (double& x : z) x = kPersistencia * x + 0.6 * azar.Normal();
    horas[i].velocidadViento = Viento(ano.zona.meses[MesDelDia(dia)], i % kHorasDia, z);
    direccion += 25.0 * azar.Normal();
    if (direccion < 0) direccion += 360;
    if (direccion >= 360) direccion -= 360;
    horas[i].direccionViento = direccion;
  }
  return horas;
}

void AnadirCampo(std::string& texto, double valor, int decimales, char separador = '\t') {
  std::array<char, 32> cifras{};
  const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), valor,
                                 std::chars_format::fixed, decimales);
  std::string_view vista(cifras.data(), static_cast<std::size_t>(fin.ptr - cifras.data()));
  if (vista.find_first_not_of("-0.") == std::string_view::npos && vista.front() == '-')
    vista.remove_prefix(1);
  texto.append(vista);
  texto.push_back(separador);
}

}  // namespace

std::vector<HoraClima> GenerarClima(const EstadisticasZona& zona) {
  const SerieDiaria claridad = SecuenciaClaridad();
  const std::vector<double> vacia(static_cast<std::size_t>(kHorasAno));
  AnoEnCurso ano{zona, claridad, GenerarRadiacion(zona, claridad), vacia, vacia, vacia, vacia};
  GenerarTemperatura(ano);
  GenerarCielo(ano);
  GenerarHumedad(ano);
  return Componer(ano);
}

std::string TextoMet(const EstadisticasZona& zona, const std::string& titulo,
                     const std::vector<HoraClima>& horas) {
  std::string texto;
  texto.reserve(horas.size() * 64);
  texto += titulo + "\r\n";
  texto += Fijo(zona.latitud, 4) + "\t" + Fijo(zona.longitud, 4) + "\t" + Fijo(zona.altitud, 0) +
           "\t" + Fijo(zona.meridiano, 0) + "\r\n";
  for (std::size_t i = 0; i < horas.size(); ++i) {
    const int hora = static_cast<int>(i) + 1;
    const int mes = HoraDelMes(hora);
    const int dia = DiaDelAno(hora) - kUltimaHoraMes[static_cast<std::size_t>(mes) - 1] / 24;
    const RegistroMet& r = horas[i].registro;
    AnadirCampo(texto, mes, 0);
    AnadirCampo(texto, dia, 0);
    AnadirCampo(texto, HoraDelDia(hora), 0);
    AnadirCampo(texto, static_cast<double>(r.seca), 1);
    AnadirCampo(texto, static_cast<double>(r.cielo), 1);
    AnadirCampo(texto, static_cast<double>(r.directaHorizontal), 0);
    AnadirCampo(texto, static_cast<double>(r.difusa), 0);
    AnadirCampo(texto, static_cast<double>(r.humedadAbsoluta), 5);
    AnadirCampo(texto, static_cast<double>(r.humedadRelativa), 0);
    AnadirCampo(texto, horas[i].velocidadViento, 1);
    AnadirCampo(texto, horas[i].direccionViento, 0);
    AnadirCampo(texto, static_cast<double>(r.acimut), 1);
    AnadirCampo(texto, static_cast<double>(r.cenit), 1, '\r');
    texto.push_back('\n');
  }
  return texto;
}

std::string GenerarMet(const EstadisticasClima& clima, const std::string& zona,
                       const std::string& conjunto) {
  const EstadisticasZona* estadisticas = clima.Zona(zona);
  if (estadisticas == nullptr) throw std::out_of_range("no hay estadísticas de la zona " + zona);
  const std::string titulo =
      "Zona " + zona + ", año sintético con las medias mensuales del clima de referencia";
  if (conjunto == "Oficial") return TextoMet(*estadisticas, titulo, GenerarClima(*estadisticas));
  const TendenciaClima* tendencia = clima.Tendencia(conjunto);
  if (tendencia == nullptr) throw std::out_of_range("no hay tendencia del conjunto " + conjunto);
  const EstadisticasZona desplazada = AplicarTendencia(*estadisticas, *tendencia);
  return TextoMet(desplazada, titulo + " y la tendencia de " + conjunto, GenerarClima(desplazada));
}

}  // namespace novex
