#include <QCheckBox>
#include <QComboBox>
#include <QTabWidget>
#include <cmath>
#include <set>

#include "entry/CambioSistema.h"
#include "entry/CamposSistema.h"
#include "entry/CreacionSistema.h"
#include "files/AccesoCampos.h"
#include "files/ProyectoFichero.h"
#include "gui/VentanaPrueba.h"
#include "model/CatalogoCampos.h"
#include "model/ClavesCampos.h"
#include "shell/OrigenCampos.h"
#include "shell/gui/DialogoColumna.h"
#include "shell/gui/PaginaHuecos.h"
#include "shell/gui/PaginaPestanas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui::pruebas {
namespace {

constexpr std::string_view kSistema = "Tipo_sistema[1]/";
const std::set<std::string> kBuscados = {"Provincia", "Municipio"};

// Las etiquetas que enseña alguna clase de sistema con alguna de sus elecciones.
class EtiquetasDeSistemas {
 public:
  // El bloque pide además el tipo de vivienda de cada equipo.
  EtiquetasDeSistemas() {
    for (const char* ejemplo : {"vivienda_unifamiliar_D3.xml", "bloque_B3.xml"}) {
      RegistroMensajes avisos;
      GestorEdifActivo gestor;
      AbrirProyecto(gestor, Ejemplo(ejemplo), ModoApertura::Nuevo, avisos);
      MirarTodos(gestor.Activo());
    }
  }
  bool Contiene(const std::string& etiqueta) const { return vistas_.contains(etiqueta); }

 private:
  void MirarTodos(const Edificio& edificio) {
    for (const ServicioSistema& servicio : kServiciosSistema)
      for (const char* tipologia : {"Centralizada/Bloque", "Individual/Vivienda"})
        for (const std::string_view clase : ClasesOfrecidas(servicio.tipoSistema, tipologia)) {
          PeticionSistema peticion;
          peticion.tipoSistema = servicio.tipoSistema;
          peticion.seleccion = clase;
          peticion.tipologia = tipologia;
          Mirar(edificio, NuevoSistema(edificio, peticion, nullptr), 2);
        }
  }
  // Con cada texto de cada lista se enseñan otros campos, y otras listas.
  void Mirar(const Edificio& edificio, const SistemaResidencial& sistema, int niveles) {
    for (const CampoMostrado& campo :
         CamposMostrados(edificio, sistema, sistema.instalaciones[0])) {
      vistas_.insert(std::string(campo.etiqueta));
      if (niveles == 0) continue;
      for (const std::string_view valor : campo.valores) {
        const auto otro = edificio.Clonar();
        while (otro->NumeroSistemas() > 0) otro->BorrarSistema(0);
        otro->AnadirSistema(sistema);
        RegistroMensajes avisos;
        if (PonerCampoSistema(*otro, 1, campo.etiqueta, valor, nullptr, avisos))
          Mirar(edificio, otro->GetSistema(0), niveles - 1);
      }
    }
  }

