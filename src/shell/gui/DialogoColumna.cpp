#include "shell/gui/DialogoColumna.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

#include "base/NumeroTexto.h"
#include "demand/Sombras.h"
#include "entry/GruposHuecos.h"
#include "shell/gui/CajaTitulo.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr std::array<const char*, 12> kMeses = {"ene", "feb", "mar", "abr", "may", "jun",
                                                "jul", "ago", "sep", "oct", "nov", "dic"};

}  // namespace

QString NombreDeSector(std::size_t sector) {
  constexpr std::array<const char*, kSectores> kNombres = {"Norte", "Oeste",   "Suroeste",
                                                           "Sur",   "Sureste", "Este"};
  return sector < kNombres.size() ? QObject::tr(kNombres[sector]) : QObject::tr("Horizontal");
}

DialogoColumna::DialogoColumna(ContextoGui& contexto, std::size_t grupo, Sector columna,
                               QWidget* padre)
    : QDialog(padre),
      contexto_(contexto),
      enlaces_(contexto, this),
      grupo_(grupo),
      columna_(columna) {
  const Huecos& g = contexto.Caso().GetHuecos(grupo);
  setWindowTitle(Q(g.Nombre_hueco) + " · " + Q(RotulosColumnasHuecos(g.Tipo_de_hueco)[columna]));
  const std::string hueco = "Hueco[" + std::to_string(grupo + 1) + "]/";
  const std::string sector(kNombreSector[columna]);
  auto* filas = new QVBoxLayout(this);
  auto* formulario = new QFormLayout;
  OpcionesCampo numero;
  numero.rotulo = tr("Número de huecos");
  numero.ayuda = tr("Huecos iguales del grupo en esta orientación");
  enlaces_.Linea(formulario, hueco + "Numero_ventanas_" + sector, numero);
  OpcionesCampo separacion;
  separacion.rotulo = tr("Separación vertical");
  separacion.ayuda =
      tr("Altura entre un hueco y el de encima. Con 0 un obstáculo los tapa todos o ninguno");
  enlaces_.Linea(formulario, hueco + "Separacion_ventanas_vertical_" + sector, separacion);
  filas->addLayout(formulario);
  filas->addWidget(CajaObstaculos(hueco));
  filas->addWidget(CajaMeses());
  auto* botones = new QDialogButtonBox(this);
  botones->addButton(tr("Cerrar"), QDialogButtonBox::RejectRole)->setAutoDefault(false);
  connect(botones, &QDialogButtonBox::rejected, this, &QDialog::reject);
  filas->addWidget(botones);
  connect(&contexto_, &ContextoGui::Editado, this, &DialogoColumna::Refrescar);
  Refrescar();
}

QWidget* DialogoColumna::CajaObstaculos(const std::string& hueco) {
  auto* rejilla = new QGridLayout;
  rejilla->addWidget(new QLabel(tr("Dirección"), this), 0, 0);
  rejilla->addWidget(new QLabel(tr("Altura, m"), this), 0, 1);
  rejilla->addWidget(new QLabel(tr("Distancia, m"), this), 0, 2);
  avisos_ = new QLabel(this);
  avisos_->setProperty("papel", "aviso");
  avisos_->setWordWrap(true);
  avisos_->hide();
  const std::string ventana = hueco + "Ventana_" + std::string(kNombreSector[columna_]);
  const DireccionesObstaculo direcciones = DireccionesDeColumna(columna_);
  for (std::size_t i = 0; i < direcciones.cuantas; ++i) {
    const Sector hacia = direcciones.sector[i];
    const std::string sufijo(kNombreSector[hacia]);
    const int fila = static_cast<int>(i) + 1;
    OpcionesCampo altura, distancia;
    altura.rotulo = tr("Altura del obstáculo, %1").arg(NombreDeSector(hacia));
    altura.ayuda = tr("Sobre el borde inferior del hueco más bajo");
    distancia.rotulo = tr("Distancia al obstáculo, %1").arg(NombreDeSector(hacia));
    rejilla->addWidget(new QLabel(NombreDeSector(hacia), this), fila, 0);
    rejilla->addWidget(enlaces_.Celda(ventana + "_altura_obstaculo_" + sufijo, altura, avisos_),
                       fila, 1);
    rejilla->addWidget(
        enlaces_.Celda(ventana + "_distancia_obstaculo_" + sufijo, distancia, avisos_), fila, 2);
  }
  rejilla->addWidget(avisos_, static_cast<int>(direcciones.cuantas) + 1, 0, 1, 3);
  rejilla->setColumnStretch(3, 1);
  return CajaTitulo(this, tr("Obstáculos cercanos"), rejilla);
}

QWidget* DialogoColumna::CajaMeses() {
  auto* rejilla = new QGridLayout;
  for (std::size_t m = 0; m < meses_.size(); ++m) {
    auto* rotulo = new QLabel(tr(kMeses[m]), this);
    rotulo->setProperty("papel", "nota");
    rotulo->setAlignment(Qt::AlignCenter);
    meses_[m] = new QLabel(this);
    meses_[m]->setObjectName(QString("libre_%1").arg(m + 1));
    meses_[m]->setAlignment(Qt::AlignCenter);
    meses_[m]->setMinimumWidth(34);
    rejilla->addWidget(rotulo, 0, static_cast<int>(m));
    rejilla->addWidget(meses_[m], 1, static_cast<int>(m));
  }
  return CajaTitulo(this, tr("Huecos sin tapar por ellos, %"), rejilla);
}

void DialogoColumna::Refrescar() {
  const Edificio& e = contexto_.Caso();
  if (grupo_ >= e.NumeroHuecos()) return reject();
  enlaces_.Refrescar();
  const ColumnaHuecos& columna = e.GetHuecos(grupo_).columnas[columna_];
  const Localizacion& lugar = e.GetLocalizacion();
  for (int m = 1; m <= 12; ++m) {
    const float libre = FraccionSinObstaculos(columna, columna_, lugar.latitud, m,
                                              e.GetDatosGenerales().PerfilUso, lugar.EsVerano(m));
    meses_[static_cast<std::size_t>(m - 1)]->setText(
        columna.recintos.empty() ? QString("–") : Q(Fijo(100.0 * static_cast<double>(libre), 0)));
  }
}

}  // namespace novex::gui
