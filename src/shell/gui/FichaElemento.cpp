#include "shell/gui/FichaElemento.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "base/NumeroTexto.h"
#include "entry/HojaDeCalculo.h"
#include "entry/ResumenEnvolvente.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr std::array<const char*, kSectores> kRotulosSector = {"N,NO,NE....", "O....", "SO....",
                                                               "S....",       "SE",    "E...."};
constexpr int kColumnaSuma = 7;
constexpr int kAnchoCasilla = 58;

QString Cifra(double valor) {
  return Q(Fijo(valor, 1));
}

// El nombre de una composición, cortado a lo que cabe.
class BotonNombre : public QPushButton {
 public:
  explicit BotonNombre(QWidget* padre) : QPushButton(padre) {
    setFlat(true);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    setCursor(Qt::PointingHandCursor);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter pintor(this);
    pintor.setPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText));
    pintor.drawText(rect().adjusted(4, 0, -4, 0), Qt::AlignLeft | Qt::AlignVCenter,
                    fontMetrics().elidedText(text(), Qt::ElideRight, width() - 8));
  }
};

QLabel* Rotulo(const QString& texto, const char* papel = nullptr) {
  auto* rotulo = new QLabel(texto);
  if (papel != nullptr) rotulo->setProperty("papel", papel);
  return rotulo;
}

}  // namespace

FichaElemento::FichaElemento(ContextoGui& contexto, Enlaces& enlaces, const ClaseElemento& clase,
                             QWidget* padre)
    : QWidget(padre),
      contexto_(contexto),
      enlaces_(enlaces),
      clase_(clase),
      elegida_(clase.ranuras[0]) {
  avisos_ = Rotulo({}, "aviso");
  avisos_->setWordWrap(true);
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(8, 4, 8, 4);
  columna->addWidget(Cabecera());
  rejilla_ = new QGridLayout;
  rejilla_->setHorizontalSpacing(6);
  rejilla_->setVerticalSpacing(4);
  columna->addLayout(rejilla_);
  CrearCabeceras();
  for (std::size_t tipo = 0; tipo < clase_.Tipos(); ++tipo) CrearTipo(tipo);
  if (clase_.conParte == ElementoConParte::Muro) {
    rejilla_->addWidget(Rotulo(tr("Huecos m²"), "nota"), fila_, 0);
    for (int c = 1; c <= kColumnaSuma; ++c) {
      huecos_.push_back(Rotulo({}, "nota"));
      huecos_.back()->setAlignment(Qt::AlignRight);
      rejilla_->addWidget(huecos_.back(), fila_, c);
    }
    ++fila_;
  }
  rejilla_->setColumnStretch(kColumnaSuma + 1, 1);
  columna->addWidget(avisos_);
  avisos_->hide();
  mas_ = new QPushButton(tr("Otro tipo constructivo"));
  mas_->setObjectName("mas");
  mas_->setToolTip(tr("Enseña otro tipo, con su composición y sus áreas"));
  connect(mas_, &QPushButton::clicked, this, [this] {
    ++pedidos_;
    Refrescar();
  });
  columna->addWidget(mas_, 0, Qt::AlignLeft);
  columna->addStretch(1);
}

QWidget* FichaElemento::Cabecera() {
  auto* caja = new QWidget(this);
  auto* fila = new QHBoxLayout(caja);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->addWidget(Rotulo(Q(clase_.nombre), "titulo"));
  auto* nota = Rotulo(Q(clase_.ayuda), "nota");
  nota->setWordWrap(true);
  fila->addWidget(nota, 1);
  if (clase_.area.empty()) return caja;
  const auto boton = [&](const char* nombre, const QString& texto, const QString& ayuda) {
    auto* b = new QPushButton(texto, caja);
    b->setObjectName(nombre);
    b->setToolTip(ayuda);
    b->setFocusPolicy(Qt::NoFocus);  // pegar parte de la casilla con el foco
    fila->addWidget(b);
    return b;
  };
  connect(boton("copiar", tr("Copiar"), tr("Copia la rejilla para una hoja de cálculo")),
          &QPushButton::clicked, this, &FichaElemento::Copiar);
  connect(boton("pegar", tr("Pegar"),
                tr("Pega de una hoja de cálculo desde la casilla elegida; una vacía no cambia "
                   "nada")),
          &QPushButton::clicked, this, &FichaElemento::Pegar);
  return caja;
}

