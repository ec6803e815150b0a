"""Fichero de proyecto de un Edificio, con el aspecto que le da el programa."""

from comunes import COMUNIDADES
from edificio import (PUENTES, PUENTES_DEFECTO, SECTORES, DatosHueco,
                      TransmitanciaCapas)
from generar import (CLASES_DIA, FAMILIAS, NOMBRES_MESES, AccionMes, Calendario,
                     NumerarAtributos, PicosTerciario, TablasHorarias)
from instalacionxml import EscribirInstalaciones
from textoxml import Fijo, Nodo

VERSION = "NOVEX 2026.09.30"

RANURAS = (
    "MuroExt1 MuroExt2 MuroExt3 MuroExt4 MuroExt5 MuroTerr1 MuroTerr2 MuroOtro1 "
    "MuroOtro5 MuroOtro2 MuroOtro6 MuroOtro3 MuroExt6 MuroOtro7 MuroExt7 TechoExt1 "
    "TechoExt2 TechoExt3 TechoInc1 TechoInc2 TechoInc3 TechoTerr1 TechoTerr2 "
    "TechoOtro1 TechoOtro2 TechoInt1 TechoInt2 TechoVent1 TechoVent2 TechoVent3 "
    "TechoVent4 SueloTerr1 SueloTerr2 SueloTerr3 SueloExt1 SueloExt2 SueloVent1 "
    "MuroExt8 SueloVent3 MuroExt9 SueloOtro1 SueloOtro3 SueloOtro2 SueloOtro4 "
    "SueloInt1 SueloInt2 MuroOtro8 MuroOtro9 TechoInt3 TechoInt4 SueloInt3 "
    "SueloInt4").split()

OBSTACULOS = {"oeste": ("oeste", "sur_oeste"), "sur_oeste": ("oeste", "sur_oeste", "sur"),
              "sur": ("sur_oeste", "sur", "sur_este"),
              "sur_este": ("sur", "sur_este", "este"), "este": ("sur_este", "este")}


