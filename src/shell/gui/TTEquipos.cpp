#include "shell/gui/TTEquipos.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QVBoxLayout>
#include <map>

#include "base/NumeroTexto.h"
#include "entry/CambioSistema.h"
#include "entry/ListasSistemas.h"
#include "entry/TextosSistema.h"
#include "shell/gui/DialogoSistema.h"
#include "shell/gui/FichaFotovoltaica.h"
#include "shell/gui/FichaSistema.h"
#include "shell/gui/FichaSolar.h"
#include "shell/gui/TextoQt.h"
#include "systems/ArregloACS.h"

namespace novex::gui {
namespace {

constexpr int kFicha = Qt::UserRole, kNumero = Qt::UserRole + 1, kRuta = Qt::UserRole + 2;

QString RotuloBloque(const SistemaResidencial& sistema, const Instalaciones& bloque) {
  SistemaResidencial uno;
  uno.Tipo_sistema = sistema.Tipo_sistema;
  uno.Nombre_sistema = sistema.Nombre_sistema;
  uno.instalaciones.push_back(bloque);
  return Q(EtiquetaClase(uno));
}

}  // namespace

TTEquipos::TTEquipos(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(8, 6, 0, 0);
  fila->addWidget(CajaArbol());
  fichas_ = new QStackedWidget(this);
  const auto anadir = [this](QWidget* ficha) {
    auto* visor = new QScrollArea(fichas_);
    visor->setWidgetResizable(true);
    visor->setFrameShape(QFrame::NoFrame);
    visor->setWidget(ficha);
    fichas_->addWidget(visor);
  };
  anadir(PaginaVacia());
  anadir(sistema_ = new FichaSistema(contexto));
  anadir(solar_ = new FichaSolar(contexto));
  anadir(fotovoltaica_ = new FichaFotovoltaica(contexto));
  fila->addWidget(fichas_, 1);
}

QWidget* TTEquipos::CajaArbol() {
  auto* caja = new QWidget(this);
  caja->setFixedWidth(236);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 8);
  arbol_ = new QTreeWidget(caja);
  arbol_->setObjectName("LVSistemas");
  arbol_->setHeaderHidden(true);
  arbol_->setIndentation(14);
  arbol_->setExpandsOnDoubleClick(false);
  arbol_->setAccessibleName(tr("Sistemas"));
  columna->addWidget(arbol_, 1);
  sinSistema_ = new QLabel(caja);
  sinSistema_->setObjectName("sinSistema");
  sinSistema_->setProperty("papel", "nota");
  sinSistema_->setWordWrap(true);
  sinSistema_->setToolTip(tr("La parte de cada servicio que no sirve ningún sistema"));
  columna->addWidget(sinSistema_);
  auto* crear = new QPushButton(tr("Crear instalación…"), caja);
  crear->setObjectName("crear");
  columna->addWidget(crear);
  auto* botones = new QHBoxLayout;
  renombrar_ = new QPushButton(tr("Renombrar"), caja);
  renombrar_->setToolTip(tr("Cambia el nombre del sistema (F2)"));
  eliminar_ = new QPushButton(tr("Eliminar"), caja);
  eliminar_->setObjectName("eliminar");
  eliminar_->setToolTip(tr("Quita el sistema (Supr). Se puede deshacer."));
  botones->addWidget(renombrar_);
  botones->addWidget(eliminar_);
  columna->addLayout(botones);
  connect(crear, &QPushButton::clicked, this, &TTEquipos::Crear);
  connect(eliminar_, &QPushButton::clicked, this, &TTEquipos::Eliminar);
  connect(renombrar_, &QPushButton::clicked, this, [this] { sistema_->Renombrar(); });
  connect(arbol_, &QTreeWidget::itemDoubleClicked, this, [this] { sistema_->Renombrar(); });
  connect(arbol_, &QTreeWidget::currentItemChanged, this,
          [this](const QTreeWidgetItem* item) { Elegir(NodoDe(item)); });
  arbol_->installEventFilter(this);
  return caja;
}

