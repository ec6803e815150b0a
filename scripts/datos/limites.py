"""Límites del DB-HE1 por zona y documentos de trabajo de su verificación."""

import re
from decimal import Decimal

from leerhechos import ConDecimales, Exigir, LeerHechos
from municipios import LETRAS
from textoxml import Nodo

# Zonas con fichero de clima; la «c» final es la del clima de Canarias.
ZONAS = ("A4", "A3", "B4", "B3", "C1", "C2", "C3", "C4", "D1", "D2", "D3", "E1",
         "alfa1c", "alfa2c", "alfa3c", "alfa4c", "A1c", "A2c", "A3c", "A4c",
         "B1c", "B2c", "B3c", "B4c", "C1c", "C2c", "C3c", "C4c", "D1c", "D2c", "D3c",
         "E1c")

# Atributo <- (tabla, elemento[, condición]) de limites_he1.csv.
K_NUEVO = "3.1.1.b", "K_residencial_nuevo_y_ampliacion"
K_REFORMA = "3.1.1.b", "K_residencial_cambio_de_uso_o_reforma_mas_25"
N50 = "3.1.3.b", "n50_residencial_nuevo_mas_120_m2"
ORIGEN_K = {
    "Compacidad1": (*K_NUEVO, "V/A <= 1"), "Compacidad4": (*K_NUEVO, "V/A >= 4"),
    "Compacidad1R": (*K_REFORMA, "V/A <= 1"), "Compacidad4R": (*K_REFORMA, "V/A >= 4"),
    "VA2": (*N50, "V/A <= 2"), "VA4": (*N50, "V/A >= 4")}
TERRENO_O_NO_HABITABLE = "3.1.1.a", "muros_suelos_cubiertas_espacio_no_habitable_o_terreno"
ORIGEN_U = {
    "MuroMax": ("3.1.1.a", "muros_y_suelos_aire_exterior"),
    "CerraTerrMax": TERRENO_O_NO_HABITABLE,
    "ParticionMax": TERRENO_O_NO_HABITABLE,
    "SueloExtMax": ("3.1.1.a", "muros_y_suelos_aire_exterior"),
    "TechoExtMax": ("3.1.1.a", "cubiertas_aire_exterior"),
    "HuecosMax": ("3.1.1.a", "huecos"),
    "EscaparateMax": ("3.1.1.a", "huecos_escaparate"),
    "PuertasMax": ("3.1.1.a", "puertas"),
    "PermeabilidadMax": ("3.1.3.a", "permeabilidad_huecos_Q100"),
    "ParticionMedianeraMax": ("3.1.1.a", "medianerias_y_particiones_de_la_envolvente"),
    "ParticionesIntMaxHz": ("3.2", "particiones_interiores_horizontales"),
    "ParticionesIntMaxV": ("3.2", "particiones_interiores_verticales"),
    "ParticionesDUsoMax": ("3.2", "particiones_interiores_distinto_uso_o_zonas_comunes")}

# (menor, mayor): relaciones que guardan los límites de una misma letra.
ORDEN_K = (("Compacidad1", "Compacidad4"), ("Compacidad1R", "Compacidad4R"),
           ("Compacidad1", "Compacidad1R"), ("Compacidad4", "Compacidad4R"),
           ("VA4", "VA2"))
ORDEN_U = (("TechoExtMax", "MuroMax"), ("MuroMax", "CerraTerrMax"),
           ("HuecosMax", "PuertasMax"), ("ParticionesIntMaxV", "ParticionesIntMaxHz"),
           ("ParticionesDUsoMax", "ParticionesIntMaxV"))


def _LetraInvierno(zona):
    """Letra de invierno de un nombre de zona."""
    partes = re.fullmatch(r"(alfa|[A-E])[1-4]c?", zona)
    Exigir(partes, zona, "no es una zona")
    return partes[1]


