#include <QListWidget>
#include <QSettings>

#include "gui/VentanaPrueba.h"
#include "shell/gui/ProyectosConocidos.h"

namespace novex::gui::pruebas {
namespace {

class TituloTest : public VentanaTest {
 protected:
  TituloTest() { QSettings().clear(); }
  QListWidgetItem* Reciente(const QString& nombre) {
    const auto hallados = Buscar<QListWidget>("recientes")->findItems(nombre, Qt::MatchExactly);
    return hallados.isEmpty() ? nullptr : hallados.front();
  }
};

TEST_F(TituloTest, UnaFechaSeDiceDesdeHoy) {
  const QDateTime ahora({2026, 3, 1}, {8, 0});
  EXPECT_EQ(FechaRelativa({{2026, 3, 1}, {0, 5}}, ahora), "hoy 0:05");
  EXPECT_EQ(FechaRelativa({{2026, 2, 28}, {23, 59}}, ahora), "ayer");
  EXPECT_EQ(FechaRelativa({{2026, 2, 27}, {9, 0}}, ahora), "27 feb");
  EXPECT_EQ(FechaRelativa({{2025, 11, 3}, {9, 0}}, ahora), "3 nov 2025");
  EXPECT_EQ(FechaRelativa({{2026, 3, 2}, {0, 0}}, ahora), "2 mar");  // reloj atrasado
}

TEST_F(TituloTest, LaLetraDeUnFicheroEsLaDeComoEstaba) {
  const auto copia = carpeta / "casa.xml";
  std::filesystem::copy_file(Ejemplo("vivienda_unifamiliar_D3.xml"), copia);
  const QString ruta = QString::fromStdString(copia.string());
  ASSERT_TRUE(ventana->Abrir(copia));
  ASSERT_NE(Reciente("casa.xml"), nullptr);
  EXPECT_TRUE(Reciente("casa.xml")->data(kLetraProyecto).toString().isEmpty());
  EXPECT_FALSE(Reciente("casa.xml")->data(kFechaProyecto).toString().isEmpty());
  EsperarVivo();
  const QString letra = QString::fromStdString(ventana->Panel().Calculo().Resumen()->letraPrimaria);
  EXPECT_EQ(LetraDe(ruta), letra);
  EXPECT_EQ(Reciente("casa.xml")->data(kLetraProyecto).toString(), letra);
  // Otro proyecto no toma la del anterior mientras se calcula.
  const auto otra = carpeta / "otra.xml";
  std::filesystem::copy_file(Ejemplo("casa_antigua_E1.xml"), otra);
  ASSERT_TRUE(ventana->Abrir(otra));
  EXPECT_TRUE(LetraDe(QString::fromStdString(otra.string())).isEmpty());
  ASSERT_TRUE(ventana->Abrir(copia));
  EsperarVivo();
  // Lo que se edita sin guardar no es lo que hay en el fichero.
  ventana->Contexto().Editar("U", [](Edificio& e) { e.GetComposicion(ranura::MuroExt1).U = 9; });
  EsperarVivo();
  EXPECT_NE(ventana->Panel().Calculo().Resumen()->letraPrimaria, letra.toStdString());
  EXPECT_EQ(LetraDe(ruta), letra);
  sesion.Guardar();
  EXPECT_TRUE(LetraDe(ruta).isEmpty());
}

TEST_F(TituloTest, SinRecientesSeDiceYNoSeAbreNada) {
  ventana->Mostrar(Destino::Titulo);
  auto* lista = Buscar<QListWidget>("recientes");
  ASSERT_EQ(lista->count(), 1);
  EXPECT_FALSE(lista->item(0)->flags().testFlag(Qt::ItemIsEnabled));
  const auto* ejemplos = Buscar<QListWidget>("ejemplos");
  EXPECT_EQ(static_cast<std::size_t>(ejemplos->count()), Ejemplos().size());
}

}  // namespace
}  // namespace novex::gui::pruebas
