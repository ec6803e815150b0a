#pragma once

#include "shell/gui/Pagina.h"

namespace novex::gui {

class MarcoImagen;
class RejillaTextos;

/// Los datos administrativos: referencias catastrales, textos, certificador e imágenes.
class PaginaAdministrativa : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaAdministrativa(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  QWidget* CajaEdificio();
  QWidget* CajaCatastro();
  QWidget* CajaProteccion();
  QWidget* CajaCertificador();
  QWidget* CajaImagenes();
  void RefrescarCatastro();
  void RefrescarProteccion();
  void AlmacenarCertificador();
  void RecuperarCertificador();

  RejillaTextos *catastro_ = nullptr, *inalterables_ = nullptr;
  QLabel *notaCatastro_ = nullptr, *notaPostal_ = nullptr, *notaCertificador_ = nullptr;
  QFormLayout* filasEdificio_ = nullptr;
  QLabel* rotuloInalterables_ = nullptr;
  MarcoImagen *edificio_ = nullptr, *plano_ = nullptr;
};

}  // namespace novex::gui
