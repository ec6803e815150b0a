#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "CarpetaTemporal.h"
#include "files/DerivacionesAntiguas.h"
#include "files/ProyectoFichero.h"
#include "files/VersionProyecto.h"

namespace novex {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
namespace fs = std::filesystem;

const Mensaje kRecuperador{
    "AVISO", "Revisar datos consumo recuperador. Se cambia definición a partir de la versión 5.09"};
const Mensaje kSinInstalaciones{
    "AVISO Versión antigua",
    "No se leen las instalaciones, por cambiar completamente su definición"};
const Mensaje kSinCiudad{"AVISO", "No se ha identificado la ciudad/provincia"};

// Los ficheros antiguos salen de un proyecto de hoy con otra disposición: leídos son ese proyecto
// con lo que su versión cambia.
class VersionesXml : public testing::Test {
 protected:
  VersionesXml() { gestor_.NuevoProyecto(); }
  ProyectoAbierto Abrir(const std::string& nombre, ModoApertura modo = ModoApertura::Nuevo) {
    return AbrirProyecto(gestor_, fs::path(NOVEX_RAIZ_PRUEBAS) / "casos/antiguos" / nombre, modo,
                         mensajes_);
  }
  // El proyecto de hoy, con lo que todos los antiguos tienen distinto y los cambios que se digan.
  std::unique_ptr<Edificio> Moderno(const std::string& version,
                                    const std::function<void(DatosGenerales&)>& cambios) {
    GestorEdifActivo gestor;
    RegistroMensajes mensajes;
    AbrirProyecto(gestor, NOVEX_RAIZ_DATOS "/proyectos/caldera_condensacion_solar_D3.xml",
                  ModoApertura::Nuevo, mensajes);
    auto edificio = gestor.Activo().Clonar();
    DatosGenerales g = edificio->GetDatosGenerales();
    g.Version = version;
    cambios(g);
    edificio->SetDatosGenerales(std::move(g));
    ObstaculosRemotos o = edificio->GetObstaculosRemotos();
    o.Sur_Altura = 7.5F;
    o.Sur_Distancia = 20;
    edificio->SetObstaculosRemotos(o);
    DatosPantalla p = edificio->GetDatosPantalla();
    p.Registro = "DGC";
    p.referencias.clear();
    p.inalterables.clear();
    edificio->SetDatosPantalla(std::move(p));
    return edificio;
  }
  static void SinUsoNiAlcance(DatosGenerales& g) {
    g.Uso = "Otro";
    g.Alcance = "Completo";
    g.GradoProteccion = "Ninguna";
    g.ElementoInalterable = "Ninguno";
    g.NormativaEdificacion = g.NormativaInstalaciones = g.Otra_legislacion_aplicable = "";
    g.Reforma = "";
  }
  static void EsperarIguales(const Edificio& leido, const Edificio& esperado) {
    EXPECT_TRUE(leido.GetDatosGenerales() == esperado.GetDatosGenerales());
    EXPECT_TRUE(leido.GetLocalizacion() == esperado.GetLocalizacion());
    EXPECT_TRUE(leido.GetObstaculosRemotos() == esperado.GetObstaculosRemotos());
    EXPECT_TRUE(leido.GetVentilacion() == esperado.GetVentilacion());
    EXPECT_TRUE(leido.GetConstruccion() == esperado.GetConstruccion());
    EXPECT_TRUE(leido.GetDatosPantalla() == esperado.GetDatosPantalla());
    EXPECT_TRUE(MismosRegistros(leido, esperado));
  }

