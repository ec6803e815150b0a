#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "CasoPrueba.h"
#include "base/ErrorFichero.h"
#include "base/NumeroTexto.h"
#include "casos/CasoPrueba.h"
#include "files/CarpetaTemporal.h"
#include "files/ProyectoFichero.h"
#include "improvements/EstudioMejoras.h"
#include "model/Cambios.h"
#include "rating/Escala.h"

namespace novex {
namespace {

using pruebas::CarpetaCasos;
using pruebas::CasoPrueba;
using pruebas::Comparacion;

bool ListaCorta() {
  const char* casos = std::getenv("NOVEX_CASOS");
  return casos != nullptr && std::string_view(casos) == "corta";
}

std::vector<std::string> Elegidos() {
  std::vector<std::string> nombres;
  for (const char clase : {'v', 's', 't'})
    for (const std::string& nombre : pruebas::NombresCasos(clase)) nombres.push_back(nombre);
  if (ListaCorta()) nombres.resize(1);
  return nombres;
}

// Una fila de la tabla de contraste por magnitud, con su peor diferencia.
void ImprimirContraste(const std::string& caso, const std::vector<Comparacion>& todas) {
  const char* pedido = std::getenv("NOVEX_CONTRASTE");
  if (pedido == nullptr || std::string_view(pedido) != "1") return;
  for (const Comparacion& c : pruebas::Peores(todas)) {
    const double relativa =
        c.esperado == 0.0 ? 0.0 : 100.0 * c.Diferencia() / std::fabs(c.esperado);
    std::cout << "CONTRASTE;" << caso << ';' << c.grupo << ';' << c.detalle << ';'
              << Fijo(c.esperado, 4) << ';' << Fijo(c.obtenido, 4) << ';' << Fijo(relativa, 3)
              << ';' << Fijo(100.0 * c.Razon(), 1) << '\n';
  }
}

void EsperarAcuerdo(const std::vector<Comparacion>& todas) {
  ASSERT_FALSE(todas.empty());
  for (const Comparacion& c : pruebas::Peores(todas))
    EXPECT_LE(c.Razon(), 1.0) << c.grupo << ", " << c.detalle << ": esperado " << c.esperado
                              << ", obtenido " << c.obtenido << ", tolerancia " << c.tolerancia;
}

class Caso : public testing::TestWithParam<std::string> {};

// Frente a un cálculo independiente del mismo proyecto y el mismo clima.
TEST_P(Caso, ConcuerdaConElCalculoIndependiente) {
  const nlohmann::json esperado = pruebas::LeerEsperado(GetParam());
  const CasoPrueba caso(GetParam(), CarpetaCasos() / "programa");
  ASSERT_TRUE(caso.calculado);
  EXPECT_TRUE(caso.mensajes.recibidos.empty());
  const ResultadosCaso& r = caso.Resultado().resultados;

  const auto anuales = pruebas::CompararResultados(esperado, caso);
  ImprimirContraste(GetParam(), anuales);
  EsperarAcuerdo(anuales);
  if (std::filesystem::exists(CarpetaCasos() / "esperado" / (GetParam() + ".csv"))) {
    const auto horarias = pruebas::CompararSeries(GetParam(), caso);
    ImprimirContraste(GetParam(), horarias);
    EsperarAcuerdo(horarias);
  }

  for (const auto& [clave, letra] : esperado.at("letras").items()) {
    const auto i = static_cast<std::size_t>(IndicadorDeClave(clave));
    EXPECT_EQ(r.escala.letra[i], letra.get<std::string>()) << clave;
  }
  EXPECT_EQ(r.horasOcupacion, esperado.at("horas_ocupacion").get<float>());
}

INSTANTIATE_TEST_SUITE_P(Todos, Caso, testing::ValuesIn(Elegidos()),
                         [](const auto& parametro) { return parametro.param; });

// Una carpeta de programa con solo los ficheros que la vivienda `v01` necesita.
class CarpetaJusta : public testing::Test {
 protected:
  static constexpr std::array<const char*, 6> kNecesarios = {
      "CoefTransf.xml", "Capitales.xml",   "FactoresConversion.xml",
      "Defecto.xml",    "Localidades.xml", "Equipos.xml"};
  CarpetaJusta() {
    const auto origen = CarpetaCasos() / "programa";
    std::filesystem::create_directories(carpeta / "database");
    std::filesystem::create_directories(carpeta / "databaseCTE");
    for (const char* nombre : kNecesarios)
      std::filesystem::copy(origen / "database" / nombre, carpeta / "database" / nombre);
    std::filesystem::copy(origen / "databaseCTE/ZonaD3.met", carpeta / "databaseCTE/ZonaD3.met");
  }
  CasoPrueba Calcular() const { return {"v01_vivienda_D3", carpeta / ""}; }

