#include "rating/FactoresConversion.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

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
}

TEST(FactoresConversion, LasFilasQueFaltanQuedanACero) {
  RegistroMensajes mensajes;
  const Conversor conversor(LeerFactores(Fichero(8), mensajes), "Madrid");
  EXPECT_FLOAT_EQ(conversor.Emisiones(VectorEnergetico::GLP, 1), 7);
  EXPECT_FLOAT_EQ(conversor.PrimariaTotal(VectorEnergetico::GasNatural, 1), 0);
  EXPECT_FLOAT_EQ(conversor.PrimariaTotal(VectorEnergetico::Energiasolartermica, 1), 0);
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
