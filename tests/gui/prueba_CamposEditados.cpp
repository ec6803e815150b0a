#include <QTabWidget>
#include <algorithm>
#include <array>
#include <set>

#include "files/AccesoCampos.h"
#include "gui/VentanaPrueba.h"
#include "shell/OrigenCampos.h"
#include "shell/gui/DialogoColumna.h"
#include "shell/gui/PaginaHuecos.h"
#include "shell/gui/PaginaPestanas.h"

namespace novex::gui::pruebas {
namespace {

// Los campos de las páginas que ya los editan todos, por el comienzo de su dirección.
constexpr std::array<std::string_view, 6> kConPagina = {
    "Hueco[", "Tiposimulacion", "TipoCertificado", "Reforma", "Modo_Vision", "Equipos_Defecto"};

bool TienePagina(const std::string& direccion) {
  return std::any_of(kConPagina.begin(), kConPagina.end(),
                     [&](std::string_view comienzo) { return direccion.starts_with(comienzo); });
}

class CamposEditadosTest : public VentanaTest {
 protected:
  // Apunta lo que enlaza ahora la ventana, con sus diálogos.
  void Apuntar() {
    for (const Enlaces* enlaces : ventana->findChildren<Enlaces*>())
      for (const std::string& d : enlaces->Direcciones()) enlazadas.insert(d);
  }
  void RecorrerPaginas() {
    for (int i = 0; i <= static_cast<int>(Destino::Definicion); ++i) {
      ventana->Mostrar(static_cast<Destino>(i));
      auto* pestanas = ventana->PaginaDe(static_cast<Destino>(i))->findChild<QTabWidget*>();
      for (int p = 0; pestanas != nullptr && p < pestanas->count(); ++p) {
        pestanas->setCurrentIndex(p);
        Apuntar();
      }
      Apuntar();
    }
  }
  void RecorrerHuecos() {
    auto* pagina = ventana->findChild<PaginaHuecos*>();
    for (std::size_t g = 0; g < sesion.Caso().NumeroHuecos(); ++g) {
      pagina->MostrarGrupo(g);
      for (const Sector s : {oeste, sur_oeste, sur, sur_este, este}) {
        const DialogoColumna dialogo(ventana->Contexto(), g, s, ventana.get());
        Apuntar();
      }
    }
  }
  std::set<std::string> enlazadas;
};

// Un campo que nadie puede editar se quedaría para siempre con su valor de partida.
TEST_F(CamposEditadosTest, CadaCampoEditadoTieneSuEditor) {
  ASSERT_TRUE(ventana->Abrir(Ejemplo("vivienda_unifamiliar_D3.xml")));
  RecorrerPaginas();
  RecorrerHuecos();
  std::size_t revisados = 0;
  for (const std::string& direccion : DireccionesDeCampos(sesion.Caso())) {
    if (OrigenDeCampo(direccion) != OrigenCampo::Editado || !TienePagina(direccion)) continue;
    ++revisados;
    EXPECT_TRUE(enlazadas.contains(direccion)) << direccion;
  }
  EXPECT_GT(revisados, 300U);  // cinco grupos de huecos, de más de sesenta campos
  // Un editor de un campo que no existe no editaría nada.
  for (const std::string& direccion : enlazadas)
    EXPECT_TRUE(BuscarDatosCampo(direccion).has_value()) << direccion;
}

}  // namespace
}  // namespace novex::gui::pruebas
