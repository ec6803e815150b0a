#include "base/NumeroTexto.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace novex {
namespace {

TEST(Fijo, RedondeaElValorBinarioExacto) {
  EXPECT_EQ(Fijo(0.125, 2), "0.12");  // empates exactos, al par
  EXPECT_EQ(Fijo(0.375, 2), "0.38");
  EXPECT_EQ(Fijo(2.5, 0), "2");
  EXPECT_EQ(Fijo(-3.5, 0), "-4");
  EXPECT_EQ(Fijo(1.005, 2), "1.00");    // 1.00499999999999989...
  EXPECT_EQ(Fijo(-0.005, 2), "-0.01");  // -0.00500000000000000010...
  EXPECT_EQ(Fijo(0.285, 2), "0.28");    // 0.28499999999999997...
  EXPECT_EQ(Fijo(1234567.5, 1), "1234567.5");
}

TEST(Fijo, NuncaUnCeroNegativo) {
  EXPECT_EQ(Fijo(-0.0, 0), "0");
  EXPECT_EQ(Fijo(-0.004, 2), "0.00");
  EXPECT_EQ(Fijo(-0.04, 2), "-0.04");
}

TEST(Fijo, ExtremosDelValorYDeLosDecimales) {
  EXPECT_EQ(Fijo(std::numeric_limits<double>::quiet_NaN(), 2), "0.00");
  EXPECT_EQ(Fijo(-std::numeric_limits<double>::infinity(), 1), "0.0");
  EXPECT_EQ(Fijo(7.0, -3), "7");
  EXPECT_EQ(Fijo(0.5, 99), "0.50000000000000000000");
  // 309 cifras enteras, signo, punto y 20 decimales.
  EXPECT_EQ(Fijo(std::numeric_limits<double>::lowest(), 20).size(), 331U);
}

TEST(FijoCifras, RedondeaPrimeroACifrasSignificativas) {
  EXPECT_EQ(FijoCifras(123456.0, 5, 2), "123460.00");
  EXPECT_EQ(FijoCifras(99999.6, 5, 2), "100000.00");
  // 2.34496 con cinco cifras es 2.3450, cuyo real es 2.34500000000000019...
  EXPECT_EQ(FijoCifras(2.34496, 5, 2), "2.35");
  EXPECT_EQ(Fijo(2.34496, 2), "2.34");
  EXPECT_EQ(FijoCifras(-0.000012345, 5, 2), "0.00");
  EXPECT_EQ(FijoCifras(std::numeric_limits<double>::infinity(), 5, 2), "0.00");
  EXPECT_EQ(FijoCifras(0.0, 5, 2), "0.00");
}

TEST(General, FormaMasCortaDeSimplePrecision) {
  EXPECT_EQ(General(0.3F), "0.3");
  EXPECT_EQ(General(1000.0F), "1000");
  EXPECT_EQ(General(-12.5F), "-12.5");
  EXPECT_EQ(General(-0.0F), "0");
  EXPECT_EQ(General(0.0001F), "0.0001");
}

TEST(General, ExponenteSinCerosNiSignoMas) {
  EXPECT_EQ(General(1e-5F), "1E-5");
  EXPECT_EQ(General(2.5e-10F), "2.5E-10");
  EXPECT_EQ(General(-1e20F), "-1E20");
}

TEST(RedondearDecimales, EmpatesExactosAlPar) {
  EXPECT_EQ(RedondearDecimales(0.125F, 2), 0.12F);
  EXPECT_EQ(RedondearDecimales(0.375F, 2), 0.38F);
  EXPECT_EQ(RedondearDecimales(-2.5F, 0), -2.0F);
  EXPECT_EQ(RedondearDecimales(1.005F, 2), 1.0F);  // 1.00499999523...
}

TEST(RedondearDecimales, NoEstropeaLosExtremos) {
  EXPECT_FALSE(std::signbit(RedondearDecimales(-0.001F, 2)));
  EXPECT_EQ(RedondearDecimales(1e30F, 2), 1e30F);
  EXPECT_EQ(RedondearDecimales(0.1F, 6), 0.1F);
}

TEST(RealInicial, LeeElNumeroDelPrincipio) {
  EXPECT_EQ(RealInicial(" \t+12.5 m2"), 12.5);
  EXPECT_EQ(RealInicial("-.5"), -0.5);
  EXPECT_EQ(RealInicial("5."), 5.0);
  EXPECT_EQ(RealInicial("1,5"), 1.0);
  EXPECT_EQ(RealInicial("1e+2x"), 100.0);
  EXPECT_EQ(RealInicial("1e"), 1.0);
}

TEST(RealInicial, LoQueNoEsNumeroEsCero) {
  for (const char* texto :
       {"", "  ", "-", "+", ".", "-.", "abc", "nan", "inf", "-inf", "+-5", "- 5"})
    EXPECT_EQ(RealInicial(texto), 0.0) << texto;
}

TEST(RealInicial, FueraDeRangoDaInfinitoOCeroSegunLaMagnitud) {
  EXPECT_EQ(RealInicial("1e400"), HUGE_VAL);
  EXPECT_EQ(RealInicial("-1e400"), -HUGE_VAL);
  EXPECT_EQ(RealInicial("1e-400"), 0.0);
  // La magnitud no la da solo el signo del exponente.
  EXPECT_EQ(RealInicial("0." + std::string(400, '0') + "1"), 0.0);
  EXPECT_EQ(RealInicial("1" + std::string(400, '0') + "e-10"), HUGE_VAL);
  EXPECT_EQ(RealInicial("1e99999999999999999999"), HUGE_VAL);
  EXPECT_EQ(RealInicial("1e-99999999999999999999"), 0.0);
  EXPECT_EQ(RealInicial("0.00e999"), 0.0);
}

TEST(EnteroInicial, ComoAtol) {
  EXPECT_EQ(EnteroInicial("  42.9"), 42);
  EXPECT_EQ(EnteroInicial("+3 casos"), 3);
  EXPECT_EQ(EnteroInicial("-7"), -7);
  for (const char* texto : {"", "x1", "+-5", "+ 5", "--1"})
    EXPECT_EQ(EnteroInicial(texto), 0) << texto;
  EXPECT_EQ(EnteroInicial("99999999999999999999"), std::numeric_limits<long>::max());
  EXPECT_EQ(EnteroInicial("-99999999999999999999"), std::numeric_limits<long>::min());
}

TEST(LeerReal, AdmitePuntoOComaYBlancosAlrededor) {
  double valor = 0.0;
  ASSERT_TRUE(LeerReal(" 1,5\t", valor));
  EXPECT_EQ(valor, 1.5);
  ASSERT_TRUE(LeerReal("+2.25e1", valor));
  EXPECT_EQ(valor, 22.5);
  ASSERT_TRUE(LeerReal("-0.00", valor));
  EXPECT_EQ(valor, 0.0);
}

TEST(LeerReal, RechazaLoQueNoEsEnteroUnNumeroYNoTocaElValor) {
  double valor = 8.0;
  for (const char* texto :
       {"", " ", "1.234,5", "12abc", "1 2", "--1", "+-3", "nan", "inf", "1e999", "0x1A", ",", "e5"})
    EXPECT_FALSE(LeerReal(texto, valor)) << texto;
  EXPECT_EQ(valor, 8.0);
}

}  // namespace
}  // namespace novex
