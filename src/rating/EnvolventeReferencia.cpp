#include "rating/EnvolventeReferencia.h"

#include <array>
#include <numeric>
#include <string_view>

#include "model/PropiedadesHueco.h"
#include "rating/LimitesHueco.h"

namespace novex {
namespace {

constexpr float kProporcionMaxima = 0.6F;
constexpr float kLucernariosMaximos = 0.05F;

// Grupos de zona: alfa, A, B, C, D y E.
std::size_t GrupoZona(std::string_view zona) {
  if (zona.starts_with("alfa")) return 0;
  return static_cast<std::size_t>(LetraInvierno(zona) - 'A') + 1;
}

constexpr std::array<float, 6> kUMuro = {0.9765253F, 0.9765253F, 0.8474296F,
                                         0.7518576F, 0.6779482F, 0.5834173F};
constexpr std::array<float, 6> kUCubierta = {0.5461497F, 0.5461497F, 0.487092F,
                                             0.4405286F, 0.4061739F, 0.3720238F};
constexpr std::array<float, 6> kUSuelo = {0.5299226F, 0.5299226F, 0.5200024F,
                                          0.499983F,  0.4899396F, 0.4657514F};
constexpr std::array<float, 6> kUMedianera = {1.220885F,  1.220885F,  1.03726F,
                                              0.9717436F, 0.9717436F, 0.9717436F};
constexpr float kUTabique = 2.426725F;
constexpr float kUForjado = 5.555555F;

constexpr std::array<float, 6> kPsiForjados = {0.8F, 0.8F, 0.75F, 0.7F, 0.65F, 0.6F};
constexpr std::array<float, 6> kPsiCubiertas = {0, 0.45F, 0.45F, 0.45F, 0.45F, 0.45F};
constexpr std::array<float, 6> kPsiSueloExterior = {0.2F, 0.2F, 0.25F, 0.25F, 0.3F, 0.3F};
constexpr std::array<float, 6> kPsiEsquina = {-0.6F, 0.15F, 0.15F, 0.15F, 0.15F, 0.15F};
constexpr std::array<float, 6> kPsiPilares = {0.85F, 0.85F, 0.85F, 0.8F, 0.75F, 0.7F};
constexpr std::array<float, 6> kPsiTerreno = {-0.1F, 0.45F, 0.45F, 0.45F, 0.45F, 0.45F};
constexpr float kPsiVentanas = 0.4F;

template <typename Lista>
float Sumar(const Lista& lista) {
  return std::accumulate(lista.begin(), lista.end(), 0.0F);
}

// Pasa al primer tipo las áreas de los demás, sector a sector.
template <std::size_t N>
void JuntarSectores(std::array<PorSector, N>& tipos) {
  for (std::size_t t = 1; t < N; ++t)
    for (std::size_t s = 0; s < kSectores; ++s) {
      tipos[0][s] += tipos[t][s];
      tipos[t][s] = 0;
    }
}

template <typename Lista>
float Vaciar(Lista& lista) {
  const float suma = Sumar(lista);
  lista.fill(0);
  return suma;
}

void JuntarOpacos(Recinto& r) {
  JuntarSectores(r.Muro_ext_m2);
  JuntarSectores(r.Muro_ext_Var_m2);
  r.Muro_ext_m2[0][norte] += Vaciar(r.Muro_otro_local_m2) + Vaciar(r.Muro_al_terreno_m2);
  r.Muro_otro_local_ext_m2.fill(0);
  r.Muro_adiabatico_m2 = {Sumar(r.Muro_adiabatico_m2), 0};

  JuntarSectores(r.Cubierta_incl_m2);
  JuntarSectores(r.Cubierta_incl_Sombra_m2);
  const float horizontal = Sumar(r.Cubierta_horiz_sol_m2) + Vaciar(r.Cubierta_techo_ventilado_m2) +
                           Vaciar(r.Cubierta_terreno_m2);
  r.Cubierta_horiz_sol_m2 = {horizontal, 0, 0};
  r.Cubierta_horiz_sombra_m2 = {Sumar(r.Cubierta_horiz_sombra_m2), 0, 0};
  r.Cubierta_buhardilla_ext_m2.fill(0);
  r.Cubierta_adiabatico_m2 = {Sumar(r.Cubierta_adiabatico_m2), 0};

  const float suelo = Sumar(r.Suelo_ext_m2) + Vaciar(r.Suelo_otro_local_m2) +
                      Vaciar(r.Suelo_vacio_sanitario_m2) + Vaciar(r.Suelo_al_terreno_m2);
  r.Suelo_ext_m2 = {suelo, 0};
  r.Suelo_otro_local_ext_m2.fill(0);
  r.Suelo_adiabatico_m2 = {Sumar(r.Suelo_adiabatico_m2), 0};
  r.Perimetro_Ext_Vacio_Sanitario_m.fill(0);
  r.Perimetro_Ext_Suelo_Terreno_m.fill(0);
}

void PonerU(Edificio& edificio, std::size_t posicion, float U) {
  edificio.LimpiarComposicion(posicion);
  edificio.GetComposicion(posicion).U = U;
}

void PonerComposiciones(Edificio& edificio, std::size_t grupo) {
  using namespace ranura;
  PonerU(edificio, MuroExt1, kUMuro[grupo]);
  PonerU(edificio, TechoExt1, kUCubierta[grupo]);
  PonerU(edificio, TechoInc1, kUCubierta[grupo]);
  PonerU(edificio, SueloExt1, kUSuelo[grupo]);
  PonerU(edificio, MuroOtro1, kUMedianera[grupo]);
  for (const std::size_t i : {MuroOtro2, MuroOtro6, MuroOtro8, MuroOtro9})
    PonerU(edificio, i, kUTabique);
  for (const std::size_t i : {TechoOtro1, TechoOtro2, TechoInt1, TechoInt2, TechoInt3, TechoInt4,
                              SueloOtro2, SueloOtro4, SueloInt1, SueloInt2, SueloInt3, SueloInt4})
    PonerU(edificio, i, kUForjado);
}

void PonerPuentes(Edificio& edificio, std::size_t grupo) {
  Construccion c = edificio.GetConstruccion();
  c.U_L_Puentes[puente_forjados] = kPsiForjados[grupo];
  c.U_L_Puentes[puente_cubiertas] = kPsiCubiertas[grupo];
  c.U_L_Puentes[puente_suelo_exterior] = kPsiSueloExterior[grupo];
  c.U_L_Puentes[puente_esquina_saliente] = kPsiEsquina[grupo];
  c.U_L_Puentes[puente_ventanas] = kPsiVentanas;
  c.U_L_Puentes[puente_pilares] = kPsiPilares[grupo];
  c.U_L_Puentes[puente_suelo_terreno] = kPsiTerreno[grupo];
  edificio.SetConstruccion(c);
}

bool EsVentana(const Huecos& g) {
  return g.Tipo_de_hueco == kVentana || g.Tipo_de_hueco == kEscaparate;
}

// Área de las ventanas de cada sector, y de todos los lucernarios.
struct AreasHuecos {
  PorSector ventanas{};
  float lucernarios = 0;
};

AreasHuecos MedirHuecos(const Edificio& edificio) {
  AreasHuecos a;
  for (std::size_t n = 0; n < edificio.NumeroHuecos(); ++n) {
    const Huecos& g = edificio.GetHuecos(n);
    const float unidad = g.Ancho_m * g.Alto_m;
    if (g.Tipo_de_hueco == kLucernario)
      a.lucernarios += unidad * static_cast<float>(g.NumeroTotal());
    if (!EsVentana(g)) continue;
    for (std::size_t s = 0; s < kSectores; ++s)
      a.ventanas[s] += unidad * static_cast<float>(g.columnas[s].recintos.size());
  }
  return a;
}

// Los lucernarios no pasan del 5 % de la cubierta; lo que se les quita es cubierta.
void ReducirLucernarios(Edificio& edificio, float lucernarios) {
  Recinto& r = edificio.GetRecinto(0);
  const float total = lucernarios + r.Cubierta_horiz_sol_m2[0] + Sumar(r.Cubierta_incl_m2[0]);
  if (lucernarios <= 0.0F || lucernarios / total <= kLucernariosMaximos) return;
  const float quedan = kLucernariosMaximos * total;
  r.Cubierta_horiz_sol_m2[0] += lucernarios - quedan;
  for (std::size_t n = 0; n < edificio.NumeroHuecos(); ++n)
    if (edificio.GetHuecos(n).Tipo_de_hueco == kLucernario)
      edificio.GetHuecos(n).Alto_m *= quedan / lucernarios;
}

struct Fachada {
  float proporcion = 0;
  float factorArea = 1;
};

// Proporción de huecos de cada sector; donde pasa del 60 % se recortan y crece el muro.
std::array<Fachada, kSectores> RecortarFachadas(Recinto& r, const PorSector& ventanas) {
  std::array<Fachada, kSectores> fachadas;
  for (std::size_t s = 0; s < kSectores; ++s) {
    float& muro = r.Muro_ext_m2[0][s];
    const float total = muro + ventanas[s];
    if (ventanas[s] <= 0.0F || total <= 0.0F) continue;
    fachadas[s].proporcion = ventanas[s] / total;
    if (fachadas[s].proporcion <= kProporcionMaxima) continue;
    fachadas[s].factorArea = kProporcionMaxima * total / ventanas[s];
    muro = total * (1.0F - kProporcionMaxima);
  }
  return fachadas;
}

void PonerVentana(Huecos& g, const std::array<Fachada, kSectores>& fachadas, std::string_view zona,
                  int perfilUso) {
  const float U = UVentana(g, 0.0F, 0.0F);
  const char letra = LetraInvierno(zona);
  for (std::size_t s = 0; s < kSectores; ++s) {
    ColumnaHuecos& columna = g.columnas[s];
    if (columna.recintos.empty()) continue;
    const auto orientacion = static_cast<Sector>(s);
    const float f = fachadas[s].proporcion;
    const float Ulimite = ULimiteHueco(letra, orientacion, f);
    const float factor = FactorSolarDeU(Ulimite);
    const float limite = FactorSolarLimite(zona, orientacion, f, perfilUso);
    columna.FactorUColumna = U > 0.0F ? Ulimite / U : 0.0F;
    // El grupo se queda con el vidrio de su última orientación; el límite es el de cada una.
    g.FS_cristal_tanto_por_uno = factor;
    columna.FactorFSColumna = limite > 0.0F && limite < 1.0F ? limite / factor : 1.0F;
    columna.FactorAreaColumna = fachadas[s].factorArea;
  }
}

}  // namespace

void PonerEnvolventeReferencia(Edificio& edificio) {
  const std::string zona = edificio.GetLocalizacion().ZonaClimatica;
  const std::size_t grupo = GrupoZona(zona);
  const char letra = LetraInvierno(zona);
  JuntarOpacos(edificio.GetRecinto(0));
  PonerComposiciones(edificio, grupo);
  PonerPuentes(edificio, grupo);

  const AreasHuecos areas = MedirHuecos(edificio);
  ReducirLucernarios(edificio, areas.lucernarios);
  const auto fachadas = RecortarFachadas(edificio.GetRecinto(0), areas.ventanas);
  DatosGenerales g = edificio.GetDatosGenerales();
  for (std::size_t n = 0; n < edificio.NumeroHuecos(); ++n) {
    Huecos& grupoHuecos = edificio.GetHuecos(n);
    if (EsVentana(grupoHuecos)) PonerVentana(grupoHuecos, fachadas, zona, g.PerfilUso);
    grupoHuecos.Indice_tipo_sombra_movil = 0;
    grupoHuecos.Permeabilidad_Ventanas = letra == 'D' || letra == 'E' ? 27.0F : 50.0F;
  }
  g.Iluminacion = g.VEII > 0.0F ? g.Iluminacion * g.VEIIMax / g.VEII : 0.0F;
  edificio.SetDatosGenerales(g);
}

}  // namespace novex
