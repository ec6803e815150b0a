#include "entry/Horarios.h"

#include <gtest/gtest.h>

#include <numeric>

#include "base/Calendario.h"

namespace novex {
namespace {

class Horarios : public testing::Test {
 protected:
  void Uso(int perfil) {
    DatosGenerales g = edificio.GetDatosGenerales();
    g.PerfilUso = perfil;
    edificio.SetDatosGenerales(g);
  }
  void Cambiar(void (*cambio)(DatosGenerales&)) {
    DatosGenerales g = edificio.GetDatosGenerales();
    cambio(g);
    edificio.SetDatosGenerales(g);
  }
  bool Poner(Familia familia, std::size_t clase, std::size_t hora, const char* texto) {
    const CasillaHoraria casilla{clase, hora};
    return PonerHoras(edificio, familia, {&casilla, 1}, texto, mensajes);
  }
  float Valor(Familia familia, std::size_t clase, std::size_t hora) const {
    return edificio.GetDatosGenerales().perfiles.tabla[familia][clase][hora];
  }
  bool HayNota(Familia familia, std::string_view trozo) const {
    for (const std::string& nota : NotasHorario(edificio, familia))
      if (nota.find(trozo) != std::string::npos) return true;
    return false;
  }

  Edificio edificio;
  RegistroMensajes mensajes;
};

TEST_F(Horarios, LaUnidadDeUnaCargaEsLaDelUso) {
  EXPECT_EQ(DatosDeFamilia(C1, true).rotulo, "Ocup.Sen.(W/m2)");
  EXPECT_EQ(DatosDeFamilia(C1, false).rotulo, "Ocupación(%)");
  EXPECT_EQ(DatosDeFamilia(CEq, true).maximo, 40);
  EXPECT_EQ(DatosDeFamilia(CEq, false).maximo, 100);
  for (const Familia f : {CTCh, CTRh, CNR, CCAC})
    EXPECT_EQ(DatosDeFamilia(f, true).rotulo, DatosDeFamilia(f, false).rotulo);
}

TEST_F(Horarios, LoQueNoSeAdmiteDejaLoQueHabia) {
  ASSERT_TRUE(Poner(C1, 0, 8, "2,15"));
  EXPECT_EQ(Valor(C1, 0, 8), 2.15F);
  for (const char* malo : {"41", "-1", "abc", "", "2,1x", "nan"})
    EXPECT_FALSE(Poner(C1, 0, 8, malo));
  EXPECT_EQ(Valor(C1, 0, 8), 2.15F);
  ASSERT_EQ(mensajes.recibidos.size(), 6U);
  EXPECT_EQ(mensajes.recibidos[0].texto,
            "La ocupación sensible, debe estar entre 0 W/m2 y 40 W/m2: se deja el valor que había");
  // En un terciario es un tanto por ciento, y 400 se guarda para las ventanas abiertas.
  Uso(3);
  EXPECT_TRUE(Poner(C1, 0, 8, "100"));
  EXPECT_FALSE(Poner(CNR, 0, 8, "400"));
  EXPECT_FALSE(Poner(CTCh, 0, 8, "50.01"));
}

TEST_F(Horarios, UnValorVaATodasLasHorasElegidasYNoFuera) {
  const CasillaHoraria casillas[] = {{0, 1}, {8, 24}, {9, 5}, {0, 25}, {0, 0}};
  EXPECT_TRUE(PonerHoras(edificio, CTCh, casillas, "20", mensajes));
  EXPECT_EQ(Valor(CTCh, 0, 1), 20);
  EXPECT_EQ(Valor(CTCh, 8, 24), 20);
  EXPECT_EQ(Valor(CTCh, 0, 0), 0);
  EXPECT_EQ(Valor(CTCh, 1, 1), 0);
}

TEST_F(Horarios, SePegaUnBloqueDeUnaHojaDeCalculo) {
  Poner(CTRh, 7, 24, "27");
  // La tercera columna y la tercera fila no caben; una celda vacía y dos malas no cambian nada.
  EXPECT_EQ(PegarHoras(edificio, CTRh, {7, 23}, "25,5\t\t30\r\n60\tx\n25\t25\n", mensajes), 1);
  EXPECT_EQ(Valor(CTRh, 7, 23), 25.5F);
  EXPECT_EQ(Valor(CTRh, 7, 24), 27);
  EXPECT_EQ(Valor(CTRh, 8, 23), 0);
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].texto.rfind("No se admiten 2 de los valores", 0), 0U);
}