bool TTEquipos::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == arbol_ && evento->type() == QEvent::KeyPress) {
    const int tecla = static_cast<QKeyEvent*>(evento)->key();
    if (tecla == Qt::Key_Delete) {
      Eliminar();
      return true;
    }
    if (tecla == Qt::Key_F2) {
      sistema_->Renombrar();
      return true;
    }
  }
  return Pagina::eventFilter(objeto, evento);
}

QWidget* TTEquipos::PaginaVacia() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  auto* texto = new QLabel(
      tr("El edificio no tiene sistemas. Cree el de agua caliente, que en una vivienda hace falta "
         "para calcular, y los de calefacción y refrigeración. Lo que no cubra ninguno lo hará el "
         "equipo por defecto."),
      caja);
  texto->setWordWrap(true);
  constexpr int kAncho = 420;
  texto->setFixedSize(kAncho, texto->heightForWidth(kAncho));
  auto* crear = new QPushButton(tr("Crear instalación…"), caja);
  connect(crear, &QPushButton::clicked, this, &TTEquipos::Crear);
  columna->addStretch(1);
  columna->addWidget(texto, 0, Qt::AlignHCenter);
  columna->addWidget(crear, 0, Qt::AlignHCenter);
  columna->addStretch(2);
  return caja;
}

TTEquipos::Nodo TTEquipos::NodoDe(const QTreeWidgetItem* item) {
  if (item == nullptr) return {};
  return {static_cast<Nodo::Ficha>(item->data(0, kFicha).toInt()),
          static_cast<std::size_t>(item->data(0, kNumero).toUInt())};
}

QTreeWidgetItem* TTEquipos::Anadir(QTreeWidgetItem* padre, const QString& texto, Nodo nodo,
                                   const QString& ruta) {
  auto* item = new QTreeWidgetItem(QStringList{texto});
  if (padre == nullptr)
    arbol_->addTopLevelItem(item);
  else
    padre->addChild(item);
  item->setData(0, kFicha, static_cast<int>(nodo.ficha));
  item->setData(0, kNumero, static_cast<uint>(nodo.numero));
  item->setData(0, kRuta, ruta);
  item->setToolTip(0, texto);
  return item;
}

void TTEquipos::PonerSistemas() {
  const Edificio& e = contexto_.Caso();
  std::map<std::string, QTreeWidgetItem*> servicios;
  std::size_t numero = 0;
  for (std::size_t s = 0; s < e.NumeroSistemas(); ++s) {
    const SistemaResidencial& sistema = e.GetSistema(s);
    for (const Instalaciones& bloque : sistema.instalaciones) {
      const Nodo nodo{Nodo::Ficha::Sistema, ++numero};
      QTreeWidgetItem*& servicio = servicios[sistema.Tipo_sistema];
      if (servicio == nullptr)
        servicio =
            Anadir(nullptr, Q(RotuloServicio(sistema.Tipo_sistema)), nodo, Q(sistema.Tipo_sistema));
      const QString ruta = QString::number(numero);
      QTreeWidgetItem* generador = Anadir(servicio, RotuloBloque(sistema, bloque), nodo, ruta);
      generador->setToolTip(0, Q(sistema.Nombre_sistema));
      const TipoSistema tipo = TipoSistemaDe(sistema.Tipo_sistema);
      if ((DaCalefaccion(tipo) || DaRefrigeracion(tipo)) && !bloque.Emisor.empty())
        Anadir(generador, Q(bloque.Emisor), nodo, ruta + "/emisor");
      if (ResolverArreglo(tipo, bloque).deposito)
        Anadir(generador, tr("Depósito %1 l").arg(Q(Fijo(static_cast<double>(bloque.Volumen), 0))),
               nodo, ruta + "/depósito");
    }
  }
}

// El elegido puede haberse ido, al borrar su sistema o con otro caso.
void TTEquipos::AjustarElegido() {
  while (elegido_.ficha == Nodo::Ficha::Sistema && elegido_.numero > 0 &&
         !LugarDeBloque(contexto_.Caso(), elegido_.numero))
    --elegido_.numero;
  if (elegido_.ficha == Nodo::Ficha::Sistema && elegido_.numero == 0) elegido_ = {};
  if (elegido_.ficha == Nodo::Ficha::Ninguna && contexto_.Caso().NumeroSistemas() > 0)
    elegido_ = {Nodo::Ficha::Sistema, 1};
}

