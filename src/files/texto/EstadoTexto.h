#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "files/InformeLectura.h"
#include "files/SeccionesProyecto.h"
#include "files/texto/CasoDeTexto.h"
#include "files/texto/VersionTexto.h"
#include "model/Edificio.h"

namespace novex {

/// Familias de elementos que un fichero de texto numera.
enum class FamiliaTexto : std::size_t {
  Ninguna,
  Tipologia,
  CubiertaHz,
  CubiertaIncl,
  CubiertaOtra,
  MuroExt,
  MuroOtro,
  SueloTerreno,
  SueloOtro,
  Recinto
};
inline constexpr std::size_t kFamiliasTexto = 10;

/// El elemento de una familia al que van los campos que siguen. Los ficheros cuentan desde 0 o
/// desde 1: lo dice el primer número.
class CursorTexto {
 public:
  /// Pasa al elemento de un número. \returns false si no es de los `cuantos` primeros: los campos
  /// que siguen no van entonces a ninguno
  bool Poner(int numero, std::size_t cuantos);
  /// Posición del elemento, desde 0; sin valor si el número no valía.
  std::optional<std::size_t> Donde() const { return donde_; }

 private:
  std::optional<int> primero_;
  std::optional<std::size_t> donde_ = 0;
};

/// Un valor del fichero, con su etiqueta y el número de la línea de esta.
struct ValorTexto {
  std::string_view etiqueta;
  std::string_view texto;
  std::size_t linea = 0;
};

/// Un caso mientras se lee de un fichero de texto.
struct EstadoTexto {
  EstadoTexto(Edificio& caso, Mensajes& avisos, InformeLectura& lectura, CasoDeTexto& que)
      : r(SacarRegistros(caso)), edificio(caso), mensajes(avisos), informe(lectura), dicho(que) {}

  RegistrosCaso r;
  Edificio& edificio;
  Mensajes& mensajes;
  InformeLectura& informe;
  CasoDeTexto& dicho;

  std::array<CursorTexto, kFamiliasTexto> cursores;
  std::size_t recintos = 1;  ///< los que dice el fichero que hay
  CursorTexto grupos;
  std::size_t grupoHuecos = 0;  ///< grupo al que van los campos de hueco
  std::size_t huecos = 0;       ///< los de todos los grupos
  bool conGrupo = false;        ///< ya se ha numerado alguno
  bool grupoValido = true;
  std::optional<material> capa;       ///< material que se está leyendo
  std::vector<std::size_t> almacen;   ///< posición en el almacén de cada material del fichero
  std::optional<std::size_t> ranura;  ///< composición que se está leyendo

  // Lo que hoy va en un solo campo o se deduce al final.
  std::string apellidos;         ///< del certificador
  std::string numero, escalera;  ///< del edificio
  bool terciario = false;
  std::string cargaInterna, horario;
  /// Dormitorios de cada tipo de vivienda; -1 si no se dicen.
  std::array<int, kTipologias> dobles{-1, -1, -1, -1, -1, -1}, simples = dobles;
  std::string ciudadXml, provinciaXml;
  bool conIndices = false;

  CursorTexto& Cursor(FamiliaTexto familia) { return cursores[static_cast<std::size_t>(familia)]; }
  /// ¿Van los campos que siguen al primer recinto, que es el que tiene un caso de hoy? Sin valor si
  /// su número no valía.
  std::optional<bool> EnPrimerRecinto();

  /// Apunta que un valor no se guarda, y por qué.
  void Saltar(const ValorTexto& valor, std::string_view razon);
  /// Apunta que un valor se guarda de otro modo.
  void Cambiar(const ValorTexto& valor, std::string_view nuevo);
  /// Un entero del fichero; fuera de los límites es 0, con un aviso.
  int LeerEntero(const ValorTexto& valor, int minimo, int maximo);
};

}  // namespace novex
