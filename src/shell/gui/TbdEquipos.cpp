#include "shell/gui/TbdEquipos.h"

#include <QFormLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "entry/CambioSistema.h"
#include "model/CatalogoCampos.h"
#include "shell/gui/GraficoCurvas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr const char* kCualquiera = "Cualquiera";
constexpr const char* kTotalFrio = "CapTotRef_T";

QString Cifra(float valor, int decimales) {
  return Q(Fijo(static_cast<double>(valor), decimales));
}

QLabel* Nota(const QString& texto, const char* papel, QWidget* padre) {
  auto* nota = new QLabel(texto, padre);
  nota->setProperty("papel", papel);
  nota->setWordWrap(true);
  return nota;
}

}  // namespace

TbdEquipos::TbdEquipos(ContextoGui& contexto, std::size_t numero, QWidget* padre)
    : QDialog(padre), contexto_(contexto), numero_(numero) {
  setWindowTitle(tr("Curvas del equipo"));
  auto* columna = new QVBoxLayout(this);
  auto* paginas = new QTabWidget(this);
  columna->addWidget(paginas, 1);
  aviso_ = Nota({}, "aviso", this);
  columna->addWidget(aviso_);
  if (const auto lugar = LugarDeBloque(contexto.Caso(), numero)) {
    const SistemaResidencial& sistema = contexto.Caso().GetSistema(lugar->sistema);
    bloque_ = sistema.instalaciones[lugar->bloque];
    for (const PaginaCurvas& p : PaginasDeCurvas(sistema.Tipo_sistema, bloque_.Seleccion))
      paginas->addTab(HojaDeFamilia(p), Q(p.familia));
  }
  auto* botones = new QHBoxLayout;
  botones->addWidget(
      Nota(tr("Con otros coeficientes el equipo deja de ser el de su modelo."), "nota", this), 1);
  auto* cancelar = new QPushButton(tr("Cancelar"), this);
  auto* aceptar = new QPushButton(tr("Aceptar cambios"), this);
  aceptar->setObjectName("aceptar");
  // Intro en una celda acaba de editarla, no la hoja.
  aceptar->setAutoDefault(false);
  cancelar->setAutoDefault(false);
  botones->addWidget(cancelar);
  botones->addWidget(aceptar);
  columna->addLayout(botones);
  connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
  connect(aceptar, &QPushButton::clicked, this, &TbdEquipos::Aceptar);
  resize(920, 620);
}

QWidget* TbdEquipos::HojaDeFamilia(const PaginaCurvas& pagina) {
  auto* hoja = new QWidget(this);
  auto* columna = new QVBoxLayout(hoja);
  columna->addWidget(Nota(tr("Condiciones nominales. %1").arg(Q(pagina.nominales)), "nota", hoja));
  auto* grupos = new QTabWidget(hoja);
  grupos->setDocumentMode(true);
  for (const GrupoCurvas& g : pagina.grupos)
    grupos->addTab(HojaDeGrupo(g, pagina.familia), Q(g.nombre));
  if (pagina.familia == "EquiposAA")
    for (const GrupoCurvas& g : pagina.grupos)
      if (g.nombre == kTotalFrio)
        grupos->addTab(CajaCondiciones(), tr("Nuevas condiciones térmicas"));
  columna->addWidget(grupos, 1);
  return hoja;
}

QWidget* TbdEquipos::HojaDeGrupo(const GrupoCurvas& grupo, std::string_view familia) {
  auto* hoja = new QWidget(this);
  auto* columna = new QVBoxLayout(hoja);
  const int filas = static_cast<int>(grupo.filas.size()) + (grupo.conTeCambio ? 1 : 0);
  const int columnas = static_cast<int>(grupo.filas[0].valores(bloque_.curvas).size());
  auto* tabla = new QTableWidget(filas, columnas, hoja);
  tabla->setObjectName(Q(grupo.nombre));
  QStringList cabeceras;
  for (int c = 0; c < columnas; ++c) cabeceras << tr("Coef. %1").arg(c);
  tabla->setHorizontalHeaderLabels(cabeceras);
  QStringList rotulos;
  for (const FilaCoeficientes& f : grupo.filas) rotulos << Q(f.rotulo);
  if (grupo.conTeCambio) rotulos << "Tecamb";
  tabla->setVerticalHeaderLabels(rotulos);
  tabla->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  LlenarTabla(tabla, grupo);
  tabla->setFixedHeight(tabla->horizontalHeader()->sizeHint().height() +
                        tabla->verticalHeader()->length() + 4);
  columna->addWidget(tabla);
  auto* grafico = new GraficoCurvas(Q(grupo.titulo), Q(grupo.variable), hoja);
  const auto pintar = [this, grafico, nombre = grupo.nombre, familia] {
    grafico->Poner(LineasDeGrupo(nombre, familia, bloque_.curvas));
  };
  pintar();
  columna->addWidget(grafico, 1);
  connect(tabla, &QTableWidget::cellChanged, this, [=, this](int f, int c) {
    LeerCelda(tabla, grupo, f, c);
    pintar();
    PonerPotenciaReal();
  });
  return hoja;
}

