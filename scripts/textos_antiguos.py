#!/usr/bin/env python3
"""Escribe los ejemplos de ficheros de texto de versiones antiguas y lo que ha de quedar de ellos.

    textos_antiguos.py CARPETA

Cada ejemplo tiene todas las etiquetas de su generación, con valores distintos entre sí y de 0. A su
lado va un `.esperado`: por cada valor, su camino en el fichero de proyecto de hoy y su texto, con
los decimales que allí lleva. La correspondencia se escribe aquí a mano, etiqueta a etiqueta, para
que la prueba no tome del programa lo que comprueba."""
import pathlib
import sys

SECTORES = ["norte", "oeste", "sur-oeste", "sur", "sur-este", "este"]
OBSTACULOS = {
    "oeste": ["oeste", "sur-oeste"],
    "sur-oeste": ["oeste", "sur-oeste", "sur"],
    "sur": ["sur-oeste", "sur", "sur-este"],
    "sur-este": ["sur", "sur-este", "este"],
    "este": ["sur-este", "este"],
}
RENOVACIONES = ["renovh=0.", "renovh=05", "renovh=1.", "renovh=5", "renovh=10"]


def bajo(texto):
    return texto.replace("-", "_").replace(" ", "_")


class Caso:
    """Las líneas de un caso y los valores que se esperan de él."""

    def __init__(self, generacion, version, semilla):
        self.generacion = generacion
        self.version = version
        self.lineas = []
        self.esperado = []
        self.semilla = semilla
        self.areas = 0
        self.us = 0
        self.medidas = 0
        if version:
            self.lineas += ["*[S] Version" + ("." if semilla % 2 else ""), version]

    # Valores, cada uno distinto de los anteriores de su clase.
    def area(self):
        self.areas += 1
        return "%.1f" % (10 + 3 * self.semilla + 0.1 * self.areas)

    def u(self):
        self.us += 1
        return "%.2f" % (0.1 + 0.03 * self.semilla + 0.01 * self.us)

    def medida(self):
        self.medidas += 1
        return "%.2f" % (1 + 0.07 * self.semilla + 0.01 * self.medidas)

    def etiqueta(self, texto):
        if self.generacion == 1 and texto.endswith("."):
            return texto[:-1]
        return texto

    def seccion(self, nombre):
        self.lineas += ["** Seccion" + ("." if self.generacion > 1 else ""),
                        nombre + ("." if self.generacion > 1 else "")]

    def pon(self, etiqueta, valor, camino=None, esperado=None):
        self.lineas += [self.etiqueta(etiqueta), str(valor)]
        if camino:
            self.esperado.append((camino, str(valor) if esperado is None else esperado))


