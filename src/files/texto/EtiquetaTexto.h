#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "files/CamposFichero.h"
#include "files/SeccionesProyecto.h"
#include "files/texto/EstadoTexto.h"
#include "files/texto/VersionTexto.h"

namespace novex {

/// Lo que hace una etiqueta cuyo valor no va sin más a un campo.
using AccionTexto = void (*)(EstadoTexto&, const ValorTexto&);

/// Una fila de la tabla de etiquetas de una sección. Su etiqueta es la de la tercera generación;
/// '@' se cambia por el nombre de cada sector del campo.
struct FilaTexto {
  using Destino =
      std::variant<AccionTexto, Campo<RegistrosCaso>, Campo<Huecos>, Campo<material>, CampoColumna>;

  std::string_view etiqueta;
  Destino destino{};  ///< con una acción nula el valor se lee y no se usa
  FamiliaTexto familia = FamiliaTexto::Ninguna;  ///< su elemento es el tipo del campo
  unsigned generaciones = 7;                     ///< `GeneracionTexto` que la tienen, juntas
  bool porRecinto = false;                       ///< los recintos que siguen al primero suman
  bool esDato = true;                            ///< si falta, se dice

  constexpr FilaTexto En(GeneracionTexto una) const { return En(una, una); }
  constexpr FilaTexto En(GeneracionTexto una, GeneracionTexto otra) const {
    FilaTexto f = *this;
    f.generaciones = static_cast<unsigned>(una) | static_cast<unsigned>(otra);
    return f;
  }
  constexpr FilaTexto PorRecinto() const {
    FilaTexto f = *this;
    f.porRecinto = true;
    return f;
  }
};

/// Fila de un campo, que lleva la etiqueta.
template <class Registro>
constexpr FilaTexto Fila(Campo<Registro> campo, FamiliaTexto familia = FamiliaTexto::Ninguna) {
  return {campo.etiqueta, campo, familia};
}
/// Fila de un texto que ha de ser uno de una lista; otro no cambia el campo.
template <auto... Miembros>
constexpr FilaTexto TextoDeLista(std::string_view etiqueta, ListaTextos lista,
                                 FamiliaTexto familia = FamiliaTexto::Ninguna) {
  auto campo = Texto<Miembros...>(etiqueta);
  campo.lista = lista;
  return Fila(campo, familia);
}
/// Fila de un dato que hace algo más que guardarse.
constexpr FilaTexto Accion(std::string_view etiqueta, AccionTexto accion) {
  return {etiqueta, accion};
}
/// Fila de un número que dice de qué elemento son los campos que siguen, o cuántos hay.
constexpr FilaTexto Control(std::string_view etiqueta, AccionTexto accion) {
  FilaTexto fila = Accion(etiqueta, accion);
  fila.esDato = false;
  return fila;
}
/// Fila de un valor que no se usa.
constexpr FilaTexto Salto(std::string_view etiqueta) {
  return Control(etiqueta, nullptr);
}

/// Acción que pasa al elemento numerado de una familia de `Cuantos`.
template <FamiliaTexto Familia, std::size_t Cuantos>
void PasarAElemento(EstadoTexto& e, const ValorTexto& valor) {
  const int numero =
      e.LeerEntero(valor, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  if (!e.Cursor(Familia).Poner(numero, Cuantos))
    e.Saltar(valor, "no hay tantos; sus datos no se leen");
}
/// Acción que guarda cuántos tipos hay de una familia, que tiene `Cuantos` como mucho.
template <int Construccion::*Cuenta, int Cuantos>
void PonerCuenta(EstadoTexto& e, const ValorTexto& valor) {
  e.r.construccion.*Cuenta = e.LeerEntero(valor, 0, Cuantos);
}
/// Acción que pasa a un recinto; los que siguen al primero suman en él.
void PasarARecinto(EstadoTexto& e, const ValorTexto& valor);
/// Acción de lo que un proyecto de hoy no guarda: se dice en el informe.
void SinSitio(EstadoTexto& e, const ValorTexto& valor);

/// Una etiqueta lista para buscarla en una línea.
struct EtiquetaTexto {
  std::string texto;
  FilaTexto::Destino destino;
  FamiliaTexto familia = FamiliaTexto::Ninguna;
  std::size_t sector = 0;
  bool porRecinto = false;
  bool esDato = true;
};

/// Las etiquetas de una sección, en el orden en que se prueban.
struct SeccionTexto {
  std::string_view nombre;  ///< sin el punto final
  std::vector<EtiquetaTexto> etiquetas;
};

/// Las secciones de una generación, en el orden del fichero.
const std::vector<SeccionTexto>& SeccionesDeTexto(GeneracionTexto generacion);

/// Lleva un valor a su sitio.
void LeerValorTexto(EstadoTexto& e, const EtiquetaTexto& etiqueta, const ValorTexto& valor);

// Las tablas de las secciones, en el orden del fichero.
std::span<const FilaTexto> FilasGenerales();
std::span<const FilaTexto> FilasGeograficos();
std::span<const FilaTexto> FilasGlobales();
std::span<const FilaTexto> FilasPuentes();
std::span<const FilaTexto> FilasCubiertas();
std::span<const FilaTexto> FilasMuros();
std::span<const FilaTexto> FilasSuelos();
std::span<const FilaTexto> FilasHuecos();
/// Las de los huecos por orientación, que siguen a las del grupo.
std::vector<EtiquetaTexto> EtiquetasColumnas();
std::span<const FilaTexto> FilasMateriales();
std::span<const FilaTexto> FilasComposiciones();
std::span<const FilaTexto> FilasPruebas();

/// Guarda un número de huecos o una medida de una columna.
void LeerColumna(EstadoTexto& e, const CampoColumna& campo, const ValorTexto& valor);
/// Mete en el almacén el material que se está leyendo, si lo hay.
void AcabarMaterial(EstadoTexto& e);
/// Lo que se deduce de los datos generales y globales al acabar un caso.
void AcabarGenerales(EstadoTexto& e, std::string_view version);
void AcabarTipologias(EstadoTexto& e);

}  // namespace novex
