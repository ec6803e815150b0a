#include "compliance/TransmitanciaGlobal.h"

#include <algorithm>

#include "base/NumeroTexto.h"
#include "compliance/Requisitos.h"
#include "demand/PuentesTermicos.h"
#include "model/PropiedadesHueco.h"

namespace novex {
namespace {

constexpr const char* kUnidadK = "W/m2K";
constexpr int kDecimales = 2;

// Con las dos demandas por debajo no se exige K, kWh/m2 y año.
constexpr float kDemandaPequena = 15;
constexpr const char* kNotaDemanda =
    "Cumple demanda energética edificio (ambos<15kW/hm2 año). No es necesario cumplir el valor K "
    "limite.";

// Permeabilidad de los opacos a 100 Pa, m3/h m2, y paso de 100 a 50 Pa (CTE DB-HE, anejo H).
constexpr double kPermeabilidadNuevo = 16, kPermeabilidadExistente = 29;
constexpr double kDe100a50 = 0.629;
constexpr double kSuperficieN50 = 120;  // m2

double D(float x) {
  return static_cast<double>(x);
}
std::string Texto(double valor) {
  return Fijo(valor, kDecimales);
}

void Anadir(double& A, double& KA, float area, float U) {
  if (area <= 0.0F) return;
  A += D(area);
  KA += D(area) * D(U);
}

void SumarOpacos(const Recinto& r, const ResultadosCaso& res, EnvolventeHE1& e) {
  using namespace ranura;
  const auto sectores = [&](const PorSector& areas, std::size_t ranura) {
    for (const float area : areas) Anadir(e.Aext, e.KAext, area, res.Uefectiva[ranura]);
  };
  for (std::size_t i = 0; i < 5; ++i) sectores(r.Muro_ext_m2[i], MuroExt1 + i);
  for (std::size_t i = 0; i < 3; ++i) {
    sectores(r.Cubierta_incl_m2[i], TechoInc1 + i);
    Anadir(e.Aext, e.KAext, r.Cubierta_horiz_sol_m2[i], res.Uefectiva[TechoExt1 + i]);
    Anadir(e.Aterr, e.KAterr, r.Suelo_al_terreno_m2[i], res.Uequivalente[SueloTerr1 + i]);
  }
  for (std::size_t i = 0; i < 2; ++i) {
    Anadir(e.Aext, e.KAext, r.Suelo_ext_m2[i], res.Uefectiva[SueloExt1 + i]);
    Anadir(e.Aterr, e.KAterr, r.Muro_al_terreno_m2[i], res.Uequivalente[MuroTerr1 + i]);
  }
}

void SumarHuecos(const Edificio& edificio, EnvolventeHE1& e) {
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& g = edificio.GetHuecos(i);
    const double A = D(g.Ancho_m) * D(g.Alto_m) * static_cast<double>(g.NumeroTotal());
    e.Ahuecos += A;
    e.KAhuecos += A * D(UVentana(g, 0, 0));
    e.CAh += A * D(g.Permeabilidad_Ventanas);
  }
}

double SumarPuentes(const Construccion& c) {
  const auto& psi = c.U_L_Puentes;
  return D(psi[puente_ventanas]) * D(c.Perimetro_huecos) +
         D(psi[puente_forjados]) * D(c.Perimetro_forjados) +
         D(psi[puente_cubiertas]) * D(c.Perimetro_cubiertas) +
         D(psi[puente_suelo_exterior]) * D(c.Perimetro_suelo_ext) +
         D(psi[puente_esquina_saliente]) * D(c.Longitud_esquinas_sal_menos_ent) +
         D(psi[puente_pilares]) * D(LongitudPilares(c)) +
         D(psi[puente_suelo_terreno]) * D(c.Perimetro_suelo_terreno);
}

// Las intervenciones que tienen sus propios límites de K.
bool LimitesDeReforma(const DatosGenerales& d) {
  for (const char* reforma :
       {"Cambio de uso", "Reforma >25% envolvente + Clima + ACS", "Reforma >25% envolvente + Clima",
        "Reforma >25% envolvente + ACS", "Reforma >25% envolvente"})
    if (EsReforma(d, reforma)) return true;
  return false;
}

Tabla TablaK(const EnvolventeHE1& e) {
  Tabla tabla;
  tabla.titulo = "Transmitancia global";
  tabla.cabeceras = {"", "Área (m2)", "K*A o K*L"};
  const auto fila = [&](const char* nombre, Celda area, double KA) {
    tabla.filas.push_back({nombre, std::move(area), Celda::Numero(KA, kDecimales)});
  };
  fila("Cerramientos exterior", Celda::Numero(e.Aext, kDecimales), e.KAext);
  fila("Cerramientos terreno", Celda::Numero(e.Aterr, kDecimales), e.KAterr);
  fila("Huecos", Celda::Numero(e.Ahuecos, kDecimales), e.KAhuecos);
  fila("Puentes térmicos", {}, e.KLpuentes);
  return tabla;
}

Grafico GraficoK(const EnvolventeHE1& e) {
  Grafico g;
  g.titulo = "K*A por grupo";
  g.posiciones = {"Exterior", "Terreno", "Huecos", "Puentes"};
  g.ejeY = "W/K";
  g.series = {{"K*A", {e.KAext, e.KAterr, e.KAhuecos, e.KLpuentes}}};
  return g;
}

std::vector<std::string> TextosK(const TransmitanciaGlobal& t, const std::string& zona) {
  const EnvolventeHE1& e = t.envolvente;
  const std::string VA = Texto(e.Compacidad());
  return {
      "Compacidad edificio= Volumen/(Aext+Aterreno) = " + Texto(e.volumen) + "/" +
          Texto(e.Total()) + " = " + VA,
      "K = (KAterr+KAext+KAhuecos+K*Lpuentes)/(Aterr+Aext+Ahuecos) = " + Texto(t.K) + " [W/m2ºC]",
      "Con una compacidad = " + VA + " y para la zona climatica " + zona +
          " tenemos Klimite= " + Texto(t.Klimite) + " [W/m2ºC]"};
}

// El veredicto de K y por qué no se exige.
void JuzgarK(const DatosGenerales& d, bool demandaPequena, bool hayLimites,
             TransmitanciaGlobal& t) {
  const Aplicacion aplica = AplicaRequisito(d, Requisito::HE1Kq);
  Veredicto& v = t.registro;
  v.aplica = aplica == Aplicacion::Si && !demandaPequena;
  if (aplica != Aplicacion::Si) {
    t.veredicto = "No Aplicable";
    v.nota = NotaAplicacion(d, aplica);
  } else {
    const bool pasa = t.K <= t.Klimite;
    t.comparacion = "Como Kedificio (" + Texto(t.K) + (pasa ? ") <= Klimite(" : ") > Klimite(") +
                    Texto(t.Klimite) + (pasa ? ") " : ")  ");
    t.veredicto = pasa ? "Cumple K edificio" : "No Cumple K edificio";
    t.cumple = pasa || demandaPequena;
    if (demandaPequena) {
      t.veredicto = "No aplicable. Demanda (ambos<15kW/hm2 año).";
      v.nota = kNotaDemanda;
    } else if (!hayLimites) {
      v.nota = "Faltan los límites de la zona";
    }
  }
}

}  // namespace