TEST_F(Horarios, LoQueSeCopiaVuelveAEntrar) {
  for (const float valor : {0.0F, 2.15F, 100.0F, 8.3F, 20.0F}) {
    const std::string texto = TextoHora(valor);
    EXPECT_EQ(texto.find('.'), std::string::npos);
    ASSERT_EQ(PegarHoras(edificio, CCAC, {0, 1}, texto + "\r\n", mensajes), 1);
    EXPECT_EQ(Valor(CCAC, 0, 1), valor);
  }
  EXPECT_EQ(TextoHora(100), "100");
}

TEST_F(Horarios, CopiarUnHorarioSoloCambiaLasFamiliasPedidas) {
  Poner(C1, 0, 8, "5");
  Poner(CEq, 0, 8, "7");
  const Familia familias[] = {C1};
  const std::size_t hasta[] = {1, 8};
  CopiarHorario(edificio, familias, 0, hasta);
  EXPECT_EQ(Valor(C1, 1, 8), 5);
  EXPECT_EQ(Valor(C1, 8, 8), 5);
  EXPECT_EQ(Valor(C1, 2, 8), 0);
  EXPECT_EQ(Valor(CEq, 1, 8), 0);
  const std::size_t fuera[] = {9};
  EXPECT_THROW(CopiarHorario(edificio, familias, 0, fuera), std::out_of_range);
}

TEST_F(Horarios, ReponerTraeLosDeSuUsoYSoloLosDeLaFamilia) {
  std::string xml = "<PERFILES_USO><Calendario>";
  for (int m = 1; m <= 12; ++m) {
    xml += "<Mes";
    for (int d = 1; d <= 31; ++d) xml += " C" + std::to_string(d) + "='1'";
    xml += "/>";
  }
  xml +=
      "</Calendario><Perfil Clave='8hB' Horario='8h' mesmin='6' mesmax='9'><Valores_Maximos "
      "Sensibleocupantes='2' Latenteocupantes='1' Iluminacion='4' Equipos='1'/><AccionMes";
  for (int m = 1; m <= 12; ++m) xml += " C" + std::to_string(m) + "='Nada'";
  xml += "/></Perfil><Horario Nombre='8h'>";
  for (const std::string_view familia : kNombreFamilia)
    for (const std::string_view clase : kNombreClaseDia) {
      xml += "<" + std::string(familia) + std::string(clase);
      for (int h = 1; h <= 24; ++h)
        xml += " C" + std::to_string(h) + "='" + std::to_string(h) + "'";
      xml += "/>";
    }
  xml += "</Horario></PERFILES_USO>";
  const XMLNode perfiles = XMLNode::parseString(xml.c_str(), "PERFILES_USO", "prueba");
  Uso(3);
  Poner(CNR, 4, 10, "55");
  Poner(C1, 4, 10, "55");
  EXPECT_TRUE(ReponerHorario(edificio, CNR, perfiles, mensajes));
  EXPECT_EQ(Valor(CNR, 4, 10), 10);
  EXPECT_EQ(Valor(C1, 4, 10), 55);
  EXPECT_EQ(edificio.GetDatosGenerales().Iluminacion, 0);
  Uso(4);  // el documento no lo trae
  EXPECT_FALSE(ReponerHorario(edificio, CNR, perfiles, mensajes));
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
}

