#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "demand/VectorEnergetico.h"
#include "files/xmlParser.h"
#include "outputs/ReglasResultados.h"

namespace novex {

/// Añade un elemento con un texto.
XMLNode AnadirDato(XMLNode& nodo, std::string_view etiqueta, std::string_view texto);
/// Añade un elemento con una cifra de decimales fijos. Un valor no finito se escribe como 0.
void AnadirCifra(XMLNode& nodo, std::string_view etiqueta, double valor, int decimales = 2);
void AnadirCifra(XMLNode& nodo, std::string_view etiqueta, float valor, int decimales = 2);
/// Añade un elemento con un número entero, redondeado.
void AnadirEntero(XMLNode& nodo, std::string_view etiqueta, double valor);

/// ¿Es una letra de la escala? "( - )" y el texto vacío no lo son.
bool EsLetraDeEscala(std::string_view letra);
/// Añade una letra; lo que no se califica no se escribe.
void AnadirLetra(XMLNode& nodo, std::string_view etiqueta, std::string_view letra);

/// Nombre de un vector en el informe. La electricidad se dice del sistema eléctrico de la
/// provincia. \param provincia la del edificio \returns vacío si el informe no tiene ese vector
std::string_view VectorInforme(VectorEnergetico vector, std::string_view provincia);

/// Los servicios que se cuentan en un caso.
struct ServiciosInforme {
  explicit ServiciosInforme(const Edificio& edificio)
      : refrigeracion(!RefrigeracionFuera(edificio)),
        iluminacion(!edificio.GetDatosGenerales().EsResidencial()) {}
  bool refrigeracion;  ///< no en las viviendas de "C1", "D1" y "E1"
  bool iluminacion;    ///< solo en terciario
};

/// Un servicio con su etiqueta en el informe.
struct EtiquetaServicio {
  Servicio servicio;
  const char* etiqueta;
};
/// Los que tienen columna en el informe; la ventilación solo está en los globales.
inline constexpr std::array<EtiquetaServicio, 4> kEtiquetasServicio = {
    {{kCalefaccion, "Calefaccion"},
     {kRefrigeracion, "Refrigeracion"},
     {kACS, "ACS"},
     {kIluminacion, "Iluminacion"}}};

/// ¿Va un servicio en el informe del caso?
constexpr bool SeInforma(Servicio servicio, const ServiciosInforme& servicios) {
  if (servicio == kRefrigeracion) return servicios.refrigeracion;
  return servicio != kIluminacion || servicios.iluminacion;
}

/// Añade las cifras de los servicios que se informan. \param valor da la de un servicio
template <class Valor>
void AnadirServicios(XMLNode& nodo, const ServiciosInforme& servicios, Valor valor) {
  for (const EtiquetaServicio& e : kEtiquetasServicio)
    if (SeInforma(e.servicio, servicios)) AnadirCifra(nodo, e.etiqueta, valor(e.servicio));
}

/// Añade las letras que tengan los servicios. \param letra da la de un servicio
template <class LetraDe>
void AnadirLetras(XMLNode& nodo, const ServiciosInforme& servicios, LetraDe letra) {
  for (const EtiquetaServicio& e : kEtiquetasServicio)
    if (SeInforma(e.servicio, servicios)) AnadirLetra(nodo, e.etiqueta, letra(e.servicio));
}

/// Las líneas de un texto, unidas.
std::string UnirLineas(const std::vector<std::string>& lineas, std::string_view separador);

/// Quita de un documento los caracteres que no pueden estar en un XML (los de control), y pasa a
/// UTF-8 los bytes que no lo son.
std::string SoloCaracteresXml(std::string_view texto);

}  // namespace novex
