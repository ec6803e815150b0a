"""Siete edificios con todos sus sistemas definidos."""

from dataclasses import replace

from comunes import (ALUMINIO, ALUMINIO_RPT, AUTONIVELANTE, BLOQUE_20, CAJA_AISLADA,
                     CAJA_ANTIGUA, CAJA_BLOQUE, CAMARA, ENCACHADO, FORJADO_30,
                     FORJADO_CERAMICO, GEOTEXTIL, GRAVA, GRES, HORMIGON, LAMINA,
                     LANA_035, LANA_042, MEDIO_PIE, MONOCAPA, MORTERO, PENDIENTES, PIE,
                     PUERTA_AISLADA, PUR, PVC, PYL, RETICULAR, SIN_VIDRIO, TABICON,
                     TERRAZO, XPS, YESO, General, Instalacion, Rectangulo)
from edificio import Edificio, GrupoHuecos, Planta, Terciario, Viviendas
from sistemas import (COMERCIAL, GENERICO, RADIADORES, SUELO_RADIANTE, Calentador,
                      CalderaACS, CalderaCalefaccion, CaptadoresPlanos, Fancoils,
                      Fotovoltaica, Sistema, Termo)
from viviendas import ViviendaUnifamiliar

EPS = "EPS Poliestireno Expandido [0.032 W/mK]"
SATE = "Mortero acrílico de revestimiento de SATE"
TERMOARCILLA = "BC con mortero convencional espesor 240 mm"
PVC_CINCO = (7, "Otros: PVC cinco cámaras")
ALUMINIO_RPT_24 = (7, "Otros: Metálico con rotura puente térmico 24 mm")
BAJO_EMISIVO = (4, "4-16-4 argón 90%")
CONTROL_SOLAR = (4, "6-16-4+4 control solar argón 90%")
ESCALERA = {"MuroOtro3": ("Separación con la escalera",
                          [(YESO, 0.015), (MEDIO_PIE, 0.115), (LANA_035, 0.04),
                           (PYL, 0.0125)]),
            "MuroExt6": ("Casetón de escalera",
                         [(MONOCAPA, 0.015), (MEDIO_PIE, 0.115), (YESO, 0.015)])}
CUBIERTA_INVERTIDA = [(GRAVA, 0.05), (GEOTEXTIL, 0.002)]


def _Invertida(aislamiento, forjado=(FORJADO_30, 0.30)):
    """Capas de una cubierta invertida con grava, de fuera adentro."""
    return CUBIERTA_INVERTIDA + [(XPS, aislamiento), (LAMINA, 0.004), (PENDIENTES, 0.08),
                                 forjado, (YESO, 0.015)]


def CalderaYSolar():
    """El chalé de dos plantas con caldera, captadores y acondicionadores partidos."""
    casa = ViviendaUnifamiliar()
    general = {**casa.general, "Equipos_Defecto": "NO",
               "Edificio_Titulo": "Vivienda unifamiliar con caldera y captadores solares",
               "Tiposimulacion": "CertificacionSolo", "TipoCertificado": "Existente",
               "AnoConstruccion": "2013-2018", "NormativaEdificacion": "CTE_DB_HE_2013",
               "NormativaInstalaciones": "RITE_2013",
               "Memos": {
                   0: ("Cambiar la caldera por una bomba de calor aire-agua.",
                       "Colocar captación fotovoltaica en la cubierta."),
                   1: ("Visita a la vivienda. Se miden huecos y alturas.",),
                   2: ("Visita a la sala de caldera y a los captadores.",),
                   4: ("Los captadores se inclinan 55 grados por el verano.",)}}
    instalacion = {**casa.instalacion,
                   "campos": CaptadoresPlanos(2, 300, 55, tuberia=20)}
    return replace(
        casa, general=general, instalacion=instalacion,
        sistemas=[
            CalderaACS(20, 0.97, 120, Distribucion="Intercamb+Depósito", TbajaD=50,
                       EfiIntercamb=75, Alimentacion4="Directo solar intercambiador"),
            CalderaCalefaccion(20, 0.98, **RADIADORES, TimpCalor=55),
            Sistema("Refrigeracion", "Equipo Split", 2.5, equipos=4,
                    curvas=(COMERCIAL, "Split inverter 2.5 kW"), Distanciaext_int=4)])


