#include "demand/FicheroMet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "demand/ClimaOficial.h"
#include "demand/InstalarClima.h"
#include "demand/PosicionSolar.h"

namespace novex {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// Año de un cielo de manual: temperatura 10 °C los meses impares y 20 °C los pares; de día, 300
// W/m2 de difusa y directa igual a 600 veces el coseno del cenit.
std::vector<std::string> LineasDeManual() {
  std::vector<std::string> lineas = {"Título", "40.5\t-4\t667\t15"};
  for (int h = 1; h <= kHorasAno; ++h) {
    const PosicionSolar sol = CalcularPosicionSolar(40.5, DiaDelAno(h), HoraDelDia(h));
    const int seca = HoraDelMes(h) % 2 == 1 ? 10 : 20;
    const int difusa = sol.cosenoCenit > 0 ? 150 : 0;
    lineas.push_back("1\t1\t1\t" + std::to_string(seca) + "\t" + std::to_string(seca - 8) + "\t" +
                     std::to_string(600 * sol.cosenoCenit) + "\t" + std::to_string(difusa) +
                     "\t0.006\t50\t2\t180\t" + std::to_string(sol.acimut) + "\t" +
                     std::to_string(sol.cenit));
  }
  return lineas;
}

std::string Unir(const std::vector<std::string>& lineas) {
  std::string texto;
  for (const std::string& linea : lineas) texto += linea + "\r\n";
  return texto;
}

int LineaDelError(const std::string& contenido) {
  try {
    LeerMet(contenido, "x.met");
  } catch (const ErrorFichero& error) {
    EXPECT_THAT(error.what(), HasSubstr("x.met, línea " + std::to_string(error.linea)));
    return error.linea;
  }
  return -1;
}

TEST(LeerMet, CuentaLasColumnasDesdeElFinalConTabuladoresOBlancos) {
  auto lineas = LineasDeManual();
  // Las tres primeras columnas pueden faltar, y los blancos de relleno no son campos.
  lineas[2] = "  -3.25\t -10.5 \t   12\t    34 \t0.00572\t    75\t   1.1\t   218\t -58.1\t  89.3  ";
  lineas[8761] = "9 9 12 31 24 +7.5 2e0 0 0 .004 90 viento ? -0 90";
  const FicheroMet fichero = LeerMet(Unir(lineas));
  EXPECT_EQ(fichero.titulo, "Título");
  EXPECT_TRUE(fichero.hayCabecera);
  EXPECT_FLOAT_EQ(fichero.latitud, 40.5F);
  EXPECT_FLOAT_EQ(fichero.longitud, -4.0F);
  EXPECT_FLOAT_EQ(fichero.altitud, 667.0F);
  EXPECT_FLOAT_EQ(fichero.meridiano, 15.0F);
  ASSERT_EQ(fichero.horas.size(), 8760U);
  const RegistroMet& primera = fichero.horas.front();
  EXPECT_EQ(primera.seca, -3.25F);
  EXPECT_EQ(primera.cielo, -10.5F);
  EXPECT_EQ(primera.directaHorizontal, 12.0F);
  EXPECT_EQ(primera.difusa, 34.0F);
  EXPECT_EQ(primera.humedadAbsoluta, 0.00572F);
  EXPECT_EQ(primera.humedadRelativa, 75.0F);
  EXPECT_EQ(primera.acimut, -58.1F);
  EXPECT_EQ(primera.cenit, 89.3F);
  // El viento no se lee, así que puede no ser un número.
  EXPECT_EQ(fichero.horas.back().seca, 7.5F);
  EXPECT_EQ(fichero.horas.back().cielo, 2.0F);
  EXPECT_EQ(fichero.horas.back().humedadAbsoluta, 0.004F);
}

TEST(LeerMet, CabeceraCortaNoDaLugarYElTituloPuedeVenirEnOtraCodificacion) {
  auto lineas = LineasDeManual();
  lineas[0] = "A\xF1o";  // Latin-1
  lineas[1] = "40.5\t-4\t667";
  const FicheroMet fichero = LeerMet(Unir(lineas));
  EXPECT_EQ(fichero.titulo, "Año");
  EXPECT_FALSE(fichero.hayCabecera);
  EXPECT_EQ(fichero.latitud, 0.0F);
}

TEST(LeerMet, LasFaltasDicenSuLinea) {
  const auto buenas = LineasDeManual();
  EXPECT_EQ(LineaDelError(""), 3);

  auto lineas = buenas;
  lineas.resize(8761);
  EXPECT_EQ(LineaDelError(Unir(lineas)), 8762);

  lineas = buenas;
  lineas[99] = "1 2 3 4 5 6 7 8 9";
  EXPECT_EQ(LineaDelError(Unir(lineas)), 100);
  lineas[99] = "";
  EXPECT_EQ(LineaDelError(Unir(lineas)), 100);

  for (const char* mala : {"doce", "nan", "inf", "1e99", "1.2.3", "-", "12x", "1,5,2"}) {
    lineas = buenas;
    lineas[500] = std::string("1 1 1 ") + mala + " 0 0 0 0.005 50 1 1 0 90";
    EXPECT_EQ(LineaDelError(Unir(lineas)), 501) << mala;
  }

  lineas = buenas;
  lineas[1] = "norte -4 667 15";
  EXPECT_EQ(LineaDelError(Unir(lineas)), 2);

  // La última línea puede acabar sin fin de línea.
  std::string texto = Unir(buenas);
  texto.resize(texto.size() - 2);
  EXPECT_EQ(LeerMet(texto).horas.size(), 8760U);
}

TEST(ComprobarMet, AceptaUnFicheroCorrectoYDiceCadaFalta) {
  const auto buenas = LineasDeManual();
  EXPECT_THAT(ComprobarMet(Unir(buenas)), IsEmpty());

  auto lineas = buenas;
  lineas[2] = "1 1 1 80 0 0 0 0.005 120 1 1 0 90";   // calor y humedad imposibles
  lineas[3] = "1 1 2 10 2 0.5 0 0.005 50 1 1 0 90";  // sol de noche
  lineas[4] = "1 1 3 10 30 0 0 0.005 50 1 1 0 90";   // cielo más caliente
  lineas.push_back("1 1 1 10 2 0 0 0.005 50 1 1 0 90");
  const auto faltas = ComprobarMet(Unir(lineas));
  EXPECT_EQ(faltas.size(), 5U);
  EXPECT_THAT(faltas, Contains(HasSubstr("línea 3: temperatura seca")));
  EXPECT_THAT(faltas, Contains(HasSubstr("línea 3: humedad relativa")));
  EXPECT_THAT(faltas, Contains(HasSubstr("línea 4: radiación directa con el sol")));
  EXPECT_THAT(faltas, Contains(HasSubstr("línea 5: cielo más caliente")));
  EXPECT_THAT(faltas, Contains(HasSubstr("sobran líneas")));
}

TEST(ComprobarMet, DescubreHoraOSentidoDelSolDistintos) {
  // Todo el año una hora tarde, como en hora oficial.
  auto lineas = LineasDeManual();
  std::rotate(lineas.begin() + 2, lineas.end() - 1, lineas.end());
  EXPECT_THAT(ComprobarMet(Unir(lineas)), Contains(HasSubstr("el cenit no es")));

  lineas = LineasDeManual();
  lineas[1] = "28\t-16\t30\t0";
  EXPECT_THAT(ComprobarMet(Unir(lineas)), Contains(HasSubstr("el cenit no es")));

  lineas = LineasDeManual();
  lineas[1] = "40.5\t-4";
  EXPECT_THAT(ComprobarMet(Unir(lineas)), Contains(HasSubstr("línea 2")));
}

TEST(ResumirMet, MediasYSumasDeMesYAno) {
  const ResumenMensualMet resumen = ResumirMet(LeerMet(Unir(LineasDeManual())));
  EXPECT_FLOAT_EQ(resumen.meses[0].mediaSeca, 10);
  EXPECT_FLOAT_EQ(resumen.meses[1].mediaSeca, 20);
  // Los meses pares son febrero, abril, junio, agosto, octubre y diciembre:
  // 28 + 30 + 30 + 31 + 31 + 31 = 181 días.
  EXPECT_NEAR(resumen.ano.mediaSeca, 10.0 + 10.0 * 181.0 / 365.0, 1e-4);
  EXPECT_FLOAT_EQ(resumen.ano.minimaSeca, 10);
  EXPECT_FLOAT_EQ(resumen.ano.maximaSeca, 20);
  EXPECT_FLOAT_EQ(resumen.meses[5].humedadRelativa, 50);
  EXPECT_FLOAT_EQ(resumen.meses[5].depresionCielo, 8);
  // En junio a 40,5° el centro de hora está sobre el horizonte 14 horas todos los días.
  EXPECT_FLOAT_EQ(resumen.meses[5].difusa, 30 * 14 * 0.15F);
  double directa = 0;
  for (const auto& mes : resumen.meses) directa += static_cast<double>(mes.directa);
  EXPECT_NEAR(resumen.ano.directa, directa, 0.05);
  EXPECT_NEAR(resumen.meses[5].global, resumen.meses[5].directa + resumen.meses[5].difusa, 1e-3);
  EXPECT_THROW(ResumirMet(FicheroMet{}), std::logic_error);
}

TEST(PosicionSolar, SolsticiosYEquinoccio) {
  // 21 de junio: declinación 23,45. A las 11:30, hora 7,5° antes del mediodía: el cenit es
  // acos(sen 40 sen 23,45 + cos 40 cos 23,45 cos 7,5) = 17,66.
  EXPECT_NEAR(CalcularPosicionSolar(40, 172, 12).cenit, 17.72, 0.05);
  // Simétrico a los dos lados del mediodía, negativo por la mañana.
  const PosicionSolar manana = CalcularPosicionSolar(40, 172, 9);
  const PosicionSolar tarde = CalcularPosicionSolar(40, 172, 16);
  EXPECT_LT(manana.acimut, 0);
  EXPECT_NEAR(manana.acimut, -tarde.acimut, 1e-9);
  EXPECT_NEAR(manana.cenit, tarde.cenit, 1e-9);
  const PosicionSolar noche = CalcularPosicionSolar(40, 172, 1);
  EXPECT_EQ(noche.cenit, 90);
  EXPECT_EQ(noche.acimut, 0);
  for (double x = -6; x <= 6; x += 0.37) {
    EXPECT_NEAR(SenoReproducible(x), std::sin(x), 1e-14);
    EXPECT_NEAR(CosenoReproducible(x), std::cos(x), 1e-14);
  }
}

class PruebaInstalarClima : public ::testing::Test {
 protected:
  void SetUp() override {
    carpeta_ = std::filesystem::path(::testing::TempDir()) / "novex_prueba_instalar_clima";
    std::filesystem::remove_all(carpeta_);
    std::filesystem::create_directories(carpeta_ / "origen");
  }
  void TearDown() override { std::filesystem::remove_all(carpeta_); }

