#include "improvements/EstudioMejoras.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <stdexcept>
#include <thread>

#include "rating/Escala.h"
#include "rating/FactoresConversion.h"

namespace novex {
namespace {

constexpr std::size_t kMarcasMaximas = 3;
constexpr int kHorasPorTramo = 730;

constexpr std::array<std::string_view, kCifrasMedida> kClaves = {
    "DemandaCale",          "DemandaRef",
    "EnergiaPrimariaCal",   "EnergiaPrimariaRef",
    "EnergiaPrimariaACS",   "EnergiaPrimariaIluminacion",
    "EnergiaPrimariaTotal", "EnergiaFinalCal",
    "EnergiaFinalRef",      "EnergiaFinalACS",
    "EnergiaFinalCalEsp",   "EnergiaFinalRefEsp",
    "EnergiaFinalACSEsp",   "EnergiaFinalIluminacion",
    "EnergiaFinalTotal",    "EnergiaFinalTotalEsp",
    "EmisionesCal",         "EmisionesRef",
    "EmisionesACS",         "EmisionesIluminacion",
    "EmisionesTotal"};

// Un servicio servido por un generador supuesto: la energía sale de su demanda.
// \param D demanda, kWh/m2
void PonerGenerador(IndicadoresServicio& s, const ServicioForzado& forzado, float D,
                    const Conversor& conversor) {
  const float final = forzado.rendimiento != 0.0F ? D / forzado.rendimiento : 0.0F;
  for (std::size_t u = 0; u < kUnidadesEnergia; ++u)
    s.porUnidad[u][0] = conversor.Convertir(forzado.combustible, u, final);
  s.porUnidad[kFinal][0] = final;
  s.finalSinRenovables = final;
}

// El agua caliente con una parte solar: lo demás lo sigue dando el equipo del caso.
// \param actual lo que da el equipo \param D demanda, kWh/m2
void PonerParteSolar(IndicadoresServicio& s, const IndicadoresServicio& actual, float parte,
                     float rendimiento, float D) {
  const float resto = 1.0F - parte;
  const auto de = [&](UnidadEnergia u) { return actual.porUnidad[u][0]; };
  s.porUnidad[kFinal][0] = rendimiento != 0.0F ? D / rendimiento : 0.0F;
  s.porUnidad[kPrimariaTotal][0] = resto * de(kPrimariaTotal) + parte * D;
  s.porUnidad[kPrimariaNoRenovable][0] = resto * de(kPrimariaNoRenovable);
  s.porUnidad[kPrimariaRenovable][0] = resto * de(kPrimariaRenovable) + parte * D;
  s.porUnidad[kEmisiones][0] = resto * de(kEmisiones);
  s.finalSinRenovables = resto * actual.finalSinRenovables;
}

ResultadoMedida Anotar(int codigo, const ResultadosCaso& r, const DatosGenerales& generales) {
  const bool residencial = generales.EsResidencial();
  ResultadoMedida m;
  m.codigo = codigo;
  const auto poner = [&](CifraMedida cifra, float valor) {
    m.cifras[static_cast<std::size_t>(cifra)] = valor;
  };
  const auto anual = [&](Servicio s, UnidadEnergia u) { return r.servicio[s].porUnidad[u][0]; };
  const auto total = [&](auto valor) {
    float suma = valor(kCalefaccion) + valor(kRefrigeracion) + valor(kACS) + valor(kVentilacion);
    return residencial ? suma : suma + valor(kIluminacion);
  };
  using C = CifraMedida;
  poner(C::DemandaCale, r.demandaCalefaccion);
  poner(C::DemandaRef, r.demandaRefrigeracion);
  struct Bloque {
    UnidadEnergia unidad;
    C cale, refri, acs, ilu, total;
  };
  for (const Bloque& b :
       {Bloque{kPrimariaNoRenovable, C::EnergiaPrimariaCal, C::EnergiaPrimariaRef,
               C::EnergiaPrimariaACS, C::EnergiaPrimariaIluminacion, C::EnergiaPrimariaTotal},
        Bloque{kFinal, C::EnergiaFinalCal, C::EnergiaFinalRef, C::EnergiaFinalACS,
               C::EnergiaFinalIluminacion, C::EnergiaFinalTotal},
        Bloque{kEmisiones, C::EmisionesCal, C::EmisionesRef, C::EmisionesACS,
               C::EmisionesIluminacion, C::EmisionesTotal}}) {
    poner(b.cale, anual(kCalefaccion, b.unidad));
    poner(b.refri, anual(kRefrigeracion, b.unidad));
    poner(b.acs, anual(kACS, b.unidad));
    poner(b.ilu, anual(kIluminacion, b.unidad));
    poner(b.total, total([&](Servicio s) { return anual(s, b.unidad); }));
  }
  const auto comprada = [&](Servicio s) { return r.servicio[s].finalSinRenovables; };
  poner(C::EnergiaFinalCalEsp, comprada(kCalefaccion));
  poner(C::EnergiaFinalRefEsp, comprada(kRefrigeracion));
  poner(C::EnergiaFinalACSEsp, comprada(kACS));
  poner(C::EnergiaFinalTotalEsp, total(comprada));
  // Una simulación libre no se califica.
  if (generales.Tiposimulacion != "Simulacion") m.letras = r.escala.letra;
  return m;
}

const Forzados& ForzadosDe(int codigo) {
  static const Forzados ninguno = SinForzar();
  if (codigo == kCodigoBase || codigo == kCodigoFinal) return ninguno;
  const MedidaPredefinida* medida = MedidaDeCodigo(codigo);
  if (medida == nullptr) throw std::out_of_range("no hay ninguna medida con ese código");
  return medida->forzados;
}

}  // namespace

std::string_view ClaveCifra(CifraMedida cifra) {
  return kClaves.at(static_cast<std::size_t>(cifra));
}

ResultadoMedida BaseDeEstudio(const ResultadosCaso& resultados, const DatosGenerales& generales) {
  return Anotar(kCodigoBase, resultados, generales);
}

std::unique_ptr<EstudioMejoras> EstudioMejoras::Preparar(GestorEdifActivo& gestor,
                                                         std::string_view nombreCaso,
                                                         Entorno& entorno) {
  auto estudio = Empezar(gestor, nombreCaso, entorno);
  if (!estudio) return nullptr;
  while (estudio->AvanzarBase(kHorasPorTramo)) entorno.progreso.Avanzar(estudio->PorcentajeBase());
  for (const Mensaje& m : estudio->avisosBase_.recibidos)
    entorno.mensajes.Avisar(m.titulo, m.texto);
  // Sin volumen de depósito falta el agua caliente: nada de lo demás vale.
  return estudio->HayBase() ? std::move(estudio) : nullptr;
}

std::unique_ptr<EstudioMejoras> EstudioMejoras::Empezar(GestorEdifActivo& gestor,
                                                        std::string_view nombreCaso,
                                                        Entorno& entorno) {
  auto estudio = std::make_unique<EstudioMejoras>(Llave{});
  estudio->edificio_ = gestor.Caso(nombreCaso)->Clonar();
  estudio->preparado_ = PrepararCalculo(*estudio->edificio_, entorno);
  if (!estudio->preparado_) return nullptr;
  if (NecesitaReferencia(estudio->edificio_->GetDatosGenerales())) {
    estudio->referencia_ = DemandaDeReferencia(gestor, entorno);
    if (!estudio->referencia_) return nullptr;
  }
  estudio->simulacionBase_ = std::make_unique<SimulacionPreparada>(
      *estudio->edificio_, *estudio->preparado_, SinForzar(), estudio->avisosBase_);
  estudio->simulacionBase_->GrabarACS(estudio->aguaCaliente_);
  return estudio;
}

bool EstudioMejoras::AvanzarBase(int horas) {
  if (!simulacionBase_) return false;
  if (simulacionBase_->Avanzar(horas)) return true;
  Edificio& caso = simulacionBase_->Caso();
  calculo& hecho = simulacionBase_->Calculo();
  if (!hecho.resultados.depositoNulo) {
    PonerReferencia(caso, hecho);
    CalificarCaso(caso, hecho);
    acsBase_ = hecho.resultados.servicio[kACS];
    base_ = BaseDeEstudio(hecho.resultados, caso.GetDatosGenerales());
  }
  simulacionBase_.reset();
  return false;
}

void EstudioMejoras::PonerReferencia(const Edificio& edificio, calculo& caso) const {
  RegistroMensajes mensajes;
  if (referencia_) PonerValoresReferencia(edificio, *referencia_, caso.resultados, mensajes);
}

void EstudioMejoras::RehacerServicios(const Edificio& edificio, calculo& caso) const {
  ResultadosCaso& r = caso.resultados;
  const Forzados& f = r.forzados;
  const Conversor conversor(r.factores, edificio.GetLocalizacion().Provincia);
  if (f.CasoCalefaccion.Concreto())
    PonerGenerador(r.servicio[kCalefaccion], f.CasoCalefaccion, r.demandaCalefaccion, conversor);
  if (f.CasoRefrigeracion.Concreto())
    PonerGenerador(r.servicio[kRefrigeracion], f.CasoRefrigeracion, r.demandaRefrigeracion,
                   conversor);
  if (!f.CasoACS.Concreto()) return;
  const float parte = ParteSolarForzada(f.CasoACS);
  if (parte > 0.0F)
    PonerParteSolar(r.servicio[kACS], acsBase_, parte, f.CasoACS.rendimiento, r.demandaACS);
  else
    PonerGenerador(r.servicio[kACS], f.CasoACS, r.demandaACS, conversor);
}

MedicionPorTramos::MedicionPorTramos(const EstudioMejoras& estudio, int codigo)
    : estudio_(estudio),
      simulacion_(*estudio.edificio_, *estudio.preparado_, ForzadosDe(codigo), avisos_) {
  simulacion_.RepetirACS(estudio.aguaCaliente_);
  resultado_.codigo = codigo;
}

bool MedicionPorTramos::Avanzar(int horas) {
  if (simulacion_.Avanzar(horas)) return true;
  Edificio& edificio = simulacion_.Caso();
  calculo& caso = simulacion_.Calculo();
  estudio_.PonerReferencia(edificio, caso);
  estudio_.RehacerServicios(edificio, caso);
  CalificarCaso(edificio, caso);
  resultado_ = Anotar(resultado_.codigo, caso.resultados, edificio.GetDatosGenerales());
  return false;
}

ResultadoMedida EstudioMejoras::MedirCodigo(int codigo) const {
  MedicionPorTramos medicion(*this, codigo);
  while (medicion.Avanzar(kHorasPorTramo)) {
  }
  return medicion.Resultado();
}

std::vector<ResultadoMedida> EstudioMejoras::Medir(std::span<const int> codigos, unsigned hilos,
                                                   const std::function<void()>& hecha) const {
  std::vector<ResultadoMedida> resultados(codigos.size());
  std::atomic<std::size_t> siguiente{0};
  std::mutex cerrojo;
  std::exception_ptr fallo;
  const auto trabajar = [&] {
    for (std::size_t i = siguiente++; i < codigos.size(); i = siguiente++) {
      try {
        resultados[i] = MedirCodigo(codigos[i]);
      } catch (const std::exception&) {
        const std::lock_guard<std::mutex> guardia(cerrojo);
        if (!fallo) fallo = std::current_exception();
        siguiente = codigos.size();
        return;
      }
      const std::lock_guard<std::mutex> guardia(cerrojo);
      if (hecha) hecha();
    }
  };
  std::vector<std::jthread> equipo;
  const auto cuantos = std::min<std::size_t>(std::max(1U, hilos), codigos.size());
  for (std::size_t i = 1; i < cuantos; ++i) equipo.emplace_back(trabajar);
  trabajar();
  equipo.clear();
  if (fallo) std::rethrow_exception(fallo);
  return resultados;
}

std::optional<Mensaje> AvisoMarcas(const EstudioModificaciones& estudio) {
  if (CodigosMarcados(estudio).size() <= kMarcasMaximas) return std::nullopt;
  return Mensaje{"AVISO",
                 "Como máximo sólo se pueden indicar 3 mejoras, debe desticar alguna para realizar "
                 "los cálculos"};
}

std::vector<int> CodigosMarcados(const EstudioModificaciones& estudio) {
  std::vector<int> codigos;
  for (const MedidaEstudio& m : estudio.medidas)
    if (m.marca && MedidaDeCodigo(m.codigo) != nullptr) codigos.push_back(m.codigo);
  std::sort(codigos.begin(), codigos.end());
  return codigos;
}

}  // namespace novex
