#pragma once

#include <QLabel>
#include <QTableWidget>
#include <QToolButton>
#include <QWidget>
#include <filesystem>
#include <vector>

#include "base/Tabla.h"

namespace novex::gui {

/// Una tabla de resultados con su título y sus notas. Se copia y se exporta; las cifras van a la
/// derecha, los totales en negrita y una letra de calificación, en su color.
class VistaTabla : public QWidget {
  Q_OBJECT

 public:
  explicit VistaTabla(QWidget* padre = nullptr);

  /// Enseña una tabla. Con las mismas columnas que la anterior conserva sus anchos.
  void Poner(const Tabla& tabla);
  const Tabla& Puesta() const { return tabla_; }
  /// Se estira con la ventana y desplaza sus filas; si no, es tan alta como ellas.
  void Estirar(bool si);
  /// Deja en el portapapeles las casillas elegidas, o todas, con sus títulos, para una hoja de
  /// cálculo.
  void Copiar() const;
  /// Pregunta dónde y la escribe como texto separado.
  void Exportar();
  QTableWidget* Rejilla() { return rejilla_; }

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void AjustarAlto();

  Tabla tabla_;
  QLabel *titulo_, *notas_;
  QTableWidget* rejilla_;
  QToolButton* menu_;
  bool estirada_ = false;
};

/// Deja unas tablas en el portapapeles, una bajo otra, con sus títulos y sus notas.
void CopiarTablas(const std::vector<Tabla>& tablas);
/// Escribe un texto donde diga el usuario, con su aviso si no se puede.
/// \param filtro de `QFileDialog`, "Texto (*.txt)"
void GuardarTextoPreguntando(QWidget* padre, const QString& nombre, const QString& filtro,
                             const std::string& texto);
/// Escribe una exportación de resultados, en ".txt", donde diga el usuario; al principio se le
/// ofrece la carpeta de los proyectos. Si no se puede escribir no se dice nada.
void ExportarTextoPreguntando(QWidget* padre, const std::filesystem::path& carpeta,
                              const std::string& texto);

}  // namespace novex::gui
