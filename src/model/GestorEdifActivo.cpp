#include "model/GestorEdifActivo.h"

#include <algorithm>
#include <stdexcept>

namespace novex {
namespace {

constexpr std::size_t kPosicionViejo = 0;
constexpr std::size_t kPosicionReferencia = 1;
constexpr std::size_t kPrimeraMejora = 2;

}  // namespace

std::unique_ptr<Edificio> ClonarEdificio(const Edificio& origen) {
  return origen.Clonar();
}

std::optional<std::size_t> GestorEdifActivo::Posicion(std::string_view nombre) {
  const auto it = std::find(caso::kNombres.begin(), caso::kNombres.end(), nombre);
  if (it == caso::kNombres.end()) return std::nullopt;
  return static_cast<std::size_t>(it - caso::kNombres.begin());
}

void GestorEdifActivo::ActivarCaso(std::string_view nombre) {
  const auto i = Posicion(nombre);
  if (!i) return;
  activo_ = casos_[*i] ? *i : kSinActivo;
}

bool GestorEdifActivo::EsCasoActivo(std::string_view nombre) const {
  const auto i = Posicion(nombre);
  return i && *i == activo_;
}

std::string_view GestorEdifActivo::NombreActivo() const {
  return activo_ == kSinActivo ? std::string_view{} : caso::kNombres[activo_];
}

std::size_t GestorEdifActivo::NumeroCasos() const {
  const auto llenos = std::count_if(casos_.begin() + kPrimeraMejora, casos_.end(),
                                    [](const auto& c) { return c != nullptr; });
  return 1 + static_cast<std::size_t>(llenos);
}

std::string_view GestorEdifActivo::NombreCasoUsuario(std::size_t i) {
  return i == 0 ? caso::kViejo : caso::kNombres.at(i + kPrimeraMejora - 1);
}

Edificio& GestorEdifActivo::Activo() {
  if (activo_ == kSinActivo) throw std::logic_error("No hay ningún caso activo");
  return *casos_[activo_];
}

const Edificio& GestorEdifActivo::Activo() const {
  if (activo_ == kSinActivo) throw std::logic_error("No hay ningún caso activo");
  return *casos_[activo_];
}

Edificio* GestorEdifActivo::Caso(std::string_view nombre) {
  const auto i = Posicion(nombre);
  return i ? casos_[*i].get() : nullptr;
}

const Edificio* GestorEdifActivo::Caso(std::string_view nombre) const {
  const auto i = Posicion(nombre);
  return i ? casos_[*i].get() : nullptr;
}

void GestorEdifActivo::BorrarTodos() {
  for (auto& c : casos_) c.reset();
  activo_ = kSinActivo;
}

void GestorEdifActivo::NuevoProyecto() {
  BorrarTodos();
  casos_[kPosicionViejo] = std::make_unique<Edificio>();
  activo_ = kPosicionViejo;
}

void GestorEdifActivo::ReiniciarConservandoSitio() {
  const Localizacion sitio = Activo().GetLocalizacion();
  const DatosClimaticosSitio clima = Activo().GetDatosClimaticosSitio();
  NuevoProyecto();
  Activo().SetLocalizacion(sitio);
  Activo().SetDatosClimaticosSitio(clima);
}

void GestorEdifActivo::CrearCasoVacio(std::string_view nombre) {
  const auto i = Posicion(nombre);
  if (!i || *i < kPrimeraMejora) return;
  casos_[*i] = std::make_unique<Edificio>();
  activo_ = *i;
}

std::string_view GestorEdifActivo::PrimeraMejoraLibre() const {
  for (std::size_t i = kPrimeraMejora; i < casos_.size(); ++i)
    if (!casos_[i]) return caso::kNombres[i];
  return {};
}

std::string_view GestorEdifActivo::AnadirMejora() {
  const std::string_view libre = PrimeraMejoraLibre();
  if (libre.empty()) return {};
  const std::size_t i = *Posicion(libre);
  casos_[i] = ClonarEdificio(Activo());
  activo_ = i;
  return libre;
}

void GestorEdifActivo::CrearReferencia() {
  if (!casos_[kPosicionViejo]) throw std::logic_error("No hay caso base");
  casos_[kPosicionReferencia] = ClonarEdificio(*casos_[kPosicionViejo]);
}

void GestorEdifActivo::CorrerMejoras(std::size_t desde) {
  for (std::size_t i = desde; i + 1 < casos_.size() && casos_[i + 1]; ++i) {
    casos_[i] = ClonarEdificio(*casos_[i + 1]);
    casos_[i + 1].reset();
  }
}

void GestorEdifActivo::EliminarCaso(std::string_view nombre) {
  const auto i = Posicion(nombre);
  if (!i || !casos_[*i]) return;
  casos_[*i].reset();
  if (*i == kPosicionReferencia) {
    if (activo_ == *i) activo_ = kSinActivo;
    return;
  }
  if (*i == kPosicionViejo) {
    if (casos_[kPrimeraMejora]) {
      casos_[kPosicionViejo] = ClonarEdificio(*casos_[kPrimeraMejora]);
      casos_[kPrimeraMejora].reset();
    }
    CorrerMejoras(kPrimeraMejora);
  } else {
    CorrerMejoras(*i);
  }
  ActivarCaso(caso::kViejo);
}

}  // namespace novex
