#include "entry/ReglasVentilacion.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

void PonerUso(Edificio& e, int perfil, const char* modo = "Nuevo") {
  DatosGenerales g = e.GetDatosGenerales();
  g.PerfilUso = perfil;
  g.Modo_trabajo = modo;
  g.Nm2_p = 10;
  e.SetDatosGenerales(g);
}

TEST(Renovaciones, SeCompruebanYDicenSuCaudal) {
  Edificio e;
  RegistroMensajes m;
  PonerRenovaciones(e, "0,63", m);
  EXPECT_EQ(TextoCaudalVentilacion(e), "Lo que supone 189.00 m3/h");
  e.GetRecinto(0).Volumen_total_m3 = 200;
  EXPECT_EQ(TextoCaudalVentilacion(e), "Lo que supone 126.00 m3/h");
  EXPECT_TRUE(m.recibidos.empty());
  PonerRenovaciones(e, "31", m);
  EXPECT_EQ(e.GetVentilacion().nrenovventilacion, 0.5F);
  EXPECT_EQ(m.recibidos.size(), 1U);
}

TEST(Renovaciones, NotaSegunElUso) {
  const auto nota = [](int perfil, const char* modo) {
    Edificio e;
    PonerUso(e, perfil, modo);
    return NotaRenovaciones(e.GetDatosGenerales());
  };
  EXPECT_EQ(nota(2, "Nuevo"), "(debe cumplir como mínimo CTE-HS3)");
  EXPECT_EQ(nota(0, "Existente"), "(sino se conocen utilizar 0,63 renov./h)");
  EXPECT_EQ(nota(3, "Existente"), "(sino se conocen utilizar 0,63 renov./h)");
  EXPECT_EQ(nota(3, "Nuevo"), "");
}

// Tipo: viviendas, dormitorios, salas y baños. Entre admisión y extracción manda la mayor.
TEST(CaudalHS3, PorTipoDeVivienda) {
  EXPECT_EQ(CaudalTipologiaHS3({1, 0, 0, 0}), 12.0F);  // 8 y 12
  EXPECT_EQ(CaudalTipologiaHS3({1, 1, 1, 1}), 14.0F);  // 14 y 12
  EXPECT_EQ(CaudalTipologiaHS3({1, 1, 1, 3}), 18.0F);  // 14 y 18
  EXPECT_EQ(CaudalTipologiaHS3({1, 2, 1, 1}), 24.0F);  // 20 y 24
  EXPECT_EQ(CaudalTipologiaHS3({1, 2, 2, 4}), 28.0F);  // 28 y 28
  EXPECT_EQ(CaudalTipologiaHS3({2, 3, 1, 2}), 66.0F);  // 26 y 33, por dos
  EXPECT_EQ(CaudalTipologiaHS3({1, 4, 2, 2}), 40.0F);  // 40 y 33
  EXPECT_EQ(CaudalTipologiaHS3({1, 4, 1, 5}), 40.0F);  // 30 y 40
  EXPECT_EQ(CaudalTipologiaHS3({0, 4, 1, 5}), 0.0F);
}

TEST(CaudalHS3, RenovacionesDelCaso) {
  Edificio e;
  RegistroMensajes m;
  Ventilacion v;
  v.tipologias[0] = {2, 3, 1, 2};
  v.tipologias[5] = {1, 1, 1, 1};
  e.SetVentilacion(v);
  EXPECT_FALSE(ActualizarRenovacionesHS3(e, m));
  EXPECT_EQ(e.GetVentilacion().nrenovventilacion, 1.0F);
  PonerSegunHS3(e, true, m);  // 80 l/s son 288 m3/h, en 300 m3
  EXPECT_FLOAT_EQ(e.GetVentilacion().nrenovventilacion, 0.96F);
  EXPECT_EQ(e.GetVentilacion().Calcular_Renov_h_segun_HS3, "Si");
  e.GetRecinto(0).Volumen_total_m3 = 0;
  EXPECT_TRUE(ActualizarRenovacionesHS3(e, m));
  EXPECT_EQ(e.GetVentilacion().nrenovventilacion, 0.0F);
  EXPECT_TRUE(m.recibidos.empty());
  // La marca de un uso terciario no es de las viviendas.
  PonerUso(e, 3);
  EXPECT_FALSE(ActualizarRenovacionesHS3(e, m));
}

TEST(ClaseAire, CaudalPorPersona) {
  Edificio e;
  RegistroMensajes m;
  PonerUso(e, 4);
  e.GetRecinto(0).Suelo_habitable_m2 = 200;  // 20 personas
  e.GetRecinto(0).Volumen_total_m3 = 600;
  EXPECT_EQ(TextoClaseAire(e, ClaseAire::IDA1),
            "IDA1      Caudal = 1440.00 m3/h      renovaciones/h = 2.40");
  EXPECT_EQ(TextoClaseAire(e, ClaseAire::IDA2),
            "IDA2      Caudal = 900.00 m3/h      renovaciones/h = 1.50");
  EXPECT_EQ(AceptarClaseAire(e, ClaseAire::IDA3, m), "Lo que supone 576.00 m3/h");
  EXPECT_FLOAT_EQ(e.GetVentilacion().nrenovventilacion, 0.96F);
  EXPECT_EQ(e.GetVentilacion().Calcular_Renov_h_segun_HS3, "Si");
  e.GetRecinto(0).Volumen_total_m3 = 40;  // 36 renovaciones: pasa del máximo
  AceptarClaseAire(e, ClaseAire::IDA1, m);
  EXPECT_EQ(e.GetVentilacion().nrenovventilacion, 0.5F);
  EXPECT_EQ(m.recibidos.size(), 1U);
  DatosGenerales g = e.GetDatosGenerales();
  g.Nm2_p = 0;
  e.SetDatosGenerales(g);
  EXPECT_EQ(CalcularClaseAire(e, ClaseAire::IDA1).caudal, 0.0F);
}

TEST(ModulacionAire, LaSondaNecesitaOcupantes) {
  Edificio e;
  RegistroMensajes m;
  PonerUso(e, 4);
  const auto modulacion = [&] { return e.GetDatosGenerales().TipoCO2; };
  EXPECT_TRUE(PonerModulacionAire(e, "Coef. operacionales + freecooling", m));
  EXPECT_FALSE(PonerModulacionAire(e, "SondaCO2 con freecooling", m));
  EXPECT_EQ(m.recibidos.size(), 1U);
  EXPECT_EQ(modulacion(), "Coef. operacionales + freecooling");
  DatosGenerales g = e.GetDatosGenerales();
  g.Sensibleocupantes = 6;
  e.SetDatosGenerales(g);
  EXPECT_TRUE(PonerModulacionAire(e, "SondaCO2 con freecooling", m));
  EXPECT_EQ(modulacion(), "SondaCO2 con freecooling");
  EXPECT_FALSE(PonerModulacionAire(e, "otra", m));
  EXPECT_EQ(m.recibidos.size(), 1U);
  // Y mientras la haya no se quedan en nada.
  EXPECT_FALSE(PonerOcupacionSensible(e, "0", m));
  EXPECT_EQ(m.recibidos.size(), 2U);
  EXPECT_EQ(e.GetDatosGenerales().Sensibleocupantes, 6.0F);
  EXPECT_TRUE(PonerOcupacionSensible(e, "8,5", m));
  EXPECT_EQ(e.GetDatosGenerales().Sensibleocupantes, 8.5F);
  EXPECT_TRUE(PonerModulacionAire(e, "Coef. operacionales", m));
  EXPECT_TRUE(PonerOcupacionSensible(e, "0", m));
}

}  // namespace
}  // namespace novex
