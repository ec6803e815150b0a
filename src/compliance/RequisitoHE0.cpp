#include "compliance/RequisitoHE0.h"

#include "base/NumeroTexto.h"
#include "compliance/Requisitos.h"

namespace novex {
namespace {

constexpr double kParteHoras = 0.04;  // de las de ocupación
constexpr int kDecimales = 2;
constexpr const char* kUnidad = "kWh/m2 año";
constexpr const char* kPieHoras = "* con una diferencia > 1ºC respecto a la consigna";

double Anual(const ResultadosCaso& r, Servicio servicio, UnidadEnergia unidad) {
  return static_cast<double>(r.servicio[servicio].porUnidad[unidad][0]);
}

// La no renovable cuenta la ventilación y no la iluminación; la total, al revés.
double SumaNren(const ResultadosCaso& r) {
  constexpr auto u = kPrimariaNoRenovable;
  return Anual(r, kRefrigeracion, u) + Anual(r, kCalefaccion, u) + Anual(r, kACS, u) +
         Anual(r, kVentilacion, u);
}
double SumaTot(const ResultadosCaso& r) {
  constexpr auto u = kPrimariaTotal;
  return Anual(r, kRefrigeracion, u) + Anual(r, kCalefaccion, u) + Anual(r, kACS, u) +
         Anual(r, kIluminacion, u);
}

const char* Texto(bool aplica, bool cumple) {
  if (!aplica) return "No Aplicable";
  return cumple ? "Cumple" : "No Cumple";
}

Tabla TablaIndicadores(const RequisitoHE0& he0, const ResultadosCaso& r) {
  const LimitesCaso& l = r.limites;
  Tabla tabla;
  tabla.titulo = "Demanda y energía primaria, kWh/m2 año";
  tabla.cabeceras = {"", "Real", "Límite"};
  const auto fila = [&](const char* nombre, double real, Celda limite) {
    tabla.filas.push_back({nombre, Celda::Numero(real, kDecimales), std::move(limite)});
  };
  const auto cifra = [](float x) { return Celda::Numero(static_cast<double>(x), kDecimales); };
  // La demanda de calefacción se enseña sin su límite.
  fila("Demanda calefacción", static_cast<double>(r.demandaCalefaccion), {});
  fila("Demanda refrigeración", static_cast<double>(r.demandaRefrigeracion),
       cifra(l.demandaRefrigeracion));
  fila("Cep,nren", he0.CepNren, cifra(l.CepNren));
  fila("Cep,tot", he0.CepTot, cifra(l.CepTot));
  return tabla;
}

Grafico GraficoIndicadores(const RequisitoHE0& he0, const ResultadosCaso& r) {
  const auto cifra = [](float x) { return static_cast<double>(x); };
  Grafico g;
  g.titulo = "Energía primaria y demandas";
  g.posiciones = {"Cep,tot", "Cep,nren", "Refrigeración", "Calefacción"};
  g.ejeY = kUnidad;
  // La calefacción, la última, no tiene barra de límite.
  g.series = {
      {"Real",
       {he0.CepTot, he0.CepNren, cifra(r.demandaRefrigeracion), cifra(r.demandaCalefaccion)}},
      {"Límite",
       {cifra(r.limites.CepTot), cifra(r.limites.CepNren), cifra(r.limites.demandaRefrigeracion)}}};
  return g;
}

Tabla TablaHoras(const RequisitoHE0& he0, const ResultadosCaso& r) {
  Tabla tabla;
  tabla.cabeceras = {"Horas al año", "h"};
  const auto fila = [&](const char* nombre, double horas, int decimales) {
    tabla.filas.push_back({nombre, Celda::Numero(horas, decimales)});
  };
  fila("Fuera de consigna de calefacción *", static_cast<double>(r.horasFueraCalefaccion), 0);
  fila("Fuera de consigna de refrigeración *", static_cast<double>(r.horasFueraRefrigeracion), 0);
  fila("Total fuera de consigna", he0.horasFuera, 0);
  fila("Límite, 4 % de las de ocupación", he0.horasLimite, kDecimales);
  fila("Horas de ocupación", static_cast<double>(r.horasOcupacion), 0);
  tabla.notas = {kPieHoras};
  return tabla;
}

}  // namespace

RequisitoHE0 ComprobarHE0(const Edificio& edificio, const ResultadosCaso& r) {
  RequisitoHE0 he0;
  const DatosGenerales& d = edificio.GetDatosGenerales();
  const Aplicacion respuesta = AplicaRequisito(d, Requisito::HE0);
  const bool aplica = respuesta == Aplicacion::Si;
  he0.CepNren = SumaNren(r);
  he0.CepTot = SumaTot(r);
  he0.horasFuera =
      static_cast<double>(r.horasFueraCalefaccion) + static_cast<double>(r.horasFueraRefrigeracion);
  he0.horasLimite = kParteHoras * static_cast<double>(r.horasOcupacion);
  const auto limiteNren = static_cast<double>(r.limites.CepNren);
  const auto limiteTot = static_cast<double>(r.limites.CepTot);
  if (aplica) {
    he0.cumpleHoras = he0.horasFuera <= he0.horasLimite;
    he0.cumpleTot = he0.CepTot <= limiteTot;
    he0.cumpleNren = he0.CepNren <= limiteNren;
  }
  he0.veredictoHoras = Texto(aplica, he0.cumpleHoras);
  he0.veredictoTot = Texto(aplica, he0.cumpleTot);
  he0.veredictoNren = Texto(aplica, he0.cumpleNren);
  he0.textos = {"Demanda real calefacción (kWh/m2 año):    " +
                    Fijo(static_cast<double>(r.demandaCalefaccion), kDecimales),
                "Demanda real refrigeración (kW/h m2 año):    " +
                    Fijo(static_cast<double>(r.demandaRefrigeracion), kDecimales),
                kPieHoras};
  he0.indicadores = TablaIndicadores(he0, r);
  he0.grafico = GraficoIndicadores(he0, r);
  he0.horas = TablaHoras(he0, r);

  std::string notaLimite = NotaAplicacion(d, respuesta);
  if (aplica && !r.limites.puestos)
    notaLimite = "La zona \"" + edificio.GetLocalizacion().ZonaClimatica + "\" no tiene límites";
  else if (aplica && r.limites.deSuLetra)
    notaLimite =
        "La tabla no trae la zona: límite de su letra de invierno con la corrección "
        "extrapeninsular";
  const auto anadir = [&](const char* requisito, double valor, double limite, const char* unidad,
                          const std::string& veredicto, bool pasa, const std::string& nota) {
    Veredicto v;
    v.seccion = kSeccionHE0;
    v.requisito = requisito;
    v.valor = valor;
    v.limite = limite;
    v.unidad = unidad;
    v.veredicto = veredicto;
    v.nota = nota;
    v.aplica = aplica;
    v.pasa = pasa;
    he0.veredictos.push_back(std::move(v));
  };
  anadir("Energía primaria no renovable Cep,nren", he0.CepNren, limiteNren, kUnidad,
         he0.veredictoNren, he0.cumpleNren, notaLimite);
  anadir("Energía primaria total Cep,tot", he0.CepTot, limiteTot, kUnidad, he0.veredictoTot,
         he0.cumpleTot, notaLimite);
  anadir("Horas fuera de consigna", he0.horasFuera, he0.horasLimite, "h", he0.veredictoHoras,
         he0.cumpleHoras, NotaAplicacion(d, respuesta));
  return he0;
}

}  // namespace novex
