#pragma once

#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <vector>

#include "shell/EstudioEnCurso.h"
#include "shell/gui/ListaMejoras.h"
#include "shell/gui/NotasMedidas.h"
#include "shell/gui/PaginaResultados.h"
#include "shell/gui/PestanaMedidas.h"

namespace novex::gui {

/// El estudio de medidas predefinidas: las que se señalan con su coste, lo que da cada una y, por
/// orden, todas. Mide en los ratos libres del hilo, sin parar la ventana.
class PaginaTendencias : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaTendencias(ContextoGui& contexto, QWidget* padre = nullptr);
  const EstudioEnCurso& Estudio() const { return estudio_; }

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  /// Una pestaña de medidas; sin ellas mientras no se ha visto.
  struct Hoja {
    PaginaMedida pagina = PaginaMedida::Demanda;
    QWidget* sitio = nullptr;
    PestanaMedidas* medidas = nullptr;
  };
  void CrearOrdenes(class QVBoxLayout* columna);
  void AnadirMedidas(PaginaMedida pagina, const QString& titulo);
  void HacerLaQueSeVe();
  void AnadirVacia(const QString& titulo);
  void MedirSenaladas();
  void MedirTodas();
  void Empezar(std::vector<int> codigos, QWidget* alAcabar);
  void Paso();
  void Parar();
  void AvisarMarcas();
  void PonerOrdenes();

  EstudioEnCurso estudio_;
  QTimer reloj_;
  QWidget* alAcabar_ = nullptr;  ///< pestaña que se enseña al acabar
  QPushButton *senaladas_, *todas_, *cancelar_;
  QProgressBar* progreso_;
  QLabel *quedan_, *marcas_;
  QTabWidget* pestanas_;
  std::vector<Hoja> hojas_;
  NotasMedidas* notas_;
  ListaMejoras* lista_;
};

}  // namespace novex::gui
