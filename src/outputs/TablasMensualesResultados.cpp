#include "outputs/TablasMensualesResultados.h"

#include <algorithm>

#include "outputs/ReglasResultados.h"
#include "outputs/RejillaMeses.h"
#include "rating/EquipoDefecto.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

constexpr auto kElectricidad = Indice(VectorEnergetico::Electricidad);
constexpr auto kFotovoltaica = Indice(VectorEnergetico::Energiasolarfotovoltaica);

// Textos de un servicio de la página, por su posición en el selector.
struct TextosServicio {
  std::optional<Servicio> servicio;  // vacío: el total
  const char* clave;
  const char* rejilla;
  const char* electricaKWh;  // nulo si no tiene rejilla eléctrica
  const char* electricaCO2;
  const char* enFichero;
};
constexpr std::array<TextosServicio, 6> kServiciosMes = {
    {{std::nullopt, "total", "Total", nullptr, nullptr, " TOTAL"},
     {kCalefaccion, "calefaccion", "Cale", "Elec.Cale(kWh)", "Elec.Cale(kg CO2)",
      " servicio Calefaccion"},
     {kRefrigeracion, "refrigeracion", "Refri", "Elec.Refri(kWh)", "Elec.Emi.Refri(kg CO2)",
      " servicio Refrigeracion"},
     {kVentilacion, "ventilacion", "Vent", nullptr, nullptr, " servicio Ventilacion"},
     {kACS, "acs", "ACS", "Elec.ACS (kWh)", "Elec.ACS (kg CO2)", " servicio ACS"},
     {kIluminacion, "iluminacion", "Ilu", nullptr, nullptr, " servicio Iluminacion"}}};

// Textos de cada resultado, por `UnidadEnergia`.
struct TextosResultado {
  const char* clave;
  const char* enFichero;
  const char* electrica;
};
constexpr std::array<TextosResultado, kUnidadesEnergia> kResultados = {
    {{"final", "Energia final", "Cálculo de la energía eléctrica consumida de la red"},
     {"primaria", "Energia primaria",
      "Cálculo de la energía primaria consumida por la electricidad de la red"},
     {"no-renovable", "Energia primaria no renovable",
      "Cálculo de la energía primaria no renovable consumida por la electricidad de la red"},
     {"renovable", "Energia primaria renovable",
      "Cálculo de la energía primaria renovable consumida por la electricidad de la red"},
     {"emisiones", "Emisiones CO2",
      "Cálculo de las emisiones producidas por la electricidad de la red"}}};

struct FilaVector {
  VectorEnergetico vector;
  const char* nombre;
};
constexpr std::array<FilaVector, 10> kFilasVector = {
    {{VectorEnergetico::Electricidad, "Electricidad_Red"},
     {VectorEnergetico::GasNatural, "GasNatural"},
     {VectorEnergetico::Gasoleo_C, "Gasoleo_C"},
     {VectorEnergetico::GLP, "GLP"},
     {VectorEnergetico::Carbon, "Carbon"},
     {VectorEnergetico::Biomasa_Pellet, "Biomasa_Pellet"},
     {VectorEnergetico::Biomasa_Otros, "Biomasa_Otros"},
     {VectorEnergetico::Energiasolartermica, "Solar Termica"},
     {VectorEnergetico::Energiasolarfotovoltaica, "Fotovoltaica"},
     {VectorEnergetico::MedioAmbiente, "Medio_Ambiente"}}};

// Orden de los servicios en el fichero de texto.
constexpr std::array<ServicioMes, 6> kOrdenFichero = {
    ServicioMes::ACS,         ServicioMes::Calefaccion, ServicioMes::Refrigeracion,
    ServicioMes::Ventilacion, ServicioMes::Iluminacion, ServicioMes::Total};
constexpr std::array<ServicioMes, kServiciosDemanda> kConEquipos = {
    ServicioMes::ACS, ServicioMes::Calefaccion, ServicioMes::Refrigeracion};

