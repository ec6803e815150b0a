#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "base/Calendario.h"
#include "base/NumeroTexto.h"
#include "base/Parecidos.h"
#include "base/Texto.h"

namespace novex {
namespace {

TEST(PrincipioUtf8, NoParteLetras) {
  EXPECT_EQ(PrincipioUtf8("año", 9), "año");
  EXPECT_EQ(PrincipioUtf8("año", 3), "añ");
  EXPECT_EQ(PrincipioUtf8("año", 2), "a");
  EXPECT_EQ(PrincipioUtf8("€", 2), "");
  EXPECT_EQ(PrincipioUtf8("\x80\x80", 1), "");  // lo que no es UTF-8 no se sale
}

TEST(Fijo, RedondeaElValorBinarioExactoSinCerosNegativos) {
  EXPECT_EQ(Fijo(0.125, 2), "0.12");  // empates exactos, al par
  EXPECT_EQ(Fijo(0.375, 2), "0.38");
  EXPECT_EQ(Fijo(2.5, 0), "2");
  EXPECT_EQ(Fijo(-3.5, 0), "-4");
  EXPECT_EQ(Fijo(1.005, 2), "1.00");    // 1.00499999999999989...
  EXPECT_EQ(Fijo(-0.005, 2), "-0.01");  // -0.00500000000000000010...
  EXPECT_EQ(Fijo(0.285, 2), "0.28");    // 0.28499999999999997...
  EXPECT_EQ(Fijo(1234567.5, 1), "1234567.5");
  EXPECT_EQ(Fijo(-0.0, 0), "0");
  EXPECT_EQ(Fijo(-0.004, 2), "0.00");
  EXPECT_EQ(Fijo(-0.04, 2), "-0.04");
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

TEST(General, FormaMasCortaConSuExponente) {
  EXPECT_EQ(General(0.3F), "0.3");
  EXPECT_EQ(General(1000.0F), "1000");
  EXPECT_EQ(General(-12.5F), "-12.5");
  EXPECT_EQ(General(-0.0F), "0");
  EXPECT_EQ(General(0.0001F), "0.0001");
  EXPECT_EQ(General(1e-5F), "1E-5");
  EXPECT_EQ(General(2.5e-10F), "2.5E-10");
  EXPECT_EQ(General(-1e20F), "-1E20");
}

TEST(RedondearDecimales, EmpatesExactosAlParYSinEstropearLosExtremos) {
  EXPECT_EQ(RedondearDecimales(0.125F, 2), 0.12F);
  EXPECT_EQ(RedondearDecimales(0.375F, 2), 0.38F);
  EXPECT_EQ(RedondearDecimales(-2.5F, 0), -2.0F);
  EXPECT_EQ(RedondearDecimales(1.005F, 2), 1.0F);  // 1.00499999523...
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
  for (const char* texto :
       {"", "  ", "-", "+", ".", "-.", "abc", "nan", "inf", "-inf", "+-5", "- 5"})
    EXPECT_EQ(RealInicial(texto), 0.0) << texto;
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
  valor = 8.0;
  for (const char* texto :
       {"", " ", "1.234,5", "12abc", "1 2", "--1", "+-3", "nan", "inf", "1e999", "0x1A", ",", "e5"})
    EXPECT_FALSE(LeerReal(texto, valor)) << texto;
  EXPECT_EQ(valor, 8.0);
}

TEST(EsUtf8, AceptaSoloSecuenciasValidas) {
  using namespace std::string_view_literals;
  for (const auto texto : {""sv, "Muro\0x"sv, "ñ€"sv, "\xF0\x9F\x8F\xA0"sv, "\xF4\x8F\xBF\xBF"sv})
    EXPECT_TRUE(EsUtf8(texto)) << texto;
  for (const auto texto : {
           "\x80"sv,              // continuación suelta
           "\xC0\x80"sv,          // forma larga de NUL
           "\xE0\x80\xAF"sv,      // forma larga de '/'
           "\xF0\x8F\xBF\xBF"sv,  // forma larga de U+FFFF
           "\xED\xA0\x80"sv,      // mitad de un par subrogado
           "\xF4\x90\x80\x80"sv,  // pasa de U+10FFFF
           "\xF5\x80\x80\x80"sv,  // primer byte imposible
           "a\xE2\x82"sv,         // cortada
           "\xC3("sv,             // sin continuación
           "Le\xF3n"sv,           // Latin-1
       })
    EXPECT_FALSE(EsUtf8(texto)) << texto;
}

TEST(Windows1252AUtf8, LetrasDeLatin1YDeWindows) {
  EXPECT_EQ(Windows1252AUtf8("Le\xF3n \x80 \x93x\x94 \x9F \xFF"), "León € “x” Ÿ ÿ");
  EXPECT_EQ(Windows1252AUtf8("\x81"), "\xC2\x81");  // hueco de la tabla
}

TEST(AUtf8, DejaUtf8YConvierteLoDemas) {
  EXPECT_EQ(AUtf8("Peñíscola"), "Peñíscola");
  EXPECT_EQ(AUtf8("Pe\xF1\xED\x73\x63ola"), "Peñíscola");
}

TEST(AnadirUtf8, LosBordesDeCadaLargo) {
  const auto de = [](char32_t codigo) {
    std::string texto = ">";
    AnadirUtf8(texto, codigo);
    return texto;
  };
  EXPECT_EQ(de(0x7F), ">\x7F");
  EXPECT_EQ(de(0x80), ">\xC2\x80");
  EXPECT_EQ(de(0x7FF), ">\xDF\xBF");
  EXPECT_EQ(de(0x800), ">\xE0\xA0\x80");
  EXPECT_EQ(de(0xFFFF), ">\xEF\xBF\xBF");
  EXPECT_EQ(de(0x10000), ">\xF0\x90\x80\x80");
  EXPECT_EQ(de(0x10FFFF), ">\xF4\x8F\xBF\xBF");
  for (const char32_t codigo : {0xD800U, 0xDFFFU, 0x110000U, 0xFFFFFFFFU})
    EXPECT_EQ(de(codigo), ">\xEF\xBF\xBD") << static_cast<unsigned>(codigo);
}

TEST(PrimerCaracter, CodigoYBytes) {
  const auto comprobar = [](std::string_view texto, char32_t codigo, std::size_t bytes) {
    const auto caracter = PrimerCaracter(texto);
    EXPECT_EQ(static_cast<unsigned>(caracter.codigo), static_cast<unsigned>(codigo)) << texto;
    EXPECT_EQ(caracter.bytes, bytes) << texto;
  };
  comprobar("ab", 'a', 1);
  comprobar("ñu", 0xF1, 2);
  comprobar("€", 0x20AC, 3);
  comprobar("\xF0\x9F\x8F\xA0", 0x1F3E0, 4);
  comprobar("\xF1o", 0xF1, 1);
  comprobar("\xE2\x82", 0xE2, 1);
}

TEST(IgualesSinMayusculas, SoloLasLetrasDelAlfabetoIngles) {
  EXPECT_TRUE(IgualesSinMayusculas("Zona_D3", "zONA_d3"));
  EXPECT_TRUE(IgualesSinMayusculas("", ""));
  EXPECT_FALSE(IgualesSinMayusculas("zona", "zona1"));
  EXPECT_FALSE(IgualesSinMayusculas("Á", "á"));
  EXPECT_FALSE(IgualesSinMayusculas("[", "{"));  // separadas 32, como las letras
}

TEST(SinBlancos, QuitaLosDeLosExtremosYNoLosDeDentro) {
  EXPECT_EQ(SinBlancos(" \t\r\na b\n "), "a b");
  EXPECT_EQ(SinBlancosFinales("  a b \r\n"), "  a b");
  EXPECT_EQ(SinBlancos(" \n"), "");
  EXPECT_EQ(SinBlancos("\xC2\xA0x"), "\xC2\xA0x");  // el espacio duro no es un blanco
}

TEST(Parecidos, PrimeroLoQueLoContieneYLuegoLoMasCercano) {
  const std::vector<std::string> nombres = {"TSL", "TSE", "final-acs", "final-calefaccion", "TSE"};
  EXPECT_EQ(MasParecidos("tsé", nombres, 2), (std::vector<std::string>{"TSE", "TSL"}));
  EXPECT_EQ(MasParecidos("Calefacción", nombres, 1),
            (std::vector<std::string>{"final-calefaccion"}));
  EXPECT_EQ(MasParecidos("x", nombres, 9).size(), 4U);
  EXPECT_TRUE(MasParecidos("x", {}).empty());
  EXPECT_EQ(FraseParecidos({"a", "b"}), "; se parecen: a, b");
  EXPECT_EQ(FraseParecidos({}), "");
}

TEST(Calendario, ElMesCambiaEnLaHoraSiguienteALaUltima) {
  // Horas acumuladas al final de cada mes de un año de 365 días.
  const int ultimas[] = {744, 1416, 2160, 2880, 3624, 4344, 5088, 5832, 6552, 7296, 8016, 8760};
  int mes = 1;
  for (const int h : ultimas) {
    EXPECT_EQ(HoraDelMes(h), mes);
    EXPECT_EQ(HoraDelMes(h + 1), mes < 12 ? mes + 1 : 12);
    ++mes;
  }
  EXPECT_EQ(HoraDelMes(1), 1);
  EXPECT_EQ(HoraDelMes(0), 1);
  const int casos[][3] = {{1, 1, 1},   {24, 24, 1},    {25, 1, 2},
                          {48, 24, 2}, {8737, 1, 365}, {8760, 24, 365}};
  for (const auto& [hora, delDia, dia] : casos) {
    EXPECT_EQ(HoraDelDia(hora), delDia) << hora;
    EXPECT_EQ(DiaDelAno(hora), dia) << hora;
  }
}

}  // namespace
}  // namespace novex
