// La lista de proyectos de una batería.
#include "Comun.h"
#include "outputs/Bateria.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  const auto lista = novex::LeerListaBateria(std::string(novex::fuzz::Texto(datos, bytes)));
  novex::fuzz::Exigir(lista.ficheros.size() <= bytes, "no más proyectos que bytes");
  return 0;
}
