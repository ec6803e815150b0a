#include "systems/DemandaACS.h"

#include <gtest/gtest.h>

#include "systems/CasoSistemas.h"

namespace novex {
namespace {

using pruebas::BloqueCompleto;
using pruebas::CasoSistemas;

TEST(DemandaACS, PersonasPorDormitoriosYCentralizacion) {
  const std::array<float, 10> personas = {0, 1.5F, 3, 4, 5, 6, 6, 7, 7, 7};
  for (std::size_t n = 0; n < personas.size(); ++n)
    EXPECT_EQ(PersonasVivienda(static_cast<int>(n)), personas[n]) << n;
  EXPECT_EQ(PersonasVivienda(-1), 0.0F);
  Ventilacion v;
  v.tipologias = {{{2, 1, 0, 0}, {3, 2, 0, 0}, {}, {}, {}, {1, 9, 0, 0}}};
  EXPECT_EQ(PersonasTotales(v), 2 * 1.5F + 3 * 3.0F + 7.0F);
  const std::pair<int, float> casos[] = {{0, 1},       {1, 1},      {3, 1},      {4, 0.95F},
                                         {10, 0.95F},  {11, 0.9F},  {20, 0.9F},  {21, 0.85F},
                                         {50, 0.85F},  {51, 0.8F},  {75, 0.8F},  {76, 0.75F},
                                         {100, 0.75F}, {101, 0.7F}, {5000, 0.7F}};
  for (const auto& [n, factor] : casos) EXPECT_EQ(FactorCentralizacion(n), factor) << n;
}

TEST(DemandaACS, VolumenDeReferencia) {
  CasoSistemas c;
  Ventilacion v;
  v.tipologias = {{{10, 2, 0, 0}, {2, 3, 0, 0}, {}, {}, {}, {}}};
  c.edificio.SetVentilacion(v);
  EXPECT_NEAR(VolumenReferencia(c.edificio), 28 * 38 * 0.9, 1e-3);
  const std::pair<const char*, float> casos[] = {{"Hotel *****", 690},
                                                 {"Hotel/hostal **", 340},
                                                 {"Oficinas", 20},
                                                 {"Escuela sin ducha", 40},
                                                 {"Cafeterías", 10},
                                                 {"Otros", 0},
                                                 {"", 550},
                                                 {"Una que no existe", 550}};
  for (const auto& [actividad, litros] : casos) {
    c.Generales([&, a = actividad](DatosGenerales& g) {
      g.PerfilUso = 3;
      g.Nm2_p = 10;
      g.Actividad = a;
    });
    EXPECT_NEAR(VolumenReferencia(c.edificio), litros, 1e-3) << actividad;
  }
  c.Generales([](DatosGenerales& g) { g.Nm2_p = 0; });
  EXPECT_EQ(VolumenReferencia(c.edificio), 0.0F);
}

// Personas por tipo: A 1,5 (2 viviendas), B 4 (1 vivienda): 7 en total y 3 viviendas.
TEST(DemandaACS, FactoresDeVivienda) {
  struct Fila {
    int perfil;
    const char* instalacion;
    int tipo;
    double f1, f2;
  };
  const char* individual = "Individual/Vivienda";
  const char* central = "Centralizada/Bloque";
  const Fila filas[] = {
      {0, individual, 0, 1, 1},       {0, central, 0, 1, 1},      {1, individual, 0, 1.5 / 7, 3},
      {1, individual, 1, 4.0 / 7, 3}, {1, individual, 2, 0, 3},   {1, individual, 6, 1, 3},
      {1, individual, -1, 1, 3},      {1, central, 0, 1, 1},      {2, individual, 0, 1, 8},
      {2, central, 0, 1, 1},          {3, individual, 0, 0.2, 1}, {15, individual, 0, 0.2, 1},
      {3, central, 0, 1, 1}};
  CasoSistemas c;
  Ventilacion v;
  v.tipologias = {{{2, 1, 0, 0}, {1, 3, 0, 0}, {}, {}, {}, {}}};
  c.edificio.SetVentilacion(v);
  // Cinco equipos de agua caliente en dos sistemas, y uno que no la da.
  for (const char* tipo : {"ACS", "ACS+Calefaccion", "Calefaccion"}) {
    Instalaciones i = BloqueCompleto("1 Caldera");
    i.NEquipos = std::string_view(tipo) == "ACS" ? 2 : 3;
    c.Anadir(tipo, i);
  }
  for (const Fila& f : filas) {
    c.Generales([&](DatosGenerales& g) {
      g.PerfilUso = f.perfil;
      g.NVBloqueF = 8;
    });
    Instalaciones i = BloqueCompleto("1 Caldera", f.instalacion);
    i.Nradiadores = f.tipo;
    const FactoresVivienda r = FactoresDeVivienda(c.edificio, i);
    EXPECT_NEAR(r.f1, f.f1, 1e-6) << f.perfil << f.instalacion << f.tipo;
    EXPECT_NEAR(r.f2, f.f2, 1e-6) << f.perfil << f.instalacion << f.tipo;
  }
}

}  // namespace
}  // namespace novex
