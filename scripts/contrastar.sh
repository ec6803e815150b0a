#!/usr/bin/env bash
# Contrasta los casos de tests/casos con sus resultados esperados y enseña, por caso y magnitud, la
# peor diferencia y qué parte de su tolerancia gasta. Termina con 0 si ninguna la pasa.
#   contrastar.sh [CARPETA DE COMPILACIÓN]
# La carpeta es build/release si no se da otra; ha de estar configurada.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

compilacion=${1:-build/release}
if [[ ! -f "$compilacion/CMakeCache.txt" ]]; then
  echo "contrastar.sh: \"$compilacion\" no es una compilación; antes, cmake --preset release" >&2
  exit 2
fi
registro=$(mktemp)
trap 'rm -f "$registro"' EXIT
cmake --build "$compilacion" --target pruebas_casos >"$registro" 2>&1 || {
  tail -n 40 "$registro" >&2
  exit 2
}

codigo=0
NOVEX_CONTRASTE=1 "$compilacion/pruebas/pruebas_casos" >"$registro" 2>&1 || codigo=$?
grep -q '^CONTRASTE;' "$registro" || {
  tail -n 40 "$registro" >&2
  exit 2
}
awk -F';' '
  BEGIN {
    forma = "%-26s %-30s %-46s %12s %12s %9s %9s\n"
    printf forma, "caso", "magnitud", "peor valor", "esperado", "obtenido", "dif. %", "tol. %"
  }
  $1 == "CONTRASTE" { printf forma, $2, $3, $4, $5, $6, $7, $8 }
' "$registro"
if ((codigo != 0)); then
  grep -A3 'Failure$' "$registro" >&2 || tail -n 40 "$registro" >&2
  exit 1
fi
