#include "outputs/documentos/VariablesVeredictos.h"

#include <array>
#include <initializer_list>

#include "compliance/Requisitos.h"
#include "outputs/documentos/VariablesCalificacion.h"

namespace novex {
namespace {

constexpr float kMaximoHorasFuera = 4;  // % de las de ocupación
constexpr float kDemandaPequena = 15;   // kWh/m2
constexpr const char* kNoAplicable = "No aplicable";

const char* SiNo(bool cumple) {
  return cumple ? "Sí cumple" : "No cumple";
}
// El mismo veredicto se escribe sin tilde en las filas que dependen de la intervención.
const char* SiCumple(bool cumple) {
  return cumple ? "Si cumple" : "No cumple";
}

class Grupo {
 public:
  explicit Grupo(std::vector<VBLE>& variables) : variables_(variables) {}
  void Poner(const char* nombre, std::string valor) {
    variables_.push_back({nombre, std::move(valor)});
  }
  void Cifra(const char* nombre, double valor) {
    Poner(nombre, CifraDocumento(static_cast<float>(valor)));
  }
  // Límite y veredicto de lo que depende de la intervención; sin aplicarse no hay límite.
  void Veredicto(const char* limite, const char* cumple, bool aplica, double valor, double maximo) {
    Poner(limite, aplica ? CifraDocumento(static_cast<float>(maximo)) : std::string());
    Poner(cumple, aplica ? SiCumple(valor <= maximo) : kNoAplicable);
  }

