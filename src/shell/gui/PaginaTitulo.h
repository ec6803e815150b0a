#pragma once

#include <QListWidget>

#include "shell/gui/EtiquetaEnergetica.h"
#include "shell/gui/Pagina.h"
#include "shell/gui/ProyectosConocidos.h"

namespace novex::gui {

/// La primera página: por dónde empezar, el objetivo del trabajo y la clase de edificio.
class PaginaTitulo : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaTitulo(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;
  /// La etiqueta del caso abierto.
  void PonerEtiqueta(const QString& letraPrimaria, const QString& primaria,
                     const QString& letraEmisiones, const QString& emisiones);

 signals:
  void PideNuevo();
  void PideExpres();
  void PideAbrir();
  void PideFichero(const QString& ruta);

 private:
  void LlenarListas();
  void LlenarRecientes();
  void LlenarEjemplos();
  QWidget* CajaEmpezar();
  QWidget* CajaLista(const QString& titulo, QListWidget*& lista);
  QWidget* CajaTrabajo();

  QListWidget *recientes_, *ejemplos_;
  EtiquetaEnergetica *primaria_, *emisiones_;
};

}  // namespace novex::gui
