"""Cinco viviendas con equipos por defecto en calefacción y refrigeración."""

import math

from comunes import (ALUMINIO, ALUMINIO_RPT, AUTONIVELANTE, BALDOSA, BLOQUE_20,
                     CAJA_AISLADA, CAJA_ANTIGUA, CAJA_BLOQUE, CAL, CAMARA, ENCACHADO,
                     FORJADO_30, FORJADO_CERAMICO, FORJADO_EPS, GEOTEXTIL, GRAVA, GRES,
                     HORMIGON, LAMINA, LANA_035, LANA_042, MADERA, MAMPOSTERIA,
                     MEDIO_PIE, MEDIO_PIE_MACIZO, MONOCAPA, MORTERO, PENDIENTES, PIE,
                     PIE_MACIZO, PIE_Y_MEDIO_MACIZO, PUERTA_AISLADA, PUERTA_MADERA, PUR,
                     PVC, PYL, RASILLON, RETICULAR, REVOLTON, SIN_VIDRIO, TABICON,
                     TABICON_GF, TABIQUE, TABLA, TARIMA, TEJA, TERRAZO, XPS, YESO,
                     General, Instalacion, Rectangulo)
from edificio import Edificio, GrupoHuecos, Planta, Viviendas
from sistemas import Calentador, Termo


def ViviendaUnifamiliar():
    """Chalé de dos plantas; la alta ocupa parte y deja una terraza."""
    baja = Planta(Rectangulo(0, 0, 12, 8), 2.90)
    alta = Planta(Rectangulo(0, 0, 8, 8), 2.80)
    cubierta = [(YESO, 0.015), (FORJADO_30, 0.30), (PENDIENTES, 0.08), (LAMINA, 0.004),
                (XPS, 0.12), (GEOTEXTIL, 0.002)]
    vidrio = (3, "4-16-4 argón 90%")
    ventana = {"vidrio": vidrio, "marco": PVC, "fraccion_marco": 25, "permeabilidad": 3,
               "sombra_movil": 2, "caja": CAJA_AISLADA}
    return Edificio(
        General("Vivienda unifamiliar aislada de dos plantas",
                TipoCertificado="ObraNuevaConstruccion", PerfilUso="0",
                Direccion="Calle del Ejemplo, 12", Provincia="Madrid",
                Municipio="Pozuelo de Alarcón", CodigoPostal="28223",
                Catastro=("1234501VK3713S", "0001AB", "Vivienda"),
                AnoConstruccion="POST-2018", NormativaEdificacion="CTE_DB_HE_2019",
                NormativaInstalaciones="RITE_2021", ZonaClimatica="D3", asnm="689",
                zona_radiante="IV", latitud=40.44, NPlantasSobreRasante="2",
                Visitas=("14/05/2026", "22/09/2026"), Observaciones=("22/09/2026",),
                Memos={
                    0: ("Se recomienda estudiar una bomba de calor aerotérmica",
                        "para calefacción y agua caliente, y captación fotovoltaica."),
                    1: ("Comprobados aislamiento de fachada y forjados en obra.",),
                    2: ("Comprobadas carpinterías, vidrios y recuperador.",),
                    4: ("La obra ejecutada coincide con el proyecto.",)}),
        [baja, alta],
        {"terreno": [(baja.superficie(), baja.longitud_expuesta(), 0.0, "Continuo",
                      0.0, 2.35)]},
        {"horizontal": [(alta.superficie(), 0.0),
                        (baja.superficie() - alta.superficie(), 8.0)]},
        {"MuroExt1": ("Fachada de ladrillo con trasdosado de lana mineral",
                      [(MONOCAPA, 0.015), (MEDIO_PIE, 0.115), (MORTERO, 0.01),
                       (LANA_035, 0.10), (PYL, 0.0125)]),
         "TechoExt1": ("Cubierta invertida con grava",
                       [(GRAVA, 0.05)] + cubierta[::-1]),
         "TechoExt2": ("Terraza transitable invertida",
                       [(GRES, 0.015), (MORTERO, 0.04)] + cubierta[::-1]),
         "SueloTerr1": ("Solera con aislamiento continuo",
                        [(GRES, 0.015), (AUTONIVELANTE, 0.05), (XPS, 0.08),
                         (HORMIGON, 0.15), (ENCACHADO, 0.20)])},
        [GrupoHuecos("Dormitorios", 1.40, 1.20, {"norte": 3, "oeste": 2, "este": 1},
                     control=(0, 0), obstaculos={("oeste", "oeste"): (4.0, 6.0)},
                     **ventana),
         GrupoHuecos("Salón", 2.40, 2.20, {"sur": 2}, alero=(0.20, 1.20),
                     control=(1, 1), **ventana),
         GrupoHuecos("Planta alta", 1.50, 1.20, {"sur": 3, "este": 1, "oeste": 1},
                     alero=(0.30, 0.50), control=(0, 0), **ventana),
         GrupoHuecos("Baños", 0.80, 0.80, {"norte": 2, "este": 1}, vidrio, PVC, 30, 3),
         GrupoHuecos("Puerta", 1.00, 2.10, {"norte": 1}, SIN_VIDRIO, PUERTA_AISLADA,
                     100, 3, tipo="Puerta", retranqueo=0.20)],
        [Viviendas(1, 4, 1, 4)],
        Instalacion(TipoVentilacion2="Mecanica", Recuperador="SensibleConBypass",
                    WRecuperador=60, WRecuperadorr=45, Temaxrec=25,
                    Eficiencia_recuperador=80),
        [Calentador("Condensacion", "GasNatural", 20.0, 0.97)])


