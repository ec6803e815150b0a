#include "files/texto/EtiquetaTexto.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using Z = Recinto;
using K = Construccion;
using S = SueloTerreno;
using enum FamiliaTexto;
constexpr auto z = &R::recinto;
constexpr auto k = &R::construccion;

constexpr std::array<std::string_view, 3> kAislamientos = {"SinAislamiento", "Continuo",
                                                           "Periferico"};

// Una fila de un área o una longitud, que suma la de los demás recintos.
template <auto Miembro>
constexpr FilaTexto Area(std::string_view etiqueta, FamiliaTexto familia) {
  return Fila(Real<z, Miembro>(etiqueta, 0), familia).PorRecinto();
}
template <auto Miembro>
constexpr FilaTexto AreaPorSectores(std::string_view etiqueta, FamiliaTexto familia,
                                    std::size_t desde = norte) {
  return Fila(Real<z, Miembro>(etiqueta, 0).PorSectores(desde), familia).PorRecinto();
}

constexpr std::array kCubiertas = {
    Control("*[I] Numero total tipos Cubierta Hz.", PonerCuenta<&K::CubiertasHz, 3>),
    Control("*[I] Numero Cubierta Hz.", PasarAElemento<CubiertaHz, 3>),
    Control("*[I] Numero Recinto.", PasarARecinto),
    Area<&Z::Cubierta_horiz_sol_m2>("*[F] Cubierta horiz. sol m2.", CubiertaHz),
    Area<&Z::Cubierta_horiz_sombra_m2>("*[F] Cubierta horiz. sombra m2.", CubiertaHz),
    Fila(UDe<ranura::TechoExt1, ranura::TechoExt2, ranura::TechoExt3>(
             "*[F] U Cubierta horiz. sol W/m2K."),
         CubiertaHz),
    Control("*[I] Numero total tipos Cubierta Incl.", PonerCuenta<&K::CubiertasIncl, 3>),
    Control("*[I] Numero Cubierta Incl.", PasarAElemento<CubiertaIncl, 3>),
    AreaPorSectores<&Z::Cubierta_incl_m2>("*[F] Cubierta incl. @ m2.", CubiertaIncl),
    AreaPorSectores<&Z::Cubierta_incl_Sombra_m2>("*[F] Cubierta incl. @ Sombra m2.", CubiertaIncl),
    Fila(UDe<ranura::TechoInc1, ranura::TechoInc2, ranura::TechoInc3>(
             "*[F] U Cubierta incl. W/m2K."),
         CubiertaIncl),
    Control("*[I] Numero total tipos Otras Cubiertas.", PonerCuenta<&K::CubiertasOtras, 2>),
    Control("*[I] Numero Cubierta Otras.", PasarAElemento<CubiertaOtra, 2>),
    Area<&Z::Cubierta_techo_ventilado_m2>("*[F] Cubierta techo ventilado m2.", CubiertaOtra),
    Area<&Z::Cubierta_buhardilla_ext_m2>("*[F] Cubierta buhardilla/ext m2.", CubiertaOtra),
    Area<&Z::Cubierta_adiabatico_m2>("*[F] Cubierta adiabatico m2.", CubiertaOtra),
    Area<&Z::Cubierta_terreno_m2>("*[F] Cubierta terreno m2.", CubiertaOtra),
    Fila(UDe<ranura::TechoVent1, ranura::TechoVent3>("*[F] U Cubierta techo ventilado W/m2K."),
         CubiertaOtra),
    Fila(UDe<ranura::TechoVent2, ranura::TechoVent4>("*[F] U Cubierta buhardilla/ext W/m2K."),
         CubiertaOtra),
    Fila(UDe<ranura::TechoOtro1, ranura::TechoOtro2>("*[F] U Cubierta adiabatico W/m2K."),
         CubiertaOtra),
    Fila(UDe<ranura::TechoTerr1, ranura::TechoTerr2>("*[F] U Cubierta terreno W/m2K."),
         CubiertaOtra),
    Fila(UDe<ranura::TechoInt1, ranura::TechoInt2>("*[F] U Cubierta Particion Interna W/m2K."),
         CubiertaOtra),
    Fila(Posicion<k, &K::Renovacion_Buhardilla>(
             "*[S] Renovacion Buhardilla: renovh=0./renovh=05/renovh=1./renovh=5/renovh=10",
             kClasesRenovacion),
         CubiertaOtra)};