  pruebas::CarpetaTemporal carpeta;
};

TEST_F(CarpetaJusta, LoQueUnCalculoNoUsaPuedeFaltar) {
  const CasoPrueba caso = Calcular();
  ASSERT_TRUE(caso.calculado);
  EXPECT_TRUE(caso.mensajes.recibidos.empty());
  const CasoPrueba completo("v01_vivienda_D3", CarpetaCasos() / "programa");
  EXPECT_EQ(caso.Resultado().resultados.total, completo.Resultado().resultados.total);
}

TEST_F(CarpetaJusta, LoQueUsaSeEchaEnFaltaPorSuNombre) {
  for (const std::string nombre : kNecesarios) {
    std::filesystem::rename(carpeta / "database" / nombre, carpeta / "database/fuera");
    try {
      Calcular();
      ADD_FAILURE() << nombre;
    } catch (const ErrorFichero& error) {
      EXPECT_THAT(error.ruta, testing::EndsWith(nombre));
    }
    std::filesystem::rename(carpeta / "database/fuera", carpeta / "database" / nombre);
  }
  std::filesystem::remove(carpeta / "databaseCTE/ZonaD3.met");
  EXPECT_FALSE(Calcular().calculado);
}

const SerieHoraria* Atributo(const calculo& caso, const std::string& nombre) {
  for (const AtributoSistema& a : caso.atributos)
    if (a.nombre == nombre) return &a.serie;
  return nullptr;
}

double SumaAno(const calculo& caso, const std::string& nombre) {
  const SerieHoraria* serie = Atributo(caso, nombre);
  if (serie == nullptr) {
    ADD_FAILURE() << "falta " << nombre;
    return 0;
  }
  double suma = 0;
  for (int h = 1; h <= kHorasAno; ++h) suma += static_cast<double>((*serie)[h]);
  return suma;
}

std::vector<std::string> Nombres(const calculo& caso) {
  std::vector<std::string> nombres;
  for (const AtributoSistema& a : caso.atributos) nombres.push_back(a.nombre);
  return nombres;
}

double Consumo(const calculo& caso, VectorEnergetico vector, Servicio servicio) {
  return static_cast<double>(caso.meses.consumo[static_cast<std::size_t>(vector)][servicio][0]);
}

// Caldera con depósito (sistema 1), caldera de calefacción (2) y equipo de frío (3).
TEST(AtributosDeSistema, LasHorasSumanElConsumoDelAno) {
  const CasoPrueba caso("s01_caldera_deposito", CarpetaCasos() / "programa");
  ASSERT_TRUE(caso.calculado);
  const calculo& r = caso.Resultado();
  EXPECT_THAT(Nombres(r), testing::IsSupersetOf({"QACS_CA1", "RendACS_CA1", "WDEP1", "CW60", "CWT",
                                                 "TWC", "PRET1", "PDACS1", "TD1_1", "TD5_1",
                                                 "QCAL_CA2", "WVEMI2", "QTREF_ES3"}));
  EXPECT_THAT(Nombres(r), testing::Not(testing::Contains("PTCS")));

  const double acs = Consumo(r, VectorEnergetico::GasNatural, kACS);
  const double calefaccion = Consumo(r, VectorEnergetico::GasNatural, kCalefaccion);
  ASSERT_GT(acs, 0.0);
  ASSERT_GT(calefaccion, 0.0);
  EXPECT_NEAR(SumaAno(r, "CACS_CA1"), acs, 1e-4 * acs);
  EXPECT_NEAR(SumaAno(r, "CCAL_CA2"), calefaccion, 1e-4 * calefaccion);
  EXPECT_GT(SumaAno(r, "CREF_ES3"), 0.0);

  // La calefacción entregada es la demanda, y el frío total es mayor que el sensible.
  EXPECT_NEAR(SumaAno(r, "QCAL_CA2"), static_cast<double>(r.meses.servida[kCalefaccion][0]), 1.0);
  EXPECT_GT(SumaAno(r, "QTREF_ES3"), SumaAno(r, "QREF_ES3"));
}

TEST(AtributosDeSistema, ElRendimientoEsLoEntregadoEntreLoConsumido) {
  const CasoPrueba caso("s01_caldera_deposito", CarpetaCasos() / "programa");
  const calculo& r = caso.Resultado();
  const struct {
    const char *util, *consumo, *rendimiento;
  } ternas[] = {{"QACS_CA1", "CACS_CA1", "RendACS_CA1"},
                {"QCAL_CA2", "CCAL_CA2", "RendCAL_CA2"},
                {"QTREF_ES3", "CREF_ES3", "RendREF_ES3"}};
  for (const auto& t : ternas) {
    SCOPED_TRACE(t.rendimiento);
    const SerieHoraria* q = Atributo(r, t.util);
    const SerieHoraria* c = Atributo(r, t.consumo);
    const SerieHoraria* rend = Atributo(r, t.rendimiento);
    ASSERT_TRUE(q != nullptr && c != nullptr && rend != nullptr);
    int conMarcha = 0;
    for (int h = 1; h <= kHorasAno; ++h) {
      if ((*c)[h] == 0.0F) {
        ASSERT_EQ((*rend)[h], 0.0F) << h;
        continue;
      }
      ++conMarcha;
      ASSERT_NEAR((*rend)[h] * (*c)[h], (*q)[h], 1e-4F * (*q)[h] + 1e-5F) << h;
    }
    EXPECT_GT(conMarcha, 100);
  }
}

TEST(AtributosDeSistema, LosCaptadoresAnotanLasSuyas) {
  const CasoPrueba caso("s04_bloque_central_solar", CarpetaCasos() / "programa");
  const calculo& r = caso.Resultado();
  EXPECT_THAT(Nombres(r), testing::IsSupersetOf({"PTCS", "PDS", "EASC", "WCS", "WDEPS", "WRECS"}));
  const double captada = static_cast<double>(r.meses.solarCaptada[0]);
  ASSERT_GT(captada, 0.0);
  // El año reparte entre los meses lo que le falta al balance del depósito: menos del 1 %.
  EXPECT_NEAR(SumaAno(r, "EASC"), captada, 0.01 * captada);
}

// El agua caliente de una medida se toma de la del caso: en un sistema solo de agua caliente con
// captadores, en uno que además calienta y en uno con varios bloques ha de dar, al último bit, lo
// que da calcularla otra vez.
TEST(MejorasDeUnCaso, ElAguaCalienteCompartidaEsLaDeCadaCalculo) {
  for (const std::string nombre :
       {"s01_caldera_deposito", "s02_aerotermia_solar", "s04_bloque_central_solar"}) {
    SCOPED_TRACE(nombre);
    pruebas::CasoPrueba caso(nombre, pruebas::CarpetaCasos() / "programa");
    ASSERT_TRUE(caso.calculado);
    FicherosPrograma ficheros{EspacioTrabajo{pruebas::CarpetaCasos() / "programa"}};
    Progreso progreso;
    Entorno entorno{ficheros, caso.mensajes, progreso};
    const auto estudio = EstudioMejoras::Preparar(caso.gestor, caso::kViejo, entorno);
    ASSERT_TRUE(estudio);
    const ResultadosCaso& r = caso.Resultado().resultados;
    EXPECT_EQ(estudio->Base()[CifraMedida::EmisionesTotal], r.total[kEmisiones]);
    EXPECT_EQ(estudio->Base()[CifraMedida::EnergiaFinalACS], r.servicio[kACS].porUnidad[kFinal][0]);
    ResultadoMedida repetida = estudio->MedirCodigo(kCodigoFinal);
    repetida.codigo = kCodigoBase;
    EXPECT_EQ(repetida, estudio->Base());

    // Con lo impuesto, frente a un cálculo entero que simula su propia agua caliente.
    constexpr int kAislarMuros = 11;
    const std::unique_ptr<Edificio> aislado = caso.Viejo().Clonar();
    CalculoDe(*aislado).resultados.forzados = MedidaDeCodigo(kAislarMuros)->forzados;
    ASSERT_TRUE(EjecutarCalculo(*aislado, caso::kViejo, kModoBucle, entorno));
    const ResultadosCaso& entero = aislado->GetCalculo()->resultados;
    const ResultadoMedida medida = estudio->MedirCodigo(kAislarMuros);
    EXPECT_LT(entero.demandaCalefaccion, r.demandaCalefaccion);
    EXPECT_EQ(medida[CifraMedida::DemandaCale], entero.demandaCalefaccion);
    EXPECT_EQ(medida[CifraMedida::EnergiaPrimariaTotal], entero.total[kPrimariaNoRenovable]);
    EXPECT_EQ(medida[CifraMedida::EmisionesACS], entero.servicio[kACS].porUnidad[kEmisiones][0]);
  }
}

class MejorasDeUnProyecto : public testing::Test {
 protected:
  explicit MejorasDeUnProyecto(const std::string& nombre = "s02_aerotermia_solar")
      : caso(nombre, pruebas::CarpetaCasos() / "programa") {}
  std::unique_ptr<EstudioMejoras> Preparar() {
    return EstudioMejoras::Preparar(caso.gestor, caso::kViejo, entorno);
  }
  template <class Cambio>
  void Cambiar(Cambio cambio) {
    pruebas::CambiarGenerales(*caso.gestor.Caso(caso::kViejo), cambio);
  }
  pruebas::CasoPrueba caso;
  FicherosPrograma ficheros{EspacioTrabajo{pruebas::CarpetaCasos() / "programa"}};
  Progreso progreso;
  Entorno entorno{ficheros, caso.mensajes, progreso};
};

// De la parte solar no sale energía no renovable; el resto lo da el equipo del caso.
TEST_F(MejorasDeUnProyecto, UnAporteSolarDejaElRestoAlEquipo) {
  const auto estudio = Preparar();
  ASSERT_TRUE(estudio);
  const float D = caso.Resultado().resultados.demandaACS;
  const auto base = [&](CifraMedida cifra) { return estudio->Base()[cifra]; };
  const ResultadoMedida sesenta = estudio->MedirCodigo(55), setenta = estudio->MedirCodigo(97);
  EXPECT_NEAR(sesenta[CifraMedida::EnergiaFinalACS], D / 1.05F, 1e-3);
  EXPECT_NEAR(setenta[CifraMedida::EnergiaFinalACS], D, 1e-3);
  EXPECT_NEAR(sesenta[CifraMedida::EnergiaPrimariaACS],
              0.4F * base(CifraMedida::EnergiaPrimariaACS), 1e-3);
  EXPECT_NEAR(setenta[CifraMedida::EmisionesACS], 0.3F * base(CifraMedida::EmisionesACS), 1e-3);
}

TEST_F(MejorasDeUnProyecto, SinVolumenDeDepositoNoHayEstudioYSeDice) {
  Cambiar([](DatosGenerales& g) { g.Volumen_Dep_ST = 0; });
  caso.mensajes.recibidos.clear();
  EXPECT_FALSE(Preparar());
  ASSERT_FALSE(caso.mensajes.recibidos.empty());
  EXPECT_EQ(caso.mensajes.recibidos.back().texto,
            "El depósito solar no puede tener un volumen nulo. Los calculos no se realizan");
}

TEST_F(MejorasDeUnProyecto, UnaSimulacionLibreNoTieneLetras) {
  Cambiar([](DatosGenerales& g) { g.Tiposimulacion = "Simulacion"; });
  const auto estudio = Preparar();
  ASSERT_TRUE(estudio);
  for (const std::string& letra : estudio->MedirCodigo(11).letras) EXPECT_EQ(letra, "");
}

}  // namespace
}  // namespace novex
