#include "shell/gui/PaginaPuentes.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QHideEvent>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "demand/PuentesTermicos.h"
#include "reference/LongitudesPuentes.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

using Pantalla = novex::PaginaPuentes;

constexpr std::array<const char*, 3> kOrigenes = {
    "Puentes térmicos del edificio - características constructivas",
    "Puentes térmicos del edificio - fijar valores",
    "Puentes térmicos del edificio - valores por defecto de LIDER"};
constexpr std::array<const char*, 3> kBotones = {"RBPuentesTipicos", "RBPuentesEspeciales",
                                                 "RBPuentesLider"};
constexpr std::array<const char*, 2> kModos = {"Estimados", "Facilitados"};

// Un puente en la página, en el orden en que se enseña. El pilar tiene una longitud por sector.
struct FilaPuente {
  Puente puente;
  const char* nombre;
  const char* etiqueta;  // final de las etiquetas de sus valores
  const char* campoLongitud;
  float Construccion::*longitud;
};
constexpr std::array<FilaPuente, kPuentes> kFilas = {
    {{puente_forjados, "Frente de forjado", "forjados", "Perimetro_forjados",
      &Construccion::Perimetro_forjados},
     {puente_cubiertas, "Encuentro con cubierta", "cubiertas", "Perimetro_cubiertas",
      &Construccion::Perimetro_cubiertas},
     {puente_suelo_exterior, "Suelo al exterior", "suelo_exterior", "Perimetro_suelo_ext",
      &Construccion::Perimetro_suelo_ext},
     {puente_suelo_terreno, "Suelo al terreno", "suelo_terreno", "Perimetro_suelo_terreno",
      &Construccion::Perimetro_suelo_terreno},
     {puente_esquina_saliente, "Esquina saliente", "esquina_saliente",
      "Longitud_esquinas_sal_menos_ent", &Construccion::Longitud_esquinas_sal_menos_ent},
     {puente_ventanas, "Contorno de huecos", "ventanas", "Perimetro_huecos",
      &Construccion::Perimetro_huecos},
     {puente_pilares, "Pilares", "pilares", nullptr, nullptr}}};

struct SectorPilares {
  const char* rotulo;
  const char* campo;
  Sector sector;
};
constexpr std::array<SectorPilares, kSectores> kSectoresPilares = {
    {{"N", "Long_pilares_Norte", norte},
     {"O", "Long_pilares_Oeste", oeste},
     {"SO", "Long_pilares_SurOeste", sur_oeste},
     {"S", "Long_pilares_Sur", sur},
     {"SE", "Long_pilares_SurEste", sur_este},
     {"E", "Long_pilares_Este", este}}};

std::string Metros(float longitud) {
  return Fijo(static_cast<double>(longitud), 2);
}

QLabel* Rotulo(const QString& texto, const char* papel) {
  auto* rotulo = new QLabel(texto);
  rotulo->setProperty("papel", papel);
  return rotulo;
}

}  // namespace

PaginaPuentes::PaginaPuentes(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  avisos_ = new QLabel(this);
  avisos_->setProperty("papel", "aviso");
  avisos_->setWordWrap(true);
  avisos_->hide();
  auto* fila = new QHBoxLayout(this);
  fila->setContentsMargins(12, 8, 12, 6);
  fila->setSpacing(20);
  auto* izquierda = new QVBoxLayout;
  izquierda->addWidget(Rotulo(tr("Puentes Térmicos"), "titulo"));
  izquierda->addWidget(Origen());
  izquierda->addWidget(Medidas());
  izquierda->addStretch(1);
  fila->addLayout(izquierda, 0);
  auto* derecha = new QVBoxLayout;
  derecha->addWidget(Valores());
  derecha->addWidget(Pilares());
  derecha->addLayout(ModoLongitudes());
  derecha->addWidget(avisos_);
  derecha->addStretch(1);
  fila->addLayout(derecha, 1);
}

QComboBox* PaginaPuentes::ListaDe(const QStringList& textos, const char* nombre,
                                  int Pantalla::*dato) {
  auto* lista = new QComboBox(this);
  lista->setObjectName(nombre);
  lista->addItems(textos);
  lista->setFocusPolicy(Qt::StrongFocus);
  connect(lista, &QComboBox::activated, this, [this, dato](int cual) {
    Cambiar(tr("Puentes térmicos"), [&](Pantalla& p) { p.*dato = cual; });
  });
  listas_.emplace_back(lista, dato);
  return lista;
}

