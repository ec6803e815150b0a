#include "entry/CambioSistema.h"

#include <gtest/gtest.h>

#include <map>

#include "entry/CreacionSistema.h"
#include "entry/EdificioSistemas.h"

namespace novex {
namespace {

using pruebas::EdificioD3;

const char* const kC = "Centralizada/Bloque";
const char* const kI = "Individual/Vivienda";

class CambioSistemaTest : public testing::Test {
 protected:
  void Anadir(const char* tipo, const char* clase, const char* tipologia = kI) {
    edificio->AnadirSistema(
        NuevoSistema(*edificio, {tipo, clase, tipologia, "", "", "", "", "", {}}, nullptr));
  }
  bool Poner(std::size_t numero, const char* etiqueta, const char* texto) {
    mensajes.recibidos.clear();
    return PonerCampoSistema(*edificio, numero, etiqueta, texto, nullptr, mensajes);
  }
  Instalaciones& Bloque(std::size_t s = 0) { return edificio->GetSistema(s).instalaciones[0]; }

  std::unique_ptr<Edificio> edificio = EdificioD3(0, 100, 112);
  RegistroMensajes mensajes;
};

TEST_F(CambioSistemaTest, LosBloquesSeCuentanSobreTodosLosSistemas) {
  Anadir("ACS", "1 Caldera");
  Anadir("Calefaccion", "1 Caldera");
  edificio->GetSistema(0).instalaciones.push_back(Bloque());
  EXPECT_EQ(NumeroDeBloque(*edificio, 1), 3U);
  const auto lugar = LugarDeBloque(*edificio, 3);
  ASSERT_TRUE(lugar);
  EXPECT_EQ(lugar->sistema, 1U);
  EXPECT_EQ(lugar->bloque, 0U);
  EXPECT_FALSE(LugarDeBloque(*edificio, 0));
  EXPECT_FALSE(LugarDeBloque(*edificio, 4));
  EXPECT_FALSE(Poner(4, "QcalorCaldera1", "20"));
  EXPECT_TRUE(Poner(3, "RendCalor1", "0.9"));
  EXPECT_FLOAT_EQ(Bloque(1).RendCalor1, 0.9F);
  EXPECT_FLOAT_EQ(Bloque(0).RendCalor1, 0.95F);
}

// Caudal = kW × 3600 / (4,18 × salto).
TEST_F(CambioSistemaTest, UnaPotenciaRellenaCaudalesYMinimos) {
  Anadir("Calefaccion", "1 Caldera");
  EXPECT_TRUE(Poner(1, "QcalorCaldera1", "20"));
  EXPECT_NEAR(Bloque().GEN1.Caudal, 20 * 3600 / (4.18 * 15), 0.01);
  Anadir("ACS", "1 Calentador");
  EXPECT_TRUE(Poner(2, "QcalorCaldera1", "6"));
  EXPECT_FLOAT_EQ(Bloque(1).QcalorCaldera1, 10);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].texto,
            "En viviendas con 1 baño se considera una potencia mínima de calentador de 10 kW");
  // Lo que no es una potencia no toca un caudal puesto a mano.
  EXPECT_TRUE(Poner(1, "CaudalGEN1", "500"));
  EXPECT_TRUE(Poner(1, "RendCalor1", "0.8"));
  EXPECT_FLOAT_EQ(Bloque().GEN1.Caudal, 500);
}

// La altura que da el dimensionado lleva decimales y se teclea en metros enteros: volver a poner la
// que hay no la cambia.
TEST_F(CambioSistemaTest, LoQueYaTieneNoSeComprueba) {
  Anadir("Calefaccion", "1 Caldera");
  EXPECT_TRUE(Poner(1, "PSBZ", "3.2"));
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_FLOAT_EQ(Bloque().SBZ.P, 3);
  edificio->GetSistema(0).instalaciones[0].SBZ.P = 3.27F;
  EXPECT_TRUE(Poner(1, "PSBZ", "3.27"));
  EXPECT_TRUE(mensajes.recibidos.empty());
  EXPECT_FLOAT_EQ(Bloque().SBZ.P, 3.27F);
}

