#include "demand/ElementosOpacos.h"

#include <string>

#include "demand/Sombras.h"
#include "demand/Terreno.h"
#include "demand/TransmitanciasEfectivas.h"

namespace novex {
namespace {

constexpr std::array<const char*, kSectores> kSigla = {"N", "O", "SO", "S", "SE", "E"};
constexpr std::array<const char*, kSectores> kOrientacion = {"NORTE", "OESTE",   "SUROESTE",
                                                             "SUR",   "SURESTE", "ESTE"};
constexpr float kFactorCamara = 0.35F;

// Los tipos a partir del segundo llevan su número al final de la clave.
std::string ConTipo(std::string clave, std::size_t tipo) {
  if (tipo > 0) clave += std::to_string(tipo + 1);
  return clave;
}

// Factor con que el suelo entrega su calor según la temperatura de la zona.
float FactorT(float T) {
  if (T <= 20.0F) return 0.5F;
  return T >= 25.0F ? 1.5F : 0.5F + 0.2F * (T - 20.0F);
}

std::array<float, 13> TodosLosMeses(float valor) {
  std::array<float, 13> meses{};
  meses.fill(valor);
  return meses;
}

// Añade elementos a la lista y a los valores del caso.
struct Creador {
  const Edificio& edificio;
  const AjustesUso& ajustes;
  calculo& caso;
  std::vector<ElementoOpaco>& elementos;
  const SerieHoraria& sumaMuros;

  const Recinto& r = edificio.GetRecinto(0);
  const Construccion& c = edificio.GetConstruccion();
  const ResultadosCaso& res = caso.resultados;
  const SeriesClima& clima = caso.clima;
  float F = res.alturaLibre;
  float parteMuro = 1.0F - res.forzados.ReduccionMuros;

  ElementoOpaco& Nuevo(const std::string& sufijo, const char* grupo, std::string nombre,
                       const char* orientacion, float area, float sombra = 0) {
    Valores& v = caso.valores["0" + sufijo];
    v.recinto = "0";
    v.familia = "Opacos";
    v.grupo = grupo;
    v.nombre = std::move(nombre);
    v.orientacion = orientacion;
    v.areaBruta = area;
    v.areaSombra = sombra;
    ElementoOpaco e;
    e.valores = &v;
    e.serie1 = e.serie2 = &clima.SUELOEXT;
    e.sombra = TodosLosMeses(sombra);
    elementos.push_back(e);
    return elementos.back();
  }

  // Cubierta con una parte en sombra, que responde como el suelo exterior.
  void Cubierta(const std::string& sufijo, std::string nombre, const char* orientacion, float area,
                float sombra, float U, const SerieHoraria& alSol) {
    if (area <= 0.0F) return;
    ElementoOpaco& e =
        Nuevo(sufijo, "Cubiertas", std::move(nombre), orientacion, area * F, sombra * F);
    e.serie1 = &alSol;
    e.peso1 = TodosLosMeses((area - sombra) * F * U);
    e.peso2 = TodosLosMeses(sombra * F * U);
  }

  // Elemento con una sola serie y un peso que no cambia.
  void Simple(const std::string& sufijo, const char* grupo, std::string nombre,
              const char* orientacion, float area, const SerieHoraria& serie, float peso,
              bool conFactorT = false) {
    ElementoOpaco& e = Nuevo(sufijo, grupo, std::move(nombre), orientacion, area);
    e.serie1 = &serie;
    e.peso1 = TodosLosMeses(peso);
    e.conFactorT = conFactorT;
  }

  void Terreno(const std::string& sufijo, const char* grupo, std::string nombre, float area,
               const CoeficientesTerreno& coef, bool conFactorT) {
    ElementoOpaco& e = Nuevo(sufijo, grupo, std::move(nombre), "HORIZONTAL", area);
    const DatosClimaticosSitio& sitio = edificio.GetDatosClimaticosSitio();
    for (int m = 1; m <= kMeses; ++m)
      e.fijo[static_cast<std::size_t>(m)] = FlujoTerreno(coef, m, sitio.mediaAnual, sitio.amplitud);
    e.conFactorT = conFactorT;
  }

