"""Transmitancias por defecto de la envolvente, vidrios, marcos y permeabilidad."""

from decimal import Decimal

from leerhechos import ConDecimales, Exigir, LeerHechos
from textoxml import Nodo

PERIODOS = ("Antes_1979", "1979-2013", "2013-2019", "Despues_2019")
LETRAS = ("alfa", "A", "B", "C", "D", "E")
ELEMENTOS = ("murosext", "murosl_ln", "murosln_ext", "cubext", "cubl_ln", "cubln_ext",
             "suelot", "sueloext", "suelovs", "suelol_ln", "sueloln_ext", "hueco")
U_MAXIMA, U_MAXIMA_HUECO = 10, 6  # las que admite el programa
# Cerramientos exteriores de los espacios no acondicionados: ninguna norma los limita.
CONFIANZA_NO_ACONDICIONADO = "baja"


def ValoresDefectoU():
    """U por periodo de construcción y letra de zona; los periodos nombran elementos."""
    filas = {(f["periodo"], f["zona_invierno"]): f
             for f in LeerHechos("valores_defecto_u")}
    Exigir(filas.keys() == {(p, z) for p in PERIODOS for z in LETRAS},
           "valores_defecto_u.csv", "periodos o zonas")
    raiz = Nodo("ValoresDefectoU")
    for periodo in PERIODOS:
        n_periodo = raiz.Hijo(periodo)
        for zona in LETRAS:
            fila = filas[periodo, zona]
            atributos = {e: fila[e + "_W_m2K"] for e in ELEMENTOS}
            for elemento, u in atributos.items():
                maxima = U_MAXIMA_HUECO if elemento == "hueco" else U_MAXIMA
                Exigir(0 < float(u) <= maxima, periodo, zona, elemento)
            n_periodo.Hijo(zona, {
                **atributos, "Confianza": fila["confianza"],
                "ConfianzaLn_ext": CONFIANZA_NO_ACONDICIONADO})
    return raiz


# Nombres que el programa da a los grupos de vidrios y a los marcos, por posición.
GRUPOS_VIDRIO = ("Monolíticos", "Dobles", "Dob.bajo emisivo 0.1-0.2",
                 "Dob.bajo emisivo 0.03-0.1", "Dob.bajo emisivo <0.03", "Otros")
MARCOS = ("Metálico sin rotura puente térmico", "Metálico con rotura puente térmico 4-12mm",
          "Metálico con rotura puente térmico >12mm", "Madera densidad media alta",
          "Madera densidad media baja", "PVC DOS cámaras", "PVC TRES cámaras", "Otros")
CLASES_PERMEABILIDAD = 5
U_VERTICAL, U_HORIZONTAL = "U_vertical (W/m2K)", "U_horizontal (W/m2K)"
FACTOR_SOLAR, C100 = "factor_solar_g (-)", "permeabilidad_100Pa (m3/h m2)"


def _Transmitancias(fila):
    vertical, horizontal = Decimal(fila[U_VERTICAL]), Decimal(fila[U_HORIZONTAL])
    # Con el flujo hacia arriba la resistencia es menor.
    Exigir(0 < vertical <= horizontal, fila["nombre"], "transmitancias")
    return {"U": ConDecimales(vertical, 2), "UH": ConDecimales(horizontal, 2)}


def _Vidrios(raiz, filas):
    for indice, nombre in enumerate(GRUPOS_VIDRIO):
        grupo = raiz.Hijo("Vidrios", {"indice": str(indice), "name": nombre})
        de_grupo = [f for f in filas if f["indice_grupo"] == str(indice)]
        Exigir(len({f["nombre"] for f in de_grupo}) == len(de_grupo) > 0, nombre, "vidrios")
        for fila in de_grupo:
            Exigir(fila["grupo"] == nombre, fila["nombre"], "grupo")
            Exigir(0 < float(fila[FACTOR_SOLAR]) < 1, fila["nombre"], "factor solar")
            grupo.Hijo("Vidrio", {
                "name": fila["nombre"], **_Transmitancias(fila),
                "g": ConDecimales(fila[FACTOR_SOLAR], 2),
                "ConfianzaU": "media" if _Tipico(fila["nombre"]) else "alta",
                "Confianzag": "media"})


def _Tipico(nombre):
    """¿Lleva la U un valor típico, en vez de calculado con UNE-EN 673?"""
    return "control solar" in nombre or nombre.startswith(
        ("Policarbonato", "Metacrilato", "Bloque de vidrio", "Doble ventana"))


def _Marcos(raiz, filas):
    for indice, nombre in enumerate(MARCOS):
        grupo = raiz.Hijo("Marcos", {"indice": str(indice), "name": nombre})
        de_grupo = [f for f in filas if f["indice_grupo"] == str(indice)]
        Exigir(de_grupo, nombre, "sin marcos")
        for fila in de_grupo:
            Exigir(fila["nombre"].startswith(nombre), fila["nombre"], "índice")
            grupo.Hijo("Marco", {"name": fila["nombre"], **_Transmitancias(fila),
                                 "Confianza": "media"})


def _Permeabilidades(raiz, filas):
    Exigir([f["indice_grupo"] for f in filas]
           == [str(i) for i in range(CLASES_PERMEABILIDAD)], "clases de permeabilidad")
    valores = [float(f[C100]) for f in filas]
    Exigir(valores == sorted(valores, reverse=True) and valores[-1] > 0, "permeabilidades")
    nodo = raiz.Hijo("Permeabilidades")
    for fila in filas:
        nodo.Hijo("Permeabilidad", {"clase": fila["indice_grupo"], "name": fila["nombre"],
                                    "C100": fila[C100]})


def VidriosMarcos():
    """Vidrios y marcos por grupo, y permeabilidad al aire por clase."""
    tablas = {}
    for fila in LeerHechos("vidrios_marcos"):
        tablas.setdefault(fila["tabla (vidrio/marco/permeabilidad)"], []).append(fila)
    raiz = Nodo("VidriosMarcos")
    _Vidrios(raiz, tablas["vidrio"])
    _Marcos(raiz, tablas["marco"])
    _Permeabilidades(raiz, tablas["permeabilidad"])
    return raiz
