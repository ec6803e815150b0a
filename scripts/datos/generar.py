#!/usr/bin/env python3
"""Hace los ficheros de data/database/ a partir de los hechos de hechos/*.csv.

    generar.py               escribe los ficheros
    generar.py --comprobar   no escribe; estado 1 si lo escrito difiere

Las cifras pasan tal como están en los CSV; su procedencia, en docs/datos.md.
"""

import argparse
import os
import sys
from decimal import Decimal

from catalogo_composiciones import Composiciones
from catalogo_materiales import Materiales
from leerhechos import ConDecimales, LeerHechos
from limites import (Accesorios, Condensacion, Klimite, RadJulio, ValorMaximo,
                     ValorMaximoU)
from municipios import ZONACLIMATICATEMPYRAD
from textoxml import EscribirOComprobar, Nodo
from valores_envolvente import ValoresDefectoU, VidriosMarcos

AQUI = os.path.dirname(os.path.abspath(__file__))
SALIDA = os.path.normpath(os.path.join(AQUI, "..", "..", "data", "database"))

MESES = ("ENE", "FEB", "MAR", "ABR", "MAY", "JUN",
         "JUL", "AGO", "SEP", "OCT", "NOV", "DIC")
NOMBRES_MESES = ("Enero", "Febrero", "Marzo", "Abril", "Mayo", "Junio", "Julio",
                 "Agosto", "Septiembre", "Octubre", "Noviembre", "Diciembre")
DIAS_MES = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)
MES_VERANO_INICIAL, MES_VERANO_FINAL = 6, 9  # DB-HE, anejo D: junio a septiembre

FAMILIAS = ("C1", "C2", "CIlu", "CEq", "CNR", "CTRh", "CTCh", "CCAC")
CLASES_DIA = ("Laborable", "Sabado", "Domingo", "E1", "E2", "E3", "E4", "E5", "E6")


def Capitales():
    """Altitud, agua de red por mes y estado exterior de enero (DB-HE)."""
    raiz = Nodo("CAPITALES")
    for fila in LeerHechos("capitales"):
        atributos = {"P": fila["provincia"], "C": fila["capital"],
                     "Cota": fila["altitud_m"]}
        for mes in MESES:
            atributos["TR" + mes] = fila[f"TAF_{mes}_C"]
        atributos["TMEDENE"] = fila["T_ENE_C"]
        atributos["HUMENE"] = fila["HR_ENE_pct"]
        raiz.Hijo("CAPITAL", atributos)
    return raiz


def CoefTransf():
    """Pesos horarios de respuesta de muro y de cubierta."""
    filas = LeerHechos("coef_transf")
    if [fila["retardo (h)"] for fila in filas] != [str(k) for k in range(48)]:
        raise ValueError("coef_transf.csv: se esperan los retardos 0 a 47 h")
    raiz = Nodo("CoefTransf")
    for tipo in ("MuroLigero", "TechoMedio"):
        atributos = {"Tipo": tipo}
        for k, fila in enumerate(filas):
            atributos[f"A{k}"] = fila[f"{tipo} (peso, -)"]
        raiz.Hijo("L", atributos)
    return raiz


# El programa lee estas filas por posición: el orden es parte del formato.
FILAS_FACTORES = (
    ("ElectricidadNacional", "electricidad_nacional"),
    ("ElectricidadPeninsular", "electricidad_peninsular"),
    ("ElectricidadExtrapeninsular", "electricidad_extrapeninsular"),
    ("ElectricidadBaleares", "electricidad_baleares"),
    ("ElectricidadCanarias", "electricidad_canarias"),
    ("ElectricidadCeutayMelilla", "electricidad_ceuta_y_melilla"),
    ("Gasoleo_C", "gasoleo_calefaccion_C"),
    ("GLP", "glp"),
    ("GasNatural", "gas_natural"),
    ("Carbon", "carbon"),
    ("Biomasa_Otros", "biomasa_no_densificada"),
    ("Biomasa_Pellet", "biomasa_densificada_pellets"),
    ("Energiasolartermica", "solar_termica"),
)


