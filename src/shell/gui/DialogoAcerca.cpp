#include "shell/gui/DialogoAcerca.h"

#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "files/VersionProyecto.h"
#include "shell/gui/TextoQt.h"

namespace novex::gui {
namespace {

constexpr const char* kTexto = R"(
<h2>NOVEX 6.1</h2>
<h3 style="white-space:pre-wrap">	- Campo de aplicación de Novex 6.1</h3>
<p>Certificación de la eficiencia energética de edificios en España, verificación del DB-HE del
Código Técnico y simulación energética libre. Valen los edificios nuevos y los existentes, con sus
ampliaciones, reformas y cambios de uso:</p>
<ul>
<li>Residenciales: vivienda unifamiliar, edificio en bloque y vivienda dentro de un bloque.</li>
<li>Terciarios: de 8, 12, 16 y 24 horas de uso con carga interna baja, media o alta, y con los
horarios que ponga el usuario.</li>
<li>En las zonas climáticas de la península, Illes Balears, Canarias, Ceuta y Melilla.</li>
<li>Hasta cinco casos de mejora junto al caso base, y setenta medidas de rehabilitación
predefinidas.</li>
</ul>
<p>No vale donde el edificio no se pueda tratar como un solo espacio: con partes a temperaturas muy
distintas, con usos distintos que haya que calcular a la vez, o con soluciones que no estén entre
sus elementos y sus equipos.</p>
<h3 style="white-space:pre-wrap">	- Principios básicos de Novex </h3>
<ul>
<li><b>Simulación horaria.</b> La demanda y los equipos se simulan en las 8760 horas de un año de
clima de la zona. El agua caliente se sigue minuto a minuto.</li>
<li><b>Una sola zona térmica.</b> Del edificio se dan sumas: áreas de muros, cubiertas, suelos y
huecos por orientación, sus transmitancias y su inercia, los puentes térmicos, la ventilación y el
uso.</li>
<li><b>Equipos tomados en su conjunto.</b> De cada instalación se da su capacidad y su rendimiento
nominales; su comportamiento a carga parcial y en otras condiciones sale de curvas. Lo que los
equipos no alcanzan a dar se nota en la temperatura del edificio.</li>
<li><b>Dos pasadas.</b> La primera halla la demanda; la segunda da cada hora a las
instalaciones.</li>
<li><b>Calificación.</b> La energía final pasa a primaria y a emisiones con los factores de paso
oficiales. Una vivienda se compara con la escala de su zona; un terciario, con su edificio de
referencia.</li>
</ul>
<h3 style="white-space:pre-wrap">	- Versión</h3>
<table cellspacing="0" cellpadding="3">
<tr><td>Programa</td><td>6.1</td></tr>
<tr><td>Ficheros de proyecto que escribe</td><td>%1</td></tr>
<tr><td>Exigencias</td><td>DB-HE de 2019, con las modificaciones de 2022</td></tr>
<tr><td>Informe para la administración</td><td>Evaluación energética, esquema 2.0</td></tr>
<tr><td>Biblioteca de la ventana</td><td>Qt %2</td></tr>
</table>
)";

}  // namespace

DialogoAcerca::DialogoAcerca(QWidget* padre) : QDialog(padre) {
  setWindowTitle(tr("Acerca de NOVEX"));
  resize(680, 640);
  auto* columna = new QVBoxLayout(this);
  auto* texto = new QTextBrowser(this);
  texto->setObjectName("textoAcerca");
  texto->setHtml(QString(kTexto).arg(Q(kVersionActual), qVersion()));
  columna->addWidget(texto);
  auto* cerrar = new QPushButton(tr("Cerrar"), this);
  connect(cerrar, &QPushButton::clicked, this, &QDialog::accept);
  columna->addWidget(cerrar, 0, Qt::AlignRight);
}

}  // namespace novex::gui
