#pragma once

#include <functional>
#include <vector>

#include "demand/AjustesUso.h"
#include "shell/gui/Pagina.h"

class QPushButton;

namespace novex::gui {

/// El uso del edificio y sus medidas: perfil, superficie, viviendas, ventilación, iluminación y
/// agua caliente.
class PaginaUso : public Pagina {
  Q_OBJECT

 public:
  explicit PaginaUso(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  /// Cuándo se enseña una fila o una caja.
  using Cuando = bool (*)(const AjustesUso&);
  struct Condicion {
    QFormLayout* filas = nullptr;  ///< nulo si es una caja entera
    QWidget* que = nullptr;
    Cuando cuando = nullptr;
  };

  QWidget* CajaUso();
  QWidget* CajaViviendas();
  QWidget* CajaAgua();
  QWidget* CajaVentilacion();
  QWidget* CajaClaseAire();
  QWidget* CajaAire();
  void FilasVivienda(QFormLayout* filas);
  void FilasToma(QFormLayout* filas);
  void FilasUTA(QFormLayout* filas);
  void FilasRecuperador(QFormLayout* filas);
  /// En una vivienda el recuperador es sensible: los entálpicos no recuperan nada.
  void OfrecerRecuperadores(bool residencial);
  QWidget* CajaEstanqueidad();
  QWidget* CajaIluminacion();
  QWidget* CajaCarga();

  /// Enseña una fila solo cuando se cumple algo.
  void Solo(QFormLayout* filas, QWidget* editor, Cuando cuando);
  void CambiarPerfil(int perfil);
  void TomarClaseAire(std::size_t clase);
  void TomarAguaDeReferencia();
  void RefrescarViviendas();
  void RefrescarVentilacion(const AjustesUso& ajustes);
  void RefrescarIluminacion();

  std::vector<Condicion> condiciones_;
  QFormLayout* filasVentilacion_ = nullptr;
  QLabel *notaAltura_ = nullptr, *sumaViviendas_ = nullptr, *notaAgua_ = nullptr;
  QLabel *caudal_ = nullptr, *notaRenovaciones_ = nullptr, *minimoHS3_ = nullptr;
  QLabel *notaRecuperador_ = nullptr, *potenciaMaxima_ = nullptr, *carga_ = nullptr;
  QLabel* nivel_ = nullptr;
  std::vector<QLabel*> personas_, caudales_, clases_;
  std::vector<QPushButton*> aceptarClase_;
  QLabel* faltaClase_ = nullptr;
  std::vector<std::vector<QWidget*>> filasViviendas_;  ///< las piezas de la fila de cada tipo
};

}  // namespace novex::gui
