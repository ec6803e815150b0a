#include "entry/RellenoSistema.h"

#include <gtest/gtest.h>

#include "entry/CreacionSistema.h"
#include "entry/EdificioSistemas.h"

namespace novex {
namespace {

using pruebas::EdificioD3;
using pruebas::ExpectNumeros;

const char* const kI = "Individual/Vivienda";

SistemaResidencial Nuevo(const Edificio& edificio, const char* tipo, const char* clase) {
  return NuevoSistema(edificio, {tipo, clase, kI, "", "", "", "", "", {}}, nullptr);
}

struct CasoMinimo {
  const char *tipo, *clase;
  int perfilUso, banyos;
  float Instalaciones::*campo;
  float antes, despues;
  const char* texto;  // nulo si no cambia
};

using I = Instalaciones;
const char* const kDiez =
    "En viviendas con 1 baño se considera una potencia mínima de calentador de 10 kW";
const char* const kDieciseis =
    "En viviendas con 2 baños se considera una potencia mínima de calentador de 16 kW";
const char* const kResistencia =
    "Se obliga como mínimo a que la potencia de la resistencia eléctrica seade 1 kW";

TEST(RellenarSistema, LasPotenciasMinimasSubenConSuAviso) {
  const CasoMinimo casos[] = {
      {"ACS", "1 Calentador", 0, 2, &I::QcalorCaldera1, 9.9F, 10, kDiez},
      {"ACS", "1 Calentador", 0, 2, &I::QcalorCaldera1, 10, 10, nullptr},
      {"ACS", "1 Calentador", 2, 3, &I::QcalorCaldera1, 10, 16, kDieciseis},
      {"ACS", "1 Calentador", 4, 1, &I::QcalorCaldera1, 5, 5, nullptr},
      {"ACS", "1 Caldera", 0, 1, &I::QcalorCaldera1, 5, 5, nullptr},
      {"ACS", "1 Termo electrico", 4, 1, &I::QApoyoEquipo, 0.5F, 1, kResistencia},
      {"ACS", "1 Interacumulador electrico", 0, 1, &I::QApoyoEquipo, 0, 1, kResistencia},
      {"ACS", "1 BC aire-agua", 0, 1, &I::QApoyoTermo, 0.9F, 1, kResistencia},
      {"ACS", "1 BC aire-agua", 0, 1, &I::QApoyoEquipo, 0, 0, nullptr},
      {"Calefaccion", "1 BC aire-agua", 0, 1, &I::QApoyoTermo, 0, 0, nullptr}};
  for (const CasoMinimo& c : casos) {
    SCOPED_TRACE(std::string(c.clase) + " " + std::to_string(c.antes));
    auto edificio = EdificioD3(c.perfilUso, 100, 112);
    pruebas::PonerViviendas(*edificio, 1, 0, c.banyos);
    SistemaResidencial s = Nuevo(*edificio, c.tipo, c.clase);
    s.instalaciones[0].*c.campo = c.antes;
    RegistroMensajes mensajes;
    RellenarSistema(*edificio, s, mensajes);
    EXPECT_EQ(s.instalaciones[0].*c.campo, c.despues);
    std::vector<Mensaje> avisos;
    if (c.texto != nullptr) avisos = {{"AVISO", c.texto}};
    EXPECT_EQ(mensajes.recibidos, avisos);
  }
}

// 20,9 kW y 5 °C son 3600 l/h.
TEST(RellenarSistema, CaudalesDeLaPotenciaActual) {
  const auto edificio = EdificioD3(0, 100, 112);
  RegistroMensajes mensajes;
  SistemaResidencial s = Nuevo(*edificio, "ACS+Calefaccion", "1 BC aire-agua");
  Instalaciones& b = s.instalaciones[0];
  b.QcalorBC1 = 20.9F;
  b.NEmisores = 5;
  b.saltoZona = 10;
  b.Long_tuberias = 200;  // 3600 × 200 × 0,2 × 0,001 × 30 × 0,1196172 = 516,746 l/h
  const float UA = b.UA_deposito;
  RellenarSistema(*edificio, s, mensajes);
  // Ventilador: 250 × 20,9 / 5 m3/h.
  ExpectNumeros({b.GEN1.Caudal, b.GEN2.Caudal, b.SBZ.Caudal, b.SBZ.DT, b.DEP.Caudal, b.INT.Caudal,
                 b.RET.Caudal, b.CaudalVent},
                {3600, 3600, 1800, 10, 1800, 1800, 516.746, 1045});
  EXPECT_EQ(b.UA_deposito, UA);
  // Al cambiar la clase cuenta la potencia de la nueva: 16 kW con 5 °C.
  b.Seleccion = "1 Caldera";
  RellenarSistema(*edificio, s, mensajes);
  EXPECT_FLOAT_EQ(b.GEN1.Caudal, 2755.9809F);
  b.saltoGenerador = 0;
  RellenarSistema(*edificio, s, mensajes);
  EXPECT_EQ(b.GEN1.Caudal, 0);
}

TEST(RellenarSistema, LaPotenciaEsLaDelServicio) {
  const auto edificio = EdificioD3(0, 100, 112);
  RegistroMensajes mensajes;
  const auto caudales = [&](const char* tipo, const char* clase) {
    SistemaResidencial s = Nuevo(*edificio, tipo, clase);
    Instalaciones& b = s.instalaciones[0];
    b.QcalorBC1 = 10.45F;  // 1800 l/h
    b.QFrioTot1 = 20.9F;   // 3600 l/h
    b.QcalorCaldera2 = 41.8F;
    b.QcalorCaldera1 = 1;
    RellenarSistema(*edificio, s, mensajes);
    return std::vector{b.GEN1.Caudal, b.GEN2.Caudal, b.SBZ.Caudal};
  };
  ExpectNumeros(caudales("Calefaccion", "1 BC aire-agua"), {1800, 1800, 1800});
  ExpectNumeros(caudales("Refrigeracion", "Enfriadora agua cond.aire"), {3600, 3600, 3600});
  ExpectNumeros(caudales("Calefaccion+Refrigeracion", "1 BC aire-agua"), {3600, 3600, 3600});
  ExpectNumeros(caudales("Calefaccion", "1 BC aire-agua + 1 Caldera"), {1800, 7200, 7200});
  // Sin potencia propia se queda con los caudales que tenía: 5,5 kW con 5 °C.
  ExpectNumeros(caudales("Calefaccion", "Rend. estacional (agua)"), {947.3684, 947.3684, 947.3684});
}

}  // namespace
}  // namespace novex