class Proyecto:
    """Escribe las secciones de un caso, en su orden."""

    def __init__(self, edificio, catalogo):
        self.e = edificio
        self.g = edificio.general
        self.catalogo = catalogo
        self.capas = []  # sin repetir, en orden de ranura
        self.composiciones = {}
        for ranura in RANURAS:
            if ranura in edificio.composiciones:
                nombre, lista = edificio.composiciones[ranura]
                capas = [catalogo.Capa(m, espesor, ranura) for m, espesor in lista]
                self.composiciones[ranura] = (nombre, capas,
                                              TransmitanciaCapas(capas, ranura))
                for capa in capas:
                    if self._Indice(capa) is None:
                        self.capas.append(capa)

    def _Indice(self, capa):
        # El programa funde materiales de igual nombre, espesor y conductividad.
        clave = (capa.nombre, capa.espesor, capa.conductividad)
        for i, otra in enumerate(self.capas):
            if (otra.nombre, otra.espesor, otra.conductividad) == clave:
                return i
        return None

    def U(self, ranura):
        return self.composiciones[ranura][2] if ranura in self.composiciones else 0.0

    def Documento(self):
        raiz = Nodo("DatosEnergeticosDelEdificio")
        n = raiz.Hijo("DatosPersonalizados").Hijo("Novex")
        n.Hoja("Version", VERSION)
        self._DatosGenerales(n.Hijo("Datos_Generales"))
        self._DatosCertificado(n)
        self._Definicion(n.Hijo("Definicion"))
        self._DatosUso(n.Hijo("Datos_Uso"))
        self._DatosGlobales(n.Hijo("Datos_Globales"))
        self._Puentes(n.Hijo("Puentes_Termicos"))
        self._Cubiertas(n.Hijo("Cubiertas"))
        self._Muros(n.Hijo("Muros"))
        self._Suelos(n.Hijo("Suelos"))
        huecos = n.Hijo("Huecos")
        for grupo in self.e.huecos:
            self._Hueco(huecos.Hijo("Hueco"), grupo)
        self._Capas(n)
        EscribirInstalaciones(n.Hijo("Instalaciones"), self.e)
        return raiz.Documento()

    # ----------------------------------------------------- datos generales

    def _DatosGenerales(self, n):
        g = self.g
        for etiqueta in ("Tiposimulacion", "Equipos_Defecto"):
            n.Hoja(etiqueta, g[etiqueta])
        n.Hoja("mesmin", "6")
        n.Hoja("mesmax", "9")
        for etiqueta in ("Fecha", "Modo_Vision", "TipoCertificado", "PerfilUso", "Uso",
                         "Reforma", "Alcance"):
            n.Hoja(etiqueta, g[etiqueta])
        bloque = g["PerfilUso"] == "1"
        n.Hijo("NumUnidadesUso", (), str(self.e.numero_viviendas() if bloque else 1))
        for etiqueta in ("Edificio_Titulo", "Direccion", "Provincia", "Municipio"):
            n.Hoja(etiqueta, g[etiqueta])
        n.Hoja("ComunidadAutonoma", COMUNIDADES[g["Provincia"]])
        n.Hoja("CodigoPostal", g["CodigoPostal"])
        referencias = n.Hijo("ReferenciasCatastrales")
        referencias.Hoja("Registro", "DGC")
        referencia = referencias.Hijo("Ref")
        for etiqueta, valor in zip(("Parcela", "Inmueble", "Parte"), g["Catastro"]):
            referencia.Hoja(etiqueta, valor)
        for etiqueta in ("AnoConstruccion", "NormativaEdificacion",
                         "NormativaInstalaciones"):
            n.Hoja(etiqueta, g[etiqueta])
        n.Hoja("Otra_legislacion_aplicable", "Ninguna")
        n.Hoja("GradoProteccion", "Ninguna")
        n.Hoja("Uso", g["Uso"])
        n.Hoja("ZonaClimatica", g["ZonaClimatica"])
        n.Hoja("asnm", g["asnm"])
        n.Hoja("Pt", "0")
        n.Hoja("Cambio_zona_temperatura", "NO")
        n.Hoja("zona_radiante", g["zona_radiante"])
        n.Hoja("latitud", Fijo(g["latitud"], 5))
        for etiqueta in ("Nombre", "NIF", "Empresa", "CIF", "Direccion", "Localidad",
                         "Provincia", "CP", "email", "Profesion", "Movil"):
            n.Hoja("Certificador_" + etiqueta, g["Certificador"][etiqueta])
        remotos = n.Hijo("Obstaculos_remotos")
        for lado in ("Oeste", "SurOeste", "Sur", "SurEste", "Este"):
            altura, distancia = g.get("Remotos", {}).get(lado, (0.0, 0.0))
            remotos.Hoja(lado + "_Altura", Fijo(altura, 2))
            remotos.Hoja(lado + "_Distancia", Fijo(distancia, 2))

    def _DatosCertificado(self, n):
        g, c = self.g, self.g["Certificador"]
        certificado = n.Hijo("DatosCertificado")
        certificado.Hijo("TipoCertificado", (), g["TipoCertificado"])
        certificado.Hijo("Escala", (), "Terciario" if self.e.terciario
                         else "ViviendaUnifamiliar" if g["PerfilUso"] == "0"
                         else "ViviendaBloque")
        procedimiento = certificado.Hijo("Procedimiento")
        nombre, version = VERSION.split(" ")
        procedimiento.Hijo("Nombre", (), nombre)
        procedimiento.Hijo("Version", (), version)
        certificado.Hijo("FechaGeneracion", (), g["Fecha"])
        certificado.Hijo("FechaCalificacion", (), g["Fecha"])
        certificador = n.Hijo("DatosCertificador")
        for etiqueta, valor in (
                ("NombreApellidos", c["Nombre"]), ("Nif", c["NIF"]),
                ("RazonSocial", c["Empresa"]), ("NifEntidad", c["CIF"]),
                ("Domicilio", c["Direccion"]), ("Municipio", c["Localidad"]),
                ("CodigoPostal", c["CP"]), ("Certificador_Provincia", c["Provincia"]),
                ("Certificador_ComunidadAutonoma", COMUNIDADES[c["Provincia"]]),
                ("Email", c["email"]), ("Telefono", c["Movil"]),
                ("Titulacion", c["Profesion"])):
            certificador.Hijo(etiqueta, (), valor)

    def _Definicion(self, n):
        for i in (0, 1, 2, 4, 5, 6, 7):
            memo = n.Hijo(f"Memo{i}")
            for linea in self.g["Memos"].get(i, ()):
                memo.Hoja("Linea", linea)
        for clase, clave in (("Visita", "Visitas"), ("Observacion", "Observaciones")):
            fechas = self.g[clave]
            n.Hoja("Numero" + clave, str(len(fechas)))
            for i in range(3):
                n.Hoja(f"Fecha{clase}{i + 1}", fechas[i] if i < len(fechas) else "")
        n.Hoja("MedidaMejora", "Ninguna")
        condiciones = n.Hijo("CondicionesMejora")
        for etiqueta in ("Confort Iluminacion Movilidad Seguridad Accesibilidad "
                         "Incendios Salubridad Ruido Otros").split():
            condiciones.Hoja("CB" + etiqueta, "No")
        n.Hoja("Coste", "<500")
        n.Hoja("PlazoAmortizacion", "<5")
        intervenciones = n.Hijo("Intervenciones")
        for etiqueta in ("Huecos Cubiertas Fachadas Suelos Medianeras Sombras "
                         "GeneracionTermica Renovables Iluminacion2 Distribucion "
                         "Recuperacion Otras UsoIntervencion").split():
            intervenciones.Hoja("CB" + etiqueta, "No")

    # ----------------------------------------------------------------- uso

    def _CaudalVentilacion(self):
        return self.e.renovaciones() * self.e.volumen()

    def _ValoresUso(self, n):
        """Picos y alumbrado: en vivienda van en las tablas y aquí son cero."""
        t = self.e.terciario
        picos = PicosTerciario(t.clave) if t else ("0.00", "0.00", "0.00")
        n.Hijo("Valores_Maximos", {
            "Sensibleocupantes": picos[0], "Latenteocupantes": picos[1],
            "Ventilacion": Fijo(self._CaudalVentilacion(), 0),
            "Iluminacion": Fijo(t.alumbrado if t else 0.0, 2),
            "Equipos": Fijo(t.equipos, 2) if t else "0.00", "QOCUPSSimple": "0.00",
            "QOCUPLSimple": "0.00", "Actividad": t.actividad if t else "",
            "CriterioACS": "Personas" if t else "",
            "Nm2_p": Fijo(t.m2_persona if t else 0.0, 2)})
        n.Hijo("Iluminacion", {
            "VEII": Fijo(self._Veei(), 2), "Lux": Fijo(t.lux if t else 0.0, 2),
            "EPotIluMax": "10.00" if t else "0.00", "Qescaparates": "0",
            "VEIIMax": Fijo(t.veei_max[0] if t else 0.0, 2),
            "TipoVEIIMax": t.veei_max[1] if t else ""})

    def _Veei(self):
        """Eficiencia del alumbrado, W/m2 por 100 lux."""
        t = self.e.terciario
        return 100 * t.alumbrado / t.lux if t else 0.0

    def _DatosUso(self, n):
        i, t = self.e.instalacion, self.e.terciario
        n.Hoja("Tipo", t.clave if t else "Residencial")
        self._ValoresUso(n)
        varios = {
            "WRecuperadorr": Fijo(i["WRecuperadorr"], 0),
            "Teminrec": Fijo(i["Teminrec"], 1),
            "Temaxrec": Fijo(i["Temaxrec"], 1), "TminImp": "14.0", "HRmin": "30",
            "NEquiposVent": "1", "ManejoVentilacion": "TomaUT",
            "TipoCO2": "Coef. operacionales", "ControlVent": "Control por compuertas",
            "UTAFreeCooling": "FreeCoolingTermico", "UTAHumectacion": "HumectadorNo",
            "TminFreeCooling": "10", "CaudalUTA": "0", "RendVentToma": "0.60",
            "PerdPresionToma": "75", "SuperficieTotalHE5": "0.00",
            "SuperficieCubiertaHE5": "0.00", "SuperficieCaptadorestermHE5": "0.00",
            "RehabIntegralHE5": "No"}
        if not i["varios"].keys() <= varios.keys():
            raise KeyError(f"varios desconocidos: {i['varios'].keys() - varios.keys()}")
        n.Hijo("Varios", {**varios, **i["varios"]})
        tablas = TablasHorarias(t.clave[:-1] if t else "Residencial")
        for familia in FAMILIAS:
            for clase in CLASES_DIA:
                n.Hijo(familia + clase, NumerarAtributos(tablas[familia, clase][0]))
        for nombre, codigos in zip(NOMBRES_MESES, Calendario()):
            n.Hijo(nombre, NumerarAtributos(codigos))
        n.Hijo("AccionMes", NumerarAtributos(AccionMes(t is None)))

    def _DatosGlobales(self, n):
        e = self.e
        n.Hoja("Suelo_habitable_m2", Fijo(e.suelo(), 1))
        n.Hoja("Volumen_total_m3", Fijo(e.volumen(), 1))
        n.Hoja("NPlantasSobreRasante", self.g["NPlantasSobreRasante"])
        n.Hoja("NPlantasBajoRasante", "0")
        n.Hoja("nrenovventilacion", Fijo(e.renovaciones(), 2))
        n.Hoja("Calcular_Renov_h_segun_HS3", "Si")
        tipologias = n.Hijo("Tipologias")
        for v in e.viviendas:
            t = tipologias.Hijo("Tipologia")
            t.Hoja("N_viviendas", str(v.numero))
            t.Hoja("N_dormitorios_dobles", str(v.dormitorios))
            t.Hoja("N_salas_estar_comedor", str(v.salas))
            t.Hoja("N_cuartos_de_banyo", str(v.humedos))
        modelo = n.Hijo("Modelo")
        nuevo = self.g["TipoCertificado"].endswith("NuevaConstruccion")
        total = modelo.Hijo("Global")
        for etiqueta, valor in (
                ("DemandaDiariaAcs", Fijo(e.agua_caliente(), 2)),
                ("VentilacionDiseno", Fijo(round(self._CaudalVentilacion()), 2)),
                ("N50Ensayo", "0.00"), ("IntercambioAire", Fijo(e.renovaciones(), 2)),
                ("PermeabilidadOpacos", "16.00" if nuevo else "29.00"),
                ("CargaInternaMedia", "0.00")):
            total.Hijo(etiqueta, (), valor)
        espacio = modelo.Hijo("Espacios").Hijo("Espacio")
        t = e.terciario
        servicios = {x for s in e.sistemas for x in s["tipo"].split("+")}
        for etiqueta, valor in (
                ("PerfilUso", t.perfil() if t else "residencial-24h-baja"),
                ("IluminacionPotenciaInstalada", Fijo(t.alumbrado if t else 0.0, 2)),
                ("IluminanciaMedia", Fijo(t.lux if t else 0.0, 2)),
                ("TieneCal", "Si" if "Calefaccion" in servicios else "No"),
                ("TieneRef", "Si" if "Refrigeracion" in servicios else "No"),
                ("Veei", Fijo(self._Veei(), 2))):
            espacio.Hijo(etiqueta, (), valor)

    def _Puentes(self, n):
        valores = dict(zip(PUENTES, PUENTES_DEFECTO[self.g["ZonaClimatica"]]))
        orden = ("forjados", "cubiertas", "suelo_exterior", "esquina_saliente",
                 "ventanas", "pilares", "suelo_terreno")
        n.Hoja("Espesor_forjado", Fijo(self.e.forjado, 2))
        n.Hoja("Anchura_pilar", "0.30")
        n.Hoja("Def_Puentes_termicos", "Lider")
        n.Hoja("Def_Puentes_termicos_pilares", "Pilares no aislados")
        n.Hoja("Existencia_pilares", self.g["Existencia_pilares"])
        n.Hoja("Def_Puentes_termicos_ventanas", "Sin aislamiento")
        for prefijo, i in (("U_L_Puentes_", 0), ("fi_Puentes_", 1)):
            for puente in orden:
                n.Hoja(prefijo + puente, Fijo(valores[puente][i], 2))
        n.Hoja("Clase_de_higrometria", "0")
        n.Hoja("Longitud_puentes_termicos_modo", "Estimados")
        for etiqueta, largo in self.e.longitudes_puentes().items():
            n.Hoja(etiqueta, Fijo(largo, 2))

    # ----------------------------------------------------------- envolvente

    def _Transmitancias(self, n, pares):
        """Hojas U_ y UCTE_; la segunda la llena el cálculo y aquí vale 0."""
        for etiqueta, ranura in pares:
            n.Hoja(etiqueta, Fijo(self.U(ranura) if ranura else 0.0, 2))

    @staticmethod
    def _Reformas(n, etiquetas, tipo):
        for etiqueta in etiquetas:
            n.Hoja(f"R{etiqueta}{tipo}Reh", "0")

    def _Cubiertas(self, n):
        c = self.e.cubiertas
        color = n.Hijo("NColorCubiertasExt", {"name": str(self.g["ColorCubierta"])})
        color.Hoja("AbsortividadCubiertasExt", Fijo(0.6 + 0.1 * self.g["ColorCubierta"], 2))
        grupo = n.Hijo("CubiertasHz")
        for i in range(3):
            area, sombra = self._Fila(c, "horizontal", i, (0.0, 0.0))
            t = grupo.Hijo("CubiertaHz")
            t.Hoja("Cubierta_horiz_sol_m2", Fijo(area, 1))
            t.Hoja("Cubierta_horiz_sombra_m2", Fijo(sombra, 1))
            self._Transmitancias(t, (("U_Cubierta_horiz_sol_W_m2K", f"TechoExt{i + 1}"),
                                     ("UCTE_Cubierta_horiz_sol_W_m2K", None)))
            self._Reformas(t, ("CubiertaExt",), i + 1)
        grupo = n.Hijo("CubiertasIncl")
        for i in range(3):
            areas, _ = self._Fila(c, "inclinada", i, ({}, 1.0))
            t = grupo.Hijo("CubiertaIncl")
            for sector in SECTORES:
                t.Hoja(f"Cubierta_incl_{sector}_m2", Fijo(areas.get(sector, 0.0), 1))
            for sector in SECTORES:
                t.Hoja(f"Cubierta_incl_{sector}_Sombra_m2", "0.0")
            self._Transmitancias(t, (("U_Cubierta_incl_W_m2K", f"TechoInc{i + 1}"),
                                     ("UCTE_Cubierta_incl_W_m2K", None)))
            self._Reformas(t, ("CubiertaExtInc",), i + 1)
        grupo = n.Hijo("CubiertasOtras")
        for i in range(2):
            area, tejado, renovacion = self._Fila(c, "buhardilla", i,
                                                  (0.0, 0.0, "renovh=0."))
            t = grupo.Hijo("CubiertaOtras")
            t.Hoja("Cubierta_techo_ventilado_m2", Fijo(area, 1))
            t.Hoja("Cubierta_buhardilla_ext_m2", Fijo(tejado, 1))
            t.Hoja("Cubierta_adiabatico_m2", Fijo(self._Fila(c, "adiabatico", i, 0.0), 1))
            t.Hoja("Cubierta_terreno_m2", "0.0")
            self._Transmitancias(t, (
                ("U_Cubierta_techo_ventilado_W_m2K", ("TechoVent1", "TechoVent3")[i]),
                ("U_Cubierta_buhardilla_ext_W_m2K", ("TechoVent2", "TechoVent4")[i]),
                ("UCTE_Cubierta_buhardilla_ext_W_m2K", None)))
            t.Hoja("Renovacion_Buhardilla", renovacion)
            self._Transmitancias(t, (
                ("U_Cubierta_adiabatico_W_m2K", f"TechoOtro{i + 1}"),
                ("UCTE_Cubierta_adiabatico_W_m2K", None),
                ("U_Cubierta_terreno_W_m2K", f"TechoTerr{i + 1}"),
                ("U_Cubierta_Particion_Interna_W_m2K", f"TechoInt{i + 1}"),
                ("UCTE_Cubierta_Particion_Interna_W_m2K", None),
                ("U_Cubierta_Particion_InternaD_W_m2K", f"TechoInt{i + 3}"),
                ("UCTE_Cubierta_Particion_InternaD_W_m2K", None)))
            self._Reformas(t, ("CubiertaOLocal", "CubiertaTerreno",
                               "CubiertaDUsoMedianera", "CubiertaInteriorMUso",
                               "CubiertaInteriorDUso"), i + 1)

    @staticmethod
    def _Fila(tabla, clave, i, vacia):
        filas = tabla.get(clave, ())
        return filas[i] if i < len(filas) else vacia

    def _Muros(self, n):
        e = self.e
        color = n.Hijo("NColorMurosExt", {"name": str(self.g["ColorMuro"])})
        color.Hoja("AbsortividadMurosExt", Fijo(0.6 + 0.1 * self.g["ColorMuro"], 2))
        grupo = n.Hijo("MurosExt")
        for i in range(5):
            t = grupo.Hijo("MuroExt")
            for sector in SECTORES:
                t.Hoja(f"Muro_ext_{sector}_m2",
                       Fijo(e.muro_exterior(sector) if i == 0 else 0.0, 1))
            for sector in SECTORES[1:]:
                fuera = i == 0 and sector in e.fuera_de_plano
                t.Hoja(f"Muro_ext_Var_{sector}_m2",
                       Fijo(e.muro_exterior(sector) if fuera else 0.0, 1))
            self._Transmitancias(t, (("U_Muro_ext_W_m2K", f"MuroExt{i + 1}"),))
            self._Reformas(t, ("MuroExt",), i + 1)
            t.Hoja("UCTE_Muro_ext_W_m2K", "0.00")
        grupo = n.Hijo("MurosOtros")
        for i in range(2):
            primero = i == 0
            contiguo = e.local if primero else (0.0, "renovh=0.", "Norte")
            t = grupo.Hijo("Muro_otro")
            t.Hoja("Muro_otro_local_m2", Fijo(e.muro("local") if primero else 0.0, 1))
            t.Hoja("Muro_otro_local_ext_m2", Fijo(contiguo[0], 1))
            t.Hoja("Muro_al_terreno_m2", Fijo(e.muro("terreno") if primero else 0.0, 1))
            t.Hoja("Muro_adiabatico_m2", Fijo(e.muro("medianera") if primero else 0.0, 1))
            self._Transmitancias(t, (
                ("U_Muro_otro_local_W_m2K", ("MuroOtro3", "MuroOtro7")[i]),
                ("U_Muro_otro_local_ext_W_m2K", ("MuroExt6", "MuroExt7")[i]),
                ("UCTE_Muro_otro_local_ext_W_m2K", None)))
            t.Hoja("Renovacion_Otro_Local", contiguo[1])
            t.Hoja("Orientacion_Otro_Local", contiguo[2])
            self._Transmitancias(t, (("U_Muro_terreno_W_m2K", f"MuroTerr{i + 1}"),
                                     ("UCTE_Muro_terreno_W_m2K", None)))
            t.Hoja("Profundidad_muro_enterrado_m",
                   Fijo(e.profundidad_muro if primero else 1.0, 1))
            self._Transmitancias(t, (
                ("U_Muro_adiabatico_W_m2K", ("MuroOtro1", "MuroOtro5")[i]),
                ("UCTE_Muro_adiabatico_W_m2K", None),
                ("U_Muro_interior_W_m2K", ("MuroOtro2", "MuroOtro6")[i]),
                ("UCTE_Muro_interior_W_m2K", None),
                ("U_Muro_interiorD_W_m2K", ("MuroOtro8", "MuroOtro9")[i]),
                ("UCTE_Muro_interiorD_W_m2K", None)))
            self._Reformas(t, ("MuroOLocal", "MuroTerreno", "MuroDusoMedianera",
                               "MuroInteriorDUso", "MuroInteriorMUso"), i + 1)

    def _Suelos(self, n):
        s = self.e.suelos
        grupo = n.Hijo("SuelosTerreno")
        for i in range(3):
            area, perimetro, profundidad, aislamiento, ancho, ra = self._Fila(
                s, "terreno", i, (0.0, 0.0, 0.0, "SinAislamiento", 0.0, 0.0))
            t = grupo.Hijo("Suelo_terreno")
            t.Hoja("Suelo_al_terreno_m2", Fijo(area, 1))
            t.Hoja("Perimetro_Ext_Suelo_Terreno_m", Fijo(perimetro, 1))
            self._Transmitancias(t, (("U_Suelo_terreno_W_m2K", f"SueloTerr{i + 1}"),
                                     ("UCTE_Suelo_terreno_W_m2K", None)))
            t.Hoja("Profundidad_suelo_enterrado_m", Fijo(profundidad, 1))
            t.Hoja("Tipo_aislamiento_suelo", aislamiento)
            t.Hoja("D_Longitud_aislamiento_m", Fijo(ancho, 2))
            t.Hoja("Ra_Resitencia_aislante_m2K_W", Fijo(ra, 2))
            self._Reformas(t, ("SueloTerreno",), i + 1)
        grupo = n.Hijo("SuelosOtros")
        for i in range(2):
            local, local_ext, renovacion = self._Fila(s, "local", i,
                                                      (0.0, 0.0, "renovh=0."))
            vacio, perimetro = self._Fila(s, "vacio", i, (0.0, 0.0))
            t = grupo.Hijo("Suelo_otro")
            t.Hoja("Suelo_ext_m2", Fijo(self._Fila(s, "exterior", i, 0.0), 1))
            t.Hoja("Suelo_otro_local_m2", Fijo(local, 1))
            t.Hoja("Suelo_otro_local_ext_m2", Fijo(local_ext, 1))
            t.Hoja("Suelo_vacio_sanitario_m2", Fijo(vacio, 1))
            t.Hoja("Suelo_adiabatico_m2", Fijo(self._Fila(s, "adiabatico", i, 0.0), 1))
            t.Hoja("Perimetro_Ext_Vacio_Sanitario_m", Fijo(perimetro, 1))
            self._Transmitancias(t, (
                ("U_Suelo_ext_W_m2K", f"SueloExt{i + 1}"), ("UCTE_Suelo_ext_W_m2K", None),
                ("U_Suelo_otro_local_W_m2K", ("SueloVent1", "SueloVent3")[i]),
                ("U_Suelo_otro_local_ext_W_m2K", ("MuroExt8", "MuroExt9")[i])))
            t.Hoja("Renovacion_Otro_Local_suelo", renovacion)
            self._Transmitancias(t, (
                ("U_Suelo_vacio_sanitario_W_m2K", ("SueloOtro1", "SueloOtro3")[i]),
                ("UCTE_Suelo_vacio_sanitario_W_m2K", None),
                ("U_Suelo_adiabatico_W_m2K", ("SueloOtro2", "SueloOtro4")[i]),
                ("UCTE_Suelo_adiabatico_W_m2K", None),
                ("U_Suelo_particion_interior_W_m2K", f"SueloInt{i + 1}"),
                ("UCTE_Suelo_particion_interior_W_m2K", None),
                ("U_Suelo_particion_interiorD_W_m2K", f"SueloInt{i + 3}"),
                ("UCTE_Suelo_particion_interiorD_W_m2K", None)))
            self._Reformas(t, ("SueloOLocal", "SueloVacio", "SueloExterior",
                               "SueloDUsoMedianera", "SueloInteriorMUso",
                               "SueloInteriorDUso"), i + 1)

    def _Hueco(self, n, grupo):
        d = DatosHueco(grupo, self.catalogo)
        for etiqueta, valor in (
                ("Nombre_hueco", grupo.nombre), ("Ancho_m", Fijo(grupo.ancho, 2)),
                ("Alto_m", Fijo(grupo.alto, 2)),
                ("Retranqueo_m", Fijo(grupo.retranqueo, 2)),
                ("Distancia_alero_m", Fijo(grupo.alero[0], 2)),
                ("Longitud_alero_m", Fijo(grupo.alero[1], 2)),
                ("Indice_tipo_cristal", str(grupo.vidrio[0])),
                ("Indice_cristal_concreto", str(d["concreto"])),
                ("Indice_marco", str(grupo.marco[0])),
                ("Indice_tipo_junta", str(grupo.permeabilidad)),
                ("Indice_tipo_sombra_fija", "0"),
                ("Indice_tipo_sombra_movil", str(grupo.sombra_movil)),
                ("Indice_tipo_control_Verano", str(grupo.control[0])),
                ("Indice_tipo_control_Invierno", str(grupo.control[1])),
                ("U_cristal_W_m2K", Fijo(d["Ug"], 2)), ("HuecoReh", "0"),
                ("FS_cristal_tanto_por_uno", Fijo(d["g"], 2)),
                ("U_marco_W_m2K", Fijo(d["Uf"], 2)),
                ("Fraccion_marco_tanto_por_cien", Fijo(grupo.fraccion_marco, 2)),
                ("Valor_multiplicativo_FS_verano", "1.00"),
                ("Valor_multiplicativo_FS_invierno", "1.00"),
                ("Valor_multiplicativo_U_verano", "1.00"),
                ("Valor_multiplicativo_U_invierno", "1.00")):
            n.Hoja(etiqueta, valor)
        caja = grupo.caja or (0.25, 0.0, "Sin aislamiento", "Estanco", 0.0)
        n.Hoja("U_Caja_de_persiana_W_m2K", Fijo(caja[1], 2))
        n.Hoja("Altura_Caja_de_persiana_m", Fijo(caja[0], 2))
        n.Hoja("Vinf_Caja_de_persiana_m3_h", Fijo(caja[4], 2))
        n.Hoja("Permeabilidad_Ventanas", Fijo(d["C100"], 2))
        n.Hoja("Existe_Caja_persiana", "Existe" if grupo.caja else "No existe")
        n.Hoja("Tipo_de_U_Caja_persiana", caja[2])
        n.Hoja("Tipo_de_Vinf_Caja_persiana", caja[3])
        n.Hoja("Tipo_de_hueco", grupo.tipo)
        for etiqueta, valor in (
                ("C100", d["C100"]), ("Ff", grupo.fraccion_marco * 0.01),
                ("FactorSolar", d["FactorSolar"]),
                ("FactorSolarSombraActivada", d["FactorSolarSombra"]),
                ("UHueco", d["UHueco"]), ("FSHueco", d["FSHueco"])):
            n.Hijo(etiqueta, (), Fijo(valor, 2))
        n.Hoja("Numero_ventanas_norte", str(grupo.numero.get("norte", 0)))
        for sector, pares in OBSTACULOS.items():
            n.Hoja("Numero_ventanas_" + sector, str(grupo.numero.get(sector, 0)))
            n.Hoja("Separacion_ventanas_vertical_" + sector, "3.00")
            for par in pares:
                altura, distancia = grupo.obstaculos.get((sector, par), (0.0, 0.0))
                n.Hoja(f"Ventana_{sector}_altura_obstaculo_{par}", Fijo(altura, 2))
                n.Hoja(f"Ventana_{sector}_distancia_obstaculo_{par}", Fijo(distancia, 2))
        n.Hoja("Numero_lucernarios_Hz", str(grupo.numero.get("horizontal", 0)))

    def _Capas(self, n):
        capas = n.Hijo("Capas_materiales")
        for i, c in enumerate(self.capas):
            m = capas.Hijo("Material")
            for etiqueta, valor in (
                    ("Indice_capa_material", str(i)), ("Material", c.nombre),
                    ("Nombre_material", c.nombre), ("Espesor", Fijo(c.espesor, 3)),
                    ("Conductividad", Fijo(c.conductividad, 3)),
                    ("Densidad", Fijo(c.densidad, 3)),
                    ("CalorEspecifico", Fijo(c.calor, 3)), ("Iniciales", c.iniciales),
                    ("Resistencia_termica", Fijo(c.resistencia, 3)),
                    ("Resisvidad_relativa_vapor", Fijo(c.vapor, 3)), ("Grupo", c.grupo),
                    ("Pertenece_a_base_de_datos_CTE", "SI"),
                    ("Aplicacion", c.aplicacion)):
                m.Hoja(etiqueta, valor)
        composiciones = n.Hijo("Composiciones")
        for ranura in RANURAS:
            aplicacion = composiciones.Hijo("Aplicacion", {"name": ranura})
            if ranura in self.composiciones:
                nombre, lista, _ = self.composiciones[ranura]
                aplicacion.Hoja("NombreComposicion", nombre)
                for capa in lista:
                    aplicacion.Hoja("IndiceMaterial", str(self._Indice(capa)))
