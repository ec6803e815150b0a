#include "model/Huecos.h"

#include <gtest/gtest.h>

#include <vector>

namespace novex {
namespace {

TEST(Huecos, AnadirYQuitarPorElFinalDeLaColumna) {
  Huecos grupo;
  ColumnaHuecos& columna = grupo.columnas[sur];
  columna.Anadir(3);
  columna.Quitar(1);
  EXPECT_EQ(columna.recintos, (std::vector<std::size_t>{0, 0}));
  columna.recintos.push_back(1);
  EXPECT_EQ(columna.NumeroEnRecinto(0), 2U);
  EXPECT_EQ(columna.NumeroEnRecinto(1), 1U);
  columna.Quitar(1);  // el del recinto 1, que es el último
  EXPECT_EQ(columna.NumeroEnRecinto(1), 0U);
  columna.Quitar(5);
  EXPECT_TRUE(columna.recintos.empty());
  columna.Quitar(0);
  columna.Anadir(0);
  EXPECT_TRUE(columna.recintos.empty());
}

TEST(Huecos, ElTotalCuentaLasOchoColumnas) {
  Huecos grupo;
  std::size_t esperado = 0;
  for (std::size_t i = 0; i < 8; ++i) {
    grupo.columnas[i].Anadir(i + 1);
    esperado += i + 1;
  }
  EXPECT_EQ(grupo.NumeroTotal(), esperado);  // 36
}

TEST(Huecos, DireccionesDeObstaculoDeCadaColumna) {
  const std::vector<std::vector<Sector>> esperadas = {{},
                                                      {oeste, sur_oeste},
                                                      {oeste, sur_oeste, sur},
                                                      {sur_oeste, sur, sur_este},
                                                      {sur, sur_este, este},
                                                      {sur_este, este},
                                                      {},
                                                      {}};
  for (std::size_t columna = 0; columna < esperadas.size(); ++columna) {
    const DireccionesObstaculo d = DireccionesDeColumna(columna);
    const std::vector<Sector> dadas(d.sector.begin(),
                                    d.sector.begin() + static_cast<std::ptrdiff_t>(d.cuantas));
    EXPECT_EQ(dadas, esperadas[columna]) << columna;
  }
}

}  // namespace
}  // namespace novex