def AerotermiaSueloRadiante():
    """Casa de una planta en ele, con bomba de calor y suelo radiante."""
    planta = Planta([(0, 0), (14, 0), (14, 7), (8, 7), (8, 12), (0, 12)], 2.90)
    ventana = {"vidrio": BAJO_EMISIVO, "marco": PVC_CINCO, "fraccion_marco": 25,
               "permeabilidad": 4, "sombra_movil": 2, "caja": CAJA_AISLADA}
    return Edificio(
        General("Vivienda de una planta con aerotermia y suelo radiante",
                TipoCertificado="ObraNuevaConstruccion", PerfilUso="0",
                Equipos_Defecto="NO", Direccion="Calle del Ejemplo, 21",
                Provincia="Navarra", Municipio="Zizur Mayor/Zizur Nagusia",
                CodigoPostal="31180", Catastro=("2345601XN0324N", "0001LM", "Vivienda"),
                AnoConstruccion="POST-2018", NormativaEdificacion="CTE_DB_HE_2019",
                NormativaInstalaciones="RITE_2021", ZonaClimatica="D1", asnm="460",
                zona_radiante="II", latitud=42.79, NPlantasSobreRasante="1",
                Visitas=("11/06/2026", "17/09/2026"), Observaciones=("17/09/2026",),
                Memos={
                    0: ("Prever una instalación fotovoltaica de autoconsumo.",),
                    1: ("Comprobado el aislamiento exterior y el de la solera.",),
                    2: ("Comprobada la puesta en marcha de la bomba de calor.",),
                    4: ("La obra ejecutada coincide con el proyecto.",)}),
        [planta],
        {"terreno": [(planta.superficie(), planta.longitud_expuesta(), 0.0, "Continuo",
                      0.0, 3.53)]},
        {"horizontal": [(planta.superficie(), 0.0)]},
        {"MuroExt1": ("Bloque cerámico con aislamiento exterior",
                      [(SATE, 0.006), (EPS, 0.12), (TERMOARCILLA, 0.24), (YESO, 0.015)]),
         "TechoExt1": ("Cubierta invertida con grava", _Invertida(0.16)),
         "SueloTerr1": ("Solera con suelo radiante",
                        [(GRES, 0.015), (AUTONIVELANTE, 0.05), (XPS, 0.12),
                         (HORMIGON, 0.15), (ENCACHADO, 0.20)])},
        [GrupoHuecos("Dormitorios", 1.40, 1.25, {"este": 3, "oeste": 1},
                     control=(0, 0), **ventana),
         GrupoHuecos("Salón", 2.60, 2.20, {"sur": 2}, alero=(0.30, 1.00),
                     control=(1, 1), **ventana),
         GrupoHuecos("Estancias al sur", 1.80, 1.30, {"sur": 1}, alero=(0.30, 0.50),
                     control=(0, 0), **ventana),
         GrupoHuecos("Baños y cocina", 0.90, 1.00, {"norte": 2, "oeste": 1},
                     BAJO_EMISIVO, PVC_CINCO, 30, 4),
         GrupoHuecos("Puerta", 1.00, 2.10, {"norte": 1}, SIN_VIDRIO, PUERTA_AISLADA,
                     100, 4, tipo="Puerta", retranqueo=0.20)],
        [Viviendas(1, 4, 1, 3)],
        Instalacion(TipoVentilacion2="Mecanica", Recuperador="SensibleConBypass",
                    WRecuperador=55, WRecuperadorr=40, Temaxrec=25,
                    Eficiencia_recuperador=85),
        [Sistema("ACS+Calefaccion", "1 BC aire-agua", 9.0,
                 curvas=(COMERCIAL, "Aire-agua 9 kW inverter"), Distribucion="Depósito",
                 Volumen=200, TaltaD=50, TbajaD=45, TimpACS=45, QApoyoTermo=3,
                 **SUELO_RADIANTE)],
        forjado=0.30)


