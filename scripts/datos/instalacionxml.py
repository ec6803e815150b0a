"""Sección de instalaciones de un proyecto: ventilación, captadores y sistemas.

Lo que un sistema no dice es lo que el programa pone al crearlo.
"""

import math

from equipos import CURVAS, CatalogoEquipos
from sistemas import COMERCIAL
from textoxml import Fijo

RED = "Alimentación agua red"

BOMBAS = ("SBZ", "GEN1", "GEN2", "DEP", "INT", "RET")

# Decimales de los campos con número; los que no están son texto.
DECIMALES = {
    **dict.fromkeys(("NEmisores", "NEquipos", "NHretorno", "TimpCalor", "saltoGenerador",
                     "TimpACS", "TimpFrio", "saltoZona", "CaudalVent", "SaltoPVent",
                     "Nradiadores", "DTRET"), 0),
    **dict.fromkeys(("EControlTe", "LD_deposito", "DTSBZ", "DTGEN1", "DTGEN2", "DTDEP",
                     "DTINT"), 1)}
DECIMALES_CORRIENTES = 2


def _Generales(n, edificio):
    i = edificio.instalacion
    propios = dict(i["campos"])
    for etiqueta, valor in (
            ("Aporte_fotovoltaico_kwh_ano", "0.00"), ("Existe_fotovoltaica", "No"),
            ("Uso_fotovoltaico", "Refrigeracion"),
            ("PotPico_FV", "0.00"), ("PotPico_FV2", "0.00"), ("PotPico_FV3", "0.00"),
            ("Super_FV", "0.00"), ("Super_FV2", "0.00"), ("Super_FV3", "0.00"),
            ("Az_FV", "0"), ("Az_FV2", "0"), ("Az_FV3", "0"),
            ("Incli_FV", "40"), ("Incli_FV2", "40"), ("Incli_FV3", "40"),
            ("PSuciedad_FV", "6"), ("PTcelula_FV", "9"), ("PConversor_FV", "4"),
            ("Aporte_solar_tanto_por_cien", "0.00"), ("N_colec_term", "0"),
            ("Sup_colec_term", "2.00"), ("Incli_colec_term", "0"),
            ("Azimut_colec_term", "0"), ("AA_colec_term", "0.6722"),
            ("BB_colec_term", "3.8074"), ("CC_colec_term", "0.0098"),
            ("Tipo_Inst_ST", "0"), ("Volumen_Dep_ST", "0"), ("LD_Dep_ST", "0"),
            ("UA_Dep_ST", "0"), ("Caudal_Col_ST", "0"), ("PerdP_Col_ST", "4.00"),
            ("Caudal_Dep_ST", "0"), ("PerdP_Dep_ST", "2.00"), ("Caudal_Rec_ST", "0"),
            ("PerdP_Rec_ST", "0.00"), ("Efi_Inter_ST", "70"), ("Long_Tub_ST", "60"),
            ("PerdCalor_Tub_ST", "0.20"), ("Control_Tmin_ST", "2"),
            ("Area_Serp_ST", "0.00"), ("WBombCAPST", "0.00"), ("WBombDEPST", "0.00"),
            ("WBombRECST", "0.00"), ("WEnergiaFinalVent", "0.00"),
            ("WEnergiaFinalVentUTC", "0.00"), ("WEnergiaFinalVentUTR", "0.00"),
            ("Tipon50", "Teorico"), ("Valorn50", "0.00"),
            ("TipoVentilacion2", i["TipoVentilacion2"]),
            ("ManejoVentanas2", "Cerradas" if edificio.terciario else "Abiertas"),
            ("Recuperador", i["Recuperador"]), ("ERelaMasa", "1.00"),
            ("NVBloqueF", str(i["NVBloqueF"])),
            ("WRecuperador", Fijo(i["WRecuperador"], 2)),
            ("WRecuperadorr", Fijo(i["WRecuperadorr"], 2)),
            ("Teminrec", Fijo(i["Teminrec"], 1)),
            ("Temaxrec", Fijo(i["Temaxrec"], 1)), ("TminImp", "14.0"), ("HRmin", "30"),
            ("Eficiencia_recuperador", str(i["Eficiencia_recuperador"])),
            ("Eficiencia_recuperador_Ental", str(i["Eficiencia_recuperador_Ental"])),
            ("ConsumoAgua_litros_dia", Fijo(edificio.agua_caliente(), 2)),
            ("ConsumoVentilacionAExt", "0.00")):
        n.Hoja(etiqueta, propios.pop(etiqueta, valor))
    if propios:
        raise KeyError(f"campos desconocidos: {sorted(propios)}")
    if i["TipoVentilacion2"] == "Mecanica" and not edificio.terciario:
        for etiqueta in ("Caudal2Vent", "PotenciaEspecificaVent",
                         "ConsumoVentilacionAExt"):
            n.Hoja(etiqueta, "0.00")


