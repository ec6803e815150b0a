#include <gtest/gtest.h>

#include <cmath>
#include <string>

#include "model/CatalogoCampos.h"
#include "model/Catastro.h"

namespace novex {
namespace {

constexpr const char* kRealNoEntero = "Se espera un nº entero y no un real";
constexpr const char* kLetraNoEntero = "Se espera un nº entero y no una letra";
constexpr const char* kLetraNoReal = "Se espera un nº real y no una letra";
constexpr const char* kMinimo = "Se espera un mayor o igual al mínimo";
constexpr const char* kMaximo = "Se espera un menor o igual al máximo";

struct Comprobado {
  float valor;
  std::vector<Mensaje> mensajes;
};

Comprobado Comprobar(std::string_view texto, std::string_view clave) {
  RegistroMensajes registro;
  const float valor = ComprobarValor(texto, clave, registro);
  return {valor, registro.recibidos};
}

void ExpectSinAviso(std::string_view texto, std::string_view clave, float esperado) {
  const Comprobado c = Comprobar(texto, clave);
  EXPECT_FLOAT_EQ(c.valor, esperado) << clave << " " << texto;
  EXPECT_TRUE(c.mensajes.empty()) << clave << " " << texto << ": " << c.mensajes[0].titulo;
}

// Un solo aviso, con ese título.
void ExpectAviso(std::string_view texto, std::string_view clave, float esperado,
                 const char* titulo) {
  const Comprobado c = Comprobar(texto, clave);
  EXPECT_FLOAT_EQ(c.valor, esperado) << clave << " " << texto;
  ASSERT_EQ(c.mensajes.size(), 1U) << clave << " " << texto;
  EXPECT_EQ(c.mensajes[0].titulo, titulo) << clave << " " << texto;
}

TEST(ComprobarValor, LosLimitesYLasFormasDeEscribirElNumero) {
  ExpectSinAviso("-1", "RatioVent", -1);
  ExpectAviso("-2", "RatioVent", 1000, kMinimo);
  ExpectSinAviso("1000000", "RatioVent", 1000000);
  ExpectSinAviso("0,9", "FSCristal", 0.9F);
  ExpectAviso("0.95", "FSCristal", 0.8F, kMaximo);
  ExpectSinAviso("1", "Var", 1);
  ExpectAviso("1.01", "Var", 1, kMaximo);
  ExpectSinAviso("-90", "Latitud", -90);
  ExpectAviso("-90.5", "Latitud", 40, kMinimo);
  ExpectSinAviso("0.00001", "K", 1e-5F);
  ExpectAviso("0", "K", 1, kMinimo);
  ExpectSinAviso("1.2", "RendCale", 1.2F);
  ExpectSinAviso("9999", "Espesor", 9999);
  ExpectSinAviso("1,5", "Renov", 1.5F);
  ExpectSinAviso(" 7", "Entero1", 7);
  ExpectSinAviso("3.0", "Entero1", 3);
  ExpectSinAviso("3,0", "Entero1", 3);
  ExpectSinAviso("12 m2", "Area", 12);
  ExpectSinAviso("5", "Area", 5);  // un entero vale donde se espera un real
  ExpectSinAviso("1e3", "Area", 1000);
  ExpectAviso("3.5", "Entero1", 3, kRealNoEntero);
  ExpectAviso("-1,5", "RatioVent", -1, kRealNoEntero);  // hacia el cero
}

TEST(ComprobarValor, TextosQueNoSonNumero) {
  for (const char* texto : {"abc", "", "   ", "-", ".", "nan", "inf", "m3"}) {
    ExpectAviso(texto, "Cualquiera", 0, kLetraNoReal);
    ExpectAviso(texto, "Renov", 0.5F, kLetraNoReal);
    ExpectAviso(texto, "Cota", 0, kLetraNoEntero);
  }
  // Un cero en cualquier forma no da aviso.
  for (const char* texto : {"0", "00", "0.", ".0", "0.0", "0,00", "-0", "-0.00", "+0.0", " 0 ",
                            "0.000000000", "0.0000000000", "-0.00000000000000000000"}) {
    for (const char* clave : {"Cualquiera", "Area", "NVentanas"}) {
      const Comprobado c = Comprobar(texto, clave);
      EXPECT_EQ(c.valor, 0) << texto;
      EXPECT_FALSE(std::signbit(c.valor)) << texto;
      EXPECT_TRUE(c.mensajes.empty()) << clave << " " << texto;
    }
  }
  // Fuera de los límites, el cero avisa como cualquier otro.
  ExpectAviso("0.00", "Entero1", 1, kMinimo);
}

TEST(ComprobarValor, LaSustitucionPuedeSalirseDeSusLimites) {
  ExpectAviso("0", "Salto", 80, kMinimo);
  ExpectAviso("21", "Salto", 80, kMaximo);
  ExpectSinAviso("20", "Salto", 20);
  // Cortado y fuera de límites son dos avisos.
  const Comprobado c = Comprobar("30.5", "Salto");
  EXPECT_EQ(c.valor, 80);
  ASSERT_EQ(c.mensajes.size(), 2U);
  EXPECT_EQ(c.mensajes[0].titulo, kRealNoEntero);
  EXPECT_EQ(c.mensajes[0].texto,
            "El salto de temperatura debe estar entre 1 y 20, debe estar entre 1 ºC y 20 ºC, "
            "se toma un valor de: 30 ºC");
  EXPECT_EQ(c.mensajes[1].titulo, kMaximo);
  EXPECT_EQ(c.mensajes[1].texto,
            "El salto de temperatura debe estar entre 1 y 20, debe estar entre 1 ºC y 20 ºC, "
            "se toma un valor de: 80 ºC");
}

TEST(ComprobarValor, TextoDelAviso) {
  const std::pair<const char*, Mensaje> casos[] = {
      {"Espesor",
       {kLetraNoReal, "El espesor, debe estar entre 1E-5 m y 9999 m, se toma un valor de: 0.01 m"}},
      {"FSCristal",
       {kLetraNoReal,
        "El factor solar del cristal, debe estar entre 0 y 0.9, se toma un valor de: 0.8"}},
      {"NViviendas",
       {kLetraNoEntero,
        "El nº de viviendas, debe estar entre 0 y 1000000000, se toma un valor de: 1"}},
      {"HRmin",
       {kLetraNoEntero,
        "La humdedad mínima del local, debe estar entre 10 % y 50 %, se toma un valor de: 30 %"}},
      {"Cota",
       {kLetraNoEntero, "La cota, debe estar entre -300 m y 4000 m, se toma un valor de: 0 m"}}};
  for (const auto& [clave, esperado] : casos) {
    const Comprobado c = Comprobar("abc", clave);
    ASSERT_EQ(c.mensajes.size(), 1U) << clave;
    EXPECT_EQ(c.mensajes[0].titulo, esperado.titulo) << clave;
    EXPECT_EQ(c.mensajes[0].texto, esperado.texto) << clave;
  }
}

TEST(ComprobarValor, CualquieraAdmiteTodoNumeroYUnaConLimitesNo) {
  ExpectSinAviso("-123456,75", "Cualquiera", -123456.75F);
  ExpectSinAviso("3e38", "Cualquiera", 3e38F);
  ExpectSinAviso("1e-30", "Valor", 1e-30F);
  ExpectAviso("x", "Valor", 1, kLetraNoReal);
  ExpectAviso("1e400", "Area", 0, kMaximo);
  ExpectAviso("-1e400", "Area", 0, kMinimo);
}

TEST(CatalogoCampos, TodaEntradaTieneSujetoTipoYLimitesEnOrden) {
  // Una clave por tramo de la tabla; la última cierra el catálogo.
  for (const char* clave : {"RatioQS", "EVEIIMax", "TCalef", "DPVent2", "Tbaja", "QTCal", "Cocina",
                            "CoefUCaja", "ResisvT", "VEEI", "LD", "HRmin"}) {
    const CampoCatalogo* campo = BuscarCampo(clave);
    ASSERT_NE(campo, nullptr) << clave;
    EXPECT_FALSE(campo->texto.empty()) << clave;
    EXPECT_NE(campo->tipo, TipoCampo::Ninguno) << clave;
    EXPECT_LT(campo->minimo, campo->maximo) << clave;
  }
  for (const char* clave : {"", "cualquiera", "HRmax", "Espesor "})
    EXPECT_EQ(BuscarCampo(clave), nullptr) << clave;
}

TEST(ValorSinComprobar, LosVaciosYLosCerosNoAvisan) {
  RegistroMensajes mensajes;
  for (const char* texto : {"", "0", "00", "0.00", "-0,0"})
    EXPECT_EQ(ValorSinComprobar(texto, mensajes), 0) << texto;
  EXPECT_FLOAT_EQ(ValorSinComprobar("12,5", mensajes), 12.5F);
  EXPECT_FLOAT_EQ(ValorSinComprobar("-3", mensajes), -3);
  EXPECT_TRUE(mensajes.recibidos.empty());
  EXPECT_EQ(ValorSinComprobar("abc", mensajes), 0);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, kLetraNoReal);
}

TEST(Catastro, FormaDeCadaParte) {
  struct Muestra {
    const char *registro, *parte;
    std::vector<std::string> buenas, malas;
  };
  // En la parcela del catastro las minúsculas no cuentan ni estorban.
  const Muestra muestras[] = {
      {"DGC",
       "Parcela",
       {"9872023VH5797S", "9872023VH5797Sab"},
       {"9872023VH5797", "9872023 VH5797S"}},
      {"DGC", "Inmueble", {"1234AB"}, {"12345A", "1234ab"}},
      {"DGC", "Parte", {"a-_"}, {"a--b", "ab", "cañon"}},
      {"AFA", "Parcela", {"12345678", "12ABCabc345678"}, {"1234-5678"}},
      {"AFA", "Inmueble", {"A112345678BC"}, {"a112345678BC", "A1A2345678BC"}},
      {"AFA", "Parte", {"ab-"}, {}},
      {"BFA", "Parcela", {"123456789012"}, {}},
      {"BFA", "Inmueble", {"0123"}, {"012A"}},
      {"BFA", "Parte", {std::string(36, 'x')}, {std::string(37, 'x')}},
      {"GFA", "Parcela", {"123456789"}, {}},
      {"GFA", "Inmueble", {"1234567A"}, {"123456AA"}},
      {"RRTN", "Parcela", {"123456789"}, {}},
      {"RRTN",
       "Inmueble",
       {"310000000123456789AB"},
       {"31000000001234567AB", "31000000012345678AAB"}},
      {"BFA", "Otra", {}, {"abc"}},
      {"XXX", "Inmueble", {}, {"1234AB"}}};
  for (const auto& [registro, parte, buenas, malas] : muestras) {
    for (const std::string& texto : buenas)
      EXPECT_EQ(ComprobarParteCatastro(texto, registro, parte), kCorrecto) << texto;
    for (const std::string& texto : malas)
      EXPECT_EQ(ComprobarParteCatastro(texto, registro, parte), kIncorrecto) << texto;
  }
  for (const auto registro : kRegistrosCatastro)
    for (const auto parte : kPartesCatastro) {
      EXPECT_EQ(ComprobarParteCatastro("", registro, parte), kIncorrecto);
      EXPECT_EQ(ComprobarParteCatastro("12 3456789", registro, parte), kIncorrecto);
    }
}

TEST(Catastro, TodasLasReferencias) {
  const ReferenciaCatastral buena{"9872023VH5797S", "0001WX", "total"};
  ReferenciaCatastral mala = buena;
  mala.Parte.clear();
  EXPECT_FALSE(ComprobarReferencias({}, "DGC"));
  EXPECT_TRUE(ComprobarReferencias({buena, buena}, "DGC"));
  EXPECT_FALSE(ComprobarReferencias({buena, mala}, "DGC"));
  EXPECT_FALSE(ComprobarReferencias({buena}, "RRTN"));
}

TEST(Catastro, RotulosPorRegistro) {
  EXPECT_EQ(RotulosCatastro("GFA")[1], "Inmueble (7 nº + 1 mayuscula)");
  EXPECT_EQ(RotulosCatastro("AFA")[2], "Parte (3 a 36 nº ó letras incluidos -_)");
  EXPECT_EQ(RotulosCatastro("RRTN")[2], "Parte (3 a 36 nº y letras incluidos -_)");
  EXPECT_EQ(RotulosCatastro("")[0], "Parcela");
}

}  // namespace
}  // namespace novex
