"""Catálogo de materiales: por clase, lista oficial o no, y grupo."""

from decimal import Decimal

from cerramientos import CAMARAS, CLASES, RESISTENCIA_CAMARA, ResistenciaCamara
from leerhechos import AlMenosDecimales, ConDecimales, Exigir, LeerHechos
from textoxml import Nodo

# Procedencias que cuentan como catálogo oficial, y las que no.
OFICIAL = {
    "CEC": "cte", "UNE-EN ISO 10456": "cte", "CEC / UNE-EN ISO 10456": "cte",
    "CEC / UNE-EN ISO 6946": "cte",
    "UNE-EN ISO 10456 y datos públicos de fabricante": "nocte"}

COLUMNAS = {
    "espesor": "espesor (m)", "k": "conductividad (W/mK)", "den": "densidad (kg/m3)",
    "cp": "calor_especifico (J/kgK)", "rvapor": "factor_vapor_mu (-)",
    "rterm": "resistencia_termica (m2K/W)"}

# Piezas cuya resistencia es la del catálogo; su conductividad es la equivalente.
GRUPOS_PIEZAS = ("Fábricas ", "Forjados ", "Losas ")
TOLERANCIA_PIEZAS = Decimal("0.01")  # el catálogo da la resistencia con dos decimales

# Grupos y nombres que el programa busca por su texto.
GRUPOS_BLOQUE = ("Fábricas de bloque cerámico de arcilla aligerada",
                 "Fábricas de bloque de hormigón convencional",
                 "Fábricas de bloque de hormigón aligerado")
LADRILLOS = {  # espesores que admite cada fila, m
    "Tabique de LH sencillo [40 mm < Espesor < 60 mm]": ("0.04", "0.06"),
    "Tabicón de LH doble [60 mm < E < 90 mm]": ("0.06", "0.09"),
    "Tabicón de LH triple [100 mm < E < 110 mm]": ("0.1", "0.11"),
    "Tabique de LH sencillo Gran Formato [40 mm < E < 60 mm]": ("0.04", "0.06"),
    "Tabicón de LH doble Gran Formato 60 mm < E < 90 mm": ("0.06", "0.09"),
    "Tabicón de LH triple Gran Formato 100 mm < E < 110 mm": ("0.1", "0.11"),
    **{f"{pie} LP métrico o catalán {g} mm": e
       for pie, e in (("1/2 pie", ("0.115", "0.13")), ("1 pie", ("0.24", "0.28")))
       for g in ("40 mm < G < 60", "60 mm < G < 80", "80 mm < G < 100")},
    "1/2 pie LM métrico o catalán 40 mm < G < 50 mm": ("0.115", "0.13"),
    "1 pie LM métrico o catalán 40 mm < G < 50 mm": ("0.24", "0.28"),
}

# Entradas de partida de los grupos del usuario: material del que salen y espesores.
PROPIOS = (
    ("Sin inercia", "Aislamiento ligero definido por su resistencia",
     "MW Lana mineral [0.04 W/mK]", ("0.02", "0.04", "0.08")),
    ("Con inercia", "Aislamiento ligero genérico",
     "MW Lana mineral [0.04 W/mK]", ("0.05",)),
    ("Con inercia", "Fábrica de ladrillo genérica",
     "1/2 pie LP métrico o catalán 60 mm < G < 80 mm", ("0.115",)),
    ("Con inercia", "Hormigón armado genérico", "Hormigón armado 2300 < d < 2500",
     ("0.2",)),
)

MINIMO_MATERIALES = 250


class RaizCatalogo(Nodo):
    """Raíz de un catálogo que el programa edita: lleva la declaración que él escribe."""

    def Documento(self):
        return super().Documento().replace("UTF-8", "utf-8", 1)


def _Material(fila):
    """Fila de los hechos con las cifras exactas."""
    material = {a: Decimal(fila[c]) for a, c in COLUMNAS.items()}
    Exigir(fila["fuente"] in OFICIAL, fila["nombre"], "fuente desconocida")
    return {"grupo": fila["grupo"], "especificacion": fila["nombre"], **material,
            "ini": fila["codigo"], "cte": OFICIAL[fila["fuente"]],
            "confianza": fila["confianza"], "clase": fila["clase_orientacion"]}


def _Camara(material, clase):
    """Comprueba una cámara contra su tabla y deduce su conductividad."""
    nombre, espesor = material["especificacion"], material["espesor"]
    Exigir(material["grupo"] == nombre, nombre, "la cámara no está en su grupo")
    resistencia = ResistenciaCamara(nombre, clase, espesor)
    Exigir(material["rterm"] == resistencia, nombre, espesor, "resistencia")
    k = Decimal(ConDecimales(espesor / resistencia, 3))
    Exigir(abs(k - material["k"]) <= Decimal("0.001"), nombre, espesor, "conductividad")
    return {**material, "k": k}


