#pragma once

#include "files/texto/EtiquetaTexto.h"

namespace novex {

/// Las viviendas de cada tipo, que los ficheros de texto llevan en dos secciones.
namespace filaTipologia {

using T = TipologiaVivienda;
inline constexpr auto kFamilia = FamiliaTexto::Tipologia;
inline constexpr auto v = &RegistrosCaso::ventilacion;
inline constexpr auto tipologias = &Ventilacion::tipologias;
inline constexpr int kMaximo = 1'000'000;

/// Guarda los dormitorios de una clase: hoy cuentan juntos los dobles y los simples.
template <auto Dormitorios>
void LeerDormitorios(EstadoTexto& e, const ValorTexto& valor) {
  const auto tipo = e.Cursor(kFamilia).Donde();
  if (!tipo) return e.Saltar(valor, "es de un elemento que no cabe");
  (e.*Dormitorios).at(*tipo) = e.LeerEntero(valor, 0, kMaximo);
}

inline constexpr auto kTotal = Salto("*[I] Numero tipologias totales.");
inline constexpr auto kNumero =
    Control("*[I] Numero tipologia.", PasarAElemento<kFamilia, kTipologias>);
inline constexpr auto kViviendas = Fila(
    Entero<v, tipologias, &T::N_viviendas>("*[I] Numero viviendas.").Entre(0, kMaximo), kFamilia);
inline constexpr auto kDobles =
    Accion("*[I] Numero dormitorios dobles.", LeerDormitorios<&EstadoTexto::dobles>);
inline constexpr auto kSimples =
    Accion("*[I] Numero dormitorios simples.", LeerDormitorios<&EstadoTexto::simples>);
inline constexpr auto kSalas =
    Fila(Entero<v, tipologias, &T::N_salas_estar_comedor>("*[I] Numero salas estar comedor.")
             .Entre(0, kMaximo),
         kFamilia);
inline constexpr auto kBanos =
    Fila(Entero<v, tipologias, &T::N_cuartos_de_banyo>("*[I] Numero cuartos de banyo.")
             .Entre(0, kMaximo),
         kFamilia);

}  // namespace filaTipologia
}  // namespace novex