  void Cubiertas() {
    for (std::size_t t = 0; t < 3; ++t) {
      Cubierta(ConTipo("-CubHzExt", t), "HzExt" + std::to_string(t + 1), "HORIZONTAL",
               r.Cubierta_horiz_sol_m2[t], r.Cubierta_horiz_sombra_m2[t],
               res.Uefectiva[ranura::TechoExt1 + t], clima.CLIGEROH);
      for (std::size_t s = 0; s < kSectores; ++s)
        Cubierta(ConTipo(std::string("-CubIncli30") + kSigla[s], t),
                 "Incli" + std::to_string(t + 1), kOrientacion[s], r.Cubierta_incl_m2[t][s],
                 r.Cubierta_incl_Sombra_m2[t][s], res.Uefectiva[ranura::TechoInc1 + t],
                 clima.CLIGERO[s]);
    }
    constexpr std::array kTecho = {ranura::TechoVent1, ranura::TechoVent3};
    constexpr std::array kExterior = {ranura::TechoVent2, ranura::TechoVent4};
    for (std::size_t i = 0; i < 2; ++i) {
      const float area = r.Cubierta_techo_ventilado_m2[i];
      const float U = res.Uefectiva[kTecho[i]];
      const float b = FactorLocalNoHabitable(
          area * U, r.Cubierta_buhardilla_ext_m2[i] * res.Uefectiva[kExterior[i]],
          c.Renovacion_Buhardilla[i]);
      if (area > 0.0F)
        Simple(ConTipo("-CubAbuarL_B", i), "Cubiertas", "Buhardilla" + std::to_string(i + 1),
               "HORIZONTAL", area * F, clima.CLIGEROH, area * F * b * U);
      const float terreno = r.Cubierta_terreno_m2[i];
      if (terreno > 0.0F)
        Simple(ConTipo("-CubTerreno", i), "Cubiertas", "Terreno" + std::to_string(i + 1),
               "HORIZONTAL", terreno * F, clima.SUELOEXT,
               terreno * F * res.Uefectiva[ranura::TechoTerr1 + i]);
    }
  }

  // Muro de una orientación: la parte en sombra responde como el norte y cambia cada mes.
  void MuroExterior(std::size_t tipo, std::size_t s) {
    const float area = r.Muro_ext_m2[tipo][s] * parteMuro * F;
    if (area <= 0.0F) return;
    const float U = res.Uefectiva[ranura::MuroExt1 + tipo];
    const float var = s == norte ? 0.0F : r.Muro_ext_Var_m2[tipo][s] * parteMuro * F;
    const std::string numero = std::to_string(tipo + 1);
    ElementoOpaco& e =
        Nuevo("-Muro" + numero + kSigla[s], "Muros", "Muro" + numero, kOrientacion[s], area, var);
    e.serie1 = &clima.MLIGERO[s];
    e.serie2 = &clima.MLIGERO[norte];
    for (int m = 1; m <= kMeses; ++m) {
      const auto i = static_cast<std::size_t>(m);
      if (s != norte) {
        const float f =
            FraccionObstaculos(static_cast<Sector>(s), edificio.GetObstaculosRemotos(),
                               edificio.GetLocalizacion().latitud, m, caso.alturaEdificio);
        const float sombra = SombraMuro(area, var, f, ajustes.perfil, ajustes.verano[i]);
        if (sombra >= 0.0F) e.sombra[i] = sombra;
      }
      e.peso1[i] = (area - e.sombra[i]) * U;
      e.peso2[i] = e.sombra[i] * U;
    }
  }

  void Muros() {
    for (std::size_t t = 0; t < r.Muro_ext_m2.size(); ++t)
      for (std::size_t s = 0; s < kSectores; ++s) MuroExterior(t, s);
    constexpr std::array kMuro = {ranura::MuroOtro3, ranura::MuroOtro7};
    constexpr std::array kExterior = {ranura::MuroExt6, ranura::MuroExt7};
    for (std::size_t i = 0; i < 2; ++i) {
      const std::string numero = std::to_string(i + 1);
      const float area = r.Muro_otro_local_m2[i];
      const float U = res.Uefectiva[kMuro[i]];
      const float b = FactorLocalNoHabitable(
          area * U, r.Muro_otro_local_ext_m2[i] * res.Uefectiva[kExterior[i]],
          c.Renovacion_Otro_Local[i]);
      if (area > 0.0F)
        Simple(ConTipo("-MuroLocalNoHabL_N", i), "Muros", "LocalNoHab" + numero, "NORTE",
               area * parteMuro * F, sumaMuros, area * parteMuro * F * b * 0.25F * U);
      const float terreno = r.Muro_al_terreno_m2[i] * parteMuro;
      if (terreno > 0.0F)
        Terreno(ConTipo("-MuroTerreno", i), "Muros", "Terreno" + numero, terreno * F,
                CoeficientesMuroTerreno(res.Uefectiva[ranura::MuroTerr1 + i], terreno,
                                        c.Profundidad_muro_enterrado_m[i]),
                false);
    }
  }

