#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/FicheroSeguro.h"
#include "files/CarpetaTemporal.h"
#include "model/TablaEnvolvente.h"
#include "reference/CatalogoComposiciones.h"
#include "reference/CatalogoMateriales.h"
#include "reference/CatalogoVidrios.h"
#include "reference/Cerramiento.h"
#include "reference/FusionCatalogos.h"

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

constexpr const char* kMateriales =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<MaterialesNovex version=\"7\"><verticales><cte>"
    "<grupo name=\"Aislantes\">"
    "<m especificacion=\"Corcho\" espesor=\"0.020\" k=\"0.040\" den=\"120\" cp=\"1560\" "
    "rvapor=\"5\" rterm=\"0.500\" ini=\"CO\" cte=\"cte\" nota=\"x\"/>"
    "<m especificacion=\"Corcho\" espesor=\"0.050\" k=\"0.040\" rterm=\"1.250\" cte=\"cte\"/>"
    "<m especificacion=\"Lana\" espesor=\"0,040\" k=\"0.031\" rterm=\"1.290\"/></grupo>"
    "<grupo name=\"Cámara de aire sin ventilar\"><m especificacion=\"Cámara de aire sin "
    "ventilar\" espesor=\"0.010\" k=\"0.067\" rterm=\"0.150\"/></grupo>"
    "<grupo name=\"Fábricas de bloque de hormigón aligerado\"><m especificacion=\"BH\" "
    "espesor=\"0.2\" k=\"0.4\" rterm=\"0.5\"/></grupo>"
    "</cte><nocte><grupo name=\"Sin inercia\"/><grupo name=\"Con inercia\"/></nocte></verticales>"
    "<propio de=\"otro\"/></MaterialesNovex>";

constexpr const char* kComposiciones =
    "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<ComposicionesNovex><Muros_exterior-interior>"
    "<grupo name=\"Una hoja\"><Composicion name=\"Muro\" periodo=\"1960-1979\">"
    "<Capa grupo_name=\"Aislantes\" especificacion=\"Corcho\" espesor=\"0.040\" k=\"0.040\" "
    "den=\"120.00\" cp=\"1560.00\" rvapor=\"5.00\" rterm=\"1.000\" ini=\"CO\" cte=\"cte\"/>"
    "<Capa grupo_name=\"Yesos\" especificacion=\"Yeso\" espesor=\"0.020\" k=\"0.400\" "
    "rterm=\"0.050\" cte=\"nocte\"/></Composicion></grupo>"
    "<grupo name=\"Doble hoja\"/></Muros_exterior-interior></ComposicionesNovex>";

constexpr RamaMateriales kVerticalCte{true, kListaCte};

class Catalogos : public testing::Test {
 protected:
  Catalogos() {
    EscribirFichero(materiales_, kMateriales);
    EscribirFichero(composiciones_, kComposiciones);
  }
  // Los nombres y espesores de un grupo, como quedan en el fichero.
  std::string Fichero(std::string_view grupo, RamaMateriales rama = kVerticalCte) const {
    const CatalogoMateriales leido(materiales_);
    std::string texto;
    for (const MaterialCatalogo& m : leido.Materiales(rama, grupo))
      texto += m.capa.especificacion + " " + Fijo(m.capa.espesor, 3) + ";";
    return texto;
  }
  pruebas::CarpetaTemporal carpeta_;
  std::filesystem::path materiales_ = carpeta_ / "Materiales.xml";
  std::filesystem::path composiciones_ = carpeta_ / "Composiciones.xml";
  RegistroMensajes mensajes_;
};

