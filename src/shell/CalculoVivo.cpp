#include "shell/CalculoVivo.h"

#include <exception>

#include "rating/Escala.h"

namespace novex {
namespace {

// Horas que se simulan entre dos miradas al reloj: bastante menos de un milisegundo.
constexpr int kHorasPorPaso = 48;

std::string LetraDe(const ResultadosCaso& r, Indicador indicador) {
  return r.escala.letra[static_cast<std::size_t>(indicador)];
}

}  // namespace

std::unique_ptr<GestorEdifActivo> CopiarProyecto(const GestorEdifActivo& gestor,
                                                 const std::string& activo) {
  auto copia = std::make_unique<GestorEdifActivo>();
  copia->NuevoProyecto();
  copia->Caso(caso::kViejo)->TomarRegistros(std::move(*gestor.Caso(caso::kViejo)->Clonar()));
  if (activo != caso::kViejo) {
    copia->CrearCasoVacio(activo);
    copia->Caso(activo)->TomarRegistros(std::move(*gestor.Caso(activo)->Clonar()));
  }
  return copia;
}

ResumenVivo ResumirCaso(const calculo& caso) {
  const ResultadosCaso& r = caso.resultados;
  ResumenVivo resumen;
  resumen.letraPrimaria = LetraDe(r, Indicador::EPriNoRTotales);
  resumen.letraEmisiones = LetraDe(r, Indicador::EmisionesTotales);
  resumen.primaria = r.total[kPrimariaNoRenovable];
  resumen.emisiones = r.total[kEmisiones];
  resumen.demandaCalefaccion = r.demandaCalefaccion;
  resumen.demandaRefrigeracion = r.demandaRefrigeracion;
  resumen.demandaACS = r.demandaACS;
  if (r.horasOcupacion > 0.0F)
    resumen.fueraDeConsigna =
        (r.horasFueraCalefaccion + r.horasFueraRefrigeracion) * 100.0F / r.horasOcupacion;
  return resumen;
}

void CalculoVivo::Empezar(const GestorEdifActivo& gestor) {
  Parar();
  motivo_.reset();
  fallo_.clear();
  const auto impedimentos = TodasLasComprobaciones(gestor.Activo());
  if (!impedimentos.empty()) {
    motivo_ = impedimentos.back();
    estado_ = Estado::Rechazado;
    return;
  }
  nombre_ = gestor.NombreActivo();
  copia_ = CopiarProyecto(gestor, nombre_);
  mensajes_.recibidos.clear();
  entorno_ = std::make_unique<Entorno>(Entorno{ficheros_, mensajes_, progreso_});
  tramos_ = std::make_unique<CalculoPorTramos>(*copia_, nombre_, *entorno_);
  estado_ = Estado::Calculando;
}

void CalculoVivo::Parar() {
  tramos_.reset();
  entorno_.reset();
  copia_.reset();
  if (estado_ == Estado::Calculando) estado_ = Estado::Parado;
}

void CalculoVivo::Acabar() {
  if (tramos_->Calculado()) {
    anterior_ = std::move(resumen_);
    resumen_ = ResumirCaso(*copia_->Caso(nombre_)->GetCalculo());
    estado_ = Estado::Hecho;
  } else {
    fallo_ =
        mensajes_.recibidos.empty() ? "No se ha podido calcular" : mensajes_.recibidos.back().texto;
    estado_ = Estado::Fallido;
  }
  Parar();
}

bool CalculoVivo::Avanzar(std::chrono::milliseconds rato) {
  if (estado_ != Estado::Calculando) return false;
  const auto fin = std::chrono::steady_clock::now() + rato;
  try {
    do {
      if (!tramos_->Avanzar(kHorasPorPaso)) {
        Acabar();
        return false;
      }
    } while (std::chrono::steady_clock::now() < fin);
  } catch (const std::exception& error) {
    // Una edición a medias puede no tener sentido físico: se dice y se espera a la siguiente.
    fallo_ = error.what();
    estado_ = Estado::Fallido;
    Parar();
    return false;
  }
  return true;
}

void CalculoVivo::Olvidar() {
  Parar();
  resumen_.reset();
  anterior_.reset();
  motivo_.reset();
  fallo_.clear();
  estado_ = Estado::Parado;
}

}  // namespace novex