def Adosada():
    """Casa en hilera escalonada y en ladera, entre dos medianeras parciales."""
    # Las vecinas están desplazadas 2,5 m: quedan libres un trozo al este y otro
    # al oeste. El terreno sube hacia el norte y tapa 1,4 m de la planta baja.
    contorno = [(0, 0), (6.5, 0), (6.5, 7.5), (6.5, 10), (0, 10), (0, 2.5)]
    medianeras = {1: "medianera", 4: "medianera"}
    enterrado = [("terreno", 1.40), ("exterior", 1.35)]
    baja = Planta(contorno, 2.75, {**medianeras, 3: enterrado})
    alta = Planta(contorno, 2.75, medianeras)
    bajo_buhardilla = 6.5 * 7.0
    lucernario = GrupoHuecos("Lucernario de la escalera", 1.00, 1.20, {"horizontal": 1},
                             (1, "4-12-6"), ALUMINIO_RPT, 20, 2, tipo="Lucernario",
                             retranqueo=0.0)
    azotea = alta.superficie() - bajo_buhardilla - lucernario.area()
    ventana = {"vidrio": (1, "4-6-4"), "marco": ALUMINIO, "fraccion_marco": 15,
               "permeabilidad": 1, "caja": CAJA_ANTIGUA}
    return Edificio(
        General("Vivienda adosada en hilera escalonada",
                Tiposimulacion="CertificacionSolo",
                TipoCertificado="Existente", PerfilUso="0",
                Direccion="Rúa do Exemplo, 7", Provincia="A Coruña",
                Municipio="Oleiros", CodigoPostal="15173",
                Catastro=("4567802NH5946N", "0001CD", "Vivienda-7"),
                AnoConstruccion="1979-2005", NormativaEdificacion="NBE_CT_79",
                NormativaInstalaciones="RICCACS_RD_1618_1980", ZonaClimatica="C1",
                asnm="123", zona_radiante="I", latitud=43.33, NPlantasSobreRasante="2",
                Remotos={"Sur": (7.0, 16.0), "SurEste": (7.0, 22.0),
                         "SurOeste": (7.0, 22.0)},
                Visitas=("10/09/2026",), Observaciones=("10/09/2026",), ColorMuro=0,
                ColorCubierta=1,
                Memos={
                    0: ("Aislar el techo bajo la buhardilla y rellenar la cámara.",
                        "Sustituir las carpinterías sin rotura de puente térmico."),
                    1: ("Visita a la vivienda. Se miden huecos y alturas, y se abre",
                        "una cata en fachada para ver el aislamiento."),
                    4: ("No se ha podido acceder a la cámara sanitaria.",)}),
        [baja, alta],
        {"vacio": [(baja.superficie(), baja.longitud_expuesta())]},
        {"horizontal": [(azotea, 0.0)],
         "buhardilla": [(bajo_buhardilla,
                         bajo_buhardilla / math.cos(math.radians(25)), "renovh=5")]},
        {"MuroExt1": ("Doble hoja de ladrillo con poliuretano proyectado",
                      [(MORTERO, 0.015), (MEDIO_PIE, 0.115), (PUR, 0.03), (CAMARA, 0.03),
                       (TABICON, 0.07), (YESO, 0.015)]),
         "MuroTerr1": ("Muro de hormigón con trasdosado",
                       [(HORMIGON, 0.25), (XPS, 0.03), (TABIQUE, 0.04), (YESO, 0.015)]),
         "MuroOtro1": ("Medianera de un pie de ladrillo",
                       [(YESO, 0.015), (PIE, 0.24), (YESO, 0.015)]),
         "TechoExt1": ("Azotea transitable",
                       [(GRES, 0.015), (MORTERO, 0.03), (XPS, 0.04), (LAMINA, 0.004),
                        (PENDIENTES, 0.06), (FORJADO_CERAMICO, 0.25), (YESO, 0.015)]),
         "TechoVent1": ("Forjado bajo buhardilla con lana mineral",
                        [(LANA_042, 0.05), (FORJADO_CERAMICO, 0.25), (YESO, 0.015)]),
         "TechoVent2": ("Tejado de teja sobre tablero cerámico",
                        [(TEJA, 0.02), (MORTERO, 0.02), (RASILLON, 0.04)]),
         "SueloOtro1": ("Forjado sanitario con bovedilla de poliestireno",
                        [(TARIMA, 0.02), (MORTERO, 0.05), (FORJADO_EPS, 0.25)])},
        [GrupoHuecos("Dormitorios", 1.40, 1.25, {"sur": 2, "norte": 2}, sombra_movil=1,
                     control=(0, 0), **ventana),
         GrupoHuecos("Salón", 2.20, 2.10, {"sur": 1}, alero=(0.20, 1.00),
                     sombra_movil=2, control=(1, 1), **ventana),
         GrupoHuecos("Laterales", 0.60, 1.20, {"este": 2, "oeste": 2}, (1, "4-6-4"),
                     ALUMINIO, 20, 1, alero=(0.15, 0.30)),
         GrupoHuecos("Cocina", 1.20, 0.90, {"norte": 1}, (1, "4-6-4"), ALUMINIO, 20, 1),
         GrupoHuecos("Puerta", 0.95, 2.05, {"sur": 1}, SIN_VIDRIO, PUERTA_MADERA, 100, 1,
                     tipo="Puerta", retranqueo=0.20, alero=(0.15, 1.00)),
         lucernario],
        [Viviendas(1, 3, 1, 3)], Instalacion(),
        [Calentador("Convencional", "GLP", 18.0, 0.86)], profundidad_muro=1.4,
        fuera_de_plano=("este", "oeste"), forjado=0.25)