const TextosServicio& Textos(ServicioMes servicio) {
  return kServiciosMes[static_cast<std::size_t>(servicio)];
}

bool SoloElectrico(ServicioMes servicio) {
  return servicio == ServicioMes::Ventilacion || servicio == ServicioMes::Iluminacion;
}

// Compone las rejillas de un caso, sin sus nombres.
class PaginaMensual {
 public:
  explicit PaginaMensual(const CasoCalculado& caso)
      : edificio_(*caso.edificio),
        calculo_(*caso.resultado),
        conversor_(caso.resultado->resultados.factores, caso.edificio->GetLocalizacion().Provincia),
        residencial_(caso.edificio->GetDatosGenerales().EsResidencial()),
        area_(caso.edificio->GetRecinto(0).Suelo_habitable_m2),
        rotuloDemanda_(RotuloDemanda(caso)) {}

  RejillaMensual DeServicio(ServicioMes servicio, UnidadEnergia unidad) const;
  RejillaMensual Electrica(ServicioMes servicio, UnidadEnergia unidad) const;
  RejillaMensual Defecto(ServicioMes servicio) const;
  RejillaMensual InstalacionACS() const;
  RejillaMensual Solar() const;
  RejillaMensual Demanda() const;
  RejillaMensual UsoElectrico() const;
  RejillaMensual Compensada() const;

 private:
  FilaMeses Final(std::optional<Servicio> servicio, VectorEnergetico vector,
                  UnidadEnergia unidad) const;
  std::string NotaTotal(ServicioMes servicio, UnidadEnergia unidad, double ano) const;
  FilaMeses DeRed(const TablaMensual& kWh, UnidadEnergia unidad) const;
  FilaMeses DemandaDe(Servicio servicio) const;
  FilaMeses UsoDe(Servicio servicio) const;
  FilaMeses CompensadaDe(Servicio servicio) const {
    return FilaMeses(calculo_.resultados.servicio[servicio].finalPorVector[kFotovoltaica]);
  }

  const Edificio& edificio_;
  const calculo& calculo_;
  Conversor conversor_;
  bool residencial_;
  float area_;  // m2
  std::string rotuloDemanda_;
};

FilaMeses PaginaMensual::Final(std::optional<Servicio> servicio, VectorEnergetico vector,
                               UnidadEnergia unidad) const {
  const double factor = static_cast<double>(conversor_.Convertir(vector, unidad, 1.0F));
  FilaMeses suma;
  for (std::size_t s = 0; s < kServicios; ++s)
    if (!servicio || *servicio == s)
      suma += FilaMeses(calculo_.resultados.servicio[s].finalPorVector[Indice(vector)], factor);
  return suma;
}

// La línea del total por m2. \param ano kWh o kg de CO2 del edificio
std::string PaginaMensual::NotaTotal(ServicioMes servicio, UnidadEnergia unidad, double ano) const {
  const bool corta = SoloElectrico(servicio);
  return (corta ? "Total/m2 útil = " : "Total/m2 año útil = ") +
         Fijo(ano / static_cast<double>(area_), kDecimalesResultado) +
         (unidad == kEmisiones ? " (kg CO2/m2" : " (kWh/m2") + (corta ? ")" : " año)");
}

RejillaMensual PaginaMensual::DeServicio(ServicioMes servicio, UnidadEnergia unidad) const {
  const TextosServicio& textos = Textos(servicio);
  const bool emisiones = unidad == kEmisiones;
  RejillaMeses rejilla(std::string(kTextoResultado[unidad]),
                       std::string(textos.rejilla) + (emisiones ? " (kg CO2)" : " (kWh)"), area_);
  FilaMeses total;
  for (const auto& [vector, nombre] : kFilasVector) {
    const bool electrico = Indice(vector) == kElectricidad || Indice(vector) == kFotovoltaica;
    if (SoloElectrico(servicio) && !electrico) continue;
    const FilaMeses fila = Final(textos.servicio, vector, unidad);
    rejilla.Fila(nombre, fila);
    total += fila;
  }
  rejilla.Fila("TOTAL", total);
  if (area_ > 0.0F) rejilla.Nota(NotaTotal(servicio, unidad, total.Ano()));
  return {
      "", {std::string(kResultados[unidad].enFichero) + textos.enFichero}, 0, rejilla.Terminar()};
}

