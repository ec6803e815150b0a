#pragma once

#include <array>
#include <cstddef>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "base/Mensajes.h"
#include "base/NumeroTexto.h"
#include "files/xmlParser.h"
#include "model/TablaEnvolvente.h"

namespace novex {

/// Textos de una lista de la que se guarda la posición; un texto vacío es una posición que no se
/// usa.
using ListaTextos = std::span<const std::string_view>;

/// Lugar dentro de los campos que se repiten por tipo constructivo y por sector.
struct Indice {
  std::size_t tipo = 0;
  std::size_t sector = 0;
};

/// Un campo de un registro en el fichero: su etiqueta, cómo se llega a él y cómo se escribe. Lector
/// y escritor recorren la misma tabla de campos, en el orden del fichero.
template <class Registro>
struct Campo {
  template <class Valor>
  using Acceso = Valor& (*)(Registro&, Indice);
  using Cualquiera = std::variant<Acceso<float>, Acceso<int>, Acceso<bool>, Acceso<std::string>>;

  /// '#' se cambia por el número del tipo, desde 1, y '*' por el nombre del sector.
  std::string_view etiqueta;
  Cualquiera acceso;
  int decimales = 0;
  ListaTextos lista{};
  int minimo = std::numeric_limits<int>::min();
  int maximo = std::numeric_limits<int>::max();
  std::size_t primerSector = 0;
  std::size_t sectores = 1;  ///< cuántos sectores seguidos ocupa
  bool guardado = false;     ///< si falta en el fichero conserva su valor
  bool soloEscritura = false;

