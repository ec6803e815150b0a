#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "model/Instalaciones.h"

namespace novex {

// Títulos de las elecciones de un sistema nuevo y de su botón.
inline constexpr std::string_view kTituloServicio = "Añadir tipo de servicio";
inline constexpr std::string_view kTituloTipologia = "Tipología instalación";
inline constexpr std::string_view kBotonCrear = "Crear instalación";

/// Un servicio de la lista, en la posición que ocupa en ella.
struct ServicioSistema {
  std::string_view rotulo;       ///< lo que lee el usuario
  std::string_view tipoSistema;  ///< texto de `Tipo_sistema`
};
/// Los servicios de un sistema. El último, que está en algún proyecto, no se ofrece al crear.
inline constexpr std::array<ServicioSistema, 6> kServiciosSistema = {{
    {"Calefacción + Refrigeración", "Calefaccion+Refrigeracion"},
    {"Refrigeración", "Refrigeracion"},
    {"Calefacción", "Calefaccion"},
    {"ACS", "ACS"},
    {"ACS + Calefacción", "ACS+Calefaccion"},
    {"ACS + Calefacción + Refrigeración", "ACS+Calefaccion+Refrigeracion"},
}};
inline constexpr std::size_t kServiciosOfrecidos = 5;

/// Una tipología de instalación.
struct TipologiaInstalacion {
  std::string_view rotulo;  ///< lo que lee el usuario
  std::string_view texto;   ///< lo que guarda `TipoInstalacionesG`
};
inline constexpr std::string_view kCentralizada = "Centralizada/Bloque";
inline constexpr std::string_view kIndividual = "Individual/Vivienda";
inline constexpr std::array<TipologiaInstalacion, 2> kTipologiasInstalacion = {
    {{"Centralizada/Edificio", kCentralizada}, {"Individual/Vivienda", kIndividual}}};

using ListaTextos = std::span<const std::string_view>;

// Valores de los campos de elección de un bloque, como se guardan.
inline constexpr std::array<std::string_view, 4> kTiposGenerador = {
    "Convencional", "Baja temperatura", "Condensacion", "Biomasa"};
inline constexpr std::array<std::string_view, 2> kTiposBC = {"Monoblock", "Partida"};
inline constexpr std::array<std::string_view, 4> kControlesBomba = {"Cte", "Vble P=Cte",
                                                                    "Vble Po=P/2", "Vble DT=Cte"};
inline constexpr std::array<std::string_view, 2> kConsumosEmisor = {
    "Consumo vent. unidad int. incluido", "Añadir consumo ventilador interior"};
inline constexpr std::array<std::string_view, 2> kRetornos = {"Sin retorno", "Con retorno"};
/// Horarios de la bomba de retorno, por su número en `NHretorno`.
inline constexpr std::array<std::string_view, 2> kHorariosRetorno = {"24 horas", "Consumo"};
inline constexpr std::array<std::string_view, 5> kCombustibles = {"GasNatural", "Gasoleo_C", "GLP",
                                                                  "Carbon", "Electricidad"};
inline constexpr std::array<std::string_view, 2> kBiocombustibles = {"Biomasa_Pellet",
                                                                     "Biomasa_Otros"};
inline constexpr std::string_view kAguaRed = "Alimentación agua red";
/// Lo que se añade al nombre de un emisor que comparte la zona con el sistema de ventilación.
inline constexpr std::string_view kMasVentilacion = " + Sist.Vent.";

/// Clases de generador de un servicio en una tipología, en el orden de la lista; vacía si alguno de
/// los dos textos no existe.
/// \param tipoSistema texto de `Tipo_sistema` \param tipologia texto de `TipoInstalacionesG`
ListaTextos ClasesOfrecidas(std::string_view tipoSistema, std::string_view tipologia);

/// Emisores que puede llevar una clase de generador en un servicio; vacía si no calienta ni enfría
/// la zona o lo hace sin emisor que elegir.
ListaTextos EmisoresOfrecidos(std::string_view tipoSistema, std::string_view seleccion);

/// Valores de `Distribucion` de una clase de generador en un servicio; vacía si no se elige.
ListaTextos DistribucionesOfrecidas(std::string_view tipoSistema, std::string_view seleccion);

/// Valores de `Distribucion2`, que solo elige el calentador.
ListaTextos Distribuciones2Ofrecidas(std::string_view tipoSistema, std::string_view seleccion);

/// El campo de la alimentación que mira el arreglo de agua caliente de un bloque, y sus valores.
struct AlimentacionOfrecida {
  std::string Instalaciones::*campo = nullptr;  ///< nulo si el bloque no tiene alimentación
  ListaTextos valores;
};
/// Alimentación de un bloque por su servicio, su clase y su lado del agua.
AlimentacionOfrecida AlimentacionDeBloque(std::string_view tipoSistema,
                                          const Instalaciones& bloque);

/// ¿Es de las clases de rendimiento estacional que no admiten otro equipo del mismo servicio?
bool EsClaseEstacional(std::string_view seleccion);

/// ¿Está un texto en una lista?
bool EstaEn(ListaTextos lista, std::string_view texto);

/// Lo que lee el usuario de un `Tipo_sistema`; el mismo texto si no es de la lista.
std::string_view RotuloServicio(std::string_view tipoSistema);

/// El nombre de un emisor sin lo que añade el sistema de ventilación.
std::string_view EmisorBase(std::string_view emisor);

}  // namespace novex
