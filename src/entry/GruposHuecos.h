#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "model/Edificio.h"
#include "reference/CatalogoVidrios.h"

namespace novex {

/// Añade un grupo en blanco, de nombre "Grupo_" y el número de grupos que hay con él.
/// \returns su posición
std::size_t AnadirGrupoHuecos(Edificio& edificio);

/// Quita un grupo; el último que queda no se quita. \returns si lo ha quitado
/// \throws std::out_of_range si el grupo no existe
bool QuitarGrupoHuecos(Edificio& edificio, std::size_t grupo);

/// Cambia el nombre de un grupo. \throws std::out_of_range si el grupo no existe
void RenombrarGrupoHuecos(Edificio& edificio, std::size_t grupo, std::string_view nombre);

/// Pone el número de huecos tecleado en una columna: añade huecos del primer recinto o quita los
/// últimos.
void PonerNumeroHuecos(ColumnaHuecos& columna, std::string_view texto, Mensajes& mensajes);

/// Rótulos de las columnas de los seis sectores: inclinadas en un lucernario, ventanas en los demás
/// tipos.
std::array<std::string_view, kSectores> RotulosColumnasHuecos(int tipoDeHueco);

/// Texto de los botones de asignar según `Modo_Vision`.
std::string_view TextoBotonAsignar(std::string_view modoVision);

/// Conjuntos de propiedades que se copian de un grupo a otros.
enum class ConjuntoPropiedades : std::size_t {
  Cristal,
  Marco,
  Modificadores,
  SombrasFijas,
  SombrasMoviles,
  Control,
  Permeabilidad,
  CajaPersiana
};
inline constexpr std::size_t kConjuntosPropiedades = 8;
using SeleccionPropiedades = std::bitset<kConjuntosPropiedades>;

/// Textos de la copia; los de los conjuntos, en su orden.
inline constexpr std::array<std::string_view, kConjuntosPropiedades> kTextosConjunto = {
    "Tipo de cristal",    "Tipo de marco",        "Modificadores generales",
    "Tipo Sombras fijas", "Tipo Sombras móviles", "Tipo control dispositivos móviles",
    "Permeabilidad",      "Tipo Caja persinas"};
inline constexpr std::string_view kTextoTodosLosGrupos = "Todos los grupos";
inline constexpr std::string_view kTextoAplicar = "Aplicar";
inline constexpr std::string_view kTextoSoloVentanas =
    "(Sólo aplicable a ventanas, no a puertas ni lucernarios)";

/// Título de la copia. \param grupo posición del grupo, que se enseña desde 1
std::string TituloCopiaPropiedades(std::size_t grupo);

/// ¿Entra un grupo en la copia de propiedades? Ventanas y escaparates; puertas y lucernarios no.
bool AdmiteCopiaPropiedades(const Huecos& grupo);

/// Copia los conjuntos elegidos de un grupo a otros. Los destinos que no la admiten se saltan, y de
/// un origen que no la admite no se copia nada: lo de una puerta no vale en una ventana.
/// \returns en cuántos grupos se ha copiado, sin contar el de origen
/// \throws std::out_of_range si un grupo no existe
std::size_t CopiarPropiedadesHuecos(Edificio& edificio, std::size_t origen,
                                    std::span<const std::size_t> destinos,
                                    const SeleccionPropiedades& conjuntos);

/// Área de los huecos de un grupo en todas sus columnas, m2.
float AreaGrupoHuecos(const Huecos& grupo);

/// Un vidrio elegido en el catálogo.
struct VidrioElegido {
  int tipo = 0;      ///< posición en la lista de tipos de cristal
  int posicion = 0;  ///< dentro de su tipo
  float U = 0;       ///< W/m2K, en la inclinación del grupo
  float g = 0;       ///< factor solar, tanto por uno
};

/// Un marco elegido en el catálogo.
struct MarcoElegido {
  int tipo = 0;  ///< posición en la lista de marcos
  float U = 0;   ///< W/m2K, en la inclinación del grupo
};

/// Pone en un grupo el vidrio elegido.
void PonerVidrio(Huecos& grupo, const VidrioElegido& vidrio);

/// Pone en un grupo el marco elegido; la fracción de marco no cambia.
void PonerMarco(Huecos& grupo, const MarcoElegido& marco);

/// El vidrio de una posición del catálogo con la U de la inclinación del grupo: la horizontal en un
/// lucernario. \returns nada si no existe
std::optional<VidrioElegido> VidrioDeCatalogo(const CatalogoVidrios& catalogo, const Huecos& grupo,
                                              int tipo, int posicion);

/// El marco de una posición del catálogo, del mismo modo.
std::optional<MarcoElegido> MarcoDeCatalogo(const CatalogoVidrios& catalogo, const Huecos& grupo,
                                            int tipo, int posicion);

/// ¿Tiene el grupo la U y el factor solar de ese vidrio, con los decimales que guarda el fichero?
bool TieneVidrio(const Huecos& grupo, const VidrioElegido& vidrio);

/// Pone en un grupo una clase de permeabilidad al aire (UNE-EN 12207).
void PonerPermeabilidad(Huecos& grupo, const ClasePermeabilidad& clase);

}  // namespace novex
