#pragma once

#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTextBrowser>
#include <QTimer>
#include <QVBoxLayout>
#include <functional>
#include <memory>
#include <vector>

#include "shell/EmitirDocumento.h"
#include "shell/FicheroAdministracion.h"
#include "shell/OrdenesImpresion.h"
#include "shell/TareaImpresion.h"
#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// Escribe los documentos del caso activo y el fichero para la administración, en otro hilo, y
/// enseña el documento.
class TImpresor : public QDialog {
  Q_OBJECT

 public:
  /// \param desdeVerificacion ¿se ha pedido desde la página de la verificación?
  TImpresor(ContextoGui& contexto, bool desdeVerificacion, QWidget* padre = nullptr);

  /// Hace el fichero para la administración. \param preguntarNombre con otro nombre de proyecto
  void Administracion(bool preguntarNombre);
  /// ¿Está escribiendo?
  bool Ocupado() const { return tarea_ != nullptr; }
  const DocumentoEmitido& Documento() const { return documento_; }
  void reject() override;

 private:
  QWidget* CrearMandos();
  QWidget* CrearPaneles();
  QWidget* CrearVista();
  void PonerPanel();
  void Emitir(const OrdenImpresion& orden);
  void Empezar(TareaImpresion::Trabajo trabajo, std::function<void()> alAcabar);
  void Mirar();
  void Acabar();
  void AcabarDocumento();
  void AcabarAdministracion();
  void Ensenar();
  void Abrir(const std::filesystem::path& ruta);

  ContextoGui& contexto_;
  bool desdeVerificacion_;
  std::vector<QWidget*> paneles_;
  QRadioButton *nuevo_, *existente_;
  QWidget* mandos_;
  QProgressBar* medidor_;
  QPushButton *cancelar_, *abrirPdf_, *abrirCarpeta_;
  QLabel *estado_, *escrito_;
  QStackedWidget* vista_;
  QVBoxLayout* hojas_;
  QTextBrowser* html_;
  QTimer reloj_;
  std::function<void()> alAcabar_;
  // Lo que deja el otro hilo, que solo se mira cuando ha acabado.
  DocumentoEmitido documento_;
  EscrituraAdministracion escritura_;
  std::vector<std::filesystem::path> paginas_;
  std::unique_ptr<QTemporaryDir> carpetaVista_;
  std::unique_ptr<TareaImpresion> tarea_;  // la última: al destruirse espera a que pare
};

/// Qué se imprime.
struct PedidoImpresion {
  bool desdeVerificacion = false;  ///< ¿se ha pedido desde la página de la verificación?
  bool administracion = false;     ///< ¿se hace ya el fichero para la administración?
};

/// La orden de imprimir: si el caso no se puede calcular lo dice y lleva a donde se corrige; si el
/// proyecto no tiene fichero, pregunta si guardarlo; después enseña `TImpresor`.
/// \param guardar guarda el proyecto, preguntando su nombre si no lo tiene
void Imprimir(ContextoGui& contexto, const PedidoImpresion& pedido,
              const std::function<void()>& guardar, QWidget* padre);

}  // namespace novex::gui
