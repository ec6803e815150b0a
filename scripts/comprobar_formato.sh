#!/usr/bin/env bash
# Comprueba el formato de las fuentes con clang-format 14, la versión de Debian 12: otra versión parte
# las líneas de otro modo. Donde no está no se comprueba.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

herramienta=""
for candidata in clang-format-14 clang-format; do
  if command -v "$candidata" >/dev/null && "$candidata" --version | grep -q 'version 14\.'; then
    herramienta=$candidata
    break
  fi
done
if [[ -z "$herramienta" ]]; then
  echo "Sin clang-format 14: no se comprueba el formato"
  exit 0
fi
mal=$(
  find src tests bench fuzz -type f \( -name '*.h' -o -name '*.cpp' \) -print0 | LC_ALL=C sort -z |
    xargs -0 -r "$herramienta" --dry-run 2>&1 | sed -n 's/^\([^:]*\):[0-9]*:[0-9]*: warning:.*/\1/p' |
    uniq
)
if [[ -n "$mal" ]]; then
  echo "Sin el formato de .clang-format (clang-format -i):" >&2
  sed 's/^/  /' <<<"$mal" >&2
  exit 1
fi