def _Deposito(volumen):
    """(área de serpentín m2, UA W/K) de un depósito de `volumen` litros, LD 2."""
    v = 0.01 * volumen
    serpentin = -0.0051 * v * v + 0.3569 * v + 0.2701
    radio = (0.001 * volumen * 0.07961783) ** (1 / 3)
    superficie = 6.28 * radio * radio + 6.28 * 4 * radio * radio
    return serpentin, 1.01 * superficie


def _Superficies(edificio, s):
    """m2 que sirve: los de agua caliente van con las viviendas que tienen el equipo."""
    area = edificio.suelo()
    parte = 1 if s["central"] else s["equipos"] / edificio.numero_viviendas()
    servicios = s["tipo"].split("+")
    return {"Sup_ACS": area * parte if "ACS" in servicios else 0.0,
            "Sup_Calefaccion": area if "Calefaccion" in servicios else 0.0,
            "Sup_Refrigeracion": area if "Refrigeracion" in servicios else 0.0}


def _Acumulacion(edificio, s, litros):
    """Depósito, intercambiador y tuberías; a cero sin agua caliente."""
    if "ACS" not in s["tipo"].split("+"):
        return {"Long_tuberias": 0.0, "Volumen": 0.0, "UA_deposito": 0.0,
                "LD_deposito": 0.0, "TaltaD": 0.0, "TbajaD": 0.0, "AintermbD": 0.0,
                "AintermbD2": 0.0}
    unidades = 1 if s["central"] else edificio.numero_viviendas()
    volumen = s["campos"].get("Volumen", litros / 2 if s["central"] else litros)
    serpentin, ua = _Deposito(volumen)
    return {"Long_tuberias": max(3 * math.sqrt(edificio.suelo()) / unidades, 15.0),
            "Volumen": volumen, "UA_deposito": ua, "LD_deposito": 2.0, "TaltaD": 60.0,
            "TbajaD": 45.0, "AintermbD": serpentin, "AintermbD2": serpentin}


def _Bombas(edificio, s, p):
    """Caudal (l/h), salto, altura, rendimiento y control de cada bomba."""
    caudal = p * 3600 / (4.18 * 5)
    acs = "ACS" in s["tipo"].split("+")
    caudales = {"SBZ": caudal, "GEN1": caudal, "GEN2": caudal,
                "DEP": caudal / 2 if acs else 0.0,
                "INT": (caudal if s["tipo"] == "ACS" else caudal / 2) if acs else 0.0,
                "RET": 250.0 if acs else 0.0}
    campos = {}
    for bomba in BOMBAS:
        presion = 0.12 * math.sqrt(edificio.suelo()) + 2 if bomba == "SBZ" else 2.0
        campos.update({"Caudal" + bomba: caudales[bomba], "DT" + bomba: 5,
                       "P" + bomba: presion, "Rend" + bomba: 0.55,
                       "control" + bomba: "Cte"})
    return campos


def _Nominales(s, catalogo):
    """Potencias de un modelo comercial, kW, con las etiquetas del proyecto."""
    if s["curvas"] is None or s["curvas"][0] != COMERCIAL:
        return {}
    return catalogo.Nominales(s["curvas"][1])


