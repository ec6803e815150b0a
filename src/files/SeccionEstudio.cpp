#include <algorithm>

#include "files/LimitesProyecto.h"
#include "files/SeccionesProyecto.h"

namespace novex {
namespace {

using M = MedidaEstudio;

constexpr std::string_view kSeccion = "EstudioModificaciones";
constexpr std::string_view kMedida = "Medida";
constexpr std::string_view kLinea = "Linea";
constexpr std::string_view kMedidasMejora = "MedidasMejora";
constexpr int kMayorCodigo = 999;
constexpr std::string_view kQueMedidas = "medidas en el estudio de mejoras";

constexpr std::array kCodigo = {Entero<&M::codigo>("codigo").Entre(0, kMayorCodigo)};
constexpr std::array kMarca = {Logico<&M::marca>("marca")};
constexpr std::array kCostes = {Texto<&M::precio>("precio"),
                                Texto<&M::amortizacion>("amortizacion")};

void LeerMedida(const XMLNode& nodo, M& medida, Mensajes& mensajes) {
  LeerCampos<M>(nodo, kCodigo, medida, mensajes);
  LeerCampos<M>(nodo, kMarca, medida, mensajes);
  LeerCampos<M>(nodo, kCostes, medida, mensajes);
  std::size_t i = 0;
  while (const XMLNode linea = nodo.childNamed(kLinea, &i)) {
    if (medida.notas.size() == kLineasMemo) break;
    medida.notas.emplace_back(linea.attributeValue(kAtributoValor).value_or(""));
  }
}

// Una medida está una vez en el estudio: de un código repetido vale la primera.
void Anadir(M medida, std::vector<M>& medidas) {
  const bool esta = std::any_of(medidas.begin(), medidas.end(),
                                [&](const M& otra) { return otra.codigo == medida.codigo; });
  if (!esta) medidas.push_back(std::move(medida));
}

// Los ficheros que no tienen el elemento propio del estudio llevan el coste y el plazo en atributos
// de las medidas del bloque de resultados.
void LeerMedidasMejora(const XMLNode& bloque, std::vector<M>& medidas, Mensajes& mensajes) {
  limiteProyecto::Comprobar(kQueMedidas, bloque.childCount(), limiteProyecto::kMedidas);
  for (std::size_t i = 0; i < bloque.childCount(); ++i) {
    const XMLNode nodo = bloque.childAt(i);
    const auto codigo = nodo.attributeValue(kAtributoValor);
    if (!codigo) continue;
    M medida;
    medida.codigo = camposFichero::LeerEntero(*codigo, kMedidasMejora, 0, kMayorCodigo, mensajes);
    LeerCampos<M>(nodo, kCostes, medida, mensajes, SiFalta::Vaciar, 0, Lugar::Atributos);
    if (medida.codigo > 0) Anadir(std::move(medida), medidas);
  }
}

}  // namespace

void LeerEstudio(const XMLNode& novex, RegistrosCaso& r, Mensajes& mensajes) {
  r.estudio.medidas.clear();
  const XMLNode propio = novex.childNamed(kSeccion);
  if (!propio) {
    LeerMedidasMejora(novex.childNamed(kMedidasMejora), r.estudio.medidas, mensajes);
    return;
  }
  std::size_t i = 0, leidas = 0;
  while (const XMLNode nodo = propio.childNamed(kMedida, &i)) {
    limiteProyecto::Comprobar(kQueMedidas, ++leidas, limiteProyecto::kMedidas);
    M medida;
    LeerMedida(nodo, medida, mensajes);
    Anadir(std::move(medida), r.estudio.medidas);
  }
}

void EscribirEstudio(XMLNode& novex, const RegistrosCaso& r) {
  if (r.estudio.medidas.empty()) return;
  XMLNode seccion = novex.appendChild(kSeccion);
  for (M medida : r.estudio.medidas) {
    XMLNode nodo = seccion.appendChild(kMedida);
    EscribirCampos<M>(nodo, kCodigo, medida);
    EscribirCampos<M>(nodo, kMarca, medida);
    EscribirCampos<M>(nodo, kCostes, medida);
    for (const std::string& linea : medida.notas) AnadirValor(nodo, kLinea, linea);
  }
}

}  // namespace novex
