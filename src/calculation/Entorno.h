#pragma once

#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <tuple>

#include "base/EspacioTrabajo.h"
#include "base/Mensajes.h"
#include "base/Progreso.h"
#include "demand/Clima.h"
#include "demand/CoeficientesRespuesta.h"
#include "demand/FicheroMet.h"
#include "files/xmlParser.h"

namespace novex {

/// El cálculo no puede hacerse o ha dado un valor que no es un número. El texto dice qué, dónde y
/// en qué hora.
class ErrorCalculo : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Ficheros de la carpeta de programa que un cálculo lee, cada uno una sola vez y cuando hace
/// falta. No es seguro usarlo desde dos hilos a la vez: cada hilo lleva el suyo.
class FicherosPrograma {
 public:
  explicit FicherosPrograma(EspacioTrabajo espacio) : espacio_(std::move(espacio)) {}

  const EspacioTrabajo& Espacio() const { return espacio_; }
  /// Raíz de un fichero XML de `database/`. \throws ErrorFichero si falta o no se entiende.
  const XMLNode& Xml(const std::string& nombre, const std::string& raiz);
  /// Coeficientes de respuesta de `CoefTransf.xml`. \throws ErrorFichero
  const CoeficientesRespuesta& Respuesta(Mensajes& mensajes);
  /// Año de clima de un fichero, o nulo si no se puede abrir. \throws ErrorFichero si está dañado.
  std::shared_ptr<const FicheroMet> Met(const std::filesystem::path& ruta);
  /// Series de un año de clima con el sol y la respuesta de los cerramientos, sin el retardo
  /// radiante. Es lo más largo de preparar un caso y solo depende del fichero y de los colores: se
  /// guarda la última, que es la que piden de nuevo el siguiente cálculo y los demás casos.
  /// \param met el año de `ruta` \param colorMuros, colorCubiertas posiciones de su lista
  const SeriesClima& Clima(const std::filesystem::path& ruta, const FicheroMet& met, int colorMuros,
                           int colorCubiertas, Mensajes& mensajes);

 private:
  EspacioTrabajo espacio_;
  std::map<std::string, XMLNode> xml_;
  std::map<std::filesystem::path, std::shared_ptr<const FicheroMet>> met_;
  std::optional<CoeficientesRespuesta> respuesta_;
  std::unique_ptr<SeriesClima> clima_;
  std::tuple<std::filesystem::path, int, int> climaDe_;
};

/// Todo lo que un cálculo toma de fuera del edificio.
struct Entorno {
  FicherosPrograma& ficheros;
  Mensajes& mensajes;
  Progreso& progreso;
  bool ficherosDeCaso = false;  ///< escribir además los ficheros de caso en `database/`
};

}  // namespace novex