def _Campos(edificio, s, orden, catalogo):
    """Todos los campos de un sistema, en su orden."""
    unidades = 1 if s["central"] else edificio.numero_viviendas()
    litros = edificio.agua_caliente() / unidades
    # kW de dimensionado del equipo.
    p = litros * 0.5 * 4.18 * 45 / 3600 if s["tipo"] == "ACS" else s["potencia"]
    tipologia = "Centralizada/Bloque" if s["central"] else "Individual/Vivienda"
    fabricante, modelo = s["curvas"] or ("", "")
    aire = s["seleccion"].startswith("Equipo") or "refrigerante" in s["seleccion"]
    acumulacion = _Acumulacion(edificio, s, litros)
    campos = {
        "Tipo_sistema": s["tipo"], "Nombre_sistema": f"Sistema {orden}",
        **_Superficies(edificio, s), "Seleccion": s["seleccion"],
        "TipoInstalacionesG": tipologia, "TipoGenerador1": "Condensacion",
        "TipoBC1": "Monoblock", "TipoGenerador2": "Condensacion", "TipoBC12": "Monoblock",
        "Distribucion": "Con colector", "Distribucion2": "Directo",
        "Retorno": "Sin retorno", "Alimentacion": RED, "Alimentacion2": RED,
        "Alimentacion3": RED, "Alimentacion4": RED, "EControlTe": 7.0, "NEmisores": 1,
        "Emisor": "Unid.Interior" if aire else "Fancoil",
        "ConsumoEmisor": "Consumo vent. unidad int. incluido", "NEquipos": s["equipos"],
        "Long_tuberias": acumulacion.pop("Long_tuberias"), "Pot_perdida_m_tub": 0.2,
        "NHretorno": 0, "Distanciaext_int": 1.0, "Perdida_m_tub_ext_int": 0.3,
        **acumulacion, "EfiIntercamb": 80.0, **_Bombas(edificio, s, p),
        "TimpCalor": 50, "saltoGenerador": 5, "TimpACS": 50, "TimpFrio": 7, "saltoZona": 5,
        "CaudalVent": 250 * p, "SaltoPVent": 125, "rendVent": 0.6, "QcalorCaldera1": 16.0,
        "RendCalor1": 0.95, "CombCalor1": "GasNatural", "CombCalorBio1": "Biomasa_Pellet",
        "RadiadorElectrico": 2.0, "Nradiadores": s["tipo_vivienda"],
        "QcalorCaldera2": 16.0, "RendCalor2": 0.95, "CombCalor2": "GasNatural",
        "CombCalorBio2": "Biomasa_Otros", "QcalorBC1": p, "WeCalor1": p / 3,
        "QcalorBC2": 0.0, "WeCalor2": 0.0, "RendCalorEst": 3.6, "RendFrioEst": 3.0,
        "RendACSEst": 2.5, "SCOP": 2.65, "QFrioSen1": 0.7 * p, "QFrioTot1": p,
        "WeFrio1": 0.4 * p, "QFrioSen2": 0.0, "QFrioTot2": 0.0, "WeFrio2": 0.0,
        "QApoyoEquipo": 2.0, "QApoyoTermo": 2.0, "CombEst": "Electricidad",
        "Fabricante": fabricante, "Modelo": modelo}
    for etiqueta, valor in {**_Nominales(s, catalogo), **s["campos"]}.items():
        if etiqueta not in campos:
            raise KeyError(etiqueta)
        campos[etiqueta] = valor
    return campos


def _Sistema(n, edificio, catalogo, s, orden):
    for etiqueta, valor in _Campos(edificio, s, orden, catalogo).items():
        n.Hoja(etiqueta, valor if isinstance(valor, str)
               else Fijo(valor, DECIMALES.get(etiqueta, DECIMALES_CORRIENTES)))
    curvas = catalogo.Curvas(s["curvas"][1]) if s["curvas"] else {}
    for coeficiente in CURVAS:
        n.Hoja(coeficiente, Fijo(curvas.get(coeficiente, 0.0), 8))


def EscribirInstalaciones(n, edificio):
    """Datos comunes y un nodo por sistema, en el orden del edificio."""
    catalogo = CatalogoEquipos()
    _Generales(n, edificio)
    for orden, sistema in enumerate(edificio.sistemas, 1):
        _Sistema(n.Hijo("Tipo_sistema"), edificio, catalogo, sistema, orden)