TEST_F(CambioSistemaTest, OtraClaseDejaEleccionesQueAdmite) {
  Anadir("Calefaccion+Refrigeracion", "1 BC aire-agua");
  Bloque().Emisor = "Suelo radiante";
  EXPECT_TRUE(Poner(1, "Seleccion", "Equipo Split"));
  EXPECT_EQ(Bloque().Emisor, "Unid.Interior");
  EXPECT_FALSE(Poner(1, "TipoInstalacionesG", kC));  // no hay un split centralizado
  EXPECT_EQ(Bloque().TipoInstalacionesG, kI);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);

  Anadir("ACS", "1 Caldera");
  EXPECT_TRUE(Poner(2, "Distribucion", "Intercambiador"));
  EXPECT_EQ(Bloque(1).Alimentacion3, "Recirculado solar intercambiador");
  EXPECT_TRUE(Poner(2, "Distribucion", "Depósito"));
  EXPECT_EQ(Bloque(1).Alimentacion4, "Alimentación agua red");
}

TEST_F(CambioSistemaTest, OtraClasePasaLasReglasDeUnSistemaNuevo) {
  Anadir("Calefaccion", "1 Caldera");
  Anadir("Calefaccion", "Radiadores eléctricos");
  EXPECT_FALSE(Poner(2, "Seleccion", "Rend. estacional"));
  EXPECT_EQ(Bloque(1).Seleccion, "Radiadores eléctricos");
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_TRUE(mensajes.recibidos[0].texto.starts_with("Ya existe un equipo de calefacción"));
  EXPECT_FALSE(Poner(1, "TipoInstalacionesG", kC));
  edificio->BorrarSistema(1);
  // Solo, cualquiera de los dos cambios vale.
  EXPECT_TRUE(Poner(1, "TipoInstalacionesG", kC));
  EXPECT_TRUE(Poner(1, "Seleccion", "Rend. estacional (agua)"));
  EXPECT_FALSE(Poner(1, "Seleccion", "Equipo Split"));
}

TEST_F(CambioSistemaTest, LasCurvasPropiasDejanDeSerLasDelModelo) {
  Instalaciones b;
  b.Fabricante = kFabricanteDefecto;
  b.Modelo = "Caldera de condensación";
  EXPECT_FALSE(PonerCurvas(b.curvas, b));
  EXPECT_EQ(b.Fabricante, kFabricanteDefecto);
  CurvasEquipo otras;
  otras.cC[0] = 1;
  EXPECT_TRUE(PonerCurvas(otras, b));
  EXPECT_EQ(b.Fabricante, "");
  EXPECT_EQ(b.Modelo, "");
  EXPECT_FLOAT_EQ(b.curvas.cC[0], 1);
}

// D3 y 100 m2: 5,5 kW de calefacción, así que la caldera es la mínima, 16 kW, con 5,5 kW de caudal.
TEST_F(CambioSistemaTest, ElDimensionadoCuentaLoQueCambiaYPoneLoElegido) {
  Anadir("Calefaccion", "1 Caldera");
  EXPECT_TRUE(CambiosDimensionado(*edificio, 1).empty());
  Bloque().QcalorCaldera1 = 30;
  Bloque().RendCalor1 = 0.8F;
  Bloque().saltoGenerador = 10;
  Bloque().Volumen = 500;  // no lo usa
  std::map<std::string, std::pair<float, float>> cambios;
  for (const CambioTamano& c : CambiosDimensionado(*edificio, 1))
    cambios[std::string(c.etiqueta)] = {c.antes, c.despues};
  ASSERT_EQ(cambios.size(), 2U);
  EXPECT_EQ(cambios["QcalorCaldera1"], std::make_pair(30.0F, 16.0F));
  EXPECT_NEAR(cambios["CaudalGEN1"].second, 5.5 * 3600 / (4.18 * 10), 0.01);
  AplicarDimensionado(*edificio, 1, {"QcalorCaldera1"});
  EXPECT_FLOAT_EQ(Bloque().QcalorCaldera1, 16);
  EXPECT_FLOAT_EQ(Bloque().RendCalor1, 0.8F);
  EXPECT_NEAR(Bloque().GEN1.Caudal, 5.5 * 3600 / (4.18 * 15), 0.01);
}

}  // namespace
}  // namespace novex
