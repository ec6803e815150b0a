#include "outputs/ExportacionSeries.h"

namespace novex {
namespace {

constexpr int kDecimales = 3;

Celda Entero(int valor) {
  return Celda::Numero(valor, 0);
}

double Valor(const SerieMostrada& s, int h) {
  return static_cast<double>(s.serie.valores.at(static_cast<std::size_t>(h - 1)));
}

std::vector<Celda> FilaHora(std::span<const SerieMostrada> series, const ColumnasTiempo& c, int h,
                            int cuenta) {
  std::vector<Celda> fila;
  fila.reserve(series.size() + 4);
  if (c.conta) fila.push_back(Entero(cuenta));
  if (c.hora) fila.push_back(Entero(HoraDelDia(h)));
  if (c.dia) fila.push_back(Entero(DiaDelMes(h)));
  if (c.mes) fila.push_back(Entero(HoraDelMes(h)));
  for (const SerieMostrada& s : series) fila.push_back(Celda::Numero(Valor(s, h), kDecimales));
  return fila;
}

// Las series de un eje con la unidad de la primera. El periodo existe.
Grafico Eje(const Edificio& edificio, const calculo& caso,
            const std::array<std::string, kSeriesPorEje>& codigos, const PeriodoSerie& periodo,
            std::vector<Mensaje>& avisos) {
  // Sin ninguna serie tiene también las horas y el rótulo.
  Grafico eje = *GraficoPeriodo({{}, {{}, {}, {}, std::vector<float>(kHorasAno)}}, periodo).valor;
  eje.series.clear();
  bool hay = false;
  bool avisado = false;
  for (const std::string& codigo : codigos) {
    if (codigo.empty() || codigo == kNinguno) continue;
    const SerieBuscada buscada = SerieDeVariable(edificio, caso, codigo);
    if (!buscada.serie) {
      avisos.push_back({"AVISO", NoHayVariable(codigo, buscada.parecidos)});
      continue;
    }
    if (hay && buscada.serie->serie.unidad != eje.ejeY) {
      if (!avisado)
        avisos.push_back(
            {"AVISO", "En cada eje solo se representan variables con las mismas unidades"});
      avisado = true;
      continue;
    }
    Grafico uno = *GraficoPeriodo(*buscada.serie, periodo).valor;
    hay = true;
    eje.ejeY = uno.ejeY;
    eje.series.push_back(std::move(uno.series.front()));
  }
  return eje;
}

}  // namespace

ConAviso<Tabla> TablaNumerica(std::span<const SerieMostrada> series, const PeriodoSerie& periodo,
                              const ColumnasTiempo& columnas) {
  if (series.size() > kMaximoSeries)
    return {std::nullopt,
            {"AVISO", "En la tabla caben " + std::to_string(kMaximoSeries) + " variables"}};
  const auto horas = HorasDelPeriodo(periodo);
  if (!horas.valor) return {std::nullopt, horas.aviso};
  Tabla tabla;
  tabla.titulo = RotuloPeriodo(periodo);
  if (columnas.conta) tabla.cabeceras.push_back("Conta");
  if (columnas.hora) tabla.cabeceras.push_back("hora");
  if (columnas.dia) tabla.cabeceras.push_back("día");
  if (columnas.mes) tabla.cabeceras.push_back("mes");
  for (const SerieMostrada& s : series) tabla.cabeceras.push_back(s.texto);
  tabla.filas.reserve(static_cast<std::size_t>(horas.valor->Cuantas()));
  for (int h = horas.valor->primera; h <= horas.valor->ultima; ++h)
    tabla.filas.push_back(FilaHora(series, columnas, h, h - horas.valor->primera + 1));
  return {std::move(tabla), {}};
}

ConAviso<Grafico> GraficoXY(const SerieMostrada& x, const SerieMostrada& y,
                            const PeriodoSerie& periodo) {
  auto resultado = GraficoPeriodo(y, periodo);
  if (!resultado.valor) return resultado;
  Grafico& g = *resultado.valor;
  g.forma = Grafico::Forma::Puntos;
  // En el horizontal estaban las horas.
  for (double& hora : g.x) hora = Valor(x, static_cast<int>(hora));
  g.titulo = RotuloPeriodo(periodo) + y.texto + " / " + x.texto;
  g.ejeX = x.texto;
  g.ejeY = y.texto;
  return resultado;
}

ConAviso<GraficoDosEjes> GraficoMas(const Edificio& edificio, const calculo& caso,
                                    const SeleccionEjes& seleccion, const PeriodoSerie& periodo) {
  const auto horas = HorasDelPeriodo(periodo);
  if (!horas.valor) return {std::nullopt, horas.aviso};
  GraficoDosEjes g;
  g.izquierda = Eje(edificio, caso, seleccion.izquierda, periodo, g.avisos);
  g.derecha = Eje(edificio, caso, seleccion.derecha, periodo, g.avisos);
  return {std::move(g), {}};
}

}  // namespace novex
