#include "demand/GeneradorClima.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <map>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "demand/ClimaOficial.h"
#include "demand/PosicionSolar.h"
#include "files/CarpetaTemporal.h"

namespace novex {
namespace {

const EstadisticasClima& Clima() {
  static const EstadisticasClima clima =
      LeerEstadisticasClima(std::filesystem::path(NOVEX_RAIZ_DATOS) / "clima");
  return clima;
}

// El fichero de una zona tal como lo leerá el cálculo, con los redondeos de su texto.
const FicheroMet& Generado(const std::string& zona) {
  static std::map<std::string, FicheroMet> hechos;
  auto it = hechos.find(zona);
  if (it == hechos.end())
    it = hechos.emplace(zona, LeerMet(GenerarMet(Clima(), zona, "Oficial"))).first;
  return it->second;
}

double Hora(const FicheroMet& fichero, std::size_t dia, std::size_t hora,
            float RegistroMet::*campo) {
  return static_cast<double>(fichero.horas[dia * 24 + hora].*campo);
}

// Media de cada día del mes `m` (desde 0) de una columna.
std::vector<double> MediasDiarias(const FicheroMet& fichero, std::size_t m,
                                  float RegistroMet::*campo) {
  std::vector<double> medias;
  for (std::size_t d = PrimerDia(m); d < PrimerDia(m) + DiasDe(m); ++d) {
    double suma = 0;
    for (std::size_t h = 0; h < 24; ++h) suma += Hora(fichero, d, h, campo);
    medias.push_back(suma / 24);
  }
  return medias;
}

// Curso medio del día en el mes.
CursoDiario CursoMedio(const FicheroMet& fichero, std::size_t m, float RegistroMet::*campo) {
  CursoDiario curso{};
  for (std::size_t d = PrimerDia(m); d < PrimerDia(m) + DiasDe(m); ++d)
    for (std::size_t h = 0; h < 24; ++h)
      curso[h] += Hora(fichero, d, h, campo) / static_cast<double>(DiasDe(m));
  return curso;
}

std::vector<double> GlobalDiaria(const FicheroMet& fichero, std::size_t m) {
  auto global = MediasDiarias(fichero, m, &RegistroMet::directaHorizontal);
  const auto difusa = MediasDiarias(fichero, m, &RegistroMet::difusa);
  for (std::size_t d = 0; d < global.size(); ++d) global[d] = (global[d] + difusa[d]) * 24 / 1000;
  return global;
}

// Fórmulas de libro, aparte de las del generador.
double MediaDe(const std::vector<double>& x) {
  double suma = 0;
  for (const double v : x) suma += v;
  return suma / static_cast<double>(x.size());
}
double Covarianza(const std::vector<double>& x, const std::vector<double>& y) {
  double suma = 0;
  for (std::size_t i = 0; i < x.size(); ++i) suma += (x[i] - MediaDe(x)) * (y[i] - MediaDe(y));
  return suma / static_cast<double>(x.size() - 1);
}
double DesviacionDe(const std::vector<double>& x) {
  return std::sqrt(Covarianza(x, x));
}
double CorrelacionDe(const std::vector<double>& x, const std::vector<double>& y) {
  return Covarianza(x, y) / DesviacionDe(x) / DesviacionDe(y);
}
double AutocorrelacionDe(const std::vector<double>& x) {
  double suma = 0;
  for (std::size_t i = 0; i + 1 < x.size(); ++i)
    suma += (x[i] - MediaDe(x)) * (x[i + 1] - MediaDe(x));
  return suma / Covarianza(x, x) / static_cast<double>(x.size() - 1);
}

class PruebaZona : public ::testing::TestWithParam<std::string_view> {
 protected:
  const std::string zona_{GetParam()};
  const EstadisticasZona& estadisticas_ = *Clima().Zona(zona_);
  const FicheroMet& fichero_ = Generado(zona_);
};

TEST_P(PruebaZona, CumpleLasCifrasMensuales) {
  const ResumenMensualMet resumen = ResumirMet(fichero_);
  for (std::size_t m = 0; m < kMeses; ++m) {
    SCOPED_TRACE("mes " + std::to_string(m + 1));
    const EstadisticasMes& e = estadisticas_.meses[m];
    const FilaResumenMet& r = resumen.meses[m];
    EXPECT_NEAR(r.mediaSeca, e.temperaturaMedia, 0.1);
    EXPECT_NEAR(r.humedadRelativa, e.humedadRelativa, 2);
    EXPECT_NEAR(r.directa, e.directa, 0.01 * e.directa);
    EXPECT_NEAR(r.difusa, e.difusa, 0.01 * e.difusa);
    EXPECT_NEAR(r.depresionCielo, Media(e.depresionCielo.data(), 24), 0.2);

    const auto seca = MediasDiarias(fichero_, m, &RegistroMet::seca);
    EXPECT_NEAR(DesviacionDe(seca), e.desviacionDiaria, 0.15 * e.desviacionDiaria);
    EXPECT_NEAR(AutocorrelacionDe(seca), e.autocorrelacion, 0.15 * e.autocorrelacion);
    EXPECT_NEAR(DesviacionDe(GlobalDiaria(fichero_, m)), e.desviacionGlobal,
                0.15 * e.desviacionGlobal);
  }
}

TEST_P(PruebaZona, SigueElCursoMedioDelDia) {
  for (std::size_t m = 0; m < kMeses; ++m) {
    const EstadisticasMes& e = estadisticas_.meses[m];
    const CursoDiario seca = CursoMedio(fichero_, m, &RegistroMet::seca);
    const CursoDiario directa = CursoMedio(fichero_, m, &RegistroMet::directaHorizontal);
    const CursoDiario difusa = CursoMedio(fichero_, m, &RegistroMet::difusa);
    const CursoDiario absoluta = CursoMedio(fichero_, m, &RegistroMet::humedadAbsoluta);
    for (std::size_t h = 0; h < 24; ++h) {
      SCOPED_TRACE("mes " + std::to_string(m + 1) + " hora " + std::to_string(h + 1));
      EXPECT_NEAR(seca[h], e.temperatura[h], 0.1);
      EXPECT_NEAR(directa[h], e.directaHora[h], 0.03 * e.directaHora[h] + 1);
      EXPECT_NEAR(difusa[h], e.difusaHora[h], 0.03 * e.difusaHora[h] + 1);
      EXPECT_NEAR(absoluta[h], e.humedadAbsoluta[h], 0.06 * e.humedadAbsoluta[h]);
    }
  }
}

TEST_P(PruebaZona, CadaHoraEsFisicamentePosible) {
  for (std::size_t i = 0; i < fichero_.horas.size(); ++i) {
    const RegistroMet& r = fichero_.horas[i];
    SCOPED_TRACE("hora " + std::to_string(i + 1));
    // Tetens, en vez de la fórmula del generador: 0,3 % de diferencia en estas temperaturas. A eso
    // se suman los redondeos de la humedad del fichero (0,5 puntos y 0,000005 kg/kg) y de la
    // temperatura.
    const double t = static_cast<double>(r.seca);
    const double saturacion = 610.78 * std::exp(17.27 * t / (t + 237.3));
    const double pv = static_cast<double>(r.humedadRelativa) / 100 * saturacion;
    const double w = 0.622 * pv / (101325 - pv);
    ASSERT_NEAR(w, r.humedadAbsoluta,
                w * (0.52 / static_cast<double>(r.humedadRelativa) + 0.016) + 0.000006);
    ASSERT_GT(r.humedadRelativa, 5);
    ASSERT_LE(r.humedadRelativa, 100);
    ASSERT_LT(r.cielo, r.seca);
    ASSERT_GT(r.cielo, r.seca - 30);
    ASSERT_GE(r.directaHorizontal, 0);
    ASSERT_GE(r.difusa, 0);
    if (r.cenit >= 90) {
      ASSERT_EQ(r.directaHorizontal, 0);
      ASSERT_EQ(r.acimut, 0);
    } else {
      // 0,5 W/m2 y 0,05° son los redondeos del fichero.
      const double coseno = std::cos((static_cast<double>(r.cenit) - 0.06) * 3.14159265 / 180);
      ASSERT_LE(r.directaHorizontal - 0.5F, 1100 * coseno);
    }
  }
  EXPECT_THAT(ComprobarMet(GenerarMet(Clima(), zona_, "Oficial")), ::testing::IsEmpty());
}

TEST_P(PruebaZona, LosDiasClarosTienenMasRecorridoYMenosHumedad) {
  for (std::size_t m = 0; m < kMeses; ++m) {
    const auto global = GlobalDiaria(fichero_, m);
    // Con el cielo casi igual todos los días no hay nada que ver.
    if (DesviacionDe(global) < 0.2 * MediaDe(global)) continue;
    SCOPED_TRACE("mes " + std::to_string(m + 1));
    std::vector<double> recorrido;
    for (std::size_t d = PrimerDia(m); d < PrimerDia(m) + DiasDe(m); ++d) {
      double minima = 99;
      double maxima = -99;
      for (std::size_t h = 0; h < 24; ++h) {
        minima = std::min(minima, Hora(fichero_, d, h, &RegistroMet::seca));
        maxima = std::max(maxima, Hora(fichero_, d, h, &RegistroMet::seca));
      }
      recorrido.push_back(maxima - minima);
    }
    EXPECT_GT(CorrelacionDe(global, recorrido), 0.5);
    EXPECT_LT(CorrelacionDe(global, MediasDiarias(fichero_, m, &RegistroMet::humedadRelativa)),
              -0.2);
    EXPECT_LT(std::fabs(CorrelacionDe(global, MediasDiarias(fichero_, m, &RegistroMet::seca))),
              0.5);
  }
}

INSTANTIATE_TEST_SUITE_P(Zonas, PruebaZona, ::testing::ValuesIn(kZonasMet),
                         [](const auto& caso) { return std::string(caso.param); });

TEST(GenerarMet, DaLosMismosBytesYElFormatoDelFichero) {
  const std::string texto = GenerarMet(Clima(), "D3", "Oficial");
  EXPECT_EQ(texto, GenerarMet(Clima(), "D3", "Oficial"));
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 8762);
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '\r'), 8762);
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '\t'), 3 + 8760 * 12);
  EXPECT_EQ(texto.find("-0.0\t"), std::string::npos);
  EXPECT_THAT(texto, ::testing::EndsWith("\t0.0\t90.0\r\n"));
  const std::size_t segunda = texto.find('\n') + 1;
  EXPECT_EQ(texto.substr(segunda, texto.find('\n', segunda) - segunda),
            "40.6833\t-4.1333\t667\t15\r");
  EXPECT_THAT(texto, ::testing::HasSubstr("\r\n12\t31\t24\t"));
}

