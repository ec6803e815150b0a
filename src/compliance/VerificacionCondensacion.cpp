#include "compliance/VerificacionCondensacion.h"

#include <algorithm>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

constexpr int kDecimales = 2;
constexpr std::string_view kSinCifra = "-";

std::string_view TextoCumple(bool cumple) {
  return cumple ? condensacion::kCumple : condensacion::kNoCumple;
}

template <std::size_t N>
std::vector<std::string> Cabeceras(const std::array<std::string_view, N>& columnas) {
  return {columnas.begin(), columnas.end()};
}

std::string Rotulo(const CondensacionElemento& e) {
  return e.clave + " (" + e.nombre + ")";
}

Veredicto VeredictoSuperficial(const CondensacionElemento& e, double fRsiMin) {
  Veredicto v;
  v.seccion = kSeccionCondensaciones;
  v.requisito = "Condensación superficial en " + Rotulo(e);
  v.valor = e.fRsi;
  v.limite = fRsiMin;
  v.unidad = kSinCifra;
  v.pasa = e.cumpleSuperficial;
  v.veredicto = TextoCumple(v.pasa);
  if (!v.pasa) v.nota = "fRsi ha de ser mayor que fRsi,min";
  return v;
}

Veredicto VeredictoIntersticial(const CondensacionElemento& e) {
  const std::size_t peor = e.InterfazPeor();
  const InterfazCondensacion& interfaz = e.interfaces.at(peor);
  Veredicto v;
  v.seccion = kSeccionCondensaciones;
  v.requisito = "Condensación intersticial en " + Rotulo(e);
  v.valor = interfaz.P;
  v.limite = interfaz.Psat;
  v.unidad = "Pa";
  v.pasa = e.cumpleIntersticial;
  v.veredicto = TextoCumple(v.pasa);
  v.nota =
      "Interfaz " + std::to_string(peor) + ", a " + Fijo(interfaz.x, 3) + " m de la cara exterior";
  if (e.capas > kInterfacesComprobadas)
    v.nota += ". Se comprueban " + std::to_string(kInterfacesComprobadas) + " interfaces";
  return v;
}

Veredicto VeredictoPuente(const CondensacionPuente& p) {
  Veredicto v;
  v.seccion = kSeccionCondensaciones;
  v.requisito = "Condensación superficial en " + p.nombre;
  v.unidad = kSinCifra;
  v.aplica = p.aplica;
  v.pasa = p.cumple;
  v.veredicto = p.Cumplimiento();
  if (p.aplica) {
    v.valor = p.fRsi;
    v.limite = p.fRsiMin;
  } else {
    v.nota = "El edificio no tiene pilares";
  }
  return v;
}

Veredicto VeredictoSinCerramientos() {
  Veredicto v;
  v.seccion = kSeccionCondensaciones;
  v.requisito = "Condensación en los cerramientos";
  v.aplica = false;
  v.veredicto = condensacion::kNoAplicable;
  v.nota = kNotaCondensacion;
  return v;
}

std::vector<Veredicto> Veredictos(const VerificacionCondensacion& v) {
  std::vector<Veredicto> lista;
  for (const CondensacionElemento& e : v.elementos) {
    lista.push_back(VeredictoSuperficial(e, v.condiciones.fRsiMin));
    lista.push_back(VeredictoIntersticial(e));
  }
  if (v.elementos.empty()) lista.push_back(VeredictoSinCerramientos());
  for (const CondensacionPuente& p : v.puentes) lista.push_back(VeredictoPuente(p));
  return lista;
}

// Una fila: sus cuatro primeras celdas, las presiones (vacías donde no hay interfaz) y el texto.
std::vector<Celda> FilaPresiones(std::vector<Celda> fila, const CondensacionElemento& e,
                                 double InterfazCondensacion::*presion,
                                 std::string_view cumplimiento) {
  for (const InterfazCondensacion& i : e.interfaces)
    fila.push_back(Celda::Numero(i.*presion, kDecimales));
  fila.resize(kColumnasCondensacion.size());
  fila.back() = Celda(std::string(cumplimiento));
  return fila;
}

Tabla TablaCerramientos(const VerificacionCondensacion& v) {
  Tabla tabla;
  tabla.titulo = "Condensaciones en cerramientos";
  tabla.cabeceras = Cabeceras(kColumnasCondensacion);
  for (const CondensacionElemento& e : v.elementos) {
    tabla.filas.push_back(
        FilaPresiones({e.clave, e.nombre, "fRsi", Celda::Numero(e.fRsi, kDecimales)}, e,
                      &InterfazCondensacion::P, ""));
    tabla.filas.push_back(
        FilaPresiones({"", "", "fRsi,min", Celda::Numero(v.condiciones.fRsiMin, kDecimales)}, e,
                      &InterfazCondensacion::Psat, TextoCumple(e.Cumple())));
  }
  tabla.notas.emplace_back(kNotaCondensacion);
  return tabla;
}

Tabla TablaPuentes(const std::vector<CondensacionPuente>& puentes) {
  Tabla tabla;
  tabla.titulo = "Condensaciones en puentes térmicos";
  tabla.cabeceras = Cabeceras(kColumnasPuentes);
  for (const CondensacionPuente& p : puentes) {
    const auto cifra = [&](double valor) {
      return p.aplica ? Celda::Numero(valor, kDecimales) : Celda(std::string(kSinCifra));
    };
    tabla.filas.push_back(
        {p.tipo, p.nombre, cifra(p.fRsi), cifra(p.fRsiMin), std::string(p.Cumplimiento())});
  }
  return tabla;
}

Grafico GraficoPresiones(const CondensacionElemento& e) {
  Grafico g;
  g.titulo = Rotulo(e);
  g.forma = Grafico::Forma::Lineas;
  g.ejeX = "Distancia a la cara exterior (m)";
  g.ejeY = "Presión (Pa)";
  g.series = {{"Presión de vapor", {}}, {"Presión de saturación", {}}};
  for (const InterfazCondensacion& i : e.interfaces) {
    g.x.push_back(i.x);
    g.series[0].valores.push_back(i.P);
    g.series[1].valores.push_back(i.Psat);
  }
  return g;
}

std::string RotuloResultado(bool cumple, const char* de) {
  return std::string(TextoCumple(cumple)) + " condensaciones " + de;
}

}  // namespace

VerificacionCondensacion VerificarCondensaciones(const Edificio& edificio) {
  VerificacionCondensacion v;
  v.condiciones = CondicionesDeCondensacion(edificio);
  v.elementos = CondensacionElementos(edificio, v.condiciones);
  v.puentes = CondensacionPuentes(edificio.GetConstruccion(), v.condiciones);
  v.cumpleCerramientos = std::all_of(v.elementos.begin(), v.elementos.end(),
                                     [](const CondensacionElemento& e) { return e.Cumple(); });
  v.cumplePuentes = std::all_of(v.puentes.begin(), v.puentes.end(),
                                [](const CondensacionPuente& p) { return p.cumple; });
  v.textoCerramientos = RotuloResultado(v.cumpleCerramientos, "cerramientos");
  v.textoPuentes = RotuloResultado(v.cumplePuentes, "puentes térmicos");
  v.veredictos = Veredictos(v);
  v.tablaCerramientos = TablaCerramientos(v);
  v.tablaPuentes = TablaPuentes(v.puentes);
  for (const CondensacionElemento& e : v.elementos) v.graficos.push_back(GraficoPresiones(e));
  return v;
}

}  // namespace novex
