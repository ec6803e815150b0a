#pragma once

#include <filesystem>
#include <string>

#include "base/Mensajes.h"
#include "files/InformeLectura.h"
#include "files/texto/CasoDeTexto.h"
#include "files/texto/LineasTexto.h"
#include "model/Edificio.h"

namespace novex {

/// El fichero que, al lado del de un proyecto antiguo de un solo caso, guarda sus mejoras.
std::filesystem::path RutaDeMejoras(const std::filesystem::path& ruta);

/// El aviso que se da antes de leer un fichero de texto.
inline const Mensaje kAvisoFicheroTexto = {
    "AVISO",
    "Está leyendo un fichero de anteriores versiones. Debe comprobar los datos del certificador, "
    "la localidad en la que se situa el edificio y el valor de litros día consumido de ACS"};

/// Los casos de un proyecto guardado como texto por una versión antigua: el edificio y, en las
/// versiones que las guardaban en un segundo fichero acabado en "_M.txt", sus mejoras. El formato
/// son parejas de líneas, una etiqueta y su valor, repartidas en secciones; las líneas que no se
/// conocen se saltan, y un fichero cortado deja lo que se ha leído.
class FicheroTexto {
 public:
  /// \throws ErrorFichero si no se puede leer, es demasiado grande o no tiene ninguna sección
  explicit FicheroTexto(const std::filesystem::path& ruta);

  /// ¿Queda algún caso? \throws ErrorFichero si el fichero de las mejoras no se puede leer
  bool QuedaCaso();

  /// Lee el caso siguiente en un edificio en blanco. Lo que sale de la carpeta de programa (el
  /// sitio, los puentes de la zona y los horarios) no se pone. \param nombre el del caso en el
  /// proyecto; ha de durar lo que el resultado
  CasoDeTexto LeerCaso(Edificio& edificio, std::string_view nombre, Mensajes& mensajes,
                       InformeLectura& informe);

 private:
  bool BuscarComienzo();
  void AbrirMejoras();

  std::filesystem::path ruta_;
  LineasTexto lineas_;
  std::string version_;  ///< la última que se ha leído
  bool enMejoras_ = false;
  bool leido_ = false;  ///< el edificio
};

}  // namespace novex