def Bloque():
    """Cuatro plantas de cuatro viviendas con chaflán, sobre locales."""
    tipo = Planta([(0, 0), (19, 0), (22, 3), (22, 15), (0, 15)], 2.90, veces=4,
                  nucleo=Rectangulo(9, 6, 3, 5))
    altura_locales, caseton = 3.50, 2.20
    perimetro = tipo.longitud_expuesta()
    escalera_exterior = 3 * 5 + 2 * (3 + 5) * caseton
    vidrio = (2, "4-16-4")
    ventana = {"vidrio": vidrio, "marco": PVC, "fraccion_marco": 25, "permeabilidad": 3,
               "sombra_movil": 1, "caja": CAJA_BLOQUE}
    tipos = [Viviendas(8, 2, 1, 2), Viviendas(8, 3, 1, 3)]
    return Edificio(
        General("Bloque de dieciséis viviendas y locales",
                TipoCertificado="ProyectoNuevaConstruccion", PerfilUso="1",
                Direccion="Avenida del Ejemplo, 40", Provincia="Valencia/València",
                Municipio="Valencia", CodigoPostal="46022",
                Catastro=("7890103YJ2778N", "0001EF", "Bloque_A"),
                AnoConstruccion="POST-2018", NormativaEdificacion="CTE_DB_HE_2019",
                NormativaInstalaciones="RITE_2021", ZonaClimatica="B3", asnm="16",
                zona_radiante="IV", latitud=39.48, NPlantasSobreRasante="5",
                Remotos={"Sur": (12.0, 25.0), "Este": (12.0, 20.0)},
                Visitas=("08/09/2026",),
                Memos={
                    0: ("Valorar una instalación central de aerotermia.",),
                    1: ("Visita al solar antes del inicio de la obra.",)}),
        [tipo],
        {"local": [(tipo.superficie(), perimetro * altura_locales, "renovh=1.")]},
        {"horizontal": [(tipo.superficie(), 20.0)]},
        {"MuroExt1": ("Ladrillo cara vista con lana mineral",
                      [(MEDIO_PIE, 0.115), (MORTERO, 0.01), (LANA_035, 0.08),
                       (TABICON_GF, 0.07), (YESO, 0.015)]),
         "MuroOtro3": ("Separación con la escalera",
                       [(YESO, 0.015), (MEDIO_PIE, 0.115), (LANA_035, 0.04), (PYL, 0.0125)]),
         "MuroExt6": ("Casetón de escalera",
                      [(MONOCAPA, 0.015), (MEDIO_PIE, 0.115), (YESO, 0.015)]),
         "TechoExt1": ("Cubierta invertida con grava",
                       [(GRAVA, 0.05), (GEOTEXTIL, 0.002), (XPS, 0.10), (LAMINA, 0.004),
                        (PENDIENTES, 0.08), (RETICULAR, 0.30), (YESO, 0.015)]),
         "SueloVent1": ("Forjado sobre locales con suelo flotante",
                        [(GRES, 0.015), (AUTONIVELANTE, 0.05), (XPS, 0.05),
                         (RETICULAR, 0.30), (YESO, 0.015)]),
         "MuroExt8": ("Cerramiento de los locales",
                      [(MORTERO, 0.015), (BLOQUE_20, 0.20), (MORTERO, 0.015)])},
        [GrupoHuecos("Salones", 2.20, 2.20, {"sur": 8, "norte": 8}, alero=(0.30, 1.20),
                     control=(1, 1), **ventana),
         GrupoHuecos("Dormitorios", 1.50, 1.20,
                     {"norte": 16, "oeste": 16, "sur": 12, "este": 12},
                     alero=(0.20, 0.40), control=(0, 0), **ventana),
         GrupoHuecos("Chaflán", 1.60, 2.10, {"sur_este": 4}, alero=(0.30, 0.90),
                     control=(2, 2), **ventana),
         GrupoHuecos("Baños y cocinas", 0.90, 1.10,
                     {"norte": 8, "oeste": 4, "este": 4}, vidrio, PVC, 30, 3)],
        tipos, Instalacion(TipoVentilacion2="Mecanica", WRecuperador=22),
        [Calentador("Condensacion", "GasNatural", 18.0, 0.96, t.numero, i)
         for i, t in enumerate(tipos)],
        local=(escalera_exterior, "renovh=05", "Norte"))


