#include "calculation/CalculoPorTramos.h"

#include "calculation/ComprobarDatos.h"
#include "calculation/EjecutarCalculo.h"
#include "calculation/PrepararCaso.h"

namespace novex {

CalculoPorTramos::CalculoPorTramos(GestorEdifActivo& gestor, std::string nombreCaso,
                                   Entorno& entorno)
    : gestor_(gestor), nombre_(std::move(nombreCaso)), entorno_(entorno) {}

CalculoPorTramos::~CalculoPorTramos() = default;

bool CalculoPorTramos::Preparar(Edificio& edificio) {
  ComprobarDatosDeEntrada(edificio);
  const AjustesUso ajustes = ResolverAjustes(edificio);
  calculo& caso = CalculoDe(edificio);
  if (!PrepararCaso(edificio, ajustes, entorno_, caso)) return false;
  QuitarServiciosForzados(caso.resultados.forzados);
  simulacion_ = std::make_unique<SimulacionCaso>(edificio, ajustes, caso, entorno_.mensajes);
  return true;
}

// Simulado el caso, y la referencia si la necesita, queda calificarlo.
void CalculoPorTramos::Acabar() {
  const bool hecho = CalcularCaso(gestor_, nombre_, entorno_) &&
                     !gestor_.Caso(nombre_)->GetCalculo()->resultados.depositoNulo;
  fase_ = hecho ? Fase::Acabado : Fase::Fallido;
}

bool CalculoPorTramos::Avanzar(int horas) {
  Edificio& edificio = *gestor_.Caso(nombre_);
  switch (fase_) {
    case Fase::Preparar:
      fase_ = Preparar(edificio) ? Fase::Simular : Fase::Fallido;
      break;
    case Fase::PrepararReferencia:
      CrearEdificioReferencia(gestor_);
      fase_ = Preparar(*gestor_.Caso(caso::kReferencia)) ? Fase::SimularReferencia : Fase::Fallido;
      break;
    case Fase::Simular:
    case Fase::SimularReferencia: {
      if (simulacion_->Avanzar(horas)) break;
      simulacion_->Terminar();
      simulacion_.reset();
      const bool referencia = fase_ == Fase::SimularReferencia;
      ComprobarResultados(*gestor_.Caso(referencia ? caso::kReferencia : nombre_)->GetCalculo());
      if (!referencia && NecesitaReferencia(edificio.GetDatosGenerales()))
        fase_ = Fase::PrepararReferencia;
      else
        Acabar();
      break;
    }
    case Fase::Acabado:
    case Fase::Fallido:
      break;
  }
  return fase_ != Fase::Acabado && fase_ != Fase::Fallido;
}

int CalculoPorTramos::Porcentaje() const {
  if (fase_ == Fase::Acabado || fase_ == Fase::Fallido) return 100;
  const bool dos = NecesitaReferencia(gestor_.Caso(nombre_)->GetDatosGenerales());
  const bool segunda = fase_ == Fase::PrepararReferencia || fase_ == Fase::SimularReferencia;
  const int parte = simulacion_ ? simulacion_->Porcentaje() : 0;
  return dos ? (parte + (segunda ? 100 : 0)) / 2 : parte;
}

}  // namespace novex