def _ComprobarResistencia(material):
    """rterm = e/k, dentro de su redondeo; en una cámara es k la que se deduce."""
    if material["grupo"] in CAMARAS:
        return
    rterm, deducida = material["rterm"], material["espesor"] / material["k"]
    tolerancia = Decimal("0.5").scaleb(rterm.as_tuple().exponent)
    if material["grupo"].startswith(GRUPOS_PIEZAS):
        tolerancia = TOLERANCIA_PIEZAS
    Exigir(abs(deducida - rterm) <= tolerancia, material["especificacion"],
           f"rterm {rterm} y e/k {deducida:.5f}")


def _ComprobarGrupo(clase, grupo, materiales):
    """Sin repetidos, y las variantes de un nombre juntas y por espesor."""
    nombres, vistos, anterior = set(), set(), None
    for material in materiales:
        nombre, espesor = material["especificacion"], material["espesor"]
        for atributo in COLUMNAS:
            Exigir(material[atributo] > 0, clase, grupo, nombre, atributo)
        _ComprobarResistencia(material)
        clave = nombre, espesor, material["k"]
        Exigir(clave not in vistos, clase, grupo, nombre, "repetido")
        sigue = anterior and anterior["especificacion"] == nombre
        Exigir(nombre not in nombres or (sigue and anterior["espesor"] <= espesor),
               clase, grupo, nombre, "variantes desordenadas")
        Exigir(not sigue or grupo in CAMARAS or anterior["k"] == material["k"],
               clase, grupo, nombre, "variantes de distinta conductividad")
        nombres.add(nombre)
        vistos.add(clave)
        anterior = material


def _ComprobarLadrillos(materiales):
    """Las filas de ladrillo con espesor acotado, por su nombre exacto."""
    espesores = {m["especificacion"]: m["espesor"] for m in materiales}
    for nombre, (minimo, maximo) in LADRILLOS.items():
        Exigir(nombre in espesores, nombre, "falta en las fábricas de ladrillo")
        Exigir(Decimal(minimo) <= espesores[nombre] <= Decimal(maximo), nombre, "espesor")


def _Propios(base):
    """Entradas de los grupos del usuario, con las cifras de un material corriente."""
    for grupo, nombre, modelo, espesores in PROPIOS:
        for espesor in map(Decimal, espesores):
            yield {**base[modelo], "grupo": grupo, "especificacion": nombre,
                   "espesor": espesor, "ini": "USR", "cte": "nocte",
                   "rterm": Decimal(ConDecimales(espesor / base[modelo]["k"], 3)),
                   "confianza": "orientativo"}


def CatalogoMateriales():
    """{(clase, cte, grupo): [materiales en orden]}, comprobado."""
    todos = [_Material(fila) for fila in LeerHechos("materiales")]
    Exigir(len(todos) >= MINIMO_MATERIALES, "materiales.csv", "faltan materiales")
    base = {m["especificacion"]: m for m in todos}
    catalogo = {}
    for clase in CLASES:
        de_clase = [m for m in todos if m["clase"] in (clase, "ambas")]
        for material in [*de_clase, *_Propios(base)]:
            if material["grupo"] in CAMARAS:
                material = _Camara(material, clase)
            clave = clase, material["cte"], material["grupo"]
            catalogo.setdefault(clave, []).append(material)
    for (clase, _, grupo), materiales in catalogo.items():
        _ComprobarGrupo(clase, grupo, materiales)
    for grupo in GRUPOS_BLOQUE:
        Exigir(("verticales", "cte", grupo) in catalogo, grupo, "no existe")
    for nombre, clase in RESISTENCIA_CAMARA:
        Exigir((clase, "cte", nombre) in catalogo, clase, nombre, "no existe")
    _ComprobarLadrillos(catalogo["verticales", "cte", "Fábricas de ladrillo"])
    return catalogo


def Materiales():
    """Materiales de construcción."""
    catalogo = CatalogoMateriales()
    raiz = RaizCatalogo("MaterialesNovex")
    for clase in CLASES:
        n_clase = raiz.Hijo(clase)
        for cte in ("cte", "nocte"):
            n_cte = n_clase.Hijo(cte)
            for (c, lista, grupo), materiales in catalogo.items():
                if (c, lista) != (clase, cte):
                    continue
                n_grupo = n_cte.Hijo("grupo", {"name": grupo})
                for m in materiales:
                    n_grupo.Hijo("material", {
                        "especificacion": m["especificacion"],
                        "espesor": AlMenosDecimales(m["espesor"], 3),
                        "k": AlMenosDecimales(m["k"], 3),
                        **{a: AlMenosDecimales(m[a], 2) for a in ("den", "cp", "rvapor")},
                        "rterm": AlMenosDecimales(m["rterm"], 3),
                        "ini": m["ini"], "cte": m["cte"], "Confianza": m["confianza"]})
    return raiz