def _PorLetra(origen, orden):
    """{letra: {atributo: límite}}; ningún límite crece con el rigor del invierno."""
    filas = LeerHechos("limites_he1")
    por_letra = {letra: {} for letra in LETRAS}
    for atributo, clave in origen.items():
        halladas = [f for f in filas
                    if (f["tabla"], f["elemento"], f["condicion"])[:len(clave)] == clave]
        Exigir(len(halladas) == 1, "limites_he1.csv", *clave, "no es una fila")
        valores = [Decimal(halladas[0][letra]) for letra in LETRAS]
        Exigir(valores == sorted(valores, reverse=True) and valores[-1] > 0,
               "limites_he1.csv", *clave, "crece con el invierno")
        for letra, valor in zip(LETRAS, valores):
            por_letra[letra][atributo] = valor
    for letra, limites in por_letra.items():
        for menor, mayor in orden:
            Exigir(limites[menor] <= limites[mayor], letra, f"{menor} supera {mayor}")
    return por_letra


def _FilasPorZona(nombre, por_letra):
    """Una fila por zona con los límites de su letra."""
    raiz = Nodo(nombre)
    for zona in ZONAS:
        limites = por_letra[_LetraInvierno(zona)]
        raiz.Hijo("L", {"HE1": zona, **{a: ConDecimales(v, 2) for a, v in limites.items()}})
    return raiz


def Klimite():
    """Límites de K (vivienda nueva y reforma) y de n50 entre dos compacidades."""
    return _FilasPorZona("Klimite", _PorLetra(ORIGEN_K, ORDEN_K))


def ValorMaximoU():
    """Transmitancia máxima de cada elemento y permeabilidad máxima de los huecos."""
    por_letra = _PorLetra(ORIGEN_U, ORDEN_U)
    for letra, limites in por_letra.items():
        Exigir(limites["EscaparateMax"] == limites["HuecosMax"] * Decimal("1.5"), letra,
               "el escaparate no es el hueco más un 50 %")
        Exigir(limites["ParticionMedianeraMax"] == limites["CerraTerrMax"], letra,
               "la medianería no lleva el límite del terreno")
    return _FilasPorZona("VALORMAXIMOU", por_letra)


# Orientación de la tabla impresa -> la del cálculo que le corresponde: este y oeste se cruzan.
SIMETRICA = {"NE": "NO", "E": "O", "SE": "SO", "S": "S",
             "SO": "SE", "O": "E", "NO": "NE", "N": "N"}
SIN_TABLA_IMPRESA = {"alfa4c"}
TOLERANCIA_HORIZONTAL, TOLERANCIA_VERTICAL = Decimal("0.003"), Decimal("0.015")


def _IrradiacionImpresa():
    """{zona: {atributo: kWh/m2}} de la tabla oficial."""
    impresa = {}
    for fila in LeerHechos("irradiacion_julio"):
        zona = fila["zona"] + ("c" if fila["territorio"] == "canarias" else "")
        Exigir(zona not in impresa, "irradiacion_julio.csv", zona, "repetida")
        impresa[zona] = {a: Decimal(fila[a + "_kWh_m2_mes"]) for a in ("Horiz", *SIMETRICA)}
    return impresa


def _IrradiacionCalculada():
    """Lo mismo, calculado con los climas de referencia y puesto como la tabla."""
    calculada = {}
    for fila in LeerHechos("rad_julio"):
        if fila["modelo_cielo"] != "perez":
            continue
        Exigir(fila["zona"] not in calculada, "rad_julio.csv", fila["zona"], "repetida")
        calculada[fila["zona"]] = {
            "Horiz": Decimal(fila["Horizontal_kWh_m2_mes"]),
            **{a: Decimal(fila[s + "_kWh_m2_mes"]) for a, s in SIMETRICA.items()}}
    return calculada


def RadJulio():
    """Irradiación de julio: la tabla impresa y, donde no llega, la calculada."""
    impresa, calculada = _IrradiacionImpresa(), _IrradiacionCalculada()
    Exigir(sorted(calculada) == sorted(ZONAS), "rad_julio.csv", "zonas")
    Exigir(impresa.keys() == set(ZONAS) - SIN_TABLA_IMPRESA, "irradiacion_julio.csv", "zonas")
    for zona, valores in impresa.items():
        for atributo, valor in valores.items():
            tolerancia = TOLERANCIA_HORIZONTAL if atributo == "Horiz" else TOLERANCIA_VERTICAL
            Exigir(abs(calculada[zona][atributo] / valor - 1) <= tolerancia,
                   "irradiacion_julio.csv", zona, atributo, "lejos de la calculada")
    raiz = Nodo("RadJulio")
    for zona in ZONAS:
        valores = impresa.get(zona) or calculada[zona]
        raiz.Hijo("L", {"HE1": zona, **{a: ConDecimales(v, 2) for a, v in valores.items()},
                        "Confianza": "alta" if zona in impresa else "media-alta"})
    return raiz


