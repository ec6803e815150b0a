"""Comprobaciones de un edificio de ejemplo antes de escribirlo."""

import re

from edificio import SECTORES


def _Cierre(e):
    """Suelos y cubiertas contra la huella; fachadas contra sus huecos."""
    suelos = sum(f if isinstance(f, float) else f[0]
                 for filas in e.suelos.values() for f in filas)
    cubiertas = e.lucernarios()
    for clave, filas in e.cubiertas.items():
        for fila in filas:
            if clave == "inclinada":
                cubiertas += sum(fila[0].values()) * fila[1]
            else:
                cubiertas += fila if isinstance(fila, float) else fila[0]
    for nombre, area in (("suelos", suelos), ("cubiertas", cubiertas)):
        if abs(area - e.huella()) > 0.05:
            yield f"los {nombre} suman {area:.2f} m2 y la huella {e.huella():.2f}"
    contorno = sum(largo * h * p.veces for p in e.plantas
                   for _, largo, clases in p.contorno() for _, h in clases)
    muros = (sum(e.muro_exterior(s) + e.huecos_sector(s) for s in SECTORES)
             + e.muro("medianera") + e.muro("local") + e.muro("terreno")
             - sum(e.hastiales.values()))
    if abs(contorno - muros) > 0.5:
        yield f"los muros suman {muros:.2f} m2 y el contorno {contorno:.2f}"
    for sector in SECTORES:
        fachada, huecos = e.fachada(sector), e.huecos_sector(sector)
        if huecos > 0.6 * fachada:
            yield f"huecos al {sector}: {huecos:.2f} m2 en {fachada:.2f} de fachada"


def _Calculable(e, proyecto):
    """Lo que el programa pide antes de calcular una vivienda."""
    suelos = sum(f if isinstance(f, float) else f[0]
                 for filas in e.suelos.values() for f in filas)
    if not 0.9 <= e.suelo() / suelos <= 50:
        yield "relación entre suelo habitable y suelos definidos"
    if not 2 < e.volumen() / e.suelo() < 5:
        yield "relación entre volumen y suelo habitable"
    if abs(e.volumen() / e.suelo() - max(p.altura for p in e.plantas)) > 0.5:
        yield "el volumen no responde a la altura de las plantas"
    for ranura in e.ranuras():
        if not proyecto.U(ranura) > 0:
            yield f"{ranura} tiene superficie y no composición"
    for ranura in e.composiciones:
        if ranura not in e.ranuras():
            yield f"{ranura} tiene composición y no superficie"
    for ranura, (_, capas, _) in proyecto.composiciones.items():
        if "Cámara" in capas[0].nombre or "Cámara" in capas[-1].nombre:
            yield f"{ranura} empieza o acaba en cámara de aire"
    yield from _AguaCaliente(e, proyecto.g["PerfilUso"])


def _AguaCaliente(e, perfil):
    """Un equipo por vivienda, o uno central, y un solo esquema solar."""
    sistemas = [s for s in e.sistemas if "ACS" in s["tipo"].split("+")]
    individuales = [s for s in sistemas if not s["central"]]
    if perfil == "1":
        for i, v in enumerate(e.viviendas):
            equipos = sum(s["equipos"] for s in individuales if s["tipo_vivienda"] == i)
            if individuales and equipos != v.numero:
                yield f"calentadores del tipo {i}: {equipos} para {v.numero} viviendas"
        if not sistemas:
            yield "el bloque no tiene agua caliente"
    elif not e.terciario and (len(sistemas) != 1
                              or sistemas[0]["equipos"] != 1):
        yield "una vivienda lleva un solo equipo de agua caliente"
    if not e.terciario and any(g.tipo == "Escaparate" for g in e.huecos):
        yield "una vivienda no tiene escaparates"
    captadores = e.instalacion["campos"].get("N_colec_term", "0") != "0"
    solares = {v for s in sistemas for k, v in s["campos"].items()
               if k.startswith("Alimentacion") and "solar" in v}
    if len(solares) != (1 if captadores else 0):
        yield "los captadores y la alimentación de los depósitos no se corresponden"


def _Administrativo(g):
    """Referencia catastral del registro DGC, datos del certificador y visita."""
    parcela, inmueble, parte = g["Catastro"]
    if not re.fullmatch(r"[0-9A-Z]{14}", parcela):
        yield "parcela catastral"
    if not re.fullmatch(r"[0-9]{4}[A-Z]{2}", inmueble):
        yield "inmueble catastral"
    if not re.fullmatch(r"[0-9A-Za-z_-]{3,36}", parte) or max(
            parte.count("-"), parte.count("_")) > 1:
        yield "parte catastral"
    for campo, valor in g["Certificador"].items():
        if not valor:
            yield f"certificador sin {campo}"
    for campo in ("Edificio_Titulo", "Direccion", "CodigoPostal", "AnoConstruccion"):
        if not g[campo]:
            yield f"falta {campo}"
    if not 1 <= len(g["Visitas"]) <= 3 or len(g["Observaciones"]) > 3:
        yield "número de visitas u observaciones"


def Faltas(edificio, proyecto):
    """Lista de lo que no cuadra; vacía si el edificio se puede escribir."""
    return [*_Cierre(edificio), *_Calculable(edificio, proyecto),
            *_Administrativo(proyecto.g)]