def generales(c):
    c.seccion("Datos Generales")
    g = "Datos_Generales/"
    n = c.semilla
    tipologia = ["Unifamiliar", "Bloque", "ViviendaBloque"][n % 3]
    c.pon("*[S] Tipologia edificio: Unifamiliar/Bloque/Terciario.", tipologia, g + "PerfilUso",
          str(n % 3))
    modo = ["Existente", "Nuevo"][n % 2]
    c.pon("*[S] Modo trabajo: Existente/Nuevo.", modo, g + "TipoCertificado",
          ["Existente", "ProyectoNuevaConstruccion"][n % 2])
    c.pon("*[S] Fecha.", "1%d/03/2013" % n, g + "Fecha")
    c.pon("*[S] NºExpedienteP.", "EXP-P-%d" % n)
    c.pon("*[S] NºExpediente ICE.", "EXP-ICE-%d" % n)
    c.pon("*[S] Edificio Titulo.", "Casa de la Peña %d" % n, g + "Edificio_Titulo")
    c.pon("*[S] Edificio Direccion.", "Calle del Árbol", g + "Direccion",
          "Calle del Árbol, 1%d bis, Esc. C%d" % (n, n))
    c.pon("*[S] Edificio Nº.", "1%d bis" % n)
    c.pon("*[S] Edificio Esc.", "C%d" % n)
    c.pon("*[S] Edificio Código Postal.", "4600%d" % n, g + "CodigoPostal")
    con_lugar = c.generacion < 3  # la tercera lo dice en otra sección
    c.pon("*[S] Edificio Localidad.", "Logroño", con_lugar and g + "Municipio")
    c.pon("*[S] Edificio Provincia.", "La Rioja", con_lugar and g + "Provincia")
    quien = "Proyectista" if c.generacion == 2 else "Certificador"
    datos = [("Apellidos", "Núñez Ibáñez"), ("Nombre", "Begoña"), ("Direccion", "Plaza Mayor 7"),
             ("NIF", "1234567%dZ" % n), ("CP", "0300%d" % n), ("Localidad", "Elx"),
             ("Provincia", "Alicante/Alacant"), ("Telefono", "96500000%d" % n),
             ("Movil", "60000000%d" % n), ("email", "b%d@ejemplo.es" % n),
             ("Empresa", "Estudio Ñ %s %d" % ("–" if c.generacion == 1 else "y", n)), ("Colegio Profesional", "COA %d" % n),
             ("Profesion", "Arquitecta %d" % n)]
    hoy = {"Nombre": "Begoña Núñez Ibáñez"}
    for cual, valor in datos:
        camino = g + "Certificador_" + cual
        if c.generacion == 2 or cual in ("Apellidos", "Telefono", "Colegio Profesional"):
            camino = None
        c.pon("*[S] %s %s." % (quien, cual), valor, camino, hoy.get(cual))
    if c.generacion == 3:
        c.pon("*[S] Referencia Catastral.", "9872023VH5797S0001W%d" % n,
              g + "ReferenciasCatastrales/Ref/Parcela", "9872023VH5797S")
        c.esperado.append((g + "ReferenciasCatastrales/Ref/Inmueble", "0001W%d" % n))
        c.pon("*[S] Ano Construccion.", "1965", g + "AnoConstruccion", "1960-1978")
        c.pon("*[S] Legislacion aplicable.", "Ordenanza %d" % n, g + "Otra_legislacion_aplicable")
        c.pon("*[S] CIF certificador.", "B0300000%d" % n, g + "Certificador_CIF")
    viviendas(c)


def viviendas(c):
    """Dos tipos de vivienda."""
    c.pon("*[I] Numero tipologias totales.", 2)
    for i in (1, 2):
        t = "Datos_Globales/Tipologias/Tipologia[%d]/" % i
        n = 10 * i + c.semilla
        # Los números se repiten en la otra sección: solo se espera el valor una vez.
        t = None if any(camino.startswith(t) for camino, _ in c.esperado) else t
        c.pon("*[I] Numero tipologia.", i)
        c.pon("*[I] Numero viviendas.", n + 1, t and t + "N_viviendas")
        c.pon("*[I] Numero dormitorios dobles.", n + 2, t and t + "N_dormitorios_dobles",
              str(n + 2 + i))
        c.pon("*[I] Numero dormitorios simples.", i)
        c.pon("*[I] Numero salas estar comedor.", n + 3, t and t + "N_salas_estar_comedor")
        c.pon("*[I] Numero cuartos de banyo.", n + 4, t and t + "N_cuartos_de_banyo")


def geograficos(c):
    c.seccion("Datos Geograficos/obstaculos remotos")
    g = "Datos_Generales/"
    indices = c.version in ("NOVEX v2.7", "NOVEX v4.0", "NOVEX v4.1", "NOVEX v4.2")
    # La provincia 46, desde 0, es Toledo; su ciudad 0 es Talavera de la Reina, y la 1, Toledo.
    c.pon("*[I] Indice Provincia datos climáticos.", 46, indices and g + "Provincia", "Toledo")
    c.pon("*[I] Indice Ciudad datos climáticos.", 1, indices and g + "Municipio", "Toledo")
    c.pon("*[S] Localidad datos climáticos.", "Localidad %d" % c.semilla)
    c.pon("*[I] Altura sobre nivel mar.", 52 + c.semilla, g + "asnm")
    c.pon("*[F] Latitud.", "39.%d1" % c.semilla, g + "latitud", "39.%d1000" % c.semilla)
    c.pon("*[S] Indice Zona climatica HE4:  I/II/III/IV/V.", "IV")
    if c.generacion == 3:
        c.pon("*[S] Ciudadxml.", "Alcoy/Alcoi", not indices and g + "Municipio")
        c.pon("*[S] Provinciaxml.", "Alicante/Alacant", not indices and g + "Provincia")
    for corto, largo in (("O", "Oeste"), ("SO", "SurOeste"), ("S", "Sur"), ("SE", "SurEste"),
                         ("E", "Este")):
        o = g + "Obstaculos_remotos/" + largo
        c.pon("*[F] Sombra %s - h." % corto, c.medida(), o + "_Altura")
        c.pon("*[F] Sombra %s - d." % corto, c.medida(), o + "_Distancia")


