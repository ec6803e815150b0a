#include "shell/EstudioEnCurso.h"

#include <gtest/gtest.h>

#include "shell/SesionProyecto.h"

namespace novex {
namespace {

using std::chrono::milliseconds;

class EnCurso : public testing::Test {
 protected:
  void Abrir(const char* ejemplo) {
    sesion.Abrir(std::filesystem::path(NOVEX_RAIZ_DATOS) / "proyectos" / ejemplo);
  }
  void Medir(std::vector<int> codigos) {
    estudio.Empezar(sesion.Gestor(), std::move(codigos));
    while (estudio.Avanzar(milliseconds(5))) continue;
  }

  RegistroMensajes mensajes;
  FicherosPrograma ficheros{EspacioTrabajo{NOVEX_PROGRAMA_PRUEBAS}};
  SesionProyecto sesion{ficheros, mensajes};
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  EstudioEnCurso estudio{ficheros};
};

TEST_F(EnCurso, DaLoMismoQueElEstudioYNoTocaElProyecto) {
  const std::vector<int> codigos = {3, 26, 43, 57, 97};
  for (const char* ejemplo : {"vivienda_unifamiliar_D3.xml", "oficina_VRV_B4.xml"}) {
    SCOPED_TRACE(ejemplo);
    Abrir(ejemplo);
    Medir(codigos);  // sin la referencia del terciario calculada
    ASSERT_EQ(estudio.EnQue(), EstudioEnCurso::Estado::Hecho) << estudio.Fallo();
    EXPECT_EQ(sesion.Caso().GetCalculo(), nullptr);
    EXPECT_FALSE(sesion.Gestor().Existe(caso::kReferencia));
    const auto entero =
        EstudioMejoras::Preparar(sesion.GestorParaCalcular(), caso::kViejo, entorno);
    ASSERT_TRUE(entero);
    const MejorasMedidas* medido = estudio.Medido("Viejo", entero->Base());
    ASSERT_NE(medido, nullptr);
    EXPECT_EQ(medido->medidas, entero->Medir(codigos, 2));
    Medir(codigos);  // con ella
    EXPECT_NE(estudio.Medido("Viejo", entero->Base()), nullptr);
  }
}

TEST_F(EnCurso, ParadoQuedaLoDeAntesYSeAnadeALoMedidoEnLaMismaBase) {
  Abrir("vivienda_unifamiliar_D3.xml");
  const auto codigos = [&](const ResultadoMedida& base) {
    std::vector<int> lista;
    if (const auto* medido = estudio.Medido("Viejo", base))
      for (const auto& m : medido->medidas) lista.push_back(m.codigo);
    return lista;
  };
  const auto base =
      EstudioMejoras::Preparar(sesion.GestorParaCalcular(), caso::kViejo, entorno)->Base();
  estudio.Empezar(sesion.Gestor(), {9, 3});
  EXPECT_TRUE(estudio.Quedan().empty());
  while (estudio.Hechos() < 2) ASSERT_TRUE(estudio.Avanzar(milliseconds(0)));
  EXPECT_TRUE(estudio.Quedan().starts_with("Quedan: 0 min "));
  estudio.Parar();
  EXPECT_EQ(estudio.EnQue(), EstudioEnCurso::Estado::Parado);
  EXPECT_EQ(codigos(base), std::vector<int>());
  Medir({9, 3});
  Medir({5});
  EXPECT_EQ(codigos(base), (std::vector<int>{3, 5, 9}));
  Medir({});  // solo la base
  EXPECT_EQ(codigos(base), (std::vector<int>{3, 5, 9}));
  // Cambiado el caso, lo medido no es suyo; medido otra vez, lo de antes se olvida.
  sesion.Editar("área", [](Edificio& e) { e.GetRecinto(0).Suelo_habitable_m2 += 5; });
  const auto otra =
      EstudioMejoras::Preparar(sesion.GestorParaCalcular(), caso::kViejo, entorno)->Base();
  EXPECT_EQ(codigos(otra), std::vector<int>());
  Medir({12});
  EXPECT_EQ(codigos(otra), std::vector<int>{12});
  EXPECT_EQ(codigos(base), std::vector<int>());
  // Lo que no se puede calcular se dice y no borra nada.
  sesion.Editar("zona", [](Edificio& e) {
    Localizacion l = e.GetLocalizacion();
    l.ZonaClimatica = "Z9";
    e.SetLocalizacion(l);
  });
  Medir({3});
  EXPECT_EQ(estudio.EnQue(), EstudioEnCurso::Estado::Fallido);
  EXPECT_FALSE(estudio.Fallo().empty());
  EXPECT_EQ(codigos(otra), std::vector<int>{12});
}

}  // namespace
}  // namespace novex
