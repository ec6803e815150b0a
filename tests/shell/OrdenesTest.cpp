#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

#include "shell/Ordenes.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using pruebas::Contiene;
using pruebas::Ejecucion;
using pruebas::Espera;
using pruebas::Ordenes;
using testing::HasSubstr;

TEST_F(Ordenes, CalcularDaTablaJsonYSeriesSinTocarElProyecto) {
  const std::string proyecto = Proyecto();
  const std::string antes = LeerFichero(proyecto);
  const fs::path json = raiz / "r.json", series = raiz / "s.csv";
  const Ejecucion tabla =
      Calcular(proyecto, {"--json", json.string(), "--series", series.string()});
  Espera(tabla, 0, {"Calefacción", "zona D3"});
  const std::string lineas = LeerFichero(series);
  EXPECT_EQ(std::count(lineas.begin(), lineas.end(), '\n'), 8761);

  const Ejecucion salida = Calcular(proyecto, {"--json", "-"});
  Espera(salida, 0, {"\"proyecto\": \"casa de campo.xml\""});
  EXPECT_EQ(salida.salida, LeerFichero(json));
  EXPECT_EQ(LeerFichero(proyecto), antes);
  // Sin pedirlos no se escriben ficheros de caso.
  EXPECT_FALSE(fs::exists(programa() / "database" / "Prueba.xml"));
}

TEST_F(Ordenes, CalcularTodosLosCasosOUno) {
  const std::string proyecto = Proyecto("D3", 100, 1);
  const fs::path series = raiz / "s.csv", mejora = raiz / "s_Mejora_1.csv";
  Espera(Calcular(proyecto, {"--json", "-", "--series", series.string()}), 0,
         {"\"caso\": \"Viejo\"", "\"caso\": \"Mejora_1\""});
  EXPECT_TRUE(fs::exists(series) && fs::exists(mejora));
  const Ejecucion una = Calcular(proyecto, {"--json", "-", "--caso", "Mejora_1"});
  Espera(una, 0, {"\"caso\": \"Mejora_1\""});
  EXPECT_FALSE(Contiene(una.salida, "\"caso\": \"Viejo\""));
  Espera(Calcular(proyecto, {"--caso", "Mejora_2"}), 2, {"tiene: Viejo, Mejora_1"});
}

// Los bloques de resultados no son datos: no cambian lo que se vuelve a calcular, y un guardado sin
// cálculo los deja fuera y conserva todo lo demás.
TEST_F(Ordenes, GuardarConResultadosSoloAnadeResultados) {
  const std::string proyecto = Proyecto("D3", 100, 1);
  const std::string guardado = (raiz / "con.xml").string();
  const Ejecucion primera = Calcular(proyecto, {"--json", "-", "--guardar", guardado});
  ASSERT_EQ(primera.codigo, 0) << primera.errores;
  const std::string con = LeerFichero(guardado);
  for (const char* bloque : {"<Sistemas>", "<ResultadosBalance>", "<OtrosIndicadores>"})
    EXPECT_EQ(con.find(bloque), con.rfind(bloque)) << bloque;
  EXPECT_TRUE(Contiene(con, "<MedidaMejora>"));
  EXPECT_NE(con.find("<ACSTotalProducido_1 "), con.rfind("<ACSTotalProducido_1 "));  // dos casos

  const Ejecucion segunda = Calcular(guardado, {"--json", "-"});
  const auto desde = [](const std::string& json) { return json.substr(json.find("\"casos\"")); };
  EXPECT_EQ(desde(segunda.salida), desde(primera.salida));

  const auto cambiar = [&](const std::string& de, const char* a) {
    const std::string ruta = (raiz / a).string();
    Espera(Orden("cambiar", de, {"Direccion=Otra", "--guardar", ruta}), 0);
    return LeerFichero(ruta);
  };
  const std::string sin = cambiar(guardado, "sin.xml");
  for (const char* resultado : {"<Sistemas>", "<Indicadores>", "<ACSTotalProducido_1 "})
    EXPECT_FALSE(Contiene(sin, resultado)) << resultado;
  // Lo que pone el cálculo es la latitud del clima y la superficie que sirve cada sistema.
  const auto sinCalculados = [](const std::string& texto) {
    std::string salida;
    std::istringstream lineas(texto);
    for (std::string linea; std::getline(lineas, linea);)
      if (!Contiene(linea, "<latitud ") && !Contiene(linea, "<Sup_")) salida += linea + "\n";
    return salida;
  };
  EXPECT_EQ(sinCalculados(sin), sinCalculados(cambiar(proyecto, "original.xml")));

  // Con solo una mejora calculada no hay bloques, que son de la base; y no se pisa el proyecto.
  Calcular(proyecto, {"--caso", "Mejora_1", "--guardar", guardado});
  EXPECT_FALSE(Contiene(LeerFichero(guardado), "<Sistemas>"));
  EXPECT_TRUE(Contiene(LeerFichero(guardado), "<ACSTotalProducido_1 "));
  EXPECT_EQ(Calcular(proyecto, {"--guardar", proyecto}).codigo, 2);
}

