#include "shell/gui/DialogoAyuda.h"

#include <QHBoxLayout>
#include <QImage>
#include <QPushButton>
#include <QVBoxLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kAnchoImagen = 760;

// Una captura de la ventana entera no cabe: se enseña más pequeña.
class PaginaManual : public QTextBrowser {
 public:
  using QTextBrowser::QTextBrowser;

 protected:
  QVariant loadResource(int tipo, const QUrl& nombre) override {
    if (tipo != QTextDocument::ImageResource) return QTextBrowser::loadResource(tipo, nombre);
    const QImage imagen(source().resolved(nombre).toLocalFile());
    if (imagen.width() <= kAnchoImagen) return imagen;
    return imagen.scaledToWidth(kAnchoImagen, Qt::SmoothTransformation);
  }
};

}  // namespace

DialogoAyuda::DialogoAyuda(std::filesystem::path manual, QWidget* padre)
    : QDialog(padre), manual_(std::move(manual)) {
  setWindowTitle(tr("Manual de NOVEX"));
  resize(860, 680);
  auto* columna = new QVBoxLayout(this);
  texto_ = new PaginaManual(this);
  texto_->setObjectName("manual");
  texto_->setOpenExternalLinks(false);
  auto* fila = new QHBoxLayout;
  auto* atras = new QPushButton(tr("Atrás"), this);
  auto* indice = new QPushButton(tr("Índice"), this);
  auto* cerrar = new QPushButton(tr("Cerrar"), this);
  for (QPushButton* b : {atras, indice, cerrar}) b->setAutoDefault(false);
  atras->setEnabled(false);
  fila->addWidget(atras);
  fila->addWidget(indice);
  fila->addStretch(1);
  fila->addWidget(cerrar);
  columna->addLayout(fila);
  columna->addWidget(texto_, 1);
  connect(atras, &QPushButton::clicked, texto_, &QTextBrowser::backward);
  connect(texto_, &QTextBrowser::backwardAvailable, atras, &QPushButton::setEnabled);
  connect(indice, &QPushButton::clicked, this, [this] { Mostrar("indice.md"); });
  connect(cerrar, &QPushButton::clicked, this, &QDialog::close);
}

void DialogoAyuda::Mostrar(const QString& pagina) {
  const auto ruta = manual_ / S(pagina);
  if (!std::filesystem::is_regular_file(ruta)) {
    texto_->setPlainText(tr("Falta la página del manual %1").arg(Q(ruta)));
    return;
  }
  texto_->setSource(QUrl::fromLocalFile(Q(ruta)), QTextDocument::MarkdownResource);
}

}  // namespace novex::gui
