#include "shell/SesionProyecto.h"

#include <gtest/gtest.h>

#include <fstream>

#include "base/ErrorFichero.h"
#include "calculation/EjecutarCalculo.h"
#include "files/AccesoCampos.h"
#include "files/CarpetaTemporal.h"
#include "files/ImagenesProyecto.h"
#include "shell/CalculoVivo.h"
#include "shell/Recuperacion.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

fs::path Ejemplo(const char* nombre) {
  return fs::path(NOVEX_RAIZ_DATOS) / "proyectos" / nombre;
}

class Sesion : public testing::Test {
 protected:
  std::string Valor(const char* direccion) {
    return LectorCampos(sesion.Caso()).Valor(direccion).value_or("(no hay)");
  }
  bool Poner(const char* direccion, const char* texto) {
    return sesion.Editar(direccion,
                         [&](Edificio& e) { PonerCampo(e, direccion, texto, mensajes); });
  }

  RegistroMensajes mensajes;
  FicherosPrograma ficheros{EspacioTrabajo{NOVEX_PROGRAMA_PRUEBAS}};
  pruebas::CarpetaTemporal carpeta;
  SesionProyecto sesion{ficheros, mensajes};
};

TEST_F(Sesion, DeshaceYRehaceLoEditado) {
  EXPECT_FALSE(sesion.Modificado());
  const std::string antes = Valor("Suelo_habitable_m2");
  EXPECT_TRUE(Poner("Suelo_habitable_m2", "123"));
  EXPECT_FALSE(Poner("Suelo_habitable_m2", "123"));  // no cambia nada
  EXPECT_TRUE(Poner("Edificio_Titulo", "Casa"));
  EXPECT_TRUE(sesion.Modificado());
  EXPECT_EQ(sesion.QueDeshace(), "Edificio_Titulo");
  EXPECT_TRUE(sesion.Deshacer());
  EXPECT_EQ(sesion.QueDeshace(), "Suelo_habitable_m2");
  EXPECT_EQ(sesion.QueRehace(), "Edificio_Titulo");
  EXPECT_TRUE(sesion.Deshacer());
  EXPECT_FALSE(sesion.Deshacer());
  EXPECT_EQ(Valor("Suelo_habitable_m2"), antes);
  EXPECT_FALSE(sesion.Modificado());  // como estaba
  EXPECT_TRUE(sesion.Rehacer());
  EXPECT_TRUE(sesion.Rehacer());
  EXPECT_EQ(Valor("Edificio_Titulo"), "Casa");
  sesion.Deshacer();
  EXPECT_TRUE(Poner("Edificio_Titulo", "Otra"));
  EXPECT_FALSE(sesion.Rehacer());  // una edición nueva cierra ese camino
}

TEST_F(Sesion, UnaEdicionQuitaLosResultadosYUnTextoNo) {
  sesion.Abrir(Ejemplo("vivienda_unifamiliar_D3.xml"));
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  ASSERT_TRUE(CalcularProyecto(sesion.GestorParaCalcular(), entorno).empty());
  sesion.EditarSinRecalcular(
      "título", [&](Edificio& e) { PonerCampo(e, "Edificio_Titulo", "Casa", mensajes); });
  EXPECT_TRUE(sesion.Modificado());
  EXPECT_TRUE(sesion.Caso().GetCalculo() && sesion.Caso().GetCalculo()->Calculado());
  EXPECT_TRUE(Poner("Suelo_habitable_m2", "150"));
  EXPECT_EQ(sesion.Caso().GetCalculo(), nullptr);
}

TEST_F(Sesion, UnaImagenDeTodosLosCasosNoQuitaLosResultados) {
  sesion.GestorParaCalcular().Activo().SetCalculo(std::make_shared<calculo>());
  const auto poner = [](GestorEdifActivo& gestor) {
    PonerImagen(gestor, LugarImagen::Plano, std::make_shared<const std::string>("imagen"));
  };
  EXPECT_TRUE(sesion.EditarProyectoSinRecalcular("plano", poner));
  EXPECT_NE(sesion.Caso().GetCalculo(), nullptr);
  EXPECT_FALSE(sesion.EditarProyectoSinRecalcular("plano", poner));
  EXPECT_TRUE(sesion.Deshacer());
  EXPECT_EQ(sesion.Caso().GetDatosPantalla().Plano, nullptr);
}

