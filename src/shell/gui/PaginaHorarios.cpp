#include "shell/gui/PaginaHorarios.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QTabBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <numeric>

#include "base/Calendario.h"
#include "outputs/PeriodoSerie.h"
#include "shell/gui/CalendarioUso.h"
#include "shell/gui/ColoresDia.h"
#include "shell/gui/GraficoHorario.h"
#include "shell/gui/ListaSinRueda.h"
#include "shell/gui/MapaAno.h"
#include "shell/gui/RejillaHorarios.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// Más ancho que esto las horas quedan demasiado separadas para leer una fila.
constexpr int kAnchoMaximo = 1500;

std::array<bool, 13> MesesDeVerano(const Localizacion& sitio) {
  std::array<bool, 13> verano{};
  for (int m = 1; m <= kMeses; ++m) verano.at(static_cast<std::size_t>(m)) = sitio.EsVerano(m);
  return verano;
}

QLabel* Seccion(const QString& texto, QWidget* padre) {
  auto* etiqueta = new QLabel(texto, padre);
  etiqueta->setProperty("papel", "seccion");
  return etiqueta;
}

}  // namespace

PaginaHorarios::PaginaHorarios(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* fuera = new QHBoxLayout(this);
  fuera->setContentsMargins(12, 4, 12, 8);
  auto* dentro = new QWidget(this);
  dentro->setMaximumWidth(kAnchoMaximo);
  fuera->addWidget(dentro);
  auto* columna = new QVBoxLayout(dentro);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* arriba = new QHBoxLayout;
  vistas_ = new QTabBar(dentro);
  vistas_->setObjectName("vistasHorarios");
  vistas_->setDrawBase(false);
  vistas_->setExpanding(false);
  vistas_->addTab(tr("Horarios del día"));
  vistas_->addTab(tr("Calendario y meses"));
  arriba->addWidget(vistas_);
  arriba->addStretch(1);
  uso_ = new QLabel(dentro);
  uso_->setProperty("papel", "nota");
  arriba->addWidget(uso_);
  columna->addLayout(arriba);
  pila_ = new QStackedWidget(dentro);
  pila_->addWidget(CajaHorarios());
  pila_->addWidget(CajaCalendario());
  columna->addWidget(pila_, 1);
  connect(vistas_, &QTabBar::currentChanged, this, [this](int vista) {
    pila_->setCurrentIndex(vista);
    Refrescar();
  });
}

QWidget* PaginaHorarios::CajaFamilias() {
  auto* caja = new QWidget(this);
  auto* fila = new QHBoxLayout(caja);
  fila->setContentsMargins(0, 0, 0, 0);
  fila->setSpacing(4);
  familias_ = new QButtonGroup(this);
  for (std::size_t f = 0; f < kFamilias; ++f) {
    auto* boton = new BotonFamilia(caja);
    boton->setObjectName(Q(std::string(kNombreFamilia.at(f))));
    botones_.at(f) = boton;
    familias_->addButton(boton, static_cast<int>(f));
    fila->addWidget(boton);
  }
  botones_[C1]->setChecked(true);
  connect(familias_, &QButtonGroup::idClicked, this, &PaginaHorarios::ElegirFamilia);
  return caja;
}

QWidget* PaginaHorarios::CajaOrdenes() {
  auto* caja = new QWidget(this);
  auto* fila = new QHBoxLayout(caja);
  fila->setContentsMargins(0, 0, 0, 0);
  copiar_ = new QToolButton(caja);
  copiar_->setObjectName("copiarHorario");
  copiar_->setPopupMode(QToolButton::InstantPopup);
  copiar_->setMenu(new QMenu(copiar_));
  connect(copiar_->menu(), &QMenu::aboutToShow, this, &PaginaHorarios::LlenarCopiar);
  fila->addWidget(copiar_);
  todas_ = new QCheckBox(tr("las ocho familias"), caja);
  todas_->setToolTip(
      tr("Copia el día entero: ocupación, iluminación, equipos, consignas, "
         "ventilación y agua caliente"));
  fila->addWidget(todas_);
  auto* reponer = new QPushButton(tr("Valores del uso"), caja);
  reponer->setObjectName("reponerHorario");
  reponer->setToolTip(
      tr("Vuelve a los horarios de esta familia para el uso del edificio (CTE DB-HE, anejo D)"));
  connect(reponer, &QPushButton::clicked, this, [this] {
    Editar(tr("valores del uso en %1").arg(RotuloFamilia()), [this](Edificio& e, Mensajes& m) {
      ReponerHorario(e, Elegida(), contexto_.Ficheros().Xml("PerfilesUso.xml", "PERFILES_USO"), m);
    });
  });
  fila->addSpacing(12);
  fila->addWidget(reponer);
  avisos_ = new QLabel(caja);
  avisos_->setObjectName("avisosHorario");
  avisos_->setProperty("papel", "aviso");
  avisos_->setWordWrap(true);
  fila->addSpacing(12);
  fila->addWidget(avisos_, 1);
  return caja;
}

