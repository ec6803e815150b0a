#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace novex {

/// Los dos documentos: el certificado y la verificación del DB-HE.
enum class TipoDocumento { Certi, HE };

/// Una variable de un documento: la marca `_nombre_` de la plantilla se cambia por su valor.
struct VBLE {
  std::string nombre, valor;
  bool operator==(const VBLE&) const = default;
};

/// Una capa de una composición.
struct MC_CAPA {
  std::string nombre, conductividad, densidad, calorEspecifico, factorVapor, resistencia, espesor;
  bool operator==(const MC_CAPA&) const = default;
};

/// Un elemento de la envolvente, o en la lista de capas una composición con las suyas.
struct MC_CERRAMIENTO {
  std::string tipo, area, U, definicion, composicion;
  std::vector<MC_CAPA> capas;
};

/// Los huecos de un grupo en una orientación.
struct HUECO {
  std::string grupo, clase, vidrio, Umarco, Uvidrio, g, definicion, orientacionYArea;
};

struct PUENTETERMICO {
  std::string vacio, clase, transmitancia, longitud, origen;
};

struct CONSUMO {
  std::string vector, generador, servicio, energia;
};

struct PRODUCCION {
  std::string servicio, vector, origen, energia;
};

struct FUNCIONAMIENTO {
  std::array<std::string, 6> textos;
};

/// Un generador de un servicio: `EQUIPO_CAL`, `EQUIPO_REF` y `EQUIPO_ACS`.
struct EQUIPO {
  std::string nombre, generador, potencia, rendimientoNominal, rendimientoEstacional, vector;
};

/// Una hoja de mejora, con sus propias variables.
struct MEJORA {
  std::string titulo;
  std::vector<VBLE> variables;
};

inline constexpr std::size_t kCapasCondensacion = 11;

/// Una fila de la comprobación de condensaciones. Van de dos en dos por composición: la de
/// presiones de vapor y la de saturación, con el veredicto.
struct CONDENSACION_COMPO {
  std::string Nombre, Tipo, F1, F2;
  std::array<std::string, kCapasCondensacion> CAPA;
  std::string Cumplimiento;
};

/// Todo lo que un documento enseña, ya como texto: variables y filas de listas. Los valores son
/// HTML; lo que ha escrito el usuario entra con `TextoHtml`.
struct NOVEX_TO_MODELOCERTIFICADO {
  std::vector<VBLE> variables;  ///< con un nombre repetido vale la primera
  std::vector<MC_CERRAMIENTO> cerramientos, composiciones;
  std::vector<HUECO> huecos;
  std::vector<EQUIPO> equiposCalefaccion, equiposRefrigeracion, equiposACS;
  std::vector<CONSUMO> consumos;
  std::vector<PRODUCCION> producciones;
  std::vector<PUENTETERMICO> puentes;
  std::vector<FUNCIONAMIENTO> funcionamiento;
  std::vector<MEJORA> mejoras;
  std::vector<CONDENSACION_COMPO> condensaciones;
};

/// Un texto del usuario como HTML: ni etiquetas ni marcas de plantilla sobreviven.
std::string TextoHtml(std::string_view texto);

}  // namespace novex
