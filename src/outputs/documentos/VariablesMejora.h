#pragma once

#include <filesystem>
#include <vector>

#include "improvements/EstudioMejoras.h"
#include "outputs/CasoCalculado.h"
#include "outputs/documentos/ModeloCertificado.h"

namespace novex {

/// Cómo se da una cifra de una medida.
enum class ClaseValor {
  Absoluto,   ///< la cifra
  Relativo,   ///< lo que cambia sobre la base, %; 0 con la base a 0
  Diferencia  ///< lo que se ahorra
};

/// Una cifra de una medida frente a la de la base.
float ValorMejora(const ResultadoMedida& medida, CifraMedida cifra, ClaseValor clase, float base);

/// Añade al modelo una hoja por medida: cifras, letras, diferencias con la base, coste, notas,
/// escalas y flechas. \param carpetaImagenes la de imágenes del programa
void FilasMejoras(const CasoCalculado& caso, const MejorasMedidas& mejoras,
                  const std::filesystem::path& carpetaImagenes, NOVEX_TO_MODELOCERTIFICADO& modelo);

}  // namespace novex
