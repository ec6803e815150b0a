#include "outputs/documentos/VariablesIdentidad.h"

#include <gtest/gtest.h>

#include <map>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

std::map<std::string, std::string> Mapa(const std::vector<VBLE>& variables) {
  std::map<std::string, std::string> mapa;
  for (const VBLE& v : variables) EXPECT_TRUE(mapa.emplace(v.nombre, v.valor).second) << v.nombre;
  return mapa;
}

TEST(VariablesIdentidad, LoDelUsuarioNoTraeEtiquetas) {
  Edificio edificio;
  DatosGenerales g = edificio.GetDatosGenerales();
  g.Edificio_Titulo = "<b>Casa & _NIF_</b>";
  g.Certificador_Provincia = "Teruel";
  g.Certificador_Telefono = "976";
  edificio.SetDatosGenerales(g);
  Localizacion lugar = edificio.GetLocalizacion();
  lugar.Provincia = "Las Palmas";
  edificio.SetLocalizacion(lugar);
  std::vector<VBLE> variables;
  VariablesIdentidad(edificio, "EXISTENTES", variables);
  auto v = Mapa(variables);
  EXPECT_EQ(v.at("NOMBRE"), "&lt;b&gt;Casa &amp; &#95;NIF&#95;&lt;/b&gt;");
  EXPECT_EQ(v.at("CA"), "Canarias");
  EXPECT_EQ(v.at("CACERT"), "Aragón");
  EXPECT_EQ(v.at("TELEFONO"), "976");
  EXPECT_EQ(v.at("TIPOCERTI"), "EXISTENTES");
  EXPECT_EQ(v.at("PROC"), "NOVEX V&#95;6.1  Fecha: mayo-2024");
}

TEST(VariablesIdentidad, UsoResidencialYTerciario) {
  pruebas::CasoDePrueba caso;
  caso.Poner(0, "D3", "Nuevo");
  Recinto& recinto = caso.edificio->GetRecinto(0);
  recinto.Suelo_habitable_m2 = 1234.567F;
  recinto.Volumen_total_m3 = 300;
  Ventilacion ventilacion = caso.edificio->GetVentilacion();
  ventilacion.nrenovventilacion = 0.4F;
  caso.edificio->SetVentilacion(ventilacion);
  caso.Resultados().horasOcupacion = 3448;
  std::vector<VBLE> variables;
  VariablesUso(caso.Mostrar(), 1.618, variables);
  auto v = Mapa(variables);
  EXPECT_EQ(v.at("SUP"), "1234.6");
  EXPECT_EQ(v.at("AUTIL"), "1234.6");
  EXPECT_EQ(v.at("CAUDALVENT"), "120.00");
  EXPECT_EQ(v.at("VA"), "1.62");
  EXPECT_EQ(v.at("TIEMPOOCUPACION"), "8760");
  EXPECT_EQ(v.at("CFI"), "4.812");
  caso.Poner(4, "D3", "Nuevo");
  variables.clear();
  VariablesUso(caso.Mostrar(), 1.618, variables);
  EXPECT_EQ(Mapa(variables).at("TIEMPOOCUPACION"), "3448.00");
  const std::pair<float, const char*> superficies[] = {
      {123456, "123460"}, {130, "130"}, {98.45F, "98.45"}, {0.5F, "0.5"}, {0, "0"}};
  for (const auto& [superficie, texto] : superficies) {
    recinto.Suelo_habitable_m2 = superficie;
    variables.clear();
    VariablesUso(caso.Mostrar(), 1.618, variables);
    EXPECT_EQ(Mapa(variables).at("SUP"), texto);
  }
}

TEST(VariablesIdentidad, LasVisitasLlevanDiezLineas) {
  DatosGenerales g;
  g.FechaVisita[1] = "1/2/2026";
  g.Memo[2] = std::vector<std::string>(12, "línea");
  g.Memo[2][9] = "décima";
  std::vector<VBLE> variables;
  VariablesVisitas(g, variables);
  const auto v = Mapa(variables);
  EXPECT_EQ(v.size(), 33U);
  EXPECT_EQ(v.at("FECHAVISITA2"), "Visita2. Fecha: 1/2/2026");
  EXPECT_EQ(v.at("PRUEBA9"), "");
  EXPECT_EQ(v.at("PRUEBA19"), "décima");
  EXPECT_EQ(v.at("PRUEBA20"), "");
}

}  // namespace
}  // namespace novex
