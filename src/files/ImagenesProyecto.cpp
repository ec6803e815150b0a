#include "files/ImagenesProyecto.h"

#include <lodepng.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <system_error>
#include <utility>

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"
#include "files/Base64.h"
#include "files/ErroresXml.h"

namespace novex {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kApertura = "<![CDATA[";
constexpr std::string_view kCierre = "]]>";
constexpr const char* kTitulo = "AVISO";
// Un PNG pequeño puede decir que mide lo que no cabe en la memoria.
constexpr std::size_t kPngMaximo = std::size_t{256} * 1024 * 1024;

constexpr std::string_view Marca(ClaseImagen clase) {
  return clase == ClaseImagen::Jpeg ? "data:image/jpeg;base64," : "data:image/png;base64,";
}

std::optional<ClaseImagen> ClaseDe(std::string_view bytes) {
  if (bytes.starts_with("\xFF\xD8\xFF")) return ClaseImagen::Jpeg;
  if (bytes.starts_with("\x89PNG\r\n\x1A\n")) return ClaseImagen::Png;
  return std::nullopt;
}

class LectorPng {
 public:
  LectorPng() {
    lodepng_state_init(&estado_);
    // Los píxeles se quieren como están en el fichero, y los textos no se miran.
    estado_.decoder.color_convert = 0;
    estado_.decoder.read_text_chunks = 0;
  }
  LectorPng(const LectorPng&) = delete;
  LectorPng& operator=(const LectorPng&) = delete;
  ~LectorPng() { lodepng_state_cleanup(&estado_); }

  bool SeDecodifica(std::string_view bytes) {
    const auto* datos = reinterpret_cast<const unsigned char*>(bytes.data());
    unsigned ancho = 0, alto = 0;
    if (lodepng_inspect(&ancho, &alto, &estado_, datos, bytes.size()) != 0) return false;
    const std::size_t linea = std::size_t{ancho} * lodepng_get_bpp(&estado_.info_png.color) / 8;
    if (alto > kPngMaximo / (linea + 1)) return false;
    // Las líneas con su filtro, y hasta el doble entrelazadas: más datos comprimidos son un engaño.
    estado_.decoder.zlibsettings.max_output_size = 2 * (linea + 2) * alto + 64;
    unsigned char* pixeles = nullptr;
    const unsigned fallo = lodepng_decode(&pixeles, &ancho, &alto, &estado_, datos, bytes.size());
    std::free(pixeles);
    return fallo == 0;
  }

