#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "calculation/Entorno.h"
#include "files/ProyectoFichero.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// El proyecto que se está editando: sus casos, su fichero, lo que se puede deshacer y si le falta
/// guardar. Toda edición pasa por aquí; no sabe nada de ventanas.
class SesionProyecto {
 public:
  using CambioCaso = std::function<void(Edificio&)>;
  using CambioProyecto = std::function<void(GestorEdifActivo&)>;

  /// Empieza con un proyecto nuevo. \param ficheros y \param mensajes han de durar más que esto
  /// \throws ErrorFichero si falta el fichero de perfiles de uso
  SesionProyecto(FicherosPrograma& ficheros, Mensajes& mensajes);

  const GestorEdifActivo& Gestor() const { return gestor_; }
  /// Para calcular: los resultados no son una edición.
  GestorEdifActivo& GestorParaCalcular() { return gestor_; }
  const Edificio& Caso() const { return gestor_.Activo(); }
  FicherosPrograma& Ficheros() { return ficheros_; }
  Mensajes& Avisos() { return mensajes_; }

  /// Fichero del proyecto; "Nuevo.xml" sin carpeta si no se ha guardado nunca.
  const std::filesystem::path& Fichero() const { return fichero_; }
  bool TieneFichero() const { return fichero_.has_parent_path(); }
  /// Codificación del fichero abierto, con la que se guarda.
  const ModoCodificacion& Codificacion() const { return codificacion_; }
  /// ¿Hay algo sin guardar?
  bool Modificado() const { return revision_ != guardada_; }
  /// Cambia con cada edición, también al deshacerla; no se repite.
  std::uint64_t Revision() const { return revision_; }

  /// Edita el caso activo. Lo que deja los registros como estaban no es una edición.
  /// \param nombre qué se cambia, como se enseña en "Deshacer" \returns si ha cambiado algo
  bool Editar(std::string_view nombre, const CambioCaso& cambio);
  /// Edita datos que no cambian los resultados: textos administrativos, imágenes, costes y notas.
  bool EditarSinRecalcular(std::string_view nombre, const CambioCaso& cambio);
  /// Edita el proyecto entero: el objetivo de todos los casos, añadir o borrar uno.
  bool EditarProyecto(std::string_view nombre, const CambioProyecto& cambio);

  /// Como `EditarProyecto`, en lo que no cambia los resultados: imágenes y textos de todos los
  /// casos.
  bool EditarProyectoSinRecalcular(std::string_view nombre, const CambioProyecto& cambio);

  /// Qué deshace o rehace la orden; vacío si no hay nada.
  std::string_view QueDeshace() const;
  std::string_view QueRehace() const;
  bool Deshacer();
  bool Rehacer();

  /// Activa un caso; no es una edición. Uno que no existe no hace nada.
  void ActivarCaso(std::string_view nombre);

  // Órdenes del proyecto. Las que ponen otro en su lugar vacían lo que se puede deshacer; a quien
  // llama le toca preguntar antes si hay algo sin guardar.
  /// Proyecto nuevo, que conserva el sitio.
  void Nuevo();
  /// Abre un proyecto. Si no se puede leer, el que hay queda como estaba.
  /// \returns si lo ha abierto \throws ErrorFichero
  bool Abrir(const std::filesystem::path& ruta);
  /// Qué ha sido de lo que decía el último fichero leído, si es de una versión anterior.
  const InformeLectura& Lectura() const { return lectura_; }
  /// Añade los casos de otro fichero, o lo abre si el proyecto no tiene datos coherentes: entonces
  /// es como `Abrir`. Deja activo el caso base. \throws ErrorFichero
  bool Anadir(const std::filesystem::path& ruta);
  /// Guarda, con los resultados de los casos que están calculados; sin ruta, en su fichero.
  /// \returns el fichero escrito \throws ErrorFichero
  std::filesystem::path Guardar(const std::filesystem::path& ruta = {});
  /// El proyecto, tal como está, lo acaba de guardar otra orden en ese fichero, que pasa a ser el
  /// suyo.
  void DarPorGuardado(const std::filesystem::path& fichero);
  /// Duplica el caso activo en una mejora, que queda activa. \returns si ha cabido
  bool DuplicarCaso();
  /// Lo mismo y cambia la mejora, todo en una edición. \param nombre qué se hace, para "Deshacer"
  bool DuplicarCambiando(std::string_view nombre, const CambioCaso& cambio);
  /// Borra el caso activo; el único es como un proyecto nuevo.
  void BorrarCaso();
  /// Pone en marcha un proyecto recuperado: el de un fichero de recuperación, que sigue siendo el
  /// de su ruta y está sin guardar. \throws ErrorFichero
  bool Recuperar(const std::filesystem::path& recuperacion, const std::filesystem::path& original);

 private:
  struct Instantanea {
    std::string nombre;
    std::vector<std::pair<std::string, std::unique_ptr<Edificio>>> casos;
    std::string activo;
    bool completa = false;       ///< ¿son todos los casos del proyecto?
    std::uint64_t revision = 0;  ///< la del estado que guarda
  };

  Instantanea Fotografiar(std::string_view nombre, bool completa) const;
  Instantanea Cambiar(Instantanea&& foto);
  bool Editar(std::string_view nombre, const CambioCaso& cambio, bool quitarResultados);
  bool EditarProyecto(std::string_view nombre, const CambioProyecto& cambio, bool quitarResultados);
  void Apuntar(Instantanea&& foto);
  void OlvidarHistoria();
  void Empezar(const std::filesystem::path& fichero, const ModoCodificacion& codificacion);
  DatosDerivados Resultados() const;
  void QuitarResultados(std::string_view nombre);

  FicherosPrograma& ficheros_;
  Mensajes& mensajes_;
  GestorEdifActivo gestor_;
  ModoCodificacion codificacion_;
  std::filesystem::path fichero_;
  InformeLectura lectura_;
  std::vector<Instantanea> deshacer_, rehacer_;
  std::uint64_t revision_ = 0, guardada_ = 0, ultima_ = 0;
};

}  // namespace novex
