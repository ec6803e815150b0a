#include "files/LimitesProyecto.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/MensajesAcotados.h"
#include "files/CarpetaTemporal.h"
#include "files/ProyectoFichero.h"

namespace novex {
namespace {

using testing::HasSubstr;

std::string Repetido(std::size_t veces, const std::string& texto) {
  std::string todo;
  todo.reserve(veces * texto.size());
  for (std::size_t i = 0; i < veces; ++i) todo += texto;
  return todo;
}

class LimitesProyecto : public testing::Test {
 protected:
  void SetUp() override { gestor_.NuevoProyecto(); }
  // Abre un proyecto de un caso con un trozo dentro. \returns el fallo, o vacío
  std::string Fallo(const std::string& trozo) {
    const auto ruta = carpeta_ / "p.xml";
    EscribirFichero(ruta,
                    "<DatosEnergeticosDelEdificio><DatosPersonalizados><Novex><Version "
                    "name=\"NOVEX 2026.09.30\"/><Datos_Uso><Tipo name=\"8hB\"/></Datos_Uso>" +
                        trozo + "</Novex></DatosPersonalizados></DatosEnergeticosDelEdificio>");
    try {
      EXPECT_TRUE(AbrirProyecto(gestor_, ruta, ModoApertura::Nuevo, mensajes_).abierto);
      return "";
    } catch (const ErrorFichero& error) {
      EXPECT_EQ(error.ruta, ruta.string());
      return error.what();
    }
  }

  pruebas::CarpetaTemporal carpeta_;
  GestorEdifActivo gestor_;
  RegistroMensajes mensajes_;
};

TEST_F(LimitesProyecto, CadaListaTieneElSuyoYSuMensaje) {
  struct Lista {
    std::string antes, elemento, despues;
    std::size_t maximo;
    std::string que;
  };
  using namespace limiteProyecto;
  const std::string sistema = "<Instalaciones><Tipo_sistema>";
  const std::string finSistema = "</Tipo_sistema></Instalaciones>";
  const std::vector<Lista> listas = {
      {"<Datos_Generales><ReferenciasCatastrales>", "<Ref/>",
       "</ReferenciasCatastrales></Datos_Generales>", kFilas, "referencias catastrales"},
      {"<Datos_Generales><ElementosInalterables>", "<Elemento/>",
       "</ElementosInalterables></Datos_Generales>", kFilas, "elementos inalterables"},
      {"<Huecos>", "<Hueco/>", "</Huecos>", kGruposHuecos, "grupos de huecos"},
      {"<Huecos>", "<Hueco><Numero_ventanas_Sur name=\"9999\"/></Hueco>", "</Huecos>", 10,
       "100000 huecos"},
      {"<Capas_materiales>", "<Material/>", "</Capas_materiales>", kMateriales, "materiales"},
      {"<Capas_materiales><Material/></Capas_materiales><Composiciones><Aplicacion "
       "name=\"MuroExt1\">",
       "<IndiceMaterial name=\"0\"/>", "</Aplicacion></Composiciones>", kCapas, "capas"},
      {"<Capas_materiales><Material><Material name=\"", "x", "\"/></Material></Capas_materiales>",
       kLetrasMaterial, "nombre de un material"},
      {"<Instalaciones>", "<Tipo_sistema/>", "</Instalaciones>", kSistemas, "sistemas"},
      {sistema, "<nuevo/>", finSistema, kDesconocidos, "elementos desconocidos"},
      {sistema + "<nuevo>", "<x/>", "</nuevo>" + finSistema, kDesconocidos - 1,
       "elementos desconocidos"},
      {"<EstudioModificaciones>", "<Medida/>", "</EstudioModificaciones>", kMedidas, "medidas"},
      {"<MedidasMejora>", "<M name=\"1\"/>", "</MedidasMejora>", kMedidas, "medidas"}};
  for (const Lista& l : listas) {
    EXPECT_EQ(Fallo(l.antes + Repetido(l.maximo, l.elemento) + l.despues), "") << l.que;
    EXPECT_THAT(Fallo(l.antes + Repetido(l.maximo + 1, l.elemento) + l.despues), HasSubstr(l.que));
  }
}

TEST_F(LimitesProyecto, UnTextoLargoSeCortaConSuAviso) {
  // La eñe, de dos bytes, no se parte.
  const std::string justo(limiteProyecto::kLetras - 1, 'a');
  EXPECT_EQ(Fallo("<Datos_Generales><Edificio_Titulo name=\"" + justo + "ñ\"/><Direccion name=\"" +
                  justo + "b\"/></Datos_Generales>"),
            "");
  const DatosGenerales& leidos = gestor_.Activo().GetDatosGenerales();
  EXPECT_EQ(leidos.Edificio_Titulo, justo);
  EXPECT_EQ(leidos.Direccion, justo + "b");
  ASSERT_EQ(mensajes_.recibidos.size(), 1U);
  EXPECT_THAT(mensajes_.recibidos[0].texto, HasSubstr("Edificio_Titulo: el texto pasa de 65536"));
}

TEST_F(LimitesProyecto, LosAvisosSonPocosYCortos) {
  const std::string malo = "<IndiceMaterial name=\"" + std::string(5000, 'x') + "\"/>";
  EXPECT_EQ(Fallo("<Composiciones><Aplicacion name=\"MuroExt1\">" + Repetido(250, malo) +
                  "</Aplicacion></Composiciones>"),
            "");
  ASSERT_EQ(mensajes_.recibidos.size(), 101U);
  EXPECT_EQ(mensajes_.recibidos[0].texto.size(), MensajesAcotados::kMaximoTexto + 3);
  EXPECT_THAT(mensajes_.recibidos.back().texto, HasSubstr("150 avisos más"));
}

}  // namespace
}  // namespace novex
