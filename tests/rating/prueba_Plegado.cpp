#include <gtest/gtest.h>

#include "base/ErrorFichero.h"
#include "rating/EdificioPrueba.h"
#include "rating/EquipoDefecto.h"
#include "rating/FactoresConversion.h"
#include "rating/Plegado.h"

namespace novex {
namespace {

using pruebas::EdificioDe100;

constexpr const char* kResidencial =
    "RENDACSR=\"0.92\" COMBACSR=\"GasNatural\" RENDCALER=\"0.8\" COMBCALER=\"GLP\" "
    "RENDREFRIR=\"2.0\" COMBREFRIR=\"Electricidad\"";

EquipoDefecto Leer(const std::string& atributos, bool residencial) {
  RegistroMensajes mensajes;
  const XMLNode raiz = XMLNode::parseString("<DEFECTO><DEFECTO " + atributos + "/></DEFECTO>",
                                            "DEFECTO", "Defecto.xml");
  return LeerDefecto(raiz, "Defecto.xml", residencial, mensajes);
}

TEST(EquipoDefecto, LeeElJuegoDelUsoYRechazaUnRendimientoNulo) {
  const EquipoDefecto equipo = Leer(kResidencial, true);
  EXPECT_FLOAT_EQ(equipo.rendimiento[kACS], 0.92F);
  EXPECT_FLOAT_EQ(equipo.rendimiento[kCalefaccion], 0.8F);
  EXPECT_FLOAT_EQ(equipo.rendimiento[kRefrigeracion], 1.4F);
  EXPECT_EQ(equipo.combustible[kACS], "GasNatural");
  EXPECT_EQ(equipo.combustible[kCalefaccion], "GLP");
  // El juego del otro uso no hace falta, y el propio sí.
  EXPECT_THROW(Leer(kResidencial, false), ErrorFichero);
  const std::pair<const char*, const char*> faltas[] = {
      {"RENDACSR=\"0.92\" RENDCALER=\"0.8\"", "RENDREFRIR"},
      {"RENDACSR=\"0\" RENDCALER=\"0.8\" RENDREFRIR=\"2\"", "RENDACSR"},
      {"RENDACSR=\"1\" RENDCALER=\"x\" RENDREFRIR=\"2\"", "RENDCALER"},
      {"RENDACSR=\"1\" RENDCALER=\"-0.9\" RENDREFRIR=\"2\"", "RENDCALER"}};
  for (const auto& [atributos, culpable] : faltas) {
    try {
      Leer(atributos, true);
      ADD_FAILURE() << atributos;
    } catch (const ErrorFichero& error) {
      EXPECT_NE(std::string(error.what()).find(culpable), std::string::npos) << error.what();
      EXPECT_EQ(error.ruta, "Defecto.xml");
    }
  }
}

class HoraDefecto : public testing::Test {
 protected:
  HoraDefecto() { caso->resultados.defecto.rendimiento = {0.5F, 0.8F, 2.0F}; }
  void Cargar(int h, ModoDefecto modo) { CargarDefectoHora(h, {1, 4, 6}, modo, *caso); }
  float Fila(Servicio s, std::size_t mes) const { return caso->meses.defecto[s][mes]; }
  float Serie(Servicio s, int h) const { return caso->zona.defecto[s][h]; }

