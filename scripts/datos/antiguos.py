#!/usr/bin/env python3
"""Escribe en tests/casos/antiguos proyectos XML de versiones anteriores.

Cada uno es un proyecto de ejemplo de hoy con sus datos generales y su sitio en la disposición que
tenía su versión; lo demás no cambió. Las pruebas los comparan con el de hoy campo a campo.
"""

import pathlib
import sys
import xml.etree.ElementTree as ET

RAIZ = pathlib.Path(__file__).resolve().parents[2]
MODERNO = RAIZ / "data/proyectos/caldera_condensacion_solar_D3.xml"
DESTINO = RAIZ / "tests/casos/antiguos"

# Etiqueta de hoy y la que tenía, de los textos que no cambian.
IGUALES = [
    ("Modo_Vision", "Modo_Vision"),
    ("Equipos_Defecto", "Equipos_Defecto"),
    ("Fecha", "Fecha"),
    ("Edificio_Titulo", "Edificio_Titulo"),
    ("Direccion", "Edificio_Direccion"),
    ("CodigoPostal", "Edificio_CP"),
] + [
    (f"Certificador_{x}", f"Certificador_{x}")
    for x in (
        "Nombre", "NIF", "Empresa", "CIF", "Direccion", "Localidad", "Provincia", "CP", "email",
        "Profesion", "Movil",
    )
]
NUEVAS = [
    ("Uso", "Uso"),
    ("Alcance", "Alcance"),
    ("NormativaEdificacion", "Norma_Edificacion"),
    ("NormativaInstalaciones", "Norma_Inst_Termicas"),
    ("Otra_legislacion_aplicable", "Otra_legislacion_aplicable"),
]
SITIO = [
    ("Provincia", "Provincia"),
    ("Municipio", "Ciudad"),
    ("asnm", "asnm"),
    ("Pt", "Pt"),
    ("ZonaClimatica", "zona_temperatura"),
    ("Cambio_zona_temperatura", "Cambio_zona_temperatura"),
    ("latitud", "latitud"),
    ("zona_radiante", "zona_radiante"),
]


def valor(padre, etiqueta):
    hijo = padre.find(etiqueta)
    return hijo.get("name") if hijo is not None else ""


def poner(padre, etiqueta, texto):
    ET.SubElement(padre, etiqueta, name=texto)


def envejecer(novex, version, cambios, nuevas, meses):
    """Pasa un caso a la disposición con el sitio aparte."""
    novex.find("Version").set("name", version)
    hoy = novex.find("Datos_Generales")
    sitio = ET.Element("Datos_Geograficos")
    viejo = ET.Element("Datos_Generales")
    for ahora, antes in IGUALES + (NUEVAS if nuevas else []):
        poner(viejo, antes, valor(hoy, ahora))
    for etiqueta, texto in cambios.items():
        poner(viejo, etiqueta, texto)
    for ahora, antes in SITIO:
        poner(sitio, antes, valor(hoy, ahora))
    if meses:
        for etiqueta in ("mesmin", "mesmax"):
            poner(sitio, etiqueta, valor(hoy, etiqueta))
    ET.SubElement(novex.find("Datos_Uso"), "Tiposimulacion", name=valor(hoy, "Tiposimulacion"))
    obstaculos = hoy.find("Obstaculos_remotos")
    obstaculos.find("Sur_Altura").set("name", "7.50")
    obstaculos.find("Sur_Distancia").set("name", "20.00")
    novex.insert(list(novex).index(hoy), viejo)
    novex.insert(list(novex).index(hoy), sitio)
    novex.insert(list(novex).index(hoy), obstaculos)
    novex.remove(hoy)
    for etiqueta in ("DatosCertificado", "DatosCertificador"):
        novex.remove(novex.find(etiqueta))


def quitar_de(novex, seccion, etiquetas):
    nodo = novex.find(seccion)
    for etiqueta in etiquetas:
        for hijo in nodo.findall(etiqueta):
            nodo.remove(hijo)


def caso():
    """Un caso del proyecto de hoy, sin sangrado."""
    arbol = ET.parse(MODERNO)
    novex = arbol.getroot().find("DatosPersonalizados/Novex")
    for nodo in novex.iter():
        if nodo.text is not None and not nodo.text.strip():
            nodo.text = None
        nodo.tail = None
    return novex


