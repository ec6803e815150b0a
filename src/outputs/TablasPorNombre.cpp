#include "outputs/TablasPorNombre.h"

#include <algorithm>
#include <functional>

#include "outputs/AnalisisTecnico.h"
#include "outputs/ArbolVariables.h"
#include "outputs/ComparacionCasos.h"
#include "outputs/DetalleResultados.h"
#include "outputs/ReglasResultados.h"
#include "outputs/TablaObjetoReferencia.h"
#include "outputs/TablaResultados.h"
#include "outputs/TablasMensualesResultados.h"

namespace novex {
namespace {

using Tablas = std::vector<Tabla>;

constexpr std::string_view kNombreCasos = "casos";
constexpr std::string_view kNombreComparacion = "comparacion-";

struct Pedido {
  const CasoCalculado& caso;
  const std::vector<CasoCalculado>& todos;
};

struct TablaNombrada {
  std::string nombre;
  std::function<Tablas(const Pedido&)> hacer;
};

constexpr std::array<const char*, kUnidadesEnergia> kUnidad = {"final", "primaria", "no-renovable",
                                                               "renovable", "emisiones"};
constexpr std::array<const char*, 5> kSalida = {"demanda", "emisiones", "primaria", "renovable",
                                                "no-renovable"};
constexpr std::array<const char*, 5> kAnalisis = {"", "-elementos", "-opacos", "-huecos",
                                                  "-orientaciones"};

Tablas ObjetoReferencia(const Pedido& p, UnidadesReferencia unidades) {
  const auto tabla = TablaObjetoReferencia(p.caso, unidades);
  return tabla ? Tablas{*tabla} : Tablas{};
}

Tablas Variables(const Pedido& p) {
  Tabla tabla;
  tabla.titulo = "Variables horarias del caso";
  tabla.cabeceras = {"Código", "Grupo", "Variable"};
  for (const NodoVariable& n : ArbolVariables(*p.caso.edificio, *p.caso.resultado))
    tabla.filas.push_back({n.codigo, n.grupo, n.texto});
  return {std::move(tabla)};
}

Tablas Comparacion(const Pedido& p, UnidadEnergia unidad, TipoValor tipo) {
  Tablas tablas;
  for (const GraficoComparacion& g : CompararCasos(p.todos, unidad, tipo))
    tablas.push_back(TablaDeGrafico(g.grafico, g.LineaLetras()));
  return tablas;
}

Tablas Detalle(const Pedido& p, const SeleccionDetalle& seleccion) {
  Tablas tablas;
  for (const GraficoDetalle& g : PaginaDetalle(p.caso, seleccion))
    tablas.push_back(TablaDeGrafico(g.grafico, g.rotulo));
  return tablas;
}

void AnadirComparaciones(std::vector<TablaNombrada>& lista) {
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    for (const TipoValor tipo : {TipoValor::Absoluto, TipoValor::Ahorro})
      lista.push_back({std::string(kNombreComparacion) + kUnidad[u] +
                           (tipo == TipoValor::Ahorro ? "-ahorro" : ""),
                       [u, tipo](const Pedido& p) {
                         return Comparacion(p, static_cast<UnidadEnergia>(u), tipo);
                       }});
}

// Sin análisis, los totales por servicio; con él, calefacción y refrigeración por separado.
void AnadirDetalles(std::vector<TablaNombrada>& lista) {
  for (std::size_t s = 0; s < kSalida.size(); ++s)
    for (std::size_t a = 0; a < kAnalisis.size(); ++a) {
      const SeleccionDetalle seleccion{
          static_cast<SalidaDetalle>(s),
          a == 0 ? ServiciosDetalle::Totales : ServiciosDetalle::CadaUno,
          static_cast<AnalisisDetalle>(a)};
      lista.push_back({std::string("detalle-") + kSalida[s] + kAnalisis[a],
                       [seleccion](const Pedido& p) { return Detalle(p, seleccion); }});
    }
  lista.push_back({"detalle-vectores", [](const Pedido& p) {
                     return Detalle(p, {SalidaDetalle::Vectores, {}, {}});
                   }});
}

const std::vector<TablaNombrada>& ListaTablas() {
  static const std::vector<TablaNombrada> lista = [] {
    std::vector<TablaNombrada> l = {
        {"edificio",
         [](const Pedido& p) { return Tablas{TablaEdificio(p.caso.nombre, *p.caso.edificio)}; }},
        {"servicios", [](const Pedido& p) { return Tablas{TablaServicios(p.caso)}; }},
        {"calificacion",
         [](const Pedido& p) { return TablasCalificacion(p.caso, EscalaHoja::Entera); }},
        {"vectores", [](const Pedido& p) { return Tablas{TablaVectores(p.caso)}; }},
        {"referencia",
         [](const Pedido& p) { return ObjetoReferencia(p, UnidadesReferencia::Totales); }},
        {"referencia-m2",
         [](const Pedido& p) { return ObjetoReferencia(p, UnidadesReferencia::PorM2); }},
        {std::string(kNombreCasos),
         [](const Pedido& p) {
           const auto tablas = TablasAnalisisTecnico(p.todos);
           return Tablas(tablas.begin(), tablas.end());
         }},
        {"variables", Variables}};
    AnadirComparaciones(l);
    AnadirDetalles(l);
    return l;
  }();
  return lista;
}

}  // namespace

Tabla TablaDeGrafico(const Grafico& grafico, std::string nota) {
  Tabla tabla;
  tabla.titulo = grafico.titulo;
  tabla.cabeceras = {grafico.ejeY};
  for (const SerieGrafico& serie : grafico.series) tabla.cabeceras.push_back(serie.nombre);
  for (std::size_t i = 0; i < grafico.posiciones.size(); ++i) {
    std::vector<Celda> fila = {grafico.posiciones[i]};
    for (const SerieGrafico& serie : grafico.series)
      fila.push_back(i < serie.valores.size() ? CeldaResultado(serie.valores[i]) : Celda());
    tabla.filas.push_back(std::move(fila));
  }
  if (!nota.empty()) tabla.notas.push_back(std::move(nota));
  return tabla;
}

bool ComparaCasos(std::string_view nombre) {
  return nombre == kNombreCasos || nombre.starts_with(kNombreComparacion);
}

std::vector<std::string> NombresTablas(const Edificio& edificio) {
  std::vector<std::string> nombres;
  for (const TablaNombrada& t : ListaTablas()) nombres.push_back(t.nombre);
  for (std::string& nombre : NombresRejillas(edificio)) nombres.push_back(std::move(nombre));
  return nombres;
}

std::optional<std::vector<Tabla>> TablasDeNombre(const CasoCalculado& caso,
                                                 const std::vector<CasoCalculado>& todos,
                                                 std::string_view nombre) {
  const auto& lista = ListaTablas();
  const auto tabla = std::find_if(lista.begin(), lista.end(),
                                  [&](const TablaNombrada& t) { return t.nombre == nombre; });
  if (tabla != lista.end()) return tabla->hacer({caso, todos});
  if (auto rejilla = RejillaDeNombre(caso, nombre)) return Tablas{std::move(rejilla->tabla)};
  return std::nullopt;
}

}  // namespace novex
