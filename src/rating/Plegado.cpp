#include "rating/Plegado.h"

#include <algorithm>

#include "rating/EquipoDefecto.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

using PorServicio = std::array<float, kServicios>;
using PorVector = std::array<float, kVectores>;

// Lo que el plegado toma de fuera de las tablas.
struct Contexto {
  float area;  // m2
  bool residencial;
  ModoDefecto modo;
  Conversor conversor;
};

Contexto LeerContexto(const Edificio& edificio, const calculo& caso) {
  const DatosGenerales& generales = edificio.GetDatosGenerales();
  return {edificio.GetRecinto(0).Suelo_habitable_m2, generales.EsResidencial(),
          ModoDefectoDe(generales.Equipos_Defecto),
          Conversor(caso.resultados.factores, edificio.GetLocalizacion().Provincia)};
}

float PorArea(float valor, const Contexto& contexto) {
  return contexto.area > 0.0F ? valor / contexto.area : 0.0F;
}

void SumarAnos(TablasMensuales& meses) {
  for (auto& vector : meses.consumo) std::for_each(vector.begin(), vector.end(), SumarAno);
  for (auto* tabla : {&meses.ambiente, &meses.bombas, &meses.ventiladores, &meses.defecto,
                      &meses.demanda, &meses.servida})
    std::for_each(tabla->begin(), tabla->end(), SumarAno);
  for (auto* tabla :
       {&meses.ventilacion, &meses.iluminacion, &meses.produccionFotovoltaica, &meses.calorBiomasa,
        &meses.solarCaptada, &meses.perdidaTuberiaCaptador, &meses.perdidaDepositoSolar,
        &meses.perdidaDeposito, &meses.perdidaRetorno, &meses.irradiacionCaptadores})
    SumarAno(*tabla);
}

// Electricidad de un servicio con demanda en un mes sin la del equipo por defecto, kWh.
float ElectricidadDeSistemas(const TablasMensuales& meses, std::size_t servicio, std::size_t m) {
  float suma = meses.consumo[Indice(VectorEnergetico::Electricidad)][servicio][m] +
               meses.bombas[servicio][m];
  if (servicio != kACS) suma += meses.ventiladores[servicio][m];
  return suma;
}

// Uso eléctrico de cada servicio en un mes, kWh: es el que comparte la fotovoltaica.
PorServicio UsoElectrico(const TablasMensuales& meses, std::size_t m, const Contexto& contexto) {
  PorServicio uso{};
  for (std::size_t s = 0; s < kServiciosDemanda; ++s) uso[s] = ElectricidadDeSistemas(meses, s, m);
  if (!contexto.residencial) uso[kACS] += meses.defecto[kACS][m];
  if (contexto.modo != ModoDefecto::No) uso[kRefrigeracion] += meses.defecto[kRefrigeracion][m];
  uso[kVentilacion] = meses.ventilacion[m];
  uso[kIluminacion] = contexto.residencial ? 0.0F : meses.iluminacion[m];
  return uso;
}

// Parte fotovoltaica de cada servicio en un mes, kWh: lo producido por encima del uso se pierde.
PorServicio RepartoFotovoltaico(const PorServicio& uso, float produccion) {
  float total = 0.0F;
  for (const float u : uso) total += u;
  PorServicio reparto{};
  if (total == 0.0F) return reparto;
  const float aprovechada = std::min(produccion, total);
  for (std::size_t s = 0; s < kServicios; ++s) reparto[s] = aprovechada * uso[s] / total;
  return reparto;
}

// Quita lo que los sistemas dieron a un servicio, para ponerlo en un solo vector.
void VaciarServicio(TablasMensuales& meses, std::size_t servicio) {
  for (auto& vector : meses.consumo) vector[servicio] = {};
  meses.ambiente[servicio] = {};
  meses.defecto[servicio] = {};
  if (servicio != kACS) return;
  for (auto* tabla :
       {&meses.solarCaptada, &meses.perdidaTuberiaCaptador, &meses.perdidaDepositoSolar,
        &meses.perdidaDeposito, &meses.perdidaRetorno, &meses.irradiacionCaptadores})
    *tabla = {};
}

void ForzarServicio(TablasMensuales& meses, std::size_t servicio, const ServicioForzado& forzado,
                    float area) {
  VaciarServicio(meses, servicio);
  const auto vector = VectorDeNombre(forzado.combustible);
  if (!vector || Indice(*vector) >= kVectoresConsumo || forzado.rendimiento == 0.0F) return;
  if (servicio == kRefrigeracion && *vector != VectorEnergetico::Electricidad) return;
  TablaMensual& fila = meses.consumo[Indice(*vector)][servicio];
  const float signo = servicio == kCalefaccion ? -1.0F : 1.0F;
  for (std::size_t m = 1; m <= kMeses; ++m)
    fila[m] = area * signo * meses.demanda[servicio][m] / forzado.rendimiento;
  SumarAno(fila);
}

void ForzarServicios(const Forzados& forzados, TablasMensuales& meses, float area) {
  if (forzados.CasoACS.Concreto()) ForzarServicio(meses, kACS, forzados.CasoACS, area);
  if (forzados.CasoCalefaccion.Concreto())
    ForzarServicio(meses, kCalefaccion, forzados.CasoCalefaccion, area);
  if (forzados.CasoRefrigeracion.Concreto())
    ForzarServicio(meses, kRefrigeracion, forzados.CasoRefrigeracion, area);
}