constexpr std::array kMuros = {
    Control("*[I] Numero total tipos Muros ext.", PonerCuenta<&K::MurosExt, 5>),
    Control("*[I] Numero Muros ext.", PasarAElemento<MuroExt, 5>),
    Control("*[I] Numero Recinto.", PasarARecinto),
    AreaPorSectores<&Z::Muro_ext_m2>("*[F] Muro ext. @ m2.", MuroExt),
    AreaPorSectores<&Z::Muro_ext_Var_m2>("*[F] Muro ext. Var @ m2.", MuroExt, oeste),
    Fila(UDe<ranura::MuroExt1, ranura::MuroExt2, ranura::MuroExt3, ranura::MuroExt4,
             ranura::MuroExt5>("*[F] U Muro ext. W/m2K."),
         MuroExt),
    Control("*[I] Numero total tipos Otros Muros.", PonerCuenta<&K::MurosOtros, 2>),
    Control("*[I] Numero Muros Otros.", PasarAElemento<MuroOtro, 2>),
    Area<&Z::Muro_otro_local_m2>("*[F] Muro otro local m2.", MuroOtro),
    Area<&Z::Muro_otro_local_ext_m2>("*[F] Muro otro local ext m2.", MuroOtro),
    Area<&Z::Muro_al_terreno_m2>("*[F] Muro al terreno m2.", MuroOtro),
    Area<&Z::Muro_adiabatico_m2>("*[F] Muro adiabatico m2.", MuroOtro),
    Fila(UDe<ranura::MuroOtro3, ranura::MuroOtro7>("*[F] U Muro otro local W/m2K."), MuroOtro),
    Fila(UDe<ranura::MuroExt6, ranura::MuroExt7>("*[F] U Muro otro local ext W/m2K."), MuroOtro),
    Fila(Posicion<k, &K::Renovacion_Otro_Local>(
             "*[S] Renovacion Otro Local: renovh=0./renovh=05/renovh=1./renovh=5/renovh=10",
             kClasesRenovacion),
         MuroOtro),
    Fila(Posicion<k, &K::Orientacion_Otro_Local>(
             "*[S] Orientacion Otro Local: Norte/Oeste/SurOeste/Sur/SurEste/Este.",
             kOrientacionesLocal),
         MuroOtro),
    Fila(UDe<ranura::MuroTerr1, ranura::MuroTerr2>("*[F] U Muro terreno W/m2K."), MuroOtro),
    Fila(Real<k, &K::Profundidad_muro_enterrado_m>("*[F] Profundidad muro enterrado m.", 0),
         MuroOtro),
    Fila(UDe<ranura::MuroOtro1, ranura::MuroOtro5>("*[F] U Muro adiabatico W/m2K."), MuroOtro),
    Fila(UDe<ranura::MuroOtro2, ranura::MuroOtro6>("*[F] U Muro interior W/m2K."), MuroOtro)};

