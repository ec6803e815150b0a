// Las órdenes de la ventana: las del proyecto, la ayuda y lo que se pregunta antes.
#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QMouseEvent>
#include <QSettings>
#include <QStatusBar>

#include "base/ErrorFichero.h"
#include "files/ErroresXml.h"
#include "files/ProyectoFichero.h"
#include "shell/LanzadorExterno.h"
#include "shell/gui/DialogoAcerca.h"
#include "shell/gui/DialogoAyuda.h"
#include "shell/gui/DialogoLectura.h"
#include "shell/gui/ProyectosConocidos.h"
#include "shell/gui/TForm1.h"
#include "shell/gui/TImpresor.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kRecientes = 10;
constexpr const char* kFiltro = "Proyectos (*.xml *.txt *.XML *.TXT)";
constexpr const char* kFiltroGuardar = "Proyectos (*.xml)";
constexpr const char* kManual = "manual";  // carpeta del manual en la de programa
constexpr std::array<const char*, 8> kPaginasManual = {
    "titulo.md",        "global.md",      "edificio.md", "instalaciones.md",
    "certificacion.md", "comparacion.md", "he.md",       "definicion.md"};

}  // namespace

QString PaginaManualDe(Destino destino) {
  return kPaginasManual[static_cast<std::size_t>(destino)];
}

void TForm1::GuardarCopia() {
  if (contexto_.Sesion().Modificado())
    recuperacion_.Guardar(contexto_.Sesion().Gestor(), contexto_.Sesion().Fichero());
  else
    recuperacion_.Quitar();
}

void TForm1::OfrecerRecuperado() {
  for (const TrabajoPerdido& perdido : recuperacion_.Perdidos()) {
    const std::string nombre = perdido.original.filename().string();
    if (mensajes_.Preguntar("Recuperación", "El programa se cerró sin guardar \"" + nombre +
                                                "\". ¿Quiere recuperarlo?")) {
      try {
        contexto_.Sesion().Recuperar(perdido.copia, perdido.original);
        emit contexto_.ProyectoCambiado();
        GuardarCopia();
      } catch (const ErrorFichero& error) {
        mensajes_.Avisar("AVISO", error.what());
        continue;
      }
      Recuperacion::Quitar(perdido);
      return;
    }
    Recuperacion::Quitar(perdido);
  }
}

bool TForm1::PreguntarGuardar() {
  if (!contexto_.Sesion().Modificado()) return true;
  QMessageBox caja(QMessageBox::Question, "NOVEX", "¿Quiere guardar el proyecto?",
                   QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, this);
  caja.button(QMessageBox::Yes)->setText(tr("Sí"));
  caja.button(QMessageBox::No)->setText(tr("No"));
  caja.button(QMessageBox::Cancel)->setText(tr("Cancelar"));
  switch (caja.exec()) {
    case QMessageBox::Yes:
      Guardar();
      return !contexto_.Sesion().Modificado();
    case QMessageBox::No:
      return true;
    default:
      return false;
  }
}

void TForm1::Nuevo() {
  if (!PreguntarGuardar()) return;
  contexto_.Sesion().Nuevo();
  recuperacion_.Quitar();
  emit contexto_.ProyectoCambiado();
}

bool TForm1::Abrir(const std::filesystem::path& ruta) {
  if (!PreguntarGuardar()) return false;
  try {
    if (!contexto_.Sesion().Abrir(ruta)) return false;
  } catch (const ErrorFichero& error) {
    AvisarDeFichero(error);
    return false;
  }
  recuperacion_.Quitar();
  Recordar(contexto_.Sesion().Fichero());
  emit contexto_.ProyectoCambiado();
  EnsenarLectura(ruta);
  return true;
}

// Lo que se ha cambiado o supuesto al leer un fichero de una versión anterior.
void TForm1::EnsenarLectura(const std::filesystem::path& ruta) {
  const InformeLectura& lectura = contexto_.Sesion().Lectura();
  if (!lectura.Vacio()) (new DialogoLectura(lectura, Q(ruta.filename()), this))->show();
}

// Con un XML que no se entiende el programa acaba; lo abierto queda en su copia de recuperación. La
// salida espera a que vuelva el hilo: Qt no deja pasar excepciones.
void TForm1::AvisarDeFichero(const ErrorFichero& error) {
  GuardarCopia();
  mensajes_.Avisar("AVISO", error.what());
  if (EsDeLecturaXml(error)) QTimer::singleShot(0, qApp, [] { QApplication::exit(kXmlErroneo); });
}

void TForm1::AbrirConDialogo() {
  const QString ruta = QFileDialog::getOpenFileName(
      this, tr("Abrir"), Q(contexto_.Ficheros().Espacio().Proyectos()), kFiltro);
  if (!ruta.isEmpty()) Abrir(S(ruta));
}

