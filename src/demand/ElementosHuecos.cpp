#include "demand/ElementosHuecos.h"

#include <algorithm>
#include <string>

#include "demand/FactoresHuecos.h"
#include "demand/Solar.h"
#include "model/PropiedadesHueco.h"

namespace novex {
namespace {

// Retardo del sol que entra: parte convectiva y reparto de la radiante en once horas.
constexpr float kConvectiva = 0.67F;
constexpr float kRadiante = 0.33F;
constexpr std::array<float, 11> kReparto = {0.30F, 0.17F, 0.11F, 0.08F, 0.07F, 0.06F,
                                            0.05F, 0.04F, 0.04F, 0.04F, 0.03F};

// Parte de las ventanas de una vivienda con cortina.
constexpr float kCortinas = 0.3F;

constexpr std::array<const char*, kSectores> kMarca = {"N", "O", "SO", "S", "SE", "E"};
constexpr std::array<const char*, kSectores> kOrientacion = {"NORTE", "OESTE",   "SUROESTE",
                                                             "SUR",   "SURESTE", "ESTE"};

bool EsHoraEntre(int d, int primera, int ultima) {
  return d >= primera && d <= ultima;
}

// Conductancia de un grupo por hora del día, con la persiana de noche y las cortinas.
ConductanciaGrupo Conductancia(const Huecos& g, const Forzados& f, bool residencial) {
  const float U = UVentana(g, f.UCristalForzado, f.UMarcoForzado);
  const float c = 0.165F * U + 1.0F;
  const float conCortina = kCortinas / c + (1.0F - kCortinas);
  const bool persiana = g.Indice_tipo_sombra_movil > 0;
  ConductanciaGrupo salida;
  for (int d = 1; d <= 24; ++d) {
    const auto persianaU = [&](bool verano) {
      const float parte = persiana ? FraccionPersianaU(d, verano, g.Indice_tipo_control_Verano,
                                                       g.Indice_tipo_control_Invierno)
                                   : 0.0F;
      return parte / c + 1.0F - parte;
    };
    float verano = persianaU(true) * U;
    float invierno = persianaU(false) * U;
    if (residencial && EsHoraEntre(d, 6, 21)) verano *= conCortina;
    if (residencial && !EsHoraEntre(d, 8, 15)) invierno *= conCortina;
    salida.verano[static_cast<std::size_t>(d)] = verano;
    salida.invierno[static_cast<std::size_t>(d)] = invierno;
  }
  return salida;
}

std::string ClaveHueco(std::size_t columna, bool lucernario, std::size_t grupo) {
  std::string marca = "LH";
  if (columna < kSectores) marca = std::string(lucernario ? "L" : "") + kMarca[columna];
  return "0-" + marca + "-G-" + std::to_string(grupo);
}

// Factor solar del hueco en una estación.
float FactorSolar(const Huecos& g, const ColumnaHuecos& columna, const Forzados& f, bool verano) {
  float vidrio = f.FSCristalForzado != 0.0F ? f.FSCristalForzado : g.FS_cristal_tanto_por_uno;
  const float Umarco = f.UMarcoForzado != 0.0F ? f.UMarcoForzado : g.U_marco_W_m2K;
  if (verano) vidrio *= columna.FactorFSColumna;
  float gw = FactorSolarHueco(vidrio, Umarco, g.Fraccion_marco_tanto_por_cien);
  if (verano && f.FactorSolarVerano > 0.0F) gw *= f.FactorSolarVerano;
  return gw;
}

// Área en sombra de cada mes por obstáculos cercanos, alero y retranqueo.
std::array<float, 13> SombraMensual(const ElementoHueco& e, const ColumnaHuecos& columna,
                                    float latitud, const AjustesUso& ajustes) {
  std::array<float, 13> sombra{};
  if (e.lucernario || e.orientacion == norte) return sombra;
  const auto s = static_cast<Sector>(e.orientacion);
  for (int m = 1; m <= kMeses; ++m) {
    const auto i = static_cast<std::size_t>(m);
    const float libre =
        FraccionSinObstaculos(columna, s, latitud, m, ajustes.perfil, ajustes.verano[i]) *
        FraccionSolCercana(e.sombraPropia, s, latitud, m);
    sombra[i] = e.area - e.area * libre;
  }
  return sombra;
}

}  // namespace

ElementosHuecos::ElementosHuecos(const Edificio& edificio, const AjustesUso& ajustes, calculo& caso)
    : clima_(caso.clima), ajustes_(ajustes) {
  const Forzados& f = caso.resultados.forzados;
  const float latitud = edificio.GetLocalizacion().latitud;
  for (std::size_t n = 0; n < edificio.NumeroHuecos(); ++n) {
    const Huecos& g = edificio.GetHuecos(n);
    grupos_.push_back(std::make_unique<ConductanciaGrupo>(Conductancia(g, f, ajustes.residencial)));
    for (std::size_t o = 0; o < kColumnasHuecos; ++o) {
      const ColumnaHuecos& columna = g.columnas[o];
      const float unidad =
          g.Ancho_m * g.Alto_m * (1.0F - f.ReduccionHuecos) * columna.FactorAreaColumna;
      const auto numero = static_cast<float>(columna.NumeroEnRecinto(0));
      if (!(unidad * numero > 0.0F) || (o >= kSectores && o != kColumnaHorizontal)) continue;
      ElementoHueco e;
      e.orientacion = o;
      e.lucernario = g.Tipo_de_hueco == kLucernario || o == kColumnaHorizontal;
      e.conductancia = grupos_.back().get();
      e.area = unidad * numero;
      const float pozo =
          e.lucernario ? FactorLucernario(g.Ancho_m, g.Alto_m, g.Longitud_alero_m) : 1.0F;
      e.gVerano = FactorSolar(g, columna, f, true) * pozo;
      e.gInvierno = FactorSolar(g, columna, f, false) * pozo;
      e.multiplicadorVerano = e.area * columna.FactorUColumna * g.Valor_multiplicativo_U_verano;
      e.multiplicadorInvierno = e.area * columna.FactorUColumna * g.Valor_multiplicativo_U_invierno;
      e.proteccionMovil = g.Indice_tipo_sombra_movil != 0;
      e.gProtegido = FactorProteccionMovil(g.Indice_tipo_sombra_movil, g.Indice_tipo_cristal,
                                           g.U_cristal_W_m2K);
      e.controlVerano = g.Indice_tipo_control_Verano;
      e.controlInvierno = g.Indice_tipo_control_Invierno;
      e.sombraFija = FactorSombraFija(g.Indice_tipo_sombra_fija, o);
      e.sombraPropia = SombraPropia(g);
      e.haySombraPropia = e.sombraPropia.Hay();
      e.sombra = SombraMensual(e, columna, latitud, ajustes);

      Valores& v = caso.valores[ClaveHueco(o, g.Tipo_de_hueco == kLucernario, n + 1)];
      v.recinto = "0";
      v.familia = "SemiTransp.";
      v.grupo = "G-" + std::to_string(n + 1);
      v.nombre = std::to_string(n + 1);
      v.orientacion = o < kSectores ? kOrientacion[o] : "HORIZONTAL";
      v.areaBruta = e.area;
      v.numero = static_cast<int>(numero);
      e.valores = &v;
      elementos_.push_back(e);
    }
  }
  for (const ElementoHueco& e : elementos_)
    for (std::size_t d = 1; d <= 24; ++d) {
      UAverano_[d] += e.multiplicadorVerano * e.conductancia->verano[d];
      UAinvierno_[d] += e.multiplicadorInvierno * e.conductancia->invierno[d];
    }
  PrepararSol();
}

void ElementosHuecos::PrepararSol() {
  for (const ElementoHueco& e : elementos_) {
    if (e.lucernario || e.orientacion == norte || !sol_[e.orientacion].empty()) continue;
    auto& horas = sol_[e.orientacion];
    horas.resize(kHorasAno + 1);
    for (int h = 1; h <= kHorasAno; ++h)
      if (clima_.CENITS[h] < 90.0F)
        horas[static_cast<std::size_t>(h)] =
            MirarSol(clima_.AZIMUTS[h], clima_.CENITS[h], kAzimutSector[e.orientacion]);
  }
}

void ElementosHuecos::RefrescarMes(int mes) {
  for (ElementoHueco& e : elementos_)
    e.valores->areaSombra = e.sombra[static_cast<std::size_t>(mes)];
}

float ElementosHuecos::GananciaHueco(ElementoHueco& e, int h, int mes, bool verano,
                                     bool residencial) {
  const float g = verano ? e.gVerano : e.gInvierno;
  if (e.orientacion == kColumnaHorizontal) return e.area * g * clima_.IRADH[h];
  const float irradiancia = clima_.IRAD[e.orientacion][h];
  if (e.lucernario) return e.area * g * (0.3F * irradiancia + 0.7F * clima_.IRADH[h]);

  float soleada = 0;
  if (e.orientacion != norte) {
    const SolEnFachada& sol = sol_[e.orientacion][static_cast<std::size_t>(h)];
    if (sol.delante) {
      soleada = (e.area - e.sombra[static_cast<std::size_t>(mes)]) * e.sombraFija;
      if (e.haySombraPropia) soleada *= e.sombraPropia.FraccionSoleada(sol.t, sol.s);
    }
  }
  const float llega = irradiancia * soleada + clima_.IRAD[norte][h] * (e.area - soleada);
  const int d = h % 24;
  float cortina = 0;
  if (residencial) {
    const bool deDia = d >= 9 && d <= 19;
    cortina = verano ? (deDia ? kCortinas : 0.0F) : (deDia ? 0.0F : 1.0F);
  }
  const float sinProteger = llega * (1.0F - cortina) * g;
  float sol = sinProteger;
  if (e.proteccionMovil) {
    const float c = FraccionPersianaSol(d, verano, e.controlVerano, e.controlInvierno,
                                        clima_.irradianciaVertical[e.orientacion][h]);
    const float protegido = llega * ((1.0F - c) * g + e.gProtegido * c);
    sol = verano ? std::min(protegido, sinProteger) : std::max(protegido, sinProteger);
  }
  float retardado = 0;
  for (std::size_t k = 0; k < e.historia.size(); ++k) retardado += kReparto[k + 1] * e.historia[k];
  std::move_backward(e.historia.begin(), e.historia.end() - 1, e.historia.end());
  e.historia[0] = sol;
  return (kRadiante * kReparto[0] + kConvectiva) * sol + kRadiante * retardado;
}

float ElementosHuecos::Ganancias(int h, int mes) {
  const bool verano = ajustes_.verano[static_cast<std::size_t>(mes)];
  float suma = 0;
  for (ElementoHueco& e : elementos_) {
    const float valor = GananciaHueco(e, h, mes, verano, ajustes_.residencial);
    e.valores->valor[h] = valor;
    suma += valor;
  }
  return suma;
}

void ElementosHuecos::AnadirConduccion(int h, bool verano, float salto) {
  const auto d = static_cast<std::size_t>(HoraDelDia(h));
  for (ElementoHueco& e : elementos_)
    e.valores->valor[h] += salto * (verano ? e.multiplicadorVerano * e.conductancia->verano[d]
                                           : e.multiplicadorInvierno * e.conductancia->invierno[d]);
}

float ElementosHuecos::SumaGuardada(int h) const {
  float suma = 0;
  for (const ElementoHueco& e : elementos_) suma += e.valores->valor[h];
  return suma;
}

}  // namespace novex
