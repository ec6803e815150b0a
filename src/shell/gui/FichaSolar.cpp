#include "shell/gui/FichaSolar.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "entry/CamposSistema.h"
#include "entry/Glicol.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

struct CampoSolar {
  const char *etiqueta, *rotulo, *unidad, *ayuda;
};
constexpr CampoSolar kCaptadores[] = {
    {"N_colec_term", "Número de captadores", "", "Iguales"},
    {"Sup_colec_term", "Superficie de uno", "m²", "De apertura"},
    {"Incli_colec_term", "Inclinación", "°", "0 horizontal, 90 vertical"},
    {"Azimut_colec_term", "Azimut", "°", "0 al sur, positivo al oeste"},
    {"AA_colec_term", "Rendimiento óptico a0", "", "De la curva del captador (UNE-EN ISO 9806)"},
    {"BB_colec_term", "Pérdidas a1", "W/m²K", "Lineales, de la curva del captador"},
    {"CC_colec_term", "Pérdidas a2", "W/m²K²", "Cuadráticas, de la curva del captador"},
    {"Aporte_solar_tanto_por_cien", "Aporte previsto", "%",
     "Del proyecto. La simulación calcula el suyo"}};
constexpr CampoSolar kDeposito[] = {
    {"Volumen_Dep_ST", "Volumen", "l", "Del depósito solar"},
    {"UA_Dep_ST", "Pérdidas", "W/°C", "Coeficiente global de su envolvente"},
    {"LD_Dep_ST", "Altura entre diámetro", "", "Los altos estratifican mejor"},
    {"Area_Serp_ST", "Serpentín", "m²", "Superficie de intercambio, si se carga por él"},
    {"Efi_Inter_ST", "Eficiencia del intercambiador", "%", "Si se carga por uno exterior"}};
constexpr CampoSolar kBombas[] = {
    {"Caudal_Col_ST", "Captadores, caudal", "l/h", "Del circuito de los captadores"},
    {"PerdP_Col_ST", "Captadores, altura", "m.c.a.", "De su bomba"},
    {"Caudal_Dep_ST", "Depósito, caudal", "l/h", "Entre el intercambiador y el depósito solar"},
    {"PerdP_Dep_ST", "Depósito, altura", "m.c.a.", "De su bomba"},
    {"Caudal_Rec_ST", "Recirculación, caudal", "l/h", "Entre el depósito solar y el de consumo"},
    {"PerdP_Rec_ST", "Recirculación, altura", "m.c.a.", "De su bomba"},
    {"Control_Tmin_ST", "Salto mínimo", "°C", "Por debajo, la bomba de los captadores para"}};
constexpr CampoSolar kTuberias[] = {
    {"Long_Tub_ST", "Longitud", "m", "De los captadores, ida y vuelta"},
    {"PerdCalor_Tub_ST", "Pérdida", "W/m°C", "Por metro y grado"}};

}  // namespace

FichaSolar::FichaSolar(ContextoGui& contexto, QWidget* padre) : Pagina(contexto, padre) {
  auto* columna = new QVBoxLayout(this);
  columna->setContentsMargins(12, 4, 12, 8);
  auto* titulo = new QLabel(tr("Solar térmica"), this);
  titulo->setProperty("papel", "titulo");
  columna->addWidget(titulo);
  nota_ = new QLabel(this);
  nota_->setWordWrap(true);
  columna->addWidget(nota_);
  auto* fila = new QHBoxLayout;
  fila->setSpacing(24);
  const auto formulario = [&] {
    auto* nuevo = new QFormLayout;
    nuevo->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    nuevo->setVerticalSpacing(4);
    fila->addLayout(nuevo, 1);
    return nuevo;
  };
  const auto grupo = [&](QFormLayout* donde, const QString& nombre,
                         std::span<const CampoSolar> campos) {
    auto* seccion = new QLabel(nombre, this);
    seccion->setProperty("papel", "seccion");
    donde->addRow(seccion);
    for (const CampoSolar& c : campos)
      enlaces_.Linea(donde, c.etiqueta, {tr(c.rotulo), Q(c.unidad), tr(c.ayuda), {}, {}});
  };
  QFormLayout* izquierda = formulario();
  grupo(izquierda, tr("Captadores"), kCaptadores);
  grupo(izquierda, tr("Tuberías"), kTuberias);
  QFormLayout* derecha = formulario();
  grupo(derecha, tr("Depósito solar"), kDeposito);
  grupo(derecha, tr("Bombas"), kBombas);
  columna->addLayout(fila);
  columna->addWidget(CajaFluido());
  columna->addStretch(1);
}

QWidget* FichaSolar::CajaFluido() {
  auto* caja = new QWidget(this);
  caja->setObjectName("RBGlicol");
  auto* columna = new QVBoxLayout(caja);
  columna->setContentsMargins(0, 0, 0, 0);
  auto* seccion = new QLabel(tr("Anticongelante"), caja);
  seccion->setProperty("papel", "seccion");
  columna->addWidget(seccion);
  auto* fila = new QHBoxLayout;
  glicol_ = new QButtonGroup(this);
  for (int i = 0; i < kPosicionesGlicol; ++i) {
    const auto fluido = FluidoDePosicion(i);
    auto* boton =
        new QRadioButton(i == 0 ? tr("Agua") : tr("Glicol %1").arg(Q(fluido->texto)), caja);
    glicol_->addButton(boton, i);
    fila->addWidget(boton);
  }
  fila->addStretch(1);
  columna->addLayout(fila);
  fluido_ = new QLabel(caja);
  fluido_->setObjectName("fluido");
  columna->addWidget(fluido_);
  auto* nota =
      new QLabel(tr("Solo informa: la simulación toma agua en todos los circuitos."), caja);
  nota->setProperty("papel", "nota");
  columna->addWidget(nota);
  glicol_->button(0)->setChecked(true);
  connect(glicol_, &QButtonGroup::idClicked, this, &FichaSolar::PonerFluido);
  PonerFluido();
  return caja;
}

void FichaSolar::PonerFluido() {
  const auto f = FluidoDePosicion(glicol_->checkedId());
  if (!f) return;
  QString texto =
      tr("Calor específico %1 J/kgK · densidad %2 kg/m³").arg(Q(f->textoCp), Q(f->textoDensidad));
  if (f->congelacion) texto += tr(" · congela a %1 °C").arg(Q(Fijo(*f->congelacion, 1)));
  fluido_->setText(texto);
}

void FichaSolar::Refrescar() {
  const bool hay = HayArregloSolar(contexto_.Caso());
  nota_->setProperty("papel", hay ? "nota" : "aviso");
  nota_->setText(hay ? tr("La comparten los sistemas de agua caliente cuya alimentación es solar.")
                     : tr("Ningún sistema la usa: elija una alimentación solar en el sistema de "
                          "agua caliente que la lleve."));
  nota_->setStyle(style());
  Pagina::Refrescar();
}

}  // namespace novex::gui
