#include "outputs/PaginaEstudio.h"

#include <gtest/gtest.h>

namespace novex {
namespace {

ResultadoMedida Medida(int codigo, float calefaccion, float refrigeracion, float emisiones) {
  ResultadoMedida m;
  m.codigo = codigo;
  m.cifras[static_cast<std::size_t>(CifraMedida::DemandaCale)] = calefaccion;
  m.cifras[static_cast<std::size_t>(CifraMedida::DemandaRef)] = refrigeracion;
  m.cifras[static_cast<std::size_t>(CifraMedida::EmisionesTotal)] = emisiones;
  m.letras.fill("C");
  m.letras[static_cast<std::size_t>(Indicador::EmisionesTotales)] = "B";
  return m;
}

TEST(PaginaEstudio, DatosCifrasAhorrosLetrasYSinMedir) {
  EXPECT_EQ(DatosDePagina(PaginaMedida::Demanda).size(), 10U);
  const auto equipos = DatosDePagina(PaginaMedida::Equipos);
  ASSERT_EQ(equipos.size(), 8U);
  EXPECT_EQ(NombreDato(equipos[0], PaginaMedida::Equipos), "Energ.final (kWh/m2 año)");
  EXPECT_EQ(NombreDato(equipos[3], PaginaMedida::Equipos), "Ahorros energ.prim.No renov %");
  EXPECT_EQ(NombreDato(equipos[3], PaginaMedida::Demanda), "Ahorros energ.prim.No renov%");
  const ResultadoMedida base = Medida(kCodigoBase, 60, 20, 10);
  const ResultadoMedida m = Medida(3, 40, 20, 12);
  EXPECT_EQ(TextoDato(DatoEstudio::Demanda, &m, base), "60.00");
  EXPECT_EQ(TextoDato(DatoEstudio::AhorroDemanda, &m, base), "25.00");
  EXPECT_EQ(TextoDato(DatoEstudio::AhorroEmisiones, &m, base), "-20.00");
  EXPECT_EQ(TextoDato(DatoEstudio::AhorroFinal, &m, base), "0.00");  // sin base
  EXPECT_EQ(TextoDato(DatoEstudio::CalificacionCO2, &m, base), "B");
  EXPECT_EQ(TextoDato(DatoEstudio::CalificacionPrimaria, nullptr, base), "----");
  EXPECT_EQ(TextoDatoBase(DatoEstudio::AhorroDemanda, base), "80.00 kWh/m2 año");
  EXPECT_EQ(TextoDatoBase(DatoEstudio::Emisiones, base), "10.00 kgCO2/m2 año");
  EXPECT_EQ(TextoDatoBase(DatoEstudio::CalificacionCO2, base), "B");

  EstudioModificaciones estudio;
  estudio.medidas.push_back({5, true, "", "", {}});
  const Tabla tabla =
      TablaPaginaEstudio(PaginaMedida::Demanda, DatoEstudio::Demanda, base, {m}, estudio);
  ASSERT_EQ(tabla.filas.size(), 31U);  // la base y los 30 códigos de 3 a 50
  EXPECT_EQ(tabla.filas[1][2].texto, "60.00");
  EXPECT_EQ(tabla.filas[2][0].texto, "*");
  EXPECT_EQ(tabla.filas[2][2].texto, "----");
  EXPECT_EQ(TextoQuedan(1.25, 52), "Quedan: 1 min 5 s");
}

}  // namespace
}  // namespace novex
