#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "base/ErrorFichero.h"
#include "base/Texto.h"
#include "files/CaminoXml.h"
#include "files/CarpetaTemporal.h"
#include "files/TextoAntiguo.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using namespace pruebas;
using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const Mensaje kAvisoLectura = {
    "AVISO",
    "Está leyendo un fichero de anteriores versiones. Debe comprobar los datos del certificador, "
    "la localidad en la que se situa el edificio y el valor de litros día consumido de ACS"};
const Mensaje kSinSitio = {"No se abre ningún fichero nuevo",
                           "El nº total de edificios sería mayor de 6"};

class FicheroTexto : public testing::Test {
 protected:
  ProyectoAbierto Abrir(const fs::path& ruta, ModoApertura modo = ModoApertura::Nuevo) {
    mensajes_.recibidos.clear();
    return AbrirProyecto(gestor_, ruta, modo, mensajes_);
  }
  ProyectoAbierto AbrirTexto(const std::string& texto, const std::string& nombre = "p.txt") {
    std::ofstream(carpeta_ / nombre, std::ios::binary) << texto;
    return Abrir(carpeta_ / nombre);
  }
  XMLNode Guardado(std::size_t caso = 0) {
    const fs::path ruta = GuardarProyecto(gestor_, carpeta_ / "g.xml");
    const XMLNode casos =
        En(XMLNode::loadFile(ruta, "DatosEnergeticosDelEdificio"), "DatosPersonalizados");
    return casos.childAt(caso);
  }
  const Edificio& Base() const { return *gestor_.Caso("Viejo"); }
  const DatosGenerales& Generales() {
    generales_ = Base().GetDatosGenerales();
    return generales_;
  }

  CarpetaTemporal carpeta_;
  GestorEdifActivo gestor_;
  RegistroMensajes mensajes_;
  DatosGenerales generales_;
};

struct EjemploTexto {
  std::string fichero;
  std::vector<std::string> esperados;  // uno por caso
};

class EjemplosDeTexto : public FicheroTexto, public testing::WithParamInterface<EjemploTexto> {};

TEST_P(EjemplosDeTexto, CadaEtiquetaLlegaASuCampoYVuelve) {
  const ProyectoAbierto r = Abrir(kTextosAntiguos / GetParam().fichero);
  ASSERT_TRUE(r.abierto);
  ASSERT_EQ(r.casos.size(), GetParam().esperados.size());
  EXPECT_THAT(mensajes_.recibidos, ElementsAre(kAvisoLectura));
  for (std::size_t i = 0; i < r.casos.size(); ++i) {
    const XMLNode caso = Guardado(i);
    const auto esperados = Esperados(GetParam().esperados[i]);
    EXPECT_GT(esperados.size(), 440U);
    for (const auto& [camino, valor] : esperados)
      EXPECT_EQ(ValorEn(caso, camino), valor) << r.casos[i] << " " << camino;
  }
  // El ejemplo tiene todas las etiquetas y ninguna más.
  EXPECT_THAT(r.informe.saltados, Each(HasSubstr("un proyecto de hoy no lo guarda")));
  EXPECT_THAT(r.informe.porDefecto, Each(testing::Not(HasSubstr("no está"))));

  const std::string primero = LeerFichero(GuardarProyecto(gestor_, carpeta_ / "1.xml"));
  GestorEdifActivo otro;
  AbrirProyecto(otro, carpeta_ / "1.xml", ModoApertura::Nuevo, mensajes_);
  EXPECT_TRUE(LeerFichero(GuardarProyecto(otro, carpeta_ / "2.xml")) == primero);
}

INSTANTIATE_TEST_SUITE_P(Generaciones, EjemplosDeTexto,
                         testing::Values(EjemploTexto{"primera.txt", {"primera"}},
                                         EjemploTexto{"segunda.txt", {"segunda"}},
                                         EjemploTexto{"tercera.txt", {"tercera"}},
                                         EjemploTexto{"indices.txt",
                                                      {"indices", "indices_M1", "indices_M2"}}));