  std::set<std::string> vistas_;
};

class CamposEditadosTest : public VentanaTest {
 protected:
  /// Hace algo en cada página y pestaña a la vista.
  template <class Hacer>
  void RecorrerPaginas(Hacer hacer) {
    for (int i = 0; i <= static_cast<int>(Destino::Definicion); ++i) {
      ventana->Mostrar(static_cast<Destino>(i));
      auto* pestanas = ventana->PaginaDe(static_cast<Destino>(i))->findChild<QTabWidget*>();
      for (int p = 0; p < (pestanas == nullptr ? 1 : pestanas->count()); ++p) {
        if (pestanas != nullptr) pestanas->setCurrentIndex(p);
        hacer(*ventana->PaginaDe(static_cast<Destino>(i)));
      }
    }
  }
  // Apunta lo que enlaza ahora la ventana, con sus diálogos.
  void Apuntar() {
    for (const Enlaces* enlaces : ventana->findChildren<Enlaces*>())
      for (const std::string& d : enlaces->Direcciones()) {
        enlazadas.insert(d);
        EXPECT_FALSE(enlaces->Editor(d)->toolTip().isEmpty()) << d;
      }
  }
  void ApuntarHuecos() {
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
  RecorrerPaginas([this](Pagina&) { Apuntar(); });
  ApuntarHuecos();
  sesion.DuplicarCaso();  // lo propio de una mejora
  emit ventana->Contexto().ProyectoCambiado();
  ventana->Mostrar(Destino::Definicion);
  Apuntar();
  const EtiquetasDeSistemas deSistemas;
  std::set<std::string> sinEditor;
  for (const std::string& direccion : DireccionesDeCampos(sesion.Caso())) {
    if (OrigenDeCampo(direccion) != OrigenCampo::Editado) continue;
    const bool tiene = direccion.starts_with(kSistema)
                           ? deSistemas.Contiene(direccion.substr(kSistema.size()))
                           : enlazadas.contains(direccion);
    // Los demás sistemas tienen los mismos campos que el primero.
    if (!tiene && (direccion.starts_with(kSistema) || !direccion.starts_with("Tipo_sistema[")))
      sinEditor.insert(direccion);
  }
  for (const std::string& direccion : sinEditor) ADD_FAILURE() << direccion;
  // Un editor de un campo que no existe, o que pone el programa, no editaría nada.
  for (const std::string& direccion : enlazadas) {
    EXPECT_TRUE(BuscarDatosCampo(direccion).has_value()) << direccion;
    EXPECT_EQ(OrigenDeCampo(direccion), OrigenCampo::Editado) << direccion;
  }
}

// Pone en un editor otro valor de los que admite. \returns false si no hay otro
bool Cambiar(QWidget* editor, const std::string& direccion) {
  if (auto* lista = qobject_cast<QComboBox*>(editor)) {
    if (lista->count() < 2) return false;
    const int otra = lista->currentIndex() == 0 ? 1 : 0;
    lista->setCurrentIndex(otra);
    emit lista->activated(otra);
    return true;
  }
  if (auto* casilla = qobject_cast<QCheckBox*>(editor)) {
    casilla->click();
    return true;
  }
  auto* linea = qobject_cast<QLineEdit*>(editor);
  if (linea == nullptr || linea->isReadOnly()) return false;
  const auto datos = BuscarDatosCampo(direccion);
  const CampoCatalogo* limites = BuscarCampo(ClaveDeCampo(datos->etiqueta));
  QString texto = linea->text() == "otro" ? "uno" : "otro";
  const bool conLimites = limites != nullptr && limites->tipo != TipoCampo::Ninguno &&
                          std::isfinite(limites->minimo) && std::abs(limites->minimo) < 1e6F;
  if (conLimites) {
    // El mínimo o, si es lo que hay, el máximo.
    const bool enMinimo = linea->text().toFloat() == limites->minimo;
    texto = QString::number(static_cast<double>(enMinimo ? limites->maximo : limites->minimo));
  } else if (datos->clase != ClaseCampo::Texto) {
    texto = linea->text().toFloat() == 1 ? "2" : "1";
  }
  linea->setText(texto);
  linea->setModified(true);
  emit linea->editingFinished();
  return true;
}

// Cada editor cambia el caso, la edición tiene nombre y deshacerla lo deja como estaba.
TEST_F(CamposEditadosTest, CadaEditorCambiaElCasoYSeDeshace) {
  mensajes.respuesta = true;  // a si se borran los sistemas al cambiar de uso
  std::set<std::string> probadas;
  for (const char* ejemplo : {"caldera_condensacion_solar_D3.xml", "oficina_VRV_B4.xml"}) {
    SCOPED_TRACE(ejemplo);
    ASSERT_TRUE(ventana->Abrir(Ejemplo(ejemplo)));
    RecorrerPaginas([&](Pagina& pagina) {
      // Entrar en los resultados calcula, y el cálculo deja lo suyo en los registros.
      const auto antes = sesion.Caso().Clonar();
      for (Enlaces* enlaces : pagina.findChildren<Enlaces*>())
        for (const std::string& direccion : enlaces->Direcciones()) {
          QWidget* editor = enlaces->Editor(direccion);
          if (editor == nullptr || !editor->isVisible() || !editor->isEnabled()) continue;
          // El municipio se busca; los demás con otro nombre guardan por una regla de su página.
          if (editor->objectName() != Q(direccion) || kBuscados.contains(direccion)) continue;
          if (!probadas.insert(direccion).second) continue;
          SCOPED_TRACE(direccion);
          if (!Cambiar(editor, direccion)) continue;
          EXPECT_FALSE(MismosRegistros(sesion.Caso(), *antes));
          EXPECT_FALSE(sesion.QueDeshace().empty());
          while (!sesion.QueDeshace().empty()) sesion.Deshacer();
          emit ventana->Contexto().ProyectoCambiado();
          ASSERT_TRUE(MismosRegistros(sesion.Caso(), *antes));
        }
    });
  }
  EXPECT_GT(probadas.size(), 150U);
}

}  // namespace
}  // namespace novex::gui::pruebas
