#include "outputs/HojasVerificacion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class HojasVerificacion : public testing::Test {
 protected:
  VerificacionHE Verificar(const std::string& modo, const std::string& reforma, int perfil = 3) {
    caso.Poner(perfil, "D3", modo);
    DatosGenerales g = caso.edificio->GetDatosGenerales();
    g.Reforma = reforma;
    caso.edificio->SetDatosGenerales(g);
    return VerificarHE(*caso.edificio, *caso.resultado, {});
  }
  DatosGenerales Generales() const { return caso.edificio->GetDatosGenerales(); }
  pruebas::CasoDePrueba caso;
};

TEST_F(HojasVerificacion, LaMarcaDistingueLoQueFallaDeLoQueNoSeExige) {
  // Sin límites y con demanda, un edificio nuevo no cumple el HE0; a una reforma pequeña no se le
  // pide, ni la K, ni el agua caliente sin su reforma.
  caso.Resultados().demandaCalefaccion = 40;
  caso.Resultados().servicio[kCalefaccion].porUnidad[kPrimariaNoRenovable][0] = 30;
  VerificacionHE v = Verificar("Nuevo", "");
  EXPECT_EQ(MarcaHoja(HojaHE::HE0, v), MarcaHE::NoCumple);
  EXPECT_EQ(MarcaHoja(HojaHE::Resumen, v), MarcaHE::NoCumple);
  v = Verificar("Existente", "Reforma <25% envolvente");
  EXPECT_EQ(MarcaHoja(HojaHE::HE0, v), MarcaHE::NoAplica);
  EXPECT_EQ(MarcaHoja(HojaHE::Global, v), MarcaHE::NoAplica);
  EXPECT_EQ(MarcaHoja(HojaHE::Maximas, v), MarcaHE::NoAplica);
  EXPECT_EQ(MarcaHoja(HojaHE::HE4, v), MarcaHE::NoAplica);
  EXPECT_EQ(MarcaHoja(HojaHE::HE5, v), MarcaHE::NoAplica);
  EXPECT_FALSE(MarcaHoja(HojaHE::Coeficientes, v));
  // Los puentes se comprueban siempre: el HE1 entero sigue lo que les pase.
  EXPECT_EQ(MarcaHE1(v), v.CumpleCondensaciones() ? MarcaHE::Cumple : MarcaHE::NoCumple);
  v.condensacion.cumplePuentes = false;
  EXPECT_EQ(MarcaHE1(v), MarcaHE::NoCumple);
  EXPECT_EQ(MarcaHoja(HojaHE::Condensaciones, v), MarcaHE::NoCumple);
  // La iluminación solo se mira en terciario.
  EXPECT_EQ(MarcaHoja(HojaHE::HE3, Verificar("Nuevo", "", 0)), MarcaHE::NoAplica);
}

TEST_F(HojasVerificacion, LasHorasYLosIndicadoresSonLosDelCaso) {
  ResultadosCaso& r = caso.Resultados();
  r.horasFueraCalefaccion = 30;
  r.horasFueraRefrigeracion = 71;
  r.horasOcupacion = 2500;  // el 4 % son 100
  r.demandaCalefaccion = 12;
  r.demandaRefrigeracion = 14;
  const VerificacionHE v = Verificar("Nuevo", "");
  const auto bloques = BloquesHojaHE(HojaHE::HE0, v, *caso.resultado);
  ASSERT_EQ(bloques.size(), 3U);
  EXPECT_THAT(bloques[1].textos,
              ElementsAre(HasSubstr("12.00"), HasSubstr("14.00"), HasSubstr("ambos<15kW/hm2 año")));
  std::vector<std::string> horas;
  for (const auto& fila : bloques[2].tablas.at(0).filas) horas.push_back(fila.at(1).texto);
  EXPECT_THAT(horas, ElementsAre("30", "71", "101", "100.00", "2500"));
  EXPECT_EQ(bloques[2].veredicto, "No Cumple");
  EXPECT_EQ(bloques[2].marca, MarcaHE::NoCumple);
  // La demanda de calefacción, la última, no tiene límite.
  const Grafico& g = bloques[0].graficos.at(0);
  EXPECT_EQ(g.series.at(0).valores.back(), 12);
  EXPECT_EQ(g.series.at(1).valores.size() + 1, g.posiciones.size());
}

TEST_F(HojasVerificacion, SeDiceQueSeExigeYParaQue) {
  const auto alcance = [&](const char* objetivo) {
    DatosGenerales g = Generales();
    g.Tiposimulacion = objetivo;
    return AlcanceVerificacion(g);
  };
  Verificar("Nuevo", "");
  EXPECT_THAT(alcance("Certificacion"),
              ElementsAre("Edificio nuevo: se exigen todas las secciones."));
  EXPECT_THAT(alcance("CertificacionSolo"), ElementsAre(HasSubstr("informativo"), testing::_));
  EXPECT_THAT(alcance("Simulacion"), ElementsAre(HasSubstr("simulación libre"), testing::_));
  Verificar("Existente", "Reforma >25% envolvente + Clima ");
  EXPECT_THAT(
      alcance("Certificacion"),
      ElementsAre("Edificio existente, \"Reforma >25% envolvente + Clima\": se exigen HE0, K, "
                  "control solar y las transmitancias máximas de lo que se interviene."));
  Verificar("Existente", "Ampliación");
  EXPECT_THAT(alcance("Certificacion"), ElementsAre(HasSubstr("de todos los elementos.")));
  Verificar("Existente", "Reforma <25% envolvente");
  EXPECT_THAT(alcance("Certificacion"), ElementsAre(HasSubstr("se exigen las transmitancias")));
  Verificar("Existente", "");
  EXPECT_THAT(alcance("Certificacion"), ElementsAre(HasSubstr("no dice su intervención")));
}

}  // namespace
}  // namespace novex