  std::unique_ptr<calculo> caso = std::make_unique<calculo>();
};

TEST_F(HoraDefecto, ConEquiposPorDefectoSeTomaTodoEnElMesDeLaHora) {
  Cargar(744, ModoDefecto::Si);
  Cargar(745, ModoDefecto::Si);
  Cargar(1416, ModoDefecto::Si);
  EXPECT_FLOAT_EQ(Fila(kACS, 1), 2);
  EXPECT_FLOAT_EQ(Fila(kCalefaccion, 1), 5);
  EXPECT_FLOAT_EQ(Fila(kRefrigeracion, 1), 3);
  EXPECT_FLOAT_EQ(Fila(kCalefaccion, 2), 10);
  EXPECT_FLOAT_EQ(Serie(kACS, 744), 1000);
  EXPECT_FLOAT_EQ(Serie(kCalefaccion, 745), 4000);
  EXPECT_FLOAT_EQ(Serie(kRefrigeracion, 1416), 6000);
  Cargar(8760, ModoDefectoDe("NO"));
  EXPECT_FLOAT_EQ(Serie(kACS, 8760), 1000);
  EXPECT_EQ(Serie(kCalefaccion, 8760), 0);
  for (const Servicio s : {kACS, kCalefaccion, kRefrigeracion}) EXPECT_EQ(Fila(s, 12), 0);

  // Un texto que no es "SI" ni "NO" carga el agua caliente y nada más.
  Cargar(8760, ModoDefectoDe(""));
  EXPECT_FLOAT_EQ(Fila(kACS, 12), 2);
  EXPECT_EQ(Fila(kCalefaccion, 12), 0);
  EXPECT_EQ(Fila(kRefrigeracion, 12), 0);
}

TEST(Iluminacion, SumaLosHorariosSinElRetardoRadiante) {
  auto caso = std::make_unique<calculo>();
  // 10 W/m2 en las 744 horas de enero y en la última del año; 100 m2.
  for (int h = 1; h <= 744; ++h) caso->carga.QILUhT[h] = 10;
  caso->carga.QILUhT[8760] = 10;
  caso->carga.QILUh.assign(kHorasAno + 1, 99.0F);
  EXPECT_NEAR(CargarIluminacion(*pruebas::EdificioDe100(7, "NO"), *caso), 7.45, 1e-3);
  EXPECT_NEAR(caso->meses.iluminacion[1], 744, 0.01);
  EXPECT_NEAR(caso->meses.iluminacion[12], 1, 1e-5);
  EXPECT_EQ(caso->meses.iluminacion[2], 0);

  EXPECT_EQ(CargarIluminacion(*pruebas::EdificioDe100(2, "NO"), *caso), 0);
  EXPECT_EQ(caso->meses.iluminacion[1], 0);
}

// Fila i: CO2 = i, EPR = 100 + i, EPNoR = 200 + i, EPTotal = 300 + i. Las etiquetas no cuentan.
XMLNode Fichero(int filas) {
  std::string texto = "<FACTORES_CONVERSION>";
  for (int i = 0; i < filas; ++i) {
    const std::string n = std::to_string(i);
    texto += "<f CO2=\"" + n + "\" EPR=\"" + std::to_string(100 + i) + "\" EPNoR=\"" +
             std::to_string(200 + i) + "\" EPTotal=\"" + std::to_string(300 + i) + "\"/>";
  }
  return XMLNode::parseString(texto + "</FACTORES_CONVERSION>", "FACTORES_CONVERSION", "prueba");
}

TEST(FactoresConversion, CadaVectorTomaSuFilaPorLaPosicion) {
  RegistroMensajes mensajes;
  const Conversor conversor(LeerFactores(Fichero(13), mensajes), "Madrid");
  const std::pair<VectorEnergetico, float> filas[] = {{VectorEnergetico::Electricidad, 1},
                                                      {VectorEnergetico::Gasoleo_C, 6},
                                                      {VectorEnergetico::GLP, 7},
                                                      {VectorEnergetico::GasNatural, 8},
                                                      {VectorEnergetico::Carbon, 9},
                                                      {VectorEnergetico::Biomasa_Otros, 10},
                                                      {VectorEnergetico::Biomasa_Pellet, 11},
                                                      {VectorEnergetico::Energiasolartermica, 12}};
  for (const auto& [vector, fila] : filas) {
    SCOPED_TRACE(kNombreVector[Indice(vector)]);
    EXPECT_FLOAT_EQ(conversor.Emisiones(vector, 2), 2 * fila);
    EXPECT_FLOAT_EQ(conversor.PrimariaRenovable(vector, 2), 2 * (100 + fila));
    EXPECT_FLOAT_EQ(conversor.PrimariaNoRenovable(vector, 2), 2 * (200 + fila));
    EXPECT_FLOAT_EQ(conversor.PrimariaTotal(vector, 2), 2 * (300 + fila));
  }
  EXPECT_TRUE(mensajes.recibidos.empty());
  // Las filas que faltan quedan a cero.
  const Conversor corto(LeerFactores(Fichero(8), mensajes), "Madrid");
  EXPECT_FLOAT_EQ(corto.Emisiones(VectorEnergetico::GLP, 1), 7);
  EXPECT_FLOAT_EQ(corto.PrimariaTotal(VectorEnergetico::GasNatural, 1), 0);
  EXPECT_FLOAT_EQ(corto.PrimariaTotal(VectorEnergetico::Energiasolartermica, 1), 0);
}

TEST(FactoresConversion, UnNumeroMalEscritoDaAviso) {
  RegistroMensajes mensajes;
  const XMLNode raiz =
      XMLNode::parseString("<F><a CO2=\"abc\"/><b CO2=\"0,5\" EPTotal=\"\"/></F>", "F", "prueba");
  const TablaFactores tabla = LeerFactores(raiz, mensajes);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_FLOAT_EQ(tabla[1].CO2, 0.5F);
  EXPECT_FLOAT_EQ(tabla[1].EPTotal, 0);
}

TEST(FactoresConversion, LaElectricidadTomaLaFilaDeSuProvincia) {
  RegistroMensajes mensajes;
  const TablaFactores tabla = LeerFactores(Fichero(13), mensajes);
  const std::pair<const char*, float> provincias[] = {
      {"Illes Balears", 3}, {"Las Palmas", 4}, {"Santa Cruz de Tenerife", 4},
      {"Ceuta", 5},         {"Melilla", 5},    {"Valencia/València", 1},
      {"las palmas", 1},    {"Ceuta ", 1},     {"", 1}};
  for (const auto& [provincia, fila] : provincias) {
    const Conversor conversor(tabla, provincia);
    EXPECT_FLOAT_EQ(conversor.Emisiones("Electricidad", 1), fila) << provincia;
    EXPECT_FLOAT_EQ(conversor.Emisiones("GasNatural", 1), 8) << provincia;
  }
}

TEST(FactoresConversion, VectoresSinFila) {
  const Conversor conversor(TablaFactores{}, "Madrid");
  for (const auto vector :
       {VectorEnergetico::MedioAmbiente, VectorEnergetico::Energiasolarfotovoltaica}) {
    EXPECT_EQ(conversor.Emisiones(vector, 10), 0);
    EXPECT_EQ(conversor.PrimariaNoRenovable(vector, 10), 0);
    EXPECT_EQ(conversor.PrimariaRenovable(vector, 10), 10);
    EXPECT_EQ(conversor.PrimariaTotal(vector, 10), 10);
  }
  EXPECT_FLOAT_EQ(conversor.PrimariaTotal("Biocarburantes", 100), 124);
  EXPECT_FLOAT_EQ(conversor.PrimariaNoRenovable("Biocarburantes", 100), 24);
}

TEST(FactoresConversion, UnidadOVectorDesconocidosDanCero) {
  RegistroMensajes mensajes;
  const Conversor conversor(LeerFactores(Fichero(13), mensajes), "Madrid");
  // Final, primaria total, no renovable, renovable y emisiones, en ese orden.
  const float esperado[] = {2, 2 * 308, 2 * 208, 2 * 108, 2 * 8, 0, 0};
  for (std::size_t unidad = 0; unidad < 7; ++unidad)
    EXPECT_FLOAT_EQ(conversor.Convertir("GasNatural", unidad, 2), esperado[unidad]) << unidad;
  for (const char* nombre : {"", "gasnatural", "60", "Electricidad "}) {
    EXPECT_EQ(conversor.Convertir(nombre, kFinal, 2), 0) << nombre;
    EXPECT_EQ(conversor.Emisiones(nombre, 2), 0) << nombre;
    EXPECT_EQ(TextoCertificado(nombre), "") << nombre;
  }
  EXPECT_EQ(TextoCertificado("Biomasa_Otros"), "BIOMASA");
  EXPECT_EQ(TextoCertificado(VectorEnergetico::Energiasolartermica), "SOLAR TERMICA");
}

constexpr auto kElec = Indice(VectorEnergetico::Electricidad);
constexpr auto kGas = Indice(VectorEnergetico::GasNatural);
constexpr auto kGasoleo = Indice(VectorEnergetico::Gasoleo_C);
constexpr auto kPellet = Indice(VectorEnergetico::Biomasa_Pellet);
constexpr auto kAmbiente = Indice(VectorEnergetico::MedioAmbiente);
constexpr auto kTermosolar = Indice(VectorEnergetico::Energiasolartermica);
constexpr auto kFV = Indice(VectorEnergetico::Energiasolarfotovoltaica);

// Coeficientes redondos, para hacer las cuentas a mano: electricidad 0.5 kg, 0.4 renovable, 2 no
// renovable y 2.4 total; gas 0.25, 0, 1.2, 1.2; gasóleo 0.3 kg; pellet 1 renovable; solar 1
// renovable.
class Plegado : public testing::Test {
 protected:
  Plegado() {
    auto& f = caso->resultados.factores;
    f[static_cast<std::size_t>(FilaFactor::ElectricidadPeninsular)] = {0.5F, 0.4F, 2.0F, 2.4F};
    f[static_cast<std::size_t>(FilaFactor::GasNatural)] = {0.25F, 0.0F, 1.2F, 1.2F};
    f[static_cast<std::size_t>(FilaFactor::Gasoleo_C)] = {0.3F, 0.0F, 1.2F, 1.2F};
    f[static_cast<std::size_t>(FilaFactor::Biomasa_Pellet)] = {0.0F, 1.0F, 0.0F, 1.0F};
    f[static_cast<std::size_t>(FilaFactor::Energiasolartermica)] = {0.0F, 1.0F, 0.0F, 1.0F};
  }
  void Plegar(int perfilUso = 0, const std::string& equiposDefecto = "NO") {
    PlegarCaso(*EdificioDe100(perfilUso, equiposDefecto), *caso);
  }
  float Ano(Servicio s, UnidadEnergia u) const { return Mes(s, u, 0); }
  float Mes(Servicio s, UnidadEnergia u, std::size_t m) const {
    return caso->resultados.servicio[s].porUnidad[u][m];
  }
  float Final(Servicio s, std::size_t vector, std::size_t m) const {
    return caso->resultados.servicio[s].finalPorVector[vector][m];
  }

