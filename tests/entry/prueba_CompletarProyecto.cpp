#include "entry/CompletarProyecto.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

#include "files/CarpetaTemporal.h"
#include "files/TextoAntiguo.h"

namespace novex {
namespace {

using namespace pruebas;
using testing::Contains;
using testing::HasSubstr;
using testing::SizeIs;

const Mensaje kSinLugar = {
    "AVISO",
    "No se ha identificado la ciudad/provincia, por favor revise esos datos. Se pone "
    "provisionalmente el edificio en Valencia"};

class CompletarDeTexto : public testing::Test {
 protected:
  Edificio& Abrir(const std::filesystem::path& ruta) {
    mensajes_.recibidos.clear();
    abierto_ = AbrirProyecto(gestor_, ruta, ModoApertura::Nuevo, mensajes_);
    CompletarProyecto(gestor_, abierto_, ficheros_, mensajes_);
    return *gestor_.Caso("Viejo");
  }
  Edificio& AbrirLineas(const std::vector<std::string>& lineas) {
    std::ofstream(carpeta_ / "p.txt", std::ios::binary) << "*[S] Version.\nNOVEX v5.0\n"
                                                        << Unir(lineas) << "*[S] Final.\n";
    return Abrir(carpeta_ / "p.txt");
  }
  static std::vector<std::string> Lugar(const std::string& ciudad, const std::string& provincia,
                                        std::vector<std::string> mas = {}) {
    mas.insert(mas.begin(), {"** Seccion.", "Datos Geograficos/obstaculos remotos.",
                             "*[S] Ciudadxml.", ciudad, "*[S] Provinciaxml.", provincia});
    return mas;
  }

  CarpetaTemporal carpeta_;
  FicherosPrograma ficheros_{EspacioTrabajo{NOVEX_RAIZ_DATOS}};
  GestorEdifActivo gestor_;
  RegistroMensajes mensajes_;
  ProyectoAbierto abierto_;
};

TEST_F(CompletarDeTexto, ElSitioSaleDeSuMunicipio) {
  const Localizacion madrid = AbrirLineas(Lugar("Madrid", "Madrid")).GetLocalizacion();
  EXPECT_EQ(madrid.ZonaClimatica, "D3");
  EXPECT_EQ(madrid.zona_radiante, "IV");
  EXPECT_EQ(madrid.asnm, 657);
  EXPECT_NEAR(madrid.latitud, 40.4F, 0.1F);
  EXPECT_THAT(mensajes_.recibidos, SizeIs(1));  // el de la lectura
  // La altitud del fichero se conserva, y la zona es la suya: en Madrid, E1 desde 1000 m.
  const Localizacion alto =
      AbrirLineas(Lugar("Madrid", "Madrid", {"*[I] Altura sobre nivel mar.", "1100"}))
          .GetLocalizacion();
  EXPECT_EQ(alto.asnm, 1100);
  EXPECT_EQ(alto.ZonaClimatica, "E1");
  EXPECT_EQ(AbrirLineas(Lugar("Palmas de Gran Canaria (Las)", "Las Palmas"))
                .GetLocalizacion()
                .ZonaClimatica.back(),
            'c');
}

TEST_F(CompletarDeTexto, UnLugarQueNoEstaQuedaEnValencia) {
  for (const auto& lineas : {Lugar("Villarriba", "Madrid"), Lugar("", ""),
                             Lugar("Madrid", "Toledo", {"*[I] Altura sobre nivel mar.", "700"})}) {
    const Localizacion l = AbrirLineas(lineas).GetLocalizacion();
    EXPECT_EQ(l.Provincia, "Valencia/València");
    EXPECT_EQ(l.Municipio, "Valencia");
    EXPECT_EQ(l.ZonaClimatica, "B3");
    ASSERT_THAT(mensajes_.recibidos, SizeIs(2));
    EXPECT_EQ(mensajes_.recibidos[1], kSinLugar);
    EXPECT_THAT(abierto_.informe.cambiados, Contains(HasSubstr("-> Valencia")));
  }
}

// En D3, con "Lider", el frente de forjado es 0,41 y el hueco 0,27.
TEST_F(CompletarDeTexto, LosPuentesQueNoTraeSalenDeLaTablaDeSuZona) {
  const Construccion c =
      AbrirLineas(Lugar("Madrid", "Madrid",
                        {"** Seccion.", "Puentes Termicos.", "*[F] U/L Puentes forjados.", "0.99",
                         "*[F] fi Puentes ventanas.", "0.88"}))
          .GetConstruccion();
  EXPECT_FLOAT_EQ(c.U_L_Puentes[puente_forjados], 0.99F);
  EXPECT_FLOAT_EQ(c.fi_Puentes[puente_forjados], 0.76F);
  EXPECT_FLOAT_EQ(c.U_L_Puentes[puente_ventanas], 0.27F);
  EXPECT_FLOAT_EQ(c.fi_Puentes[puente_ventanas], 0.88F);
  EXPECT_FLOAT_EQ(c.U_L_Puentes[puente_pilares], 0.77F);
  EXPECT_EQ(c.Longitud_puentes_termicos_modo, "Estimados");
}

TEST_F(CompletarDeTexto, LosHorariosSonLosDeSuUso) {
  const DatosGenerales vivienda = AbrirLineas(Lugar("Madrid", "Madrid")).GetDatosGenerales();
  EXPECT_EQ(vivienda.Tipo, "Residencial");
  EXPECT_GT(vivienda.perfiles.tabla[CTCh][0][12], 15);
  const auto terciario = [this](const std::string& carga) {
    return AbrirLineas({"** Seccion.", "Datos Generales.",
                        "*[S] Tipologia edificio: Unifamiliar/Bloque/Terciario.", "Terciario",
                        "** Seccion.", "Datos Globales.", "*[S] Uso.", carga, "*[S] Control.",
                        "8 h", "*[F] Carga iluminacion W/m2.", "7.5"})
        .GetDatosGenerales();
  };
  const DatosGenerales baja = terciario("Baja"), alta = terciario("Alta");
  EXPECT_EQ(baja.PerfilUso, 3);
  EXPECT_EQ(alta.PerfilUso, 5);
  EXPECT_LT(baja.Sensibleocupantes, alta.Sensibleocupantes);
  // El alumbrado que dice el fichero vale más que el del perfil.
  EXPECT_FLOAT_EQ(alta.Iluminacion, 7.5F);
}

// Los ejemplos enteros, con su sitio: las ciudades de la lista están en la de municipios.
TEST_F(CompletarDeTexto, LosEjemplosTienenSuSitio) {
  for (const auto& [ejemplo, municipio] : {std::pair{"primera.txt", "Logroño"},
                                           {"tercera.txt", "Alcoy/Alcoi"},
                                           {"indices.txt", "Toledo"}}) {
    const Edificio& e = Abrir(kTextosAntiguos / ejemplo);
    EXPECT_EQ(e.GetLocalizacion().Municipio, municipio);
    EXPECT_FALSE(e.GetLocalizacion().ZonaClimatica.empty());
    EXPECT_THAT(mensajes_.recibidos, SizeIs(1)) << ejemplo;
  }
  EXPECT_EQ(gestor_.NumeroCasos(), 3U);
  EXPECT_EQ(gestor_.Caso("Mejora_2")->GetLocalizacion().ZonaClimatica, "C4");
}

}  // namespace
}  // namespace novex
