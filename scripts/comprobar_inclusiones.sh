#!/usr/bin/env bash
# Comprueba que las inclusiones de src/ solo bajan por los pisos.
#   comprobar_inclusiones.sh [RAÍZ]
# RAÍZ es la carpeta del repositorio. Termina con 1 y una línea por falta si la hay.
set -euo pipefail

raiz=${1:-"$(dirname "${BASH_SOURCE[0]}")/.."}
cd "$raiz/src"

mapfile -d '' -t ficheros < <(
  find . -type f \( -name '*.h' -o -name '*.hpp' -o -name '*.cpp' -o -name '*.inc' \) -print0 |
    LC_ALL=C sort -z
)
if ((${#ficheros[@]} == 0)); then
  echo "src/: no hay ningún fichero que comprobar" >&2
  exit 1
fi

awk '
  BEGIN {
    n = split("base model files reference demand systems rating compliance calculation entry " \
              "improvements outputs shell", orden, " ")
    for (i = 1; i <= n; ++i) piso[orden[i]] = i
  }
  function falta(motivo) {
    printf "src/%s:%d: %s: %s\n", fichero, FNR, motivo, $0
    ++faltas
  }
  FNR == 1 {
    fichero = substr(FILENAME, 3)
    split(fichero, partes, "/")
    suyo = partes[1]
    cara = ""
    if (fichero ~ /^shell\/cli\//) cara = "cli"
    if (fichero ~ /^shell\/gui\//) cara = "gui"
    if (!(suyo in piso)) falta("carpeta que no es un piso")
  }
  /^[ \t]*#[ \t]*include[ \t]*[<"]/ {
    incluido = $0
    sub(/^[ \t]*#[ \t]*include[ \t]*/, "", incluido)
    angular = substr(incluido, 1, 1) == "<"
    incluido = substr(incluido, 2)
    sub(/[>"].*/, "", incluido)
    split(incluido, partes, "/")
    # Cabeceras de Qt: <QWidget>, <QtCharts/QChart>, <ui_ventana.h>.
    if (cara != "gui" && (incluido ~ /^Q[A-Z]/ || incluido ~ /^Qt[A-Z]/ || incluido ~ /^ui_/))
      falta("Qt fuera de shell/gui")
    else if (partes[1] in piso && index(incluido, "/")) {
      if (angular) falta("lo propio se incluye entre comillas")
      if (piso[partes[1]] > piso[suyo]) falta("inclusión hacia un piso superior")
      else if (incluido ~ /^shell\/cli\// && cara != "cli") falta("inclusión de un programa")
      else if (incluido ~ /^shell\/gui\// && cara != "gui") falta("inclusión de un programa")
    } else if (!angular && !(cara == "gui" && incluido ~ /(\.moc|^ui_.*\.h|^moc_.*\.cpp)$/))
      falta("inclusión que no parte de src/")
    if (incluido ~ /(^|\/)\.\.?\//) falta("camino relativo")
    if (incluido ~ /\.cpp$/ && incluido !~ /^moc_/) falta("inclusión de un .cpp")
  }
  END { exit faltas > 0 }
' "${ficheros[@]}" >&2