void FichaElemento::CrearCabeceras() {
  if (clase_.area.empty()) return;
  QStringList textos;
  if (clase_.PorSectores()) {
    for (const char* sector : kRotulosSector) textos << sector;
    textos << "Σ";
  } else {
    textos << tr("Área (m²)");
    if (clase_.conParte) textos << Q(clase_.rotuloParte) + " (m²)" << tr("Al sol (m²)");
    if (!clase_.areaExterior.empty()) textos << tr("Exterior (m²)");
    for (const DatoElemento& dato : clase_.datos) textos << Q(dato.rotulo);
  }
  for (int c = 0; c < textos.size(); ++c) {
    auto* rotulo = Rotulo(textos[c], "nota");
    rotulo->setAlignment(Qt::AlignRight);
    rejilla_->addWidget(rotulo, fila_, c + 1);
  }
  ++fila_;
}

void FichaElemento::Anadir(QWidget* control, int fila, int columna, int ancho, std::size_t tipo) {
  if (qobject_cast<QLineEdit*>(control) != nullptr)
    rejilla_->addWidget(control, fila, columna, 1, ancho, Qt::AlignRight);
  else
    rejilla_->addWidget(control, fila, columna, 1, ancho);
  deTipo_.emplace_back(tipo, control);
}

void FichaElemento::CrearTipo(std::size_t tipo) {
  Anadir(BarraComposicion(tipo, false), fila_++, 0, kColumnaSuma + 2, tipo);
  if (!clase_.ranurasExteriores.empty())
    Anadir(BarraComposicion(tipo, true), fila_++, 0, kColumnaSuma + 2, tipo);
  if (clase_.area.empty()) return;
  rejilla_->addWidget(Marca(tipo), fila_, kColumnaSuma + 1);
  if (clase_.PorSectores())
    CrearPorSectores(tipo);
  else
    CrearEnFila(tipo);
}

FichaElemento::Casilla FichaElemento::CrearCasilla(std::size_t tipo, std::string_view etiqueta,
                                                   std::size_t sector, bool parte) {
  Casilla casilla;
  casilla.direccion = DireccionElemento(clase_, etiqueta, tipo, sector);
  const QString que = etiqueta == clase_.areaExterior ? tr("Área exterior del local")
                      : parte                         ? Q(clase_.rotuloParte)
                                                      : tr("Área");
  casilla.opciones.rotulo =
      Q(clase_.nombre) + ", " + tr("tipo %1").arg(tipo + 1) +
      (clase_.PorSectores() ? QString(", ") + kRotulosSector[sector] + " " : QString(". ")) + que;
  if (clase_.conParte) {
    const CasillaArea area{*clase_.conParte, tipo, static_cast<Sector>(sector)};
    casilla.opciones.poner = [area, parte](Edificio& e, std::string_view texto, Mensajes& m) {
      (parte ? PonerAreaParte : PonerAreaTotal)(e.GetRecinto(0), area, texto, m);
    };
  }
  casilla.editor = enlaces_.Celda(casilla.direccion, casilla.opciones, avisos_);
  casilla.editor->setFixedWidth(kAnchoCasilla);
  casilla.editor->installEventFilter(this);
  return casilla;
}