def Piso():
    """Piso en el chaflán de una manzana girada 45 grados."""
    # Dibujado con la calle principal al sur y girado: el frente mira al sureste,
    # el chaflán al sur, la calle lateral al suroeste y el patio al noroeste.
    planta = Planta([(3, 0), (9, 0), (9, 11), (5, 11), (0, 11), (0, 3)], 3.10,
                    {1: "medianera", 2: "local"}, giro=45)
    balcon = {"vidrio": (1, "4-12-4"), "marco": MADERA, "fraccion_marco": 25,
              "permeabilidad": 2, "sombra_movil": 13, "retranqueo": 0.25}
    forjado = [(TERRAZO, 0.03), (MORTERO, 0.04), (REVOLTON, 0.25), (YESO, 0.02)]
    return Edificio(
        General("Piso en chaflán, cuarta planta", Tiposimulacion="CertificacionSolo",
                TipoCertificado="Existente",
                PerfilUso="2", Alcance="Parte", Direccion="Carrer de l'Exemple, 120, 4º 1ª",
                Provincia="Barcelona", Municipio="Barcelona", CodigoPostal="08036",
                Catastro=("9012304DF2891B", "0009GH", "Piso-4o1a"),
                AnoConstruccion="1900-1939", NormativaEdificacion="ANTE_NBE_CT_79",
                NormativaInstalaciones="RITE_2007", ZonaClimatica="C2", asnm="13",
                zona_radiante="II", latitud=41.38, NPlantasSobreRasante="1",
                Existencia_pilares="Sin pilares",
                Remotos={"SurEste": (8.0, 20.0), "SurOeste": (8.0, 20.0),
                         "Sur": (8.0, 35.0)},
                Visitas=("17/09/2026",), Observaciones=("17/09/2026",),
                Memos={
                    0: ("Trasdosar las fachadas por el interior.",
                        "Cambiar el calentador por uno de condensación."),
                    1: ("Visita a la vivienda. Se miden todas las estancias.",),
                    4: ("Carpinterías sustituidas en 2008, con factura.",)}),
        [planta],
        {"adiabatico": [planta.superficie()]}, {"adiabatico": [planta.superficie()]},
        {"MuroExt1": ("Muro de carga de ladrillo macizo de pie y medio",
                      [(CAL, 0.02), (PIE_Y_MEDIO_MACIZO, 0.365), (YESO, 0.02)]),
         "MuroOtro1": ("Medianera de un pie de ladrillo macizo",
                       [(YESO, 0.02), (PIE_MACIZO, 0.24), (YESO, 0.02)]),
         "MuroOtro3": ("Pared de la escalera",
                       [(YESO, 0.02), (MEDIO_PIE_MACIZO, 0.115), (YESO, 0.02)]),
         "MuroExt6": ("Fachada de la escalera",
                      [(CAL, 0.02), (PIE_MACIZO, 0.24), (YESO, 0.02)]),
         "TechoOtro1": ("Forjado de viguetas metálicas y revoltón", forjado),
         "SueloOtro2": ("Forjado de viguetas metálicas y revoltón", forjado)},
        [GrupoHuecos("Balcones a la calle", 1.20, 2.50, {"sur_este": 2, "sur_oeste": 2},
                     alero=(0.35, 0.90), control=(0, 0), **balcon),
         GrupoHuecos("Tribuna del chaflán", 1.80, 2.50, {"sur": 1}, alero=(0.35, 0.60),
                     control=(1, 1), **balcon),
         GrupoHuecos("Galería del patio", 1.50, 1.60, {"norte": 2}, (1, "4-12-4"),
                     ALUMINIO_RPT, 20, 2, sombra_movil=2, caja=CAJA_ANTIGUA,
                     alero=(0.25, 0.80))],
        [Viviendas(1, 3, 1, 2)], Instalacion(NVBloqueF=14),
        [Calentador("Convencional", "GasNatural", 24.0, 0.86)],
        local=(3 * planta.altura, "renovh=1.", "Norte"))


