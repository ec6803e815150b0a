#include "demand/Infiltracion.h"

#include <gtest/gtest.h>

#include <cmath>

#include "demand/PasoVentilacion.h"
#include "model/Edificio.h"

namespace novex {
namespace {

// El paso de la búsqueda es de 0,01 Pa: mueve los caudales menos de un 0,5 %.
constexpr double kPaso = 0.005;

TEST(FugasEnvolvente, SinVentilacionEntraLoQueSale) {
  // La presión que equilibra está a medio camino: 3,6 Pa a cada lado, y por los opacos cruzan
  // 0,5 × 5,25 × 300 × 0,036^0,67.
  EXPECT_NEAR(FugasEnvolvente({300, 5.25F, 0, 0}, 0), 84.9128, kPaso * 84.9);
  BuscadorFugas fugas({300, 5.25F, 0, 0});
  EXPECT_NEAR(fugas.Infiltracion(0), 42.4564, kPaso * 42.5);
}

TEST(FugasEnvolvente, ConVentilacionDeExtraccion) {
  // Equilibrios resueltos aparte, por bisección en doble precisión.
  EXPECT_NEAR(FugasEnvolvente({300, 5.25F, 400, 100}, 0.5F), 232.1467, kPaso * 232);
  EXPECT_NEAR(FugasEnvolvente({300, 5.25F, 400, 100}, 0.01F), 138.6097, kPaso * 139);
  EXPECT_NEAR(FugasEnvolvente({300, 4.7095761F, 0, 0}, 0.5F), 164.3095, kPaso * 164);
}

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

TEST(PrepararFugas, SumaVentanasYCajas) {
  Edificio edificio;
  edificio.GetRecinto(0).Volumen_total_m3 = 250;
  Huecos& g = edificio.GetHuecos(0);
  g.Ancho_m = 2;
  g.Alto_m = 1;
  g.Permeabilidad_Ventanas = 27;
  g.columnas[sur].Anadir(3);
  g.columnas[kColumnaHorizontal].Anadir(1);
  g.columnas[sur].FactorAreaColumna = 0.5F;
  g.Existe_Caja_persiana = 0;
  g.Vinf_Caja_de_persiana_m3_h = 5;
  DatosGenerales generales = edificio.GetDatosGenerales();
  generales.PerfilUso = 0;
  edificio.SetDatosGenerales(generales);
  FugasZona zona = PrepararFugas(edificio, {});
  EXPECT_FLOAT_EQ(zona.coeficienteOpacos, 5.25F);
  EXPECT_FLOAT_EQ(zona.ventanas, (3 * 0.5F + 1) * 2 * 27);
  EXPECT_FLOAT_EQ(zona.cajasPersiana, 5 * 2.3F * 2 * 4);

  generales.PerfilUso = 1;
  edificio.SetDatosGenerales(generales);
  g.Existe_Caja_persiana = 1;
  Forzados forzados;
  forzados.PermeabilidadForzada = 3;
  zona = PrepararFugas(edificio, forzados);
  EXPECT_FLOAT_EQ(zona.coeficienteOpacos, 6.58F);
  EXPECT_FLOAT_EQ(zona.ventanas, 2.5F * 2 * 3);
  EXPECT_EQ(zona.cajasPersiana, 0.0F);

  // El ensayo a 50 Pa vale por toda la envolvente: 1,5698587 × n50.
  generales.Tipon50 = "Medido";
  generales.Valorn50 = 3;
  edificio.SetDatosGenerales(generales);
  g.Existe_Caja_persiana = 0;
  zona = PrepararFugas(edificio, {});
  EXPECT_NEAR(zona.coeficienteOpacos, 4.709576, 1e-5);
  EXPECT_EQ(zona.ventanas + zona.cajasPersiana, 0.0F);
  EXPECT_EQ(zona.volumen, 250.0F);
}

}  // namespace
}  // namespace novex
