#include "shell/gui/BuscadorMunicipio.h"

#include <QAbstractItemView>
#include <QFocusEvent>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "shell/gui/Filas.h"
#include "shell/gui/ListaSinRueda.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kProvincia = Qt::UserRole + 1;
constexpr int kMunicipio = Qt::UserRole + 2;
constexpr std::size_t kMaximoOfrecidos = 400;
constexpr int kVisibles = 14;

}  // namespace

BuscadorMunicipio::BuscadorMunicipio(QFormLayout* formulario, Catalogo catalogo, QWidget* pagina)
    : QObject(pagina),
      catalogo_(std::move(catalogo)),
      provincia_(new ListaSinRueda(pagina)),
      municipio_(new QLineEdit(pagina)),
      aviso_(NuevaNota(pagina, "aviso")),
      lista_(new QCompleter(this)),
      candidatos_(new QStandardItemModel(this)) {
  provincia_->setObjectName("Provincia");
  provincia_->setToolTip(tr("Acota la búsqueda del municipio; el sitio cambia al elegir este"));
  municipio_->setObjectName("Municipio");
  municipio_->setAccessibleName(tr("Municipio"));
  municipio_->setPlaceholderText(tr("Teclee las primeras letras"));
  municipio_->setToolTip(
      tr("De él salen la altitud, la latitud, la zona climática y la de radiación "
         "(CTE DB-HE, anejo B)"));
  municipio_->setMinimumWidth(220);
  municipio_->setMaximumWidth(420);
  aviso_->hide();
  formulario->addRow(tr("Provincia"), provincia_);
  auto* caja = new QVBoxLayout;
  caja->setSpacing(2);
  caja->addWidget(municipio_);
  caja->addWidget(aviso_);
  formulario->addRow(tr("Municipio"), caja);
  lista_->setModel(candidatos_);
  lista_->setWidget(municipio_);
  lista_->setCompletionMode(QCompleter::UnfilteredPopupCompletion);
  lista_->setMaxVisibleItems(kVisibles);
  municipio_->installEventFilter(this);
  connect(municipio_, &QLineEdit::textEdited, this, &BuscadorMunicipio::Ofrecer);
  connect(municipio_, &QLineEdit::returnPressed, this, &BuscadorMunicipio::AlPulsarIntro);
  connect(lista_, qOverload<const QModelIndex&>(&QCompleter::activated), this,
          &BuscadorMunicipio::Tomar);
  connect(provincia_, &QComboBox::activated, this, [this] {
    municipio_->clear();
    municipio_->setFocus();
    // Sin teclear nada se elige en los de la provincia, aunque sea la que había.
    OfrecerEn({}, S(provincia_->currentText()));
  });
}

void BuscadorMunicipio::LlenarProvincias() {
  if (provincia_->count() > 0) return;
  for (const std::string& nombre : catalogo_().Provincias()) provincia_->addItem(Q(nombre));
}

void BuscadorMunicipio::Poner(const QString& provincia, const QString& municipio) {
  LlenarProvincias();
  const bool otro = provincia != suProvincia_ || municipio != suMunicipio_;
  suProvincia_ = provincia;
  suMunicipio_ = municipio;
  if (otro || !municipio_->hasFocus()) Restaurar();
}

void BuscadorMunicipio::Restaurar() {
  const QSignalBlocker callada(provincia_);
  provincia_->setPlaceholderText(suProvincia_);
  provincia_->setCurrentIndex(provincia_->findText(suProvincia_));
  municipio_->setText(suMunicipio_);
  aviso_->hide();
}

// Con la provincia del caso a la vista se busca en toda España; con otra, solo en ella.
void BuscadorMunicipio::Ofrecer(const QString& letras) {
  const bool acotada = provincia_->currentText() != suProvincia_;
  OfrecerEn(letras, acotada ? S(provincia_->currentText()) : std::string());
}

void BuscadorMunicipio::OfrecerEn(const QString& letras, const std::string& provincia) {
  candidatos_->clear();
  aviso_->hide();
  if (letras.trimmed().isEmpty() && provincia.empty()) return lista_->popup()->hide();
  std::size_t cuantos = 0;
  for (const Municipio* m : catalogo_().Empiezan(S(letras), provincia)) {
    if (++cuantos > kMaximoOfrecidos) break;
    auto* fila = new QStandardItem(Q(m->nombre) + "  ·  " + Q(m->provincia) + "  ·  " +
                                   Q(m->ZonaClimatica()));
    fila->setData(Q(m->provincia), kProvincia);
    fila->setData(Q(m->nombre), kMunicipio);
    candidatos_->appendRow(fila);
  }
  if (cuantos == 0) return lista_->popup()->hide();
  lista_->complete();
  // Sin moverse por la lista, Intro toma lo tecleado y no la primera fila.
  lista_->popup()->setCurrentIndex({});
}

void BuscadorMunicipio::Tomar(const QModelIndex& fila) {
  const QString provincia = fila.data(kProvincia).toString();
  const QString municipio = fila.data(kMunicipio).toString();
  lista_->popup()->hide();
  emit Elegido(provincia, municipio);
  Restaurar();
}

void BuscadorMunicipio::AlPulsarIntro() {
  const QModelIndex elegida = lista_->popup()->currentIndex();
  if (lista_->popup()->isVisible() && elegida.isValid()) return Tomar(elegida);
  lista_->popup()->hide();
  const bool acotada = provincia_->currentText() != suProvincia_;
  const std::string provincia = acotada ? S(provincia_->currentText()) : std::string();
  if (const Municipio* m = catalogo_().Elegir(provincia, S(municipio_->text()))) {
    emit Elegido(Q(m->provincia), Q(m->nombre));
    return Restaurar();
  }
  const std::size_t cuantos = catalogo_().Empiezan(S(municipio_->text()), provincia).size();
  aviso_->setText(
      cuantos == 0 ? tr("Ningún municipio empieza por «%1»").arg(municipio_->text())
                   : tr("Hay %1 municipios que empiezan así: elija uno de la lista").arg(cuantos));
  aviso_->show();
}

bool BuscadorMunicipio::eventFilter(QObject* quien, QEvent* evento) {
  // Lo que se deja a medias no es un municipio: vuelve el del caso.
  if (quien == municipio_ && evento->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(evento)->reason() != Qt::PopupFocusReason &&
      !lista_->popup()->isVisible())
    Restaurar();
  return QObject::eventFilter(quien, evento);
}

}  // namespace novex::gui