// Lo que se toma de la red, y lo que la fotovoltaica evita tomar, se convierten igual.
FilaMeses PaginaMensual::DeRed(const TablaMensual& kWh, UnidadEnergia unidad) const {
  return FilaMeses(
      kWh, static_cast<double>(conversor_.Convertir(VectorEnergetico::Electricidad, unidad, 1.0F)));
}

RejillaMensual PaginaMensual::Electrica(ServicioMes servicio, UnidadEnergia unidad) const {
  const TextosServicio& textos = Textos(servicio);
  const Servicio s = textos.servicio.value();
  const TablasMensuales& meses = calculo_.meses;
  RejillaMeses rejilla(kResultados[unidad].electrica,
                       unidad == kEmisiones ? textos.electricaCO2 : textos.electricaKWh, area_);
  FilaMeses total;
  const auto sumar = [&](const char* nombre, const TablaMensual& tabla) {
    const FilaMeses fila = DeRed(tabla, unidad);
    rejilla.Fila(nombre, fila);
    total += fila;
  };
  sumar("Elec.Equipos", meses.consumo[kElectricidad][s]);
  if (s != kACS) sumar("Elec.Ventiladores", meses.ventiladores[s]);
  sumar("Elec.Bombas", meses.bombas[s]);
  const FilaMeses fotovoltaica =
      DeRed(calculo_.resultados.servicio[s].finalPorVector[kFotovoltaica], unidad);
  rejilla.Fila("Elec.Fotovoltaica", fotovoltaica);
  total -= fotovoltaica;
  const FilaMeses defecto = DeRed(meses.defecto[s], unidad);
  if (s == kRefrigeracion) rejilla.Fila("Elec.Eq.Defecto", defecto);
  // El equipo por defecto entra en la suma solo en terciario, y el de calefacción no es eléctrico.
  if (!residencial_ && s != kCalefaccion) total += defecto;
  rejilla.Fila("TOTAL Elec. Red", total);
  return {"", {"Energia Electrica de Red", kResultados[unidad].electrica}, 0, rejilla.Terminar()};
}

RejillaMensual PaginaMensual::Defecto(ServicioMes servicio) const {
  const TextosServicio& textos = Textos(servicio);
  const Servicio s = textos.servicio.value();
  const char* nombre = "Defecto Electricidad";
  if (s != kRefrigeracion && residencial_) nombre = "Defecto GasNatural";
  if (s == kCalefaccion && !residencial_) nombre = "Defecto Gasoleo_C";
  RejillaMeses rejilla("Energia Inst. Defecto", "Inst. Defecto (kWh)", area_);
  rejilla.Fila(nombre, FilaMeses(calculo_.meses.defecto[s]));
  return {"", {std::string("Energia Inst. Defecto") + textos.enFichero}, 0, rejilla.Terminar()};
}

// Demanda del edificio, positiva, kWh.
FilaMeses PaginaMensual::DemandaDe(Servicio servicio) const {
  const double signo = servicio == kCalefaccion ? -1.0 : 1.0;
  return FilaMeses(calculo_.meses.demanda[servicio], signo * static_cast<double>(area_));
}

RejillaMensual PaginaMensual::InstalacionACS() const {
  RejillaMeses rejilla("Detalle demanda de ACS", "Instalacion ACS kWh", area_);
  const FilaMeses demanda = DemandaDe(kACS), deposito(calculo_.meses.perdidaDeposito),
                  retorno(calculo_.meses.perdidaRetorno);
  rejilla.Fila("Demanda ACS", demanda);
  rejilla.Fila("Deposito ACS", deposito);
  rejilla.Fila("Recirculacion", retorno);
  FilaMeses total = demanda;
  rejilla.Fila("Total ACS", (total += deposito) += retorno);
  return {"", {"Detalle demanda de ACS"}, 0, rejilla.Terminar()};
}

