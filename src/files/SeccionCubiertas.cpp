#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using Z = Recinto;
using K = Construccion;
constexpr auto z = &R::recinto;
constexpr auto k = &R::construccion;

constexpr std::string_view kSeccion = "Cubiertas";
constexpr std::string_view kGrupoHz = "CubiertasHz";
constexpr std::string_view kGrupoIncl = "CubiertasIncl";
constexpr std::string_view kGrupoOtras = "CubiertasOtras";

constexpr std::array kColor = {Entero<k, &K::NColorCubiertasExt>("NColorCubiertasExt")};

constexpr std::array kHorizontal = {
    Real<z, &Z::Cubierta_horiz_sol_m2>("Cubierta_horiz_sol_m2", 1),
    Real<z, &Z::Cubierta_horiz_sombra_m2>("Cubierta_horiz_sombra_m2", 1),
    UDe<ranura::TechoExt1, ranura::TechoExt2, ranura::TechoExt3>("U_Cubierta_horiz_sol_W_m2K"),
    UcteDe<ranura::TechoExt1, ranura::TechoExt2, ranura::TechoExt3>(
        "UCTE_Cubierta_horiz_sol_W_m2K"),
    Entero<z, &Z::RCubiertaExtReh>("RCubiertaExt#Reh")};

// Los ficheros de los primeros programas ponían en la cubierta la marca de los muros.
constexpr std::array kHorizontalAntigua = {Entero<z, &Z::RCubiertaExtReh>("RMuroExt#")};

constexpr std::array kInclinada = {
    Real<z, &Z::Cubierta_incl_m2>("Cubierta_incl_*_m2", 1).PorSectores(),
    Real<z, &Z::Cubierta_incl_Sombra_m2>("Cubierta_incl_*_Sombra_m2", 1).PorSectores(),
    UDe<ranura::TechoInc1, ranura::TechoInc2, ranura::TechoInc3>("U_Cubierta_incl_W_m2K"),
    UcteDe<ranura::TechoInc1, ranura::TechoInc2, ranura::TechoInc3>("UCTE_Cubierta_incl_W_m2K"),
    Entero<z, &Z::RCubiertaExtIncReh>("RCubiertaExtInc#Reh")};

constexpr std::array kOtra = {
    Real<z, &Z::Cubierta_techo_ventilado_m2>("Cubierta_techo_ventilado_m2", 1),
    Real<z, &Z::Cubierta_buhardilla_ext_m2>("Cubierta_buhardilla_ext_m2", 1),
    Real<z, &Z::Cubierta_adiabatico_m2>("Cubierta_adiabatico_m2", 1),
    Real<z, &Z::Cubierta_terreno_m2>("Cubierta_terreno_m2", 1),
    UDe<ranura::TechoVent1, ranura::TechoVent3>("U_Cubierta_techo_ventilado_W_m2K"),
    UDe<ranura::TechoVent2, ranura::TechoVent4>("U_Cubierta_buhardilla_ext_W_m2K"),
    UcteDe<ranura::TechoVent2, ranura::TechoVent4>("UCTE_Cubierta_buhardilla_ext_W_m2K"),
    Posicion<k, &K::Renovacion_Buhardilla>("Renovacion_Buhardilla", kClasesRenovacion),
    UDe<ranura::TechoOtro1, ranura::TechoOtro2>("U_Cubierta_adiabatico_W_m2K"),
    UcteDe<ranura::TechoOtro1, ranura::TechoOtro2>("UCTE_Cubierta_adiabatico_W_m2K"),
    UDe<ranura::TechoTerr1, ranura::TechoTerr2>("U_Cubierta_terreno_W_m2K"),
    UDe<ranura::TechoInt1, ranura::TechoInt2>("U_Cubierta_Particion_Interna_W_m2K"),
    UcteDe<ranura::TechoInt1, ranura::TechoInt2>("UCTE_Cubierta_Particion_Interna_W_m2K"),
    UDe<ranura::TechoInt3, ranura::TechoInt4>("U_Cubierta_Particion_InternaD_W_m2K"),
    UcteDe<ranura::TechoInt3, ranura::TechoInt4>("UCTE_Cubierta_Particion_InternaD_W_m2K"),
    Entero<z, &Z::RCubiertaOLocalReh>("RCubiertaOLocal#Reh"),
    Entero<z, &Z::RCubiertaTerrenoReh>("RCubiertaTerreno#Reh"),
    Entero<z, &Z::RCubiertaDUsoMedianeraReh>("RCubiertaDUsoMedianera#Reh"),
    Entero<z, &Z::RCubiertaInteriorMUsoReh>("RCubiertaInteriorMUso#Reh"),
    Entero<z, &Z::RCubiertaInteriorDUsoReh>("RCubiertaInteriorDUso#Reh")};

}  // namespace

void LeerCubiertas(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes) {
  const XMLNode cubiertas = novex.childNamed(kSeccion);
  LeerCampos<R>(cubiertas, kColor, r, mensajes);
  const XMLNode horizontales = cubiertas.childNamed(kGrupoHz);
  LeerTipos(horizontales, kHorizontalAntigua, r, 3, mensajes);
  r.construccion.CubiertasHz = LeerTipos(horizontales, kHorizontal, r, 3, mensajes);
  r.construccion.CubiertasIncl =
      LeerTipos(cubiertas.childNamed(kGrupoIncl), kInclinada, r, 3, mensajes);
  r.construccion.CubiertasOtras =
      LeerTipos(cubiertas.childNamed(kGrupoOtras), kOtra, r, 2, mensajes);
}

void EscribirCubiertas(XMLNode& novex, RegistrosCaso& r) {
  XMLNode cubiertas = novex.appendChild(kSeccion);
  EscribirCampos<R>(cubiertas, kColor, r);
  XMLNode color = cubiertas.childAt(0);
  AnadirValor(color, "AbsortividadCubiertasExt",
              Fijo(static_cast<double>(Absortividad(r.construccion.NColorCubiertasExt)), 2));
  EscribirTipos(cubiertas, kGrupoHz, "CubiertaHz", kHorizontal, r, 3);
  EscribirTipos(cubiertas, kGrupoIncl, "CubiertaIncl", kInclinada, r, 3);
  EscribirTipos(cubiertas, kGrupoOtras, "CubiertaOtras", kOtra, r, 2);
}

void AnadirTablasCubiertas(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"", kColor, 1});
  tablas.push_back({"CubiertaHz", kHorizontal, 3});
  tablas.push_back({"CubiertaIncl", kInclinada, 3});
  tablas.push_back({"CubiertaOtras", kOtra, 2});
}

}  // namespace novex