TEST_F(Ordenes, CadaFalloSaleConSuCodigo) {
  const std::string proyecto = Proyecto();
  const std::vector<std::string> ordenes[] = {{},
                                              {"calcular"},
                                              {"calcular", proyecto, "--nada"},
                                              {"comprobar"},
                                              {"calcular", proyecto, "--json"},
                                              {"calcular", (raiz / "casa.dat").string()},
                                              {"clima"},
                                              {"clima", "info", "Z9"},
                                              {"clima", "info", "D3", "--conjunto", "1800"},
                                              {"inventada"}};
  for (const auto& orden : ordenes) {
    const Ejecucion e = Ejecutar(orden);
    EXPECT_EQ(e.codigo, 2) << e.errores;
    EXPECT_FALSE(e.errores.empty());
    EXPECT_TRUE(e.salida.empty());
  }
  EXPECT_EQ(Ejecutar({"--help"}).codigo, 0);
  // Los resultados no se escriben encima de lo que se calcula.
  const std::string antes = LeerFichero(proyecto);
  EXPECT_EQ(Calcular(proyecto, {"--json", proyecto}).codigo, 2);
  EXPECT_EQ(LeerFichero(proyecto), antes);
  const std::string entero = LeerFichero(Proyecto());
  const fs::path roto = raiz / "roto.xml", ajeno = raiz / "ajeno.xml";
  EscribirFichero(roto, entero.substr(0, entero.size() / 2));
  EscribirFichero(ajeno, "<?xml version=\"1.0\"?>\n<Otro/>\n");
  for (const fs::path& ruta : {roto, ajeno, raiz / "falta.xml"}) {
    Espera(Calcular(ruta.string()), 255,
           {"XML Parsing error inside file '" + ruta.string() + "'.", "At line "});
    EXPECT_EQ(Ejecutar({"info", ruta.string()}).codigo, 255) << ruta;
    EXPECT_EQ(Ejecutar({"comprobar", ruta.string()}).codigo, 255) << ruta;
  }
  Espera(Calcular(ajeno.string()), 255, {"First Tag should be 'DatosEnergeticosDelEdificio'."});
  const Ejecucion sinClima = Calcular(Proyecto("B3"), {"--json", "-"});
  EXPECT_EQ(sinClima.codigo, 3);
  EXPECT_EQ(sinClima.errores,
            "fichero entrada datos ambientales: No se pudo abrir el fichero .met\n");
  EXPECT_TRUE(sinClima.salida.empty());

  Espera(Calcular(Proyecto("D3", 0), {"--sin-comprobar"}), 3, {"Suelo_habitable_m2"});

  Proyecto();
  EXPECT_EQ(Calcular(proyecto, {"--json", (raiz / "no" / "r.json").string()}).codigo, 3);
  EXPECT_EQ(Ejecutar({"calcular", proyecto, "--programa", (raiz / "no").string()}).codigo, 3);
}

