#include "entry/Sitio.h"

#include <gtest/gtest.h>

#include "entry/CambiarGenerales.h"
#include "entry/CatalogoMunicipios.h"

namespace novex {
namespace {

class Sitio : public testing::Test {
 protected:
  const Localizacion& Poner(const char* provincia, const char* municipio, bool conservar = false) {
    EXPECT_TRUE(
        PonerMunicipio(edificio, municipios, capitales, provincia, municipio, conservar, mensajes));
    return edificio.GetLocalizacion();
  }
  XMLNode capitales = XMLNode::loadFile(NOVEX_RAIZ_DATOS "/database/Capitales.xml", "CAPITALES");
  XMLNode lista = XMLNode::loadFile(NOVEX_RAIZ_DATOS "/database/ZONACLIMATICATEMPYRAD.xml",
                                    "ZONACLIMATICATEMPYRAD");
  CatalogoMunicipios municipios{lista};
  Edificio edificio;
  RegistroMensajes mensajes;
};

// La lista se hizo aparte con la misma regla: han de coincidir todos los municipios, salvo las tres
// capitales que el DB-HE da con otra zona.
TEST_F(Sitio, LaTablaDeAltitudesDaLaZonaDeCadaMunicipio) {
  std::size_t distintos = 0, cuantos = 0;
  for (std::size_t i = 0; i < capitales.childCount(); ++i) {
    const XMLNode fila = capitales.childAt(i);
    for (const Municipio* m : municipios.DeProvincia(*fila.attributeValue("P"))) {
      ++cuantos;
      if (ZonaPorAltitud(*fila.attributeValue("C"), m->altitud) == m->ZonaClimatica()) continue;
      ++distintos;
      EXPECT_TRUE(m->nombre == "Girona" || m->nombre == "Ourense" || m->nombre == "Toledo")
          << m->nombre << ' ' << m->altitud << ' ' << m->ZonaClimatica();
    }
  }
  EXPECT_GE(cuantos, 8131U);
  EXPECT_EQ(distintos, 3U);
}

TEST_F(Sitio, ElLimiteDeAltitudEsDeLaZonaDeArriba) {
  for (const auto& [capital, altitud, zona] : {std::tuple{"Albacete", 449, "C3"},
                                               {"Albacete", 450, "D3"},
                                               {"Albacete", 949, "D3"},
                                               {"Albacete", 950, "E1"},
                                               {"León", 0, "E1"},
                                               {"Jaén", 1249, "C3"},
                                               {"Jaén", 1250, "E1"},
                                               {"Palma de Mallorca", 250, "C3c"},
                                               {"Palmas de Gran Canaria (Las)", 349, "alfa3c"},
                                               {"Santa Cruz de Tenerife", 1000, "C2c"},
                                               {"Granada", 1299, "D3"},
                                               {"Cádiz", 850, "D2"},
                                               {"Huelva", 49, "A4"},
                                               {"Ninguna", 10, ""}})
    EXPECT_EQ(ZonaPorAltitud(capital, altitud), zona) << capital << altitud;
}

TEST_F(Sitio, ElMunicipioDaAltitudLatitudYZonas) {
  const Localizacion& l = Poner("Madrid", "Madrid");
  EXPECT_EQ(l.asnm, 657);
  EXPECT_FLOAT_EQ(l.latitud, 40.41F);
  EXPECT_EQ(l.ZonaClimatica, "D3");
  EXPECT_EQ(l.zona_radiante, "IV");
  // Los puentes que salen de la tabla de la zona la siguen: 0.41 en D3 y 0.39 en E1.
  EXPECT_EQ(edificio.GetConstruccion().U_L_Puentes[puente_forjados], 0.41F);
  EXPECT_EQ(Poner("Illes Balears", "Palma").ZonaClimatica, "B3c");
  EXPECT_EQ(Poner("Santa Cruz de Tenerife", "Vilaflor de Chasna").ZonaClimatica, "C2c");
  EXPECT_EQ(Poner("Soria", "Soria").ZonaClimatica, "E1");
  EXPECT_EQ(edificio.GetConstruccion().U_L_Puentes[puente_forjados], 0.39F);
  const Localizacion antes = edificio.GetLocalizacion();
  EXPECT_FALSE(PonerMunicipio(edificio, municipios, capitales, "Soria", "Madrid", false, mensajes));
  EXPECT_EQ(edificio.GetLocalizacion(), antes);
}

TEST_F(Sitio, LaAltitudPropiaYLaZonaFijadaMandan) {
  Poner("Albacete", "Albacete");
  PonerAltitud(edificio, capitales, "449", mensajes);
  EXPECT_EQ(edificio.GetLocalizacion().ZonaClimatica, "C3");
  // La altitud propia se conserva al cambiar de municipio, y la zona sale de ella: Madrid < 500.
  EXPECT_EQ(Poner("Madrid", "Madrid", true).ZonaClimatica, "C3");
  EXPECT_EQ(edificio.GetLocalizacion().asnm, 449);
  PonerAltitud(edificio, capitales, "5000", mensajes);  // fuera de límites: 0 m
  EXPECT_EQ(edificio.GetLocalizacion().asnm, 0);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);