def FactoresConversion():
    """Energía final a primaria y a CO2."""
    por_vector = {fila["vector"]: fila for fila in LeerHechos("factores_conversion")}
    raiz = Nodo("FACTORES_CONVERSION")
    for etiqueta, vector in FILAS_FACTORES:
        fila = por_vector[vector]
        raiz.Hijo(etiqueta, {
            "CO2": fila["emisiones_kgCO2_por_kWh_final"],
            "EPR": fila["ep_renovable_kWh_por_kWh_final"],
            "EPNoR": fila["ep_no_renovable_kWh_por_kWh_final"],
            "EPTotal": fila["ep_total_kWh_por_kWh_final"],
            "Confianza": fila["confianza"]})
    return raiz


INDICADORES_REFERENCIA = (
    "EmisionesTotales", "DemandaCalefaccion", "DemandaRefrigeracion",
    "EmisionesCalefaccion", "EmisionesRefrigeracion", "EmisionesACS",
    "CEPcalefaccion", "CEPrefrigeracion", "CEPACS", "CEPtotal",
    "DemandaACS", "DemandaACS_solar_minima")
INDICADORES_LIMITES = (
    "DemandaCalefaccion", "DemandaRefrigeracion", "EmisionesCalefaccion",
    "EmisionesRefrigeracion", "EmisionesACS", "CEPcalefaccion",
    "CEPrefrigeracion", "CEPACS", "CEPtotal", "EmisionesTotales")
COLUMNAS_LIMITES = ("th0_A_B", "th1_B_C", "th2_C_D", "th3_D_E", "th4_E_F", "th5_F_G")


def ZonasEscala():
    """Claves de zona en el orden de la lista de zonas del programa."""
    peninsulares = [letra + cifra for letra, cifras in (
        ("A", "34"), ("B", "34"), ("C", "1234"), ("D", "123"), ("E", "1"))
                    for cifra in cifras]
    extrapeninsulares = [letra + cifra for letra, cifras in (
        ("alpha", "1234"), ("A", "1234"), ("B", "1234"), ("C", "1234"),
        ("D", "123"), ("E", "1")) for cifra in cifras]
    return ([z + "_peninsular" for z in peninsulares]
            + [z + "_extrapeninsular" for z in extrapeninsulares])


def Localidades():
    """Escala de calificación de viviendas por zona y tipo."""
    filas = {(f["clave_zona"], f["tipo"], f["indicador"]): f
             for f in LeerHechos("escala_residencial")}
    raiz = Nodo("Base_Datos")
    for zona in ZonasEscala():
        localidad = raiz.Hijo("Localidad", {"nombre": zona})
        for tipo in ("Unifamiliar", "Bloque"):
            nodo = localidad.Hijo("Tipo", {"nombre": tipo})
            for nombre, columna in (("Nuevo", "referencia_nuevo_Ir"),
                                    ("Existente", "referencia_existente_Is")):
                referencia = nodo.Hijo("Referencia", {"nombre": nombre})
                for indicador in INDICADORES_REFERENCIA:
                    fila = filas[zona, tipo, indicador]
                    referencia.Hijo(indicador, {"Confianza": fila["confianza"]},
                                    fila[columna])
            for indicador in INDICADORES_LIMITES:
                fila = filas[zona, tipo, indicador]
                limites = nodo.Hijo("Limites", {"nombre": indicador,
                                                "Confianza": fila["confianza"]})
                for n, columna in enumerate(COLUMNAS_LIMITES):
                    limites.Hijo(f"th{n}", (), fila[columna])
    return raiz


VECTORES_DEFECTO = {"gas_natural": "GasNatural", "electricidad": "Electricidad",
                    "gasoleo_calefaccion_C": "Gasoleo_C"}
# Frío: los dos nominales, porque el programa aplica después el factor 0,7.
NORMA_DEFECTO = {
    ("residencial", "acs"): "DB-HE0 2019",
    ("residencial", "calefaccion"): "DB-HE0 2019",
    ("residencial", "refrigeracion"): "DB-HE0 2019",
    ("terciario", "acs"): "edificio de referencia, uso terciario",
    ("terciario", "calefaccion"): "edificio de referencia, uso terciario",
    ("terciario", "refrigeracion"): "valor derivado",
}


