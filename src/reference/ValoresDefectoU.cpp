#include "reference/ValoresDefectoU.h"

#include <initializer_list>

#include "model/CatalogoCampos.h"

namespace novex {
namespace {

struct CampoU {
  std::string_view atributo;
  float ValoresDefectoU::*valor;
  std::string_view clave;
  std::initializer_list<ranura::Ranura> ranuras;
};

using V = ValoresDefectoU;

// Cada transmitancia con su comprobación y las posiciones que la reciben.
const std::array<CampoU, 12>& Campos() {
  static const std::array<CampoU, 12> campos = {
      {{"murosext", &V::murosext, "CoefU", {ranura::MuroExt1}},
       {"murosl_ln", &V::murosl_ln, "CoefU", {ranura::MuroOtro1, ranura::MuroOtro3}},
       {"murosln_ext", &V::murosln_ext, "CoefU", {ranura::MuroExt6}},
       {"cubext", &V::cubext, "CoefU", {ranura::TechoExt1}},
       {"cubl_ln", &V::cubl_ln, "CoefU", {ranura::TechoVent1, ranura::TechoOtro1}},
       {"cubln_ext", &V::cubln_ext, "CoefU", {ranura::TechoVent2}},
       {"suelot", &V::suelot, "CoefU", {ranura::SueloTerr1}},
       {"sueloext", &V::sueloext, "CoefU", {}},
       {"suelovs", &V::suelovs, "CoefU", {ranura::SueloOtro1}},
       {"suelol_ln", &V::suelol_ln, "CoefU", {ranura::SueloVent1, ranura::SueloOtro2}},
       {"sueloln_ext", &V::sueloln_ext, "CoefU", {ranura::MuroExt8}},
       {"hueco", &V::hueco, "CoefUH", {}}}};
  return campos;
}

}  // namespace

std::string_view LetraZona(std::string_view zona) {
  for (const std::string_view letra : {"alfa", "A", "B", "C", "D", "E"})
    if (zona.starts_with(letra)) return letra;
  return {};
}

ValoresDefectoU LeerValoresDefectoU(const XMLNode& raiz, std::string_view periodo,
                                    std::string_view letra, Mensajes& mensajes) {
  const XMLNode fila = raiz.childNamed(periodo).childNamed(letra);
  ValoresDefectoU valores;
  for (const CampoU& campo : Campos())
    valores.*campo.valor =
        ComprobarValor(fila.attributeValue(campo.atributo).value_or(""), campo.clave, mensajes);
  return valores;
}

void PonerValoresDefectoU(const ValoresDefectoU& valores, Edificio& edificio) {
  for (const CampoU& campo : Campos())
    for (const std::size_t ranura : campo.ranuras) {
      edificio.LimpiarComposicion(ranura);
      edificio.GetComposicion(ranura).U = valores.*campo.valor;
    }
}

}  // namespace novex
