#include "shell/gui/TFDefinicion.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include "entry/CosteMejora.h"
#include "shell/gui/EditorMemo.h"
#include "shell/gui/Filas.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

// Memos del caso por su posición.
constexpr std::size_t kMemoPrincipal = 0;
constexpr std::size_t kMemoFinal = 7;

// Un campo lógico, como lo escribe el fichero.
constexpr const char* kSi = "Si";
constexpr const char* kNo = "No";

void Marcar(QButtonGroup* grupo, int posicion) {
  QAbstractButton* elegido = grupo->button(posicion);
  grupo->setExclusive(false);
  for (QAbstractButton* boton : grupo->buttons()) boton->setChecked(boton == elegido);
  grupo->setExclusive(true);
}

}  // namespace

TFDefinicion::TFDefinicion(ContextoGui& contexto, QWidget* padre)
    : Pagina(contexto, padre), visitas_(contexto, enlaces_, this) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* visor = new QScrollArea(this);
  visor->setWidgetResizable(true);
  visor->setFrameShape(QFrame::NoFrame);
  columna->addWidget(visor);
  auto* hoja = new QWidget(visor);
  auto* partes = new QVBoxLayout(hoja);
  partes->setContentsMargins(20, 8, 20, 16);
  base_ = ParteBase();
  mejora_ = ParteMejora();
  partes->addWidget(base_);
  partes->addWidget(mejora_);
  partes->addStretch(1);
  visor->setWidget(hoja);
}

EditorMemo* TFDefinicion::NuevoMemo(std::size_t cual, const QString& nombre, const char* objeto,
                                    QWidget* padre) {
  auto* memo = new EditorMemo(contexto_, cual, nombre, padre);
  memo->setObjectName(objeto);
  memos_.push_back(memo);
  return memo;
}

QWidget* TFDefinicion::ParteBase() {
  auto* cajas = new DosColumnas(this);
  cajas->AnadirIzquierda(CajaRecomendaciones());
  cajas->AnadirIzquierda(visitas_.Intervenciones());
  cajas->AnadirDerecha(visitas_.Visitas());
  cajas->AnadirDerecha(visitas_.Observaciones());
  return cajas;
}

QWidget* TFDefinicion::CajaRecomendaciones() {
  recomendaciones_ = new QGroupBox(this);
  auto* columna = new QVBoxLayout(recomendaciones_);
  PonerMargenes(recomendaciones_);
  columna->addWidget(NuevoMemo(kMemoPrincipal, tr("Recomendaciones de uso"), "MemoRecomendaciones",
                               recomendaciones_));
  secuencia_ = new QWidget(recomendaciones_);
  auto* debajo = new QVBoxLayout(secuencia_);
  debajo->setContentsMargins(0, 0, 0, 0);
  auto* rotulo = new QLabel(tr("Justificación de la secuencia"), secuencia_);
  rotulo->setProperty("papel", "seccion");
  debajo->addWidget(rotulo);
  debajo->addWidget(
      NuevoMemo(kMemoFinal, tr("Justificación de la secuencia"), "MemoSecuencia", secuencia_));
  columna->addWidget(secuencia_);
  return recomendaciones_;
}

QWidget* TFDefinicion::ParteMejora() {
  auto* cajas = new DosColumnas(this);
  cajas->AnadirIzquierda(CajaDescripcion());
  cajas->AnadirDerecha(
      CajaOpciones(coste_, kTituloCoste, kCostesMejora,
                   [](Edificio& e, int posicion) { PonerCosteMejora(e, posicion); }));
  cajas->AnadirDerecha(
      CajaOpciones(plazo_, kTituloPlazo, kPlazosMejora,
                   [](Edificio& e, int posicion) { PonerPlazoMejora(e, posicion); }));
  enlaces_.Propio("Coste", coste_->button(0), tr("Sale en el certificado, sin IVA"));
  enlaces_.Propio("PlazoAmortizacion", plazo_->button(0), tr("En años; sale en el certificado"));
  cajas->AnadirDerecha(CajaCondiciones());
  return cajas;
}

