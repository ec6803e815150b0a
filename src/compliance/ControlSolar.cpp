#include "compliance/ControlSolar.h"

#include <numeric>

#include "base/NumeroTexto.h"
#include "compliance/Requisitos.h"
#include "demand/FactoresHuecos.h"
#include "demand/Sombras.h"

namespace novex {
namespace {

constexpr int kJulio = 7;
constexpr double kLimite = 2;  // kWh/m2
constexpr int kDecimales = 2;
constexpr std::size_t kHorizontal = kSectores;
constexpr std::array<const char*, kColumnasControl> kColumnas = {
    "Norte", "Oeste", "SurOeste", "Sur", "SurEste", "Este", "Hz."};
constexpr std::array<const char*, kColumnasControl> kColumnasGrafico = {"N",  "O", "SO", "S",
                                                                        "SE", "E", "Hz."};

double D(float x) {
  return static_cast<double>(x);
}

// Parte del sol de julio que deja pasar la sombra de una columna: protección fija, obstáculos,
// alero y retranqueo.
double FactorSombra(const Edificio& edificio, const Huecos& g, Sector sector) {
  const float latitud = edificio.GetLocalizacion().latitud;
  const int perfil = edificio.GetDatosGenerales().PerfilUso;
  return D(FactorSombraFija(g.Indice_tipo_sombra_fija, sector)) *
         D(FraccionSinObstaculos(g.columnas[sector], sector, latitud, kJulio, perfil, true)) *
         D(FraccionSolCercana(SombraPropia(g), sector, latitud, kJulio));
}

void SumarGrupo(const Edificio& edificio, const Huecos& g, const RadiacionJulio& rad,
                const DocumentosHE& documentos, ControlSolar& c) {
  const double unidad = D(g.Ancho_m) * D(g.Alto_m);
  const double vidrio =
      (100.0 - D(g.Fraccion_marco_tanto_por_cien)) * 0.01 * D(g.FS_cristal_tanto_por_uno) *
      D(FactorAccesorio(documentos.accesorios, g.Indice_tipo_sombra_movil, g.Indice_tipo_cristal));
  const bool lucernario = g.Tipo_de_hueco == kLucernario;
  for (std::size_t columna = 0; columna < kColumnasHuecos; ++columna) {
    const double A = unidad * static_cast<double>(g.columnas[columna].recintos.size());
    if (A <= 0) continue;
    // Un lucernario cuenta como horizontal esté donde esté, y sin sombra.
    const bool horizontal = lucernario || columna == kColumnaHorizontal;
    if (!horizontal && columna >= kSectores) continue;
    const std::size_t i = horizontal ? kHorizontal : columna;
    const double H = A * D(horizontal ? rad.horizontal : rad.sector[columna]);
    c.area[i] += A;
    c.irradiacion[i] += H;
    c.ganancia[i] +=
        H * vidrio * (horizontal ? 1.0 : FactorSombra(edificio, g, static_cast<Sector>(columna)));
  }
}

bool FaltaAccesorio(const Edificio& edificio, const DocumentosHE& documentos) {
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& g = edificio.GetHuecos(i);
    if (g.NumeroTotal() > 0 && FactorAccesorio(documentos.accesorios, g.Indice_tipo_sombra_movil,
                                               g.Indice_tipo_cristal) == 0.0F)
      return true;
  }
  return false;
}

Tabla TablaControl(const ControlSolar& c) {
  Tabla tabla;
  tabla.titulo = "Control solar de julio";
  tabla.cabeceras = {""};
  std::vector<Celda> irradiacion = {"Av*Hsol,julio"}, ganancia = {"qsol,julio"};
  for (std::size_t i = 0; i < kColumnasControl; ++i) {
    tabla.cabeceras.emplace_back(kColumnas[i]);
    irradiacion.push_back(Celda::Numero(c.irradiacion[i], kDecimales));
    ganancia.push_back(Celda::Numero(c.ganancia[i], kDecimales));
  }
  tabla.filas = {std::move(irradiacion), std::move(ganancia)};
  return tabla;
}

Grafico GraficoControl(const ControlSolar& c) {
  Grafico g;
  g.titulo = "qsol,julio por orientación";
  g.posiciones.assign(kColumnasGrafico.begin(), kColumnasGrafico.end());
  g.ejeY = "kWh";
  g.series = {{"qsol,julio", {c.ganancia.begin(), c.ganancia.end()}}};
  return g;
}

}  // namespace

ControlSolar ComprobarControlSolar(const Edificio& edificio, const DocumentosHE& documentos) {
  ControlSolar c;
  const RadiacionJulio rad =
      LeerRadJulio(documentos.radJulio, edificio.GetLocalizacion().ZonaClimatica);
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i)
    SumarGrupo(edificio, edificio.GetHuecos(i), rad, documentos, c);
  const double util = D(edificio.GetRecinto(0).Suelo_habitable_m2);
  const double suma = std::accumulate(c.ganancia.begin(), c.ganancia.end(), 0.0);
  c.q = util > 0 ? suma / util : 0.0;
  const Aplicacion aplica = AplicaRequisito(edificio.GetDatosGenerales(), Requisito::HE1Kq);
  c.texto = "Valor de suma (qsol,julio)/A = " + Fijo(c.q, kDecimales);
  Veredicto& v = c.registro;
  if (aplica == Aplicacion::Si) {
    c.cumple = c.q <= kLimite;
    c.veredicto =
        c.cumple ? "Cumple el valor del control solar" : "No Cumple el valor del control solar";
    if (!rad.hay)
      v.nota = "Falta la irradiación de julio de la zona";
    else if (FaltaAccesorio(edificio, documentos))
      v.nota = "Falta el factor de alguna protección móvil, que cuenta como 0";
  } else {
    c.veredicto = "No Aplicable";
    v.nota = NotaAplicacion(edificio.GetDatosGenerales(), aplica);
  }
  c.SGqjulio = TablaControl(c);
  c.grafico = GraficoControl(c);
  v.seccion = kSeccionHE1;
  v.requisito = "Control solar qsol;jul";
  v.valor = c.q;
  v.limite = kLimite;
  v.unidad = "kWh/m2";
  v.veredicto = c.veredicto;
  v.aplica = aplica == Aplicacion::Si;
  v.pasa = c.cumple;
  return c;
}

}  // namespace novex
