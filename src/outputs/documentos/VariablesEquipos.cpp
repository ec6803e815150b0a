#include "outputs/documentos/VariablesEquipos.h"

#include <array>

#include "outputs/documentos/VariablesCalificacion.h"

namespace novex {
namespace {

constexpr const char* kDelUsuario = "Definido por usuario";
constexpr const char* kPorDefecto = "Definido por defecto";

// Dónde va un servicio: su lista y las dos variables de su potencia.
struct DestinoServicio {
  Servicio servicio;
  std::vector<EQUIPO> NOVEX_TO_MODELOCERTIFICADO::*lista;
  const char* total;
  const char* nominal;
};
constexpr std::array kDestinos = {
    DestinoServicio{kCalefaccion, &NOVEX_TO_MODELOCERTIFICADO::equiposCalefaccion, "TOTALPOTCAL",
                    "POTNOMCALEF"},
    DestinoServicio{kRefrigeracion, &NOVEX_TO_MODELOCERTIFICADO::equiposRefrigeracion,
                    "TOTALPOTREF", "POTNOMREFRIG"},
    DestinoServicio{kACS, &NOVEX_TO_MODELOCERTIFICADO::equiposACS, "TOTALPOTACS", "POTNOMACS"}};

std::string TextoRendimiento(float razon, FormaRendimiento forma) {
  return CifraDocumento(forma == FormaRendimiento::TantoPorCiento ? razon * 100.0F : razon);
}

EQUIPO Fila(const GeneradorServicio& g, FormaRendimiento forma) {
  EQUIPO fila;
  fila.nombre = TextoHtml(g.unidad);
  fila.generador = TextoHtml(g.Etiqueta());
  fila.rendimientoNominal = TextoRendimiento(g.rendimientoNominal, forma);
  if (g.vector) fila.vector = kNombreVector[Indice(*g.vector)];
  if (!g.sustitucion) fila.potencia = CifraDocumento(g.potencia);
  fila.rendimientoEstacional = TextoRendimientoEstacional(g, forma);
  return fila;
}

}  // namespace

std::string TextoRendimientoEstacional(const GeneradorServicio& generador, FormaRendimiento forma) {
  if (generador.sustitucion) return kPorDefecto;
  if (!generador.rendimientoEstacional) return kDelUsuario;
  return TextoRendimiento(*generador.rendimientoEstacional, forma);
}

void VariablesEquipos(const CasoCalculado& caso, FormaRendimiento forma,
                      NOVEX_TO_MODELOCERTIFICADO& modelo) {
  for (const DestinoServicio& d : kDestinos) {
    const auto generadores = GeneradoresDeServicio(caso, d.servicio);
    for (const GeneradorServicio& g : generadores) (modelo.*d.lista).push_back(Fila(g, forma));
    const std::string kW = CifraDocumento(PotenciaTotal(generadores));
    modelo.variables.push_back({d.total, kW});
    modelo.variables.push_back({d.nominal, kW});
  }
}

}  // namespace novex
