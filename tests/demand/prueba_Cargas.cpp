#include "demand/Cargas.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <numeric>

#include "demand/Convolucion.h"
#include "model/Edificio.h"

namespace novex {
namespace {

TEST(RedondearSerie, ElDecimalMasCercanoConEmpatesAlPar) {
  SerieHoraria serie;
  serie[1] = 0.125F;
  serie[2] = 0.375F;
  serie[3] = -7.126F;
  serie[4] = -0.004F;
  RedondearSerie(serie, 2);
  const float esperada[] = {0.12F, 0.38F, -7.13F, 0};
  for (int h = 1; h <= 4; ++h) EXPECT_EQ(serie[h], esperada[h - 1]);
  serie[1] = 0.0123456F;
  RedondearSerie(serie, 5);
  EXPECT_EQ(serie[1], 0.01235F);
}

class RetardoRadiante : public testing::Test {
 protected:
  std::unique_ptr<SeriesCarga> carga = std::make_unique<SeriesCarga>();
  std::unique_ptr<SeriesClima> clima = std::make_unique<SeriesClima>();
};

TEST_F(RetardoRadiante, UnPulsoLlegaEnVeintiunaHoras) {
  carga->QOCUPSh[8760] = carga->QOCUPShT[8760] = carga->latente[8760] = 100;
  carga->QILUh[8760] = carga->QEQh[8760] = 100;
  clima->MLIGERO[sur][8760] = clima->SUELOEXT[8760] = clima->CLIGERO[sur][8760] = 100;
  clima->COND[8760] = 100;
  AplicarRetardoRadiante(*carga, *clima);
  // En la hora, la parte convectiva y el 31 % de la radiante; en la siguiente, el 16 %.
  const auto esperar = [](const SerieHoraria& s, float enHora, float despues) {
    EXPECT_FLOAT_EQ(s[8760], enHora);
    EXPECT_FLOAT_EQ(s[1], despues);
  };
  esperar(carga->QOCUPSh, 58.6F, 9.6F);
  esperar(carga->QILUh, 44.8F, 12.8F);
  esperar(carga->QEQh, 93.1F, 1.6F);
  esperar(clima->MLIGERO[sur], 68.26F, 7.36F);
  esperar(clima->SUELOEXT, 68.26F, 7.36F);
  esperar(clima->CLIGERO[sur], 58.6F, 9.6F);
  esperar(clima->COND, 77.23F, 5.28F);
  EXPECT_FLOAT_EQ(carga->QOCUPSh[20], 0.6F);
  EXPECT_EQ(carga->QOCUPSh[21], 0.0F);
  EXPECT_NEAR(std::accumulate(carga->QOCUPSh.begin(), carga->QOCUPSh.end(), 0.0), 100, 1e-3);
  // Ni lo programado ni lo latente se retrasan.
  EXPECT_EQ(carga->QOCUPShT[8760], 100.0F);
  EXPECT_EQ(carga->latente[8760], 100.0F);
}

// Los horarios dan en cada familia, clase y hora un número distinto.
class Horarios : public testing::Test {
 protected:
  Horarios() {
    for (std::size_t f = 0; f < kFamilias; ++f)
      for (std::size_t k = 0; k < kClasesDia; ++k)
        for (std::size_t d = 1; d <= 24; ++d) g.perfiles.tabla[f][k][d] = Valor(f, k, d);
    g.perfiles.calendario.fill(1);
    g.perfiles.calendario[180] = 0;  // 30 de junio
    g.perfiles.calendario[181] = 9;  // 1 de julio
    for (std::size_t m = 1; m <= 12; ++m) g.perfiles.AccionMes[m] = "Cale+Refri";
    g.perfiles.AccionMes[1] = "Sólo Cale";
    g.perfiles.AccionMes[7] = "Sólo Refri";
    g.perfiles.AccionMes[10] = "Nada";
    g.ManejoVentanas2 = "Abiertas";
    lugar.mesmin = 6;
    lugar.mesmax = 9;
  }
  static float Valor(std::size_t f, std::size_t k, std::size_t d) {
    return static_cast<float>(f * 1000 + k * 100 + d);
  }
  SeriesCarga Generar(int perfil) {
    g.PerfilUso = perfil;
    Edificio edificio;
    edificio.SetDatosGenerales(g);
    edificio.SetLocalizacion(lugar);
    SeriesCarga carga;
    GenerarCargas(g, ResolverAjustes(edificio), carga);
    return carga;
  }
  static int Hora(int dia, int d) { return (dia - 1) * 24 + d; }

