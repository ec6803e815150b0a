#include <QSignalBlocker>

#include "base/NumeroTexto.h"
#include "entry/GruposHuecos.h"
#include "model/PropiedadesHueco.h"
#include "shell/gui/FichaHueco.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

QString Cifra(float valor, int decimales = 2) {
  return Q(Fijo(static_cast<double>(valor), decimales)).replace('.', ',');
}

// La clase ya se lee encima: "Otros: Mixto" es "Mixto".
QString SinClase(const QString& nombre) {
  const QString clase = "Otros: ";
  return nombre.startsWith(clase) ? nombre.mid(clase.size()) : nombre;
}

// La fila de un editor enlazado, que va en la caja de su unidad.
void Mostrar(QFormLayout* formulario, const QWidget* editor, bool visible) {
  if (editor != nullptr) formulario->setRowVisible(editor->parentWidget(), visible);
}

bool TieneObstaculos(const ColumnaHuecos& columna) {
  for (const ObstaculoCercano& o : columna.obstaculos)
    if (o.altura > 0) return true;
  return false;
}

}  // namespace

void FichaHueco::Refrescar() {
  const Huecos& g = Hueco();
  RefrescarListas(g);
  RefrescarVidrioDeCatalogo(g);
  RefrescarUnidades(g);
  RefrescarVisibles(g);
  RefrescarCifras(g);
  seccion_->Poner(g);
}

// Los vidrios y los marcos entre los que se elige son los de la clase del grupo.
void FichaHueco::RefrescarListas(const Huecos& g) {
  const auto llenar = [](QComboBox* lista, const auto& tabla, int tipo) {
    const QSignalBlocker callado(lista);
    lista->clear();
    if (tipo < 0 || static_cast<std::size_t>(tipo) >= tabla.size()) return;
    const auto& filas = tabla[static_cast<std::size_t>(tipo)];
    for (std::size_t i = 0; i < filas.size(); ++i)
      lista->addItem(SinClase(Q(filas[i].nombre)), Q(std::to_string(i)));
  };
  if (tipoMostrado_ != g.Indice_tipo_cristal) {
    llenar(vidrioConcreto_, catalogo_.vidrios, g.Indice_tipo_cristal);
    tipoMostrado_ = g.Indice_tipo_cristal;
  }
  if (marcoMostrado_ != g.Indice_marco) {
    llenar(marcoConcreto_, catalogo_.marcos, g.Indice_marco);
    marcoMostrado_ = g.Indice_marco;
  }
  const QSignalBlocker callado(marcoConcreto_);
  marcoConcreto_->setCurrentIndex(-1);
  for (int i = 0; i < marcoConcreto_->count(); ++i) {
    const auto marco = MarcoDeCatalogo(catalogo_, g, g.Indice_marco, i);
    if (marco && marco->U == g.U_marco_W_m2K && marcoConcreto_->currentIndex() < 0)
      marcoConcreto_->setCurrentIndex(i);
  }
  marcoConcreto_->setToolTip(marcoConcreto_->currentText());
  // Con un solo marco en su clase no hay nada más que elegir.
  marco_->setRowVisible(marcoConcreto_, marcoConcreto_->count() > 1);
}

void FichaHueco::RefrescarVidrioDeCatalogo(const Huecos& g) {
  const auto vidrio =
      VidrioDeCatalogo(catalogo_, g, g.Indice_tipo_cristal, g.Indice_cristal_concreto);
  const bool distinto = vidrio && !TieneVidrio(g, *vidrio);
  vidrio_->setRowVisible(notaVidrio_, distinto);
  if (distinto)
    notaVidrio_->setText(tr("El catálogo da U %1 y factor solar %2. <a href=\"#\">Ponerlos</a>")
                             .arg(Cifra(vidrio->U), Cifra(vidrio->g)));
}

void FichaHueco::RefrescarUnidades(const Huecos& g) {
  const auto rotulos = RotulosColumnasHuecos(g.Tipo_de_hueco);
  const QString asignar = Q(TextoBotonAsignar(contexto_.Caso().GetDatosGenerales().Modo_Vision));
  for (const Columna& c : columnas_) {
    const ColumnaHuecos& columna = g.columnas[c.indice];
    c.rotulo->setText(c.indice == kColumnaHorizontal ? tr("Horizontal") : Q(rotulos[c.indice]));
    const float area = static_cast<float>(columna.recintos.size()) * g.Ancho_m * g.Alto_m;
    const bool sombra = g.Tipo_de_hueco != kLucernario && TieneObstaculos(columna);
    c.area->setText(Cifra(area) + " m²" + (sombra ? tr(" · sombra") : QString()));
    if (c.asignar == nullptr) continue;
    c.asignar->setText(asignar);
    c.asignar->setEnabled(g.Tipo_de_hueco != kLucernario);
    c.asignar->setToolTip(g.Tipo_de_hueco == kLucernario
                              ? tr("A un lucernario no le dan sombra los obstáculos cercanos")
                              : tr("Separación de los huecos en altura y obstáculos cercanos"));
  }
}

// Enseña lo que cuenta: a un lucernario no le cuentan el retranqueo ni las lamas, y sin protección
// móvil no hay control.
void FichaHueco::RefrescarVisibles(const Huecos& g) {
  const bool lucernario = g.Tipo_de_hueco == kLucernario;
  const auto editor = [this](const char* etiqueta) { return enlaces_.Editor(Direccion(etiqueta)); };
  Mostrar(medidas_, editor("Retranqueo_m"), !lucernario);
  Mostrar(medidas_, editor("Distancia_alero_m"), !lucernario);
  QWidget* alero = editor("Longitud_alero_m");
  if (auto* rotulo = qobject_cast<QLabel*>(medidas_->labelForField(alero->parentWidget())))
    rotulo->setText(lucernario ? tr("Fondo del pozo") : tr("Longitud del alero"));
  Mostrar(proteccion_, editor("Indice_tipo_sombra_fija"), !lucernario);
  const bool movil = g.Indice_tipo_sombra_movil != 0;
  Mostrar(proteccion_, editor("Indice_tipo_control_Verano"), movil);
  Mostrar(proteccion_, editor("Indice_tipo_control_Invierno"), movil);
  const bool caja = g.Existe_Caja_persiana == 0;
  for (const char* etiqueta :
       {"Tipo_de_U_Caja_persiana", "U_Caja_de_persiana_W_m2K", "Tipo_de_Vinf_Caja_persiana",
        "Vinf_Caja_de_persiana_m3_h", "Altura_Caja_de_persiana_m"})
    Mostrar(persiana_, editor(etiqueta), caja);
  persiana_->setRowVisible(notaPersiana_, caja && g.U_Caja_de_persiana_W_m2K == 0.0F);
  const bool nuevo = contexto_.Caso().GetDatosGenerales().Modo_trabajo == "Nuevo";
  editor("HuecoReh")->setVisible(!nuevo);
}

void FichaHueco::RefrescarCifras(const Huecos& g) {
  const FigurasHueco f = CalcularFigurasHueco(g);
  QString texto = tr("U del hueco <b>%1</b> W/m²K &nbsp; Factor solar <b>%2</b>")
                      .arg(Cifra(f.UHueco), Cifra(f.FactorSolar));
  // La protección móvil de un lucernario cuenta en su U, no en el sol que entra.
  if (g.Indice_tipo_sombra_movil != 0 && g.Tipo_de_hueco != kLucernario)
    texto += tr(" &nbsp; con protección <b>%1</b>").arg(Cifra(f.FactorSolarSombraActivada));
  cifras_->setText(texto);
}

}  // namespace novex::gui