def globales(c):
    c.seccion("Datos Globales")
    c.pon("*[F] Volumen total m3.", c.area(), "Datos_Globales/Volumen_total_m3")
    c.pon("*[F] Suelo habitable m3.", c.area(), "Datos_Globales/Suelo_habitable_m2")
    c.pon("*[S] Uso.", "Media")
    c.pon("*[S] Control.", "12 h")
    c.pon("*[F] Caudal Aire Exterior m3/h.", 310 + c.semilla,
          "Datos_Uso/Valores_Maximos@Ventilacion")
    c.pon("*[F] Eficiencia energetica iluminacion proyecto.", c.medida(),
          "Datos_Uso/Iluminacion@VEII")
    c.pon("*[F] Eficiencia energetica iluminacion HE3.", c.medida(),
          "Datos_Uso/Iluminacion@VEIIMax")
    viviendas(c)
    c.pon("*[S] Calcular Renov/h según HS3: Si/No.", "Si",
          "Datos_Globales/Calcular_Renov_h_segun_HS3")
    c.pon("*[F] Suelo acondicionado con equipos de calefacción m2.", c.area())
    c.pon("*[F] Suelo acondicionado con equipos de refrigeración m2.", c.area())
    c.pon("*[F] Suelo total acondicionado m2.", c.area())
    c.pon("*[F] Volumen total acondicionado m3.", c.area())
    c.pon("*[F] Numero renovaciones/hora.", c.u(), "Datos_Globales/nrenovventilacion")
    c.pon("*[I] Numero total recintos.", 1)
    c.pon("*[I] Numero del recinto.", 1)
    c.pon("*[S] Nombre recinto.", "Zona de día %d" % c.semilla)
    c.pon("*[F] Carga iluminacion W/m2.", c.medida(), "Datos_Uso/Valores_Maximos@Iluminacion")


def puentes(c):
    c.seccion("Puentes Termicos")
    p = "Puentes_Termicos/"
    c.pon("*[F] Espesor forjado.", c.u(), p + "Espesor_forjado")
    c.pon("*[F] Anchura pilar.", c.u(), p + "Anchura_pilar")
    c.pon("*[S] Puentes termicos: No aislado/Aislado/Continuo/Dar valores/Lider.",
          ["Aislado", "Continuo", "Dar valores", "Lider"][c.semilla % 4],
          p + "Def_Puentes_termicos")
    c.pon("*[S] Puentes termicos pilares: Pilares no aislados/Pilares aislados ext/"
          "Pilares aislados int/Sin pilares.",
          ["Pilares aislados ext", "Pilares aislados int", "Sin pilares"][c.semilla % 3],
          p + "Def_Puentes_termicos_pilares")
    c.pon("*[S] Existencia pilares: Con pilares/Sin pilares.", "Sin pilares",
          p + "Existencia_pilares")
    c.pon("*[S] Puentes termicos ventanas: Sin aislamiento/Aislamiento en contacto marco/"
          "Aislamiento sin contacto marco.",
          ["Aislamiento en contacto marco", "Aislamiento sin contacto marco"][c.semilla % 2],
          p + "Def_Puentes_termicos_ventanas")
    clases = ["forjados", "cubiertas", "suelo exterior", "esquina saliente", "ventanas", "pilares",
              "suelo terreno"]
    for clase in clases:
        c.pon("*[F] U/L Puentes %s." % clase, c.u(), p + "U_L_Puentes_" + bajo(clase))
    for clase in clases:
        c.pon("*[F] fi Puentes %s." % clase, c.u(), p + "fi_Puentes_" + bajo(clase))
    c.pon("*[I] Clase de higrometria: 3/4/5.", 3 + c.semilla % 3, p + "Clase_de_higrometria")
    c.pon("*[S] Longitud pilares modo: Estimados/Facilitados.", "Facilitados",
          p + "Longitud_puentes_termicos_modo")
    for corto, largo in (("N", "Norte"), ("O", "Oeste"), ("SO", "SurOeste"), ("S", "Sur"),
                         ("SE", "SurEste"), ("E", "Este")):
        c.pon("*[F] Longitud pilares %s." % corto, c.medida(), p + "Long_pilares_" + largo)