def Defecto():
    """Rendimiento y vector del equipo que cubre lo que nadie sirve."""
    filas = {(f["uso"], f["servicio"], f["norma"]): f
             for f in LeerHechos("equipos_defecto")}
    atributos = {}
    for letra, uso in (("R", "residencial"), ("T", "terciario")):
        confianzas = set()
        for sigla, servicio in (("ACS", "acs"), ("CALE", "calefaccion"),
                                ("REFRI", "refrigeracion")):
            fila = filas[uso, servicio, NORMA_DEFECTO[uso, servicio]]
            atributos["REND" + sigla + letra] = fila["rendimiento"]
            atributos["COMB" + sigla + letra] = VECTORES_DEFECTO[fila["vector"]]
            confianzas.add(fila["confianza"])
        (atributos["Confianza" + letra],) = confianzas
    raiz = Nodo("DEFECTO")
    raiz.Hijo("DEFECTO", atributos)
    return raiz


# Familia de horarios <- magnitud de perfiles_uso.csv.
MAGNITUDES_RESIDENCIAL = {
    "C1": "ocupacion_sensible", "C2": "ocupacion_latente", "CIlu": "iluminacion",
    "CEq": "equipos", "CNR": "ventilacion", "CTRh": "consigna_alta",
    "CTCh": "consigna_baja", "CCAC": "acs"}
MAGNITUDES_TERCIARIO = {
    "C1": "ocupacion", "C2": "ocupacion", "CIlu": "iluminacion", "CEq": "equipos",
    "CNR": "ventilacion", "CTRh": "consigna_alta", "CTCh": "consigna_baja",
    "CCAC": "acs"}
DIA_DE_CLASE = {"Laborable": "laboral", "Sabado": "sabado"}  # el resto, festivo
HORARIOS = ("Residencial", "8h", "12h", "16h", "24h")


def TablasHorarias(horario):
    """{(familia, clase de día): (24 textos, confianza)} de un horario.

    Hora sin consigna vale 0. La consigna residencial cambia con el mes: aquí va
    la del mes en que existe, y AccionMes apaga la otra.
    """
    residencial = horario == "Residencial"
    perfil = "residencial_24h" if residencial else "terciario_" + horario
    magnitudes = MAGNITUDES_RESIDENCIAL if residencial else MAGNITUDES_TERCIARIO
    filas = [f for f in LeerHechos("perfiles_uso") if f["perfil"] == perfil]
    tablas = {}
    for familia in FAMILIAS:
        for clase in CLASES_DIA:
            dia = DIA_DE_CLASE.get(clase, "festivo")
            candidatas = [f for f in filas
                          if f["magnitud"] == magnitudes[familia]
                          and dia in f["dia"].split("+")]
            con_valor = [f for f in candidatas if any(f[f"h{h:02}"] for h in range(1, 25))]
            if not candidatas or len(con_valor) > 1:
                raise ValueError(f"perfiles_uso.csv: {perfil}, {familia}, {dia}")
            fila = (con_valor or candidatas)[0]
            valores = [ConDecimales(fila[f"h{h:02}"] or "0", 2) for h in range(1, 25)]
            if familia == "CCAC":
                AjustarACien(valores)
            tablas[familia, clase] = (valores, fila["confianza"])
    return tablas


def AjustarACien(valores):
    """Deja en la primera hora con consumo lo que el redondeo quita al 100 %."""
    suma = sum(map(Decimal, valores))
    primera = next((i for i, v in enumerate(valores) if Decimal(v) > 0), None)
    if primera is not None:
        valores[primera] = str(Decimal(valores[primera]) + Decimal("100") - suma)


def Calendario():
    """Código de cada día: 1 laborable, 2 sábado, 3 domingo o festivo nacional."""
    festivos = {(int(f["mes"]), int(f["dia"]))
                for f in LeerHechos("festivos_nacionales")}
    codigos, dia_ano = [], 0
    for mes, dias in enumerate(DIAS_MES, 1):
        fila = []
        for dia in range(1, dias + 1):
            dia_semana = dia_ano % 7  # el año de referencia empieza en lunes
            festivo = dia_semana == 6 or (mes, dia) in festivos
            fila.append("3" if festivo else "2" if dia_semana == 5 else "1")
            dia_ano += 1
        codigos.append(fila)
    return codigos


def AccionMes(residencial):
    """Texto de cada mes: qué consignas valen."""
    if not residencial:
        return ["Cale+Refri"] * 12
    return ["Sólo Refri" if MES_VERANO_INICIAL <= m <= MES_VERANO_FINAL
            else "Sólo Cale" for m in range(1, 13)]


def NumerarAtributos(valores):
    return {f"C{i}": v for i, v in enumerate(valores, 1)}


