#pragma once

#include <QCheckBox>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <array>

#include "outputs/ExportacionSeries.h"
#include "shell/gui/ArbolSeries.h"
#include "shell/gui/ListasSeries.h"
#include "shell/gui/MapaCalor.h"
#include "shell/gui/PaginaResultados.h"
#include "shell/gui/SelectorPeriodo.h"
#include "shell/gui/VistaGrafico.h"
#include "shell/gui/VistaTabla.h"

namespace novex::gui {

/// Las series horarias del caso activo: una como línea o como mapa de horas por días, varias como
/// números, una contra otra, y varias en dos ejes.
class PaginaHorarias : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaHorarias(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  enum Modo { Grafica, Numerico, XY, Mas };

  QLayout* Cabecera();
  QWidget* Elecciones();
  QWidget* HojaGrafica();
  QWidget* HojaNumerica();
  VistaGrafico* NuevoGrafico(const char* nombre);

  Modo Actual() const { return static_cast<Modo>(modos_->currentIndex()); }
  void CambiarModo();
  void CambiarPeriodo();
  void CambiarEjes();
  void Dibujar(const CasoCalculado& caso);
  void DibujarSerie(const CasoCalculado& caso, const PeriodoSerie& periodo);
  void DibujarXY(const CasoCalculado& caso, const PeriodoSerie& periodo);
  std::vector<Mensaje> DibujarEjes(const CasoCalculado& caso, const PeriodoSerie& periodo);
  void PartirHoras(VistaGrafico* grafico, const PeriodoSerie& periodo);
  void Avisar(const QString& texto);
  void VaciarTabla();
  ConAviso<Tabla> TablaPedida() const;
  void GenerarTabla();
  void GuardarDatos();

  QTabBar* modos_;
  SelectorPeriodo* periodo_;
  QWidget* dimensiones_;
  QRadioButton *dos_, *tres_;
  QStackedWidget *elecciones_, *hojas_, *dibujos_;
  ArbolSeries* arbol_;
  ListasSeries *listasXY_, *listasEjes_;
  QLabel *aviso_, *estadistica_, *cuenta_;
  VistaGrafico *linea_, *nube_, *ejes_;
  MapaCalor* mapa_;
  VistaTabla* tabla_;
  std::array<QCheckBox*, 4> columnas_{};
  std::size_t avisados_ = 0;  // de los dos ejes
};

}  // namespace novex::gui
