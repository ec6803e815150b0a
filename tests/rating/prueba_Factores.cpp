#include <gtest/gtest.h>

#include "base/ErrorFichero.h"
#include "rating/EdificioPrueba.h"
#include "rating/EquipoDefecto.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

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

}  // namespace
}  // namespace novex
