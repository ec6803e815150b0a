#!/usr/bin/env bash
# Desde una máquina Debian recién instalada: instala lo que falta, compila y pasa todas las pruebas, dos
# veces: con optimización y con los saneadores. La última línea es la cuenta "N passed, N failed" de lo
# que ha dicho GoogleTest en las dos pasadas; cada paso que falla fuera de él cuenta como un fallo más.
# Termina con 0 solo si no falla nada y hay al menos una prueba pasada.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

pasadas=0
falladas=0
omitidas=0

terminar() {
  ((omitidas == 0)) || echo "Pruebas omitidas por falta de datos o de programas: $omitidas"
  ((pasadas > 0 || falladas > 0)) || falladas=1
  echo "$pasadas passed, $falladas failed"
  ((falladas == 0)) || exit 1
  exit 0
}

# paso NOMBRE ORDEN...: ejecuta la orden; si falla lo dice con su nombre y lo cuenta.
paso() {
  local nombre=$1
  shift
  local inicio=$SECONDS
  echo "== $nombre"
  if "$@"; then
    echo "   $((SECONDS - inicio)) s"
    return 0
  fi
  echo "probar.sh: falló el paso: $nombre" >&2
  falladas=$((falladas + 1))
  return 1
}

# Lo que dice cmake va a un registro; solo se enseña su final, y solo cuando algo falla.
compilar() {
  mkdir -p build
  { cmake --preset "$1" && cmake --build --preset "$1"; } >"build/probar_$1.log" 2>&1 || {
    tail -n 60 "build/probar_$1.log" >&2
    return 1
  }
}

# Suma los resúmenes de GoogleTest de una salida de `ctest -V`, cuyas líneas llevan delante el número de
# la prueba. Una entrada que falla sin resumen de fallos (se cayó, pasó de tiempo) cuenta como un fallo.
contar() {
  awk '
    /^[0-9]+: \[  PASSED  \] [0-9]+ tests?\.$/ { pasadas += $5 }
    /^[0-9]+: \[  SKIPPED \] [0-9]+ tests?, listed below:$/ { omitidas += $5 }
    /^[0-9]+: \[  FAILED  \] [0-9]+ tests?, listed below:$/ { falladas += $5; con_fallos[$1 + 0] = 1 }
    /^ *[0-9]+\/[0-9]+ Test +#[0-9]+:/ {
      ++entradas
      numero = $0
      sub(/^[^#]*#/, "", numero)
      if ($0 !~ / Passed +[0-9.]+ sec/ && !((numero + 0) in con_fallos)) ++falladas
    }
    END { print pasadas + 0, falladas + 0, omitidas + 0, entradas + 0 }
  ' "$1"
}

probar() {
  local registro="build/probar_$1_pruebas.log" codigo=0 p f o entradas
  ctest --test-dir "build/$1" -V -j "$(nproc)" >"$registro" 2>&1 || codigo=$?
  read -r p f o entradas < <(contar "$registro")
  # Un código de ctest que no se ve en la cuenta no se pierde.
  ((codigo == 0 || f > 0)) || f=1
  if ((entradas == 0)); then
    echo "ctest no ha encontrado ninguna prueba" >&2
    f=$((f + 1))
  fi
  pasadas=$((pasadas + p))
  falladas=$((falladas + f))
  omitidas=$((omitidas + o))
  # Los fallos ya están contados: el paso no cuenta como otro más.
  ((f > 0)) || return 0
  echo "probar.sh: fallan pruebas de $1" >&2
  grep -aE 'Failure$|^[0-9]+: \[  FAILED  \]|\*\*\*|^[0-9]+: (src/|==|SUMMARY)|runtime error' \
    "$registro" | head -n 80 >&2 || true
  echo "Salida completa en $registro" >&2
  return 0
}

paso "preparar la máquina" scripts/preparar.sh || terminar
paso "inclusiones entre pisos" scripts/comprobar_inclusiones.sh || true
paso "formato" scripts/comprobar_formato.sh || true

paso "compilar (release)" compilar release || terminar
paso "pruebas (release)" probar release

# Los saneadores hacen los cálculos mucho más lentos: una lista corta de casos.
export NOVEX_CASOS=corta
paso "compilar (asan)" compilar asan || terminar
paso "pruebas (asan)" probar asan
terminar
