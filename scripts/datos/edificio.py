"""Edificio de ejemplo: geometría, composiciones y magnitudes derivadas.

La geometría son plantas poligonales con altura de suelo a suelo; de ellas salen
superficies, perímetros, fachadas por orientación y volumen, de modo que cierran
por construcción. Metros, W/m2K, m3/h y litros salvo que se diga otra cosa.
"""

import math
from dataclasses import dataclass, field

from generar import LeerHechos

SECTORES = ("norte", "oeste", "sur_oeste", "sur", "sur_este", "este")


# ---------------------------------------------------------------- geometría

def Sector(dx, dy):
    """Sector de la normal exterior de un lado antihorario (x este, y norte)."""
    # La normal exterior es (dy, -dx); acimut desde el sur, positivo al oeste.
    acimut = math.degrees(math.atan2(-dy, dx))
    for nombre, centro in (("sur", 0), ("sur_oeste", 45), ("oeste", 90),
                           ("sur_este", -45), ("este", -90)):
        if abs(acimut - centro) <= 22.5:
            return nombre
    return "norte"


def Superficie(vertices):
    """Área con signo de un polígono (positiva si es antihorario)."""
    return sum(x1 * y2 - x2 * y1 for (x1, y1), (x2, y2)
               in zip(vertices, vertices[1:] + vertices[:1])) / 2


@dataclass
class Planta:
    """Planta repetida `veces`. `lados[i]` es de qué da el lado i: un texto
    ("exterior", "medianera", "local") o una lista de (texto, altura) de abajo
    arriba, con "terreno" posible. `nucleo` es un hueco interior no acondicionado.
    """
    vertices: list
    altura: float
    lados: dict = field(default_factory=dict)
    veces: int = 1
    nucleo: list = None
    giro: float = 0.0  # grados, antihorario

    def superficie(self):
        nucleo = Superficie(self.nucleo) if self.nucleo else 0.0
        return Superficie(self.vertices) - nucleo

    def contorno(self):
        """(sector, longitud, [(clase, altura)]) de cada lado y del núcleo."""
        coseno = math.cos(math.radians(self.giro))
        seno = math.sin(math.radians(self.giro))
        for i, (x1, y1) in enumerate(self.vertices):
            x2, y2 = self.vertices[(i + 1) % len(self.vertices)]
            dx, dy = x2 - x1, y2 - y1
            sector = Sector(coseno * dx - seno * dy, seno * dx + coseno * dy)
            clases = self.lados.get(i, "exterior")
            if isinstance(clases, str):
                clases = [(clases, self.altura)]
            if abs(sum(h for _, h in clases) - self.altura) > 1e-9:
                raise ValueError("los trozos de un lado no suman la altura")
            yield sector, math.hypot(dx, dy), clases
        if self.nucleo:
            puntos = self.nucleo + self.nucleo[:1]
            largo = sum(math.dist(a, b) for a, b in zip(puntos, puntos[1:]))
            yield "norte", largo, [("local", self.altura)]

    def longitud_expuesta(self):
        """Longitud de los lados que dan al exterior o al terreno."""
        return sum(largo for _, largo, clases in self.contorno()
                   if clases[0][0] in ("exterior", "terreno"))


# ------------------------------------------------------------ composiciones

RESISTENCIA_CAMARA = {  # m2K/W, por espesor: <= 1 cm, <= 2 cm, mayor
    ("Cámara de aire sin ventilar", "M"): (0.15, 0.17, 0.18),
    ("Cámara de aire sin ventilar", "F"): (0.15, 0.16, 0.16),
    ("Cámara de aire ligeramente ventilada", "M"): (0.075, 0.085, 0.09),
    ("Cámara de aire ligeramente ventilada", "F"): (0.075, 0.08, 0.08),
    ("Cámara de aire muy ventilada", "M"): (0.05, 0.05, 0.05),
    ("Cámara de aire muy ventilada", "F"): (0.05, 0.05, 0.05),
}

