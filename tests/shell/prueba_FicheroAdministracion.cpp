#include "shell/FicheroAdministracion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "calculation/EjecutarCalculo.h"
#include "entry/CompletarProyecto.h"
#include "files/CaminoXml.h"
#include "files/CarpetaTemporal.h"
#include "files/ProyectoFichero.h"
#include "improvements/EstudioMejoras.h"
#include "model/Cambios.h"
#include "outputs/administracion/CamposObligatorios.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using pruebas::En;
using pruebas::Texto;

constexpr const char* kEsquema = "xsd/informe_evaluacion_energetica_20.xsd";

// Carpeta de los datos de prueba que no se guardan con el código, si la hay.
std::optional<fs::path> DatosPrueba() {
  const char* datos = std::getenv("NOVEX_DATOS_PRUEBA");
  if (datos == nullptr || !fs::is_regular_file(fs::path(datos) / kEsquema)) return std::nullopt;
  return fs::path(datos);
}

bool HayXmllint() {
  return std::system("xmllint --version >/dev/null 2>&1") == 0;
}

std::vector<fs::path> ProyectosDe(const fs::path& carpeta) {
  std::vector<fs::path> rutas;
  std::error_code sinImportancia;
  for (const auto& entrada : fs::directory_iterator(carpeta, sinImportancia))
    if (entrada.path().extension() == ".xml") rutas.push_back(entrada.path());
  std::sort(rutas.begin(), rutas.end());
  // Con los saneadores, los dos primeros de cada carpeta.
  const char* casos = std::getenv("NOVEX_CASOS");
  if (casos != nullptr && std::string(casos) == "corta")
    rutas.resize(std::min<std::size_t>(rutas.size(), 2));
  return rutas;
}

// Los datos administrativos que un proyecto no traiga.
void Completar(Edificio& edificio) {
  pruebas::CambiarGenerales(edificio, [](DatosGenerales& g) {
    for (auto campo : pruebas::kCamposObligatorios)
      if ((g.*campo).empty()) g.*campo = "Dato <de> \"prueba\" & ]]> ñ";
    if (g.Certificador_NIF.empty()) g.Certificador_NIF = "Dato";
    g.NumeroVisitas = std::max(g.NumeroVisitas, 1.0F);
  });
  DatosPantalla pantalla = edificio.GetDatosPantalla();
  pantalla.Registro = "DGC";
  pantalla.referencias = {{"1234501VK3713S", "0001AB", "Vivienda"}};
  pantalla.Imagen =
      std::make_shared<const std::string>("<![CDATA[data:image/jpeg;base64,/9j/4AAQ]]>");
  edificio.SetDatosPantalla(pantalla);
}

double Cifra(const XMLNode& nodo, std::string_view camino) {
  return RealInicial(Texto(nodo, camino));
}

// La energía primaria y las emisiones que salen de multiplicar los vectores del propio informe por
// sus propios factores: lo que no se compra no tiene ni de una ni de otras.
double DeVectores(const XMLNode& consumo, const char* factores) {
  const XMLNode vectores = consumo.childNamed("EnergiaFinalVectores");
  double suma = 0;
  for (std::size_t i = 0; i < vectores.childCount(); ++i) {
    const XMLNode v = vectores.childAt(i);
    const std::string nombre(*v.nameOf());
    suma += Cifra(v, "Global") *
            Cifra(consumo, std::string("FactoresdePaso/") + factores + "/" + nombre);
  }
  return suma;
}

// La letra que una escala del informe da a un valor.
char LetraDe(const XMLNode& escala, double valor, bool nuevo) {
  char letra = 'A';
  for (std::size_t i = 0; i < escala.childCount(); ++i, ++letra)
    if (valor < RealInicial(escala.childAt(i).textAt(0).value_or(""))) break;
  return nuevo ? std::min(letra, 'E') : letra;
}