  std::unique_ptr<calculo> caso = std::make_unique<calculo>();
  TablasMensuales& meses = caso->meses;
};

TEST_F(Plegado, CalefaccionSinFotovoltaica) {
  // Enero: gas 200, electricidad 30 + 10 de ventiladores + 10 de bombas, ambiente 100. Diciembre:
  // gas 100.
  meses.consumo[kGas][kCalefaccion][1] = 200;
  meses.consumo[kGas][kCalefaccion][12] = 100;
  meses.consumo[kElec][kCalefaccion][1] = 30;
  meses.ventiladores[kCalefaccion][1] = 10;
  meses.bombas[kCalefaccion][1] = 10;
  meses.ambiente[kCalefaccion][1] = 100;
  Plegar();
  EXPECT_FLOAT_EQ(Mes(kCalefaccion, kFinal, 1), 3.5F);
  EXPECT_FLOAT_EQ(Ano(kCalefaccion, kFinal), 4.5F);
  EXPECT_FLOAT_EQ(Ano(kCalefaccion, kPrimariaTotal), (300 * 1.2F + 50 * 2.4F + 100) / 100);
  EXPECT_FLOAT_EQ(Ano(kCalefaccion, kPrimariaNoRenovable), (300 * 1.2F + 50 * 2) / 100);
  EXPECT_FLOAT_EQ(Ano(kCalefaccion, kPrimariaRenovable), (50 * 0.4F + 100) / 100);
  EXPECT_FLOAT_EQ(Ano(kCalefaccion, kEmisiones), (300 * 0.25F + 50 * 0.5F) / 100);
  EXPECT_FLOAT_EQ(caso->resultados.servicio[kCalefaccion].finalSinRenovables, 3.5F);
  EXPECT_FLOAT_EQ(caso->resultados.emisionesElectricidad, 0.25F);
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kElec, 1), 50);
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kGas, 0), 300);
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kAmbiente, 1), 100);
  for (const Servicio s : {kACS, kRefrigeracion, kVentilacion, kIluminacion})
    EXPECT_EQ(Ano(s, kPrimariaTotal), 0);
}