  EXPECT_FALSE(FijarZona(edificio, "Z9"));
  EXPECT_TRUE(FijarZona(edificio, "alfa3c"));
  PonerAltitud(edificio, capitales, "900", mensajes);
  EXPECT_EQ(Poner("Soria", "Soria").ZonaClimatica, "alfa3c");
  SoltarZona(edificio, municipios, capitales);
  EXPECT_EQ(edificio.GetLocalizacion().ZonaClimatica, "E1");
}

TEST_F(Sitio, BuscarNoMiraAcentosNiMayusculas) {
  const auto primero = [&](const char* letras, const char* provincia = "") {
    const auto hallados = municipios.Empiezan(letras, provincia);
    return hallados.empty() ? std::string() : hallados.front()->nombre;
  };
  EXPECT_EQ(primero("ALCALA DE HEN"), "Alcalá de Henares");
  EXPECT_EQ(primero("coruna ("), "Coruña (A)");
  EXPECT_EQ(primero("gasteiz"), "Vitoria-Gasteiz");
  EXPECT_EQ(primero("xyz"), "");
  EXPECT_EQ(primero("ledes", "SALA"), "Ledesma");
  EXPECT_NE(municipios.Elegir("", "soria"), nullptr);
  EXPECT_EQ(municipios.Elegir("", "san"), nullptr);
  ASSERT_NE(municipios.Elegir("valen", "valencia"), nullptr);
  EXPECT_EQ(municipios.Elegir("valen", "valencia")->nombre, "València");
}

TEST(CatalogoMunicipios, UnaFilaSinAltitudNoCuenta) {
  const XMLNode raiz = XMLNode::parseString(
      "<Z><M P='Ceuta' C='Ceuta' A='40' LAT='35.9' ZL='B' ZN='' RAD='V'/><M P='A' C='B'/></Z>", "Z",
      "prueba");
  const CatalogoMunicipios catalogo(raiz);
  ASSERT_NE(catalogo.Exacto("Ceuta", "Ceuta"), nullptr);
  EXPECT_EQ(catalogo.Exacto("Ceuta", "Ceuta")->ZonaClimatica(), "Bc");
  EXPECT_EQ(catalogo.Exacto("A", "B"), nullptr);
}

TEST_F(Sitio, ElJuegoDeClimaVaEnElCodigoPostal) {
  CambiarGenerales(edificio, [](DatosGenerales& g) { g.CodigoPostal = "46001"; });
  EXPECT_EQ(JuegoClima(edificio.GetDatosGenerales()), "Oficial");
  EXPECT_TRUE(PonerJuegoClima(edificio, "Oficial"));
  EXPECT_EQ(edificio.GetDatosGenerales().CodigoPostal, "46001");
  EXPECT_TRUE(PonerJuegoClima(edificio, "2002"));
  EXPECT_EQ(edificio.GetDatosGenerales().CodigoPostal, "-2002");
  EXPECT_EQ(JuegoClima(edificio.GetDatosGenerales()), "2002");
  EXPECT_FALSE(PonerJuegoClima(edificio, "2003"));
  EXPECT_EQ(edificio.GetDatosGenerales().CodigoPostal, "-2002");
  EXPECT_TRUE(PonerJuegoClima(edificio, "Oficial"));
  EXPECT_EQ(edificio.GetDatosGenerales().CodigoPostal, "");
}

}  // namespace
}  // namespace novex
