#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/Mensajes.h"
#include "files/CamposFichero.h"
#include "files/DatosDerivados.h"
#include "files/InformeLectura.h"
#include "files/VersionProyecto.h"
#include "files/xmlParser.h"
#include "model/Edificio.h"

namespace novex {

/// Los registros de un caso mientras se lee o se escribe: se sacan del edificio, las secciones los
/// recorren y al leer se vuelven a guardar.
struct RegistrosCaso {
  DatosGenerales generales;
  Localizacion localizacion;
  ObstaculosRemotos obstaculos;
  Ventilacion ventilacion;
  Construccion construccion;
  DatosPantalla pantalla;
  EstudioModificaciones estudio;
  Recinto recinto;
  std::array<float, kRanuras> U{};
  DatosDerivados::Caso derivados;
  /// Al leer un fichero de una versión anterior, lo que falta conserva el valor del caso en blanco.
  SiFalta siFalta = SiFalta::Vaciar;
  InformeLectura informe;
};

/// Camino de los campos que se repiten en dos secciones con distintos decimales.
namespace campoComun {
inline constexpr auto g = &RegistrosCaso::generales;
inline constexpr auto kWRecuperadorr = Real<g, &DatosGenerales::WRecuperadorr>("WRecuperadorr", 0);
inline constexpr auto kTeminrec = Real<g, &DatosGenerales::Teminrec>("Teminrec", 1);
inline constexpr auto kTemaxrec = Real<g, &DatosGenerales::Temaxrec>("Temaxrec", 1);
inline constexpr auto kTminImp = Real<g, &DatosGenerales::TminImp>("TminImp", 1);
inline constexpr auto kHRmin = Real<g, &DatosGenerales::HRmin>("HRmin", 0);
}  // namespace campoComun

/// Clases de renovación de los espacios no acondicionados: 0, 0.5, 1, 5 y 10 renovaciones por hora.
inline constexpr std::array<std::string_view, 5> kClasesRenovacion = {
    "renovh=0.", "renovh=05", "renovh=1.", "renovh=5", "renovh=10"};
/// Orientaciones de un espacio no acondicionado, por `Sector`.
inline constexpr std::array<std::string_view, kSectores> kOrientacionesLocal = {
    "Norte", "Oeste", "SurOeste", "Sur", "SurEste", "Este"};

namespace camposFichero {

template <std::size_t... Ranuras>
float& UDeRanura(RegistrosCaso& r, Indice donde) {
  static constexpr std::array<std::size_t, sizeof...(Ranuras)> kRanurasTipo = {Ranuras...};
  return r.U[kRanurasTipo.at(donde.tipo)];
}
template <std::size_t... Ranuras>
float& UcteDeRanura(RegistrosCaso& r, Indice donde) {
  static constexpr std::array<std::size_t, sizeof...(Ranuras)> kRanurasTipo = {Ranuras...};
  return r.derivados.UCTE[kRanurasTipo.at(donde.tipo)];
}

}  // namespace camposFichero

/// U de la composición de cada tipo.
template <std::size_t... Ranuras>
constexpr Campo<RegistrosCaso> UDe(std::string_view etiqueta) {
  return Campo<RegistrosCaso>{etiqueta, &camposFichero::UDeRanura<Ranuras...>}.ConDecimales(2);
}
/// U que dan los resultados para la composición de cada tipo; solo se escribe.
template <std::size_t... Ranuras>
constexpr Campo<RegistrosCaso> UcteDe(std::string_view etiqueta) {
  return Campo<RegistrosCaso>{etiqueta, &camposFichero::UcteDeRanura<Ranuras...>}
      .ConDecimales(2)
      .SoloEscritura();
}

/// Lee un grupo de elementos de tipo por su posición y devuelve cuántos hay, sin contar los que
/// pasan de `maximo`, que no se leen. Lo que falta en un elemento conserva su valor.
int LeerTipos(const XMLNode& grupo, std::span<const Campo<RegistrosCaso>> campos, RegistrosCaso& r,
              std::size_t maximo, Mensajes& mensajes);
/// Escribe un grupo de `cuantos` elementos de tipo.
void EscribirTipos(XMLNode& padre, std::string_view grupo, std::string_view etiqueta,
                   std::span<const Campo<RegistrosCaso>> campos, RegistrosCaso& r,
                   std::size_t cuantos);

// Las secciones de un caso. `novex` es el elemento del caso, al que las escrituras añaden lo suyo.
void LeerGenerales(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes);
/// \param primero con el primer caso van las imágenes del proyecto
void EscribirGenerales(XMLNode& novex, RegistrosCaso& r, bool primero);
/// Los datos generales y el sitio de los ficheros que lo tienen en su propia sección.
void LeerGeneralesAntiguos(const XMLNode& novex, const ReglasVersion& reglas, RegistrosCaso& r,
                           Mensajes& mensajes);
// Partes que están igual en todas las disposiciones.
void LeerImagenes(const XMLNode& datos, RegistrosCaso& r);
void LeerObstaculos(const XMLNode& novex, const XMLNode& datos, RegistrosCaso& r,
                    Mensajes& mensajes);
void EscribirCertificado(XMLNode& novex, const RegistrosCaso& r);
void LeerDefinicion(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes);
void EscribirDefinicion(XMLNode& novex, RegistrosCaso& r);
void LeerUso(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes);
void EscribirUso(XMLNode& novex, RegistrosCaso& r);
void LeerGlobales(const XMLNode& novex, const ReglasVersion& reglas, RegistrosCaso& r,
                  Mensajes& mensajes);
void EscribirGlobales(XMLNode& novex, RegistrosCaso& r, const Edificio& edificio);
void LeerPuentes(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes);
void EscribirPuentes(XMLNode& novex, RegistrosCaso& r);
void LeerCubiertas(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes);
void EscribirCubiertas(XMLNode& novex, RegistrosCaso& r);
void LeerMuros(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes);
void EscribirMuros(XMLNode& novex, RegistrosCaso& r);
void LeerSuelos(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes);
void EscribirSuelos(XMLNode& novex, RegistrosCaso& r);
void LeerHuecos(const XMLNode& novex, Edificio& edificio, Mensajes& mensajes);
void EscribirHuecos(XMLNode& novex, const Edificio& edificio);
void LeerMateriales(const XMLNode& novex, Edificio& edificio, Mensajes& mensajes);
void EscribirMateriales(XMLNode& novex, const Edificio& edificio);
void LeerInstalaciones(const XMLNode& novex, const ReglasVersion& reglas, RegistrosCaso& r,
                       Edificio& edificio, Mensajes& mensajes);
void EscribirInstalaciones(XMLNode& novex, RegistrosCaso& r, const Edificio& edificio);
/// Los sistemas, un elemento por bloque de generador dentro del de las instalaciones.
void LeerSistemas(const XMLNode& instalaciones, Edificio& edificio, Mensajes& mensajes);
void EscribirSistemas(XMLNode& instalaciones, const DatosDerivados::Caso& derivados,
                      const Edificio& edificio);
void LeerEstudio(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes);
void EscribirEstudio(XMLNode& novex, const RegistrosCaso& r);

/// Una tabla de campos de un caso, con el elemento que se repite por tipo constructivo; sin él, los
/// campos están una vez.
struct TablaCampos {
  std::string_view elemento;
  std::span<const Campo<RegistrosCaso>> campos;
  std::size_t tipos = 1;
};
// Añaden las tablas de cada sección, en el orden del fichero.
void AnadirTablasGenerales(std::vector<TablaCampos>& tablas);
void AnadirTablasDefinicion(std::vector<TablaCampos>& tablas);
void AnadirTablasUso(std::vector<TablaCampos>& tablas);
void AnadirTablasGlobales(std::vector<TablaCampos>& tablas);
void AnadirTablasPuentes(std::vector<TablaCampos>& tablas);
void AnadirTablasCubiertas(std::vector<TablaCampos>& tablas);
void AnadirTablasMuros(std::vector<TablaCampos>& tablas);
void AnadirTablasSuelos(std::vector<TablaCampos>& tablas);
void AnadirTablasInstalaciones(std::vector<TablaCampos>& tablas);
// Las tablas de los registros que un caso tiene en lista.
std::span<const Campo<TipologiaVivienda>> CamposDeTipologia();
std::span<const Campo<Huecos>> CamposDeHuecos();
/// Un campo de una columna de huecos: el número de los que tiene o una medida.
struct CampoColumna {
  std::string etiqueta;
  std::size_t columna = 0;
  std::size_t obstaculo = 0;                                 ///< posición de su dirección
  float* (*medida)(Huecos&, const CampoColumna&) = nullptr;  ///< nulo en el número
  /// La medida en un grupo; nulo si el campo es el número.
  float* Medida(Huecos& grupo) const { return medida == nullptr ? nullptr : medida(grupo, *this); }
};
/// Los de las columnas de un grupo, en el orden del fichero.
const std::vector<CampoColumna>& CamposDeColumnas();
/// El texto de un campo de columna en el fichero.
std::string TextoDeColumna(const CampoColumna& campo, Huecos& grupo);
/// Decimales con que se escriben las medidas de un hueco.
inline constexpr int kDecimalesHueco = 2;
std::span<const Campo<SistemaResidencial>> CamposDeSistema();
std::span<const Campo<Instalaciones>> CamposDeGenerador();

/// Los registros de un caso, sacados para recorrerlos, y su vuelta al edificio.
RegistrosCaso SacarRegistros(const Edificio& edificio);
void GuardarRegistros(RegistrosCaso r, Edificio& edificio);

}  // namespace novex
