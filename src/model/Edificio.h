#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "model/Construccion.h"
#include "model/DatosGenerales.h"
#include "model/DatosPantalla.h"
#include "model/EstudioModificaciones.h"
#include "model/Huecos.h"
#include "model/Localizacion.h"
#include "model/Recinto.h"
#include "model/SistemaResidencial.h"
#include "model/TablaEnvolvente.h"
#include "model/Ventilacion.h"
#include "model/material.h"

namespace novex {

class calculo;

/// Un caso completo del edificio. Los registros se sacan, se cambian y se vuelven a guardar
/// enteros; las listas dan sus elementos para cambiarlos.
class Edificio {
 public:
  /// Un edificio en blanco: un recinto, un grupo de huecos y 52 composiciones sin definir.
  Edificio();
  Edificio(const Edificio&) = delete;
  Edificio& operator=(const Edificio&) = delete;
  ~Edificio();

  // Recintos, huecos, composiciones, materiales y sistemas. Un índice que no existe da
  // std::out_of_range.
  Recinto& GetRecinto(std::size_t i) { return recintos_.at(i); }
  const Recinto& GetRecinto(std::size_t i) const { return recintos_.at(i); }
  std::size_t NumeroRecintos() const { return recintos_.size(); }
  void AnadirRecinto(Recinto recinto) { recintos_.push_back(std::move(recinto)); }
  void BorrarRecinto(std::size_t i);

  Huecos& GetHuecos(std::size_t i) { return huecos_.at(i); }
  const Huecos& GetHuecos(std::size_t i) const { return huecos_.at(i); }
  std::size_t NumeroHuecos() const { return huecos_.size(); }
  void AnadirHuecos(Huecos huecos) { huecos_.push_back(std::move(huecos)); }
  void BorrarHuecos(std::size_t i);

  composicion& GetComposicion(std::size_t i) { return composiciones_.at(i); }
  const composicion& GetComposicion(std::size_t i) const { return composiciones_.at(i); }

  const material& GetMaterial(std::size_t i) const { return *materiales_.at(i); }
  std::size_t NumeroMateriales() const { return materiales_.size(); }

  SistemaResidencial& GetSistema(std::size_t i) { return sistemas_.at(i); }
  const SistemaResidencial& GetSistema(std::size_t i) const { return sistemas_.at(i); }
  std::size_t NumeroSistemas() const { return sistemas_.size(); }
  void AnadirSistema(SistemaResidencial sistema) { sistemas_.push_back(std::move(sistema)); }
  void BorrarSistema(std::size_t i);

  /// Mete un material en el almacén, o usa el igual que ya haya; con `destino` lo añade como última
  /// capa de esa composición y cuenta el uso.
  /// \param destino posición de la envolvente, o `kSinDestino`
  /// \returns índice en el almacén del material usado
  static constexpr std::size_t kSinDestino = static_cast<std::size_t>(-1);
  std::size_t AnadirMaterial(material nuevo, std::size_t destino = kSinDestino);
  /// Índice en el almacén de un material de este caso; `NumeroMateriales()` si no está.
  std::size_t IndiceMaterial(const material* buscado) const;
  /// Añade a una composición, como última capa, el material `indice` del almacén y cuenta el uso.
  void AnadirCapa(std::size_t ranura, std::size_t indice);
  /// Deja una composición sin definir y quita del almacén los materiales que ya nadie usa.
  void LimpiarComposicion(std::size_t ranura);

  const Localizacion& GetLocalizacion() const { return localizacion_; }
  void SetLocalizacion(Localizacion r) { localizacion_ = std::move(r); }
  const DatosClimaticosSitio& GetDatosClimaticosSitio() const { return climaSitio_; }
  void SetDatosClimaticosSitio(const DatosClimaticosSitio& r) { climaSitio_ = r; }
  const ObstaculosRemotos& GetObstaculosRemotos() const { return obstaculos_; }
  void SetObstaculosRemotos(const ObstaculosRemotos& r) { obstaculos_ = r; }
  const DatosGenerales& GetDatosGenerales() const { return generales_; }
  void SetDatosGenerales(DatosGenerales r) { generales_ = std::move(r); }
  const Ventilacion& GetVentilacion() const { return ventilacion_; }
  void SetVentilacion(Ventilacion r) { ventilacion_ = std::move(r); }
  const Construccion& GetConstruccion() const { return construccion_; }
  void SetConstruccion(Construccion r) { construccion_ = std::move(r); }
  const Instalaciones& GetInstalaciones() const { return instalaciones_; }
  void SetInstalaciones(Instalaciones r) { instalaciones_ = std::move(r); }
  const EstudioModificaciones& GetEstudioModificaciones() const { return estudio_; }
  void SetEstudioModificaciones(EstudioModificaciones r) { estudio_ = std::move(r); }
  const DatosPantalla& GetDatosPantalla() const { return pantalla_; }
  void SetDatosPantalla(DatosPantalla r) { pantalla_ = std::move(r); }

  /// Da al caso su objeto de cálculo. \throws std::logic_error "m_ptrcalculo==NULL" si ya tiene
  /// uno.
  void SetCalculo(std::shared_ptr<calculo> nuevo);
  /// El objeto de cálculo del caso, o nulo si no se le ha dado.
  const std::shared_ptr<calculo>& GetCalculo() const { return m_ptrcalculo; }
  /// Deja el caso sin objeto de cálculo, para darle otro.
  void QuitarCalculo() { m_ptrcalculo.reset(); }

  /// Toma los registros y las listas de otro edificio, que queda sin uso. El objeto de cálculo del
  /// caso se quita: sus resultados ya no son de estos datos.
  void TomarRegistros(Edificio&& otro);

  /// Copia profunda del caso, sin objeto de cálculo y con el almacén de materiales rehecho por
  /// orden de primer uso.
  std::unique_ptr<Edificio> Clonar() const;

 private:
  std::vector<Recinto> recintos_;
  std::vector<Huecos> huecos_;
  std::array<composicion, kRanuras> composiciones_;
  std::vector<std::unique_ptr<material>> materiales_;
  std::vector<SistemaResidencial> sistemas_;
  Localizacion localizacion_;
  DatosClimaticosSitio climaSitio_;
  ObstaculosRemotos obstaculos_;
  DatosGenerales generales_;
  Ventilacion ventilacion_;
  Construccion construccion_;
  std::shared_ptr<calculo> m_ptrcalculo;
  Instalaciones instalaciones_;
  EstudioModificaciones estudio_;
  DatosPantalla pantalla_;
};

/// ¿Tienen dos casos los mismos registros, listas y composiciones? No mira el cálculo.
bool MismosRegistros(const Edificio& a, const Edificio& b);

}  // namespace novex
