#include "shell/EstudioEnCurso.h"

#include <algorithm>
#include <exception>

#include "outputs/PaginaEstudio.h"
#include "shell/CalculoVivo.h"

namespace novex {
namespace {

// Horas que se simulan entre dos miradas al reloj: bastante menos de un milisegundo.
constexpr int kHorasPorPaso = 48;

}  // namespace

void EstudioEnCurso::Empezar(const GestorEdifActivo& gestor, std::vector<int> codigos) {
  Parar();
  fallo_.clear();
  mensajes_.recibidos.clear();
  nombre_ = gestor.NombreActivo();
  codigos_ = std::move(codigos);
  hechos_ = 0;
  inicio_ = std::chrono::steady_clock::now();
  copia_ = CopiarProyecto(gestor, nombre_);
  entorno_ = std::make_unique<Entorno>(Entorno{ficheros_, mensajes_, progreso_});
  if (NecesitaReferencia(gestor.Activo().GetDatosGenerales())) {
    const Edificio* hecha = gestor.Caso(caso::kReferencia);
    if (hecha != nullptr && hecha->GetCalculo() && hecha->GetCalculo()->Calculado()) {
      copia_->CrearReferencia();
      copia_->Caso(caso::kReferencia)->SetCalculo(hecha->GetCalculo());
    } else {
      referencia_ = std::make_unique<CalculoPorTramos>(*copia_, nombre_, *entorno_);
    }
  }
  estado_ = Estado::Calculando;
}

void EstudioEnCurso::Parar() {
  medicion_.reset();
  estudio_.reset();
  referencia_.reset();
  entorno_.reset();
  copia_.reset();
  medidas_.clear();
  if (estado_ == Estado::Calculando) estado_ = Estado::Parado;
}

void EstudioEnCurso::Fallar(std::string motivo) {
  Parar();
  fallo_ = std::move(motivo);
  estado_ = Estado::Fallido;
}

void EstudioEnCurso::Acabar() {
  // Lo medido antes sobre la misma base sigue valiendo.
  MejorasMedidas& medido = medidos_[nombre_];
  if (medido.base != estudio_->Base()) medido.medidas.clear();
  medido.base = estudio_->Base();
  for (ResultadoMedida& m : medidas_) {
    const auto it =
        std::lower_bound(medido.medidas.begin(), medido.medidas.end(), m.codigo,
                         [](const ResultadoMedida& a, int codigo) { return a.codigo < codigo; });
    if (it != medido.medidas.end() && it->codigo == m.codigo)
      *it = std::move(m);
    else
      medido.medidas.insert(it, std::move(m));
  }
  Parar();
  estado_ = Estado::Hecho;
}

// Un paso corto: calcular la referencia, preparar, simular la base o una medida. \returns si quedan
bool EstudioEnCurso::Paso() {
  if (referencia_) {
    if (!referencia_->Avanzar(kHorasPorPaso)) referencia_.reset();
    return true;
  }
  if (!estudio_) {
    estudio_ = EstudioMejoras::Empezar(*copia_, nombre_, *entorno_);
    return estudio_ != nullptr;
  }
  if (!estudio_->HayBase()) {
    if (estudio_->AvanzarBase(kHorasPorPaso)) return true;
    ++hechos_;
    return estudio_->HayBase() && !codigos_.empty();
  }
  if (!medicion_) {
    medicion_ = std::make_unique<MedicionPorTramos>(*estudio_, codigos_[medidas_.size()]);
    return true;
  }
  if (medicion_->Avanzar(kHorasPorPaso)) return true;
  medidas_.push_back(medicion_->Resultado());
  medicion_.reset();
  ++hechos_;
  return medidas_.size() < codigos_.size();
}

bool EstudioEnCurso::Avanzar(std::chrono::milliseconds rato) {
  if (estado_ != Estado::Calculando) return false;
  const auto fin = std::chrono::steady_clock::now() + rato;
  try {
    do {
      if (Paso()) continue;
      if (estudio_ && estudio_->HayBase())
        Acabar();
      else
        Fallar(mensajes_.recibidos.empty() ? "No se ha podido calcular"
                                           : mensajes_.recibidos.back().texto);
      return false;
    } while (std::chrono::steady_clock::now() < fin);
  } catch (const std::exception& error) {
    Fallar(error.what());
    return false;
  }
  return true;
}

std::string EstudioEnCurso::Quedan() const {
  if (estado_ != Estado::Calculando || hechos_ == 0) return {};
  const std::chrono::duration<double> pasado = std::chrono::steady_clock::now() - inicio_;
  return TextoQuedan(pasado.count() / static_cast<double>(hechos_), Pasos() - hechos_);
}

const MejorasMedidas* EstudioEnCurso::Medido(const std::string& nombreCaso,
                                             const ResultadoMedida& base) const {
  const auto it = medidos_.find(nombreCaso);
  return it != medidos_.end() && it->second.base == base ? &it->second : nullptr;
}

}  // namespace novex