def por_tipos(c, total, numero, cuantos, areas, otros, camino, con_recinto=True):
    """Una familia: las áreas y los demás datos de cada tipo. `areas` y `otros` son parejas de
    etiqueta y campo; en `otros` el valor es una U si no se da otro."""
    c.pon(total, cuantos)
    for i in range(1, cuantos + 1):
        c.pon(numero, i)
        if con_recinto:
            c.pon("*[I] Numero Recinto.", 1)
        for etiqueta, campo in areas:
            c.pon(etiqueta, c.area(), camino % i + campo)
        for fila in otros:
            etiqueta, campo = fila[:2]
            valor = fila[2](i) if len(fila) > 2 else c.u()
            c.pon(etiqueta, valor, camino % i + campo)


def cubiertas(c):
    c.seccion("Cubiertas")
    por_tipos(c, "*[I] Numero total tipos Cubierta Hz.", "*[I] Numero Cubierta Hz.", 3,
              [("*[F] Cubierta horiz. sol m2.", "Cubierta_horiz_sol_m2"),
               ("*[F] Cubierta horiz. sombra m2.", "Cubierta_horiz_sombra_m2")],
              [("*[F] U Cubierta horiz. sol W/m2K.", "U_Cubierta_horiz_sol_W_m2K")],
              "Cubiertas/CubiertasHz/CubiertaHz[%d]/")
    por_tipos(c, "*[I] Numero total tipos Cubierta Incl.", "*[I] Numero Cubierta Incl.", 3,
              [("*[F] Cubierta incl. %s m2." % s, "Cubierta_incl_%s_m2" % bajo(s))
               for s in SECTORES] +
              [("*[F] Cubierta incl. %s Sombra m2." % s, "Cubierta_incl_%s_Sombra_m2" % bajo(s))
               for s in SECTORES],
              [("*[F] U Cubierta incl. W/m2K.", "U_Cubierta_incl_W_m2K")],
              "Cubiertas/CubiertasIncl/CubiertaIncl[%d]/")
    clases = [("techo ventilado", "techo_ventilado"), ("buhardilla/ext", "buhardilla_ext"),
              ("adiabatico", "adiabatico"), ("terreno", "terreno")]
    por_tipos(c, "*[I] Numero total tipos Otras Cubiertas.", "*[I] Numero Cubierta Otras.", 2,
              [("*[F] Cubierta %s m2." % a, "Cubierta_%s_m2" % b) for a, b in clases],
              [("*[F] U Cubierta %s W/m2K." % a, "U_Cubierta_%s_W_m2K" % b)
               for a, b in clases + [("Particion Interna", "Particion_Interna")]] +
              [("*[S] Renovacion Buhardilla: renovh=0./renovh=05/renovh=1./renovh=5/renovh=10",
                "Renovacion_Buhardilla", lambda i: RENOVACIONES[(c.semilla + i) % 4 + 1])],
              "Cubiertas/CubiertasOtras/CubiertaOtras[%d]/")


def muros(c):
    c.seccion("Muros")
    por_tipos(c, "*[I] Numero total tipos Muros ext.", "*[I] Numero Muros ext.", 5,
              [("*[F] Muro ext. %s m2." % s, "Muro_ext_%s_m2" % bajo(s)) for s in SECTORES] +
              [("*[F] Muro ext. Var %s m2." % s, "Muro_ext_Var_%s_m2" % bajo(s))
               for s in SECTORES[1:]],
              [("*[F] U Muro ext. W/m2K.", "U_Muro_ext_W_m2K")], "Muros/MurosExt/MuroExt[%d]/")
    por_tipos(c, "*[I] Numero total tipos Otros Muros.", "*[I] Numero Muros Otros.", 2,
              [("*[F] Muro otro local m2.", "Muro_otro_local_m2"),
               ("*[F] Muro otro local ext m2.", "Muro_otro_local_ext_m2"),
               ("*[F] Muro al terreno m2.", "Muro_al_terreno_m2"),
               ("*[F] Muro adiabatico m2.", "Muro_adiabatico_m2")],
              [("*[F] U Muro otro local W/m2K.", "U_Muro_otro_local_W_m2K"),
               ("*[F] U Muro otro local ext W/m2K.", "U_Muro_otro_local_ext_W_m2K"),
               ("*[S] Renovacion Otro Local: renovh=0./renovh=05/renovh=1./renovh=5/renovh=10",
                "Renovacion_Otro_Local", lambda i: RENOVACIONES[(c.semilla + i) % 4 + 1]),
               ("*[S] Orientacion Otro Local: Norte/Oeste/SurOeste/Sur/SurEste/Este.",
                "Orientacion_Otro_Local",
                lambda i: ["Oeste", "SurOeste", "Sur", "SurEste", "Este"][(c.semilla + i) % 5]),
               ("*[F] U Muro terreno W/m2K.", "U_Muro_terreno_W_m2K"),
               ("*[F] Profundidad muro enterrado m.", "Profundidad_muro_enterrado_m",
                lambda i: c.area()),
               ("*[F] U Muro adiabatico W/m2K.", "U_Muro_adiabatico_W_m2K"),
               ("*[F] U Muro interior W/m2K.", "U_Muro_interior_W_m2K")],
              "Muros/MurosOtros/Muro_otro[%d]/")