TEST_F(Catalogos, UnNuevoEspesorEntraPorOrden) {
  CatalogoMateriales catalogo(materiales_);
  const MaterialCatalogo corcho = catalogo.Materiales(kVerticalCte, "Aislantes")[1];
  for (const char* espesor : {"0,03", "0.1", "0.01"})
    ASSERT_TRUE(catalogo.NuevoEspesor(corcho, espesor, mensajes_)) << espesor;
  EXPECT_EQ(Fichero("Aislantes"),
            "Corcho 0.010;Corcho 0.020;Corcho 0.030;Corcho 0.050;Corcho 0.100;Lana 0.040;");
  const auto nuevo = catalogo.Materiales(kVerticalCte, "Aislantes")[2].capa;
  EXPECT_EQ(nuevo.rterm, 0.75F);
  EXPECT_EQ(nuevo.k, 0.04F);
  // El mismo espesor otra vez es el que ya está.
  const auto repetido = catalogo.NuevoEspesor(corcho, "0.03", mensajes_);
  ASSERT_TRUE(repetido);
  EXPECT_EQ(repetido->indice, 2U);
  EXPECT_EQ(catalogo.Materiales(kVerticalCte, "Aislantes").size(), 6U);
  const auto camara = catalogo.NuevoEspesor(
      catalogo.Materiales(kVerticalCte, "Cámara de aire sin ventilar")[0], "0.02", mensajes_);
  ASSERT_TRUE(camara);
  EXPECT_EQ(camara->capa.rterm, 0.17F);
  EXPECT_EQ(camara->capa.k, 0.118F);
  EXPECT_TRUE(mensajes_.recibidos.empty());
  // Se mueve cambiando con su vecino, y en los extremos nada.
  const auto lana = catalogo.Materiales(kVerticalCte, "Aislantes")[5];
  EXPECT_FALSE(catalogo.Mover(lana, Sentido::Abajo, mensajes_));
  EXPECT_TRUE(catalogo.Mover(lana, Sentido::Arriba, mensajes_));
  EXPECT_EQ(Fichero("Aislantes").substr(52), "Lana 0.040;Corcho 0.100;");
  // Los bloques oficiales no admiten otro espesor, y nada se pierde de lo que no se conoce.
  EXPECT_FALSE(catalogo.NuevoEspesor(
      catalogo.Materiales(kVerticalCte, "Fábricas de bloque de hormigón aligerado")[0], "0.3",
      mensajes_));
  const std::string texto = LeerFichero(materiales_);
  for (const char* resto : {"version=\"7\"", "<propio de=\"otro\"/>", "nota=\"x\""})
    EXPECT_NE(texto.find(resto), std::string::npos) << resto;
}

TEST_F(Catalogos, LosMaterialesDelUsuario) {
  CatalogoMateriales catalogo(materiales_);
  const RamaMateriales nocte{true, kListaNoCte};
  const auto panel = catalogo.NuevoMaterial(
      nocte, "Sin inercia", {" Panel ", "0.05", "1,25", "", "", "", "7", "PA"}, mensajes_);
  ASSERT_TRUE(panel);
  EXPECT_EQ(panel->capa,
            (Capa{"Panel", 0.05F, 0.04F, 0, 0, 7, 1.25F, "PA", "nocte", "Sin inercia"}));
  const auto muro = catalogo.NuevoMaterial(
      nocte, "Con inercia", {"Tapial", "0.5", "", "1.1", "1885", "1000", "15", ""}, mensajes_);
  ASSERT_TRUE(muro);
  EXPECT_EQ(muro->capa.rterm, 0.455F);  // 0.5/1.1
  EXPECT_TRUE(mensajes_.recibidos.empty());
  // Lo que no vale: sin nombre, grupo que no está y "Todos".
  EXPECT_FALSE(
      catalogo.NuevoMaterial(nocte, "Con inercia", MaterialNuevo{.nombre = "  "}, mensajes_));
  EXPECT_FALSE(catalogo.NuevoMaterial(nocte, "No está", MaterialNuevo{.nombre = "X"}, mensajes_));
  EXPECT_FALSE(
      catalogo.NuevoMaterial(nocte, kTodosLosGrupos, MaterialNuevo{.nombre = "X"}, mensajes_));
  EXPECT_EQ(mensajes_.recibidos.size(), 3U);
  EXPECT_EQ(Fichero(kTodosLosGrupos, nocte), "Panel 0.050;Tapial 0.500;");
  EXPECT_EQ(catalogo.Buscar("TÁPIAL").size(), 1U);
  EXPECT_TRUE(catalogo.Borrar(*panel, mensajes_));
  EXPECT_EQ(Fichero(kTodosLosGrupos, nocte), "Tapial 0.500;");
  EXPECT_EQ(CatalogoMateriales::EspesorAdmitido("1 pie LM métrico o catalán 40 mm < G < 50 mm"),
            "Espesor entre 0,24 y 0,28 m)");
}