  constexpr Campo Guardado() const {
    Campo c = *this;
    c.guardado = true;
    return c;
  }
  constexpr Campo SoloEscritura() const {
    Campo c = *this;
    c.soloEscritura = true;
    return c;
  }
  constexpr Campo ConDecimales(int n) const {
    Campo c = *this;
    c.decimales = n;
    return c;
  }
  constexpr Campo Entre(int desde, int hasta) const {
    Campo c = *this;
    c.minimo = desde;
    c.maximo = hasta;
    return c;
  }
  constexpr Campo PorSectores(std::size_t desde = 0) const {
    Campo c = *this;
    c.primerSector = desde;
    c.sectores = kSectores - desde;
    return c;
  }
};

namespace camposFichero {

template <class>
struct PartesMiembro;
template <class Clase, class Valor>
struct PartesMiembro<Valor Clase::*> {
  using Registro = Clase;
};
template <auto Miembro>
using RegistroDe = typename PartesMiembro<decltype(Miembro)>::Registro;

template <class>
inline constexpr bool kEsArray = false;
template <class T, std::size_t N>
inline constexpr bool kEsArray<std::array<T, N>> = true;

// El elemento de una tabla por tipo, o por tipo y sector.
template <class T>
auto& Elemento(T& valor, Indice donde) {
  if constexpr (kEsArray<T>) {
    auto& porTipo = valor.at(donde.tipo);
    if constexpr (kEsArray<typename T::value_type>)
      return porTipo.at(donde.sector);
    else
      return porTipo;
  } else {
    return valor;
  }
}

template <auto Primero, auto... Resto, class T>
auto& Seguir(T& objeto, Indice donde) {
  auto& valor = Elemento(objeto.*Primero, donde);
  if constexpr (sizeof...(Resto) == 0)
    return valor;
  else
    return Seguir<Resto...>(valor, donde);
}

template <class Valor, auto Primero, auto... Resto>
Valor& Acceder(RegistroDe<Primero>& r, Indice donde) {
  return Seguir<Primero, Resto...>(r, donde);
}

template <class Valor, std::size_t Posicion, auto Primero, auto... Resto>
Valor& AccederEn(RegistroDe<Primero>& r, Indice donde) {
  donde.tipo = Posicion;
  return Seguir<Primero, Resto...>(r, donde);
}

template <class Valor, auto Primero, auto... Resto>
constexpr Campo<RegistroDe<Primero>> Crear(std::string_view etiqueta) {
  return {etiqueta, &Acceder<Valor, Primero, Resto...>};
}

template <class Valor, std::size_t Posicion, auto Primero, auto... Resto>
constexpr Campo<RegistroDe<Primero>> CrearEn(std::string_view etiqueta) {
  return {etiqueta, &AccederEn<Valor, Posicion, Primero, Resto...>};
}

}  // namespace camposFichero

// Creación de campos. Los miembros son el camino desde el registro hasta el valor; las tablas que
// atraviesa toman el elemento del tipo y el sector, o el de la posición dada en las formas `...En`.
template <auto... Miembros>
constexpr auto Texto(std::string_view etiqueta) {
  return camposFichero::Crear<std::string, Miembros...>(etiqueta);
}
template <std::size_t Posicion, auto... Miembros>
constexpr auto TextoEn(std::string_view etiqueta) {
  return camposFichero::CrearEn<std::string, Posicion, Miembros...>(etiqueta);
}
template <auto... Miembros>
constexpr auto Real(std::string_view etiqueta, int decimales) {
  return camposFichero::Crear<float, Miembros...>(etiqueta).ConDecimales(decimales);
}
template <std::size_t Posicion, auto... Miembros>
constexpr auto RealEn(std::string_view etiqueta, int decimales) {
  return camposFichero::CrearEn<float, Posicion, Miembros...>(etiqueta).ConDecimales(decimales);
}
template <auto... Miembros>
constexpr auto Entero(std::string_view etiqueta) {
  return camposFichero::Crear<int, Miembros...>(etiqueta);
}
template <auto... Miembros>
constexpr auto Logico(std::string_view etiqueta) {
  return camposFichero::Crear<bool, Miembros...>(etiqueta);
}
/// Posición de una lista, que en el fichero es su texto. Uno que no está en la lista no la cambia.
template <auto... Miembros>
constexpr auto Posicion(std::string_view etiqueta, ListaTextos lista) {
  auto campo = camposFichero::Crear<int, Miembros...>(etiqueta);
  campo.lista = lista;
  return campo;
}

/// Dónde está el valor de un campo: en el atributo `name` de un elemento hijo o en un atributo.
enum class Lugar { Hijos, Atributos };
/// Qué se hace con los campos que no están en el fichero.
enum class SiFalta { Vaciar, Conservar };

/// El atributo con que los elementos guardan su valor.
inline constexpr std::string_view kAtributoValor = "name";

/// El valor de un elemento hijo; sin valor si falta el elemento o su atributo.
inline std::optional<std::string_view> ValorDeHijo(const XMLNode& nodo, std::string_view etiqueta) {
  return nodo.childNamed(etiqueta).attributeValue(kAtributoValor);
}
/// El texto de un elemento hijo, vacío si falta.
std::string TextoDeHijo(const XMLNode& nodo, std::string_view etiqueta);
/// Añade un elemento con su valor.
XMLNode AnadirValor(XMLNode& nodo, std::string_view etiqueta, std::string_view valor);
/// Añade un elemento con texto; con un texto vacío queda sin contenido.
XMLNode AnadirTexto(XMLNode& nodo, std::string_view etiqueta, std::string_view texto);

namespace camposFichero {

// Conversiones entre el texto del fichero y el valor; un número no finito o fuera de los límites se
// cambia por 0 con un aviso.
float LeerReal(std::string_view texto, std::string_view etiqueta, Mensajes& mensajes);
int LeerEntero(std::string_view texto, std::string_view etiqueta, int minimo, int maximo,
               Mensajes& mensajes);
std::optional<int> LeerPosicion(std::string_view texto, ListaTextos lista);
std::string_view TextoDePosicion(int posicion, ListaTextos lista);
// Lo que se toma de un texto; uno que pasa de lo que se acepta se corta con un aviso.
std::string_view LeerTexto(std::string_view texto, std::string_view etiqueta, Mensajes& mensajes);
std::string_view TextoLogico(bool valor);
bool LeerLogico(std::string_view texto);
std::string Etiqueta(std::string_view patron, Indice donde);

template <class Registro>
void LeerCampo(const Campo<Registro>& campo, Registro& r, Indice donde, std::string_view etiqueta,
               std::string_view texto, Mensajes& mensajes) {
  if (const auto* real = std::get_if<0>(&campo.acceso)) {
    (*real)(r, donde) = LeerReal(texto, etiqueta, mensajes);
  } else if (const auto* entero = std::get_if<1>(&campo.acceso)) {
    if (campo.lista.empty())
      (*entero)(r, donde) = LeerEntero(texto, etiqueta, campo.minimo, campo.maximo, mensajes);
    else if (const auto posicion = LeerPosicion(texto, campo.lista))
      (*entero)(r, donde) = *posicion;
  } else if (const auto* logico = std::get_if<2>(&campo.acceso)) {
    (*logico)(r, donde) = LeerLogico(texto);
  } else {
    std::get<3>(campo.acceso)(r, donde) = LeerTexto(texto, etiqueta, mensajes);
  }
}

template <class Registro>
std::string TextoDeCampo(const Campo<Registro>& campo, Registro& r, Indice donde) {
  if (const auto* real = std::get_if<0>(&campo.acceso))
    return Fijo(static_cast<double>((*real)(r, donde)), campo.decimales);
  if (const auto* entero = std::get_if<1>(&campo.acceso)) {
    const int valor = (*entero)(r, donde);
    return campo.lista.empty() ? std::to_string(valor)
                               : std::string(TextoDePosicion(valor, campo.lista));
  }
  if (const auto* logico = std::get_if<2>(&campo.acceso))
    return std::string(TextoLogico((*logico)(r, donde)));
  return std::get<3>(campo.acceso)(r, donde);
}

// Busca el valor de una etiqueta empezando por donde se espera, que es tras la anterior.
class Buscador {
 public:
  Buscador(const XMLNode& nodo, Lugar lugar) : nodo_(nodo), lugar_(lugar) {}
  std::optional<std::string_view> Valor(std::string_view etiqueta);

