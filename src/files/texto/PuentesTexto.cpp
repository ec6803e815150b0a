#include "files/texto/EtiquetaTexto.h"
#include "model/ListasPuentes.h"

namespace novex {
namespace {

using R = RegistrosCaso;
using K = Construccion;
constexpr auto k = &R::construccion;

constexpr std::array<std::string_view, 2> kModosLongitud = {"Estimados", "Facilitados"};

template <Puente Cual>
void LeerU(EstadoTexto& e, const ValorTexto& valor) {
  e.r.construccion.U_L_Puentes[Cual] =
      camposFichero::LeerReal(valor.texto, valor.etiqueta, e.mensajes);
  e.dicho.conU.set(Cual);
}

template <Puente Cual>
void LeerFi(EstadoTexto& e, const ValorTexto& valor) {
  e.r.construccion.fi_Puentes[Cual] =
      camposFichero::LeerReal(valor.texto, valor.etiqueta, e.mensajes);
  e.dicho.conFi.set(Cual);
}

constexpr std::array kPuentesTexto = {
    Fila(Real<k, &K::Espesor_forjado>("*[F] Espesor forjado.", 0)),
    Fila(Real<k, &K::Anchura_pilar>("*[F] Anchura pilar.", 0)),
    Fila(Posicion<k, &K::Def_Puentes_termicos>(
        "*[S] Puentes termicos: No aislado/Aislado/Continuo/Dar valores/Lider.",
        listaPuentes::kDefinicion)),
    Fila(Posicion<k, &K::Def_Puentes_termicos_pilares>(
        "*[S] Puentes termicos pilares: Pilares no aislados/Pilares aislados ext/Pilares aislados "
        "int/Sin pilares.",
        listaPuentes::kPilares)),
    Fila(Posicion<k, &K::Existencia_pilares>("*[S] Existencia pilares: Con pilares/Sin pilares.",
                                             listaPuentes::kExistencia)),
    Fila(Posicion<k, &K::Def_Puentes_termicos_ventanas>(
        "*[S] Puentes termicos ventanas: Sin aislamiento/Aislamiento en contacto "
        "marco/Aislamiento sin contacto marco.",
        listaPuentes::kVentanas)),
    Accion("*[F] U/L Puentes forjados.", LeerU<puente_forjados>),
    Accion("*[F] U/L Puentes cubiertas.", LeerU<puente_cubiertas>),
    Accion("*[F] U/L Puentes suelo exterior.", LeerU<puente_suelo_exterior>),
    Accion("*[F] U/L Puentes esquina saliente.", LeerU<puente_esquina_saliente>),
    Accion("*[F] U/L Puentes ventanas.", LeerU<puente_ventanas>),
    Accion("*[F] U/L Puentes pilares.", LeerU<puente_pilares>),
    Accion("*[F] U/L Puentes suelo terreno.", LeerU<puente_suelo_terreno>),
    Accion("*[F] fi Puentes forjados.", LeerFi<puente_forjados>),
    Accion("*[F] fi Puentes cubiertas.", LeerFi<puente_cubiertas>),
    Accion("*[F] fi Puentes suelo exterior.", LeerFi<puente_suelo_exterior>),
    Accion("*[F] fi Puentes esquina saliente.", LeerFi<puente_esquina_saliente>),
    Accion("*[F] fi Puentes ventanas.", LeerFi<puente_ventanas>),
    Accion("*[F] fi Puentes pilares.", LeerFi<puente_pilares>),
    Accion("*[F] fi Puentes suelo terreno.", LeerFi<puente_suelo_terreno>),
    Fila(Entero<k, &K::Clase_de_higrometria>("*[I] Clase de higrometria: 3/4/5.").Entre(0, 5)),
    TextoDeLista<k, &K::Longitud_puentes_termicos_modo>(
        "*[S] Longitud pilares modo: Estimados/Facilitados.", kModosLongitud),
    Fila(RealEn<norte, k, &K::Long_pilares>("*[F] Longitud pilares N.", 0)),
    Fila(RealEn<oeste, k, &K::Long_pilares>("*[F] Longitud pilares O.", 0)),
    Fila(RealEn<sur_oeste, k, &K::Long_pilares>("*[F] Longitud pilares SO.", 0)),
    Fila(RealEn<sur, k, &K::Long_pilares>("*[F] Longitud pilares S.", 0)),
    Fila(RealEn<sur_este, k, &K::Long_pilares>("*[F] Longitud pilares SE.", 0)),
    Fila(RealEn<este, k, &K::Long_pilares>("*[F] Longitud pilares E.", 0))};

}  // namespace

std::span<const FilaTexto> FilasPuentes() {
  return kPuentesTexto;
}

}  // namespace novex
