#include "files/SeccionesProyecto.h"
#include "model/ListasPuentes.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using K = Construccion;
constexpr auto k = &R::construccion;

constexpr std::string_view kSeccion = "Puentes_Termicos";

using namespace listaPuentes;

constexpr std::array kCamposPuentes = {
    Real<k, &K::Espesor_forjado>("Espesor_forjado", 2),
    Real<k, &K::Anchura_pilar>("Anchura_pilar", 2),
    Posicion<k, &K::Def_Puentes_termicos>("Def_Puentes_termicos", kDefinicion),
    Posicion<k, &K::Def_Puentes_termicos_pilares>("Def_Puentes_termicos_pilares", kPilares),
    Posicion<k, &K::Existencia_pilares>("Existencia_pilares", kExistencia),
    Posicion<k, &K::Def_Puentes_termicos_ventanas>("Def_Puentes_termicos_ventanas", kVentanas),
    RealEn<puente_forjados, k, &K::U_L_Puentes>("U_L_Puentes_forjados", 2),
    RealEn<puente_cubiertas, k, &K::U_L_Puentes>("U_L_Puentes_cubiertas", 2),
    RealEn<puente_suelo_exterior, k, &K::U_L_Puentes>("U_L_Puentes_suelo_exterior", 2),
    RealEn<puente_esquina_saliente, k, &K::U_L_Puentes>("U_L_Puentes_esquina_saliente", 2),
    RealEn<puente_ventanas, k, &K::U_L_Puentes>("U_L_Puentes_ventanas", 2),
    RealEn<puente_pilares, k, &K::U_L_Puentes>("U_L_Puentes_pilares", 2),
    RealEn<puente_suelo_terreno, k, &K::U_L_Puentes>("U_L_Puentes_suelo_terreno", 2),
    RealEn<puente_forjados, k, &K::fi_Puentes>("fi_Puentes_forjados", 2),
    RealEn<puente_cubiertas, k, &K::fi_Puentes>("fi_Puentes_cubiertas", 2),
    RealEn<puente_suelo_exterior, k, &K::fi_Puentes>("fi_Puentes_suelo_exterior", 2),
    RealEn<puente_esquina_saliente, k, &K::fi_Puentes>("fi_Puentes_esquina_saliente", 2),
    RealEn<puente_ventanas, k, &K::fi_Puentes>("fi_Puentes_ventanas", 2),
    RealEn<puente_pilares, k, &K::fi_Puentes>("fi_Puentes_pilares", 2),
    RealEn<puente_suelo_terreno, k, &K::fi_Puentes>("fi_Puentes_suelo_terreno", 2),
    Entero<k, &K::Clase_de_higrometria>("Clase_de_higrometria"),
    Texto<k, &K::Longitud_puentes_termicos_modo>("Longitud_puentes_termicos_modo"),
    RealEn<norte, k, &K::Long_pilares>("Long_pilares_Norte", 2),
    RealEn<oeste, k, &K::Long_pilares>("Long_pilares_Oeste", 2),
    RealEn<sur_oeste, k, &K::Long_pilares>("Long_pilares_SurOeste", 2),
    RealEn<sur, k, &K::Long_pilares>("Long_pilares_Sur", 2),
    RealEn<sur_este, k, &K::Long_pilares>("Long_pilares_SurEste", 2),
    RealEn<este, k, &K::Long_pilares>("Long_pilares_Este", 2),
    Real<k, &K::Perimetro_forjados>("Perimetro_forjados", 2),
    Real<k, &K::Perimetro_cubiertas>("Perimetro_cubiertas", 2),
    Real<k, &K::Longitud_esquinas_sal_menos_ent>("Longitud_esquinas_sal_menos_ent", 2),
    Real<k, &K::Perimetro_suelo_ext>("Perimetro_suelo_ext", 2),
    Real<k, &K::Perimetro_huecos>("Perimetro_huecos", 2),
    Real<k, &K::Perimetro_suelo_terreno>("Perimetro_suelo_terreno", 2)};

}  // namespace

void LeerPuentes(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes) {
  LeerCampos<R>(novex.childNamed(kSeccion), kCamposPuentes, r, mensajes, r.siFalta);
}

void EscribirPuentes(XMLNode& novex, RegistrosCaso& r) {
  XMLNode puentes = novex.appendChild(kSeccion);
  EscribirCampos<R>(puentes, kCamposPuentes, r);
}

void AnadirTablasPuentes(std::vector<TablaCampos>& tablas) {
  tablas.push_back({"", kCamposPuentes, 1});
}

}  // namespace novex
