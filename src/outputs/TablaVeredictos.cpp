#include "outputs/TablaVeredictos.h"

#include <nlohmann/json.hpp>

namespace novex {
namespace {

using Json = nlohmann::ordered_json;

// Los decimales con que un valor que no cumple se distingue de su límite.
int Decimales(const Veredicto& v) {
  constexpr int kCorrientes = 2, kMaximos = 6;
  if (!v.valor || !v.limite) return kCorrientes;
  int decimales = kCorrientes;
  while (decimales < kMaximos && *v.valor != *v.limite &&
         Fijo(*v.valor, decimales) == Fijo(*v.limite, decimales))
    ++decimales;
  return v.pasa ? kCorrientes : decimales;
}

Celda Cifra(const std::optional<double>& valor, int decimales) {
  return valor ? Celda::Numero(*valor, decimales) : Celda();
}

Json Numero(const std::optional<double>& valor) {
  return valor ? Json(*valor) : Json(nullptr);
}

}  // namespace

std::vector<Tabla> TablasVeredictos(const std::vector<Veredicto>& veredictos) {
  std::vector<Tabla> tablas;
  for (const Veredicto& v : veredictos) {
    if (tablas.empty() || tablas.back().titulo != v.seccion) {
      Tabla tabla;
      tabla.titulo = v.seccion;
      tabla.cabeceras = {"Requisito", "Valor", "Límite", "Unidad", "Veredicto", "Nota"};
      tablas.push_back(std::move(tabla));
    }
    const int decimales = Decimales(v);
    tablas.back().filas.push_back({v.requisito, Cifra(v.valor, decimales),
                                   Cifra(v.limite, decimales), v.unidad, v.veredicto, v.nota});
  }
  return tablas;
}

std::string JsonVeredictos(const std::string& proyecto, const std::vector<CasoVerificado>& casos) {
  Json documento;
  documento["proyecto"] = proyecto;
  documento["casos"] = Json::array();
  for (const CasoVerificado& caso : casos) {
    Json lista = Json::array();
    for (const Veredicto& v : caso.verificacion.veredictos)
      lista.push_back(Json{{"seccion", v.seccion},
                           {"requisito", v.requisito},
                           {"valor", Numero(v.valor)},
                           {"limite", Numero(v.limite)},
                           {"unidad", v.unidad},
                           {"veredicto", v.veredicto},
                           {"nota", v.nota},
                           {"aplica", v.aplica},
                           {"pasa", v.pasa}});
    documento["casos"].push_back(Json{{"caso", caso.nombre},
                                      {"cumple", caso.verificacion.Cumple()},
                                      {"veredictos", std::move(lista)}});
  }
  return documento.dump(1, ' ', false, Json::error_handler_t::replace) + "\n";
}

}  // namespace novex