TEST_F(Ordenes, ComprobarDiceLoQueFaltaYCalcularSeNiega) {
  const std::string proyecto = Proyecto("D3", 100, 1);
  const Ejecucion bien = Ejecutar({"comprobar", proyecto});
  EXPECT_EQ(bien.codigo, 0) << bien.errores;
  EXPECT_EQ(bien.salida, "El proyecto se puede calcular (2 casos)\n");

  // Con 50 m2 la altura media sería de 6 m, y la mejora no tiene agua caliente.
  pruebas::GuardarProyectoPrueba(proyecto, "D3", 50, 1, true);
  constexpr const char* kAltura =
      "La relacion entre el volumen y el suelo habitable debe ser menor de 5";
  constexpr const char* kSinACS = "Se debe definir una instalacion de ACS. No se calcula";
  const Ejecucion mal = Ejecutar({"comprobar", proyecto});
  EXPECT_EQ(mal.codigo, 1);
  EXPECT_TRUE(mal.errores.empty()) << mal.errores;
  const std::size_t mejora = mal.salida.find("Mejora_1: no se puede calcular\n");
  ASSERT_NE(mejora, std::string::npos) << mal.salida;
  const std::string base = mal.salida.substr(0, mejora);
  EXPECT_TRUE(Contiene(base, "Base: no se puede calcular\n"));
  EXPECT_TRUE(Contiene(base, std::string("Global  ") + kAltura));
  EXPECT_FALSE(Contiene(base, kSinACS));
  EXPECT_TRUE(Contiene(mal.salida.substr(mejora), std::string("Instalaciones  ") + kSinACS));

  const Ejecucion una = Calcular(proyecto, {"--caso", "Mejora_1", "--json", "-"});
  EXPECT_EQ(una.codigo, 1);
  EXPECT_EQ(una.errores, std::string("Mejora_1: Valor incorrecto: ") + kAltura +
                             "\nMejora_1: AVISO: " + kSinACS + "\n");
  EXPECT_TRUE(una.salida.empty());
  const Ejecucion dos = Calcular(proyecto);
  EXPECT_EQ(dos.codigo, 1);
  EXPECT_TRUE(dos.errores.starts_with(std::string("Base: Valor incorrecto: ") + kAltura));
  EXPECT_EQ(Calcular(proyecto, {"--sin-comprobar"}).codigo, 0);
  // Con un solo caso no hace falta decir cuál.
  EXPECT_EQ(Calcular(Proyecto("D3", 50)).errores,
            std::string("Valor incorrecto: ") + kAltura + "\n");
}

TEST_F(Ordenes, InfoDiceLoQueHay) {
  Espera(Ejecutar({"info", Proyecto("D3", 123, 2)}), 0, {"3 casos", "123.00 m²", "Mejora_2"});
}

TEST_F(Ordenes, ClimaInstalaLosFicherosQueValen) {
  const fs::path origen = raiz / "oficiales";
  fs::create_directories(origen);
  const auto instalar = [&] {
    return Orden("clima", "instalar", {origen.string(), "--conjunto", "2012"});
  };
  EXPECT_EQ(instalar().codigo, 3);  // no hay ninguno
  const std::string met = LeerFichero(programa() / "databaseCTE" / "ZonaD3.met");
  EscribirFichero(origen / "zonad3.met", met);
  EXPECT_EQ(instalar().codigo, 0);
  EXPECT_EQ(LeerFichero(programa() / "database2012" / "ZonaD3.met"), met);
  EscribirFichero(origen / "zonaC1.met", met.substr(0, met.size() / 3));
  Espera(instalar(), 1, {"no vale"});
  EXPECT_FALSE(fs::exists(programa() / "database2012" / "ZonaC1.met"));
  Espera(Orden("clima", "info", {"D3"}), 0, {"ANUAL"});
}

// Un dato de una línea de tabla: lo que sigue a su comienzo.
std::string Linea(const std::string& texto, const std::string& comienzo) {
  const auto desde = texto.find(comienzo);
  return desde == std::string::npos ? "" : texto.substr(desde, texto.find('\n', desde) - desde);
}