def suelos(c):
    c.seccion("Suelos")
    por_tipos(c, "*[I] Numero total tipos Suelo Terrerreno.", "*[I] Numero Suelo Terreno.", 3,
              [("*[F] Suelo al terreno m2.", "Suelo_al_terreno_m2"),
               ("*[F] Profundidad suelo enterrado m.", "Profundidad_suelo_enterrado_m")],
              [("*[S] Tipo aislamiento suelo: Continuo/Periferico.", "Tipo_aislamiento_suelo",
                lambda i: ["Continuo", "Periferico"][i % 2]),
               ("*[F] D Longitud aislamiento m.", "D_Longitud_aislamiento_m"),
               ("*[F] Ra Resitencia aislante m2K/W.", "Ra_Resitencia_aislante_m2K_W"),
               ("*[F] Perimetro Ext. Suelo Terreno.", "Perimetro_Ext_Suelo_Terreno_m",
                lambda i: c.area()),
               ("*[F] U Suelo terreno W/m2K.", "U_Suelo_terreno_W_m2K")],
              "Suelos/SuelosTerreno/Suelo_terreno[%d]/")
    por_tipos(c, "*[I] Numero total tipos Otros Suelos.", "*[I] Numero Suelo Otros.", 2,
              [("*[F] Suelo ext. m2.", "Suelo_ext_m2"),
               ("*[F] Suelo otro local. m2.", "Suelo_otro_local_m2"),
               ("*[F] Suelo otro local/ext. m2.", "Suelo_otro_local_ext_m2"),
               ("*[F] Suelo vacio sanitario m2.", "Suelo_vacio_sanitario_m2"),
               ("*[F] Suelo adiabático m2.", "Suelo_adiabatico_m2"),
               ("*[F] Perimetro Ext. Vacio Sanitario m.", "Perimetro_Ext_Vacio_Sanitario_m")],
              [("*[F] U Suelo ext. W/m2K.", "U_Suelo_ext_W_m2K"),
               ("*[F] U Suelo otro local W/m2K.", "U_Suelo_otro_local_W_m2K"),
               ("*[F] U Suelo otro local/ext W/m2K.", "U_Suelo_otro_local_ext_W_m2K"),
               ("*[F] U Suelo vacio sanitario W/m2K.", "U_Suelo_vacio_sanitario_W_m2K"),
               ("*[F] U Suelo adiabatico W/m2K.", "U_Suelo_adiabatico_W_m2K"),
               ("*[F] U Suelo partición interior W/m2K.", "U_Suelo_particion_interior_W_m2K"),
               ("*[S] Renovacion Otro Local Suelo: "
                "renovh=0./renovh=05/renovh=1./renovh=5/renovh=10",
                "Renovacion_Otro_Local_suelo",
                lambda i: RENOVACIONES[(c.semilla + i) % 4 + 1])],
              "Suelos/SuelosOtros/Suelo_otro[%d]/")