# Coeficientes superficiales (he, hi) por familia de cerramiento, W/m2K.
# 9999 es el lado en contacto con el terreno.
FAMILIAS = {
    "Muros_exterior-interior": (25.0, 7.69),
    "Muros_terreno-interior": (9999.0, 7.69),
    "Muros_interior-interior": (7.69, 7.69),
    "Forjados_exterior-interior": (25.0, 10.0),
    "Forjados_interior-interior": (10.0, 10.0),
    "Forjados_interior-exterior": (5.88, 25.0),
    "Forjados_interior-terreno": (5.88, 9999.0),
}


def Familia(ranura):
    """Familia del cerramiento que ocupa una ranura de la tabla de envolvente."""
    if ranura.startswith("MuroExt"):
        return "Muros_exterior-interior"
    if ranura.startswith("MuroTerr"):
        return "Muros_terreno-interior"
    if ranura.startswith("MuroOtro"):
        return "Muros_interior-interior"
    if ranura.startswith(("TechoExt", "TechoInc", "TechoTerr")) or ranura in (
            "TechoVent2", "TechoVent4"):
        return "Forjados_exterior-interior"
    if ranura.startswith("SueloExt"):
        return "Forjados_interior-exterior"
    if ranura.startswith("SueloTerr"):
        return "Forjados_interior-terreno"
    return "Forjados_interior-interior"


@dataclass(frozen=True)
class Capa:
    nombre: str
    grupo: str
    espesor: float
    conductividad: float
    densidad: float
    calor: float
    vapor: float
    resistencia: float
    iniciales: str
    aplicacion: str


class Catalogo:
    """Materiales, vidrios y marcos de los hechos."""

    def __init__(self):
        self._materiales = {}
        for fila in LeerHechos("materiales"):
            self._materiales.setdefault(fila["nombre"], fila)
        self._huecos = LeerHechos("vidrios_marcos")

    def Capa(self, nombre, espesor, ranura):
        """Capa de un material con otro espesor; rt = e/k, o la tabla si es cámara."""
        fila = self._materiales[nombre]
        aplicacion = "M" if Familia(ranura).startswith("Muros") else "F"
        k = float(fila["conductividad (W/mK)"])
        if (nombre, aplicacion) in RESISTENCIA_CAMARA:
            columna = 0 if espesor <= 0.01 else 1 if espesor <= 0.02 else 2
            resistencia = RESISTENCIA_CAMARA[nombre, aplicacion][columna]
            k = round(espesor / resistencia, 3)
        elif fila["grupo"].startswith(("Forjados", "Losas", "Fábricas de bloque")):
            # En forjados y bloques manda la resistencia de la pieza entera.
            if espesor != float(fila["espesor (m)"]):
                raise ValueError(f"{nombre}: no admite otro espesor")
            resistencia = float(fila["resistencia_termica (m2K/W)"])
        else:
            resistencia = espesor / k
        return Capa(nombre, fila["grupo"], espesor, k,
                    float(fila["densidad (kg/m3)"]),
                    float(fila["calor_especifico (J/kgK)"]),
                    float(fila["factor_vapor_mu (-)"]), round(resistencia, 3),
                    fila["codigo"], aplicacion)

    def Hueco(self, tabla, indice, nombre):
        """(fila, posición en su grupo) de un vidrio, marco o permeabilidad."""
        grupo = [f for f in self._huecos
                 if f["tabla (vidrio/marco/permeabilidad)"] == tabla
                 and f["indice_grupo"] == str(indice)]
        for posicion, fila in enumerate(grupo):
            if fila["nombre"] == nombre:
                return fila, posicion
        raise KeyError((tabla, indice, nombre))


def TransmitanciaCapas(capas, ranura):
    """U de una composición: 1/(1/hi + suma de resistencias + 1/he)."""
    he, hi = FAMILIAS[Familia(ranura)]
    return round(1 / (1 / hi + sum(c.resistencia for c in capas) + 1 / he), 2)


# ------------------------------------------------------------------- huecos

