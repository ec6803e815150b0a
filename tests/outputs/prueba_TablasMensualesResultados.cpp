#include "outputs/TablasMensualesResultados.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "calculation/EjecutarCalculo.h"
#include "files/ProyectoFichero.h"
#include "outputs/CasoPrueba.h"
#include "outputs/ExportacionTablas.h"
#include "rating/FactoresConversion.h"
#include "rating/Plegado.h"

namespace novex {
namespace {

using pruebas::Textos;

const std::vector<Celda>& Fila(const Tabla& tabla, const std::string& nombre) {
  const auto it = std::find_if(tabla.filas.begin(), tabla.filas.end(),
                               [&](const auto& fila) { return fila[0].texto == nombre; });
  EXPECT_NE(it, tabla.filas.end()) << nombre;
  return *it;
}
double Ano(const Tabla& tabla, const std::string& fila) {
  return Fila(tabla, fila).at(13).numero.value();
}
Tabla Pedir(const CasoCalculado& caso, const std::string& nombre) {
  return RejillaDeNombre(caso, nombre).value().tabla;
}
std::vector<Textos> Leer(const std::string& texto) {
  std::vector<Textos> filas(1);
  std::string celda;
  for (const char c : texto) {
    if (c == ';') filas.back().push_back(std::move(celda));
    if (c == '\n') filas.emplace_back();
    if (c == ';' || c == '\n') celda.clear();
    if (c != ';' && c != '\n') celda += c;
  }
  filas.pop_back();
  return filas;
}

// Terciario de 50 m2 que solo gasta en enero, ya plegado: la mitad de los 120 kWh eléctricos es de
// la fotovoltaica, salvo en la ventilación y la iluminación, sin uso.
class PaginaMensualTest : public testing::Test {
 protected:
  PaginaMensualTest() {
    caso.Poner(3, "D3", "Existente");
    caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 50;
    caso.Generales([](DatosGenerales& g) { g.Equipos_Defecto = "SI"; });
    auto& factores = caso.Resultados().factores;
    factores[static_cast<std::size_t>(FilaFactor::ElectricidadPeninsular)] = {0.5F, 0.25F, 2,
                                                                              2.25F};
    factores[static_cast<std::size_t>(FilaFactor::GasNatural)] = {0.25F, 0, 1, 1};
    TablasMensuales& m = caso.resultado->meses;
    const auto electricidad = Indice(VectorEnergetico::Electricidad);
    m.consumo[electricidad][kRefrigeracion][1] = 60;
    m.ventiladores[kRefrigeracion][1] = 10;
    m.bombas[kRefrigeracion][1] = 10;
    m.defecto[kRefrigeracion][1] = 20;
    m.consumo[electricidad][kACS][1] = 12;
    m.bombas[kACS][1] = 8;
    m.consumo[Indice(VectorEnergetico::GasNatural)][kCalefaccion][1] = 40;
    m.ambiente[kACS][1] = 30;
    m.solarCaptada[1] = 20;
    m.perdidaTuberiaCaptador[1] = 3;
    m.perdidaDepositoSolar[1] = 2;
    m.produccionFotovoltaica = {0, 60, 99};  // lo de febrero se pierde
    m.demanda[kCalefaccion][1] = -2;
    m.demanda[kACS][1] = 1;
    m.perdidaDeposito[1] = 5;
    m.perdidaRetorno[1] = 7;
    PlegarCaso(*caso.edificio, *caso.resultado);
  }
  Tabla Pedida(const std::string& nombre) const { return Pedir(caso.Mostrar(), nombre); }
  pruebas::CasoDePrueba caso;
};

TEST_F(PaginaMensualTest, ServiciosPorVector) {
  const Tabla refri = Pedida("final-refrigeracion");
  EXPECT_EQ(refri.cabeceras.front(), "Refri (kWh)");
  EXPECT_EQ(refri.cabeceras.size(), 15U);
  EXPECT_EQ(refri.filas.size(), 11U);
  EXPECT_EQ(Fila(refri, "Electricidad_Red")[1].texto, "50.00");
  EXPECT_EQ(Fila(refri, "Electricidad_Red")[14].texto, "1.00");
  EXPECT_EQ(Ano(refri, "Fotovoltaica"), 50);
  const Tabla acs = Pedida("final-acs");
  EXPECT_EQ(Ano(acs, "Solar Termica"), 15);
  EXPECT_EQ(Ano(acs, "Medio_Ambiente"), 30);
  EXPECT_EQ(Ano(acs, "TOTAL"), 65);
  // 60 de la red, 40 de gas, 60 de fotovoltaica, 15 de sol y 30 del ambiente.
  EXPECT_EQ(Ano(Pedida("final-total"), "TOTAL"), 205);
  const Tabla emisiones = Pedida("emisiones-total");
  EXPECT_EQ(emisiones.cabeceras.front(), "Total (kg CO2)");
  EXPECT_EQ(Ano(emisiones, "Electricidad_Red"), 30);
  EXPECT_EQ(Ano(emisiones, "GasNatural"), 10);
  EXPECT_EQ(emisiones.notas, Textos{"Total/m2 año útil = 0.80 (kg CO2/m2 año)"});
  EXPECT_EQ(Pedida("final-iluminacion").notas, Textos{"Total/m2 útil = 0.00 (kWh/m2)"});
  // Sin superficie la última columna queda en blanco.
  caso.edificio->GetRecinto(0).Suelo_habitable_m2 = 0;
  EXPECT_EQ(Fila(Pedida("final-acs"), "TOTAL")[14].texto, "");
}

TEST_F(PaginaMensualTest, TablaElectricaYEquipoPorDefecto) {
  const Tabla elec = Pedida("elec-emisiones-refrigeracion");
  EXPECT_EQ(elec.titulo, "Cálculo de las emisiones producidas por la electricidad de la red");
  EXPECT_EQ(elec.cabeceras.front(), "Elec.Emi.Refri(kg CO2)");
  // (60 + 10 + 10 + 20 - 50) por 0,5: lo mismo que la fila de la red.
  EXPECT_EQ(Ano(elec, "Elec.Fotovoltaica"), 25);
  EXPECT_EQ(Ano(elec, "Elec.Eq.Defecto"), 10);
  EXPECT_EQ(Ano(elec, "TOTAL Elec. Red"), 25);
  EXPECT_EQ(Ano(Pedida("elec-final-acs"), "TOTAL Elec. Red"), 10);
  const auto defecto = [this](const std::string& servicio) {
    return Pedida("defecto-" + servicio).filas.at(0).at(0).texto;
  };
  EXPECT_EQ(defecto("acs"), "Defecto Electricidad");
  EXPECT_EQ(defecto("calefaccion"), "Defecto Gasoleo_C");
  caso.Poner(0, "D3", "Existente");
  EXPECT_EQ(defecto("acs"), "Defecto GasNatural");
  EXPECT_EQ(defecto("calefaccion"), "Defecto GasNatural");
  EXPECT_EQ(defecto("refrigeracion"), "Defecto Electricidad");
  // En vivienda la suma no lleva el equipo por defecto.
  EXPECT_EQ(Ano(Pedida("elec-final-refrigeracion"), "TOTAL Elec. Red"), 30);
}

TEST_F(PaginaMensualTest, DemandaSolarYFotovoltaica) {
  const Tabla demanda = Pedida("demanda");
  EXPECT_EQ(Ano(demanda, "Calefaccion"), 100);
  EXPECT_EQ(Fila(demanda, "Calefaccion")[14].texto, "2.00");
  EXPECT_EQ(Fila(demanda, "Refrigeracion")[1].texto, "0.00");
  EXPECT_EQ(Ano(Pedida("instalacion-acs"), "Total ACS"), 62);
  EXPECT_EQ(Ano(Pedida("solar-termica"), "Total Energia aportada"), 15);
  const Tabla fv = Pedida("fotovoltaica");
  EXPECT_EQ(Ano(fv, "ACS"), 20);
  EXPECT_EQ(Ano(fv, "Refrigeracion"), 100);
  EXPECT_EQ(Ano(fv, "Total"), 120);
  EXPECT_EQ(Ano(fv, "FV paneles"), 159);
  EXPECT_EQ(Ano(fv, "FV a compensar"), 60);
  EXPECT_EQ(Ano(Pedida("fotovoltaica-compensada"), "Compens.ACS"), 10);
  caso.Poner(0, "C1", "Existente");
  EXPECT_EQ(Fila(Pedida("demanda"), "Refrigeracion")[1].texto, "");
  caso.Resultados().demandaCalefaccion = 2;
  EXPECT_EQ(RotuloDemanda(caso.Mostrar()),
            "Demanda: Calefaccion= 2.00 kW/hm2año       Refrigeracion= ( - ) kW/hm2año       ACS= "
            "0.00 kW/hm2año");
}

TEST_F(PaginaMensualTest, LosMesesEnBarrasSinTotalesNiFilasVacias) {
  const Grafico acs = GraficoMeses(Pedir(caso.Mostrar(), "instalacion-acs"));
  EXPECT_EQ(acs.ejeY, "kWh");
  EXPECT_EQ(GraficoMeses(Pedir(caso.Mostrar(), "elec-emisiones-acs")).ejeY, "kg CO2");
  ASSERT_EQ(acs.posiciones.size(), 12U);
  EXPECT_EQ(acs.posiciones.front() + acs.posiciones.back(), "ENEDIC");
  ASSERT_EQ(acs.series.size(), 3U);
  EXPECT_EQ(acs.series[2].nombre, "Recirculacion");
  EXPECT_EQ(acs.series[0].valores[0] + acs.series[1].valores[0] + acs.series[2].valores[0],
            50 + 5 + 7);
  EXPECT_EQ(acs.series[2].valores[11], 0);
  std::string vectores;
  for (const SerieGrafico& s : GraficoMeses(Pedir(caso.Mostrar(), "final-acs")).series)
    vectores += s.nombre + " ";
  EXPECT_EQ(vectores, "Electricidad_Red Solar Termica Fotovoltaica Medio_Ambiente ");
  EXPECT_TRUE(GraficoMeses(Pedir(caso.Mostrar(), "final-iluminacion")).series.empty());
  EXPECT_TRUE(GraficoMeses({}).series.empty());
}

TEST_F(PaginaMensualTest, LasRejillasSePidenPorSuNombre) {
  const Textos nombres = NombresRejillas(*caso.edificio);
  EXPECT_EQ(nombres.size(), 53U);  // 3 + 5 x 6 + 3 + 5 x 3 + 2
  EXPECT_EQ(std::set<std::string>(nombres.begin(), nombres.end()).size(), nombres.size());
  for (const std::string& nombre : nombres)
    EXPECT_EQ(RejillaDeNombre(caso.Mostrar(), nombre).value().nombre, nombre);
  EXPECT_FALSE(RejillaDeNombre(caso.Mostrar(), "Final-acs").has_value());
  caso.Poner(0, "D3", "Nuevo");
  EXPECT_EQ(NombresRejillas(*caso.edificio).size(), 48U);
}

TEST_F(PaginaMensualTest, ExportarTodasYLoVisible) {
  const std::string todas = ExportarTablas(caso.Mostrar(), AlcanceExportacion::Todas);
  Textos titulos;
  for (const Textos& fila : Leer(todas)) {
    EXPECT_LE(fila.size(), 15U);
    if (fila.size() == 1) titulos.push_back(fila[0]);
  }
  // 3, 6 por resultado, 3 del equipo por defecto, 1 + 5 de la red y 2 de fotovoltaica.
  ASSERT_EQ(titulos.size(), 44U);
  const std::pair<std::size_t, const char*> esperados[] = {
      {0, "Detalle demanda de ACS"},
      {2, "Demanda Total"},
      {3, "Energia final servicio ACS"},
      {8, "Energia final TOTAL"},
      {32, "Emisiones CO2 TOTAL"},
      {36, "Energia Electrica de Red"},
      {37, "Cálculo de la energía eléctrica consumida de la red"}};
  for (const auto& [i, titulo] : esperados) EXPECT_EQ(titulos[i], titulo);
  // Lo escrito, leído, es lo que hay en las rejillas.
  auto leida = Leer(todas);
  std::erase_if(leida, [](const Textos& fila) { return fila.size() == 1; });
  std::size_t i = 0;
  for (const RejillaMensual& rejilla : RejillasMensuales(caso.Mostrar())) {
    EXPECT_EQ(leida.at(i++), rejilla.tabla.cabeceras);
    for (const auto& fila : rejilla.tabla.filas) {
      Textos celdas;
      for (const Celda& celda : fila) celdas.push_back(celda.texto);
      EXPECT_EQ(leida.at(i++), celdas);
    }
  }
  EXPECT_EQ(i, leida.size());
  const auto visible = Leer(ExportarTablas(caso.Mostrar(), AlcanceExportacion::Visible));
  EXPECT_EQ(visible.size(), 13U);
  EXPECT_EQ(visible[0], Textos{"Energia final TOTAL"});
  // En la pantalla va debajo lo de los equipos por defecto; en el fichero, antes que lo eléctrico.
  const SeleccionMensual acs = {VistaMensual::PorServicio, ServicioMes::ACS, kEmisiones};
  Textos nombres;
  for (const RejillaMensual& r : RejillasVisibles(caso.Mostrar(), acs)) nombres.push_back(r.nombre);
  EXPECT_EQ(nombres, (Textos{"emisiones-acs", "elec-emisiones-acs", "defecto-acs"}));
  Textos enFichero;
  for (const Textos& fila : Leer(ExportarTablas(caso.Mostrar(), AlcanceExportacion::Visible, acs)))
    if (fila.size() == 1) enFichero.push_back(fila[0]);
  EXPECT_EQ(enFichero,
            (Textos{"Emisiones CO2 servicio ACS", "Energia Inst. Defecto servicio ACS",
                    "Energia Electrica de Red",
                    "Cálculo de las emisiones producidas por la electricidad de la red"}));
  const auto referencia =
      Leer(ExportarObjetoReferencia(caso.Mostrar(), UnidadesReferencia::Totales));
  ASSERT_EQ(referencia.size(), 19U);
  EXPECT_EQ(referencia[0], Textos{"Detalle edificio objeto / referencia"});
  EXPECT_EQ(referencia[18].size(), 5U);
}

TEST(ExportacionTablas, ElNombreLlevaSuExtension) {
  EXPECT_EQ(RutaExportacion("dir.txt/tablas"), "dir.txt/tablas.txt");
  EXPECT_EQ(RutaExportacion("tablas.txt"), "tablas.txt");
  EXPECT_EQ(RutaExportacion("tablas.TXT"), "tablas.TXT");
  EXPECT_EQ(RutaExportacion("tablas.xml"), "tablas.xml.txt");
}

// Un proyecto entero: los meses suman lo que el año dice de cada vector, servicio y resultado.
TEST(PaginaMensual, LosMesesSumanElAnoDeUnProyecto) {
  FicherosPrograma ficheros{EspacioTrabajo{NOVEX_PROGRAMA_PRUEBAS}};
  RegistroMensajes mensajes;
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  GestorEdifActivo gestor;
  AbrirProyecto(gestor, NOVEX_RAIZ_PRUEBAS "/casos/proyectos/t01_oficina_vrv.xml",
                ModoApertura::Nuevo, mensajes);
  ASSERT_TRUE(CalcularProyecto(gestor, entorno).empty());
  const Edificio& edificio = *gestor.Caso(caso::kViejo);
  const calculo& c = *edificio.GetCalculo();
  const CasoCalculado mostrado{"Viejo", &edificio, &c, {}};
  const double area = static_cast<double>(edificio.GetRecinto(0).Suelo_habitable_m2);
  const std::pair<const char*, UnidadEnergia> unidades[] = {{"final", kFinal},
                                                            {"primaria", kPrimariaTotal},
                                                            {"no-renovable", kPrimariaNoRenovable},
                                                            {"renovable", kPrimariaRenovable},
                                                            {"emisiones", kEmisiones}};
  for (const auto& [clave, unidad] : unidades) {
    double suma = 0, calificado = 0;
    for (std::size_t s = 0; s < kServicios; ++s) {
      const Tabla tabla =
          Pedir(mostrado, std::string(clave) + "-" + std::string(kNombreServicio[s]));
      const double total = Ano(tabla, "TOTAL");
      // La energía final del año de la ventilación y de la iluminación es solo la de la red.
      const bool sinFotovoltaica = unidad == kFinal && (s == kVentilacion || s == kIluminacion);
      const double delAno = total - (sinFotovoltaica ? Ano(tabla, "Fotovoltaica") : 0.0);
      const double ano = static_cast<double>(c.resultados.servicio[s].porUnidad[unidad][0]);
      EXPECT_NEAR(delAno / area, ano, 1e-3 + 1e-5 * ano) << clave << s;
      suma += total;
      calificado += delAno / area;
    }
    EXPECT_NEAR(Ano(Pedir(mostrado, std::string(clave) + "-total"), "TOTAL"), suma, 1e-6 * suma);
    const double total = static_cast<double>(c.resultados.total[unidad]);
    EXPECT_NEAR(calificado, total, 1e-4 * total) << clave;
  }
  EXPECT_GT(Ano(Pedir(mostrado, "fotovoltaica"), "FV a compensar"), 0);
  EXPECT_GT(Ano(Pedir(mostrado, "final-iluminacion"), "TOTAL"), 0);
  for (const char* servicio : {"acs", "calefaccion", "refrigeracion"})
    EXPECT_NEAR(Ano(Pedir(mostrado, std::string("elec-final-") + servicio), "TOTAL Elec. Red"),
                Ano(Pedir(mostrado, std::string("final-") + servicio), "Electricidad_Red"), 0.05);
}

}  // namespace
}  // namespace novex
