#include "demand/calculo.h"

namespace novex {

bool calculo::Calculado() const {
  const float demanda =
      resultados.demandaCalefaccion + resultados.demandaRefrigeracion + resultados.demandaACS;
  return resultados.calificado && resultados.total[kEmisiones] != 0.0F && demanda != 0.0F;
}

void calculo::VaciarResultados() {
  const ResultadosCaso previos = resultados;
  resultados = ResultadosCaso{};
  // Lo que la preparación ya ha dejado escrito no es un resultado del año.
  resultados.forzados = previos.forzados;
  resultados.factores = previos.factores;
  resultados.defecto = previos.defecto;
  resultados.escala = previos.escala;
  resultados.limites = previos.limites;
  resultados.escala.letra = {};
  zona = SeriesZona{};
  sistemas = SeriesSistemas{};
  atributos.clear();
  sumasBloques.clear();
  meses = TablasMensuales{};
  valores.clear();
}

}  // namespace novex