TEST_F(Ordenes, ExpresConstruyeCalificaYGuarda) {
  const std::string proyecto = (raiz / "expres.xml").string();
  const std::string carpeta = programa().string();
  std::vector<std::string> orden = {"expres",    "--provincia",  "madrid",      "--municipio",
                                    "MADRID",    "--uso",        "unifamiliar", "--periodo",
                                    "1979-2013", "--superficie", "100",         "--programa",
                                    carpeta,     "--guardar",    proyecto};
  const Ejecucion e = Ejecutar(orden);
  Espera(e, 0,
         {"Plantas: 2", "Fachada sur, m2: 38.2", "zona D3", "Demanda sensible",
          "el certificador debe verificar"});
  // Lo guardado se calcula con los mismos números.
  const Ejecucion otra = Calcular(proyecto);
  EXPECT_EQ(otra.codigo, 0);
  EXPECT_EQ(Linea(otra.salida, "Calefacción  "), Linea(e.salida, "Calefacción  "));
  EXPECT_NE(Linea(e.salida, "Calefacción  "), "");
  orden[4] = "san";
  Espera(Ejecutar(orden), 2, {"puede ser varios municipios"});
}

TEST_F(Ordenes, NuevoCasosYCambiarHacenLoQueHariaUnaPersona) {
  const std::string proyecto = (raiz / "nuevo.xml").string();
  const auto con = [&](std::vector<std::string> a) {
    a.insert(a.end(), {"--programa", programa().string()});
    return Ejecutar(a);
  };
  ASSERT_EQ(con({"nuevo", proyecto, "--municipio", "Soria", "--provincia", "Soria"}).codigo, 0);
  EXPECT_EQ(con({"nuevo", proyecto}).codigo, 2);  // no se pisa
  const std::string caldera = "sistema=ACS/1 Caldera/Centralizada";
  Espera(con({"cambiar", proyecto, "ConsumoAgua_litros_dia=112", caldera,
              "composicion=MuroExt1/Mampostería de granito 60 cm enlucida",
              "Tipo_sistema[1]/QcalorCaldera1=20", "--guardar", proyecto}),
         0, {"U 2.08"});
  const std::string antes = LeerFichero(proyecto);
  const Ejecucion rechazo = con({"cambiar", proyecto, caldera, "--guardar", proyecto});
  EXPECT_EQ(rechazo.codigo, 1);
  EXPECT_TRUE(Contiene(rechazo.errores, "Sólo se permite una tipología de equipos de ACS"));
  EXPECT_EQ(con({"cambiar", proyecto, "Edificio_Titulo=X", "Nada=1", "--guardar", proyecto}).codigo,
            2);
  EXPECT_EQ(LeerFichero(proyecto), antes);

  // Un edificio a medias no se duplica ni recibe casos: se sustituiría.
  Espera(con({"casos", proyecto, "duplicar"}), 1, {"Valor incorrecto"});
  Espera(con({"casos", proyecto, "anadir", proyecto}), 2, {"Se abre como si fuera nuevo"});
  fs::copy_file(fs::path(NOVEX_RAIZ_DATOS) / "proyectos/vivienda_unifamiliar_D3.xml", proyecto,
                fs::copy_options::overwrite_existing);
  EXPECT_EQ(con({"casos", proyecto, "duplicar"}).codigo, 0);
  EXPECT_EQ(
      con({"cambiar", proyecto, "MedidaMejora=Aislar", "--caso", "Mejora_1", "--guardar", proyecto})
          .codigo,
      0);
  Espera(Ejecutar({"casos", proyecto, "--json"}), 0, {"\"Título\": \"Aislar\""});
  EXPECT_EQ(con({"casos", proyecto, "borrar", "Mejora_2"}).codigo, 1);
  EXPECT_EQ(con({"casos", proyecto, "borrar", "Viejo"}).codigo, 0);
  EXPECT_EQ(con({"casos", proyecto, "borrar", "Viejo"}).codigo, 1);
}

