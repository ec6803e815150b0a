#include "model/GestorEdifActivo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "model/Cambios.h"

namespace novex {

// El motor no entra en estas pruebas: basta un cálculo que cuente cuántos viven.
class calculo {
 public:
  explicit calculo(int& vivos) : vivos_(vivos) { ++vivos_; }
  ~calculo() { --vivos_; }
  calculo(const calculo&) = delete;
  calculo& operator=(const calculo&) = delete;

 private:
  int& vivos_;
};

namespace {

void Titular(Edificio& edificio, const std::string& titulo) {
  pruebas::CambiarGenerales(edificio, [&](DatosGenerales& g) { g.Edificio_Titulo = titulo; });
}

std::string Titulo(const GestorEdifActivo& gestor, std::string_view nombre) {
  const Edificio* caso = gestor.Caso(nombre);
  return caso == nullptr ? "-" : caso->GetDatosGenerales().Edificio_Titulo;
}

// Los títulos de la base y de las cinco mejoras, seguidos; "-" donde no hay caso.
std::string Titulos(const GestorEdifActivo& gestor) {
  std::string todos;
  for (std::size_t i = 0; i <= caso::kMejoras; ++i)
    todos += Titulo(gestor, GestorEdifActivo::NombreCasoUsuario(i));
  return todos;
}

class Gestor : public ::testing::Test {
 protected:
  Gestor() {
    gestor.NuevoProyecto();
    Titular(gestor.Activo(), "B");
  }
  // Añade mejoras con los títulos "1", "2"...
  void AnadirMejoras(int cuantas) {
    for (int i = 1; i <= cuantas; ++i) {
      gestor.AnadirMejora();
      Titular(gestor.Activo(), std::to_string(i));
    }
  }
  void DarCalculo(std::string_view nombre) {
    gestor.Caso(nombre)->SetCalculo(std::make_shared<calculo>(vivos));
  }

