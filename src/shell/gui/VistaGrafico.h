#pragma once

#include <QChartView>
#include <QLabel>
#include <QToolButton>
#include <QValueAxis>
#include <QWidget>
#include <QXYSeries>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "base/Grafico.h"
#include "base/Tabla.h"

namespace novex::gui {

/// Un gráfico de resultados: barras, líneas o puntos. Con el ratón se acerca (arrastrar un
/// recuadro o la rueda), se mueve (arrastrar con Mayúsculas) y se lee el valor bajo el puntero; el
/// botón derecho vuelve a todo. Se guarda como PNG y SVG, y sus datos como texto.
class VistaGrafico : public QWidget {
  Q_OBJECT

 public:
  explicit VistaGrafico(QWidget* padre = nullptr);

  /// Enseña un gráfico. \param derecho otro de las mismas posiciones, con su eje a la derecha
  void Poner(const Grafico& grafico, const std::optional<Grafico>& derecho = std::nullopt);
  const Grafico& Puesto() const { return grafico_; }
  const std::optional<Grafico>& Derecho() const { return derecho_; }
  /// Cómo se dice una posición numérica del eje horizontal, una hora del año por ejemplo.
  void DecirX(std::function<QString(double)> decir) { decirX_ = std::move(decir); }
  /// Parte el eje horizontal de los gráficos que se pongan en tramos con su rótulo, los meses por
  /// ejemplo. \param tramos rótulo y posición en que acaba cada uno; sin ninguno, van los números
  /// \param titulo lo que son los rótulos, si hace falta decirlo
  void PartirX(double inicio, std::vector<std::pair<QString, double>> tramos,
               const QString& titulo = {});
  /// Lo que se lee con el puntero en una posición del eje horizontal.
  QString Lectura(double x) const;
  /// Lo que se lee en un punto del plano: en una nube, las dos cifras del punto más cercano.
  QString LecturaEn(const QPointF& donde) const;
  /// Los datos como tabla: las posiciones y una columna por serie.
  Tabla Datos() const;
  /// Escribe la imagen; por la extensión, SVG o PNG. \returns si se ha podido
  bool GuardarImagen(const QString& ruta);
  void CopiarDatos() const;
  /// Vuelve a enseñar el gráfico entero.
  void VerTodo();
  QChart* Dibujo() const { return vista_->chart(); }

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

 private:
  void PonerBarras(const Grafico& grafico);
  /// Los nombres de las barras se inclinan cuando no caben.
  void InclinarRotulos();
  void PonerPuntos(const Grafico& grafico, Qt::Alignment lado, std::size_t primerColor);
  QValueAxis* PonerEjeX(const Grafico& grafico);
  void PonerPuntosDe(QXYSeries* dibujada, const Grafico& grafico, const SerieGrafico& serie);
  void GuardarPreguntando(const QString& filtro);
  bool AlRaton(QEvent* evento);

  Grafico grafico_;
  std::optional<Grafico> derecho_;
  std::function<QString(double)> decirX_;
  double inicioX_ = 0;
  std::vector<std::pair<QString, double>> tramosX_;
  QString tituloTramos_;
  // Las líneas de muchos puntos, que se dibujan con los que distingue la pantalla.
  struct Larga {
    QXYSeries* dibujada;
    const Grafico* grafico;
    const SerieGrafico* serie;
  };
  void Aligerar(const Larga& larga);
  std::vector<Larga> largas_;
  QLabel *titulo_, *lectura_;
  QToolButton* menu_;
  QChartView* vista_;
  QPointF agarrado_;
  bool arrastra_ = false;
};

}  // namespace novex::gui
