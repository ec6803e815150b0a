#!/usr/bin/env bash
# Arma las entradas de partida de los blancos desde los ejemplos del repositorio, y el diccionario con las
# etiquetas de los proyectos. Uso: armar_corpus.sh CARPETA
set -euo pipefail
[[ $# == 1 ]] || { echo "Uso: $0 CARPETA" >&2; exit 2; }
mkdir -p "$1"
destino=$(cd "$1" && pwd)
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# carpeta BLANCO: deja vacía y da la carpeta de un blanco.
carpeta() {
  rm -rf "${destino:?}/$1"
  mkdir -p "$destino/$1"
  echo "$destino/$1"
}

# Los proyectos se dan enteros y sin los bloques que se repiten, que hacen lenta cada prueba.
proyectos=(data/proyectos/*.xml tests/casos/antiguos/*.xml)
reducir() {
  awk '/<Hueco>/ { if (++huecos > 1) saltar = 1 }
       /<Tipo_sistema>/ { if (++sistemas > 1) saltar = 1 }
       / C24="/ { if (++perfiles > 2) next }
       / C28="/ { next }
       !saltar && !/<(aaQ|abQ|baQ|bbQ|cQ|aR|eR|bR|cR|cC|gC)[0-9]/ { print }
       /<\/(Hueco|Tipo_sistema)>/ { saltar = 0 }' "$1"
}
en=$(carpeta proyecto)
for p in "${proyectos[@]}"; do reducir "$p" >"$en/$(basename "$p")"; done
cp data/proyectos/oficina_VRV_B4.xml "$en/entero.xml"

en=$(carpeta xml)
cp "$destino"/proyecto/v*.xml "$en"
cp data/database/FactoresConversion.xml data/database/Klimite.xml "$en"
printf '<?xml version="1.0" encoding="ISO-8859-1"?>\n<!-- c --><a b="&#233;\xe9" b=%s>t<![CDATA[<x>]]>&amp;<1979-2013/> u </a>\n' \
  "'2'" >"$en/marcas.xml"

# Hasta que haya ejemplos de texto, el blanco parte de unas líneas.
en=$(carpeta proyecto_texto)
ejemplos=()
while IFS= read -r f; do ejemplos+=("$f"); done < <(find tests/casos/antiguos -name '*.txt' | sort)
((${#ejemplos[@]} == 0)) || cp "${ejemplos[@]}" "$en"
printf 'NOVEXPLUS v3.2\r\n1\r\n0.50;2,5;x\r\n' >"$en/lineas.txt"

en=$(carpeta met)
{
  printf 'Zona de ejemplo\n40.5\t-4.0\t667\t15.0\n'
  for hora in $(seq 24); do
    printf '1\t1\t%d\t10.5\t2.5\t-0.0\t12\t0.006\t50\t2.1\t180\t%d\t%d.25\n' \
      "$hora" $((15 * hora - 180)) $((80 + hora))
  done
} >"$en/dia.met"

# La plantilla, la de una mejora y un texto del usuario, separados por un byte nulo.
en=$(carpeta plantilla)
for p in data/database/*.html; do
  { cat "$p"; printf '\0'; head -c 500 data/database/PLANTILLA_MEJORAS.html; printf '\0<b>_A_ &amp; "x"'; } \
    >"$en/$(basename "$p")"
done
printf 'x _A_ _NOMBRE_\n<!--TAG:LISTADO_HUECOS\nz\n-->\n\0_B_ _NOMBRE_\n\0a<b>_A_' >"$en/corta.html"

en=$(carpeta base64)
printf 'Zm9vYmE=\n' >"$en/relleno"
en=$(carpeta imagen)
find data/bmp docs -name '*.png' -size -20k | sort | head -n 4 | while IFS= read -r f; do cp "$f" "$en"; done
printf '\xff\xd8\xff\xe0\0\x10JFIF' >"$en/comienzo.jpg"
printf '<![CDATA[data:image/jpeg;base64,/9j/4A==]]>' >"$en/texto"

en=$(carpeta catalogo)
for c in Materiales Composiciones; do
  sed -n '1,60p' "data/database/$c.xml" >"$en/$c.cortado.xml"
  cp "data/database/$c.xml" "$en"
done

en=$(carpeta lista)
printf '/proyectos\r\nuno.xml\n\ndos.xml' >"$en/lista.txt"

en=$(carpeta estadisticas)
for n in 0 1 2; do
  tabla=$(sed -n "$((n + 1))p" <<<$'mensual\nperfil_diario\ntendencia')
  { head -c "$n" /dev/zero; head -n 4 "data/clima/$tabla.csv"; } >"$en/$tabla"
done
{ printf '\0\0'; cat data/clima/tendencia.csv; } >"$en/entera"

cat "$destino"/proyecto/*.xml data/database/Materiales.xml data/database/Composiciones.xml |
  grep -oE '<[A-Za-z_][A-Za-z_0-9]*|NOVEXPLUS v[0-9.]+|[a-z]+="' | LC_ALL=C sort -u |
  sed 's/[\\"]/\\&/g; s/.*/"&"/' >"$destino/etiquetas.dict"
cat >>"$destino/etiquetas.dict" <<'FIN'
"<![CDATA["
"]]>"
"<!--"
"-->"
"&#"
"&amp;"
"name=\"-1\""
"name=\"1e39\""
"name=\"2147483647\""
"<!--TAG:"
FIN