TEST_F(Sesion, LosCasosSeDeshacenEnteros) {
  sesion.Abrir(Ejemplo("vivienda_unifamiliar_D3.xml"));
  ASSERT_TRUE(sesion.DuplicarCaso());
  EXPECT_EQ(sesion.Gestor().NombreActivo(), "Mejora_1");
  EXPECT_TRUE(Poner("Suelo_habitable_m2", "150"));
  sesion.ActivarCaso(caso::kViejo);
  EXPECT_TRUE(sesion.Deshacer());  // vuelve al caso en que se hizo
  EXPECT_EQ(sesion.Gestor().NombreActivo(), "Mejora_1");
  EXPECT_EQ(Valor("Suelo_habitable_m2"), "160.0");
  sesion.BorrarCaso();
  EXPECT_EQ(sesion.Gestor().NumeroCasos(), 1U);
  sesion.Deshacer();
  EXPECT_EQ(sesion.Gestor().NumeroCasos(), 2U);
  sesion.Deshacer();
  EXPECT_EQ(sesion.Gestor().NumeroCasos(), 1U);
  EXPECT_FALSE(sesion.Modificado());
}

TEST_F(Sesion, GuardaAbreYSigueIgual) {
  sesion.Abrir(Ejemplo("piso_C2.xml"));
  Poner("Edificio_Titulo", "Piso ñ");
  const fs::path escrito = sesion.Guardar(carpeta / "piso.xml");
  EXPECT_FALSE(sesion.Modificado());
  EXPECT_EQ(sesion.Fichero(), escrito);
  sesion.Nuevo();
  EXPECT_FALSE(sesion.TieneFichero());
  ASSERT_TRUE(sesion.Abrir(escrito));
  EXPECT_EQ(Valor("Edificio_Titulo"), "Piso ñ");

  std::ofstream(carpeta / "roto.xml") << "<DatosEnergeticosDelEdificio><a></b>";
  EXPECT_THROW(sesion.Abrir(carpeta / "roto.xml"), ErrorFichero);
  EXPECT_EQ(Valor("Edificio_Titulo"), "Piso ñ");  // el abierto sigue
  EXPECT_EQ(sesion.Fichero(), escrito);
}

TEST_F(Sesion, LosAvisosSeguidosDeUnFicheroEstropeadoVanJuntos) {
  std::string texto = "*Version\nNOVEX v5.11\n** Seccion.\nDatos Globales.\n";
  for (int i = 0; i < 30; ++i) texto += "*[F] Volumen total m3.\nabc\n";
  std::ofstream(carpeta / "malo.txt") << texto;
  ASSERT_TRUE(sesion.Abrir(carpeta / "malo.txt"));
  // El de la lectura, el de los treinta números y el del municipio, que no está.
  ASSERT_EQ(mensajes.recibidos.size(), 3U);
  EXPECT_EQ(mensajes.recibidos[1].titulo, "Se espera un nº real y no una letra");
  EXPECT_TRUE(mensajes.recibidos[1].texto.ends_with("... y 18 más"));
  EXPECT_EQ(mensajes.recibidos[2].titulo, "AVISO");
}

TEST_F(Sesion, AnadirDejaLaBaseActivaYSinDatosCoherentesEsAbrir) {
  // Un proyecto en blanco no pasa las comprobaciones: el otro ocupa su lugar con su fichero.
  ASSERT_TRUE(sesion.Anadir(Ejemplo("piso_C2.xml")));
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].texto,
            "Se abre como si fuera nuevo, ya que el edificio que existe no tierne datos "
            "coherentes");
  EXPECT_EQ(sesion.Fichero(), fs::absolute(Ejemplo("piso_C2.xml")));
  EXPECT_FALSE(sesion.Modificado());
  EXPECT_FALSE(sesion.Deshacer());  // los datos de antes no van con el fichero de ahora
  ASSERT_TRUE(sesion.Anadir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  EXPECT_EQ(sesion.Gestor().NumeroCasos(), 2U);
  EXPECT_EQ(sesion.Gestor().NombreActivo(), caso::kViejo);
  EXPECT_EQ(sesion.Fichero(), fs::absolute(Ejemplo("piso_C2.xml")));
  EXPECT_TRUE(sesion.Modificado());
  EXPECT_TRUE(sesion.Deshacer());
  EXPECT_EQ(sesion.Gestor().NumeroCasos(), 1U);
}

