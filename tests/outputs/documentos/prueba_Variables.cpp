#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "model/Cambios.h"
#include "outputs/CasoPrueba.h"
#include "outputs/documentos/ConstruirModelo.h"
#include "outputs/documentos/VariablesCalificacion.h"
#include "outputs/documentos/VariablesEspacio.h"
#include "outputs/documentos/VariablesIdentidad.h"
#include "outputs/documentos/VariablesRenovables.h"
#include "outputs/documentos/VariablesVeredictos.h"

namespace novex {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsSupersetOf;
using testing::Pair;

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

TEST(VariablesCalificacion, BandasNuevasYExistentes) {
  const std::array<float, 6> th = {4.7F, 7.65F, 11.83F, 123456, 41, 46.5F};
  // 123456 va con cinco cifras.
  EXPECT_THAT(TextosBandas(th, true),
              ElementsAre("     A &lt; 4.70", "4.70 &lt;= B &lt;7.65", "7.65 &lt;= C &lt;11.83",
                          "11.83 &lt;= D &lt;123460.00", "     E &gt;= 123460.00", " ", " "));
  const auto existentes = TextosBandas(th, false);
  EXPECT_EQ(existentes[5], "41.00 &lt;= F &lt;46.50");
  EXPECT_EQ(existentes[6], "     G &gt;= 46.50");
  const auto sinCompletar = TextosBandas({1, 2, 3, 4, 0, 0}, false);
  EXPECT_EQ(sinCompletar[4], "     E &gt;= 4.00");
  EXPECT_EQ(sinCompletar[6], " ");
  // Sin escala en vigor no hay bandas de cero.
  EXPECT_THAT(TextosBandas({}, false), Each("( - )"));
  EXPECT_THAT(TextosBandas({}, true),
              ElementsAre("( - )", "( - )", "( - )", "( - )", "( - )", " ", " "));
}

class Indicadores : public testing::Test {
 protected:
  Indicadores() {
    ResultadosCaso& r = caso.Resultados();
    r.servicio[kRefrigeracion].porUnidad[kEmisiones][0] = 3;
    r.servicio[kRefrigeracion].porUnidad[kPrimariaNoRenovable][0] = 9;
    r.servicio[kACS].porUnidad[kEmisiones][0] = 5;
    r.servicio[kIluminacion].porUnidad[kEmisiones][0] = 2;
    r.demandaRefrigeracion = 7;
    r.total[kEmisiones] = 20;
    r.escala.referencia[static_cast<std::size_t>(Indicador::EmisionesACS)] = 4;
    for (auto& th : r.escala.th) th = {1, 2, 3, 4, 5, 6};
  }
  pruebas::CasoDePrueba caso;
};

TEST_F(Indicadores, ValoresIndicesYLetras) {
  caso.Poner(5, "D3", "Nuevo");
  const Mapa v = Variables(caso.MostrarCalificado(), VariablesIndicadores);
  // "I__EMI_REF_CO2": sin referencia
  EXPECT_THAT(v, IsSupersetOf({Pair("EMI_REF_CO2", "3.00"), Pair("W__EMI_REF_CO2", "D"),
                               Pair("I__EMI_REF_CO2", "( - )"), Pair("I__EMI_ACS_CO2", "1.25"),
                               Pair("I_EMI_CAL_CO2", ""), Pair("EMI_ILU_CO2", "2.00"),
                               Pair("EMI_GL_CO2", "20.00"), Pair("CO2GL", "20.00"),
                               Pair("DEMGLREF", "7.00")}));
  caso.Poner(0, "D1", "Nuevo");
  const Mapa sinFrio = Variables(caso.MostrarCalificado(), VariablesIndicadores);
  for (const char* nombre : {"EMI_REF_CO2", "DEM_GL_REF", "PRIM_REF", "W_PRIM_REF"})
    EXPECT_EQ(sinFrio.at(nombre), "( - )") << nombre;
  EXPECT_FALSE(sinFrio.contains("EMI_ILU_CO2"));
  EXPECT_FALSE(sinFrio.contains("W_ILU_REF"));
}

TEST_F(Indicadores, LaEscalaDelFrioQueNoSeCalificaNoSeEnsena) {
  caso.Poner(0, "D1", "Existente");
  const Mapa v = Variables(caso.MostrarCalificado(), VariablesEscalas);
  EXPECT_THAT(v, IsSupersetOf({Pair("LIM_A_P4", "( - )"), Pair("MIM_G_M4", "( - )"),
                               Pair("LIM_A_P3", "     A &lt; 1.00")}));
}

TEST_F(Indicadores, UnaSimulacionLibreNoTieneLetras) {
  caso.Poner(0, "D1", "Nuevo");
  caso.PonerSimulacionLibre();
  const Mapa v = Variables(caso.MostrarCalificado(), VariablesIndicadores);
  for (const char* nombre : {"W_EMI_CAL_CO2", "W__EMI_ACS_CO2", "W_PRIM_CAL", "W_PRIM_REF"})
    EXPECT_EQ(v.at(nombre), "") << nombre;
  EXPECT_EQ(v.at("DEMGLREF"), "7.00");  // ni deja el frío fuera
}

TEST_F(Indicadores, LasSeriesDeEscalasSonDeSuIndicador) {
  caso.Poner(0, "D3", "Existente");
  auto& th = caso.Resultados().escala.th;
  const auto poner = [&](Indicador i, float t) { th[static_cast<std::size_t>(i)].fill(t); };
  poner(Indicador::EmisionesTotales, 10);
  poner(Indicador::EPriNoRTotales, 20);
  poner(Indicador::DemandaCalefaccion, 30);
  poner(Indicador::DemandaRefrigeracion, 40);
  const Mapa v = Variables(caso.MostrarCalificado(), VariablesEscalas);
  EXPECT_EQ(v.size(), 11U * 7U);
  const std::pair<const char*, const char*> esperadas[] = {
      {"MINGEPNR", "20.00"}, {"MINGCO2", "10.00"},  {"MIN_G_P1", "10.00"}, {"MIN_G_P2", "20.00"},
      {"MIN_G_P3", "30.00"}, {"MIN_G_P4", "40.00"}, {"LIM_G_M2", "10.00"}, {"MIM_G_M1", "20.00"},
      {"MIM_G_M2", "10.00"}, {"MIM_G_M3", "30.00"}, {"MIM_G_M4", "40.00"}};
  for (const auto& [nombre, t] : esperadas)
    EXPECT_EQ(v.at(nombre), std::string("     G &gt;= ") + t) << nombre;
  EXPECT_EQ(v.at("LIMAEPNR"), "     A &lt; 20.00");
  const Mapa m = Variables(caso.MostrarCalificado(), VariablesEscalasMejora);
  EXPECT_EQ(m.size(), 4U * 7U);
  EXPECT_EQ(m.at("LIM_A_M1"), "     A &lt; 20.00");
  EXPECT_EQ(m.at("MIN_G_M2"), "     G &gt;= 10.00");
}

class Renovables : public testing::Test {
 protected:
  Renovables() {
    caso.Poner(0, "D3", "Nuevo");
    caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 100;
    caso.PonerFinal(kACS, VectorEnergetico::Electricidad, 300);
    caso.PonerFinal(kACS, VectorEnergetico::MedioAmbiente, 500);
    caso.PonerFinal(kACS, VectorEnergetico::Energiasolartermica, 200);
    caso.PonerFinal(kCalefaccion, VectorEnergetico::GasNatural, 600);
    caso.PonerFinal(kCalefaccion, VectorEnergetico::Biomasa_Otros, 300);
    caso.PonerFinal(kCalefaccion, VectorEnergetico::Biomasa_Pellet, 100);
    caso.PonerFinal(kVentilacion, VectorEnergetico::Energiasolarfotovoltaica, 40);
    caso.PonerFinal(kIluminacion, VectorEnergetico::Energiasolarfotovoltaica, 7);
    caso.PonerFinal(kRefrigeracion, VectorEnergetico::Energiasolarfotovoltaica, 60);
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
  caso.Resultados() = {};
  const Mapa vacio = Variables(caso.Mostrar(), VariablesRenovables);
  for (const char* nombre : {"BIOACS", "TOTACSREN", "TOTDEMACS", "CO2COMB"})
    EXPECT_EQ(vacio.at(nombre), "0.00") << nombre;
}

TEST_F(Renovables, SinPanelesNoHayProduccion) {
  NOVEX_TO_MODELOCERTIFICADO modelo;
  VariablesFotovoltaica(caso.Mostrar(), modelo);
  EXPECT_EQ(modelo.variables.front().valor, "-");
  EXPECT_TRUE(modelo.producciones.empty());
  caso.Generales([](DatosGenerales& g) { g.PotPico_FV = {1.5F, 0, 2}; });
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

  pruebas::CambiarGenerales(*caso.edificio, [](DatosGenerales& g) {
    g.ManejoVentilacion = "UTAprimario_a_unid_terminales";
    g.Recuperador = "EntalpicoConBypass";
    g.Eficiencia_recuperador = 70;
    g.TipoCO2 = "SondaCO2 con freecooling";
  });
  v = Variables(caso.Mostrar(), VariablesAuxiliares);
  EXPECT_THAT(v, IsSupersetOf({Pair("NOMBRESECUNDARIO", "UTAprimario"), Pair("RENDCALSEC", "70.00"),
                               Pair("ENFGRATUITO", "Si"), Pair("RECEENE", "Si"),
                               Pair("CONTROLSEC", "Ventilacion con sonda CO2")}));
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
  caso.Generales([](DatosGenerales& g) { g.Reforma = "Reforma <25% envolvente + Clima  "; });
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
  EXPECT_THAT(v, IsSupersetOf({Pair("CO2T", "30.00"), Pair("CO2TW", "C"),
                               Pair("DIFCO2T", "10.00<BR>(25.00%)"), Pair("DIFDEMC", "-12.00")}));
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

TEST(VariablesIdentidad, LoDelUsuarioNoTraeEtiquetas) {
  Edificio edificio;
  pruebas::CambiarGenerales(edificio, [](DatosGenerales& g) {
    g.Edificio_Titulo = "<b>Casa & _NIF_</b>";
    g.Certificador_Provincia = "Teruel";
    g.Certificador_Telefono = "976";
  });
  pruebas::CambiarLugar(edificio, [](Localizacion& lugar) { lugar.Provincia = "Las Palmas"; });
  std::vector<VBLE> variables;
  VariablesIdentidad(edificio, "EXISTENTES", variables);
  auto v = EnMapa(variables);
  EXPECT_THAT(v, IsSupersetOf({Pair("NOMBRE", "&lt;b&gt;Casa &amp; &#95;NIF&#95;&lt;/b&gt;"),
                               Pair("CA", "Canarias"), Pair("CACERT", "Aragón"),
                               Pair("TELEFONO", "976"), Pair("TIPOCERTI", "EXISTENTES"),
                               Pair("PROC", "NOVEX V&#95;6.1  Fecha: mayo-2024")}));
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
  auto v = EnMapa(variables);
  EXPECT_THAT(
      v, IsSupersetOf({Pair("SUP", "1234.6"), Pair("AUTIL", "1234.6"), Pair("CAUDALVENT", "120.00"),
                       Pair("VA", "1.62"), Pair("TIEMPOOCUPACION", "8760"), Pair("CFI", "4.812")}));
  caso.Poner(4, "D3", "Nuevo");
  variables.clear();
  VariablesUso(caso.Mostrar(), 1.618, variables);
  EXPECT_EQ(EnMapa(variables).at("TIEMPOOCUPACION"), "3448.00");
  const std::pair<float, const char*> superficies[] = {
      {123456, "123460"}, {130, "130"}, {98.45F, "98.45"}, {0.5F, "0.5"}, {0, "0"}};
  for (const auto& [superficie, texto] : superficies) {
    recinto.Suelo_habitable_m2 = superficie;
    variables.clear();
    VariablesUso(caso.Mostrar(), 1.618, variables);
    EXPECT_EQ(EnMapa(variables).at("SUP"), texto);
  }
}

TEST(VariablesIdentidad, LasVisitasLlevanDiezLineas) {
  DatosGenerales g;
  g.FechaVisita[1] = "1/2/2026";
  g.Memo[2] = std::vector<std::string>(12, "línea");
  g.Memo[2][9] = "décima";
  std::vector<VBLE> variables;
  VariablesVisitas(g, variables);
  const auto v = EnMapa(variables);
  EXPECT_EQ(v.size(), 33U);
  EXPECT_THAT(v,
              IsSupersetOf({Pair("FECHAVISITA2", "Visita2. Fecha: 1/2/2026"), Pair("PRUEBA9", ""),
                            Pair("PRUEBA19", "décima"), Pair("PRUEBA20", "")}));
}

class Veredictos : public testing::Test {
 protected:
  Veredictos() {
    caso.Poner(0, "D3", "Nuevo");
    ResultadosCaso& r = caso.Resultados();
    for (const Servicio s : {kCalefaccion, kRefrigeracion, kACS, kVentilacion, kIluminacion}) {
      r.servicio[s].porUnidad[kPrimariaNoRenovable][0] = 10;
      r.servicio[s].porUnidad[kPrimariaTotal][0] = 20;
    }
    r.limites.CepNren = 40;
    r.limites.CepTot = 79;
    r.demandaCalefaccion = 15;
    r.demandaRefrigeracion = 14.9F;
    r.limites.demandaCalefaccion = 15;
    r.horasOcupacion = 1000;
    r.horasFueraCalefaccion = 39;
    r.horasFueraRefrigeracion = 1;
    verificacion.K.K = 0.6;
    verificacion.K.Klimite = 0.59;
  }
  Mapa Veredicto() {
    std::vector<VBLE> variables;
    VariablesVeredictos(caso.Mostrar(), verificacion, variables);
    return EnMapa(variables);
  }
  pruebas::CasoDePrueba caso;
  VerificacionHE verificacion;
};

TEST_F(Veredictos, LaEnergiaTotalEnsenaTresServiciosYComparaCuatro) {
  auto v = Veredicto();
  EXPECT_EQ(v.at("CEPNREN"), "40.00");
  EXPECT_EQ(v.at("CEPNRENCUMPLE"), "Si cumple");  // en el límite
  EXPECT_EQ(v.at("CEPSINO"), "Sí cumple");
  EXPECT_EQ(v.at("CEPTOT"), "60.00");
  EXPECT_EQ(v.at("CEPTOTCUMPLE"), "No cumple");  // 80 frente a 79
  caso.Poner(4, "D3", "Nuevo");                  // en terciario cuenta la iluminación
  v = Veredicto();
  EXPECT_EQ(v.at("CEPNREN"), "50.00");
  EXPECT_EQ(v.at("CEPNRENCUMPLE"), "No cumple");
}

TEST_F(Veredictos, LoQueNoSeExigeNoTieneLimite) {
  caso.Poner(0, "D3", "Existente");
  const auto v = Veredicto();
  for (const char* nombre : {"CEPNRENCUMPLE", "CEPTOTCUMPLE", "HORASFUERACONSIGNACUMPLE", "KCUMPLE",
                             "QSOLJULCUMPLE", "N50CUMPLE"})
    EXPECT_EQ(v.at(nombre), "No aplicable") << nombre;
  for (const char* nombre : {"CEPNRENLIM", "CEPTOTLIM", "HORASFUERACONSIGNALIM", "KLIM"})
    EXPECT_EQ(v.at(nombre), "") << nombre;
  EXPECT_EQ(v.at("CEPLIM"), "40.00");  // este se enseña siempre
  EXPECT_EQ(v.at("K"), "0.60");
}

// Su valor teórico se calcula siempre: solo se compara donde se exige.
TEST_F(Veredictos, ElCambioDeAireQueNoSeExigeNoIncumple) {
  verificacion.n50.n50 = 6.2;
  verificacion.n50.limite = 4.5;
  auto v = Veredicto();
  EXPECT_THAT(v, IsSupersetOf({Pair("N50", "6.20"), Pair("N50LIM", "4.50"),
                               Pair("N50CUMPLE", "No cumple")}));
  verificacion.n50.registro.aplica = false;
  v = Veredicto();
  for (const char* nombre : {"N50", "N50LIM", "N50CUMPLE"})
    EXPECT_EQ(v.at(nombre), "No aplicable") << nombre;
}

TEST_F(Veredictos, HorasYDemandasPequenas) {
  auto v = Veredicto();
  EXPECT_EQ(v.at("HORASFUERACONSIGNA"), "4.00");
  EXPECT_EQ(v.at("HORASFUERACONSIGNACUMPLE"), "Si cumple");
  EXPECT_EQ(v.at("KCUMPLE"), "No cumple");  // con 15 justos se exige
  EXPECT_EQ(v.at("DCALSINO"), "Sí cumple");
  EXPECT_EQ(v.at("DREFSINO"), "No cumple");
  caso.Resultados().demandaCalefaccion = 14.9F;
  caso.Resultados().horasFueraRefrigeracion = 2;
  v = Veredicto();
  EXPECT_THAT(v, IsSupersetOf({Pair("KCUMPLE", "No aplicable por demanda"), Pair("K", "0.60"),
                               Pair("HORASFUERACONSIGNACUMPLE", "No cumple")}));
  caso.Resultados().horasOcupacion = 0;
  v = Veredicto();
  EXPECT_EQ(v.at("HORASFUERACONSIGNA"), "");
  EXPECT_EQ(v.at("HORASFUERACONSIGNACUMPLE"), "No aplicable");
}

TEST(TextoRecuperador, CadaClase) {
  DatosGenerales g;
  EXPECT_EQ(TextoRecuperador(g), "No existe recuperador");
  g.Recuperador = "SensibleConBypass";
  EXPECT_EQ(TextoRecuperador(g), "Recuperador sensbile con by-pass, rendimiento 75.00");
  g.Recuperador = "EntalpicoSinBypass";
  EXPECT_EQ(TextoRecuperador(g), "Recuperador entalpico sin by-pass, sensible 75.00 humedad 25.00");
}

}  // namespace
}  // namespace novex
