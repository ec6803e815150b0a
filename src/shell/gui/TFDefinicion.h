#pragma once

#include <vector>

#include "shell/gui/CajasVisitas.h"
#include "shell/gui/Pagina.h"

class QButtonGroup;
class QGroupBox;

namespace novex::gui {

class EditorMemo;

/// Los textos del certificado: recomendaciones, visitas, observaciones e intervenciones del caso
/// base; y de una mejora, su descripción, su coste y lo que mejora.
class TFDefinicion : public Pagina {
  Q_OBJECT

 public:
  explicit TFDefinicion(ContextoGui& contexto, QWidget* padre = nullptr);
  void Refrescar() override;

 private:
  /// Una lista de opciones excluyentes.
  using PonerPosicion = void (*)(Edificio&, int);

  QWidget* ParteBase();
  QWidget* CajaRecomendaciones();
  QWidget* ParteMejora();
  QWidget* CajaDescripcion();
  QWidget* CajaOpciones(QButtonGroup*& grupo, std::string_view titulo,
                        std::span<const std::string_view> textos, PonerPosicion poner);
  QWidget* CajaCondiciones();
  EditorMemo* NuevoMemo(std::size_t cual, const QString& nombre, const char* objeto,
                        QWidget* padre);

  QWidget *base_ = nullptr, *mejora_ = nullptr, *secuencia_ = nullptr;
  QGroupBox* recomendaciones_ = nullptr;
  CajasVisitas visitas_;
  QButtonGroup *coste_ = nullptr, *plazo_ = nullptr;
  std::vector<EditorMemo*> memos_;
};

}  // namespace novex::gui