// El nodo de una ruta, si enseña lo elegido; si no, el del generador, o su servicio si está
// plegado.
QTreeWidgetItem* TTEquipos::ItemElegido(const QString& ruta) const {
  QTreeWidgetItem* mejor = nullptr;
  for (QTreeWidgetItemIterator it(arbol_); *it != nullptr; ++it) {
    if (NodoDe(*it) != elegido_) continue;
    if ((*it)->data(0, kRuta).toString() == ruta) return *it;
    if (mejor == nullptr || mejor == (*it)->parent()) {
      const QTreeWidgetItem* padre = (*it)->parent();
      const bool generador = padre != nullptr && padre->parent() == nullptr;
      if (mejor == nullptr || generador) mejor = *it;
    }
  }
  if (mejor != nullptr && mejor->parent() != nullptr && !mejor->parent()->isExpanded())
    return mejor->parent();
  return mejor;
}

void TTEquipos::LlenarArbol() {
  const QSignalBlocker callado(arbol_);
  QSet<QString> plegados;
  for (QTreeWidgetItemIterator it(arbol_); *it != nullptr; ++it)
    if ((*it)->childCount() > 0 && !(*it)->isExpanded())
      plegados.insert((*it)->data(0, kRuta).toString());
  const QTreeWidgetItem* actual = arbol_->currentItem();
  const QString ruta = actual != nullptr ? actual->data(0, kRuta).toString() : QString();
  arbol_->clear();
  PonerSistemas();
  Anadir(nullptr, tr("Solar térmica"), {Nodo::Ficha::Solar, 0}, "solar");
  Anadir(nullptr, tr("Fotovoltaica"), {Nodo::Ficha::Fotovoltaica, 0}, "fotovoltaica");
  for (QTreeWidgetItemIterator it(arbol_); *it != nullptr; ++it)
    (*it)->setExpanded(!plegados.contains((*it)->data(0, kRuta).toString()));
  AjustarElegido();
  arbol_->setCurrentItem(ItemElegido(ruta));
  const QString falta = Q(TextoSinSistema(contexto_.Caso()));
  // Se parte entre servicios, no entre una cifra y lo suyo.
  QStringList partes = falta.split(" · ");
  sinSistema_->setText(partes.replaceInStrings(" ", QString(QChar::Nbsp)).join(" · "));
  sinSistema_->setVisible(!falta.isEmpty());
}

void TTEquipos::Elegir(Nodo nodo) {
  if (nodo == elegido_) return;
  elegido_ = nodo;
  Ensenar();
}

void TTEquipos::Ensenar() {
  const bool deSistema = elegido_.ficha == Nodo::Ficha::Sistema;
  fichas_->setCurrentIndex(static_cast<int>(elegido_.ficha));
  eliminar_->setEnabled(deSistema);
  renombrar_->setEnabled(deSistema);
  if (deSistema) sistema_->Poner(elegido_.numero);
  if (elegido_.ficha == Nodo::Ficha::Solar) solar_->Refrescar();
  if (elegido_.ficha == Nodo::Ficha::Fotovoltaica) fotovoltaica_->Refrescar();
}

void TTEquipos::Refrescar() {
  LlenarArbol();
  Ensenar();
}

void TTEquipos::Crear() {
  const std::size_t antes = contexto_.Caso().NumeroSistemas();
  DialogoSistema(contexto_, this).exec();
  if (contexto_.Caso().NumeroSistemas() == antes) return;
  elegido_ = {Nodo::Ficha::Sistema, NumeroDeBloque(contexto_.Caso(), antes)};
  Refrescar();
}

void TTEquipos::Eliminar() {
  const auto lugar = LugarDeBloque(contexto_.Caso(), elegido_.numero);
  if (elegido_.ficha != Nodo::Ficha::Sistema || !lugar) return;
  contexto_.Editar(tr("Eliminar el sistema"),
                   [&](Edificio& e) { e.BorrarSistema(lugar->sistema); });
}

}  // namespace novex::gui
