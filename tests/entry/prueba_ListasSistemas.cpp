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

}  // namespace
}  // namespace novex
