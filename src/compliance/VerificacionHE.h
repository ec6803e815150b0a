#pragma once

#include <filesystem>
#include <vector>

#include "compliance/ControlSolar.h"
#include "compliance/DocumentosHE.h"
#include "compliance/RequisitoHE0.h"
#include "compliance/RequisitoHE3.h"
#include "compliance/RequisitoHE4.h"
#include "compliance/RequisitoHE5.h"
#include "compliance/TransmitanciaGlobal.h"
#include "compliance/TransmitanciasMaximas.h"
#include "compliance/VerificacionCondensacion.h"
#include "demand/calculo.h"
#include "model/Edificio.h"

namespace novex {

/// Todo lo que se verifica del DB-HE en un caso. Las pantallas, la consola y los documentos enseñan
/// esto y no calculan nada.
struct VerificacionHE {
  RequisitoHE0 he0;
  TransmitanciaGlobal K;
  RelacionAire n50;
  ControlSolar q;
  TransmitanciasMaximas maximas;
  VerificacionCondensacion condensacion;
  RequisitoHE3 he3;
  RequisitoHE4 he4;
  RequisitoHE5 he5;
  /// Los veredictos de todas las secciones, en su orden.
  std::vector<Veredicto> veredictos;

  // Las pestañas que no se marcan.
  bool CumpleGlobal() const { return K.cumple && q.cumple && n50.cumple; }
  bool CumpleCondensaciones() const {
    return condensacion.cumpleCerramientos && condensacion.cumplePuentes;
  }
  bool CumpleHE1() const { return CumpleGlobal() && maximas.cumple && CumpleCondensaciones(); }
  /// ¿Se cumple todo lo que se exige?
  bool Cumple() const { return he0.Cumple() && CumpleHE1() && he3.pasa && he4.pasa && he5.pasa; }
};

/// Verifica un caso calculado (CTE DB-HE).
/// \param caso sus resultados \param documentos los ficheros de límites
VerificacionHE VerificarHE(const Edificio& edificio, const calculo& caso,
                           const DocumentosHE& documentos);

/// Escribe los documentos de trabajo: `ValorMaximo.xml`, `Condensacion.xml` y
/// `PuentesTermicos.xml`, cada uno entero.
/// \returns 0, o el código de la capa XML del que no se ha podido escribir
int EscribirDocumentosHE(const std::filesystem::path& datos, const VerificacionHE& verificacion);

}  // namespace novex
