#include "shell/cli/CalculoConsola.h"

#include <algorithm>

#include "calculation/ComprobacionesPrevias.h"
#include "calculation/EjecutarCalculo.h"

namespace novex::cli {

std::vector<std::string> CasosDe(const GestorEdifActivo& gestor) {
  std::vector<std::string> nombres;
  for (std::size_t i = 0; i < gestor.NumeroCasos(); ++i)
    nombres.emplace_back(GestorEdifActivo::NombreCasoUsuario(i));
  return nombres;
}

std::vector<std::string> CasosPedidos(const GestorEdifActivo& gestor, const std::string& caso) {
  std::vector<std::string> nombres = CasosDe(gestor);
  if (caso.empty()) return nombres;
  if (std::find(nombres.begin(), nombres.end(), caso) != nombres.end()) return {caso};
  std::string hay;
  for (const std::string& nombre : nombres) hay += (hay.empty() ? "" : ", ") + nombre;
  throw ErrorUso("El proyecto no tiene el caso \"" + caso + "\"; tiene: " + hay);
}

bool SePuedenCalcular(const GestorEdifActivo& gestor, const std::vector<std::string>& nombres,
                      Mensajes& mensajes) {
  bool pueden = true;
  for (const std::string& nombre : nombres)
    for (const Mensaje& aviso : AvisosPrevios(*gestor.Caso(nombre))) {
      const std::string caso = gestor.NumeroCasos() > 1 ? NombreMostrado(nombre) + ": " : "";
      mensajes.Avisar(caso + aviso.titulo, aviso.texto);
      pueden = false;
    }
  return pueden;
}

std::vector<CasoCalculado> CalcularCasos(GestorEdifActivo& gestor,
                                         const std::vector<std::string>& nombres,
                                         FicherosPrograma& ficheros, MensajesConsola& mensajes,
                                         bool ficherosDeCaso) {
  Progreso progreso;
  Entorno entorno{ficheros, mensajes, progreso, ficherosDeCaso};
  std::vector<CasoCalculado> calculados;
  for (const std::string& nombre : nombres) {
    Edificio& edificio = *gestor.Caso(nombre);
    if (!CalcularCaso(gestor, nombre, entorno)) return {};
    // Sin volumen de depósito falta el agua caliente: lo demás no se enseña.
    if (edificio.GetCalculo()->resultados.depositoNulo) return {};
    calculados.push_back({nombre, &edificio, edificio.GetCalculo().get(), mensajes.Tomar()});
  }
  return calculados;
}

}  // namespace novex::cli
