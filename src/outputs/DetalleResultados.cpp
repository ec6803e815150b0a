#include "outputs/DetalleResultados.h"

#include <algorithm>
#include <optional>

#include "base/NumeroTexto.h"
#include "outputs/DesgloseElementos.h"

namespace novex {
namespace {

constexpr int kDecimales = 2;

// Los textos de una salida y la unidad en que está guardada; la demanda no es de ninguna.
struct Salida {
  const char* nombre;        // de los rótulos por servicio
  const char* nombreHuecos;  // delante del servicio en los rótulos de huecos
  const char* unidad;
  const char* titulo;  // del gráfico por servicio
  const char* total;   // del rótulo del total
  std::optional<UnidadEnergia> energia;
};

const Salida& SalidaDe(SalidaDetalle salida) {
  static const std::array<Salida, 5> kSalidas = {
      {{"Demanda ", "Demanda Huecos ", "kWh/m2", "Demanda energía diversa por servicio en kWh/m2",
        "", std::nullopt},
       {"Emisiones ", "Emisiones  Huecos ", "kgCO2/m2", "Emisiones por servicio kgCO2/m2",
        "Emisiones Totales ", kEmisiones},
       {"E.Primaria ", "E.Primaria Huecos ", "kWh/m2", "Energía primaria servicio kWh/m2",
        "Energía Primaria Total ", kPrimariaTotal},
       {"E.Primaria Renovable ", "E.Primaria Renovable Huecos ", "kWh/m2",
        "Energía primaria renovable por servicio kWh/m2", "E.Primaria Renovable Total ",
        kPrimariaRenovable},
       {"E.Primaria No Renovable ", "E.Primaria No Renovable Huecos ", "kWh/m2",
        "Energía primaria no renovable por servicio kWh/m2", "E.Primaria No Renovable Total ",
        kPrimariaNoRenovable}}};
  return kSalidas[static_cast<std::size_t>(salida)];
}

constexpr std::array<Servicio, kServicios> kOrden = {kCalefaccion, kRefrigeracion, kACS,
                                                     kVentilacion, kIluminacion};
constexpr std::array<const char*, kServicios> kRotulos = {"Calef.", "Refrig.", "ACS", "Vent.",
                                                          "Ilum."};
constexpr std::array<const char*, kServicios> kRotulosDemanda = {
    "Calef.(calor)", "Refrig.(frio)", "ACS (calor)", "Vent. (elec.)", "Ilum.(elec.)"};
constexpr const char* kRotuloSuma = "Calef.+Refrig.";

struct VectorMostrado {
  VectorEnergetico vector;
  const char* rotulo;
};
constexpr VectorMostrado kVectoresMostrados[] = {
    {VectorEnergetico::Electricidad, "Elec.Red"},
    {VectorEnergetico::Energiasolarfotovoltaica, "Fotovoltáica"},
    {VectorEnergetico::GasNatural, "GasNatural"},
    {VectorEnergetico::Gasoleo_C, "Gasóleo_C"},
    {VectorEnergetico::GLP, "GLP"},
    {VectorEnergetico::Carbon, "Carbón"},
    {VectorEnergetico::Biomasa_Pellet, "Biomasa_Pellet"},
    {VectorEnergetico::Biomasa_Otros, "Biomasa_Otros"},
    {VectorEnergetico::Energiasolartermica, "Solar Termica"},
    {VectorEnergetico::MedioAmbiente, "Medio_Ambiente"}};

using Barras = std::vector<BarraDesglose>;

Grafico GraficoBarras(const std::string& titulo, const std::string& nombre,
                      const std::string& unidad, const Barras& barras) {
  Grafico g;
  g.titulo = titulo;
  g.forma = Grafico::Forma::Barras;
  g.ejeY = unidad;
  SerieGrafico serie{nombre, {}};
  for (const BarraDesglose& b : barras) {
    g.posiciones.push_back(b.rotulo);
    serie.valores.push_back(b.valor);
  }
  g.series.push_back(std::move(serie));
  return g;
}

float Superficie(const CasoCalculado& caso) {
  return caso.edificio->GetRecinto(0).Suelo_habitable_m2;
}

// Demanda de un servicio, o la electricidad de la ventilación y de la iluminación, kWh/m2.
double Demanda(const CasoCalculado& caso, Servicio servicio) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const float area = Superficie(caso);
  const auto porArea = [area](float v) { return area > 0.0F ? v / area : 0.0F; };
  float valor = 0;
  switch (servicio) {
    case kACS:
      valor = r.demandaACS;
      break;
    case kCalefaccion:
      valor = r.demandaCalefaccion;
      break;
    case kRefrigeracion:
      valor = r.demandaRefrigeracion;
      break;
    case kVentilacion:
      valor = porArea(caso.resultado->meses.ventilacion[0]);
      break;
    case kIluminacion:
      valor = porArea(caso.resultado->meses.iluminacion[0]);
      break;
  }
  return static_cast<double>(valor);
}

// Valor de un servicio en una salida, por m2.
double ValorServicio(const CasoCalculado& caso, const Salida& salida, Servicio servicio) {
  if (!salida.energia) return Demanda(caso, servicio);
  return static_cast<double>(
      caso.resultado->resultados.servicio[servicio].porUnidad[*salida.energia][0]);
}

std::string RotuloValor(const Salida& salida, const std::string& texto, double valor) {
  return texto + Fijo(valor, kDecimales) + " " + salida.unidad + " año.";
}

GraficoDetalle Totales(const CasoCalculado& caso, const Salida& salida) {
  Barras barras;
  for (std::size_t i = 0; i < kServicios; ++i)
    barras.push_back({salida.energia ? kRotulos[i] : kRotulosDemanda[i],
                      ValorServicio(caso, salida, kOrden[i])});
  GraficoDetalle d{GraficoBarras(salida.titulo, salida.nombre, salida.unidad, barras), {}};
  // El calor, el frío y la electricidad de la demanda no se suman: se dicen los dos que se
  // reparten.
  if (!salida.energia)
    d.rotulo = RotuloValor(salida, "Demanda Calef. ", barras[0].valor) + "  " +
               RotuloValor(salida, "Demanda Refrig. ", barras[1].valor);
  else
    d.rotulo =
        salida.total +
        Fijo(static_cast<double>(caso.resultado->resultados.total[*salida.energia]), kDecimales) +
        " " + salida.unidad + ".";
  return d;
}

const Barras& BarrasDe(const DesgloseServicio& d, AnalisisDetalle analisis) {
  if (analisis == AnalisisDetalle::Opacos) return d.opacos;
  if (analisis == AnalisisDetalle::HuecosGrupos) return d.gruposHuecos;
  return analisis == AnalisisDetalle::HuecosOrientacion ? d.orientacionHuecos : d.familias;
}

// Lo que no es demanda se reparte como ella: por cada kWh de demanda, cuánto de la salida.
double PorDemanda(const CasoCalculado& caso, const Salida& salida, Servicio servicio) {
  if (!salida.energia) return 1;
  const double demanda = Demanda(caso, servicio);
  return demanda != 0.0 ? ValorServicio(caso, salida, servicio) / demanda : 0.0;
}

// Las barras de un servicio.
Barras Reparto(const CasoCalculado& caso, const Salida& salida, AnalisisDetalle analisis,
               Servicio servicio) {
  Barras barras =
      BarrasDe(DesglosarServicio(*caso.resultado, servicio, Superficie(caso)), analisis);
  const double razon = PorDemanda(caso, salida, servicio);
  for (BarraDesglose& b : barras) b.valor *= razon;
  return barras;
}

// Lo que se dice del reparto: el servicio entero, o lo que suman los opacos o los huecos.
GraficoDetalle PorElementos(const Salida& salida, AnalisisDetalle analisis,
                            const std::string& servicio, const Barras& barras, double entero) {
  double valor = entero;
  std::string nombre = salida.nombre;
  if (analisis != AnalisisDetalle::Elementos) {
    valor = 0;
    for (const BarraDesglose& b : barras) valor += b.valor;
    nombre = analisis == AnalisisDetalle::Opacos ? nombre + "Opacos " : salida.nombreHuecos;
  }
  const std::string texto = nombre + servicio + " ";
  return {GraficoBarras(texto + salida.unidad, servicio, salida.unidad, barras),
          RotuloValor(salida, texto, valor)};
}

std::vector<GraficoDetalle> CalefaccionRefrigeracion(const CasoCalculado& caso,
                                                     const Salida& salida,
                                                     const SeleccionDetalle& s) {
  const std::array<double, 2> valor = {ValorServicio(caso, salida, kCalefaccion),
                                       ValorServicio(caso, salida, kRefrigeracion)};
  const bool sumados = s.servicios == ServiciosDetalle::Sumados;
  if (s.analisis == AnalisisDetalle::Globales) {
    const double suma = valor[0] + valor[1];
    const Barras barras = sumados ? Barras{{kRotuloSuma, suma}}
                                  : Barras{{kRotulos[0], valor[0]}, {kRotulos[1], valor[1]}};
    const std::string nombre = salida.nombre;
    GraficoDetalle d{GraficoBarras(nombre + salida.unidad, nombre, salida.unidad, barras), {}};
    d.rotulo = sumados ? RotuloValor(salida, nombre + kRotuloSuma + " ", suma)
                       : RotuloValor(salida, nombre + "Calef. ", valor[0]) + "  " +
                             RotuloValor(salida, nombre + "Refrig. ", valor[1]);
    return {std::move(d)};
  }
  Barras calor = Reparto(caso, salida, s.analisis, kCalefaccion);
  const Barras frio = Reparto(caso, salida, s.analisis, kRefrigeracion);
  if (!sumados)
    return {PorElementos(salida, s.analisis, kRotulos[0], calor, valor[0]),
            PorElementos(salida, s.analisis, kRotulos[1], frio, valor[1])};
  // Las dos tienen las mismas barras: las pone el caso, no el servicio.
  for (std::size_t i = 0; i < calor.size(); ++i) calor[i].valor += frio[i].valor;
  return {PorElementos(salida, s.analisis, kRotuloSuma, calor, valor[0] + valor[1])};
}

// La energía final de unos servicios por vector, en kWh del edificio y por m2.
void AnadirVectores(const CasoCalculado& caso, const std::vector<Servicio>& servicios,
                    const std::string& nombre, std::vector<GraficoDetalle>& graficos) {
  Barras total;
  double suma = 0;
  for (const VectorMostrado& v : kVectoresMostrados) {
    double valor = 0;
    for (const Servicio s : servicios)
      valor += static_cast<double>(
          caso.resultado->resultados.servicio[s].finalPorVector[Indice(v.vector)][0]);
    total.push_back({v.rotulo, valor});
    suma += valor;
  }
  const auto area = static_cast<double>(Superficie(caso));
  const double factor = area > 0.0 ? 1.0 / area : 0.0;
  Barras porArea = total;
  for (BarraDesglose& b : porArea) b.valor *= factor;
  const std::string rotulo = "Energía final " + nombre;
  graficos.push_back({GraficoBarras("Energía final por fuentes kWh", nombre, "kWh", total),
                      rotulo + " " + Fijo(suma, kDecimales) + " kWh."});
  graficos.push_back({GraficoBarras("Energía kWh/m2", nombre, "kWh/m2", porArea),
                      rotulo + " " + Fijo(suma * factor, kDecimales) + " kWh/m2."});
}

std::vector<GraficoDetalle> Vectores(const CasoCalculado& caso, ServiciosDetalle servicios) {
  std::vector<GraficoDetalle> graficos;
  switch (servicios) {
    case ServiciosDetalle::Totales:
      AnadirVectores(caso, {kOrden.begin(), kOrden.end()}, "Total", graficos);
      break;
    case ServiciosDetalle::CadaUno:
      AnadirVectores(caso, {kCalefaccion}, kRotulos[0], graficos);
      AnadirVectores(caso, {kRefrigeracion}, kRotulos[1], graficos);
      break;
    case ServiciosDetalle::Sumados:
      AnadirVectores(caso, {kCalefaccion, kRefrigeracion}, kRotuloSuma, graficos);
      break;
  }
  return graficos;
}

// Los elementos de un servicio, en el mismo orden para los dos.
Barras ElementosDe(const CasoCalculado& caso, const Salida& salida, Servicio servicio) {
  const DesgloseServicio d = DesglosarServicio(*caso.resultado, servicio, Superficie(caso));
  Barras elementos = d.opacos;
  elementos.insert(elementos.end(), d.gruposHuecos.begin(), d.gruposHuecos.end());
  constexpr std::size_t kAire = 2, kPuentes = 3;  // en las familias
  elementos.push_back(d.familias[kAire]);
  elementos.push_back(d.familias[kPuentes]);
  const double razon = PorDemanda(caso, salida, servicio);
  for (BarraDesglose& b : elementos) b.valor *= razon;
  return elementos;
}

double Suma(const Barras& barras) {
  double suma = 0;
  for (const BarraDesglose& b : barras) suma += b.valor;
  return suma;
}

}  // namespace

