#pragma once

#include <QButtonGroup>
#include <QComboBox>
#include <QStackedWidget>
#include <array>
#include <functional>

#include "entry/Horarios.h"
#include "shell/gui/Pagina.h"

class QCheckBox;
class QTabBar;
class QToolButton;

namespace novex::gui {

class BotonFamilia;
class CalendarioUso;
class GraficoHorario;
class MapaAno;
class RejillaHorarios;

/// Los horarios de uso por familia y clase de día, el calendario del año y la acción de cada mes.
class PaginaHorarios : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaHorarios(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 protected:
  void resizeEvent(QResizeEvent* evento) override;
  void showEvent(QShowEvent* evento) override;

 private:
  QWidget* CajaHorarios();
  QWidget* CajaFamilias();
  QWidget* CajaOrdenes();
  QWidget* CajaCalendario();
  QWidget* CajaMeses();
  QWidget* CajaClases();
  QWidget* CajaMapa();
  void LlenarCopiar();
  void RefrescarHorarios();
  void RefrescarCalendario();
  void AlinearGrafico();
  void ElegirFamilia(int familia);
  /// Edita y enseña los avisos de lo que no se ha admitido.
  void Editar(const QString& nombre, const std::function<void(Edificio&, Mensajes&)>& cambio);
  void CopiarA(const std::vector<std::size_t>& hasta);
  QString RotuloFamilia() const;
  Familia Elegida() const { return static_cast<Familia>(familias_->checkedId()); }
  std::size_t ClaseElegida() const;

  QTabBar* vistas_;
  QStackedWidget* pila_;
  QLabel* uso_;
  QButtonGroup* familias_;
  std::array<BotonFamilia*, kFamilias> botones_{};
  RejillaHorarios* rejilla_;
  GraficoHorario* grafico_;
  QLabel *avisos_, *notas_, *verano_;
  QToolButton* copiar_;
  QCheckBox* todas_;
  CalendarioUso* calendario_;
  QButtonGroup* clases_;
  std::array<QComboBox*, 13> acciones_{};
  QComboBox* serie_;
  MapaAno* mapa_;
};

}  // namespace novex::gui
