#include "entry/ProyectoNuevo.h"

#include <gtest/gtest.h>

#include "entry/CambioUso.h"
#include "entry/EntradaPuentes.h"

namespace novex {
namespace {

class Proyecto : public testing::Test {
 protected:
  Proyecto() { EmpezarProyecto(gestor, perfiles, mensajes); }
  Edificio& E() { return gestor.Activo(); }
  void ConSistema() { E().AnadirSistema({}); }

  XMLNode perfiles =
      XMLNode::loadFile(NOVEX_RAIZ_DATOS "/database/PerfilesUso.xml", "PERFILES_USO");
  GestorEdifActivo gestor;
  RegistroMensajes mensajes;
};

TEST_F(Proyecto, EmpiezaConSusValoresYConservaElSitio) {
  const DatosGenerales& d = E().GetDatosGenerales();
  EXPECT_EQ(std::tuple(d.Tiposimulacion, d.Modo_trabajo, d.Reforma, d.Uso, d.AnoConstruccion,
                       d.NormativaInstalaciones, d.Tipo),
            std::tuple("CertificacionSolo", "Nuevo", "Reforma >25% envolvente + Clima + ACS",
                       "Otro", "POST-2018", "RITE_2021", "Residencial"));
  EXPECT_EQ(d.Incli_FV[2], 40);
  EXPECT_GT(d.perfiles.tabla[CEq][0][20], 0.0F);
  const Localizacion& sitio = E().GetLocalizacion();
  EXPECT_EQ(sitio.Provincia + sitio.Municipio + sitio.ZonaClimatica, "Valencia/ValènciaValenciaB3");
  EXPECT_EQ(sitio.asnm, 6);
  EXPECT_EQ(E().GetConstruccion().U_L_Puentes[puente_ventanas], 0.27F);  // tabla de la zona B3

  Localizacion otro = sitio;
  otro.ZonaClimatica = "E1";
  E().SetLocalizacion(otro);
  ConSistema();
  gestor.AnadirMejora();
  EmpezarProyecto(gestor, perfiles, mensajes);
  EXPECT_EQ(gestor.NumeroCasos(), 1U);
  EXPECT_EQ(E().NumeroSistemas(), 0U);
  EXPECT_EQ(E().GetLocalizacion().ZonaClimatica, "E1");
  EXPECT_EQ(E().GetConstruccion().U_L_Puentes[puente_ventanas], 0.29F);
  EXPECT_TRUE(mensajes.recibidos.empty());
}

TEST_F(Proyecto, CambiarDeGrupoDeUsoBorraLosSistemas) {
  EXPECT_FALSE(PerfilBorraSistemas(E(), 3));  // no hay ninguno
  ConSistema();
  EXPECT_FALSE(PerfilBorraSistemas(E(), 2));
  EXPECT_TRUE(PerfilBorraSistemas(E(), 3));
  EXPECT_TRUE(CambiarPerfilUso(E(), 1, perfiles, mensajes));
  EXPECT_EQ(E().NumeroSistemas(), 1U);
  // Un proyecto leído trae el uso de una vivienda, que en un terciario no se ofrece.
  DatosGenerales leido = E().GetDatosGenerales();
  leido.Uso = "ResidencialPrivado";
  E().SetDatosGenerales(leido);
  EXPECT_TRUE(CambiarPerfilUso(E(), 3, perfiles, mensajes));
  EXPECT_EQ(E().GetDatosGenerales().Uso, "Otro");
  EXPECT_EQ(E().NumeroSistemas(), 0U);
  EXPECT_EQ(E().GetDatosGenerales().Tipo, "8hB");
  EXPECT_EQ(E().GetDatosGenerales().ManejoVentanas2, "Cerradas");
  EXPECT_FALSE(CambiarPerfilUso(E(), 16, perfiles, mensajes));
  EXPECT_EQ(E().GetDatosGenerales().PerfilUso, 3);
}

TEST_F(Proyecto, ElObjetivoVaATodosLosCasos) {
  gestor.AnadirMejora();
  DatosGenerales d = E().GetDatosGenerales();
  d.perfiles.tabla[CEq][0][20] = 99;
  E().SetDatosGenerales(d);
  EXPECT_TRUE(CambiarObjetivo(gestor, "Certificacion", perfiles, mensajes));
  EXPECT_EQ(E().GetDatosGenerales().perfiles.tabla[CEq][0][20], 99);
  EXPECT_TRUE(CambiarObjetivo(gestor, "Simulacion", perfiles, mensajes));
  EXPECT_EQ(gestor.Caso("Viejo")->GetDatosGenerales().Tiposimulacion, "Simulacion");
  EXPECT_LT(E().GetDatosGenerales().perfiles.tabla[CEq][0][20], 99);
  EXPECT_FALSE(CambiarObjetivo(gestor, "Otro", perfiles, mensajes));
  EXPECT_TRUE(CambiarTipoCertificado(E(), "ObraReforma"));
  EXPECT_EQ(E().GetDatosGenerales().Modo_trabajo, "Existente");
  EXPECT_FALSE(CambiarTipoCertificado(E(), "Ruina"));
}

TEST_F(Proyecto, LaPaginaDePuentesPoneModoYValores) {
  PaginaPuentes p;
  p.origen = OrigenPuentes::Tipicos;
  p.forjados = 2;
  p.pilares = 3;
  p.ventanas = 0;
  AceptarPaginaPuentes(E(), p, mensajes);
  const auto c = [&]() -> const Construccion& { return E().GetConstruccion(); };
  // El aislamiento continuo fija pilares y ventanas: 1 y 1. Zona B3, letra B.
  EXPECT_EQ(c().Def_Puentes_termicos_pilares, 1);
  EXPECT_EQ(c().Def_Puentes_termicos_ventanas, 1);
  EXPECT_EQ(c().Existencia_pilares, 0);
  EXPECT_EQ(c().U_L_Puentes[puente_forjados], -0.04F);
  p.forjados = 0;
  AceptarPaginaPuentes(E(), p, mensajes);
  EXPECT_EQ(c().Existencia_pilares, 1);
  EXPECT_EQ(c().U_L_Puentes[puente_pilares], 0.0F);
  EXPECT_EQ(c().fi_Puentes[puente_pilares], 100.0F);
  p = PaginaDePuentes(c());
  EXPECT_EQ(p.origen, OrigenPuentes::Tipicos);
  EXPECT_EQ(p.pilares, 3);
  p.origen = OrigenPuentes::Especiales;
  p.existenciaPilares = 0;
  p.valores[puente_forjados] = {"0,5", "0.8"};
  p.valores[puente_cubiertas] = {"3", "0.7"};  // más de 2 W/mK: 0.3
  AceptarPaginaPuentes(E(), p, mensajes);
  EXPECT_EQ(c().Def_Puentes_termicos, 4);
  EXPECT_EQ(c().U_L_Puentes[puente_forjados], 0.5F);
  EXPECT_EQ(c().U_L_Puentes[puente_cubiertas], 0.3F);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  p.origen = OrigenPuentes::Lider;
  AceptarPaginaPuentes(E(), p, mensajes);
  EXPECT_EQ(c().Def_Puentes_termicos, 5);
  EXPECT_EQ(c().U_L_Puentes[puente_forjados], 0.42F);

  std::array<std::string, 12> textos;
  for (std::size_t i = 0; i < textos.size(); ++i) textos[i] = std::to_string(i + 1);
  AceptarLongitudes(E(), textos, mensajes);  // se estiman: los textos no cuentan
  EXPECT_NE(c().Perimetro_suelo_terreno, 12);
  Construccion dadas = c();
  dadas.Longitud_puentes_termicos_modo = "Facilitados";
  E().SetConstruccion(dadas);
  AceptarLongitudes(E(), textos, mensajes);
  EXPECT_EQ(c().Long_pilares[este], 6);
  EXPECT_EQ(c().Longitud_esquinas_sal_menos_ent, 9);
  EXPECT_EQ(c().Perimetro_suelo_terreno, 12);
}

}  // namespace
}  // namespace novex