@dataclass
class GrupoHuecos:
    """Huecos iguales; `numero` es {sector u "horizontal": cantidad}.

    `separacion` es la de la columna de huecos. `caja` es (altura, U, aislamiento,
    rendija, m3/hm) o None. `vidrio` y `marco` son (índice de grupo, nombre).
    """
    nombre: str
    ancho: float
    alto: float
    numero: dict
    vidrio: tuple
    marco: tuple
    fraccion_marco: float
    permeabilidad: int
    tipo: str = "Ventana"
    retranqueo: float = 0.15
    alero: tuple = (0.0, 0.0)  # distancia sobre el hueco, vuelo
    sombra_movil: int = 0
    control: tuple = (0, 0)
    caja: tuple = None
    obstaculos: dict = field(default_factory=dict)

    def area(self):
        return self.ancho * self.alto

    def total(self):
        return sum(self.numero.values())


PSI_VIDRIO = {  # por tipo de vidrio: marco 0; 1 y 2; 3 a 6; 7 (W/mK)
    0: (0.0, 0.0, 0.0, 0.0), 1: (0.01, 0.06, 0.05, 0.05),
    2: (0.04, 0.08, 0.06, 0.06), 3: (0.04, 0.08, 0.06, 0.06),
    4: (0.04, 0.08, 0.06, 0.06), 5: (0.06, 0.06, 0.06, 0.06)}

FACTOR_SOMBRA = {  # DA DB-HE/1 tabla 12: sencillo, doble, bajo emisivo
    0: (1.0, 1.0, 1.0), 1: (0.06, 0.05, 0.03), 2: (0.11, 0.08, 0.05),
    3: (0.15, 0.11, 0.08), 7: (0.34, 0.34, 0.34), 10: (0.53, 0.51, 0.49),
    13: (0.06, 0.05, 0.03)}


def DatosHueco(grupo, catalogo):
    """Propiedades de un grupo: índices, U, g y los valores del hueco entero."""
    horizontal = "horizontal" in grupo.numero
    columna = "U_horizontal (W/m2K)" if horizontal else "U_vertical (W/m2K)"
    vidrio, concreto = catalogo.Hueco("vidrio", *grupo.vidrio)
    marco, _ = catalogo.Hueco("marco", *grupo.marco)
    clases = ("Sin clasificar (clase 0)", "Clase 1", "Clase 2", "Clase 3", "Clase 4")
    junta, _ = catalogo.Hueco("permeabilidad", grupo.permeabilidad,
                              clases[grupo.permeabilidad])
    ug, uf = float(vidrio[columna]), float(marco[columna])
    g = float(vidrio["factor_solar_g (-)"])
    f = grupo.fraccion_marco * 0.01
    indice_marco = grupo.marco[0]
    clase_marco = 0 if indice_marco == 0 else 1 if indice_marco < 3 else (
        2 if indice_marco < 7 else 3)
    area = grupo.area()
    perimetro = 2 * math.sqrt(1 - f) * (grupo.ancho + grupo.alto)
    perdida = (uf * f * area + ug * (1 - f) * area
               + perimetro * PSI_VIDRIO[grupo.vidrio[0]][clase_marco])
    superficie = area
    if grupo.caja:
        superficie += grupo.ancho * grupo.caja[0]
        perdida += grupo.ancho * grupo.caja[0] * grupo.caja[1]
    factor_solar = g * (1 - f) + 0.04 * uf * f * 0.7
    sombra = FACTOR_SOMBRA[grupo.sombra_movil][min(grupo.vidrio[0], 2)]
    return {"concreto": concreto, "Ug": ug, "g": g, "Uf": uf,
            "C100": float(junta["permeabilidad_100Pa (m3/h m2)"]),
            "UHueco": perdida / superficie, "FactorSolar": factor_solar,
            "FactorSolarSombra": factor_solar * sombra,
            "FSHueco": 0.0 if grupo.fraccion_marco == 100 else factor_solar}


# ------------------------------------------------------- magnitudes de norma