TEST_F(Horarios, ElCalendarioSePintaPorDias) {
  EXPECT_EQ(PosicionDia(1, 1), 0U);
  EXPECT_EQ(PosicionDia(3, 1), 59U);
  EXPECT_EQ(PosicionDia(12, 31), 364U);
  EXPECT_FALSE(PosicionDia(2, 29) || PosicionDia(4, 31) || PosicionDia(13, 1) || PosicionDia(1, 0));
  const std::size_t dias[] = {0, 58, 364, 365};
  EXPECT_TRUE(PintarDias(edificio, dias, 9));
  EXPECT_FALSE(PintarDias(edificio, dias, 10));
  EXPECT_FALSE(PintarDias(edificio, dias, -1));
  const auto cuenta = DiasPorCodigo(edificio.GetDatosGenerales().perfiles);
  EXPECT_EQ(cuenta[9], 3);  // el 366 no es de este año
  EXPECT_EQ(std::accumulate(cuenta.begin(), cuenta.end(), 0), 365);
}

TEST_F(Horarios, UnMesSoloTomaUnaAccionDeLaLista) {
  for (const std::string_view accion : kAccionesMes)
    EXPECT_TRUE(PonerAccionMes(edificio, 12, accion));
  EXPECT_EQ(edificio.GetDatosGenerales().perfiles.AccionMes[12], "Nada");
  EXPECT_FALSE(PonerAccionMes(edificio, 12, "Calor"));
  EXPECT_FALSE(PonerAccionMes(edificio, 13, "Nada"));
  EXPECT_FALSE(PonerAccionMes(edificio, 0, "Nada"));
}

TEST_F(Horarios, LasNotasDicenLoQueNoSeUsaOSeContradice) {
  Cambiar([](DatosGenerales& g) {
    g.perfiles.calendario.fill(1);
    g.perfiles.tabla[CTCh][0][9] = g.perfiles.tabla[CTRh][0][9] = 20;
    g.perfiles.tabla[CTCh][4][9] = g.perfiles.tabla[CTRh][4][9] = 20;  // no está en el calendario
    g.perfiles.tabla[CCAC][0][9] = 60;
    g.perfiles.AccionMes[1] = "Sólo Cale";
  });
  EXPECT_TRUE(HayNota(CTCh, "no es menor que la de refrigeración en: Laborable"));
  EXPECT_FALSE(HayNota(CTCh, "Especial"));
  EXPECT_TRUE(HayNota(CTRh, "Ningún mes tiene refrigeración"));
  EXPECT_FALSE(HayNota(CTCh, "Ningún mes"));
  EXPECT_TRUE(HayNota(CCAC, "no suma 100 % en: Laborable"));
  EXPECT_TRUE(HayNota(CNR, "ventanas están abiertas"));
  Cambiar([](DatosGenerales& g) {
    g.PerfilUso = 4;
    g.ManejoVentilacion = "UTA";
    g.TipoCO2 = "SondaCO2 con freecooling";
    g.Iluminacion = 7.5F;
    g.perfiles.tabla[CCAC][0][10] = 40;
  });
  EXPECT_TRUE(HayNota(CNR, "sonda de CO2"));
  EXPECT_FALSE(HayNota(CNR, "ventanas"));
  EXPECT_TRUE(HayNota(CIlu, "El 100 % son 7,5 W/m2"));
  EXPECT_TRUE(HayNota(CEq, "no da ninguna carga"));
  EXPECT_FALSE(HayNota(CCAC, "no suma"));
}

TEST_F(Horarios, LaSerieDelAnoSigueAlCalendarioYALosMeses) {
  Cambiar([](DatosGenerales& g) {
    g.PerfilUso = 4;
    g.Iluminacion = 8;
    g.perfiles.calendario.fill(2);
    g.perfiles.calendario[31] = 0;  // 1 de febrero
    g.perfiles.tabla[CIlu][1].fill(50);
    g.perfiles.tabla[CTCh][1].fill(21);
    g.perfiles.AccionMes.fill("Sólo Cale");
    g.perfiles.AccionMes[3] = "Sólo Refri";
  });
  const SerieHoraria luz = SerieDeHorario(edificio, CIlu);
  EXPECT_EQ(luz[1], 4);
  EXPECT_EQ(luz[31 * 24 + 1], 0);
  const SerieHoraria consigna = SerieDeHorario(edificio, CTCh);
  EXPECT_EQ(consigna[kHorasAno], 21);
  EXPECT_EQ(consigna[60 * 24], 0);
}

}  // namespace
}  // namespace novex
