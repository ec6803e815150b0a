#include "compliance/RequisitoHE4.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "base/Calendario.h"
#include "compliance/Meses.h"
#include "rating/FactoresConversion.h"
#include "systems/DemandaACS.h"

namespace novex {
namespace {

constexpr double kTemperaturaACS = 60;  // °C
constexpr double kCpAgua = 4.184;       // kJ/l°C
constexpr double kSegundosHora = 3600;

constexpr float kVolumenMinimo = 100;   // l/día: por debajo no se exige
constexpr float kVolumenGrande = 5000;  // l/día: desde él se exige más
constexpr int kMinimoPequeno = 60;      // %
constexpr int kMinimoGrande = 70;       // %

constexpr const char* kNoAplicable = "No aplicable";

struct FilaMensual {
  std::string nombre;
  TablaMensual valores;
};

TablaMensual Suma(const std::vector<FilaMensual>& filas) {
  TablaMensual suma{};
  for (const FilaMensual& fila : filas)
    for (std::size_t m = 0; m < suma.size(); ++m) suma[m] += fila.valores[m];
  return suma;
}

// Las filas llevan su año en la posición 0; en la tabla va al final.
Tabla Rejilla(const char* titulo, const char* esquina, const std::vector<FilaMensual>& filas) {
  Tabla tabla;
  tabla.titulo = titulo;
  tabla.cabeceras = {esquina};
  tabla.cabeceras.insert(tabla.cabeceras.end(), kMesesCortos.begin(), kMesesCortos.end());
  tabla.cabeceras.emplace_back("ANUAL");
  for (const auto& [nombre, valores] : filas) {
    std::vector<Celda> fila = {nombre};
    for (std::size_t m = 1; m <= kMeses; ++m)
      fila.push_back(Celda::Numero(static_cast<double>(valores[m]), 2));
    fila.push_back(Celda::Numero(static_cast<double>(valores[0]), 2));
    tabla.filas.push_back(std::move(fila));
  }
  return tabla;
}

std::vector<FilaMensual> FilasDemanda(const Edificio& edificio, const TablasMensuales& meses) {
  const float superficie = edificio.GetRecinto(0).Suelo_habitable_m2;
  TablaMensual demanda{};
  for (std::size_t m = 1; m <= kMeses; ++m) demanda[m] = meses.demanda[kACS][m] * superficie;
  std::vector<FilaMensual> filas = {{"Demanda ACS", demanda},
                                    {"Depósito ACS", meses.perdidaDeposito},
                                    {"Recirculación", meses.perdidaRetorno}};
  for (FilaMensual& fila : filas) SumarAno(fila.valores);
  filas.push_back({"Total", Suma(filas)});
  return filas;
}

std::vector<FilaMensual> FilasAportes(const Edificio& edificio, const ResultadosCaso& resultados) {
  const Conversor conversor(resultados.factores, edificio.GetLocalizacion().Provincia);
  const auto& energia = resultados.servicio[kACS].finalPorVector;
  const auto aporte = [&](std::string nombre, std::initializer_list<VectorEnergetico> vectores) {
    FilaMensual fila{std::move(nombre), {}};
    for (const VectorEnergetico v : vectores)
      for (std::size_t m = 1; m <= kMeses; ++m)
        fila.valores[m] += conversor.PrimariaRenovable(v, energia[Indice(v)][m]);
    SumarAno(fila.valores);
    return fila;
  };
  using enum VectorEnergetico;
  std::vector<FilaMensual> filas = {aporte("Medio Ambiente", {MedioAmbiente}),
                                    aporte("Solar Térmica", {Energiasolartermica}),
                                    aporte("Solar Fotovoltáica", {Energiasolarfotovoltaica}),
                                    aporte("Biomasa", {Biomasa_Pellet, Biomasa_Otros})};
  filas.push_back({"Total", Suma(filas)});
  return filas;
}

double Contribucion(float renovable, float demanda) {
  if (!(demanda > 0.0F)) return 0;
  return std::min(100.0, 100.0 * static_cast<double>(renovable) / static_cast<double>(demanda));
}

std::vector<CampoHE4> Campos(const Edificio& edificio, float volumen, int minimo) {
  const Ventilacion& viviendas = edificio.GetVentilacion();
  const TablaMensual& aguaRed = edificio.GetDatosClimaticosSitio().aguaRed;
  const auto cifra = [](float valor) { return Celda::Numero(static_cast<double>(valor), 2); };
  return {{"EditNP", "Nº de personas totales", cifra(PersonasTotales(viviendas))},
          {"EditNVT", "Nº de viviendas", Celda::Numero(viviendas.NumeroViviendas(), 0)},
          {"EditFcentra", "Factor de centralizacion",
           cifra(FactorCentralizacion(viviendas.NumeroViviendas()))},
          {"EditCEACS", "Demanda anual de ACS (kWh)",
           Celda::Numero(DemandaAnualACS(volumen, aguaRed), 2)},
          {"EditConsumoACS", "Consumo agua (litros/dia)",
           cifra(edificio.GetDatosGenerales().ConsumoAgua_litros_dia)},
          {"EditTred", "Temp. media agua red ºC", cifra(aguaRed[0])},
          {"EditZR", "Zona climática en radiación            ",
           edificio.GetLocalizacion().zona_radiante},
          {"EditASolar", "Aporte renovable mínimo en ACS              CTE-HE4 (2019)%",
           Celda::Numero(minimo, 0)}};
}

// Por qué no se exige; vacío si se exige.
std::string MotivoNoAplicable(const Edificio& edificio, float volumen, bool exenta) {
  if (volumen < kVolumenMinimo) return "El volumen diario de referencia es menor de 100 l/día";
  if (exenta) return "No se exige en este tipo de intervención";
  if (edificio.GetDatosGenerales().ConsumoAgua_litros_dia < kVolumenMinimo)
    return "El consumo diario de agua caliente es menor de 100 l/día";
  return {};
}

void Juzgar(RequisitoHE4& r, const std::string& motivo, float volumen) {
  r.aplica = motivo.empty();
  r.pasa = !r.aplica || r.fEntera >= r.minimo;
  r.LabelCUMPEHE4 = !r.aplica ? kNoAplicable : r.pasa ? "Cumple" : "No cumple";
  // Los documentos comparan sin quitar los decimales y llevan cinco cifras significativas a lo más.
  r.RERACSNRB = FijoCifras(r.f, 5, 2);
  if (r.aplica) r.RERACSNRBMIN = FijoCifras(r.minimo, 5, 2);
  r.RERACSCUMPLE = !r.aplica ? kNoAplicable : r.minimo <= r.f ? "Si cumple" : "No cumple";

  Veredicto& v = r.veredicto;
  v.seccion = kSeccionHE4;
  v.requisito = "Contribución renovable al ACS";
  v.valor = r.f;
  v.unidad = "%";
  v.veredicto = r.LabelCUMPEHE4;
  v.nota = motivo;
  v.aplica = r.aplica;
  v.pasa = r.pasa;
  if (!r.aplica) return;
  v.limite = r.minimo;
  v.nota = volumen < kVolumenGrande ? "Volumen diario de referencia menor de 5000 l/día"
                                    : "Volumen diario de referencia de 5000 l/día o más";
}

}  // namespace

double DemandaAnualACS(float volumen, const TablaMensual& aguaRed) {
  double gradosDia = 0;
  for (std::size_t m = 1; m <= kMeses; ++m)
    gradosDia += kDiasMes[m] * (kTemperaturaACS - static_cast<double>(aguaRed[m]));
  return static_cast<double>(volumen) * kCpAgua * gradosDia / kSegundosHora;
}

int AporteRenovableMinimo(float volumenReferencia) {
  return volumenReferencia < kVolumenGrande ? kMinimoPequeno : kMinimoGrande;
}

RequisitoHE4 ComprobarHE4(const Edificio& edificio, const calculo& caso, bool exenta) {
  const float volumen = VolumenReferencia(edificio);
  const std::vector<FilaMensual> demanda = FilasDemanda(edificio, caso.meses);
  const std::vector<FilaMensual> aportes = FilasAportes(edificio, caso.resultados);
  RequisitoHE4 r;
  r.minimo = AporteRenovableMinimo(volumen);
  r.campos = Campos(edificio, volumen, r.minimo);
  r.SGHE4Demanda = Rejilla("Demanda de ACS y pérdidas", "Demanda kWh", demanda);
  r.SGHE4Demanda.notas = {"Depósito ACS y Recirculación " + std::string(kTextoPerdidasHE4)};
  r.SGRenovACS = Rejilla("Aportes renovables al ACS", "Aportes kWh", aportes);
  r.f = Contribucion(aportes.back().valores[0], demanda.front().valores[0]);
  r.fEntera = static_cast<int>(r.f);
  Juzgar(r, MotivoNoAplicable(edificio, volumen, exenta), volumen);
  return r;
}

}  // namespace novex