TEST_F(Plegado, LaFotovoltaicaSeReparteEnElMesPorElUso) {
  // Enero: uso 50 + 30 + 20 y producción 60, que se reparte 30, 18 y 12.
  meses.consumo[kElec][kCalefaccion][1] = 50;
  meses.consumo[kElec][kACS][1] = 25;
  meses.bombas[kACS][1] = 5;
  meses.ventilacion[1] = 20;
  meses.produccionFotovoltaica[1] = 60;
  // Febrero produce sin uso; marzo produce de más, y el sobrante no pasa a abril.
  meses.produccionFotovoltaica[2] = 500;
  meses.consumo[kElec][kRefrigeracion][3] = 40;
  meses.produccionFotovoltaica[3] = 500;
  meses.consumo[kElec][kRefrigeracion][4] = 40;
  Plegar();

  EXPECT_FLOAT_EQ(Final(kCalefaccion, kElec, 1), 20);
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kFV, 1), 30);
  EXPECT_FLOAT_EQ(Final(kACS, kElec, 1), 12);
  EXPECT_FLOAT_EQ(Final(kACS, kFV, 1), 18);
  EXPECT_FLOAT_EQ(Ano(kACS, kFinal), 0.3F);
  EXPECT_FLOAT_EQ(Ano(kACS, kPrimariaTotal), (12 * 2.4F + 18) / 100);
  EXPECT_FLOAT_EQ(Ano(kACS, kEmisiones), 0.06F);
  // La energía final de la ventilación no cuenta su parte fotovoltaica; la primaria, sí.
  EXPECT_FLOAT_EQ(Ano(kVentilacion, kFinal), 0.08F);
  EXPECT_FLOAT_EQ(Ano(kVentilacion, kPrimariaTotal), (8 * 2.4F + 12) / 100);
  EXPECT_FLOAT_EQ(Ano(kVentilacion, kPrimariaRenovable), (8 * 0.4F + 12) / 100);
  EXPECT_FLOAT_EQ(Final(kVentilacion, kFV, 1), 12);

  for (const Servicio s : {kACS, kCalefaccion, kRefrigeracion, kVentilacion})
    EXPECT_EQ(Final(s, kFV, 2), 0);
  EXPECT_EQ(Mes(kRefrigeracion, kEmisiones, 3), 0);
  EXPECT_FLOAT_EQ(Mes(kRefrigeracion, kPrimariaRenovable, 3), 0.4F);
  EXPECT_FLOAT_EQ(Mes(kRefrigeracion, kEmisiones, 4), 0.2F);
  EXPECT_FLOAT_EQ(caso->resultados.emisionesElectricidad, (20 + 12 + 8 + 40) * 0.5F / 100);
}