// Contesta a todo lo mismo.
struct Contesta : RegistroMensajes {
  explicit Contesta(bool si) : respuesta(si) {}
  bool Preguntar(const std::string& titulo, const std::string& texto) override {
    Avisar(titulo, texto);
    return respuesta;
  }
  bool respuesta;
};

TEST_F(Catalogos, UnFicheroCambiadoPorOtroNoSeEscribeSinPreguntar) {
  CatalogoMateriales catalogo(materiales_);
  const auto lana = catalogo.Materiales(kVerticalCte, "Aislantes")[2];
  CatalogoMateriales otro(materiales_);
  ASSERT_TRUE(otro.NuevoEspesor(lana, "0.09", mensajes_));
  Contesta no(false);
  EXPECT_FALSE(catalogo.Borrar(lana, no));
  EXPECT_EQ(no.recibidos.size(), 1U);
  EXPECT_EQ(Fichero("Aislantes"), "Corcho 0.020;Corcho 0.050;Lana 0.040;Lana 0.090;");
  EXPECT_EQ(catalogo.Materiales(kVerticalCte, "Aislantes").size(), 3U);
  Contesta si(true);
  EXPECT_TRUE(catalogo.Borrar(lana, si));
  EXPECT_EQ(Fichero("Aislantes"), "Corcho 0.020;Corcho 0.050;");
  EXPECT_TRUE(catalogo.Mover(catalogo.Materiales(kVerticalCte, "Aislantes")[1], Sentido::Arriba,
                             mensajes_));
  EXPECT_EQ(si.recibidos.size() + mensajes_.recibidos.size(), 1U);
}

TEST_F(Catalogos, ElegirPasaPorElAlmacenYAlmacenarDevuelveLoMismo) {
  CatalogoComposiciones catalogo(composiciones_);
  using F = FamiliaCerramiento;
  const ComposicionCatalogo muro = *catalogo.PorNombre(F::MurosExterior, "Muro");
  Edificio edificio;
  ElegirComposicion(edificio, ranura::MuroExt2, muro.nombre, muro.capas);
  ElegirComposicion(edificio, ranura::SueloTerr1, "Suelo", muro.capas);
  EXPECT_EQ(edificio.NumeroMateriales(), 2U);
  EXPECT_EQ(edificio.GetMaterial(0).usos, 2);
  EXPECT_EQ(edificio.GetMaterial(0).Aplicacion, "M");
  EXPECT_EQ(edificio.GetMaterial(0).Pertenece_a_base_de_datos_CTE, "SI");
  // 1/(1/7.69 + 1.05 + 1/25) y 1/(1/9999 + 1.05 + 1/5.88)
  EXPECT_NEAR(edificio.GetComposicion(ranura::MuroExt2).U, 0.8196, 1e-4);
  EXPECT_NEAR(edificio.GetComposicion(ranura::SueloTerr1).U, 0.8196, 1e-4);
  ElegirComposicion(edificio, ranura::SueloTerr1, "Otro", std::span(muro.capas).first(1));
  EXPECT_EQ(edificio.GetMaterial(1).usos, 1);

  EXPECT_FALSE(catalogo.Almacenar(edificio, ranura::MuroExt2, kTodosLosGrupos, mensajes_));
  EXPECT_FALSE(catalogo.Almacenar(edificio, ranura::MuroExt1, "Una hoja", mensajes_));
  ASSERT_EQ(mensajes_.recibidos.size(), 2U);
  EXPECT_EQ(mensajes_.recibidos[0].texto,
            "Se debe especificar/elegir un determinado subtipo. En el se almacenará");
  EXPECT_TRUE(catalogo.Almacenar(edificio, ranura::MuroExt2, "Una hoja", mensajes_));
  const auto guardadas =
      CatalogoComposiciones(composiciones_).Composiciones(F::MurosExterior, "Una hoja");
  ASSERT_EQ(guardadas.size(), 2U);
  EXPECT_EQ(guardadas[1].nombre, "Muro (2)");
  EXPECT_EQ(guardadas[1].capas, muro.capas);
}

