#pragma once

#include <QStringList>
#include <QTableWidget>
#include <QWidget>
#include <vector>

class QPushButton;

namespace novex::gui {

/// Una rejilla de textos a la que se añaden y quitan filas. Copia y pega con una hoja de cálculo.
class RejillaTextos : public QWidget {
  Q_OBJECT

 public:
  using Filas = std::vector<QStringList>;
  /// \param vacia lo que se lee cuando no hay ninguna fila
  RejillaTextos(int columnas, const QString& anadir, const QString& vacia,
                QWidget* padre = nullptr);

  void PonerTitulos(const QStringList& titulos);
  /// Una columna se elige de una lista.
  void PonerOpciones(int columna, const QStringList& opciones);
  /// Pone las filas sin cortar lo que se está tecleando.
  void PonerFilas(const Filas& filas);
  /// Señala una celda como correcta o incorrecta, con lo que se espera de ella.
  void Senalar(int fila, int columna, bool correcta, const QString& ayuda);
  QTableWidget* Tabla() { return tabla_; }

 signals:
  void Cambiada(const std::vector<QStringList>& filas);

 protected:
  bool eventFilter(QObject* quien, QEvent* evento) override;

 private:
  Filas Leer() const;
  void Anadir();
  void Quitar();
  void Copiar() const;
  void Pegar();
  QTableWidgetItem* Celda(int fila, int columna);

  QTableWidget* tabla_;
  QWidget* vacia_;
  QPushButton* quitar_;
};

}  // namespace novex::gui
