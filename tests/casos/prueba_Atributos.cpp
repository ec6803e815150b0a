#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "CasoPrueba.h"

namespace novex {
namespace {

using pruebas::CarpetaCasos;
using pruebas::CasoPrueba;

const SerieHoraria* Atributo(const calculo& caso, const std::string& nombre) {
  for (const AtributoSistema& a : caso.atributos)
    if (a.nombre == nombre) return &a.serie;
  return nullptr;
}

double SumaAno(const calculo& caso, const std::string& nombre) {
  const SerieHoraria* serie = Atributo(caso, nombre);
  if (serie == nullptr) {
    ADD_FAILURE() << "falta " << nombre;
    return 0;
  }
  double suma = 0;
  for (int h = 1; h <= kHorasAno; ++h) suma += static_cast<double>((*serie)[h]);
  return suma;
}

std::vector<std::string> Nombres(const calculo& caso) {
  std::vector<std::string> nombres;
  for (const AtributoSistema& a : caso.atributos) nombres.push_back(a.nombre);
  return nombres;
}

double Consumo(const calculo& caso, VectorEnergetico vector, Servicio servicio) {
  return static_cast<double>(caso.meses.consumo[static_cast<std::size_t>(vector)][servicio][0]);
}

// Caldera con depósito (sistema 1), caldera de calefacción (2) y equipo de frío (3).
TEST(AtributosDeSistema, LasHorasSumanElConsumoDelAno) {
  const CasoPrueba caso("s01_caldera_deposito", CarpetaCasos() / "programa");
  ASSERT_TRUE(caso.calculado);
  const calculo& r = caso.Resultado();
  EXPECT_THAT(Nombres(r), testing::IsSupersetOf({"QACS_CA1", "RendACS_CA1", "WDEP1", "CW60", "CWT",
                                                 "TWC", "PRET1", "PDACS1", "TD1_1", "TD5_1",
                                                 "QCAL_CA2", "WVEMI2", "QTREF_ES3"}));
  EXPECT_THAT(Nombres(r), testing::Not(testing::Contains("PTCS")));

  const double acs = Consumo(r, VectorEnergetico::GasNatural, kACS);
  const double calefaccion = Consumo(r, VectorEnergetico::GasNatural, kCalefaccion);
  ASSERT_GT(acs, 0.0);
  ASSERT_GT(calefaccion, 0.0);
  EXPECT_NEAR(SumaAno(r, "CACS_CA1"), acs, 1e-4 * acs);
  EXPECT_NEAR(SumaAno(r, "CCAL_CA2"), calefaccion, 1e-4 * calefaccion);
  EXPECT_GT(SumaAno(r, "CREF_ES3"), 0.0);

  // La calefacción entregada es la demanda, y el frío total es mayor que el sensible.
  EXPECT_NEAR(SumaAno(r, "QCAL_CA2"), static_cast<double>(r.meses.servida[kCalefaccion][0]), 1.0);
  EXPECT_GT(SumaAno(r, "QTREF_ES3"), SumaAno(r, "QREF_ES3"));
}

TEST(AtributosDeSistema, ElRendimientoEsLoEntregadoEntreLoConsumido) {
  const CasoPrueba caso("s01_caldera_deposito", CarpetaCasos() / "programa");
  const calculo& r = caso.Resultado();
  const struct {
    const char *util, *consumo, *rendimiento;
  } ternas[] = {{"QACS_CA1", "CACS_CA1", "RendACS_CA1"},
                {"QCAL_CA2", "CCAL_CA2", "RendCAL_CA2"},
                {"QTREF_ES3", "CREF_ES3", "RendREF_ES3"}};
  for (const auto& t : ternas) {
    SCOPED_TRACE(t.rendimiento);
    const SerieHoraria* q = Atributo(r, t.util);
    const SerieHoraria* c = Atributo(r, t.consumo);
    const SerieHoraria* rend = Atributo(r, t.rendimiento);
    ASSERT_TRUE(q != nullptr && c != nullptr && rend != nullptr);
    int conMarcha = 0;
    for (int h = 1; h <= kHorasAno; ++h) {
      if ((*c)[h] == 0.0F) {
        ASSERT_EQ((*rend)[h], 0.0F) << h;
        continue;
      }
      ++conMarcha;
      ASSERT_NEAR((*rend)[h] * (*c)[h], (*q)[h], 1e-4F * (*q)[h] + 1e-5F) << h;
    }
    EXPECT_GT(conMarcha, 100);
  }
}

TEST(AtributosDeSistema, LosCaptadoresAnotanLasSuyas) {
  const CasoPrueba caso("s04_bloque_central_solar", CarpetaCasos() / "programa");
  const calculo& r = caso.Resultado();
  EXPECT_THAT(Nombres(r), testing::IsSupersetOf({"PTCS", "PDS", "EASC", "WCS", "WDEPS", "WRECS"}));
  const double captada = static_cast<double>(r.meses.solarCaptada[0]);
  ASSERT_GT(captada, 0.0);
  // El año reparte entre los meses lo que le falta al balance del depósito: menos del 1 %.
  EXPECT_NEAR(SumaAno(r, "EASC"), captada, 0.01 * captada);
}

}  // namespace
}  // namespace novex