QWidget* PaginaPuentes::Origen() {
  auto* caja = new QWidget(this);
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 6, 0, 0);
  origen_ = new QButtonGroup(this);
  tipicos_ = new QWidget(caja);
  auto* soluciones = new QFormLayout(tipicos_);
  soluciones->setContentsMargins(22, 0, 0, 6);
  forjados_ = ListaDe(
      {"Frente de forjado no aislado", "Frente de forjado aislado", "Aislamiento contínuo "},
      "RGForjados", &Pantalla::forjados);
  pilares_ = ListaDe({"Pilar no aislado", "Pilar aislado por el exterior",
                      "Pilar aislado por el interior", "Sin pilares"},
                     "RGPuentesPilar", &Pantalla::pilares);
  ventanas_ = ListaDe(
      {"Sin aislamiento", "Aislamiento en contacto marco", "Aislamiento sin contacto marco"},
      "RGPuentesVentanas", &Pantalla::ventanas);
  soluciones->addRow(tr("Forjados"), forjados_);
  soluciones->addRow(tr("Pilares"), pilares_);
  soluciones->addRow(tr("Huecos"), ventanas_);
  existenciaFila_ = new QWidget(caja);
  auto* existencia = new QFormLayout(existenciaFila_);
  existencia->setContentsMargins(22, 0, 0, 6);
  existencia_ = ListaDe({tr("Con pilares"), tr("Sin pilares")}, "RGPuentesExistenciaPilares",
                        &Pantalla::existenciaPilares);
  existencia->addRow(tr("Pilares"), existencia_);
  for (std::size_t i = 0; i < kOrigenes.size(); ++i) {
    auto* boton = new QRadioButton(kOrigenes[i], caja);
    boton->setObjectName(kBotones[i]);
    origen_->addButton(boton, static_cast<int>(i));
    columna->addWidget(boton);
    if (i == 0) columna->addWidget(tipicos_);
  }
  columna->addWidget(existenciaFila_);
  enlaces_.Propio("Def_Puentes_termicos", origen_->button(0),
                  tr("Los valores salen de las soluciones de cada encuentro (DA DB-HE/3)"));
  enlaces_.Propio("Def_Puentes_termicos_pilares", pilares_, tr("Solución de los pilares"));
  enlaces_.Propio("Def_Puentes_termicos_ventanas", ventanas_,
                  tr("Solución del contorno de los huecos"));
  enlaces_.Propio("Existencia_pilares", existencia_, tr("Sin pilares su puente no cuenta"));
  connect(origen_, &QButtonGroup::idClicked, this, [this](int cual) {
    Cambiar(tr("Origen de los puentes térmicos"),
            [&](Pantalla& p) { p.origen = static_cast<OrigenPuentes>(cual); });
  });
  return caja;
}

QWidget* PaginaPuentes::Medidas() {
  auto* caja = new QWidget(this);
  auto* formulario = new QFormLayout(caja);
  formulario->setContentsMargins(0, 10, 0, 0);
  OpcionesCampo forjado, pilar, higrometria;
  forjado.rotulo = tr("Espesor del forjado");
  pilar.rotulo = tr("Anchura del pilar");
  higrometria.rotulo = tr("Clase de higrometría");
  higrometria.ayuda = tr("Humedad interior de la comprobación de condensaciones (DA DB-HE/2)");
  enlaces_.Linea(formulario, "Espesor_forjado", forjado);
  enlaces_.Linea(formulario, "Anchura_pilar", pilar);
  enlaces_.Lista(formulario, "Clase_de_higrometria", {"0", "1", "2"}, higrometria,
                 {"3 o inferior (55 %)", "4 (62 %)", "5 (70 %)"});
  return caja;
}