PUENTES_DEFECTO = {  # psi / factor de temperatura, por zona: orden de PUENTES
    "A3": ((0.22, 0.63), (0.41, 0.70), (0.42, 0.68), (0.42, 0.68),
           (0.16, 0.76), (0.87, 0.56), (0.13, 0.72)),
    "B3": ((0.27, 0.63), (0.42, 0.72), (0.46, 0.71), (0.43, 0.71),
           (0.16, 0.78), (0.87, 0.59), (0.13, 0.73)),
    "C1": ((0.27, 0.63), (0.41, 0.75), (0.46, 0.72), (0.43, 0.72),
           (0.16, 0.80), (0.80, 0.62), (0.13, 0.74)),
    "D3": ((0.27, 0.64), (0.41, 0.76), (0.46, 0.74), (0.43, 0.74),
           (0.16, 0.81), (0.77, 0.644), (0.13, 0.75)),
    "E1": ((0.29, 0.67), (0.39, 0.79), (0.46, 0.76), (0.43, 0.76),
           (0.16, 0.83), (0.72, 0.67), (0.13, 0.78)),
}
PUENTES_DEFECTO["B4"] = PUENTES_DEFECTO["B3"]
PUENTES_DEFECTO["C2"] = PUENTES_DEFECTO["C1"]
PUENTES_DEFECTO["D1"] = PUENTES_DEFECTO["D3"]
PUENTES = ("ventanas", "forjados", "cubiertas", "suelo_exterior",
           "esquina_saliente", "pilares", "suelo_terreno")


@dataclass
class Terciario:
    """Uso no residencial: perfil, ocupación, aire exterior, agua y alumbrado."""
    clave: str  # "8hM", "12hM"..
    actividad: str
    m2_persona: float
    aire_persona: float  # m3/h (RITE, IT 1.1.4.2)
    litros_persona: float  # al día, a 60 °C
    alumbrado: float  # W/m2
    lux: float
    veei_max: tuple  # límite y texto de la lista
    equipos: float  # W/m2

    def personas(self, suelo):
        return suelo / self.m2_persona

    def perfil(self):
        """Texto del perfil normalizado del espacio."""
        carga = {"B": "baja", "M": "media", "A": "alta"}[self.clave[-1]]
        return f"noresidencial-{self.clave[:-1]}-{carga}"


@dataclass
class Viviendas:
    """Un tipo de vivienda: cuántas hay y sus piezas (húmedos: baños y cocina)."""
    numero: int
    dormitorios: int
    salas: int
    humedos: int

    def personas(self):
        """Ocupantes de una vivienda (DB-HE, anejo F)."""
        return (0, 1.5, 3, 4, 5, 6, 6, 7)[min(self.dormitorios, 7)]

    def caudal(self):
        """Caudal de una vivienda, l/s: admisión o extracción, el mayor (DB-HS3)."""
        n, s, b = self.dormitorios, self.salas, self.humedos
        if n <= 1:
            return max(6 * s + 8, 6 * b, 12)
        if n == 2:
            return max(8 * s + 12, 7 * b, 24)
        return max((n - 1) * 4 + 8 + 10 * s, 8 * b, 33)


def FactorCentralizacion(viviendas):
    """Simultaneidad del ACS por número de viviendas (DB-HE, anejo F)."""
    for hasta, factor in ((3, 1.0), (10, 0.95), (20, 0.9), (50, 0.85),
                          (75, 0.8), (100, 0.75)):
        if viviendas <= hasta:
            return factor
    return 0.7


