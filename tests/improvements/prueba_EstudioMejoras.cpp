#include "improvements/EstudioMejoras.h"

#include <gtest/gtest.h>

#include <set>

#include "calculation/ProgramaPrueba.h"

namespace novex {
namespace {

TEST(MedidasPredefinidas, SonSetentaYCadaCodigoImponeLoSuyo) {
  std::set<int> codigos;
  for (const MedidaPredefinida& m : MedidasPredefinidas()) {
    EXPECT_TRUE(codigos.insert(m.codigo).second) << m.codigo;
    EXPECT_FALSE(m.forzados == SinForzar()) << m.codigo;
  }
  EXPECT_EQ(codigos.size(), 70U);
  EXPECT_EQ(*codigos.begin(), 3);
  EXPECT_EQ(*codigos.rbegin(), 101);
  EXPECT_EQ(MedidaDeCodigo(4), nullptr);

  const auto f = [](int codigo) -> const Forzados& { return MedidaDeCodigo(codigo)->forzados; };
  const auto esperado = [](auto cambio) {
    Forzados e = SinForzar();
    cambio(e);
    return e;
  };
  EXPECT_EQ(f(6), esperado([](Forzados& e) { e.ExtraRCubiertas = 1.5F; }));
  EXPECT_EQ(f(11), esperado([](Forzados& e) { e.ExtraRMuros = 1; }));
  EXPECT_EQ(f(15), esperado([](Forzados& e) { e.ExtraRSuelos = 0.5F; }));
  EXPECT_EQ(f(23),
            esperado([](Forzados& e) { e.ExtraRCubiertas = e.ExtraRMuros = e.ExtraRSuelos = 1; }));
  EXPECT_EQ(f(27), esperado([](Forzados& e) { e.PuentesForzados = 3; }));
  EXPECT_EQ(f(29), esperado([](Forzados& e) { e.PuentesForzados = 2; }));
  EXPECT_EQ(f(38), esperado([](Forzados& e) { e.UCristalForzado = e.UMarcoForzado = 1.8F; }));
  EXPECT_EQ(f(41), esperado([](Forzados& e) { e.FSCristalForzado = 0.25F; }));
  EXPECT_EQ(f(43), esperado([](Forzados& e) { e.FactorSolarVerano = 0.5F; }));
  EXPECT_EQ(f(49), esperado([](Forzados& e) { e.EficienciaRecuperadorForzada = 84; }));
  EXPECT_EQ(f(60), esperado([](Forzados& e) { e.ExtraPotPicoFV = 10; }));
  EXPECT_EQ(f(53), esperado([](Forzados& e) {
              e.CasoRefrigeracion = {"CasoConcreto", "Electricidad", 2.8F};
            }));
  EXPECT_EQ(f(97), esperado([](Forzados& e) { e.CasoACS = {"CasoConcreto", "70", 1}; }));
  EXPECT_EQ(f(83), esperado([](Forzados& e) {
              e.ExtraRMuros = e.ExtraRCubiertas = 1;
              e.PuentesForzados = 4;
              e.UCristalForzado = e.UMarcoForzado = 1.8F;
              e.PermeabilidadForzada = 3;
            }));
  EXPECT_EQ(MedidaDeCodigo(94)->texto,
            "Añadir 6 cm de aislamiento conductividad 0,04 W/m2K a los muros y cubiertas  +   "
            "Puentes térmicos. Aislamiento contínuo en fachada  +   Vidrio doble bajo emisivo "
            "U=2,5 W/m2K y Marco madera U=2,2 W/m2K  +   Permebilidad huecos 9 (m3/hm2 100Pa)");
  EXPECT_EQ(MedidaDeCodigo(62)->pagina, PaginaMedida::CombinacionesDemanda);
}

// La caja que se calienta, en una carpeta con su clima, dentro de un proyecto.
class Estudio : public testing::Test {
 protected:
  Estudio() {
    gestor.NuevoProyecto();
    gestor.Activo().TomarRegistros(std::move(*pruebas::CajaCaliente()));
    estudio = EstudioMejoras::Preparar(gestor, caso::kViejo, entorno);
  }
  float Calefaccion(const ResultadoMedida& m) { return m[CifraMedida::DemandaCale]; }