QWidget* PaginaPuentes::Valores() {
  auto* caja = new QWidget(this);
  auto* rejilla = new QGridLayout(caja);
  rejilla->setContentsMargins(0, 0, 0, 0);
  rejilla->setVerticalSpacing(3);
  rejilla->setHorizontalSpacing(12);
  const QStringList cabeceras = {"", "", "ψ (W/mK)", "f", "L (m)", "ψ·L (W/K)"};
  for (int c = 0; c < cabeceras.size(); ++c) {
    auto* rotulo = Rotulo(cabeceras[c], "nota");
    rotulo->setAlignment(Qt::AlignRight);
    rejilla->addWidget(rotulo, 0, c);
  }
  for (std::size_t i = 0; i < kFilas.size(); ++i) {
    const FilaPuente& f = kFilas[i];
    const int r = static_cast<int>(i) + 1;
    Fila& fila = filas_[i];
    fila.dibujo = new DibujoPuente(f.puente, caja);
    rejilla->addWidget(fila.dibujo, r, 0);
    rejilla->addWidget(new QLabel(tr(f.nombre), caja), r, 1);
    OpcionesCampo U, fi, L;
    U.rotulo = tr(f.nombre) + ", ψ";
    U.ayuda = tr("Transmitancia térmica lineal (CTE DA DB-HE/3, UNE-EN ISO 14683)");
    fi.rotulo = tr(f.nombre) + ", f";
    fi.ayuda = tr("Factor de temperatura de la superficie interior (UNE-EN ISO 10211)");
    fila.U = enlaces_.Celda(std::string("U_L_Puentes_") + f.etiqueta, U, avisos_);
    fila.fi = enlaces_.Celda(std::string("fi_Puentes_") + f.etiqueta, fi, avisos_);
    rejilla->addWidget(fila.U, r, 2);
    rejilla->addWidget(fila.fi, r, 3);
    if (f.longitud != nullptr) {
      L.rotulo = tr(f.nombre) + ", " + tr("longitud");
      L.leer = [longitud = f.longitud](const Edificio& e) {
        return Metros(LongitudesEstimadas(e).*longitud);
      };
      longitudes_.push_back(enlaces_.Celda(f.campoLongitud, L, avisos_));
      rejilla->addWidget(longitudes_.back(), r, 4);
    } else {
      totalPilares_ = new QLabel(caja);
      totalPilares_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
      rejilla->addWidget(totalPilares_, r, 4);
    }
    fila.producto = new QLabel(caja);
    fila.producto->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rejilla->addWidget(fila.producto, r, 5);
  }
  total_ = new QLabel(caja);
  total_->setObjectName("totalPuentes");
  total_->setAlignment(Qt::AlignRight);
  rejilla->addWidget(total_, static_cast<int>(kFilas.size()) + 1, 2, 1, 4);
  rejilla->setColumnStretch(6, 1);
  return caja;
}

QWidget* PaginaPuentes::Pilares() {
  auto* caja = new QWidget(this);
  auto* rejilla = new QGridLayout(caja);
  rejilla->setContentsMargins(0, 6, 0, 0);
  rejilla->addWidget(new QLabel(tr("Pilares por orientación (m)"), caja), 1, 0);
  for (std::size_t s = 0; s < kSectores; ++s) {
    const SectorPilares& p = kSectoresPilares[s];
    auto* rotulo = Rotulo(p.rotulo, "nota");
    rotulo->setAlignment(Qt::AlignCenter);
    const int c = static_cast<int>(s) + 1;
    rejilla->addWidget(rotulo, 0, c);
    OpcionesCampo L;
    L.rotulo = tr("Pilares") + " " + p.rotulo;
    L.leer = [sector = p.sector](const Edificio& e) {
      return Metros(LongitudesEstimadas(e).Long_pilares[sector]);
    };
    longitudes_.push_back(enlaces_.Celda(p.campo, L, avisos_));
    longitudes_.back()->setMaximumWidth(64);
    rejilla->addWidget(longitudes_.back(), 1, c);
  }
  rejilla->setColumnStretch(static_cast<int>(kSectores) + 1, 1);
  return caja;
}

