#include "model/Edificio.h"

#include <algorithm>
#include <ctime>
#include <stdexcept>

#include "base/NumeroTexto.h"

namespace novex {
namespace {

template <typename Lista>
void BorrarElemento(Lista& lista, std::size_t i) {
  static_cast<void>(lista.at(i));
  lista.erase(lista.begin() + static_cast<std::ptrdiff_t>(i));
}

// Fecha de hoy como la escriben los proyectos: "01/10/2026".
std::string FechaDeHoy() {
  const std::time_t ahora = std::time(nullptr);
  std::tm partes{};
  localtime_r(&ahora, &partes);
  std::array<char, 16> texto{};
  const std::size_t n = std::strftime(texto.data(), texto.size(), "%d/%m/%Y", &partes);
  return std::string(texto.data(), n);
}

bool MismaComposicion(const composicion& a, const composicion& b) {
  const auto igualCapa = [](const material* x, const material* y) {
    return x->MismoMaterial(*y) && x->Densidad == y->Densidad &&
           x->CalorEspecifico == y->CalorEspecifico && x->Iniciales == y->Iniciales &&
           x->Resistencia_termica == y->Resistencia_termica &&
           x->Resisvidad_relativa_vapor == y->Resisvidad_relativa_vapor &&
           x->Nombre_material == y->Nombre_material && x->Grupo == y->Grupo &&
           x->Pertenece_a_base_de_datos_CTE == y->Pertenece_a_base_de_datos_CTE &&
           x->Aplicacion == y->Aplicacion;
  };
  return a.nombre == b.nombre && a.U == b.U &&
         std::equal(a.capas.begin(), a.capas.end(), b.capas.begin(), b.capas.end(), igualCapa);
}

template <typename Numero, typename Dar>
bool MismaLista(const Edificio& a, const Edificio& b, Numero numero, Dar dar) {
  if (numero(a) != numero(b)) return false;
  for (std::size_t i = 0; i < numero(a); ++i)
    if (!(dar(a, i) == dar(b, i))) return false;
  return true;
}

}  // namespace

Edificio::Edificio() : recintos_(1), huecos_(1) {
  generales_.Fecha = FechaDeHoy();
}

Edificio::~Edificio() = default;

void Edificio::BorrarRecinto(std::size_t i) {
  BorrarElemento(recintos_, i);
}
void Edificio::BorrarHuecos(std::size_t i) {
  BorrarElemento(huecos_, i);
}
void Edificio::BorrarSistema(std::size_t i) {
  BorrarElemento(sistemas_, i);
}

std::size_t Edificio::AnadirMaterial(material nuevo, std::size_t destino) {
  const auto igual = std::find_if(materiales_.begin(), materiales_.end(),
                                  [&](const auto& m) { return m->MismoMaterial(nuevo); });
  const auto indice = static_cast<std::size_t>(igual - materiales_.begin());
  if (igual == materiales_.end()) {
    nuevo.usos = 0;
    materiales_.push_back(std::make_unique<material>(std::move(nuevo)));
  }
  if (destino != kSinDestino) AnadirCapa(destino, indice);
  return indice;
}

std::size_t Edificio::IndiceMaterial(const material* buscado) const {
  const auto it = std::find_if(materiales_.begin(), materiales_.end(),
                               [buscado](const auto& m) { return m.get() == buscado; });
  return static_cast<std::size_t>(it - materiales_.begin());
}

void Edificio::AnadirCapa(std::size_t ranura, std::size_t indice) {
  material* usado = materiales_.at(indice).get();
  composiciones_.at(ranura).capas.push_back(usado);
  ++usado->usos;
}

void Edificio::LimpiarComposicion(std::size_t ranura) {
  composicion& slot = composiciones_.at(ranura);
  for (const material* capa : slot.capas) --materiales_[IndiceMaterial(capa)]->usos;
  slot = composicion{};
  std::erase_if(materiales_, [](const auto& m) { return m->usos == 0; });
}

void Edificio::SetCalculo(std::shared_ptr<calculo> nuevo) {
  if (m_ptrcalculo != nullptr) throw std::logic_error("m_ptrcalculo==NULL");
  m_ptrcalculo = std::move(nuevo);
}

void Edificio::TomarRegistros(Edificio&& otro) {
  recintos_ = std::move(otro.recintos_);
  huecos_ = std::move(otro.huecos_);
  composiciones_ = std::move(otro.composiciones_);
  materiales_ = std::move(otro.materiales_);
  sistemas_ = std::move(otro.sistemas_);
  localizacion_ = std::move(otro.localizacion_);
  climaSitio_ = otro.climaSitio_;
  obstaculos_ = otro.obstaculos_;
  generales_ = std::move(otro.generales_);
  ventilacion_ = std::move(otro.ventilacion_);
  construccion_ = std::move(otro.construccion_);
  instalaciones_ = std::move(otro.instalaciones_);
  estudio_ = std::move(otro.estudio_);
  pantalla_ = std::move(otro.pantalla_);
  QuitarCalculo();
}

std::unique_ptr<Edificio> Edificio::Clonar() const {
  auto clon = std::make_unique<Edificio>();
  clon->localizacion_ = localizacion_;
  clon->climaSitio_ = climaSitio_;
  clon->obstaculos_ = obstaculos_;
  clon->generales_ = generales_;
  clon->ventilacion_ = ventilacion_;
  clon->construccion_ = construccion_;
  clon->instalaciones_ = instalaciones_;
  clon->estudio_ = estudio_;
  clon->pantalla_ = pantalla_;
  clon->recintos_ = recintos_;
  clon->huecos_ = huecos_;
  clon->sistemas_ = sistemas_;
  for (std::size_t i = 0; i < kRanuras; ++i) {
    clon->composiciones_[i].nombre = composiciones_[i].nombre;
    clon->composiciones_[i].U = composiciones_[i].U;
    for (const material* capa : composiciones_[i].capas) clon->AnadirMaterial(*capa, i);
  }
  return clon;
}

bool MismosRegistros(const Edificio& a, const Edificio& b) {
  for (std::size_t i = 0; i < kRanuras; ++i)
    if (!MismaComposicion(a.GetComposicion(i), b.GetComposicion(i))) return false;
  return a.GetLocalizacion() == b.GetLocalizacion() &&
         a.GetObstaculosRemotos() == b.GetObstaculosRemotos() &&
         a.GetDatosGenerales() == b.GetDatosGenerales() &&
         a.GetVentilacion() == b.GetVentilacion() && a.GetConstruccion() == b.GetConstruccion() &&
         a.GetInstalaciones() == b.GetInstalaciones() &&
         a.GetEstudioModificaciones() == b.GetEstudioModificaciones() &&
         a.GetDatosPantalla() == b.GetDatosPantalla() &&
         MismaLista(
             a, b, [](const Edificio& e) { return e.NumeroRecintos(); },
             [](const Edificio& e, std::size_t i) -> const Recinto& { return e.GetRecinto(i); }) &&
         MismaLista(
             a, b, [](const Edificio& e) { return e.NumeroHuecos(); },
             [](const Edificio& e, std::size_t i) -> const Huecos& { return e.GetHuecos(i); }) &&
         MismaLista(
             a, b, [](const Edificio& e) { return e.NumeroSistemas(); },
             [](const Edificio& e, std::size_t i) -> const SistemaResidencial& {
               return e.GetSistema(i);
             });
}

}  // namespace novex
