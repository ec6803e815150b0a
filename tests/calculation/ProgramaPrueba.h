#pragma once

#include <memory>
#include <string>

#include "calculation/EjecutarCalculo.h"
#include "files/CarpetaTemporal.h"
#include "model/Cambios.h"

namespace novex::pruebas {

/// Un clima que no cambia en todo el año, sin sol.
struct ClimaConstante {
  float temperatura = 0;       ///< °C, la del aire y la del cielo
  float humedadRelativa = 50;  ///< %
};

/// Carpeta de programa propia de una prueba, con los datos que un cálculo necesita y, en la zona
/// "D3", el clima que se le dé.
class ProgramaPrueba {
 public:
  explicit ProgramaPrueba(const ClimaConstante& clima = {});

  std::filesystem::path Datos() const { return carpeta_ / "database"; }
  /// Calcula un caso con los ficheros de la carpeta, leídos de nuevo.
  bool Calcular(Edificio& edificio, std::string_view nombre = caso::kViejo,
                std::string_view modo = kModoTodo, bool ficherosDeCaso = false);

  RegistroMensajes mensajes;

 private:
  CarpetaTemporal carpeta_;
};

/// Caja de 100 m2 y 300 m3 que se calienta a 21 °C todo el año, sin cargas ni agua caliente: 120
/// m2 de muro y 100 de cubierta, K = 100 W/K; 10 ventanas al sur de 2 m2 con U = 3; 20 W/K de
/// puentes, 0,6 renovaciones por hora y una envolvente estanca. Sus forjados no tienen espesor.
std::unique_ptr<Edificio> CajaCaliente();

}  // namespace novex::pruebas