def PicosTerciario(clave):
    """(ocupación sensible, latente, equipos) en W/m2 de una clave de perfil."""
    carga = {"B": "baja", "M": "media", "A": "alta"}[clave[-1]]
    (fila,) = (f for f in LeerHechos("perfiles_terciario_picos")
               if f["carga_interna"] == carga)
    return tuple(fila[c] for c in ("ocupacion_sensible_W_m2", "ocupacion_latente_W_m2",
                                   "equipos_W_m2"))


PERFILES = [("Residencial", "Residencial", None)] + [
    (horas + letra, horas, carga) for horas in HORARIOS[1:]
    for letra, carga in (("B", "baja"), ("M", "media"), ("A", "alta"))]


def PerfilesUso():
    """Valores de uso por clave de perfil, con las etiquetas del proyecto."""
    picos = {f["carga_interna"]: f for f in LeerHechos("perfiles_terciario_picos")}
    raiz = Nodo("PERFILES_USO")
    raiz.Comentario("Confianza: alta = documento oficial; media = cifra oficial "
                    "recordada; baja, media-baja u orientativo = por confirmar.")
    calendario = raiz.Hijo("Calendario")
    for nombre, codigos in zip(NOMBRES_MESES, Calendario()):
        calendario.Hijo(nombre, NumerarAtributos(codigos))
    for clave, horario, carga in PERFILES:
        fila = picos.get(carga)
        perfil = raiz.Hijo("Perfil", {
            "Clave": clave, "Horario": horario,
            "mesmin": str(MES_VERANO_INICIAL), "mesmax": str(MES_VERANO_FINAL)})
        perfil.Hijo("Valores_Maximos", {
            "Sensibleocupantes": fila["ocupacion_sensible_W_m2"] if fila else "0.00",
            "Latenteocupantes": fila["ocupacion_latente_W_m2"] if fila else "0.00",
            "Iluminacion": fila["iluminacion_orientativa_W_m2"] if fila else "0.00",
            "Equipos": fila["equipos_W_m2"] if fila else "0.00",
            "Confianza": fila["confianza_ocupacion_y_equipos"] if fila else "alta",
            "ConfianzaIluminacion": fila["confianza_iluminacion"] if fila else "alta"})
        perfil.Hijo("AccionMes", NumerarAtributos(AccionMes(carga is None)))
    for horario in HORARIOS:
        nodo = raiz.Hijo("Horario", {"Nombre": horario})
        tablas = TablasHorarias(horario)
        for familia in FAMILIAS:
            for clase in CLASES_DIA:
                valores, confianza = tablas[familia, clase]
                nodo.Hijo(familia + clase,
                          {**NumerarAtributos(valores), "Confianza": confianza})
    return raiz


def NuevoUsoControl():
    """Año de la vivienda tipo, hora a hora (contenido inicial de las series)."""
    tablas = TablasHorarias("Residencial")
    acciones = AccionMes(True)
    raiz = Nodo("CargaInternaNOVEX4.0")
    for mes, codigos in enumerate(Calendario()):
        for codigo in codigos:
            clase = CLASES_DIA[int(codigo) - 1]
            for hora in range(24):
                valor = {f: tablas[f, clase][0][hora] for f in FAMILIAS}
                calienta = acciones[mes] == "Sólo Cale"
                raiz.Hijo("Item", {
                    "QOCUPSR": valor["C1"], "QILUR": valor["CIlu"],
                    "QEQR": valor["CEq"], "NRR": valor["CNR"],
                    "TCR": valor["CTCh"] if calienta else "0.00",
                    "TRR": "0.00" if calienta else valor["CTRh"]})
    if len(raiz.hijos) != 8760:
        raise ValueError("el año no tiene 8760 horas")
    return raiz


def PuentesTermicos():
    """Documento de trabajo de los puentes: cabecera y textos de sus filas."""
    columnas = ("TIPO", "Nombre", "FRSI", "FRSIMIN", "Cumplimiento")
    raiz = Nodo("PUENTESTERMICOS")
    raiz.Hijo("L", {c: c for c in columnas})
    for fila in LeerHechos("puentes_termicos"):
        raiz.Hijo("L", {"TIPO": fila["tipo"], "Nombre": fila["nombre"],
                        "FRSI": "", "FRSIMIN": "", "Cumplimiento": ""})
    return raiz


