"""Catálogo de composiciones: por familia de cerramiento y subtipo."""

from decimal import Decimal

from catalogo_materiales import (COLUMNAS, GRUPOS_PIEZAS, CatalogoMateriales,
                                 RaizCatalogo)
from cerramientos import CAMARAS, FAMILIAS, Clase, ResistenciaCamara
from leerhechos import ConDecimales, Exigir, LeerHechos

MINIMO_COMPOSICIONES = 120
TOLERANCIA_U = Decimal("0.005")
MEDIA_MILESIMA = Decimal("0.0005")

DECIMALES = {"espesor": 3, "k": 3, "den": 2, "cp": 2, "rvapor": 2, "rterm": 3}
ORDEN, TRANSMITANCIA = "orden_capa (1 = primera)", "U_composicion (W/m2K)"


def _MaterialesPorNombre():
    """{(clase, grupo, nombre): [variantes]} del catálogo de materiales."""
    por_nombre = {}
    for (clase, _, grupo), materiales in CatalogoMateriales().items():
        for m in materiales:
            por_nombre.setdefault((clase, grupo, m["especificacion"]), []).append(m)
    return por_nombre


def _ResistenciaEsperada(capa, variantes, clase):
    """(resistencia, tolerancia) que corresponden a una capa de espesor redondeado."""
    nombre, espesor = capa["especificacion"], capa["espesor"]
    if nombre in CAMARAS:
        return ResistenciaCamara(nombre, clase, espesor), 0
    if capa["grupo_name"].startswith(GRUPOS_PIEZAS):
        iguales = [m for m in variantes if m["espesor"] == espesor]
        Exigir(iguales, nombre, f"no existe de {espesor} m")
        return iguales[0]["rterm"], MEDIA_MILESIMA
    return espesor / capa["k"], MEDIA_MILESIMA * (1 + 1 / capa["k"])


def _Capa(fila, clase, materiales):
    """Capa con las cifras de los hechos, contrastada con su material."""
    capa = {"grupo_name": fila["grupo_material"], "especificacion": fila["material"],
            **{a: Decimal(fila[c]) for a, c in COLUMNAS.items()}}
    clave = clase, capa["grupo_name"], capa["especificacion"]
    Exigir(clave in materiales, *clave, "no está en el catálogo de materiales")
    variantes = materiales[clave]
    material = variantes[0]
    for atributo in ("den", "cp", "rvapor"):
        Exigir(capa[atributo] == material[atributo], *clave, atributo)
    Exigir(capa["espesor"] > 0, *clave, "espesor")
    if capa["especificacion"] in CAMARAS:
        capa["k"] = capa["espesor"] / ResistenciaCamara(capa["especificacion"], clase,
                                                        capa["espesor"])
        Exigir(abs(capa["k"] - Decimal(fila[COLUMNAS["k"]])) <= MEDIA_MILESIMA, *clave, "k")
    else:
        Exigir(any(abs(capa["k"] - m["k"]) <= MEDIA_MILESIMA for m in variantes),
               *clave, "k")
    esperada, tolerancia = _ResistenciaEsperada(capa, variantes, clase)
    Exigir(abs(capa["rterm"] - esperada) <= tolerancia, *clave, "rterm")
    Exigir(fila["codigo"] == material["ini"], *clave, "código")
    return {**capa, "ini": material["ini"], "cte": material["cte"]}


def _ComprobarU(nombre, familia, capas, u):
    """U = 1/(1/hi + suma de rterm + 1/he), salvo el redondeo de las resistencias."""
    he, hi = map(Decimal, FAMILIAS[familia])
    calculada = 1 / (1 / hi + sum(c["rterm"] for c in capas) + 1 / he)
    tolerancia = max(TOLERANCIA_U, calculada ** 2 * MEDIA_MILESIMA * len(capas))
    Exigir(abs(calculada - u) <= tolerancia, familia, nombre,
           f"U {u} y calculada {calculada:.3f}")


def _Composicion(familia, nombre, filas, materiales):
    """Capas de una composición, comprobadas."""
    Exigir([f[ORDEN] for f in filas] == [str(i + 1) for i in range(len(filas))],
           familia, nombre, "orden de las capas")
    for columna in ("subtipo", "periodo", TRANSMITANCIA):
        Exigir(len({f[columna] for f in filas}) == 1, familia, nombre, columna)
    for extremo in (filas[0], filas[-1]):
        Exigir(extremo["material"] not in CAMARAS, familia, nombre, "cámara en un extremo")
    capas = [_Capa(f, Clase(familia), materiales) for f in filas]
    _ComprobarU(nombre, familia, capas, Decimal(filas[0][TRANSMITANCIA]))
    return capas


def Composiciones():
    """Composiciones de los cerramientos, de fuera adentro; los suelos, de arriba abajo."""
    por_nombre = {}
    for fila in LeerHechos("composiciones"):
        Exigir(fila["familia"] in FAMILIAS, fila["familia"], "familia desconocida")
        por_nombre.setdefault((fila["familia"], fila["nombre"]), []).append(fila)
    Exigir(len(por_nombre) >= MINIMO_COMPOSICIONES, "faltan composiciones")
    materiales = _MaterialesPorNombre()
    raiz = RaizCatalogo("ComposicionesNovex")
    familias = {f: raiz.Hijo(f) for f in FAMILIAS}
    grupos = {}
    for (familia, nombre), filas in por_nombre.items():
        capas = _Composicion(familia, nombre, filas, materiales)
        clave = familia, filas[0]["subtipo"]
        if clave not in grupos:
            grupos[clave] = familias[familia].Hijo("grupo", {"name": clave[1]})
        nodo = grupos[clave].Hijo("Composicion", {"name": nombre,
                                                  "periodo": filas[0]["periodo"]})
        for capa in capas:
            cifras = {a: ConDecimales(capa[a], n) for a, n in DECIMALES.items()}
            nodo.Hijo("Capa", {"grupo_name": capa["grupo_name"],
                               "especificacion": capa["especificacion"], **cifras,
                               "ini": capa["ini"], "cte": capa["cte"]})
    for familia, nodo in familias.items():
        Exigir(nodo.hijos, familia, "no tiene composiciones")
    return raiz
