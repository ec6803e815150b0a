#include "shell/gui/DibujoSistema.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "base/NumeroTexto.h"
#include "entry/ListasSistemas.h"
#include "entry/RellenoSistema.h"
#include "shell/gui/TextoQt.h"
#include "systems/ArregloACS.h"

namespace novex::gui {
namespace {

constexpr int kColumnas = 5;
constexpr double kAltoFila = 92, kPasoMaximo = 190;
constexpr double kAnchoPieza = 108, kAltoPieza = 54, kAltoUltima = 82;  // con su rótulo
constexpr QRgb kCaliente = 0xffc8553d, kSolar = 0xffd9921a;

QString Cifra(float valor, int decimales, const char* unidad) {
  return Q(Fijo(static_cast<double>(valor), decimales)) + " " + Q(unidad);
}

// Una línea en zigzag dentro de un depósito.
QPainterPath Serpentin(const QRectF& r) {
  QPainterPath camino(r.topLeft());
  constexpr int kVueltas = 4;
  for (int i = 1; i <= kVueltas; ++i) {
    const double y = r.top() + r.height() * i / kVueltas;
    camino.lineTo(i % 2 == 1 ? r.right() : r.left(), y - r.height() / kVueltas / 2);
    camino.lineTo(i % 2 == 1 ? r.right() : r.left(), y);
  }
  return camino;
}

}  // namespace

DibujoSistema::DibujoSistema(QWidget* padre) : QWidget(padre) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setAccessibleName(tr("Esquema de la instalación"));
}

QSize DibujoSistema::sizeHint() const {
  return {640, static_cast<int>(kAltoFila * (filas_ - 1) + kAltoUltima)};
}

std::size_t DibujoSistema::Anadir(Pieza pieza) {
  filas_ = std::max(filas_, pieza.fila + 1);
  piezas_.push_back(std::move(pieza));
  return piezas_.size() - 1;
}

void DibujoSistema::Poner(const SistemaResidencial& sistema, const Instalaciones& bloque) {
  piezas_.clear();
  tubos_.clear();
  filas_ = 1;
  tipo_ = TipoSistemaDe(sistema.Tipo_sistema);
  const bool electrico = EsElectricoACS(ClaseGeneradorDe(bloque.Seleccion));
  std::size_t generador = 0;
  if (!electrico) {
    Pieza pieza;
    pieza.texto = Q(bloque.Seleccion);
    if (const auto kW = PotenciaGenerador(tipo_, bloque))
      pieza.cifra = Q(Fijo(*kW, 1)) + " kW" +
                    (bloque.NEquipos > 1 ? " × " + QString::number(bloque.NEquipos) : QString());
    generador = Anadir(pieza);
  }
  int fila = 0;
  if (DaCalefaccion(tipo_) || DaRefrigeracion(tipo_)) {
    Pieza emisor{Forma::Emisor, kColumnas - 1, 0, Q(bloque.Emisor), {}};
    if (bloque.Emisor.empty()) emisor.texto = tr("Zona");
    tubos_.push_back({generador, Anadir(emisor)});
    fila = 1;
  }
  if (DaACS(tipo_)) {
    filas_ = fila + 1;
    PonerACS(bloque, generador);
  }
  // Las columnas sin piezas no ocupan sitio.
  columnas_.clear();
  for (const Pieza& pieza : piezas_) columnas_.push_back(pieza.columna);
  std::sort(columnas_.begin(), columnas_.end());
  columnas_.erase(std::unique(columnas_.begin(), columnas_.end()), columnas_.end());
  updateGeometry();
  update();
}