// Lo que el fichero de hoy no guarda se comprueba en los registros.
TEST_F(FicheroTexto, CamposQueElFicheroDeHoyNoGuarda) {
  Abrir(kTextosAntiguos / "segunda.txt");
  const DatosGenerales& d = Generales();
  EXPECT_EQ(d.Version, "NOVEX v6.1");
  EXPECT_EQ(d.Modo_trabajo, "Existente");
  EXPECT_EQ(d.Uso_fotovoltaico, "Refrigeracion");
  EXPECT_EQ(d.NExpedienteP, "EXP-P-2");
  EXPECT_EQ(d.NExpediente_ICE, "EXP-ICE-2");
  EXPECT_EQ(d.Proyectista_Apellidos, "Núñez Ibáñez");
  EXPECT_EQ(d.Proyectista_Nombre, "Begoña");
  EXPECT_EQ(d.Proyectista_Direccion, "Plaza Mayor 7");
  EXPECT_EQ(d.Proyectista_NIF, "12345672Z");
  EXPECT_EQ(d.Proyectista_CP, "03002");
  EXPECT_EQ(d.Proyectista_Localidad, "Elx");
  EXPECT_EQ(d.Proyectista_Provincia, "Alicante/Alacant");
  EXPECT_EQ(d.Proyectista_Telefono, "965000002");
  EXPECT_EQ(d.Proyectista_email, "b2@ejemplo.es");
  EXPECT_EQ(d.Proyectista_Empresa, "Estudio Ñ y 2");
  EXPECT_EQ(d.Proyectista_Colegio_Profesional, "COA 2");
  EXPECT_EQ(d.Proyectista_Profesion, "Arquitecta 2");
  EXPECT_TRUE(d.Certificador_Nombre.empty());
  const Localizacion& l = Base().GetLocalizacion();
  EXPECT_EQ(l.indiceProvincia, 46);
  EXPECT_EQ(l.indiceCiudad, 1);
  EXPECT_EQ(l.Localidad, "Localidad 2");
  EXPECT_EQ(Base().GetRecinto(0).nombre, "Zona de día 2");
  const Construccion c = Base().GetConstruccion();
  EXPECT_EQ(std::vector({c.CubiertasHz, c.CubiertasIncl, c.CubiertasOtras, c.MurosExt, c.MurosOtros,
                         c.SuelosTerreno, c.SuelosOtros}),
            (std::vector{3, 3, 2, 5, 2, 3, 2}));

  Abrir(kTextosAntiguos / "tercera.txt");
  EXPECT_EQ(Generales().NormativaVigente, "Ordenanza 3");
  EXPECT_EQ(Generales().ReferenciaCatastral, "9872023VH5797S0001W3");
  EXPECT_EQ(Generales().Certificador_Telefono, "965000003");
  EXPECT_EQ(Generales().Certificador_Colegio_Profesional, "COA 3");
  EXPECT_EQ(Base().NumeroSistemas(), 0U);
  EXPECT_TRUE(Base().GetInstalaciones() == Instalaciones{});
}

TEST_F(FicheroTexto, CortadoPorCualquierLineaDejaLoLeido) {
  const std::string entero = LeerFichero(kTextosAntiguos / "segunda.txt");
  const XMLNode completo = (Abrir(kTextosAntiguos / "segunda.txt"), Guardado());
  const auto esperados = Esperados("segunda");
  std::size_t anterior = 0, lineas = 0, leidos = 0;
  for (std::size_t fin = 0; (fin = entero.find("\r\n", fin)) != std::string::npos; fin += 2) {
    // Cada corte se abre; contar los valores, que es más largo, se hace de cuando en cuando.
    if (++lineas < 4) {
      EXPECT_THROW(AbrirTexto(entero.substr(0, 10)), ErrorFichero);
      continue;
    }
    ASSERT_TRUE(AbrirTexto(entero.substr(0, fin)).abierto) << lineas;
    if (lineas % 100 != 0) continue;
    const XMLNode caso = Guardado();
    leidos = static_cast<std::size_t>(
        std::count_if(esperados.begin(), esperados.end(),
                      [&](const auto& par) { return ValorEn(caso, par.first) == par.second; }));
    EXPECT_GT(leidos, anterior) << lineas;
    anterior = leidos;
  }
  EXPECT_EQ(lineas, 1216U);
  EXPECT_GT(leidos, 400U);
}

