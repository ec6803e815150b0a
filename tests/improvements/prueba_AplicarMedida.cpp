#include "improvements/AplicarMedida.h"

#include <gtest/gtest.h>

#include "files/ProyectoFichero.h"
#include "improvements/EstudioMejoras.h"

namespace novex {
namespace {

struct Ejemplo {
  const char* fichero;
  int aplicables;
  bool todas = false;      // o solo las de calefacción y refrigeración, que hacen otro sistema
  bool reabierto = false;  // el caso se calcula tras guardarlo y abrirlo
};

std::ostream& operator<<(std::ostream& os, const Ejemplo& e) {
  return os << e.fichero << (e.reabierto ? " reabierto" : "");
}

class Aplicar : public testing::TestWithParam<Ejemplo> {
 protected:
  Aplicar() {
    AbrirProyecto(gestor,
                  std::filesystem::path(NOVEX_RAIZ_DATOS) / "proyectos" / GetParam().fichero,
                  ModoApertura::Nuevo, mensajes);
    gestor.ActivarCaso(caso::kViejo);
  }
  // El caso con la medida en sus datos, calculado.
  ResultadoMedida Aplicada(int codigo) {
    GestorEdifActivo otro;
    otro.NuevoProyecto();
    otro.Activo().TomarRegistros(std::move(*gestor.Activo().Clonar()));
    AplicarMedida(otro.Activo(), codigo);
    EXPECT_FALSE(MismosRegistros(otro.Activo(), gestor.Activo()));
    if (GetParam().reabierto) {
      const auto ruta = std::filesystem::path(testing::TempDir()) / "medida_aplicada.xml";
      GuardarProyecto(otro, ruta);
      AbrirProyecto(otro, ruta, ModoApertura::Nuevo, mensajes);
      std::filesystem::remove(ruta);
    }
    EXPECT_TRUE(CalcularCaso(otro, caso::kViejo, entorno));
    return BaseDeEstudio(otro.Activo().GetCalculo()->resultados, otro.Activo().GetDatosGenerales());
  }
  RegistroMensajes mensajes;
  FicherosPrograma ficheros{EspacioTrabajo{NOVEX_PROGRAMA_PRUEBAS}};
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  GestorEdifActivo gestor;
};

bool DeZona(const Forzados& f) {
  return f.CasoCalefaccion.Concreto() || f.CasoRefrigeracion.Concreto();
}

// Cifras que la medida y el caso dan iguales. Un generador nuevo cambia lo que consume el equipo
// que compartía el servicio, y la medida no lo mira: de ella valen las de su servicio. Tampoco mira
// la parte que la fotovoltaica cubre de la electricidad.
std::vector<CifraMedida> CifrasDe(const Forzados& f, bool conFotovoltaica) {
  using C = CifraMedida;
  if (conFotovoltaica && DeZona(f)) return {C::DemandaCale, C::DemandaRef};
  std::vector<C> cifras = {C::DemandaCale, C::DemandaRef};
  if (f.CasoCalefaccion.Concreto())
    cifras.insert(cifras.end(), {C::EnergiaFinalCalEsp, C::EnergiaPrimariaCal, C::EmisionesCal});
  else if (f.CasoRefrigeracion.Concreto())
    cifras.insert(cifras.end(), {C::EnergiaFinalRefEsp, C::EnergiaPrimariaRef, C::EmisionesRef});
  else
    cifras.insert(cifras.end(), {C::EnergiaPrimariaTotal, C::EmisionesTotal});
  return cifras;
}

// Lo aplicado a los datos da, calculado, lo que la medida impuesta al cálculo.
TEST_P(Aplicar, ElCasoDaLoQueLaMedida) {
  const auto estudio = EstudioMejoras::Preparar(gestor, caso::kViejo, entorno);
  ASSERT_TRUE(estudio);
  const bool fotovoltaica = gestor.Activo().GetDatosGenerales().PotPico_FV[0] > 0.0F;
  int aplicables = 0;
  for (const MedidaPredefinida& medida : MedidasPredefinidas()) {
    if (!GetParam().todas && !DeZona(medida.forzados)) continue;
    SCOPED_TRACE(medida.codigo);
    const AplicacionMedida aplicacion = DescribirAplicacion(gestor.Activo(), medida.codigo);
    EXPECT_NE(aplicacion.cambios.empty(), aplicacion.motivo.empty());
    if (!aplicacion.SePuede()) {
      const auto igual = gestor.Activo().Clonar();
      AplicarMedida(*igual, medida.codigo);
      EXPECT_TRUE(MismosRegistros(*igual, gestor.Activo()));
      continue;
    }
    ++aplicables;
    const ResultadoMedida caso = Aplicada(medida.codigo);
    const ResultadoMedida m = estudio->MedirCodigo(medida.codigo);
    for (const CifraMedida cifra : CifrasDe(medida.forzados, fotovoltaica))
      EXPECT_NEAR(caso[cifra], m[cifra], 0.01F * m[cifra] + 0.005F) << ClaveCifra(cifra);
  }
  EXPECT_EQ(aplicables, GetParam().aplicables);
}

INSTANTIATE_TEST_SUITE_P(Ejemplos, Aplicar,
                         testing::Values(Ejemplo{"vivienda_unifamiliar_D3.xml", 62, true, true},
                                         Ejemplo{"bloque_B3.xml", 62, true},
                                         Ejemplo{"aerotermia_suelo_radiante_D1.xml", 6},
                                         Ejemplo{"caldera_condensacion_solar_D3.xml", 6},
                                         // Los multi split no se quedan solo con la calefacción.
                                         Ejemplo{"piso_calentador_multisplit_C2.xml", 4},
                                         Ejemplo{"oficina_VRV_B4.xml", 4}));

}  // namespace
}  // namespace novex