TEST_F(Catalogos, CrearYEliminarComposiciones) {
  CatalogoComposiciones catalogo(composiciones_);
  using F = FamiliaCerramiento;
  ComposicionCatalogo copia = CopiaParaEditar(*catalogo.PorNombre(F::MurosExterior, "Muro"));
  EXPECT_EQ(copia.nombre, "Muro(D)");
  EXPECT_FALSE(catalogo.Crear(F::MurosExterior, kTodosLosGrupos, "N", copia.capas, mensajes_));
  EXPECT_FALSE(catalogo.Crear(F::MurosExterior, "Doble hoja", "N", {}, mensajes_));
  EXPECT_FALSE(catalogo.Crear(F::MurosExterior, "Doble hoja", " ", copia.capas, mensajes_));
  EXPECT_EQ(mensajes_.recibidos.size(), 3U);
  EXPECT_TRUE(catalogo.Crear(F::MurosExterior, "Doble hoja", copia.nombre, copia.capas, mensajes_));
  const auto creada = catalogo.PorNombre(F::MurosExterior, "Muro(D)");
  ASSERT_TRUE(creada);
  EXPECT_FALSE(catalogo.Eliminar(*creada, mensajes_));  // es la única de su subtipo
  EXPECT_TRUE(catalogo.Crear(F::MurosExterior, "Doble hoja", "Otra", copia.capas, mensajes_));
  EXPECT_TRUE(catalogo.Eliminar(*creada, mensajes_));
  EXPECT_FALSE(CatalogoComposiciones(composiciones_).PorNombre(F::MurosExterior, "Muro(D)"));
}

std::string Catalogo(const std::string& materiales) {
  return "<MaterialesNovex><verticales><cte><grupo name=\"G\">" + materiales +
         "</grupo></cte></verticales></MaterialesNovex>";
}
std::string Uno(const char* nombre, const char* k, const char* espesor = "0.1") {
  return std::string("<m especificacion=\"") + nombre + "\" espesor=\"" + espesor + "\" k=\"" + k +
         "\"/>";
}

// Cada letra es una suerte: a igual, b corregida, c cambiada por el usuario, d borrada por él,
// e suya, f retirada de la versión nueva, g nueva.
TEST(FusionCatalogos, LaVersionNuevaNoPisaLoDelUsuario) {
  const pruebas::CarpetaTemporal carpeta;
  const auto version = carpeta / "version";
  const auto datos = carpeta / "datos";
  std::filesystem::create_directories(version);
  std::filesystem::create_directories(datos);
  EscribirFichero(version / "Composiciones.xml", "<ComposicionesNovex/>");
  const auto publicar = [&](const std::string& materiales) {
    EscribirFichero(version / "Materiales.xml", Catalogo(materiales));
    return ActualizarCatalogos(version, datos).front();
  };
  const CuentaFusion primera =
      publicar(Uno("a", "1") + Uno("b", "1") + Uno("c", "1") + Uno("d", "1") + Uno("f", "1"));
  EXPECT_EQ(primera.nuevas, 5);
  EscribirFichero(datos / "Materiales.xml",
                  Catalogo(Uno("a", "1") + Uno("b", "1") + Uno("c", "7") + Uno("e", "9") +
                           Uno("f", "1") + Uno("a", "1", "0.2")));
  const CuentaFusion segunda =
      publicar(Uno("a", "1") + Uno("b", "2") + Uno("g", "3") + Uno("c", "2") + Uno("d", "2"));
  EXPECT_EQ(segunda.nuevas, 1);
  EXPECT_EQ(segunda.corregidas, 1);
  EXPECT_EQ(segunda.retiradas, 1);
  EXPECT_EQ(segunda.conservadas, 2);
  std::string queda;
  for (const auto& m : CatalogoMateriales(datos / "Materiales.xml").Materiales({}, "G"))
    queda += m.capa.especificacion + Fijo(m.capa.k, 0) + " ";
  EXPECT_EQ(queda, "a1 b2 g3 c7 e9 a1 ");
  // Publicarla otra vez no cambia nada.
  const std::string antes = LeerFichero(datos / "Materiales.xml");
  publicar(Uno("a", "1") + Uno("b", "2") + Uno("g", "3") + Uno("c", "2") + Uno("d", "2"));
  EXPECT_EQ(LeerFichero(datos / "Materiales.xml"), antes);
}

