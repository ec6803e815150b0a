#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "model/Edificio.h"

namespace novex {

// Un campo de un caso se nombra por su dirección: su etiqueta en el fichero y delante, si está en
// una lista o se repite por tipo constructivo, el elemento con su número desde 1:
// "Suelo_habitable_m2", "MuroExt[2]/Muro_ext_sur_m2", "Hueco[1]/Ancho_m",
// "Tipo_sistema[1]/QcalorCaldera1", "Tipologia[1]/N_viviendas".

struct RegistrosCaso;

enum class ClaseCampo { Real, Entero, Logico, Texto, Lista };

/// Lo que se sabe de un campo sin mirar ningún caso.
struct DatosCampo {
  std::string etiqueta;  ///< sin su elemento, con el sector y el tipo puestos
  ClaseCampo clase = ClaseCampo::Texto;
  int decimales = 0;
  std::span<const std::string_view> lista;  ///< textos de las posiciones de una lista
};

/// Los datos de un campo; nada si no hay tal campo en ningún caso.
std::optional<DatosCampo> BuscarDatosCampo(std::string_view direccion);

/// Las direcciones de todos los campos de un caso, en el orden del fichero.
std::vector<std::string> DireccionesDeCampos(const Edificio& edificio);

/// Lee campos de un caso. Saca los registros una vez: no ve los cambios posteriores.
class LectorCampos {
 public:
  explicit LectorCampos(const Edificio& edificio);
  ~LectorCampos();
  /// El valor como lo escribe el fichero; nada si el caso no tiene el campo.
  std::optional<std::string> Valor(std::string_view direccion);

 private:
  const Edificio& edificio_;
  std::unique_ptr<RegistrosCaso> registros_;
};

/// Pone un campo de un caso. Un número se comprueba con la clave de su etiqueta: uno que no vale se
/// sustituye, con su aviso. Un texto que no es de la lista no cambia nada.
/// \returns false si el caso no tiene el campo o no admite el texto
bool PonerCampo(Edificio& edificio, std::string_view direccion, std::string_view texto,
                Mensajes& mensajes);

}  // namespace novex
