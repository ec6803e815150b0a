#pragma once

#include <QDialog>
#include <QTimer>
#include <array>
#include <memory>
#include <vector>

#include "entry/DefinicionExpres.h"
#include "entry/SupuestosExpres.h"
#include "shell/gui/ContextoGui.h"

class QComboBox;
class QFormLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace novex::gui {

/// La definición exprés: un edificio entero a partir de unas pocas cifras, en un diálogo. El
/// edificio que resulta se hace en una copia del caso y se cuenta en una frase; al aceptar, el caso
/// cambia en una sola edición.
class DialogoExpres : public QDialog {
  Q_OBJECT

 public:
  explicit DialogoExpres(ContextoGui& contexto, QWidget* padre = nullptr);
  ~DialogoExpres() override;

  /// Lo que hay tecleado.
  EntradaExpres Entrada() const;

 public slots:
  void accept() override;

 private:
  using Unidades = std::array<QLineEdit*, kSectores>;
  struct LineaHuecos {
    Unidades unidades{};
    QLineEdit *ancho = nullptr, *alto = nullptr;
    QComboBox *clase = nullptr, *proteccion = nullptr;
  };

  QLineEdit* Linea(const QString& nombre, const QString& valor, const QString& clave);
  QComboBox* Lista(const QString& nombre, std::span<const std::string_view> textos);
  QWidget* CajaEdificio();
  QWidget* CajaHorizontales();
  QWidget* CajaInstalacion();
  QWidget* CajaFachadas();
  QWidget* CajaResultado();
  Unidades FilaSectores(QGridLayout* rejilla, int fila, const QString& nombre,
                        const QString& clave);
  LineaHuecos FilaHuecos(QGridLayout* rejilla, int fila, const QString& nombre);
  void LlenarInstalaciones();
  void Proponer();
  void Poner(const EntradaExpres& entrada);
  void Previsualizar();
  void Pedir() { espera_.start(); }
  void Definir(Edificio& edificio, Mensajes& mensajes) const;
  bool EsResidencial() const { return contexto_.Caso().GetDatosGenerales().EsResidencial(); }

  ContextoGui& contexto_;
  int perfil_;
  std::unique_ptr<CatalogoEquipos> catalogo_;
  QTimer espera_;
  QLineEdit *volumen_, *superficie_, *viviendas_ = nullptr, *dormitorios_ = nullptr;
  QLineEdit *banos_ = nullptr, *ventilacion_ = nullptr, *fotovoltaica_ = nullptr;
  QLineEdit *medianeras_, *local_, *cubierta_, *suelo_;
  QComboBox *periodo_, *aire_ = nullptr, *tipoCubierta_, *tipoSuelo_, *reparto_ = nullptr;
  QComboBox* instalacion_;
  QSpinBox* plantas_;
  Unidades fachada_{};
  std::array<LineaHuecos, kVidriosMaximos> vidrios_{};
  LineaHuecos puerta_;
  QLabel *frase_, *avisos_, *supuestos_;
};

}  // namespace novex::gui
