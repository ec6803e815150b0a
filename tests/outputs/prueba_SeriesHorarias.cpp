#include "outputs/SeriesHorarias.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>

namespace novex {
namespace {

std::vector<std::string> Partir(const std::string& texto, char separador) {
  std::vector<std::string> partes{""};
  for (const char c : texto) {
    if (c == separador)
      partes.emplace_back();
    else
      partes.back() += c;
  }
  return partes;
}

TEST(SeriesHorarias, CadaCodigoTieneSuSerie) {
  const auto caso = std::make_unique<calculo>();
  std::map<std::string_view, const SerieHoraria*> porCodigo;
  std::map<const SerieHoraria*, std::string_view> dueno;
  for (const DescripcionSerie& serie : SeriesHorarias()) {
    const SerieHoraria* tomada = &serie.tomar(*caso);
    EXPECT_TRUE(porCodigo.emplace(serie.codigo, tomada).second) << serie.codigo;
    // Solo la copia de la cubierta sur comparte serie.
    const auto [it, nueva] = dueno.emplace(tomada, serie.codigo);
    EXPECT_EQ(nueva, serie.codigo != "CLIGEROSS") << serie.codigo << " y " << it->second;
  }
  // Los sectores no están en el orden en que se nombran.
  EXPECT_EQ(porCodigo.at("MLIGEROSE"), &caso->clima.MLIGERO[sur_este]);
  EXPECT_EQ(porCodigo.at("IRADO"), &caso->clima.IRAD[oeste]);
  EXPECT_EQ(porCodigo.at("CLIGEROSO"), &caso->clima.CLIGERO[sur_oeste]);
  EXPECT_EQ(porCodigo.at("QOCUPSh"), &caso->carga.QOCUPSh);
  EXPECT_EQ(porCodigo.at("DREF"), &caso->zona.DREF);
}

TEST(SeriesHorarias, CsvDeLasOchoMilHoras) {
  const auto caso = std::make_unique<calculo>();
  caso->clima.TSE[1] = 3.8F;
  caso->clima.WE[1] = 0.00396F;
  caso->zona.DCAL[8760] = -1.23456F;
  caso->zona.DCAL[1] = -0.0001F;  // no se escribe un cero negativo
  caso->zona.DREF[0] = 99;        // la posición 0 no es una hora
  const auto lineas = Partir(CsvSeries(*caso), '\n');
  ASSERT_EQ(lineas.size(), 8762U);  // cabecera, horas y el final tras el último salto
  EXPECT_EQ(lineas.back(), "");
  const auto cabecera = Partir(lineas[0], ';');
  const auto celda = [&](std::size_t hora, const std::string& codigo) {
    const auto i = std::find(cabecera.begin(), cabecera.end(), codigo) - cabecera.begin();
    return Partir(lineas[hora], ';').at(static_cast<std::size_t>(i));
  };
  EXPECT_EQ(cabecera.size(), SeriesHorarias().size() + 1);
  EXPECT_EQ(celda(1, "hora"), "1");
  EXPECT_EQ(celda(8760, "hora"), "8760");
  EXPECT_EQ(celda(1, "TSE"), "3.800");
  EXPECT_EQ(celda(1, "WE"), "0.003960");
  EXPECT_EQ(celda(8760, "DCAL"), "-1.235");
  EXPECT_EQ(celda(1, "DCAL"), "0.000");
  EXPECT_EQ(celda(1, "DREF"), "0.000");
}

}  // namespace
}  // namespace novex
