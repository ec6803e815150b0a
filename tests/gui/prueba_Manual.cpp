#include <QRegularExpression>
#include <QTextBrowser>

#include "base/FicheroSeguro.h"
#include "gui/VentanaPrueba.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui::pruebas {
namespace {

namespace fs = std::filesystem;

// F1 enseña la página del manual de cada pestaña.
TEST_F(VentanaTest, LaAyudaEsLaDeLaPagina) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  for (int i = 0; i <= static_cast<int>(Destino::Definicion); ++i) {
    ventana->Mostrar(static_cast<Destino>(i));
    Ordenar("Ayuda");
    const auto* texto = ventana->findChild<QTextBrowser*>("manual");
    ASSERT_NE(texto, nullptr);
    EXPECT_EQ(texto->source().fileName(), PaginaManualDe(static_cast<Destino>(i)));
    EXPECT_GT(texto->toPlainText().size(), 500);
  }
}

// Ningún enlace ni imagen del manual lleva a un fichero que no está.
TEST(Manual, SusEnlacesYSusImagenesEstan) {
  const fs::path manual = fs::path(NOVEX_PROGRAMA_PRUEBAS) / "manual";
  std::size_t enlaces = 0;
  for (const auto& fichero : fs::directory_iterator(manual)) {
    if (fichero.path().extension() != ".md") continue;
    SCOPED_TRACE(fichero.path().filename().string());
    const QString texto = Q(LeerFichero(fichero.path()));
    auto it = QRegularExpression("\\]\\(([^)]+)\\)").globalMatch(texto);
    while (it.hasNext()) {
      ++enlaces;
      const std::string destino = S(it.next().captured(1).section('#', 0, 0));
      EXPECT_TRUE(fs::is_regular_file(manual / destino)) << destino;
    }
  }
  EXPECT_GT(enlaces, 20U);
}

}  // namespace
}  // namespace novex::gui::pruebas
