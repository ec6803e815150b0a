#pragma once

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>
#include <QTabBar>
#include <QTimer>
#include <QToolBar>
#include <array>

#include "base/ErrorFichero.h"
#include "shell/Recuperacion.h"
#include "shell/gui/ContextoGui.h"
#include "shell/gui/MensajesVentana.h"
#include "shell/gui/Pagina.h"
#include "shell/gui/PanelVivo.h"

namespace novex::gui {

/// Código de salida con un fichero XML que no se entiende.
inline constexpr int kXmlErroneo = 255;

class DialogoAyuda;
class PaginaTitulo;

/// El fichero del manual que explica una pestaña.
QString PaginaManualDe(Destino destino);

/// La ventana principal: órdenes, tira de pestañas, selector de casos, páginas y calificación en
/// vivo.
class TForm1 : public QMainWindow {
  Q_OBJECT

 public:
  TForm1(SesionProyecto& sesion, MensajesVentana& mensajes,
         const std::filesystem::path& carpetaRecuperacion);

  /// Abre un proyecto, preguntando antes si hay algo sin guardar. \returns si lo ha abierto
  bool Abrir(const std::filesystem::path& ruta);
  /// Ofrece lo que dejó a medias un programa que se cayó.
  void OfrecerRecuperado();
  /// Enseña una página. A las de resultados solo se llega si el proyecto pasa las comprobaciones.
  /// \param subdestino la página de ella que se abre; vacío, la que tenga
  void Mostrar(Destino destino, const QString& subdestino = {});
  Destino Mostrada() const { return mostrada_; }
  /// La página de una pestaña, que se crea la primera vez que hace falta.
  Pagina* PaginaDe(Destino destino);
  ContextoGui& Contexto() { return contexto_; }
  PanelVivo& Panel() { return *panel_; }

 protected:
  void closeEvent(QCloseEvent* evento) override;
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void CrearOrdenes();
  void CrearPaginas();
  Pagina* CrearPagina(Destino destino);
  QAction* Orden(const char* control, const char* icono, const QString& texto, const QString& ayuda,
                 const QKeySequence& tecla, void (TForm1::*hacer)());
  void CrearPanelVivo(QHBoxLayout* fila);
  // Las órdenes.
  void Nuevo();
  void AbrirConDialogo();
  void Guardar();
  void GuardarComo();
  void Anadir();
  void ImprimirPagina() { Imprimir(false); }
  void Duplicar();
  void Borrar();
  void Deshacer();
  void Rehacer();
  void Acerca();
  void Ayuda();
  void AbrirInspeccion();

  void Imprimir(bool administracion);
  bool PasaAResultados();
  /// \returns falso si el usuario cancela
  bool PreguntarGuardar();
  bool GuardarEn(const std::filesystem::path& ruta);
  void AvisarDeFichero(const ErrorFichero& error);
  void Recordar(const std::filesystem::path& ruta);
  void EnsenarLectura(const std::filesystem::path& ruta);
  void AlEditar();
  void AlCambiarProyecto();
  void AlGuardar();
  void PonerTitulo();
  void PonerCasos();
  void PonerEstado();
  void GuardarCopia();
  void IrA(const MensajePrevio& motivo);

  ContextoGui contexto_;
  MensajesVentana& mensajes_;
  Recuperacion recuperacion_;
  QTimer copia_;
  QToolBar* barra_;
  QTabBar* pestanas_;
  QWidget* selector_;
  QComboBox* casos_;
  QStackedWidget* pila_;
  PanelVivo* panel_;
  QLabel *resumen_, *falta_;
  QAction *deshacer_, *rehacer_, *duplicar_;
  DialogoAyuda* ayuda_ = nullptr;
  PaginaTitulo* titulo_;
  std::array<Pagina*, 8> paginas_{};
  Destino mostrada_ = Destino::Titulo;
};

}  // namespace novex::gui
