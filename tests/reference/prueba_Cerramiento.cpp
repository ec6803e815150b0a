#include "reference/Cerramiento.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

#include "model/TablaEnvolvente.h"
#include "reference/CatalogoComposiciones.h"

namespace novex {
namespace {

Capa CapaDe(const char* nombre, float espesor, float k, const char* grupo = "Aislantes") {
  Capa c;
  c.especificacion = nombre;
  c.grupo = grupo;
  c.espesor = espesor;
  c.k = k;
  c.rterm = k > 0 ? espesor / k : 0;
  return c;
}

TEST(FamiliaCerramiento, CadaPosicionTieneLaSuya) {
  using Claves = std::vector<const char*>;
  const std::pair<const char*, Claves> casos[] = {
      {"Muros_exterior-interior", {"MuroExt1", "MuroExt9"}},
      {"Muros_interior-interior", {"MuroOtro1", "MuroOtro9"}},
      {"Muros_terreno-interior", {"MuroTerr2"}},
      {"Forjados_exterior-interior", {"TechoExt3", "TechoTerr1", "TechoVent2", "TechoVent4"}},
      {"Forjados_interior-interior",
       {"TechoVent1", "TechoVent3", "SueloOtro3", "SueloVent1", "SueloInt4"}},
      {"Forjados_interior-exterior", {"SueloExt2"}},
      {"Forjados_interior-terreno", {"SueloTerr3"}}};
  for (const auto& [familia, claves] : casos)
    for (const char* clave : claves)
      EXPECT_EQ(NombreFamilia(FamiliaDeRanura(*TablaEnvolvente::Indice(clave))), familia) << clave;
  for (std::size_t i = 0; i < kRanuras; ++i) EXPECT_NO_THROW(FamiliaDeRanura(i));
  EXPECT_THROW(FamiliaDeRanura(kRanuras), std::out_of_range);
  EXPECT_EQ(TextoPelicula(PeliculasDe(FamiliaCerramiento::MurosTerreno).he), "Terreno");
  EXPECT_EQ(TextoPelicula(PeliculasDe(FamiliaCerramiento::ForjadosInteriorExterior).he), "5.88");
  EXPECT_EQ(AplicacionDe(FamiliaCerramiento::MurosTerreno), "M");
  EXPECT_EQ(AplicacionDe(FamiliaCerramiento::ForjadosInteriorTerreno), "F");
}

// De arriba abajo, el interior queda sobre un suelo y bajo un techo aunque sean de una familia.
TEST(FamiliaCerramiento, CadaPosicionTieneSusCaras) {
  using namespace ranura;
  EXPECT_EQ(CarasDeRanura(MuroExt1), (Caras{"Exterior", "Interior"}));
  EXPECT_EQ(CarasDeRanura(MuroTerr2), (Caras{"Terreno", "Interior"}));
  EXPECT_EQ(CarasDeRanura(TechoTerr1), (Caras{"Terreno", "Interior"}));
  EXPECT_EQ(CarasDeRanura(TechoVent2), (Caras{"Exterior", "Interior"}));
  for (const std::size_t techo : {TechoVent1, TechoOtro2, TechoInt3})
    EXPECT_EQ(CarasDeRanura(techo), (Caras{"Otro espacio", "Interior"}));
  for (const std::size_t suelo : {SueloVent1, SueloOtro3, SueloInt4})
    EXPECT_EQ(CarasDeRanura(suelo), (Caras{"Interior", "Otro espacio"}));
  EXPECT_EQ(CarasDeRanura(SueloExt1), (Caras{"Interior", "Exterior"}));
  EXPECT_EQ(CarasDeRanura(SueloTerr3), (Caras{"Interior", "Terreno"}));
}

// U de soluciones del catálogo, como las da la hoja de hechos de la que salen sus capas.
TEST(Cerramiento, LaUDeLasComposicionesEsLaDeSuHoja) {
  using F = FamiliaCerramiento;
  const CatalogoComposiciones catalogo(NOVEX_RAIZ_DATOS "/database/Composiciones.xml");
  const std::array<std::tuple<F, const char*, float>, 10> casos = {
      {{F::MurosExterior, "Mampostería de granito 60 cm enlucida", 2.079F},
       {F::MurosExterior, "Medio pie LP visto, cámara 5 cm y LH sencillo", 1.571F},
       {F::MurosExterior, "Medio pie LP visto, MW 4 cm, cámara y LH sencillo", 0.608F},
       {F::MurosExterior, "SATE EPS 10 cm sobre doble hoja con cámara", 0.258F},
       {F::MurosInterior, "Un pie LM enlucido a dos caras", 1.843F},
       {F::MurosTerreno, "Mampostería de caliza 60 cm", 1.801F},
       {F::ForjadosExteriorInterior, "Plana transitable con EPS 3, forjado cerámico 25", 0.716F},
       {F::ForjadosInteriorInterior, "Forjado cerámico 20 con terrazo", 1.914F},
       {F::ForjadosInteriorExterior, "Forjado de hormigón 30 con XPS 6 bajo solado", 0.447F},
       {F::ForjadosInteriorTerreno, "Solera de hormigón 15 con gres", 2.680F}}};
  for (const auto& [familia, nombre, u] : casos) {
    const auto composicion = catalogo.PorNombre(familia, nombre);
    ASSERT_TRUE(composicion) << nombre;
    EXPECT_NEAR(composicion->U(), u, 0.003) << nombre;
  }
  EXPECT_EQ(UCerramiento({}, Peliculas{0, 0}), 0.0F);
}

TEST(Cerramiento, LasCamarasVanPorSuTabla) {
  using C = CamaraAire;
  for (const auto& [camara, vertical, espesor, r] : {std::tuple{C::SinVentilar, true, 0.01F, 0.15F},
                                                     {C::SinVentilar, true, 0.011F, 0.17F},
                                                     {C::SinVentilar, true, 0.02F, 0.17F},
                                                     {C::SinVentilar, true, 0.021F, 0.18F},
                                                     {C::SinVentilar, false, 0.02F, 0.16F},
                                                     {C::SinVentilar, false, 0.3F, 0.16F},
                                                     {C::LigeramenteVentilada, true, 0.02F, 0.085F},
                                                     {C::LigeramenteVentilada, true, 0.05F, 0.09F},
                                                     {C::LigeramenteVentilada, false, 0.05F, 0.08F},
                                                     {C::MuyVentilada, true, 0.005F, 0.05F},
                                                     {C::MuyVentilada, false, 0.5F, 0.05F}})
    EXPECT_EQ(ResistenciaCamara(camara, vertical, espesor), r) << espesor;

  const Capa camara = CapaDe("Cámara de aire sin ventilar", 0.01F, 0.067F, "Otro");
  const Capa gruesa = ConEspesor(camara, 0.05F, true);
  EXPECT_EQ(gruesa.rterm, 0.18F);
  EXPECT_EQ(gruesa.k, 0.278F);  // 0.05/0.18 = 0.2778
  const Capa corcho = ConEspesor(CapaDe("Corcho", 0.02F, 0.04F), 0.06F, true);
  EXPECT_FLOAT_EQ(corcho.rterm, 1.5F);
  EXPECT_EQ(ConEspesor(CapaDe("Sin k", 0.02F, 0), 0.06F, true).rterm, 0.0F);
}

TEST(Cerramiento, ElResumenSumaYMuestraLoQueToca) {
  std::vector<Capa> capas = {CapaDe("Ladrillo", 0.115F, 0.5F),
                             CapaDe("Cámara de aire sin ventilar", 0.05F, 0.278F),
                             CapaDe("Panel", 0.04F, 0.04F, "Sin inercia")};
  capas[0].den = 1000;
  capas[0].rvapor = 10;
  capas[2].rvapor = 100;
  const ResumenCerramiento r = ResumirCerramiento(capas);
  EXPECT_EQ(r.textoEspesor, "0.205");
  EXPECT_EQ(r.textoPeso, "115");
  EXPECT_EQ(r.textoVapor, Fijo(1.15 + 4.0, 1));  // 5.15, el float cae por debajo o por encima
  std::string fila;
  for (const std::size_t i : {0U, 2U, 4U}) fila += r.capas.filas[0][i].texto + "|";
  EXPECT_EQ(fila, "Ladrillo (0.115 m)|0.500|1.15|");
  EXPECT_EQ(r.capas.filas[1][2].texto + r.capas.filas[2][2].texto, "");
  capas[0].espesor = 1;
  capas[0].rvapor = 99999.99F;
  EXPECT_EQ(ResumirCerramiento(std::span(capas).first(1)).textoVapor, "100000.0");
  capas[0].rvapor = 100000.5F;
  EXPECT_EQ(ResumirCerramiento(std::span(capas).first(1)).textoVapor, " > 99999.99");
}

TEST(Cerramiento, ElEspesorSeEditaSalvoDondeLaResistenciaEsDeTabla) {
  RegistroMensajes mensajes;
  Capa corcho = CapaDe("Corcho", 0.02F, 0.04F);
  EXPECT_TRUE(EditarEspesor(corcho, "0,08", true, mensajes));
  EXPECT_FLOAT_EQ(corcho.rterm, 2.0F);
  EXPECT_TRUE(EditarEspesor(corcho, "1.5", true, mensajes));  // pasa de 1 m: 0.1
  EXPECT_FLOAT_EQ(corcho.espesor, 0.1F);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].titulo, "Se espera un menor o igual al máximo");
  Capa ventilada = CapaDe("Cámara de aire muy ventilada", 0.02F, 0.4F);
  EXPECT_TRUE(EditarEspesor(ventilada, "0.06", true, mensajes));
  EXPECT_EQ(ventilada.rterm, 0.05F);
  for (const char* nombre : {"Cámara de aire sin ventilar", "Cámara de aire ligeramente ventilada",
                             "Fábricas de bloque de hormigón aligerado"}) {
    Capa fija = CapaDe(nombre, 0.02F, 0.4F);
    EXPECT_FALSE(EditarEspesor(fija, "0.06", true, mensajes)) << nombre;
    EXPECT_EQ(fija.espesor, 0.02F);
  }
}

TEST(Cerramiento, LasTresComprobacionesVanEnSuOrden) {
  const Capa muro = CapaDe("Ladrillo", 0.1F, 0.5F);
  const Capa aire = CapaDe("Cámara de aire muy ventilada", 0.1F, 2);
  const auto textos = [](std::vector<Capa> capas) {
    RegistroMensajes mensajes;
    const bool vale = ComprobarCerramiento(capas, mensajes);
    EXPECT_EQ(vale, mensajes.recibidos.empty());
    std::string todo;
    for (const Mensaje& m : mensajes.recibidos) {
      EXPECT_EQ(m.titulo, "Atención");
      todo += m.texto + "|";
    }
    return todo;
  };
  EXPECT_EQ(textos({}), "El cerramiento debe contener almenos una capa|");
  EXPECT_EQ(textos({muro, aire, muro}), "");
  EXPECT_EQ(textos({aire}),
            "El cerramiento no puede empezar por una cpaa de aire|"
            "El cerramiento no puede terminar con una capa de aire|");
  EXPECT_EQ(textos({muro, aire}), "El cerramiento no puede terminar con una capa de aire|");
}

}  // namespace
}  // namespace novex
