#!/usr/bin/env bash
# Desde una máquina Debian recién instalada: instala lo que falta, compila, califica una vivienda y
# escribe su certificado en HTML y PDF.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

paso() {
  local nombre=$1
  shift
  "$@" || {
    echo "ejemplo.sh: falló el paso: $nombre" >&2
    exit 1
  }
}

# Lo que dice cmake va a un registro; solo se enseña su final, y solo cuando algo falla.
compilar() {
  mkdir -p build
  {
    cmake --preset release &&
      cmake --build --preset release --target novex-cli carpeta_programa
  } >build/ejemplo.log 2>&1 || {
    tail -n 40 build/ejemplo.log >&2
    return 1
  }
}

paso "preparar la máquina" scripts/preparar.sh
paso "compilar" compilar
proyecto=data/proyectos/vivienda_unifamiliar_D3.xml
salida=build/ejemplo
mkdir -p "$salida"
build/release/novex-cli calcular "$proyecto"
printf '\nCertificado:\n'
# El código de salida es el del programa: 1 si el proyecto no cumple algo, 3 si no se pudo escribir.
build/release/novex-cli certificado "$proyecto" --pdf --salida "$salida"