class FicheroAdministracion : public testing::Test {
 protected:
  // Los casos del proyecto, con lo que el fichero no dice.
  void Abrir(const fs::path& ruta) {
    gestor.NuevoProyecto();
    ProyectoAbierto abierto = AbrirProyecto(gestor, ruta, ModoApertura::Nuevo, mensajes);
    ASSERT_TRUE(abierto.abierto) << ruta;
    CompletarProyecto(gestor, abierto, ficheros, mensajes);
    mensajes.recibidos.clear();
  }
  EscrituraAdministracion Escribir(const fs::path& ruta) {
    pedido.proyecto = ruta;
    return EscribirFicheroAdministracion(gestor, pedido, entorno);
  }
  Edificio& Base() { return *gestor.Caso(caso::kViejo); }
  fs::path Ejemplo() const {
    return fs::path(NOVEX_RAIZ_DATOS) / "proyectos" / "vivienda_unifamiliar_D3.xml";
  }

  pruebas::CarpetaTemporal carpeta;
  GestorEdifActivo gestor;
  RegistroMensajes mensajes;
  FicherosPrograma ficheros{EspacioTrabajo{NOVEX_PROGRAMA_PRUEBAS}};
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso};
  PedidoAdministracion pedido;
};

TEST_F(FicheroAdministracion, LosEjemplosPasanSinCompletarlosYCuadranConElCalculo) {
  for (const fs::path& ruta : ProyectosDe(fs::path(NOVEX_RAIZ_DATOS) / "proyectos")) {
    SCOPED_TRACE(ruta.filename().string());
    Abrir(ruta);
    const auto escritura = Escribir(carpeta / ruta.filename().string());
    ASSERT_EQ(escritura.fin, FinAdministracion::Escrito);
    const XMLNode n = XMLNode::loadFile(escritura.informe, "DatosEnergeticosDelEdificio");
    const ResultadosCaso& r = Base().GetCalculo()->resultados;
    const double nren = Cifra(n, "Consumo/EnergiaPrimariaNoRenovable/Global");
    const double co2 = Cifra(n, "EmisionesCO2/Global");
    EXPECT_NEAR(nren, static_cast<double>(r.total[kPrimariaNoRenovable]), 0.0051);
    EXPECT_NEAR(co2, static_cast<double>(r.total[kEmisiones]), 0.0051);
    const XMLNode consumo = n.childNamed("Consumo");
    EXPECT_NEAR(DeVectores(consumo, "FinalAPrimariaNoRenovable"), nren, 0.03);
    EXPECT_NEAR(DeVectores(consumo, "FinalAEmisiones"), co2, 0.02);
    EXPECT_NEAR(Cifra(n, "EmisionesCO2/ConsumoElectrico") + Cifra(n, "EmisionesCO2/ConsumoOtros"),
                co2, 0.011);
    EXPECT_GE(Cifra(n, "EmisionesCO2/ConsumoOtros"), 0.0);
    const bool nuevo = Base().GetDatosGenerales().Modo_trabajo == "Nuevo";
    const XMLNode letras = n.childNamed("Calificacion");
    const auto letra = [&](const char* bloque) {
      return Texto(letras, std::string(bloque) + "/Global");
    };
    const auto escala = [&](const char* bloque) {
      return En(letras, std::string(bloque) + "/EscalaGlobal");
    };
    EXPECT_EQ(letra("EnergiaPrimariaNoRenovable"),
              std::string(1, LetraDe(escala("EnergiaPrimariaNoRenovable"), nren, nuevo)));
    EXPECT_EQ(letra("EmisionesCO2"), std::string(1, LetraDe(escala("EmisionesCO2"), co2, nuevo)));
  }
}

TEST_F(FicheroAdministracion, ElInformeEsValidoEnElEsquema) {
  const auto datos = DatosPrueba();
  if (!datos) GTEST_SKIP() << "sin el esquema del informe (NOVEX_DATOS_PRUEBA)";
  if (!HayXmllint()) GTEST_SKIP() << "sin xmllint (paquete libxml2-utils)";
  auto rutas = ProyectosDe(fs::path(NOVEX_RAIZ_DATOS) / "proyectos");
  ASSERT_FALSE(rutas.empty());
  const auto casos = ProyectosDe(*datos / "casos" / "proyectos");
  ASSERT_FALSE(casos.empty());
  rutas.insert(rutas.end(), casos.begin(), casos.end());
  for (const fs::path& ruta : rutas) {
    SCOPED_TRACE(ruta.filename().string());
    Abrir(ruta);
    for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
      Completar(*gestor.Caso(GestorEdifActivo::NombreCasoUsuario(i)));
    Base().SetEstudioModificaciones(
        {{{11, true, "100", "5", {"<nota> & ]]>"}}, {97, true, "", "", {}}}});
    const auto escritura = Escribir(carpeta / ruta.filename().string());
    ASSERT_EQ(escritura.fin, FinAdministracion::Escrito);
    const fs::path dicho = carpeta / "xmllint";
    const std::string orden = "xmllint --noout --schema '" + (*datos / kEsquema).string() + "' '" +
                              escritura.informe.string() + "' >'" + dicho.string() + "' 2>&1";
    EXPECT_EQ(std::system(orden.c_str()), 0) << LeerFichero(dicho);
  }
}

