#pragma once

#include <QListWidget>

#include "shell/gui/EtiquetaEnergetica.h"
#include "shell/gui/Pagina.h"

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
  QWidget* CajaEmpezar();
  QWidget* CajaTrabajo();

  QListWidget *recientes_, *ejemplos_;
  EtiquetaEnergetica *primaria_, *emisiones_;
};

/// Los proyectos abiertos últimamente, del más nuevo al más viejo.
QStringList ProyectosRecientes();

}  // namespace novex::gui