// Un fichero estropeado al azar se abre o da un error de fichero, y lo que queda de él se guarda y
// se vuelve a leer.
TEST_F(FicheroTexto, EstropeadoAlAzarNoCae) {
  std::mt19937 azar(20260930);
  const auto hasta = [&azar](std::size_t n) {
    return std::uniform_int_distribution<std::size_t>(0, n - 1)(azar);
  };
  for (const char* ejemplo : {"primera.txt", "segunda.txt", "tercera.txt"}) {
    const std::string entero = LeerFichero(kTextosAntiguos / ejemplo);
    for (int vez = 0; vez < 30; ++vez) {
      std::string roto = entero;
      for (std::size_t n = 1 + hasta(200); n > 0; --n) {
        const std::size_t donde = hasta(roto.size());
        switch (hasta(4)) {
          case 0:
            roto[donde] = static_cast<char>(hasta(256));
            break;
          case 1:
            roto.erase(donde, hasta(40));
            break;
          case 2:
            roto.insert(donde, "\n-99999999999999999999\n");
            break;
          default:
            roto.insert(donde, std::string(hasta(20), static_cast<char>(hasta(256))));
        }
      }
      try {
        if (!AbrirTexto(roto).abierto) continue;
        GestorEdifActivo otro;
        RegistroMensajes mensajes;
        EXPECT_TRUE(AbrirProyecto(otro, GuardarProyecto(gestor_, carpeta_ / "r.xml"),
                                  ModoApertura::Nuevo, mensajes)
                        .abierto);
      } catch (const ErrorFichero& error) {
        EXPECT_THAT(error.what(), HasSubstr("ningún edificio"));
      }
    }
    std::string ruido(20000, ' ');
    for (char& c : ruido) c = static_cast<char>(hasta(256));
    EXPECT_THROW(AbrirTexto(ruido), ErrorFichero);
  }
}

