"""Normas de los cerramientos: películas de aire por familia y cámaras de aire."""

from decimal import Decimal

# Coeficientes superficiales (he, hi) por familia de cerramiento, W/m2K.
# 9999 es el lado en contacto con el terreno.
FAMILIAS = {
    "Muros_exterior-interior": (25.0, 7.69),
    "Muros_interior-interior": (7.69, 7.69),
    "Muros_terreno-interior": (9999.0, 7.69),
    "Forjados_exterior-interior": (25.0, 10.0),
    "Forjados_interior-interior": (10.0, 10.0),
    "Forjados_interior-exterior": (5.88, 25.0),
    "Forjados_interior-terreno": (5.88, 9999.0),
}

CLASES = ("verticales", "horizontales")

RESISTENCIA_CAMARA = {  # m2K/W, por espesor: <= 1 cm, <= 2 cm, mayor
    ("Cámara de aire sin ventilar", "verticales"): ("0.15", "0.17", "0.18"),
    ("Cámara de aire sin ventilar", "horizontales"): ("0.15", "0.16", "0.16"),
    ("Cámara de aire ligeramente ventilada", "verticales"): ("0.075", "0.085", "0.09"),
    ("Cámara de aire ligeramente ventilada", "horizontales"): ("0.075", "0.08", "0.08"),
    ("Cámara de aire muy ventilada", "verticales"): ("0.05", "0.05", "0.05"),
    ("Cámara de aire muy ventilada", "horizontales"): ("0.05", "0.05", "0.05"),
}
CAMARAS = tuple(dict.fromkeys(nombre for nombre, _ in RESISTENCIA_CAMARA))


def Clase(familia):
    """Clase de orientación: los muros son verticales y lo demás, horizontal."""
    return "verticales" if familia.startswith("Muros_") else "horizontales"


def ResistenciaCamara(nombre, clase, espesor):
    """Resistencia de una cámara de aire, m2K/W."""
    tramo = 0 if espesor <= Decimal("0.01") else 1 if espesor <= Decimal("0.02") else 2
    return Decimal(RESISTENCIA_CAMARA[nombre, clase][tramo])
