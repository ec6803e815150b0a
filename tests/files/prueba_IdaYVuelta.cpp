#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstring>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <type_traits>
#include <vector>

#include "CaminoXml.h"
#include "CarpetaTemporal.h"
#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "files/ProyectoFichero.h"
#include "files/SeccionesProyecto.h"
#include "model/Cambios.h"

namespace novex {
namespace {

namespace fs = std::filesystem;
using pruebas::CarpetaTemporal;
using testing::ElementsAre;
using testing::IsEmpty;

const fs::path kEjemplos = NOVEX_RAIZ_DATOS "/proyectos";

XMLNode CasoEscrito(const fs::path& ruta) {
  return pruebas::En(XMLNode::loadFile(ruta, "DatosEnergeticosDelEdificio"), "DatosPersonalizados")
      .childAt(0);
}

// Valores de las hojas de un caso por su camino, en el orden en que están.
using Hojas = std::map<std::string, std::vector<std::string>>;
void ReunirHojas(const XMLNode& nodo, const std::string& camino, Hojas& hojas) {
  for (std::size_t i = 0; i < nodo.attributeCount(); ++i)
    hojas[camino + "@" + std::string(nodo.attributeAt(i)->name)].emplace_back(
        nodo.attributeAt(i)->value);
  if (nodo.childCount() == 0 && nodo.attributeCount() == 0)
    hojas[camino].emplace_back(nodo.textAt(0).value_or(""));
  for (std::size_t i = 0; i < nodo.childCount(); ++i)
    ReunirHojas(nodo.childAt(i), camino + "/" + std::string(*nodo.childAt(i).nameOf()), hojas);
}
Hojas HojasDe(const fs::path& ruta) {
  Hojas hojas;
  ReunirHojas(CasoEscrito(ruta), "", hojas);
  return hojas;
}

// Un proyecto con cada atributo cambiado por otro valor: los números, por otros con sus decimales;
// "Si" y "No", por el otro, y a los demás textos se les añade algo que hay que escapar.
std::string Cambiado(const std::string& texto) {
  // Los que solo valen lo que dice una lista, o son el número de otro elemento.
  static const std::regex lista(
      "\\s*<(\\?xml|Version|PerfilUso|Tipon50|TipoCertificado|NColor|Tipo_de_|Existe|Def_Puentes|"
      "Renovacion_|Orientacion_Otro|"
      "Coste|Plazo|Aplicacion|IndiceMaterial).*");
  static const std::regex atributo("=\"(-?\\d*)(\\.\\d+)?([^\"]*)\"");
  std::string salida;
  int n = 0;
  std::istringstream lineas(texto);
  for (std::string linea; std::getline(lineas, linea);) {
    std::smatch m;
    for (; !std::regex_match(linea, lista) && std::regex_search(linea, m, atributo);
         linea = m.suffix()) {
      const int decimales = static_cast<int>(m[2].length()) - 1;
      std::string valor = m[1].str() + m[2].str() + m[3].str();
      if (valor == "Si" || valor == "No")
        valor = valor == "Si" ? "No" : "Si";
      else if (m[3].length() > 0 || valor.empty())
        valor += " &lt;&#241; " + std::to_string(++n);
      else
        valor = decimales < 0 ? std::to_string(++n % 9 + 1)
                              : Fijo(++n % 9973 / std::pow(10.0, decimales), decimales);
      salida += m.prefix().str() + "=\"" + valor + "\"";
    }
    salida += linea + "\n";
  }
  return salida;
}

TEST(IdaYVuelta, CadaValorDelFicheroVuelveASuSitio) {
  const CarpetaTemporal carpeta;
  const fs::path ejemplo = kEjemplos / "bloque_caldera_central_solar_B3.xml";
  const fs::path cambiado = carpeta / "c.xml";
  std::string texto = Cambiado(LeerFichero(ejemplo));
  for (const auto& [campo, valor] : {std::pair{"PerfilUso", "7"},
                                     {"Tipon50", "Medido"},
                                     {"NColorMurosExt", "1"},
                                     {"NColorCubiertasExt", "2"},
                                     {"TipoCertificado", "ObraNuevaConstruccion"}})
    texto = std::regex_replace(texto, std::regex(std::string("<") + campo + " name=\"[^\"]*"),
                               std::string("<") + campo + " name=\"" + valor);
  EscribirFichero(cambiado, texto);
  RegistroMensajes mensajes;
  GestorEdifActivo leido, otro;
  AbrirProyecto(leido, cambiado, ModoApertura::Nuevo, mensajes);
  for (const auto& m : mensajes.recibidos) EXPECT_EQ(m.texto, "");
  for (std::size_t i = 0; i < leido.Activo().NumeroSistemas(); ++i)
    for (const Instalaciones& g : leido.Activo().GetSistema(i).instalaciones)
      EXPECT_TRUE(g.campos.empty()) << g.campos.front().nombre;  // ninguno sin conocer
  const fs::path guardado = GuardarProyecto(leido, carpeta / "g.xml");
  const Hojas antes = HojasDe(ejemplo), puestas = HojasDe(cambiado), vueltas = HojasDe(guardado);
  EXPECT_GT(puestas.size(), 2700U);
  // Los resultados no se vuelven a leer; lo que se deduce de otros datos cambia con ellos.
  const std::regex resultado(
      ".*/"
      "(UCTE_.*|W(Bomb|Energia).*|ConsumoVent.*|Caudal2Vent.*|PotenciaEsp.*|Indice_capa.*|"
      "Procedimiento/.*|CargaInternaMedia)");
  const std::regex deducido(
      "/(DatosCertifica|Datos_Globales/Modelo/|Datos_Uso/Varios@).*|/Datos_Generales/"
      "(NumUnidadesUso|ComunidadAutonoma@name|Uso@name)|.*/Absortividad.*|"
      "/Huecos/Hueco/(C100|Ff|FactorSolar.*|UHueco|FSHueco)");
  for (const auto& [camino, valores] : puestas) {
    if (std::regex_match(camino, resultado)) continue;
    ASSERT_TRUE(vueltas.contains(camino)) << camino;
    if (!std::regex_match(camino, deducido)) {
      EXPECT_EQ(vueltas.at(camino), valores) << camino;
    } else {
      EXPECT_NE(vueltas.at(camino), antes.at(camino)) << camino;
    }
  }
  // Con una mejora y lo que el ejemplo no tiene, vuelven los dos casos; lo leído, guardado otra
  // vez, son los mismos bytes.
  DatosPantalla p = leido.Activo().GetDatosPantalla();
  p.inalterables = {{"Fachada", "<ñ & \"5 %\">"}, {"Escalera", ""}};
  p.Imagen = std::make_shared<const std::string>("<![CDATA[data:image/jpeg;base64,Zm9v");
  leido.Activo().SetDatosPantalla(p);
  leido.Activo().SetEstudioModificaciones(
      {{{3, true, "12,5", "ñ", {"Línea", "", "otra"}}, {101, false, "<", "7", {}}}});
  leido.AnadirMejora();
  const fs::path dos = GuardarProyecto(leido, carpeta / "dos.xml");
  const ProyectoAbierto r = AbrirProyecto(otro, dos, ModoApertura::Nuevo, mensajes);
  EXPECT_THAT(r.casos, ElementsAre("Viejo", "Mejora_1"));
  EXPECT_TRUE(r.abierto && r.casosSinUso.empty());
  for (const std::string_view nombre : r.casos)
    EXPECT_TRUE(MismosRegistros(*leido.Caso(nombre), *otro.Caso(nombre))) << nombre;
  EXPECT_EQ(LeerFichero(GuardarProyecto(otro, carpeta / "otro.xml")), LeerFichero(dos));
  EXPECT_THAT(mensajes.recibidos, IsEmpty());
}

// El recinto es un nombre seguido de reales y luego de enteros: se llena por sus bytes, y así
// ningún área que se le añada se queda sin guardar.
TEST(IdaYVuelta, CadaAreaDelRecintoVuelve) {
  const CarpetaTemporal carpeta;
  GestorEdifActivo gestor, leido;
  gestor.NuevoProyecto();
  Recinto& r = gestor.Activo().GetRecinto(0);
  static_assert(std::is_standard_layout_v<Recinto>);
  auto* bytes = reinterpret_cast<std::byte*>(&r);
  std::size_t i = offsetof(Recinto, Volumen_total_m3);
  for (float valor = 1; i < offsetof(Recinto, RMuroExtReh); i += sizeof(float), valor += 0.5F)
    std::memcpy(bytes + i, &valor, sizeof valor);
  for (int valor = 1; i + sizeof(int) <= sizeof(Recinto); i += sizeof(int), ++valor)
    std::memcpy(bytes + i, &valor, sizeof valor);
  // La parte fuera del primer plano no existe al norte.
  for (PorSector& muro : r.Muro_ext_Var_m2) muro[norte] = 0;
  pruebas::CambiarConstruccion(gestor.Activo(), [&](Construccion& k) {
    k.MurosExt = 5;
    k.SuelosTerreno = k.CubiertasHz = k.CubiertasIncl = 3;
    k.MurosOtros = k.SuelosOtros = k.CubiertasOtras = 2;
  });
  RegistroMensajes mensajes;
  AbrirProyecto(leido, GuardarProyecto(gestor, carpeta / "r.xml"), ModoApertura::Nuevo, mensajes);
  EXPECT_TRUE(leido.Activo().GetRecinto(0) == r);
}

struct FilaU {
  const char* grupo;
  const char* etiqueta;
  std::vector<std::size_t> ranuras;
  bool conUcte;
};

// Posiciones de la tabla de la envolvente, por familia.
const std::vector<FilaU> kFilasU = {
    {"CubiertasHz", "Cubierta_horiz_sol", {15, 16, 17}, true},
    {"CubiertasIncl", "Cubierta_incl", {18, 19, 20}, true},
    {"CubiertasOtras", "Cubierta_techo_ventilado", {27, 29}, false},
    {"CubiertasOtras", "Cubierta_buhardilla_ext", {28, 30}, true},
    {"CubiertasOtras", "Cubierta_adiabatico", {23, 24}, true},
    {"CubiertasOtras", "Cubierta_terreno", {21, 22}, false},
    {"CubiertasOtras", "Cubierta_Particion_Interna", {25, 26}, true},
    {"CubiertasOtras", "Cubierta_Particion_InternaD", {48, 49}, true},
    {"MurosExt", "Muro_ext", {0, 1, 2, 3, 4}, true},
    {"MurosOtros", "Muro_otro_local", {11, 13}, false},
    {"MurosOtros", "Muro_otro_local_ext", {12, 14}, true},
    {"MurosOtros", "Muro_terreno", {5, 6}, true},
    {"MurosOtros", "Muro_adiabatico", {7, 8}, true},
    {"MurosOtros", "Muro_interior", {9, 10}, true},
    {"MurosOtros", "Muro_interiorD", {46, 47}, true},
    {"SuelosTerreno", "Suelo_terreno", {31, 32, 33}, true},
    {"SuelosOtros", "Suelo_ext", {34, 35}, true},
    {"SuelosOtros", "Suelo_otro_local", {36, 38}, false},
    {"SuelosOtros", "Suelo_otro_local_ext", {37, 39}, false},
    {"SuelosOtros", "Suelo_vacio_sanitario", {40, 41}, true},
    {"SuelosOtros", "Suelo_adiabatico", {42, 43}, true},
    {"SuelosOtros", "Suelo_particion_interior", {44, 45}, true},
    {"SuelosOtros", "Suelo_particion_interiorD", {50, 51}, true}};

TEST(IdaYVuelta, CadaUYCadaResultadoEstanEnSuElemento) {
  const CarpetaTemporal carpeta;
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  DatosDerivados derivados;
  derivados.casos.resize(1);
  for (std::size_t i = 0; i < kRanuras; ++i) {
    gestor.Activo().GetComposicion(i).U = static_cast<float>(i);
    derivados.casos[0].UCTE[i] = static_cast<float>(100 + i);
  }
  DatosDerivados::Caso& d = derivados.casos[0];
  const std::pair<const char*, float*> resultados[] = {
      {"WBombCAPST", &d.WBombCAPST},
      {"WBombDEPST", &d.WBombDEPST},
      {"WBombRECST", &d.WBombRECST},
      {"WEnergiaFinalVent", &d.WEnergiaFinalVent},
      {"WEnergiaFinalVentUTC", &d.WEnergiaFinalVentUTC},
      {"WEnergiaFinalVentUTR", &d.WEnergiaFinalVentUTR},
      {"ConsumoVentilacionAExt", &d.ConsumoVentilacionAExt},
      {"Caudal2Vent", &d.Caudal2Vent},
      {"PotenciaEspecificaVent", &d.PotenciaEspecificaVent}};
  for (float valor = 0; const auto& [etiqueta, campo] : resultados) *campo = valor += 1.25F;
  pruebas::CambiarGenerales(gestor.Activo(), [](DatosGenerales& g) {
    g.TipoVentilacion2 = "Mecanica";  // para que la ventilación tenga caudal
  });
  d.CargaInternaMedia = 7;
  const XMLNode caso = CasoEscrito(GuardarProyecto(gestor, carpeta / "u.xml", derivados));
  std::set<std::size_t> vistas;
  for (const FilaU& fila : kFilasU) {
    const std::string grupo = fila.grupo;
    const std::string seccion = grupo.substr(0, grupo.find_first_of("HIEOT", 2));
    const XMLNode tipos = caso.childNamed(seccion).childNamed(grupo);
    ASSERT_EQ(tipos.childCount(), fila.ranuras.size()) << grupo;
    const std::string etiqueta = std::string(fila.etiqueta) + "_W_m2K";
    for (std::size_t t = 0; t < fila.ranuras.size(); ++t) {
      vistas.insert(fila.ranuras[t]);
      const XMLNode tipo = tipos.childAt(t);
      EXPECT_EQ(tipo.childNamed("U_" + etiqueta).attributeValue("name"),
                Fijo(static_cast<double>(fila.ranuras[t]), 2));
      const XMLNode ucte = tipo.childNamed("UCTE_" + etiqueta);
      EXPECT_EQ(!ucte.isEmpty(), fila.conUcte) << etiqueta;
      if (!fila.conUcte) continue;
      EXPECT_EQ(ucte.attributeValue("name"), Fijo(static_cast<double>(100 + fila.ranuras[t]), 2));
    }
  }
  EXPECT_EQ(vistas.size(), kRanuras);
  const XMLNode global =
      caso.childNamed("Datos_Globales").childNamed("Modelo").childNamed("Global");
  EXPECT_EQ(global.childNamed("CargaInternaMedia").textAt(0), "7.00");
  for (const auto& [etiqueta, campo] : resultados)
    EXPECT_EQ(TextoDeHijo(caso.childNamed("Instalaciones"), etiqueta),
              Fijo(static_cast<double>(*campo), 2));
}

TEST(IdaYVuelta, LosProyectosDeEjemploVuelvenIguales) {
  const CarpetaTemporal carpeta;
  int leidos = 0;
  for (const char* donde : {NOVEX_RAIZ_PRUEBAS "/casos/proyectos", NOVEX_RAIZ_DATOS "/proyectos"})
    for (const auto& entrada : std::filesystem::directory_iterator(donde)) {
      SCOPED_TRACE(entrada.path().string());
      RegistroMensajes mensajes;
      GestorEdifActivo a, b;
      EXPECT_TRUE(AbrirProyecto(a, entrada.path(), ModoApertura::Nuevo, mensajes).abierto);
      const auto guardado = GuardarProyecto(a, carpeta / "uno.xml");
      // Los que se entregan están escritos por el programa: no cambia ninguna hoja.
      if (entrada.path().parent_path() == kEjemplos) {
        EXPECT_TRUE(HojasDe(guardado) == HojasDe(entrada.path()));
      }
      AbrirProyecto(b, guardado, ModoApertura::Nuevo, mensajes);
      EXPECT_TRUE(MismosRegistros(a.Activo(), b.Activo()));
      EXPECT_EQ(LeerFichero(GuardarProyecto(b, carpeta / "dos.xml")), LeerFichero(guardado));
      EXPECT_TRUE(mensajes.recibidos.empty());
      ++leidos;
    }
  EXPECT_GE(leidos, 14 + 12);
}

}  // namespace
}  // namespace novex