  void Suelos() {
    constexpr std::array kSuelo = {ranura::SueloVent1, ranura::SueloVent3};
    constexpr std::array kExterior = {ranura::MuroExt8, ranura::MuroExt9};
    for (std::size_t i = 0; i < 2; ++i) {
      const std::string numero = std::to_string(i + 1);
      const float exterior = r.Suelo_ext_m2[i];
      if (exterior > 0.0F)
        Simple(ConTipo("-SueloExt", i), "Suelos", "Exterior" + numero, "HORIZONTAL", exterior * F,
               clima.SUELOEXT, exterior * F * res.Uefectiva[ranura::SueloExt1 + i], true);
      const float local = r.Suelo_otro_local_m2[i];
      const float U = res.Uefectiva[kSuelo[i]];
      const float b = FactorLocalNoHabitable(
          local * U, r.Suelo_otro_local_ext_m2[i] * res.Uefectiva[kExterior[i]],
          c.Renovacion_Otro_Local_suelo[i]);
      if (local > 0.0F)
        Simple(ConTipo("-SueloLocalNoHabL_N", i), "Suelos", "LocalNoHab" + numero, "HORIZONTAL",
               local * F, clima.SUELOEXT, local * F * b * U);
      const float camara = r.Suelo_vacio_sanitario_m2[i];
      if (camara > 0.0F)
        Simple(ConTipo("-SueloVacioSanitario", i), "Suelos", "VacioSanitario" + numero,
               "HORIZONTAL", camara * F, clima.SUELOEXT,
               camara * F * kFactorCamara * res.Uefectiva[ranura::SueloOtro1 + i]);
    }
    for (std::size_t i = 0; i < 3; ++i) {
      const float area = r.Suelo_al_terreno_m2[i];
      if (area > 0.0F)
        Terreno(ConTipo("-SueloTerreno", i), "Suelos", "Terreno" + std::to_string(i + 1), area * F,
                CoeficientesSolera(res.Uefectiva[ranura::SueloTerr1 + i], area,
                                   r.Perimetro_Ext_Suelo_Terreno_m[i], c.suelosTerreno[i]),
                true);
    }
  }
};

}  // namespace

ElementosOpacos::ElementosOpacos(const Edificio& edificio, const AjustesUso& ajustes,
                                 calculo& caso) {
  for (int h = 1; h <= kHorasAno; ++h)
    sumaMuros_[h] = caso.clima.MLIGERO[norte][h] + caso.clima.MLIGERO[sur][h] +
                    caso.clima.MLIGERO[este][h] + caso.clima.MLIGERO[oeste][h];
  Creador creador{edificio, ajustes, caso, elementos_, sumaMuros_};
  creador.Cubiertas();
  creador.Muros();
  creador.Suelos();
}

void ElementosOpacos::RefrescarMes(int mes) {
  for (ElementoOpaco& e : elementos_)
    e.valores->areaSombra = e.sombra[static_cast<std::size_t>(mes)];
}

float ElementosOpacos::Ganancias(int h, int mes, float Tanterior) {
  const auto m = static_cast<std::size_t>(mes);
  const float fT = FactorT(Tanterior);
  float suma = 0;
  for (ElementoOpaco& e : elementos_) {
    float valor = e.peso1[m] * (*e.serie1)[h] + e.peso2[m] * (*e.serie2)[h] + e.fijo[m];
    if (e.conFactorT) valor *= fT;
    e.valores->valor[h] = valor;
    suma += valor;
  }
  return suma;
}

}  // namespace novex