// Energía final de un servicio con demanda en un mes, por vector y sin el equipo por defecto, kWh.
// La solar puede ser negativa en un mes sin sol, y entra como está.
PorVector FinalDeSistemas(const TablasMensuales& meses, std::size_t s, std::size_t m,
                          float fotovoltaica) {
  PorVector vectores{};
  for (std::size_t v = 0; v < kVectoresConsumo; ++v) vectores[v] = meses.consumo[v][s][m];
  vectores[Indice(VectorEnergetico::Electricidad)] =
      ElectricidadDeSistemas(meses, s, m) - fotovoltaica;
  if (s == kACS)
    vectores[Indice(VectorEnergetico::Energiasolartermica)] =
        meses.solarCaptada[m] - meses.perdidaTuberiaCaptador[m] - meses.perdidaDepositoSolar[m];
  vectores[Indice(VectorEnergetico::MedioAmbiente)] = meses.ambiente[s][m];
  vectores[Indice(VectorEnergetico::Energiasolarfotovoltaica)] = fotovoltaica;
  return vectores;
}

float SumaConvertida(const PorVector& vectores, std::size_t unidad, const Conversor& conversor) {
  float suma = 0.0F;
  for (std::size_t v = 0; v < kVectores; ++v)
    suma += conversor.Convertir(static_cast<VectorEnergetico>(v), unidad, vectores[v]);
  return suma;
}

float SumaComprada(const PorVector& vectores) {
  float suma = 0.0F;
  for (std::size_t v = 0; v < kVectoresConsumo; ++v) suma += vectores[v];
  return suma;
}

void GuardarMes(IndicadoresServicio& indicadores, const PorVector& vectores, std::size_t m) {
  for (std::size_t v = 0; v < kVectores; ++v) indicadores.finalPorVector[v][m] = vectores[v];
}

void SumarAnos(IndicadoresServicio& indicadores) {
  for (auto& tabla : indicadores.porUnidad) SumarAno(tabla);
  for (auto& tabla : indicadores.finalPorVector) SumarAno(tabla);
}

// Un servicio con demanda en un mes. \returns kg de CO2 que cuentan como de la electricidad
float PlegarMes(std::size_t s, std::size_t m, float fotovoltaica, const Contexto& contexto,
                const TablasMensuales& meses, IndicadoresServicio& indicadores) {
  PorVector vectores = FinalDeSistemas(meses, s, m, fotovoltaica);
  const float emisionesElectricas = contexto.conversor.Emisiones(
      VectorEnergetico::Electricidad, vectores[Indice(VectorEnergetico::Electricidad)]);
  if (contexto.modo == ModoDefecto::Si)
    vectores[Indice(VectorDefecto(s, contexto.residencial))] += meses.defecto[s][m];

  GuardarMes(indicadores, vectores, m);
  indicadores.finalSinRenovables += PorArea(SumaComprada(vectores), contexto);
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    indicadores.porUnidad[u][m] =
        PorArea(SumaConvertida(vectores, u, contexto.conversor), contexto);
  // En refrigeración cuentan todas sus emisiones, con las del equipo por defecto.
  return s == kRefrigeracion ? SumaConvertida(vectores, kEmisiones, contexto.conversor)
                             : emisionesElectricas;
}

// Ventilación o iluminación en un mes. Su energía final no cuenta la parte fotovoltaica; las demás
// unidades, sí.
void PlegarMesElectrico(std::size_t m, float uso, float fotovoltaica, const Contexto& contexto,
                        IndicadoresServicio& indicadores) {
  PorVector vectores{};
  vectores[Indice(VectorEnergetico::Electricidad)] = uso - fotovoltaica;
  vectores[Indice(VectorEnergetico::Energiasolarfotovoltaica)] = fotovoltaica;
  GuardarMes(indicadores, vectores, m);
  indicadores.finalSinRenovables += PorArea(SumaComprada(vectores), contexto);
  indicadores.porUnidad[kFinal][m] = PorArea(uso - fotovoltaica, contexto);
  for (std::size_t u = kPrimariaTotal; u < kUnidadesEnergia; ++u)
    indicadores.porUnidad[u][m] =
        PorArea(SumaConvertida(vectores, u, contexto.conversor), contexto);
}

}  // namespace

void PlegarCaso(const Edificio& edificio, calculo& caso) {
  const Contexto contexto = LeerContexto(edificio, caso);
  TablasMensuales& meses = caso.meses;
  auto& servicio = caso.resultados.servicio;
  servicio = {};
  SumarAnos(meses);

  // El reparto se hace con lo simulado, antes de sustituir ningún servicio.
  std::array<PorServicio, kMeses + 1> uso{}, fotovoltaica{};
  for (std::size_t m = 1; m <= kMeses; ++m) {
    uso[m] = UsoElectrico(meses, m, contexto);
    fotovoltaica[m] = RepartoFotovoltaico(uso[m], meses.produccionFotovoltaica[m]);
  }
  ForzarServicios(caso.resultados.forzados, meses, contexto.area);

  float emisionesElectricas = 0.0F;
  for (std::size_t m = 1; m <= kMeses; ++m) {
    for (std::size_t s = 0; s < kServiciosDemanda; ++s)
      emisionesElectricas += PlegarMes(s, m, fotovoltaica[m][s], contexto, meses, servicio[s]);
    for (const Servicio s : {kVentilacion, kIluminacion})
      PlegarMesElectrico(m, uso[m][s], fotovoltaica[m][s], contexto, servicio[s]);
  }
  std::for_each(servicio.begin(), servicio.end(),
                [](IndicadoresServicio& indicadores) { SumarAnos(indicadores); });
  for (std::size_t s = 0; s < kServiciosDemanda; ++s)
    servicio[s].finalDefecto = PorArea(meses.defecto[s][0], contexto);
  caso.resultados.emisionesElectricidad = PorArea(emisionesElectricas, contexto) +
                                          servicio[kVentilacion].porUnidad[kEmisiones][0] +
                                          servicio[kIluminacion].porUnidad[kEmisiones][0];
}

}  // namespace novex