 private:
  LodePNGState estado_{};
};

// La clase de una imagen que se puede enseñar; nada, con su aviso, si no lo es.
std::optional<ClaseImagen> ClaseValida(std::string_view bytes, const std::string& que,
                                       Mensajes& mensajes) {
  const auto clase = ClaseDe(bytes);
  if (!clase) mensajes.Avisar(kTitulo, que + " no es una imagen JPEG ni PNG");
  if (clase == ClaseImagen::Png && !LectorPng().SeDecodifica(bytes)) {
    mensajes.Avisar(kTitulo, que + " es un PNG que no se puede leer");
    return std::nullopt;
  }
  return clase;
}

bool EsBlanco(char c) {
  return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

// Los bytes de un Base64 entero; nada si le falta o le sobra algo que no sean blancos.
std::optional<std::string> Base64Entero(std::string_view texto) {
  std::string limpio;
  limpio.reserve(texto.size());
  std::copy_if(texto.begin(), texto.end(), std::back_inserter(limpio),
               [](char c) { return !EsBlanco(c); });
  std::string bytes;
  // Al decodificar se saltan las letras ajenas; si había alguna, el texto es más largo de lo justo.
  if (DecodificarBase64(limpio, bytes) != codigoXml::kSinError ||
      (bytes.size() + 2) / 3 * 4 != limpio.size())
    return std::nullopt;
  return bytes;
}

// El Base64 de un texto: de la marca de su clase al primer cierre, o al final si lo ha perdido.
std::optional<std::string_view> Base64De(std::string_view texto) {
  const std::size_t fin = std::min(texto.find(kCierre), texto.size());
  for (const ClaseImagen clase : {ClaseImagen::Jpeg, ClaseImagen::Png}) {
    const std::string_view marca = Marca(clase);
    const std::size_t entera = texto.find(std::string(kApertura).append(marca));
    std::size_t inicio = 0;
    if (entera != std::string_view::npos)
      inicio = entera + kApertura.size() + marca.size();
    else if (texto.starts_with(marca))  // sin la apertura, que se habrá perdido
      inicio = marca.size();
    else
      continue;
    if (fin > inicio) return texto.substr(inicio, fin - inicio);
  }
  return std::nullopt;
}

constexpr auto Campo(LugarImagen lugar) {
  return lugar == LugarImagen::Edificio ? &DatosPantalla::Imagen : &DatosPantalla::Plano;
}

}  // namespace

std::optional<std::string> TextoDeImagen(const fs::path& fichero, Mensajes& mensajes) {
  std::error_code fallo;
  const auto tamano = fs::is_regular_file(fichero, fallo) ? fs::file_size(fichero, fallo) : 0;
  if (!fallo && tamano > kTamanoMaximoImagen) {
    mensajes.Avisar(kTitulo, "La imagen \"" + fichero.string() + "\" pasa de " +
                                 std::to_string(kTamanoMaximoImagen / (1024 * 1024)) + " MB");
    return std::nullopt;
  }
  try {
    const std::string bytes = LeerFichero(fichero);
    const auto clase = ClaseValida(bytes, "El archivo \"" + fichero.string() + "\"", mensajes);
    if (!clase) return std::nullopt;
    return std::string(kApertura)
        .append(Marca(*clase))
        .append(CodificarBase64(bytes))
        .append(kCierre);
  } catch (const ErrorFichero&) {
    mensajes.Avisar(kTitulo, "No se pudo abrir el archivo");
    return std::nullopt;
  }
}

std::optional<ImagenDecodificada> DecodificarImagen(std::string_view texto, Mensajes& mensajes) {
  const auto base64 = Base64De(texto);
  if (!base64) {
    mensajes.Avisar(kTitulo, "No se encontró CDATA en el texto.");
    return std::nullopt;
  }
  auto bytes = Base64Entero(*base64);
  if (!bytes) {
    mensajes.Avisar(kTitulo, "La imagen guardada está dañada: su Base64 no se entiende");
    return std::nullopt;
  }
  const auto clase = ClaseValida(*bytes, "La imagen guardada", mensajes);
  if (!clase) return std::nullopt;
  return ImagenDecodificada{*clase, std::move(*bytes)};
}

const std::shared_ptr<const std::string>& ImagenDe(const DatosPantalla& pantalla,
                                                   LugarImagen lugar) {
  return pantalla.*Campo(lugar);
}

void PonerImagen(GestorEdifActivo& gestor, LugarImagen lugar,
                 const std::shared_ptr<const std::string>& texto) {
  for (const std::string_view nombre : caso::kNombres) {
    Edificio* const edificio = gestor.Caso(nombre);
    if (edificio == nullptr) continue;
    DatosPantalla pantalla = edificio->GetDatosPantalla();
    pantalla.*Campo(lugar) = texto;
    edificio->SetDatosPantalla(std::move(pantalla));
  }
}

fs::path RutaImagen(const EspacioTrabajo& espacio, LugarImagen lugar) {
  return espacio.Imagenes() /
         (lugar == LugarImagen::Edificio ? "imageEdificio.jpg" : "imagePlano.jpg");
}

bool VolcarImagen(const EspacioTrabajo& espacio, LugarImagen lugar,
                  const ImagenDecodificada& imagen, Mensajes& mensajes) {
  try {
    std::error_code sinImportancia;  // si no se crea, lo dirá la escritura
    fs::create_directories(espacio.Imagenes(), sinImportancia);
    EscribirFichero(RutaImagen(espacio, lugar), imagen.bytes);
    return true;
  } catch (const ErrorFichero& error) {
    mensajes.Avisar(kTitulo, error.what());
    return false;
  }
}

}  // namespace novex