def CasaAntigua():
    """Casa de piedra de dos plantas con tejado a dos aguas habitable."""
    largo, fondo, pendiente = 11.0, 9.0, 0.30
    cumbrera = pendiente * fondo / 2
    coseno = 1 / math.hypot(1, pendiente)
    faldon = largo * fondo / 2 / coseno
    planta = Planta(Rectangulo(0, 0, largo, fondo), 2.50, veces=2)
    ventana = {"vidrio": (0, "4"), "marco": MADERA, "fraccion_marco": 30,
               "permeabilidad": 0, "sombra_movil": 13, "retranqueo": 0.35}
    return Edificio(
        General("Casa antigua de mampostería", Tiposimulacion="CertificacionSolo",
                TipoCertificado="Existente", PerfilUso="0",
                Direccion="Calle del Ejemplo, 3", Provincia="Soria",
                Municipio="Vinuesa", CodigoPostal="42150",
                Catastro=("3456705WM1437N", "0001JK", "Casa"),
                AnoConstruccion="ANTE-1900", NormativaEdificacion="ANTE_NBE_CT_79",
                NormativaInstalaciones="ANTE_RD_1490_1975", ZonaClimatica="E1",
                asnm="1108", zona_radiante="III", latitud=41.91,
                NPlantasSobreRasante="2", Existencia_pilares="Sin pilares",
                ColorMuro=1, ColorCubierta=1, Visitas=("03/09/2026", "11/09/2026"),
                Observaciones=("11/09/2026",),
                Memos={
                    0: ("Aislar el tejado entre viguetas y trasdosar los muros.",
                        "Colocar doble ventana o vidrio bajo emisivo."),
                    1: ("Primera visita: croquis y medición de muros y huecos.",),
                    2: ("Segunda visita: tejado y carpinterías.",),
                    4: ("El espesor del muro se mide en el hueco de la puerta.",)}),
        [planta],
        {"terreno": [(planta.superficie(), planta.longitud_expuesta(), 0.0,
                      "SinAislamiento", 0.0, 0.0)]},
        {"inclinada": [({"norte": faldon, "sur": faldon}, coseno)]},
        {"MuroExt1": ("Mampostería de granito de 60 cm revocada",
                      [(MAMPOSTERIA, 0.60), (CAL, 0.02)]),
         "TechoInc1": ("Tejado de teja sobre viguetas y entablado",
                       [(TEJA, 0.02), (TABLA, 0.025), (CAMARA, 0.12), (TABLA, 0.02)]),
         "SueloTerr1": ("Baldosa sobre cama de arena y encachado",
                        [(BALDOSA, 0.02), (MORTERO, 0.04), (ENCACHADO, 0.15)])},
        [GrupoHuecos("Ventanas", 0.90, 1.10, {"sur": 4, "este": 2, "oeste": 2, "norte": 2},
                     alero=(0.25, 0.30), control=(0, 0), **ventana),
         GrupoHuecos("Balcón", 1.00, 2.00, {"sur": 1}, alero=(0.30, 0.60),
                     control=(1, 1), **ventana),
         GrupoHuecos("Ventanucos", 0.50, 0.60, {"norte": 2, "oeste": 1}, (0, "4"), MADERA,
                     35, 0, retranqueo=0.35),
         GrupoHuecos("Puerta", 1.10, 2.10, {"sur": 1}, SIN_VIDRIO, PUERTA_MADERA, 100, 0,
                     tipo="Puerta", retranqueo=0.35)],
        [Viviendas(1, 4, 1, 2)], Instalacion(),
        [Termo()],
        hastiales={"este": fondo * cumbrera / 2, "oeste": fondo * cumbrera / 2},
        volumen_cubierta=largo * fondo * cumbrera / 2, forjado=0.20)