 private:
  std::vector<VBLE>& variables_;
};

double Suma(const ResultadosCaso& r, UnidadEnergia unidad, std::initializer_list<Servicio> cuales) {
  float suma = 0;
  for (const Servicio s : cuales) suma += r.servicio[s].porUnidad[unidad][0];
  return static_cast<double>(suma);
}

void EnergiaPrimaria(const CasoCalculado& caso, bool aplica, Grupo& v) {
  const ResultadosCaso& r = caso.resultado->resultados;
  double nren = Suma(r, kPrimariaNoRenovable, {kCalefaccion, kRefrigeracion, kACS, kVentilacion});
  if (!caso.edificio->GetDatosGenerales().EsResidencial())
    nren += Suma(r, kPrimariaNoRenovable, {kIluminacion});
  const auto limite = static_cast<double>(r.limites.CepNren);
  v.Cifra("CEPNREN", nren);
  v.Cifra("CEP", nren);
  v.Veredicto("CEPNRENLIM", "CEPNRENCUMPLE", aplica, nren, limite);
  v.Cifra("CEPLIM", limite);
  v.Poner("CEPSINO", SiNo(nren <= limite));
  // Se enseña la de tres servicios y se compara con la iluminación.
  const double total = Suma(r, kPrimariaTotal, {kCalefaccion, kRefrigeracion, kACS});
  v.Cifra("CEPTOT", total);
  v.Veredicto("CEPTOTLIM", "CEPTOTCUMPLE", aplica, total + Suma(r, kPrimariaTotal, {kIluminacion}),
              static_cast<double>(r.limites.CepTot));
}

void HorasFuera(const ResultadosCaso& r, bool aplica, Grupo& v) {
  const bool hay = r.horasOcupacion > 0.0F;
  const float porciento =
      hay ? (r.horasFueraCalefaccion + r.horasFueraRefrigeracion) * 100.0F / r.horasOcupacion
          : 0.0F;
  v.Poner("HORASFUERACONSIGNA", hay ? CifraDocumento(porciento) : std::string());
  v.Veredicto("HORASFUERACONSIGNALIM", "HORASFUERACONSIGNACUMPLE", aplica && hay,
              static_cast<double>(porciento), static_cast<double>(kMaximoHorasFuera));
}

void Envolvente(const ResultadosCaso& r, const VerificacionHE& ve, bool aplica, Grupo& v) {
  v.Cifra("K", ve.K.K);
  const bool pequena =
      r.demandaCalefaccion < kDemandaPequena && r.demandaRefrigeracion < kDemandaPequena;
  if (aplica && pequena) {
    v.Poner("KLIM", "");
    v.Poner("KCUMPLE", "No aplicable por demanda");
  } else {
    v.Veredicto("KLIM", "KCUMPLE", aplica, ve.K.K, ve.K.Klimite);
  }
  v.Cifra("QSOLJUL", ve.q.q);
  v.Veredicto("QSOLJULLIM", "QSOLJULCUMPLE", aplica, ve.q.q, ve.q.registro.limite.value_or(0));
  // Donde no se exige no hay valor que comparar: ni en lo existente ni en los edificios pequeños.
  const bool sinN50 = !ve.n50.registro.aplica || (ve.n50.n50 == 0.0 && ve.n50.limite == 0.0);
  const auto n50 = [&](double x) {
    return sinN50 ? std::string(kNoAplicable) : CifraDocumento(static_cast<float>(x));
  };
  v.Poner("N50", n50(ve.n50.n50));
  v.Poner("N50LIM", n50(ve.n50.limite));
  v.Poner("N50CUMPLE", sinN50 ? kNoAplicable : SiCumple(ve.n50.n50 <= ve.n50.limite));
}

void Demandas(const ResultadosCaso& r, Grupo& v) {
  const auto fila = [&](const char* valor, const char* limite, const char* sino, float demanda,
                        float maximo) {
    v.Cifra(valor, static_cast<double>(demanda));
    v.Cifra(limite, static_cast<double>(maximo));
    v.Poner(sino, SiNo(demanda <= maximo));
  };
  fila("DCAL", "DCALLIM", "DCALSINO", r.demandaCalefaccion, r.limites.demandaCalefaccion);
  fila("DREF", "DREFLIM", "DREFSINO", r.demandaRefrigeracion, r.limites.demandaRefrigeracion);
}

// Potencia y eficiencia de la iluminación; en residencial no se aplican.
void Iluminacion(const RequisitoHE3& he3, Grupo& v) {
  constexpr std::array<std::array<const char*, 2>, 2> kNombres = {
      {{"POTILULIM", "POTILUCUMPLE"}, {"VEEILIM", "VEEICUMPLE"}}};
  for (std::size_t i = 0; i < kNombres.size(); ++i) {
    const bool hay = he3.aplica && i < he3.veredictos.size();
    const Veredicto* fila = hay ? &he3.veredictos[i] : nullptr;
    v.Poner(kNombres[i][0],
            hay ? CifraDocumento(static_cast<float>(fila->limite.value_or(0))) : std::string());
    v.Poner(kNombres[i][1], hay ? TextoHtml(fila->veredicto) : std::string(kNoAplicable));
  }
}

}  // namespace

std::string TextoRecuperador(const DatosGenerales& generales) {
  const std::string& clase = generales.Recuperador;
  const std::string paso = clase.ends_with("ConBypass") ? "con by-pass, " : "sin by-pass, ";
  const std::string sensible = CifraDocumento(generales.Eficiencia_recuperador);
  if (clase.starts_with("Sensible"))
    return "Recuperador sensbile " + paso + "rendimiento " + sensible;
  if (clase.starts_with("Entalpico"))
    return "Recuperador entalpico " + paso + "sensible " + sensible + " humedad " +
           CifraDocumento(generales.Eficiencia_recuperador_Ental);
  return "No existe recuperador";
}

void VariablesVeredictos(const CasoCalculado& caso, const VerificacionHE& verificacion,
                         std::vector<VBLE>& variables) {
  const DatosGenerales& g = caso.edificio->GetDatosGenerales();
  const ResultadosCaso& r = caso.resultado->resultados;
  const bool he0 = AplicaRequisito(g, Requisito::HE0) == Aplicacion::Si;
  const bool he1 = AplicaRequisito(g, Requisito::HE1Kq) == Aplicacion::Si;
  Grupo v(variables);
  EnergiaPrimaria(caso, he0, v);
  HorasFuera(r, he0, v);
  Envolvente(r, verificacion, he1, v);
  Demandas(r, v);
  Iluminacion(verificacion.he3, v);
  v.Poner("RERACSNRB", TextoHtml(verificacion.he4.RERACSNRB));
  v.Poner("RERACSNRBMIN", TextoHtml(verificacion.he4.RERACSNRBMIN));
  v.Poner("RERACSCUMPLE", TextoHtml(verificacion.he4.RERACSCUMPLE));
  v.Poner("RECCALOR", TextoRecuperador(g));
  v.Poner("H5FRASE", TextoHtml(verificacion.he5.H5FRASE));
}

}  // namespace novex
