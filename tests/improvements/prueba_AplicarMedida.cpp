#include "improvements/AplicarMedida.h"

#include <gtest/gtest.h>

#include "files/ProyectoFichero.h"
#include "improvements/EstudioMejoras.h"

namespace novex {
namespace {

class Aplicar : public testing::TestWithParam<const char*> {
 protected:
  Aplicar() {
    ModoCodificacion codificacion;
    AbrirProyecto(gestor, std::filesystem::path(NOVEX_RAIZ_DATOS) / "proyectos" / GetParam(),
                  ModoApertura::Nuevo, mensajes, codificacion);
    gestor.ActivarCaso(caso::kViejo);
  }
  RegistroMensajes mensajes;
  FicherosPrograma ficheros{EspacioTrabajo{NOVEX_PROGRAMA_PRUEBAS}};
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  GestorEdifActivo gestor;
};

// Lo aplicado a los datos da, calculado, lo que la medida impuesta al cálculo.
TEST_P(Aplicar, ElCasoDaLoQueLaMedida) {
  const auto estudio = EstudioMejoras::Preparar(gestor, caso::kViejo, entorno);
  ASSERT_TRUE(estudio);
  int aplicadas = 0;
  for (const MedidaPredefinida& medida : MedidasPredefinidas()) {
    SCOPED_TRACE(medida.codigo);
    const AplicacionMedida aplicacion = DescribirAplicacion(gestor.Activo(), medida.codigo);
    GestorEdifActivo otro;
    otro.NuevoProyecto();
    otro.Activo().TomarRegistros(std::move(*gestor.Activo().Clonar()));
    AplicarMedida(otro.Activo(), medida.codigo);
    EXPECT_NE(aplicacion.cambios.empty(), aplicacion.motivo.empty());
    EXPECT_EQ(MismosRegistros(otro.Activo(), gestor.Activo()), !aplicacion.SePuede());
    if (!aplicacion.SePuede()) continue;
    ++aplicadas;
    ASSERT_TRUE(CalcularCaso(otro, caso::kViejo, entorno));
    const ResultadoMedida caso =
        BaseDeEstudio(otro.Activo().GetCalculo()->resultados, otro.Activo().GetDatosGenerales());
    const ResultadoMedida m = estudio->MedirCodigo(medida.codigo);
    for (const CifraMedida cifra : {CifraMedida::DemandaCale, CifraMedida::DemandaRef,
                                    CifraMedida::EnergiaPrimariaTotal, CifraMedida::EmisionesTotal})
      EXPECT_NEAR(caso[cifra], m[cifra], 0.01F * m[cifra] + 0.005F) << ClaveCifra(cifra);
  }
  EXPECT_EQ(aplicadas, 56);
}

INSTANTIATE_TEST_SUITE_P(Viviendas, Aplicar, testing::Values("vivienda_unifamiliar_D3.xml"));

}  // namespace
}  // namespace novex
