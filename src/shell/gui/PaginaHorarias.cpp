#include "shell/gui/PaginaHorarias.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "outputs/EstadisticaSerie.h"
#include "outputs/TextoTabla.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr int kAnchoElecciones = 280;
// Lo que se enseña al entrar por primera vez.
constexpr const char* kPrimera = "TSL";

QStringList Numerados(const QString& nombre) {
  QStringList nombres;
  for (std::size_t i = 1; i <= kSeriesPorEje; ++i) nombres << nombre + QString::number(i);
  return nombres;
}

std::optional<SerieMostrada> Leer(const CasoCalculado& caso, const std::string& codigo) {
  return SerieDeVariable(*caso.edificio, *caso.resultado, codigo).serie;
}

}  // namespace

PaginaHorarias::PaginaHorarias(ContextoGui& contexto, QWidget* padre)
    : PaginaResultados(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->addLayout(Cabecera());
  auto* fila = new QHBoxLayout;
  fila->setSpacing(12);
  fila->addWidget(Elecciones());
  auto* derecha = new QVBoxLayout;
  aviso_ = NuevaNota(this, "aviso");
  aviso_->setObjectName("avisoHorarias");
  aviso_->hide();
  derecha->addWidget(aviso_);
  hojas_ = new QStackedWidget(this);
  hojas_->addWidget(HojaGrafica());
  hojas_->addWidget(HojaNumerica());
  hojas_->addWidget(nube_ = NuevoGrafico("graficaXY"));
  hojas_->addWidget(ejes_ = NuevoGrafico("graficaMas"));
  derecha->addWidget(hojas_, 1);
  derecha->addStretch(0);
  fila->addLayout(derecha, 1);
  columna->addLayout(fila, 1);
  CambiarModo();
}

QLayout* PaginaHorarias::Cabecera() {
  auto* fila = new QHBoxLayout;
  modos_ = new QTabBar(this);
  modos_->setObjectName("modosHorarias");
  modos_->setDrawBase(false);
  for (const char* modo : {"Gráfica", "Numérico", "GraficaXY", "Grafica +"}) modos_->addTab(modo);
  connect(modos_, &QTabBar::currentChanged, this, [this] {
    CambiarModo();
    Refrescar();
  });
  fila->addWidget(modos_);
  fila->addSpacing(16);
  periodo_ = new SelectorPeriodo(this);
  connect(periodo_, &SelectorPeriodo::Cambiado, this, &PaginaHorarias::CambiarPeriodo);
  fila->addWidget(periodo_);
  fila->addStretch(1);
  dimensiones_ = new QWidget(this);
  auto* botones = new QHBoxLayout(dimensiones_);
  botones->setContentsMargins(0, 0, 0, 0);
  const auto boton = [&](const char* nombre, const QString& ayuda) {
    auto* b = new QRadioButton(nombre, dimensiones_);
    b->setObjectName(QString("grafica") + nombre);
    b->setToolTip(ayuda);
    botones->addWidget(b);
    connect(b, &QRadioButton::clicked, this, &PaginaHorarias::CambiarPeriodo);
    return b;
  };
  dos_ = boton("2D", tr("Una línea a lo largo de las horas"));
  tres_ = boton("3D", tr("Un mapa de las horas del día por los días"));
  dos_->setChecked(true);
  fila->addWidget(dimensiones_);
  return fila;
}

QWidget* PaginaHorarias::Elecciones() {
  elecciones_ = new QStackedWidget(this);
  elecciones_->setFixedWidth(kAnchoElecciones);
  arbol_ = new ArbolSeries(this);
  connect(arbol_, &ArbolSeries::Cambiada, this, &PaginaHorarias::Refrescar);
  connect(arbol_, &ArbolSeries::MarcasCambiadas, this, &PaginaHorarias::VaciarTabla);
  elecciones_->addWidget(arbol_);
  listasXY_ = new ListasSeries(this);
  listasXY_->Anadir(tr("Eje X"), {"CBX"}, {"TSE"});
  listasXY_->Anadir(tr("Eje Y"), {"CBY"}, {"TSL"});
  listasXY_->AnadirNota(tr("Cada punto es una hora del periodo."));
  connect(listasXY_, &ListasSeries::Cambiada, this, &PaginaHorarias::Refrescar);
  elecciones_->addWidget(listasXY_);
  listasEjes_ = new ListasSeries(this);
  listasEjes_->Anadir(tr("Eje izquierdo"), Numerados("CBIzq"), {"TSL", "TSE"});
  listasEjes_->Anadir(tr("Eje derecho"), Numerados("CBDer"), {"DT"});
  listasEjes_->AnadirNota(tr("Las variables de un eje tienen la misma unidad: la de la primera."));
  connect(listasEjes_, &ListasSeries::Cambiada, this, &PaginaHorarias::CambiarEjes);
  elecciones_->addWidget(listasEjes_);
  return elecciones_;
}