TEST_F(FicheroTexto, NumerosAbsurdosNoCrecenNiCaen) {
  const std::vector<std::string> absurdos = {"-1",          "0",    "6",   "7", "99999999",
                                             "-2147483648", "1e30", "abc", "",  "nan"};
  const std::vector<std::pair<std::string, std::string>> controles = {
      {"Datos Generales", "*[I] Numero tipologia."},
      {"Datos Globales", "*[I] Numero total recintos."},
      {"Datos Globales", "*[I] Numero del recinto."},
      {"Cubiertas", "*[I] Numero Cubierta Hz."},
      {"Muros", "*[I] Numero total tipos Muros ext."},
      {"Muros", "*[I] Numero Muros ext."},
      {"Muros", "*[I] Numero Recinto."},
      {"Suelos", "*[I] Numero Suelo Terreno."},
      {"Huecos", "*[I] Numero total grupos huecos definidos."},
      {"Huecos", "*[I] Numero grupo huecos."},
      {"Huecos", "*[I] Numero ventanas sur."},
      {"Capas materiales", "*[I] Numero capas materiales."},
      {"Capas materiales", "*[I] Indice capa material."},
      {"Composiciones", "*[I] NumeroCapa."},
      {"Composiciones", "*[I] IndiceMaterial."}};
  for (const auto& [seccion, etiqueta] : controles)
    for (const std::string& absurdo : absurdos) {
      ASSERT_TRUE(AbrirTexto(DeTercera(seccion, {etiqueta, "1", "*[S] Aplicacion.", "MuroExt1",
                                                 etiqueta, absurdo, "*[F] Muro ext. sur m2.", "5",
                                                 "*[I] Numero salas estar comedor.", "3"}))
                      .abierto);
      EXPECT_LE(Base().NumeroHuecos(), 2U) << etiqueta << absurdo;
      EXPECT_LE(Base().GetHuecos(0).NumeroTotal(), 7U) << etiqueta << absurdo;
      EXPECT_LE(Base().NumeroMateriales(), 2U) << etiqueta << absurdo;
      EXPECT_EQ(Base().NumeroRecintos(), 1U);
      EXPECT_LE(Base().GetConstruccion().MurosExt, 5);
      EXPECT_THAT(Base().GetComposicion(ranura::MuroExt1).capas, IsEmpty());
    }
  // Los datos de un elemento que no cabe no van a otro.
  const ProyectoAbierto r = AbrirTexto(
      DeTercera("Muros", {"*[I] Numero Muros ext.", "5", "*[F] Muro ext. sur m2.", "50",
                          "*[I] Numero Muros ext.", "6", "*[F] Muro ext. sur m2.", "60"}));
  EXPECT_THAT(r.informe.saltados,
              ElementsAre(HasSubstr("Línea 9: *[I] Numero Muros ext. \"6\": no hay tantos"),
                          HasSubstr("Línea 11: *[F] Muro ext. sur m2. \"60\"")));
  EXPECT_FLOAT_EQ(Base().GetRecinto(0).Muro_ext_m2[4][sur], 50);
}

TEST_F(FicheroTexto, UnaLineaDesconocidaSeSaltaYSeApunta) {
  const ProyectoAbierto r = AbrirTexto(
      DeTercera("Muros", {"basura", "*[F] Muro de carga m2.", "7", "", "*[F] U Muro ext. W/m2K.",
                          "0,65", "** Seccion.", "Sótanos.", "*[F] U Muro ext. W/m2K.", "0.9"}));
  EXPECT_FLOAT_EQ(Base().GetComposicion(ranura::MuroExt1).U, 0.65F);
  EXPECT_THAT(r.informe.saltados,
              ElementsAre("Base: Línea 5: basura \"\": no se conoce",
                          "Base: Línea 6: *[F] Muro de carga m2. \"7\": no se conoce",
                          HasSubstr("Sección Sótanos."),
                          "Base: Línea 13: *[F] U Muro ext. W/m2K. \"0.9\": no se conoce"));
  EXPECT_THAT(r.informe.porDefecto, Contains("Base: Muros: no está \"*[F] Muro ext. este m2.\""));
  EXPECT_THAT(r.informe.porDefecto, Contains("Base: Huecos: no está la sección"));
  EXPECT_THAT(mensajes_.recibidos, SizeIs(1));
}

// Ni los avisos ni el informe crecen con lo estropeado que esté el fichero.
TEST_F(FicheroTexto, MuchosErroresNoHacenMuchosAvisos) {
  std::vector<std::string> lineas;
  for (int i = 0; i < 2000; ++i)
    lineas.insert(lineas.end(), {"*[F] Volumen total m3.", "abc", "*rara", std::string(5000, 'n')});
  const ProyectoAbierto r = AbrirTexto(DeTercera("Datos Globales", lineas));
  EXPECT_EQ(mensajes_.recibidos.size(), 101U);  // cien, con el de la lectura, y cuántos más hay
  EXPECT_EQ(r.informe.saltados.size(), 501U);
  EXPECT_LT(r.informe.saltados.front().size(), 300U);
  EXPECT_THAT(r.informe.saltados.back(), HasSubstr("y más"));
}

