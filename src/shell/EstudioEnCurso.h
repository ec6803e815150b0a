#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "calculation/CalculoPorTramos.h"
#include "improvements/EstudioMejoras.h"

namespace novex {

/// El estudio de mejoras del caso activo en los ratos libres de quien llama. Mide una copia del
/// proyecto, así que sus casos no se tocan. Lo medido no vale hasta que se acaba: parado a medias
/// queda lo de antes.
class EstudioEnCurso {
 public:
  enum class Estado { Parado, Calculando, Hecho, Fallido };

  /// \param ficheros han de durar más que esto
  explicit EstudioEnCurso(FicherosPrograma& ficheros) : ficheros_(ficheros) {}

  /// Empieza a medir unos códigos en el caso activo de un proyecto, tras su base; deja lo que
  /// estuviera haciendo. El caso ha de pasar las comprobaciones previas.
  void Empezar(const GestorEdifActivo& gestor, std::vector<int> codigos);
  void Parar();
  /// Mide durante un rato como mucho. \returns si queda trabajo
  bool Avanzar(std::chrono::milliseconds rato);

  Estado EnQue() const { return estado_; }
  /// Simulaciones del estudio, con la de la base, y las acabadas.
  std::size_t Pasos() const { return codigos_.size() + 1; }
  std::size_t Hechos() const { return hechos_; }
  /// Lo que falta, "Quedan: 0 min 5 s": el tiempo medio de un paso por los que quedan. Vacío antes
  /// de acabar el primero.
  std::string Quedan() const;
  /// Por qué ha fallado.
  const std::string& Fallo() const { return fallo_; }

  /// Lo medido de un caso, mientras su base sea la que se midió; si no, nulo. Las medidas van por
  /// orden de código.
  const MejorasMedidas* Medido(const std::string& nombreCaso, const ResultadoMedida& base) const;

 private:
  bool Paso();
  void Acabar();
  void Fallar(std::string motivo);

  FicherosPrograma& ficheros_;
  RegistroMensajes mensajes_;
  Progreso progreso_;
  Estado estado_ = Estado::Parado;
  std::string nombre_, fallo_;
  std::vector<int> codigos_;
  std::size_t hechos_ = 0;
  std::chrono::steady_clock::time_point inicio_;
  std::unique_ptr<GestorEdifActivo> copia_;
  std::unique_ptr<Entorno> entorno_;
  std::unique_ptr<CalculoPorTramos> referencia_;  ///< mientras se calcula, si hace falta
  std::unique_ptr<EstudioMejoras> estudio_;
  std::unique_ptr<MedicionPorTramos> medicion_;
  std::vector<ResultadoMedida> medidas_;
  std::map<std::string, MejorasMedidas> medidos_;  ///< por caso
};

}  // namespace novex