TEST_F(Sesion, LaCopiaDeRecuperacionDevuelveLoQueNoSeGuardo) {
  sesion.Abrir(Ejemplo("piso_C2.xml"));
  Poner("Edificio_Titulo", "a medias");
  const Recuperacion mia(carpeta / "copias");
  ASSERT_TRUE(mia.Guardar(sesion.Gestor(), sesion.Fichero()));
  EXPECT_TRUE(mia.Perdidos().empty());  // este proceso sigue vivo
  // Como si la hubiera dejado un proceso que ya no está.
  for (const char* fin : {".xml", ".xml.origen"})
    fs::rename(mia.Fichero().string().substr(0, mia.Fichero().string().size() - 4) + fin,
               (carpeta / "copias" / "recuperado_999999999").string() + fin);
  const auto perdidos = mia.Perdidos();
  ASSERT_EQ(perdidos.size(), 1U);
  EXPECT_EQ(perdidos[0].original, sesion.Fichero());
  sesion.Nuevo();
  ASSERT_TRUE(sesion.Recuperar(perdidos[0].copia, perdidos[0].original));
  EXPECT_EQ(Valor("Edificio_Titulo"), "a medias");
  EXPECT_TRUE(sesion.Modificado());
  EXPECT_EQ(sesion.Fichero(), perdidos[0].original);
  Recuperacion::Quitar(perdidos[0]);
  EXPECT_TRUE(mia.Perdidos().empty());
}

class Vivo : public Sesion {
 protected:
  void Acabar() {
    while (vivo.Avanzar(std::chrono::milliseconds(5))) continue;
  }
  CalculoVivo vivo{ficheros};
};

TEST_F(Vivo, DaLoMismoQueElCalculoYNoTocaElProyecto) {
  for (const char* ejemplo : {"vivienda_unifamiliar_D3.xml", "oficina_VRV_B4.xml"}) {
    SCOPED_TRACE(ejemplo);
    sesion.Abrir(Ejemplo(ejemplo));
    vivo.Empezar(sesion.Gestor());
    Acabar();
    ASSERT_EQ(vivo.EnQue(), CalculoVivo::Estado::Hecho) << vivo.Fallo();
    EXPECT_FALSE(sesion.Caso().GetCalculo() && sesion.Caso().GetCalculo()->Calculado());
    Progreso progreso;
    Entorno entorno{ficheros, mensajes, progreso};
    CalcularProyecto(sesion.GestorParaCalcular(), entorno);
    EXPECT_EQ(*vivo.Resumen(), ResumirCaso(*sesion.Caso().GetCalculo()));
  }
}

TEST_F(Vivo, SiguePorDondeIbaYDiceQueLoImpide) {
  sesion.Abrir(Ejemplo("vivienda_unifamiliar_D3.xml"));
  vivo.Empezar(sesion.Gestor());
  EXPECT_TRUE(vivo.Avanzar(std::chrono::milliseconds(0)));
  EXPECT_EQ(vivo.EnQue(), CalculoVivo::Estado::Calculando);
  vivo.Empezar(sesion.Gestor());  // otra edición: empieza de nuevo
  Acabar();
  const auto antes = vivo.Resumen();
  ASSERT_TRUE(antes.has_value());
  Poner("MuroExt[1]/U_Muro_ext_W_m2K", "2");
  vivo.Empezar(sesion.Gestor());
  Acabar();
  EXPECT_GT(vivo.Resumen()->demandaCalefaccion, antes->demandaCalefaccion);
  EXPECT_EQ(vivo.Anterior(), antes);
  Poner("Volumen_total_m3", "10");
  vivo.Empezar(sesion.Gestor());
  EXPECT_EQ(vivo.EnQue(), CalculoVivo::Estado::Rechazado);
  ASSERT_TRUE(vivo.Motivo().has_value());
  EXPECT_EQ(vivo.Motivo()->pagina, PaginaProyecto::Global);
}

}  // namespace
}  // namespace novex