EnvolventeHE1 SumarEnvolvente(const Edificio& edificio, const ResultadosCaso& resultados) {
  EnvolventeHE1 e;
  SumarOpacos(edificio.GetRecinto(0), resultados, e);
  SumarHuecos(edificio, e);
  e.KLpuentes = SumarPuentes(edificio.GetConstruccion());
  e.volumen = D(edificio.GetRecinto(0).Volumen_total_m3);
  return e;
}

double PorCompacidad(double VA, double VA1, double valor1, double VA2, double valor2) {
  if (VA <= VA1) return valor1;
  if (VA >= VA2) return valor2;
  return valor1 + (VA - VA1) * (valor2 - valor1) / (VA2 - VA1);
}

TransmitanciaGlobal ComprobarK(const Edificio& edificio, const ResultadosCaso& resultados,
                               const DocumentosHE& documentos) {
  TransmitanciaGlobal t;
  const DatosGenerales& d = edificio.GetDatosGenerales();
  const std::string& zona = edificio.GetLocalizacion().ZonaClimatica;
  t.envolvente = SumarEnvolvente(edificio, resultados);
  const EnvolventeHE1& e = t.envolvente;
  t.K = e.Total() > 0 ? (e.KAext + e.KAterr + e.KAhuecos + e.KLpuentes) / e.Total() : 0.0;
  const LimitesZonaHE1 l = LeerKlimite(documentos.klimite, zona);
  t.Klimite = LimitesDeReforma(d)
                  ? PorCompacidad(e.Compacidad(), 1, D(l.Compacidad1R), 4, D(l.Compacidad4R))
                  : PorCompacidad(e.Compacidad(), 1, D(l.Compacidad1), 4, D(l.Compacidad4));
  const bool demandaPequena = resultados.demandaCalefaccion < kDemandaPequena &&
                              resultados.demandaRefrigeracion < kDemandaPequena;
  if (demandaPequena) t.notaDemanda = kNotaDemanda;
  t.textos = TextosK(t, zona);
  t.SGKlimite = TablaK(e);
  t.grafico = GraficoK(e);
  JuzgarK(d, demandaPequena, l.hay, t);
  Veredicto& v = t.registro;
  v.seccion = kSeccionHE1;
  v.requisito = "Transmitancia global K";
  v.valor = t.K;
  v.limite = t.Klimite;
  v.unidad = kUnidadK;
  v.veredicto = t.veredicto;
  v.pasa = t.cumple;
  return t;
}