TEST_F(Ordenes, LosCatalogosSeBuscan) {
  const auto buscar = [&](const char* catalogo, const char* texto) {
    return Orden(catalogo, "buscar", {texto});
  };
  Espera(buscar("materiales", "PÓLIESTIRENO"), 0, {"EPS"});
  Espera(buscar("composiciones", "sate eps 10"), 0, {"0.26"});
  Espera(buscar("municipios", "aranjuez"), 0, {"C3"});
  EXPECT_EQ(buscar("municipios", "zzz").codigo, 1);
}

TEST_F(Ordenes, VerificarDaVeredictosYSuCodigo) {
  const std::string ejemplo =
      (fs::path(NOVEX_RAIZ_DATOS) / "proyectos" / "vivienda_unifamiliar_D3.xml").string();
  Espera(Orden("verificar", ejemplo, {"--documentos", "--resumen"}), 1,
         {"HE0", "Cep,nren", "38.00", "Condensaciones", "HE5", "No cumple", "Resumen del año"});
  EXPECT_TRUE(Contiene(LeerFichero(programa() / "database" / "ValorMaximo.xml"),
                       "CERRAMIENTO=\"Muros exteriores\" UPROYECTO=\"0.30\""));
  EXPECT_TRUE(Contiene(LeerFichero(programa() / "database" / "Condensacion.xml"), "fRsi,min"));
  Espera(Orden("verificar", ejemplo, {"--json", "-"}), 1,
         {"\"seccion\": \"HE1\"", "\"limite\": ", "\"cumple\": false"});
  // Lo que no se puede calcular no se puede verificar.
  EXPECT_EQ(Orden("verificar", Proyecto("D3", 50)).codigo, 3);
}

TEST_F(Ordenes, MejorasYBateriaNoSePierdenNiSeParan) {
  const std::string ejemplo =
      (fs::path(NOVEX_RAIZ_DATOS) / "proyectos" / "vivienda_unifamiliar_D3.xml").string();
  std::string proyecto = ejemplo;
  const auto mejoras = [&](const std::vector<std::string>& mas) {
    return Orden("mejoras", proyecto, mas);
  };
  const Ejecucion todas = mejoras({"--todas", "--json", "-"});
  Espera(todas, 0, {"\"codigo\": 101"});
  EXPECT_EQ(todas.salida, mejoras({"--todas", "--json", "-", "--hilos", "1"}).salida);
  EXPECT_EQ(mejoras({}).codigo, 1);  // ninguna marcada
  EXPECT_EQ(mejoras({"--orden", "nada"}).codigo, 2);
  const Ejecucion porDemanda = mejoras({"--todas", "--orden", "demanda", "--json", "-"});
  // La que más aísla baja más la demanda que una caldera, que es la que más primaria ahorra.
  EXPECT_LT(porDemanda.salida.find("\"codigo\": 95"), porDemanda.salida.find("\"codigo\": 101"));
  EXPECT_GT(todas.salida.find("\"codigo\": 95"), todas.salida.find("\"codigo\": 101"));

  proyecto = (raiz / "marcado.xml").string();
  const auto cambiar = [&](const std::string& campo) {
    return Ejecutar({"cambiar", proyecto, campo, "--guardar", proyecto}).codigo;
  };
  Espera(Orden("cambiar", ejemplo,
               {"medida=61/900,5/10", "nota_medida=61/Con andamio", "--guardar", proyecto}),
         0);
  const Ejecucion una = mejoras({"--json", "-"});
  Espera(una, 0, {"\"codigo\": 61"});
  EXPECT_FALSE(Contiene(una.salida, "\"codigo\": 62"));
  EXPECT_TRUE(Contiene(LeerFichero(proyecto), "Con andamio"));
  // Marcarla otra vez no pierde sus cifras.
  EXPECT_EQ(cambiar("medida=61"), 0);
  EXPECT_TRUE(Contiene(LeerFichero(proyecto), "900.5"));
  for (const char* malo : {"medida=61/1/2/3", "medida=4", "nota_medida=62/x"})
    EXPECT_EQ(cambiar(malo), 2) << malo;
  EXPECT_EQ(mejoras({"--caso", ""}).codigo, 2);

  const fs::path obras = raiz / "obras";
  fs::create_directories(obras);
  fs::copy(ejemplo, obras / "a.xml");
  EscribirFichero(obras / "rota.xml", "<DatosEnergeticosDelEdificio><a>");
  EscribirFichero(raiz / "lista.txt", obras.string() + "\r\nrota.xml\r\na.xml\r\n\r\n");
  Espera(Orden("bateria", (raiz / "lista.txt").string()), 1, {"Bateria Terminada"});
  const std::string salida = LeerFichero(obras / "bateria.out");
  EXPECT_TRUE(salida.starts_with("------------------------------------\n# Caso = 2  de  2 :\n"));
  EXPECT_EQ(Ejecutar({"bateria", (raiz / "no esta.txt").string()}).codigo, 3);
}

