#!/usr/bin/env python3
"""Dibuja las imágenes de data/bmp/: las de los documentos y las dos de la entrada del programa.

    dibujar_imagenes.py               escribe data/bmp/*.bmp
    dibujar_imagenes.py --comprobar   no escribe; estado 1 si lo escrito difiere

Solo usa la biblioteca estándar y siempre da los mismos bytes. Las letras son trazos propios: no
depende de las fuentes de la máquina.
"""

import argparse
import math
import os
import struct
import sys

AQUI = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(AQUI, "datos"))
SALIDA = os.path.normpath(os.path.join(AQUI, "..", "data", "bmp"))

BLANCO = (255, 255, 255)
TINTA = (31, 42, 51)
GRIS = (140, 152, 160)
BRUMA = (226, 232, 235)
MARCA = (31, 78, 95)
# Colores de la etiqueta energética, de la A a la G (RD 390/2021).
CLASES = {"A": (0, 150, 72), "B": (76, 176, 72), "C": (190, 214, 48), "D": (255, 229, 0),
          "E": (253, 185, 19), "F": (243, 111, 33), "G": (226, 30, 38)}
LETRA_OSCURA = "CDE"

# La escala y las flechas tienen siete franjas de esta altura: puestas al lado con la misma altura
# total, la flecha queda frente a la barra de su letra.
FRANJA = 70
BARRAS = len(CLASES)

# Partes en que se divide un punto: el borde de una forma tiene este número de tonos.
TONOS = 8
# Colores más cercanos que esta distancia al cuadrado comparten sitio en la paleta.
IGUALES = 40


