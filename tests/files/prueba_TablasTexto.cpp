#include <gtest/gtest.h>

#include <tuple>

#include "files/DerivacionesAntiguas.h"
#include "files/texto/LugaresAntiguos.h"
#include "files/texto/VersionTexto.h"

namespace novex {
namespace {

TEST(LugaresAntiguos, PosicionesDeLasListas) {
  // Contadas a mano en las listas: la primera, la última y algunas del medio.
  EXPECT_EQ(ProvinciaDeIndice(0), "A Coruña");
  EXPECT_EQ(ProvinciaDeIndice(24), "Illes Balears");
  EXPECT_EQ(ProvinciaDeIndice(51), "Vizcaya");
  EXPECT_EQ(ProvinciaDeIndice(52), "");
  EXPECT_EQ(CiudadDeIndice(0, 2), "Coruña (A)");
  EXPECT_EQ(CiudadDeIndice(3, 12), "San Vicente del Raspeig/Sant Vicent del Raspeig");
  EXPECT_EQ(CiudadDeIndice(8, 9), "Cabrera d'igualada");
  EXPECT_EQ(CiudadDeIndice(51, 10), "Sestao");
  EXPECT_EQ(CiudadDeIndice(51, 12), "");
  EXPECT_EQ(CiudadDeIndice(60, 0), "");
  for (int p = 0; p < 52; ++p) {
    int n = 0;
    while (!CiudadDeIndice(p, n + 1).empty()) ++n;
    EXPECT_EQ(CiudadDeIndice(p, n), "Otra") << p;
    EXPECT_GE(n, 1) << p;
  }
}

TEST(VersionTexto, GeneracionYFicheroDeMejoras) {
  using enum GeneracionTexto;
  for (const auto& [version, generacion, mejoras] : {std::tuple{"NOVEX_v2.1", Primera, true},
                                                     {"NOVEX v_2.2", Primera, true},
                                                     {"NOVEX v2.0", Segunda, true},
                                                     {"NOVEX v2.3", Segunda, true},
                                                     {"NOVEX v2.4", Tercera, true},
                                                     {"NOVEX v4.2", Tercera, true},
                                                     {"NOVEX v5.0", Tercera, false},
                                                     {"NOVEX v5.01", Tercera, false},
                                                     {"NOVEX v5.11", Tercera, false},
                                                     {"NOVEX v6.01", Tercera, false},
                                                     {"NOVEX v6.1", Tercera, false}}) {
    EXPECT_EQ(GeneracionDe(version), generacion) << version;
    EXPECT_EQ(ConFicheroDeMejoras(version), mejoras) << version;
  }
  EXPECT_EQ(GeneracionDe("NOVEX v2.40"), std::nullopt);
  EXPECT_FALSE(ConFicheroDeMejoras("NOVEX v9"));
}

TEST(DerivacionesAntiguas, TipoDeCertificadoYPeriodo) {
  for (const auto& [modo, tipo] : {std::pair{"Nuevo", "ProyectoNuevaConstruccion"},
                                   {"Existente", "Existente"},
                                   {"CertificacionSolo", "Existente"},
                                   {"Ampliación", "ProyectoAmpliacion"},
                                   {"Cambio de uso", "ProyectoAmpliacion"},
                                   {"Reforma <25% envolvente + Clima ", "ProyectoReforma"},
                                   {"Otro", ""},
                                   {"", ""}})
    EXPECT_EQ(TipoCertificadoDe(modo), tipo) << modo;
  for (const auto& [ano, periodo] : {std::pair{"1850", "ANTE-1900"},
                                     {"1899", "ANTE-1900"},
                                     {"1900", "1900-1939"},
                                     {"1939", "1900-1939"},
                                     {"1940", "1940-1959"},
                                     {"1959", "1940-1959"},
                                     {"1960", "1960-1978"},
                                     {"1978", "1960-1978"},
                                     {"1979", "1979-2005"},
                                     {"2005", "1979-2005"},
                                     {"2006", "2006-2012"},
                                     {"2012", "2006-2012"},
                                     {"2013", "2013-2018"},
                                     {"2018", "2013-2018"},
                                     {"2019", "POST-2018"},
                                     {"1979-2005", "1979-2005"},
                                     {"hacia 1900", "hacia 1900"},
                                     {"", ""}})
    EXPECT_EQ(PeriodoConstruccionDe(ano), periodo) << ano;
}

}  // namespace
}  // namespace novex
