#pragma once

#include <QComboBox>
#include <QPushButton>
#include <array>

#include "reference/CatalogoVidrios.h"
#include "shell/gui/Enlaces.h"
#include "shell/gui/SeccionHueco.h"

namespace novex::gui {

/// Los editores de un grupo de huecos. La página hace otra al elegir otro grupo, porque sus campos
/// tienen otra dirección.
class FichaHueco : public QWidget {
  Q_OBJECT

 public:
  FichaHueco(ContextoGui& contexto, Enlaces& enlaces, const CatalogoVidrios& catalogo,
             std::size_t grupo, QWidget* padre);
  /// Pone lo que no está enlazado: listas que dependen de otras, cifras, dibujo y lo que se oculta.
  void Refrescar();
  std::size_t Grupo() const { return grupo_; }

 private:
  struct Columna {
    std::size_t indice = 0;
    QLabel* rotulo = nullptr;
    QLabel* area = nullptr;
    QPushButton* asignar = nullptr;
  };

  QWidget* Cabecera();
  QWidget* CajaUnidades();
  QWidget* CajaMedidas();
  QWidget* CajaVidrio();
  QWidget* CajaMarco();
  QWidget* CajaPermeabilidad();
  QWidget* CajaProteccion();
  QWidget* CajaPersiana();
  QWidget* CajaMultiplicadores();

  QLineEdit* Linea(QFormLayout* formulario, const char* etiqueta, const QString& rotulo,
                   const QString& ayuda = {});
  QComboBox* Posiciones(QFormLayout* formulario, const char* etiqueta, const QString& rotulo,
                        std::span<const std::string_view> textos, OpcionesCampo opciones);
  void RefrescarListas(const Huecos& g);
  void RefrescarVidrioDeCatalogo(const Huecos& g);
  void RefrescarUnidades(const Huecos& g);
  void RefrescarVisibles(const Huecos& g);
  void RefrescarCifras(const Huecos& g);
  const Huecos& Hueco() const { return contexto_.Caso().GetHuecos(grupo_); }
  std::string Direccion(std::string_view etiqueta) const;
  void PonerDelCatalogo();
  void ElegirMarco(int posicion);

  ContextoGui& contexto_;
  Enlaces& enlaces_;
  const CatalogoVidrios& catalogo_;
  std::size_t grupo_;
  QLabel* cifras_ = nullptr;
  std::array<Columna, 7> columnas_{};
  QLabel* avisoUnidades_ = nullptr;
  QFormLayout* medidas_ = nullptr;
  QFormLayout* vidrio_ = nullptr;
  QComboBox* vidrioConcreto_ = nullptr;
  QLabel* notaVidrio_ = nullptr;
  QComboBox* marcoConcreto_ = nullptr;
  QFormLayout* marco_ = nullptr;
  QFormLayout* proteccion_ = nullptr;
  QFormLayout* persiana_ = nullptr;
  QLabel* notaPersiana_ = nullptr;
  SeccionHueco* seccion_ = nullptr;
  int tipoMostrado_ = -1, marcoMostrado_ = -1;
};

}  // namespace novex::gui
