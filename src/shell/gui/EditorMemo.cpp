#include "shell/gui/EditorMemo.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QSignalBlocker>
#include <QTimer>
#include <QVBoxLayout>

#include "entry/CambiarGenerales.h"
#include "entry/TextosLibres.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kLineasALaVista = 5;

QString Junto(const std::vector<std::string>& lineas) {
  QStringList textos;
  for (const std::string& linea : lineas) textos << Q(linea);
  return textos.join('\n');
}

OpcionesMemo TextoLibre(std::size_t cual, const QString& nombre) {
  return {nombre, kLineasMemo,
          [cual](const Edificio& e) { return e.GetDatosGenerales().Memo[cual]; },
          [cual](Edificio& e, std::string_view texto, Mensajes& avisos) {
            const auto lineas = LineasDeTexto(texto, kLineasMemo, avisos);
            CambiarGenerales(e, [&](DatosGenerales& g) { g.Memo[cual] = lineas; });
          }};
}

}  // namespace

EditorMemo::EditorMemo(ContextoGui& contexto, std::size_t cual, const QString& nombre,
                       QWidget* padre)
    : EditorMemo(contexto, TextoLibre(cual, nombre), padre) {}

EditorMemo::EditorMemo(ContextoGui& contexto, OpcionesMemo opciones, QWidget* padre)
    : QWidget(padre),
      contexto_(contexto),
      opciones_(std::move(opciones)),
      texto_(new QPlainTextEdit(this)),
      cuenta_(new QLabel(this)) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(1);
  columna->addWidget(texto_);
  cuenta_->setProperty("papel", "nota");
  cuenta_->setAlignment(Qt::AlignRight);
  columna->addWidget(cuenta_);
  texto_->setAccessibleName(opciones_.nombre);
  texto_->setToolTip(tr("Hasta %1 líneas").arg(opciones_.lineas));
  texto_->setTabChangesFocus(true);
  texto_->setMinimumHeight(kLineasALaVista * QFontMetrics(texto_->font()).lineSpacing() + 12);
  texto_->installEventFilter(this);
  connect(texto_, &QPlainTextEdit::textChanged, this, &EditorMemo::Contar);
}

void EditorMemo::Refrescar() {
  const bool tecleando = texto_->hasFocus() && texto_->document()->isModified();
  const QString guardado = Junto(opciones_.leer(contexto_.Caso()));
  if (!tecleando && texto_->toPlainText() != guardado) {
    const QSignalBlocker callado(texto_);
    texto_->setPlainText(guardado);
  }
  if (!tecleando) texto_->document()->setModified(false);
  Contar();
}

void EditorMemo::Contar() {
  const int lineas = texto_->document()->isEmpty() ? 0 : texto_->blockCount();
  const int limite = static_cast<int>(opciones_.lineas);
  const bool cabe = lineas <= limite;
  cuenta_->setText(cabe ? tr("%1 de %2 líneas").arg(lineas).arg(limite)
                        : tr("%1 líneas: al salir quedan las %2 primeras").arg(lineas).arg(limite));
  PonerPapel(cuenta_, cabe ? "nota" : "aviso");
}

void EditorMemo::Guardar() {
  if (!texto_->document()->isModified()) return;
  texto_->document()->setModified(false);
  RegistroMensajes avisos;
  const std::string texto = S(texto_->toPlainText());
  contexto_.Editar(
      opciones_.nombre, [&](Edificio& e) { opciones_.poner(e, texto, avisos); }, false);
  Refrescar();
  if (avisos.recibidos.empty()) return;
  // El aviso espera a que acabe el cambio de foco que lo ha provocado.
  QTimer::singleShot(0, this, [this, aviso = avisos.recibidos.front()] {
    contexto_.Sesion().Avisos().Avisar(aviso.titulo, aviso.texto);
  });
}

bool EditorMemo::eventFilter(QObject* quien, QEvent* evento) {
  // Un menú sobre el texto no es salir de él.
  if (quien == texto_ && evento->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(evento)->reason() != Qt::PopupFocusReason)
    Guardar();
  return QWidget::eventFilter(quien, evento);
}

}  // namespace novex::gui
