#include "entry/DefinicionExpres.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "entry/CreacionSistema.h"
#include "entry/ListasSistemas.h"
#include "entry/ReglasVentilacion.h"
#include "model/CatalogoCampos.h"
#include "reference/LongitudesPuentes.h"
#include "reference/ValoresDefectoU.h"
#include "reference/ValoresPuentes.h"
#include "systems/DemandaACS.h"

namespace novex {
namespace {

constexpr const char* kNombreSistema = "pepe";
constexpr const char* kTipoACS = "ACS";
constexpr int kBloque = 1;            // `PerfilUso` "Edificios en Bloque"
constexpr int kViviendaEnBloque = 2;  // y desde aquí cuenta `NVBloqueF`
constexpr float kRetranqueo = 0.1F;
constexpr float kAlturaCaja = 0.2F;
constexpr float kInclinacionFV = 30;

constexpr std::array<std::string_view, 5> kIndividuales = {
    "1 Calentador", "1 Caldera", "1 BC aire-agua", "1 BC aire-agua dedicada", "1 Termo electrico"};
constexpr std::array<std::string_view, 2> kColectivas = {"1 Caldera", "1 BC aire-agua"};

constexpr std::array<const char*, kSectores> kSectorEnAviso = {"Norte", "Oeste",   "SurOeste",
                                                               "Sur",   "SurEste", "Este"};

float Numero(const std::string& texto, std::string_view clave, Mensajes& mensajes) {
  return ComprobarValor(texto.empty() ? "0" : texto, clave, mensajes);
}

void LimpiarEnvolvente(Edificio& edificio, Construccion& c) {
  while (edificio.NumeroRecintos() > 1) edificio.BorrarRecinto(edificio.NumeroRecintos() - 1);
  for (int* tipos : {&c.MurosExt, &c.MurosOtros, &c.SuelosTerreno, &c.SuelosOtros, &c.CubiertasHz,
                     &c.CubiertasIncl, &c.CubiertasOtras})
    *tipos = 0;
  c.suelosTerreno = {};
  for (std::size_t i = 0; i < kRanuras; ++i) edificio.LimpiarComposicion(i);
  Recinto vacio;
  vacio.nombre = edificio.GetRecinto(0).nombre;
  edificio.GetRecinto(0) = std::move(vacio);
}

void PonerVentilacion(Edificio& edificio, const EntradaExpres& e, Mensajes& mensajes) {
  const int perfil = edificio.GetDatosGenerales().PerfilUso;
  const float viviendas = Numero(e.viviendas, "Entero1", mensajes);
  Ventilacion v;
  TipologiaVivienda& t = v.tipologias[0];
  t.N_viviendas = perfil == kBloque ? static_cast<int>(viviendas) : 1;
  t.N_dormitorios_dobles = static_cast<int>(Numero(e.dormitorios, "DormitoriosDobles", mensajes));
  t.N_cuartos_de_banyo = static_cast<int>(Numero(e.banos, "CuartoBano", mensajes)) + 1;
  t.N_salas_estar_comedor = 1;
  v.nrenovventilacion = Numero(e.ventilacion, "Renov", mensajes);
  v.Calcular_Renov_h_segun_HS3 = "No";
  edificio.SetVentilacion(v);
  DatosGenerales d = edificio.GetDatosGenerales();
  d.NVBloqueF = perfil >= kViviendaEnBloque ? viviendas : 1.0F;
  edificio.SetDatosGenerales(std::move(d));
}

Huecos HuecoComun(float ancho, float alto) {
  Huecos h;
  h.Ancho_m = ancho;
  h.Alto_m = alto;
  h.Retranqueo_m = kRetranqueo;
  h.Altura_Caja_de_persiana_m = kAlturaCaja;
  return h;
}

// El tipo de la lista de vidrios queda como en un grupo en blanco: el vidrio lo dicen su U y su
// factor solar.
void PonerVidrio(Huecos& h, VidrioExpres vidrio) {
  const bool doble = vidrio == VidrioExpres::Doble;
  h.Indice_cristal_concreto = doble ? 0 : 1;
  h.U_cristal_W_m2K = doble ? 3.3F : 5.7F;
  h.FS_cristal_tanto_por_uno = doble ? 0.75F : 0.85F;
  h.Indice_marco = doble ? 1 : 3;
  h.U_marco_W_m2K = doble ? 4.0F : 2.2F;
  h.Indice_tipo_junta = doble ? 8 : 6;
  h.Permeabilidad_Ventanas = doble ? 27.0F : 139.0F;
  h.Fraccion_marco_tanto_por_cien = doble ? 10.0F : 20.0F;
}

void PonerProteccion(Huecos& h, ProteccionExpres proteccion) {
  constexpr std::array<int, 3> kSombraMovil = {0, 2, 13};
  constexpr int kExisteCaja = 0;
  constexpr int kNoExisteCaja = 1;
  h.Indice_tipo_sombra_movil = kSombraMovil.at(static_cast<std::size_t>(proteccion));
  h.Existe_Caja_persiana = proteccion == ProteccionExpres::Persiana ? kExisteCaja : kNoExisteCaja;
}

void PonerPuerta(Huecos& h, PuertaExpres puerta) {
  PonerVidrio(h, VidrioExpres::Sencillo);
  const bool madera = puerta == PuertaExpres::Madera;
  h.Tipo_de_hueco = kPuerta;
  h.Indice_marco = madera ? 3 : 0;
  h.U_marco_W_m2K = madera ? 2.2F : 5.7F;
  h.Fraccion_marco_tanto_por_cien = madera ? 100.0F : 50.0F;
}

void PonerUnidades(Huecos& h, const UnidadesPorSector& unidades, Mensajes& mensajes) {
  for (std::size_t s = 0; s < kSectores; ++s)
    h.columnas[s].Anadir(static_cast<std::size_t>(Numero(unidades[s], "NVentanas", mensajes)));
}

void PonerHuecos(Edificio& edificio, const EntradaExpres& e, Mensajes& mensajes) {
  while (edificio.NumeroHuecos() > 0) edificio.BorrarHuecos(edificio.NumeroHuecos() - 1);
  const auto anadir = [&](Huecos h) {
    h.Nombre_hueco = "Grupo " + std::to_string(edificio.NumeroHuecos() + 1);
    edificio.AnadirHuecos(std::move(h));
  };
  for (std::size_t i = 0; i < std::min(e.vidrios.size(), kVidriosMaximos); ++i) {
    const GrupoExpres& g = e.vidrios[i];
    Huecos h = HuecoComun(Numero(g.ancho, "Long", mensajes), Numero(g.alto, "Long", mensajes));
    PonerVidrio(h, g.vidrio);
    PonerProteccion(h, g.proteccion);
    PonerUnidades(h, g.unidades, mensajes);
    anadir(std::move(h));
  }
  Huecos puerta =
      HuecoComun(Numero(e.anchoPuerta, "Long", mensajes), Numero(e.altoPuerta, "Long", mensajes));
  PonerPuerta(puerta, e.puerta);
  PonerUnidades(puerta, e.puertas, mensajes);
  anadir(std::move(puerta));
}

// Área de los huecos de un sector, m2.
float AreaHuecos(const Edificio& edificio, std::size_t sector) {
  float area = 0;
  for (std::size_t i = 0; i < edificio.NumeroHuecos(); ++i) {
    const Huecos& h = edificio.GetHuecos(i);
    area += static_cast<float>(h.columnas[sector].recintos.size()) * h.Ancho_m * h.Alto_m;
  }
  return area;
}

void PonerMuros(Edificio& edificio, const EntradaExpres& e, Mensajes& mensajes) {
  Recinto& r = edificio.GetRecinto(0);
  for (std::size_t s = 0; s < kSectores; ++s) {
    r.Muro_ext_m2[0][s] = Numero(e.fachada[s], "Area", mensajes) - AreaHuecos(edificio, s);
    if (r.Muro_ext_m2[0][s] < 0.0F)
      mensajes.Avisar("AVISO",
                      std::string("Datos ilógicos introducidos al ") + kSectorEnAviso[s] +
                          ". Hay mas superficie de ventanas que superficie total (ventans+muros) "
                          "en esa orientación)");
  }
  r.Muro_adiabatico_m2[0] = Numero(e.medianeras, "Area", mensajes);
  r.Muro_otro_local_m2[0] = r.Muro_otro_local_ext_m2[0] =
      Numero(e.aLocalNoAcondicionado, "Area", mensajes);
}

void PonerHorizontales(Edificio& edificio, const EntradaExpres& e, Mensajes& mensajes) {
  Recinto& r = edificio.GetRecinto(0);
  const float cubierta = Numero(e.cubierta, "Area", mensajes);
  switch (e.tipoCubierta) {
    case CubiertaExpres::AlExterior:
      r.Cubierta_horiz_sol_m2[0] = cubierta;
      break;
    case CubiertaExpres::ABuhardilla:
      r.Cubierta_techo_ventilado_m2[0] = r.Cubierta_buhardilla_ext_m2[0] = cubierta;
      break;
    case CubiertaExpres::ALocalAcondicionado:
      r.Cubierta_adiabatico_m2[0] = cubierta;
      break;
  }
  const float suelo = Numero(e.suelo, "Area", mensajes);
  const float perimetro = 4 * std::sqrt(suelo);
  switch (e.tipoSuelo) {
    case SueloExpres::AlTerreno:
      r.Suelo_al_terreno_m2[0] = suelo;
      r.Perimetro_Ext_Suelo_Terreno_m[0] = perimetro;
      break;
    case SueloExpres::VacioSanitario:
      r.Suelo_vacio_sanitario_m2[0] = suelo;
      r.Perimetro_Ext_Vacio_Sanitario_m[0] = perimetro;
      break;
    case SueloExpres::ALocalNoAcondicionado:
      r.Suelo_otro_local_m2[0] = r.Suelo_otro_local_ext_m2[0] = suelo;
      break;
    case SueloExpres::ALocalAcondicionado:
      r.Suelo_adiabatico_m2[0] = suelo;
      break;
  }
}

void PonerAguaCaliente(Edificio& edificio, const EntradaExpres& e, const CatalogoEquipos* catalogo,
                       Mensajes& mensajes) {
  // Una definición anterior dejó el suyo.
  for (std::size_t i = edificio.NumeroSistemas(); i-- > 0;)
    if (edificio.GetSistema(i).Nombre_sistema == kNombreSistema &&
        edificio.GetSistema(i).Tipo_sistema == kTipoACS)
      edificio.BorrarSistema(i);
  DatosGenerales d = edificio.GetDatosGenerales();
  d.ConsumoAgua_litros_dia = VolumenReferencia(edificio);
  const bool central = d.PerfilUso != 0 && e.colectiva;
  const bool sinConsumo = !d.EsResidencial() && d.ConsumoAgua_litros_dia <= 0.0F;
  edificio.SetDatosGenerales(std::move(d));
  if (sinConsumo) {
    // Un depósito sin volumen no se puede calcular, y un terciario no necesita el servicio.
    mensajes.Avisar("AVISO",
                    "El uso no tiene consumo de agua caliente. No se construye su instalación");
    return;
  }

  PeticionSistema peticion;
  peticion.tipoSistema = kTipoACS;
  peticion.nombre = kNombreSistema;
  peticion.seleccion = e.instalacion;
  peticion.tipologia = central ? kCentralizada : kIndividual;
  const bool conDeposito = e.instalacion == "1 Caldera" || e.instalacion == "1 BC aire-agua";
  if (conDeposito)
    peticion.distribucion = "Intercamb+Depósito";
  else
    peticion.distribucion2 = "Directo";
  SistemaResidencial sistema = NuevoSistema(edificio, peticion, catalogo);
  Instalaciones& bloque = sistema.instalaciones.front();
  if (e.instalacion == "1 Calentador" || e.instalacion == "1 Caldera") {
    bloque.TipoGenerador1 = "Condensacion";
    bloque.CombCalor1 = "GasNatural";
  } else {
    bloque.CombCalor1 = "Electricidad";
    if (conDeposito) bloque.TipoBC1 = "Monoblock";
  }
  edificio.AnadirSistema(std::move(sistema));
}

void PonerFotovoltaica(Edificio& edificio, const EntradaExpres& e, Mensajes& mensajes) {
  DatosGenerales d = edificio.GetDatosGenerales();
  if (d.Modo_Vision != "Simplificado" || e.fotovoltaica.empty()) return;
  d.PotPico_FV[0] = ComprobarValor(e.fotovoltaica, "Cualquiera", mensajes);
  d.Incli_FV[0] = kInclinacionFV;
  edificio.SetDatosGenerales(std::move(d));
}

void PonerAireTerciario(Edificio& edificio, const EntradaExpres& e, Mensajes& mensajes) {
  const DatosGenerales& d = edificio.GetDatosGenerales();
  const auto clase = std::find(kCalidadesAire.begin(), kCalidadesAire.end(), e.calidadAire);
  if (d.EsResidencial() || clase == kCalidadesAire.end()) return;
  if (d.Nm2_p <= 0.0F)
    mensajes.Avisar("AVISO", "Falta la superficie por persona del uso: las renovaciones son 0");
  AceptarClaseAire(edificio, static_cast<ClaseAire>(clase - kCalidadesAire.begin()), mensajes);
}

}  // namespace

std::span<const std::string_view> InstalacionesExpres(int perfilUso, bool colectiva) {
  if (perfilUso != 0 && colectiva) return kColectivas;
  return kIndividuales;
}

void DefinirExpres(Edificio& edificio, const EntradaExpres& e, const XMLNode& valoresU,
                   const CatalogoEquipos* catalogo, Mensajes& mensajes) {
  const std::string zona = edificio.GetLocalizacion().ZonaClimatica;
  Construccion construccion = edificio.GetConstruccion();
  construccion.Longitud_puentes_termicos_modo = "Estimados";
  LimpiarEnvolvente(edificio, construccion);
  PonerValoresDefectoU(LeerValoresDefectoU(valoresU, e.periodo, LetraZona(zona), mensajes),
                       edificio);
  edificio.GetRecinto(0).Volumen_total_m3 = Numero(e.volumen, "Volumen", mensajes);
  edificio.GetRecinto(0).Suelo_habitable_m2 = Numero(e.superficie, "Area", mensajes);
  PonerVentilacion(edificio, e, mensajes);
  PonerHuecos(edificio, e, mensajes);
  PonerMuros(edificio, e, mensajes);
  PonerHorizontales(edificio, e, mensajes);
  edificio.SetConstruccion(PuentesPorTabla(construccion, zona));
  PonerAguaCaliente(edificio, e, catalogo, mensajes);
  edificio.SetConstruccion(LongitudesEstimadas(edificio));
  PonerFotovoltaica(edificio, e, mensajes);
  PonerAireTerciario(edificio, e, mensajes);
  edificio.QuitarCalculo();
}

}  // namespace novex
