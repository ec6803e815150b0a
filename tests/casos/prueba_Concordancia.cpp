#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <iostream>

#include "base/ErrorFichero.h"
#include "base/NumeroTexto.h"
#include "casos/CasoPrueba.h"
#include "files/CarpetaTemporal.h"
#include "files/ProyectoFichero.h"
#include "rating/Escala.h"

namespace novex {
namespace {

using pruebas::CarpetaCasos;
using pruebas::CasoPrueba;
using pruebas::Comparacion;

bool ListaCorta() {
  const char* casos = std::getenv("NOVEX_CASOS");
  return casos != nullptr && std::string_view(casos) == "corta";
}

std::vector<std::string> Elegidos() {
  std::vector<std::string> nombres;
  for (const char clase : {'v', 's', 't'})
    for (const std::string& nombre : pruebas::NombresCasos(clase)) nombres.push_back(nombre);
  if (ListaCorta()) nombres.resize(1);
  return nombres;
}

// Una fila de la tabla de contraste por magnitud, con su peor diferencia.
void ImprimirContraste(const std::string& caso, const std::vector<Comparacion>& todas) {
  const char* pedido = std::getenv("NOVEX_CONTRASTE");
  if (pedido == nullptr || std::string_view(pedido) != "1") return;
  for (const Comparacion& c : pruebas::Peores(todas)) {
    const double relativa =
        c.esperado == 0.0 ? 0.0 : 100.0 * c.Diferencia() / std::fabs(c.esperado);
    std::cout << "CONTRASTE;" << caso << ';' << c.grupo << ';' << c.detalle << ';'
              << Fijo(c.esperado, 4) << ';' << Fijo(c.obtenido, 4) << ';' << Fijo(relativa, 3)
              << ';' << Fijo(100.0 * c.Razon(), 1) << '\n';
  }
}

void EsperarAcuerdo(const std::vector<Comparacion>& todas) {
  ASSERT_FALSE(todas.empty());
  for (const Comparacion& c : pruebas::Peores(todas))
    EXPECT_LE(c.Razon(), 1.0) << c.grupo << ", " << c.detalle << ": esperado " << c.esperado
                              << ", obtenido " << c.obtenido << ", tolerancia " << c.tolerancia;
}

class Caso : public testing::TestWithParam<std::string> {};

// Frente a un cálculo independiente del mismo proyecto y el mismo clima.
TEST_P(Caso, ConcuerdaConElCalculoIndependiente) {
  const nlohmann::json esperado = pruebas::LeerEsperado(GetParam());
  const CasoPrueba caso(GetParam(), CarpetaCasos() / "programa");
  ASSERT_TRUE(caso.calculado);
  EXPECT_TRUE(caso.mensajes.recibidos.empty());
  const ResultadosCaso& r = caso.Resultado().resultados;

  const auto anuales = pruebas::CompararResultados(esperado, caso);
  ImprimirContraste(GetParam(), anuales);
  EsperarAcuerdo(anuales);
  if (std::filesystem::exists(CarpetaCasos() / "esperado" / (GetParam() + ".csv"))) {
    const auto horarias = pruebas::CompararSeries(GetParam(), caso);
    ImprimirContraste(GetParam(), horarias);
    EsperarAcuerdo(horarias);
  }

  for (const auto& [clave, letra] : esperado.at("letras").items()) {
    const auto i = static_cast<std::size_t>(IndicadorDeClave(clave));
    EXPECT_EQ(r.escala.letra[i], letra.get<std::string>()) << clave;
  }
  EXPECT_EQ(r.horasOcupacion, esperado.at("horas_ocupacion").get<float>());
}

INSTANTIATE_TEST_SUITE_P(Todos, Caso, testing::ValuesIn(Elegidos()),
                         [](const auto& parametro) { return parametro.param; });

// Una carpeta de programa con solo los ficheros que la vivienda `v01` necesita.
class CarpetaJusta : public testing::Test {
 protected:
  static constexpr std::array<const char*, 6> kNecesarios = {
      "CoefTransf.xml", "Capitales.xml",   "FactoresConversion.xml",
      "Defecto.xml",    "Localidades.xml", "Equipos.xml"};
  CarpetaJusta() {
    const auto origen = CarpetaCasos() / "programa";
    std::filesystem::create_directories(carpeta / "database");
    std::filesystem::create_directories(carpeta / "databaseCTE");
    for (const char* nombre : kNecesarios)
      std::filesystem::copy(origen / "database" / nombre, carpeta / "database" / nombre);
    std::filesystem::copy(origen / "databaseCTE/ZonaD3.met", carpeta / "databaseCTE/ZonaD3.met");
  }
  CasoPrueba Calcular() const { return {"v01_vivienda_D3", carpeta / ""}; }

  pruebas::CarpetaTemporal carpeta;
};

TEST_F(CarpetaJusta, LoQueUnCalculoNoUsaPuedeFaltar) {
  const CasoPrueba caso = Calcular();
  ASSERT_TRUE(caso.calculado);
  EXPECT_TRUE(caso.mensajes.recibidos.empty());
  const CasoPrueba completo("v01_vivienda_D3", CarpetaCasos() / "programa");
  EXPECT_EQ(caso.Resultado().resultados.total, completo.Resultado().resultados.total);
}

TEST_F(CarpetaJusta, LoQueUsaSeEchaEnFaltaPorSuNombre) {
  for (const std::string nombre : kNecesarios) {
    std::filesystem::rename(carpeta / "database" / nombre, carpeta / "database/fuera");
    try {
      Calcular();
      ADD_FAILURE() << nombre;
    } catch (const ErrorFichero& error) {
      EXPECT_THAT(error.ruta, testing::EndsWith(nombre));
    }
    std::filesystem::rename(carpeta / "database/fuera", carpeta / "database" / nombre);
  }
  std::filesystem::remove(carpeta / "databaseCTE/ZonaD3.met");
  EXPECT_FALSE(Calcular().calculado);
}

TEST(ProyectosDeCaso, TodosSeLeenEnterosYSinAvisos) {
  std::size_t leidos = 0;
  for (const char clase : {'v', 's', 't'})
    for (const std::string& nombre : pruebas::NombresCasos(clase)) {
      SCOPED_TRACE(nombre);
      GestorEdifActivo gestor;
      RegistroMensajes mensajes;
      const ProyectoAbierto abierto = AbrirProyecto(
          gestor, CarpetaCasos() / "proyectos" / (nombre + ".xml"), ModoApertura::Nuevo, mensajes);
      EXPECT_THAT(abierto.casos, testing::ElementsAre(caso::kViejo));
      EXPECT_TRUE(abierto.casosSinUso.empty());
      EXPECT_TRUE(mensajes.recibidos.empty()) << mensajes.recibidos.front().texto;
      const nlohmann::json esperado = pruebas::LeerEsperado(nombre);
      const Edificio& edificio = gestor.Activo();
      EXPECT_EQ(edificio.GetLocalizacion().ZonaClimatica, esperado.at("zona"));
      EXPECT_EQ(edificio.GetDatosGenerales().PerfilUso, esperado.at("perfil_uso"));
      EXPECT_FLOAT_EQ(edificio.GetRecinto(0).Suelo_habitable_m2, esperado.at("superficie_m2"));
      EXPECT_FLOAT_EQ(edificio.GetRecinto(0).Volumen_total_m3, esperado.at("volumen_m3"));
      ++leidos;
    }
  EXPECT_EQ(leidos, 14U);
}

}  // namespace
}  // namespace novex