RejillaMensual PaginaMensual::Solar() const {
  const TablasMensuales& meses = calculo_.meses;
  const char* titulo = "Detalle inst. termica solar para de ACS";
  RejillaMeses rejilla(titulo, "Inst.term.solar  kWh  ", area_);
  const FilaMeses captada(meses.solarCaptada), tuberia(meses.perdidaTuberiaCaptador),
      deposito(meses.perdidaDepositoSolar);
  rejilla.Fila("Rad.sobre captadores", FilaMeses(meses.irradiacionCaptadores));
  rejilla.Fila("E.captada captadores", captada);
  rejilla.Fila("Perd.tuberias campo", tuberia);
  rejilla.Fila("Perd.deposito solar", deposito);
  FilaMeses aportada = captada;
  rejilla.Fila("Total Energia aportada", (aportada -= tuberia) -= deposito);
  return {"", {titulo}, 0, rejilla.Terminar()};
}

RejillaMensual PaginaMensual::Demanda() const {
  RejillaMeses rejilla("Demanda Total", "Demanda (kWh)", area_);
  rejilla.Fila("ACS", DemandaDe(kACS));
  rejilla.Fila("Calefaccion", DemandaDe(kCalefaccion));
  if (RefrigeracionFuera(edificio_))
    rejilla.FilaEnBlanco("Refrigeracion");
  else
    rejilla.Fila("Refrigeracion", DemandaDe(kRefrigeracion));
  rejilla.Nota(rotuloDemanda_);
  return {"", {"Demanda Total"}, 0, rejilla.Terminar()};
}

// Uso eléctrico de un servicio, kWh: el que comparte la fotovoltaica.
FilaMeses PaginaMensual::UsoDe(Servicio s) const {
  const TablasMensuales& meses = calculo_.meses;
  if (s == kVentilacion) return FilaMeses(meses.ventilacion);
  if (s == kIluminacion) return residencial_ ? FilaMeses() : FilaMeses(meses.iluminacion);
  FilaMeses uso(meses.consumo[kElectricidad][s]);
  uso += FilaMeses(meses.bombas[s]);
  if (s != kACS) uso += FilaMeses(meses.ventiladores[s]);
  const bool defecto =
      s == kACS
          ? !residencial_
          : s == kRefrigeracion &&
                ModoDefectoDe(edificio_.GetDatosGenerales().Equipos_Defecto) != ModoDefecto::No;
  if (defecto) uso += FilaMeses(meses.defecto[s]);
  return uso;
}

RejillaMensual PaginaMensual::UsoElectrico() const {
  RejillaMeses rejilla(
      "Energía electrica (kWh) a compensar en cada servicio debido a la instalación fotovoltáica "
      "para EPBD",
      "Electricidad (kWh)", area_);
  constexpr std::array<std::pair<Servicio, const char*>, kServicios> kFilas = {
      {{kACS, "ACS"},
       {kCalefaccion, "Calefaccion"},
       {kRefrigeracion, "Refrigeracion"},
       {kVentilacion, "Ventilacion"},
       {kIluminacion, "Iluminacion"}}};
  FilaMeses total, compensada;
  for (const auto& [servicio, nombre] : kFilas) {
    const FilaMeses uso = UsoDe(servicio);
    rejilla.Fila(nombre, uso);
    total += uso;
    compensada += CompensadaDe(servicio);
  }
  rejilla.Fila("Total", total);
  rejilla.Fila("FV paneles", FilaMeses(calculo_.meses.produccionFotovoltaica));
  rejilla.Fila("FV a compensar", compensada);
  return {"",
          {"Calculo Energia electrica (kW) total compensada debido a FV para EPBD"},
          0,
          rejilla.Terminar()};
}