QWidget* TFDefinicion::CajaDescripcion() {
  const auto [caja, filas] = NuevaCaja(tr("Descripción mejora /Otros datos"), this);
  OpcionesCampo nombre = OpcionesSinCalculo(tr("Nombre de la mejora"));
  nombre.leer = [](const Edificio& e) { return std::string(NombreMejora(e.GetDatosGenerales())); };
  nombre.poner = [](Edificio& e, std::string_view texto, Mensajes&) {
    PonerNombreMejora(e, texto);
  };
  Ensanchar(enlaces_.Linea(filas, "MedidaMejora", nombre));
  const auto memo = [&, suyas = filas, padre = caja](std::size_t cual, const QString& titulo,
                                                     const char* objeto) {
    auto* rotulo = new QLabel(titulo, padre);
    rotulo->setProperty("papel", "seccion");
    suyas->addRow(rotulo);
    suyas->addRow(NuevoMemo(cual, titulo, objeto, padre));
  };
  memo(kMemoPrincipal, tr("Descripción"), "MemoDescripcion");
  memo(kMemoFinal, tr("Otros datos"), "MemoOtrosDatos");
  return caja;
}

QWidget* TFDefinicion::CajaOpciones(QButtonGroup*& grupo, std::string_view titulo,
                                    std::span<const std::string_view> textos, PonerPosicion poner) {
  auto* caja = new QGroupBox(Q(titulo), this);
  auto* rejilla = new QGridLayout(caja);
  PonerMargenes(caja);
  grupo = new QButtonGroup(caja);
  constexpr int kColumnas = 4;
  for (std::size_t i = 0; i < textos.size(); ++i) {
    const int posicion = static_cast<int>(i);
    auto* opcion = new QRadioButton(Q(textos[i]), caja);
    grupo->addButton(opcion, posicion);
    rejilla->addWidget(opcion, posicion / kColumnas, posicion % kColumnas);
  }
  connect(grupo, &QButtonGroup::idClicked, this, [this, titulo, poner](int posicion) {
    contexto_.Editar(
        Q(titulo), [&](Edificio& e) { poner(e, posicion); }, false);
  });
  return caja;
}

QWidget* TFDefinicion::CajaCondiciones() {
  constexpr std::array<const char*, 9> kCampos = {"CBConfort",    "CBIluminacion",   "CBMovilidad",
                                                  "CBSeguridad",  "CBAccesibilidad", "CBIncendios",
                                                  "CBSalubridad", "CBRuido",         "CBOtros"};
  auto* caja = new QGroupBox(Q(kTituloCondiciones), this);
  auto* rejilla = new QGridLayout(caja);
  PonerMargenes(caja);
  for (std::size_t i = 0; i < kCondicionesMejora.size(); ++i) {
    OpcionesCampo condicion = OpcionesSinCalculo(Q(kCondicionesMejora[i].texto));
    condicion.poner = [i](Edificio& e, std::string_view texto, Mensajes&) {
      PonerCondicionMejora(e, i, texto == kSi);
    };
    enlaces_.Casilla(CeldaFormulario(rejilla, i, 2), kCampos[i], condicion, kSi, kNo);
  }
  return caja;
}

void TFDefinicion::Refrescar() {
  Pagina::Refrescar();
  const DatosGenerales& g = contexto_.Caso().GetDatosGenerales();
  const GestorEdifActivo& gestor = contexto_.Sesion().Gestor();
  const bool base = gestor.EsCasoActivo(caso::kViejo);
  const bool conMejoras = gestor.NumeroCasos() > 1;
  base_->setVisible(base);
  mejora_->setVisible(!base);
  recomendaciones_->setTitle(conMejoras ? tr("Recomendaciones Uso /Justificación secuencia")
                                        : tr("Recomendaciones Uso"));
  secuencia_->setVisible(conMejoras);
  visitas_.Refrescar();
  Marcar(coste_, g.Coste);
  Marcar(plazo_, g.PlazoAmortizacion);
  for (EditorMemo* memo : memos_) memo->Refrescar();
}

}  // namespace novex::gui