class Lienzo:
    """Imagen de colores RGB en la que se pintan formas con el borde suavizado."""

    def __init__(self, ancho, alto, fondo=BLANCO):
        self.ancho, self.alto = ancho, alto
        self.puntos = [[fondo] * ancho for _ in range(alto)]

    def _Mezclar(self, x, y, tono, color):
        """Pinta un punto cubierto en tono/TONOS."""
        if tono <= 0:
            return
        if tono >= TONOS:
            self.puntos[y][x] = color
            return
        debajo = self.puntos[y][x]
        self.puntos[y][x] = tuple(
            (d * (TONOS - tono) + c * tono + TONOS // 2) // TONOS for d, c in zip(debajo, color))

    def Poligono(self, vertices, color):
        """Rellena un polígono cerrado (par-impar)."""
        arriba = max(0, math.floor(min(y for _, y in vertices)))
        abajo = min(self.alto, math.ceil(max(y for _, y in vertices)))
        lados = list(zip(vertices, vertices[1:] + vertices[:1]))
        for y in range(arriba, abajo):
            cubierto = {}
            for parte in range(TONOS):
                corte = y + (parte + 0.5) / TONOS
                cruces = sorted(x0 + (corte - y0) * (x1 - x0) / (y1 - y0)
                                for (x0, y0), (x1, y1) in lados if (y0 <= corte) != (y1 <= corte))
                for izquierda, derecha in zip(cruces[::2], cruces[1::2]):
                    self._Tramo(izquierda, derecha, cubierto)
            for x, cantidad in cubierto.items():
                self._Mezclar(x, y, math.floor(cantidad + 0.5), color)

    def _Tramo(self, izquierda, derecha, cubierto):
        izquierda, derecha = max(0.0, izquierda), min(float(self.ancho), derecha)
        for x in range(math.floor(izquierda), math.ceil(derecha)):
            parte = min(derecha, x + 1) - max(izquierda, x)
            if parte > 0:
                cubierto[x] = cubierto.get(x, 0.0) + parte

    def Rectangulo(self, x, y, ancho, alto, color):
        self.Poligono([(x, y), (x + ancho, y), (x + ancho, y + alto), (x, y + alto)], color)

    def Circulo(self, x, y, radio, color):
        self.Poligono(Arco(x, y, radio, radio, 0, 360)[:-1], color)

    def Trazo(self, linea, grosor, color):
        """Dibuja una línea quebrada de extremos redondos."""
        radio, cubierto = grosor / 2, {}
        for desde, hasta in zip(linea, linea[1:]):
            for x, y in self._Entorno(desde, hasta, radio + 1):
                lejos = DistanciaASegmento(x + 0.5, y + 0.5, desde, hasta)
                tono = math.floor(max(0.0, min(1.0, radio + 0.5 - lejos)) * TONOS + 0.5)
                if tono > cubierto.get((x, y), 0):
                    cubierto[x, y] = tono
        for (x, y), tono in cubierto.items():
            self._Mezclar(x, y, tono, color)

    def _Entorno(self, desde, hasta, margen):
        xs, ys = (desde[0], hasta[0]), (desde[1], hasta[1])
        for y in range(max(0, math.floor(min(ys) - margen)),
                       min(self.alto, math.ceil(max(ys) + margen))):
            for x in range(max(0, math.floor(min(xs) - margen)),
                           min(self.ancho, math.ceil(max(xs) + margen))):
                yield x, y

    def Texto(self, texto, x, y, alto, grosor, color, separacion=0.24):
        """Escribe con la base en y + alto. Devuelve la x del final."""
        for letra in texto:
            ancho, trazos = LETRAS[letra]
            for trazo in trazos:
                self.Trazo([(x + px * alto, y + py * alto) for px, py in trazo], grosor, color)
            x += (ancho + separacion) * alto
        return x - separacion * alto

    def Bmp(self):
        """Bytes de un BMP con paleta: 16 colores si bastan y si no 256."""
        cuenta = {}
        for fila in self.puntos:
            for color in fila:
                cuenta[color] = cuenta.get(color, 0) + 1
        paleta, indice = [], {}
        # Los tonos de un borde que difieren en el redondeo son el mismo color.
        for color in sorted(cuenta, key=lambda c: (-cuenta[c], c)):
            cerca = min(range(len(paleta)), key=lambda i: (Lejania(paleta[i], color), i),
                        default=None)
            if cerca is None or (Lejania(paleta[cerca], color) > IGUALES and len(paleta) < 256):
                cerca = len(paleta)
                paleta.append(color)
            indice[color] = cerca
        bits = 4 if len(paleta) <= 16 else 8
        filas = b"".join(Fila([indice[c] for c in fila], bits) for fila in reversed(self.puntos))
        colores = b"".join(bytes((b, g, r, 0)) for r, g, b in paleta)
        comienzo = 14 + 40 + len(colores)
        cabecera = struct.pack("<2sIHHI", b"BM", comienzo + len(filas), 0, 0, comienzo)
        # 300 puntos por pulgada.
        informacion = struct.pack("<IiiHHIIiiII", 40, self.ancho, self.alto, 1, bits, 0, len(filas),
                                  11811, 11811, len(paleta), 0)
        return cabecera + informacion + colores + filas


def Lejania(uno, otro):
    return sum((a - b) ** 2 for a, b in zip(uno, otro))


def Fila(indices, bits):
    """Una fila de índices de paleta, completada a cuatro bytes."""
    if bits == 4:
        indices = indices + [0] * (len(indices) % 2)
        indices = [a << 4 | b for a, b in zip(indices[::2], indices[1::2])]
    return bytes(indices) + bytes(-len(indices) % 4)


def DistanciaASegmento(x, y, desde, hasta):
    dx, dy = hasta[0] - desde[0], hasta[1] - desde[1]
    largo = dx * dx + dy * dy
    t = 0.0 if largo == 0 else ((x - desde[0]) * dx + (y - desde[1]) * dy) / largo
    t = max(0.0, min(1.0, t))
    return math.hypot(x - desde[0] - t * dx, y - desde[1] - t * dy)


def Arco(x, y, rx, ry, desde, hasta):
    """Puntos de un arco de elipse; grados, 0 a la derecha y 90 abajo."""
    pasos = max(8, int(abs(hasta - desde) / 6))
    return [(x + rx * math.cos(math.radians(desde + (hasta - desde) * i / pasos)),
             y + ry * math.sin(math.radians(desde + (hasta - desde) * i / pasos)))
            for i in range(pasos + 1)]


def _Letras():
    """Ancho y trazos de cada letra, con la altura de una mayúscula por unidad."""
    n = [[(0, 0.36), (0, 1)], Arco(0.23, 0.6, 0.23, 0.24, 180, 360) + [(0.46, 1)]]
    redonda = Arco(0.25, 0.68, 0.25, 0.32, 0, 360)
    return {
        "A": (0.8, [[(0, 1), (0.4, 0), (0.8, 1)], [(0.14, 0.66), (0.66, 0.66)]]),
        "B": (0.62, [[(0, 0), (0.33, 0)] + Arco(0.33, 0.235, 0.245, 0.235, -90, 90) + [(0, 0.47)],
                     [(0, 0.47), (0.34, 0.47)] + Arco(0.34, 0.735, 0.28, 0.265, -90, 90) +
                     [(0, 1), (0, 0)]]),
        "C": (0.74, [Arco(0.44, 0.5, 0.44, 0.5, -48, -312)]),
        "D": (0.7, [[(0, 0), (0.24, 0)] + Arco(0.24, 0.5, 0.46, 0.5, -90, 90) + [(0, 1), (0, 0)]]),
        "E": (0.56, [[(0.56, 0), (0, 0), (0, 1), (0.56, 1)], [(0, 0.48), (0.49, 0.48)]]),
        "F": (0.54, [[(0.54, 0), (0, 0), (0, 1)], [(0, 0.48), (0.46, 0.48)]]),
        "G": (0.8, [Arco(0.44, 0.5, 0.44, 0.5, -48, -340) + [(0.86, 0.54), (0.52, 0.54)]]),
        "N": (0.7, [[(0, 1), (0, 0), (0.7, 1), (0.7, 0)]]),
        "O": (0.92, [Arco(0.46, 0.5, 0.46, 0.5, 0, 360)]),
        "S": (0.56, [Arco(0.28, 0.25, 0.27, 0.25, -30, -270) +
                     Arco(0.28, 0.75, 0.28, 0.25, -90, 150)]),
        "V": (0.76, [[(0, 0), (0.38, 1), (0.76, 0)]]),
        "X": (0.72, [[(0, 0), (0.72, 1)], [(0.72, 0), (0, 1)]]),
        "a": (0.5, [redonda, [(0.5, 0.36), (0.5, 1)]]),
        "e": (0.5, [[(0, 0.67), (0.5, 0.67)] + Arco(0.25, 0.68, 0.25, 0.32, 0, -312)]),
        "g": (0.5, [redonda, [(0.5, 0.36), (0.5, 1.05)] + Arco(0.25, 1.05, 0.25, 0.24, 0, 150)]),
        "i": (0.0, [[(0, 0.36), (0, 1)], [(0, 0.08), (0, 0.09)]]),
        "m": (0.8, [[(0, 0.36), (0, 1)], Arco(0.2, 0.58, 0.2, 0.22, 180, 360) + [(0.4, 1)],
                    Arco(0.6, 0.58, 0.2, 0.22, 180, 360) + [(0.8, 1)]]),
        "n": (0.46, n),
        " ": (0.2, []),
    }


LETRAS = _Letras()


def AnchoTexto(texto, alto, separacion=0.24):
    return (sum(LETRAS[c][0] for c in texto) + separacion * (len(texto) - 1)) * alto


def LetraDeClase(lienzo, letra, centro, y, alto, grosor):
    """Escribe una letra de la escala centrada, con el color que se lee sobre el de su clase."""
    color = TINTA if letra in LETRA_OSCURA else BLANCO
    lienzo.Texto(letra, centro - LETRAS[letra][0] * alto / 2, y, alto, grosor, color)


def Casilla(marcada):
    lienzo = Lienzo(48, 48)
    lienzo.Rectangulo(2, 2, 44, 44, TINTA)
    lienzo.Rectangulo(5, 5, 38, 38, BLANCO)
    if marcada:
        lienzo.Trazo([(12, 12), (36, 36)], 6, TINTA)
        lienzo.Trazo([(36, 12), (12, 36)], 6, TINTA)
    return lienzo


def Escala():
    """Siete barras que crecen de la A a la G."""
    lienzo = Lienzo(480, FRANJA * BARRAS)
    for i, (letra, color) in enumerate(CLASES.items()):
        fin, arriba, abajo = 196 + 46 * i, FRANJA * i + 5, FRANJA * (i + 1) - 5
        lienzo.Poligono([(0, arriba), (fin - 30, arriba), (fin, (arriba + abajo) / 2),
                         (fin - 30, abajo), (0, abajo)], color)
        LetraDeClase(lienzo, letra, fin - 56, arriba + 13, 34, 7.5)
    return lienzo


def Flecha(letra):
    """La flecha de una clase, a la altura de su barra. Sin letra, una raya en el centro."""
    lienzo = Lienzo(180, FRANJA * BARRAS)
    if letra is None:
        medio = lienzo.alto / 2
        lienzo.Rectangulo(40, medio - 24, 130, 48, BRUMA)
        lienzo.Trazo([(88, medio), (122, medio)], 6, GRIS)
        return lienzo
    arriba = FRANJA * list(CLASES).index(letra) + 3
    abajo = arriba + FRANJA - 6
    lienzo.Poligono([(4, (arriba + abajo) / 2), (42, arriba), (176, arriba), (176, abajo),
                     (42, abajo)], CLASES[letra])
    LetraDeClase(lienzo, letra, 106, arriba + 12, 40, 9)
    return lienzo


def SinImagen():
    lienzo = Lienzo(480, 300, (246, 248, 249))
    lienzo.Rectangulo(0, 0, 480, 300, BRUMA)
    lienzo.Rectangulo(2, 2, 476, 296, (246, 248, 249))
    tono = (176, 187, 193)
    lienzo.Trazo([(185, 78), (295, 78), (295, 162), (185, 162), (185, 78)], 5, tono)
    lienzo.Circulo(214, 103, 9, tono)
    lienzo.Trazo([(190, 156), (220, 126), (240, 144), (264, 114), (290, 146)], 5, tono)
    ancho = AnchoTexto("Sin imagen", 26)
    lienzo.Texto("Sin imagen", 240 - ancho / 2, 196, 26, 3.6, GRIS)
    return lienzo


def Casa(lienzo, x, suelo, ancho, alto, alero, color, ventana):
    """Silueta de una casa a dos aguas con dos ventanas."""
    lienzo.Poligono([(x, suelo), (x, suelo - alto), (x + ancho / 2, suelo - alto - alero),
                     (x + ancho, suelo - alto), (x + ancho, suelo)], color)
    for parte in (0.2, 0.58):
        lienzo.Rectangulo(x + ancho * parte, suelo - alto * 0.72, ancho * 0.22, alto * 0.34, ventana)


def Bloque(lienzo, x, suelo, plantas, columnas, color, ventana):
    lienzo.Rectangulo(x, suelo - plantas * 34 - 14, columnas * 30 + 16, plantas * 34 + 14, color)
    for p in range(plantas):
        for c in range(columnas):
            lienzo.Rectangulo(x + 16 + 30 * c, suelo - (p + 1) * 34, 16, 18, ventana)


def Caratula():
    """Portada: el nombre, unas casas al atardecer y la escala al pie."""
    cielo, lejos, cerca = (238, 243, 245), (203, 216, 222), (129, 158, 171)
    lienzo = Lienzo(800, 480, cielo)
    lienzo.Circulo(455, 288, 66, (250, 226, 160))
    lienzo.Poligono([(0, 330), (140, 286), (300, 322), (470, 276), (640, 320), (800, 282),
                     (800, 400), (0, 400)], lejos)
    Bloque(lienzo, 60, 400, 4, 3, cerca, cielo)
    Bloque(lienzo, 640, 400, 3, 4, cerca, cielo)
    Casa(lienzo, 205, 400, 120, 64, 44, MARCA, (250, 226, 160))
    Casa(lienzo, 356, 400, 96, 54, 38, cerca, cielo)
    Casa(lienzo, 486, 400, 128, 70, 46, MARCA, (250, 226, 160))
    lienzo.Rectangulo(0, 400, 800, 80, MARCA)
    for i, color in enumerate(CLASES.values()):
        lienzo.Rectangulo(200 + 58 * i, 434, 52, 12, color)
    ancho = AnchoTexto("NOVEX", 84, 0.34)
    lienzo.Texto("NOVEX", 400 - ancho / 2, 92, 84, 13, MARCA, 0.34)
    return lienzo


def Cerramientos(lienzo, muro, aislante):
    """Terreno, solera, dos muros, forjado y cubierta de la sección, con su aislamiento."""
    lienzo.Rectangulo(0, 400, 800, 80, (214, 205, 190))
    lienzo.Rectangulo(190, 392, 420, 14, muro)
    lienzo.Rectangulo(190, 406, 420, 6, aislante)
    for x, fuera in ((190, 190), (594, 604)):
        lienzo.Rectangulo(x, 190, 16, 202, muro)
        lienzo.Rectangulo(fuera, 190, 6, 202, aislante)
    lienzo.Rectangulo(206, 286, 388, 10, muro)
    lienzo.Poligono([(164, 196), (400, 74), (636, 196), (636, 208), (400, 86), (164, 208)], muro)
    lienzo.Poligono([(196, 196), (400, 90), (604, 196), (604, 202), (400, 96), (196, 202)], aislante)


def Ventana(lienzo, x, y, ancho, alto):
    lienzo.Rectangulo(x, y, ancho, alto, MARCA)
    lienzo.Rectangulo(x + 4, y + 4, ancho - 8, alto - 8, (196, 222, 234))
    lienzo.Rectangulo(x + ancho / 2 - 1.5, y, 3, alto, MARCA)


def Radiador(lienzo, x, y):
    for i in range(6):
        lienzo.Rectangulo(x + 11 * i, y, 8, 38, (197, 92, 70))


def Instalaciones(lienzo):
    """Captadores, depósito, radiadores y la unidad exterior, con sus tuberías."""
    caliente, fria = (197, 92, 70), (88, 140, 176)
    lienzo.Poligono([(452, 82), (590, 153), (586, 162), (448, 91)], (43, 71, 104))
    for parte in (0.25, 0.5, 0.75):
        x, y = 452 + 138 * parte, 82 + 71 * parte
        lienzo.Trazo([(x, y), (x - 4, y + 9)], 1.6, BRUMA)
    lienzo.Trazo([(584, 166), (574, 182), (574, 322)], 3, caliente)
    lienzo.Rectangulo(548, 322, 36, 66, (108, 124, 134))
    lienzo.Rectangulo(552, 326, 28, 26, caliente)
    lienzo.Rectangulo(552, 352, 28, 32, fria)
    lienzo.Trazo([(548, 374), (512, 374), (512, 382), (330, 382)], 3, caliente)
    Radiador(lienzo, 266, 344)
    Radiador(lienzo, 420, 236)
    lienzo.Trazo([(512, 374), (512, 278), (488, 278)], 3, caliente)
    lienzo.Rectangulo(648, 338, 72, 62, (225, 230, 232))
    lienzo.Trazo([(648, 338), (720, 338), (720, 400), (648, 400), (648, 338)], 3, GRIS)
    for radio, color in ((22, GRIS), (19, (240, 243, 244)), (5, GRIS)):
        lienzo.Circulo(684, 369, radio, color)
    lienzo.Trazo([(648, 364), (584, 364)], 3, caliente)


def Seccion():
    """Corte de una casa: envolvente con aislamiento, sol, captadores y equipos."""
    lienzo = Lienzo(800, 480, (243, 247, 249))
    sol = (246, 196, 72)
    lienzo.Circulo(90, 92, 38, sol)
    for i in range(12):
        c, s = math.cos(math.radians(30 * i)), math.sin(math.radians(30 * i))
        lienzo.Trazo([(90 + 50 * c, 92 + 50 * s), (90 + 64 * c, 92 + 64 * s)], 4, sol)
    lienzo.Poligono([(206, 392), (206, 190), (400, 90), (594, 190), (594, 392)], BLANCO)
    Cerramientos(lienzo, (120, 132, 140), (240, 206, 130))
    for x, y in ((186, 218), (186, 318)):
        lienzo.Rectangulo(x, y, 24, 46, (243, 247, 249))
        lienzo.Rectangulo(x + 8, y, 7, 46, (150, 196, 218))
    Ventana(lienzo, 262, 222, 84, 48)
    Ventana(lienzo, 376, 318, 84, 48)
    Instalaciones(lienzo)
    for y in (234, 334):
        lienzo.Trazo([(132, y - 34), (180, y)], 3, sol)
        lienzo.Trazo([(168, y + 1), (180, y), (176, y - 12)], 3, sol)
    return lienzo


def Imagenes():
    """Todas las imágenes: {fichero: lienzo}."""
    imagenes = {"marcado.bmp": Casilla(True), "blanco.bmp": Casilla(False), "escala.bmp": Escala(),
                "flecha.bmp": Flecha(None), "sinimagen.bmp": SinImagen(),
                "caratulaglobal.bmp": Caratula(), "Dibujo.bmp": Seccion()}
    for letra in CLASES:
        imagenes[f"flecha{letra}.bmp"] = Flecha(letra)
    return imagenes


def main():
    argumentos = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    argumentos.add_argument("--comprobar", action="store_true",
                            help="no escribe: estado 1 si alguna imagen difiere")
    comprobar = argumentos.parse_args().comprobar
    distintas = 0
    for nombre, lienzo in Imagenes().items():
        ruta, datos = os.path.join(SALIDA, nombre), lienzo.Bmp()
        if comprobar:
            igual = False
            if os.path.exists(ruta):
                with open(ruta, "rb") as fichero:
                    igual = fichero.read() == datos
            if not igual:
                print("no es la que sale del guion:", os.path.relpath(ruta), file=sys.stderr)
                distintas += 1
            continue
        os.makedirs(SALIDA, exist_ok=True)
        with open(ruta, "wb") as fichero:
            fichero.write(datos)
        print(os.path.relpath(ruta))
    return 1 if distintas else 0


if __name__ == "__main__":
    sys.exit(main())