# El programa busca los accesorios por este texto; cada grupo, de claro a oscuro.
GRUPOS_ACCESORIOS = (
    tuple(f"Persiana exterior {c}" for c in ("blanca", "pastel", "oscura", "negra")),
    tuple(f"Persiana interior {c}" for c in ("blanca", "pastel", "oscura", "negra")),
    tuple(f"Cortina interior {c}" for c in ("blanca", "pastel", "oscura", "negra")),
    ("Contraventanas",))
ACRISTALAMIENTOS = {"Sencillo": "sencillo", "Doble": "doble",
                    "Doblebajoemisivo": "doble_bajo_emisivo",
                    "Triplebajoemisivo": "triple_bajo_emisivo"}


def _FactoresAccesorio(fila, ggl_n):
    """Factores sobre el factor solar normal, contrastados con los publicados."""
    factores = {}
    for atributo, vidrio in ACRISTALAMIENTOS.items():
        factor = Decimal(fila["factor_sobre_ggl_n_" + vidrio])
        publicado = Decimal(fila["ggl_sh_wi_" + vidrio]) / ggl_n[vidrio]
        donde = fila["dispositivo"], atributo
        Exigir(0 < factor < 1, *donde, "factor")
        Exigir(factor == Decimal(ConDecimales(publicado, 3)), *donde, "no es ggl;sh,wi / ggl;n")
        factores[atributo] = factor
    return factores


def Accesorios():
    """Factor de corrección del factor solar por protección móvil y acristalamiento."""
    ggl_n = {f["vidrio"]: Decimal(f["ggl_n"]) for f in LeerHechos("factor_solar_vidrios")}
    filas = LeerHechos("factor_solar_accesorios")
    por_tipo = {f["dispositivo"]: f for f in filas}
    Exigir(len(por_tipo) == len(filas), "factor_solar_accesorios.csv", "repetidos")
    raiz = Nodo("Accesorios")
    for grupo in GRUPOS_ACCESORIOS:
        anterior = dict.fromkeys(ACRISTALAMIENTOS, 0)
        for tipo in grupo:
            Exigir(tipo in por_tipo, "factor_solar_accesorios.csv", tipo, "no existe")
            factores = _FactoresAccesorio(por_tipo[tipo], ggl_n)
            for atributo, factor in factores.items():
                Exigir(factor > anterior[atributo], tipo, atributo, "menor que otro más claro")
            anterior = factores
            confianza = por_tipo[tipo]["confianza"].partition(":")[0]
            raiz.Hijo("L", {"Tipo": tipo,
                            **{a: ConDecimales(f, 3) for a, f in factores.items()},
                            "Confianza": confianza})
    return raiz


# Textos de las filas 1 a 13, por posición: el orden es parte del formato.
FILAS_VALOR_MAXIMO = (
    "Muros exteriores", "Cerramientos en contacto con el terreno",
    "Particiones con espacios no habitables", "Medianeras", "Suelos al exterior",
    "Cubiertas", "Huecos", "Escaparates", "Puertas", "Particiones interiores horizontales",
    "Particiones interiores verticales", "Particiones con distinto uso",
    "Permeabilidad de huecos")


def ValorMaximo():
    """Documento de trabajo de los valores máximos: cabecera y textos de sus filas."""
    resultados = ("UPROYECTO", "UMAX", "CUMPLIMIENTO")
    raiz = Nodo("VALORMAXIMO")
    raiz.Hijo("L", {c: c for c in ("CERRAMIENTO", *resultados)})
    for texto in FILAS_VALOR_MAXIMO:
        raiz.Hijo("L", {"CERRAMIENTO": texto, **dict.fromkeys(resultados, "")})
    return raiz


def Condensacion():
    """Documento de trabajo de las condensaciones: vacío hasta la primera verificación."""
    return Nodo("CONDENSACION")
