#include <gtest/gtest.h>

#include <cstdlib>
#include <map>
#include <set>
#include <vector>

#include "CarpetaTemporal.h"
#include "ProyectoDePrueba.h"
#include "base/FicheroSeguro.h"
#include "base/NumeroTexto.h"
#include "files/ProyectoFichero.h"

namespace novex {
namespace {

using pruebas::CarpetaTemporal;
using pruebas::LlenarCaso;

constexpr std::string_view kRaiz = "DatosEnergeticosDelEdificio";

// Un proyecto con la base y una mejora, llenas con valores distintos y las mismas imágenes.
GestorEdifActivo ProyectoLleno() {
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  LlenarCaso(gestor.Activo(), 1000);
  gestor.CrearCasoVacio("Mejora_1");
  LlenarCaso(gestor.Activo(), 9000);
  DatosPantalla pantalla = gestor.Activo().GetDatosPantalla();
  pantalla.Imagen = gestor.Caso("Viejo")->GetDatosPantalla().Imagen;
  gestor.Activo().SetDatosPantalla(pantalla);
  return gestor;
}

XMLNode CasoEscrito(const std::filesystem::path& ruta, std::size_t i = 0) {
  return XMLNode::loadFile(ruta, kRaiz).childNamed("DatosPersonalizados").childAt(i);
}

TEST(IdaYVuelta, TodosLosCamposDeTodosLosCasosVuelvenIguales) {
  const CarpetaTemporal carpeta;
  const GestorEdifActivo original = ProyectoLleno();
  const auto ruta = GuardarProyecto(original, carpeta / "p.xml");
  RegistroMensajes mensajes;
  GestorEdifActivo leido;
  const ProyectoAbierto r = AbrirProyecto(leido, ruta, ModoApertura::Nuevo, mensajes);
  EXPECT_TRUE(r.abierto);
  EXPECT_EQ(r.casos, (std::vector<std::string_view>{"Viejo", "Mejora_1"}));
  EXPECT_TRUE(r.casosSinUso.empty());
  EXPECT_TRUE(mensajes.recibidos.empty());
  EXPECT_EQ(leido.NombreActivo(), "Mejora_1");
  for (const char* nombre : {"Viejo", "Mejora_1"}) {
    const Edificio& a = *original.Caso(nombre);
    const Edificio& b = *leido.Caso(nombre);
    EXPECT_TRUE(a.GetDatosGenerales() == b.GetDatosGenerales());
    EXPECT_TRUE(a.GetLocalizacion() == b.GetLocalizacion());
    EXPECT_TRUE(a.GetConstruccion() == b.GetConstruccion());
    EXPECT_TRUE(a.GetRecinto(0) == b.GetRecinto(0));
    EXPECT_TRUE(a.GetHuecos(1) == b.GetHuecos(1));
    EXPECT_TRUE(a.GetDatosPantalla() == b.GetDatosPantalla());
    EXPECT_TRUE(MismosRegistros(a, b)) << nombre;
  }
  const auto otra = GuardarProyecto(leido, carpeta / "otro.xml");
  EXPECT_EQ(LeerFichero(otra), LeerFichero(ruta));
}

// Valores de las hojas por su camino, en el orden en que están.
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

TEST(IdaYVuelta, ElCasoDePruebaCambiaTodasLasHojasDelFichero) {
  const CarpetaTemporal carpeta;
  GestorEdifActivo blanco;
  blanco.NuevoProyecto();
  DatosDerivados derivados;
  derivados.casos = {pruebas::ResultadosDePrueba(5000)};
  Hojas enBlanco, llenas;
  ReunirHojas(CasoEscrito(GuardarProyecto(blanco, carpeta / "b.xml")), "", enBlanco);
  ReunirHojas(CasoEscrito(GuardarProyecto(ProyectoLleno(), carpeta / "l.xml", derivados)), "",
              llenas);
  // Lo que no depende del caso.
  const std::set<std::string> fijas = {"/Version@name", "/DatosCertificado/Procedimiento/Nombre",
                                       "/DatosCertificado/Procedimiento/Version",
                                       "/Datos_Generales/NumUnidadesUso",
                                       "/Composiciones/Aplicacion@name"};
  for (const auto& [camino, valores] : enBlanco) {
    if (fijas.contains(camino)) continue;
    const auto& otros = llenas[camino];
    for (std::size_t i = 0; i < valores.size() && i < otros.size(); ++i)
      EXPECT_NE(valores[i], otros[i]) << camino << " " << i;
  }
  EXPECT_GT(llenas.size(), 2400U);
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

TEST(IdaYVuelta, CadaUEstaEnElElementoDeSuPosicion) {
  const CarpetaTemporal carpeta;
  GestorEdifActivo gestor;
  gestor.NuevoProyecto();
  DatosDerivados derivados;
  derivados.casos.resize(1);
  for (std::size_t i = 0; i < kRanuras; ++i) {
    gestor.Activo().GetComposicion(i).U = static_cast<float>(i);
    derivados.casos[0].UCTE[i] = static_cast<float>(100 + i);
  }
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