// Una etiqueta es parte de su línea; tras la última no se lee más; un número que no lo es da el
// aviso de siempre y vale 0.
TEST_F(FicheroTexto, EtiquetasValoresYFinal) {
  AbrirTexto(
      DeTercera("Datos Globales", {"  >*[F] Suelo habitable m3.<", "81,5", "*[F] Volumen total m3.",
                                   "abc", "*[S] Final.", "*[F] Suelo habitable m3.", "1"}));
  EXPECT_FLOAT_EQ(Base().GetRecinto(0).Suelo_habitable_m2, 81.5F);
  EXPECT_FLOAT_EQ(Base().GetRecinto(0).Volumen_total_m3, 0);
  ASSERT_THAT(mensajes_.recibidos, SizeIs(2));
  EXPECT_EQ(mensajes_.recibidos[1].titulo, "Se espera un nº real y no una letra");
  // Un texto se toma entero, con sus blancos y con lo que parezca una etiqueta.
  AbrirTexto(DeTercera("Datos Generales", {"*[S] Edificio Titulo.", "  *[S] Final. de \t obra  "}));
  EXPECT_EQ(Generales().Edificio_Titulo, "  *[S] Final. de \t obra  ");
  AbrirTexto(DeTercera(
      "Puentes Termicos",
      {"*[S] Puentes termicos: No aislado/Aislado/Continuo/Dar valores/Lider.", "Aislado",
       "*[S] Puentes termicos: No aislado/Aislado/Continuo/Dar valores/Lider.", "Lider"}));
  EXPECT_EQ(Base().GetConstruccion().Def_Puentes_termicos, 5);
}

TEST_F(FicheroTexto, CodificacionesYFinalesDeLinea) {
  const std::vector<std::string> lineas = {"*Version",
                                           "NOVEX v2.0",
                                           "** Seccion.",
                                           "Datos Generales.",
                                           "*[S] Edificio Código Postal.",
                                           "46001",
                                           "*[S] Edificio Titulo.",
                                           "Año nº 1 “ñ”"};
  std::string unosBytes = Unir(lineas);
  for (const auto& [letra, byte] :
       {std::pair{"ó", '\xF3'}, {"ñ", '\xF1'}, {"º", '\xBA'}, {"“", '\x93'}, {"”", '\x94'}})
    for (std::size_t i; (i = unosBytes.find(letra)) != std::string::npos;)
      unosBytes.replace(i, std::string(letra).size(), 1, byte);
  ASSERT_FALSE(EsUtf8(unosBytes));
  for (const std::string& texto :
       {Unir(lineas), Unir(lineas, "\r\n"), Unir(lineas, "\r"), unosBytes,
        "\xEF\xBB\xBF" + Unir(lineas), "\n\r\n" + Unir(lineas)}) {
    ASSERT_TRUE(AbrirTexto(texto).abierto);
    EXPECT_EQ(Generales().CodigoPostal, "46001");
    EXPECT_EQ(Generales().Edificio_Titulo, "Año nº 1 “ñ”");
  }
  // Un fichero cortado a mitad de un carácter conserva los demás.
  const std::string entero = Unir(lineas);
  ASSERT_TRUE(AbrirTexto(entero.substr(0, entero.find("ñ”") + 1)).abierto);
  EXPECT_EQ(Generales().CodigoPostal, "46001");
}