  DatosGenerales g;
  Localizacion lugar;
};

// Con sonda de CO2 la ventilación sigue a la ocupación, salvo con tomas en cada unidad.
TEST_F(Horarios, SondaDeCO2) {
  const int h = Hora(40, 10);
  g.TipoCO2 = "SondaCO2 con freecooling";
  EXPECT_EQ(Generar(3).NRR[h], Valor(CNR, 0, 10));
  g.ManejoVentilacion = "UTA";
  EXPECT_EQ(Generar(3).NRR[h], Valor(C1, 0, 10));
}

TEST_F(Horarios, VentanasAbiertasLasNochesDeVerano) {
  SeriesCarga carga = Generar(0);
  EXPECT_EQ(carga.NRR[Hora(152, 1)], 400.0F);  // 1 de junio
  EXPECT_EQ(carga.NRR[Hora(273, 7)], 400.0F);  // 30 de septiembre
  EXPECT_EQ(carga.NRR[Hora(152, 8)], Valor(CNR, 0, 8));
  EXPECT_EQ(carga.NRR[Hora(151, 1)], Valor(CNR, 0, 1));
  EXPECT_EQ(carga.NRR[Hora(274, 1)], Valor(CNR, 0, 1));
  // También los días sin uso, en los que lo demás es 0.
  EXPECT_EQ(carga.NRR[Hora(181, 3)], 400.0F);
  for (const int d : {1, 12, 24})
    for (const SerieHoraria* s : {&carga.QOCUPSh, &carga.latente, &carga.QILUh, &carga.QEQh,
                                  &carga.TCR, &carga.TRR, &carga.CCAC})
      EXPECT_EQ((*s)[Hora(181, d)], 0.0F);
  EXPECT_EQ(carga.NRR[Hora(181, 8)], 0.0F);

  EXPECT_NE(Generar(3).NRR[Hora(152, 1)], 400.0F);
  g.ManejoVentanas2 = "Cerradas";
  EXPECT_EQ(Generar(0).NRR[Hora(152, 1)], Valor(CNR, 0, 1));
  carga = Generar(0);
  // Enero, solo calefacción; febrero, las dos; julio, solo refrigeración; octubre, ninguna.
  const std::tuple<int, bool, bool> dias[] = {{31, true, false},   {32, true, true},
                                              {183, false, true},  {274, false, false},
                                              {304, false, false}, {305, true, true}};
  for (const auto& [dia, cale, refri] : dias) {
    EXPECT_EQ(carga.TCR[Hora(dia, 12)], cale ? Valor(CTCh, 0, 12) : 0.0F) << dia;
    EXPECT_EQ(carga.TRR[Hora(dia, 12)], refri ? Valor(CTRh, 0, 12) : 0.0F) << dia;
  }
}

TEST_F(Horarios, UnDiaSinClaseConservaLosValoresDePartida) {
  EXPECT_FALSE(NecesitaUsoBase(g));
  g.perfiles.calendario[365] = 77;  // no es un día del año
  EXPECT_FALSE(NecesitaUsoBase(g));
  g.perfiles.calendario[364] = 10;
  EXPECT_TRUE(NecesitaUsoBase(g));
  Edificio edificio;
  edificio.SetDatosGenerales(g);
  SeriesCarga carga;
  carga.QOCUPSh[Hora(365, 5)] = carga.QOCUPSh[Hora(364, 5)] = 3.5F;
  GenerarCargas(g, ResolverAjustes(edificio), carga);
  EXPECT_EQ(carga.QOCUPSh[Hora(365, 5)], 3.5F);
  EXPECT_EQ(carga.QOCUPSh[Hora(364, 5)], Valor(C1, 0, 5));
}

}  // namespace
}  // namespace novex