QWidget* PaginaHorarios::CajaHorarios() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 4, 0, 0);
  columna->addWidget(CajaFamilias());
  rejilla_ = new RejillaHorarios(caja);
  rejilla_->setObjectName("rejillaHorarios");
  columna->addWidget(rejilla_);
  columna->addWidget(CajaOrdenes());
  grafico_ = new GraficoHorario(caja);
  columna->addWidget(grafico_, 1);
  notas_ = new QLabel(caja);
  notas_->setObjectName("notasHorario");
  notas_->setProperty("papel", "nota");
  notas_->setWordWrap(true);
  columna->addWidget(notas_);
  columna->addStretch(0);
  connect(rejilla_, &QTableWidget::currentCellChanged, this, [this] { RefrescarHorarios(); });
  connect(rejilla_->horizontalHeader(), &QHeaderView::geometriesChanged, this,
          &PaginaHorarios::AlinearGrafico);
  connect(
      rejilla_, &RejillaHorarios::Tecleado, this, [this](const auto& casillas, const auto& texto) {
        Editar(RotuloFamilia(),
               [&](Edificio& e, Mensajes& m) { PonerHoras(e, Elegida(), casillas, S(texto), m); });
      });
  connect(rejilla_, &RejillaHorarios::Pegado, this, [this](const auto& esquina, const auto& texto) {
    Editar(tr("pegar en %1").arg(RotuloFamilia()),
           [&](Edificio& e, Mensajes& m) { PegarHoras(e, Elegida(), esquina, S(texto), m); });
  });
  return caja;
}

QWidget* PaginaHorarios::CajaCalendario() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 4, 0, 0);
  auto* fila = new QHBoxLayout;
  fila->setSpacing(14);
  calendario_ = new CalendarioUso(caja);
  calendario_->setObjectName("calendario");
  fila->addWidget(calendario_, 1);
  fila->addWidget(CajaMeses());
  fila->addWidget(CajaClases());
  columna->addLayout(fila);
  columna->addWidget(CajaMapa(), 1);
  connect(calendario_, &CalendarioUso::Pintado, this, [this](const auto& posiciones) {
    Editar(tr("calendario"),
           [&](Edificio& e, Mensajes&) { PintarDias(e, posiciones, clases_->checkedId()); });
  });
  connect(calendario_, &CalendarioUso::PincelPedido, this,
          [this](int codigo) { clases_->button(codigo)->click(); });
  return caja;
}

QWidget* PaginaHorarios::CajaMeses() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(0);
  auto* titulo = new QLabel(tr("Acción del mes"), caja);
  titulo->setProperty("papel", "nota");
  titulo->setFixedHeight(CalendarioUso::kAltoCabecera);
  columna->addWidget(titulo);
  for (std::size_t m = 1; m <= kMeses; ++m) {
    auto* lista = new ListaSinRueda(caja);
    lista->setObjectName(QString("AccionMes[%1]").arg(m));
    lista->setAccessibleName(tr("Acción de %1").arg(Q(kNombreMesCompleto.at(m))));
    lista->setToolTip(tr("Qué sistemas pueden funcionar en %1: sin calefacción o sin refrigeración "
                         "su consigna no se usa")
                          .arg(Q(kNombreMesCompleto.at(m)).toLower()));
    for (const std::string_view accion : kAccionesMes) lista->addItem(Q(accion));
    lista->setFixedHeight(CalendarioUso::kAltoFila - 2);
    columna->addWidget(lista);
    columna->addSpacing(2);
    acciones_.at(m) = lista;
    connect(lista, &QComboBox::activated, this, [this, m, lista] {
      Editar(tr("acción de %1").arg(Q(kNombreMesCompleto.at(m)).toLower()),
             [&](Edificio& e, Mensajes&) {
               PonerAccionMes(e, static_cast<int>(m), S(lista->currentText()));
             });
    });
  }
  columna->addStretch(1);
  return caja;
}