std::vector<GraficoDetalle> PaginaDetalle(const CasoCalculado& caso,
                                          const SeleccionDetalle& seleccion) {
  if (seleccion.salida == SalidaDetalle::Vectores) return Vectores(caso, seleccion.servicios);
  const Salida& salida = SalidaDe(seleccion.salida);
  if (seleccion.servicios == ServiciosDetalle::Totales) return {Totales(caso, salida)};
  return CalefaccionRefrigeracion(caso, salida, seleccion);
}

Tabla TablaElementos(const CasoCalculado& caso, SalidaDetalle salida) {
  const Salida& de = SalidaDe(salida == SalidaDetalle::Vectores ? SalidaDetalle::Demanda : salida);
  const Barras calor = ElementosDe(caso, de, kCalefaccion);
  const Barras frio = ElementosDe(caso, de, kRefrigeracion);
  const double sumaCalor = Suma(calor), sumaFrio = Suma(frio);
  std::vector<std::size_t> orden(calor.size());
  for (std::size_t i = 0; i < orden.size(); ++i) orden[i] = i;
  std::stable_sort(orden.begin(), orden.end(), [&](std::size_t a, std::size_t b) {
    return calor[a].valor + frio[a].valor > calor[b].valor + frio[b].valor;
  });
  Tabla tabla;
  tabla.titulo = std::string(de.nombre) + "por elementos, " + de.unidad + " año";
  tabla.cabeceras = {"Elemento", "Calef.", "%", "Refrig.", "%"};
  const auto fila = [&](const std::string& nombre, double c, double f) {
    const auto parte = [](double valor, double suma) {
      return suma != 0.0 ? Celda::Numero(valor * 100 / suma, 1) : Celda();
    };
    tabla.filas.push_back({nombre, Celda::Numero(c, kDecimales), parte(c, sumaCalor),
                           Celda::Numero(f, kDecimales), parte(f, sumaFrio)});
  };
  for (const std::size_t i : orden) fila(calor[i].rotulo, calor[i].valor, frio[i].valor);
  fila("Total", sumaCalor, sumaFrio);
  tabla.notas = {
      "Calef.: lo que pierde cada elemento en las horas con calefacción. Refrig.: lo que gana en "
      "las "
      "horas con refrigeración. Cada columna suma la de su servicio.",
      "M. muro, C. cubierta, S. suelo y H- grupo de huecos"};
  return tabla;
}

}  // namespace novex
