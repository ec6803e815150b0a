#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <numeric>

#include "systems/CaptadoresSolares.h"
#include "systems/CasoSistemas.h"
#include "systems/DemandaACS.h"
#include "systems/DepositoEstratificado.h"
#include "systems/Fotovoltaica.h"

namespace novex {
namespace {

using pruebas::BloqueCompleto;
using pruebas::CasoSistemas;

TEST(DemandaACS, PersonasPorDormitoriosYCentralizacion) {
  const std::array<float, 10> personas = {0, 1.5F, 3, 4, 5, 6, 6, 7, 7, 7};
  for (std::size_t n = 0; n < personas.size(); ++n)
    EXPECT_EQ(PersonasVivienda(static_cast<int>(n)), personas[n]) << n;
  EXPECT_EQ(PersonasVivienda(-1), 0.0F);
  Ventilacion v;
  v.tipologias = {{{2, 1, 0, 0}, {3, 2, 0, 0}, {}, {}, {}, {1, 9, 0, 0}}};
  EXPECT_EQ(PersonasTotales(v), 2 * 1.5F + 3 * 3.0F + 7.0F);
  const std::pair<int, float> casos[] = {{0, 1},       {1, 1},      {3, 1},      {4, 0.95F},
                                         {10, 0.95F},  {11, 0.9F},  {20, 0.9F},  {21, 0.85F},
                                         {50, 0.85F},  {51, 0.8F},  {75, 0.8F},  {76, 0.75F},
                                         {100, 0.75F}, {101, 0.7F}, {5000, 0.7F}};
  for (const auto& [n, factor] : casos) EXPECT_EQ(FactorCentralizacion(n), factor) << n;
}

TEST(DemandaACS, VolumenDeReferencia) {
  CasoSistemas c;
  Ventilacion v;
  v.tipologias = {{{10, 2, 0, 0}, {2, 3, 0, 0}, {}, {}, {}, {}}};
  c.edificio.SetVentilacion(v);
  EXPECT_NEAR(VolumenReferencia(c.edificio), 28 * 38 * 0.9, 1e-3);
  const std::pair<const char*, float> casos[] = {{"Hotel *****", 690},
                                                 {"Hotel/hostal **", 340},
                                                 {"Oficinas", 20},
                                                 {"Escuela sin ducha", 40},
                                                 {"Cafeterías", 10},
                                                 {"Otros", 0},
                                                 {"", 550},
                                                 {"Una que no existe", 550}};
  for (const auto& [actividad, litros] : casos) {
    c.Generales([&, a = actividad](DatosGenerales& g) {
      g.PerfilUso = 3;
      g.Nm2_p = 10;
      g.Actividad = a;
    });
    EXPECT_NEAR(VolumenReferencia(c.edificio), litros, 1e-3) << actividad;
  }
  c.Generales([](DatosGenerales& g) { g.Nm2_p = 0; });
  EXPECT_EQ(VolumenReferencia(c.edificio), 0.0F);
}

// Personas por tipo: A 1,5 (2 viviendas), B 4 (1 vivienda): 7 en total y 3 viviendas.
TEST(DemandaACS, FactoresDeVivienda) {
  struct Fila {
    int perfil;
    const char* instalacion;
    int tipo;
    double f1, f2;
  };
  const char* individual = "Individual/Vivienda";
  const char* central = "Centralizada/Bloque";
  const Fila filas[] = {
      {0, individual, 0, 1, 1},       {0, central, 0, 1, 1},      {1, individual, 0, 1.5 / 7, 3},
      {1, individual, 1, 4.0 / 7, 3}, {1, individual, 2, 0, 3},   {1, individual, 6, 1, 3},
      {1, individual, -1, 1, 3},      {1, central, 0, 1, 1},      {2, individual, 0, 1, 8},
      {2, central, 0, 1, 1},          {3, individual, 0, 0.2, 1}, {15, individual, 0, 0.2, 1},
      {3, central, 0, 1, 1}};
  CasoSistemas c;
  Ventilacion v;
  v.tipologias = {{{2, 1, 0, 0}, {1, 3, 0, 0}, {}, {}, {}, {}}};
  c.edificio.SetVentilacion(v);
  // Cinco equipos de agua caliente en dos sistemas, y uno que no la da.
  for (const char* tipo : {"ACS", "ACS+Calefaccion", "Calefaccion"}) {
    Instalaciones i = BloqueCompleto("1 Caldera");
    i.NEquipos = std::string_view(tipo) == "ACS" ? 2 : 3;
    c.Anadir(tipo, i);
  }
  for (const Fila& f : filas) {
    c.Generales([&](DatosGenerales& g) {
      g.PerfilUso = f.perfil;
      g.NVBloqueF = 8;
    });
    Instalaciones i = BloqueCompleto("1 Caldera", f.instalacion);
    i.Nradiadores = f.tipo;
    const FactoresVivienda r = FactoresDeVivienda(c.edificio, i);
    EXPECT_NEAR(r.f1, f.f1, 1e-6) << f.perfil << f.instalacion << f.tipo;
    EXPECT_NEAR(r.f2, f.f2, 1e-6) << f.perfil << f.instalacion << f.tipo;
  }
}

// Efectividad 0,7 sobre el lado de menor caudal: 0,7·40 = 28 K en él y 28·0,02/0,03 en el otro.
TEST(Intercambiador, AMano) {
  const SalidaIntercambiador s = Intercambiar(0.02, 80, 0.7, 0.03, 40);
  EXPECT_NEAR(s.primario, 52, 1e-9);
  EXPECT_NEAR(s.secundario, 40 + 28.0 * 2 / 3, 1e-9);
  EXPECT_NEAR(Intercambiar(0.03, 80, 0.7, 0.02, 40).secundario, 68, 1e-9);
  for (const auto& [m1, m2] : {std::pair{0.0, 0.03}, {0.02, 0.0}, {-1.0, 0.03}}) {
    const SalidaIntercambiador parado = Intercambiar(m1, 80, 0.7, m2, 40);
    EXPECT_EQ(parado.primario, 80);
    EXPECT_EQ(parado.secundario, 40);
  }
}

DatosGenerales Campo(int n, float caudal, float a0, float a1) {
  DatosGenerales g;
  g.N_colec_term = n;
  g.Sup_colec_term = 2;
  g.Caudal_Col_ST = caudal;
  g.AA_colec_term = a0;
  g.BB_colec_term = a1;
  g.CC_colec_term = 0;
  g.Control_Tmin_ST = 2;
  g.Long_Tub_ST = 0;
  return g;
}

// 2 m2 con 72 l/h (83,68 W/K), agua a 40 °C, 20 °C fuera y 800 W/m2. De P = 1600 (0,8 - 4 (Tm -
// 20)/800) y Tm = 40 + P/167,36 sale P = 1120/1,0478 = 1068,9 W.
TEST(CaptadoresSolares, CurvaAMano) {
  DatosGenerales g = Campo(1, 72, 0.8F, 4);
  const CaptadoresSolares c(g);
  EXPECT_NEAR(c.Potencia(40, 800, 20), 1068.9, 0.9);
  EXPECT_GT(c.Potencia(20, 800, 20), c.Potencia(40, 800, 20));
  EXPECT_EQ(c.Potencia(40, 0, 20), 0);
  // 0,8 - 4·70/350 = 0: no rinde ya a la entrada.
  EXPECT_EQ(c.Potencia(90, 350, 20), 0);
  // El término cuadrático: 0,8 - 0,1 - 0,01·400/800 - lo que sube la media.
  g.CC_colec_term = 0.01F;
  EXPECT_NEAR(CaptadoresSolares(g).Potencia(40, 800, 20), 1055.5, 6);
  for (DatosGenerales nulo : {Campo(0, 72, 0.8F, 4), Campo(1, 0, 0.8F, 4)})
    EXPECT_EQ(CaptadoresSolares(nulo).Potencia(40, 800, 20), 0);
  // 8 m2 con 1800 l/h (2092 W/K) y rendimiento fijo de 0,5: con 1046 W/m2 el salto es de 2 °C
  // justos, y la bomba se para.
  const CaptadoresSolares justo(Campo(4, 1800, 0.5F, 0));
  EXPECT_EQ(justo.Potencia(40, 1046, 20), 0);
  EXPECT_NEAR(justo.Potencia(40, 1047, 20), 4188, 1e-6);
}

class Campos : public testing::Test {
 protected:
  Campos() {
    g.PerfilUso = 0;
    g.PSuciedad_FV = 6;
    g.PConversor_FV = 4;
    clima->CENITS[12] = 60;
    clima->IDIRECTA[12] = 800;
    clima->IDIFUSA[12] = 100;
    clima->TSE[12] = 20;
  }
  float Potencia(float extra = 0) const { return PotenciaFotovoltaica(g, *clima, extra, 12); }