def huecos(c):
    c.seccion("Huecos")
    c.pon("*[I] Numero total grupos huecos definidos.", 2)
    for i in (1, 2):
        h = "Huecos/Hueco[%d]/" % i
        c.pon("*[I] Numero grupo huecos.", i)
        c.pon("*[S] Nombre hueco.", "Balcón %d" % i, h + "Nombre_hueco")
        for etiqueta, campo in (("Ancho m", "Ancho_m"), ("Alto m", "Alto_m"),
                                ("Retranqueo m", "Retranqueo_m"),
                                ("Distancia alero m", "Distancia_alero_m"),
                                ("Longitud alero m", "Longitud_alero_m")):
            c.pon("*[F] %s." % etiqueta, c.medida(), h + campo)
        for j, (etiqueta, campo) in enumerate(
                (("Indice tipo cristal", "Indice_tipo_cristal"),
                 ("Indice cristal concreto", "Indice_cristal_concreto"),
                 ("Indice marco", "Indice_marco"), ("Indice tipo junta", "Indice_tipo_junta"),
                 ("Indice tipo sombra fija", "Indice_tipo_sombra_fija"))):
            c.pon("*[I] %s." % etiqueta, i + j, h + campo)
        for etiqueta, campo in (
                ("*[F] U cristal W/m2K.", "U_cristal_W_m2K"),
                ("*[F] FS cristal tanto por uno.", "FS_cristal_tanto_por_uno"),
                ("*[F] U marco W/m2K.", "U_marco_W_m2K"),
                ("*[F] Fraccion marco %.", "Fraccion_marco_tanto_por_cien"),
                ("*Valor multiplicativo FS verano.", "Valor_multiplicativo_FS_verano"),
                ("*[F] Valor multiplicativo FS invierno.", "Valor_multiplicativo_FS_invierno"),
                ("*[F] Valor multiplicativo U verano.", "Valor_multiplicativo_U_verano"),
                ("*[F] Valor multiplicativo U invierno.", "Valor_multiplicativo_U_invierno"),
                ("*[F] U Caja de persiana.", "U_Caja_de_persiana_W_m2K"),
                ("*[F] Altura Caja de persiana m.", "Altura_Caja_de_persiana_m"),
                ("*[F] Vinf Caja de persiana.", "Vinf_Caja_de_persiana_m3_h"),
                ("*[F] Permeabilidad Ventanas.", "Permeabilidad_Ventanas")):
            c.pon(etiqueta, c.medida(), h + campo)
        c.pon("*[S] Existe Caja persiana: Existe/No existe.", ["Existe", "No existe"][i - 1],
              h + "Existe_Caja_persiana")
        c.pon("*[S] Tipo de U Caja persiana:Existe Caja persiana: Sin aislamiento/"
              "1-2 cm aislamiento/2-4 cm aislamiento/Se falicita U.",
              ["2-4 cm aislamiento", "Se falicita U"][i - 1], h + "Tipo_de_U_Caja_persiana")
        c.pon("*[S] Tipo de Vinf Caja persiana: Estanco/1 mm rendija/2 mm rendija/Se facilita V.",
              ["1 mm rendija", "Se facilita V"][i - 1], h + "Tipo_de_Vinf_Caja_persiana")
        c.pon("*[S] Tipo de hueco: Ventana/Puerta/Lucernario.", ["Puerta", "Lucernario"][i - 1],
              h + "Tipo_de_hueco")
        c.pon("*[I] Numero Recinto.", 1)
        for j, s in enumerate(["oeste", "norte", "sur-oeste", "sur", "sur-este", "este"]):
            c.pon("*[I] Numero ventanas %s." % s, 2 * j + i, h + "Numero_ventanas_" + bajo(s))
            c.pon("*[F] Separacion ventanas vertical %s." % s, c.medida(),
                  s != "norte" and h + "Separacion_ventanas_vertical_" + bajo(s))
            for p in OBSTACULOS.get(s, []):
                for que in ("altura", "distancia"):
                    c.pon("*[F] Ventana %s %s obstaculo %s." % (s, que, p), c.medida(),
                          h + "Ventana_%s_%s_obstaculo_%s" % (bajo(s), que, bajo(p)))
        c.pon("*[I] Numero lucernarios Hz.", 20 + i, h + "Numero_lucernarios_Hz")