  std::filesystem::path carpeta_;
};

TEST_F(PruebaInstalarClima, InstalaLosBuenosYExplicaLosDemas) {
  const std::string bueno = Unir(LineasDeManual());
  std::ofstream(carpeta_ / "origen" / "zonaD3.met", std::ios::binary) << bueno;
  std::ofstream(carpeta_ / "origen" / "ZONAALFA3C.MET", std::ios::binary) << bueno;
  std::ofstream(carpeta_ / "origen" / "zonaC1.met", std::ios::binary) << "a medias\n";
  std::ofstream(carpeta_ / "origen" / "zonaZ9.met", std::ios::binary) << bueno;

  const auto resultados = InstalarClima(carpeta_ / "origen", carpeta_ / "databaseCTE");
  ASSERT_EQ(resultados.size(), kZonasMet.size());
  std::vector<std::string> instaladas;
  for (const ClimaInstalado& r : resultados) {
    if (r.instalado) instaladas.push_back(r.zona);
    EXPECT_EQ(r.instalado, r.faltas.empty()) << r.zona;
    if (r.zona == "C1") {
      EXPECT_THAT(r.faltas, Contains(HasSubstr("línea 3")));
    }
    if (r.zona == "E1") {
      EXPECT_TRUE(r.origen.empty());
    }
  }
  EXPECT_THAT(instaladas, ::testing::ElementsAre("D3", "alfa3c"));
  EXPECT_EQ(LeerFichero(carpeta_ / "databaseCTE" / "ZonaD3.met"), bueno);
  EXPECT_TRUE(std::filesystem::exists(carpeta_ / "databaseCTE" / "Zonaalfa3c.met"));
  EXPECT_FALSE(std::filesystem::exists(carpeta_ / "databaseCTE" / "ZonaC1.met"));
  EXPECT_THROW(InstalarClima(carpeta_ / "no_existe", carpeta_ / "databaseCTE"), ErrorFichero);
}

TEST_F(PruebaInstalarClima, TomaLosFicherosOficiales) {
  const pruebas::ClimaOficial clima;
  if (!clima.Carpeta()) GTEST_SKIP() << "sin los climas oficiales (NOVEX_DATOS_PRUEBA)";
  for (const ClimaInstalado& r : InstalarClima(*clima.Carpeta(), carpeta_ / "databaseCTE"))
    EXPECT_TRUE(r.instalado) << r.zona << ": " << r.faltas.front();
}

}  // namespace
}  // namespace novex