  DatosGenerales g;
  std::unique_ptr<SeriesClima> clima = std::make_unique<SeriesClima>();
};

// 800 cos 60° + 100 = 500 W/m2; la célula pierde 0,4 (15 + 25 - 20) = 8 % y queda el 82 %.
TEST_F(Campos, UnaHoraAMano) {
  EXPECT_FALSE(HayFotovoltaica(g, 0));
  g.PotPico_FV[0] = 3;
  EXPECT_TRUE(HayFotovoltaica(g, 0));
  EXPECT_NEAR(Potencia(), 1.23, 1e-4);
  EXPECT_NEAR(Potencia(1), 1.64, 1e-4);
  clima->TSE[12] = -10;  // con frío, 0,4 (15 + 25 + 10) = 20 % y queda el 70 %
  EXPECT_NEAR(Potencia(), 3 * 0.5 * 0.7, 1e-4);
  clima->TSE[12] = 20;
  // Otro campo de 1 kW de cara al sol: 800 + 93,30 + 6,70 W/m2, y su célula pierde 12,8 %.
  g.PotPico_FV[2] = 1;
  g.Incli_FV[2] = 60;
  EXPECT_NEAR(Potencia(), 1.23 + 0.9 * 0.772, 1e-3);
}

// Lo mismo a mediodía del 1 de enero y en la última hora de febrero, la 1416.
TEST_F(Campos, SeSumaPorMeses) {
  EXPECT_EQ(ProduccionFotovoltaica(g, *clima)[0], 0.0F);
  clima->CENITS[1416] = 60;
  clima->IDIRECTA[1416] = 800;
  clima->IDIFUSA[1416] = 100;
  clima->TSE[1416] = 20;
  g.PotPico_FV[0] = 3;
  const TablaMensual meses = ProduccionFotovoltaica(g, *clima);
  EXPECT_NEAR(meses[1], 1.23, 1e-4);
  EXPECT_NEAR(meses[2], 1.23, 1e-4);
  EXPECT_EQ(meses[3], 0.0F);
  EXPECT_NEAR(meses[0], 2.46, 1e-4);
}

TEST_F(Campos, LaMedidaPoneElPrimerCampo) {
  EXPECT_TRUE(HayFotovoltaica(g, 1));
  EXPECT_NEAR(Potencia(1), 0.41, 1e-4);
  EXPECT_EQ(Potencia(), 0.0F);
  // A un piso le toca su parte.
  g.PotPico_FV[0] = 3;
  g.PerfilUso = 2;
  g.NVBloqueF = 4;
  EXPECT_NEAR(Potencia(), 1.23 / 4, 1e-4);
  g.PerfilUso = 1;
  EXPECT_NEAR(Potencia(), 1.23, 1e-4);
}

double Almacenada(const GeometriaDeposito& g, const Nodos& T) {
  return g.masaCp * std::accumulate(T.begin(), T.end(), 0.0);
}

bool EnOrden(const Nodos& T) {
  return std::is_sorted(T.rbegin(), T.rend(), [](double a, double b) { return a < b - 1e-5; });
}

Nodos Uniforme(double T) {
  return {T, T, T, T, T};
}

TEST(DepositoEstratificado, ElUnicoNodoQueNadaTocaNoCambia) {
  const GeometriaDeposito g(200, 0, 2);
  Nodos T = Uniforme(50);
  MinutoDeposito m;
  m.generador.areaSerpentin = 2;  // un serpentín sin caudal no hace nada
  m.generador.temperatura = 90;
  m.solar.caudalSerpentin = 0.1;  // ni uno sin área
  m.solar.temperatura = 80;
  for (int i = 0; i < 60; ++i) {
    const EnergiasDeposito e = AvanzarDeposito(g, m, T);
    EXPECT_EQ(e.salidaGenerador, 90);
    EXPECT_EQ(e.salidaSolar, 80);
    EXPECT_EQ(e.Suma(), 0);
  }
  for (const double t : T) EXPECT_NEAR(t, 50, 1e-9);
}

TEST(DepositoEstratificado, LaExtraccionDejaElOrdenYVaciaDesdeAbajo) {
  const GeometriaDeposito g(200, 2, 2);
  MinutoDeposito m;
  m.extraccion = 0.1;  // 60 kg en diez minutos, nodo y medio
  m.entradaAgua = 10;
  Nodos T = Uniforme(60);
  for (int i = 0; i < 10; ++i) {
    AvanzarDeposito(g, m, T);
    ASSERT_TRUE(EnOrden(T));
  }
  EXPECT_GT(T[0], 59);
  EXPECT_LT(T[4], 25);
  // Con extracción y potencia fijas el régimen es el de un calentador: 5000/(0,05·4184) = 23,90 K.
  const GeometriaDeposito aislado(200, 0, 2);
  m.extraccion = 0.05;
  m.auxiliar = 5000;
  m.nodoAuxiliar = 3;
  EnergiasDeposito e;
  for (int i = 0; i < 3000; ++i) e = AvanzarDeposito(aislado, m, T);
  EXPECT_NEAR(T[0], 10 + 23.90, 0.05);
  EXPECT_NEAR(e.extraccion, -5000 * 60, 1500);
}

// Un día con todo a la vez: lo que entra y sale es lo que queda dentro, al 0,1 %.
TEST(DepositoEstratificado, ElDiaCierra) {
  const GeometriaDeposito g(300, 3, 2.5);
  Nodos T{60, 55, 50, 40, 30};
  const double inicio = Almacenada(g, T);
  double suma = 0, entra = 0;
  for (int minuto = 0; minuto < 1440; ++minuto) {
    MinutoDeposito m;
    m.ambiente = 17;
    m.entradaAgua = 12;
    m.extraccion = minuto % 60 < 15 ? 0.06 : 0.0;
    m.recirculacion = minuto % 120 < 60 ? 0.03 : 0.0;
    m.retorno = T[0] - 5;
    m.nodoRetorno = 1;
    m.auxiliar = T[1] < 50 ? 2000 : 0;
    m.nodoAuxiliar = 1;
    m.generador.temperatura = 65;
    m.generador.caudalDirecto = T[1] < 55 ? 0.1 : 0.0;
    m.solar.temperatura = 58;
    m.solar.caudalSerpentin = minuto > 600 && minuto < 1000 ? 0.05 : 0.0;
    m.solar.areaSerpentin = 2;
    const EnergiasDeposito e = AvanzarDeposito(g, m, T);
    suma += e.Suma();
    entra += e.directaGenerador + e.serpentinSolar + e.auxiliar;
    for (const double t : T) ASSERT_TRUE(t > 5 && t < 70) << minuto;
  }
  EXPECT_GT(entra, 5e7);
  EXPECT_NEAR(suma, Almacenada(g, T) - inicio, 1e-3 * entra);
  // Una entrada imposible no lo cuelga.
  const GeometriaDeposito otro(200, 2, 2);
  MinutoDeposito malo;
  malo.entradaAgua = std::numeric_limits<double>::quiet_NaN();
  malo.extraccion = 0.1;
  Nodos imposible = Uniforme(60);
  AvanzarDeposito(otro, malo, imposible);
  EXPECT_TRUE(std::isnan(imposible[4]));
}

}  // namespace
}  // namespace novex