TEST_F(FicheroAdministracion, ElInformeSeAbreComoProyecto) {
  Abrir(Ejemplo());
  Completar(Base());
  gestor.ActivarCaso(caso::kViejo);
  gestor.AnadirMejora();
  const auto escritura = Escribir(carpeta / "casa.xml");
  ASSERT_EQ(escritura.fin, FinAdministracion::Escrito);
  EXPECT_EQ(escritura.proyecto, carpeta / "casa.xml");
  EXPECT_EQ(escritura.informe, carpeta / "casa_certi.xml");
  ASSERT_EQ(mensajes.recibidos.size(), 1U);
  EXPECT_EQ(mensajes.recibidos[0].texto,
            "Escrito en el mismo subdirectorio, nombre fichero acabado en '_certi.xml'");
  GestorEdifActivo guardado, informe;
  ASSERT_TRUE(AbrirProyecto(guardado, escritura.proyecto, ModoApertura::Nuevo, mensajes).abierto);
  ASSERT_TRUE(AbrirProyecto(informe, escritura.informe, ModoApertura::Nuevo, mensajes).abierto);
  EXPECT_EQ(informe.NumeroCasos(), 2U);
  for (const char* nombre : {"Viejo", "Mejora_1"})
    EXPECT_TRUE(MismosRegistros(*guardado.Caso(nombre), *informe.Caso(nombre))) << nombre;
}

TEST_F(FicheroAdministracion, LoQueSeRechazaNoEscribeNada) {
  const auto rechazo = [&](auto cambio) {
    Abrir(Ejemplo());
    pruebas::CambiarGenerales(Base(), cambio);
    const auto escritura = Escribir(carpeta / "casa.xml");
    EXPECT_EQ(escritura.fin, FinAdministracion::Rechazado);
    EXPECT_FALSE(fs::exists(carpeta / "casa.xml"));
    EXPECT_FALSE(fs::exists(carpeta / "casa_certi.xml"));
    return mensajes.recibidos.size() == 1 ? mensajes.recibidos[0].texto : "(varios)";
  };
  EXPECT_EQ(rechazo([](DatosGenerales& g) {
              g.Certificador_Movil = " ";
              g.NumeroVisitas = 0;
            }),
            "No se genera el fichero. Faltan datos generales obligatorios del edificio y(o del "
            "certificador");
  EXPECT_EQ(rechazo([](DatosGenerales& g) { g.NumeroVisitas = 0; }),
            "No se genera el fichero. Faltan definir visitas edificio (mínimo una)");
  EXPECT_EQ(rechazo([](DatosGenerales& g) { g.Tiposimulacion = "Simulacion"; }),
            "No se genera el fichero. Una simulación libre no se califica");
  // Lo que impide el cálculo también: aquí, no tener ningún sistema de agua caliente.
  Abrir(Ejemplo());
  while (Base().NumeroSistemas() > 0) Base().BorrarSistema(0);
  EXPECT_EQ(Escribir(carpeta / "casa.xml").fin, FinAdministracion::Rechazado);
  EXPECT_FALSE(mensajes.recibidos.empty());
  EXPECT_FALSE(fs::exists(carpeta / "casa.xml"));
}

