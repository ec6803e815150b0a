"""Escritura de XML con el aspecto que tienen los ficheros del programa.

Tabuladores por nivel, atributos entre comillas dobles y letras acentuadas como
referencias numéricas; lo que no está en la tabla va en UTF-8.
"""

import os
import struct
import sys
import tempfile

DECLARACION = '<?xml version="1.0" encoding="UTF-8"?>\n'

# Las dos grafías (decimal y hexadecimal de cinco cifras) son las que escribe el
# programa: un fichero de aquí y uno guardado por él son iguales byte a byte.
_ENTIDADES = {
    "&": "&amp;", "<": "&lt;", ">": "&gt;", '"': "&quot;", "'": "&apos;",
    "á": "&#225;", "à": "&#x000E0;", "é": "&#233;", "è": "&#x000E8;",
    "í": "&#237;", "ì": "&#x000EC;", "ó": "&#243;", "ò": "&#x000F2;",
    "ú": "&#250;", "ù": "&#x000F9;", "ñ": "&#241;", "Ñ": "&#209;",
    "ü": "&#252;", "ç": "&#x000E7;", "Á": "&#x000C1;", "À": "&#x000C0;",
    "È": "&#x000C8;", "É": "&#x000C9;", "Í": "&#x000CD;", "Ì": "&#x000CC;",
    "Ó": "&#x000D3;", "Ò": "&#x000D2;", "Ú": "&#x000DA;", "Ù": "&#x000D9;",
    "ï": "&#x000EF;", "ª": "&#170;", "º": "&#186;", "°": "&#176;",
    "Ç": "&#199;", "!": "&#33;", "#": "&#35;", "%": "&#37;",
}


def Escapar(texto):
    """Texto o valor de atributo con las referencias de la tabla."""
    return "".join(_ENTIDADES.get(c, c) for c in texto)


def Fijo(valor, decimales):
    """Texto de un valor con decimales fijos, desde precisión sencilla."""
    sencillo = struct.unpack("f", struct.pack("f", valor))[0]
    texto = f"{sencillo:.{decimales}f}"
    return texto[1:] if texto.startswith("-") and not texto.strip("-0.") else texto


class Nodo:
    """Elemento: atributos en orden, y texto o hijos (nunca las dos cosas)."""

    def __init__(self, nombre, atributos=(), texto=None):
        self.nombre = nombre
        self.atributos = list(dict(atributos).items())
        self.texto = texto
        self.hijos = []

    def Hijo(self, nombre, atributos=(), texto=None):
        """Añade un hijo al final y lo devuelve."""
        hijo = Nodo(nombre, atributos, texto)
        self.hijos.append(hijo)
        return hijo

    def Hoja(self, nombre, valor):
        """Añade la forma corriente de un valor: <nombre name="valor"/>."""
        return self.Hijo(nombre, {"name": valor})

    def Comentario(self, texto):
        """Añade un comentario XML en línea propia."""
        if "--" in texto:
            raise ValueError("un comentario XML no admite dos guiones seguidos")
        hijo = Nodo("!--", (), texto)
        self.hijos.append(hijo)
        return hijo

    def _Lineas(self, nivel, salida):
        sangria = "\t" * nivel
        if self.nombre == "!--":
            salida.append(f"{sangria}<!-- {self.texto} -->\n")
            return
        cabeza = f"{sangria}<{self.nombre}" + "".join(
            f' {n}="{Escapar(v)}"' for n, v in self.atributos)
        if self.hijos:
            salida.append(cabeza + ">\n")
            for hijo in self.hijos:
                hijo._Lineas(nivel + 1, salida)
            salida.append(f"{sangria}</{self.nombre}>\n")
        elif self.texto:
            salida.append(f"{cabeza}>{Escapar(self.texto)}</{self.nombre}>\n")
        else:
            salida.append(cabeza + "/>\n")

    def Documento(self):
        """Documento completo, con declaración, como texto."""
        salida = [DECLARACION]
        self._Lineas(0, salida)
        return "".join(salida)


def EscribirFichero(ruta, texto):
    """Escribe al lado y renombra: el fichero nunca queda a medias."""
    carpeta = os.path.dirname(ruta)
    os.makedirs(carpeta, exist_ok=True)
    descriptor, provisional = tempfile.mkstemp(dir=carpeta)
    try:
        with os.fdopen(descriptor, "wb") as fichero:
            fichero.write(texto.encode("utf-8"))
            fichero.flush()
            os.fsync(fichero.fileno())
        os.chmod(provisional, 0o644)
        os.replace(provisional, ruta)
    except BaseException:
        os.unlink(provisional)
        raise


def Comprobar(ficheros):
    """Compara {ruta: texto} con el disco; devuelve las rutas que difieren."""
    distintos = []
    for ruta, texto in ficheros.items():
        try:
            with open(ruta, "rb") as fichero:
                igual = fichero.read() == texto.encode("utf-8")
        except FileNotFoundError:
            igual = False
        if not igual:
            distintos.append(ruta)
    return distintos


def EscribirOComprobar(ficheros, comprobar, motivo):
    """Escribe {ruta: texto} o, con `comprobar`, nombra en stderr los que difieren.

    Devuelve el estado de salida: 1 si alguno difiere."""
    if comprobar:
        distintos = Comprobar(ficheros)
        for ruta in distintos:
            print(motivo, os.path.relpath(ruta), file=sys.stderr)
        return 1 if distintos else 0
    for ruta, texto in ficheros.items():
        EscribirFichero(ruta, texto)
        print(os.path.relpath(ruta))
    return 0