QWidget* PaginaHorarios::CajaClases() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(4);
  auto* titulo = new QLabel(tr("Pintar con"), caja);
  titulo->setProperty("papel", "nota");
  columna->addWidget(titulo);
  clases_ = new QButtonGroup(this);
  // Las clases de día y, al final, el día sin uso.
  for (std::size_t i = 1; i <= kCodigosDia; ++i) {
    const int codigo = static_cast<int>(i % kCodigosDia);
    auto* boton = new QRadioButton(caja);
    boton->setObjectName(QString("clase%1").arg(codigo));
    QPixmap muestra(14, 14);
    muestra.fill(ColorDia(codigo));
    boton->setIcon(muestra);
    clases_->addButton(boton, codigo);
    columna->addWidget(boton);
    connect(boton, &QRadioButton::toggled, this, [this, codigo](bool si) {
      if (si) calendario_->PonerPincel(codigo);
    });
  }
  clases_->button(1)->setChecked(true);
  auto* ayuda = new QLabel(tr("Pulse o arrastre; en el nombre, el mes entero."), caja);
  ayuda->setProperty("papel", "nota");
  ayuda->setWordWrap(true);
  columna->addWidget(ayuda);
  columna->addStretch(1);
  caja->setFixedWidth(190);
  return caja;
}

QWidget* PaginaHorarios::CajaMapa() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* fila = new QHBoxLayout;
  fila->addWidget(Seccion(tr("Lo que resulta en el año"), caja));
  serie_ = new QComboBox(caja);
  serie_->setObjectName("serieHorario");
  for (std::size_t f = 0; f < kFamilias; ++f) serie_->addItem(QString());
  serie_->setCurrentIndex(static_cast<int>(CTCh));
  serie_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
  connect(serie_, &QComboBox::activated, this, [this] { RefrescarCalendario(); });
  fila->addWidget(serie_);
  fila->addStretch(1);
  verano_ = new QLabel(caja);
  verano_->setProperty("papel", "nota");
  fila->addWidget(verano_);
  columna->addLayout(fila);
  mapa_ = new MapaAno(caja);
  columna->addWidget(mapa_, 1);
  columna->addStretch(0);
  return caja;
}

std::size_t PaginaHorarios::ClaseElegida() const {
  return static_cast<std::size_t>(std::max(0, rejilla_->currentRow()));
}

QString PaginaHorarios::RotuloFamilia() const {
  return Q(DatosDeFamilia(Elegida(), contexto_.Caso().GetDatosGenerales().EsResidencial()).rotulo);
}

void PaginaHorarios::Editar(const QString& nombre,
                            const std::function<void(Edificio&, Mensajes&)>& cambio) {
  RegistroMensajes avisos;
  const bool cambiado = contexto_.Editar(nombre, [&](Edificio& e) { cambio(e, avisos); });
  avisos_->setText(avisos.recibidos.empty() ? QString() : Q(avisos.recibidos.front().texto));
  // Sin cambio no hay aviso de edición, y la celda tecleada ha de volver a lo que había.
  if (!cambiado) Refrescar();
}

void PaginaHorarios::ElegirFamilia(int) {
  avisos_->clear();
  Refrescar();
}

void PaginaHorarios::LlenarCopiar() {
  QMenu* menu = copiar_->menu();
  menu->clear();
  std::vector<std::size_t> otras;
  for (std::size_t c = 0; c < kClasesDia; ++c)
    if (c != ClaseElegida()) otras.push_back(c);
  menu->addAction(tr("Todas las demás"), this, [this, otras] { CopiarA(otras); });
  menu->addSeparator();
  for (const std::size_t c : otras)
    menu->addAction(Q(kNombresDia.at(c + 1)), this, [this, c] { CopiarA({c}); });
}

void PaginaHorarios::CopiarA(const std::vector<std::size_t>& hasta) {
  std::vector<Familia> familias = {Elegida()};
  if (todas_->isChecked()) familias = {C1, C2, CIlu, CEq, CTCh, CTRh, CNR, CCAC};
  Editar(tr("copiar el horario de %1").arg(Q(kNombresDia.at(ClaseElegida() + 1))),
         [&](Edificio& e, Mensajes&) { CopiarHorario(e, familias, ClaseElegida(), hasta); });
}