def materiales(c):
    """Cuatro materiales; el tercero es igual que el primero."""
    c.seccion("Capas materiales")
    c.pon("*[I] Numero capas materiales.", 4)
    nombres = ["Ladrillo", "Lana de vidrio", "Ladrillo", "Hormigón"]
    nombre_hoy = ["Ladrillo (11.5cm)", "Lana de vidrio (4cm)", "duplicado-Ladrillo (11.5cm)",
                  "Hormigón (25cm)"]
    espesores = ["0.115", "0.040", "0.115", "0.250"]
    conductividades = ["0.760", "0.035", "0.760", "2.300"]
    for i in range(4):
        m = "Capas_materiales/Material[%d]/" % (i + 1)
        c.pon("*[I] Indice capa material.", i)
        c.pon("*[S] Material.", "Material %d" % i, m + "Material", nombre_hoy[i])
        c.pon("*[S] Nombre material.", nombres[i], m + "Nombre_material")
        c.pon("*[F] Espesor.", espesores[i], m + "Espesor")
        c.pon("*[F] Conductividad.", conductividades[i], m + "Conductividad")
        c.pon("*[F] Densidad.", "%d.000" % (1500 + i), m + "Densidad")
        c.pon("*[F] CalorEspecifico.", "%d.000" % (900 + i), m + "CalorEspecifico")
        c.pon("*[S] Iniciales.", "I%d" % i, m + "Iniciales")
        c.pon("*[F] Resistencia termica.", "0.15%d" % (i + 1), m + "Resistencia_termica")
        c.pon("*[F] Resisvidad relativa.", "1%d.500" % i, m + "Resisvidad_relativa_vapor")
        c.pon("*[S] Grupo.", "Grupo ó %d" % i, m + "Grupo")
        c.pon("*[S] Pertenece a base de datos CTE.", ["SI", "NO"][i % 2],
              m + "Pertenece_a_base_de_datos_CTE")
        c.pon("*[S] Aplicacion: F/M.", ["M", "F"][i % 2], m + "Aplicacion")
    c.seccion("Composiciones")
    # La primera posición y la tercera de las cubiertas, que es la 18 del fichero de hoy.
    composiciones = [("MuroExt1", 1, "Fachada año %d" % c.semilla, [0, 1, 2]),
                     ("TechoExt3", 18, "Cubierta", [3, 1])]
    c.pon("*[I] Numero composiciones.", len(composiciones))
    for clave, posicion, nombre, capas in composiciones:
        a = "Composiciones/Aplicacion[%d]/" % posicion
        c.pon("*[S] Aplicacion.", clave, a[:-1])
        c.pon("*[S] NombreComposicion.", nombre, a + "NombreComposicion")
        c.pon("*[I] NumeroCapasComposicion.", len(capas))
        for n, capa in enumerate(capas):
            c.pon("*[I] NumeroCapa.", n + 1)
            c.pon("*[I] IndiceMaterial.", capa, a + "IndiceMaterial[%d]" % (n + 1))
    for n in range(26, 31):
        c.pon("*[S] Linea %d." % n, "No se lee %d" % n)


def pruebas(c):
    if c.generacion > 1:
        c.seccion("Pruebas")
        for n in range(1, 26):
            c.pon("*[S] Linea %d." % n, "No se lee %d" % n)
    c.esperado.append(("Definicion/Memo1/Linea",
                       "No se han realizado pruebas ni comporbaciones" if c.generacion == 3 else
                       "No se han realizado pruebas ni comprobaciones"))
    c.lineas += [c.etiqueta("*[S] Final."), ""]


def hacer(generacion, version, semilla):
    c = Caso(generacion, version, semilla)
    for seccion in (generales, geograficos, globales, puentes, cubiertas, muros, suelos, huecos,
                    materiales, pruebas):
        seccion(c)
    return c


def escribir(carpeta, nombre, casos, codificacion, fin):
    texto = fin.join(linea for c in casos for linea in c.lineas)
    (carpeta / (nombre + ".txt")).write_bytes((texto + fin).encode(codificacion))
    for i, c in enumerate(casos):
        numero = "" if len(casos) == 1 else "%d" % (i + 1)
        (carpeta / (nombre + numero + ".esperado")).write_text(
            "".join("%s\t%s\n" % par for par in c.esperado), encoding="utf-8")


def main():
    carpeta = pathlib.Path(sys.argv[1])
    carpeta.mkdir(parents=True, exist_ok=True)
    escribir(carpeta, "primera", [hacer(1, "", 1)], "cp1252", "\n")
    escribir(carpeta, "segunda", [hacer(2, "NOVEX v2.3", 2)], "latin-1", "\r\n")
    escribir(carpeta, "tercera", [hacer(3, "NOVEX v5.11", 3)], "utf-8", "\n")
    escribir(carpeta, "indices", [hacer(3, "NOVEX v4.1", 4)], "latin-1", "\r\n")
    escribir(carpeta, "indices_M", [hacer(3, "NOVEX v4.1", 5), hacer(3, "NOVEX v4.1", 6)],
             "latin-1", "\r\n")


if __name__ == "__main__":
    main()
