#include "outputs/documentos/FilasEnvolvente.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "outputs/CasoPrueba.h"

namespace novex {
namespace {

using testing::_;
using testing::ElementsAre;
using testing::FieldsAre;

constexpr std::size_t kMuro = ranura::MuroExt2;

// Ladrillo o aislante con todos sus datos.
material Capa(const char* nombre, float espesor, float conductividad) {
  material m = pruebas::Capa(nombre, espesor, conductividad, espesor / conductividad);
  m.Densidad = 1000;
  m.CalorEspecifico = 840;
  m.Resisvidad_relativa_vapor = 10;
  return m;
}

class FilasEnvolvente : public testing::Test {
 protected:
  NOVEX_TO_MODELOCERTIFICADO modelo;
  pruebas::CasoDePrueba caso;
};

TEST_F(FilasEnvolvente, UnCerramientoPorOrientacionYUnaComposicion) {
  Edificio& e = *caso.edificio;
  Recinto& r = e.GetRecinto(0);
  r = {};
  r.Muro_ext_m2[1][oeste] = 12.34F;
  r.Muro_ext_m2[1][sur_este] = 5;
  r.Cubierta_incl_m2[0][norte] = 40;
  r.Suelo_vacio_sanitario_m2[1] = 60;
  e.AnadirMaterial(Capa("Ladrillo <1/2 pie>", 0.115F, 0.85F), kMuro);
  e.AnadirMaterial(Capa("Aislante", 0.08F, 0.034F), kMuro);
  e.GetComposicion(kMuro).nombre = "Muro _NIF_";
  e.GetComposicion(ranura::TechoInc1).U = 0.4F;
  e.GetComposicion(ranura::SueloOtro3).nombre = "Doble hoja";
  caso.Resultados().Uefectiva[kMuro] = 0.349F;
  FilasCerramientos(caso.Mostrar(), modelo);

  constexpr const char* kCapas = "En función de su composición";
  constexpr const char* kNombre = "Muro &#95;NIF&#95;";
  EXPECT_THAT(
      modelo.cerramientos,
      ElementsAre(
          FieldsAre("Cubierta Incl. Exterior 30ºN", _, _, "Definido por el usuario", "", _),
          FieldsAre("Muro Exterior O", "12.3", "0.3", kCapas, kNombre, _),
          FieldsAre("Muro Exterior SE", "5.0", "0.3", kCapas, kNombre, _),
          FieldsAre("Suelo a vacio sanitario", "60.0", _, "Defecto existentes. Doble hoja", _, _)));

  ASSERT_EQ(modelo.composiciones.size(), 2U);  // la de la cubierta no tiene nombre ni capas
  ASSERT_EQ(modelo.composiciones[0].capas.size(), 2U);
  EXPECT_THAT(modelo.composiciones[0].capas[0],
              FieldsAre("Ladrillo &lt;1/2 pie&gt;", _, _, "0.84" /* kJ/kgK */, _, _, "0.12"));
  EXPECT_TRUE(modelo.composiciones[1].capas.empty());
}

TEST_F(FilasEnvolvente, DosComposicionesConElMismoNombreNoSonLaMisma) {
  Edificio& e = *caso.edificio;
  Recinto& r = e.GetRecinto(0);
  r = {};
  for (std::size_t i = 0; i < 3; ++i) {
    const std::size_t muro = ranura::MuroExt1 + i;
    r.Muro_ext_m2[i][norte] = 10;
    e.AnadirMaterial(Capa("Ladrillo", i == 1 ? 0.24F : 0.12F, 0.85F), muro);
    e.GetComposicion(muro).nombre = "Fachada";
  }
  FilasCerramientos(caso.Mostrar(), modelo);
  EXPECT_EQ(modelo.cerramientos.size(), 3U);
  ASSERT_EQ(modelo.composiciones.size(), 2U);
  EXPECT_EQ(modelo.composiciones[0].capas.at(0).espesor, "0.12");
  EXPECT_EQ(modelo.composiciones[1].capas.at(0).espesor, "0.24");
}

TEST(ModoDefinicionCerramiento, SinNadaNoEstaDefinido) {
  composicion c;
  EXPECT_EQ(ModoDefinicion(c), "No definido");
  c.nombre = "Defecto existentes. Ventilada";
  EXPECT_EQ(ModoDefinicion(c), "Defecto existentes. Ventilada");
}

TEST_F(FilasEnvolvente, UnHuecoPorGrupoYOrientacion) {
  Edificio& e = *caso.edificio;
  Huecos& ventanas = e.GetHuecos(0);
  ventanas = {};
  ventanas.columnas[este].Anadir(3);
  ventanas.columnas[norte].Anadir(1);
  ventanas.Indice_tipo_cristal = 1;
  ventanas.FS_cristal_tanto_por_uno = 0.75F;
  Huecos lucernario;
  lucernario.Tipo_de_hueco = kLucernario;
  lucernario.columnas[sur].Anadir(1);
  lucernario.columnas[kColumnaHorizontal].Anadir(1);
  lucernario.Indice_tipo_cristal = 5;
  e.AnadirHuecos(lucernario);
  FilasHuecos(e, modelo);
  constexpr const char* kFuncion = "Función de su composición";
  constexpr const char* kUsuario = "Definido por usuario";
  EXPECT_THAT(modelo.huecos,
              ElementsAre(FieldsAre(_, "Ventanas", "Dobles", _, _, _, kFuncion, "N 2.00"),
                          FieldsAre(_, "Ventanas", "Dobles", _, _, _, kFuncion, "E 6.00"),
                          FieldsAre("Grupo 2", _, _, _, _, _, kUsuario, "30ºS 2.00"),
                          FieldsAre("Grupo 2", _, _, _, _, _, kUsuario, "Hz 2.00")));
}

TEST_F(FilasEnvolvente, LosOchoPuentesConSuValorYSuLongitud) {
  Construccion c;
  for (std::size_t i = 0; i < kPuentes; ++i) c.U_L_Puentes[i] = static_cast<float>(i) + 0.5F;
  c.Perimetro_forjados = 10;
  c.Perimetro_huecos = 20;
  c.Longitud_esquinas_sal_menos_ent = 30;
  c.Perimetro_suelo_ext = 35;
  c.Perimetro_cubiertas = 37;
  c.Perimetro_suelo_terreno = 39;
  c.Long_pilares = {1, 2, 3, 4, 5, 6};
  FilasPuentes(c, modelo);
  const auto fila = [](const char* clase, const char* psi, const char* longitud) {
    return FieldsAre("", clase, psi, longitud, "SDINT");
  };
  EXPECT_THAT(modelo.puentes,
              ElementsAre(fila("FRENTE&#95;FORJADO", "1.50", "10.00"),
                          fila("UNION&#95;CUBIERTA", "2.50", "37.00"),
                          fila("ESQUINA&#95;CONVEXA&#95;FORJADO", "3.50", "35.00"),
                          fila("ESQUINA&#95;CONCAVA&#95;CERRAMIENTO", "4.50", "30.00"),
                          fila("ESQUINA&#95;CONVEXA&#95;CERRAMIENTO", "4.50", "30.00"),
                          fila("PILAR", "5.50", "21.00"),
                          fila("UNION&#95;SOLERA&#95;PAREDEXT", "6.50", "39.00"),
                          fila("HUECO&#95;VENTANA", "0.50", "20.00")));
}

}  // namespace
}  // namespace novex