bool TForm1::GuardarEn(const std::filesystem::path& ruta) {
  if (QWidget* foco = QApplication::focusWidget()) foco->clearFocus();
  try {
    contexto_.Sesion().Guardar(ruta);
  } catch (const ErrorFichero& error) {
    mensajes_.Avisar("AVISO", error.what());
    return false;
  }
  AlGuardar();
  statusBar()->showMessage(tr("Guardado en %1").arg(Q(contexto_.Sesion().Fichero())), 4000);
  return true;
}

void TForm1::AlGuardar() {
  recuperacion_.Quitar();
  Recordar(contexto_.Sesion().Fichero());
  PonerTitulo();
}

// Un fichero de texto se guarda como XML, al lado: ahí puede haber otro, y lo pregunta el diálogo.
void TForm1::Guardar() {
  const SesionProyecto& s = contexto_.Sesion();
  if (s.TieneFichero() && RutaDeGuardado(s.Fichero()) == s.Fichero())
    GuardarEn({});
  else
    GuardarComo();
}

void TForm1::GuardarComo() {
  const SesionProyecto& s = contexto_.Sesion();
  const auto propuesta = RutaDeGuardado(
      s.TieneFichero() ? s.Fichero() : contexto_.Ficheros().Espacio().Proyectos() / s.Fichero());
  const QString ruta =
      QFileDialog::getSaveFileName(this, tr("Guardar como"), Q(propuesta), kFiltroGuardar);
  if (!ruta.isEmpty()) GuardarEn(S(ruta));
}

void TForm1::Anadir() {
  const QString ruta = QFileDialog::getOpenFileName(
      this, tr("Añadir los casos de"), Q(contexto_.Ficheros().Espacio().Proyectos()), kFiltro);
  // Un proyecto sin datos coherentes deja su lugar al otro.
  if (ruta.isEmpty() || (!ComprobacionesPrevias(contexto_.Caso()).empty() && !PreguntarGuardar()))
    return;
  try {
    if (!contexto_.Sesion().Anadir(S(ruta))) return;
  } catch (const ErrorFichero& error) {
    AvisarDeFichero(error);
    return;
  }
  emit contexto_.ProyectoCambiado();
  EnsenarLectura(S(ruta));
}

void TForm1::Imprimir(bool administracion) {
  if (QWidget* foco = QApplication::focusWidget()) foco->clearFocus();
  gui::Imprimir(
      contexto_, {mostrada_ == Destino::HE, administracion}, [this] { Guardar(); }, this);
}

void TForm1::Duplicar() {
  if (QWidget* foco = QApplication::focusWidget()) foco->clearFocus();
  if (!contexto_.Sesion().DuplicarCaso()) {
    const auto motivos = MensajesPrevios(contexto_.Caso());
    if (!motivos.empty()) IrA(motivos.back());
    return;
  }
  emit contexto_.ProyectoCambiado();
}

void TForm1::Borrar() {
  if (contexto_.Sesion().Gestor().NumeroCasos() == 1) return Nuevo();
  contexto_.Sesion().BorrarCaso();
  emit contexto_.ProyectoCambiado();
}

void TForm1::Deshacer() {
  contexto_.Sesion().Deshacer();
  emit contexto_.ProyectoCambiado();
}

void TForm1::Rehacer() {
  contexto_.Sesion().Rehacer();
  emit contexto_.ProyectoCambiado();
}

void TForm1::Ayuda() {
  if (ayuda_ == nullptr)
    ayuda_ = new DialogoAyuda(contexto_.Ficheros().Espacio().programa / kManual, this);
  ayuda_->Mostrar(PaginaManualDe(mostrada_));
  ayuda_->show();
  ayuda_->raise();
}

void TForm1::Acerca() {
  DialogoAcerca(this).exec();
}

void TForm1::AbrirInspeccion() {
  LanzarExterno(contexto_.Ficheros().Espacio(), programaExterno::kInspeccion, {}, mensajes_);
}

// La propia barra también abre el programa de inspección, si está: sin él, pinchar al lado de un
// botón no merece un aviso.
bool TForm1::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::MouseButtonPress &&
      static_cast<QMouseEvent*>(evento)->button() == Qt::LeftButton &&
      HayExterno(contexto_.Ficheros().Espacio(), programaExterno::kInspeccion)) {
    AbrirInspeccion();
    return true;
  }
  return QMainWindow::eventFilter(objeto, evento);
}

void TForm1::Recordar(const std::filesystem::path& ruta) {
  QStringList recientes = ProyectosRecientes();
  recientes.removeAll(Q(ruta));
  recientes.prepend(Q(ruta));
  while (recientes.size() > kRecientes) recientes.removeLast();
  QSettings().setValue("recientes", recientes);
}

void TForm1::closeEvent(QCloseEvent* evento) {
  if (!PreguntarGuardar()) {
    evento->ignore();
    return;
  }
  copia_.stop();
  recuperacion_.Quitar();
  evento->accept();
}

}  // namespace novex::gui
