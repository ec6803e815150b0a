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
#include "files/CarpetaTemporal.h"

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
  EXPECT_EQ(std::tuple(fichero.latitud, fichero.longitud, fichero.altitud, fichero.meridiano),
            std::tuple(40.5F, -4.0F, 667.0F, 15.0F));
  ASSERT_EQ(fichero.horas.size(), 8760U);
  const RegistroMet& r = fichero.horas.front();
  EXPECT_EQ(std::tuple(r.seca, r.cielo, r.directaHorizontal, r.difusa, r.humedadAbsoluta,
                       r.humedadRelativa, r.acimut, r.cenit),
            std::tuple(-3.25F, -10.5F, 12.0F, 34.0F, 0.00572F, 75.0F, -58.1F, 89.3F));
  // El viento no se lee, así que puede no ser un número.
  const RegistroMet& u = fichero.horas.back();
  EXPECT_EQ(std::tuple(u.seca, u.cielo, u.humedadAbsoluta), std::tuple(7.5F, 2.0F, 0.004F));
  // Una cabecera corta no da lugar, y el título puede venir en otra codificación.
  auto cortas = LineasDeManual();
  cortas[0] = "A\xF1o";  // Latin-1
  cortas[1] = "40.5\t-4\t667";
  const FicheroMet corto = LeerMet(Unir(cortas));
  EXPECT_EQ(corto.titulo, "Año");
  EXPECT_FALSE(corto.hayCabecera);
  EXPECT_EQ(corto.latitud, 0.0F);
}

TEST(LeerMet, LasFaltasDicenSuLinea) {
  auto lineas = LineasDeManual();
  const auto conLinea = [&](std::size_t i, const std::string& texto) {
    auto cambiadas = lineas;
    cambiadas[i] = texto;
    return LineaDelError(Unir(cambiadas));
  };
  EXPECT_EQ(LineaDelError(""), 3);
  EXPECT_EQ(conLinea(99, "1 2 3 4 5 6 7 8 9"), 100);
  EXPECT_EQ(conLinea(99, ""), 100);
  EXPECT_EQ(conLinea(1, "norte -4 667 15"), 2);
  for (const char* mala : {"doce", "nan", "inf", "1e99", "1.2.3", "-", "12x", "1,5,2"})
    EXPECT_EQ(conLinea(500, std::string("1 1 1 ") + mala + " 0 0 0 0.005 50 1 1 0 90"), 501)
        << mala;
  // La última línea puede acabar sin fin de línea, y no puede faltar.
  std::string texto = Unir(lineas);
  texto.resize(texto.size() - 2);
  EXPECT_EQ(LeerMet(texto).horas.size(), 8760U);
  lineas.resize(8761);
  EXPECT_EQ(LineaDelError(Unir(lineas)), 8762);
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
  const auto buenas = LineasDeManual();
  for (const auto& [cabecera, falta] :
       {std::pair{"28\t-16\t30\t0", "el cenit no es"}, {"40.5\t-4", "línea 2"}}) {
    auto lineas = buenas;
    lineas[1] = cabecera;
    EXPECT_THAT(ComprobarMet(Unir(lineas)), Contains(HasSubstr(falta)));
  }
  // Todo el año una hora tarde, como en hora oficial.
  auto lineas = buenas;
  std::rotate(lineas.begin() + 2, lineas.end() - 1, lineas.end());
  EXPECT_THAT(ComprobarMet(Unir(lineas)), Contains(HasSubstr("el cenit no es")));
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

TEST(InstalarClima, InstalaLosBuenosYExplicaLosDemas) {
  const pruebas::CarpetaTemporal carpeta;
  const auto origen = carpeta / "origen", destino = carpeta / "databaseCTE";
  std::filesystem::create_directories(origen);
  const std::string bueno = Unir(LineasDeManual());
  std::ofstream(origen / "zonaD3.met", std::ios::binary) << bueno;
  std::ofstream(origen / "ZONAALFA3C.MET", std::ios::binary) << bueno;
  std::ofstream(origen / "zonaC1.met", std::ios::binary) << "a medias\n";
  std::ofstream(origen / "zonaZ9.met", std::ios::binary) << bueno;

  const auto resultados = InstalarClima(origen, destino);
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
  EXPECT_EQ(LeerFichero(destino / "ZonaD3.met"), bueno);
  EXPECT_TRUE(std::filesystem::exists(destino / "Zonaalfa3c.met"));
  EXPECT_FALSE(std::filesystem::exists(destino / "ZonaC1.met"));
  EXPECT_THROW(InstalarClima(carpeta / "no_existe", destino), ErrorFichero);
}

TEST(InstalarClima, TomaLosFicherosOficiales) {
  const pruebas::CarpetaTemporal carpeta;
  const pruebas::ClimaOficial clima;
  if (!clima.Carpeta()) GTEST_SKIP() << "sin los climas oficiales (NOVEX_DATOS_PRUEBA)";
  for (const ClimaInstalado& r : InstalarClima(*clima.Carpeta(), carpeta / "databaseCTE"))
    EXPECT_TRUE(r.instalado) << r.zona << ": " << r.faltas.front();
}

}  // namespace
}  // namespace novex
