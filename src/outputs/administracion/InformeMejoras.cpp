#include "outputs/administracion/InformeMejoras.h"

#include <algorithm>

#include "base/NumeroTexto.h"
#include "entry/CosteMejora.h"
#include "outputs/administracion/EscrituraInforme.h"

namespace novex {
namespace {

using C = CifraMedida;

constexpr std::size_t kVisitas = 3;
constexpr std::size_t kMemoPrimeraVisita = 1;

// Las cifras de una unidad de energía: el total y los servicios que se informan.
struct CifrasUnidad {
  C total, calefaccion, refrigeracion, acs, iluminacion;
  C De(Servicio s) const {
    if (s == kCalefaccion) return calefaccion;
    if (s == kRefrigeracion) return refrigeracion;
    return s == kACS ? acs : iluminacion;
  }
};
constexpr CifrasUnidad kCifrasFinal = {C::EnergiaFinalTotalEsp, C::EnergiaFinalCalEsp,
                                       C::EnergiaFinalRefEsp, C::EnergiaFinalACSEsp,
                                       C::EnergiaFinalIluminacion};
constexpr CifrasUnidad kCifrasPrimaria = {C::EnergiaPrimariaTotal, C::EnergiaPrimariaCal,
                                          C::EnergiaPrimariaRef, C::EnergiaPrimariaACS,
                                          C::EnergiaPrimariaIluminacion};
constexpr CifrasUnidad kCifrasEmisiones = {C::EmisionesTotal, C::EmisionesCal, C::EmisionesRef,
                                           C::EmisionesACS, C::EmisionesIluminacion};

class Medida {
 public:
  Medida(XMLNode nodo, const Edificio& edificio, const ResultadoMedida& base,
         const ResultadoMedida& medida)
      : nodo_(std::move(nodo)),
        edificio_(edificio),
        servicios_(edificio),
        base_(base),
        medida_(medida) {}

  void Anadir() {
    Descripcion();
    Demanda();
    Unidad("EnergiaFinal", kCifrasFinal, false);
    Unidad("EnergiaPrimariaNoRenovable", kCifrasPrimaria, true);
    Letras("CalificacionEnergiaPrimariaNoRenovable", kPrimariaNoRenovable);
    Unidad("EmisionesCO2", kCifrasEmisiones, true);
    Letras("CalificacionEmisionesCO2", kEmisiones);
  }

 private:
  void Descripcion() {
    const MedidaPredefinida* predefinida = MedidaDeCodigo(medida_.codigo);
    const std::string texto = predefinida != nullptr ? predefinida->texto : "";
    AnadirDato(nodo_, "Nombre", texto);
    AnadirDato(nodo_, "Descripcion", texto);
    const EstudioModificaciones& estudio = edificio_.GetEstudioModificaciones();
    const CifrasMedida cifras = CifrasDeMedida(estudio, medida_.codigo);
    if (cifras.PrecioMejora > 0.0F || cifras.AmortMejora > 0.0F)
      AnadirDato(nodo_, "CosteEstimado",
                 General(cifras.PrecioMejora) + " euros. Se estima un periodo de amortización de " +
                     General(cifras.AmortMejora) + " años");
    for (const MedidaEstudio& m : estudio.medidas)
      if (m.codigo == medida_.codigo && !m.notas.empty())
        AnadirDato(nodo_, "OtrosDatos", UnirLineas(m.notas, " "));
  }

  void Demanda() {
    const auto global = [&](const ResultadoMedida& m) {
      return m[C::DemandaCale] + (servicios_.refrigeracion ? m[C::DemandaRef] : 0.0F);
    };
    XMLNode n = nodo_.appendChild("Demanda");
    Globales(n, global(medida_), global(base_), true);
    AnadirCifra(n, "Calefaccion", medida_[C::DemandaCale]);
    if (servicios_.refrigeracion) AnadirCifra(n, "Refrigeracion", medida_[C::DemandaRef]);
    XMLNode letras = nodo_.appendChild("CalificacionDemanda");
    AnadirLetra(letras, "Calefaccion", Letra(Indicador::DemandaCalefaccion));
    AnadirLetra(letras, "Refrigeracion", Letra(Indicador::DemandaRefrigeracion));
  }

  // El total de una medida suma todos los servicios: se le quita el que no se califica, como en el
  // del caso.
  void Unidad(const char* etiqueta, const CifrasUnidad& cifras, bool conDiferencia) {
    const auto global = [&](const ResultadoMedida& m) {
      return m[cifras.total] - (servicios_.refrigeracion ? 0.0F : m[cifras.refrigeracion]);
    };
    XMLNode n = nodo_.appendChild(etiqueta);
    Globales(n, global(medida_), global(base_), conDiferencia);
    AnadirServicios(n, servicios_, [&](Servicio s) { return medida_[cifras.De(s)]; });
  }

  void Letras(const char* etiqueta, UnidadEnergia unidad) {
    const bool residencial = !servicios_.iluminacion;
    const auto letra = [&](std::optional<Servicio> s) {
      const auto indicador = IndicadorDe(s, unidad, residencial);
      return indicador ? Letra(*indicador) : std::string();
    };
    XMLNode n = nodo_.appendChild(etiqueta);
    AnadirLetra(n, "Global", letra(std::nullopt));
    AnadirLetras(n, servicios_, letra);
  }

  static void Globales(XMLNode& nodo, float medida, float base, bool conDiferencia) {
    AnadirCifra(nodo, "Global", medida);
    if (conDiferencia) AnadirCifra(nodo, "GlobalDiferenciaSituacionInicial", base - medida);
  }
  const std::string& Letra(Indicador indicador) const {
    return medida_.letras[static_cast<std::size_t>(indicador)];
  }

  XMLNode nodo_;
  const Edificio& edificio_;
  ServiciosInforme servicios_;
  const ResultadoMedida& base_;
  const ResultadoMedida& medida_;
};

}  // namespace

void AnadirMejoras(XMLNode& informe, const Edificio& edificio, const MejorasMedidas& mejoras) {
  if (mejoras.medidas.empty()) return;
  XMLNode n = informe.appendChild("MedidasDeMejora");
  for (const ResultadoMedida& medida : mejoras.medidas)
    Medida(n.appendChild("Medida"), edificio, mejoras.base, medida).Anadir();
}

void AnadirVisitas(XMLNode& informe, const DatosGenerales& g) {
  XMLNode visitas;
  for (std::size_t v = 0; v < kVisitas && static_cast<float>(v + 1) <= g.NumeroVisitas; ++v) {
    if (!visitas) visitas = informe.appendChild("PruebasComprobacionesInspecciones");
    XMLNode n = visitas.appendChild("Visita");
    AnadirDato(n, "FechaVisita", g.FechaVisita[v]);
    AnadirDato(n, "Datos", UnirLineas(g.Memo[kMemoPrimeraVisita + v], "\n"));
  }
}

}  // namespace novex
