"""Altitud, latitud y zonas de los municipios."""

from leerhechos import Exigir, LeerHechos
from textoxml import Nodo

# A las zonas de estas provincias el programa les añade la «c»: aquí van sin ella.
EXTRAPENINSULARES = ("Santa Cruz de Tenerife", "Las Palmas", "Illes Balears", "Ceuta",
                     "Melilla")
CONFIANZA_RADIACION = {"lista": "media-alta", "proximidad": "baja"}
LETRAS = ("alfa", "A", "B", "C", "D", "E")
RADIACION = ("I", "II", "III", "IV", "V")


def _Comprobar(fila):
    """Zona coherente y posición dentro de España."""
    donde = fila["provincia"], fila["municipio"]
    sufijo = "c" if fila["provincia"] in EXTRAPENINSULARES else ""
    zona = fila["zona_letra"] + fila["zona_numero"]
    Exigir(fila["zona_climatica"] == zona + sufijo, *donde, "zona climática")
    Exigir(fila["zona_letra"] in LETRAS and fila["zona_numero"] in ("1", "2", "3", "4"),
           *donde, zona)
    Exigir(fila["zona_radiacion"] in RADIACION, *donde, "zona de radiación")
    Exigir(27 < float(fila["latitud_deg"]) < 44, *donde, "latitud")
    Exigir(0 <= float(fila["altitud_m"]) < 2000, *donde, "altitud")


def _Fila(nombre, fila):
    return {"P": fila["provincia"], "C": nombre, "A": fila["altitud_m"],
            "LAT": fila["latitud_deg"], "ZL": fila["zona_letra"],
            "ZN": fila["zona_numero"], "RAD": fila["zona_radiacion"],
            "ConfianzaRAD": CONFIANZA_RADIACION[fila["zona_radiacion_origen"]]}


def _Nombres():
    """{(provincia, nombre): hecho} de los municipios y de sus otros nombres.

    La capital entra además con el nombre que le da la lista de capitales.
    """
    capitales = {(f["provincia"], f["municipio"]): f["capital"]
                 for f in LeerHechos("capitales")}
    nombres = {}
    for fila in LeerHechos("municipios"):
        _Comprobar(fila)
        clave = fila["provincia"], fila["municipio"]
        otros = [fila["nombre_alternativo"]] if fila["nombre_alternativo"] else []
        capital = capitales.pop(clave, None)
        if capital and capital not in (clave[1], *otros):
            otros.append(capital)
        for nombre in (clave[1], *otros):
            Exigir((clave[0], nombre) not in nombres, clave[0], nombre, "repetido")
            nombres[clave[0], nombre] = fila
    Exigir(not capitales, "capitales sin municipio", sorted(capitales))
    return nombres


def ZONACLIMATICATEMPYRAD():
    """Altitud, latitud, zona climática y zona de radiación por municipio."""
    nombres = _Nombres()
    provincias = {f["provincia"] for f in LeerHechos("capitales")}
    Exigir({p for p, _ in nombres} == provincias, "provincias distintas de las capitales")
    raiz = Nodo("ZONACLIMATICATEMPYRAD")
    for (_, nombre), fila in nombres.items():
        raiz.Hijo("MUNICIPIO", _Fila(nombre, fila))
    return raiz
