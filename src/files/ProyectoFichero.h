#pragma once

#include <filesystem>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "files/DatosDerivados.h"
#include "files/InformeLectura.h"
#include "files/texto/CasoDeTexto.h"
#include "files/xmlParser.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// `Nuevo` pone el proyecto del fichero en lugar del abierto; `Anadir` pone sus casos en las
/// mejoras libres.
enum class ModoApertura { Nuevo, Anadir };

/// Lo que ha dado una apertura. Los nombres son los de los casos en el proyecto.
struct ProyectoAbierto {
  bool abierto = false;
  std::vector<std::string_view> casos;  ///< casos leídos, en el orden del fichero
  /// Los que no dicen su uso: han quedado como "Residencial" y necesitan sus horarios.
  std::vector<std::string_view> casosSinUso;
  /// Los leídos de un fichero de texto, que todavía no tienen su sitio.
  std::vector<CasoDeTexto> casosDeTexto;
  InformeLectura informe;  ///< de un fichero de una versión anterior
};

/// Abre un fichero de proyecto. Uno acabado en ".txt" es de texto; si no, un camino que contiene
/// "xml" o "XML" es un XML; otro que contiene "txt", de texto; cualquier otro no abre nada. Si los
/// casos pasarían de seis no se abre nada y se avisa. Al acabar está activo el último caso leído.
/// Si el fichero no se puede leer el proyecto queda como estaba. \param codificacion toma la del
/// fichero; se pasa después a `GuardarProyecto`. A los casos leídos les falta lo que pone
/// `CompletarProyecto`. \throws ErrorFichero si falta, está mal formado o es de una versión que no
/// se lee
ProyectoAbierto AbrirProyecto(GestorEdifActivo& gestor, const std::filesystem::path& ruta,
                              ModoApertura modo, Mensajes& mensajes,
                              ModoCodificacion& codificacion);
ProyectoAbierto AbrirProyecto(GestorEdifActivo& gestor, const std::filesystem::path& ruta,
                              ModoApertura modo, Mensajes& mensajes);

/// El camino con que se guarda un proyecto: del nombre elegido se corta lo que sigue a su último
/// ".txt" o ".xml", y se le pone ".xml".
std::filesystem::path RutaDeGuardado(const std::filesystem::path& elegida);

/// Guarda todos los casos de usuario en la disposición actual. El proyecto no cambia.
/// \param codificacion la del fichero abierto; decide si se escribe la marca de orden de bytes
/// \returns el camino del fichero escrito, según `RutaDeGuardado`
/// \throws ErrorFichero con el código 15 o 16 si no se puede escribir; el fichero anterior se
/// conserva
std::filesystem::path GuardarProyecto(const GestorEdifActivo& gestor,
                                      const std::filesystem::path& ruta,
                                      const DatosDerivados& derivados = {},
                                      const ModoCodificacion& codificacion = {});

/// Llena un edificio en blanco con un elemento `Novex` de la versión que dice.
/// \param informe si se da, se le añade qué ha sido de lo de un fichero de una versión anterior
/// \returns false si el caso no dice su uso, que queda como "Residencial"
bool LeerCaso(const XMLNode& novex, Edificio& edificio, Mensajes& mensajes,
              InformeLectura* informe = nullptr);

/// Añade a `casos` el elemento `Novex` de un edificio.
/// \param primero con el primer caso van las imágenes y los bloques de resultados
void EscribirCaso(XMLNode& casos, const Edificio& edificio, bool primero,
                  const DatosDerivados::Caso& derivados);

}  // namespace novex