def escribir(nombre, casos):
    raiz = ET.Element("DatosEnergeticosDelEdificio")
    datos = ET.SubElement(raiz, "DatosPersonalizados")
    datos.extend(casos)
    for nodo in raiz.iter():
        nodo.tail = "\n"
    ET.ElementTree(raiz).write(DESTINO / nombre, encoding="UTF-8", xml_declaration=True)


def v6_1():
    primero, segundo = caso(), caso()
    envejecer(primero, "NOVEXPLUS v6.1", {
        "Tipologia_edificio": "ViviendaBloque", "Modo_trabajo": "Existente",
        "TipoCalculoHE": "Reforma <25% envolvente + ACS", "Tipo_certificado": "ObraReforma",
        "Catastro": "BFA", "Grado_de_proteccion": "Estructural",
        "Elemento_inalterable": "Fachada", "ReferenciaCatastral": "123456789012",
        "AnoConstruccion": "1940-1959", "NormativaVigente": "Ninguna anterior",
        "NExpedienteP": "P-17", "Proyectista_Nombre": "Nombre del proyectista",
        "Certificador_Telefono": "910000000", "EtiquetaQueNadieConoce": "1",
    }, nuevas=True, meses=True)
    envejecer(segundo, "NOVEXPLUS v6.1", {
        "Tipologia_edificio": "Terciario", "Modo_trabajo": "Nuevo",
        "TipoCalculoHE": "Cambio de uso", "Catastro": "DGC", "Grado_de_proteccion": "Ninguna",
        "Elemento_inalterable": "Ninguno", "ReferenciaCatastral": "9872023VH5797S0001WX",
        "AnoConstruccion": "1899",
    }, nuevas=True, meses=True)
    segundo.find("Datos_Uso/Tipo").set("name", "12hA")
    segundo.find("Instalaciones/Recuperador").set("name", "SinFreecooling")
    escribir("v6_1.xml", [primero, segundo])


def v5_05():
    base, mejora = caso(), caso()
    for novex, ano in ((base, "1985"), (mejora, "2019")):
        envejecer(novex, "NOVEXPLUS v5.05", {
            "Tipologia_edificio": "Unifamiliar", "Modo_trabajo": "Existente", "TipoCalculoHE": "",
            "AnoConstruccion": ano,
        }, nuevas=False, meses=False)
    base.find("Instalaciones/Recuperador").set("name", "ConFreecooling")
    quitar_de(base, "Instalaciones", ["PSuciedad_FV", "Control_Tmin_ST", "Tipon50"])
    mejora.find("Datos_Generales/Edificio_Titulo").set("name", "La mejora")
    escribir("v5_05.xml", [base])
    escribir("v5_05_M.xml", [mejora])


def v4_2():
    novex = caso()
    envejecer(novex, "NOVEXPLUS v4.2", {
        "Tipologia_edificio": "Bloque", "Modo_trabajo": "Ampliación", "AnoConstruccion": "2013",
        "Certificador_Colegio_Profesional": "Colegio de Ejemplo",
    }, nuevas=False, meses=False)
    novex.find("Datos_Generales/Certificador_Movil").set("name", "")
    ET.SubElement(novex.find("Datos_Generales"), "Certificador_Telefono", name="910000000")
    tipologia = novex.find("Datos_Globales/Tipologias/Tipologia")
    poner(tipologia, "N_dormitorios_simples", "2")
    escribir("v4_2.xml", [novex])


def v2_0():
    novex = caso()
    envejecer(novex, "NOVEX v2.0", {
        "Tipologia_edificio": "Unifamiliar", "Modo_trabajo": "Nuevo", "AnoConstruccion": "2014",
    }, nuevas=False, meses=False)
    quitar_de(novex, "Datos_Geograficos", ["Ciudad"])
    novex.remove(novex.find("Datos_Uso"))
    instalaciones = novex.find("Instalaciones")
    consumo = valor(instalaciones, "ConsumoAgua_litros_dia")
    for hijo in list(instalaciones):
        instalaciones.remove(hijo)
    poner(instalaciones, "ConsumoAgua_litros_dia", consumo)
    quitar_de(novex, "Puentes_Termicos", ["Longitud_puentes_termicos_modo"])
    globales = novex.find("Datos_Globales")
    grupo = globales.find("Tipologias")
    for campo in list(grupo.find("Tipologia")):
        globales.append(campo)
    globales.remove(grupo)
    escribir("v2_0.xml", [novex])


def main():
    DESTINO.mkdir(parents=True, exist_ok=True)
    for escribir_version in (v6_1, v5_05, v4_2, v2_0):
        escribir_version()
    return 0


if __name__ == "__main__":
    sys.exit(main())
