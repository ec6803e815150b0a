#include "shell/gui/MarcoImagen.h"

#include <QDialog>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QScreen>
#include <QVBoxLayout>

#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr QSize kVista{210, 140};

}  // namespace

MarcoImagen::MarcoImagen(ContextoGui& contexto, LugarImagen lugar, const QString& titulo,
                         QWidget* padre)
    : QWidget(padre), contexto_(contexto), lugar_(lugar), titulo_(titulo) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* rotulo = new QLabel(titulo, this);
  rotulo->setProperty("papel", "seccion");
  columna->addWidget(rotulo);
  vista_ = new QLabel(this);
  vista_->setFixedSize(kVista);
  vista_->setAlignment(Qt::AlignCenter);
  vista_->setFrameShape(QFrame::StyledPanel);
  columna->addWidget(vista_);
  auto* botones = new QHBoxLayout;
  const auto boton = [&](const QString& texto, const QString& ayuda, void (MarcoImagen::*hacer)()) {
    auto* b = new QPushButton(texto, this);
    b->setToolTip(ayuda);
    botones->addWidget(b);
    connect(b, &QPushButton::clicked, this, hacer);
    return b;
  };
  boton(tr("Elegir…"), tr("Una imagen JPEG o PNG"), &MarcoImagen::Elegir);
  ver_ = boton(tr("Ver"), tr("La enseña más grande"), &MarcoImagen::Ver);
  borrar_ = new QPushButton(tr("Borrar"), this);
  borrar_->setObjectName("Borrar");
  borrar_->setToolTip(tr("La quita de todos los casos del proyecto"));
  botones->addWidget(borrar_);
  connect(borrar_, &QPushButton::clicked, this, [this] { Poner(nullptr); });
  botones->addStretch(1);
  columna->addLayout(botones);
}

void MarcoImagen::Refrescar() {
  const auto& texto = ImagenDe(contexto_.Caso().GetDatosPantalla(), lugar_);
  if (texto != mostrada_ || texto == nullptr) {
    mostrada_ = texto;
    imagen_ = {};
    QString nota = tr("Sin imagen");
    if (texto != nullptr) {
      RegistroMensajes avisos;
      if (const auto decodificada = DecodificarImagen(*texto, avisos))
        imagen_.loadFromData(reinterpret_cast<const uchar*>(decodificada->bytes.data()),
                             static_cast<uint>(decodificada->bytes.size()));
      nota = avisos.recibidos.empty() ? tr("No se puede enseñar") : Q(avisos.recibidos[0].texto);
    }
    if (imagen_.isNull())
      vista_->setText(nota);
    else
      vista_->setPixmap(imagen_.scaled(kVista, Qt::KeepAspectRatio, Qt::SmoothTransformation));
  }
  ver_->setEnabled(!imagen_.isNull());
  borrar_->setEnabled(texto != nullptr);
}

void MarcoImagen::Poner(const std::shared_ptr<const std::string>& texto) {
  if (contexto_.Sesion().EditarProyectoSinRecalcular(
          S(tr("Imagen: %1").arg(titulo_)),
          [&](GestorEdifActivo& gestor) { PonerImagen(gestor, lugar_, texto); }))
    emit contexto_.Editado();
}

void MarcoImagen::Tomar(const std::filesystem::path& fichero) {
  if (auto texto = TextoDeImagen(fichero, contexto_.Sesion().Avisos()))
    Poner(std::make_shared<const std::string>(std::move(*texto)));
}

void MarcoImagen::Elegir() {
  const QString ruta =
      QFileDialog::getOpenFileName(this, titulo_, Q(contexto_.Ficheros().Espacio().Proyectos()),
                                   tr("Imágenes (*.jpg *.jpeg *.png)"));
  if (!ruta.isEmpty()) Tomar(S(ruta));
}

void MarcoImagen::Ver() {
  QDialog ventana(this);
  ventana.setWindowTitle(titulo_);
  auto* columna = new QVBoxLayout(&ventana);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* cuadro = new QLabel(&ventana);
  const QSize cabe = screen()->availableSize() * 0.8;
  cuadro->setPixmap(imagen_.width() > cabe.width() || imagen_.height() > cabe.height()
                        ? imagen_.scaled(cabe, Qt::KeepAspectRatio, Qt::SmoothTransformation)
                        : imagen_);
  columna->addWidget(cuadro);
  ventana.exec();
}

}  // namespace novex::gui
