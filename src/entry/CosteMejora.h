#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "base/Mensajes.h"
#include "model/Edificio.h"
#include "model/ListasMejora.h"

namespace novex {

/// Coste y plazo de recuperación de una mejora: los campos guardan la posición en estas listas.
inline constexpr std::string_view kTituloCoste = "Coste estimado (sin iva €)";
inline constexpr std::string_view kTituloPlazo = "Plazo estimado de recuperación de la inversión";
inline constexpr std::array<std::string_view, 4> kPlazosMejora = {"< 5 años", "5-10 años",
                                                                  "10-15 años", ">15 años"};
/// Texto del coste de un caso en el fichero de proyecto; vacío si no se ha elegido ninguno.
std::string_view TextoCosteEstimado(const DatosGenerales& generales);
/// Texto del plazo de un caso en el fichero de proyecto; vacío si no se ha elegido ninguno.
std::string_view TextoPlazoRecuperacion(const DatosGenerales& generales);

/// Toma la posición elegida en una lista; fuera de ella queda sin elegir.
void PonerCosteMejora(Edificio& edificio, int posicion);
void PonerPlazoMejora(Edificio& edificio, int posicion);

/// Una condición que la medida mejora.
struct CondicionMejora {
  std::string_view texto;
  bool DatosGenerales::*campo;
};
inline constexpr std::string_view kTituloCondiciones =
    "La medida propuesta mejora las condiciones:";
inline constexpr std::array<CondicionMejora, 9> kCondicionesMejora = {{
    {"Confort térmico y bienestar", &DatosGenerales::CBConfort},
    {"Iluminación", &DatosGenerales::CBIluminacion},
    {"Movilidad sostenible (puntos de recarga,...)", &DatosGenerales::CBMovilidad},
    {"Seguridad estructural", &DatosGenerales::CBSeguridad},
    {"Seguridad de utilización y/o accesibilidad", &DatosGenerales::CBAccesibilidad},
    {"Protección frente a incendios", &DatosGenerales::CBIncendios},
    {"Salubridad (calidad del aire, radón,...)", &DatosGenerales::CBSalubridad},
    {"Protección frente al ruido", &DatosGenerales::CBRuido},
    {"Otros", &DatosGenerales::CBOtros},
}};

/// Marca o desmarca una condición por su posición. \throws std::out_of_range si no existe
void PonerCondicionMejora(Edificio& edificio, std::size_t condicion, bool mejora);

/// Nombre de la medida del caso; sin él se enseña "Mejora".
std::string_view NombreMejora(const DatosGenerales& generales);
/// Guarda el nombre de la medida del caso.
void PonerNombreMejora(Edificio& edificio, std::string_view nombre);

/// Lo que la pantalla del estudio tiene de una medida.
struct CifrasTecleadas {
  int codigo = 0;
  bool marcada = false;
  std::string_view precio;        ///< euros
  std::string_view amortizacion;  ///< años
};

/// Guarda en el estudio las cifras de las medidas dadas: las de una marcada, comprobadas; las de
/// una sin marcar se borran. Una medida que se queda sin contenido sale del estudio; las que no se
/// dan no cambian. Quedan por orden de código.
void GuardarCifrasEstudio(EstudioModificaciones& estudio, std::span<const CifrasTecleadas> cifras,
                          Mensajes& mensajes);

/// Marca o desmarca una medida en el estudio de un caso; sin marca pierde sus cifras.
void MarcarMedida(Edificio& edificio, int codigo, bool marcada);
/// ¿Está marcada?
bool MedidaMarcada(const EstudioModificaciones& estudio, int codigo);

/// Las dos cifras que se teclean de una medida, como textos del estudio.
inline constexpr std::string MedidaEstudio::*kPrecioMedida = &MedidaEstudio::precio;
inline constexpr std::string MedidaEstudio::*kAmortizacionMedida = &MedidaEstudio::amortizacion;
/// El texto guardado de una; "0" si no tiene.
std::string TextoCifraMedida(const EstudioModificaciones& estudio, int codigo,
                             std::string MedidaEstudio::*cifra);
/// Guarda una tecleada, comprobada; la otra queda como estaba.
void PonerCifraMedida(Edificio& edificio, int codigo, std::string MedidaEstudio::*cifra,
                      std::string_view texto, Mensajes& mensajes);

/// Cifras guardadas de una medida.
struct CifrasMedida {
  float PrecioMejora = 0;  ///< euros
  float AmortMejora = 0;   ///< años
};

/// Las cifras de un código; 0 si el estudio no las tiene.
CifrasMedida CifrasDeMedida(const EstudioModificaciones& estudio, int codigo);

}  // namespace novex
