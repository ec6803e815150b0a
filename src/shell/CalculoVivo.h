#pragma once

#include <array>
#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "calculation/CalculoPorTramos.h"
#include "calculation/ComprobacionesPrevias.h"

namespace novex {

/// Lo que se enseña de un caso mientras se edita.
struct ResumenVivo {
  std::string letraPrimaria, letraEmisiones;
  float primaria = 0, emisiones = 0;                       ///< kWh/m2 y kg/m2 al año
  float demandaCalefaccion = 0, demandaRefrigeracion = 0;  ///< kWh/m2 año
  float demandaACS = 0;                                    ///< kWh/m2 año
  std::optional<float> fueraDeConsigna;                    ///< % de las horas de ocupación
  bool operator==(const ResumenVivo&) const = default;
};

/// La calificación que sigue a lo que se teclea. Calcula una copia del proyecto, así que los
/// resultados de sus casos, los ficheros de caso y los documentos de trabajo no se tocan.
class CalculoVivo {
 public:
  enum class Estado {
    Parado,
    Calculando,
    Hecho,
    Rechazado,  ///< no pasa las comprobaciones previas
    Fallido     ///< no se ha podido calcular
  };

  /// \param ficheros han de durar más que esto
  explicit CalculoVivo(FicherosPrograma& ficheros) : ficheros_(ficheros) {}

  /// Empieza con el caso activo de un proyecto; deja lo que estuviera haciendo.
  void Empezar(const GestorEdifActivo& gestor);
  void Parar();
  /// Calcula durante un rato como mucho. \returns si queda trabajo
  bool Avanzar(std::chrono::milliseconds rato);

  Estado EnQue() const { return estado_; }
  int Porcentaje() const { return tramos_ ? tramos_->Porcentaje() : 0; }
  /// El último resumen hecho, y el anterior si lo hay, para decir qué ha cambiado.
  const std::optional<ResumenVivo>& Resumen() const { return resumen_; }
  const std::optional<ResumenVivo>& Anterior() const { return anterior_; }
  /// Lo que impide calcular, si se ha rechazado; con la página a la que lleva.
  const std::optional<MensajePrevio>& Motivo() const { return motivo_; }
  /// Por qué ha fallado.
  const std::string& Fallo() const { return fallo_; }
  /// Olvida los resúmenes: el proyecto es otro.
  void Olvidar();

 private:
  void Acabar();

  FicherosPrograma& ficheros_;
  RegistroMensajes mensajes_;
  Progreso progreso_;
  Estado estado_ = Estado::Parado;
  std::unique_ptr<GestorEdifActivo> copia_;
  std::string nombre_;
  std::unique_ptr<Entorno> entorno_;
  std::unique_ptr<CalculoPorTramos> tramos_;
  std::optional<ResumenVivo> resumen_, anterior_;
  std::optional<MensajePrevio> motivo_;
  std::string fallo_;
};

/// Copia de los registros de un caso de un proyecto y de su base, para calcularla sin tocar el
/// proyecto. El caso queda activo en ella.
std::unique_ptr<GestorEdifActivo> CopiarProyecto(const GestorEdifActivo& gestor,
                                                 const std::string& activo);

/// El resumen de un caso calculado.
ResumenVivo ResumirCaso(const calculo& caso);

}  // namespace novex
