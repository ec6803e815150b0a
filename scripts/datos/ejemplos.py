#!/usr/bin/env python3
"""Hace los proyectos de ejemplo de data/proyectos/.

    ejemplos.py               comprueba los edificios y escribe los ficheros
    ejemplos.py --comprobar   no escribe; estado 1 si lo escrito difiere

Los edificios y las personas son inventados.
"""

import argparse
import os
import sys

from comprobaciones import Faltas
from edificio import Catalogo
from instalados import (AerotermiaSueloRadiante, BloqueCalderaCentral, CalderaYSolar,
                        Comercio, Hotel, Oficina, PisoMultisplit)
from proyectoxml import Proyecto
from textoxml import EscribirOComprobar
from viviendas import Adosada, Bloque, CasaAntigua, Piso, ViviendaUnifamiliar

AQUI = os.path.dirname(os.path.abspath(__file__))
SALIDA = os.path.normpath(os.path.join(AQUI, "..", "..", "data", "proyectos"))

EJEMPLOS = {
    "vivienda_unifamiliar_D3.xml": ViviendaUnifamiliar,
    "adosada_C1.xml": Adosada,
    "bloque_B3.xml": Bloque,
    "piso_C2.xml": Piso,
    "casa_antigua_E1.xml": CasaAntigua,
    "caldera_condensacion_solar_D3.xml": CalderaYSolar,
    "aerotermia_suelo_radiante_D1.xml": AerotermiaSueloRadiante,
    "bloque_caldera_central_solar_B3.xml": BloqueCalderaCentral,
    "piso_calentador_multisplit_C2.xml": PisoMultisplit,
    "oficina_VRV_B4.xml": Oficina,
    "hotel_24h_A3.xml": Hotel,
    "comercio_8h_C1.xml": Comercio,
}


def main():
    argumentos = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    argumentos.add_argument("--comprobar", action="store_true",
                            help="no escribe: estado 1 si algún fichero difiere")
    opciones = argumentos.parse_args()
    catalogo = Catalogo()
    ficheros, correctos = {}, True
    for nombre, construir in EJEMPLOS.items():
        edificio = construir()
        proyecto = Proyecto(edificio, catalogo)
        for falta in Faltas(edificio, proyecto):
            print(f"{nombre}: {falta}", file=sys.stderr)
            correctos = False
        ficheros[os.path.join(SALIDA, nombre)] = proyecto.Documento()
    if not correctos:
        return 1
    return EscribirOComprobar(ficheros, opciones.comprobar, "difiere del edificio descrito:")


if __name__ == "__main__":
    sys.exit(main())