constexpr std::array kSuelos = {
    Control("*[I] Numero total tipos Suelo Terrerreno.", PonerCuenta<&K::SuelosTerreno, 3>),
    Control("*[I] Numero Suelo Terreno.", PasarAElemento<FamiliaTexto::SueloTerreno, 3>),
    Control("*[I] Numero Recinto.", PasarARecinto),
    Area<&Z::Suelo_al_terreno_m2>("*[F] Suelo al terreno m2.", FamiliaTexto::SueloTerreno),
    Fila(Real<k, &K::suelosTerreno, &S::Profundidad_suelo_enterrado_m>(
             "*[F] Profundidad suelo enterrado m.", 0),
         FamiliaTexto::SueloTerreno),
    TextoDeLista<k, &K::suelosTerreno, &S::Tipo_aislamiento_suelo>(
        "*[S] Tipo aislamiento suelo: Continuo/Periferico.", kAislamientos,
        FamiliaTexto::SueloTerreno),
    Fila(Real<k, &K::suelosTerreno, &S::D_Longitud_aislamiento_m>("*[F] D Longitud aislamiento m.",
                                                                  0),
         FamiliaTexto::SueloTerreno),
    Fila(Real<k, &K::suelosTerreno, &S::Ra_Resitencia_aislante_m2K_W>(
             "*[F] Ra Resitencia aislante m2K/W.", 0),
         FamiliaTexto::SueloTerreno),
    Area<&Z::Perimetro_Ext_Suelo_Terreno_m>("*[F] Perimetro Ext. Suelo Terreno.",
                                            FamiliaTexto::SueloTerreno),
    Fila(UDe<ranura::SueloTerr1, ranura::SueloTerr2, ranura::SueloTerr3>(
             "*[F] U Suelo terreno W/m2K."),
         FamiliaTexto::SueloTerreno),
    Control("*[I] Numero total tipos Otros Suelos.", PonerCuenta<&K::SuelosOtros, 2>),
    Control("*[I] Numero Suelo Otros.", PasarAElemento<SueloOtro, 2>),
    Area<&Z::Suelo_ext_m2>("*[F] Suelo ext. m2.", SueloOtro),
    Area<&Z::Suelo_otro_local_m2>("*[F] Suelo otro local. m2.", SueloOtro),
    Area<&Z::Suelo_otro_local_ext_m2>("*[F] Suelo otro local/ext. m2.", SueloOtro),
    Area<&Z::Suelo_vacio_sanitario_m2>("*[F] Suelo vacio sanitario m2.", SueloOtro),
    Area<&Z::Suelo_adiabatico_m2>("*[F] Suelo adiabático m2.", SueloOtro),
    Area<&Z::Perimetro_Ext_Vacio_Sanitario_m>("*[F] Perimetro Ext. Vacio Sanitario m.", SueloOtro),
    Fila(UDe<ranura::SueloExt1, ranura::SueloExt2>("*[F] U Suelo ext. W/m2K."), SueloOtro),
    Fila(UDe<ranura::SueloVent1, ranura::SueloVent3>("*[F] U Suelo otro local W/m2K."), SueloOtro),
    Fila(UDe<ranura::MuroExt8, ranura::MuroExt9>("*[F] U Suelo otro local/ext W/m2K."), SueloOtro),
    Fila(UDe<ranura::SueloOtro1, ranura::SueloOtro3>("*[F] U Suelo vacio sanitario W/m2K."),
         SueloOtro),
    Fila(UDe<ranura::SueloOtro2, ranura::SueloOtro4>("*[F] U Suelo adiabatico W/m2K."), SueloOtro),
    Fila(UDe<ranura::SueloInt1, ranura::SueloInt2>("*[F] U Suelo partición interior W/m2K."),
         SueloOtro),
    Fila(Posicion<k, &K::Renovacion_Otro_Local_suelo>(
             "*[S] Renovacion Otro Local Suelo: renovh=0./renovh=05/renovh=1./renovh=5/renovh=10",
             kClasesRenovacion),
         SueloOtro)};

}  // namespace

std::span<const FilaTexto> FilasCubiertas() {
  return kCubiertas;
}

std::span<const FilaTexto> FilasMuros() {
  return kMuros;
}

std::span<const FilaTexto> FilasSuelos() {
  return kSuelos;
}

}  // namespace novex
