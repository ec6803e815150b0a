"""Curvas y potencias del catálogo de equipos, con las etiquetas del proyecto."""

from generar import LeerHechos

# Prefijo del catálogo -> (prefijo del proyecto, coeficientes), en el orden del proyecto.
PREFIJOS = {"Qaa": ("aaQ", 6), "Qab": ("abQ", 6), "Qba": ("baQ", 6), "Qbb": ("bbQ", 6),
            "Qc": ("cQ", 4), "Ra": ("aR", 6), "Re": ("eR", 7), "Rb": ("bR", 6),
            "Rc": ("cR", 4), "Cc": ("cC", 4), "Cg": ("gC", 4)}
CURVAS = [f"{prefijo}{i}" for prefijo, numero in PREFIJOS.values()
          for i in range(numero)] + ["TeCambio"]


class CatalogoEquipos:
    """Modelos genéricos y comerciales por su nombre."""

    def __init__(self):
        self._comerciales = {f["modelo"]: f for f in LeerHechos("equipos_comerciales")}
        self._curvas = {}
        for fila in LeerHechos("curvas_equipos"):
            self._curvas.setdefault(fila["modelo_generico"], []).append(fila)

    def Curvas(self, modelo):
        """{etiqueta: coeficiente} de un modelo; el comercial lleva las de su genérico."""
        if modelo in self._comerciales:
            modelo = self._comerciales[modelo]["curva_generica"]
        curvas = {}
        for fila in self._curvas[modelo]:
            prefijo, numero = PREFIJOS[fila["prefijo_coeficientes"]]
            for i in range(numero):
                curvas[f"{prefijo}{i}"] = float(fila[f"c{i}"])
            cambio = fila["TeCambio (°C bulbo humedo)"]
            if cambio:
                curvas["TeCambio"] = float(cambio)
        return curvas

    def Nominales(self, modelo):
        """{etiqueta: kW} de un modelo comercial, sin las potencias que no tiene."""
        fila = self._comerciales[modelo]
        pares = (("QFrioTot1", "PotTotRef"), ("QFrioSen1", "PotSenRef"),
                 ("WeFrio1", "ConRef"), ("QcalorBC1", "PotCal"), ("WeCalor1", "ConCal"))
        return {etiqueta: float(fila[columna + " (kW)"]) for etiqueta, columna in pares
                if fila[columna + " (kW)"]}
