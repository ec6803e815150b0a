#include "files/LimitesProyecto.h"

#include <string>

#include "base/ErrorFichero.h"

namespace novex::limiteProyecto {

void Comprobar(std::string_view que, std::size_t cuantos, std::size_t maximo) {
  if (cuantos <= maximo) return;
  throw ErrorFichero("", 0, 0, 0,
                     "El proyecto tiene demasiados elementos: más de " + std::to_string(maximo) +
                         " " + std::string(que));
}

}  // namespace novex::limiteProyecto
