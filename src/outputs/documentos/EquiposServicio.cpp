#include "outputs/documentos/EquiposServicio.h"

#include <array>

#include "rating/EquipoDefecto.h"
#include "systems/GeneradorPreparado.h"

namespace novex {
namespace {

using C = ClaseGenerador;

constexpr const char* kSustitucion = "Sistema sustitución";
constexpr const char* kClaseSustitucion = "Rend. constante";
constexpr const char* kClaseBomba = "BC aire-agua";
constexpr const char* kClaseCaldera = "Caldera";
constexpr const char* kClaseEstacional = "Rend. estacional";
// Con que empiezan las clases que se cuentan por generadores: "1 Caldera".
constexpr std::string_view kCuenta = "1 ";

float Cociente(float a, float b) {
  return b > 0.0F ? a / b : 0.0F;
}

bool DaServicio(TipoSistema tipo, Servicio servicio) {
  if (servicio == kACS) return DaACS(tipo);
  return servicio == kCalefaccion ? DaCalefaccion(tipo) : DaRefrigeracion(tipo);
}

std::string NombreClase(const GeneradorPreparado& g, int generador) {
  if (g.clase == C::BombaCalorCaldera) return generador == 1 ? kClaseBomba : kClaseCaldera;
  if (g.clase == C::EstacionalConocido) return kClaseEstacional;
  const std::string_view seleccion = g.datos->Seleccion;
  return std::string(seleccion.starts_with(kCuenta) ? seleccion.substr(kCuenta.size()) : seleccion);
}

bool EsDeCompresion(C clase, Servicio servicio, int generador) {
  if (servicio == kRefrigeracion) return !EsEstacional(clase);
  return clase == C::BombaCalor || clase == C::BombaDedicada || EsAireAire(clase) ||
         (clase == C::BombaCalorCaldera && generador == 1);
}

// Potencia de un equipo, kW, y su rendimiento nominal.
struct Nominales {
  float potencia, rendimiento;
};

Nominales NominalesDeCalor(const GeneradorPreparado& g, Servicio servicio, int generador) {
  const Instalaciones& i = *g.datos;
  const Nominales bomba = {i.QcalorBC1, Cociente(i.QcalorBC1, i.WeCalor1)};
  if (EsAireAire(g.clase)) return bomba;
  switch (g.clase) {
    case C::Calentador:
    case C::Caldera:
    case C::CalderaMixta:
      return {i.QcalorCaldera1, i.RendCalor1};
    case C::BombaCalor:
      return bomba;
    case C::BombaCalorCaldera:
      return generador == 1 ? bomba : Nominales{i.QcalorCaldera2, i.RendCalor2};
    case C::BombaDedicada:
      return {i.QcalorBC1, i.SCOP};
    case C::Termo:
    case C::Interacumulador:
      return {i.QApoyoEquipo, 1.0F};
    case C::Radiadores:
      return {i.RadiadorElectrico, 1.0F};
    case C::EstacionalConocido:
      return {0.0F, servicio == kACS ? i.RendACSEst : i.RendCalorEst};
    default:
      return {0.0F, EsEstacional(g.clase) ? i.RendCalorEst : 0.0F};
  }
}

Nominales NominalesDe(const GeneradorPreparado& g, Servicio servicio, int generador) {
  const Instalaciones& i = *g.datos;
  if (servicio != kRefrigeracion) return NominalesDeCalor(g, servicio, generador);
  if (EsEstacional(g.clase)) return {0.0F, i.RendFrioEst};
  return {i.QFrioTot1, Cociente(i.QFrioTot1, i.WeFrio1)};
}

GeneradorServicio Generador(const GeneradorPreparado& g, Servicio servicio, int generador,
                            const SumasBloque& sumas) {
  GeneradorServicio s;
  s.servicio = servicio;
  s.generador = generador;
  s.clase = NombreClase(g, generador);
  s.equipos = g.datos->NEquipos;
  const Nominales nominales = NominalesDe(g, servicio, generador);
  s.potencia = static_cast<float>(s.equipos) * nominales.potencia;
  s.rendimientoNominal = nominales.rendimiento;
  const auto n = static_cast<std::size_t>(generador - 1);
  s.dado = sumas.dado[n][servicio];
  s.consumido = sumas.consumo[n][servicio];
  const float estacional = Cociente(s.dado, s.consumido);
  if (estacional > 0.0F) s.rendimientoEstacional = estacional;
  s.vector = generador == 1 ? g.vector1 : g.vector2;
  s.bombaDeCalor = EsDeCompresion(g.clase, servicio, generador);
  return s;
}

// Un caso sin simular no tiene sumas.
SumasBloque SumasDeBloque(const calculo& caso, std::size_t bloque) {
  return bloque < caso.sumasBloques.size() ? caso.sumasBloques[bloque] : SumasBloque{};
}

GeneradorServicio Sustitucion(const calculo& caso, Servicio servicio, bool residencial) {
  GeneradorServicio s;
  s.servicio = servicio;
  s.unidad = kSustitucion;
  s.clase = kClaseSustitucion;
  s.rendimientoNominal = caso.resultados.defecto.rendimiento[servicio];
  s.consumido = caso.meses.defecto[servicio][0];
  s.dado = s.consumido * s.rendimientoNominal;
  s.vector = VectorDefecto(servicio, residencial);
  s.sustitucion = true;
  return s;
}

}  // namespace

std::string_view SiglaServicio(std::size_t servicio) {
  constexpr std::array<std::string_view, kServicios> kSiglas = {"ACS", "CAL", "REF", "VEN", "ILU"};
  return kSiglas.at(servicio);
}

std::string GeneradorServicio::Etiqueta() const {
  return sustitucion ? clase : std::to_string(equipos) + "x) " + clase;
}

std::vector<GeneradorServicio> GeneradoresDeServicio(const CasoCalculado& caso, Servicio servicio) {
  const Edificio& edificio = *caso.edificio;
  const calculo& resultado = *caso.resultado;
  std::vector<GeneradorServicio> generadores;
  std::size_t bloque = 0;
  for (std::size_t n = 0; n < edificio.NumeroSistemas(); ++n) {
    const SistemaResidencial& sistema = edificio.GetSistema(n);
    for (const Instalaciones& instalacion : sistema.instalaciones) {
      const std::size_t este = bloque++;
      const GeneradorPreparado g(edificio, sistema, instalacion, static_cast<int>(n) + 1);
      if (!DaServicio(g.tipo, servicio)) continue;
      const bool dos = g.clase == C::BombaCalorCaldera && servicio != kRefrigeracion;
      for (int k = 1; k <= (dos ? 2 : 1); ++k) {
        GeneradorServicio& s =
            generadores.emplace_back(Generador(g, servicio, k, SumasDeBloque(resultado, este)));
        s.sistema = n;
        s.bloque = este;
        s.unidad = sistema.Nombre_sistema;
      }
    }
  }
  const DatosGenerales& generales = edificio.GetDatosGenerales();
  if (ModoDefectoDe(generales.Equipos_Defecto) == ModoDefecto::Si &&
      resultado.meses.defecto[servicio][0] > 0.0F)
    generadores.push_back(Sustitucion(resultado, servicio, generales.EsResidencial()));
  return generadores;
}

float PotenciaTotal(const std::vector<GeneradorServicio>& generadores) {
  float kW = 0;
  for (const GeneradorServicio& g : generadores) kW += g.potencia;
  return kW;
}

}  // namespace novex