TEST_F(Plegado, EquiposPorDefectoEnViviendas) {
  meses.defecto[kACS][1] = 100;
  meses.defecto[kCalefaccion][1] = 200;
  meses.defecto[kRefrigeracion][7] = 40;
  meses.produccionFotovoltaica[1] = 50;
  meses.produccionFotovoltaica[7] = 30;
  Plegar(0, "SI");
  // El agua caliente de gas no toma fotovoltaica; la refrigeración, sí.
  EXPECT_FLOAT_EQ(Final(kACS, kGas, 1), 100);
  EXPECT_EQ(Final(kACS, kFV, 1), 0);
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kGas, 1), 200);
  EXPECT_FLOAT_EQ(Final(kRefrigeracion, kElec, 7), 10);
  EXPECT_FLOAT_EQ(Final(kRefrigeracion, kFV, 7), 30);
  EXPECT_FLOAT_EQ(Ano(kCalefaccion, kEmisiones), 0.5F);
  const auto& servicio = caso->resultados.servicio;
  EXPECT_FLOAT_EQ(servicio[kCalefaccion].finalSinRenovables, 2);
  EXPECT_FLOAT_EQ(servicio[kRefrigeracion].finalSinRenovables, 0.1F);
  EXPECT_FLOAT_EQ(servicio[kRefrigeracion].finalDefecto, 0.4F);
  EXPECT_FLOAT_EQ(caso->resultados.emisionesElectricidad, 0.05F);
}

TEST_F(Plegado, EquiposPorDefectoEnTerciario) {
  meses.defecto[kACS][1] = 60;
  meses.defecto[kCalefaccion][1] = 200;
  meses.iluminacion[1] = 40;
  meses.produccionFotovoltaica[1] = 50;
  Plegar(7, "SI");
  // El agua caliente es eléctrica y comparte la fotovoltaica con la iluminación, 30 y 20.
  EXPECT_FLOAT_EQ(Final(kACS, kElec, 1), 30);
  EXPECT_FLOAT_EQ(Final(kACS, kFV, 1), 30);
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kGasoleo, 1), 200);
  EXPECT_FLOAT_EQ(Ano(kCalefaccion, kEmisiones), 0.6F);
  EXPECT_FLOAT_EQ(Ano(kIluminacion, kFinal), 0.2F);
  EXPECT_FLOAT_EQ(Ano(kIluminacion, kPrimariaTotal), (20 * 2.4F + 20) / 100);
  // Lo debido a la electricidad cuenta lo de los sistemas, que aquí es solo el descuento de la
  // fotovoltaica, más ventilación e iluminación.
  EXPECT_FLOAT_EQ(caso->resultados.emisionesElectricidad, (-30 + 20) * 0.5F / 100);
}

