#pragma once

#include <QLabel>
#include <optional>

#include "outputs/HojasVerificacion.h"
#include "shell/gui/PaginaPestanas.h"

namespace novex::gui {

/// La verificación del DB-HE del caso activo. Entrar en ella es calcular los casos que no lo están
/// y verificar; cada pestaña lleva la marca de su sección.
class THE1 : public PaginaPestanas {
  Q_OBJECT

 public:
  explicit THE1(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  void Verificar();
  void PonerMarcas();
  void DecirFallo(const QString& texto);

  std::optional<VerificacionHE> verificacion_;
  QLabel *fallo_, *alcance_;
  PaginaPestanas* he1_;
};

}  // namespace novex::gui
