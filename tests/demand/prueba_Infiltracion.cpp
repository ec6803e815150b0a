#include "demand/Infiltracion.h"

#include <gtest/gtest.h>

#include <cmath>

#include "demand/PasoVentilacion.h"
#include "model/Edificio.h"

namespace novex {
namespace {

// El paso de la búsqueda es de 0,01 Pa: mueve los caudales menos de un 0,5 %.
constexpr double kPaso = 0.005;

TEST(BuscadorFugas, LaInfiltracionEsLoQueEntraDeMas) {
  // Con toda la zona en depresión el aire solo entra: lo que se extrae, y nada más.
  BuscadorFugas depresion({250, 6.58F, 200, 0});
  EXPECT_NEAR(depresion.Infiltracion(1.2F), 0, 0.5);
  BuscadorFugas estanca({300, 0, 0, 0});
  EXPECT_NEAR(estanca.Infiltracion(0.6F), 0, 0.2);

  // Volver a una renovación ya resuelta da lo mismo.
  BuscadorFugas fugas({300, 5.25F, 400, 100});
  const float primera = fugas.Infiltracion(0.5F);
  EXPECT_NEAR(primera, 41.0733, kPaso * 232);
  EXPECT_NEAR(fugas.Infiltracion(0.01F), 67.8048, kPaso * 139);
  EXPECT_EQ(fugas.Infiltracion(0.5F), primera);
}

// La permeabilidad impuesta cuenta en las ventanas, con su factor de área, y no en las cajas.
TEST(PrepararFugas, PermeabilidadImpuesta) {
  Edificio edificio;
  Huecos& g = edificio.GetHuecos(0);
  g.Ancho_m = 2;
  g.Alto_m = 1;
  g.Permeabilidad_Ventanas = 27;
  g.columnas[sur].Anadir(3);
  g.columnas[kColumnaHorizontal].Anadir(1);
  g.columnas[sur].FactorAreaColumna = 0.5F;
  g.Existe_Caja_persiana = 1;
  Forzados forzados;
  forzados.PermeabilidadForzada = 3;
  const FugasZona zona = PrepararFugas(edificio, forzados);
  EXPECT_FLOAT_EQ(zona.ventanas, 2.5F * 2 * 3);
  EXPECT_EQ(zona.cajasPersiana, 0.0F);
}

}  // namespace
}  // namespace novex