TEST_F(FicheroTexto, LasAreasDeLosRecintosSeSuman) {
  AbrirTexto(Unir({"*[S] Version.",
                   "NOVEX v5.0",
                   "** Seccion.",
                   "Datos Globales.",
                   "*[I] Numero total recintos.",
                   "2",
                   "*[I] Numero del recinto.",
                   "1",
                   "*[S] Nombre recinto.",
                   "Salón",
                   "*[F] Carga iluminacion W/m2.",
                   "7",
                   "*[I] Numero del recinto.",
                   "2",
                   "*[S] Nombre recinto.",
                   "Cocina",
                   "*[F] Carga iluminacion W/m2.",
                   "9",
                   "** Seccion.",
                   "Muros.",
                   "*[I] Numero Muros ext.",
                   "1",
                   "*[I] Numero Recinto.",
                   "1",
                   "*[F] Muro ext. sur m2.",
                   "10",
                   "*[I] Numero Recinto.",
                   "2",
                   "*[F] Muro ext. sur m2.",
                   "4",
                   "*[F] U Muro ext. W/m2K.",
                   "0.4",
                   "*[I] Numero Muros ext.",
                   "2",
                   "*[I] Numero Recinto.",
                   "1",
                   "*[F] Muro ext. sur m2.",
                   "20",
                   "*[I] Numero Recinto.",
                   "3",
                   "*[F] Muro ext. sur m2.",
                   "500",
                   "** Seccion.",
                   "Huecos.",
                   "*[I] Numero grupo huecos.",
                   "1",
                   "*[I] Numero Recinto.",
                   "1",
                   "*[I] Numero ventanas sur.",
                   "3",
                   "*[I] Numero Recinto.",
                   "2",
                   "*[I] Numero ventanas sur.",
                   "2"}));
  const Recinto& z = Base().GetRecinto(0);
  EXPECT_EQ(z.nombre, "Salón");
  EXPECT_FLOAT_EQ(Generales().Iluminacion, 7);
  EXPECT_FLOAT_EQ(z.Muro_ext_m2[0][sur], 14);
  EXPECT_FLOAT_EQ(z.Muro_ext_m2[1][sur], 20);
  EXPECT_FLOAT_EQ(Base().GetComposicion(ranura::MuroExt1).U, 0.4F);
  EXPECT_EQ(Base().GetHuecos(0).columnas[sur].recintos.size(), 5U);
}

// La sección siguiente empieza otra vez en el primer elemento.
TEST_F(FicheroTexto, CadaSeccionCuentaDesdeElPrincipio) {
  AbrirTexto(Unir({"*[S] Version.", "NOVEX v5.0", "** Seccion.", "Datos Generales.",
                   "*[I] Numero tipologia.", "2", "*[I] Numero salas estar comedor.", "5",
                   "** Seccion.", "Datos Globales.", "*[I] Numero salas estar comedor.", "3"}));
  EXPECT_EQ(Base().GetVentilacion().tipologias[0].N_salas_estar_comedor, 3);
  EXPECT_EQ(Base().GetVentilacion().tipologias[1].N_salas_estar_comedor, 5);
}

// El formato lo dice la extensión, esté donde esté el fichero.
TEST_F(FicheroTexto, EnUnaCarpetaQueSeLlamaXml) {
  fs::create_directories(carpeta_ / "xml");
  EXPECT_TRUE(AbrirTexto(DeTercera("Muros", {}), "xml/p.txt").abierto);
}

// Las familias se cuentan desde 1 o desde 0, según su primer número.
TEST_F(FicheroTexto, LaCuentaPuedeEmpezarEnCero) {
  AbrirTexto(
      DeTercera("Suelos", {"*[I] Numero Suelo Terreno.", "0", "*[F] Suelo al terreno m2.", "10",
                           "*[I] Numero Suelo Terreno.", "2", "*[F] Suelo al terreno m2.", "30"}));
  EXPECT_THAT(Base().GetRecinto(0).Suelo_al_terreno_m2, ElementsAre(10, 0, 30));
}

