#include <gtest/gtest.h>

#include <filesystem>

#include "casos/CasoPrueba.h"
#include "files/ProyectoFichero.h"
#include "improvements/EstudioMejoras.h"
#include "model/Cambios.h"

namespace novex {
namespace {

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
