#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

#include "model/Edificio.h"

namespace novex {

/// Nombres de los casos, en el orden de sus posiciones.
namespace caso {
inline constexpr std::string_view kViejo = "Viejo";
inline constexpr std::string_view kReferencia = "Referencia";
inline constexpr std::size_t kMejoras = 5;
inline constexpr std::size_t kPosiciones = 2 + kMejoras;
inline constexpr std::array<std::string_view, kPosiciones> kNombres = {
    "Viejo", "Referencia", "Mejora_1", "Mejora_2", "Mejora_3", "Mejora_4", "Mejora_5"};
}  // namespace caso

/// Dueño de los casos de un proyecto; todo lo que lee o escribe datos pasa por el caso activo.
/// Los nombres se comparan exactamente.
class GestorEdifActivo {
 public:
  /// Activa el caso de ese nombre; queda sin activo si está vacío. Un nombre desconocido no cambia
  /// nada.
  void ActivarCaso(std::string_view nombre);
  /// ¿Es el activo el caso de ese nombre?
  bool EsCasoActivo(std::string_view nombre) const;
  /// Nombre del caso activo, vacío si no hay.
  std::string_view NombreActivo() const;
  /// 1 más el número de mejoras; la referencia no cuenta.
  std::size_t NumeroCasos() const;
  /// Nombre del caso de usuario `i`: 0 la base, 1 la primera mejora... \throws std::out_of_range
  static std::string_view NombreCasoUsuario(std::size_t i);
  /// ¿Existe el caso de ese nombre?
  bool Existe(std::string_view nombre) const { return Caso(nombre) != nullptr; }

  /// El caso activo. \throws std::logic_error si no hay ninguno.
  Edificio& Activo();
  const Edificio& Activo() const;
  /// El caso de ese nombre, o nulo si no existe.
  Edificio* Caso(std::string_view nombre);
  const Edificio* Caso(std::string_view nombre) const;

  /// Destruye todos los casos.
  void BorrarTodos();
  /// Deja solo un caso base en blanco, activo.
  void NuevoProyecto();
  /// Nuevo proyecto que conserva el sitio y su clima del caso activo.
  void ReiniciarConservandoSitio();
  /// Pone un edificio en blanco en la mejora de ese nombre y la activa; otro nombre no hace nada.
  void CrearCasoVacio(std::string_view nombre);
  /// Clona el caso activo en la primera mejora libre y la activa; con las cinco ocupadas no hace
  /// nada. \returns nombre de la mejora, o vacío
  std::string_view AnadirMejora();
  /// Primera mejora libre, o vacío si no queda ninguna.
  std::string_view PrimeraMejoraLibre() const;
  /// Pone en la referencia un clon de la base; el activo no cambia.
  void CrearReferencia();
  /// Borra un caso y corre los siguientes un lugar; los casos movidos quedan sin objeto de cálculo.
  /// Borrar la base pone en su lugar la primera mejora. Tras borrar uno de usuario el activo es la
  /// base; tras borrar la referencia sigue el que estaba.
  void EliminarCaso(std::string_view nombre);

 private:
  static std::optional<std::size_t> Posicion(std::string_view nombre);
  void CorrerMejoras(std::size_t desde);

  std::array<std::unique_ptr<Edificio>, caso::kPosiciones> casos_;
  std::size_t activo_ = kSinActivo;
  static constexpr std::size_t kSinActivo = caso::kPosiciones;
};

/// Copia profunda de un caso, sin su objeto de cálculo.
std::unique_ptr<Edificio> ClonarEdificio(const Edificio& origen);

}  // namespace novex
