// El lector de proyectos de texto.
#include "Proyecto.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  static const novex::fuzz::CarpetaDeTrabajo carpeta;
  novex::fuzz::ProbarProyecto(carpeta,
                              carpeta.Con("entrada.txt", novex::fuzz::Texto(datos, bytes)));
  return 0;
}
