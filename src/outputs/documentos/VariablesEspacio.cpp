#include "outputs/documentos/VariablesEspacio.h"

#include "demand/AjustesUso.h"
#include "outputs/documentos/VariablesCalificacion.h"

namespace novex {
namespace {

constexpr const char* kSoloTerciario = "Solo en terciario";
constexpr const char* kNoExisten = "No existen";
constexpr const char* kNada = "-";
constexpr int kPrimerTerciario = 3;
constexpr int kPerfilUsuario = 15;

class Textos {
 public:
  explicit Textos(std::vector<VBLE>& variables) : variables_(variables) {}
  void operator()(const char* nombre, std::string_view texto) {
    variables_.push_back({nombre, TextoHtml(texto)});
  }
  void operator()(const char* nombre, float cifra) {
    variables_.push_back({nombre, CifraDocumento(cifra)});
  }

 private:
  std::vector<VBLE>& variables_;
};

std::string_view SiNo(bool si) {
  return si ? "Si" : "No";
}

bool HayRecuperador(TipoRecuperador recuperador) {
  return recuperador != TipoRecuperador::No && recuperador != TipoRecuperador::Otro;
}

const char* ControlAire(ModulacionAire modulacion) {
  if (modulacion == ModulacionAire::Sonda) return "Proporcional al nº personas (sonda CO2)";
  if (modulacion == ModulacionAire::SondaEnfriamiento) return "Ventilacion con sonda CO2";
  return "Ventilacion fijada en coef, operacionales";
}

// Sin unidad de aire sus variables están vacías: la plantilla esconde entonces su tabla.
void SinUnidadDeAire(const char* motivo, Textos& poner) {
  poner("SISTEMASSECUNDARIOS", motivo);
  for (const char* nombre :
       {"NOMBRESECUNDARIO", "TIPOSECUNDARIO", "ZONASECUNDARIO", "POTCALSEC", "POTFRIOSEC",
        "RENDCALSEC", "RENDFRIOSEC", "ENFGRATUITO", "ENFEVAP", "RECEENE", "CONTROLSEC"})
    poner(nombre, "");
}

// La unidad no produce calor ni frío: lo recupera. Sus potencias son 0, y su rendimiento, el del
// recuperador.
void UnidadDeAire(const UnidadTratamientoAire& uta, float eficiencia, Textos& poner) {
  poner("SISTEMASSECUNDARIOS", "");
  poner("NOMBRESECUNDARIO", uta.nombre);
  poner("TIPOSECUNDARIO", uta.todoAire ? "UTA (Sistema todo aire)" : "UTAprimario (aire exterior)");
  poner("ZONASECUNDARIO", "Unica");
  poner("POTCALSEC", 0.0F);
  poner("POTFRIOSEC", 0.0F);
  for (const char* nombre : {"RENDCALSEC", "RENDFRIOSEC"}) {
    if (uta.recuperacion)
      poner(nombre, eficiencia);
    else
      poner(nombre, kNada);
  }
  poner("ENFGRATUITO", SiNo(uta.enfriamientoGratuito));
  poner("ENFEVAP", SiNo(false));
  poner("RECEENE", SiNo(uta.recuperacion));
  poner("CONTROLSEC", uta.control);
}

}  // namespace

std::string PerfilUsoCertificado(int perfilUso) {
  if (perfilUso < kPrimerTerciario) return "residencial-24h-baja";
  if (perfilUso >= kPerfilUsuario) return "perfildeusuario";
  constexpr std::array<const char*, 4> kHoras = {"8h", "12h", "16h", "24h"};
  constexpr std::array<const char*, 3> kCarga = {"baja", "media", "alta"};
  const auto terciario = static_cast<std::size_t>(perfilUso - kPrimerTerciario);
  return std::string("noresidencial-") + kHoras[terciario / kCarga.size()] + "-" +
         kCarga[terciario % kCarga.size()];
}

void VariablesEspacio(const CasoCalculado& caso, std::vector<VBLE>& variables) {
  const DatosGenerales& g = caso.edificio->GetDatosGenerales();
  const Recinto& recinto = caso.edificio->GetRecinto(0);
  Textos poner(variables);
  poner("NOMBREESP", "Espacio");
  poner("SUPERFICIEESP", recinto.Suelo_habitable_m2);
  poner("VOLUMENESP", recinto.Volumen_total_m3);
  poner("PERFILUSO", PerfilUsoCertificado(g.PerfilUso));
  const char* consignas = g.EsResidencial() ? "20-25" : "17/20-25/27";
  poner("ACOND", consignas);
  poner("ACONDESP", consignas);
  poner("VENTILACIONESP", caso.edificio->GetVentilacion().nrenovventilacion);
  const auto uso = static_cast<std::size_t>(g.PerfilUso);
  poner("OPERACIONESP", uso < kNombrePerfilUso.size() ? kNombrePerfilUso[uso] : "");
  poner("POTILU", g.Iluminacion);
  poner("VEEI", g.VEII);
  poner("ILUMINACIONESP", g.Lux);
}

void VariablesAuxiliares(const CasoCalculado& caso, std::vector<VBLE>& variables) {
  const DatosGenerales& g = caso.edificio->GetDatosGenerales();
  const TablasMensuales& meses = caso.resultado->meses;
  Textos poner(variables);
  poner("CONSUMOBOMBAACS", meses.bombas[kACS][0]);
  poner("CONSUMOBOMBACAL", meses.bombas[kCalefaccion][0]);
  poner("CONSUMOBOMBAREF", meses.bombas[kRefrigeracion][0]);
  poner("CONSUMOVENTCAL", meses.ventiladores[kCalefaccion][0]);
  poner("CONSUMOVENTREF", meses.ventiladores[kRefrigeracion][0]);
  poner("CONSUMOVENTREC", meses.ventilacion[0]);
  poner("VENTYBOMB", meses.bombas[kACS][0] + meses.bombas[kCalefaccion][0] +
                         meses.bombas[kRefrigeracion][0] + meses.ventiladores[kCalefaccion][0] +
                         meses.ventiladores[kRefrigeracion][0] + meses.ventilacion[0]);

  poner("TORREREFRIGERACION", g.EsResidencial() ? kSoloTerciario : kNoExisten);
  for (const char* nombre : {"NOMBRETORRE", "TIPOTORRE", "SERVICIOTORRE", "CONSUMOTORRE"})
    poner(nombre, "");
  if (const auto uta = UnidadDeAireDe(*caso.edificio))
    UnidadDeAire(*uta, g.Eficiencia_recuperador, poner);
  else
    SinUnidadDeAire(g.EsResidencial() ? kSoloTerciario : kNoExisten, poner);
}

std::optional<UnidadTratamientoAire> UnidadDeAireDe(const Edificio& edificio) {
  const AjustesUso ajustes = ResolverAjustes(edificio);
  if (ajustes.residencial || ajustes.aire == SistemaAire::Toma) return std::nullopt;
  UnidadTratamientoAire uta;
  uta.todoAire = ajustes.aire == SistemaAire::UTA;
  uta.nombre = uta.todoAire ? "UTA" : "UTAprimario";
  uta.recuperacion = HayRecuperador(ajustes.recuperador);
  uta.enfriamientoGratuito = ajustes.PruebaEnfriamientoGratuito();
  uta.control = ControlAire(ajustes.modulacion);
  return uta;
}

}  // namespace novex