TEST_F(Plegado, SinEquiposPorDefectoSuEnergiaNoLlegaANingunTotal) {
  meses.defecto[kRefrigeracion][7] = 40;
  meses.iluminacion[7] = 40;
  meses.produccionFotovoltaica[7] = 100;
  for (const char* modo : {"NO", ""}) {
    Plegar(0, modo);
    EXPECT_EQ(Final(kRefrigeracion, kElec, 7) + Final(kRefrigeracion, kFV, 7), 0) << modo;
    // En viviendas no hay iluminación.
    EXPECT_EQ(Ano(kIluminacion, kPrimariaTotal), 0) << modo;
  }
}

TEST_F(Plegado, LaSolarEntraConSuSigno) {
  meses.solarCaptada[1] = 10;
  meses.perdidaTuberiaCaptador[1] = 8;
  meses.perdidaDepositoSolar[1] = 7;
  meses.solarCaptada[7] = 50;
  meses.perdidaDepositoSolar[7] = 5;
  Plegar();
  EXPECT_FLOAT_EQ(Final(kACS, kTermosolar, 1), -5);
  EXPECT_FLOAT_EQ(Ano(kACS, kFinal), 0.4F);
  EXPECT_FLOAT_EQ(Ano(kACS, kPrimariaRenovable), 0.4F);
  EXPECT_EQ(Ano(kACS, kEmisiones), 0);
  EXPECT_EQ(caso->resultados.servicio[kACS].finalSinRenovables, 0);
}

TEST_F(Plegado, UnServicioForzadoSustituyeALosSistemas) {
  meses.demanda[kCalefaccion][1] = -6;  // kWh/m2
  meses.consumo[kElec][kCalefaccion][1] = 80;
  meses.ambiente[kCalefaccion][1] = 200;
  meses.bombas[kCalefaccion][1] = 20;
  meses.produccionFotovoltaica[1] = 10;
  meses.demanda[kACS][1] = 3;
  meses.consumo[kGas][kACS][1] = 500;
  meses.solarCaptada[1] = 70;
  caso->resultados.forzados.CasoCalefaccion = {"CasoConcreto", "Biomasa_Pellet", 0.75F};
  caso->resultados.forzados.CasoACS = {"CasoConcreto", "Electricidad", 3.0F};
  Plegar();
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kPellet, 1), 800);
  EXPECT_EQ(Final(kCalefaccion, kAmbiente, 1), 0);
  // Las bombas siguen, y la fotovoltaica es la que se repartió con lo simulado.
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kElec, 1), 10);
  EXPECT_FLOAT_EQ(Final(kCalefaccion, kFV, 1), 10);
  EXPECT_FLOAT_EQ(Final(kACS, kElec, 1), 100);
  EXPECT_EQ(Final(kACS, kGas, 1), 0);
  EXPECT_EQ(Final(kACS, kTermosolar, 1), 0);
  EXPECT_FLOAT_EQ(meses.consumo[kPellet][kCalefaccion][0], 800);
  EXPECT_EQ(meses.consumo[kElec][kCalefaccion][0], 0);
}

TEST_F(Plegado, UnServicioForzadoConOtroCombustibleQuedaSinEnergia) {
  auto& forzados = caso->resultados.forzados;
  const ServicioForzado casos[] = {{"CasoConcreto", "GasNatural", 3.0F},  // solo electricidad
                                   {"CasoConcreto", "60", 1.05F},         // no es un vector
                                   {"CasoConcreto", "Electricidad", 0}};  // sin rendimiento
  for (const auto& forzado : casos) {
    meses.demanda[kRefrigeracion][7] = 4;
    meses.consumo[kElec][kRefrigeracion][7] = 100;
    forzados.CasoRefrigeracion = forzado;
    Plegar();
    EXPECT_EQ(Ano(kRefrigeracion, kPrimariaTotal), 0) << forzado.combustible;
  }
  meses.consumo[kElec][kRefrigeracion][7] = 100;
  forzados.CasoRefrigeracion = {"Normales", "GasNatural", 3.0F};
  Plegar();
  EXPECT_FLOAT_EQ(Final(kRefrigeracion, kElec, 7), 100);
}

}  // namespace
}  // namespace novex
