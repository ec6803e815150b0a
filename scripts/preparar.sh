#!/usr/bin/env bash
# Instala los paquetes de Debian que hacen falta para compilar y probar: solo los que no están. Los que
# se dan como argumentos se instalan además.
set -euo pipefail

paquetes=(
  g++ cmake ninja-build ccache
  libfmt-dev libpugixml-dev liblodepng-dev
  libcli11-dev nlohmann-json3-dev
  qt6-base-dev qt6-charts-dev qt6-svg-dev libqt6opengl6-dev libgl-dev libopengl-dev libvulkan-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  weasyprint fonts-crosextra-carlito
  poppler-utils libxml2-utils
  "$@"
)

fallar() {
  echo "preparar.sh: falló el paso: $1" >&2
  exit 1
}

instalado() {
  [[ "$(dpkg-query -W -f='${db:Status-Status}' "$1" 2>/dev/null)" == installed ]]
}

command -v dpkg-query >/dev/null || fallar "buscar dpkg-query (hace falta un sistema Debian)"

faltan=()
for paquete in "${paquetes[@]}"; do
  instalado "$paquete" || faltan+=("$paquete")
done
((${#faltan[@]} == 0)) && exit 0

como_root=()
if ((EUID != 0)); then
  command -v sudo >/dev/null || fallar "instalar ${faltan[*]} (hace falta ser root o tener sudo)"
  como_root=(sudo)
fi

# La salida de apt solo interesa cuando algo falla.
registro=$(mktemp)
trap 'rm -f "$registro"' EXIT
en_silencio() {
  local paso=$1
  shift
  "${como_root[@]}" env DEBIAN_FRONTEND=noninteractive "$@" >"$registro" 2>&1 </dev/null || {
    cat "$registro" >&2
    fallar "$paso"
  }
}

echo "Instalando: ${faltan[*]}"
en_silencio "apt-get update" apt-get update -qq
en_silencio "apt-get install ${faltan[*]}" \
  apt-get install -y -qq --no-install-recommends "${faltan[@]}"