TEST_F(FicheroTexto, UsoDeUnTerciarioPorSuCargaYSusHoras) {
  const auto perfil = [this](const std::string& carga, const std::string& horas) {
    AbrirTexto(
        Unir({"*[S] Version.", "NOVEX v5.0", "** Seccion.", "Datos Generales.",
              "*[S] Tipologia edificio: Unifamiliar/Bloque/Terciario.", "Terciario", "** Seccion.",
              "Datos Globales.", "*[S] Uso.", carga, "*[S] Control.", horas}));
    return Generales().PerfilUso;
  };
  EXPECT_EQ(perfil("Baja", "8 h"), 3);
  EXPECT_EQ(perfil("Alta", "12 h"), 8);
  EXPECT_EQ(perfil("Media", "24 h"), 13);
  EXPECT_EQ(perfil("", ""), 10);
  EXPECT_EQ(perfil("Docente", "siempre"), 10);
  EXPECT_EQ(Generales().Uso, "Docente");
}

TEST_F(FicheroTexto, LugarPorLasListasSoloEnSusVersiones) {
  const auto lugar = [this](const std::string& version, const std::string& provincia,
                            const std::string& ciudad, const std::string& localidad = "") {
    AbrirTexto(DeTercera(
        "Datos Geograficos/obstaculos remotos",
        {"*[I] Indice Provincia datos climáticos.", provincia,
         "*[I] Indice Ciudad datos climáticos.", ciudad, "*[S] Localidad datos climáticos.",
         localidad, "*[S] Ciudadxml.", "Elda", "*[S] Provinciaxml.", "Alicante/Alacant"},
        version));
    const Localizacion l = Base().GetLocalizacion();
    return l.Provincia + "|" + l.Municipio;
  };
  for (const char* version : {"NOVEX v2.7", "NOVEX v4.0", "NOVEX v4.1", "NOVEX v4.2"})
    EXPECT_EQ(lugar(version, "47", "18"), "Valencia/València|Valencia") << version;
  for (const char* version : {"NOVEX v2.4", "NOVEX v2.6", "NOVEX v5.0", "NOVEX v6.1"})
    EXPECT_EQ(lugar(version, "47", "18"), "Alicante/Alacant|Elda") << version;
  EXPECT_EQ(lugar("NOVEX v4.0", "47", "20", "Bétera"), "Valencia/València|Bétera");
  EXPECT_EQ(lugar("NOVEX v4.0", "47", "20"), "Valencia/València|Otra");
  EXPECT_EQ(lugar("NOVEX v4.0", "52", "0"), "|");
  EXPECT_EQ(lugar("NOVEX v4.0", "-1", "-1"), "|");
}

TEST_F(FicheroTexto, LasMejorasEstanEnUnSegundoFichero) {
  const auto caso = [](const std::string& version, const std::string& titulo) {
    std::vector<std::string> lineas = {"** Seccion.", "Datos Generales.", "*[S] Edificio Titulo.",
                                       titulo, "*[S] Final."};
    if (!version.empty()) lineas.insert(lineas.begin(), {"*[S] Version.", version});
    return Unir(lineas);
  };
  const auto titulo = [this](std::string_view nombre) {
    return gestor_.Caso(nombre)->GetDatosGenerales().Edificio_Titulo;
  };
  const std::string dos = caso("NOVEX v2.4", "Uno") + "\n" + caso("", "Dos") + "\nfin\n";
  EscribirFichero(carpeta_ / "p_M.txt", dos);
  EXPECT_THAT(AbrirTexto(caso("NOVEX v2.4", "Base")).casos,
              ElementsAre("Viejo", "Mejora_1", "Mejora_2"));
  EXPECT_EQ(titulo("Viejo"), "Base");
  EXPECT_EQ(titulo("Mejora_1"), "Uno");
  EXPECT_EQ(titulo("Mejora_2"), "Dos");
  EXPECT_EQ(gestor_.NumeroCasos(), 3U);
  // Las versiones que ya no lo llevaban no lo leen.
  EXPECT_THAT(AbrirTexto(caso("NOVEX v5.0", "Base")).casos, ElementsAre("Viejo"));
  // Un fichero sin versión es de la primera, que lo llevaba.
  EXPECT_THAT(AbrirTexto(caso("", "Base")).casos, SizeIs(3));

  // Las que no caben se dejan, con su aviso.
  std::string seis;
  for (int i = 1; i <= 6; ++i) seis += caso("NOVEX v4.0", "M" + std::to_string(i));
  EscribirFichero(carpeta_ / "p_M.txt", seis);
  EXPECT_THAT(AbrirTexto(caso("NOVEX v4.0", "Base")).casos, SizeIs(6));
  EXPECT_THAT(mensajes_.recibidos, ElementsAre(kAvisoLectura, kSinSitio));
  EXPECT_EQ(titulo("Mejora_5"), "M5");
  // Añadido a un proyecto lleno no se abre nada.
  const ProyectoAbierto lleno = Abrir(carpeta_ / "p.txt", ModoApertura::Anadir);
  EXPECT_FALSE(lleno.abierto);
  EXPECT_THAT(mensajes_.recibidos, ElementsAre(kAvisoLectura, kSinSitio));
  EXPECT_EQ(gestor_.NumeroCasos(), 6U);
  // Con dos sitios entran el edificio y su primera mejora.
  gestor_.EliminarCaso("Mejora_5");
  gestor_.EliminarCaso("Mejora_4");
  EXPECT_THAT(Abrir(carpeta_ / "p.txt", ModoApertura::Anadir).casos,
              ElementsAre("Mejora_4", "Mejora_5"));
  EXPECT_EQ(titulo("Mejora_4"), "Base");
  EXPECT_EQ(titulo("Mejora_5"), "M1");
}

