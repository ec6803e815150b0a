"""Sistemas de los edificios de ejemplo: qué equipo es y lo que se aparta de lo que el
programa pone al crearlo."""

CALDERAS = {"Convencional": "Caldera convencional",
            "Baja temperatura": "Caldera de baja temperatura",
            "Condensacion": "Caldera de condensación", "Biomasa": "Caldera de biomasa"}
GENERICO, COMERCIAL = "Defecto", "Genérico comercial"

RADIADORES = {"Emisor": "Radiadores", "controlSBZ": "Vble P=Cte"}
SUELO_RADIANTE = {"Emisor": "Suelo radiante", "TimpCalor": 40, "controlSBZ": "Vble DT=Cte"}


def Fancoils(unidades):
    """Ventiloconvectores de 350 m3/h a dos tubos por servicio."""
    return {"Emisor": "Fancoil", "NEmisores": unidades, "CaudalVent": 350,
            "SaltoPVent": 30, "rendVent": 0.35, "controlSBZ": "Vble P=Cte"}


def Sistema(tipo, seleccion, potencia=0.0, central=False, equipos=1, tipo_vivienda=0,
            curvas=None, **campos):
    """Un sistema. `potencia` (kW) dimensiona caudales y bombas salvo en "ACS", donde
    manda el consumo; `curvas` es (fabricante, modelo); `campos`, por su etiqueta."""
    return {"tipo": tipo, "seleccion": seleccion, "potencia": potencia, "central": central,
            "equipos": equipos, "tipo_vivienda": tipo_vivienda, "curvas": curvas,
            "campos": campos}


def _Caldera(clase, combustible, potencia, rendimiento):
    return {"curvas": (GENERICO, CALDERAS[clase]), "TipoGenerador1": clase,
            "CombCalor1": combustible, "QcalorCaldera1": potencia,
            "QcalorCaldera2": potencia, "RendCalor1": rendimiento}


def Calentador(clase, combustible, potencia, rendimiento, equipos=1, tipo_vivienda=0):
    return Sistema("ACS", "1 Calentador", equipos=equipos, tipo_vivienda=tipo_vivienda,
                   **_Caldera(clase, combustible, potencia, rendimiento))


def Termo(litros=None, **campos):
    volumen = {} if litros is None else {"Volumen": litros}
    return Sistema("ACS", "1 Termo electrico", TbajaD=50, **volumen, **campos)


def CalderaACS(potencia, rendimiento, litros, central=False, **campos):
    """Caldera de gas de condensación con depósito de acumulación."""
    return Sistema("ACS", "1 Caldera", central=central, Volumen=litros,
                   **_Caldera("Condensacion", "GasNatural", potencia, rendimiento),
                   **campos)


def CalderaCalefaccion(potencia, rendimiento, central=False, **campos):
    return Sistema("Calefaccion", "1 Caldera", potencia, central=central,
                   **_Caldera("Condensacion", "GasNatural", potencia, rendimiento),
                   **campos)


def CaptadoresPlanos(numero, litros, inclinacion, tuberia, recirculacion=0):
    """Captadores planos de 2 m2 con 50 l/hm2 y el depósito solar que cargan.

    litros: del depósito solar; tuberia: m de ida y vuelta; recirculacion: l/h del
    depósito solar al de consumo. Devuelve los campos de las instalaciones.
    """
    v = 0.01 * litros
    radio = (0.001 * litros * 0.07961783) ** (1 / 3)
    caudal = numero * 2 * 50
    return {"N_colec_term": str(numero), "Sup_colec_term": "2.00",
            "Incli_colec_term": str(inclinacion), "AA_colec_term": "0.7562",
            "BB_colec_term": "3.9234", "CC_colec_term": "0.0102",
            "Volumen_Dep_ST": str(litros), "LD_Dep_ST": "2",
            "UA_Dep_ST": str(max(round(1.01 * 31.4 * radio * radio), 1)),
            "Caudal_Col_ST": str(caudal), "Caudal_Dep_ST": str(caudal),
            "Caudal_Rec_ST": str(recirculacion),
            "PerdP_Rec_ST": "2.00" if recirculacion else "0.00",
            "Long_Tub_ST": str(tuberia),
            "Area_Serp_ST": f"{max(-0.0051 * v * v + 0.3569 * v + 0.2701, 0.3):.2f}"}


def Fotovoltaica(pico, superficie, inclinacion):
    """Un campo al sur: kW, m2 y grados."""
    return {"Existe_fotovoltaica": "Si", "PotPico_FV": f"{pico:.2f}",
            "Super_FV": f"{superficie:.2f}", "Incli_FV": str(inclinacion)}
