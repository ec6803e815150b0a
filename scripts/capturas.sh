#!/usr/bin/env bash
# Hace una captura de cada página de la ventana, sin pantalla, en docs/manual/imagenes o en la carpeta que
# se dé. Necesita la compilación `release` con la ventana.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

destino=${1:-docs/manual/imagenes}
mkdir -p "$destino"
destino=$(cd "$destino" && pwd)
NOVEX_CAPTURAS="$destino" NOVEX_CAPTURAS_EJEMPLO="${2:-}" QT_QPA_PLATFORM=offscreen \
  build/release/pruebas/pruebas_gui --gtest_filter='*Capturas*' >/dev/null
echo "Capturas en $destino"
