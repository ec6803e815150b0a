#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "files/xmlParser.h"

namespace novex {

/// Un municipio de la lista.
struct Municipio {
  std::string provincia;
  std::string nombre;
  int altitud = 0;            ///< m
  std::string latitud;        ///< grados, como la trae la lista
  std::string letra;          ///< de invierno
  std::string cifra;          ///< de verano; puede faltar
  std::string zonaRadiacion;  ///< en números romanos

  /// Zona climática, con la "c" de los climas extrapeninsulares en las provincias que la llevan.
  std::string ZonaClimatica() const;
};

/// ¿Es de las provincias cuya zona lleva la "c" final?
bool EsExtrapeninsular(std::string_view provincia);

/// Municipios con su altitud, latitud y zonas, sobre `ZONACLIMATICATEMPYRAD.xml`.
class CatalogoMunicipios {
 public:
  /// \param raiz elemento `ZONACLIMATICATEMPYRAD`. Una fila sin altitud que sea un número no cuenta
  explicit CatalogoMunicipios(const XMLNode& raiz);

  /// El primero con esa provincia y ese nombre exactos, o nulo.
  const Municipio* Exacto(std::string_view provincia, std::string_view nombre) const;
  /// Provincias, por orden alfabético.
  std::vector<std::string> Provincias() const;
  /// Municipios de una provincia, en el orden de la lista.
  std::vector<const Municipio*> DeProvincia(std::string_view provincia) const;
  /// Municipios cuyo nombre, o la parte que sigue a una barra, un paréntesis o un guion, empieza
  /// por las letras dadas, sin distinguir mayúsculas ni acentos. Primero los que empiezan por ellas
  /// desde el principio. \param provincia si no está vacía, la provincia ha de empezar por ella
  std::vector<const Municipio*> Empiezan(std::string_view letras,
                                         std::string_view provincia = {}) const;
  /// El municipio que un usuario quiere decir: el de nombre igual sin distinguir mayúsculas ni
  /// acentos, o el único que empieza por esas letras; nulo si no hay ninguno o hay varios.
  const Municipio* Elegir(std::string_view provincia, std::string_view nombre) const;

 private:
  std::vector<Municipio> municipios_;
};

}  // namespace novex
