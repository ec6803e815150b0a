#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>
#include <array>

#include "entry/HojaCurvas.h"
#include "shell/gui/ContextoGui.h"

namespace novex::gui {

/// La hoja de curvas de un equipo: sus coeficientes, que se pueden cambiar, y el gráfico de cada
/// curva. Lo cambiado se guarda con "Aceptar cambios".
class TbdEquipos : public QDialog {
  Q_OBJECT

 public:
  /// \param numero el del bloque entre los de todos los sistemas, desde 1
  TbdEquipos(ContextoGui& contexto, std::size_t numero, QWidget* padre = nullptr);

 private:
  QWidget* HojaDeFamilia(const PaginaCurvas& pagina);
  QWidget* HojaDeGrupo(const GrupoCurvas& grupo, std::string_view familia);
  QWidget* CajaCondiciones();
  void LlenarTabla(QTableWidget* tabla, const GrupoCurvas& grupo);
  void LeerCelda(QTableWidget* tabla, const GrupoCurvas& grupo, int fila, int columna);
  void PonerPotenciaReal();
  void Aceptar();

  ContextoGui& contexto_;
  std::size_t numero_;
  Instalaciones bloque_;
  QLabel* aviso_;
  std::array<QLineEdit*, 3> condiciones_{};
  QLabel *potencia_ = nullptr, *intermedios_ = nullptr;
};

}  // namespace novex::gui