def LongitudesPuentes(a):
    """Las doce longitudes de puentes térmicos estimadas de las superficies.

    `a`: suelo y volumen; suelos terreno, exterior, adiabatico, otros; cubiertas
    exterior, buhardilla; muros {sector: m2}, muros_otros, muros_adiabaticos;
    contorno_huecos. Devuelve {etiqueta: m}, cortadas a metro entero.
    """
    h = a["volumen"] / a["suelo"]
    perimetro = {c: 4 * math.sqrt(a[c]) for c in (
        "terreno", "exterior", "adiabatico", "otros", "cubierta", "buhardilla")}
    en_suelo = sum(perimetro[c] for c in ("terreno", "otros", "exterior", "adiabatico"))
    suelos = a["terreno"] + a["exterior"] + a["adiabatico"] + a["otros"]
    muros = sum(a["muros"].values()) + a["muros_otros"]
    p_muros, p_medianeras = muros / h, a["muros_adiabaticos"] / h
    pilares = max(en_suelo / 4 - 4 + 1, 0)
    plantas = max(a["suelo"] / suelos, 1) if suelos else 1
    libre = p_muros / (p_muros + p_medianeras) if muros else 0
    p_forjados = max(p_muros - en_suelo, 0)
    longitudes = {}
    for sector, nombre in zip(SECTORES, ("Norte", "Oeste", "SurOeste", "Sur",
                                         "SurEste", "Este")):
        largo = pilares * h * plantas * libre if muros else 0
        parte = a["muros"][sector] / muros if muros else 0
        longitudes["Long_pilares_" + nombre] = math.floor(largo * parte)
    longitudes["Perimetro_forjados"] = math.floor(
        perimetro["otros"] * 0.6 + p_forjados + perimetro["buhardilla"] * 0.6)
    longitudes["Perimetro_cubiertas"] = math.floor(perimetro["cubierta"])
    longitudes["Longitud_esquinas_sal_menos_ent"] = math.floor(4 * h * plantas * libre)
    longitudes["Perimetro_suelo_ext"] = math.floor(perimetro["exterior"])
    longitudes["Perimetro_huecos"] = math.floor(a["contorno_huecos"])
    longitudes["Perimetro_suelo_terreno"] = math.floor(perimetro["terreno"])
    return longitudes


# ----------------------------------------------------------------- edificio