void PaginaHorarios::Refrescar() {
  const DatosGenerales& g = contexto_.Caso().GetDatosGenerales();
  uso_->setText(g.EsResidencial() ? tr("Uso residencial: las cargas van en W/m²")
                                  : tr("Uso terciario: las cargas van en % del máximo del uso"));
  if (pila_->currentIndex() == 0)
    RefrescarHorarios();
  else
    RefrescarCalendario();
}

void PaginaHorarios::RefrescarHorarios() {
  const Edificio& caso = contexto_.Caso();
  const DatosGenerales& g = caso.GetDatosGenerales();
  const auto dias = DiasPorCodigo(g.perfiles);
  const std::size_t clase = ClaseElegida();
  const QColor color = ColorDia(static_cast<int>(clase) + 1);
  for (std::size_t f = 0; f < kFamilias; ++f)
    botones_.at(f)->Poner(Q(DatosDeFamilia(static_cast<Familia>(f), g.EsResidencial()).rotulo),
                          g.perfiles.tabla.at(f).at(clase), color);
  const Familia familia = Elegida();
  rejilla_->Poner(g.perfiles.tabla[familia], dias);
  std::array<bool, kClasesDia> usadas{};
  for (std::size_t c = 0; c < kClasesDia; ++c) usadas.at(c) = dias.at(c + 1) > 0;
  grafico_->Poner(g.perfiles.tabla[familia], usadas,
                  Q(DatosDeFamilia(familia, g.EsResidencial()).unidad));
  grafico_->Elegir(clase);
  copiar_->setText(tr("Copiar %1 a").arg(Q(kNombresDia.at(clase + 1))));
  QStringList lineas;
  for (const std::string& nota : NotasHorario(caso, familia)) lineas << Q(nota);
  notas_->setText(lineas.join(".\n") + (lineas.isEmpty() ? "" : "."));
  notas_->setVisible(!lineas.isEmpty());
  AlinearGrafico();
}

void PaginaHorarios::RefrescarCalendario() {
  const Edificio& caso = contexto_.Caso();
  const DatosGenerales& g = caso.GetDatosGenerales();
  const auto verano = MesesDeVerano(caso.GetLocalizacion());
  calendario_->Poner(g.perfiles.calendario, verano);
  const auto dias = DiasPorCodigo(g.perfiles);
  for (std::size_t c = 0; c < kCodigosDia; ++c)
    clases_->button(static_cast<int>(c))
        ->setText(QString("%1 %2 · %3 d").arg(c).arg(Q(kNombresDia.at(c))).arg(dias.at(c)));
  for (std::size_t m = 1; m <= kMeses; ++m) {
    const QSignalBlocker callada(acciones_.at(m));
    acciones_.at(m)->setCurrentIndex(acciones_.at(m)->findText(Q(g.perfiles.AccionMes.at(m))));
  }
  for (std::size_t f = 0; f < kFamilias; ++f)
    serie_->setItemText(
        static_cast<int>(f),
        Q(DatosDeFamilia(static_cast<Familia>(f), g.EsResidencial()).rotulo).section('(', 0, 0));
  const auto familia = static_cast<Familia>(serie_->currentIndex());
  // Las cargas de la serie ya van en W/m2, también en un uso terciario.
  mapa_->Poner(SerieDeHorario(caso, familia), Q(DatosDeFamilia(familia, true).unidad));
  const bool hayVerano = std::accumulate(verano.begin(), verano.end(), 0) > 0;
  verano_->setText(hayVerano ? tr("En negrita, los meses de verano") : QString());
}

void PaginaHorarios::AlinearGrafico() {
  const int izquierda =
      rejilla_->verticalHeader()->width() + rejilla_->frameWidth() + rejilla_->x() - grafico_->x();
  grafico_->Alinear(izquierda, rejilla_->horizontalHeader()->length());
}

void PaginaHorarios::resizeEvent(QResizeEvent* evento) {
  Pagina::resizeEvent(evento);
  AlinearGrafico();
}

void PaginaHorarios::showEvent(QShowEvent* evento) {
  Pagina::showEvent(evento);
  AlinearGrafico();
}

}  // namespace novex::gui