QLayout* PaginaPuentes::ModoLongitudes() {
  auto* fila = new QHBoxLayout;
  fila->addWidget(new QLabel(tr("Longitudes"), this));
  modo_ = new QButtonGroup(this);
  for (std::size_t i = 0; i < kModos.size(); ++i) {
    auto* boton = new QRadioButton(kModos[i], this);
    boton->setObjectName(kModos[i]);
    modo_->addButton(boton, static_cast<int>(i));
    fila->addWidget(boton);
  }
  modo_->button(0)->setToolTip(tr("Salen de las áreas de la envolvente y la siguen"));
  enlaces_.Propio("Longitud_puentes_termicos_modo", modo_->button(0),
                  tr("Salen de las áreas de la envolvente y la siguen"));
  modo_->button(1)->setToolTip(tr("Se escriben; empiezan por las estimadas"));
  connect(modo_, &QButtonGroup::idClicked, this, [this](int cual) {
    contexto_.Editar(tr("Longitudes de los puentes"), [&](Edificio& e) {
      Construccion c = LongitudesEstimadas(e);
      c.Longitud_puentes_termicos_modo = kModos[static_cast<std::size_t>(cual)];
      e.SetConstruccion(std::move(c));
      e.SetConstruccion(LongitudesEstimadas(e));
    });
  });
  estimar_ = new QPushButton(tr("Estimar de nuevo"), this);
  estimar_->setObjectName("estimar");
  estimar_->setToolTip(tr("Pone otra vez las longitudes que salen de las áreas"));
  connect(estimar_, &QPushButton::clicked, this, [this] {
    contexto_.Editar(tr("Estimar las longitudes"), [](Edificio& e) {
      Construccion c = e.GetConstruccion();
      const std::string modo = c.Longitud_puentes_termicos_modo;
      c.Longitud_puentes_termicos_modo = kModos[0];
      e.SetConstruccion(c);
      c = LongitudesEstimadas(e);
      c.Longitud_puentes_termicos_modo = modo;
      e.SetConstruccion(std::move(c));
    });
  });
  fila->addWidget(estimar_);
  fila->addStretch(1);
  return fila;
}

void PaginaPuentes::Cambiar(const QString& que, const std::function<void(Pantalla&)>& cambio) {
  RegistroMensajes mensajes;
  contexto_.Editar(que, [&](Edificio& e) {
    Pantalla pantalla = PaginaDePuentes(e.GetConstruccion());
    cambio(pantalla);
    AceptarPaginaPuentes(e, pantalla, mensajes);
  });
  avisos_->setVisible(!mensajes.recibidos.empty());
  if (!mensajes.recibidos.empty()) avisos_->setText(Q(mensajes.recibidos[0].texto));
  Refrescar();
}

void PaginaPuentes::Refrescar() {
  Pagina::Refrescar();
  const Construccion c = LongitudesEstimadas(contexto_.Caso());
  const Pantalla pantalla = PaginaDePuentes(c);
  const bool dados = pantalla.origen == OrigenPuentes::Especiales;
  const bool tipicos = pantalla.origen == OrigenPuentes::Tipicos;
  const bool facilitados = c.Longitud_puentes_termicos_modo == kModos[1];
  origen_->button(static_cast<int>(pantalla.origen))->setChecked(true);
  modo_->button(facilitados ? 1 : 0)->setChecked(true);
  for (const auto& [lista, dato] : listas_) {
    const QSignalBlocker callada(lista);
    lista->setCurrentIndex(pantalla.*dato);
  }
  tipicos_->setVisible(tipicos);
  existenciaFila_->setVisible(!tipicos);
  pilares_->setEnabled(pantalla.forjados != 2);
  ventanas_->setEnabled(pantalla.forjados != 2);
  for (QLineEdit* casilla : longitudes_) casilla->setEnabled(facilitados);
  estimar_->setEnabled(facilitados);
  const float pilares = LongitudPilares(c);
  totalPilares_->setText(Q(Metros(pilares)));
  double total = 0;
  for (std::size_t i = 0; i < kFilas.size(); ++i) {
    const FilaPuente& f = kFilas[i];
    filas_[i].U->setEnabled(dados);
    filas_[i].fi->setEnabled(dados);
    const float longitud = f.longitud == nullptr ? pilares : c.*f.longitud;
    const double perdida =
        static_cast<double>(c.U_L_Puentes[f.puente]) * static_cast<double>(longitud);
    total += perdida;
    filas_[i].producto->setText(Q(Fijo(perdida, 1)));
    filas_[i].dibujo->Poner(AislamientoDe(c, f.puente));
  }
  total_->setText(tr("Total <b>%1</b> W/K").arg(Q(Fijo(total, 1))));
}

void PaginaPuentes::hideEvent(QHideEvent* evento) {
  Pagina::hideEvent(evento);
  // Al cerrarse la ventana no queda nada por poner: se estiman otra vez al leer.
  if (evento->spontaneous() || !window()->isVisible()) return;
  contexto_.Editar(tr("Longitudes estimadas"),
                   [](Edificio& e) { e.SetConstruccion(LongitudesEstimadas(e)); });
}

}  // namespace novex::gui
