#include "entry/ListasSistemas.h"

#include <gtest/gtest.h>

#include "systems/ArregloACS.h"

namespace novex {
namespace {

// Cada alimentación que se ofrece está en el campo que mira el arreglo del bloque.
TEST(ListasSistemas, LaAlimentacionEsLaDelArreglo) {
  for (const std::string tipo : {"ACS", "ACS+Calefaccion"})
    for (const auto clase : ClasesOfrecidas(tipo, kIndividual)) {
      Instalaciones b;
      b.Seleccion = clase;
      const bool calentador = clase == "1 Calentador";
      ListaTextos lados =
          calentador ? Distribuciones2Ofrecidas(tipo, clase) : DistribucionesOfrecidas(tipo, clase);
      constexpr std::string_view kNinguno[] = {""};
      if (lados.empty()) lados = kNinguno;
      for (const auto lado : lados) {
        (calentador ? b.Distribucion2 : b.Distribucion) = lado;
        const AlimentacionOfrecida a = AlimentacionDeBloque(tipo, b);
        ASSERT_NE(a.campo, nullptr) << clase << " " << lado;
        for (const auto valor : a.valores) {
          b.*a.campo = valor;
          EXPECT_EQ(ResolverArreglo(TipoSistemaDe(tipo), b).alimentacion, AlimentacionDe(valor))
              << clase << " " << lado << " " << valor;
        }
        b.*a.campo = "";
      }
    }
}

TEST(ListasSistemas, ClasesPorServicioYTipologia) {
  EXPECT_EQ(ClasesOfrecidas("Calefaccion", kIndividual).back(), "Rend. estacional");
  EXPECT_EQ(ClasesOfrecidas("Calefaccion", kCentralizada).back(),
            "Rend. estacional (refrigerante)");
  EXPECT_EQ(ClasesOfrecidas("ACS", kIndividual).front(), "1 Calentador");
  EXPECT_EQ(ClasesOfrecidas("Calefaccion+Refrigeracion", kIndividual).size(), 9U);
  EXPECT_FALSE(EstaEn(ClasesOfrecidas("Calefaccion+Refrigeracion", kIndividual),
                      "Enfriadora agua cond.aire"));
  EXPECT_TRUE(ClasesOfrecidas("ACS", "").empty());
  EXPECT_TRUE(ClasesOfrecidas("", kIndividual).empty());
  EXPECT_TRUE(EmisoresOfrecidos("ACS", "1 Caldera").empty());
}

}  // namespace
}  // namespace novex