CatalogoVidrios Instalado() {
  return LeerCatalogoVidrios(XMLNode::loadFile(
      std::filesystem::path(NOVEX_RAIZ_DATOS) / "database" / "VidriosMarcos.xml", "VidriosMarcos"));
}

// Todo tipo de las listas tiene de dónde elegir, y lo elegido es posible.
TEST(CatalogoVidrios, ElInstaladoTieneTodosLosTipos) {
  const CatalogoVidrios catalogo = Instalado();
  for (const auto& tipo : catalogo.vidrios) {
    ASSERT_FALSE(tipo.empty());
    for (const VidrioCatalogo& v : tipo) {
      SCOPED_TRACE(v.nombre);
      EXPECT_FALSE(v.nombre.empty());
      EXPECT_GT(v.U, 0.3F);
      EXPECT_GE(v.UH, v.U);  // el calor sube mejor por una cámara horizontal
      EXPECT_GT(v.g, 0.0F);
      EXPECT_LE(v.g, 0.9F);
    }
  }
  for (const auto& tipo : catalogo.marcos) {
    ASSERT_FALSE(tipo.empty());
    for (const MarcoCatalogo& m : tipo) EXPECT_GE(m.UH, m.U) << m.nombre;
  }
  ASSERT_EQ(catalogo.permeabilidades.size(), 5U);
  for (std::size_t i = 1; i < catalogo.permeabilidades.size(); ++i)
    EXPECT_LT(catalogo.permeabilidades[i].C100, catalogo.permeabilidades[i - 1].C100);
}

TEST(CatalogoVidrios, BuscaPorTipoYPosicionYPorPermeabilidad) {
  const XMLNode raiz = XMLNode::parseString(
      "<VidriosMarcos><Vidrios indice=\"1\"><Vidrio name=\"4-6-4\" U=\"3.28\" UH=\"3.63\" "
      "g=\"0.76\"/></Vidrios><Vidrios indice=\"6\"><Vidrio name=\"x\" U=\"1\"/></Vidrios>"
      "<Vidrios><Vidrio name=\"y\"/></Vidrios>"
      "<Marcos indice=\"7\"><Marco name=\"a\" U=\"1.3\" UH=\"1.4\"/><Marco name=\"b\" U=\"2.4\" "
      "UH=\"2.6\"/></Marcos><Permeabilidades><Permeabilidad clase=\"2\" name=\"Clase 2\" "
      "C100=\"27\"/></Permeabilidades></VidriosMarcos>",
      "VidriosMarcos", "prueba");
  const CatalogoVidrios catalogo = LeerCatalogoVidrios(raiz);
  ASSERT_NE(catalogo.Vidrio(1, 0), nullptr);
  EXPECT_EQ(catalogo.Vidrio(1, 0)->nombre, "4-6-4");
  EXPECT_EQ(catalogo.Vidrio(1, 0)->UH, 3.63F);
  for (const auto& [tipo, posicion] : {std::pair{1, 1}, {1, -1}, {0, 0}, {-1, 0}, {6, 0}})
    EXPECT_EQ(catalogo.Vidrio(tipo, posicion), nullptr) << tipo << posicion;
  ASSERT_NE(catalogo.Marco(7, 1), nullptr);
  EXPECT_EQ(catalogo.Marco(7, 1)->U, 2.4F);
  EXPECT_EQ(catalogo.ClaseDe(27)->clase, 2);
  EXPECT_FALSE(catalogo.ClaseDe(26.9F).has_value());
  EXPECT_TRUE(LeerCatalogoVidrios(XMLNode{}).permeabilidades.empty());
}

}  // namespace
}  // namespace novex
