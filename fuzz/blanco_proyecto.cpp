// El lector de proyectos XML, de todas las versiones.
#include "Proyecto.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  static const novex::fuzz::CarpetaDeTrabajo carpeta;
  novex::fuzz::ProbarProyecto(carpeta,
                              carpeta.Con("entrada.xml", novex::fuzz::Texto(datos, bytes)));
  return 0;
}