def BloqueCalderaCentral():
    """Veinte viviendas en cuatro plantas sobre el garaje, con sala de calderas."""
    tipo = Planta(Rectangulo(0, 0, 27, 14), 2.90, veces=4,
                  nucleo=Rectangulo(11, 5, 5, 5))
    altura_garaje, caseton = 3.00, 2.50
    ventana = {"vidrio": (1, "4-12-6"), "marco": ALUMINIO_RPT, "fraccion_marco": 20,
               "permeabilidad": 2, "sombra_movil": 1, "caja": CAJA_BLOQUE}
    tipos = [Viviendas(12, 2, 1, 2), Viviendas(8, 3, 1, 3)]
    multisplit = Sistema("Refrigeracion", "Equipo MultiSplit", 4.0, equipos=20,
                         curvas=(COMERCIAL, "Multisplit 2x1 4 kW"), Distanciaext_int=12)
    return Edificio(
        General("Bloque de veinte viviendas con caldera central y captadores solares",
                Tiposimulacion="CertificacionSolo", TipoCertificado="Existente",
                PerfilUso="1",
                Equipos_Defecto="NO", Direccion="Avenida del Ejemplo, 8",
                Provincia="Murcia", Municipio="Murcia", CodigoPostal="30007",
                Catastro=("5678902XH6057N", "0001PQ", "Bloque_B"),
                AnoConstruccion="2006-2012", NormativaEdificacion="CTE_DB_HE_2006",
                NormativaInstalaciones="RITE_2007", ZonaClimatica="B3", asnm="42",
                zona_radiante="IV", latitud=37.98, NPlantasSobreRasante="5",
                Remotos={"Sur": (14.0, 30.0)}, Visitas=("02/09/2026",),
                Observaciones=("02/09/2026",),
                Memos={
                    0: ("Calorifugar el anillo de retorno del agua caliente.",
                        "Valorar la sustitución de la caldera por aerotermia."),
                    1: ("Visita a dos viviendas, a la cubierta y a la sala de calderas.",),
                    4: ("Los multisplit son los de la promoción.",)}),
        [tipo],
        {"local": [(tipo.superficie(), tipo.longitud_expuesta() * altura_garaje,
                    "renovh=1.")]},
        {"horizontal": [(tipo.superficie(), 25.0)]},
        {"MuroExt1": ("Ladrillo cara vista con lana mineral",
                      [(MEDIO_PIE, 0.115), (MORTERO, 0.01), (LANA_042, 0.05),
                       (TABICON, 0.07), (YESO, 0.015)]),
         **ESCALERA,
         "TechoExt1": ("Cubierta invertida con grava",
                       _Invertida(0.06, (RETICULAR, 0.30))),
         "SueloVent1": ("Forjado sobre garaje con suelo flotante",
                        [(GRES, 0.015), (AUTONIVELANTE, 0.05), (XPS, 0.03),
                         (RETICULAR, 0.30), (YESO, 0.015)]),
         "MuroExt8": ("Cerramiento del garaje",
                      [(MORTERO, 0.015), (BLOQUE_20, 0.20), (MORTERO, 0.015)])},
        [GrupoHuecos("Salones", 2.20, 2.20, {"sur": 12, "norte": 8}, alero=(0.30, 1.20),
                     control=(1, 1), **ventana),
         GrupoHuecos("Dormitorios", 1.40, 1.20,
                     {"norte": 16, "sur": 16, "este": 12, "oeste": 12},
                     alero=(0.20, 0.30), control=(0, 0), **ventana),
         GrupoHuecos("Baños y cocinas", 0.80, 1.10,
                     {"norte": 16, "este": 8, "oeste": 8}, (1, "4-12-6"), ALUMINIO_RPT,
                     25, 2)],
        tipos, Instalacion(TipoVentilacion2="Mecanica", WRecuperador=22,
                           campos=CaptadoresPlanos(22, 2500, 45, tuberia=50,
                                                   recirculacion=1200)),
        [CalderaACS(50, 0.97, 1000, central=True, Distribucion="Interacumu+lado_generador",
                    Alimentacion4="Recirculado solar intercambiador", AintermbD=3.2,
                    Retorno="Con retorno", NHretorno=0, CaudalRET=600, TbajaD=55,
                    Long_tuberias=110),
         CalderaCalefaccion(110, 0.98, central=True, **RADIADORES, TimpCalor=55),
         multisplit],
        local=(5 * 5 + 2 * (5 + 5) * caseton, "renovh=05", "Norte"))


