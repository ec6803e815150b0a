#include "shell/gui/DibujoPuente.h"

#include <QPainter>

namespace novex::gui {
namespace {

// El dibujo se hace en una hoja de 84 x 48 con el exterior a la izquierda.
constexpr double kAncho = 84, kAlto = 48;
constexpr double kMuro0 = 26, kMuro1 = 40;  // la hoja del muro
constexpr double kCapa = 5;                 // grueso del aislamiento

using Aislamiento = DibujoPuente::Aislamiento;

class Hoja {
 public:
  Hoja(QPainter& pintor, const QPalette& paleta) : pintor_(pintor) {
    pintor_.setPen(QPen(paleta.color(QPalette::Mid), 0.6));
  }
  void Muro(double x0, double y0, double x1, double y1) const {
    Rectangulo({0xc8, 0x8a, 0x6a}, x0, y0, x1, y1);
  }
  void Hormigon(double x0, double y0, double x1, double y1) const {
    Rectangulo({0x96, 0x9c, 0xa2}, x0, y0, x1, y1);
  }
  void Aislante(double x0, double y0, double x1, double y1) const {
    Rectangulo({0xe9, 0xc8, 0x4a}, x0, y0, x1, y1);
  }
  void Terreno(double x0, double y0, double x1, double y1) const {
    pintor_.fillRect(QRectF(x0, y0, x1 - x0, y1 - y0),
                     QBrush(QColor(0x8a, 0x6d, 0x4b), Qt::Dense4Pattern));
  }
  void Vidrio(double x0, double y0, double x1, double y1) const {
    Rectangulo({0x9f, 0xcb, 0xe0}, x0, y0, x1, y1);
  }

 private:
  void Rectangulo(const QColor& color, double x0, double y0, double x1, double y1) const {
    pintor_.setBrush(color);
    pintor_.drawRect(QRectF(x0, y0, x1 - x0, y1 - y0));
  }
  QPainter& pintor_;
};

// Un muro con un forjado que lo corta entre dos alturas; el aislamiento del muro va por fuera si es
// continuo y si no por dentro, y no pasa el forjado salvo en el frente.
void Forjado(const Hoja& h, Aislamiento a, double y0, double y1, double techo, double suelo) {
  const bool fuera = a == Aislamiento::Continuo;
  h.Muro(kMuro0, techo, kMuro1, y0);
  h.Muro(kMuro0, y1, kMuro1, suelo);
  h.Hormigon(kMuro0, y0, kAncho - 2, y1);
  if (a == Aislamiento::Frente) h.Aislante(kMuro0 - kCapa, y0, kMuro0, y1);
  if (fuera) return h.Aislante(kMuro0 - kCapa, techo, kMuro0, suelo);
  if (y0 > techo) h.Aislante(kMuro1, techo, kMuro1 + kCapa, y0);
  if (suelo > y1) h.Aislante(kMuro1, y1, kMuro1 + kCapa, suelo);
}

void Pilar(const Hoja& h, Aislamiento a) {
  h.Muro(2, 18, kAncho - 2, 34);
  const bool continuo = a == Aislamiento::Continuo || a == Aislamiento::Interior;
  const double y = a == Aislamiento::Continuo ? 34 : 18 - kCapa;
  if (continuo) {
    h.Aislante(2, y, kAncho - 2, y + kCapa);
  } else if (a != Aislamiento::Ninguno) {
    h.Aislante(2, 18 - kCapa, 32, 18);
    h.Aislante(52, 18 - kCapa, kAncho - 2, 18);
  }
  if (a != Aislamiento::Ninguno) h.Hormigon(32, 18, 52, 34);
}

void Esquina(const Hoja& h, Aislamiento a) {
  h.Muro(26, 12, kAncho - 2, 24);
  h.Muro(26, 24, 40, kAlto - 2);
  if (a == Aislamiento::Continuo) {
    h.Aislante(26 - kCapa, 12 - kCapa, kAncho - 2, 12);
    h.Aislante(26 - kCapa, 12, 26, kAlto - 2);
    return;
  }
  h.Aislante(40, 24, kAncho - 2, 24 + kCapa);
  h.Aislante(40, 24 + kCapa, 40 + kCapa, kAlto - 2);
}

void Ventana(const Hoja& h, Aislamiento a) {
  h.Muro(2, 14, 46, 24);
  h.Muro(2, 30, 46, 36);
  h.Aislante(2, 24, a == Aislamiento::Continuo ? 46 : 38, 30);
  if (a == Aislamiento::Interrumpido) h.Muro(38, 24, 46, 30);
  h.Hormigon(46, 22, 54, 32);
  h.Vidrio(54, 25, kAncho - 2, 29);
}

}  // namespace

DibujoPuente::DibujoPuente(Puente puente, QWidget* padre) : QWidget(padre), puente_(puente) {
  setFixedSize(sizeHint());
}

void DibujoPuente::Poner(Aislamiento aislamiento) {
  aislamiento_ = aislamiento;
  update();
}

void DibujoPuente::paintEvent(QPaintEvent*) {
  QPainter pintor(this);
  pintor.scale(width() / kAncho, height() / kAlto);
  const Hoja h(pintor, palette());
  const Aislamiento a = aislamiento_;
  switch (puente_) {
    case puente_forjados:
      return Forjado(h, a, 18, 30, 1, kAlto - 1);
    case puente_cubiertas:
      Forjado(h, a, 12, 24, 12, kAlto - 1);
      return h.Aislante(a == Aislamiento::Continuo ? kMuro0 - kCapa : kMuro0, 12 - kCapa,
                        kAncho - 2, 12);
    case puente_suelo_exterior:
      Forjado(h, a, 24, 36, 1, 36);
      return h.Aislante(a == Aislamiento::Continuo ? kMuro0 - kCapa : kMuro0, 36, kAncho - 2,
                        36 + kCapa);
    case puente_suelo_terreno:
      h.Terreno(1, 30, kAncho - 1, kAlto - 1);
      return Forjado(h, Aislamiento::Interrumpido, 24, 34, 1, 34);
    case puente_esquina_saliente:
      return Esquina(h, a);
    case puente_pilares:
      return Pilar(h, a);
    case puente_ventanas:
      return Ventana(h, a);
  }
}

DibujoPuente::Aislamiento AislamientoDe(const Construccion& c, Puente puente) {
  const bool porSoluciones = c.Def_Puentes_termicos >= 0 && c.Def_Puentes_termicos <= 2;
  const bool continuo = c.Def_Puentes_termicos == 2;
  if (puente == puente_pilares) {
    if (c.Existencia_pilares == 1) return Aislamiento::Ninguno;
    if (!porSoluciones || c.Def_Puentes_termicos_pilares == 0) return Aislamiento::Interrumpido;
    return c.Def_Puentes_termicos_pilares == 1 ? Aislamiento::Continuo : Aislamiento::Interior;
  }
  if (puente == puente_ventanas) {
    if (!porSoluciones || c.Def_Puentes_termicos_ventanas == 0) return Aislamiento::Interrumpido;
    return c.Def_Puentes_termicos_ventanas == 1 ? Aislamiento::Continuo : Aislamiento::Frente;
  }
  if (continuo) return Aislamiento::Continuo;
  return c.Def_Puentes_termicos == 1 && puente == puente_forjados ? Aislamiento::Frente
                                                                  : Aislamiento::Interrumpido;
}

}  // namespace novex::gui
