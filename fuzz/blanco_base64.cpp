// Base64: todo lo codificado se decodifica igual, y lo demás no hace daño.
#include "Comun.h"
#include "files/Base64.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t bytes) {
  using namespace novex;
  const std::string_view texto = fuzz::Texto(datos, bytes);
  std::string vuelta;
  fuzz::Exigir(DecodificarBase64(CodificarBase64(texto), vuelta) == 0 && vuelta == texto,
               "lo codificado se decodifica igual");
  static_cast<void>(DecodificarBase64(texto, vuelta));
  fuzz::Exigir(vuelta.size() <= bytes / 4 * 3 + 2, "lo decodificado no es más largo");
  return 0;
}
