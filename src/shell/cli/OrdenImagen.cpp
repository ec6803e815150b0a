#include <filesystem>
#include <memory>
#include <system_error>

#include "base/FicheroSeguro.h"
#include "files/ImagenesProyecto.h"
#include "files/ProyectoFichero.h"
#include "shell/cli/AbrirProyectoConsola.h"
#include "shell/cli/Ordenes.h"

namespace novex::cli {
namespace {

namespace fs = std::filesystem;

struct OpcionesImagen {
  std::string proyecto, edificio, plano, salida, extraer, programa;
};

void Poner(GestorEdifActivo& gestor, LugarImagen lugar, const std::string& fichero,
           Mensajes& mensajes) {
  if (fichero.empty()) return;
  auto texto = TextoDeImagen(fichero, mensajes);
  if (!texto) throw ErrorOrden("No se ha guardado nada");
  PonerImagen(gestor, lugar, std::make_shared<const std::string>(std::move(*texto)));
}

// Escribe una imagen del proyecto con la extensión de su clase; da si la tiene.
bool Extraer(const GestorEdifActivo& gestor, LugarImagen lugar, const char* nombre,
             const fs::path& carpeta, Mensajes& mensajes) {
  const auto& texto = ImagenDe(gestor.Caso(caso::kViejo)->GetDatosPantalla(), lugar);
  if (!texto || texto->empty()) return false;
  const auto imagen = DecodificarImagen(*texto, mensajes);
  if (!imagen) throw ErrorOrden("No se ha podido extraer la imagen");
  const fs::path ruta =
      carpeta / (std::string(nombre) + (imagen->clase == ClaseImagen::Jpeg ? ".jpg" : ".png"));
  EscribirFichero(ruta, imagen->bytes);
  EscribirSalida("Escrita " + ruta.string() + "\n");
  return true;
}

int ExtraerImagenes(const GestorEdifActivo& gestor, const fs::path& carpeta, Mensajes& mensajes) {
  std::error_code sinImportancia;  // si no se crea, lo dirá la escritura
  fs::create_directories(carpeta, sinImportancia);
  const bool edificio = Extraer(gestor, LugarImagen::Edificio, "imageEdificio", carpeta, mensajes);
  const bool plano = Extraer(gestor, LugarImagen::Plano, "imagePlano", carpeta, mensajes);
  if (!edificio && !plano) throw ErrorOrden("El proyecto no tiene ninguna imagen");
  return kHecho;
}

int HacerImagen(const OpcionesImagen& o) {
  const bool poner = !o.edificio.empty() || !o.plano.empty();
  if (!poner && o.extraer.empty()) throw ErrorUso("Falta --edificio, --plano o --extraer");
  if (!o.extraer.empty() && (poner || !o.salida.empty()))
    throw ErrorUso("--extraer no va con --edificio, --plano ni --salida");
  GestorEdifActivo gestor;
  MensajesConsola mensajes;
  AbrirProyectoConsola(gestor, o.proyecto, mensajes, o.programa);
  if (!o.extraer.empty()) return ExtraerImagenes(gestor, o.extraer, mensajes);
  Poner(gestor, LugarImagen::Edificio, o.edificio, mensajes);
  Poner(gestor, LugarImagen::Plano, o.plano, mensajes);
  const auto escrito = GuardarProyecto(gestor, o.salida.empty() ? o.proyecto : o.salida);
  EscribirSalida("Guardado en " + escrito.string() + "\n");
  return kHecho;
}

}  // namespace

void AnadirImagen(CLI::App& programa, Orden& orden) {
  auto o = std::make_shared<OpcionesImagen>();
  CLI::App* app =
      NuevaOrden(programa, "imagen", "Pone la foto del edificio y su plano, o los extrae");
  app->add_option("PROYECTO", o->proyecto, "Fichero de proyecto (.xml)")
      ->required()
      ->type_name("FICHERO");
  app->add_option("--edificio", o->edificio, "Foto del edificio, JPEG o PNG")->type_name("FOTO");
  app->add_option("--plano", o->plano, "Plano del edificio, JPEG o PNG")->type_name("FOTO");
  app->add_option("--salida", o->salida, "Fichero en que se guarda, en lugar del mismo")
      ->type_name("FICHERO.xml");
  app->add_option("--extraer", o->extraer, "Escribe las imágenes del proyecto en una carpeta")
      ->type_name("CARPETA");
  app->add_option("--programa", o->programa, "Carpeta de programa en lugar de la suya")
      ->type_name("CARPETA");
  app->callback([&orden, o] { orden = [o] { return HacerImagen(*o); }; });
}

}  // namespace novex::cli