TEST_F(Ordenes, TablasYExportacionesPorSuNombre) {
  const std::string proyecto = Proyecto();
  const auto exportar = [&](const std::vector<std::string>& mas) {
    return Orden("exportar", proyecto, mas);
  };
  const Ejecucion tabla = Calcular(proyecto, {"--tabla", "demanda"});
  EXPECT_TRUE(tabla.salida.starts_with("Demanda Total\n"));
  EXPECT_FALSE(Contiene(tabla.salida, "Lugar"));
  Espera(Calcular(proyecto, {"--tabla", "demnda"}), 2, {"se parecen: demanda,"});
  Espera(Calcular(proyecto, {"--tabla", "referencia"}), 2,
         {"La tabla \"referencia\" no tiene nada en el caso Base"});
  // Comparar pide todos los casos, y se hace una vez.
  const Ejecucion comparacion = Calcular(
      Proyecto("D3", 100, 1), {"--caso", "Mejora_1", "--tabla", "comparacion-emisiones-ahorro"});
  EXPECT_TRUE(Contiene(comparacion.salida, "Actual"));
  EXPECT_EQ(comparacion.salida.find("\nEmisiones ACS\n"),
            comparacion.salida.rfind("\nEmisiones ACS\n"));

  const fs::path fichero = raiz / "tablas.txt";
  EXPECT_EQ(
      exportar({"--tablas", "todas", "--series", "TSE, TSL", "--a", (raiz / "tablas").string()})
          .codigo,
      0);
  const std::string texto = LeerFichero(fichero);
  EXPECT_TRUE(texto.starts_with("Detalle demanda de ACS;\nInstalacion ACS kWh;ENE;"));
  const std::size_t series =
      texto.find("\nConta;hora;día;mes;Temp.seca TSE(ºC);Temp.seca local TSL(ºC);\n1;1;1;1;");
  ASSERT_NE(series, std::string::npos);
  EXPECT_EQ(std::count(texto.begin() + static_cast<std::ptrdiff_t>(series) + 1, texto.end(), '\n'),
            8761);

  const std::string otro = (raiz / "otro.txt").string();
  Espera(exportar({"--series", "TSX", "--a", otro}), 2, {"se parecen: TSE"});
  std::string muchas = "TSE";
  for (int i = 0; i < 25; ++i) muchas += ",TSL";
  EXPECT_EQ(exportar({"--series", muchas, "--a", otro}).codigo, 2);
  EXPECT_EQ(exportar({"--tablas", "referencia", "--a", otro}).codigo, 2);  // es una vivienda
  EXPECT_EQ(exportar({"--a", otro}).codigo, 2);
  EXPECT_FALSE(fs::exists(otro));
  Espera(exportar({"--tablas", "visibles", "--a", (raiz / "no/x.txt").string()}), 1, {"x.txt"});
}

