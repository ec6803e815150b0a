#include "calculation/Entorno.h"

#include "base/ErrorFichero.h"
#include "base/FicheroSeguro.h"

namespace novex {

const XMLNode& FicherosPrograma::Xml(const std::string& nombre, const std::string& raiz) {
  const auto it = xml_.find(nombre);
  if (it != xml_.end()) return it->second;
  return xml_.emplace(nombre, XMLNode::loadFile(espacio_.Datos() / nombre, raiz)).first->second;
}

const CoeficientesRespuesta& FicherosPrograma::Respuesta(Mensajes& mensajes) {
  if (!respuesta_)
    respuesta_ = LeerCoeficientesRespuesta(Xml("CoefTransf.xml", "CoefTransf"), mensajes);
  return *respuesta_;
}

std::shared_ptr<const FicheroMet> FicherosPrograma::Met(const std::filesystem::path& ruta) {
  const auto it = met_.find(ruta);
  if (it != met_.end()) return it->second;
  std::error_code sinImportancia;
  if (!std::filesystem::is_regular_file(ruta, sinImportancia)) return nullptr;
  auto met = std::make_shared<const FicheroMet>(LeerMet(LeerFichero(ruta), ruta.string()));
  met_.emplace(ruta, met);
  return met;
}

const SeriesClima& FicherosPrograma::Clima(const std::filesystem::path& ruta, const FicheroMet& met,
                                           int colorMuros, int colorCubiertas, Mensajes& mensajes) {
  auto pedida = std::make_tuple(ruta, colorMuros, colorCubiertas);
  if (clima_ && climaDe_ == pedida) return *clima_;
  auto clima = std::make_unique<SeriesClima>();
  LeerClima(met, *clima);
  CalcularSolYRespuesta(Respuesta(mensajes), colorMuros, colorCubiertas, *clima);
  RedondearClima(*clima);
  clima_ = std::move(clima);
  climaDe_ = std::move(pedida);
  return *clima_;
}

}  // namespace novex