VistaGrafico* PaginaHorarias::NuevoGrafico(const char* nombre) {
  auto* grafico = new VistaGrafico(this);
  grafico->setObjectName(nombre);
  return grafico;
}

QWidget* PaginaHorarias::HojaGrafica() {
  auto* hoja = new QWidget(this);
  auto* columna = new QVBoxLayout(hoja);
  columna->setContentsMargins(0, 0, 0, 0);
  columna->setSpacing(0);
  estadistica_ = new QLabel(hoja);
  estadistica_->setObjectName("lineaEstadistica");
  estadistica_->setTextFormat(Qt::PlainText);
  estadistica_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  estadistica_->setWordWrap(true);
  columna->addWidget(estadistica_);
  dibujos_ = new QStackedWidget(hoja);
  dibujos_->addWidget(linea_ = NuevoGrafico("graficaSerie"));
  mapa_ = new MapaCalor(hoja);
  mapa_->setObjectName("mapaSerie");
  dibujos_->addWidget(mapa_);
  columna->addWidget(dibujos_, 1);
  return hoja;
}

QWidget* PaginaHorarias::HojaNumerica() {
  auto* hoja = new QWidget(this);
  auto* columna = new QVBoxLayout(hoja);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* fila = new QHBoxLayout;
  constexpr std::array kColumnas = {"Conta", "hora", "día", "mes"};
  for (std::size_t i = 0; i < kColumnas.size(); ++i) {
    columnas_[i] = new QCheckBox(kColumnas[i], hoja);
    columnas_[i]->setObjectName(QString("columna") + kColumnas[i]);
    columnas_[i]->setChecked(true);
    connect(columnas_[i], &QCheckBox::clicked, this, &PaginaHorarias::VaciarTabla);
    fila->addWidget(columnas_[i]);
  }
  fila->addSpacing(12);
  cuenta_ = NotaCorta(hoja);
  cuenta_->setObjectName("cuentaVariables");
  fila->addWidget(cuenta_);
  fila->addStretch(1);
  const auto boton = [&](const QString& texto, const char* nombre, const QString& ayuda) {
    auto* b = new QPushButton(texto, hoja);
    b->setObjectName(nombre);
    b->setToolTip(ayuda);
    fila->addWidget(b);
    return b;
  };
  connect(boton("Generar tabla", "Button2", tr("Pone en la tabla las variables marcadas")),
          &QPushButton::clicked, this, &PaginaHorarias::GenerarTabla);
  connect(boton("Guardar datos", "Button1", tr("Escribe las mismas filas en un fichero de texto")),
          &QPushButton::clicked, this, &PaginaHorarias::GuardarDatos);
  columna->addLayout(fila);
  tabla_ = new VistaTabla(hoja);
  tabla_->Estirar(true);
  tabla_->Rejilla()->setObjectName("SGResultados");
  columna->addWidget(tabla_, 1);
  return hoja;
}

void PaginaHorarias::CambiarModo() {
  const Modo modo = Actual();
  hojas_->setCurrentIndex(modo);
  elecciones_->setCurrentIndex(modo == XY ? 1 : modo == Mas ? 2 : 0);
  dimensiones_->setVisible(modo == Grafica);
  arbol_->Marcar(modo == Numerico);
}

void PaginaHorarias::CambiarPeriodo() {
  if (Actual() == Grafica && tres_->isChecked())
    if (const auto aviso = AvisoTresDimensiones(periodo_->Periodo())) {
      contexto_.Sesion().Avisos().Avisar(aviso->titulo, aviso->texto);
      dos_->setChecked(true);
    }
  Refrescar();
}

void PaginaHorarias::CambiarEjes() {
  const auto caso = Calculado();
  if (!caso) return;
  // Lo que ya se ha dicho sigue escrito sobre el gráfico.
  const auto avisos = DibujarEjes(*caso, periodo_->Periodo());
  for (std::size_t i = avisados_; i < avisos.size(); ++i)
    contexto_.Sesion().Avisos().Avisar(avisos[i].titulo, avisos[i].texto);
  avisados_ = avisos.size();
}

void PaginaHorarias::Ensenar(const CasoCalculado& caso) {
  const auto nodos = ArbolVariables(*caso.edificio, *caso.resultado);
  arbol_->Poner(nodos, kPrimera);
  if (Actual() == XY) listasXY_->Poner(nodos);
  if (Actual() == Mas) listasEjes_->Poner(nodos);
  Dibujar(caso);
}

void PaginaHorarias::Avisar(const QString& texto) {
  aviso_->setText(texto);
  aviso_->setVisible(!texto.isEmpty());
}

void PaginaHorarias::Dibujar(const CasoCalculado& caso) {
  const PeriodoSerie periodo = periodo_->Periodo();
  const auto horas = HorasDelPeriodo(periodo);
  hojas_->setVisible(horas.valor.has_value());
  Avisar(horas.valor ? QString() : Q(horas.aviso.texto));
  VaciarTabla();
  if (!horas.valor) return;
  if (Actual() == Grafica) DibujarSerie(caso, periodo);
  if (Actual() == XY) DibujarXY(caso, periodo);
  if (Actual() == Mas) DibujarEjes(caso, periodo);
}