void DibujoSistema::PonerACS(const Instalaciones& bloque, std::size_t generador) {
  const ArregloACS arreglo = ResolverArreglo(tipo_, bloque);
  const int fila = filas_ - 1;
  const bool electrico = EsElectricoACS(ClaseGeneradorDe(bloque.Seleccion));
  const std::size_t grifo = Anadir({Forma::Grifo, kColumnas - 1, fila, tr("Agua caliente"),
                                    arreglo.deposito ? QString() : Cifra(bloque.TimpACS, 0, "°C")});
  std::size_t entrada = generador;
  if (arreglo.deposito) {
    const bool conCalefaccion = DaCalefaccion(tipo_);
    const bool placas = arreglo.lado == LadoAgua::IntercambDeposito ||
                        (conCalefaccion && arreglo.lado == LadoAgua::Deposito);
    Pieza deposito{Forma::Deposito, 3, fila, tr("Depósito"), Cifra(bloque.Volumen, 0, "l")};
    deposito.serpentin = !electrico && (arreglo.lado == LadoAgua::InteracumuGenerador ||
                                        arreglo.lado == LadoAgua::Interacumulador);
    deposito.serpentinSolar = arreglo.RecirculadoPorSerpentin() ||
                              arreglo.alimentacion == AlimentacionACS::RecirculadoSolar;
    deposito.resistencia = electrico;
    entrada = Anadir(deposito);
    if (placas && !electrico) {
      const std::size_t intercambiador =
          Anadir({Forma::Intercambiador, 2, fila, tr("Intercambiador"),
                  Cifra(bloque.EfiIntercamb, 0, "%")});
      tubos_.push_back({generador, intercambiador});
      tubos_.push_back({intercambiador, entrada});
    } else if (!electrico) {
      tubos_.push_back({generador, entrada});
    }
  }
  tubos_.push_back({entrada, grifo});
  if (arreglo.captadores) PonerSolar(bloque, entrada);
}

void DibujoSistema::PonerSolar(const Instalaciones& bloque, std::size_t entrada) {
  const ArregloACS arreglo = ResolverArreglo(tipo_, bloque);
  const int fila = filas_;
  std::size_t antes = Anadir({Forma::Captador, 0, fila, tr("Captadores"), {}});
  if (arreglo.depositoSolar) {
    if (arreglo.CargaPorIntercambiador()) {
      const std::size_t placas = Anadir({Forma::Intercambiador, 1, fila, tr("Intercambiador"), {}});
      tubos_.push_back({antes, placas, true});
      antes = placas;
    }
    Pieza solar{Forma::Deposito, 2, fila, tr("Depósito solar"), {}};
    solar.serpentin = !arreglo.CargaPorIntercambiador();
    const std::size_t deposito = Anadir(solar);
    tubos_.push_back({antes, deposito, true});
    antes = deposito;
  }
  tubos_.push_back({antes, entrada, true});
}

QRectF DibujoSistema::Marco(const Pieza& pieza) const {
  const auto columna = static_cast<double>(
      std::lower_bound(columnas_.begin(), columnas_.end(), pieza.columna) - columnas_.begin());
  const double huecos = std::max(1.0, static_cast<double>(columnas_.size()) - 1);
  const double paso = std::clamp((width() - kAnchoPieza) / huecos, 0.0, kPasoMaximo);
  return {paso * columna, 6 + kAltoFila * pieza.fila, kAnchoPieza, kAltoPieza};
}

void DibujoSistema::PintarTubo(QPainter& p, const Tubo& tubo) const {
  const QRectF de = Marco(piezas_[tubo.de]), a = Marco(piezas_[tubo.a]);
  const QColor color = QColor::fromRgb(tubo.solar ? kSolar : kCaliente);
  constexpr double kFlecha = 6;
  QPainterPath camino, flecha;
  if (a.top() < de.top()) {
    // Lo solar entra en lo de la fila de arriba por abajo: de lado si viene de la izquierda.
    if (a.left() > de.right()) {
      const double medio = a.left() - 4, y = a.bottom() - 10, punta = a.left() + Hueco(tubo.a);
      camino.moveTo(de.right() - Hueco(tubo.de), de.center().y());
      camino.lineTo(medio, de.center().y());
      camino.lineTo(medio, y);
      camino.lineTo(punta, y);
      flecha.addPolygon(
          QPolygonF({{punta, y}, {punta - kFlecha, y - 4}, {punta - kFlecha, y + 4}}));
    } else {
      const double x = a.center().x(), y = de.top() - 10, punta = a.bottom() + 1;
      camino.moveTo(de.center().x(), de.top());
      camino.lineTo(de.center().x(), y);
      camino.lineTo(x, y);
      camino.lineTo(x, punta);
      flecha.addPolygon(
          QPolygonF({{x, punta}, {x - 4, punta + kFlecha}, {x + 4, punta + kFlecha}}));
    }
  } else {
    const double medio = a.left() - 16, y = a.center().y(), punta = a.left() + Hueco(tubo.a);
    camino.moveTo(de.right() - Hueco(tubo.de), de.center().y());
    camino.lineTo(medio, de.center().y());
    camino.lineTo(medio, y);
    camino.lineTo(punta, y);
    flecha.addPolygon(QPolygonF({{punta, y}, {punta - kFlecha, y - 4}, {punta - kFlecha, y + 4}}));
  }
  p.strokePath(camino, QPen(color, 2.2));
  p.fillPath(flecha, color);
}