RelacionAire ComprobarN50(const Edificio& edificio, const ResultadosCaso& resultados,
                          const DocumentosHE& documentos) {
  RelacionAire r;
  const DatosGenerales& d = edificio.GetDatosGenerales();
  const EnvolventeHE1 e = SumarEnvolvente(edificio, resultados);
  const LimitesZonaHE1 l =
      LeerKlimite(documentos.klimite, edificio.GetLocalizacion().ZonaClimatica);
  r.limite = PorCompacidad(e.Compacidad(), 2, D(l.VA2), 4, D(l.VA4));
  const bool nuevo = d.Modo_trabajo == "Nuevo";
  const double C0 = nuevo ? kPermeabilidadNuevo : kPermeabilidadExistente;
  r.n50 = e.volumen > 0 ? kDe100a50 * (C0 * e.Aext + e.CAh) / e.volumen : 0.0;
  Veredicto& v = r.registro;
  const double util = D(edificio.GetRecinto(0).Suelo_habitable_m2);
  if (!nuevo) {
    r.textos = {" No aplicable en el caso de edificio existente; luego "};
    r.veredicto = "No aplicable";
    v.nota = "No se exige en un edificio existente";
    v.aplica = false;
  } else if (util <= kSuperficieN50) {
    r.textos = {" No aplicable en este caso ya que Ahabitable es <= 120 m2 ; luego CUMPLE"};
    r.veredicto = "Cumple el valor de relación cambio aire";
    v.nota = "No se exige hasta 120 m2 habitables";
    v.aplica = false;
  } else {
    if (d.Tipon50 == "Teorico") {
      r.SGNV50limite.cabeceras = {"", "C*A"};
      r.SGNV50limite.filas = {{"Cerramientos opacos", Celda::Numero(C0 * e.Aext, kDecimales)},
                              {"Huecos", Celda::Numero(e.CAh, kDecimales)}};
      r.textos.push_back("nv50= 0,629(C0*A0+Ch*Ah)/V = " + Texto(r.n50) + " [h-1]");
    } else {
      r.n50 = D(d.Valorn50);
      r.textos.push_back("nv50= " + Texto(r.n50) + " [h-1]   Valor medido");
    }
    r.cumple = r.n50 <= r.limite;
    r.textos.push_back("Con una compacidad = " + Texto(e.Compacidad()) +
                       " tenemos nv50limite= " + Texto(r.limite) + " [h-1]");
    r.textos.push_back("n50edificio (" + Texto(r.n50) +
                       (r.cumple ? ") <= n50limite(" : ") > n50limite(") + Texto(r.limite) + ")");
    r.veredicto = r.cumple ? "Cumple el valor de relación cambio aire"
                           : "No Cumple el valor de relación cambio aire";
    if (!l.hay)
      v.nota = "Faltan los límites de la zona";
    else if (d.Tipon50 != "Teorico" && r.n50 == 0.0)
      v.nota = "Falta el valor medido";
  }
  v.seccion = kSeccionHE1;
  v.requisito = "Relación del cambio de aire a 50 Pa, n50";
  v.valor = r.n50;
  v.limite = r.limite;
  v.unidad = "1/h";
  v.veredicto = r.veredicto;
  v.pasa = r.cumple;
  return r;
}

}  // namespace novex
