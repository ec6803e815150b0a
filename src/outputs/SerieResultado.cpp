#include "outputs/SerieResultado.h"

#include <algorithm>

#include "base/Parecidos.h"
#include "outputs/LectoresVariables.h"
#include "outputs/VariablesFijas.h"
#include "outputs/VariablesSistema.h"

namespace novex {
namespace {

constexpr int kHorasDia = 24;

std::vector<float> Valores8760(const NodoVariable& nodo, const ContextoVariables& contexto) {
  for (const VariableFija& v : VariablesFijas())
    if (v.codigo == nodo.codigo && v.leer != nullptr) return v.leer(contexto);
  const SerieHoraria* serie = contexto.Atributo(nodo.etiqueta);
  if (serie == nullptr) return std::vector<float>(kHorasAno);
  return lectores::Escalada(*serie, FactorDeSistema(nodo));
}

}  // namespace

std::string NoHayVariable(std::string_view codigo, const std::vector<std::string>& parecidos) {
  return "No hay ninguna variable con el código \"" + std::string(codigo) + "\"" +
         FraseParecidos(parecidos);
}

SerieBuscada SerieDeVariable(const Edificio& edificio, const calculo& caso,
                             std::string_view codigo) {
  const std::vector<NodoVariable> nodos = ArbolVariables(edificio, caso);
  const auto nodo = std::find_if(nodos.begin(), nodos.end(),
                                 [&](const NodoVariable& n) { return n.codigo == codigo; });
  if (nodo == nodos.end()) {
    std::vector<std::string> codigos;
    for (const NodoVariable& n : nodos) codigos.push_back(n.codigo);
    return {std::nullopt, MasParecidos(codigo, codigos)};
  }
  const ContextoVariables contexto(edificio, caso);
  return {SerieMostrada{nodo->texto, Serie{nodo->codigo, nodo->unidad, nodo->clase,
                                           Valores8760(*nodo, contexto)}},
          {}};
}

ConAviso<Grafico> GraficoPeriodo(const SerieMostrada& s, const PeriodoSerie& periodo) {
  const auto horas = HorasDelPeriodo(periodo);
  if (!horas.valor) return {std::nullopt, horas.aviso};
  Grafico g;
  g.titulo = RotuloPeriodo(periodo) + s.texto;
  g.forma = Grafico::Forma::Lineas;
  g.ejeX = "Hora";
  g.ejeY = s.serie.unidad;
  SerieGrafico linea{s.texto, {}};
  for (int h = horas.valor->primera; h <= horas.valor->ultima; ++h) {
    g.x.push_back(h);
    linea.valores.push_back(
        static_cast<double>(s.serie.valores.at(static_cast<std::size_t>(h - 1))));
  }
  g.series.push_back(std::move(linea));
  return {std::move(g), {}};
}

ConAviso<SuperficieSerie> SuperficiePeriodo(const SerieMostrada& s, const PeriodoSerie& periodo) {
  const auto horas = HorasDelPeriodo(periodo);
  if (!horas.valor) return {std::nullopt, horas.aviso};
  if (const auto aviso = AvisoTresDimensiones(periodo)) return {std::nullopt, *aviso};
  SuperficieSerie superficie;
  superficie.titulo = RotuloPeriodo(periodo) + s.texto;
  superficie.unidad = s.serie.unidad;
  for (int h = horas.valor->primera; h <= horas.valor->ultima; h += kHorasDia) {
    const auto dia = s.serie.valores.begin() + (h - 1);
    superficie.dias.push_back(DiaDelAno(h));
    superficie.valores.emplace_back(dia, dia + kHorasDia);
  }
  return {std::move(superficie), {}};
}

}  // namespace novex