void FichaElemento::CrearPorSectores(std::size_t tipo) {
  for (const bool parte : {false, true}) {
    std::vector<Casilla> fila;
    Anadir(Rotulo(parte ? Q(clase_.rotuloParte) + " m²" : tr("Total m²")), fila_, 0, 1, tipo);
    for (std::size_t s = 0; s < kSectores; ++s) {
      if (parte && !TieneParte(clase_, s)) {
        fila.emplace_back();
        continue;
      }
      fila.push_back(CrearCasilla(tipo, parte ? clase_.parte : clase_.area, s, parte));
      Anadir(fila.back().editor, fila_, static_cast<int>(s) + 1, 1, tipo);
    }
    auto* suma = Rotulo({});
    suma->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    suma->setMinimumWidth(48);
    Anadir(suma, fila_, kColumnaSuma, 1, tipo);
    sumas_.emplace_back(casillas_.size(), suma);
    casillas_.push_back(std::move(fila));
    tipoDeFila_.push_back(tipo);
    ++fila_;
  }
  if (clase_.conParte == ElementoConParte::Muro) return;
  Anadir(Rotulo(tr("Al sol m²"), "nota"), fila_, 0, 1, tipo);
  for (std::size_t s = 0; s < kSectores; ++s) CrearResto(tipo, s, static_cast<int>(s) + 1);
  ++fila_;
}

void FichaElemento::CrearResto(std::size_t tipo, std::size_t sector, int columna) {
  auto* resto = Rotulo({}, "nota");
  resto->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  Anadir(resto, fila_, columna, 1, tipo);
  restos_.push_back({tipo, sector, resto});
}

void FichaElemento::CrearEnFila(std::size_t tipo) {
  std::vector<Casilla> fila;
  int columna = 1;
  const auto casilla = [&](std::string_view etiqueta, bool parte) {
    fila.push_back(CrearCasilla(tipo, etiqueta, norte, parte));
    Anadir(fila.back().editor, fila_, columna++, 1, tipo);
  };
  casilla(clase_.area, false);
  if (clase_.conParte) {
    casilla(clase_.parte, true);
    CrearResto(tipo, norte, columna++);
  }
  if (!clase_.areaExterior.empty()) casilla(clase_.areaExterior, false);
  for (const DatoElemento& dato : clase_.datos)
    Anadir(CrearDato(tipo, dato, fila), fila_, columna++, 1, tipo);
  casillas_.push_back(std::move(fila));
  tipoDeFila_.push_back(tipo);
  ++fila_;
}

QWidget* FichaElemento::CrearDato(std::size_t tipo, const DatoElemento& dato,
                                  std::vector<Casilla>& fila) {
  Casilla casilla;
  casilla.direccion = DireccionElemento(clase_, dato.campo, tipo);
  casilla.opciones.rotulo = Q(dato.rotulo);
  casilla.opciones.ayuda = Q(dato.ayuda);
  if (dato.textos.empty()) {
    casilla.editor = enlaces_.Celda(casilla.direccion, casilla.opciones, avisos_);
    casilla.editor->setFixedWidth(kAnchoCasilla);
    casilla.editor->installEventFilter(this);
    fila.push_back(casilla);
    return casilla.editor;
  }
  auto* caja = new QWidget(this);
  auto* formulario = new QFormLayout(caja);
  formulario->setContentsMargins(0, 0, 0, 0);
  casilla.opciones.rotulo.clear();
  QComboBox* lista =
      enlaces_.Lista(formulario, casilla.direccion, {dato.textos.begin(), dato.textos.end()},
                     casilla.opciones, {dato.rotulos.begin(), dato.rotulos.end()});
  lista->setAccessibleName(Q(dato.rotulo));
  return caja;
}

