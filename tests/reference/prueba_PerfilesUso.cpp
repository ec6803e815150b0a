#include "reference/PerfilesUso.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <numeric>
#include <vector>

#include "base/FicheroSeguro.h"

namespace novex {
namespace {

std::string LeerCatalogo() {
  return LeerFichero(std::filesystem::path(NOVEX_RAIZ_DATOS) / "database" / "PerfilesUso.xml");
}

XMLNode Catalogo(std::string bytes) {
  return XMLNode::parseString(std::move(bytes), "PERFILES_USO", "PerfilesUso.xml");
}

std::string Cambiar(std::string texto, const std::string& antes, const std::string& despues) {
  const auto i = texto.find(antes);
  EXPECT_NE(i, std::string::npos) << antes;
  return i == std::string::npos ? texto : texto.replace(i, antes.size(), despues);
}

float Suma(const PerfilDiario& perfil) {
  return std::accumulate(perfil.begin() + 1, perfil.end(), 0.0F);
}

class UsoPorDefecto : public ::testing::Test {
 protected:
  const Perfiles& perfiles() const { return edificio.GetDatosGenerales().perfiles; }
  float Hora(Familia familia, std::size_t clase, std::size_t h) const {
    return perfiles().tabla[familia][clase][h];
  }

  Edificio edificio;
  RegistroMensajes mensajes;
};

// Cifras de las tablas a, b y c del anejo D del CTE DB-HE 2019.
TEST_F(UsoPorDefecto, Residencial) {
  DatosGenerales g;
  g.Sensibleocupantes = 7;
  g.Edificio_Titulo = "Casa";
  edificio.SetDatosGenerales(g);
  Localizacion sitio;
  sitio.ZonaClimatica = "C1";
  edificio.SetLocalizacion(sitio);

  ASSERT_TRUE(AplicarUsoPorDefecto(Catalogo(LeerCatalogo()), "Residencial", edificio, mensajes));
  EXPECT_TRUE(mensajes.recibidos.empty());
  const DatosGenerales& r = edificio.GetDatosGenerales();
  EXPECT_EQ(r.Tipo, "Residencial");
  EXPECT_EQ(r.Edificio_Titulo, "Casa");
  EXPECT_EQ(r.Sensibleocupantes, 0);
  EXPECT_EQ(edificio.GetLocalizacion().mesmin, 6);
  EXPECT_EQ(edificio.GetLocalizacion().mesmax, 9);
  EXPECT_EQ(edificio.GetLocalizacion().ZonaClimatica, "C1");

  const std::tuple<Familia, std::size_t, std::size_t, float> horas[] = {
      {C1, 0, 7, 2.15F},  {C1, 0, 8, 0.54F}, {C1, 0, 16, 1.08F},  {C1, 0, 24, 2.15F},
      {C1, 1, 12, 2.15F}, {C2, 0, 1, 1.36F}, {CIlu, 0, 20, 4.4F}, {CEq, 2, 19, 2.2F},
      {CTCh, 0, 7, 17},   {CTCh, 0, 8, 20},  {CTRh, 0, 7, 27},    {CTRh, 0, 8, 0},
      {CTRh, 0, 16, 25}};
  for (const auto& [familia, clase, h, valor] : horas)
    EXPECT_FLOAT_EQ(Hora(familia, clase, h), valor) << familia << " hora " << h;
  for (std::size_t familia = 0; familia < kFamilias; ++familia)
    for (const PerfilDiario& perfil : perfiles().tabla[familia]) EXPECT_EQ(perfil[0], 0);

  EXPECT_EQ(perfiles().AccionMes[5], "Sólo Cale");
  EXPECT_EQ(perfiles().AccionMes[6], "Sólo Refri");
  EXPECT_EQ(perfiles().AccionMes[10], "Sólo Cale");
  EXPECT_EQ(perfiles().AccionMes[0], "");
}

TEST_F(UsoPorDefecto, ElCalendarioEmpiezaEnLunesConLosFestivosNacionales) {
  ASSERT_TRUE(AplicarUsoPorDefecto(Catalogo(LeerCatalogo()), "12hM", edificio, mensajes));
  // Festivos nacionales de fecha fija: 1 y 6 de enero, 1 de mayo, 15 de agosto, 12 de octubre, 1 de
  // noviembre y 6, 8 y 25 de diciembre, por su posición en el año.
  const std::vector<int> festivos = {0, 5, 120, 226, 284, 304, 339, 341, 358};
  for (int dia = 0; dia < 365; ++dia) {
    const bool festivo = std::find(festivos.begin(), festivos.end(), dia) != festivos.end();
    const int semana = dia % 7;
    const int esperado = festivo || semana == 6 ? 3 : semana == 5 ? 2 : 1;
    EXPECT_EQ(perfiles().calendario[static_cast<std::size_t>(dia)], esperado) << "día " << dia;
  }
  EXPECT_EQ(perfiles().calendario[365], 0);
}

TEST_F(UsoPorDefecto, LosTerciariosTienenSusPicosYTodaPosicionDatosCoherentes) {
  const XMLNode raiz = Catalogo(LeerCatalogo());
  ASSERT_TRUE(AplicarUsoPorDefecto(raiz, "8hB", edificio, mensajes));
  const float horas8 = Suma(perfiles().tabla[C1][0]);
  ASSERT_TRUE(AplicarUsoPorDefecto(raiz, "24hA", edificio, mensajes));
  const DatosGenerales& g = edificio.GetDatosGenerales();
  EXPECT_EQ(std::tuple(g.Tipo, g.Sensibleocupantes, g.Latenteocupantes, g.Iluminacion, g.Equipos),
            std::tuple("24hA", 10, 6.31F, 10, 7.5F));
  EXPECT_FLOAT_EQ(horas8, 800);  // 8 h al 100 %
  EXPECT_FLOAT_EQ(Suma(perfiles().tabla[C1][0]), 2400);
  const char* claves[] = {"Residencial", "Residencial", "Residencial", "8hB",  "8hM",  "8hA",
                          "12hB",        "12hM",        "12hA",        "16hB", "16hM", "16hA",
                          "24hB",        "24hM",        "24hA",        "12hM"};
  for (int perfil = 0; perfil <= 15; ++perfil) {
    const std::string_view clave = ClaveUsoPorDefecto(perfil);
    EXPECT_EQ(clave, claves[perfil]);
    ASSERT_TRUE(AplicarUsoPorDefecto(raiz, clave, edificio, mensajes)) << clave;
    // El agua caliente se reparte en % del día y las consignas no se cruzan.
    EXPECT_NEAR(Suma(perfiles().tabla[CCAC][0]), 100, 0.6) << clave;
    for (std::size_t clase = 0; clase < kClasesDia; ++clase)
      for (std::size_t h = 1; h <= 24; ++h) {
        const float frio = Hora(CTRh, clase, h);
        EXPECT_TRUE(frio == 0 || frio > Hora(CTCh, clase, h)) << clave << " hora " << h;
      }
  }
  EXPECT_EQ(ClaveUsoPorDefecto(-1), "Residencial");
  EXPECT_EQ(ClaveUsoPorDefecto(16), "12hM");
}

TEST_F(UsoPorDefecto, UnCatalogoConFaltasNoCargaNadaYDiceCual) {
  const std::string bueno = LeerCatalogo();
  struct Falta {
    std::string antes, despues, culpable;
    std::string_view clave = "8hM";
  };
  const Falta faltas[] = {
      {"Clave=\"8hM\"", "Clave=\"8hm\"", "Perfil \"8hM\""},
      {"<Horario Nombre=\"8h\">", "<Horario Nombre=\"9h\">", "Horario \"8h\""},
      {"Clave=\"8hM\" Horario=\"8h\" mesmin=\"6\"", "Clave=\"8hM\" Horario=\"8h\" mesmin=\"14\"",
       "mesmin"},
      {"Clave=\"8hM\" Horario=\"8h\" mesmin=\"6\"", "Clave=\"8hM\" Horario=\"8h\" mesmin=\"6.5\"",
       "mesmin"},
      {"Sensibleocupantes=\"6.00\"", "Sensibleocupantes=\"muchos\"", "Sensibleocupantes"},
      {"Sensibleocupantes=\"6.00\"", "Sensibleocupantes=\"-6\"", "Sensibleocupantes"},
      {"<CCACE6 ", "<CCACE7 ", "CCACE6", "Residencial"},
      {"<Enero C1=\"3\"", "<Enero C1=\"10\"", "Enero C1"},
      {"<Febrero C1=\"1\"", "<Febrero C01=\"1\"", "Febrero C1"},
      {"<Calendario>", "<Calendario><Nada/>", "doce meses"}};
  EXPECT_FALSE(AplicarUsoPorDefecto(XMLNode{}, "Residencial", edificio, mensajes));
  DatosGenerales previo;
  previo.Tipo = "previo";
  edificio.SetDatosGenerales(previo);
  for (const Falta& falta : faltas) {
    mensajes.recibidos.clear();
    const XMLNode raiz = Catalogo(Cambiar(bueno, falta.antes, falta.despues));
    EXPECT_FALSE(AplicarUsoPorDefecto(raiz, falta.clave, edificio, mensajes)) << falta.despues;
    ASSERT_EQ(mensajes.recibidos.size(), 1U) << falta.despues;
    EXPECT_NE(mensajes.recibidos[0].texto.find(falta.culpable), std::string::npos)
        << mensajes.recibidos[0].texto;
    EXPECT_EQ(edificio.GetDatosGenerales(), previo);
    EXPECT_EQ(edificio.GetLocalizacion(), Localizacion{});
  }
}

}  // namespace
}  // namespace novex
