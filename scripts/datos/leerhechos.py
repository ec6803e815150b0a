"""Lectura de los hechos y cifras con decimales fijos."""

import csv
import os
from decimal import ROUND_HALF_UP, Decimal

HECHOS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "hechos")


def LeerHechos(nombre):
    """Filas de hechos/<nombre>.csv como diccionarios por cabecera."""
    with open(os.path.join(HECHOS, nombre + ".csv"), encoding="utf-8",
              newline="") as fichero:
        return list(csv.DictReader(fichero, delimiter=";"))


def ConDecimales(valor, decimales):
    """Texto con decimales fijos; las mitades, hacia arriba."""
    return str(Decimal(valor).quantize(Decimal(1).scaleb(-decimales), ROUND_HALF_UP))


def AlMenosDecimales(valor, decimales):
    """Texto con todas las cifras del valor y al menos esos decimales, sin exponente."""
    exacto = Decimal(valor)
    if -exacto.as_tuple().exponent < decimales:
        return ConDecimales(exacto, decimales)
    return format(exacto, "f")


def Exigir(condicion, *motivo):
    """Detiene la generación si los hechos no cumplen una condición."""
    if not condicion:
        raise ValueError(": ".join(str(m) for m in motivo))