double DibujoSistema::Hueco(std::size_t pieza) const {
  switch (piezas_[pieza].forma) {
    case Forma::Caja:
    case Forma::Emisor:
      return 0;
    case Forma::Deposito:
      return 22;
    case Forma::Intercambiador:
      return kAnchoPieza / 2 - 19;
    case Forma::Captador:
      return 31;
    case Forma::Grifo:
      return kAnchoPieza / 2 - 20;
  }
  return 0;
}

void DibujoSistema::Pintar(QPainter& p, const Pieza& pieza) const {
  const QRectF marco = Marco(pieza);
  const QColor trazo = palette().color(QPalette::WindowText);
  QColor borde = trazo;
  borde.setAlphaF(0.55F);
  p.setPen(QPen(borde, 1.4));
  p.setBrush(palette().color(QPalette::Base));
  const QRectF cuerpo(marco.center().x() - 19, marco.top(), 38, marco.height());
  switch (pieza.forma) {
    case Forma::Caja:
    case Forma::Emisor:
      p.drawRoundedRect(marco, 6, 6);
      break;
    case Forma::Grifo:
      p.drawEllipse(marco.center(), 20, 20);
      break;
    case Forma::Deposito:
      p.drawRoundedRect(marco.adjusted(22, 0, -22, 0), 16, 12);
      break;
    case Forma::Intercambiador:
      p.drawRect(cuerpo);
      p.drawLine(cuerpo.topRight(), cuerpo.bottomLeft());
      break;
    case Forma::Captador: {
      const QRectF panel = marco.adjusted(24, 4, -24, -4);
      QPainterPath plano(QPointF(panel.left() + 14, panel.top()));
      plano.lineTo(panel.right(), panel.top());
      plano.lineTo(panel.right() - 14, panel.bottom());
      plano.lineTo(panel.left(), panel.bottom());
      plano.closeSubpath();
      p.drawPath(plano);
      for (int i = 1; i < 4; ++i) {
        const double x = (panel.width() - 14) * i / 4;
        p.drawLine(QPointF(panel.left() + 14 + x, panel.top()),
                   QPointF(panel.left() + x, panel.bottom()));
      }
      break;
    }
  }
  const QRectF izquierda(marco.left() + 28, marco.top() + 14, 12, 26);
  const QRectF derecha(marco.right() - 40, marco.top() + 24, 12, 24);
  p.setBrush(Qt::NoBrush);
  if (pieza.serpentin) {
    p.setPen(QPen(QColor::fromRgb(kCaliente), 1.6));
    p.drawPath(Serpentin(izquierda));
  }
  if (pieza.serpentinSolar) {
    p.setPen(QPen(QColor::fromRgb(kSolar), 1.6));
    p.drawPath(Serpentin(derecha));
  }
  if (pieza.resistencia) {
    p.setPen(QPen(QColor::fromRgb(kCaliente), 1.6));
    p.drawPath(Serpentin(izquierda.translated(8, 4)));
  }
  p.setPen(trazo);
  const bool dentro = pieza.forma == Forma::Caja || pieza.forma == Forma::Emisor;
  if (dentro) {
    p.drawText(marco.adjusted(4, 2, -4, -2), Qt::AlignCenter | Qt::TextWordWrap,
               pieza.cifra.isEmpty() ? pieza.texto : pieza.texto + "\n" + pieza.cifra);
    return;
  }
  p.drawText(QRectF(marco.left() - 10, marco.bottom() + 1, marco.width() + 20, 18),
             Qt::AlignHCenter | Qt::AlignTop,
             pieza.cifra.isEmpty() ? pieza.texto : pieza.texto + " " + pieza.cifra);
}

void DibujoSistema::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  QFont letra = font();
  letra.setPointSizeF(std::max(7.0, letra.pointSizeF() - 1));
  p.setFont(letra);
  for (const Tubo& tubo : tubos_) PintarTubo(p, tubo);
  for (const Pieza& pieza : piezas_) Pintar(p, pieza);
}

}  // namespace novex::gui