QWidget* FichaElemento::BarraComposicion(std::size_t tipo, bool exterior) {
  const std::size_t ranura = exterior ? clase_.ranurasExteriores[tipo] : clase_.ranuras[tipo];
  auto* caja = new QWidget(this);
  auto* fila = new QHBoxLayout(caja);
  fila->setContentsMargins(0, exterior ? 0 : 8, 0, 0);
  auto* rotulo = Rotulo(exterior ? tr("Exterior del local") : tr("Tipo %1").arg(tipo + 1),
                        exterior ? "nota" : nullptr);
  if (!exterior) rotulo->setStyleSheet("font-weight: 600;");
  fila->addWidget(rotulo);
  auto* nombre = new BotonNombre(caja);
  fila->addWidget(nombre, 1);
  const auto mirar = [this, ranura] {
    elegida_ = ranura;
    emit Elegida(ranura);
  };
  connect(nombre, &QAbstractButton::clicked, this, mirar);
  OpcionesCampo U;
  U.rotulo = "U, " + Q(clase_.nombre) + ", " + tr("tipo %1").arg(tipo + 1);
  U.ayuda = tr("Transmitancia en W/m²K. Si se escribe, se quita la composición (DB-HE1)");
  U.poner = [ranura](Edificio& e, std::string_view texto, Mensajes& m) {
    PonerTransmitancia(e, ranura, texto, m);
  };
  auto* casilla = enlaces_.Celda(
      DireccionElemento(clase_, exterior ? clase_.UExterior : clase_.U, tipo), U, avisos_);
  casilla->setFixedWidth(kAnchoCasilla);
  fila->addWidget(new QLabel("U", caja));
  fila->addWidget(casilla);
  fila->addWidget(Rotulo("W/m²K", "unidad"));
  const auto boton = [&](const QString& texto, const QString& ayuda, const auto& hacer) {
    auto* b = new QToolButton(caja);
    b->setText(texto);
    b->setToolTip(ayuda);
    b->setFocusPolicy(Qt::TabFocus);
    connect(b, &QToolButton::clicked, this, hacer);
    fila->addWidget(b);
    return b;
  };
  boton(tr("Elegir…"), tr("Elige una composición de la biblioteca"), [this, mirar, ranura] {
    mirar();
    emit PideElegir(ranura);
  })->setObjectName("elegir" + QString::number(ranura));
  boton(tr("Crear…"), tr("Define sus capas a partir de las que tiene"), [this, mirar, ranura] {
    mirar();
    emit PideCapas(ranura);
  })->setObjectName("crear" + QString::number(ranura));
  auto* quitar = boton(tr("Quitar"), tr("Deja la posición sin definir"), [this, ranura] {
    contexto_.Editar(tr("Quitar composición"), [&](Edificio& e) { e.LimpiarComposicion(ranura); });
  });
  quitar->setObjectName("quitar" + QString::number(ranura));
  composiciones_.push_back({ranura, nombre, quitar});
  if (!exterior && clase_.area.empty()) fila->addWidget(Marca(tipo));
  return caja;
}

QWidget* FichaElemento::Marca(std::size_t tipo) {
  auto* marca = new QWidget(this);
  auto* formulario = new QFormLayout(marca);
  formulario->setContentsMargins(0, 0, 0, 0);
  OpcionesCampo opciones;
  opciones.rotulo = tr("Se reforma");
  opciones.ayuda = tr("La reforma trata este elemento y ha de cumplir sus límites");
  marcas_.push_back(
      enlaces_.Casilla(formulario, DireccionElemento(clase_, clase_.marca, tipo), opciones));
  return marca;
}

void FichaElemento::Pegar() {
  PegarDesde(focusWidget());
}

void FichaElemento::Copiar() const {
  CasillasHoja hoja;
  for (std::size_t f = 0; f < casillas_.size(); ++f) {
    if (tipoDeFila_[f] >= pedidos_) continue;
    auto& fila = hoja.emplace_back();
    for (const Casilla& casilla : casillas_[f])
      fila.push_back(casilla.editor == nullptr ? std::string()
                                               : S(casilla.editor->text().replace('.', ',')));
  }
  QApplication::clipboard()->setText(Q(TextoDeCasillas(hoja)));
}

