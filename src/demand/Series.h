#pragma once

#include <array>
#include <deque>
#include <string>
#include <vector>

#include "base/Calendario.h"
#include "demand/VectorEnergetico.h"
#include "model/TablaEnvolvente.h"

namespace novex {

/// Serie horaria de un año: 8761 valores, la hora h en la posición h y la 0 sin usar.
class SerieHoraria : public std::vector<float> {
 public:
  SerieHoraria() : std::vector<float>(kHorasAno + 1, 0.0F) {}
  float& operator[](int h) { return std::vector<float>::operator[](static_cast<std::size_t>(h)); }
  float operator[](int h) const {
    return std::vector<float>::operator[](static_cast<std::size_t>(h));
  }
  /// Pone a 0 todo el año.
  void Vaciar() { assign(kHorasAno + 1, 0.0F); }
};

using SeriePorSector = std::array<SerieHoraria, kSectores>;

/// Doce valores mensuales en las posiciones 1 a 12, y el año en la 0.
using TablaMensual = std::array<float, 13>;

/// Clima del año y lo que se deduce de él.
struct SeriesClima {
  SerieHoraria TSE, TCIE;              ///< temperatura seca y del cielo, °C
  SerieHoraria WE;                     ///< humedad absoluta, kg/kg
  SerieHoraria THE;                    ///< bulbo húmedo, °C
  SerieHoraria FIE;                    ///< humedad relativa, %
  SerieHoraria IDIRECTA, IDIFUSA;      ///< directa normal y difusa horizontal, W/m2
  SerieHoraria CENITS, AZIMUTS;        ///< grados; azimut 0 al sur, positivo al oeste
  SeriePorSector IRAD;                 ///< irradiancia tras vidrio en vertical, por sector, W/m2
  SerieHoraria IRADH;                  ///< irradiancia tras vidrio en horizontal, W/m2
  SeriePorSector irradianciaVertical;  ///< irradiancia total en vertical, W/m2
  SerieHoraria RADH;                   ///< irradiancia total en horizontal, W/m2
  SeriePorSector MLIGERO;              ///< respuesta de los muros exteriores, K sobre 22,5 °C
  SeriePorSector CLIGERO;              ///< respuesta de las cubiertas inclinadas, K sobre 22,5 °C
  SerieHoraria CLIGEROH;  ///< respuesta de las cubiertas horizontales, K sobre 22,5 °C
  SerieHoraria SUELOEXT;  ///< respuesta de los suelos al exterior, K sobre 22,5 °C
  SerieHoraria COND;      ///< aire exterior, K sobre 22,5 °C
};

/// Uso del edificio hora a hora.
struct SeriesCarga {
  SerieHoraria QOCUPSh, QILUh, QEQh;     ///< cargas convectivas, tras el retardo radiante, W/m2
  SerieHoraria QOCUPShT, QILUhT, QEQhT;  ///< las mismas como están en los horarios, W/m2
  SerieHoraria latente;                  ///< carga latente de ocupantes, W/m2
  SerieHoraria NRR;                      ///< horario de ventilación, % o `kVentanasAbiertas`
  SerieHoraria TCR, TRR;  ///< consignas de calefacción y refrigeración, °C; 0 es ninguna
  SerieHoraria CCAC;      ///< parte del agua caliente del día en la hora, %
};

/// Marca del horario de ventilación de que las ventanas están abiertas de noche.
inline constexpr float kVentanasAbiertas = 400.0F;

/// Lo que el balance deja de la zona hora a hora.
struct SeriesZona {
  SerieHoraria TSL;                 ///< temperatura, °C
  SerieHoraria WL;                  ///< humedad absoluta, kg/kg
  SerieHoraria cargaCalefaccion;    ///< <= 0; W en el balance y kW después
  SerieHoraria cargaRefrigeracion;  ///< >= 0; W en el balance y kW después
  SerieHoraria DCAL, DREF;          ///< demanda, kWh; calefacción <= 0
  SerieHoraria DVENT;        ///< parte de la carga que llega por el aire de ventilación, kWh
  SerieHoraria DIFT;         ///< desviación de la consigna en horas ocupadas, K
  SerieHoraria DACS;         ///< demanda de agua caliente, kWh
  SerieHoraria QV;           ///< caudal de aire exterior, m3/h
  SerieHoraria CUTA;         ///< caudal de la unidad de tratamiento de aire, m3/h
  SerieHoraria CV;           ///< energía de ventiladores, Wh
  SerieHoraria QIR;          ///< calor que mueve el recuperador, W
  SerieHoraria TSR;          ///< temperatura del aire tras el recuperador, °C
  SerieHoraria HFC, HBP;     ///< 1 en horas de enfriamiento gratuito y de bypass
  SerieHoraria humectacion;  ///< carga del humectador, W
  std::array<SerieHoraria, 3> defecto;  ///< lo que toma el equipo por defecto, por servicio, W
};

/// Lo que hacen los sistemas del caso hora a hora.
struct SeriesSistemas {
  SerieHoraria calorEntregado, calorConsumido;          ///< kW
  SerieHoraria calorEntregado2, calorConsumido2;        ///< del segundo generador, kW
  SerieHoraria frioTotal, frioSensible, frioConsumido;  ///< kW
  std::array<SerieHoraria, 3> bombas, ventiladores;     ///< por servicio, W
  std::array<SerieHoraria, 5> depositoSolar;            ///< temperaturas, de arriba abajo, °C
  SerieHoraria produccionFotovoltaica;                  ///< kW
};

/// Una magnitud de un sistema en el fichero de sistemas de un caso.
struct AtributoSistema {
  std::string nombre;
  int decimales = 2;
  SerieHoraria serie;
};

/// Sumas del año de un bloque de generador por servicio, kWh.
struct SumasBloque {
  using PorServicio = std::array<float, kServiciosDemanda>;
  std::array<PorServicio, 2> dado{}, consumo{};  ///< por generador; el frío es el sensible
  PorServicio ambiente{};                        ///< calor tomado del ambiente
  PorServicio auxiliares{};                      ///< electricidad de bombas y ventiladores
  bool operator==(const SumasBloque&) const = default;
};

}  // namespace novex