void PaginaHorarias::PartirHoras(VistaGrafico* grafico, const PeriodoSerie& periodo) {
  const auto horas = HorasDelPeriodo(periodo);
  if (!horas.valor) return;
  // Una hora ocupa media a cada lado de su número.
  std::vector<std::pair<QString, double>> tramos;
  for (const TramoPeriodo& tramo : TramosPeriodo(periodo))
    tramos.emplace_back(Q(tramo.nombre), tramo.ultima + 0.5);
  grafico->PartirX(horas.valor->primera - 0.5, std::move(tramos),
                   periodo.tipo == TipoPeriodo::Diario    ? tr("Hora")
                   : periodo.tipo == TipoPeriodo::Mensual ? tr("Día")
                                                          : QString());
  grafico->DecirX([](double x) { return Q(TextoHora(static_cast<int>(x))); });
}

void PaginaHorarias::DibujarSerie(const CasoCalculado& caso, const PeriodoSerie& periodo) {
  const auto serie = Leer(caso, arbol_->Elegida());
  if (!serie) return;
  estadistica_->setText(
      Q(LineaEstadistica(serie->serie, periodo,
                         static_cast<double>(caso.edificio->GetRecinto(0).Suelo_habitable_m2))));
  const bool mapa = tres_->isChecked();
  dibujos_->setCurrentWidget(mapa ? static_cast<QWidget*>(mapa_) : linea_);
  if (mapa) {
    const auto superficie = SuperficiePeriodo(*serie, periodo);
    if (superficie.valor) mapa_->Poner(*superficie.valor, TramosPeriodo(periodo));
    return;
  }
  PartirHoras(linea_, periodo);
  linea_->Poner(*GraficoPeriodo(*serie, periodo).valor);
}

void PaginaHorarias::DibujarXY(const CasoCalculado& caso, const PeriodoSerie& periodo) {
  const auto x = Leer(caso, listasXY_->Elegida(0));
  const auto y = Leer(caso, listasXY_->Elegida(1));
  if (!x || !y) {
    Avisar(tr("Elija las dos variables."));
    nube_->Poner({});
    return;
  }
  nube_->Poner(*GraficoXY(*x, *y, periodo).valor);
}

std::vector<Mensaje> PaginaHorarias::DibujarEjes(const CasoCalculado& caso,
                                                 const PeriodoSerie& periodo) {
  SeleccionEjes seleccion;
  for (std::size_t i = 0; i < kSeriesPorEje; ++i) {
    seleccion.izquierda.at(i) = listasEjes_->Elegida(i);
    seleccion.derecha.at(i) = listasEjes_->Elegida(kSeriesPorEje + i);
  }
  const auto g = GraficoMas(*caso.edificio, *caso.resultado, seleccion, periodo);
  if (!g.valor) return {};
  QStringList textos;
  for (const Mensaje& aviso : g.valor->avisos) textos << Q(aviso.texto);
  textos.removeDuplicates();
  Avisar(textos.join('\n'));
  PartirHoras(ejes_, periodo);
  ejes_->Poner(g.valor->izquierda, g.valor->derecha);
  return g.valor->avisos;
}

void PaginaHorarias::VaciarTabla() {
  const auto marcadas = static_cast<int>(arbol_->Marcadas().size());
  cuenta_->setText(tr("%1 de %2 variables marcadas").arg(marcadas).arg(kMaximoSeries));
  if (!tabla_->Puesta().cabeceras.empty()) tabla_->Poner({});
}

ConAviso<Tabla> PaginaHorarias::TablaPedida() const {
  const auto caso = Calculado();
  if (!caso) return {};
  std::vector<SerieMostrada> series;
  for (const std::string& codigo : arbol_->Marcadas())
    if (auto serie = Leer(*caso, codigo)) series.push_back(std::move(*serie));
  return TablaNumerica(series, periodo_->Periodo(),
                       {.conta = columnas_[0]->isChecked(),
                        .hora = columnas_[1]->isChecked(),
                        .dia = columnas_[2]->isChecked(),
                        .mes = columnas_[3]->isChecked()});
}

void PaginaHorarias::GenerarTabla() {
  const auto tabla = TablaPedida();
  if (tabla.valor)
    tabla_->Poner(*tabla.valor);
  else
    contexto_.Sesion().Avisos().Avisar(tabla.aviso.titulo, tabla.aviso.texto);
}

void PaginaHorarias::GuardarDatos() {
  const auto tabla = TablaPedida();
  if (!tabla.valor) {
    contexto_.Sesion().Avisos().Avisar(tabla.aviso.titulo, tabla.aviso.texto);
    return;
  }
  ExportarTextoPreguntando(this, contexto_.Ficheros().Espacio().Proyectos(),
                           TextoSeparado(*tabla.valor));
}

}  // namespace novex::gui
