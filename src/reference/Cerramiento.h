#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "base/Tabla.h"
#include "reference/FamiliaCerramiento.h"

namespace novex {

/// Una capa de un cerramiento, o un material del catálogo: sus diez columnas.
struct Capa {
  std::string especificacion;  ///< nombre del catálogo
  float espesor = 0;           ///< m
  float k = 0;                 ///< conductividad, W/mK
  float den = 0;               ///< densidad, kg/m3
  float cp = 0;                ///< calor específico, J/kgK
  float rvapor = 0;            ///< factor de resistencia al vapor, adimensional
  float rterm = 0;             ///< resistencia térmica, m2K/W
  std::string ini;             ///< código corto
  std::string cte;             ///< "cte" o "nocte"
  std::string grupo;           ///< grupo del catálogo
  bool operator==(const Capa&) const = default;
};

/// Valores del atributo `cte`, que son también los nombres de las dos listas de materiales.
inline constexpr std::string_view kListaCte = "cte";
inline constexpr std::string_view kListaNoCte = "nocte";

/// Grupos de materiales con reglas propias.
inline constexpr std::string_view kGrupoSinInercia = "Sin inercia";
inline constexpr std::string_view kGrupoConInercia = "Con inercia";
/// Entrada de las listas que vale por todos los grupos; no está en ningún fichero.
inline constexpr std::string_view kTodosLosGrupos = "Todos";

/// ¿Es de las fábricas de bloque, cuya resistencia es la de la pieza y no la de su espesor?
bool EsGrupoDeBloques(std::string_view grupo);

/// Clases de cámara de aire por su ventilación.
enum class CamaraAire { SinVentilar, LigeramenteVentilada, MuyVentilada };
/// La cámara que lleva ese nombre, como grupo o como especificación; vacío si no es ninguna.
std::optional<CamaraAire> CamaraDe(std::string_view nombre);
/// La cámara que es una capa, por su nombre o por su grupo.
std::optional<CamaraAire> CamaraDe(const Capa& capa);
/// Resistencia térmica de una cámara de aire, m2K/W. \param espesor m; un límite de la tabla es de
/// la columna que acaba en él
float ResistenciaCamara(CamaraAire camara, bool vertical, float espesor);

/// Deja la capa con otro espesor (m): una cámara toma su resistencia de la tabla y de ella su
/// conductividad, con tres decimales; cualquier otra conserva la conductividad, y su resistencia es
/// e/k (0 sin conductividad).
Capa ConEspesor(const Capa& capa, float espesor, bool vertical);

/// U de un cerramiento, W/m2K: 1/(1/hi + suma de resistencias + 1/he) (UNE-EN ISO 6946).
/// Una película 0 no añade resistencia; sin resistencia ninguna la U es 0.
float UCerramiento(std::span<const Capa> capas, Peliculas peliculas);
float UCerramiento(std::span<const Capa> capas, FamiliaCerramiento familia);

/// Lo que se enseña de un cerramiento mientras se define.
struct ResumenCerramiento {
  float espesor = 0;           ///< m
  float peso = 0;              ///< kg/m2
  float resistenciaVapor = 0;  ///< espesor de aire equivalente
  std::string textoEspesor, textoPeso, textoVapor;
  Tabla capas;  ///< una fila por capa, con sus totales en las notas
};
/// Suma espesor, masa y resistencia al vapor de las capas y compone su tabla.
ResumenCerramiento ResumirCerramiento(std::span<const Capa> capas);

/// ¿Deja la tabla de capas cambiar en su sitio el espesor de esta? No en los bloques ni en las
/// cámaras con resistencia tabulada.
bool EspesorEditable(const Capa& capa);
/// Cambia el espesor de una capa por el tecleado, comprobado con "EspesorNuevo".
/// \returns false, sin cambiarla, si su espesor no se edita
bool EditarEspesor(Capa& capa, std::string_view texto, bool vertical, Mensajes& mensajes);

/// Comprueba que un cerramiento se puede guardar: que tiene capas y que ninguna cara es una cámara
/// de aire. Avisa de cada falta, con el título "Atención". \returns si no falta nada
bool ComprobarCerramiento(std::span<const Capa> capas, Mensajes& mensajes);

}  // namespace novex