@dataclass
class Edificio:
    """Un edificio de ejemplo; lo que no es dato de partida se calcula.

    suelos: terreno [(m2, perímetro, profundidad, aislamiento, ancho, Ra)];
    local [(m2, m2 al exterior, renovación)]; vacio [(m2, perímetro)];
    exterior y adiabatico [m2].
    cubiertas: horizontal [(m2, m2 en sombra)]; inclinada [({sector: m2}, cos)];
    buhardilla [(m2, m2 de tejado, renovación)]; adiabatico [m2].
    local: (m2 al exterior del espacio contiguo, renovación, orientación).
    fuera_de_plano: sectores cuya fachada entera está retranqueada.
    """
    general: dict
    plantas: list
    suelos: dict
    cubiertas: dict
    composiciones: dict
    huecos: list
    viviendas: list
    instalacion: dict
    sistemas: list
    local: tuple = (0.0, "renovh=0.", "Norte")
    profundidad_muro: float = 1.0
    hastiales: dict = field(default_factory=dict)
    volumen_cubierta: float = 0.0
    fuera_de_plano: tuple = ()
    forjado: float = 0.30
    terciario: Terciario = None

    def suelo(self):
        return round(sum(p.superficie() * p.veces for p in self.plantas), 1)

    def volumen(self):
        plantas = sum(p.superficie() * p.altura * p.veces for p in self.plantas)
        return round(plantas + self.volumen_cubierta, 1)

    def huella(self):
        return max(p.superficie() for p in self.plantas)

    def fachada(self, sector):
        """Fachada exterior bruta de un sector, con huecos, m2."""
        return self.hastiales.get(sector, 0.0) + self._Muro("exterior", sector)

    def _Muro(self, clase, sector=None):
        return sum(largo * h * p.veces for p in self.plantas
                   for s, largo, clases in p.contorno() for c, h in clases
                   if c == clase and sector in (None, s))

    def muro(self, clase):
        """Muro de una clase (medianera, local, terreno), m2."""
        return round(self._Muro(clase), 1)

    def huecos_sector(self, sector):
        """Área de ventanas y puertas de un sector, m2 (lucernarios aparte)."""
        return sum(g.area() * g.numero.get(sector, 0) for g in self.huecos
                   if g.tipo != "Lucernario")

    def muro_exterior(self, sector):
        """Parte opaca de la fachada de un sector, m2."""
        return round(self.fachada(sector) - self.huecos_sector(sector), 1)

    def lucernarios(self):
        return sum(g.area() * g.total() for g in self.huecos if g.tipo == "Lucernario")

    def numero_viviendas(self):
        return sum(v.numero for v in self.viviendas)

    def agua_caliente(self):
        """Litros al día a 60 °C: 28 por persona y el factor de centralización."""
        if self.terciario:
            t = self.terciario
            return t.personas(self.suelo()) * t.litros_persona
        personas = sum(v.numero * v.personas() for v in self.viviendas)
        return 28 * personas * FactorCentralizacion(self.numero_viviendas())

    def renovaciones(self):
        if self.terciario:
            caudal = self.terciario.personas(self.suelo()) * self.terciario.aire_persona
        else:
            caudal = sum(v.numero * v.caudal() for v in self.viviendas) * 3.6
        return round(caudal / self.volumen(), 2)

    def longitudes_puentes(self):
        s, c = self.suelos, self.cubiertas
        inclinada = sum(round(a, 1) for d, _ in c.get("inclinada", ()) for a in d.values())
        return LongitudesPuentes({
            "suelo": self.suelo(), "volumen": self.volumen(),
            "terreno": sum(round(t[0], 1) for t in s.get("terreno", ())),
            "exterior": sum(round(a, 1) for a in s.get("exterior", ())),
            "adiabatico": sum(round(a, 1) for a in s.get("adiabatico", ())),
            "otros": sum(round(t[0], 1) for t in [*s.get("local", ()), *s.get("vacio", ())]),
            "cubierta": sum(round(t[0], 1) for t in c.get("horizontal", ())) + inclinada,
            "buhardilla": sum(round(t[0], 1) for t in c.get("buhardilla", ())),
            "muros": {x: self.muro_exterior(x) for x in SECTORES},
            "muros_otros": self.muro("local") + self.muro("terreno"),
            "muros_adiabaticos": self.muro("medianera"),
            "contorno_huecos": sum(2 * (g.ancho + g.alto) * g.total()
                                   for g in self.huecos)})

    def ranuras(self):
        """{ranura: m2} de los cerramientos con superficie."""
        s, c = self.suelos, self.cubiertas
        usadas = {"MuroExt1": sum(self.muro_exterior(x) for x in SECTORES),
                  "MuroTerr1": self.muro("terreno"), "MuroOtro1": self.muro("medianera"),
                  "MuroOtro3": self.muro("local"),
                  "MuroExt6": self.local[0] if self.muro("local") else 0.0}
        for i, fila in enumerate(c.get("horizontal", ()), 1):
            usadas[f"TechoExt{i}"] = fila[0]
        for i, (areas, _) in enumerate(c.get("inclinada", ()), 1):
            usadas[f"TechoInc{i}"] = sum(areas.values())
        for interior, exterior, fila in zip(("TechoVent1", "TechoVent3"),
                                            ("TechoVent2", "TechoVent4"),
                                            c.get("buhardilla", ())):
            usadas[interior], usadas[exterior] = fila[0], fila[1]
        for ranura, area in zip(("TechoOtro1", "TechoOtro2"), c.get("adiabatico", ())):
            usadas[ranura] = area
        for i, fila in enumerate(s.get("terreno", ()), 1):
            usadas[f"SueloTerr{i}"] = fila[0]
        for i, area in enumerate(s.get("exterior", ()), 1):
            usadas[f"SueloExt{i}"] = area
        for interior, exterior, fila in zip(("SueloVent1", "SueloVent3"),
                                            ("MuroExt8", "MuroExt9"), s.get("local", ())):
            usadas[interior], usadas[exterior] = fila[0], fila[1]
        for ranura, fila in zip(("SueloOtro1", "SueloOtro3"), s.get("vacio", ())):
            usadas[ranura] = fila[0]
        for ranura, area in zip(("SueloOtro2", "SueloOtro4"), s.get("adiabatico", ())):
            usadas[ranura] = area
        return {ranura: area for ranura, area in usadas.items() if area > 0}