def PisoMultisplit():
    """Ático de los años ochenta, entre una medianera y la escalera."""
    planta = Planta(Rectangulo(0, 0, 10, 9), 2.80, {1: "medianera", 3: "local"})
    ventana = {"vidrio": (1, "4-12-4"), "marco": ALUMINIO_RPT, "fraccion_marco": 20,
               "permeabilidad": 2, "sombra_movil": 1, "caja": CAJA_ANTIGUA}
    return Edificio(
        General("Ático con calentador instantáneo y multisplit",
                Tiposimulacion="CertificacionSolo", TipoCertificado="Existente",
                PerfilUso="2", Alcance="Parte", Equipos_Defecto="NO",
                Direccion="Carrer de l'Exemple, 45, 6º 2ª", Provincia="Barcelona",
                Municipio="Sabadell", CodigoPostal="08202",
                Catastro=("6789003DG2069S", "0012RS", "Piso-6o2a"),
                AnoConstruccion="1979-2005", NormativaEdificacion="NBE_CT_79",
                NormativaInstalaciones="RITE_2007", ZonaClimatica="C2", asnm="190",
                zona_radiante="II", latitud=41.55, NPlantasSobreRasante="1",
                Visitas=("15/09/2026",), Observaciones=("15/09/2026",),
                Memos={
                    0: ("Aislar la azotea por el exterior.",
                        "Sustituir el calentador por una bomba de calor de agua caliente."),
                    1: ("Visita a la vivienda y a la azotea del edificio.",),
                    4: ("Ventanas y multisplit renovados en 2015, con factura.",)}),
        [planta],
        {"adiabatico": [planta.superficie()]}, {"horizontal": [(planta.superficie(), 0.0)]},
        {"MuroExt1": ("Doble hoja de ladrillo con poliuretano proyectado",
                      [(MORTERO, 0.015), (MEDIO_PIE, 0.115), (PUR, 0.03), (CAMARA, 0.03),
                       (TABICON, 0.07), (YESO, 0.015)]),
         "MuroOtro1": ("Medianera de un pie de ladrillo",
                       [(YESO, 0.015), (PIE, 0.24), (YESO, 0.015)]),
         "MuroOtro3": ("Pared de la escalera",
                       [(YESO, 0.015), (MEDIO_PIE, 0.115), (YESO, 0.015)]),
         "MuroExt6": ("Fachada de la escalera",
                      [(MORTERO, 0.015), (MEDIO_PIE, 0.115), (YESO, 0.015)]),
         "TechoExt1": ("Azotea transitable",
                       [(GRES, 0.015), (MORTERO, 0.03), (XPS, 0.04), (LAMINA, 0.004),
                        (PENDIENTES, 0.06), (FORJADO_CERAMICO, 0.25), (YESO, 0.015)]),
         "SueloOtro2": ("Forjado entre viviendas",
                        [(TERRAZO, 0.03), (MORTERO, 0.03), (FORJADO_CERAMICO, 0.25),
                         (YESO, 0.015)])},
        [GrupoHuecos("Salón y terraza", 2.40, 2.10, {"sur": 1}, alero=(0.20, 1.00),
                     control=(1, 1), **ventana),
         GrupoHuecos("Dormitorios", 1.40, 1.20, {"sur": 1, "norte": 2}, control=(0, 0),
                     **ventana),
         GrupoHuecos("Cocina", 1.20, 1.00, {"norte": 1}, (1, "4-12-4"), ALUMINIO_RPT, 20,
                     2)],
        [Viviendas(1, 3, 1, 2)], Instalacion(NVBloqueF=12),
        [Calentador("Convencional", "GasNatural", 24.0, 0.86),
         Sistema("Calefaccion+Refrigeracion", "Equipo MultiSplit", 8.0,
                 curvas=(COMERCIAL, "Multisplit 4x1 8 kW"), NEmisores=4, Distanciaext_int=8,
                 CaudalVent=480, SaltoPVent=30, rendVent=0.40,
                 ConsumoEmisor="Añadir consumo ventilador interior")],
        local=(3 * planta.altura, "renovh=1.", "Norte"))


def _ConPrimario(edificio, recuperador, **varios):
    """Aire primario a unidades terminales con el caudal de diseño del edificio.

    El ventilador gasta `recuperador` W por m3/s de aire exterior, y dos tercios con el
    recuperador puenteado.
    """
    caudal = edificio.renovaciones() * edificio.volumen()
    potencia = recuperador * caudal / 3600
    instalacion = {**edificio.instalacion, "WRecuperador": round(potencia, -1),
                   "WRecuperadorr": round(potencia * 2 / 3, -1),
                   "varios": {"ManejoVentilacion": "UTAprimario_a_unid_terminales",
                              "TipoCO2": "Coef. operacionales + freecooling",
                              "CaudalUTA": f"{caudal:.0f}", **varios}}
    return replace(edificio, instalacion=instalacion)


