#include "entry/VaporCerramiento.h"

#include <gtest/gtest.h>

#include "base/Psicrometria.h"
#include "model/TablaEnvolvente.h"

namespace novex {
namespace {

// Madrid, a 655 m, en enero: 6,2 °C y 71 %; un sitio 200 m más alto está 2 °C más frío.
TEST(VaporCerramiento, TomaElEstadoDeProyectoDelSitioSinCalcular) {
  const XMLNode capitales =
      XMLNode::loadFile(NOVEX_RAIZ_DATOS "/database/Capitales.xml", "CAPITALES");
  Edificio e;
  Localizacion lugar;
  lugar.Provincia = "Madrid";
  lugar.asnm = 855;
  e.SetLocalizacion(lugar);
  Capa ladrillo;
  ladrillo.especificacion = "Ladrillo";
  ladrillo.espesor = 0.24F;
  ladrillo.k = 1;
  ladrillo.rterm = 0.24F;
  ladrillo.rvapor = 10;
  const std::vector<Capa> capas = {ladrillo};
  const auto vapor = VaporDeCapas(e, capitales, ranura::MuroExt1, capas);
  ASSERT_TRUE(vapor);
  EXPECT_NEAR(vapor->condiciones.Te, 4.2, 1e-5);
  EXPECT_NEAR(vapor->condiciones.Pe,
              static_cast<double>(psicrometria::PresionSaturacion(6.2F)) * 0.71, 0.1);
  ASSERT_EQ(vapor->elemento.interfaces.size(), 2U);
  EXPECT_NEAR(vapor->elemento.interfaces[1].x, 0.24, 1e-6);
  EXPECT_EQ(e.GetDatosClimaticosSitio().Pvproyecto, 0.0F);  // el caso no cambia
  EXPECT_FALSE(VaporDeCapas(e, capitales, ranura::MuroExt1, {}));
  lugar.Provincia = "Atlántida";
  e.SetLocalizacion(lugar);
  EXPECT_FALSE(VaporDeCapas(e, capitales, ranura::MuroExt1, capas));
}

TEST(VaporCerramiento, SeCompruebaLoAcondicionado) {
  using namespace ranura;
  for (const std::size_t si : {MuroExt5, TechoInc3, TechoTerr1, SueloExt2})
    EXPECT_TRUE(SeCompruebaCondensacion(si)) << si;
  for (const std::size_t no : {MuroExt6, TechoVent2, MuroOtro1, SueloTerr1})
    EXPECT_FALSE(SeCompruebaCondensacion(no)) << no;
}

}  // namespace
}  // namespace novex