# Grupo de curvas del catálogo: prefijo del coeficiente y cuántos lleva.
CURVAS_CATALOGO = (("CapTotRef_T", (("Ra", 6),)), ("ConRef_T", (("Rb", 6),)),
                   ("CapSenRef_T", (("Re", 7),)), ("ConRef_F", (("Rc", 4),)),
                   ("CapCal_T", (("Qaa", 6), ("Qab", 6))),
                   ("ConCal_T", (("Qba", 6), ("Qbb", 6))), ("ConCal_F", (("Qc", 4),)),
                   ("ren_F", (("Cc", 4),)), ("ren_T", (("Cg", 4),)))
NOMINALES_CATALOGO = (("PotTotRef", "PotTotRef (kW)"), ("PotSenRef", "PotSenRef (kW)"),
                      ("ConRef", "ConRef (kW)"), ("PotCal", "PotCal (kW)"),
                      ("ConCal", "ConCal (kW)"))


def _Curvas(modelo, filas):
    """Añade a un modelo los grupos de curvas que tiene."""
    for grupo, prefijos in CURVAS_CATALOGO:
        atributos = {}
        for prefijo, numero in prefijos:
            if (grupo, prefijo) not in filas:
                continue
            fila = filas[grupo, prefijo]
            for n in range(numero):
                atributos[f"{prefijo}{n}"] = fila[f"c{n}"]
            if prefijo == "Qaa":
                atributos["Tecamb"] = fila["TeCambio (°C bulbo humedo)"]
        if atributos:
            modelo.Hijo(grupo, atributos)


def Equipos():
    """Catálogo de equipos: un modelo genérico por curva y los tamaños comerciales.

    El genérico lleva las potencias del primer tamaño comercial de su curva: son
    las que enseña la lista; al aplicarlo solo se copian las curvas.
    """
    curvas = {}
    for fila in LeerHechos("curvas_equipos"):
        clave = (fila["familia"], fila["tipo"], fila["modelo_generico"])
        curvas.setdefault(clave, {})[
            fila["grupo_curva"], fila["prefijo_coeficientes"]] = fila
    comerciales = LeerHechos("equipos_comerciales")
    primero = {}
    for fila in comerciales:
        primero.setdefault((fila["familia"], fila["tipo"], fila["curva_generica"]), fila)
    if primero.keys() != curvas.keys():
        raise ValueError("equipos_comerciales.csv y curvas_equipos.csv no se corresponden")
    genericos = [(clave, clave[2], primero[clave]) for clave in curvas]
    tamanos = [((f["familia"], f["tipo"], f["curva_generica"]), f["modelo"], f)
               for f in comerciales]
    raiz = Nodo("EquiposNovex")
    for fabricante, modelos in (("Defecto", genericos), ("Genérico comercial", tamanos)):
        n_fabricante = raiz.Hijo("Fabricante", {"name": fabricante})
        n_familia = n_tipo = None
        for clave, nombre, nominal in modelos:
            familia, tipo, _ = clave
            if n_familia is None or dict(n_familia.atributos)["name"] != familia:
                n_familia, n_tipo = n_fabricante.Hijo("Familia", {"name": familia}), None
            if n_tipo is None or dict(n_tipo.atributos)["name"] != tipo:
                n_tipo = n_familia.Hijo("Tipo", {"name": tipo})
            modelo = n_tipo.Hijo("Modelo", {
                "name": nombre, "modelo": nombre,
                **{a: nominal[c] or "0" for a, c in NOMINALES_CATALOGO}})
            _Curvas(modelo, curvas[clave])
    return raiz


GENERADORES = (Accesorios, Capitales, CoefTransf, Composiciones, Condensacion, Defecto,
               Equipos, FactoresConversion, Klimite, Localidades, Materiales,
               NuevoUsoControl, PerfilesUso, PuentesTermicos, RadJulio, ValoresDefectoU,
               ValorMaximo, ValorMaximoU, VidriosMarcos, ZONACLIMATICATEMPYRAD)


def main():
    argumentos = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    argumentos.add_argument("--comprobar", action="store_true",
                            help="no escribe: estado 1 si algún fichero difiere")
    opciones = argumentos.parse_args()
    ficheros = {os.path.join(SALIDA, g.__name__ + ".xml"): g().Documento()
                for g in GENERADORES}
    return EscribirOComprobar(ficheros, opciones.comprobar, "difiere de los hechos:")


if __name__ == "__main__":
    sys.exit(main())