void TbdEquipos::LlenarTabla(QTableWidget* tabla, const GrupoCurvas& grupo) {
  const QSignalBlocker callada(tabla);
  const auto celda = [tabla](int f, int c, const QString& texto) {
    auto* nueva = new QTableWidgetItem(texto);
    nueva->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    tabla->setItem(f, c, nueva);
    return nueva;
  };
  for (int f = 0; f < tabla->rowCount(); ++f)
    for (int c = 0; c < tabla->columnCount(); ++c) {
      const auto fila = static_cast<std::size_t>(f), columna = static_cast<std::size_t>(c);
      if (fila < grupo.filas.size())
        celda(f, c, Q(General(grupo.filas[fila].valores(bloque_.curvas)[columna])));
      else if (c == 0)
        celda(f, c, Q(General(bloque_.curvas.TeCambio)));
      else
        celda(f, c, {})->setFlags(Qt::NoItemFlags);
    }
}

void TbdEquipos::LeerCelda(QTableWidget* tabla, const GrupoCurvas& grupo, int fila, int columna) {
  const auto f = static_cast<std::size_t>(fila), c = static_cast<std::size_t>(columna);
  RegistroMensajes avisos;
  const float leido = ComprobarValor(S(tabla->item(fila, columna)->text()), kCualquiera, avisos);
  float& valor =
      f < grupo.filas.size() ? grupo.filas[f].valores(bloque_.curvas)[c] : bloque_.curvas.TeCambio;
  // Lo que no es un número deja el que había.
  if (avisos.recibidos.empty()) valor = leido;
  aviso_->setText(avisos.recibidos.empty() ? QString() : Q(avisos.recibidos[0].texto));
  const QSignalBlocker callada(tabla);
  tabla->item(fila, columna)->setText(Q(General(valor)));
}

QWidget* TbdEquipos::CajaCondiciones() {
  auto* hoja = new QWidget(this);
  auto* columna = new QVBoxLayout(hoja);
  columna->addWidget(Nota(tr("La potencia sensible real en otras condiciones, por el método de la "
                             "batería desde 27 ºC, 19 ºC, 35 ºC y 101325 Pa."),
                          "nota", hoja));
  auto* formulario = new QFormLayout;
  const std::array<std::pair<QString, const char*>, 3> campos = {
      {{tr("Temperatura interior, ºC"), "27"},
       {tr("Bulbo húmedo interior, ºC"), "19"},
       {tr("Temperatura exterior, ºC"), "35"}}};
  for (std::size_t i = 0; i < campos.size(); ++i) {
    condiciones_[i] = new QLineEdit(campos[i].second, hoja);
    condiciones_[i]->setObjectName(QString("condicion%1").arg(i));
    condiciones_[i]->setMaximumWidth(90);
    condiciones_[i]->setAlignment(Qt::AlignRight);
    formulario->addRow(campos[i].first, condiciones_[i]);
    connect(condiciones_[i], &QLineEdit::editingFinished, this, &TbdEquipos::PonerPotenciaReal);
  }
  columna->addLayout(formulario);
  potencia_ = new QLabel(hoja);
  potencia_->setObjectName("potencia");
  columna->addWidget(potencia_);
  auto* seccion = Nota(tr("Resultados intermedios"), "seccion", hoja);
  columna->addWidget(seccion);
  intermedios_ = new QLabel(hoja);
  intermedios_->setObjectName("intermedios");
  columna->addWidget(intermedios_);
  columna->addStretch(1);
  PonerPotenciaReal();
  return hoja;
}

void TbdEquipos::PonerPotenciaReal() {
  if (potencia_ == nullptr) return;
  RegistroMensajes avisos;
  std::array<float, 3> t{};
  for (std::size_t i = 0; i < t.size(); ++i)
    t[i] = ComprobarValor(S(condiciones_[i]->text()), kCualquiera, avisos);
  if (!avisos.recibidos.empty()) {
    aviso_->setText(Q(avisos.recibidos[0].texto));
    return;
  }
  const PotenciaReal r =
      PotenciaEnCondiciones(bloque_.QFrioTot1, bloque_.QFrioSen1, bloque_.curvas, t[0], t[1], t[2]);
  potencia_->setText(tr("Potencia total %1 kW · potencia sensible %2 kW")
                         .arg(Cifra(r.total, 2), Cifra(r.sensible, 2)));
  intermedios_->setText(
      tr("Tadp(ºC) %1\nParte sensible nominal %2\nPotencia total entre la nominal "
         "%3\nParte sensible %4")
          .arg(Cifra(r.tadp, 2), Cifra(r.razonNominal, 3), Cifra(r.cocienteTotal, 3),
               Cifra(r.razon, 3)));
}

void TbdEquipos::Aceptar() {
  const auto lugar = LugarDeBloque(contexto_.Caso(), numero_);
  if (lugar)
    contexto_.Editar(tr("Curvas del equipo"), [&](Edificio& e) {
      PonerCurvas(bloque_.curvas, e.GetSistema(lugar->sistema).instalaciones[lugar->bloque]);
    });
  accept();
}

}  // namespace novex::gui