TEST(GenerarMet, LosOtrosConjuntosSonElMismoTiempoConSuTendencia) {
  const FicheroMet& oficial = Generado("D3");
  const ResumenMensualMet resumenOficial = ResumirMet(oficial);
  for (const char* conjunto : {"1992", "2002", "2012", "2022"}) {
    SCOPED_TRACE(conjunto);
    const TendenciaClima& tendencia = *Clima().Tendencia(conjunto);
    const FicheroMet otro = LeerMet(GenerarMet(Clima(), "D3", conjunto));
    const ResumenMensualMet resumen = ResumirMet(otro);
    for (std::size_t m = 0; m < kMeses; ++m) {
      EXPECT_NEAR(resumen.meses[m].mediaSeca - resumenOficial.meses[m].mediaSeca,
                  tendencia.incremento[m], 0.02);
      EXPECT_NEAR(resumen.meses[m].humedadRelativa, resumenOficial.meses[m].humedadRelativa, 0.5);
      EXPECT_GT(resumen.meses[m].mediaSeca, resumenOficial.meses[m].mediaSeca);
    }
    const auto [menor, mayor] =
        std::minmax_element(tendencia.incremento.begin(), tendencia.incremento.end());
    for (std::size_t i = 0; i < oficial.horas.size(); ++i) {
      const double sube = static_cast<double>(otro.horas[i].seca - oficial.horas[i].seca);
      ASSERT_GT(sube, *menor - 0.2) << i;
      ASSERT_LT(sube, *mayor + 0.2) << i;
      ASSERT_EQ(otro.horas[i].directaHorizontal, oficial.horas[i].directaHorizontal);
    }
  }
  EXPECT_THROW(GenerarMet(Clima(), "Z9", "Oficial"), std::out_of_range);
  EXPECT_THROW(GenerarMet(Clima(), "D3", "1850"), std::out_of_range);
}

