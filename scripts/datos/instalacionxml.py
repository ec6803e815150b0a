"""Sección de instalaciones de un proyecto: ventilación y agua caliente.

Los valores que la simulación de un calentador o un termo no usa son los que el
programa pone al crear el sistema.
"""

import math

from textoxml import Fijo

RED = "Alimentación agua red"

BOMBAS = ("SBZ", "GEN1", "GEN2", "DEP", "INT", "RET")
CURVAS = ([f"{f}{i}" for f in ("aaQ", "abQ", "baQ", "bbQ") for i in range(6)]
          + [f"cQ{i}" for i in range(4)] + [f"aR{i}" for i in range(6)]
          + [f"eR{i}" for i in range(7)] + [f"bR{i}" for i in range(6)]
          + [f"{f}{i}" for f in ("cR", "cC", "gC") for i in range(4)] + ["TeCambio"])


def _Generales(n, edificio):
    i = edificio.instalacion
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
            ("TipoVentilacion2", i["TipoVentilacion2"]), ("ManejoVentanas2", "Abiertas"),
            ("Recuperador", i["Recuperador"]), ("ERelaMasa", "1.00"),
            ("NVBloqueF", str(i["NVBloqueF"])),
            ("WRecuperador", Fijo(i["WRecuperador"], 2)),
            ("WRecuperadorr", Fijo(i["WRecuperadorr"], 2)), ("Teminrec", "15.0"),
            ("Temaxrec", Fijo(i["Temaxrec"], 1)), ("TminImp", "14.0"), ("HRmin", "30"),
            ("Eficiencia_recuperador", str(i["Eficiencia_recuperador"])),
            ("Eficiencia_recuperador_Ental", "25"),
            ("ConsumoAgua_litros_dia", Fijo(edificio.agua_caliente(), 2)),
            ("ConsumoVentilacionAExt", "0.00")):
        n.Hoja(etiqueta, valor)
    if i["TipoVentilacion2"] == "Mecanica":
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


def _Sistema(n, edificio, catalogo, s, orden):
    """Un sistema de ACS individual, calentador instantáneo o termo eléctrico."""
    termo = s["seleccion"] == "1 Termo electrico"
    unidades = edificio.numero_viviendas()
    litros = edificio.agua_caliente() / unidades
    p = litros * 0.5 * 4.18 * 45 / 3600  # kW de dimensionado por vivienda
    caudal = p * 3600 / (4.18 * 5)
    serpentin, ua = _Deposito(litros)
    area = edificio.suelo()
    caudales = {"SBZ": caudal, "GEN1": caudal, "GEN2": caudal, "DEP": caudal / 2,
                "INT": caudal, "RET": 250.0}
    for etiqueta, valor in (
            ("Tipo_sistema", "ACS"), ("Nombre_sistema", f"Sistema {orden}"),
            ("Sup_ACS", Fijo(area * s["equipos"] / unidades, 2)),
            ("Sup_Calefaccion", "0.00"), ("Sup_Refrigeracion", "0.00"),
            ("Seleccion", s["seleccion"]), ("TipoInstalacionesG", "Individual/Vivienda"),
            ("TipoGenerador1", s["generador"]), ("TipoBC1", "Monoblock"),
            ("TipoGenerador2", "Condensacion"), ("TipoBC12", "Monoblock"),
            ("Distribucion", "Con colector"), ("Distribucion2", "Directo"),
            ("Retorno", "Sin retorno"), ("Alimentacion", RED), ("Alimentacion2", RED),
            ("Alimentacion3", RED), ("Alimentacion4", RED), ("EControlTe", "7.0"),
            ("NEmisores", "1"), ("Emisor", "Fancoil"),
            ("ConsumoEmisor", "Consumo vent. unidad int. incluido"),
            ("NEquipos", str(s["equipos"])),
            ("Long_tuberias", Fijo(max(3 * math.sqrt(area) / unidades, 15.0), 2)),
            ("Pot_perdida_m_tub", "0.20"), ("NHretorno", "0"),
            ("Distanciaext_int", "1.00"), ("Perdida_m_tub_ext_int", "0.30"),
            ("Volumen", Fijo(litros, 2)), ("UA_deposito", Fijo(ua, 2)),
            ("LD_deposito", "2.0"), ("TaltaD", "60.00"),
            ("TbajaD", "50.00" if termo else "45.00"), ("AintermbD", Fijo(serpentin, 2)),
            ("AintermbD2", Fijo(serpentin, 2)), ("EfiIntercamb", "80.00")):
        n.Hoja(etiqueta, valor)
    for bomba in BOMBAS:
        n.Hoja("Caudal" + bomba, Fijo(caudales[bomba], 2))
        n.Hoja("DT" + bomba, "5" if bomba == "RET" else "5.0")
        presion = 0.12 * math.sqrt(area) + 2 if bomba == "SBZ" else 2.0
        n.Hoja("P" + bomba, Fijo(presion, 2))
        n.Hoja("Rend" + bomba, "0.55")
        n.Hoja("control" + bomba, "Cte")
    for etiqueta, valor in (
            ("TimpCalor", "50"), ("saltoGenerador", "5"), ("TimpACS", "50"),
            ("TimpFrio", "7"), ("saltoZona", "5"), ("CaudalVent", Fijo(250 * p, 0)),
            ("SaltoPVent", "125"), ("rendVent", "0.60"),
            ("QcalorCaldera1", Fijo(s["potencia"], 2)),
            ("RendCalor1", Fijo(s["rendimiento"], 2)), ("CombCalor1", s["combustible"]),
            ("CombCalorBio1", "Biomasa_Pellet"), ("RadiadorElectrico", "2.00"),
            ("Nradiadores", str(s["tipo_vivienda"])),
            ("QcalorCaldera2", Fijo(s["potencia"], 2)), ("RendCalor2", "0.95"),
            ("CombCalor2", "GasNatural"), ("CombCalorBio2", "Biomasa_Otros"),
            ("QcalorBC1", Fijo(p, 2)), ("WeCalor1", Fijo(p / 3, 2)),
            ("QcalorBC2", "0.00"), ("WeCalor2", "0.00"), ("RendCalorEst", "3.60"),
            ("RendFrioEst", "3.00"), ("RendACSEst", "2.50"), ("SCOP", "2.65"),
            ("QFrioSen1", Fijo(0.7 * p, 2)), ("QFrioTot1", Fijo(p, 2)),
            ("WeFrio1", Fijo(0.4 * p, 2)), ("QFrioSen2", "0.00"), ("QFrioTot2", "0.00"),
            ("WeFrio2", "0.00"), ("QApoyoEquipo", "2.00"), ("QApoyoTermo", "2.00"),
            ("CombEst", "Electricidad"), ("Fabricante", "" if termo else "Defecto"),
            ("Modelo", "" if termo else s["modelo"])):
        n.Hoja(etiqueta, valor)
    curvas = {} if termo else catalogo.CurvasCaldera(s["modelo"])
    for coeficiente in CURVAS:
        n.Hoja(coeficiente, Fijo(curvas.get(coeficiente, 0.0), 8))


def EscribirInstalaciones(n, edificio, catalogo):
    """Datos comunes y un nodo por sistema, en el orden del edificio."""
    _Generales(n, edificio)
    for orden, sistema in enumerate(edificio.sistemas, 1):
        _Sistema(n.Hijo("Tipo_sistema"), edificio, catalogo, sistema, orden)