def Oficina():
    """Tres plantas de oficinas con caudal variable de refrigerante."""
    tipo = Planta(Rectangulo(0, 0, 24, 15), 3.30, veces=3, nucleo=Rectangulo(10, 6, 4, 4))
    ventana = {"vidrio": CONTROL_SOLAR, "marco": ALUMINIO_RPT_24, "fraccion_marco": 20,
               "permeabilidad": 3, "sombra_movil": 7, "control": (2, 0)}
    superficie = 3 * tipo.superficie()
    return _ConPrimario(Edificio(
        General("Edificio de oficinas con caudal variable de refrigerante",
                TipoCertificado="ObraNuevaConstruccion", PerfilUso="7",
                Equipos_Defecto="NO", Uso="Administrativo",
                Direccion="Avenida del Ejemplo, 100", Provincia="Sevilla",
                Municipio="Sevilla", CodigoPostal="41013",
                Catastro=("7890104TG3479S", "0001TU", "Oficinas"),
                AnoConstruccion="POST-2018", NormativaEdificacion="CTE_DB_HE_2019",
                NormativaInstalaciones="RITE_2021", ZonaClimatica="B4", asnm="11",
                zona_radiante="V", latitud=37.39, NPlantasSobreRasante="3",
                Visitas=("21/05/2026", "10/09/2026"), Observaciones=("10/09/2026",),
                Memos={
                    0: ("Ampliar el campo fotovoltaico hasta cubrir la azotea.",),
                    1: ("Comprobados aislamiento de fachada y carpinterías.",),
                    2: ("Comprobada la puesta en marcha de la climatización.",),
                    4: ("La obra ejecutada coincide con el proyecto.",)}),
        [tipo],
        {"terreno": [(tipo.superficie(), tipo.longitud_expuesta(), 0.0, "Continuo", 0.0,
                      1.76)]},
        {"horizontal": [(tipo.superficie(), 60.0)]},
        {"MuroExt1": ("Fachada de ladrillo con trasdosado de lana mineral",
                      [(MONOCAPA, 0.015), (MEDIO_PIE, 0.115), (MORTERO, 0.01),
                       (LANA_035, 0.08), (PYL, 0.0125)]),
         **ESCALERA,
         "TechoExt1": ("Cubierta invertida con grava",
                       _Invertida(0.10, (RETICULAR, 0.30))),
         "SueloTerr1": ("Solera con aislamiento continuo",
                        [(TERRAZO, 0.03), (MORTERO, 0.03), (XPS, 0.06), (HORMIGON, 0.15),
                         (ENCACHADO, 0.20)])},
        [GrupoHuecos("Fachada sur", 2.20, 1.70, {"sur": 18}, alero=(0.20, 0.80), **ventana),
         GrupoHuecos("Fachada norte", 2.20, 1.70, {"norte": 18}, **ventana),
         GrupoHuecos("Testeros", 1.80, 1.70, {"este": 6, "oeste": 6}, **ventana),
         GrupoHuecos("Entrada", 2.00, 2.40, {"sur": 1}, SIN_VIDRIO, ALUMINIO_RPT_24, 100, 2,
                     tipo="Puerta", retranqueo=0.30)],
        [Viviendas(1, 1, 0, 1)],
        Instalacion(TipoVentilacion2="Mecanica", Recuperador="EntalpicoConBypass",
                    Teminrec=16, Temaxrec=24, Eficiencia_recuperador=75,
                    Eficiencia_recuperador_Ental=60,
                    campos=Fotovoltaica(20.0, 100.0, 25)),
        [Termo(100, Long_tuberias=40),
         Sistema("Calefaccion+Refrigeracion", "Caudal refrigerante variable", 90.0,
                 equipos=2, curvas=(COMERCIAL, "Caudal variable 45 kW"),
                 Distanciaext_int=25)],
        local=(4 * 4 + 2 * (4 + 4) * 2.5, "renovh=05", "Norte"),
        terciario=Terciario("12hM", "Oficinas", 10.0, 45.0, 2.0, 7.0, 500.0,
                            (3.0, "VIEElim=3     Administrativo en general"), 4.5)),
        1600, ControlVent="Variador de frecuencia", UTAFreeCooling="FreeCoolingEntalpico",
        SuperficieTotalHE5=f"{superficie:.2f}",
        SuperficieCubiertaHE5=f"{tipo.superficie():.2f}")


