#pragma once

#include <QGridLayout>
#include <QPushButton>
#include <QToolButton>
#include <vector>

#include "entry/ElementosEnvolvente.h"
#include "shell/gui/Enlaces.h"

namespace novex::gui {

/// Lo que se define de una clase de elemento opaco: por tipo, su composición y, en una rejilla, sus
/// áreas y sus demás datos. La rejilla se copia a una hoja de cálculo y se pega de ella.
class FichaElemento : public QWidget {
  Q_OBJECT

 public:
  FichaElemento(ContextoGui& contexto, Enlaces& enlaces, const ClaseElemento& clase,
                QWidget* padre = nullptr);
  /// Enseña los tipos en uso, las sumas y las composiciones del caso activo.
  void Refrescar();
  const ClaseElemento& Clase() const { return clase_; }
  /// La composición que se está mirando.
  std::size_t RanuraElegida() const { return elegida_; }
  /// Deja la rejilla a la vista en el portapapeles.
  void Copiar() const;
  /// Pega el portapapeles desde la casilla con el foco, o desde la primera.
  void Pegar();

 signals:
  void Elegida(std::size_t ranura);
  /// Elegir una composición de la biblioteca, o definir sus capas, para una posición.
  void PideElegir(std::size_t ranura);
  void PideCapas(std::size_t ranura);

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  struct Casilla {
    std::string direccion;
    OpcionesCampo opciones;
    QLineEdit* editor = nullptr;
  };
  struct Composicion {
    std::size_t ranura;
    QPushButton* nombre;
    QToolButton* quitar;
  };

  struct Resto {
    std::size_t tipo, sector;
    QLabel* rotulo;
  };

  QWidget* Cabecera();
  void CrearTipo(std::size_t tipo);
  void CrearCabeceras();
  void CrearPorSectores(std::size_t tipo);
  void CrearEnFila(std::size_t tipo);
  QWidget* BarraComposicion(std::size_t tipo, bool exterior);
  QWidget* Marca(std::size_t tipo);
  Casilla CrearCasilla(std::size_t tipo, std::string_view etiqueta, std::size_t sector, bool parte);
  QWidget* CrearDato(std::size_t tipo, const DatoElemento& dato, std::vector<Casilla>& fila);
  void Anadir(QWidget* control, int fila, int columna, int ancho, std::size_t tipo);
  void CrearResto(std::size_t tipo, std::size_t sector, int columna);
  void PonerSumas();
  void PonerVisibles();
  void PegarDesde(const QObject* editor);

  ContextoGui& contexto_;
  Enlaces& enlaces_;
  const ClaseElemento& clase_;
  QGridLayout* rejilla_;
  QLabel* avisos_;
  QPushButton* mas_;
  std::vector<std::vector<Casilla>> casillas_;            ///< por fila; sin editor, una que no hay
  std::vector<std::size_t> tipoDeFila_;                   ///< tipo de cada fila de casillas
  std::vector<std::pair<std::size_t, QLabel*>> sumas_;    ///< fila de casillas y su suma
  std::vector<Resto> restos_;                             ///< lo que queda al sol
  std::vector<std::pair<std::size_t, QWidget*>> deTipo_;  ///< lo que se esconde con su tipo
  std::vector<QCheckBox*> marcas_;
  std::vector<Composicion> composiciones_;
  std::vector<QLabel*> huecos_;
  std::size_t pedidos_ = 1, elegida_;
  int fila_ = 0;
};

}  // namespace novex::gui