TEST_F(FicheroAdministracion, NoRepiteElCalculoYDejaHacerElInformeAOtro) {
  Abrir(Ejemplo());
  ASSERT_TRUE(CalcularCaso(gestor, caso::kViejo, entorno));
  const calculo* antes = Base().GetCalculo().get();
  Base().GetCalculo()->resultados.demandaCalefaccion = 12.34F;  // se vería si se repitiera
  pedido.nombreElegido = true;
  fs::path dado;
  pedido.convertidor = [&](const fs::path& proyecto, const fs::path& informe) {
    EXPECT_TRUE(fs::exists(proyecto));
    dado = informe;
    return true;
  };
  ASSERT_EQ(Escribir(carpeta / "casa.xml").fin, FinAdministracion::Escrito);
  EXPECT_EQ(dado, carpeta / "casa_certi.xml");
  EXPECT_FALSE(fs::exists(dado));
  EXPECT_EQ(mensajes.recibidos.back().texto,
            "Escrito en el subdirectorio, con el nombre indicado acabado en '_certi.xml'");
  pedido.convertidor = [](const fs::path&, const fs::path&) { return false; };
  ASSERT_EQ(Escribir(carpeta / "casa.xml").fin, FinAdministracion::Escrito);
  const XMLNode n = XMLNode::loadFile(dado, "DatosEnergeticosDelEdificio");
  EXPECT_EQ(Cifra(n, "Demanda/EdificioObjeto/Calefaccion"), 12.34);
  EXPECT_EQ(Base().GetCalculo().get(), antes);
}

TEST_F(FicheroAdministracion, ElProyectoDiceLasMejorasQueSeHanPodidoCalcular) {
  Abrir(Ejemplo());
  gestor.ActivarCaso(caso::kViejo);
  gestor.AnadirMejora();
  gestor.AnadirMejora();
  gestor.Caso("Mejora_2")->GetRecinto(0).Suelo_habitable_m2 = 0;  // sin acabar
  const auto escritura = Escribir(carpeta / "casa.xml");
  ASSERT_EQ(escritura.fin, FinAdministracion::Escrito);
  const XMLNode novex = En(XMLNode::loadFile(escritura.proyecto, "DatosEnergeticosDelEdificio"),
                           "DatosPersonalizados/Novex");
  const XMLNode medidas = novex.childNamed("MedidasMejora");
  EXPECT_EQ(medidas.childNamed("SinPosibilidadMejora").textAt(0), "No");
  EXPECT_EQ(medidas.childCount(), 3U);  // una medida y la secuencia
  EXPECT_EQ(Cifra(medidas, "MedidaMejora/Indicadores/Emisiones/Tot"),
            Cifra(novex, "Indicadores/Emisiones/Tot"));  // es una copia de la base
}

TEST_F(FicheroAdministracion, LasMedidasMarcadasSonLasDelEstudio) {
  Abrir(Ejemplo());
  Base().SetEstudioModificaciones({{{11, true, "1000", "8", {}}, {15, false, "5", "", {}}}});
  const auto estudio = EstudioMejoras::Preparar(gestor, caso::kViejo, entorno);
  ASSERT_NE(estudio, nullptr);
  const float ahorro = estudio->Base()[CifraMedida::EmisionesTotal] -
                       estudio->MedirCodigo(11)[CifraMedida::EmisionesTotal];
  const auto escritura = Escribir(carpeta / "casa.xml");
  const XMLNode medidas =
      En(XMLNode::loadFile(escritura.informe, "DatosEnergeticosDelEdificio"), "MedidasDeMejora");
  ASSERT_EQ(medidas.childCount(), 1U);
  EXPECT_NEAR(Cifra(medidas.childAt(0), "EmisionesCO2/GlobalDiferenciaSituacionInicial"),
              static_cast<double>(ahorro), 0.0051);
  EXPECT_GT(ahorro, 0.0F);
}

TEST_F(FicheroAdministracion, SiNoSePuedeEscribirQuedaElAnterior) {
  Abrir(Ejemplo());
  EXPECT_THROW(Escribir(carpeta / "no existe/casa.xml"), ErrorFichero);
  EscribirFichero(carpeta / "casa_certi.xml", "anterior");
  ASSERT_EQ(Escribir(carpeta / "casa.xml").fin, FinAdministracion::Escrito);
  EXPECT_NE(LeerFichero(carpeta / "casa_certi.xml"), "anterior");
  fs::create_directory(carpeta / "otra_certi.xml");
  EXPECT_THROW(Escribir(carpeta / "otra.xml"), ErrorFichero);
}

}  // namespace
}  // namespace novex
