#!/usr/bin/env bash
# Pasa los blancos de libFuzzer de `fuzz/` a los lectores de ficheros: instala lo que falta, los compila y
# ejecuta cada uno unos segundos con límite de memoria y de tiempo por entrada. Las entradas que hacen caer
# un blanco quedan en build/fuzz/caidas/.
# Uso: fuzz.sh [SEGUNDOS [BLANCO...]]; 60 s y todos los blancos si no se dice.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

segundos=${1:-60}
[[ "$segundos" =~ ^[1-9][0-9]*$ ]] || { echo "Uso: $0 [SEGUNDOS [BLANCO...]]" >&2; exit 2; }
shift || true
blancos=("$@")
if ((${#blancos[@]} == 0)); then
  for f in fuzz/blanco_*.cpp; do
    f=$(basename "$f" .cpp)
    blancos+=("${f#blanco_}")
  done
fi

scripts/preparar.sh clang-16 libclang-rt-16-dev
mkdir -p build
{ cmake --preset fuzz && cmake --build --preset fuzz; } >build/fuzz.log 2>&1 || {
  tail -n 60 build/fuzz.log >&2
  exit 1
}

raiz=build/fuzz
fuzz/armar_corpus.sh "$raiz/corpus"
mkdir -p "$raiz/caidas" "$raiz/registros"

# Lo que un blanco encuentra se guarda para la vez siguiente aparte de las entradas de partida.
pasar() {
  local blanco=$1 segundos=$2 raiz=$3
  local hallado="$raiz/hallado/$blanco" registro="$raiz/registros/$blanco.log"
  mkdir -p "$hallado"
  if "$raiz/fuzz/blanco_$blanco" -max_total_time="$segundos" -rss_limit_mb=2048 -timeout=10 \
    -dict="$raiz/corpus/etiquetas.dict" -artifact_prefix="$raiz/caidas/$blanco-" -print_final_stats=1 \
    "$hallado" "$raiz/corpus/$blanco" >"$registro" 2>&1; then
    echo "$blanco: $(sed -n 's/^stat::number_of_executed_units: *//p' "$registro") entradas, nada cae"
  else
    echo "$blanco: CAE ($registro)" >&2
    grep -aE 'ERROR|runtime error|No se cumple|SUMMARY|Test unit written' "$registro" >&2 || true
    return 1
  fi
}
export -f pasar
printf '%s\0' "${blancos[@]}" | xargs -0 -P "$(nproc)" -I{} bash -c 'pasar "$@"' _ {} "$segundos" "$raiz"