TEST_F(Ordenes, AdministracionGuardaYEscribeElInforme) {
  const auto administracion = [&](const fs::path& proyecto, std::vector<std::string> mas = {}) {
    return Orden("administracion", proyecto.string(), std::move(mas));
  };
  Espera(administracion(Proyecto()), 1, {"AVISO: No se genera el fichero. Faltan datos generales"});

  const fs::path ejemplo = fs::path(NOVEX_RAIZ_DATOS) / "proyectos/vivienda_unifamiliar_D3.xml";
  const fs::path casa = raiz / "casa.xml", salida = raiz / "salida dada";
  fs::copy(ejemplo, casa);
  const std::string antes = LeerFichero(casa);
  EXPECT_EQ(administracion(casa, {"--salida", salida.string()}).codigo, 2);
  EXPECT_EQ(administracion(raiz / "no está.xml").codigo, 255);
  fs::create_directory(salida);
  const Ejecucion hecho = administracion(casa, {"--salida", salida.string()});
  EXPECT_EQ(hecho.codigo, 0) << hecho.errores;
  EXPECT_EQ(hecho.salida, (salida / "casa_certi.xml").string() + "\n");
  EXPECT_TRUE(fs::exists(salida / "casa.xml"));
  EXPECT_EQ(LeerFichero(casa), antes);
  EXPECT_FALSE(fs::exists(raiz / "casa_certi.xml"));

  EXPECT_EQ(administracion(casa).codigo, 0);
  EXPECT_EQ(LeerFichero(raiz / "casa_certi.xml"), LeerFichero(salida / "casa_certi.xml"));
  // Sin el clima de la zona no se puede calcular, y no se escribe nada.
  fs::remove(programa() / "databaseCTE" / "ZonaD3.met");
  fs::remove(raiz / "casa_certi.xml");
  EXPECT_EQ(administracion(casa).codigo, 3);
  EXPECT_FALSE(fs::exists(raiz / "casa_certi.xml"));
}

// Un PNG de un píxel gris, byte a byte según ISO/IEC 15948.
const std::string kPng(
    "\x89PNG\r\n\x1A\n"
    "\0\0\0\x0DIHDR\0\0\0\x01\0\0\0\x01\x08\0\0\0\0\x3A\x7E\x9B\x55"
    "\0\0\0\x0AIDAT\x78\x9C\x63\x68\0\0\0\x82\0\x81\x77\xCD\x72\xB6"
    "\0\0\0\0IEND\xAE\x42\x60\x82",
    67);
const std::string kJpeg("\xFF\xD8\xFF\xE0\0\x10JFIF\0 y unos bytes cualesquiera\xFF\xD9", 39);

class OrdenImagen : public pruebas::Ordenes {
 protected:
  void SetUp() override {
    Ordenes::SetUp();
    if (IsSkipped()) return;
    pruebas::GuardarProyectoPrueba(proyecto, "D3", 100, 1);
    EscribirFichero(raiz / "foto.jpg", kJpeg);
    EscribirFichero(raiz / "plano.jpg", kPng);
  }
  ResultadoProceso Imagen(std::vector<std::string> argumentos) const {
    return Orden("imagen", proyecto.string(), std::move(argumentos));
  }
  std::string Ruta(const std::string& nombre) const { return (raiz / nombre).string(); }

  fs::path proyecto = raiz / "casa.xml";
};

TEST_F(OrdenImagen, PoneYExtrae) {
  const std::string antes = LeerFichero(proyecto);
  auto r = Imagen({"--edificio", Ruta("foto.jpg"), "--salida", Ruta("otra.xml")});
  ASSERT_EQ(r.codigo, 0) << r.errores;
  EXPECT_THAT(r.salida, HasSubstr("otra.xml"));
  EXPECT_EQ(LeerFichero(proyecto), antes);
  proyecto = raiz / "otra.xml";
  // El plano se pone en el mismo fichero, y la foto que ya tenía sigue.
  ASSERT_EQ(Imagen({"--plano", Ruta("plano.jpg")}).codigo, 0);
  r = Imagen({"--extraer", Ruta("sacadas/hoy")});
  ASSERT_EQ(r.codigo, 0) << r.errores;
  EXPECT_EQ(LeerFichero(raiz / "sacadas/hoy/imageEdificio.jpg"), kJpeg);
  EXPECT_EQ(LeerFichero(raiz / "sacadas/hoy/imagePlano.png"), kPng);
}