TEST(SecuenciaDias, LaCurvaEstacionalConservaLasMediasYNoDaSaltos) {
  const std::array<double, 12> medias = {5, 6, 8, 11, 14, 21, 24, 24.5, 22, 14, 8, 5};
  const SerieDiaria curva = CurvaEstacional(medias);
  for (std::size_t m = 0; m < 12; ++m)
    EXPECT_NEAR(Media(&curva[PrimerDia(m)], DiasDe(m)), medias[m], 1e-3);
  for (std::size_t d = 0; d < kDiasAno; ++d)
    EXPECT_LT(std::fabs(curva[(d + 1) % kDiasAno] - curva[d]), 0.6) << d;
  // Las normales propias tienen media 0 y desviación 1.
  Azar azar(1);
  std::vector<double> z(20000);
  for (double& x : z) x = azar.Normal();
  EXPECT_NEAR(MediaDe(z), 0, 0.03);
  EXPECT_NEAR(Covarianza(z, z), 1, 0.04);
  EXPECT_NEAR(AutocorrelacionDe(z), 0, 0.03);
}

TEST(LeerEstadisticasClima, LosFicherosMalosDanSuFallo) {
  const pruebas::CarpetaTemporal temporal;
  const auto carpeta = temporal / "clima";
  // Fichero, trozo que se cambia, lo que se pone y lo que dice el fallo.
  // Miles de conjuntos o un millón de campos se rechaza en cuanto sobran.
  std::string conjuntos, campos(1'000'000, ';');
  for (int i = 0; i < 100'000; ++i) conjuntos += "c" + std::to_string(i) + ";1;0\n";
  const std::array<const char*, 4> casos[] = {
      {"mensual.csv", "zona;mes", "zone;mes", "línea 1: la cabecera"},
      {"mensual.csv", "alfa1c;2;", "alfa1c;1;", "línea 3: mes repetido"},
      {"mensual.csv", "alfa1c;2;", "omega;2;", "la zona no existe"},
      {"mensual.csv", "alfa1c;2;", "alfa1c;13;", "línea 3"},
      {"mensual.csv", "alfa1c;2;28.3250;", "alfa1c;2;norte;", "norte"},
      {"perfil_diario.csv", "alfa1c;1;difusa", "alfa1c;1;directa", "perfil repetido"},
      {"perfil_diario.csv", "alfa1c;1;difusa", "alfa1c;1;otra", "variable desconocida"},
      {"tendencia.csv", "1992;3;", "1992;4;", "fuera de orden"},
      {"tendencia.csv", "1992;1;", campos.c_str(), "hay 4 campos"},
      {"tendencia.csv", "1992;1;", conjuntos.c_str(), "demasiados conjuntos"}};
  for (const auto& [nombre, viejo, nuevo, fallo] : casos) {
    SCOPED_TRACE(nuevo);
    std::filesystem::remove_all(carpeta);
    std::filesystem::copy(std::filesystem::path(NOVEX_RAIZ_DATOS) / "clima", carpeta);
    std::string texto = LeerFichero(carpeta / nombre);
    ASSERT_NE(texto.find(viejo), std::string::npos);
    EscribirFichero(carpeta / nombre,
                    texto.replace(texto.find(viejo), std::string(viejo).size(), nuevo));
    EXPECT_THAT([&] { LeerEstadisticasClima(carpeta); },
                ::testing::ThrowsMessage<ErrorFichero>(::testing::HasSubstr(fallo)));
  }
  EXPECT_THROW(LeerEstadisticasClima(carpeta / "no_existe"), ErrorFichero);
}

// Los climas oficiales no se distribuyen: la comparación se hace donde están.
TEST(GeneradorClima, FrenteAlOficialElGeneradoTieneSuDispersionHorariaYSuCursoDiario) {
  const pruebas::ClimaOficial clima;
  if (!clima.Carpeta()) GTEST_SKIP() << "sin los climas oficiales (NOVEX_DATOS_PRUEBA)";
  for (const char* zona : {"A3", "A4", "B3", "C1", "C2", "D1", "D2", "D3", "E1"}) {
    const auto ruta = *clima.Carpeta() / (std::string("zona") + zona + ".met");
    const FicheroMet oficial = LeerMet(LeerFichero(ruta), ruta.string());
    const FicheroMet& generado = Generado(zona);
    double sumaCenit = 0;
    for (std::size_t i = 0; i < oficial.horas.size(); ++i)
      sumaCenit += std::fabs(static_cast<double>(oficial.horas[i].cenit - generado.horas[i].cenit));
    EXPECT_LT(sumaCenit / 8760, 0.3) << zona;
    for (std::size_t m = 0; m < kMeses; ++m) {
      SCOPED_TRACE(std::string(zona) + " mes " + std::to_string(m + 1));
      std::vector<double> horasOficial;
      std::vector<double> horasGenerado;
      for (std::size_t i = PrimerDia(m) * 24; i < (PrimerDia(m) + DiasDe(m)) * 24; ++i) {
        horasOficial.push_back(static_cast<double>(oficial.horas[i].seca));
        horasGenerado.push_back(static_cast<double>(generado.horas[i].seca));
      }
      const double desviacion = DesviacionDe(horasOficial);
      EXPECT_NEAR(DesviacionDe(horasGenerado), desviacion, 0.05 * desviacion);
      const CursoDiario a = CursoMedio(oficial, m, &RegistroMet::directaHorizontal);
      const CursoDiario b = CursoMedio(generado, m, &RegistroMet::directaHorizontal);
      for (std::size_t h = 0; h < 24; ++h) EXPECT_NEAR(b[h], a[h], 0.03 * a[h] + 1.5);
    }
  }
}

}  // namespace
}  // namespace novex