  pruebas::ProgramaPrueba programa;
  FicherosPrograma ficheros{EspacioTrabajo{programa.Datos().parent_path()}};
  RegistroMensajes mensajes;
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  GestorEdifActivo gestor;
  std::unique_ptr<EstudioMejoras> estudio;
};

TEST_F(Estudio, MedirNoCambiaElCasoYLaBaseEsSuCalculo) {
  ASSERT_TRUE(estudio);
  ASSERT_TRUE(EjecutarCalculo(gestor.Activo(), caso::kViejo, kModoTodo, entorno));
  const ResultadosCaso& r = gestor.Activo().GetCalculo()->resultados;
  EXPECT_EQ(estudio->Base()[CifraMedida::DemandaCale], r.demandaCalefaccion);
  EXPECT_EQ(estudio->Base()[CifraMedida::EmisionesTotal], r.total[kEmisiones]);
  ResultadoMedida final = estudio->MedirCodigo(kCodigoFinal);
  final.codigo = kCodigoBase;
  EXPECT_EQ(final, estudio->Base());
  EXPECT_THROW(estudio->MedirCodigo(4), std::out_of_range);
  // Aislar baja la demanda y varios hilos dan lo mismo.
  const std::vector<int> codigos = {9, 11, 12, 24, 31, 46, 51};
  const auto uno = estudio->Medir(codigos, 1);
  int hechas = 0;
  EXPECT_EQ(estudio->Medir(codigos, 3, [&] { ++hechas; }), uno);
  EXPECT_EQ(hechas, 7);
  EXPECT_GT(Calefaccion(estudio->Base()), Calefaccion(uno[0]));
  EXPECT_GT(Calefaccion(uno[0]), Calefaccion(uno[1]));
  EXPECT_GT(Calefaccion(uno[1]), Calefaccion(uno[2]));
  EXPECT_GT(Calefaccion(uno[2]), Calefaccion(uno[3]));
}

TEST_F(Estudio, UnGeneradorSaleDeLaDemandaYSusFactores) {
  ASSERT_TRUE(estudio);
  const ResultadoMedida pellet = estudio->MedirCodigo(51);
  const float D = Calefaccion(pellet);
  EXPECT_EQ(D, Calefaccion(estudio->Base()));
  EXPECT_FLOAT_EQ(pellet[CifraMedida::EnergiaFinalCal], D / 0.75F);
  // Pellet: 0,085 kWh de primaria no renovable y 0,018 kg de CO2 por kWh.
  EXPECT_NEAR(pellet[CifraMedida::EnergiaPrimariaCal], D / 0.75F * 0.085F, 1e-3);
  EXPECT_NEAR(pellet[CifraMedida::EmisionesCal], D / 0.75F * 0.018F, 1e-3);
  EXPECT_EQ(pellet[CifraMedida::EnergiaFinalRef], estudio->Base()[CifraMedida::EnergiaFinalRef]);
  // La refrigeración de una casa sin ella da un valor: sale de su demanda, que es 0.
  EXPECT_EQ(estudio->MedirCodigo(53)[CifraMedida::EnergiaFinalRef],
            estudio->Base()[CifraMedida::DemandaRef] / 2.8F);
}

TEST(MarcasEstudio, TresSonLasQueCaben) {
  EstudioModificaciones estudio;
  for (const int codigo : {61, 3, 9}) estudio.medidas.push_back({codigo, true, "", "", {}});
  estudio.medidas.push_back({12, false, "5", "", {}});
  EXPECT_EQ(CodigosMarcados(estudio), (std::vector<int>{3, 9, 61}));
  EXPECT_FALSE(AvisoMarcas(estudio));
  estudio.medidas[3].marca = true;
  ASSERT_TRUE(AvisoMarcas(estudio));
  EXPECT_EQ(AvisoMarcas(estudio)->titulo, "AVISO");
}

}  // namespace
}  // namespace novex