def Hotel():
    """Hotel de cuatro plantas con enfriadora, ventiloconvectores y agua central."""
    tipo = Planta(Rectangulo(0, 0, 38, 15), 3.00, veces=4, nucleo=Rectangulo(16, 5, 6, 5))
    ventana = {"vidrio": (4, "4-16-4"), "marco": ALUMINIO_RPT_24, "fraccion_marco": 20,
               "permeabilidad": 3, "sombra_movil": 10, "control": (1, 0)}
    return _ConPrimario(Edificio(
        General("Hotel con enfriadora y agua caliente central",
                TipoCertificado="ObraNuevaConstruccion", PerfilUso="13",
                Equipos_Defecto="NO", Uso="ResidencialPublico",
                Direccion="Paseo del Ejemplo, 2", Provincia="Málaga", Municipio="Málaga",
                CodigoPostal="29016", Catastro=("8901205UF7680S", "0001VW", "Hotel"),
                AnoConstruccion="POST-2018", NormativaEdificacion="CTE_DB_HE_2019",
                NormativaInstalaciones="RITE_2021", ZonaClimatica="A3", asnm="11",
                zona_radiante="IV", latitud=36.72, NPlantasSobreRasante="4",
                Visitas=("04/06/2026", "08/09/2026"), Observaciones=("08/09/2026",),
                Memos={
                    0: ("Recuperar el calor de condensación de la enfriadora.",),
                    1: ("Comprobados aislamiento de fachada y carpinterías.",),
                    2: ("Comprobada la sala de calderas y la enfriadora.",),
                    4: ("La obra ejecutada coincide con el proyecto.",)}),
        [tipo],
        {"terreno": [(tipo.superficie(), tipo.longitud_expuesta(), 0.0, "Continuo", 0.0,
                      1.18)]},
        {"horizontal": [(tipo.superficie(), 80.0)]},
        {"MuroExt1": ("Fachada de ladrillo con trasdosado de lana mineral",
                      [(MONOCAPA, 0.015), (MEDIO_PIE, 0.115), (MORTERO, 0.01),
                       (LANA_035, 0.06), (PYL, 0.0125)]),
         **ESCALERA,
         "TechoExt1": ("Cubierta invertida con grava",
                       _Invertida(0.08, (RETICULAR, 0.30))),
         "SueloTerr1": ("Solera con aislamiento continuo",
                        [(TERRAZO, 0.03), (MORTERO, 0.03), (XPS, 0.04), (HORMIGON, 0.15),
                         (ENCACHADO, 0.20)])},
        [GrupoHuecos("Habitaciones", 1.80, 2.10, {"sur": 40, "norte": 36},
                     alero=(0.30, 1.00), **ventana),
         GrupoHuecos("Testeros", 1.20, 1.20, {"este": 8, "oeste": 8}, **ventana),
         GrupoHuecos("Vestíbulo", 3.00, 2.40, {"sur": 2}, alero=(0.30, 1.50), **ventana)],
        [Viviendas(1, 1, 0, 1)],
        Instalacion(TipoVentilacion2="Mecanica", Recuperador="SensibleConBypass",
                    Temaxrec=25, Eficiencia_recuperador=75,
                    campos=CaptadoresPlanos(32, 4000, 40, tuberia=60, recirculacion=2400)),
        [CalderaACS(120, 0.97, 3000, central=True, Distribucion="Intercamb+Depósito",
                    Alimentacion4="Recirculado solar intercambiador", EfiIntercamb=75,
                    Retorno="Con retorno", NHretorno=1, CaudalRET=1200, TaltaD=62,
                    TbajaD=55, Long_tuberias=150),
         CalderaCalefaccion(80, 0.97, central=True, **Fancoils(76), TimpCalor=50),
         Sistema("Refrigeracion", "Enfriadora agua cond.aire", 130.0, central=True,
                 curvas=(GENERICO, "Enfriadora de etapas"), QFrioTot1=130, WeFrio1=43.5,
                 **Fancoils(76))],
        local=(6 * 5 + 2 * (6 + 5) * 2.5, "renovh=05", "Norte"),
        terciario=Terciario("24hM", "Hotel ***", 20.0, 28.8, 41.0, 4.0, 200.0,
                            (10.0, "VIEElim=10    Habitaciones de hoteles, hostales, etc."),
                            4.5)),
        1500, ControlVent="Variador de frecuencia")


