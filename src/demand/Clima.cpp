#include "demand/Clima.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/Psicrometria.h"
#include "demand/Convolucion.h"
#include "demand/Solar.h"
#include "model/CatalogoCampos.h"
#include "model/Construccion.h"

namespace novex {
namespace {

constexpr float kBaseRespuesta = 22.5F;  // °C, referencia de todas las series de respuesta
constexpr float kDirectaMaxima = 1100.0F;

// Coeficientes superficiales exteriores, W/m2K: 17 en muros y 25 en cubiertas, con 5 de radiación.
constexpr float kHeMuro = 17.0F;
constexpr float kHeTecho = 25.0F;
constexpr float kHrad = 5.0F;

// Planos de los seis sectores con una inclinación.
std::array<Plano, kSectores> Planos(float inclinacion) {
  const auto plano = [inclinacion](std::size_t s) { return Plano(inclinacion, kAzimutSector[s]); };
  return {plano(0), plano(1), plano(2), plano(3), plano(4), plano(5)};
}

const std::array<Plano, kSectores> kVerticales = Planos(90);
const std::array<Plano, kSectores> kInclinados = Planos(30);

float DirectaNormal(float directaHorizontal, float cenit, float anterior) {
  const float c = std::cos(cenit * 3.1416F / 180.0F);
  const float normal = c > 0.0F ? directaHorizontal / c : 0.0F;
  return normal > kDirectaMaxima ? anterior : normal;
}

// Temperaturas sol-aire de un año: una serie para cada plano.
struct SolAire {
  SeriePorSector muro, techo;
  SerieHoraria techoHorizontal, suelo;
};

void CalcularSolAire(float alfaMuro, float alfaTecho, SeriesClima& clima, SolAire& solAire) {
  const Plano horizontal(0, 0);
  for (int h = 1; h <= kHorasAno; ++h) {
    const float directa = clima.IDIRECTA[h];
    const float difusa = clima.IDIFUSA[h];
    const float seca = clima.TSE[h];
    const float cielo = clima.TCIE[h];
    const SolHora sol(clima.AZIMUTS[h], clima.CENITS[h]);
    // En los muros la mitad del intercambio radiante es con el cielo; en las cubiertas, todo.
    const float baseMuro =
        ((kHeMuro - kHrad) * seca + 0.5F * kHrad * seca + 0.5F * kHrad * cielo) / kHeMuro;
    const float baseTecho = ((kHeTecho - kHrad) * seca + kHrad * cielo) / kHeTecho;
    for (std::size_t o = 0; o < kSectores; ++o) {
      const float enMuro = kVerticales[o].IrradianciaTotal(sol, directa, difusa);
      clima.IRAD[o][h] = kVerticales[o].IrradianciaVidrio(sol, directa, difusa);
      solAire.muro[o][h] = alfaMuro * enMuro / kHeMuro + baseMuro;
      solAire.techo[o][h] =
          alfaTecho * kInclinados[o].IrradianciaTotal(sol, directa, difusa) / kHeTecho + baseTecho;
    }
    clima.RADH[h] = horizontal.IrradianciaTotal(sol, directa, difusa);
    clima.IRADH[h] = horizontal.IrradianciaVidrio(sol, directa, difusa);
    solAire.techoHorizontal[h] = alfaTecho * clima.RADH[h] / kHeTecho + baseTecho;
    solAire.suelo[h] = 0.8F * difusa / kHeTecho + seca;
    clima.COND[h] = seca - kBaseRespuesta;
  }
}

void Responder(const SerieHoraria& solAire, const std::array<float, kTerminosRespuesta>& pesos,
               SerieHoraria& respuesta) {
  ConvolucionPeriodica(solAire, pesos, respuesta);
  for (float& valor : respuesta) valor -= kBaseRespuesta;
}

float Numero(const XMLNode& nodo, const char* atributo, Mensajes& mensajes) {
  return ValorSinComprobar(nodo.attributeValue(atributo).value_or(""), mensajes);
}

XMLNode BuscarCapital(const XMLNode& capitales, const std::string& provincia) {
  for (std::size_t i = 0; i < capitales.childCount(); ++i) {
    const XMLNode nodo = capitales.childAt(i);
    if (nodo.attributeValue("P") == provincia) return nodo;
  }
  return {};
}

// Estado exterior de proyecto de la capital llevado a la altura del sitio (CTE DB-HE, anejo G).
void AnotarEstadoProyecto(int asnm, int cota, DatosClimaticosSitio& sitio) {
  using psicrometria::PresionSaturacion;
  const float pv = PresionSaturacion(sitio.TMEDENE) * sitio.HUMENE * 0.01F;
  sitio.Tproyecto = sitio.TMEDENE;
  sitio.HRproyecto = sitio.HUMENE;
  if (cota < asnm) {
    sitio.Tproyecto = sitio.TMEDENE + static_cast<float>(cota - asnm) * 0.01F;
    sitio.HRproyecto = std::min(100.0F, 100.0F * pv / PresionSaturacion(sitio.Tproyecto));
  }
  sitio.Pvproyecto = PresionSaturacion(sitio.Tproyecto) * sitio.HRproyecto * 0.01F;
}

}  // namespace

float PresionAltura(float asnm) {
  return 101325.0F * std::pow(1.0F - 2.25577e-5F * asnm, 5.2559F);
}

float PresionHoraria(float asnm) {
  return 101325.0F * std::exp(-0.0001184F * asnm);
}

void LeerClima(const FicheroMet& met, SeriesClima& clima) {
  float anterior = 0;
  for (int h = 1; h <= kHorasAno; ++h) {
    const RegistroMet& r = met.horas.at(static_cast<std::size_t>(h - 1));
    clima.TSE[h] = r.seca;
    clima.TCIE[h] = r.cielo;
    clima.FIE[h] = r.humedadRelativa;
    clima.WE[h] = psicrometria::HumedadDeRelativa(r.seca, r.humedadRelativa, kPresionNormal);
    clima.THE[h] = psicrometria::BulboHumedo(r.seca, r.humedadAbsoluta, kPresionNormal);
    clima.CENITS[h] = r.cenit;
    clima.AZIMUTS[h] = r.acimut;
    anterior = DirectaNormal(r.directaHorizontal, r.cenit, anterior);
    clima.IDIRECTA[h] = anterior;
    clima.IDIFUSA[h] = r.difusa;
  }
}

void CalcularSolYRespuesta(const CoeficientesRespuesta& coeficientes, int colorMuros,
                           int colorCubiertas, SeriesClima& clima) {
  SolAire solAire;
  CalcularSolAire(Absortividad(colorMuros), Absortividad(colorCubiertas), clima, solAire);
  for (std::size_t o = 0; o < kSectores; ++o) {
    Responder(solAire.muro[o], coeficientes.muro, clima.MLIGERO[o]);
    Responder(solAire.techo[o], coeficientes.techo, clima.CLIGERO[o]);
  }
  Responder(solAire.techoHorizontal, coeficientes.techo, clima.CLIGEROH);
  Responder(solAire.suelo, coeficientes.techo, clima.SUELOEXT);
}

void RedondearClima(SeriesClima& clima) {
  for (SerieHoraria* s :
       {&clima.TSE, &clima.THE, &clima.FIE, &clima.TCIE, &clima.IDIRECTA, &clima.IDIFUSA,
        &clima.RADH, &clima.CLIGEROH, &clima.SUELOEXT, &clima.COND})
    RedondearSerie(*s, 2);
  for (auto& s : clima.MLIGERO) RedondearSerie(s, 2);
  for (auto& s : clima.CLIGERO) RedondearSerie(s, 2);
  RedondearSerie(clima.WE, 5);
  // La irradiancia con que se echan las protecciones ve ya el sol redondeado.
  for (int h = 1; h <= kHorasAno; ++h) {
    const SolHora sol(clima.AZIMUTS[h], clima.CENITS[h]);
    for (std::size_t o = 0; o < kSectores; ++o)
      clima.irradianciaVertical[o][h] =
          kVerticales[o].IrradianciaTotal(sol, clima.IDIRECTA[h], clima.IDIFUSA[h]);
  }
}

TablaMensual MediasMensuales(const SerieHoraria& TSE) {
  TablaMensual media{};
  int h = 1;
  for (std::size_t m = 1; m <= kMeses; ++m) {
    double suma = 0;
    for (; h <= kUltimaHoraMes[m]; ++h) suma += static_cast<double>(TSE[h]);
    media[m] = static_cast<float>(suma / (24.0 * kDiasMes[m]));
    media[0] += media[m] / 12.0F;
  }
  return media;
}

void AnotarMediaAnual(const TablaMensual& media, DatosClimaticosSitio& sitio) {
  sitio.mediaAnual = media[0];
  sitio.amplitud = 0;
  for (std::size_t m = 1; m <= kMeses; ++m)
    sitio.amplitud = std::max(sitio.amplitud, std::fabs(media[m] - media[0]));
}

void AnotarDatosCapital(const XMLNode& capitales, const Localizacion& lugar,
                        DatosClimaticosSitio& sitio, Mensajes& mensajes) {
  constexpr std::array<const char*, 12> kTemperaturaRed = {"TRENE", "TRFEB", "TRMAR", "TRABR",
                                                           "TRMAY", "TRJUN", "TRJUL", "TRAGO",
                                                           "TRSEP", "TROCT", "TRNOV", "TRDIC"};
  // Descenso del agua de red con la altura, °C/m: de octubre a marzo y de abril a septiembre.
  constexpr float kInvierno = 0.0066F;
  constexpr float kVerano = 0.0033F;
  const XMLNode capital = BuscarCapital(capitales, lugar.Provincia);
  if (capital.isEmpty()) return;
  sitio.cotaCapital = Numero(capital, "Cota", mensajes);
  const int cota = static_cast<int>(std::clamp(sitio.cotaCapital, -10000.0F, 10000.0F));
  const auto desnivel = static_cast<float>(lugar.asnm - cota);
  sitio.aguaRed[0] = 0;
  for (std::size_t m = 1; m <= kMeses; ++m) {
    const bool verano = m >= 4 && m <= 9;
    sitio.aguaRed[m] = Numero(capital, kTemperaturaRed[m - 1], mensajes) -
                       desnivel * (verano ? kVerano : kInvierno);
    sitio.aguaRed[0] += sitio.aguaRed[m] * static_cast<float>(kDiasMes[m]) / 365.0F;
  }
  sitio.TMEDENE = Numero(capital, "TMEDENE", mensajes);
  sitio.HUMENE = Numero(capital, "HUMENE", mensajes);
  AnotarEstadoProyecto(lugar.asnm, cota, sitio);
}

}  // namespace novex
