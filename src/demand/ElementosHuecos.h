#pragma once

#include <array>
#include <memory>
#include <vector>

#include "demand/AjustesUso.h"
#include "demand/Sombras.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Conductancia de los huecos de un grupo por hora del día (1 a 24), W/m2K.
struct ConductanciaGrupo {
  std::array<float, 25> verano{}, invierno{};
};

/// Todos los huecos de un grupo en una orientación, listos para el año.
struct ElementoHueco {
  Valores* valores = nullptr;
  const ConductanciaGrupo* conductancia = nullptr;
  std::size_t orientacion = 0;
  bool lucernario = false;                                   ///< sin retardo ni persianas
  float area = 0;                                            ///< m2
  float gVerano = 0, gInvierno = 0;                          ///< factor solar del hueco
  float gProtegido = 0;                                      ///< con la protección móvil echada
  float multiplicadorVerano = 0, multiplicadorInvierno = 0;  ///< área por multiplicadores de U, m2
  bool proteccionMovil = false;
  int controlVerano = 0, controlInvierno = 0;
  float sombraFija = 1;
  SombraPropia sombraPropia{Huecos{}};
  bool haySombraPropia = false;
  std::array<float, 13> sombra{};  ///< área en sombra de cada mes, m2
  std::array<float, 10>
      historia{};  ///< soles de las diez horas anteriores, el más reciente primero
};

/// Los huecos de la zona.
class ElementosHuecos {
 public:
  /// Crea en `calculo.valores` un elemento por cada columna con huecos, con sus tablas.
  ElementosHuecos(const Edificio& edificio, const AjustesUso& ajustes, calculo& caso);
  ElementosHuecos(const ElementosHuecos&) = delete;
  ElementosHuecos& operator=(const ElementosHuecos&) = delete;

  /// Pone el área en sombra del mes en los elementos.
  void RefrescarMes(int mes);
  /// Sol de los huecos en la hora, W, que también se guarda en cada elemento.
  float Ganancias(int h, int mes);
  /// Añade a cada elemento la conducción de la hora. \param salto exterior menos interior, K
  void AnadirConduccion(int h, bool verano, float salto);
  /// Suma de lo guardado en los elementos en la hora, W.
  float SumaGuardada(int h) const;
  /// Conductancia de todos los huecos en una hora del día (1 a 24), W/K.
  float UA(bool verano, int d) const {
    return (verano ? UAverano_ : UAinvierno_)[static_cast<std::size_t>(d)];
  }
  /// ¿Hay algún hueco?
  bool Hay() const { return !elementos_.empty(); }

 private:
  float GananciaHueco(ElementoHueco& e, int h, int mes, bool verano, bool residencial);
  void PrepararSol();

  const SeriesClima& clima_;
  AjustesUso ajustes_;
  std::vector<ElementoHueco> elementos_;
  std::vector<std::unique_ptr<ConductanciaGrupo>> grupos_;
  std::array<float, 25> UAverano_{}, UAinvierno_{};
  std::array<std::vector<SolEnFachada>, kSectores> sol_;  ///< por hora, donde hay sombra propia
};

}  // namespace novex