RejillaMensual PaginaMensual::Compensada() const {
  const char* titulo = "Energia eléctrica (kWh) a compensar en cada servicio debido a FV para EPBD";
  RejillaMeses rejilla(titulo, "FV compensar(kWh)", area_);
  rejilla.Fila("Compens.ACS", CompensadaDe(kACS));
  rejilla.Fila("Compens.Calef", CompensadaDe(kCalefaccion));
  rejilla.Fila("Compens.Refrig", CompensadaDe(kRefrigeracion));
  rejilla.Fila("Compens.Ventil", CompensadaDe(kVentilacion));
  rejilla.Fila("Compens.Ilumin", CompensadaDe(kIluminacion));
  return {"", {titulo}, 0, rejilla.Terminar()};
}

// Qué rejilla es. Las clases están en el orden del fichero de texto.
struct Pedido {
  enum class Clase { InstalacionACS, Solar, Demanda, DeServicio, Defecto, Electrica, Uso, Reparto };
  Clase clase;
  ServicioMes servicio = ServicioMes::Total;
  UnidadEnergia unidad = kFinal;
};
using Clase = Pedido::Clase;

// Todas las rejillas, en el orden del fichero de texto.
std::vector<Pedido> TodosLosPedidos(bool residencial) {
  std::vector<Pedido> pedidos = {{Clase::InstalacionACS}, {Clase::Solar}, {Clase::Demanda}};
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    for (const ServicioMes s : kOrdenFichero)
      if (s != ServicioMes::Iluminacion || !residencial)
        pedidos.push_back({Clase::DeServicio, s, static_cast<UnidadEnergia>(u)});
  for (const ServicioMes s : kConEquipos) pedidos.push_back({Clase::Defecto, s});
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    for (const ServicioMes s : kConEquipos)
      pedidos.push_back({Clase::Electrica, s, static_cast<UnidadEnergia>(u)});
  pedidos.push_back({Clase::Uso});
  pedidos.push_back({Clase::Reparto});
  return pedidos;
}

std::vector<Pedido> PedidosVisibles(const SeleccionMensual& seleccion) {
  if (seleccion.vista == VistaMensual::DemandaYSolar)
    return {{Clase::Demanda}, {Clase::InstalacionACS}, {Clase::Solar}};
  if (seleccion.vista == VistaMensual::Fotovoltaica) return {{Clase::Uso}, {Clase::Reparto}};
  const ServicioMes s = seleccion.servicio;
  std::vector<Pedido> pedidos = {{Clase::DeServicio, s, seleccion.unidad}};
  if (!Textos(s).electricaKWh) return pedidos;
  pedidos.push_back({Clase::Electrica, s, seleccion.unidad});
  pedidos.push_back({Clase::Defecto, s});
  return pedidos;
}

std::string NombreDe(const Pedido& p) {
  const std::string servicio = Textos(p.servicio).clave;
  const std::string resultado = kResultados[p.unidad].clave;
  switch (p.clase) {
    case Clase::InstalacionACS:
      return "instalacion-acs";
    case Clase::Solar:
      return "solar-termica";
    case Clase::Demanda:
      return "demanda";
    case Clase::DeServicio:
      return resultado + "-" + servicio;
    case Clase::Defecto:
      return "defecto-" + servicio;
    case Clase::Electrica:
      return "elec-" + resultado + "-" + servicio;
    case Clase::Uso:
      return "fotovoltaica";
    case Clase::Reparto:
      break;
  }
  return "fotovoltaica-compensada";
}