TEST_F(OrdenImagen, LoQueNoSePuedeDejaElProyectoComoEstaba) {
  const std::string antes = LeerFichero(proyecto);
  EXPECT_EQ(Imagen({}).codigo, 2);
  EXPECT_EQ(Imagen({"--edificio", Ruta("foto.jpg"), "--extraer", Ruta("s")}).codigo, 2);
  EXPECT_EQ(Imagen({"--salida", Ruta("s.xml")}).codigo, 2);
  auto r = Imagen({"--edificio", Ruta("foto.jpg"), "--plano", Ruta("falta.png")});
  EXPECT_EQ(r.codigo, 3);
  EXPECT_THAT(r.errores, HasSubstr("No se pudo abrir el archivo"));
  r = Imagen({"--edificio", proyecto.string()});
  EXPECT_EQ(r.codigo, 3);
  EXPECT_THAT(r.errores, HasSubstr("no es una imagen JPEG ni PNG"));
  r = Imagen({"--extraer", Ruta("s")});
  EXPECT_EQ(r.codigo, 3);
  EXPECT_THAT(r.errores, HasSubstr("no tiene ninguna imagen"));
  EXPECT_EQ(LeerFichero(proyecto), antes);
  // El nombre de un fichero que ya existe no puede ser una carpeta.
  ASSERT_EQ(Imagen({"--edificio", Ruta("foto.jpg")}).codigo, 0);
  EXPECT_EQ(Imagen({"--extraer", Ruta("foto.jpg")}).codigo, 3);
}

// Un proyecto de texto se convierte con su informe, y el que ya está no se pisa.
TEST_F(Ordenes, ConvertirPasaUnProyectoAntiguoYDiceComo) {
  const std::string viejo = (raiz / "viejo.txt").string(), nuevo = (raiz / "nuevo.xml").string();
  EscribirFichero(viejo,
                  "*[S] Version.\nNOVEX v4.2\n** Seccion.\nDatos Generales.\n*[S] Rara.\n7\n"
                  "*[S] Edificio Titulo.\nCasa vieja\n** Seccion.\n"
                  "Datos Geograficos/obstaculos remotos.\n"
                  "*[I] Indice Provincia datos clim\xE1ticos.\n31\n"
                  "*[I] Indice Ciudad datos clim\xE1ticos.\n8\n*[S] Final.\n");
  const auto convertir = [&](std::vector<std::string> mas) {
    mas.insert(mas.begin(), nuevo);
    return Orden("convertir", viejo, mas);
  };
  const Ejecucion hecha = convertir({});
  Espera(hecha, 0,
         {"Leído:", "Base: versión \"NOVEX v4.2\"",
          "Puesto por defecto:", "Saltado:", "Línea 5: *[S] Rara. \"7\"",
          "Cambiado:", "Provincia 31 y ciudad 8 de las listas -> Madrid, Getafe",
          "1 caso guardado en " + nuevo});
  EXPECT_PRED2(Contiene, hecha.errores, "Está leyendo un fichero de anteriores versiones");
  Espera(Ejecutar({"info", nuevo}), 0, {"Casa vieja", "Getafe", "D3"});
  const std::string antes = LeerFichero(nuevo);
  Espera(convertir({}), 2, {"--sobrescribir"});
  EXPECT_EQ(LeerFichero(nuevo), antes);
  Espera(convertir({"--sobrescribir"}), 0);
  // Uno de hoy no tiene nada que decir.
  const Ejecucion otra = Orden("convertir", nuevo, {(raiz / "otro.xml").string()});
  Espera(otra, 0);
  EXPECT_FALSE(Contiene(otra.salida, "Leído"));
  EXPECT_EQ(LeerFichero(raiz / "otro.xml"), antes);
  EscribirFichero(viejo, "nada");
  EXPECT_EQ(convertir({"--sobrescribir"}).codigo, 3);
  EXPECT_EQ(LeerFichero(nuevo), antes);
}

}  // namespace
}  // namespace novex
