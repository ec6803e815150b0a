#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/Edificio.h"

namespace novex {

/// Rótulo de los datos de una instalación: de quién es y a quién sirve, por el uso del caso y la
/// tipología. \param tipologia texto de `TipoInstalacionesG`
std::string EtiquetaInstalacion(const DatosGenerales& generales, std::string_view tipologia);

/// La clase de un sistema y su emisor, como en "1 Caldera (Radiadores)" o "1 BC aire-agua
/// (Conductos+Sist.Vent.)". Sin emisor si no calienta ni enfría la zona. \returns el nombre del
/// sistema si no tiene ningún bloque
std::string EtiquetaClase(const SistemaResidencial& sistema);

/// Rótulo de un sistema en el árbol: sus servicios y `EtiquetaClase`.
std::string EtiquetaSistema(const SistemaResidencial& sistema);

/// La carga de cada servicio que le toca a un sistema, en tanto por ciento: "Reparto: calefacción
/// 75 % · ACS 100 %". Uno de aire reparte la del aire de ventilación. \param sistema desde 0
std::string TextoReparto(const Edificio& edificio, std::size_t sistema);
/// Los servicios que los sistemas no cubren enteros: "Sin sistema: refrigeración 100 %". Vacío si
/// no los hay.
std::string TextoSinSistema(const Edificio& edificio);

/// Notas fijas que acompañan a un sistema en la pantalla: la del suelo radiante si es su emisor, la
/// de los recuperadores si el caso los tiene y la de la coherencia con la ventilación si su emisor
/// depende de ella.
std::vector<std::string_view> NotasSistema(const Edificio& edificio,
                                           const SistemaResidencial& sistema);

}  // namespace novex