void FichaElemento::PegarDesde(const QObject* editor) {
  const CasillasHoja hoja = CasillasDeTexto(S(QApplication::clipboard()->text()));
  std::size_t fila0 = 0, columna0 = 0;
  for (std::size_t f = 0; f < casillas_.size(); ++f)
    for (std::size_t c = 0; c < casillas_[f].size(); ++c)
      if (editor != nullptr && casillas_[f][c].editor == editor) {
        fila0 = f;
        columna0 = c;
      }
  // Lo que se está tecleando se guarda antes.
  if (QWidget* foco = QApplication::focusWidget()) foco->clearFocus();
  RegistroMensajes mensajes;
  contexto_.Editar(tr("Pegar"), [&](Edificio& e) {
    for (std::size_t f = 0; f < hoja.size() && fila0 + f < casillas_.size(); ++f)
      for (std::size_t c = 0; c < hoja[f].size() && columna0 + c < casillas_[fila0 + f].size();
           ++c) {
        const Casilla& casilla = casillas_[fila0 + f][columna0 + c];
        if (casilla.editor == nullptr || hoja[f][c].empty()) continue;
        const std::string texto = SinMillares(hoja[f][c]);
        if (casilla.opciones.poner)
          casilla.opciones.poner(e, texto, mensajes);
        else
          PonerCampo(e, casilla.direccion, texto, mensajes);
      }
  });
  QStringList textos;
  for (const Mensaje& m : mensajes.recibidos) textos << Q(m.texto);
  textos.removeDuplicates();
  avisos_->setText(textos.join('\n'));
  avisos_->setVisible(!textos.isEmpty());
}

bool FichaElemento::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::KeyPress) {
    const QString texto = QApplication::clipboard()->text();
    const bool tabla = texto.contains('\t') || texto.trimmed().contains('\n');
    if (tabla && static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Paste)) {
      PegarDesde(objeto);
      return true;
    }
  }
  return QWidget::eventFilter(objeto, evento);
}

void FichaElemento::PonerSumas() {
  for (const auto& [fila, suma] : sumas_) {
    double total = 0;
    for (const Casilla& casilla : casillas_[fila])
      if (casilla.editor != nullptr) total += RealInicial(S(casilla.editor->text()));
    suma->setText(Cifra(total));
  }
  const Recinto& r = contexto_.Caso().GetRecinto(0);
  for (const Resto& resto : restos_)
    resto.rotulo->setText(Cifra(static_cast<double>(
        AreaRestante(r, {*clase_.conParte, resto.tipo, static_cast<Sector>(resto.sector)}))));
  if (huecos_.empty()) return;
  double total = 0;
  const AreasPorSector areas = FachadaPorSector(contexto_.Caso());
  for (std::size_t s = 0; s < kSectores; ++s) {
    total += areas[s].huecos;
    huecos_[s]->setText(Cifra(areas[s].huecos));
  }
  huecos_.back()->setText(Cifra(total));
}

void FichaElemento::PonerVisibles() {
  pedidos_ = std::clamp(pedidos_, TiposEnUso(contexto_.Caso(), clase_), clase_.Tipos());
  for (const auto& [tipo, control] : deTipo_) control->setVisible(tipo < pedidos_);
  mas_->setVisible(pedidos_ < clase_.Tipos());
  // En un edificio nuevo todo es nuevo.
  const bool existente = contexto_.Caso().GetDatosGenerales().Modo_trabajo != "Nuevo";
  for (std::size_t tipo = 0; tipo < marcas_.size(); ++tipo)
    marcas_[tipo]->parentWidget()->setVisible(existente && tipo < pedidos_);
}

void FichaElemento::Refrescar() {
  PonerVisibles();
  PonerSumas();
  for (const Composicion& c : composiciones_) {
    const composicion& puesta = contexto_.Caso().GetComposicion(c.ranura);
    const bool escrita = puesta.capas.empty() && puesta.U > 0.0F;
    c.nombre->setText(Q(puesta.nombre) + (escrita ? tr(" (U escrita)") : QString()));
    c.nombre->setToolTip(Q(puesta.nombre) + "\n" + tr("Enseña su sección y sus capas"));
    c.quitar->setEnabled(!puesta.capas.empty() || puesta.U > 0.0F);
  }
}

}  // namespace novex::gui