TEST_F(FicheroTexto, SinNingunaSeccionNoEsUnProyecto) {
  AbrirTexto(DeTercera("Datos Generales", {"*[S] Edificio Titulo.", "Abierto"}));
  for (const char* texto : {"", "hola\n", "*[S] Version.\nNOVEX v5.0\n"})
    EXPECT_THROW(AbrirTexto(texto), ErrorFichero) << texto;
  EXPECT_THROW(Abrir(carpeta_ / "no esta.txt"), ErrorFichero);
  EXPECT_EQ(Generales().Edificio_Titulo, "Abierto");
}

TEST_F(FicheroTexto, MaterialesRepetidosYCapasQueNoEstan) {
  std::vector<std::string> lineas = {"*[S] Version.", "NOVEX v5.0", "** Seccion.",
                                     "Capas materiales."};
  for (const char* espesor : {"0.02", "0.02", "0.03", "0.02"})
    lineas.insert(lineas.end(), {"*[I] Indice capa material.", "0", "*[S] Nombre material.", "Yeso",
                                 "*[F] Espesor.", espesor, "*[F] Conductividad.", "0.4"});
  lineas.insert(lineas.end(),
                {"** Seccion.", "Composiciones.", "*[S] Aplicacion.", "TechoExt1",
                 "*[I] IndiceMaterial.", "2", "*[I] IndiceMaterial.", "3", "*[I] IndiceMaterial.",
                 "4", "*[S] Aplicacion.", "Nada1", "*[I] IndiceMaterial.", "0", "*[S] Aplicacion.",
                 "MuroExt1", "*[S] NombreComposicion.", "Sin capas"});
  const ProyectoAbierto r = AbrirTexto(Unir(lineas));
  const auto& capas = Base().GetComposicion(ranura::TechoExt1).capas;
  ASSERT_THAT(capas, SizeIs(2));
  EXPECT_EQ(capas[0]->Material, "Yeso (3cm)");
  EXPECT_EQ(capas[1]->Material, "duplicado-Yeso (2cm)");
  EXPECT_EQ(Base().GetComposicion(ranura::MuroExt1).nombre, "No definido");
  EXPECT_THAT(r.informe.saltados,
              ElementsAre(HasSubstr("\"4\": no está en los materiales"), HasSubstr("\"Nada1\""),
                          HasSubstr("de una composición que no se lee")));
}

}  // namespace
}  // namespace novex
