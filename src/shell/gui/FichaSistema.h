#pragma once

#include <QVBoxLayout>
#include <vector>

#include "entry/CamposSistema.h"
#include "shell/gui/DibujoSistema.h"
#include "shell/gui/Pagina.h"

class QGridLayout;
class QPushButton;

namespace novex::gui {

/// Los campos de un bloque de generador: los que su clase usa, por grupos, con el dibujo de su
/// instalación.
class FichaSistema : public Pagina {
  Q_OBJECT

 public:
  explicit FichaSistema(ContextoGui& contexto, QWidget* padre = nullptr);
  /// Enseña un bloque. \param numero el suyo entre los de todos los sistemas, desde 1
  void Poner(std::size_t numero);
  void Refrescar() override;
  /// Lleva el teclado al nombre del sistema.
  void Renombrar();

 private:
  struct Firma {
    std::size_t numero = 0;
    std::vector<CampoMostrado> campos;
    bool operator==(const Firma&) const = default;
  };

  void CrearCabecera(QVBoxLayout* columna);
  void Rehacer(const Firma& firma);
  void AnadirGrupo(QFormLayout* formulario, GrupoCampos grupo,
                   const std::vector<CampoMostrado>& campos);
  QWidget* CajaBombas(const std::vector<CampoMostrado>& campos);
  void Anadir(QFormLayout* formulario, const CampoMostrado& campo);
  OpcionesCampo Opciones(std::string_view etiqueta) const;
  std::string Direccion(std::string_view etiqueta) const;
  void PonerCabecera(const SistemaResidencial& sistema, const Instalaciones& bloque);
  void Dimensionar();
  void Catalogo();
  void Curvas();

  std::size_t numero_ = 0;
  Firma firma_;
  QVBoxLayout* columna_;
  QWidget* contenido_ = nullptr;
  QLabel *titulo_, *instalacion_, *modelo_, *reparto_, *aviso_, *notas_;
  QPushButton *catalogo_, *curvas_;
  DibujoSistema* dibujo_;
};

}  // namespace novex::gui