  int vivos = 0;
  GestorEdifActivo gestor;
};

TEST(GestorVacio, NoTieneCasoActivo) {
  GestorEdifActivo gestor;
  EXPECT_EQ(gestor.NombreActivo(), "");
  EXPECT_EQ(gestor.NumeroCasos(), 1U);
  EXPECT_THROW(gestor.Activo(), std::logic_error);
  EXPECT_THROW(gestor.AnadirMejora(), std::logic_error);
  EXPECT_THROW(gestor.ReiniciarConservandoSitio(), std::logic_error);
  EXPECT_THROW(gestor.CrearReferencia(), std::logic_error);
  for (const std::string_view nombre : caso::kNombres) {
    EXPECT_FALSE(gestor.Existe(nombre)) << nombre;
    EXPECT_FALSE(gestor.EsCasoActivo(nombre)) << nombre;
  }
}

TEST_F(Gestor, NuevoProyectoDejaSoloLaBase) {
  AnadirMejoras(2);
  gestor.CrearReferencia();
  gestor.NuevoProyecto();
  EXPECT_EQ(gestor.NumeroCasos(), 1U);
  EXPECT_TRUE(gestor.EsCasoActivo("Viejo"));
  EXPECT_FALSE(gestor.Existe("Referencia"));
  EXPECT_EQ(Titulos(gestor), "-----");  // la base existe, sin título
  gestor.BorrarTodos();
  EXPECT_FALSE(gestor.Existe("Viejo"));
  EXPECT_FALSE(gestor.EsCasoActivo("Viejo"));
}

TEST_F(Gestor, ActivarSoloConElNombreExacto) {
  AnadirMejoras(2);
  gestor.ActivarCaso("Mejora_1");
  EXPECT_EQ(gestor.NombreActivo(), "Mejora_1");
  for (const char* desconocido : {"mejora_2", "Mejora_2 ", "Mejora_6", "Base", ""}) {
    gestor.ActivarCaso(desconocido);
    EXPECT_TRUE(gestor.EsCasoActivo("Mejora_1")) << desconocido;
    EXPECT_FALSE(gestor.EsCasoActivo(desconocido));
  }
  // Una posición conocida pero vacía deja el proyecto sin caso activo.
  gestor.ActivarCaso("Mejora_3");
  EXPECT_EQ(gestor.NombreActivo(), "");
  EXPECT_FALSE(gestor.EsCasoActivo("Mejora_3"));
  EXPECT_THROW(gestor.Activo(), std::logic_error);
}

TEST_F(Gestor, CadaMejoraEsCopiaDeLaActiva) {
  EXPECT_EQ(gestor.AnadirMejora(), "Mejora_1");
  Titular(gestor.Activo(), "1");
  EXPECT_EQ(gestor.AnadirMejora(), "Mejora_2");
  EXPECT_EQ(Titulo(gestor, "Mejora_2"), "1");
  gestor.ActivarCaso("Viejo");
  EXPECT_EQ(gestor.AnadirMejora(), "Mejora_3");
  EXPECT_EQ(Titulos(gestor), "B11B--");
  EXPECT_EQ(gestor.NumeroCasos(), 4U);
  EXPECT_TRUE(gestor.EsCasoActivo("Mejora_3"));
  // Lo que se cambia en una copia no toca a su original.
  Titular(gestor.Activo(), "3");
  EXPECT_EQ(Titulo(gestor, "Viejo"), "B");
}

TEST_F(Gestor, NoCabenMasDeCincoMejoras) {
  AnadirMejoras(5);
  EXPECT_EQ(gestor.PrimeraMejoraLibre(), "");
  gestor.ActivarCaso("Mejora_2");
  EXPECT_EQ(gestor.AnadirMejora(), "");
  EXPECT_TRUE(gestor.EsCasoActivo("Mejora_2"));
  EXPECT_EQ(gestor.NumeroCasos(), 6U);
  EXPECT_EQ(Titulos(gestor), "B12345");
  EXPECT_THROW(GestorEdifActivo::NombreCasoUsuario(6), std::out_of_range);
}

TEST_F(Gestor, LaReferenciaEsOtraCopiaQueNoCuenta) {
  gestor.AnadirMejora();
  gestor.CrearReferencia();
  EXPECT_EQ(Titulo(gestor, "Referencia"), "B");
  EXPECT_EQ(gestor.NumeroCasos(), 2U);
  EXPECT_TRUE(gestor.EsCasoActivo("Mejora_1"));

  Titular(*gestor.Caso("Viejo"), "b");
  EXPECT_EQ(Titulo(gestor, "Referencia"), "B");
  gestor.CrearReferencia();
  EXPECT_EQ(Titulo(gestor, "Referencia"), "b");

  gestor.EliminarCaso("Referencia");
  EXPECT_FALSE(gestor.Existe("Referencia"));
  EXPECT_TRUE(gestor.EsCasoActivo("Mejora_1"));
  gestor.CrearReferencia();
  gestor.ActivarCaso("Referencia");
  gestor.EliminarCaso("Referencia");
  EXPECT_EQ(gestor.NombreActivo(), "");
  EXPECT_THROW(gestor.Activo(), std::logic_error);
}

TEST_F(Gestor, ReiniciarConservaElSitioYSuClimaDelActivo) {
  gestor.AnadirMejora();
  Localizacion sitio;
  sitio.Municipio = "Soria";
  sitio.ZonaClimatica = "E1";
  sitio.asnm = 1063;
  sitio.mesmin = 6;
  gestor.Activo().SetLocalizacion(sitio);
  DatosClimaticosSitio clima;
  clima.aguaRed[12] = 6.5F;
  clima.mediaAnual = 10.9F;
  gestor.Activo().SetDatosClimaticosSitio(clima);
  ObstaculosRemotos obstaculos;
  obstaculos.Sur_Altura = 8;
  gestor.Activo().SetObstaculosRemotos(obstaculos);

  gestor.ReiniciarConservandoSitio();
  EXPECT_TRUE(gestor.EsCasoActivo("Viejo"));
  EXPECT_EQ(gestor.NumeroCasos(), 1U);
  EXPECT_EQ(gestor.Activo().GetLocalizacion(), sitio);
  EXPECT_EQ(gestor.Activo().GetDatosClimaticosSitio(), clima);
  EXPECT_EQ(gestor.Activo().GetObstaculosRemotos(), ObstaculosRemotos{});
  EXPECT_EQ(Titulo(gestor, "Viejo"), "");
}

TEST_F(Gestor, CrearCasoVacioSoloEnLasMejoras) {
  for (const char* nombre : {"Viejo", "Referencia", "Mejora_0", "otro"}) {
    gestor.CrearCasoVacio(nombre);
    EXPECT_TRUE(gestor.EsCasoActivo("Viejo")) << nombre;
  }
  EXPECT_EQ(Titulo(gestor, "Viejo"), "B");
  EXPECT_FALSE(gestor.Existe("Referencia"));

  gestor.AnadirMejora();
  DarCalculo("Mejora_1");
  gestor.ActivarCaso("Viejo");
  gestor.CrearCasoVacio("Mejora_1");
  EXPECT_TRUE(gestor.EsCasoActivo("Mejora_1"));
  EXPECT_EQ(Titulo(gestor, "Mejora_1"), "");
  EXPECT_EQ(vivos, 0);
}

TEST_F(Gestor, BorrarUnCasoCorreLosSiguientes) {
  AnadirMejoras(5);
  gestor.EliminarCaso("Mejora_2");
  EXPECT_EQ(Titulos(gestor), "B1345-");
  EXPECT_TRUE(gestor.EsCasoActivo("Viejo"));
  EXPECT_EQ(gestor.NumeroCasos(), 5U);
  EXPECT_EQ(gestor.PrimeraMejoraLibre(), "Mejora_5");
  gestor.EliminarCaso("Mejora_4");
  EXPECT_EQ(Titulos(gestor), "B134--");
  // La que no existe no cambia nada, tampoco el activo.
  gestor.ActivarCaso("Mejora_1");
  gestor.EliminarCaso("Mejora_4");
  gestor.EliminarCaso("Mejora_9");
  EXPECT_EQ(Titulos(gestor), "B134--");
  EXPECT_TRUE(gestor.EsCasoActivo("Mejora_1"));
  // Sin la base, sube la primera mejora.
  gestor.EliminarCaso("Viejo");
  EXPECT_EQ(Titulos(gestor), "134---");
  EXPECT_TRUE(gestor.EsCasoActivo("Viejo"));
  EXPECT_EQ(gestor.NumeroCasos(), 3U);
}

TEST_F(Gestor, LosCasosMovidosPierdenElCalculoYLosDemasNo) {
  AnadirMejoras(3);
  for (const char* nombre : {"Viejo", "Mejora_1", "Mejora_2", "Mejora_3"}) DarCalculo(nombre);
  EXPECT_EQ(vivos, 4);
  gestor.EliminarCaso("Mejora_2");
  EXPECT_NE(gestor.Caso("Mejora_1")->GetCalculo(), nullptr);
  EXPECT_EQ(gestor.Caso("Mejora_2")->GetCalculo(), nullptr);
  EXPECT_EQ(vivos, 2);  // el borrado y el del que se ha movido ya no viven
  gestor.EliminarCaso("Viejo");
  EXPECT_EQ(gestor.Caso("Viejo")->GetCalculo(), nullptr);
  EXPECT_EQ(vivos, 0);
  // Un segundo cálculo es un fallo de quien llama.
  DarCalculo("Viejo");
  EXPECT_THAT([&] { DarCalculo("Viejo"); },
              testing::ThrowsMessage<std::logic_error>("m_ptrcalculo==NULL"));
  EXPECT_EQ(vivos, 1);
  EXPECT_EQ(ClonarEdificio(gestor.Activo())->GetCalculo(), nullptr);
  gestor.Activo().QuitarCalculo();
  EXPECT_NO_THROW(DarCalculo("Viejo"));
}

}  // namespace
}  // namespace novex
