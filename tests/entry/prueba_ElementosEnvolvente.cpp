#include "entry/ElementosEnvolvente.h"

#include <gtest/gtest.h>

#include <set>

#include "compliance/TransmitanciaGlobal.h"
#include "entry/HojaDeCalculo.h"
#include "entry/ResumenEnvolvente.h"
#include "files/AccesoCampos.h"
#include "model/ClavesCampos.h"
#include "reference/CatalogoComposiciones.h"

namespace novex {
namespace {

constexpr std::array kPaginas = {PaginaOpacos::Cubiertas, PaginaOpacos::Muros,
                                 PaginaOpacos::Suelos};

template <class Hacer>
void ParaCadaClase(const Hacer& hacer) {
  for (const PaginaOpacos pagina : kPaginas)
    for (const ClaseElemento& clase : ClasesDePagina(pagina)) {
      EXPECT_EQ(clase.pagina, pagina);
      hacer(clase);
    }
}

TEST(ElementosEnvolvente, CadaPosicionEstaEnUnaClaseConSuU) {
  Edificio e;
  std::set<std::size_t> vistas;
  const auto comprobar = [&](const ClaseElemento& clase, std::size_t ranura,
                             const std::string& direccion) {
    EXPECT_TRUE(vistas.insert(ranura).second) << direccion;
    e.GetComposicion(ranura).U = 1.25F;
    EXPECT_EQ(LectorCampos(e).Valor(direccion).value_or(""), "1.25") << clase.nombre;
    e.GetComposicion(ranura).U = 0;
  };
  ParaCadaClase([&](const ClaseElemento& clase) {
    for (std::size_t t = 0; t < clase.Tipos(); ++t) {
      comprobar(clase, clase.ranuras[t], DireccionElemento(clase, clase.U, t));
      if (!clase.ranurasExteriores.empty())
        comprobar(clase, clase.ranurasExteriores[t], DireccionElemento(clase, clase.UExterior, t));
    }
  });
  EXPECT_EQ(vistas.size(), kRanuras);
}

TEST(ElementosEnvolvente, LosDatosSonCamposYTodaAreaDelRecintoEstaEnUnaClase) {
  Edificio e;
  std::set<std::string> direcciones;
  ParaCadaClase([&](const ClaseElemento& clase) {
    for (std::size_t t = 0; t < clase.Tipos(); ++t) {
      const auto anadir = [&](std::string_view etiqueta, std::size_t s) {
        const std::string d = DireccionElemento(clase, etiqueta, t, s);
        EXPECT_TRUE(BuscarDatosCampo(d)) << d;
        EXPECT_TRUE(direcciones.insert(d).second) << d;
      };
      anadir(clase.marca, norte);
      if (!clase.areaExterior.empty()) anadir(clase.areaExterior, norte);
      for (std::size_t s = 0; s < (clase.PorSectores() ? kSectores : 1); ++s) {
        if (!clase.area.empty()) anadir(clase.area, s);
        if (TieneParte(clase, s)) anadir(clase.parte, s);
      }
      for (const DatoElemento& dato : clase.datos) {
        anadir(dato.campo, norte);
        EXPECT_EQ(dato.textos.size(), dato.rotulos.size());
        RegistroMensajes m;
        for (const std::string_view texto : dato.textos)
          EXPECT_TRUE(PonerCampo(e, DireccionElemento(clase, dato.campo, t), texto, m)) << texto;
      }
    }
  });
  for (const std::string& d : DireccionesDeCampos(e)) {
    const bool opaco = d.find("Muro") == 0 || d.find("Suelo_") == 0 || d.find("Cubierta") == 0;
    if (opaco && d.find('/') != std::string::npos && d.find("/U_") == std::string::npos) {
      EXPECT_TRUE(direcciones.contains(d)) << d;
    }
  }
}

TEST(ElementosEnvolvente, TiposEnUsoYAreas) {
  Edificio e;
  const ClaseElemento& muro = ClasesDePagina(PaginaOpacos::Muros)[0];
  const ClaseElemento& particion = ClasesDePagina(PaginaOpacos::Muros)[4];
  EXPECT_EQ(TiposEnUso(e, muro), 1U);
  e.GetRecinto(0).Muro_ext_m2[2][sur] = 12.5F;
  e.GetRecinto(0).Muro_ext_m2[0][norte] = 30.0F;
  EXPECT_EQ(TiposEnUso(e, muro), 3U);
  EXPECT_DOUBLE_EQ(AreaDeClase(e, muro), 42.5);
  EXPECT_FALSE(TieneParte(muro, norte));
  EXPECT_TRUE(TieneParte(muro, este));
  EXPECT_EQ(AreaDeClase(e, particion), 0);
  e.GetComposicion(ranura::MuroOtro6).U = 1;
  EXPECT_EQ(TiposEnUso(e, particion), 2U);
}

TEST(ElementosEnvolvente, UnaUTecleadaQuitaLaComposicion) {
  Edificio e;
  RegistroMensajes m;
  const Capa capa{"Ladrillo", 0.1F, 0.5F, 1000, 1000, 10, 0.2F, "L", "cte", "Fábricas"};
  ElegirComposicion(e, ranura::MuroExt2, "Hoja", std::array{capa});
  ASSERT_EQ(e.NumeroMateriales(), 1U);
  PonerTransmitancia(e, ranura::MuroExt2, "0,45", m);
  EXPECT_EQ(e.GetComposicion(ranura::MuroExt2).U, 0.45F);
  EXPECT_EQ(e.GetComposicion(ranura::MuroExt2).nombre, composicion::kNoDefinido);
  EXPECT_EQ(e.NumeroMateriales(), 0U);
  PonerTransmitancia(e, ranura::MuroExt2, "11", m);
  EXPECT_EQ(e.GetComposicion(ranura::MuroExt2).U, 1.0F);
  ASSERT_EQ(m.recibidos.size(), 1U);
}

TEST(ResumenEnvolvente, SumaLoTecleadoYSuCompacidadEsLaDeLaVerificacion) {
  Edificio e;
  Recinto& r = e.GetRecinto(0);
  r.Volumen_total_m3 = 300;
  r.Suelo_habitable_m2 = 120;
  r.Muro_ext_m2[0][norte] = 40;
  r.Muro_ext_m2[4][sur] = 32;
  r.Muro_al_terreno_m2[1] = 10;
  r.Cubierta_horiz_sol_m2[0] = 50;
  r.Cubierta_horiz_sombra_m2[0] = 20;  // parte de la anterior
  r.Cubierta_incl_m2[1][este] = 9;
  r.Cubierta_techo_ventilado_m2[1] = 6;
  r.Suelo_al_terreno_m2[2] = 45;
  r.Suelo_ext_m2[0] = 5;
  r.Suelo_vacio_sanitario_m2[0] = 7;
  r.Muro_adiabatico_m2[0] = 100;
  Huecos& ventanas = e.GetHuecos(0);
  ventanas.Ancho_m = 2;
  ventanas.Alto_m = 1;
  ventanas.columnas[sur].Anadir(4);
  Huecos lucernarios;
  lucernarios.Tipo_de_hueco = kLucernario;
  lucernarios.Ancho_m = lucernarios.Alto_m = 1;
  lucernarios.columnas[este].Anadir(1);
  lucernarios.columnas[kColumnaHorizontal].Anadir(3);
  e.AnadirHuecos(lucernarios);

  const ResumenEnvolvente s = ResumirEnvolvente(e);
  EXPECT_DOUBLE_EQ(s.fachada, 40 + 32 + 8);
  EXPECT_DOUBLE_EQ(s.huecos, 10);
  EXPECT_DOUBLE_EQ(s.cubierta, 50 + 3 + 9 + 1 + 6);
  EXPECT_DOUBLE_EQ(s.suelo, 45 + 5 + 7);
  EXPECT_DOUBLE_EQ(s.V_S, 2.5);
  EXPECT_DOUBLE_EQ(s.V_A, 300.0 / (80 + 53 + 10 + 45 + 5 + 10));
  EXPECT_DOUBLE_EQ(s.V_A, SumarEnvolvente(e, ResultadosCaso{}).Compacidad());
  EXPECT_EQ(TextoResumen(s),
            "Fachada 80,0 m² · Cubierta 69,0 m² · Suelo 57,0 m² · Huecos 10 % · V/A 1,48 m · V/S "
            "2,50 m");
  EXPECT_DOUBLE_EQ(FachadaPorSector(e)[sur].huecos, 8);
  EXPECT_DOUBLE_EQ(FaldonesPorSector(e)[este].Total(), 10);
  Edificio blanco;
  blanco.GetRecinto(0).Suelo_habitable_m2 = 0;
  EXPECT_EQ(ResumirEnvolvente(blanco).V_A, 0);
  EXPECT_EQ(ResumirEnvolvente(blanco).V_S, 0);
}

TEST(HojaDeCalculo, CasillasDeIdaYVuelta) {
  const CasillasHoja casillas = {{"1,5", "", "3"}, {"4"}};
  EXPECT_EQ(CasillasDeTexto("1,5\t\t 3 \r\n4"), casillas);
  EXPECT_EQ(CasillasDeTexto(TextoDeCasillas(casillas)), casillas);
  EXPECT_TRUE(CasillasDeTexto("").empty());
  EXPECT_EQ(SinMillares("1.234,50"), "1234,50");
  EXPECT_EQ(SinMillares("1,234.50"), "1234.50");
  EXPECT_EQ(SinMillares("1.234.567"), "1234567");
  EXPECT_EQ(SinMillares("12,5"), "12,5");
}

}  // namespace
}  // namespace novex
