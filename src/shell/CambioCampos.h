#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "model/Edificio.h"

namespace novex {

/// Un campo que no existe o que no admite lo que se le quiere dar. El texto lo dice al usuario.
class ErrorCampo : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Lo que ha hecho un cambio, con los valores como los guarda el fichero.
struct CampoCambiado {
  std::string campo;  ///< su dirección completa
  std::string antes, ahora;
};

/// Cambia un campo de un caso por su etiqueta en el fichero de proyecto. Delante puede llevar los
/// elementos que lo contienen, separados por barras y con su número o su nombre entre corchetes:
/// "Suelo_habitable_m2", "MuroExt[2]/Muro_ext_sur_m2", "Hueco[Grupo_1]/Ancho_m",
/// "Tipo_sistema[1]/QcalorCaldera1". Sin número, el primero. Los números se comprueban con la clave
/// de su campo: uno que no vale se sustituye, con su aviso.
/// \throws ErrorCampo si no hay tal campo, si no se puede cambiar o si no admite el texto
CampoCambiado CambiarCampo(Edificio& edificio, std::string_view direccion, std::string_view valor,
                           Mensajes& mensajes);

}  // namespace novex
