#pragma once

#include <filesystem>
#include <functional>

#include "calculation/Entorno.h"
#include "files/xmlParser.h"
#include "model/GestorEdifActivo.h"

namespace novex {

/// Qué se pide al hacer el fichero para la administración.
struct PedidoAdministracion {
  std::filesystem::path proyecto;  ///< con qué nombre se guarda
  /// ¿Lo ha elegido el usuario ahora? Solo cambia el aviso final.
  bool nombreElegido = false;
  ModoCodificacion codificacion;  ///< la del fichero abierto
  /// Otro programa que hace el informe con el proyecto ya guardado; nulo, se hace aquí. Devuelve si
  /// se ha encargado de ello: si no, se hace aquí.
  std::function<bool(const std::filesystem::path& proyecto, const std::filesystem::path& informe)>
      convertidor;
};

/// En qué ha quedado.
enum class FinAdministracion {
  Escrito,
  Rechazado,   ///< falta algo que el fichero exige, o que el cálculo necesita
  SinCalcular  ///< falta el clima o el volumen de un depósito
};

/// Lo escrito; sin fin "Escrito" no hay nada.
struct EscrituraAdministracion {
  FinAdministracion fin = FinAdministracion::Rechazado;
  std::filesystem::path proyecto;  ///< el proyecto guardado, "X.xml"
  std::filesystem::path informe;   ///< "X_certi.xml", a su lado
};

/// Hace el fichero para la administración del caso base: comprueba sus datos, lo calcula si no lo
/// está, mide sus medidas marcadas, guarda el proyecto como siempre y escribe el informe a su lado.
/// Calcula también los casos de mejora que puede, para que el proyecto guarde lo suyo.
/// Antes de guardar no se ha escrito nada. De lo que lo impide, y al acabar, avisa.
/// \throws ErrorFichero si no se puede escribir \throws ErrorCalculo como `CalcularCaso`
EscrituraAdministracion EscribirFicheroAdministracion(GestorEdifActivo& gestor,
                                                      const PedidoAdministracion& pedido,
                                                      Entorno& entorno);

}  // namespace novex
