#include <gtest/gtest.h>

#include <set>

#include "base/ErrorFichero.h"
#include "files/AccesoCampos.h"
#include "files/CaminoXml.h"
#include "files/ComunidadAutonoma.h"
#include "files/ProyectoFichero.h"
#include "files/SeccionesProyecto.h"
#include "model/Cambios.h"

namespace novex {
namespace {

using pruebas::En;
using pruebas::Texto;

XMLNode Nodo(const std::string& contenido) {
  return XMLNode::parseString("<Novex>" + contenido + "</Novex>", "Novex", "caso");
}

XMLNode Escrito(const Edificio& edificio, const DatosDerivados::Caso& derivados = {},
                bool primero = true) {
  XMLNode casos = XMLNode::createTop("x").appendChild("casos");
  EscribirCaso(casos, edificio, primero, derivados);
  return casos.childAt(0);
}

class SeccionesProyecto : public ::testing::Test {
 protected:
  void Leer(const std::string& contenido, std::string_view version = kVersionActual) {
    LeerCaso(Nodo("<Version name=\"" + std::string(version) + "\"/>" + contenido), edificio_,
             mensajes_, &informe_);
  }
  const DatosGenerales& Generales() const { return edificio_.GetDatosGenerales(); }

  Edificio edificio_;
  RegistroMensajes mensajes_;
  InformeLectura informe_;
};

TEST_F(SeccionesProyecto, LoQueFaltaVaciaOConservaSegunLaSeccion) {
  Leer("<Obstaculos_remotos><Sur_Altura name=\"4\"/></Obstaculos_remotos>");
  EXPECT_EQ(edificio_.GetRecinto(0).Suelo_habitable_m2, 0.0F);
  EXPECT_EQ(edificio_.GetConstruccion().Espesor_forjado, 0.0F);
  EXPECT_EQ(Generales().Tipon50, "");
  EXPECT_EQ(Generales().PSuciedad_FV, 0.0F);
  // Conservan el valor del caso en blanco.
  EXPECT_EQ(edificio_.GetConstruccion().Def_Puentes_termicos, 5);
  EXPECT_EQ(edificio_.GetConstruccion().Profundidad_muro_enterrado_m[1], 1.0F);
  EXPECT_EQ(edificio_.GetConstruccion().suelosTerreno[2].Tipo_aislamiento_suelo, "SinAislamiento");
  EXPECT_EQ(Generales().Temaxrec, 30.0F);
  EXPECT_EQ(Generales().RendVentToma, 0.6F);
  EXPECT_EQ(edificio_.GetVentilacion().tipologias[0].N_dormitorios_dobles, 1);
  EXPECT_EQ(edificio_.NumeroHuecos(), 1U);
  // Los obstáculos fuera de los datos generales también se leen.
  EXPECT_EQ(edificio_.GetObstaculosRemotos().Sur_Altura, 4.0F);
  EXPECT_TRUE(mensajes_.recibidos.empty());
}

TEST_F(SeccionesProyecto, LosVariosYLasInstalacionesComparteCampos) {
  Leer(
      "<Datos_Uso><Varios WRecuperadorr=\"40\" Teminrec=\"12\" HRmin=\"35\"/></Datos_Uso>"
      "<Instalaciones><Teminrec name=\"13,5\"/><HRmin name=\"\"/></Instalaciones>");
  EXPECT_EQ(Generales().WRecuperadorr, 40.0F);
  EXPECT_EQ(Generales().Teminrec, 13.5F);
  EXPECT_EQ(Generales().HRmin, 0.0F);
  EXPECT_EQ(Generales().TminImp, 14.0F);
}

TEST_F(SeccionesProyecto, LosTiposSeLeenPorPosicionYSeCuentan) {
  Leer(
      "<Muros><NColorMurosExt name=\"2\"/><MurosExt>"
      "<MuroExt><Muro_ext_sur_m2 name=\"12.5\"/><RMuroExt1Reh name=\"1\"/></MuroExt>"
      "<MuroExt><Muro_ext_sur_m2 name=\"7\"/><RMuroExt1Reh name=\"1\"/>"
      "<U_Muro_ext_W_m2K name=\"0.4\"/></MuroExt></MurosExt>"
      "<MurosOtros><o/><o><Orientacion_Otro_Local name=\"SurEste\"/>"
      "<Renovacion_Otro_Local name=\"renovh=5\"/></o>"
      "<o><Muro_adiabatico_m2 name=\"3\"/></o></MurosOtros></Muros>"
      "<Cubiertas><CubiertasHz><c><RMuroExt1 name=\"1\"/></c><c><RMuroExt2 name=\"1\"/>"
      "<RCubiertaExt2Reh name=\"0\"/></c></CubiertasHz></Cubiertas>");
  const Recinto& z = edificio_.GetRecinto(0);
  const Construccion& k = edificio_.GetConstruccion();
  EXPECT_EQ(k.NColorMurosExt, 2);
  EXPECT_EQ(k.MurosExt, 2);
  EXPECT_EQ(k.MurosOtros, 2);
  EXPECT_EQ(k.SuelosOtros, 0);
  EXPECT_EQ(z.Muro_ext_m2[0][sur], 12.5F);
  EXPECT_EQ(z.Muro_ext_m2[1][sur], 7.0F);
  EXPECT_EQ(z.RMuroExtReh, (std::array<int, 5>{1, 0, 0, 0, 0}));
  EXPECT_EQ(edificio_.GetComposicion(ranura::MuroExt2).U, 0.4F);
  EXPECT_EQ(k.Orientacion_Otro_Local[1], 4);
  EXPECT_EQ(k.Renovacion_Otro_Local[1], 3);
  EXPECT_EQ(k.CubiertasHz, 2);
  EXPECT_EQ(z.RCubiertaExtReh, (std::array<int, 3>{1, 0, 0}));
}

TEST_F(SeccionesProyecto, LosNumerosImposiblesSonCeroConAviso) {
  Leer(
      "<Datos_Generales><PerfilUso name=\"99\"/><mesmin name=\"-1\"/><asnm name=\"1e12\"/>"
      "<latitud name=\"1e999\"/></Datos_Generales>"
      "<Datos_Uso><Enero C1=\"10\" C2=\"9\"/></Datos_Uso>"
      "<Huecos><Hueco><Numero_ventanas_norte name=\"1e9\"/><Numero_ventanas_sur name=\"-3\"/>"
      "<Numero_ventanas_este name=\"abc\"/><Numero_lucernarios_Hz name=\"2.9\"/>"
      "<Indice_tipo_cristal name=\"6\"/></Hueco></Huecos>");
  EXPECT_EQ(Generales().PerfilUso, 0);
  EXPECT_EQ(edificio_.GetLocalizacion().mesmin, 0);
  EXPECT_EQ(edificio_.GetLocalizacion().asnm, 0);
  EXPECT_EQ(edificio_.GetLocalizacion().latitud, 0.0F);
  EXPECT_EQ(Generales().perfiles.calendario[0], 0);
  EXPECT_EQ(Generales().perfiles.calendario[1], 9);
  EXPECT_EQ(edificio_.GetHuecos(0).NumeroTotal(), 2U);
  // Una posición fuera de su lista se conserva: el motor la trata por su valor por defecto.
  EXPECT_EQ(edificio_.GetHuecos(0).Indice_tipo_cristal, 6);
  ASSERT_EQ(mensajes_.recibidos.size(), 8U);
  EXPECT_EQ(mensajes_.recibidos[3].titulo, "Valor incorrecto");
  EXPECT_EQ(mensajes_.recibidos[7].titulo, "Se espera un nº real y no una letra");
}

TEST_F(SeccionesProyecto, LasListasDesmedidasSeRechazan) {
  std::string grupos;
  for (int i = 0; i < 1001; ++i) grupos += "<Hueco/>";
  EXPECT_THROW(Leer("<Huecos>" + grupos + "</Huecos>"), ErrorFichero);
  std::string llenos;
  for (int i = 0; i < 11; ++i) llenos += "<Hueco><Numero_ventanas_norte name=\"9999\"/></Hueco>";
  EXPECT_THROW(Leer("<Huecos>" + llenos + "</Huecos>"), ErrorFichero);
  std::string materiales;
  for (int i = 0; i < 5001; ++i) materiales += "<Material/>";
  EXPECT_THROW(Leer("<Capas_materiales>" + materiales + "</Capas_materiales>"), ErrorFichero);
}

TEST_F(SeccionesProyecto, LosMaterialesIgualesSonUnoYLasCapasMalasSeDicen) {
  const auto material = [](const char* nombre, const char* espesor) {
    return std::string("<Material><Material name=\"") + nombre + "\"/><Espesor name=\"" + espesor +
           "\"/><Conductividad name=\"0.5\"/></Material>";
  };
  Leer(
      "<Capas_materiales>" + material("A", "0.1") + material("A", "0,10") + material("A", "0.2") +
      "</Capas_materiales><Composiciones><Aplicacion name=\"NoExiste\"><IndiceMaterial name=\"0\"/>"
      "</Aplicacion><Aplicacion name=\"TechoInc2\"><NombreComposicion name=\"\"/>"
      "<IndiceMaterial name=\"2\"/><IndiceMaterial name=\"1\"/><IndiceMaterial name=\"3\"/>"
      "<IndiceMaterial name=\"-1\"/></Aplicacion></Composiciones>");
  ASSERT_EQ(edificio_.NumeroMateriales(), 2U);
  EXPECT_EQ(edificio_.GetMaterial(0).usos, 1);
  const composicion& c = edificio_.GetComposicion(ranura::TechoInc2);
  EXPECT_EQ(c.nombre, "No definido");
  ASSERT_EQ(c.capas.size(), 2U);
  EXPECT_EQ(c.capas[0]->Espesor, 0.2F);
  EXPECT_EQ(c.capas[1]->Espesor, 0.1F);
  EXPECT_EQ(mensajes_.recibidos.size(), 2U);
}

TEST_F(SeccionesProyecto, UnTextoDesconocidoConservaSusBlancosYSusCierres) {
  Leer(
      "<Instalaciones><Tipo_sistema><a><![CDATA[ x ]]></a><b><![CDATA[  ]]></b>"
      "<c>&#32;y<d/>&amp;]]></c><e>&#9;]]>z]]></e></Tipo_sistema></Instalaciones>");
  const std::vector<std::string> textos = {" x ", "  ", " y&]]>", "\t]]>z]]>"};
  for (int vuelta = 0; vuelta < 2; ++vuelta) {
    const auto& campos = edificio_.GetSistema(0).instalaciones[0].campos;
    ASSERT_EQ(campos.size(), textos.size());
    for (std::size_t i = 0; i < textos.size(); ++i) EXPECT_EQ(campos[i].texto, textos[i]) << vuelta;
    const std::string escrito = Escrito(edificio_).childNamed("Instalaciones").toString();
    edificio_.BorrarSistema(0);
    Leer(escrito);
  }
}

TEST_F(SeccionesProyecto, LosSistemasConservanLoQueNoConocenYPierdenLosResultados) {
  Leer(
      "<Instalaciones><Recuperador name=\"ConFreecooling\"/>"
      "<Tipo_sistema><Tipo_sistema name=\"ACS\"/><Nombre_sistema name=\"Uno\"/>"
      "<Sup_ACS name=\"12,345\"/><Seleccion name=\"1 Caldera\"/><Otro name=\"1\"/>"
      "<ConsumoEmisor name=\"x\"/><SCOP name=\"2.65\"/><CaudalGEN2 name=\"3\"/>"
      "<SCOPEstacionalACS_1 name=\"4\"/><Caudal2BombaSBZ name=\"5\"/>"
      "<ConsumoVentUTC name=\"6\"/><Fabricante name=\"Defecto\"/><Otro name=\"2\"/>"
      "<gC2 name=\"-0.00000800\"/></Tipo_sistema></Instalaciones>");
  EXPECT_EQ(Generales().Recuperador, "SensibleConBypass");
  EXPECT_EQ(mensajes_.recibidos.size(), 1U);
  ASSERT_EQ(edificio_.NumeroSistemas(), 1U);
  SistemaResidencial& s = edificio_.GetSistema(0);
  EXPECT_EQ(s.Sup_ACS, 12.345F);
  ASSERT_EQ(s.instalaciones.size(), 1U);
  const Instalaciones& g = s.instalaciones[0];
  EXPECT_EQ(g.Seleccion, "1 Caldera");
  EXPECT_EQ(g.ConsumoEmisor, "x");
  EXPECT_EQ(g.SCOP, 2.65F);
  EXPECT_EQ(g.GEN2.Caudal, 3.0F);
  EXPECT_EQ(g.curvas.gC[2], -8e-6F);
  ASSERT_EQ(g.campos.size(), 2U);
  EXPECT_EQ(g.campos[1].atributos[0].second, "2");

  // Tres bloques del mismo sistema son tres elementos con su nombre.
  s.instalaciones.resize(3);
  DatosDerivados::Caso derivados;
  derivados.resultadosSistemas = {{{"SCOPEstacionalACS_1", "3.10"}}};
  const XMLNode instalaciones = Escrito(edificio_, derivados).childNamed("Instalaciones");
  std::size_t i = 0;
  const std::string primero = instalaciones.childNamed("Tipo_sistema", &i).toString(false);
  EXPECT_TRUE(
      primero.starts_with("<Tipo_sistema><Tipo_sistema name=\"ACS\"/><Nombre_sistema name=\"Uno\"/>"
                          "<Sup_ACS name=\"12.35\"/><Sup_Calefaccion name=\"0.00\"/>"
                          "<Sup_Refrigeracion name=\"0.00\"/><Seleccion name=\"1 Caldera\"/>"));
  EXPECT_NE(primero.find("<CombEst name=\"\"/><SCOPEstacionalACS_1 name=\"3.10\"/>"
                         "<Fabricante name=\"Defecto\"/>"),
            std::string::npos);
  EXPECT_TRUE(primero.ends_with(
      "<gC3 name=\"0.00000000\"/><TeCambio name=\"0.00000000\"/><Otro name=\"1\"/>"
      "<Otro name=\"2\"/></Tipo_sistema>"));
  for (int k = 0; k < 2; ++k)
    EXPECT_EQ(TextoDeHijo(instalaciones.childNamed("Tipo_sistema", &i), "Nombre_sistema"), "Uno");
  EXPECT_TRUE(instalaciones.childNamed("Tipo_sistema", &i).isEmpty());
}

TEST_F(SeccionesProyecto, UnMemoDeMasDeCuarentaLineasSeCortaConAviso) {
  const auto memo = [](const std::string& cual, int lineas) {
    std::string texto = "<" + cual + ">";
    for (int i = 1; i <= lineas; ++i) texto += "<Linea name=\"" + std::to_string(i) + "\"/>";
    return texto + "</" + cual + ">";
  };
  Leer("<Definicion>" + memo("Memo1", 40) + memo("Memo2", 41) + "</Definicion>");
  EXPECT_EQ(Generales().Memo[1].size(), 40U);
  EXPECT_EQ(Generales().Memo[2].size(), 40U);
  EXPECT_EQ(Generales().Memo[2].back(), "40");
  ASSERT_EQ(mensajes_.recibidos.size(), 1U);
  EXPECT_EQ(mensajes_.recibidos[0].titulo, "ATENCION");
  EXPECT_NE(mensajes_.recibidos[0].texto.find("Memo2"), std::string::npos);
}

TEST_F(SeccionesProyecto, LosMemosYLasFechasSoloLlevanLoQueSeUsa) {
  pruebas::CambiarGenerales(edificio_, [](DatosGenerales& d) {
    d.Memo[0].assign(40, "");
    d.Memo[0][29] = "última";
    d.Memo[1].assign(60, "x");
    d.NumeroVisitas = 1;
    d.FechaVisita = {"1/1/2026", "2/2/2026", ""};
  });
  const XMLNode definicion = Escrito(edificio_).childNamed("Definicion");
  EXPECT_EQ(definicion.childNamed("Memo0").childCount(), 30U);
  EXPECT_EQ(definicion.childNamed("Memo1").childCount(), 40U);
  EXPECT_TRUE(definicion.childNamed("Memo3").isEmpty());
  EXPECT_FALSE(definicion.childNamed("Memo7").isEmpty());
  EXPECT_EQ(TextoDeHijo(definicion, "FechaVisita1"), "1/1/2026");
  EXPECT_EQ(definicion.childNamed("FechaVisita2").attributeValue("name"), "");
  // Guardar no cambia el modelo.
  EXPECT_EQ(Generales().FechaVisita[1], "2/2/2026");
}

TEST_F(SeccionesProyecto, LoDerivadoSigueAlPerfilYALaProteccion) {
  pruebas::CambiarGenerales(edificio_, [](DatosGenerales& d) {
    d.PerfilUso = 1;
    d.TipoVentilacion2 = "Mecanica";
    d.GradoProteccion = "Ninguna";
    d.Reforma = "Reforma >25% envolvente ";
    d.Uso = "Otro";
  });
  Ventilacion v;
  v.tipologias[0].N_viviendas = 0;
  v.tipologias[2].N_viviendas = 8;
  edificio_.SetVentilacion(v);
  pruebas::PonerLugar(edificio_, "D3", "Valencia/València");
  SistemaResidencial s;
  s.Tipo_sistema = "ACS+Calefaccion";
  edificio_.AnadirSistema(s);
  const XMLNode novex = Escrito(edificio_);
  const XMLNode datos = novex.childNamed("Datos_Generales");
  EXPECT_EQ(datos.childNamed("NumUnidadesUso").textAt(0), "8");
  EXPECT_TRUE(datos.childNamed("ElementosInalterables").isEmpty());
  EXPECT_EQ(TextoDeHijo(datos, "Reforma"), "Reforma >25% envolvente");
  EXPECT_EQ(TextoDeHijo(datos, "ComunidadAutonoma"), "Comunidad Valenciana");
  std::size_t i = 0;
  EXPECT_EQ(datos.childNamed("Uso", &i).attributeValue("name"), "Otro");
  EXPECT_EQ(datos.childNamed("Uso", &i).attributeValue("name"), "ResidencialPrivado");
  EXPECT_EQ(Texto(novex, "DatosCertificado/Escala"), "ViviendaBloque");
  EXPECT_EQ(En(novex, "Datos_Globales/Tipologias").childCount(), 2U);
  EXPECT_EQ(Texto(novex, "Datos_Globales/Modelo/Espacios/Espacio/TieneCal"), "Si");
  EXPECT_EQ(Texto(novex, "Datos_Globales/Modelo/Espacios/Espacio/TieneRef"), "No");
  const XMLNode instalaciones = novex.childNamed("Instalaciones");
  EXPECT_FALSE(instalaciones.childNamed("Caudal2Vent").isEmpty());
  i = 0;
  for (int vez = 0; vez < 2; ++vez)
    EXPECT_TRUE(instalaciones.childNamed("ConsumoVentilacionAExt", &i));
  pruebas::CambiarGenerales(edificio_, [](DatosGenerales& d) { d.PerfilUso = 3; });
  EXPECT_TRUE(Escrito(edificio_).childNamed("Instalaciones").childNamed("Caudal2Vent").isEmpty());
}

TEST_F(SeccionesProyecto, ElModoDeTrabajoSigueAlTipoDeCertificado) {
  for (const auto& [tipo, modo] : {std::pair{"ProyectoNuevaConstruccion", "Nuevo"},
                                   {"ObraNuevaConstruccion", "Nuevo"},
                                   {"ObraReforma", "Existente"},
                                   {"ProyectoAmpliacion", "Existente"},
                                   {"", "Existente"}}) {
    Leer("<Datos_Generales><TipoCertificado name=\"" + std::string(tipo) +
         "\"/><Reforma name=\"Reforma &lt;25% \"/></Datos_Generales>");
    EXPECT_EQ(Generales().Modo_trabajo, modo) << tipo;
    EXPECT_EQ(Generales().Reforma, "Reforma <25%");
  }
  // El estudio se lee también de las medidas de mejora.
  Leer(
      "<MedidasMejora><SinPosibilidadMejora>No</SinPosibilidadMejora>"
      "<m name=\"26\" precio=\"1500\" amortizacion=\"7\"/><m name=\"x\"/></MedidasMejora>");
  ASSERT_EQ(edificio_.GetEstudioModificaciones().medidas.size(), 1U);
  EXPECT_EQ(edificio_.GetEstudioModificaciones().medidas[0],
            (MedidaEstudio{26, false, "1500", "7", {}}));
}

TEST(ComunidadAutonoma, CadaProvinciaTieneLaSuya) {
  EXPECT_EQ(ComunidadAutonomaDe("Las Palmas"), "Canarias");
  EXPECT_EQ(ComunidadAutonomaDe("Álava"), "País Vasco");
  EXPECT_EQ(ComunidadAutonomaDe("Madrid"), "Comunidad de Madrid");
  EXPECT_EQ(ComunidadAutonomaDe("Atlántida"), "");
}

class AccesoCampos : public ::testing::Test {
 protected:
  bool poner(const char* direccion, const char* texto) {
    return PonerCampo(edificio, direccion, texto, mensajes);
  }
  Edificio edificio;
  RegistroMensajes mensajes;
};

TEST_F(AccesoCampos, CadaCampoSeLeeYSeVuelveAPoner) {
  edificio.AnadirSistema({});
  edificio.GetSistema(0).instalaciones.emplace_back();
  const auto direcciones = DireccionesDeCampos(edificio);
  EXPECT_EQ(std::set<std::string>(direcciones.begin(), direcciones.end()).size(),
            direcciones.size());
  EXPECT_GT(direcciones.size(), 400U);
  LectorCampos lector(edificio);
  for (const std::string& direccion : direcciones) {
    SCOPED_TRACE(direccion);
    ASSERT_TRUE(BuscarDatosCampo(direccion).has_value());
    EXPECT_TRUE(lector.Valor(direccion).has_value());
  }
}

TEST_F(AccesoCampos, PoneNumerosTextosListasYElementosDeLista) {
  EXPECT_TRUE(poner("MuroExt[2]/Muro_ext_sur_m2", "12,5"));
  EXPECT_EQ(edificio.GetRecinto(0).Muro_ext_m2[1][sur], 12.5F);
  EXPECT_TRUE(poner("Hueco[1]/Ancho_m", "1.237"));  // sin perder el tercer decimal
  EXPECT_EQ(edificio.GetHuecos(0).Ancho_m, 1.237F);
  EXPECT_TRUE(poner("Tipologia[2]/N_viviendas", "3"));
  EXPECT_EQ(edificio.GetVentilacion().tipologias[1].N_viviendas, 3);
  EXPECT_TRUE(poner("Edificio_Titulo", "Casa"));
  EXPECT_TRUE(poner("Existencia_pilares", "Sin pilares"));
  EXPECT_EQ(edificio.GetConstruccion().Existencia_pilares, 1);
  EXPECT_TRUE(mensajes.recibidos.empty());

  EXPECT_FALSE(poner("Existencia_pilares", "Quizá"));
  EXPECT_FALSE(poner("Hueco[9]/Ancho_m", "1"));
  EXPECT_FALSE(poner("Tipo_sistema[1]/QcalorCaldera1", "1"));  // no hay sistemas
  EXPECT_FALSE(poner("No_existe", "1"));
  EXPECT_EQ(LectorCampos(edificio).Valor("Hueco[0]/Ancho_m"), std::nullopt);

  EXPECT_TRUE(poner("Volumen_total_m3", "abc"));  // se sustituye, con su aviso
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
}

TEST_F(AccesoCampos, LasColumnasDeUnGrupoDeHuecos) {
  edificio.AnadirHuecos({});
  EXPECT_TRUE(poner("Hueco[2]/Numero_ventanas_sur_oeste", "3"));
  EXPECT_TRUE(poner("Hueco[2]/Numero_lucernarios_Hz", "2"));
  EXPECT_TRUE(poner("Hueco[2]/Separacion_ventanas_vertical_sur", "2,7"));
  EXPECT_TRUE(poner("Hueco[2]/Ventana_sur_altura_obstaculo_sur_este", "4"));
  EXPECT_TRUE(poner("Hueco[2]/Ventana_este_distancia_obstaculo_sur_este", "5.25"));
  const Huecos& g = edificio.GetHuecos(1);
  EXPECT_EQ(g.columnas[sur_oeste].recintos.size(), 3U);
  EXPECT_EQ(g.columnas[kColumnaHorizontal].recintos.size(), 2U);
  EXPECT_EQ(g.columnas[sur].Separacion_ventanas_vertical, 2.7F);
  EXPECT_EQ(g.columnas[sur].obstaculos[2].altura, 4.0F);       // suroeste, sur, sureste
  EXPECT_EQ(g.columnas[este].obstaculos[0].distancia, 5.25F);  // sureste, este
  EXPECT_EQ(edificio.GetHuecos(0), Huecos{});
  LectorCampos lector(edificio);
  EXPECT_EQ(lector.Valor("Hueco[2]/Numero_ventanas_sur_oeste"), "3");
  EXPECT_EQ(lector.Valor("Hueco[2]/Separacion_ventanas_vertical_sur"), "2.70");
  EXPECT_TRUE(mensajes.recibidos.empty());
  EXPECT_TRUE(poner("Hueco[2]/Numero_ventanas_sur_oeste", "1000"));  // hasta 999
  EXPECT_EQ(g.columnas[sur_oeste].recintos.size(), 0U);
  EXPECT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_FALSE(poner("Hueco[3]/Numero_ventanas_sur", "1"));
  // Al norte no hay sol que tapar.
  EXPECT_FALSE(poner("Hueco[2]/Separacion_ventanas_vertical_norte", "1"));
}

}  // namespace
}  // namespace novex