 private:
  const XMLNode& nodo_;
  Lugar lugar_;
  std::size_t siguiente_ = 0;
};

}  // namespace camposFichero

/// Lee los campos de una tabla desde los hijos o los atributos de un elemento, que puede faltar.
/// \param tipo tipo constructivo, desde 0
template <class Registro>
void LeerCampos(const XMLNode& nodo, std::span<const Campo<Registro>> campos, Registro& r,
                Mensajes& mensajes, SiFalta siFalta = SiFalta::Vaciar, std::size_t tipo = 0,
                Lugar lugar = Lugar::Hijos) {
  camposFichero::Buscador buscador(nodo, lugar);
  for (const Campo<Registro>& campo : campos) {
    if (campo.soloEscritura) continue;
    for (std::size_t s = 0; s < campo.sectores; ++s) {
      const Indice donde{tipo, campo.primerSector + s};
      const std::string etiqueta = camposFichero::Etiqueta(campo.etiqueta, donde);
      const auto texto = buscador.Valor(etiqueta);
      if (!texto && (campo.guardado || siFalta == SiFalta::Conservar)) continue;
      camposFichero::LeerCampo(campo, r, donde, etiqueta, texto.value_or(""), mensajes);
    }
  }
}

/// Escribe los campos de una tabla como hijos o atributos de un elemento.
template <class Registro>
void EscribirCampos(XMLNode& nodo, std::span<const Campo<Registro>> campos, Registro& r,
                    std::size_t tipo = 0, Lugar lugar = Lugar::Hijos) {
  for (const Campo<Registro>& campo : campos)
    for (std::size_t s = 0; s < campo.sectores; ++s) {
      const Indice donde{tipo, campo.primerSector + s};
      const std::string etiqueta = camposFichero::Etiqueta(campo.etiqueta, donde);
      const std::string texto = camposFichero::TextoDeCampo(campo, r, donde);
      if (lugar == Lugar::Hijos)
        AnadirValor(nodo, etiqueta, texto);
      else
        nodo.setAttribute(etiqueta, texto);
    }
}

}  // namespace novex