def Comercio():
    """Tienda en la planta baja de una manzana, con escaparates a la calle."""
    planta = Planta(Rectangulo(0, 0, 16, 10), 3.50, {1: "medianera", 3: "medianera"})
    return Edificio(
        General("Comercio en planta baja con equipo de conductos",
                Tiposimulacion="CertificacionSolo", TipoCertificado="Existente",
                PerfilUso="4", Alcance="Parte", Equipos_Defecto="NO", Uso="Comercial",
                Direccion="Calle del Ejemplo, 5, bajo", Provincia="Vizcaya",
                Municipio="Bilbao", CodigoPostal="48008",
                Catastro=("9012306WN0999S", "0002XY", "Local-1"),
                AnoConstruccion="1979-2005", NormativaEdificacion="NBE_CT_79",
                NormativaInstalaciones="RITE_2007", ZonaClimatica="C1", asnm="19",
                zona_radiante="I", latitud=43.26, NPlantasSobreRasante="1",
                Remotos={"Sur": (15.0, 14.0)}, Visitas=("16/09/2026",),
                Observaciones=("16/09/2026",),
                Memos={
                    0: ("Renovar el alumbrado con tecnología led.",
                        "Colocar vidrio bajo emisivo en los escaparates."),
                    1: ("Visita al local. Se miden escaparates y alturas.",),
                    4: ("El equipo de climatización se renovó en 2016.",)}),
        [planta],
        {"terreno": [(planta.superficie(), planta.longitud_expuesta(), 0.0,
                      "SinAislamiento", 0.0, 0.0)]},
        {"adiabatico": [planta.superficie()]},
        {"MuroExt1": ("Doble hoja de ladrillo con lana mineral",
                      [(MORTERO, 0.015), (MEDIO_PIE, 0.115), (LANA_042, 0.04),
                       (TABICON, 0.07), (YESO, 0.015)]),
         "MuroOtro1": ("Medianera de un pie de ladrillo",
                       [(YESO, 0.015), (PIE, 0.24), (YESO, 0.015)]),
         "TechoOtro1": ("Forjado con la vivienda de arriba",
                        [(TERRAZO, 0.03), (MORTERO, 0.03), (FORJADO_CERAMICO, 0.25),
                         (YESO, 0.015)]),
         "SueloTerr1": ("Solera sin aislamiento",
                        [(TERRAZO, 0.03), (MORTERO, 0.04), (HORMIGON, 0.15),
                         (ENCACHADO, 0.20)])},
        [GrupoHuecos("Escaparates", 3.20, 2.60, {"sur": 3}, (1, "6-12-4+4 laminado"),
                     ALUMINIO_RPT, 12, 2, tipo="Escaparate", alero=(0.30, 1.20)),
         GrupoHuecos("Puerta", 1.60, 2.40, {"sur": 1}, (1, "6-12-4+4 laminado"),
                     ALUMINIO_RPT, 25, 1, alero=(0.30, 1.20)),
         GrupoHuecos("Trastienda", 1.00, 0.80, {"norte": 3}, (1, "4-12-4"), ALUMINIO, 20,
                     1)],
        [Viviendas(1, 1, 0, 1)], Instalacion(TipoVentilacion2="Mecanica"),
        [Sistema("Calefaccion+Refrigeracion", "Equipo Conductos", 14.0,
                 curvas=(GENERICO, "Conductos inverter"), Distanciaext_int=10,
                 QFrioTot1=14.0, QFrioSen1=10.6, WeFrio1=4.75, QcalorBC1=15.7,
                 WeCalor1=4.54)],
        terciario=Terciario("8hM", "Otros", 8.0, 28.8, 0.0, 9.0, 400.0,
                            (8.0, "VIEElim=8     Tiendas y pequeño comercio"), 4.5))
