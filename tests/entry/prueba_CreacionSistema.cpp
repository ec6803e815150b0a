#include "entry/CreacionSistema.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "entry/EdificioSistemas.h"
#include "entry/ListasSistemas.h"
#include "systems/ArregloACS.h"

namespace novex {
namespace {

using pruebas::EdificioD3;
using pruebas::Sistema;

const char* const kC = "Centralizada/Bloque";
const char* const kI = "Individual/Vivienda";
const char* const kAgua = "Rend. estacional (agua)";
const char* const kFin = " No se construye el sistema";

// Los textos, sin su final, por el orden en que se prueban.
const std::vector<std::string> kTextos = {
    "Ya existe un equipo de refrigeración, no se puede añadir un equipo de rendimiento conocido "
    "para refrigeración.",
    "Ya existe un equipo de calefacción, no se puede añadir un equipo de rendimiento conocido para "
    "calefacción.",
    "Ya existe un equipo de calefacción/refrigeración, no se puede añadir un equipo de rendimiento "
    "conocido para calefacción/refrigeración.",
    "Ya existe un único equipo de rendimiento conocido para calefacción.",
    "Ya existe un único equipo de rendimiento conocido para refrigeración.",
    "Ya existe un único equipo de rendimiento conocido para refrigeración y/o calefacción.",
    "Sólo se permite una tipología de equipos de ACS centralizado en el edificio.",
    "Ya existe una instalación centralizada de calefacción.",
    "Ya existe una instalación individual de calefacción, no tiene sentido añadir una instalacion "
    "centralizada de calefacción.",
    "Ya existe una instalación centralizada de refrigeración.",
    "Ya existe una instalación individual de refrigeración, no tiene sentido añadir una "
    "instalacion centralizada de refrigeración."};

PeticionSistema Peticion(std::string_view tipo, std::string_view clase,
                         std::string_view tipologia) {
  PeticionSistema p;
  p.tipoSistema = tipo;
  p.seleccion = clase;
  p.tipologia = tipologia;
  return p;
}

struct Terna {
  const char *tipo, *seleccion, *tipologia;
};
struct Caso {
  Terna existe, nuevo;
  int texto;  // en `kTextos`; -1 si se admite
};

const char* const kCR = "Calefaccion+Refrigeracion";
const char* const kAC = "ACS+Calefaccion";
const char* const kTodo = "ACS+Calefaccion+Refrigeracion";
const char* const kCal = "Calefaccion";
const char* const kRef = "Refrigeracion";
const char* const kMS = "Equipo MultiSplit";
const char* const kBC = "1 BC aire-agua";
const char* const kCaldera = "1 Caldera";

const Caso kCasos[] = {
    // Un equipo estacional nuevo junto a otro del servicio.
    {{kRef, kMS, kI}, {kRef, kAgua, kI}, 0},
    {{kCal, kCaldera, kI}, {kCal, "Rend. estacional", kI}, 1},
    {{kAC, kCaldera, kI}, {kCal, kAgua, kI}, 1},
    {{kRef, kMS, kI}, {kCR, "Rend. estacional (refrigerante)", kI}, 2},
    {{kAC, kCaldera, kI}, {kCR, kAgua, kI}, 2},
    // Uno que ya está, con otro nuevo.
    {{kCR, kAgua, kI}, {kCal, kCaldera, kI}, 3},
    {{kCal, "Rend. estacional", kI}, {kAC, kCaldera, kI}, 3},
    {{kCR, kAgua, kI}, {kRef, kMS, kI}, 4},
    {{kRef, kAgua, kI}, {kCR, kMS, kI}, 5},
    // Centralizadas.
    {{"ACS", kCaldera, kC}, {"ACS", "1 Calentador", kI}, 6},
    {{kCal, kCaldera, kC}, {kAC, kCaldera, kI}, 7},
    {{kAC, kCaldera, kC}, {kCR, kMS, kI}, 7},
    {{kCal, kCaldera, kI}, {kAC, kBC, kC}, 8},
    {{kRef, kBC, kC}, {kRef, kMS, kI}, 9},
    {{kRef, kBC, kC}, {kCR, kMS, kI}, 9},
    {{kRef, kMS, kI}, {kRef, kBC, kC}, 10},
    // Cuando fallan varias.
    {{kCal, kAgua, kC}, {kCal, kAgua, kC}, 1},
    {{kCal, kAgua, kC}, {kCal, kCaldera, kC}, 3},
    {{kAC, kCaldera, kC}, {kAC, kCaldera, kC}, 6},
    {{kCR, kBC, kC}, {kCR, kBC, kC}, 7},
    {{kCR, kMS, kI}, {kCR, kBC, kC}, 8},
    // Admitidos.
    {{"ACS", "1 Calentador", kI}, {"ACS", "1 Calentador", kI}, -1},
    {{"ACS", "1 Calentador", kI}, {"ACS", kCaldera, kC}, -1},
    {{kCal, kCaldera, kI}, {kCal, kCaldera, kI}, -1},
    {{kCal, kCaldera, kC}, {kRef, kMS, kI}, -1},
    {{kRef, kAgua, kI}, {kCal, kAgua, kI}, -1}};

TEST(RechazoSistema, ElPrimeroQueFalla) {
  for (const auto& [existe, nuevo, texto] : kCasos) {
    SCOPED_TRACE(std::string(existe.seleccion) + " y " + nuevo.tipo + " " + nuevo.seleccion);
    auto edificio = EdificioD3(0, 100, 112);
    edificio->AnadirSistema(Sistema(existe.tipo, existe.seleccion, existe.tipologia));
    RegistroMensajes mensajes;
    EXPECT_EQ(CrearSistema(*edificio, Peticion(nuevo.tipo, nuevo.seleccion, nuevo.tipologia),
                           nullptr, mensajes),
              texto < 0);
    EXPECT_EQ(edificio->NumeroSistemas(), texto < 0 ? 2U : 1U);
    std::vector<Mensaje> avisos;
    if (texto >= 0) avisos = {{"AVISO", kTextos[static_cast<std::size_t>(texto)] + kFin}};
    EXPECT_EQ(mensajes.recibidos, avisos);
  }
}

TEST(RechazoSistema, LaSuperficieVaPrimero) {
  auto edificio = EdificioD3(0, 100, 112);
  edificio->AnadirSistema(Sistema(kCal, kCaldera, kC));
  PeticionSistema p{kCal, kCaldera, kC, "", "", "", "", "", 0.0F};
  const Mensaje esperado{"Valor incorrecto",
                         "La superficie acondicionada tiene que ser mayor que cero. No se crea el "
                         "sistema"};
  EXPECT_EQ(RechazoSistema(*edificio, p), esperado);
  p.superficie.reset();
  EXPECT_NE(RechazoSistema(*edificio, p), esperado);
  edificio->GetRecinto(0).Suelo_habitable_m2 = 0;
  EXPECT_EQ(RechazoSistema(*edificio, p), esperado);
}

TEST(RechazoSistema, SoloMiraElPrimerBloque) {
  auto edificio = EdificioD3(0, 100, 112);
  SistemaResidencial s = Sistema("ACS", "1 Calentador", kI);
  s.instalaciones.push_back(Sistema("", kCaldera, kC).instalaciones[0]);
  edificio->AnadirSistema(s);
  EXPECT_FALSE(RechazoSistema(*edificio, Peticion("ACS", "1 Calentador", kI)));
  edificio->GetSistema(0).instalaciones.erase(edificio->GetSistema(0).instalaciones.begin());
  EXPECT_TRUE(RechazoSistema(*edificio, Peticion("ACS", "1 Calentador", kI)));
}

TEST(RechazoSistema, LoQueLasListasNoOfrecen) {
  const auto edificio = EdificioD3(0, 100, 112);
  const PeticionSistema malas[] = {{kTodo, kBC, kI, "", "", "", "", "", {}},
                                   {"ACS", "1 Calentador", kC, "", "", "", "", "", {}},
                                   {kCal, kCaldera, "Otra", "", "", "", "", "", {}},
                                   {kCal, kCaldera, kI, "", "Unid.Interior", "", "", "", {}},
                                   {"ACS", kCaldera, kI, "", "", "", "Con colector", "", {}}};
  for (const PeticionSistema& p : malas)
    EXPECT_TRUE(RechazoSistema(*edificio, p)) << p.tipoSistema << p.seleccion;
}

XMLNode Equipos() {
  return XMLNode::loadFile(std::string(NOVEX_RAIZ_DATOS) + "/database/Equipos.xml", "EquiposNovex");
}

// Toda clase que se ofrece se crea con números, con curvas si está en el catálogo y, en agua
// caliente, con un arreglo que el cálculo conoce.
TEST(CrearSistema, TodasLasClasesOfrecidas) {
  RegistroMensajes mensajes;
  const CatalogoEquipos catalogo(Equipos(), mensajes);
  for (std::size_t i = 0; i < kServiciosOfrecidos; ++i)
    for (const auto& [rotulo, tipologia] : kTipologiasInstalacion)
      for (const std::string_view clase :
           ClasesOfrecidas(kServiciosSistema[i].tipoSistema, tipologia)) {
        const std::string tipo(kServiciosSistema[i].tipoSistema);
        SCOPED_TRACE(tipo + " " + std::string(clase));
        auto edificio = EdificioD3(0, 100, 112);
        ASSERT_TRUE(CrearSistema(
            *edificio, {tipo, std::string(clase), std::string(tipologia), "", "", "", "", "", {}},
            &catalogo, mensajes));
        const SistemaResidencial& s = edificio->GetSistema(0);
        const Instalaciones& b = s.instalaciones.at(0);
        EXPECT_EQ(s.Nombre_sistema, "Sistema 1");
        EXPECT_EQ(b.Fabricante, "Defecto");
        const bool deCatalogo = !TipoDeCatalogo(clase).tipo.empty();
        EXPECT_EQ(!b.Modelo.empty(), deCatalogo);
        EXPECT_EQ(b.curvas != CurvasEquipo{}, deCatalogo);
        for (const float x : pruebas::Numeros(b)) EXPECT_TRUE(std::isfinite(x));
        EXPECT_EQ(s.Sup_Calefaccion > 0, DaCalefaccion(TipoSistemaDe(tipo)));
        const bool sinDeposito = clase == "1 Calentador" || clase == "1 BC aire-agua dedicada" ||
                                 clase == "1 Caldera Mixta" ||
                                 clase == "1 Interacumulador electrico";
        if (DaACS(TipoSistemaDe(tipo))) {
          EXPECT_EQ(ResolverArreglo(TipoSistemaDe(tipo), b).deposito, !sinDeposito);
        }
      }
  EXPECT_TRUE(mensajes.recibidos.empty());
}

TEST(CrearSistema, LaCalderaTomaElModeloDeSuTipo) {
  RegistroMensajes mensajes;
  const CatalogoEquipos catalogo(Equipos(), mensajes);
  Instalaciones b = Sistema(kCal, kCaldera, kI).instalaciones[0];
  for (const auto& [tipo, modelo] : {std::pair{"Condensacion", "Caldera de condensación"},
                                     std::pair{"Biomasa", "Caldera de biomasa"}}) {
    b.TipoGenerador1 = tipo;
    EXPECT_TRUE(PonerModeloGenerico(catalogo, b));
    EXPECT_EQ(b.Modelo, modelo);
  }
  b.Seleccion = "1 Termo electrico";
  EXPECT_FALSE(PonerModeloGenerico(catalogo, b));
  EXPECT_TRUE(b.Modelo.empty() && b.curvas == CurvasEquipo{});
}

}  // namespace
}  // namespace novex
