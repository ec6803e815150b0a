// Las imágenes de un proyecto: el texto que las guarda y los bytes de la imagen.
#include "Comun.h"
#include "files/Base64.h"
#include "files/ImagenesProyecto.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  using namespace novex;
  const std::string_view texto = fuzz::Texto(datos, bytes);
  RegistroMensajes mensajes;
  fuzz::Exigir(DecodificarImagen(texto, mensajes).has_value() == mensajes.recibidos.empty(),
               "una imagen o un aviso");
  for (const char* clase : {"png", "jpeg"}) {
    const std::string entero =
        "<![CDATA[data:image/" + std::string(clase) + ";base64," + CodificarBase64(texto) + "]]>";
    if (const auto imagen = DecodificarImagen(entero, mensajes))
      fuzz::Exigir(imagen->bytes == texto, "los bytes de la imagen");
  }
  return 0;
}
