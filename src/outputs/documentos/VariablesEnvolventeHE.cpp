#include "outputs/documentos/VariablesEnvolventeHE.h"

#include <algorithm>

namespace novex {
namespace {

// Nombres de las trece filas de transmitancias máximas; la duodécima no tiene. Las dos de
// vidrio comparten el suyo, así que se ve la primera.
constexpr std::array<const char*, kFilasMaximo> kSufijosMaximo = {
    "ME", "ST", "MT", "MO", "SE", "TE", "VE", "VE", "SI", "MI", "VEPER1", nullptr, "VEPER2"};
// La última fila se enseña además con este.
constexpr const char* kSufijoPermeabilidad = "VEPER";

constexpr std::array<const char*, kPuentes> kSufijosPuente = {
    "FORJADO", "CUBIERTA", "SUELO", "ESQUINA", "VENTANA", "PILAR", "TERRENO"};

// Columnas de las tablas de la verificación.
enum ColumnaMaximo : std::size_t { kUProyecto = 1, kUMaxima, kCumpleMaximo };
enum ColumnaPuente : std::size_t { kFRsi = 2, kFRsiMin, kCumplePuente };
enum ColumnaCondensacion : std::size_t { kTipo, kNombre, kF1, kF2, kCapa0 };

void Transmitancias(const TransmitanciasMaximas& maximas, std::vector<VBLE>& variables) {
  const auto fila = [&](const std::string& sufijo, const std::vector<Celda>& celdas) {
    variables.push_back({"UMAX" + sufijo, TextoHtml(celdas[kUProyecto].texto)});
    variables.push_back({"ULIM" + sufijo, TextoHtml(celdas[kUMaxima].texto)});
    variables.push_back({"CUMPLE" + sufijo, TextoHtml(celdas[kCumpleMaximo].texto)});
  };
  const auto& filas = maximas.SGValorMaximo.filas;
  for (std::size_t i = 0; i < std::min(filas.size(), kSufijosMaximo.size()); ++i)
    if (kSufijosMaximo[i] != nullptr) fila(kSufijosMaximo[i], filas[i]);
  if (!filas.empty()) fila(kSufijoPermeabilidad, filas.back());
}

void Puentes(const VerificacionCondensacion& condensacion, std::vector<VBLE>& variables) {
  const auto& filas = condensacion.tablaPuentes.filas;
  for (std::size_t i = 0; i < std::min(filas.size(), kSufijosPuente.size()); ++i) {
    const std::string sufijo = kSufijosPuente[i];
    variables.push_back({"FRSI" + sufijo, TextoHtml(filas[i][kFRsi].texto)});
    variables.push_back({"FRSIMIN" + sufijo, TextoHtml(filas[i][kFRsiMin].texto)});
    variables.push_back({"CUMPLIMIENTO" + sufijo, TextoHtml(filas[i][kCumplePuente].texto)});
  }
}

CONDENSACION_COMPO FilaCondensacion(const std::vector<Celda>& celdas) {
  CONDENSACION_COMPO fila;
  fila.Tipo = TextoHtml(celdas[kTipo].texto);
  fila.Nombre = TextoHtml(celdas[kNombre].texto);
  fila.F1 = TextoHtml(celdas[kF1].texto);
  fila.F2 = TextoHtml(celdas[kF2].texto);
  for (std::size_t i = 0; i < kCapasCondensacion; ++i)
    fila.CAPA[i] = TextoHtml(celdas[kCapa0 + i].texto);
  fila.Cumplimiento = TextoHtml(celdas.back().texto);
  return fila;
}

}  // namespace

void VariablesEnvolventeHE(const VerificacionHE& verificacion, NOVEX_TO_MODELOCERTIFICADO& modelo) {
  Transmitancias(verificacion.maximas, modelo.variables);
  Puentes(verificacion.condensacion, modelo.variables);
  for (const auto& celdas : verificacion.condensacion.tablaCerramientos.filas)
    modelo.condensaciones.push_back(FilaCondensacion(celdas));
}

}  // namespace novex
