#include "entry/ElementosEnvolvente.h"

#include "base/NumeroTexto.h"
#include "files/AccesoCampos.h"
#include "model/CatalogoCampos.h"

namespace novex {
namespace {

using namespace ranura;
using Textos = std::span<const std::string_view>;
using Ranuras = std::span<const std::size_t>;

template <std::size_t... R>
constexpr std::array<std::size_t, sizeof...(R)> kDe = {R...};

constexpr std::array<std::string_view, 5> kClases = {"renovh=0.", "renovh=05", "renovh=1.",
                                                     "renovh=5", "renovh=10"};
constexpr std::array<std::string_view, 5> kRotulosClases = {
    "0 renov./h", "0,5 renov./h", "1 renov./h", "5 renov./h", "10 renov./h"};
constexpr std::array<std::string_view, 6> kOrientaciones = {"Norte", "Oeste",   "SurOeste",
                                                            "Sur",   "SurEste", "Este"};
constexpr std::array<std::string_view, 6> kRotulosOrientaciones = {"Norte", "Oeste",   "Suroeste",
                                                                   "Sur",   "Sureste", "Este"};
constexpr std::array<std::string_view, 3> kAislamientos = {"SinAislamiento", "Continuo",
                                                           "Periferico"};
constexpr std::array<std::string_view, 3> kRotulosAislamientos = {"Sin aislamiento", "Continuo",
                                                                  "Periférico"};

constexpr std::string_view kAyudaRenovacion =
    "Renovaciones por hora del espacio no acondicionado, por su estanquidad (UNE-EN ISO 13789)";
constexpr std::string_view kAyudaPerimetro =
    "Longitud de la solera en contacto con el exterior (UNE-EN ISO 13370)";

constexpr std::array kDatosMuroLocal = {
    DatoElemento{"Renovación", "Renovacion_Otro_Local", kAyudaRenovacion, kClases, kRotulosClases},
    DatoElemento{"Orientación", "Orientacion_Otro_Local", "Adónde da el espacio no acondicionado",
                 kOrientaciones, kRotulosOrientaciones}};
constexpr std::array kDatosMuroTerreno = {
    DatoElemento{"Profundidad (m)", "Profundidad_muro_enterrado_m",
                 "Profundidad de la parte enterrada (UNE-EN ISO 13370)"}};
constexpr std::array kDatosBuhardilla = {
    DatoElemento{"Renovación", "Renovacion_Buhardilla", kAyudaRenovacion, kClases, kRotulosClases}};
constexpr std::array kDatosSueloTerreno = {
    DatoElemento{"Perímetro (m)", "Perimetro_Ext_Suelo_Terreno_m", kAyudaPerimetro},
    DatoElemento{"Profundidad (m)", "Profundidad_suelo_enterrado_m",
                 "Profundidad de la solera bajo el terreno"},
    DatoElemento{"Aislamiento", "Tipo_aislamiento_suelo", "Aislamiento de la solera", kAislamientos,
                 kRotulosAislamientos},
    DatoElemento{"D (m)", "D_Longitud_aislamiento_m",
                 "Ancho de la banda de aislamiento periférico"},
    DatoElemento{"Ra (m²K/W)", "Ra_Resitencia_aislante_m2K_W", "Resistencia del aislante"}};
constexpr std::array kDatosSueloLocal = {DatoElemento{"Renovación", "Renovacion_Otro_Local_suelo",
                                                      kAyudaRenovacion, kClases, kRotulosClases}};
constexpr std::array kDatosSanitario = {
    DatoElemento{"Perímetro (m)", "Perimetro_Ext_Vacio_Sanitario_m", kAyudaPerimetro}};

constexpr std::string_view kPlano = "Fuera 1er plano";
constexpr std::string_view kSombra = "A la sombra";
constexpr std::string_view kMismoUso = "Partición, mismo uso";
constexpr std::string_view kOtroUso = "Partición, otro uso";
constexpr std::string_view kAyudaMismoUso =
    "Separa unidades del mismo uso. Sin pérdidas: su U solo se comprueba (DB-HE1, tabla 3.2)";
constexpr std::string_view kAyudaOtroUso =
    "Separa unidades de distinto uso o zonas comunes. Sin pérdidas: su U solo se comprueba";

constexpr auto C = PaginaOpacos::Cubiertas;
constexpr auto M = PaginaOpacos::Muros;
constexpr auto S = PaginaOpacos::Suelos;

constexpr std::array kCubiertas = {
    ClaseElemento{C, "Cubierta horizontal", "Azoteas y cubiertas planas al exterior", "CubiertaHz",
                  kDe<TechoExt1, TechoExt2, TechoExt3>, "U_Cubierta_horiz_sol_W_m2K",
                  "RCubiertaExt#Reh", "Cubierta_horiz_sol_m2", ElementoConParte::CubiertaHorizontal,
                  "Cubierta_horiz_sombra_m2", kSombra},
    ClaseElemento{C, "Cubierta inclinada", "Faldones al exterior, por orientación", "CubiertaIncl",
                  kDe<TechoInc1, TechoInc2, TechoInc3>, "U_Cubierta_incl_W_m2K",
                  "RCubiertaExtInc#Reh", "Cubierta_incl_*_m2", ElementoConParte::CubiertaInclinada,
                  "Cubierta_incl_*_Sombra_m2", kSombra},
    ClaseElemento{C,
                  "Techo bajo buhardilla",
                  "Techo bajo un espacio no acondicionado",
                  "CubiertaOtras",
                  kDe<TechoVent1, TechoVent3>,
                  "U_Cubierta_techo_ventilado_W_m2K",
                  "RCubiertaOLocal#Reh",
                  "Cubierta_techo_ventilado_m2",
                  std::nullopt,
                  {},
                  {},
                  kDe<TechoVent2, TechoVent4>,
                  "U_Cubierta_buhardilla_ext_W_m2K",
                  "Cubierta_buhardilla_ext_m2",
                  kDatosBuhardilla},
    ClaseElemento{C, "Cubierta enterrada", "En contacto con el terreno", "CubiertaOtras",
                  kDe<TechoTerr1, TechoTerr2>, "U_Cubierta_terreno_W_m2K", "RCubiertaTerreno#Reh",
                  "Cubierta_terreno_m2"},
    ClaseElemento{C, "Techo adiabático", "Bajo otro edificio u otro local acondicionado",
                  "CubiertaOtras", kDe<TechoOtro1, TechoOtro2>, "U_Cubierta_adiabatico_W_m2K",
                  "RCubiertaDUsoMedianera#Reh", "Cubierta_adiabatico_m2"},
    ClaseElemento{C, kMismoUso, kAyudaMismoUso, "CubiertaOtras", kDe<TechoInt1, TechoInt2>,
                  "U_Cubierta_Particion_Interna_W_m2K", "RCubiertaInteriorMUso#Reh"},
    ClaseElemento{C, kOtroUso, kAyudaOtroUso, "CubiertaOtras", kDe<TechoInt3, TechoInt4>,
                  "U_Cubierta_Particion_InternaD_W_m2K", "RCubiertaInteriorDUso#Reh"}};

constexpr std::array kMuros = {
    ClaseElemento{M, "Muro exterior", "Fachadas, por orientación y sin sus huecos", "MuroExt",
                  kDe<MuroExt1, MuroExt2, MuroExt3, MuroExt4, MuroExt5>, "U_Muro_ext_W_m2K",
                  "RMuroExt#Reh", "Muro_ext_*_m2", ElementoConParte::Muro, "Muro_ext_Var_*_m2",
                  kPlano},
    ClaseElemento{M,
                  "Muro a no acondicionado",
                  "A un local no acondicionado",
                  "Muro_otro",
                  kDe<MuroOtro3, MuroOtro7>,
                  "U_Muro_otro_local_W_m2K",
                  "RMuroOLocal#Reh",
                  "Muro_otro_local_m2",
                  std::nullopt,
                  {},
                  {},
                  kDe<MuroExt6, MuroExt7>,
                  "U_Muro_otro_local_ext_W_m2K",
                  "Muro_otro_local_ext_m2",
                  kDatosMuroLocal},
    ClaseElemento{M,
                  "Muro enterrado",
                  "En contacto con el terreno",
                  "Muro_otro",
                  kDe<MuroTerr1, MuroTerr2>,
                  "U_Muro_terreno_W_m2K",
                  "RMuroTerreno#Reh",
                  "Muro_al_terreno_m2",
                  std::nullopt,
                  {},
                  {},
                  {},
                  {},
                  {},
                  kDatosMuroTerreno},
    ClaseElemento{M, "Medianera", "A otro edificio o a otro local acondicionado: adiabática",
                  "Muro_otro", kDe<MuroOtro1, MuroOtro5>, "U_Muro_adiabatico_W_m2K",
                  "RMuroDusoMedianera#Reh", "Muro_adiabatico_m2"},
    ClaseElemento{M, kMismoUso, kAyudaMismoUso, "Muro_otro", kDe<MuroOtro2, MuroOtro6>,
                  "U_Muro_interior_W_m2K", "RMuroInteriorMUso#Reh"},
    ClaseElemento{M, kOtroUso, kAyudaOtroUso, "Muro_otro", kDe<MuroOtro8, MuroOtro9>,
                  "U_Muro_interiorD_W_m2K", "RMuroInteriorDUso#Reh"}};

constexpr std::array kSuelos = {
    ClaseElemento{S,
                  "Suelo al terreno",
                  "Soleras en contacto con el terreno",
                  "Suelo_terreno",
                  kDe<SueloTerr1, SueloTerr2, SueloTerr3>,
                  "U_Suelo_terreno_W_m2K",
                  "RSueloTerreno#Reh",
                  "Suelo_al_terreno_m2",
                  std::nullopt,
                  {},
                  {},
                  {},
                  {},
                  {},
                  kDatosSueloTerreno},
    ClaseElemento{S, "Suelo al exterior", "Vuelos y soportales", "Suelo_otro",
                  kDe<SueloExt1, SueloExt2>, "U_Suelo_ext_W_m2K", "RSueloExterior#Reh",
                  "Suelo_ext_m2"},
    ClaseElemento{S,
                  "Suelo sobre no acondic.",
                  "Sobre un local no acondicionado",
                  "Suelo_otro",
                  kDe<SueloVent1, SueloVent3>,
                  "U_Suelo_otro_local_W_m2K",
                  "RSueloOLocal#Reh",
                  "Suelo_otro_local_m2",
                  std::nullopt,
                  {},
                  {},
                  kDe<MuroExt8, MuroExt9>,
                  "U_Suelo_otro_local_ext_W_m2K",
                  "Suelo_otro_local_ext_m2",
                  kDatosSueloLocal},
    ClaseElemento{S,
                  "Forjado sanitario",
                  "Sobre una cámara sanitaria",
                  "Suelo_otro",
                  kDe<SueloOtro1, SueloOtro3>,
                  "U_Suelo_vacio_sanitario_W_m2K",
                  "RSueloVacio#Reh",
                  "Suelo_vacio_sanitario_m2",
                  std::nullopt,
                  {},
                  {},
                  {},
                  {},
                  {},
                  kDatosSanitario},
    ClaseElemento{S, "Suelo adiabático", "Sobre otro edificio u otro local acondicionado",
                  "Suelo_otro", kDe<SueloOtro2, SueloOtro4>, "U_Suelo_adiabatico_W_m2K",
                  "RSueloDUsoMedianera#Reh", "Suelo_adiabatico_m2"},
    ClaseElemento{S, kMismoUso, kAyudaMismoUso, "Suelo_otro", kDe<SueloInt1, SueloInt2>,
                  "U_Suelo_particion_interior_W_m2K", "RSueloInteriorMUso#Reh"},
    ClaseElemento{S, kOtroUso, kAyudaOtroUso, "Suelo_otro", kDe<SueloInt3, SueloInt4>,
                  "U_Suelo_particion_interiorD_W_m2K", "RSueloInteriorDUso#Reh"}};

std::size_t SectoresDe(const ClaseElemento& clase) {
  return clase.PorSectores() ? kSectores : 1;
}

double Numero(LectorCampos& lector, const std::string& direccion) {
  return RealInicial(lector.Valor(direccion).value_or(""));
}

// ¿Tiene el tipo algo puesto?
bool EnUso(const Edificio& edificio, const ClaseElemento& clase, std::size_t tipo,
           LectorCampos& lector) {
  const composicion& c = edificio.GetComposicion(clase.ranuras[tipo]);
  if (c.U > 0.0F || !c.capas.empty()) return true;
  if (clase.area.empty()) return false;
  for (std::size_t s = 0; s < SectoresDe(clase); ++s)
    if (Numero(lector, DireccionElemento(clase, clase.area, tipo, s)) > 0) return true;
  return false;
}

}  // namespace

std::span<const ClaseElemento> ClasesDePagina(PaginaOpacos pagina) {
  switch (pagina) {
    case PaginaOpacos::Cubiertas:
      return kCubiertas;
    case PaginaOpacos::Muros:
      return kMuros;
    case PaginaOpacos::Suelos:
      break;
  }
  return kSuelos;
}

std::string DireccionElemento(const ClaseElemento& clase, std::string_view etiqueta,
                              std::size_t tipo, std::size_t sector) {
  std::string direccion = std::string(clase.elemento) + "[" + std::to_string(tipo + 1) + "]/";
  for (const char c : etiqueta) {
    if (c == '#')
      direccion += std::to_string(tipo + 1);
    else if (c == '*')
      direccion += kNombreSector.at(sector);
    else
      direccion += c;
  }
  return direccion;
}

std::string DireccionU(const ClaseElemento& clase, std::size_t ranura) {
  for (const auto& [ranuras, etiqueta] :
       {std::pair(clase.ranuras, clase.U), std::pair(clase.ranurasExteriores, clase.UExterior)})
    for (std::size_t tipo = 0; tipo < ranuras.size(); ++tipo)
      if (ranuras[tipo] == ranura) return DireccionElemento(clase, etiqueta, tipo);
  return {};
}

bool TieneParte(const ClaseElemento& clase, std::size_t sector) {
  return clase.conParte && (*clase.conParte != ElementoConParte::Muro || sector != norte);
}

std::size_t TiposEnUso(const Edificio& edificio, const ClaseElemento& clase) {
  LectorCampos lector(edificio);
  for (std::size_t tipo = clase.Tipos(); tipo > 1; --tipo)
    if (EnUso(edificio, clase, tipo - 1, lector)) return tipo;
  return 1;
}

double AreaDeClase(const Edificio& edificio, const ClaseElemento& clase) {
  if (clase.area.empty()) return 0;
  LectorCampos lector(edificio);
  double area = 0;
  for (std::size_t tipo = 0; tipo < clase.Tipos(); ++tipo)
    for (std::size_t s = 0; s < SectoresDe(clase); ++s)
      area += Numero(lector, DireccionElemento(clase, clase.area, tipo, s));
  return area;
}

void PonerTransmitancia(Edificio& edificio, std::size_t ranura, std::string_view texto,
                        Mensajes& mensajes) {
  const float U = ComprobarValor(texto, "CoefU", mensajes);
  edificio.LimpiarComposicion(ranura);
  edificio.GetComposicion(ranura).U = U;
}

}  // namespace novex
