#include <gtest/gtest.h>

#include <map>

#include "outputs/CasoPrueba.h"
#include "outputs/documentos/ConstruirModelo.h"
#include "outputs/documentos/VariablesEspacio.h"
#include "outputs/documentos/VariablesRenovables.h"

namespace novex {
namespace {

using Mapa = std::map<std::string, std::string>;

Mapa EnMapa(const std::vector<VBLE>& variables) {
  Mapa mapa;
  for (const VBLE& v : variables) EXPECT_TRUE(mapa.emplace(v.nombre, v.valor).second) << v.nombre;
  return mapa;
}

template <class Rellenar>
Mapa Variables(const CasoCalculado& caso, Rellenar rellenar) {
  std::vector<VBLE> variables;
  rellenar(caso, variables);
  return EnMapa(variables);
}

void Poner(pruebas::CasoDePrueba& caso, Servicio s, VectorEnergetico v, float kWh) {
  caso.Resultados().servicio[s].finalPorVector[Indice(v)][0] = kWh;
}

class Renovables : public testing::Test {
 protected:
  Renovables() {
    caso.Poner(0, "D3", "Nuevo");
    caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 100;
    Poner(caso, kACS, VectorEnergetico::Electricidad, 300);
    Poner(caso, kACS, VectorEnergetico::MedioAmbiente, 500);
    Poner(caso, kACS, VectorEnergetico::Energiasolartermica, 200);
    Poner(caso, kCalefaccion, VectorEnergetico::GasNatural, 600);
    Poner(caso, kCalefaccion, VectorEnergetico::Biomasa_Otros, 300);
    Poner(caso, kCalefaccion, VectorEnergetico::Biomasa_Pellet, 100);
    Poner(caso, kVentilacion, VectorEnergetico::Energiasolarfotovoltaica, 40);
    Poner(caso, kIluminacion, VectorEnergetico::Energiasolarfotovoltaica, 7);
    Poner(caso, kRefrigeracion, VectorEnergetico::Energiasolarfotovoltaica, 60);
    caso.Resultados().demandaACS = 8;  // 800 kWh
    caso.Resultados().servicio[kACS].porUnidad[kEmisiones][0] = 5;
    caso.Resultados().servicio[kCalefaccion].porUnidad[kEmisiones][0] = 3;
    caso.Resultados().emisionesElectricidad = 2;
  }
  pruebas::CasoDePrueba caso;
};

TEST_F(Renovables, PartesDeLaEnergiaYDeLaDemanda) {
  const Mapa v = Variables(caso.Mostrar(), VariablesRenovables);
  const std::pair<const char*, const char*> esperadas[] = {
      {"BIOCAL", "40.00"},    {"BCCAL", "0.00"},        {"SOLARCAL", "0.00"},
      {"TOTCALREN", "40.00"}, {"SOLARACS", "20.00"},    {"BCACS", "50.00"},
      {"TOTACSREN", "70.00"}, {"SOLARDEMACS", "25.00"}, {"BCDEMACS", "62.50"},
      {"TOTDEMACS", "87.50"}, {"TOTREFREN", "0.00"},    {"FOTOVOLT", "100.00"},
      {"CO2ELECM2", "2.00"},  {"CO2ELEC", "200.00"},    {"CO2COMBM2", "6.00"},
      {"CO2COMB", "600.00"}};
  for (const auto& [nombre, valor] : esperadas) EXPECT_EQ(v.at(nombre), valor) << nombre;
  caso.Poner(4, "D3", "Nuevo");
  EXPECT_EQ(Variables(caso.Mostrar(), VariablesRenovables).at("FOTOVOLT"), "107.00");
}

TEST_F(Renovables, SinEnergiaNiDemandaTodoEsCero) {
  caso.Resultados() = {};
  const Mapa v = Variables(caso.Mostrar(), VariablesRenovables);
  for (const char* nombre : {"BIOACS", "TOTACSREN", "TOTDEMACS", "CO2COMB"})
    EXPECT_EQ(v.at(nombre), "0.00") << nombre;
}

TEST_F(Renovables, SinPanelesNoHayProduccion) {
  NOVEX_TO_MODELOCERTIFICADO modelo;
  VariablesFotovoltaica(caso.Mostrar(), modelo);
  EXPECT_EQ(modelo.variables.front().valor, "-");
  EXPECT_TRUE(modelo.producciones.empty());
  DatosGenerales g = caso.edificio->GetDatosGenerales();
  g.PotPico_FV = {1.5F, 0, 2};
  caso.edificio->SetDatosGenerales(g);
  modelo = {};
  VariablesFotovoltaica(caso.Mostrar(), modelo);
  EXPECT_EQ(modelo.variables.front().valor, "3.50");
  ASSERT_EQ(modelo.producciones.size(), 3U);
  EXPECT_EQ(modelo.producciones[2].servicio, "REF");
  EXPECT_EQ(modelo.producciones[2].origen, "Fotovoltaica insitu");
  EXPECT_EQ(modelo.producciones[2].energia, "60.00");
}

TEST(PerfilUsoCertificado, HorasYCargaDelTerciario) {
  EXPECT_EQ(PerfilUsoCertificado(2), "residencial-24h-baja");
  EXPECT_EQ(PerfilUsoCertificado(3), "noresidencial-8h-baja");
  EXPECT_EQ(PerfilUsoCertificado(7), "noresidencial-12h-media");
  EXPECT_EQ(PerfilUsoCertificado(14), "noresidencial-24h-alta");
  EXPECT_EQ(PerfilUsoCertificado(15), "perfildeusuario");
}

TEST(VariablesAuxiliares, LaUnidadDeAireSoloEnTerciario) {
  pruebas::CasoDePrueba caso;
  caso.Poner(0, "D3", "Nuevo");
  Mapa v = Variables(caso.Mostrar(), VariablesAuxiliares);
  EXPECT_EQ(v.at("SISTEMASSECUNDARIOS"), "Solo en terciario");
  EXPECT_EQ(v.at("TORREREFRIGERACION"), "Solo en terciario");

  caso.Poner(8, "D3", "Nuevo");
  v = Variables(caso.Mostrar(), VariablesAuxiliares);
  EXPECT_EQ(v.at("SISTEMASSECUNDARIOS"), "No existen");  // toma en cada unidad
  EXPECT_EQ(v.at("TORREREFRIGERACION"), "No existen");

  DatosGenerales g = caso.edificio->GetDatosGenerales();
  g.ManejoVentilacion = "UTAprimario_a_unid_terminales";
  g.Recuperador = "EntalpicoConBypass";
  g.Eficiencia_recuperador = 70;
  g.TipoCO2 = "SondaCO2 con freecooling";
  caso.edificio->SetDatosGenerales(g);
  v = Variables(caso.Mostrar(), VariablesAuxiliares);
  EXPECT_EQ(v.at("NOMBRESECUNDARIO"), "UTAprimario");
  EXPECT_EQ(v.at("RENDCALSEC"), "70.00");
  EXPECT_EQ(v.at("ENFGRATUITO"), "Si");
  EXPECT_EQ(v.at("RECEENE"), "Si");
  EXPECT_EQ(v.at("CONTROLSEC"), "Ventilacion con sonda CO2");
}

TEST(DireccionFicheroDocumento, NadaDeLaCarpetaPareceUnaMarca) {
  EXPECT_EQ(DireccionFichero("/casa/_CP_ #1/á.bmp"), "file:///casa/%5FCP%5F%20%231/%C3%A1.bmp");
  EXPECT_EQ(FlechaDe("C"), "flechaC.bmp");
  EXPECT_EQ(FlechaDe("( - )"), "flecha.bmp");
  EXPECT_EQ(FlechaDe("H"), "flecha.bmp");
}

TEST(VariablesImagenes, CasillasDeLaClaseYDeLaReforma) {
  pruebas::CasoDePrueba caso;
  caso.Poner(1, "D1", "Existente");
  DatosGenerales g = caso.edificio->GetDatosGenerales();
  g.Reforma = "Reforma <25% envolvente + Clima  ";
  caso.edificio->SetDatosGenerales(g);
  const ImagenesDocumento imagenes = {"/p/bmp", "/p/bmp/imageEdificio.jpg", {}};
  std::vector<VBLE> variables;
  VariablesImagenes(caso.MostrarCalificado(), imagenes, variables);
  Mapa v = EnMapa(variables);
  const auto marcada = [&](const char* nombre) {
    return v.at(nombre) == "file:///p/bmp/marcado.bmp";
  };
  for (const char* nombre : {"EXISTENTE.BMP", "COMPLETO.BMP", "BLOQUE.bmp", "BLOQUECOMPLETO.bmp",
                             "REFORMA6.BMP", "REFORMA.BMP"})
    EXPECT_TRUE(marcada(nombre)) << nombre;
  for (const char* nombre : {"NUEVO.BMP", "LOCAL.BMP", "UNIFAMILIAR.bmp", "BLOQUEVIVIENDA.bmp",
                             "REFORMA5.BMP", "REFORMA2.BMP", "AMPLIACION.BMP"})
    EXPECT_FALSE(marcada(nombre)) << nombre;
  EXPECT_EQ(v.at("IMG_EDIFICIO.bmp"), "file:///p/bmp/imageEdificio.jpg");
  EXPECT_EQ(v.at("IMG_PLANO.bmp"), "file:///p/bmp/sinimagen.bmp");
  EXPECT_EQ(v.at("IMG_REF.BMP"), "file:///p/bmp/flecha.bmp");  // D1 no califica el frío
}

TEST(FilasMejorasDocumento, CifrasDiferenciasYApuntes) {
  pruebas::CasoDePrueba caso;
  caso.Poner(0, "D1", "Existente");
  EstudioModificaciones estudio;
  estudio.medidas = {{1, true, "0", "0", {}}, {3, true, "12500.5", "", {"una", "<dos>"}}};
  caso.edificio->SetEstudioModificaciones(estudio);
  MejorasMedidas mejoras;
  const auto poner = [](ResultadoMedida& m, CifraMedida c, float x) {
    m.cifras[static_cast<std::size_t>(c)] = x;
  };
  ResultadoMedida medida;
  medida.codigo = 3;
  poner(mejoras.base, CifraMedida::EmisionesTotal, 40);
  poner(medida, CifraMedida::EmisionesTotal, 30);
  poner(medida, CifraMedida::DemandaCale, 12);  // sin base: no hay porcentaje
  poner(medida, CifraMedida::DemandaRef, 9);
  medida.letras[static_cast<std::size_t>(Indicador::EmisionesTotales)] = "C";
  mejoras.medidas = {medida};
  NOVEX_TO_MODELOCERTIFICADO modelo;
  FilasMejoras(caso.MostrarCalificado(), mejoras, "/p/bmp", modelo);
  ASSERT_EQ(modelo.mejoras.size(), 1U);
  EXPECT_EQ(modelo.mejoras[0].titulo, "");
  Mapa v = EnMapa(modelo.mejoras[0].variables);
  EXPECT_EQ(v.at("DENOMINACION"), TextoHtml(MedidaDeCodigo(3)->texto));
  EXPECT_EQ(v.at("CO2T"), "30.00");
  EXPECT_EQ(v.at("CO2TW"), "C");
  EXPECT_EQ(v.at("DIFCO2T"), "10.00<BR>(25.00%)");
  EXPECT_EQ(v.at("DIFDEMC"), "-12.00");
  for (const char* nombre : {"DEMR", "DEMRW", "PRIRWF", "PRIRW", "CO2RW", "DEMGLREF"})
    EXPECT_EQ(v.at(nombre), "( - )") << nombre;
  EXPECT_FALSE(v.contains("CO2ILU"));
  EXPECT_EQ(v.at("MEJORASCOSTE"),
            "12500.5 euros. Se estima un periodo de amortización de 0.00 años   ");
  EXPECT_EQ(v.at("MEJORASDATOS"), "una &lt;dos&gt;");
  EXPECT_EQ(v.at("IMG_CO2.BMP"), "file:///p/bmp/flechaC.bmp");
  EXPECT_EQ(v.at("IMG_REF.BMP"), "file:///p/bmp/flecha.bmp");
  EXPECT_TRUE(v.contains("MIN_G_M4"));
}

TEST(ClaseDocumento, SigueAlTipoDeCertificado) {
  DatosGenerales g;
  g.TipoCertificado = "ProyectoReforma";
  g.Modo_trabajo = "Existente";
  EXPECT_EQ(ClaseDocumento(g, TipoDocumento::Certi), "EXISTENTES");
  EXPECT_EQ(ClaseDocumento(g, TipoDocumento::HE), "EXISTENTE");
  g.TipoCertificado = "ObraNuevaConstruccion";
  g.Modo_trabajo = "Nuevo";
  EXPECT_EQ(ClaseDocumento(g, TipoDocumento::Certi), "NUEVOS. TERMINADO");
  EXPECT_EQ(ClaseDocumento(g, TipoDocumento::HE), "NUEVO");
}

}  // namespace
}  // namespace novex
