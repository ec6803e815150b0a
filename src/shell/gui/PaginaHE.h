#pragma once

#include <QVBoxLayout>
#include <optional>
#include <vector>

#include "shell/gui/BloqueVerificacion.h"
#include "shell/gui/PaginaResultados.h"

namespace novex::gui {

/// Una hoja de la verificación del DB-HE. No verifica: enseña lo que `THE1` ha verificado.
class PaginaHE : public PaginaResultados {
  Q_OBJECT

 public:
  /// \param verificacion la del caso activo, que ha de durar más que esto
  PaginaHE(ContextoGui& contexto, HojaHE hoja, const std::optional<VerificacionHE>& verificacion,
           QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;
  QVBoxLayout* Columna() { return columna_; }

 private:
  HojaHE hoja_;
  const std::optional<VerificacionHE>& verificacion_;
  QVBoxLayout* columna_;
  QVBoxLayout* hojas_;
  std::vector<BloqueVerificacion*> bloques_;
};

/// La hoja de la potencia fotovoltaica, con las superficies que pide.
class PaginaHE5 : public PaginaHE {
  Q_OBJECT

 public:
  PaginaHE5(ContextoGui& contexto, const std::optional<VerificacionHE>& verificacion,
            QWidget* padre = nullptr);
};

/// Las cifras del año: dos gráficos por meses y las líneas de demanda, energía y eficiencia.
class PaginaAnoHE : public PaginaResultados {
  Q_OBJECT

 public:
  explicit PaginaAnoHE(ContextoGui& contexto, QWidget* padre = nullptr);

 protected:
  void Ensenar(const CasoCalculado& caso) override;

 private:
  QComboBox* tipo_;
  VistaGrafico *meses_, *eficiencia_;
  QLabel* lineas_;
};

}  // namespace novex::gui