RejillaMensual Componer(const PaginaMensual& pagina, const Pedido& p) {
  const auto rejilla = [&]() -> RejillaMensual {
    switch (p.clase) {
      case Clase::InstalacionACS:
        return pagina.InstalacionACS();
      case Clase::Solar:
        return pagina.Solar();
      case Clase::Demanda:
        return pagina.Demanda();
      case Clase::DeServicio:
        return pagina.DeServicio(p.servicio, p.unidad);
      case Clase::Defecto:
        return pagina.Defecto(p.servicio);
      case Clase::Electrica:
        return pagina.Electrica(p.servicio, p.unidad);
      case Clase::Uso:
        return pagina.UsoElectrico();
      case Clase::Reparto:
        break;
    }
    return pagina.Compensada();
  };
  RejillaMensual compuesta = rejilla();
  compuesta.nombre = NombreDe(p);
  compuesta.ordenFichero = static_cast<int>(p.clase);
  return compuesta;
}

std::vector<RejillaMensual> ComponerTodas(const CasoCalculado& caso,
                                          const std::vector<Pedido>& pedidos) {
  const PaginaMensual pagina(caso);
  std::vector<RejillaMensual> rejillas;
  for (const Pedido& p : pedidos) rejillas.push_back(Componer(pagina, p));
  return rejillas;
}

std::vector<Pedido> PedidosDe(const Edificio& edificio) {
  return TodosLosPedidos(edificio.GetDatosGenerales().EsResidencial());
}

}  // namespace

std::vector<RejillaMensual> RejillasMensuales(const CasoCalculado& caso) {
  return ComponerTodas(caso, PedidosDe(*caso.edificio));
}

std::vector<RejillaMensual> RejillasVisibles(const CasoCalculado& caso,
                                             const SeleccionMensual& seleccion) {
  return ComponerTodas(caso, PedidosVisibles(seleccion));
}

std::vector<std::string> NombresRejillas(const Edificio& edificio) {
  std::vector<std::string> nombres;
  for (const Pedido& p : PedidosDe(edificio)) nombres.push_back(NombreDe(p));
  return nombres;
}

std::optional<RejillaMensual> RejillaDeNombre(const CasoCalculado& caso, std::string_view nombre) {
  for (const Pedido& p : PedidosDe(*caso.edificio))
    if (NombreDe(p) == nombre) return Componer(PaginaMensual(caso), p);
  return std::nullopt;
}

Grafico GraficoMeses(const Tabla& rejilla) {
  Grafico grafico;
  grafico.titulo = rejilla.titulo;
  if (rejilla.cabeceras.size() <= kMeses) return grafico;
  // La esquina acaba en la unidad; entera no cabe a lo alto de un gráfico de página.
  grafico.ejeY = rejilla.cabeceras.front().find("CO2") == std::string::npos ? "kWh" : "kg CO2";
  grafico.posiciones.assign(rejilla.cabeceras.begin() + 1, rejilla.cabeceras.begin() + 1 + kMeses);
  for (const auto& fila : rejilla.filas) {
    const std::string& nombre = fila.front().texto;
    if (nombre.starts_with("TOTAL") || nombre.starts_with("Total")) continue;
    SerieGrafico serie{nombre, {}};
    for (std::size_t m = 1; m <= kMeses && m < fila.size(); ++m)
      serie.valores.push_back(fila[m].numero.value_or(0));
    if (std::any_of(serie.valores.begin(), serie.valores.end(), [](double v) { return v != 0.0; }))
      grafico.series.push_back(std::move(serie));
  }
  return grafico;
}

std::string RotuloDemanda(const CasoCalculado& caso) {
  const ResultadosCaso& r = caso.resultado->resultados;
  const auto cifra = [](float v) { return Fijo(static_cast<double>(v), kDecimalesResultado); };
  return "Demanda: Calefaccion= " + cifra(r.demandaCalefaccion) +
         " kW/hm2año       Refrigeracion= " +
         (RefrigeracionFuera(*caso.edificio) ? std::string(kSinLetra)
                                             : cifra(r.demandaRefrigeracion)) +
         " kW/hm2año       ACS= " + cifra(r.demandaACS) + " kW/hm2año";
}

}  // namespace novex