  GestorEdifActivo gestor_;
  RegistroMensajes mensajes_;
};

TEST_F(VersionesXml, LaSeisUnoTieneElSitioAparteYVariosCasos) {
  const ProyectoAbierto r = Abrir("v6_1.xml");
  EXPECT_THAT(r.casos, ElementsAre("Viejo", "Mejora_1"));
  EXPECT_THAT(r.casosSinUso, IsEmpty());
  EXPECT_THAT(mensajes_.recibidos, IsEmpty());
  auto primero = Moderno("NOVEXPLUS v6.1", [](DatosGenerales& g) {
    g.PerfilUso = 2;
    g.Modo_trabajo = "Existente";
    g.Reforma = "Reforma <25% envolvente + ACS";
    g.TipoCertificado = "ObraReforma";
    g.GradoProteccion = "Estructural";
    g.ElementoInalterable = "Fachada";
    g.ReferenciaCatastral = "123456789012";
    g.AnoConstruccion = "1940-1959";
    g.NormativaVigente = "Ninguna anterior";
    g.NExpedienteP = "P-17";
    g.Proyectista_Nombre = "Nombre del proyectista";
    g.Certificador_Telefono = "910000000";
  });
  DatosPantalla p = primero->GetDatosPantalla();
  p.Registro = "BFA";
  p.referencias = {{"123456789012", "", ""}};
  p.inalterables = {{"Fachada", ""}};
  primero->SetDatosPantalla(p);
  EsperarIguales(*gestor_.Caso("Viejo"), *primero);

  auto segundo = Moderno("NOVEXPLUS v6.1", [](DatosGenerales& g) {
    g.PerfilUso = 8;
    g.Tipo = "12hA";
    g.Modo_trabajo = "Existente";  // el fichero dice "Nuevo"; lo decide el tipo de certificado
    g.Reforma = "Cambio de uso";
    g.TipoCertificado = "ProyectoAmpliacion";
    g.GradoProteccion = "Ninguna";
    g.ElementoInalterable = "Ninguno";
    g.ReferenciaCatastral = "9872023VH5797S0001WX";
    g.AnoConstruccion = "ANTE-1900";
    g.Recuperador = "SensibleSinBypass";
  });
  p.Registro = "DGC";
  p.referencias = {{"9872023VH5797S", "0001WX", ""}};
  p.inalterables.clear();
  segundo->SetDatosPantalla(p);
  EsperarIguales(*gestor_.Caso("Mejora_1"), *segundo);

  EXPECT_THAT(r.informe.saltados, Contains("Base: Datos_Generales/EtiquetaQueNadieConoce"));
  EXPECT_THAT(r.informe.saltados, Contains(HasSubstr("Nº de expediente del proyecto \"P-17\"")));
  EXPECT_THAT(r.informe.cambiados, Contains(HasSubstr("\"SinFreecooling\"")));
  EXPECT_THAT(r.informe.cambiados,
              Contains("Mejora_1: Modo de trabajo: \"Nuevo\" pasa a \"Existente\""));
}

TEST_F(VersionesXml, LaCincoGuardaLasMejorasEnOtroFichero) {
  const ProyectoAbierto r = Abrir("v5_05.xml");
  EXPECT_THAT(r.casos, ElementsAre("Viejo", "Mejora_1"));
  EXPECT_THAT(mensajes_.recibidos, ElementsAre(kRecuperador));
  const auto base = [](DatosGenerales& g) {
    SinUsoNiAlcance(g);
    g.PerfilUso = 0;
    g.Modo_trabajo = g.TipoCertificado = "Existente";
    g.AnoConstruccion = "1979-2005";
    g.Recuperador = "SensibleConBypass";
    // Lo que el fichero no dice.
    g.PSuciedad_FV = 6;
    g.Control_Tmin_ST = 2;
    g.Tipon50 = "Teorico";
  };
  EsperarIguales(*gestor_.Caso("Viejo"), *Moderno("NOVEXPLUS v5.05", base));
  EXPECT_THAT(r.informe.porDefecto, Contains("Base: Tipon50: \"Teorico\""));
  const DatosGenerales& mejora = gestor_.Caso("Mejora_1")->GetDatosGenerales();
  EXPECT_EQ(mejora.Edificio_Titulo, "La mejora");
  EXPECT_EQ(mejora.AnoConstruccion, "POST-2018");
  // Añadidas, las del segundo fichero van detrás de la base; la que no cabe no se lee.
  for (int i = 0; i < 3; ++i) gestor_.AnadirMejora();
  mensajes_.recibidos.clear();
  EXPECT_THAT(Abrir("v5_05.xml", ModoApertura::Anadir).casos, ElementsAre("Mejora_5"));
  EXPECT_THAT(mensajes_.recibidos,
              ElementsAre(kRecuperador, Mensaje{"No se abre ningún fichero nuevo",
                                                "El nº total de edificios sería mayor de 6"}));
  EXPECT_FALSE(Abrir("v5_05.xml", ModoApertura::Anadir).abierto);
}

TEST_F(VersionesXml, LaCuatroNoTieneSistemasYCuentaLosDormitoriosSimples) {
  const ProyectoAbierto r = Abrir("v4_2.xml");
  EXPECT_THAT(mensajes_.recibidos, ElementsAre(kSinInstalaciones));
  auto esperado = Moderno("NOVEXPLUS v4.2", [](DatosGenerales& g) {
    SinUsoNiAlcance(g);
    g.PerfilUso = 1;
    g.Modo_trabajo = "Existente";
    g.TipoCertificado = "ProyectoAmpliacion";
    g.AnoConstruccion = "2013-2018";
    g.Certificador_Movil = g.Certificador_Telefono = "910000000";
    g.Certificador_Colegio_Profesional = "Colegio de Ejemplo";
    g.ManejoVentanas2 = "Abiertas";
    g.ERelaMasa = 1;
    g.WRecuperador = g.WRecuperadorr = 25;
    g.Teminrec = 15;
    g.Temaxrec = 30;
    g.TminImp = 14;
    g.HRmin = 30;
    g.NEquiposVent = 1;
    g.ManejoVentilacion = "TomaUT";
    g.TipoCO2 = "Coef. operacionales";
    g.ControlVent = "Control por compuertas";
  });
  Ventilacion v = esperado->GetVentilacion();
  v.tipologias[0].N_dormitorios_dobles += 2;
  esperado->SetVentilacion(v);
  while (esperado->NumeroSistemas() > 0) esperado->BorrarSistema(0);
  EsperarIguales(*gestor_.Caso("Viejo"), *esperado);
}

TEST_F(VersionesXml, LaMasAntiguaTomaLosValoresDePartidaDeLoQueNoDice) {
  const ProyectoAbierto r = Abrir("v2_0.xml");
  EXPECT_THAT(mensajes_.recibidos, ElementsAre(kSinCiudad, kSinInstalaciones));
  EXPECT_THAT(r.casosSinUso, ElementsAre("Viejo"));
  const Edificio& caso = *gestor_.Caso("Viejo");
  const Localizacion& sitio = caso.GetLocalizacion();
  EXPECT_EQ(sitio.Provincia, "Valencia/València");
  EXPECT_EQ(sitio.Municipio, "Valencia");
  EXPECT_EQ(sitio.asnm, 23);
  EXPECT_EQ(sitio.mesmin, 6);
  EXPECT_EQ(sitio.mesmax, 9);
  EXPECT_EQ(caso.GetConstruccion().Longitud_puentes_termicos_modo, "Estimados");
  EXPECT_EQ(caso.GetVentilacion().tipologias[0].N_dormitorios_dobles, 4);
  EXPECT_EQ(caso.GetVentilacion().tipologias[1].N_viviendas, 0);
  const DatosGenerales& g = caso.GetDatosGenerales();
  EXPECT_EQ(g.Tipo, "Residencial");
  EXPECT_EQ(g.TipoCertificado, "ProyectoNuevaConstruccion");
  EXPECT_EQ(g.AnoConstruccion, "2013-2018");
  EXPECT_EQ(g.ConsumoAgua_litros_dia, 140.0F);
  EXPECT_EQ(g.Existe_fotovoltaica, "No");
  EXPECT_EQ(g.Uso_fotovoltaico, "Refrigeracion");
  EXPECT_EQ(g.Tipon50, "Teorico");
  EXPECT_EQ(g.TipoVentilacion2, "Hibrida");
  EXPECT_EQ(g.UTAFreeCooling, "FreeCoolingTermico");
  EXPECT_EQ(g.RendVentToma, 0.6F);
  EXPECT_EQ(g.PerdPresionToma, 75.0F);
  EXPECT_EQ(g.Recuperador, "No");
  EXPECT_EQ(g.Eficiencia_recuperador, 75.0F);
  EXPECT_EQ(g.Eficiencia_recuperador_Ental, 25.0F);
  EXPECT_EQ(g.WRecuperador, 100.0F);
  EXPECT_EQ(g.NVBloqueF, 1.0F);
  EXPECT_EQ(g.PTcelula_FV, 9.0F);
  EXPECT_EQ(g.PConversor_FV, 4.0F);
  EXPECT_EQ(g.Sup_colec_term, 2.0F);
  EXPECT_EQ(g.BB_colec_term, 3.8074F);
  EXPECT_EQ(g.PerdP_Col_ST, 4.0F);
  EXPECT_EQ(g.Long_Tub_ST, 60.0F);
  EXPECT_EQ(g.PerdCalor_Tub_ST, 0.2F);
}

TEST_F(VersionesXml, LaExtensionPuedeIrEnMayusculas) {
  const pruebas::CarpetaTemporal carpeta;
  const fs::path antiguos = fs::path(NOVEX_RAIZ_PRUEBAS) / "casos/antiguos";
  for (const auto& [nombre, casos] : {std::pair{"v5_05.xml", 2U}, {"indices.txt", 3U}}) {
    const std::string raiz = fs::path(nombre).stem().string();
    const std::string extension = fs::path(nombre).extension() == ".xml" ? ".XML" : ".TXT";
    fs::copy(antiguos / nombre, carpeta / (raiz + extension));
    fs::copy(antiguos / (raiz + "_M" + fs::path(nombre).extension().string()),
             carpeta / (raiz + "_M" + extension));
    const ProyectoAbierto r =
        AbrirProyecto(gestor_, carpeta / (raiz + extension), ModoApertura::Nuevo, mensajes_);
    EXPECT_EQ(r.casos.size(), casos) << nombre;
  }
}

TEST_F(VersionesXml, GuardadoYLeidoOtraVezEsElMismo) {
  const pruebas::CarpetaTemporal carpeta;
  for (const char* nombre : {"v6_1.xml", "v5_05.xml", "v4_2.xml", "v2_0.xml"}) {
    SCOPED_TRACE(nombre);
    Abrir(nombre);
    GestorEdifActivo otro;
    AbrirProyecto(otro, GuardarProyecto(gestor_, carpeta / "nuevo.xml"), ModoApertura::Nuevo,
                  mensajes_);
    ASSERT_EQ(otro.NumeroCasos(), gestor_.NumeroCasos());
    for (std::size_t i = 0; i < otro.NumeroCasos(); ++i) {
      const auto caso = GestorEdifActivo::NombreCasoUsuario(i);
      auto esperado = gestor_.Caso(caso)->Clonar();
      // Lo que no tiene sitio en los ficheros de hoy.
      DatosGenerales g = esperado->GetDatosGenerales();
      g.Version = kVersionActual;
      if (g.EsResidencial()) g.Uso = otro.Caso(caso)->GetDatosGenerales().Uso;
      g.ElementoInalterable = g.ReferenciaCatastral = g.NormativaVigente = g.NExpedienteP = "";
      g.Proyectista_Nombre = g.Certificador_Telefono = g.Certificador_Colegio_Profesional = "";
      esperado->SetDatosGenerales(std::move(g));
      EsperarIguales(*otro.Caso(caso), *esperado);
    }
  }
}

TEST(DerivacionesAntiguas, TablasCompletas) {
  const auto certificado = [](const char* texto) { return TipoCertificadoDe(texto); };
  EXPECT_EQ(certificado("Nuevo"), "ProyectoNuevaConstruccion");
  EXPECT_EQ(certificado("CertificacionSolo"), "Existente");
  EXPECT_EQ(certificado("Cambio de uso"), "ProyectoAmpliacion");
  EXPECT_EQ(certificado("Reforma >25% envolvente + Clima "), "ProyectoReforma");
  EXPECT_EQ(certificado("otra cosa"), "");
  struct Periodo {
    const char *ano, *periodo;
  };
  for (const Periodo p : {Periodo{"1899", "ANTE-1900"},
                          {"1900", "1900-1939"},
                          {"1939", "1900-1939"},
                          {"1940", "1940-1959"},
                          {"1959", "1940-1959"},
                          {"1978", "1960-1978"},
                          {"1979", "1979-2005"},
                          {"2005", "1979-2005"},
                          {"2006", "2006-2012"},
                          {"2012", "2006-2012"},
                          {"2018", "2013-2018"},
                          {"2019", "POST-2018"},
                          {"POST-2018", "POST-2018"},
                          {"", ""}})
    EXPECT_EQ(PeriodoConstruccionDe(p.ano), p.periodo) << p.ano;
  EXPECT_EQ(PerfilUsoDeTipologia("Bloque", ""), 1);
  EXPECT_EQ(PerfilUsoDeTipologia("Terciario", "8hB"), 3);
  EXPECT_EQ(PerfilUsoDeTipologia("Terciario", "24hA"), 14);
  EXPECT_EQ(PerfilUsoDeTipologia("Terciario", "otro"), 15);
  EXPECT_EQ(PerfilUsoDeTipologia("Terciario 16h Carga interna Media", ""), 10);
  EXPECT_EQ(PerfilUsoDeTipologia("15", ""), 15);
  EXPECT_FALSE(PerfilUsoDeTipologia("16", ""));
  EXPECT_FALSE(PerfilUsoDeTipologia("", ""));
}

}  // namespace
}  // namespace novex
