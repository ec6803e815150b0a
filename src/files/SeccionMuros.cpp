#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using Z = Recinto;
using K = Construccion;
constexpr auto z = &R::recinto;
constexpr auto k = &R::construccion;

constexpr std::string_view kSeccion = "Muros";
constexpr std::string_view kGrupoExt = "MurosExt";
constexpr std::string_view kGrupoOtros = "MurosOtros";

constexpr std::array kColor = {Entero<k, &K::NColorMurosExt>("NColorMurosExt")};

constexpr std::array kExterior = {
    Real<z, &Z::Muro_ext_m2>("Muro_ext_*_m2", 1).PorSectores(),
    Real<z, &Z::Muro_ext_Var_m2>("Muro_ext_Var_*_m2", 1).PorSectores(oeste),
    UDe<ranura::MuroExt1, ranura::MuroExt2, ranura::MuroExt3, ranura::MuroExt4, ranura::MuroExt5>(
        "U_Muro_ext_W_m2K"),
    Entero<z, &Z::RMuroExtReh>("RMuroExt#Reh"),
    UcteDe<ranura::MuroExt1, ranura::MuroExt2, ranura::MuroExt3, ranura::MuroExt4,
           ranura::MuroExt5>("UCTE_Muro_ext_W_m2K")};

constexpr std::array kOtro = {
    Real<z, &Z::Muro_otro_local_m2>("Muro_otro_local_m2", 1),
    Real<z, &Z::Muro_otro_local_ext_m2>("Muro_otro_local_ext_m2", 1),
    Real<z, &Z::Muro_al_terreno_m2>("Muro_al_terreno_m2", 1),
    Real<z, &Z::Muro_adiabatico_m2>("Muro_adiabatico_m2", 1),
    UDe<ranura::MuroOtro3, ranura::MuroOtro7>("U_Muro_otro_local_W_m2K"),
    UDe<ranura::MuroExt6, ranura::MuroExt7>("U_Muro_otro_local_ext_W_m2K"),
    UcteDe<ranura::MuroExt6, ranura::MuroExt7>("UCTE_Muro_otro_local_ext_W_m2K"),
    Posicion<k, &K::Renovacion_Otro_Local>("Renovacion_Otro_Local", kClasesRenovacion),
    Posicion<k, &K::Orientacion_Otro_Local>("Orientacion_Otro_Local", kOrientacionesLocal),
    UDe<ranura::MuroTerr1, ranura::MuroTerr2>("U_Muro_terreno_W_m2K"),
    UcteDe<ranura::MuroTerr1, ranura::MuroTerr2>("UCTE_Muro_terreno_W_m2K"),
    Real<k, &K::Profundidad_muro_enterrado_m>("Profundidad_muro_enterrado_m", 1),
    UDe<ranura::MuroOtro1, ranura::MuroOtro5>("U_Muro_adiabatico_W_m2K"),
    UcteDe<ranura::MuroOtro1, ranura::MuroOtro5>("UCTE_Muro_adiabatico_W_m2K"),
    UDe<ranura::MuroOtro2, ranura::MuroOtro6>("U_Muro_interior_W_m2K"),
    UcteDe<ranura::MuroOtro2, ranura::MuroOtro6>("UCTE_Muro_interior_W_m2K"),
    UDe<ranura::MuroOtro8, ranura::MuroOtro9>("U_Muro_interiorD_W_m2K"),
    UcteDe<ranura::MuroOtro8, ranura::MuroOtro9>("UCTE_Muro_interiorD_W_m2K"),
    Entero<z, &Z::RMuroOLocalReh>("RMuroOLocal#Reh"),
    Entero<z, &Z::RMuroTerrenoReh>("RMuroTerreno#Reh"),
    Entero<z, &Z::RMuroDusoMedianeraReh>("RMuroDusoMedianera#Reh"),
    Entero<z, &Z::RMuroInteriorDUsoReh>("RMuroInteriorDUso#Reh"),
    Entero<z, &Z::RMuroInteriorMUsoReh>("RMuroInteriorMUso#Reh")};

}  // namespace

void LeerMuros(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes) {
  const XMLNode muros = novex.childNamed(kSeccion);
  LeerCampos<R>(muros, kColor, r, mensajes);
  r.construccion.MurosExt = LeerTipos(muros.childNamed(kGrupoExt), kExterior, r, 5, mensajes);
  r.construccion.MurosOtros = LeerTipos(muros.childNamed(kGrupoOtros), kOtro, r, 2, mensajes);
}

void EscribirMuros(XMLNode& novex, RegistrosCaso& r) {
  XMLNode muros = novex.appendChild(kSeccion);
  EscribirCampos<R>(muros, kColor, r);
  XMLNode color = muros.childAt(0);
  AnadirValor(color, "AbsortividadMurosExt",
              Fijo(static_cast<double>(Absortividad(r.construccion.NColorMurosExt)), 2));
  EscribirTipos(muros, kGrupoExt, "MuroExt", kExterior, r, 5);
  EscribirTipos(muros, kGrupoOtros, "Muro_otro", kOtro, r, 2);
}

void AnadirTablasMuros(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"", kColor, 1});
  tablas.push_back({"MuroExt", kExterior, 5});
  tablas.push_back({"Muro_otro", kOtro, 2});
}

}  // namespace novex
