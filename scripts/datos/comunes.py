"""Lo que comparten los edificios de ejemplo: materiales, carpinterías y datos fijos."""

MORTERO = ("Mortero de cemento o cal para albañilería y para revoco/enlucido "
           "1800 < d < 2000")
MONOCAPA = "Mortero monocapa de revestimiento"
CAL = "Revoco de cal y arena"
AUTONIVELANTE = "Mortero autonivelante de anhidrita"
YESO = "Enlucido de yeso 1000 < d < 1300"
PYL = "Placa de yeso laminado [PYL] 750 < d < 900, 12.5 mm"
MEDIO_PIE = "1/2 pie LP métrico o catalán 60 mm < G < 80 mm"
PIE = "1 pie LP métrico o catalán 60 mm < G < 80 mm"
MEDIO_PIE_MACIZO = "1/2 pie LM métrico o catalán 40 mm < G < 50 mm"
PIE_MACIZO = "1 pie LM métrico o catalán 40 mm < G < 50 mm"
PIE_Y_MEDIO_MACIZO = "1 1/2 pie LM métrico o catalán 40 mm < G < 50 mm"
TABIQUE = "Tabique de LH sencillo [40 mm < Espesor < 60 mm]"
TABICON = "Tabicón de LH doble [60 mm < E < 90 mm]"
TABICON_GF = "Tabicón de LH doble Gran Formato 60 mm < E < 90 mm"
BLOQUE_20 = "BH convencional espesor 200 mm"
MAMPOSTERIA = "Fábrica de mampostería de granito con mortero"
LANA_035 = "MW Lana mineral [0.035 W/mK]"
LANA_042 = "MW Lana mineral [0.042 W/mK]"
XPS = "XPS Expandido con dióxido de carbono CO2 [0.034 W/mK]"
PUR = "PUR Proyección con Hidrofluorcarbono HFC [0.028 W/mK]"
CAMARA = "Cámara de aire sin ventilar"
GRES = "Plaqueta o baldosa de gres"
BALDOSA = "Plaqueta o baldosa cerámica"
TERRAZO = "Terrazo"
TARIMA = "Frondosa, de peso medio 565 < d < 750"
TABLA = "Conífera, de peso medio 435 < d < 520"
TEJA = "Teja de arcilla cocida"
RASILLON = "Tablero cerámico (bardo) machihembrado"
GRAVA = "Grava suelta de protección"
GEOTEXTIL = "Geotextil de poliéster"
LAMINA = "Betún fieltro o lámina"
PENDIENTES = "Hormigón celular sin áridos d 305 (formación de pendientes)"
HORMIGON = "Hormigón armado 2300 < d < 2500"
ENCACHADO = "Encachado de grava"
FORJADO_30 = "FU Entrevigado de hormigón -Canto 300 mm"
FORJADO_CERAMICO = "FU Entrevigado cerámico -Canto 250 mm"
FORJADO_EPS = "FU Entrevigado de EPS moldeado enrasado -Canto 250 mm"
RETICULAR = "FR Entrevigado de hormigón -Canto 300 mm"
REVOLTON = "Forjado de viguetas metálicas con revoltón cerámico y relleno"

# Cajas de persiana: altura, U, aislamiento, rendija, m3/hm.
CAJA_AISLADA = (0.20, 0.80, "2-4 cm aislamiento", "Estanco", 0.0)
CAJA_BLOQUE = (0.20, 1.20, "1-2 cm aislamiento", "Estanco", 0.0)
CAJA_ANTIGUA = (0.25, 2.00, "Sin aislamiento", "1 mm rendija", 0.40)

PVC = (6, "PVC TRES cámaras")
ALUMINIO = (0, "Metálico sin rotura puente térmico")
ALUMINIO_RPT = (1, "Metálico con rotura puente térmico 4-12mm")
MADERA = (3, "Madera densidad media alta")
PUERTA_AISLADA = (7, "Otros: Puerta blindada aislada")
PUERTA_MADERA = (7, "Otros: Puerta de madera maciza")
SIN_VIDRIO = (0, "4")

COMUNIDADES = {"Madrid": "Comunidad de Madrid", "A Coruña": "Galicia",
               "Valencia/València": "Comunidad Valenciana",
               "Barcelona": "Cataluña", "Soria": "Castilla y León",
               "Navarra": "Comunidad Foral de Navarra", "Murcia": "Región de Murcia",
               "Sevilla": "Andalucía", "Málaga": "Andalucía", "Vizcaya": "País Vasco"}

CERTIFICADOR = {
    "Nombre": "Nombre Apellido", "NIF": "00000000T", "Empresa": "Estudio de Ejemplo",
    "CIF": "B00000000", "Direccion": "Calle de la Muestra, 1", "Localidad": "Madrid",
    "Provincia": "Madrid", "CP": "28001", "email": "certificador@example.org",
    "Profesion": "Arquitecto", "Movil": "600000000"}


def General(titulo, **datos):
    """Datos administrativos con lo común puesto."""
    comunes = {
        "Tiposimulacion": "Certificacion", "Equipos_Defecto": "SI",
        "Fecha": "30/09/2026", "Modo_Vision": "Completo", "Uso": "ResidencialPrivado",
        "Reforma": "Reforma >25% envolvente + Clima + ACS", "Alcance": "Completo",
        "Certificador": CERTIFICADOR, "Observaciones": (), "ColorMuro": 0,
        "ColorCubierta": 0, "Existencia_pilares": "Con pilares"}
    return {**comunes, "Edificio_Titulo": titulo, **datos}


def Instalacion(campos=(), **datos):
    """Ventilación: híbrida sin recuperador salvo que se diga.

    `campos` son los de captadores solares y fotovoltaica, por su etiqueta; `varios`,
    los del tratamiento de aire en uso terciario.
    """
    return {"TipoVentilacion2": "Hibrida", "Recuperador": "No", "WRecuperador": 100,
            "WRecuperadorr": 25, "Teminrec": 15, "Temaxrec": 30,
            "Eficiencia_recuperador": 75, "Eficiencia_recuperador_Ental": 25,
            "NVBloqueF": 1, "varios": {}, "campos": dict(campos), **datos}


def Rectangulo(x, y, ancho, fondo):
    return [(x, y), (x + ancho, y), (x + ancho, y + fondo), (x, y + fondo)]
