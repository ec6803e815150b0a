#pragma once

#include <optional>

#include "entry/CatalogoMunicipios.h"
#include "shell/gui/Pagina.h"

namespace novex::gui {

class BuscadorMunicipio;
class FranjaMeses;
class RosaObstaculos;

/// Dónde está el edificio: municipio, zona climática, clima y obstáculos remotos.
class PaginaSitio : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaSitio(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  QWidget* CajaLugar();
  QWidget* CajaZona();
  void FilaJuegoClima(QFormLayout* filas);
  QWidget* CajaVerano();
  QWidget* CajaEntorno();
  void RefrescarNotas();
  const CatalogoMunicipios& Municipios();
  const XMLNode& Capitales();

  std::optional<CatalogoMunicipios> municipios_;
  BuscadorMunicipio* buscador_ = nullptr;
  QLabel *notaAltitud_ = nullptr, *radiacion_ = nullptr, *notaZona_ = nullptr;
  QLabel* zona_ = nullptr;
  QFormLayout *filasLugar_ = nullptr, *filasClima_ = nullptr;
  QLabel *notaClima_ = nullptr, *faltaClima_ = nullptr, *notaVerano_ = nullptr;
  FranjaMeses* meses_ = nullptr;
  RosaObstaculos* rosa_ = nullptr;
};

}  // namespace novex::gui
