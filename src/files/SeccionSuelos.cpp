#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using Z = Recinto;
using K = Construccion;
using S = SueloTerreno;
constexpr auto z = &R::recinto;
constexpr auto k = &R::construccion;

constexpr std::string_view kSeccion = "Suelos";
constexpr std::string_view kGrupoTerreno = "SuelosTerreno";
constexpr std::string_view kGrupoOtros = "SuelosOtros";

constexpr std::array kTerreno = {
    Real<z, &Z::Suelo_al_terreno_m2>("Suelo_al_terreno_m2", 1),
    Real<z, &Z::Perimetro_Ext_Suelo_Terreno_m>("Perimetro_Ext_Suelo_Terreno_m", 1),
    UDe<ranura::SueloTerr1, ranura::SueloTerr2, ranura::SueloTerr3>("U_Suelo_terreno_W_m2K"),
    UcteDe<ranura::SueloTerr1, ranura::SueloTerr2, ranura::SueloTerr3>("UCTE_Suelo_terreno_W_m2K"),
    Real<k, &K::suelosTerreno, &S::Profundidad_suelo_enterrado_m>("Profundidad_suelo_enterrado_m",
                                                                  1),
    Texto<k, &K::suelosTerreno, &S::Tipo_aislamiento_suelo>("Tipo_aislamiento_suelo"),
    Real<k, &K::suelosTerreno, &S::D_Longitud_aislamiento_m>("D_Longitud_aislamiento_m", 2),
    Real<k, &K::suelosTerreno, &S::Ra_Resitencia_aislante_m2K_W>("Ra_Resitencia_aislante_m2K_W", 2),
    Entero<z, &Z::RSueloTerrenoReh>("RSueloTerreno#Reh")};

constexpr std::array kOtro = {
    Real<z, &Z::Suelo_ext_m2>("Suelo_ext_m2", 1),
    Real<z, &Z::Suelo_otro_local_m2>("Suelo_otro_local_m2", 1),
    Real<z, &Z::Suelo_otro_local_ext_m2>("Suelo_otro_local_ext_m2", 1),
    Real<z, &Z::Suelo_vacio_sanitario_m2>("Suelo_vacio_sanitario_m2", 1),
    Real<z, &Z::Suelo_adiabatico_m2>("Suelo_adiabatico_m2", 1),
    Real<z, &Z::Perimetro_Ext_Vacio_Sanitario_m>("Perimetro_Ext_Vacio_Sanitario_m", 1),
    UDe<ranura::SueloExt1, ranura::SueloExt2>("U_Suelo_ext_W_m2K"),
    UcteDe<ranura::SueloExt1, ranura::SueloExt2>("UCTE_Suelo_ext_W_m2K"),
    UDe<ranura::SueloVent1, ranura::SueloVent3>("U_Suelo_otro_local_W_m2K"),
    UDe<ranura::MuroExt8, ranura::MuroExt9>("U_Suelo_otro_local_ext_W_m2K"),
    Posicion<k, &K::Renovacion_Otro_Local_suelo>("Renovacion_Otro_Local_suelo", kClasesRenovacion),
    UDe<ranura::SueloOtro1, ranura::SueloOtro3>("U_Suelo_vacio_sanitario_W_m2K"),
    UcteDe<ranura::SueloOtro1, ranura::SueloOtro3>("UCTE_Suelo_vacio_sanitario_W_m2K"),
    UDe<ranura::SueloOtro2, ranura::SueloOtro4>("U_Suelo_adiabatico_W_m2K"),
    UcteDe<ranura::SueloOtro2, ranura::SueloOtro4>("UCTE_Suelo_adiabatico_W_m2K"),
    UDe<ranura::SueloInt1, ranura::SueloInt2>("U_Suelo_particion_interior_W_m2K"),
    UcteDe<ranura::SueloInt1, ranura::SueloInt2>("UCTE_Suelo_particion_interior_W_m2K"),
    UDe<ranura::SueloInt3, ranura::SueloInt4>("U_Suelo_particion_interiorD_W_m2K"),
    UcteDe<ranura::SueloInt3, ranura::SueloInt4>("UCTE_Suelo_particion_interiorD_W_m2K"),
    Entero<z, &Z::RSueloOLocalReh>("RSueloOLocal#Reh"),
    Entero<z, &Z::RSueloVacioReh>("RSueloVacio#Reh"),
    Entero<z, &Z::RSueloExteriorReh>("RSueloExterior#Reh"),
    Entero<z, &Z::RSueloDUsoMedianeraReh>("RSueloDUsoMedianera#Reh"),
    Entero<z, &Z::RSueloInteriorMUsoReh>("RSueloInteriorMUso#Reh"),
    Entero<z, &Z::RSueloInteriorDUsoReh>("RSueloInteriorDUso#Reh")};

}  // namespace

void LeerSuelos(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes) {
  const XMLNode suelos = novex.childNamed(kSeccion);
  r.construccion.SuelosTerreno =
      LeerTipos(suelos.childNamed(kGrupoTerreno), kTerreno, r, 3, mensajes);
  r.construccion.SuelosOtros = LeerTipos(suelos.childNamed(kGrupoOtros), kOtro, r, 2, mensajes);
}

void EscribirSuelos(XMLNode& novex, RegistrosCaso& r) {
  XMLNode suelos = novex.appendChild(kSeccion);
  EscribirTipos(suelos, kGrupoTerreno, "Suelo_terreno", kTerreno, r, 3);
  EscribirTipos(suelos, kGrupoOtros, "Suelo_otro", kOtro, r, 2);
}

void AnadirTablasSuelos(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"Suelo_terreno", kTerreno, 3});
  tablas.push_back({"Suelo_otro", kOtro, 2});
}

}  // namespace novex
