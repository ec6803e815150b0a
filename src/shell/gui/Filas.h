#pragma once

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QWidget>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "shell/gui/Enlaces.h"

namespace novex::gui {

/// Cómo se enseña un campo, sin reglas propias.
OpcionesCampo Opciones(const QString& rotulo, const QString& ayuda = {},
                       const QString& unidad = {});
/// Lo mismo para los textos y datos administrativos, que no cambian los resultados.
OpcionesCampo OpcionesSinCalculo(const QString& rotulo, const QString& ayuda = {});
/// Los textos de una lista del motor.
std::vector<std::string> Textos(std::span<const std::string_view> lista);

/// Una caja con título y un formulario dentro.
struct CajaFormulario {
  QGroupBox* caja = nullptr;
  QFormLayout* filas = nullptr;
};
CajaFormulario NuevaCaja(const QString& titulo, QWidget* padre);
/// Deja el contenido de una caja a plomo con su título.
void PonerMargenes(QGroupBox* caja);

/// Enseña u oculta la fila de un editor hecho por `Enlaces`, con su rótulo.
void MostrarFila(QFormLayout* formulario, QWidget* editor, bool mostrar);

/// Un texto pequeño que ocupa las líneas que haga falta. \param papel "nota" o "aviso"
QLabel* NuevaNota(QWidget* padre, const char* papel = "nota");
/// Un texto pequeño de una sola línea, para una frase corta.
QLabel* NotaCorta(QWidget* padre, const char* papel = "nota");
/// Da a un editor de texto el ancho de un nombre o de una dirección.
void Ensanchar(QLineEdit* linea);

/// Cambia el papel de un texto y su aspecto.
void PonerPapel(QLabel* texto, const char* papel);

/// Un botón que abre un calendario y deja la fecha en un editor, como si se tecleara: "01/10/2026".
QToolButton* BotonCalendario(QLineEdit* fecha, QWidget* padre);

/// Dos columnas que pasan a una cuando no caben.
class DosColumnas : public QWidget {
  Q_OBJECT

 public:
  explicit DosColumnas(QWidget* padre);
  void AnadirIzquierda(QWidget* caja);
  void AnadirDerecha(QWidget* caja);
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* evento) override;

 private:
  int AnchoDeDos() const;
  QBoxLayout* columnas_;
  QWidget *izquierda_, *derecha_;
};

}  // namespace novex::gui
